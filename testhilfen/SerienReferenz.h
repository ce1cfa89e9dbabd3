#pragma once

#include <cstddef>
#include <vector>

// The plain way to runs of numbers over draws: for each number, or each triple, a walk through all draws that gathers
// its hits, then one through the hits. It stands beside the program's own as its measure and shares nothing with it.

/// A draw: which of the numbers 1..49 it holds.
struct Plumpziehung {
    bool haelt[50]{};

    template <class Zahlen> explicit Plumpziehung(const Zahlen& zahlen)
    {
        for (const int zahl : zahlen)
            nimm(zahl);
    }
    void nimm(int zahl)
    {
        if (zahl >= 1 && zahl <= 49)
            haelt[zahl] = true;
    }
};

struct Plumpserie {
    std::vector<int> zahlen;
    std::size_t erste = 0; ///< place of its first draw, from 0
    std::size_t laenge = 0;

    bool operator==(const Plumpserie&) const = default;
};

inline void suchePlump(const std::vector<Plumpziehung>& ziehungen, const std::vector<int>& zahlen,
                       std::size_t mindestens, std::vector<Plumpserie>& serien)
{
    std::vector<std::size_t> treffer;
    // Where there are fewer than three, the first one is asked for again.
    const int a = zahlen[0];
    const int b = zahlen.size() > 1 ? zahlen[1] : a;
    const int c = zahlen.size() > 2 ? zahlen[2] : a;
    const Plumpziehung* const alle = ziehungen.data();
    const std::size_t anzahl = ziehungen.size();
    for (std::size_t platz = 0; platz < anzahl; ++platz)
        if (alle[platz].haelt[a] && alle[platz].haelt[b] && alle[platz].haelt[c])
            treffer.push_back(platz);
    std::size_t laenge = 1;
    for (std::size_t i = 0; i < treffer.size(); ++i) {
        if (i + 1 < treffer.size() && treffer[i + 1] == treffer[i] + 1) {
            ++laenge;
            continue;
        }
        if (laenge >= mindestens)
            serien.push_back({zahlen, treffer[i] + 1 - laenge, laenge});
        laenge = 1;
    }
}

/// The runs of each number 1..49.
inline std::vector<Plumpserie> einzelneSerienPlump(const std::vector<Plumpziehung>& ziehungen, std::size_t mindestens)
{
    std::vector<Plumpserie> serien;
    for (int zahl = 1; zahl <= 49; ++zahl)
        suchePlump(ziehungen, {zahl}, mindestens, serien);
    return serien;
}

/// The runs of each triple of 1..`hoechste`.
inline std::vector<Plumpserie> dreierSerienPlump(const std::vector<Plumpziehung>& ziehungen, std::size_t mindestens,
                                                 int hoechste = 49)
{
    std::vector<Plumpserie> serien;
    for (int a = 1; a <= hoechste; ++a)
        for (int b = a + 1; b <= hoechste; ++b)
            for (int c = b + 1; c <= hoechste; ++c)
                suchePlump(ziehungen, {a, b, c}, mindestens, serien);
    return serien;
}
