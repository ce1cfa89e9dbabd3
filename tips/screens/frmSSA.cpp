#include "tips/screens/frmSSA.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zaehlerfeld.h"
#include "shell/elements/Zeilendruck.h"
#include "shell/logic/Format.h"
#include "shell/logic/Meldung.h"
#include "shell/logic/clsTimer.h"
#include "tips/logic/Tipphaeufigkeit.h"
#include "tips/logic/Tippscheintexte.h"
#include "tips/screens/Tipphaeufigkeitsfeld.h"
#include "tips/screens/Tippscheinliste.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace {

constexpr auto kInfo =
    "Die Gewinne werden nach dem seit 04.05.2013 gültigen Gewinnklassenplan ermittelt. Die alte Zusatzzahl wird bei "
    "der Gewinnermittlung nicht mehr berücksichtigt.\n\n"
    "Ein Click auf eine Tipscheindatei vergleicht jeden ihrer Tips mit allen Ziehungen. \"Alle Tipscheine auswerten\" "
    "vergleicht die Tips aller gespeicherten Tipscheine, \"Häufigkeit der getippten Zahlen\" zählt, wie oft jede Zahl "
    "getippt wurde.";

/// A counter of the screen: its name, what is written before it, and what it counts.
struct Zaehlerfeld {
    const char* name;
    const char* text;
    std::int32_t (*anzahl)(const Trefferbilanz&);
};

template <Gewinnklasse klasse> std::int32_t anzahlIn(const Trefferbilanz& bilanz)
{
    return bilanz.anzahl(klasse);
}

const std::array<Zaehlerfeld, 11> kZaehler{{
    {"txtEiner", "Einer", [](const Trefferbilanz& bilanz) { return bilanz.Einer; }},
    {"txtZweier", "Zweier", [](const Trefferbilanz& bilanz) { return bilanz.Zweier(); }},
    {"txtZZ", "Zweier+SZ", anzahlIn<Gewinnklasse::GK9>},
    {"txtDreier", "Dreier", anzahlIn<Gewinnklasse::GK8>},
    {"txtDZ", "Dreier+SZ", anzahlIn<Gewinnklasse::GK7>},
    {"txtVierer", "Vierer", anzahlIn<Gewinnklasse::GK6>},
    {"txtVZ", "Vierer+SZ", anzahlIn<Gewinnklasse::GK5>},
    {"txtFünfer", "Fünfer", anzahlIn<Gewinnklasse::GK4>},
    {"txtFZ", "Fünfer+SZ", anzahlIn<Gewinnklasse::GK3>},
    {"txtSechser", "Sechser", anzahlIn<Gewinnklasse::GK2>},
    {"txtSechser_SZ", "Sechser+SZ", anzahlIn<Gewinnklasse::GK1>},
}};

} // namespace

frmSSA::frmSSA(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmSSA",
                 "Vergleicht einen  gespeicherten Tipschein mit allen Ziehungen seit " +
                     qt(erstesSpieljahr(umgebung.archiv.Spielart)))
{
    baueScheine();
    baueGewinnliste();
    baueZaehler();
    baueHaeufigkeit();
    Befehl1 = befehl("Befehl1", "Info");
    Befehl2 = befehl("Befehl2", "&<<");
    Befehl3 = befehl("Befehl3", "Hin&weis");
    Befehl5 = befehl("Befehl5", "&Alle Tipscheine auswerten",
                     hinweis("Tip's aus allen gespeicherten Tipscheinen werden mit allen Ziehungen verglichen."));
    Befehl18 = befehl("Befehl18", "&Drucken", hinweis("Druckt die Gewinnliste."));
    Befehl19 = befehl("Befehl19", "&Löschen", hinweis("Löscht die Gewinnliste."));
    hauptaktionen({Befehl5, Befehl4});
    ordneAn({Befehl5, Befehl18, Befehl19, luecke(), Befehl3, Befehl1, Befehl2});
    zeigeBilanz();

    const QString jahr = qt(erstesSpieljahr(umgebung.archiv.Spielart));
    bei(Befehl1, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this, jahr] {
        this->umgebung().boxen.info("Lotto-Hinweis", "Wäre der ausgewählte Tipschein seit " + jahr +
                                                         " jede Woche gespielt worden, hätte er die in der Liste "
                                                         "aufgeführten Gewinne erzielt. Größere Gewinne (ab Vierer) "
                                                         "sind in der Gewinnliste markiert.");
    });
    bei(Befehl4, [this] { zaehleZahlen(); });
    bei(Befehl5, [this] { vergleicheAlle(); });
    bei(Befehl6, [this] { this->umgebung().boxen.info("Lotto-Hinweis", Tipphaeufigkeitsfeld::kHinweis); });
    bei(Befehl18, [this] { drucke(); });
    bei(Befehl19, [this] { loesche(); });
    Datei1->beiAuswahl = [this] { vergleicheGewaehlten(); };
    Liste1->beiAuswahl = [this] { zeigeZeile(); };
}

