#pragma once

#include "listcontrol/logic/ColumnCollection.h"

#include <vector>

/// Where the columns of a result list stand side by side, in an order that the user can change. All x count from the
/// left edge of the first column; all columns are given by their index, -1 for none.
class Spaltenlage {
public:
    struct Platz {
        int spalte;
        int x;
        int breite;
        int ende() const { return x + breite; }
    };

    explicit Spaltenlage(const ColumnCollection& spalten) : spalten_(spalten) {}

    /// Puts the visible columns side by side. With `strecken` the room that `breite` has to spare goes to the columns
    /// that take a share. A column that is new stands last.
    void ordne(int breite, bool strecken);
    /// A column will be removed.
    void vorEntfernen(int spalte);

    /// The visible columns from left to right.
    const std::vector<Platz>& plaetze() const { return plaetze_; }
    int gesamtbreite() const { return plaetze_.empty() ? 0 : plaetze_.back().ende(); }
    /// The place of a column; null while it is hidden.
    const Platz* platz(int spalte) const;

    int spalteBei(int x) const;
    /// The column whose width a drag at `x` changes: its right edge is near, separators behind it included.
    int teilerBei(int x) const;

    /// The column that a column dropped at `x` would stand before; -1: it would stand last.
    int einfuegestelle(int x) const;
    /// Where such a column would begin.
    int einfuegemarke(int vorSpalte) const;
    /// Moves a column before another, -1: to the end. Separators keep their places, the columns between move up.
    void verschiebe(int spalte, int vorSpalte);

private:
    void verteile(int rest);

    const ColumnCollection& spalten_;
    std::vector<int> folge_; ///< all columns from left to right
    std::vector<Platz> plaetze_;
};
