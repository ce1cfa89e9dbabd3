#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Fortschritt.h"
#include "shell/logic/Uhr.h"
#include "shell/logic/Zufall.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Most rows of either list of the computer draws.
inline constexpr std::size_t kComputerlisteVoll = 32735;

struct Computerziehung {
    std::int32_t nr = 0; ///< 1-based
    Zahlenmenge zahlen = 0;
    std::int32_t treffer = 0;
};

/// How a tip fares in the draws of the computer: counters over all of them, and the draws that the lists hold.
struct Computerlotto {
    Kombination tip{};
    std::int32_t runden = 0;                   ///< draws so far
    std::array<std::int32_t, 6> haeufigkeit{}; ///< how often each number of the tip was drawn
    std::array<std::int32_t, 7> treffer{};     ///< [1..6]: draws with so many hits
    std::vector<Computerziehung> ziehungen{};  ///< the first ones, as many as the list holds
    std::vector<Computerziehung> gewinne{};    ///< the first ones with three hits or more

    bool ziehungenVoll() const { return runden > static_cast<std::int32_t>(kComputerlisteVoll); }
    bool gewinneVoll() const { return gewinne.size() >= kComputerlisteVoll; }
};

/// One more draw. `sekunden` is the time of day that stirs the random numbers. Gives the six numbers in the order
/// drawn.
std::array<int, 6> zieheComputerzahlen(Computerlotto& lotto, Zufall& zufall, double sekunden);

/// `anzahl` more draws, fewer if `fortschritt` stops them.
void simulateDraws(Computerlotto& lotto, std::int32_t anzahl, Zufall& zufall, const Uhr& uhr,
                   const Fortschritt& fortschritt);

/// The count of draws that a text such as "10.000" asks for; nothing for what is no number from 1 on.
std::optional<std::int32_t> ziehungsanzahl(std::string_view text);

/// "00017  03 07 12 23 34 45 ".
std::string ziehungszeile(const Computerziehung& ziehung);
/// The same with the hits: "00017  03 07 12 23 34 45  (3-er)".
std::string gewinnzeile(const Computerziehung& ziehung);

/// How long so many draws take in real life, with one draw a week.
struct Zeitspanne {
    std::int32_t Jahre = 0;
    std::int32_t Monate = 0;
    std::int32_t Wochen = 0;

    bool operator==(const Zeitspanne&) const = default;
};
Zeitspanne zeitspanne(std::int32_t ziehungen);