void frmSSA::baueScheine()
{
    Datei1 = liste("Datei1");
    Datei1->setzeSichtbar(8, 14);
    Datei2 = liste("Datei2");
    Datei2->hide();
    scheine_ = new Tippscheinliste(umgebung().archiv, *Datei1);
    alle_ = new Tippscheinliste(umgebung().archiv, *Datei2);
    Rahmen1 = rahmen("Rahmen1", "Tipscheindatei mit \"Click\" auswählen", spalte({dehnbar(Datei1)}));
}

void frmSSA::baueGewinnliste()
{
    Bezeichnung10 = bezeichnung("Bezeichnung10");
    alsUeberschrift(Bezeichnung10);
    Text15 = listenkopf("Text15", "JJJJ/SW  Z1 Z2 Z3 Z4 Z5 Z6   SZ Gewinn");
    Liste1 = liste("Liste1", {.MultiSelect = true});
    Liste1->setzeSichtbar(18, 44);
    Bezeichnung1 = bezeichnung("Bezeichnung1", "Auwertung von 1. Ziehung ->");
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    Bezeichnung3 = bezeichnung("Bezeichnung3", "bis letzter eingetragener Ziehung ->");
    Bezeichnung16 = bezeichnung("Bezeichnung16");
    Rahmen2 = rahmen(
        "Rahmen2", "Gewinne",
        spalte({Text15, dehnbar(Liste1), formular({{Bezeichnung1, Bezeichnung2}, {Bezeichnung3, Bezeichnung16}})}));
}

void frmSSA::baueZaehler()
{
    Label1 = bezeichnung("Label1");
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::NurAnzeige, this);
    Bloecke paare;
    for (std::size_t i = 0; i < zaehler_.size(); ++i) {
        zaehler_[i] = alsZaehler(textfeld(kZaehler[i].name));
        paare.emplace_back(bezeichnung("lbl" + zaehler_[i]->objectName().mid(3), kZaehler[i].text));
        paare.emplace_back(zaehler_[i]);
        if (i == 0)
            paare.insert(paare.end(), {luecke(), luecke()}); // from two hits on, each without and with Superzahl
    }
    Rahmen3 = rahmen("Rahmen3", "Anzahl der Gewinne", spalte({Label1, Bezeichnung6, raster(4, paare)}));
}

void frmSSA::baueHaeufigkeit()
{
    haeufigkeit_ = new Tipphaeufigkeitsfeld(this);
    Befehl4 = befehl("Befehl4", "&Häufigkeit der getippten Zahlen",
                     hinweis("Häufigkeit der getippten Zahlen (alle Tipdateien werden ausgewertet)."));
    Befehl6 = befehl("Befehl6", "H", hinweis(Tipphaeufigkeitsfeld::kHinweis));
    Befehl6->setFixedWidth(Befehl6->fontMetrics().horizontalAdvance("00000"));
    Rahmen4 = rahmen("Rahmen4", "Getippte Zahlen", spalte({dehnbar(haeufigkeit_), zeile({dehnbar(Befehl4), Befehl6})}));
}

void frmSSA::ordneAn(const Bloecke& knoepfe)
{
    // clang-format off
    setzeInhalt(spalte({
        Bezeichnung10,
        dehnbar(zeile({
            spalte({Rahmen1, dehnbar(Rahmen4)}),
            dehnbar(Rahmen2),
            spalte({Rahmen3, luecke()}),
        })),
        zeile(knoepfe),
    }));
    // clang-format on
}

void frmSSA::beimZeigen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    Bezeichnung10->setText(qt(spielartGross(archiv.Spielart)));
    Bezeichnung2->setText(qt(jahrUndWoche(archiv, archiv.AnzahlZiehungen > 0 ? 1 : 0)));
    Bezeichnung16->setText(qt(jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen))));
    scheine_->frischeAuf();
    if (scheine_->anzahl() == 0)
        umgebung().boxen.info(qt(kLottoNachricht), "Es wurden noch keine wöchentlichen Tipscheine gespeichert !");
}

/// Esc stops a run before it leaves the screen.
void frmSSA::keyPressEvent(QKeyEvent* ereignis)
{
    if (ereignis->key() == Qt::Key_Escape && laeuft())
        stoppe();
    else
        Bildschirm::keyPressEvent(ereignis);
}

Fortschritt frmSSA::fortschritt(Lauf& lauf, std::size_t scheine)
{
    return [this, &lauf, scheine](std::uint64_t erledigt) {
        setzeTitel(QString("Bitte warten ! %1 von %2 Tipscheinen").arg(erledigt).arg(scheine));
        return lauf.zug();
    };
}

/// The slips that lie in the directory now.
std::vector<std::string> frmSSA::alleScheine()
{
    alle_->frischeAuf();
    return Datei2->modell().zeilen();
}

