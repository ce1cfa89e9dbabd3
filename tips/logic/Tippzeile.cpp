#include "tips/logic/Tippzeile.h"

#include "shell/logic/Format.h"

namespace {
constexpr std::size_t kVorspann = 10; ///< blanks before the one that stands before every number
} // namespace

std::vector<std::string> tippzeilen(const std::vector<Tippreihe>& reihen)
{
    std::vector<std::string> zeilen;
    for (const Tippreihe& reihe : reihen)
        if (const auto zahlen = kombinationVon(reihe)) {
            std::string zeile(kVorspann, ' ');
            for (const std::int32_t zahl : *zahlen)
                zeile += Format(zahl, "@@@");
            zeilen.push_back(zeile);
        }
    return zeilen;
}
