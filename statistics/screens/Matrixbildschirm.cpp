#include "statistics/screens/Matrixbildschirm.h"

#include "archive/screens/Spielartenwahl.h"
#include "listcontrol/screens/Farbwandel.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/ZZModusOptionen.h"
#include "statistics/screens/Legende.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int kSichtbareZeilen = 20;
constexpr int kMindeststellen = 2;
constexpr int kNamensstellen = 4; ///< of a year
constexpr int kInnenrand = 3;     ///< so that 49 numbers stand beside each other

/// Columns count from 0: the name of the row, then a separator in front of each number, and at the end the name again.
int spalteVon(std::size_t stelle)
{
    return 2 * static_cast<int>(stelle) + 2;
}

bool istTrenner(int spalte)
{
    return spalte % 2 == 1;
}

} // namespace

Matrixbildschirm::Matrixbildschirm(Umgebung& umgebung, const Matrixtexte& texte)
    : Bildschirm(umgebung, texte.name, texte.titel),
      spalten_(texte.spalten)
{
    frmArt = new Spielartenwahl(*this);
    frmArt->beiWechsel = [this] { werteAus(); };
    if (spalten_ == Matrixspalten::Gewinnzahlen) {
        optZZ = new ZZModusOptionen(this, "optZZ");
        optZZ->beiWahl = [this](ZZModus) { werteAus(); };
    }
    if (texte.jahre) {
        optDatumOderWoche = new DatumOderWoche(*this, *texte.jahre);
        optDatumOderWoche->beiWahl = [this] { werteAus(); };
    }
    ListView1 = new ListView(this);
    ListView1->setObjectName("ListView1");
    baueSpalten();
    lblGMAX = bezeichnung("lblGMAX");
    alsUeberschrift(lblGMAX);
    cmdMax_all = befehl("cmdMax_all", "M", hinweis(texte.markierung));
    cmdMax_all->setCheckable(true);
    bei(cmdMax_all, [this] { markiereHoechste(); });
    ordneAn(texte);
}

void Matrixbildschirm::ordneAn(const Matrixtexte& texte)
{
    Bloecke oben{frmArt};
    if (optZZ)
        oben.emplace_back(rahmen("frmZZ", "Zusatzzahl", spalte({optZZ, luecke()})));
    if (optDatumOderWoche)
        oben.emplace_back(optDatumOderWoche);
    oben.push_back(luecke());

    Bloecke liste{dehnbar(ListView1)};
    if (texte.ueberschrift)
        liste.emplace(liste.begin(), bezeichnung("lblHeader", texte.ueberschrift));

    QLabel* maxima = bezeichnung("lblMaxima", texte.maxima);
    QLabel* minima = bezeichnung("lblMinima", texte.minima);
    alsLegende(maxima, qt(kMatrixMaximum.grund), qt(kMatrixMaximum.schrift));
    alsLegende(minima, qt(kMatrixMinimum.grund), qt(kMatrixMinimum.schrift));
    auto* Command3 = befehl("Command3", ">>", hinweis("Beenden und zurück zum Auswahlmenü."));
    bei(Command3, [this] { schliesse(); });
    Bloecke fuss{maxima, minima, luecke(), Command3};
    if (texte.info) {
        auto* cmdInfo = befehl("cmdInfo", "?");
        bei(cmdInfo, [this, info = texte.info] { umgebung().boxen.info(kInfotitel, info); });
        fuss.emplace(fuss.end() - 1, cmdInfo);
    }

    // clang-format off
    setzeInhalt(spalte({
        zeile(oben),
        dehnbar(eng(spalte(liste))),
        zeile({lblGMAX, cmdMax_all, luecke()}),
        zeile(fuss),
    }));
    // clang-format on
}

void Matrixbildschirm::baueSpalten()
{
    const bool superzahlen = spalten_ == Matrixspalten::Superzahlen;
    const std::string name(zeilentitel(zeilen()));
    const int breite = ListView1->breiteFuerZeichen(kNamensstellen);
    ListView1->AddColumn(name, name, TextAlign::Center, breite);
    ListView1->AddTrenner("trenner0");
    for (int stelle = 1; stelle <= (superzahlen ? 10 : kHoechsteZahl); ++stelle) {
        const std::string zahl = std::to_string(superzahlen ? stelle - 1 : stelle);
        ListView1->AddColumn(zahl, zahl, TextAlign::Center, 0);
        ListView1->AddTrenner("trenner" + std::to_string(stelle));
    }
    ListView1->AddColumn(name + "1", name, TextAlign::Center, breite);
    ListView1->setItemPaddingLeft(kInnenrand);
    ListView1->setItemPaddingRight(kInnenrand);
    ListView1->setColumnsAutoSize(true);
    ListView1->setSortable(false); // the texts of counts sort "10" before "9"
    ListView1->setReorder(false);
    ListView1->setzeSichtbar(kSichtbareZeilen);
    ListView1->setDrawCallback(this);
    passeBreitenAn();
}

