#include "engines/logic/Wiederholungen.h"

#include "shell/logic/Binomial.h"
#include "shell/logic/Fortschritt.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

constexpr std::size_t kSpalten = 6;

/// The numbers of a set. The sign is turned over, so that the plain order of the bytes is that of the numbers.
template <std::size_t k> using Schluessel = std::array<std::uint32_t, k>;

constexpr std::uint32_t kVorzeichen = 0x8000'0000U;

std::uint32_t verschluesselt(std::int32_t zahl)
{
    return static_cast<std::uint32_t>(zahl) ^ kVorzeichen;
}

/// The columns that make up each set, in lexicographic order: for pairs 12, 13 ... 56, counted from 0.
template <std::size_t k> constexpr auto spaltenwahl()
{
    std::array<std::array<std::size_t, k>, static_cast<std::size_t>(Binomial(kSpalten, k))> alle{};
    std::array<std::size_t, k> wahl{};
    for (std::size_t i = 0; i < k; ++i)
        wahl[i] = i;
    for (auto& diese : alle) {
        diese = wahl;
        std::size_t stelle = k;
        while (stelle > 0 && wahl[stelle - 1] == kSpalten - k + stelle - 1)
            --stelle;
        if (stelle > 0) {
            ++wahl[stelle - 1];
            for (std::size_t i = stelle; i < k; ++i)
                wahl[i] = wahl[i - 1] + 1;
        }
    }
    return alle;
}

template <std::size_t k> class Suche {
public:
    /// Keeps the sets that stand in `mindestens` draws or more.
    Suche(std::int32_t mindestens, const Suchfortschritt& fortschritt)
        : mindestens_(mindestens),
          fortschritt_(fortschritt)
    {
        ergebnis_.Wiederholungslaenge = static_cast<int>(k);
    }

    Wiederholungen suche(const ZiehungsArchiv& archiv)
    {
        ergebnis_.vollstaendig = zerlege(archiv) && SortiereUndZaehle();
        return std::move(ergebnis_);
    }

private:
    using Menge = Schluessel<k>;

    Fortschritt melder(Suchschritt schritt) const
    {
        if (!fortschritt_)
            return {};
        return [this, schritt](std::uint64_t erledigt) { return fortschritt_(schritt, erledigt); };
    }

    bool zerlege(const ZiehungsArchiv& archiv)
    {
        static constexpr auto kWahl = spaltenwahl<k>();
        Takt takt(melder(Suchschritt::Zerlegen));
        if (!takt.melde(0))
            return false;
        const auto anzahl = static_cast<std::size_t>(archiv.AnzahlZiehungen);
        Suchschluessel.resize(anzahl * kWahl.size());
        Menge* ziel = Suchschluessel.data();
        for (std::size_t nr = 1; nr <= anzahl; ++nr) {
            if (!takt.schritt(nr - 1))
                return false;
            const auto zahlen = archiv.gewinnzahlen(nr);
            for (const auto& wahl : kWahl) {
                for (std::size_t i = 0; i < k; ++i)
                    (*ziel)[i] = verschluesselt(zahlen[wahl[i]]);
                ++ziel;
            }
            for (const std::int32_t zahl : zahlen)
                verschiedene_ |= verschluesselt(zahl) ^ verschluesselt(archiv.z1[1]);
        }
        return true;
    }

    bool SortiereUndZaehle()
    {
        Takt takt(melder(Suchschritt::Vergleichen));
        return takt.melde(0) && sortiere(takt) && zaehle(takt);
    }

    /// From the last byte of the last number to the first of the first one, each byte that is not the same everywhere:
    /// for true draws one pass for each number.
    bool sortiere(Takt& takt)
    {
        std::vector<Menge> gefaecherte(Suchschluessel.size());
        for (std::size_t stelle = k; stelle-- > 0;) {
            for (unsigned ab = 0; ab < 32; ab += 8) {
                if (((verschiedene_ >> ab) & 0xFFU) == 0)
                    continue;
                if (!faechere(gefaecherte, stelle, ab, takt))
                    return false;
                Suchschluessel.swap(gefaecherte);
            }
        }
        return true;
    }

    /// Puts the sets to `ziel` in the order of one byte; equal ones keep theirs.
    bool faechere(std::vector<Menge>& ziel, std::size_t stelle, unsigned ab, Takt& takt) const
    {
        const auto fach = [stelle, ab](const Menge& menge) { return (menge[stelle] >> ab) & 0xFFU; };
        std::array<std::size_t, 256> platz{};
        for (const Menge& menge : Suchschluessel) {
            ++platz[fach(menge)];
            if (!takt.schritt(0))
                return false;
        }
        std::size_t davor = 0;
        for (std::size_t& dieser : platz)
            davor += std::exchange(dieser, davor);
        for (const Menge& menge : Suchschluessel) {
            ziel[platz[fach(menge)]++] = menge;
            if (!takt.schritt(0))
                return false;
        }
        return true;
    }

    bool zaehle(Takt& takt)
    {
        std::int32_t n = 0;
        for (std::size_t i = 0; i < Suchschluessel.size(); ++i) {
            if (!takt.schritt(i))
                return false;
            if (i > 0 && Suchschluessel[i] != Suchschluessel[i - 1]) {
                schliesse(Suchschluessel[i - 1], n);
                n = 0;
            }
            ++n;
        }
        if (n > 0)
            schliesse(Suchschluessel.back(), n);
        return true;
    }

    void schliesse(const Menge& menge, std::int32_t n)
    {
        ++(n == 1 ? ergebnis_.AnzahlEinmal : ergebnis_.AnzahlMehrfach);
        if (n < mindestens_)
            return;
        Wiederholung& neue = ergebnis_.mehrfache.emplace_back();
        std::ranges::transform(menge, neue.zahlen.begin(),
                               [](std::uint32_t zahl) { return static_cast<std::int32_t>(zahl ^ kVorzeichen); });
        neue.anzahl = n;
    }

    std::int32_t mindestens_;
    const Suchfortschritt& fortschritt_;
    std::vector<Menge> Suchschluessel;
    std::uint32_t verschiedene_ = 0; ///< the bits that are not the same in all numbers
    Wiederholungen ergebnis_;
};

/// `mehrfache` holds the sets that stand in `mindestens` draws or more.
Wiederholungen suche(const ZiehungsArchiv& archiv, int k, std::int32_t mindestens, const Suchfortschritt& fortschritt)
{
    switch (k) {
    case 2:
        return Suche<2>(mindestens, fortschritt).suche(archiv);
    case 3:
        return Suche<3>(mindestens, fortschritt).suche(archiv);
    case 4:
        return Suche<4>(mindestens, fortschritt).suche(archiv);
    case 5:
        return Suche<5>(mindestens, fortschritt).suche(archiv);
    case 6:
        return Suche<6>(mindestens, fortschritt).suche(archiv);
    default:
        return {};
    }
}

} // namespace

Wiederholungen WiederholungsSuche(const ZiehungsArchiv& archiv, int k, const Suchfortschritt& fortschritt)
{
    return suche(archiv, k, 2, fortschritt);
}

Mengenzaehlung zaehleMengen(const ZiehungsArchiv& archiv, int k, const Suchfortschritt& fortschritt)
{
    Wiederholungen gezaehlte = suche(archiv, k, 1, fortschritt);
    return {std::move(gezaehlte.mehrfache), gezaehlte.vollstaendig};
}
