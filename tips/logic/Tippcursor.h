#pragma once

/// Where a number goes next on a slip: row 1..12 and field 0..5.
struct Tippcursor {
    static constexpr int kReihen = 12;
    static constexpr int kFelder = 6;

    int reihe = 1;
    int feld = 0;

    bool operator==(const Tippcursor&) const = default;

    /// The next field; behind the last one of the slip the first.
    constexpr Tippcursor vor() const
    {
        return feld + 1 < kFelder ? Tippcursor{reihe, feld + 1} : Tippcursor{tiefer().reihe, 0};
    }
    constexpr Tippcursor zurueck() const
    {
        return feld > 0 ? Tippcursor{reihe, feld - 1} : Tippcursor{hoeher().reihe, kFelder - 1};
    }
    /// The same field of the next row; below the last row the first.
    constexpr Tippcursor tiefer() const { return {reihe < kReihen ? reihe + 1 : 1, feld}; }
    constexpr Tippcursor hoeher() const { return {reihe > 1 ? reihe - 1 : kReihen, feld}; }
};
