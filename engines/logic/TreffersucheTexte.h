#pragma once

#include "engines/logic/Treffersuche.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

inline constexpr std::string_view kTreffersucheTitel = "Suche nach Kombinationen, die in der Lottogeschichte die "
                                                       "meisten oder wenigsten Treffer erbracht hätten";
/// The head above each list.
inline constexpr std::string_view kRanglistenkopf = "6er  5er  4er  3er      Kombination";
/// What stands in the list of sixes when a whole search has found none.
inline constexpr std::array<std::string_view, 2> kOhneSechser{"   Es gabe in den ausgewählten Ziehungen ",
                                                              "   keine Sechserwiederholungen."};

/// The heading of a list before the first search, and the one with the threshold of a search.
std::string_view ranglistentitel(Rangliste liste);
std::string ranglistentitel(Rangliste liste, const Trefferschwellen& schwellen);

/// "1.000.000 von 13.983.816", and how often a combination was compared with a row by then.
std::string kombinationenText(std::uint64_t erledigt);
std::string vergleicheText(std::uint64_t erledigt, std::uint64_t ziehungen);

/// What stands below a list: the count of its rows, for the worst ones with the count of all without a win.
std::string anzahltext(const Treffersuche& suche, Rangliste liste);

/// What a search goes through and asks for, in the words of the screen.
struct Trefferauftrag {
    std::array<std::string, 3> spielarten; ///< captions of the boxes
    std::array<std::string, 3> staende;    ///< what the file of each holds
    std::string ziehungen;                 ///< the line with the count of draws
    bool auchHoehere = false;              ///< higher ranks are asked for too
};

/// What the report says: the search, and the lists as they stand on the screen.
struct Trefferbericht {
    struct Abschnitt {
        std::string titel;
        std::string anzahl;
        std::size_t zeilen = 0;
        std::function<std::string(std::size_t)> zeile; ///< by its index
    };
    Trefferauftrag auftrag;
    std::array<Abschnitt, kRanglisten> listen;
    std::string frage; ///< caption of the box that asks for higher ranks too
};

/// Most rows that a report takes.
inline constexpr std::size_t kHoechsteBerichtszeilen = 5'000'000;

/// `weiter` is called now and then with the count of rows done; false ends the report with the empty text. The lists
/// have at most `kHoechsteBerichtszeilen` rows.
std::string treffersucheBericht(const Trefferbericht& angaben, const Fortschritt& weiter = {});