void frmSSA::vergleicheGewaehlten()
{
    Lauf lauf(*this);
    const std::string name = scheine_->gewaehlter();
    if (!lauf || name.empty())
        return;
    clsTimer uhr;
    uhr.ResetTimer();
    Scheinvergleich vergleich(umgebung().archiv, kLinieEinSchein);
    const Scheingang gang =
        compareSlipFile(vergleich, umgebung().archiv.ProgrammVerzeichnis, name, fortschritt(lauf, 1));
    if (gang.fehler.empty()) {
        vergleich_ = std::move(vergleich);
        zeigeErgebnis(gang, uhr);
    } else {
        meldeFehler(gang);
    }
}

void frmSSA::vergleicheAlle()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    clsTimer uhr;
    uhr.ResetTimer();
    const std::vector<std::string> namen = alleScheine();
    Scheinvergleich vergleich(umgebung().archiv, kLinieAlleScheine);
    const Scheingang gang =
        compareAllSlips(vergleich, umgebung().archiv.ProgrammVerzeichnis, namen, fortschritt(lauf, namen.size()));
    vergleich_ = std::move(vergleich);
    zeigeErgebnis(gang, uhr);
    meldeFehler(gang);
}

void frmSSA::zaehleZahlen()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    clsTimer uhr;
    uhr.ResetTimer();
    const std::vector<std::string> namen = alleScheine();
    const Tipphaeufigkeit haeufigkeit =
        countTippedNumbers(umgebung().archiv.ProgrammVerzeichnis, namen, fortschritt(lauf, namen.size()));
    haeufigkeit_->zeige(haeufigkeit);
    zeigeSuchzeit(haeufigkeit.gang, uhr);
    meldeFehler(haeufigkeit.gang);
}

void frmSSA::zeigeErgebnis(const Scheingang& gang, clsTimer& uhr)
{
    Liste1->modell().aufAnfrage(vergleich_.zeilenzahl(), [this](std::size_t zeile) { return vergleich_.zeile(zeile); });
    markiereGroessere();
    Bezeichnung6->zeige({});
    Label1->clear();
    zeigeBilanz();
    zeigeSuchzeit(gang, uhr);
}

void frmSSA::zeigeBilanz()
{
    for (std::size_t i = 0; i < zaehler_.size(); ++i)
        zaehler_[i]->setText(QString::number(kZaehler[i].anzahl(vergleich_.bilanz())));
}

void frmSSA::markiereGroessere()
{
    for (const std::size_t zeile : vergleich_.groessere())
        Liste1->modell().SetSelected(zeile, true);
}

/// The numbers of the row that the user has gone to. The larger wins stay marked beside it.
void frmSSA::zeigeZeile()
{
    markiereGroessere();
    const auto anzeige = vergleich_.anzeige(static_cast<std::size_t>(Liste1->fokuszeile()));
    if (!anzeige)
        return;
    Tippfeld7x7 feld;
    feld.zeige(anzeige->zahlen);
    Bezeichnung6->zeige(feld);
    Label1->setText(qt(anzeige->text));
}

void frmSSA::zeigeSuchzeit(const Scheingang& gang, clsTimer& uhr)
{
    uhr.StopTimer();
    setzeTitel(qt("Suchzeit=" + Format(uhr.Elapsed() / 1000.0, "#0.000") + " s") +
               (gang.vollstaendig ? "" : " (abgebrochen)"));
}

/// One box for all slips that could not be read; none for a screen that is closing.
void frmSSA::meldeFehler(const Scheingang& gang)
{
    if (gang.fehler.empty() || schliesst())
        return;
    const Scheinfehler& erster = gang.fehler.front();
    QString text = erster.stand == Dateistand::Fehlt
                       ? qt(kTippdateiFehlt)
                       : QString("Die Datei %1 kann nicht gelesen werden.").arg(qt(erster.name));
    if (gang.fehler.size() > 1)
        text += QString("\nInsgesamt fehlen die Tips von %1 Dateien.").arg(gang.fehler.size());
    umgebung().boxen.info(kProgrammtitel, text);
    scheine_->frischeAuf();
}

void frmSSA::loesche()
{
    vergleich_ = {};
    Liste1->modell().Clear();
    Bezeichnung6->zeige({});
    Label1->clear();
    zeigeBilanz();
    setzeTitel(grundtitel());
}

void frmSSA::drucke()
{
    const QString titel = qt(spielartName(umgebung().archiv.Spielart)) + "  -- GEWINNAUSWERTUNG --   ";
    Druckauftrag auftrag;
    auftrag.kopf = {utf8(titel), utf8(Text15->text())};
    auftrag.folgekopf = {utf8(Text15->text())};
    if (nimmZeilen(auftrag.zeilen))
        druckeZeilen(*this, titel.trimmed(), auftrag);
}

/// False if the user stops it: a long list takes its time.
bool frmSSA::nimmZeilen(std::vector<std::string>& zeilen)
{
    const QString titel = stand();
    Lauf lauf(*this);
    if (!lauf)
        return false;
    zeilen.reserve(vergleich_.zeilenzahl());
    Takt takt(lauf.fortschritt());
    while (zeilen.size() < vergleich_.zeilenzahl() && takt.schritt(zeilen.size()))
        zeilen.push_back(vergleich_.zeile(zeilen.size()));
    setzeTitel(titel);
    return takt.laeuft();
}
