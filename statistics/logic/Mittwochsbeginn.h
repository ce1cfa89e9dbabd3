#pragma once

#include <cstdint>

/// ZiehungsNr of the first draw of Wednesday game A that has no game B beside it (06.12.2000).
inline constexpr std::int32_t kEinzigeMittwochsziehungBeginn = 758;
