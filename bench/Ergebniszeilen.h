#pragma once

#include "shell/logic/Format.h"
#include "shell/logic/Zufall.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

inline constexpr std::size_t kZeilen = 200'000;

/// Lines such as " 9 mal ->   7 19 23 31 40 48", in the order in which a search comes upon them.
inline const std::vector<std::string>& ergebniszeilen()
{
    static const std::vector<std::string> zeilen = [] {
        Zufall zufall(49);
        std::vector<std::string> neu(kZeilen);
        for (std::string& zeile : neu) {
            zeile = Format(lottozahl(zufall.Rnd()), "@@") + " mal -> ";
            std::array<int, 6> zahlen = sechsZahlen(zufall);
            std::ranges::sort(zahlen);
            for (const int zahl : zahlen)
                zeile += Format(zahl, "@@@");
        }
        return neu;
    }();
    return zeilen;
}
