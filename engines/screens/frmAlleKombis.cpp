#include "engines/screens/frmAlleKombis.h"

#include "archive/screens/Spielartenwahl.h"
#include "engines/logic/Kombinationseingabe.h"
#include "engines/screens/Fensterrollen.h"
#include "engines/screens/Trefferdetails.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr auto kInfo =
    "Es werden alle 13.983.816 möglichen Lottokombinationen des Lotto 6-aus-49  generiert. "
    "Jede dieser Kombinationen wird mit allen bisherigen Lottoziehungen verglichen. "
    "Die erzielten Treffer werden gezählt und aufgelistet. "
    "Nach einem Click auf eine Kombination in der linken Liste, werden die Treffer in "
    "der rechten Liste detailliert dargestellt (Jahr, Spielwoche, Gewinn, Spielart Sa o. Mi).\n\n"
    "Hinweis: Die Superzahl wurde im Samstagslotto erst am 07.12.1991 eingeführt. Im Mittwochslotto "
    "gibt es die Superzahl seit dem 06.12.1995 eingeführt.\n\n"
    "Mit der ScrollBar der linken Liste ist es etwas mühsam eine bestimmte Kombination aus den 13.983.816 "
    "Kombinationen zu finden. Deshalb kann man eine Kombination oder eine Kombinationsnummer "
    "auch direkt über die unteren Suchfelder suchen. Die gefundene Kombination wird dann an 1. Stelle der linken "
    "Liste angezeigt. Die 6 Zahlen einer zu suchenden Kombination sind durch ein Komma oder ein Leerzeichen zu "
    "trennen.";

constexpr auto kTreffer = "frmTreffer";

struct Zaehlertext {
    const char* titel;
    const char* name;
    bool mitSuperzahl;
    std::size_t richtige;
};

constexpr std::array<Zaehlertext, 9> kZaehler{{
    {"Sechser SZ:", "lblSSZ", true, 6},
    {"Fünfer SZ:", "lblFSZ", true, 5},
    {"Vierer SZ:", "lblVSZ", true, 4},
    {"Dreier SZ:", "lblDSZ", true, 3},
    {"Zweier SZ:", "lblZSZ", true, 2},
    {"Sechser:", "lblSechser", false, 6},
    {"Fünfer:", "lblFuenfer", false, 5},
    {"Vierer:", "lblVierer", false, 4},
    {"Dreier:", "lblDreier", false, 3},
}};

} // namespace

frmAlleKombis::frmAlleKombis(Umgebung& umgebung)
    : Bildschirm(
          umgebung, "frmAlleKombis",
          "Alle möglichen Lottokombinationen der Spielart 6 aus 49 und ihre Treffer in allen bisherigen Lottoziehungen")
{
    FrameZ = new Spielartenwahl(*this, {.rahmen = "FrameZ", .titel = "Alle Ziehungen dieser Spielarten einbeziehen"});
    auto* alle = rahmen("FrameAlle", "Alle möglichen 13.983.816 Lottokombinationen und ihre Treffer", baueListe());
    QLayout* suche = baueSuche();
    FrameDetail = new Trefferdetails(*this, kTrefferspaltenMitSuperzahl, baueZaehler());
    cmdInfo = befehl("cmdInfo", "Info");
    cmdEnd = befehl("cmdEnd", "Beenden");
    cmdTreffer = befehl("cmdTreffer", "Die erfolgreichsten Kombinationen suchen");
    cmdEnd->setToolTip("Zum Startmenü");
    cmdTreffer->setToolTip(
        "Wechselt zum Programmteil \"Kombinationen mit den meisten oder wenigsten Treffern suchen\".");
    cmdTreffer->setEnabled(umgebung.bildschirme->kennt(kTreffer));

    // clang-format off
    setzeInhalt(zeile({
        spalte({
            dehnbar(alle),
            zeile({FrameZ, dehnbar(suche)}),
        }),
        dehnbar(spalte({
            dehnbar(FrameDetail),
            zeile({cmdTreffer, cmdInfo, luecke(), cmdEnd}),
        })),
    }));
    // clang-format on

    verbinde();
    ZeigeSeite();
}

QLayout* frmAlleKombis::baueListe()
{
    lblHeader = listenkopf("lblHeader", kKombinationskopf);
    List1 = liste("List1");
    List1->setzeSichtbar(kZeilenJeSeite, 88);
    List1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    VScroll1 = new QScrollBar(Qt::Vertical, this);
    VScroll1->setObjectName("VScroll1");
    VScroll1->setFocusPolicy(Qt::StrongFocus);
    rolle_.setClient(VScroll1);
    rolle_.setMax(kLetzteSeite);
    rolle_.setMin(1);
    rolle_.setSmallChange(1);
    rolle_.setLargeChange(kLetzteSeite / 10000);
    new Fensterrollen(*List1, *VScroll1, kZeilenJeSeite);
    QLayout* fenster = zeile({dehnbar(List1), VScroll1});
    fenster->setSpacing(0);
    return eng(spalte({lblHeader, dehnbar(fenster)}));
}

