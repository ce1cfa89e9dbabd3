#pragma once

#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <set>

/// The real draws of a game as the text of the file has them, with the prize rules written down a second time. Draw i,
/// counted from 0, has the ZiehungsNr i + 1.
struct Rohspiel {
    Spielart spielart = Samstagslotto;
    std::vector<RohZiehung> roh;
    std::vector<int> sz; ///< the column behind the Zusatzzahl

    bool hatSuperzahl(std::size_t i) const { return i + 1 >= (spielart == Samstagslotto ? 1887U : 497U); }

    /// The label by the words of the plans, from sets of the raw records; empty without a class.
    std::string label(std::size_t i, const std::array<int, 6>& tip, int tipSZ, bool alt) const
    {
        static const std::vector<std::string> namen{"", "", "Zweier", "Dreier", "Vierer", "Fünfer", "Sechser"};
        const std::set<int> gezogen(roh[i].zahlen.begin(), roh[i].zahlen.end());
        const auto treffer = std::count_if(tip.begin(), tip.end(), [&](int zahl) { return gezogen.contains(zahl); });
        const bool trifftSz = hatSuperzahl(i) && sz[i] == tipSZ;
        const bool trifftZz = std::find(tip.begin(), tip.end(), roh[i].zz) != tip.end();
        const bool b = spielart == MittwochslottoB;
        const std::string name = namen[static_cast<std::size_t>(treffer)];
        if (!alt)
            return treffer >= 3 || (treffer == 2 && trifftSz) ? name + (trifftSz ? "+SZ" : "") : "";
        if (treffer < 3)
            return "";
        if (treffer == 6)
            return name + (trifftSz && !b ? "+SZ" : "");
        return name + (trifftZz && !(b && treffer == 4) ? "+ZZ" : "");
    }
};

inline Rohspiel liesRohspiel(Spielart spielart)
{
    const std::string name(ziehungsdateiName(spielart));
    Rohspiel spiel{spielart, liesRoh(name), {}};
    std::ifstream datei(kEchteDaten / name);
    for (std::string zeile; std::getline(datei, zeile);)
        spiel.sz.push_back(std::stoi(zeile.substr(29)));
    return spiel;
}

class EchteGewinne : public EchteDaten {
protected:
    void SetUp() override
    {
        EchteDaten::SetUp();
        if (!IsSkipped())
            spiel_ = liesRohspiel(GetParam());
    }

    static std::int32_t nummer(std::size_t i) { return static_cast<std::int32_t>(i + 1); }

    Rohspiel spiel_;
};
