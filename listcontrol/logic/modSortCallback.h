#pragma once

#include "shell/logic/Texte.h"

/// Which way a list is sorted.
enum class Sortierrichtung { Aufsteigend = 0, Absteigend = 1 };

/// The comparison of the list control: by the text of one column, without regard to case. Column and direction lie in
/// the caller's hand, not in the process, so that two lists can be sorted one inside the other.
struct SortCallback {
    int spalte{0};
    Sortierrichtung richtung{Sortierrichtung::Aufsteigend};

    /// 1 when `links` is to stand behind `rechts`, else 0 or -1. An item offers `Text(column)`.
    template <class Eintrag> int operator()(const Eintrag& links, const Eintrag& rechts) const
    {
        const int ergebnis = vergleicheText(links.Text(spalte), rechts.Text(spalte));
        return richtung == Sortierrichtung::Absteigend ? -ergebnis : ergebnis;
    }
};
