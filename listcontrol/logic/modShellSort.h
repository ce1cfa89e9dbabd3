#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

/// The Shellsort over anything that can hold one element aside: gaps 1, 4, 13, 40, ... Equal elements may change
/// places, always in the same way. `Speicher` offers, by 0-based index,
///   nimm(i)      holds element i aside,
///   hinter(i)    tells whether element i is to stand behind the one held aside,
///   schiebe(z,q) moves element q to z,
///   setze(i)     puts the one held aside to i.
template <class Speicher> void shellSortiere(Speicher&& speicher, std::size_t anzahl)
{
    std::size_t abstand = 1;
    while (abstand <= anzahl)
        abstand = abstand * 3 + 1;
    while (abstand > 1) {
        abstand /= 3;
        for (std::size_t i = abstand; i < anzahl; ++i) {
            speicher.nimm(i);
            std::size_t platz = i;
            for (; platz >= abstand && speicher.hinter(platz - abstand); platz -= abstand)
                speicher.schiebe(platz, platz - abstand);
            speicher.setze(platz);
        }
    }
}

/// Elements of a size known at run time only, moved by block copies.
template <class Vergleich> class Rohspeicher {
public:
    Rohspeicher(void* erstes, std::size_t groesse, Vergleich vergleich)
        : erstes_(static_cast<std::byte*>(erstes)),
          groesse_(groesse),
          vergleich_(vergleich),
          puffer_(groesse)
    {}

    void nimm(std::size_t i) { std::memcpy(puffer_.data(), ort(i), groesse_); }
    bool hinter(std::size_t i) { return vergleich_(ort(i), puffer_.data()) == 1; }
    void schiebe(std::size_t ziel, std::size_t quelle) { std::memcpy(ort(ziel), ort(quelle), groesse_); }
    void setze(std::size_t i) { std::memcpy(ort(i), puffer_.data(), groesse_); }

private:
    std::byte* ort(std::size_t i) const { return erstes_ + i * groesse_; }

    std::byte* erstes_;
    std::size_t groesse_;
    Vergleich vergleich_;
    std::vector<std::byte> puffer_;
};

template <class T, class Vergleich> class Elementspeicher {
public:
    Elementspeicher(std::vector<T>& feld, Vergleich vergleich) : feld_(feld), vergleich_(vergleich) {}

    void nimm(std::size_t i) { puffer_ = std::move(feld_[i]); }
    bool hinter(std::size_t i) { return vergleich_(feld_[i], puffer_) == 1; }
    void schiebe(std::size_t ziel, std::size_t quelle) { feld_[ziel] = std::move(feld_[quelle]); }
    void setze(std::size_t i) { feld_[i] = std::move(puffer_); }

private:
    std::vector<T>& feld_;
    Vergleich vergleich_;
    T puffer_{};
};

/// Sorts `anzahl` elements of `groesse` bytes from `erstes` on, in place. The elements must bear a plain copy of their
/// bytes. `vergleich(const void*, const void*)` gives 1 when the first is to stand behind the second, else 0 or -1.
template <class Vergleich> void ShellSort(void* erstes, std::size_t anzahl, std::size_t groesse, Vergleich vergleich)
{
    if (anzahl > 1 && groesse > 0)
        shellSortiere(Rohspeicher<Vergleich>(erstes, groesse, vergleich), anzahl);
}

/// The same sort over an array of any type; `vergleich(const T&, const T&)` as above.
template <class T, class Vergleich> void ShellSort(std::vector<T>& feld, Vergleich vergleich)
{
    shellSortiere(Elementspeicher<T, Vergleich>(feld, vergleich), feld.size());
}
