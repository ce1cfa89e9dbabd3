#include "tips/screens/Zeitreiseliste.h"

#include "listcontrol/screens/ListView.h"
#include "shell/logic/Zahlen.h"
#include "tips/logic/Zeitreisetafel.h"
#include "tips/screens/Felder.h"

namespace {

constexpr int kSichtbareZeilen = 14;

/// The widths that are given are those of a small font: a text needs its room in any.
int breite(const ListView& liste, const Zeitreisespalte& spalte, bool kombination)
{
    if (kombination && spalte.feld == Zeitreisespalte::Feld::Gewinn)
        return spalte.breiteKombination;
    const int gewuenscht = kombination ? spalte.breiteKombination : spalte.breiteTipp;
    return std::max(gewuenscht, liste.breiteFuerZeichen(spalte.zeichen));
}

} // namespace

Zeitreiseliste::Zeitreiseliste(Zeitreiseform form, QWidget* eltern)
    : spalten_(zeitreisespalten(form)),
      ListView1(benannt(new ListView(eltern), "ListView1"))
{
    for (std::size_t i = 0; i < spalten_.size(); ++i) {
        if (i > 0)
            ListView1->AddTrenner("trenner" + std::to_string(i));
        ListView1->AddColumn(spalten_[i].titel, spalten_[i].titel, TextAlign::Center, 0);
    }
    ListView1->setColumnsAutoSize(true);
    ListView1->setzeSichtbar(kSichtbareZeilen);
    ListView1->setDrawCallback(this);
    stelleModus(false);
}

void Zeitreiseliste::stelleModus(bool kombination)
{
    const int gewinn = ListView1->ColumnCount() - 1;
    for (int column = 0; column <= gewinn; column += 2)
        ListView1->setColumnWidth(column, breite(*ListView1, *spalteVon(column), kombination));
    ListView1->setColumnCaption(gewinn, kombination ? "Gewinn" : "Gewinne");
    ListView1->setColumnVisible(gewinn, !kombination);
}

const Zeitreisespalte* Zeitreiseliste::spalteVon(int column) const
{
    return column % 2 == 0 ? &spalten_[static_cast<std::size_t>(column / 2)] : nullptr;
}

void Zeitreiseliste::zeige(const Zeitreise& zeitreise)
{
    const auto leere = static_cast<int>(leereZeilen(zeitreise));
    const auto zeilen = static_cast<int>(zeitreise.zeilen.size());
    const bool bleibt =
        zeitreise.art == Zeitreiseart::Alle && art_ == zeitreise.art && ListView1->ItemCount() == zeilen;
    art_ = zeitreise.art;
    // In the list of all draws a row's place is its number; blank rows belong below the others.
    ListView1->setSortable(zeitreise.art != Zeitreiseart::Alle && leere == 0);
    ListView1->setRedraw(false);
    if (!bleibt)
        ListView1->Clear();
    for (int zeile = 0; zeile < zeilen; ++zeile)
        setzeZeile(zeitreise, zeile);
    for (int zeile = 0; zeile < leere; ++zeile)
        ListView1->AddItem({});
    ListView1->setRedraw(true);
}

void Zeitreiseliste::setzeZeile(const Zeitreise& zeitreise, int zeile)
{
    if (zeile == ListView1->ItemCount())
        ListView1->AddItem({}, std::to_string(zeile)); // finds the row again after the user has sorted the list
    const Zeitreisezeile& inhalt = zeitreise.zeilen[static_cast<std::size_t>(zeile)];
    for (int column = 0; column < ListView1->ColumnCount(); column += 2)
        ListView1->setItemText(zeile, column, zeitreisezelle(zeitreise, inhalt, *spalteVon(column)));
}

void Zeitreiseliste::leere(int zeilen)
{
    ListView1->setRedraw(false);
    ListView1->Clear();
    for (int zeile = 0; zeile < zeilen; ++zeile)
        ListView1->AddItem({});
    ListView1->setRedraw(true);
}

Zeitreise Zeitreiseliste::inListenfolge(const Zeitreise& gezeigte) const
{
    Zeitreise geordnet = gezeigte;
    for (int zeile = 0; zeile < static_cast<int>(gezeigte.zeilen.size()); ++zeile) {
        const auto stelle = static_cast<std::size_t>(ganzzahl(ListView1->ItemTag(zeile)).value_or(0));
        geordnet.zeilen[static_cast<std::size_t>(zeile)] = gezeigte.zeilen[stelle];
    }
    return geordnet;
}

void Zeitreiseliste::CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled)
{
    const Farbpaar farbe =
        zeitreisefarbe(row, ListView1->ItemSelected(row), spalteVon(column), ListView1->ItemText(row, column));
    backColor = farbe.grund;
    foreColor = farbe.schrift;
    handled = true;
}