QLayout* frmAlleKombis::baueSuche()
{
    lblSZ = bezeichnung("lblSZ", "Superahl wählen:");
    ComboSZ = kombi("ComboSZ");
    ComboSZ->setEditable(true);
    ComboSZ->setInsertPolicy(QComboBox::NoInsert);
    for (int ziffer = 0; ziffer <= 9; ++ziffer)
        ComboSZ->addItem(QString::number(ziffer));
    lblS = {bezeichnung("lblS(0)", "Suche  Kombination:"), bezeichnung("lblS(1)", "Suche  KombiNr:")};
    Text1 = textfeld("Text1", "11 13 24 35 46 48");
    txtV = textfeld("txtV", "12.000.000");
    cmdKombisearch = befehl("cmdKombisearch", "Start");
    Command = befehl("Command", "Start");
    labelInfo =
        bezeichnung("labelInfo", "Ein Click auf eine Kombination zeigt die Gewinne detailliert in der Detailliste->");
    cmdKombisearch->setToolTip("Sucht die Kombination und zeigt sie an 1.Stelle der linken Liste an.");
    Command->setToolTip("Sucht die Kombinationsnummer und zeigt sie an 1.Stelle der linken Liste an.");
    // clang-format off
    return spalte({
        labelInfo,
        raster(3, {
            lblSZ, zeile({ComboSZ, luecke()}), luecke(),
            lblS[0], Text1, cmdKombisearch,
            lblS[1], txtV, Command,
        }),
        luecke(),
    });
    // clang-format on
}

/// The counts stand under their captions, five in a row.
QLayout* frmAlleKombis::baueZaehler()
{
    Bloecke felder;
    for (std::size_t i = 0; i < kZaehler.size(); ++i) {
        QLabel* titel = bezeichnung(QString("lblG(%1)").arg(i), kZaehler[i].titel);
        zaehler_[i] = bezeichnung(kZaehler[i].name, "0");
        felder.emplace_back(eng(spalte({titel, zaehler_[i]})));
    }
    return raster(5, felder);
}

void frmAlleKombis::verbinde()
{
    rolle_.beiAenderung = [this] { ZeigeSeite(); };
    List1->beiAuswahl = [this] { ZeigeTreffer(); };
    FrameZ->beiWechsel = [this] { wechsleSpielarten(); };
    connect(ComboSZ, &QComboBox::currentTextChanged, this, [this] { wechsleSuperzahl(); });
    enterDrueckt(Text1, cmdKombisearch);
    enterDrueckt(txtV, Command);
    bei(cmdKombisearch, [this] { sucheKombination(); });
    bei(Command, [this] { sucheNummer(); });
    bei(cmdInfo, [this] { umgebung().boxen.info(kInfotitel, kInfo); });
    bei(cmdEnd, [this] { schliesse(); });
    bei(cmdTreffer, [this] { wechsleZuDenTreffern(); });
}

std::int32_t frmAlleKombis::superzahl() const
{
    return fuehrendeZahl(utf8(ComboSZ->currentText()));
}

void frmAlleKombis::ZeigeSeite()
{
    seite_ = kombinationsseite(umgebung().archiv, rolle_.Value(), superzahl());
    std::vector<std::string> zeilen;
    zeilen.reserve(seite_.size());
    for (const Kombinationszeile& zeile : seite_)
        zeilen.push_back(kombinationszeile(zeile));
    List1->modell().fuelle(std::move(zeilen));
}

void frmAlleKombis::ZeigeTreffer()
{
    const std::ptrdiff_t zeile = List1->modell().ListIndex();
    if (zeile == ListenModell::kKeiner)
        return;
    FrameDetail->zeige(umgebung().archiv, seite_[static_cast<std::size_t>(zeile)].zahlen, superzahl());
    zeigeZaehler();
}

void frmAlleKombis::zeigeZaehler()
{
    const Trefferzaehler zaehler = FrameDetail->zaehler();
    for (std::size_t i = 0; i < kZaehler.size(); ++i)
        zaehler_[i]->setNum(
            (kZaehler[i].mitSuperzahl ? zaehler.mitSuperzahl : zaehler.ohneSuperzahl)[kZaehler[i].richtige]);
}

/// The chosen row stays chosen. The details follow, also those of a row that has been scrolled away.
void frmAlleKombis::wechsleSuperzahl()
{
    const std::ptrdiff_t zeile = List1->modell().ListIndex();
    ZeigeSeite();
    List1->modell().SetListIndex(zeile);
    if (const std::optional<Kombination> gezeigte = FrameDetail->kombination()) {
        FrameDetail->zeige(umgebung().archiv, *gezeigte, superzahl());
        zeigeZaehler();
    }
}

void frmAlleKombis::wechsleSpielarten()
{
    FrameDetail->leere();
    zeigeZaehler();
    ZeigeSeite();
}

void frmAlleKombis::sucheNummer()
{
    if (FrameZ->maske() == 0)
        return;
    const std::string eingabe = ohnePunkte(utf8(txtV->text()));
    txtV->setText(qt(eingabe));
    const std::optional<std::int32_t> nummer = liesKombinationsnummer(eingabe);
    if (!nummer) {
        umgebung().boxen.info(kProgrammtitel, kMeldungNummer);
        return;
    }
    zeigeAnErsterStelle(*nummer);
    txtV->setText(qt(Format(*nummer, "##,###,###")));
}

void frmAlleKombis::sucheKombination()
{
    if (FrameZ->maske() == 0)
        return;
    const Zahlensuche suche = sucheZahlen(utf8(Text1->text()));
    for (const std::string& meldung : suche.meldungen)
        umgebung().boxen.info(kProgrammtitel, qt(meldung));
    if (suche.nummer)
        zeigeAnErsterStelle(*suche.nummer);
}

/// The last 29 combinations stand further down on the last page; its first row is chosen for them too.
void frmAlleKombis::zeigeAnErsterStelle(std::int32_t nummer)
{
    rolle_.setValue(nummer);
    List1->modell().SetListIndex(0);
    ZeigeTreffer();
}

void frmAlleKombis::wechsleZuDenTreffern()
{
    umgebung().klang.SpieleKlang(1);
    zuDenTreffern_ = true;
    schliesse();
}

void frmAlleKombis::beimSchliessen()
{
    if (zuDenTreffern_)
        umgebung().bildschirme->oeffne(kTreffer);
}
