#include "engines/logic/WiederholungDetails.h"

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

constexpr std::size_t kZeilenlaenge = 48;

/// The draws of the archive as sets of bits, one set for each number 1..49, so that the draws with several numbers are
/// found 64 at a time. Draws count from 1.
class Ziehungsmengen {
public:
    explicit Ziehungsmengen(const ZiehungsArchiv& archiv)
        : archiv_(archiv),
          worte_(static_cast<std::size_t>(archiv.AnzahlZiehungen) / kBits + 1)
    {
        mengen_.fill(std::vector<std::uint64_t>(worte_));
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
            setze(mengen_[0], nr);
            for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
                if (istZahl(zahl))
                    setze(mengen_[static_cast<std::size_t>(zahl)], nr);
        }
    }

    /// Calls `tue` with each draw that holds all these numbers.
    template <class Tue> void mitAllen(std::span<const std::int32_t> zahlen, Tue tue) const
    {
        for (std::size_t wort = 0; wort < worte_; ++wort) {
            for (std::uint64_t rest = gemeinsame(zahlen, wort); rest != 0; rest &= rest - 1) {
                const std::size_t nr = wort * kBits + static_cast<std::size_t>(std::countr_zero(rest));
                if (haeltAlleAnderen(nr, zahlen))
                    tue(nr);
            }
        }
    }

private:
    static constexpr std::size_t kBits = 64;

    static bool istZahl(std::int32_t zahl) { return zahl >= 1 && zahl <= kHoechsteZahl; }
    static void setze(std::vector<std::uint64_t>& menge, std::size_t nr)
    {
        menge[nr / kBits] |= std::uint64_t{1} << nr % kBits;
    }

    std::uint64_t gemeinsame(std::span<const std::int32_t> zahlen, std::size_t wort) const
    {
        std::uint64_t alle = mengen_[0][wort];
        for (const std::int32_t zahl : zahlen)
            alle &= mengen_[istZahl(zahl) ? static_cast<std::size_t>(zahl) : 0][wort];
        return alle;
    }

    /// What is no number 1..49 has no set and is looked for in the draw.
    bool haeltAlleAnderen(std::size_t nr, std::span<const std::int32_t> zahlen) const
    {
        return std::ranges::all_of(zahlen, [&](std::int32_t zahl) {
            return istZahl(zahl) || std::ranges::count(archiv_.gewinnzahlen(nr), zahl) > 0;
        });
    }

    const ZiehungsArchiv& archiv_;
    std::size_t worte_;
    std::array<std::vector<std::uint64_t>, kHoechsteZahl + 1> mengen_; ///< [0] all draws
};

/// The texts of the draws, each made when it is first needed.
class Ziehungstexte {
public:
    Ziehungstexte(const ZiehungsArchiv& archiv, const Wiederholungsart& art, Detailzeilen& zeilen)
        : archiv_(archiv),
          art_(art),
          zeilen_(zeilen),
          nummern_(static_cast<std::size_t>(archiv.AnzahlZiehungen) + 1)
    {}

    void haengeAn(std::size_t nr)
    {
        if (nummern_[nr] == 0)
            nummern_[nr] = zeilen_.merke(detailzeile(archiv_, nr, art_));
        zeilen_.haengeAn(nummern_[nr]);
    }

private:
    const ZiehungsArchiv& archiv_;
    const Wiederholungsart& art_;
    Detailzeilen& zeilen_;
    std::vector<std::uint32_t> nummern_; ///< 0: not made yet; that number is the dash line's
};

} // namespace

std::uint32_t Detailzeilen::merke(std::string text)
{
    texte_.push_back(std::move(text));
    return static_cast<std::uint32_t>(texte_.size() - 1);
}

std::string detailzeile(const ZiehungsArchiv& archiv, std::size_t nr, const Wiederholungsart& art)
{
    const std::vector<std::string>& daten = art.datumAlle ? archiv.DatumAlle : archiv.Datum;
    std::string zeile;
    zeile.reserve(kZeilenlaenge);
    zeile.append(jahrUndWoche(archiv, nr)).append("  ").append(zahlentext(archiv.gewinnzahlen(nr))).append("   ");
    if (nr < daten.size())
        zeile.append(daten[nr]);
    return zeile;
}

Detailzeilen wiederholungDetails(const ZiehungsArchiv& archiv, int k, const Wiederholungsart& art,
                                 std::span<const std::string> ergebniszeilen, const Fortschritt& fortschritt)
{
    Detailzeilen zeilen;
    const std::uint32_t striche = zeilen.merke(std::string(art.striche, '-'));
    const Ziehungsmengen mengen(archiv);
    Ziehungstexte texte(archiv, art, zeilen);
    Takt takt(fortschritt);
    std::uint64_t erledigt = 0;
    for (const std::string& ergebniszeile : ergebniszeilen) {
        if (!takt.schritt(erledigt++))
            break;
        zeilen.haengeAn(zeilen.merke("Kombination:" + std::string(zahlenteil(ergebniszeile, k))));
        zeilen.haengeAn(striche);
        const auto zahlen = zahlenDerZeile(ergebniszeile, k);
        mengen.mitAllen(std::span(zahlen).first(static_cast<std::size_t>(k)),
                        [&texte](std::size_t nr) { texte.haengeAn(nr); });
        zeilen.haengeAn(striche);
    }
    return zeilen;
}
