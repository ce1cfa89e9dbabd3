#pragma once

#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungskalender.h"
#include "testhilfen/Datenordner.h"
#include "testhilfen/Musterordner.h"

#include <array>
#include <random>
#include <set>

// What the benchmarks measure with: the real draws where they lie, otherwise the sample.

/// With a separator at its end.
inline const std::string& ziehungsordner()
{
    static const std::string ordner = (gibtEchteDaten() ? kEchteDaten : musterordner()).string() + "/";
    return ordner;
}

inline ZiehungsArchiv ladeArchiv(std::int16_t spielart)
{
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.ProgrammVerzeichnis = ziehungsordner();
    LadeZiehungsdatei(archiv, {});
    return archiv;
}

inline const ZiehungsArchiv& samstagsarchiv()
{
    static const ZiehungsArchiv geladen = ladeArchiv(Samstagslotto);
    return geladen;
}

/// The draws of all three games.
inline const ZiehungsArchiv& alleZiehungen()
{
    static const ZiehungsArchiv geladen = [] {
        ZiehungsArchiv neu;
        neu.ProgrammVerzeichnis = ziehungsordner();
        LadeAlleZiehungen(neu, 7, {});
        return neu;
    }();
    return geladen;
}

/// As many draws of a game as its file may hold, made by chance.
inline ZiehungsArchiv volleDatei(std::int16_t spielart)
{
    std::mt19937 zufall(static_cast<std::mt19937::result_type>(spielart));
    const auto bis = [&zufall](std::uint32_t ende) { return static_cast<std::int32_t>(zufall() % ende); };
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.AnzahlZiehungen = kMaxZiehungenJeDatei;
    for (std::int32_t i = 0; i < kMaxZiehungenJeDatei; ++i) {
        std::set<std::int32_t> zahlen;
        while (zahlen.size() < 6)
            zahlen.insert(1 + bis(49));
        archiv.jjjj.push_back(1955 + i / 52);
        archiv.sw.push_back(1 + i % 52);
        const std::array spalten{&archiv.z1, &archiv.z2, &archiv.z3, &archiv.z4, &archiv.z5, &archiv.z6};
        for (auto spalte = spalten.begin(); const std::int32_t zahl : zahlen)
            (*spalte++)->push_back(zahl);
        archiv.zz.push_back(bis(50));
        archiv.s.push_back(bis(10));
    }
    istSamstag(spielart) ? BaueSamstagsDaten(archiv) : BaueMittwochsDaten(archiv);
    return archiv;
}

/// Three such files, one behind the other as a combined load leaves them.
inline const ZiehungsArchiv& dreiVolleDateien()
{
    static const ZiehungsArchiv zusammen = [] {
        ZiehungsArchiv alle;
        for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB}) {
            ZiehungsArchiv teil = volleDatei(spielart);
            for (std::size_t i = 0; i < alle.spalten().size(); ++i)
                alle.spalten()[i]->insert(alle.spalten()[i]->end(), teil.spalten()[i]->begin() + 1,
                                          teil.spalten()[i]->end());
            for (std::size_t nr = 1; nr < teil.jjjj.size(); ++nr)
                alle.DatumAlle.push_back(teil.Datum[nr] + (spielart == MittwochslottoB ? " (B)" : ""));
            alle.AnzahlZiehungen += teil.AnzahlZiehungen;
        }
        return alle;
    }();
    return zusammen;
}
