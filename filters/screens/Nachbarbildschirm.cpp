#include "filters/screens/Nachbarbildschirm.h"

#include "filters/logic/ZahlennachbarnListe.h"
#include "filters/logic/ZahlennachbarnSeite.h"
#include "listcontrol/logic/Listenfarben.h"
#include "listcontrol/screens/ListView.h"
#include "reports/frame/Seitenablage.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zaehlerfeld.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/clsTimer.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

using Spalten = Nachbarspalten;

constexpr auto kTitel = "Suche nach zusammenhängenden Zahlengruppen (Zahlennachbarn)";
constexpr auto kErgebnistitel = "Suche nach Zahlennachbarn";
constexpr int kSichtbareZeilen = 20;
constexpr std::string_view kBreitesteGruppe = "1 Zwill. und 1 Vierl.";

struct Startnamen {
    const char *knopf, *anzahl, *hinweis;
};

constexpr std::array<Startnamen, kNachbargruppen.size()> kNamen{{
    {"Command1", "txtZweier", "Sucht zusammenhängende Dreier-Gruppen (z.B. 31,32)."},
    {"Befehl12", "txtDreier", "Sucht zusammenhängende Dreier-Gruppen (z.B. 31,32,33)."},
    {"Befehl1", "txtVierer", "Sucht Vierer-Gruppen (z.B. 11,12,13,14)."},
    {"Befehl3", "txtFünfer", "Sucht Fünfer-Gruppen (z.B. 11,12,13,14,15)."},
    {"Befehl4", "txtSechser", "Sucht Sechser-Gruppen (z.B. 19,20,21,22,23,24)."},
}};

/// Characters that the widest text of a column of data has, its caption included.
int zeichen(int spalte, bool zusammen)
{
    switch (spalte) {
    case Spalten::kJahr:
        return zusammen ? 8 : 5;
    case Spalten::kWoche:
        return zusammen ? 4 : 3;
    case Spalten::kDatum:
        return 14;
    default:
        return 3;
    }
}

} // namespace

Nachbarbildschirm::Nachbarbildschirm(Umgebung& umgebung, const NachbarbildschirmTexte& texte)
    : Bildschirm(umgebung, texte.name, kTitel),
      texte_(texte)
{
    for (std::size_t i = 0; i < kNamen.size(); ++i) {
        suchknopf(kNamen[i].knopf, texte.knoepfe[i], kNachbargruppen[i])->setToolTip(kNamen[i].hinweis);
        starts_.back().anzahl = alsZaehler(textfeld(kNamen[i].anzahl, "0"));
    }
    baueListe();
    Bezeichnung6 = bezeichnung("Bezeichnung6");
    Bezeichnung8 = bezeichnung("Bezeichnung8");
    Bezeichnung10 = bezeichnung("Bezeichnung10", "BITTE WARTEN !");
    Bezeichnung12 = bezeichnung("Bezeichnung12");
    Bezeichnung10->hide();
    Befehl2 = befehl("Befehl2", "&<<");
    Befehl5 = befehl("Befehl5", "&Abbrechen");
    Befehl5->setToolTip("Bricht den Suchlauf ab.");
    stoppknopf(Befehl5);
    Command2 = befehl("Command2", "&Export");
    Command2->setToolTip("Exportiert die Suchliste als HTML-Dateii.");
    Command2->setEnabled(false);

    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl5, [this] { stoppe(); });
    bei(Command2, [this] { ExportiereHtml(); });
}

QPushButton* Nachbarbildschirm::suchknopf(const QString& name, const QString& text, const Nachbargruppe& gruppe)
{
    QPushButton* knopf = befehl(name, text);
    starts_.push_back({&gruppe, knopf, nullptr});
    bei(knopf, [this, &gruppe] { suche(gruppe); });
    return knopf;
}

