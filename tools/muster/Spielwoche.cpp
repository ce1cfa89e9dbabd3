#include "tools/muster/Spielwoche.h"

using std::chrono::days;
using std::chrono::February;
using std::chrono::floor;
using std::chrono::January;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year;
using std::chrono::year_month_day;

namespace {

constexpr sys_days kErsterReinerSamstag = year{1974} / February / 2;
constexpr sys_days kNeujahr1983 = year{1983} / January / 1;

year jahrVon(sys_days tag)
{
    return year_month_day{tag}.year();
}

/// Which one of its weekday a day is in its year, from 1.
int wieVielterImJahr(sys_days tag)
{
    return static_cast<int>((tag - sys_days{jahrVon(tag) / January / 1}).count()) / 7 + 1;
}

sys_days sonntagDerZiehung(sys_days tag)
{
    const weekday wochentag{tag};
    return wochentag == std::chrono::Saturday ? tag + days{1} : tag - (wochentag - std::chrono::Sunday);
}

/// The Thursday decides to which year a week belongs.
sys_days donnerstagDerWoche(sys_days tag)
{
    return tag - (weekday{tag} - std::chrono::Monday) + days{3};
}

} // namespace

Spielwoche spielwocheVon(sys_days tag)
{
    if (tag == kNeujahr1983)
        return {1982, 53};
    sys_days zaehltag = tag;
    if (tag > kNeujahr1983)
        zaehltag = donnerstagDerWoche(tag);
    else if (tag < kErsterReinerSamstag)
        zaehltag = sonntagDerZiehung(tag);
    return {static_cast<int>(jahrVon(zaehltag)), wieVielterImJahr(zaehltag)};
}
