#include "filters/logic/Serien.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

constexpr std::size_t kMeisteZahlen = 7; ///< of a draw with its Zusatzzahl

/// True if the numbers of `a` stand before those of `b`; both are equally many.
bool stehtVor(Zahlenmenge a, Zahlenmenge b)
{
    const Zahlenmenge verschiedene = a ^ b;
    return (a & verschiedene & -verschiedene) != 0;
}

/// The next larger number with as many bits.
constexpr unsigned naechsteWahl(unsigned wahl)
{
    const unsigned unterstes = wahl & -wahl;
    const unsigned erhoeht = wahl + unterstes;
    return erhoeht | (((wahl ^ erhoeht) / unterstes) >> 2);
}

/// For each number in how many draws in a row it came, up to the current one. Numbers come together as long as the
/// one among them that came last: so each draw shows by itself which runs end with it.
class Serienzaehler {
public:
    explicit Serienzaehler(const Serienfrage& frage) : frage_(frage) {}

    /// Takes the next draw; `folgende` are the numbers of the one behind it.
    void nimm(Zahlenmenge zahlen, Zahlenmenge folgende)
    {
        ++platz_;
        std::size_t lange = 0;
        for (Zahlenmenge rest = zahlen; rest != 0; rest &= rest - 1) {
            const auto zahl = static_cast<std::size_t>(std::countr_zero(rest));
            if (++laufend_[zahl] >= static_cast<std::uint32_t>(frage_.mindestens))
                lange_[lange++] = zahl;
        }
        if (lange >= static_cast<std::size_t>(frage_.zahlen))
            schliesse(lange, folgende);
        for (Zahlenmenge rest = zahlen & ~folgende; rest != 0; rest &= rest - 1)
            laufend_[static_cast<std::size_t>(std::countr_zero(rest))] = 0;
    }

    std::vector<Serie> ergebnis()
    {
        std::vector<Serie> alle;
        alle.reserve(anzahl_);
        for (std::vector<Serie>& gruppe : nachErsterZahl_) {
            if (frage_.zahlen > 1)
                std::ranges::stable_sort(gruppe, stehtVor, &Serie::zahlen);
            alle.insert(alle.end(), gruppe.begin(), gruppe.end());
        }
        return alle;
    }

private:
    /// Writes down the runs that end with this draw, out of the first `lange` numbers that came long enough.
    void schliesse(std::size_t lange, Zahlenmenge folgende)
    {
        for (unsigned wahl = (1U << frage_.zahlen) - 1; wahl < 1U << lange; wahl = naechsteWahl(wahl)) {
            Serie serie{.laenge = platz_};
            for (unsigned rest = wahl; rest != 0; rest &= rest - 1) {
                const std::size_t zahl = lange_[static_cast<std::size_t>(std::countr_zero(rest))];
                serie.zahlen |= Zahlenmenge{1} << zahl;
                serie.laenge = std::min(serie.laenge, laufend_[zahl]);
            }
            serie.erste = platz_ - serie.laenge;
            if ((serie.zahlen & ~folgende) == 0)
                continue;
            nachErsterZahl_[static_cast<std::size_t>(std::countr_zero(serie.zahlen))].push_back(serie);
            ++anzahl_;
        }
    }

    Serienfrage frage_;
    std::uint32_t platz_ = 0; ///< of the draw behind the current one
    std::array<std::uint32_t, kHoechsteZahl + 1> laufend_{};
    std::array<std::size_t, kMeisteZahlen> lange_{}; ///< the numbers of the draw that came long enough
    std::array<std::vector<Serie>, kHoechsteZahl + 1> nachErsterZahl_;
    std::size_t anzahl_ = 0; ///< of all runs
};

} // namespace

Seriensuche sucheSerien(GeteilteFolge folge, const Serienfrage& frage)
{
    Serienzaehler zaehler(frage);
    const std::size_t anzahl = folge->ziehungen.size();
    Zahlenmenge zahlen = anzahl > 0 ? folge->menge(0, frage.mitZusatzzahl) : 0;
    for (std::size_t platz = 0; platz < anzahl; ++platz) {
        const Zahlenmenge folgende = platz + 1 < anzahl ? folge->menge(platz + 1, frage.mitZusatzzahl) : 0;
        zaehler.nimm(zahlen, folgende);
        zahlen = folgende;
    }
    return {.frage = frage, .folge = std::move(folge), .serien = zaehler.ergebnis()};
}