void Nachbarbildschirm::baueListe()
{
    ListView1 = new ListView(this);
    ListView1->setObjectName("ListView1");
    const Spalten::Schluessel& schluessel = texte_.zusammen ? Spalten::kZusammen : Spalten::kEinzeln;
    for (int spalte = 0; spalte < Spalten::kAnzahl; ++spalte) {
        const std::string_view hier = schluessel[static_cast<std::size_t>(spalte)];
        if (Spalten::istTrenner(spalte))
            ListView1->AddTrenner(hier);
        else
            ListView1->AddColumn(hier, hier, spalte == 0 ? TextAlign::Left : TextAlign::Center,
                                 ListView1->breiteFuerZeichen(zeichen(spalte, texte_.zusammen)));
    }
    setzeGruppenbreite(texte_.zusammen ? kBreitesteGruppe : kNachbargruppen[0].gruppentext);
    ListView1->setzeSichtbar(kSichtbareZeilen);
    ListView1->setColumnsAutoSize(true);
    ListView1->setDrawCallback(this);
}

void Nachbarbildschirm::ordneAn(QLayout* kopf, const Bloecke& seite, const Bloecke& fuss)
{
    Bloecke suchen;
    std::vector<QPushButton*> startknoepfe;
    for (const Start& start : starts_) {
        startknoepfe.push_back(start.knopf);
        if (start.anzahl)
            suchen.insert(suchen.end(), {start.knopf, start.anzahl});
    }
    hauptaktionen(startknoepfe);
    Bloecke links{rahmen("Rahmen1", "Zahlennachbarn suchen", raster(2, suchen))};
    links.insert(links.end(), seite.begin(), seite.end());
    Bloecke unten{Befehl5, Command2, Bezeichnung12, Bezeichnung10};
    unten.insert(unten.end(), fuss.begin(), fuss.end());
    unten.insert(unten.end(), {luecke(), Befehl2});
    // clang-format off
    links.insert(links.end(), {
        rahmen("Rahmen2", "Suchlauf", formular({
            {bezeichnung("Bezeichnung5", "Notwendige Suchläufe"), Bezeichnung6},
            {bezeichnung("Bezeichnung7", "davon erreicht"), Bezeichnung8},
        })),
        luecke(),
    });
    setzeInhalt(spalte({
        kopf,
        dehnbar(zeile({spalte(links), dehnbar(ListView1)})),
        zeile(unten),
    }));
    // clang-format on
}

std::vector<std::int16_t> Nachbarbildschirm::spielarten() const
{
    return {umgebung().archiv.Spielart};
}

void Nachbarbildschirm::suche(const Nachbargruppe& gruppe)
{
    if (laeuft() || !darfSuchen())
        return;
    const Start& start = startVon(gruppe);
    QWidget* const fokus = focusWidget(); // a button that is locked would lose it
    sperre(true);
    beginneSuche(gruppe);
    clsTimer uhr;
    uhr.ResetTimer();
    {
        Lauf lauf(*this);
        ListView1->setRedraw(false);
        ergebnis_->vollstaendig = durchsucheDateien(lauf);
        zeigeErgebnis(start);
        ListView1->setRedraw(true);
    }
    uhr.StopTimer();
    Bezeichnung10->hide();
    Bezeichnung12->setText(qt("Suchzeit: " + Dezimaltext(uhr.Elapsed(), 2) + " ms"));
    setzeTitel(kErgebnistitel);
    sperre(false);
    if (fokus)
        fokus->setFocus();
    endetSuche();
}

void Nachbarbildschirm::beginneSuche(const Nachbargruppe& gruppe)
{
    ListView1->Clear();
    ergebnis_ = Nachbarsuche{.gruppe = gruppe, .zusammen = texte_.zusammen};
    if (QLineEdit* anzahl = startVon(gruppe).anzahl)
        anzahl->setText("0");
    Bezeichnung6->setNum(gruppe.laeufe());
    Bezeichnung10->show();
    Bezeichnung12->clear();
}

/// False if the search was stopped.
bool Nachbarbildschirm::durchsucheDateien(Lauf& lauf)
{
    for (const std::int16_t spielart : spielarten()) {
        lade(spielart);
        if (!durchsuche(lauf))
            return false;
    }
    return true;
}

