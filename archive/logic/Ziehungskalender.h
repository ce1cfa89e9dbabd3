#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <chrono>
#include <cstdint>
#include <string>

/// Rows of the Saturday calendar up to the last Sunday draw, 27.01.1974. `Datum` always has at least these.
inline constexpr std::int32_t kSonntagsZeilen = 955;

/// Day of Saturday draw `nr`, 1..32767: Sundays from 09.10.1955 with the draws that were put off or brought forward,
/// Saturdays from 02.02.1974 (row 956) without end.
std::chrono::sys_days samstagsZiehung(std::int32_t nr);

/// Day of draw `nr`, 1..32767, of both Wednesday games: every week from 04.06.1986.
std::chrono::sys_days mittwochsZiehung(std::int32_t nr);

/// "So, 09.10.1955": two-letter German weekday whatever the locale, years 0..9999.
std::string datumText(std::chrono::sys_days tag);

/// Empties `Datum` and fills it for `SALOTTO.DAT`, up to row 955 or `AnzahlZiehungen`, whichever is more.
void BaueSamstagsDaten(ZiehungsArchiv& archiv);

/// Empties `Datum` and fills it for `MALOTTO.DAT` or `MBLOTTO.DAT`, up to row 1 or `AnzahlZiehungen`, whichever is
/// more.
void BaueMittwochsDaten(ZiehungsArchiv& archiv);
