#include "filters/screens/frmZusammenWiederholungenInFolgeziehung.h"

#include "archive/screens/Spielartenwahl.h"
#include "filters/logic/Serienzeilen.h"
#include "shell/elements/DateiDialog.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Texte.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr std::int32_t kMindestensInFolge = 3;
constexpr int kUebersichtszeilen = 13;
constexpr int kUebersichtszeichen = 42;
constexpr int kDetailzeilen = 24;
constexpr int kDetailzeichen = 70;

constexpr std::size_t kZeilenJeZug = 20'000; ///< so many are written at once

struct Wahlzeile {
    const char* zahlen;
    const char* knopf;
};
constexpr std::array<Wahlzeile, 6> kWahlzeilen{{{"Eine Gewinnzahl", "cmdEine"},
                                                {"Zwei Gewinnzahlen", "cmdZwei"},
                                                {"Drei Gewinnzahlen", "cmdDrei"},
                                                {"Vier Gewinnzahlen", "cmdVier"},
                                                {"Fünf Gewinnzahlen", "cmdFuenf"},
                                                {"Sechs Gewinnzahlen", "cmdSechs"}}};

constexpr auto kInfo =
    "Es wird gezählt, wieviele Gewinnzahlen einer Ziehung in der vorhergehenden Ziehung schon gezogen wurden.\n\n"
    "Die vorhergehende Ziehung ist die letzte davor unter allen ausgewählten Spielarten: Ist nur \"Samstagslotto\" "
    "ausgewählt, dann zählt eine Wiederholung zwischen zwei Samstagsziehungen. Ist auch \"Mittwochslotto\" ausgewählt, "
    "dann liegt die Mittwochsziehung dazwischen, und sie zählt nicht.\n\n"
    "\">=2 mal in Folge\" listet die Ziehungen auf, die genau so viele Gewinnzahlen der vorhergehenden wiederholen. "
    "Die andere Spalte sucht Gewinnzahlen, die in drei oder mehr Ziehungen hintereinander zusammen gezogen wurden.";

constexpr auto kInfo2 =
    "Die Wahrscheinlichkeit für die Wiederholung von 4, 5, oder 6 Gewinzzahlen in "
    "mehr als 2 Folgeziehungen ist sehr gering. Bis zum Jahr 2015 ist so ein Wiederholungsfall noch nicht aufgetreten.";

constexpr std::array kSpeicherkopf{"Falls die Tabellen nicht richtig dargestellt werden, wählen sie für die Ansicht ",
                                   "eine nichtproportionale Schriftart (z.B. Courier New oder Courier)"};

} // namespace

frmZusammenWiederholungenInFolgeziehung::frmZusammenWiederholungenInFolgeziehung(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZusammenWiederholungenInFolgeziehung",
                 "Wiederholungen von Gewinnzahlen in der Folgeziehung")
{
    frmArt = new Spielartenwahl(*this);
    QLayout* wahl = baueWahl();
    List2 = liste("List2");
    List2->setzeSichtbar(kUebersichtszeilen, kUebersichtszeichen);
    List1 = liste("List1");
    List1->setzeSichtbar(kDetailzeilen, kDetailzeichen);
    cmdSave = befehl("cmdSave", "&Speichern", hinweis("Speichert beide Listen als Textdatei."));
    cmdInfo = befehl("cmdInfo", "&Info");
    cmdInfo2 = befehl("cmdInfo2", "&Hinweis");
    cmdEnd = befehl("cmdEnd", "<<");

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            spalte({
                frmArt,
                rahmen("Rahmen1", "Wiederholungen auflisten", wahl),
                dehnbar(List2),
            }),
            dehnbar(eng(spalte({
                listenkopf("lblKopf", " Jahr  SW  Z1 Z2 Z3 Z4 Z5 Z6  ZZ   SZ         Datum                 Nr."),
                dehnbar(List1),
            }))),
        })),
        zeile({cmdSave, cmdInfo, cmdInfo2, luecke(), cmdEnd}),
    }));
    // clang-format on

    frmArt->beiWechsel = [this] { folgeSpielarten(); };
    bei(cmdSave, [this] { speichere(); });
    bei(cmdInfo, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(cmdInfo2, [this] { this->umgebung().boxen.info(kInfotitel, kInfo2); });
    bei(cmdEnd, [this] { schliesse(); });
    folgeSpielarten();
}