/// Searches the archive and shows its hits run by run. A stop takes effect at the next run.
bool Nachbarbildschirm::durchsuche(Lauf& lauf)
{
    ergebnis_->dateien.push_back(nachbardatei(umgebung().archiv));
    std::vector<Nachbartreffer> treffer = sucheNachbarn(umgebung().archiv, ergebnis_->gruppe);
    Bezeichnung8->setNum(0);
    auto naechster = treffer.begin();
    for (int suchlauf = 0; suchlauf < ergebnis_->gruppe.laeufe(); ++suchlauf) {
        if (!lauf.zug() || umgebung().BerichtAbbruch)
            return false;
        for (; naechster != treffer.end() && naechster->Suchlauf == suchlauf; ++naechster) {
            haengeAn(std::move(*naechster));
            lauf.weiter();
        }
        Bezeichnung8->setNum(suchlauf + 1);
    }
    return true;
}

void Nachbarbildschirm::haengeAn(Nachbartreffer treffer)
{
    const Nachbarzellen zellen = nachbarzellen(*ergebnis_, treffer);
    const int zeile = ListView1->AddItem(zellen[0]);
    for (int spalte = Spalten::kJahr; spalte < Spalten::kAnzahl; ++spalte)
        if (const std::string& text = zellen[static_cast<std::size_t>(spalte)]; !text.empty())
            ListView1->setItemText(zeile, spalte, text);
    ++ergebnis_->dateien.back().treffer;
    ergebnis_->treffer.push_back(std::move(treffer));
}

void Nachbarbildschirm::zeigeErgebnis(const Start& start)
{
    const Nachbargruppe& gruppe = *start.gruppe;
    const bool meldet = ergebnis_->vollstaendig && ergebnis_->treffer.empty() && gruppe.code >= texte_.meldetAb;
    if (meldet)
        ListView1->AddItem(gruppe.ohneTreffer);
    setzeGruppenbreite(meldet ? gruppe.ohneTreffer : texte_.zusammen ? kBreitesteGruppe : gruppe.gruppentext);
    if (start.anzahl)
        start.anzahl->setText(QString::number(ergebnis_->treffer.size()));
    zeigeGelaufen(start.knopf);
}

void Nachbarbildschirm::leere()
{
    ergebnis_.reset();
    ListView1->Clear();
    for (const Start& start : starts_)
        if (start.anzahl)
            start.anzahl->setText("0");
    for (QLabel* feld : {Bezeichnung6, Bezeichnung8, Bezeichnung12})
        feld->clear();
    Command2->setEnabled(false);
    zeigeGelaufen(nullptr);
    setzeTitel(grundtitel());
}

void Nachbarbildschirm::sperre(bool gesperrt)
{
    for (const Start& start : starts_)
        start.knopf->setEnabled(!gesperrt);
    Command2->setEnabled(!gesperrt);
}

/// The column that also takes the line of a list without a hit.
void Nachbarbildschirm::setzeGruppenbreite(std::string_view text)
{
    ListView1->setColumnWidth(0, ListView1->breiteFuerZeichen(static_cast<int>(anzahlZeichen(text)) + 1));
}

const Nachbarbildschirm::Start& Nachbarbildschirm::startVon(const Nachbargruppe& gruppe) const
{
    return *std::ranges::find(starts_, &gruppe, &Start::gruppe);
}

void Nachbarbildschirm::ExportiereHtml()
{
    const std::string pfad = umgebung().archiv.ProgrammVerzeichnis + std::string(ergebnis_->gruppe.seitendatei);
    bool geschrieben = false;
    {
        Lauf lauf(*this);
        if (!lauf)
            return;
        AtomareDatei datei(pfad);
        const bool ganz = schreibeNachbarnSeite(
            *ergebnis_, [&](std::string_view bytes) { return datei.schreibe(bytes) && lauf.weiter(); });
        geschrieben = ganz && datei.uebernimm().gut();
        if (gestoppt())
            return;
    }
    if (geschrieben) {
        setzeTitel("Gespeichert: " + qt(pfad));
        umgebung().oeffner.oeffne(qt(pfad));
    } else {
        umgebung().boxen.info(kProgrammtitel, qt(schreibfehler().text));
    }
}

void Nachbarbildschirm::CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled)
{
    if (Spalten::istTrenner(column)) {
        backColor = Listenfarben::Trenner;
        handled = true;
    } else if (Spalten::istZahl(column) && !ListView1->ItemText(row, column).empty()) {
        backColor = farbeAusBGR(0xFFFF80);
        foreColor = farbeAusBGR(255);
        handled = true;
    }
}
