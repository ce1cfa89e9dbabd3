#include "statistics/screens/frmABSTAND.h"

#include "archive/logic/Spielarttexte.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/ZZModusOptionen.h"
#include "shell/logic/Zahlen.h"
#include "statistics/logic/AbstandListe.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr auto kInfo =
    "Das Programm ermittelt wieviele Wochen eine bestimmte Gewinnzahl in der Vergangenheit nicht gezogen wurde, "
    "bzw. nach wievielen Wochen die Zahl wieder gezogen wurde. Der größte Ausbleibezeitraum wird in der Liste "
    "markiert.\n\n"
    "Button \"Maximum suchen\" -> Es wird der überhaupt größte Ausbleibezeitraum gesucht (für alle Gewinnzahlen 1-49 "
    "in einem Lauf).";

constexpr auto kHinweisMaximum = "Es wird der überhaupt größte Ausbleibezeitraum gesucht (für alle Gewinnzahlen 1-49 "
                                 "in einem Lauf).";

/// Characters that the widest text of a column of data has, its caption included.
int zeichen(int spalte)
{
    switch (spalte) {
    case 0:
        return 8;
    case AbstandSpalten::kDatum:
        return 14;
    case AbstandSpalten::kWochen:
        return 7;
    default:
        return spalte == AbstandSpalten::kJahr ? 5 : 3;
    }
}

/// The columns that are padded with blanks end at the right.
TextAlign ausrichtung(int spalte)
{
    return spalte == 0 || spalte == AbstandSpalten::kWochen ? TextAlign::Right : TextAlign::Center;
}

} // namespace

frmABSTAND::frmABSTAND(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmABSTAND",
                 "Ausbleibestatistik, nach wieviel Wochen wurde eine Gewinnzahl wieder gezogen?")
{
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::EineZahl, this);
    optZ = new ZZModusOptionen(this);
    baueListe();
    Bezeichnung1 = bezeichnung("Bezeichnung1", "Erste Ziehung: ");
    Bezeichnung2 = bezeichnung("Bezeichnung2", qt(kZusatzzahlHinweis));
    Bezeichnung4 = bezeichnung("Bezeichnung4", istSamstag(umgebung.archiv.Spielart) ? "1955/41" : "1986/23");
    Bezeichnung5 = bezeichnung("Bezeichnung5", "Letzte Ziehung: ");
    Bezeichnung7 = bezeichnung("Bezeichnung7", "Ziehungen mit");
    Bezeichnung8 = bezeichnung("Bezeichnung8");
    Bezeichnung9 = bezeichnung("Bezeichnung9", "ausgew. Gewinnzahl");
    Bezeichnung10 = bezeichnung("Bezeichnung10");
    Bezeichnung16 = bezeichnung("Bezeichnung16");
    Bezeichnung57 = bezeichnung("Bezeichnung57", " Anzahl der Ziehungen: ");
    Bezeichnung58 = bezeichnung("Bezeichnung58");
    lblmax = bezeichnung("lblmax");
    Befehl2 = befehl("Befehl2", "<< ");
    Befehl5 = befehl("Befehl5", "&Info");
    cmdMax = befehl("cmdMax", "&Maximum suchen");
    cmdClip = clipBefehl("cmdClip", [this] { return bericht(); });

    alsUeberschrift(Bezeichnung10);
    lblmax->setTextFormat(Qt::PlainText);
    lblmax->setMinimumHeight(2 * lblmax->fontMetrics().lineSpacing());
    cmdMax->setToolTip(kHinweisMaximum);
    cmdMax->setEnabled(false);
    cmdClip->setEnabled(false);

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung10, luecke(), Bezeichnung2}),
        dehnbar(zeile({
            spalte({
                rahmen("Frame", "Bitte eine Zahl auswählen:", spalte({Bezeichnung6, optZ})),
                formular({
                    {Bezeichnung57, Bezeichnung58},
                    {Bezeichnung1, Bezeichnung4},
                    {Bezeichnung5, Bezeichnung16},
                    {eng(spalte({Bezeichnung7, Bezeichnung9})), Bezeichnung8},
                }),
                luecke(),
            }),
            dehnbar(ListView1),
        })),
        lblmax,
        zeile({cmdMax, cmdClip, Befehl5, luecke(), Befehl2}),
    }));
    // clang-format on

    Bezeichnung6->beiKlick = [this](int zahl) {
        GewaehlteZahl = zahl;
        werteAus();
    };
    optZ->beiWahl = [this](ZZModus) { wechsleModus(); };
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl5, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(cmdMax, [this] { sucheMaximum(); });
}

