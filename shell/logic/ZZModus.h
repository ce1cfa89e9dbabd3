#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Which numbers of a Ziehung count in a statistic.
enum class ZZModus : std::int16_t {
    Ohne = 1, ///< the six Gewinnzahlen
    Mit = 2,  ///< the six Gewinnzahlen and the Zusatzzahl
    Nur = 3,  ///< the Zusatzzahl alone
};

constexpr bool zaehltGewinnzahlen(ZZModus modus)
{
    return modus != ZZModus::Nur;
}
constexpr bool zaehltZusatzzahl(ZZModus modus)
{
    return modus != ZZModus::Ohne;
}

/// Where a mode stands in the order ohne, mit, nur: 0..2.
constexpr std::size_t zzStelle(ZZModus modus)
{
    return static_cast<std::size_t>(modus) - 1;
}

/// "ohne", "mit" or "nur".
constexpr std::string_view zzWort(ZZModus modus)
{
    switch (modus) {
    case ZZModus::Mit:
        return "mit";
    case ZZModus::Nur:
        return "nur";
    case ZZModus::Ohne:
        break;
    }
    return "ohne";
}

/// "ohne Zusatzzahl", "mit Zusatzzahl" or "nur Zusatzzahl".
inline std::string zzText(ZZModus modus)
{
    return std::string(zzWort(modus)) + " Zusatzzahl";
}
/// "ohne ZZ", "mit ZZ" or "nur ZZ".
inline std::string zzKurztext(ZZModus modus)
{
    return std::string(zzWort(modus)) + " ZZ";
}

/// Button captions with their mnemonic: "&ohne Zusatzzahl" and "&ohne ZZ".
inline std::string zzBefehl(ZZModus modus)
{
    return std::string("&").append(zzText(modus));
}
inline std::string zzKurzbefehl(ZZModus modus)
{
    return std::string("&").append(zzKurztext(modus));
}

inline constexpr std::string_view kZusatzzahlHinweis =
    "Hinweis: Eine Zusatzzahl wurde erst ab der 25. Spielwoche 1956 ermittelt.";
