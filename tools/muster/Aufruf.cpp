#include "tools/muster/Aufruf.h"

#include <algorithm>

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

namespace {

/// The number that the digits give; -1 if one of them is none.
int zahlAus(std::string_view ziffern)
{
    int zahl = 0;
    for (const char zeichen : ziffern) {
        if (zeichen < '0' || zeichen > '9')
            return -1;
        zahl = zahl * 10 + (zeichen - '0');
    }
    return zahl;
}

} // namespace

std::optional<sys_days> liesStand(std::string_view text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const int j = zahlAus(text.substr(0, 4));
    const int m = zahlAus(text.substr(5, 2));
    const int t = zahlAus(text.substr(8, 2));
    if (std::min({j, m, t}) < 0)
        return std::nullopt;
    const year_month_day datum{year{j}, month{static_cast<unsigned>(m)}, day{static_cast<unsigned>(t)}};
    return datum.ok() ? std::optional{sys_days{datum}} : std::nullopt;
}

std::optional<Aufruf> liesAufruf(const std::vector<std::string_view>& argumente)
{
    Aufruf aufruf;
    for (auto argument = argumente.begin(); argument != argumente.end(); ++argument) {
        if (*argument == "--stand") {
            if (aufruf.stand || ++argument == argumente.end())
                return std::nullopt;
            aufruf.stand = liesStand(*argument);
            if (!aufruf.stand)
                return std::nullopt;
        } else if (!aufruf.ordner.empty() || argument->starts_with('-')) {
            return std::nullopt;
        } else {
            aufruf.ordner = *argument;
        }
    }
    return aufruf.ordner.empty() ? std::nullopt : std::optional{aufruf};
}
