#include "listcontrol/logic/Listenauswahl.h"

#include <algorithm>
#include <initializer_list>

void Listenauswahl::setMultiSelect(bool mehrfach)
{
    mehrfach_ = mehrfach;
    if (const int gewaehlte = SelectedItem(); !mehrfach && anzahl_ > 1) {
        UnSelectAll();
        setSelected(gewaehlte, true);
    }
}

int Listenauswahl::SelectedItem() const
{
    if (anzahl_ == 0)
        return -1;
    int zeile = fokus_ >= 0 && posten_.Item(fokus_).Selected() ? fokus_ : 0;
    while (!posten_.Item(zeile).Selected())
        ++zeile;
    return zeile;
}

void Listenauswahl::waehle(int zeile, bool strg, bool umschalt)
{
    if (mehrfach_ && umschalt) {
        if (!strg)
            UnSelectAll();
        waehleBereich(std::max(0, anker_), zeile);
    } else if (mehrfach_ && strg) {
        setSelected(zeile, !posten_.Item(zeile).Selected());
        anker_ = zeile;
    } else {
        waehleAllein(zeile);
    }
    fokus_ = zeile;
}

void Listenauswahl::waehleBereich(int von, int bis)
{
    const auto [erste, letzte] = std::minmax(von, bis);
    for (int zeile = erste; zeile <= letzte; ++zeile)
        setSelected(zeile, true);
}

void Listenauswahl::setSelected(int zeile, bool gewaehlt)
{
    if (posten_.Item(zeile).Selected() == gewaehlt)
        return;
    if (gewaehlt && !mehrfach_)
        UnSelectAll();
    posten_.Item(zeile).setSelected(gewaehlt);
    anzahl_ += gewaehlt ? 1 : -1;
}

void Listenauswahl::waehleAllein(int zeile)
{
    if (zeile >= 0)
        posten_.Item(zeile);
    UnSelectAll();
    fokus_ = std::max(-1, zeile);
    anker_ = fokus_;
    if (fokus_ >= 0)
        setSelected(fokus_, true);
}

void Listenauswahl::SelectAll()
{
    if (mehrfach_ && posten_.ItemCount() > 0)
        waehleBereich(0, posten_.ItemCount() - 1);
}

void Listenauswahl::UnSelectAll()
{
    // Mostly the focus row is the only one: no need to look through all.
    if (fokus_ >= 0)
        setSelected(fokus_, false);
    for (int zeile = 0; anzahl_ > 0; ++zeile)
        setSelected(zeile, false);
}

void Listenauswahl::nachHinzufuegen(int zeile)
{
    for (int* stelle : {&fokus_, &anker_})
        *stelle += *stelle >= zeile ? 1 : 0;
}

void Listenauswahl::vorEntfernen(int zeile)
{
    setSelected(zeile, false);
    const int letzteDanach = posten_.ItemCount() - 2;
    for (int* stelle : {&fokus_, &anker_})
        *stelle = std::min(*stelle - (*stelle > zeile ? 1 : 0), letzteDanach);
}

void Listenauswahl::nachVerschieben(int von, int nach)
{
    for (int* stelle : {&fokus_, &anker_})
        if (*stelle == von)
            *stelle = nach;
        else if (von < *stelle && *stelle <= nach)
            --*stelle;
        else if (nach <= *stelle && *stelle < von)
            ++*stelle;
}

void Listenauswahl::nachLeeren()
{
    fokus_ = -1;
    anker_ = -1;
    anzahl_ = 0;
}

void Listenauswahl::sortiere(int spalte, Sortierrichtung richtung)
{
    const auto kennung = [this](int zeile) { return zeile < 0 ? nullptr : posten_.Item(zeile).Kennung(); };
    const void* mitFokus = kennung(fokus_);
    const void* mitAnker = kennung(anker_);
    posten_.Sort(spalte, richtung);
    for (int zeile = 0; zeile < posten_.ItemCount(); ++zeile) {
        fokus_ = kennung(zeile) == mitFokus ? zeile : fokus_;
        anker_ = kennung(zeile) == mitAnker ? zeile : anker_;
    }
}
