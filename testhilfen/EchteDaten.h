#pragma once

#include "archive/logic/Ziehungsdatei.h"
#include "testhilfen/Datenordner.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

/// A record as the text of the file has it, without the program's reader.
struct RohZiehung {
    std::string jahrUndWoche; ///< "1955/41"
    std::array<int, 6> zahlen{};
    int zz = 0;
    int sz = 0; ///< Superzahl; 0 before there was one
};

/// All records of a file by its fixed columns, oldest first.
inline std::vector<RohZiehung> liesRoh(const std::string& name)
{
    std::ifstream datei(kEchteDaten / name);
    std::vector<RohZiehung> ziehungen;
    for (std::string zeile; std::getline(datei, zeile);) {
        const auto feld = [&zeile](std::size_t nr) { return std::stoi(zeile.substr(8 + 3 * nr, 2)); };
        RohZiehung ziehung{zeile.substr(0, 4) + "/" + zeile.substr(5, 2), {}, feld(6), zeile.at(29) - '0'};
        for (std::size_t i = 0; i < 6; ++i)
            ziehung.zahlen[i] = feld(i);
        ziehungen.push_back(ziehung);
    }
    return ziehungen;
}

/// The archive of a game as the program reads it from the real files.
inline ZiehungsArchiv ladeEchte(std::int16_t spielart)
{
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeZiehungsdatei(archiv, {});
    return archiv;
}

/// The real draws of each game, both as text and as the program reads them.
class EchteDaten : public testing::TestWithParam<Spielart> {
protected:
    void SetUp() override
    {
        const std::string name(ziehungsdateiName(GetParam()));
        if (!std::filesystem::exists(kEchteDaten / name))
            GTEST_SKIP() << "keine echten Ziehungen";
        archiv_ = ladeEchte(GetParam());
        roh_ = liesRoh(name);
        ASSERT_GT(roh_.size(), 700U);
        ASSERT_EQ(static_cast<std::size_t>(archiv_.AnzahlZiehungen), roh_.size());
    }

    ZiehungsArchiv archiv_;
    std::vector<RohZiehung> roh_;
};

/// The real draws of a set of games, given by the bits of their files, as text and as a combined load.
class EchteSpielarten : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "keine echten Ziehungen";
        for (const auto& [bit, name] : {std::pair(1, "SALOTTO.DAT"), {2, "MALOTTO.DAT"}, {4, "MBLOTTO.DAT"}})
            if (GetParam() & bit)
                std::ranges::copy(liesRoh(name), std::back_inserter(roh_));
        archiv_.ProgrammVerzeichnis = kEchteDaten.string() + "/";
        LadeAlleZiehungen(archiv_, GetParam(), {});
    }

    ZiehungsArchiv archiv_;
    std::vector<RohZiehung> roh_;
};
