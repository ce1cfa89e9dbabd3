#pragma once

#include <array>
#include <string_view>

/// The chances and shares of the prize classes as plain text, the best class first. Nothing is computed from them.
namespace gewinnplantafel {

struct Chance {
    std::string_view klasse; ///< "GK1"
    std::string_view name;   ///< "Sechser mit Superzahl"
    std::string_view chance; ///< "1: 139.838.160"
    std::string_view haeufigkeit;
};

inline constexpr std::array<Chance, 9> kChancenNeu{{
    {"GK1", "Sechser mit Superzahl", "1: 139.838.160", "0,000000007151"},
    {"GK2", "Sechser", "1: 15.537.573", "0,000000064360"},
    {"GK3", "Fünfer mit Superzahl", "1: 542.008", "0,000000184499"},
    {"GK4", "Fünfer", "1: 60.223", "0,000016604951"},
    {"GK5", "Vierer mit Superzahl", "1: 10.324", "0,000096861681"},
    {"GK6", "Vierer", "1: 1.147", "0,000871839581"},
    {"GK7", "Dreier mit Superzahl", "1: 567", "0,001763668430"},
    {"GK8", "Dreier", "1: 63", "0,015873015873"},
    {"GK9", "Zweier mit Superzahl", "1: 76", "0,013157894737"},
}};

inline constexpr std::array<Chance, 8> kChancenAlt{{
    {"GK1", "Sechser mit Superzahl", "1: 139.838.160", "0,000000007151"},
    {"GK2", "Sechser", "1: 15.537.573", "0,000000064360"},
    {"GK3", "Fünfer mit ZZ", "1: 2.330.636", "0,000000429067"},
    {"GK4", "Fünfer", "1: 55.491", "0,000018020832"},
    {"GK5", "Vierer mit ZZ", "1: 22.197", "0,000045052080"},
    {"GK6", "Vierer", "1: 1.083", "0,000923567644"},
    {"GK7", "Dreier mit ZZ", "1: 812", "0,001231423526"},
    {"GK8", "Dreier", "1: 61", "0,016418980341"},
}};

/// Shares of the 50% of the stakes that are paid out; the fixed GK9 wins and the share of GK1 are taken off first.
struct AnteilNeu {
    std::string_view klasse;
    std::string_view bis19092020;
    std::string_view ab23092020;
};

inline constexpr std::array<AnteilNeu, 9> kAnteileNeu{{
    {"GK1", "12,8%", "15,0%"},
    {"GK2", "10,0%", "15,0%"},
    {"GK3", "5,0%", "5,2%"},
    {"GK4", "15,0%", "15,5%"},
    {"GK5", "5,0%", "4,3%"},
    {"GK6", "10,0%", "10,2%"},
    {"GK7", "10,0%", "8,7%"},
    {"GK8", "45,0%", "41,1%"},
    {"GK9", "fest 5€", "fest 6€"},
}};

struct Anteil {
    std::string_view klasse;
    std::string_view name; ///< empty where it is that of the chances
    std::string_view anteil;
    std::string_view bemerkung;
};

inline constexpr std::array<Anteil, 8> kAnteileAlt{{
    {"GK1", "", "10,0 %", ""},
    {"GK2", "", "8,0 %", ""},
    {"GK3", "", "5,0 %", ""},
    {"GK4", "", "13,0 %", ""},
    {"GK5", "", "2,0 %", "(ab 22.5.1999)"},
    {"GK6", "", "10,0 %", ""},
    {"GK7", "", "8,0 %", ""},
    {"GK8", "", "44,0 %", ""},
}};

inline constexpr std::string_view kAnteileMittwochTitel = "Ausschüttungsanteil Mittwochslotto (von 1997-2000)";

/// From 06.12.2000 on the shares of Samstagslotto hold on Wednesday too.
inline constexpr std::array<Anteil, 7> kAnteileMittwoch{{
    {"GK1", "Sechser mit Superzahl", "6,0 %", ""},
    {"GK2", "Sechser", "10,0 %", ""},
    {"GK3", "Fünfer mit ZZ", "6,0 %", ""},
    {"GK4", "Fünfer", "20,0 %", ""},
    {"GK5", "Vierer", "20,0 %", ""},
    {"GK6", "Dreier mit ZZ", "14,0 %", ""},
    {"GK7", "Dreier", "24,0 %", ""},
}};

/// How many combinations of six, five, four and three numbers there are.
inline constexpr std::string_view kSechserkombinationen = "13.983.816";
inline constexpr std::string_view kSechserMitSuperzahl = "139.838.160";
inline constexpr std::string_view kFuenferkombinationen = "1.906.884";
inline constexpr std::string_view kViererkombinationen = "211.876";
inline constexpr std::string_view kDreierkombinationen = "18.424";
inline constexpr std::string_view kKombinationsformel = "Anzahl=n!/((n-k)!*k!)";

} // namespace gewinnplantafel
