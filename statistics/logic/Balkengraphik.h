#pragma once

#include "shell/logic/Lottozahl.h"
#include "statistics/logic/HaeufigkeitAuswertung.h"

#include <array>
#include <cstdint>
#include <string>

/// The counts that the foot and the head of the scale stand for. All heights are twips.
struct Massstab {
    static constexpr int kSkalenhoehe = 3420;
    static constexpr int kBalkenhoehe = 3460;

    std::int32_t fuss = 0;
    std::int32_t spanne = 1; ///< from foot to head, at least 1

    constexpr double skalenfaktor() const { return static_cast<double>(kSkalenhoehe) / spanne; } ///< twips a count
    constexpr double balkenfaktor() const { return static_cast<double>(kBalkenhoehe) / spanne; } ///< twips a count
};

/// The bar chart of the 49 counts. Vertical positions are twips, growing downward.
struct Balkengraphik {
    static constexpr int kGrundlinie = 3890;   ///< where the bars stand
    static constexpr int kTiefsterKopf = 3860; ///< no bar begins below, so that one of height 0 stays visible

    Massstab massstab;
    std::array<int, kHoechsteZahl> oben{}; ///< top of each bar; index: number - 1
    std::array<std::string, 5> skala;      ///< "#0.00" from the head of the scale down to its foot
    std::array<int, 5> linien{};           ///< height of the horizontal line of each scale text
};

/// Scale from 0 to the highest count.
Balkengraphik balkenNormal(const Haeufigkeit& haeufigkeit);
/// Scale from the lowest to the highest count.
Balkengraphik balkenZoom(const Haeufigkeit& haeufigkeit);

/// The text line for the bar of a number 1..49: its count and, if the evaluation reached the last draw, how many
/// weeks ago it came.
std::string balkenText(const HaeufigkeitAuswertung& auswertung, int zahl);
