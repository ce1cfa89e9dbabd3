#pragma once

#include "filters/logic/Ziehungsfolge.h"
#include "shell/logic/Zufall.h"
#include "testhilfen/ArchivAus.h"
#include "testhilfen/SerienReferenz.h"

#include <algorithm>
#include <set>

/// Draws by chance out of the first `hoechste` numbers: the fewer there are, the longer the runs.
inline std::vector<TestZiehung> zufallsziehungen(int anzahl, int hoechste, std::uint64_t saat)
{
    Zufall zufall(saat);
    std::vector<TestZiehung> ziehungen;
    for (int i = 0; i < anzahl; ++i) {
        std::set<int> zahlen;
        while (zahlen.size() < 6)
            zahlen.insert(static_cast<int>(zufall.Rnd() * hoechste) + 1);
        TestZiehung ziehung{1955 + i / 52, i % 52 + 1};
        std::ranges::copy(zahlen, ziehung.zahlen.begin());
        ziehung.zz = static_cast<int>(zufall.Rnd() * (hoechste + 1));
        ziehungen.push_back(ziehung);
    }
    return ziehungen;
}

/// The draws of one game.
inline GeteilteFolge folgeAus(const std::vector<TestZiehung>& ziehungen)
{
    return einzelneFolge(archivAus(Samstagslotto, ziehungen));
}

/// The same as the plain walks take them.
inline std::vector<Plumpziehung> plumpAus(const std::vector<TestZiehung>& ziehungen, bool mitZusatzzahl)
{
    std::vector<Plumpziehung> plump;
    for (const TestZiehung& ziehung : ziehungen) {
        plump.emplace_back(ziehung.zahlen);
        if (mitZusatzzahl)
            plump.back().nimm(ziehung.zz);
    }
    return plump;
}