void frmABSTAND::baueListe()
{
    ListView1 = new ListView(this);
    ListView1->setObjectName("ListView1");
    for (int spalte = 0; spalte < AbstandSpalten::kAnzahl; ++spalte) {
        const std::string_view schluessel = AbstandSpalten::kSchluessel[static_cast<std::size_t>(spalte)];
        if (AbstandSpalten::istTrenner(spalte))
            ListView1->AddTrenner(schluessel);
        else
            ListView1->AddColumn(schluessel, spalte == 0 ? "Zieh.Nr." : schluessel, ausrichtung(spalte),
                                 ListView1->breiteFuerZeichen(zeichen(spalte)));
    }
    ListView1->setColumnsAutoSize(true);
    ListView1->setDrawCallback(this);
}

void frmABSTAND::beimZeigen()
{
    Bezeichnung10->setText(qt(spielartGross(umgebung().archiv.Spielart)));
}

void frmABSTAND::wechsleModus()
{
    lblmax->clear();
    if (GewaehlteZahl > 0)
        werteAus();
    else
        umgebung().boxen.info(kProgrammtitel, "Bitte zunächst eine Gewinnzahl auswählen.");
}

void frmABSTAND::werteAus()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = werteAbstandAus(umgebung().archiv, GewaehlteZahl, optZ->modus());
    fuelleListe();
    Bezeichnung10->setText(qt(spielartGross(ergebnis_.Spielart)));
    Bezeichnung4->setText(qt(ergebnis_.ersteZiehung));
    Bezeichnung8->setNum(static_cast<int>(ergebnis_.treffer.size()));
    zeigeStand();
    cmdClip->setEnabled(true);
    cmdMax->setEnabled(true);
}

void frmABSTAND::fuelleListe()
{
    ListView1->setRedraw(false);
    ListView1->Clear();
    for (std::size_t treffer = 0; treffer < ergebnis_.treffer.size(); ++treffer) {
        const AbstandZellen zellen = abstandZellen(ergebnis_, treffer);
        // The tag finds the hit again after the user has sorted the list.
        const int zeile = ListView1->AddItem(zellen[0], std::to_string(treffer));
        for (int spalte = 2; spalte < AbstandSpalten::kAnzahl; spalte += 2)
            ListView1->setItemText(zeile, spalte, zellen[static_cast<std::size_t>(spalte)]);
    }
    ListView1->setRedraw(true);
    if (ergebnis_.laengster != AbstandAuswertung::kKeine)
        ListView1->MakeSureVisible(ergebnis_.laengster);
}

void frmABSTAND::zeigeStand()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    Bezeichnung16->setText(qt(jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen))));
    Bezeichnung58->setNum(archiv.AnzahlZiehungen);
}

void frmABSTAND::sucheMaximum()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    const ZZModus modus = optZ->modus();
    if (zaehltZusatzzahl(modus))
        loescheFrueheZusatzzahlen(umgebung().archiv);
    maximum_ = laengsterAbstand(umgebung().archiv, modus);
    lblmax->setText(qt(laengsterAbstandText(maximum_, modus)));
    zeigeStand();
}

std::size_t frmABSTAND::trefferIn(int zeile) const
{
    return static_cast<std::size_t>(ganzzahl(ListView1->ItemTag(zeile)).value_or(0));
}

std::string frmABSTAND::bericht() const
{
    std::vector<std::size_t> reihenfolge;
    reihenfolge.reserve(static_cast<std::size_t>(ListView1->ItemCount()));
    for (int zeile = 0; zeile < ListView1->ItemCount(); ++zeile)
        reihenfolge.push_back(trefferIn(zeile));
    return abstandBericht(ergebnis_, reihenfolge);
}

void frmABSTAND::CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled)
{
    const bool laengster = static_cast<int>(trefferIn(row)) == ergebnis_.laengster;
    const Farbpaar farbe = abstandFarbe(row, column, ListView1->ItemText(row, column), laengster);
    backColor = farbe.grund;
    foreColor = farbe.schrift;
    handled = true;
}
