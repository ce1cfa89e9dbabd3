#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <cstdint>

/// How many draws ago each number was last counted; index: number - 1.
using ZuletztVor = std::array<std::int32_t, kHoechsteZahl>;

/// Looks at the draws from ZiehungsNr 2000 on Saturday, 241 on both Wednesday games, since every number has come up
/// after that. A number not met there, or an archive that ends before, gives `AnzahlZiehungen` itself.
ZuletztVor zuletztVor(const ZiehungsArchiv& archiv, ZZModus modus);
