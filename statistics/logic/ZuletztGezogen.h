#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <cstdint>

/// In which draw each number was counted last: its ZiehungsNr, 0 if it was not met. Index: number - 1.
using ZuletztGezogen = std::array<std::int32_t, kHoechsteZahl>;

/// Looks at the draws from ZiehungsNr `von` to `bis`, both included, as far as the archive holds them. Numbers outside
/// 1..49, and so a Zusatzzahl of 0, are no numbers.
ZuletztGezogen zuletztGezogen(const ZiehungsArchiv& archiv, std::int32_t von, std::int32_t bis, ZZModus modus);

/// Where a search up to the newest draw begins: ZiehungsNr 2000 on Saturday, 241 on both Wednesday games, since every
/// number has come up after that.
std::int32_t suchbeginn(std::int16_t spielart);
