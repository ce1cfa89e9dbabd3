#pragma once

#include "listcontrol/logic/ListItemCollection.h"

/// Which rows of a result list are chosen, which one has the focus, and from which one a range is chosen. It follows
/// the rows: whoever changes them says so here.
class Listenauswahl {
public:
    explicit Listenauswahl(ListItemCollection& posten) : posten_(posten) {}

    bool MultiSelect() const { return mehrfach_; }
    /// Switching it off leaves at most one row chosen: the focus row, or else the first one.
    void setMultiSelect(bool mehrfach);

    /// The focus row; -1 for none.
    int fokus() const { return fokus_; }
    /// The focus row if it is chosen, else the first chosen row; -1 for none.
    int SelectedItem() const;
    int SelCount() const { return anzahl_; }

    /// The user goes to a row: it alone is chosen; with `strg` it is toggled; with `umschalt` the rows from the anchor
    /// to it are chosen, and with both they are chosen beside what is chosen already.
    void waehle(int zeile, bool strg, bool umschalt);

    /// Chooses a row or takes its choice back. Without `MultiSelect` a chosen row takes the choice of any other.
    void setSelected(int zeile, bool gewaehlt);
    /// Chooses this row alone and gives it the focus; -1: no row.
    void waehleAllein(int zeile);
    /// Without `MultiSelect` nothing happens.
    void SelectAll();
    void UnSelectAll();

    void nachHinzufuegen(int zeile);
    void vorEntfernen(int zeile);
    void nachVerschieben(int von, int nach);
    void nachLeeren();
    /// Sorts the rows; focus and anchor go with theirs.
    void sortiere(int spalte, Sortierrichtung richtung);

private:
    void waehleBereich(int von, int bis);

    ListItemCollection& posten_;
    bool mehrfach_{true};
    int fokus_{-1};
    int anker_{-1};
    int anzahl_{0};
};
