#include "archive/logic/Ziehungskalender.h"

#include <algorithm>
#include <array>
#include <string_view>

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::weeks;
using std::chrono::year;
using std::chrono::year_month_day;

namespace {

constexpr sys_days tag(unsigned t, unsigned m, int j)
{
    return year{j} / month{m} / day{t};
}

constexpr sys_days kErsterSonntag = tag(9, 10, 1955);
constexpr sys_days kSamstagVorZeile956 = tag(26, 1, 1974);
constexpr sys_days kErsterMittwoch = tag(4, 6, 1986);

// No draw on 30.12.1956: from this row on the Sundays run one week later.
constexpr std::int32_t kErsteZeileNachAusfall = 65;

// The public draws on Saturday, a day before the Sunday of their row.
constexpr std::int32_t kErsteOeffentliche = 517;
constexpr std::int32_t kLetzteOeffentliche = 533;

struct VerlegteZiehung {
    std::int32_t nr;
    sys_days tag;
};

// Put off because of Easter, Whitsun or Christmas. Ascending by row.
constexpr std::array<VerlegteZiehung, 20> kVerlegt{{
    {12, tag(26, 12, 1955)},  {26, tag(2, 4, 1956)},   {33, tag(21, 5, 1956)},  {80, tag(22, 4, 1957)},
    {87, tag(10, 6, 1957)},   {130, tag(7, 4, 1958)},  {236, tag(18, 4, 1960)}, {243, tag(6, 6, 1960)},
    {272, tag(26, 12, 1960)}, {286, tag(3, 4, 1961)},  {293, tag(22, 5, 1961)}, {324, tag(26, 12, 1961)},
    {341, tag(23, 4, 1962)},  {348, tag(11, 6, 1962)}, {392, tag(15, 4, 1963)}, {399, tag(3, 6, 1963)},
    {442, tag(30, 3, 1964)},  {449, tag(18, 5, 1964)}, {497, tag(19, 4, 1965)}, {504, tag(7, 6, 1965)},
}};

sys_days sonntagsZiehung(std::int32_t nr)
{
    const auto verlegt = std::ranges::lower_bound(kVerlegt, nr, {}, &VerlegteZiehung::nr);
    if (verlegt != kVerlegt.end() && verlegt->nr == nr)
        return verlegt->tag;
    const sys_days sonntag = kErsterSonntag + weeks{nr >= kErsteZeileNachAusfall ? nr : nr - 1};
    return nr >= kErsteOeffentliche && nr <= kLetzteOeffentliche ? sonntag - days{1} : sonntag;
}

void schreibeZiffern(char* ziel, int stellen, unsigned wert)
{
    for (int i = stellen - 1; i >= 0; --i, wert /= 10)
        ziel[i] = static_cast<char>('0' + wert % 10);
}

template <typename Ziehungstag> void baueDaten(ZiehungsArchiv& archiv, std::int32_t mindestens, Ziehungstag ziehungstag)
{
    const std::int32_t zeilen = std::max(archiv.AnzahlZiehungen, mindestens);
    archiv.Datum.clear();
    archiv.Datum.reserve(static_cast<std::size_t>(zeilen) + 1);
    archiv.Datum.emplace_back();
    for (std::int32_t nr = 1; nr <= zeilen; ++nr)
        archiv.Datum.push_back(datumText(ziehungstag(nr)));
}

} // namespace

sys_days samstagsZiehung(std::int32_t nr)
{
    return nr <= kSonntagsZeilen ? sonntagsZiehung(nr) : kSamstagVorZeile956 + weeks{nr - kSonntagsZeilen};
}

sys_days mittwochsZiehung(std::int32_t nr)
{
    return kErsterMittwoch + weeks{nr - 1};
}

std::string datumText(sys_days tag)
{
    constexpr std::string_view wochentage = "SoMoDiMiDoFrSa";
    const year_month_day datum{tag};
    std::string text = "??, 00.00.0000";
    wochentage.copy(text.data(), 2, weekday{tag}.c_encoding() * 2);
    schreibeZiffern(text.data() + 4, 2, static_cast<unsigned>(datum.day()));
    schreibeZiffern(text.data() + 7, 2, static_cast<unsigned>(datum.month()));
    schreibeZiffern(text.data() + 10, 4, static_cast<unsigned>(static_cast<int>(datum.year())));
    return text;
}

void BaueSamstagsDaten(ZiehungsArchiv& archiv)
{
    baueDaten(archiv, kSonntagsZeilen, samstagsZiehung);
}

void BaueMittwochsDaten(ZiehungsArchiv& archiv)
{
    baueDaten(archiv, 1, mittwochsZiehung);
}