/// A row for each count of numbers, the most first.
QLayout* frmZusammenWiederholungenInFolgeziehung::baueWahl()
{
    Bloecke felder;
    std::vector<QPushButton*> startknoepfe;
    for (int zahlen = static_cast<int>(kWahlzeilen.size()); zahlen >= 1; --zahlen) {
        const auto& [titel, name] = kWahlzeilen[static_cast<std::size_t>(zahlen) - 1];
        QPushButton* wiederholt = befehl(name, ">=2 mal in Folge",
                                         hinweis("Listet die Ziehungen auf, die genau so viele Gewinnzahlen der "
                                                 "vorhergehenden Ziehung wiederholen."));
        QPushButton* inFolge =
            befehl(QString("cmdFolge(%1)").arg(zahlen), zahlen == 1 ? "3 mal in Folge" : ">=3 mal in Folge",
                   hinweis("Sucht so viele Gewinnzahlen, die in drei oder mehr Ziehungen "
                           "hintereinander zusammen gezogen wurden."));
        felder.insert(felder.end(), {bezeichnung(QString("lblZahlen(%1)").arg(zahlen), titel), wiederholt, inFolge});
        startknoepfe.insert(startknoepfe.end(), {wiederholt, inFolge});
        bei(wiederholt, [this, zahlen, wiederholt] { waehle({.zahlen = zahlen, .knopf = wiederholt}); });
        bei(inFolge, [this, zahlen, inFolge] { waehle({.zahlen = zahlen, .inFolge = true, .knopf = inFolge}); });
    }
    hauptaktionen(startknoepfe);
    return eng(raster(3, felder));
}

void frmZusammenWiederholungenInFolgeziehung::waehle(const Wahl& wahl)
{
    if (!frmArt->pruefe())
        return;
    const Lauf lauf(*this);
    if (!lauf)
        return;
    wahl_ = wahl;
    zeige(wahl);
}

void frmZusammenWiederholungenInFolgeziehung::zeige(const Wahl& wahl)
{
    const auto fuelle = [this](const auto& zeilen) {
        List1->modell().aufAnfrage(zeilen->anzahl(), [zeilen](std::size_t nr) { return zeilen->zeile(nr); });
    };
    if (wahl.inFolge)
        fuelle(std::make_shared<const Serienzeilen>(
            sucheSerien(wiederholungen_.folge, {.zahlen = wahl.zahlen, .mindestens = kMindestensInFolge}),
            kSerienZusammen));
    else
        fuelle(std::make_shared<const Wiederholungszeilen>(wiederholungen_, wahl.zahlen));
    zeigeGelaufen(wahl.knopf);
}

void frmZusammenWiederholungenInFolgeziehung::folgeSpielarten()
{
    if (frmArt->maske() == 0) {
        leere();
        return;
    }
    wiederholungen_ = zaehleWiederholungen(gemischteFolge(umgebung().archiv), frmArt->namen());
    List2->modell().fuelle(uebersicht(wiederholungen_));
    cmdSave->setEnabled(true);
    if (wahl_)
        zeige(*wahl_);
}

void frmZusammenWiederholungenInFolgeziehung::leere()
{
    wiederholungen_ = {};
    List1->modell().Clear();
    List2->modell().Clear();
    cmdSave->setEnabled(false);
    zeigeGelaufen(nullptr);
}

void frmZusammenWiederholungenInFolgeziehung::speichere()
{
    QString pfad = SpezialOrdner(kCsidlDokumente);
    const QString name = DateiSpeichern(umgebung(), "Wiederholungen_in_der_Folgeziehung", pfad,
                                        "Wiederholungen (*.txt)|*.txt", "Wiederholungen speichern unter", "txt");
    if (name.isEmpty())
        return;
    AtomareDatei datei(utf8(pfad + name));
    if (!schreibe(datei))
        return;
    if (const DateiErgebnis ergebnis = datei.uebernimm(); !ergebnis)
        meldeNichtGeschrieben(umgebung(), name, ergebnis);
    else
        melde("Gespeichert in " + name);
}

/// Writes both lists as they are shown. False if it was stopped.
bool frmZusammenWiederholungenInFolgeziehung::schreibe(AtomareDatei& datei)
{
    Lauf lauf(*this);
    if (!lauf)
        return false;
    const auto zeile = [&datei](std::string_view text) {
        datei.schreibe(nachWindows1252(std::string(text) + std::string(kZeilenende)));
    };
    for (const char* text : kSpeicherkopf)
        zeile(text);
    zeile("");
    zeile("Spielarten: " + wiederholungen_.spielarten);
    zeile("Anzahl der ausgewerteten Ziehungen: " + std::to_string(wiederholungen_.folge->ziehungen.size()));
    for (const Liste* liste : {List2, List1}) {
        zeile("");
        for (std::size_t nr = 0; nr < liste->modell().ListCount(); ++nr) {
            if (nr % kZeilenJeZug == kZeilenJeZug - 1 && !lauf.zug())
                return false;
            zeile(liste->modell().List(nr));
        }
    }
    return true;
}
