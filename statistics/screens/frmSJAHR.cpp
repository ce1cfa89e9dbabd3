#include "statistics/screens/frmSJAHR.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/ZZModusOptionen.h"
#include "shell/logic/ClipReport.h"
#include "statistics/logic/JahrUndWocheZeilen.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr auto kDetailtitel = "Ziehungshäufigkeit pro Jahr  /  Ziehungshäufigkeit pro Spielwoche";
constexpr auto kInfo = "Alle ca. fünf Jahre hat das Spieljahr\n53 Spielwochen.";
constexpr int kSichtbareZeilen = 24;
constexpr int kListeneinzug = 5; ///< pixels from the edge of a list to its text

/// Fills a list, chooses all rows with the highest count and brings the first of them into sight.
void zeige(Liste* liste, QLabel* maximum, const Anzahlzeilen& zeilen)
{
    liste->modell().fuelle(zeilen.zeilen);
    for (const std::size_t stelle : zeilen.hoechste)
        liste->modell().SetSelected(stelle, true);
    if (!zeilen.hoechste.empty())
        liste->zeigeZeile(static_cast<int>(zeilen.hoechste.front()));
    maximum->setText(QString("Maximum: %1").arg(zeilen.maximum));
}

} // namespace

frmSJAHR::frmSJAHR(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmSJAHR", "Ziehungshäufigkeit einer Gewinnzahl pro Jahr / pro Spielwoche"),
      tippfeld_(new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::EineZahl, this)),
      optZ(new ZZModusOptionen(this))
{
    Liste1 = liste("Liste1", {.MultiSelect = true});
    Liste2 = liste("Liste2", {.MultiSelect = true});
    Liste1->setzeSichtbar(kSichtbareZeilen, 30);
    Liste2->setzeSichtbar(kSichtbareZeilen, 24);
    auto* Bezeichnung1 = bezeichnung("Bezeichnung1", "Erste Ziehung: ");
    Bezeichnung2 = bezeichnung("Bezeichnung2", qt(kZusatzzahlHinweis));
    auto* Bezeichnung3 = bezeichnung("Bezeichnung3", "Jahr            Häufigkeit");
    Bezeichnung4 = bezeichnung("Bezeichnung4");
    auto* Bezeichnung5 = bezeichnung("Bezeichnung5", "Letzte Ziehung: ");
    auto* Bezeichnung7 = bezeichnung("Bezeichnung7", "Ziehungen mit");
    Bezeichnung8 = bezeichnung("Bezeichnung8");
    auto* Bezeichnung9 = bezeichnung("Bezeichnung9", "ausgew. Gewinnzahl");
    Bezeichnung10 = bezeichnung("Bezeichnung10");
    auto* Bezeichnung11 = bezeichnung("Bezeichnung11", "Spielwoche     Häufigkeit");
    Bezeichnung16 = bezeichnung("Bezeichnung16");
    auto* Bezeichnung57 = bezeichnung("Bezeichnung57", "Anzahl der Ziehungen: ");
    Bezeichnung58 = bezeichnung("Bezeichnung58");
    lblMaximum = bezeichnung("lblMaximum");
    lblMax2 = bezeichnung("lblMax2");
    Befehl2 = befehl("Befehl2", "&<<");
    Befehl3 = befehl("Befehl3", "Info");
    Befehl4 = befehl("Befehl4", "Pro Jahr &detailliert");
    Befehl5 = befehl("Befehl5", "&ClipBoard", hinweis("Druckt Häufigkeit pro Jahr."));
    Befehl6 = befehl("Befehl6", "Clip&Board", hinweis("Druckt Häufigkeit pro Spielwoche."));
    for (QPushButton* knopf : {Befehl4, Befehl5, Befehl6})
        knopf->setEnabled(false);
    for (QPushButton* knopf : {Befehl5, Befehl6})
        knopf->setToolTip(qt(kClipHinweis));
    for (QLabel* kopf : {Bezeichnung3, Bezeichnung11})
        kopf->setIndent(kListeneinzug);
    alsUeberschrift(Bezeichnung10);
    Bezeichnung2->setWordWrap(true);

    // clang-format off
    setzeInhalt(zeile({
        spalte({
            Bezeichnung10,
            rahmen("Frame", "Bitte eine Zahl auswählen:", zeile({luecke(), tippfeld_, luecke()})),
            rahmen("Frame2", "Auswertung", spalte({optZ, Bezeichnung2})),
            rahmen("Frame3", "Ziehungen", spalte({
                formular({
                    {Bezeichnung57, Bezeichnung58},
                    {Bezeichnung1, Bezeichnung4},
                    {Bezeichnung5, Bezeichnung16},
                }),
                zeile({Bezeichnung7, Bezeichnung8, Bezeichnung9, luecke()}),
            })),
            luecke(),
            zeile({Befehl3, luecke()}),
        }),
        dehnbar(spalte({
            Bezeichnung3, dehnbar(Liste1), lblMaximum,
            zeile({Befehl4, Befehl5, luecke()}),
        }), 5),
        dehnbar(spalte({
            Bezeichnung11, dehnbar(Liste2), lblMax2,
            zeile({Befehl6, luecke(), Befehl2}),
        }), 4),
    }));
    // clang-format on

    tippfeld_->beiKlick = [this](int zahl) { werteAus(zahl, optZ->modus()); };
    optZ->beiWahl = [this](ZZModus modus) { waehleModus(modus); };
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this] { this->umgebung().boxen.info("LOTTO-INFO", kInfo); });
    bei(Befehl4, [this] { zeigeDetails(); });
    bei(Befehl5, [this] { uebertrage(qt(berichtProJahr(ergebnis_, Liste1->modell().zeilen()))); });
    bei(Befehl6, [this] { uebertrage(qt(berichtProWoche(ergebnis_, Liste2->modell().zeilen()))); });
}

void frmSJAHR::beimZeigen()
{
    zeigeStand();
}

void frmSJAHR::zeigeStand()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    Bezeichnung10->setText(qt(spielartGross(archiv.Spielart)));
    Bezeichnung2->setVisible(istSamstag(archiv.Spielart));
    Bezeichnung58->setNum(archiv.AnzahlZiehungen);
    Bezeichnung4->setText(qt(jahrUndWoche(archiv, 1)));
    Bezeichnung16->setText(qt(jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen))));
}

void frmSJAHR::waehleModus(ZZModus modus)
{
    const std::vector<int> gewaehlte = tippfeld_->modell().gewaehlte();
    if (gewaehlte.empty())
        umgebung().boxen.info(kProgrammtitel, "Bitte zunächst eine Gewinnzahl auswählen.");
    else
        werteAus(gewaehlte.front(), modus);
}

void frmSJAHR::werteAus(int zahl, ZZModus modus)
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = werteJahrUndWocheAus(umgebung().archiv, zahl, modus);
    zeigeErgebnis();
}

void frmSJAHR::zeigeErgebnis()
{
    zeigeStand();
    zeige(Liste1, lblMaximum, jahreszeilen(ergebnis_.proJahr));
    zeige(Liste2, lblMax2, wochenzeilen(ergebnis_.proWoche));
    Bezeichnung8->setNum(ergebnis_.proJahr.gesamt);
    for (QPushButton* knopf : {Befehl4, Befehl5, Befehl6})
        knopf->setEnabled(true);
}

void frmSJAHR::zeigeDetails()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    Liste1->modell().fuelle(detailzeilen(ergebnis_.treffer));
    Liste1->zeigeZeile(0);
    setzeTitel(kDetailtitel);
}
