#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The counts that the foot and the head of the scale stand for. All heights are twips.
struct Massstab {
    static constexpr int kSkalenhoehe = 3420;
    static constexpr int kBalkenhoehe = 3460;

    std::int32_t fuss = 0;
    std::int32_t spanne = 1; ///< from foot to head, at least 1

    constexpr double skalenfaktor() const { return static_cast<double>(kSkalenhoehe) / spanne; } ///< twips a count
    constexpr double balkenfaktor() const { return static_cast<double>(kBalkenhoehe) / spanne; } ///< twips a count
};

/// What a bar stands for, a number or a digit, and how often that was drawn.
struct Balkenwert {
    int zahl = 0;
    std::int32_t anzahl = 0;

    bool operator==(const Balkenwert&) const = default;
};

/// A bar for each of a row of counts, ascending; the first one stands for `erste`.
template <class Anzahlen> std::vector<Balkenwert> balkenwerte(const Anzahlen& anzahlen, int erste)
{
    std::vector<Balkenwert> werte;
    werte.reserve(anzahlen.size());
    for (const auto anzahl : anzahlen)
        werte.push_back({erste + static_cast<int>(werte.size()), anzahl});
    return werte;
}

/// The most frequent first; equals keep their order.
std::vector<Balkenwert> nachHaeufigkeit(std::vector<Balkenwert> werte);

/// What a count is among all of its chart. One that is both is the lowest.
enum class Balkenmarke : std::uint8_t { Keine, Hoechster, Niedrigster };

struct Balken {
    Balkenwert wert;
    int oben = 0; ///< its top in twips
    Balkenmarke marke = Balkenmarke::Keine;
};

enum class Balkenansicht {
    Normal, ///< the scale begins at 0
    Zoom    ///< the scale begins at the lowest count, so that the differences stand out
};

/// A chart of counts. Vertical positions are twips, growing downward.
struct Balkengraphik {
    static constexpr int kGrundlinie = 3890;   ///< where the bars stand
    static constexpr int kTiefsterKopf = 3860; ///< no bar begins below, so that one of height 0 stays visible

    Massstab massstab;
    std::vector<Balken> balken;       ///< in the order of the values
    std::array<std::string, 5> skala; ///< "#0.00" from the head of the scale down to its foot
    std::array<int, 5> linien{};      ///< height of the horizontal line of each scale text
};

/// The bars of these values; the scale ends at the highest count. Without values there is a scale of zeros.
Balkengraphik balkengraphik(const std::vector<Balkenwert>& werte, Balkenansicht ansicht);
