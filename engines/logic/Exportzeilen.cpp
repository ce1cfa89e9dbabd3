#include "engines/logic/Exportzeilen.h"

#include "archive/logic/Kombination.h"
#include "engines/logic/Positionszahl.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace {

using Ziffern = std::array<char, 200>;

/// 0..99 with two characters each; `zehner` stands for the tens of 0..9.
constexpr Ziffern zweistellige(char zehner)
{
    Ziffern ziffern{};
    for (std::size_t zahl = 0; zahl < 100; ++zahl) {
        ziffern[2 * zahl] = zahl < 10 ? zehner : static_cast<char>('0' + zahl / 10);
        ziffern[2 * zahl + 1] = static_cast<char>('0' + zahl % 10);
    }
    return ziffern;
}

constexpr Ziffern kMitNull = zweistellige('0');
constexpr Ziffern kMitLeerzeichen = zweistellige(' ');

void setzeZahl(char* ziel, std::int32_t zahl)
{
    std::memcpy(ziel, &kMitNull[2 * static_cast<std::size_t>(zahl)], 2);
}

constexpr std::size_t kKurzeZeile = 32;

} // namespace

void Nummernfeld::setze(std::uint64_t nummer, char* muster)
{
    hunderter_ = nummer / 100;
    zweistellig_ = nummer % 100;
    ziffern_ = (hunderter_ == 0 ? kMitLeerzeichen : kMitNull).data();
    char* const ende = muster + anfang_ + breite_ - 2;
    std::fill(muster + anfang_, ende, ' ');
    if (hunderter_ == 0)
        return;
    const std::string text = std::to_string(hunderter_);
    std::ranges::copy(text, ende - text.size());
}

Exportzeilen::Exportzeilen(const Exportauftrag& auftrag)
    : letzteZahl_(static_cast<std::size_t>(auftrag.k - 1) * 3),
      laenge_(0),
      laufend_(letzteZahl_ + 2, nummernbreiten(auftrag).laufend),
      kombination_(letzteZahl_ + 2 + nummernbreiten(auftrag).laufend, nummernbreiten(auftrag).kombination)
{
    const Nummernbreiten breiten = nummernbreiten(auftrag);
    laenge_ = letzteZahl_ + 2 + breiten.laufend + breiten.kombination;
    for (std::size_t stelle = 2; stelle < letzteZahl_; stelle += 3)
        muster_[stelle] = auftrag.trenner;
    std::ranges::copy(kZeilenende, muster_.begin() + static_cast<std::ptrdiff_t>(laenge_));
    laenge_ += kZeilenende.size();
    if (laufend_)
        laufend_.setze(1, muster_.data());
}

char* Exportzeilen::schreibe(char* ziel, std::span<const std::int32_t> davor, std::int32_t von, std::int32_t bis)
{
    for (std::size_t i = 0; i < davor.size(); ++i)
        setzeZahl(&muster_[3 * i], davor[i]);
    if (kombination_)
        setzeKombinationsnummer(davor, von);
    return laenge_ <= kKurzeZeile ? schreibeMit<kKurzeZeile>(ziel, von, bis) : schreibeMit<kBreite>(ziel, von, bis);
}

/// Each line is the pattern, copied at a fixed length, and what changes on top of it. Everything it needs stands in
/// variables of its own, which the characters written cannot be taken for.
template <std::size_t Kopie> char* Exportzeilen::schreibeMit(char* ziel, std::int32_t von, std::int32_t bis)
{
    Nummernfeld laufend = laufend_;
    Nummernfeld kombination = kombination_;
    const std::size_t letzteZahl = letzteZahl_;
    const std::size_t laenge = laenge_;
    for (std::int32_t zahl = von; zahl <= bis; ++zahl) {
        std::memcpy(ziel, muster_.data(), Kopie);
        setzeZahl(ziel + letzteZahl, zahl);
        if (laufend)
            laufend.schreibe(ziel, muster_.data());
        if (kombination)
            kombination.schreibe(ziel, muster_.data());
        ziel += laenge;
    }
    laufend_ = laufend;
    kombination_ = kombination;
    return ziel;
}

void Exportzeilen::setzeKombinationsnummer(std::span<const std::int32_t> davor, std::int32_t letzte)
{
    Kombination zahlen{};
    std::ranges::copy(davor, zahlen.begin());
    zahlen.back() = letzte;
    kombination_.setze(static_cast<std::uint64_t>(PositionszahlSumme(zahlen)), muster_.data());
}