Matrixzeilen Matrixbildschirm::zeilen() const
{
    if (!optDatumOderWoche)
        return Matrixzeilen::Spielwochen;
    return optDatumOderWoche->nachDatum() ? Matrixzeilen::JahreNachDatum : Matrixzeilen::JahreNachSpielwoche;
}

void Matrixbildschirm::werteAus()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = {};
    if (frmArt->maske() != 0)
        ergebnis_ = matrix(umgebung().archiv, spalten_, zeilen(), optZZ ? optZZ->modus() : ZZModus::Ohne);
    fuelleListe();
    lblGMAX->setText(qt(rekordtext(ergebnis_)));
    cmdMax_all->setChecked(false);
    cmdMax_all->setEnabled(ergebnis_.tabelle.rekord.has_value());
}

void Matrixbildschirm::fuelleListe()
{
    const auto& zeilen = ergebnis_.tabelle.zeilen;
    ListView1->setRedraw(false);
    ListView1->Clear();
    ListView1->PrepareForItems(static_cast<int>(zeilen.size()));
    for (const Zahlenzeile& zeile : zeilen)
        schreibeZeile(ListView1->AddItem(zeilenname(ergebnis_.zeilen, zeile.schluessel)));
    passeBreitenAn();
    ListView1->setRedraw(true);
    zeigeErsteGezaehlte();
}

/// Years before the first one with any count, such as those before the Superzahl, are scrolled out of sight.
void Matrixbildschirm::zeigeErsteGezaehlte()
{
    const auto& zeilen = ergebnis_.tabelle.zeilen;
    const auto gezaehlt = [](const Zahlenzeile& zeile) {
        return std::ranges::any_of(zeile.zellen, [](const Zahlenzelle& zelle) { return zelle.anzahl > 0; });
    };
    const auto erste = std::ranges::find_if(zeilen, gezaehlt);
    if (ergebnis_.zeilen == Matrixzeilen::Spielwochen || erste == zeilen.end())
        return;
    ListView1->MakeSureVisible(ListView1->ItemCount() - 1);
    ListView1->MakeSureVisible(static_cast<int>(erste - zeilen.begin()));
}

void Matrixbildschirm::schreibeZeile(int zeile)
{
    const auto& zellen = ergebnis_.tabelle.zeilen[static_cast<std::size_t>(zeile)].zellen;
    for (std::size_t stelle = 0; stelle < zellen.size(); ++stelle)
        ListView1->setItemText(zeile, spalteVon(stelle), matrixzelle(zellen[stelle], false));
    ListView1->setItemText(zeile, spalteVon(zellen.size()), ListView1->ItemText(zeile, 0));
}

/// Widths that the user has set stay until the counts need more or fewer digits.
void Matrixbildschirm::passeBreitenAn()
{
    const auto& rekord = ergebnis_.tabelle.rekord;
    const int noetig = rekord ? static_cast<int>(std::to_string(rekord->anzahl).size()) : 0;
    const int stellen = std::max(noetig, kMindeststellen);
    if (stellen == stellen_)
        return;
    stellen_ = stellen;
    for (int spalte = 2; spalte < ListView1->ColumnCount() - 1; spalte += 2)
        ListView1->setColumnWidth(spalte, ListView1->breiteFuerZeichen(stellen));
}

void Matrixbildschirm::markiereHoechste()
{
    const auto& tabelle = ergebnis_.tabelle;
    const bool markiert = cmdMax_all->isChecked();
    bool gezeigt = !markiert;
    for (std::size_t zeile = 0; zeile < tabelle.zeilen.size(); ++zeile) {
        const auto& zellen = tabelle.zeilen[zeile].zellen;
        for (std::size_t stelle = 0; stelle < zellen.size(); ++stelle) {
            if (zellen[stelle].anzahl != tabelle.rekord->anzahl)
                continue;
            ListView1->setItemText(static_cast<int>(zeile), spalteVon(stelle), matrixzelle(zellen[stelle], markiert));
            if (!std::exchange(gezeigt, true))
                zeigeZelle(static_cast<int>(zeile), spalteVon(stelle));
        }
    }
}

void Matrixbildschirm::zeigeZelle(int zeile, int spalte)
{
    ListView1->MakeSureVisible(zeile);
    ListView1->zeigeSpalte(spalte);
}

void Matrixbildschirm::CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled)
{
    Farbpaar farben = matrixfarbe(ListView1->ItemText(row, column), row, ListView1->ItemSelected(row));
    if (istTrenner(column))
        farben.grund = Listenfarben::Trenner;
    else if (column == 0 || column == ListView1->ColumnCount() - 1)
        farben.grund = farbe(palette().color(QPalette::Midlight));
    backColor = farben.grund;
    foreColor = farben.schrift;
    handled = true;
}
