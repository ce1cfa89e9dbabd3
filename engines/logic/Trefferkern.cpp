#include "engines/logic/Trefferkern.h"

#include "engines/logic/Blockrechner.h"
#include "shell/logic/Lottozahl.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <functional>
#include <limits>
#include <numeric>

namespace {

template <class Zaehler, int K, std::size_t Ab> void rechneEinfach(const Blockauftrag<Zaehler, K>& auftrag)
{
    rechneBlock<Zaehler, K, Ab>(auftrag);
}

#ifdef __x86_64__
template <class Zaehler, int K, std::size_t Ab>
[[gnu::target("avx2")]] void rechneMitAvx2(const Blockauftrag<Zaehler, K>& auftrag)
{
    rechneBlock<Zaehler, K, Ab>(auftrag);
}
#endif

template <class Zaehler, int K, std::size_t Ab> auto blockrechner([[maybe_unused]] Trefferkern::Befehlssatz befehlssatz)
{
#ifdef __x86_64__
    if (befehlssatz == Trefferkern::Befehlssatz::Avx2)
        return rechneMitAvx2<Zaehler, K, Ab>;
#endif
    return rechneEinfach<Zaehler, K, Ab>;
}

/// One walk through all combinations of K of the numbers 1..n.
template <class Zaehler, int K, std::size_t Ab> class Gang {
public:
    using Besucher = std::function<bool(const Trefferblock<Zaehler>&)>;

    Gang(const Teilmengentafel<Zaehler>& tafel, Trefferkern::Befehlssatz befehlssatz, const Besucher& besucher)
        : tafel_(tafel),
          rechne_(blockrechner<Zaehler, K, Ab>(befehlssatz)),
          besucher_(besucher),
          ganze_(tafel.ganze().begin())
    {
        auftrag_.n = tafel.n();
        for (std::size_t j = 2; j <= kGroesste; ++j)
            tafelende_[j] = tafel.tabelle(static_cast<int>(j)).data() + tafel.tabelle(static_cast<int>(j)).size();
        for (std::size_t h = Ab; h <= K; ++h) {
            treffer_[h].resize(static_cast<std::size_t>(Binomial(tafel.n(), 2)) + kVektorUeberhang);
            auftrag_.treffer[h] = treffer_[h].data();
            block_.treffer[h] = treffer_[h].data();
        }
    }

    bool lauf() { return steigeAb(0); }

private:
    static constexpr std::size_t kGroesste = Blockauftrag<Zaehler, K>::kGroesste;
    static constexpr int kGewaehlte = K - 2; ///< numbers chosen one by one

    /// The state of the sums after the first few numbers are chosen.
    struct Ebene {
        using JeZahl = std::array<Zaehler, kHoechsteZahl + 1 + kVektorUeberhang>;

        std::array<Zaehler, 6> fest{};                         ///< [j] T_j of the chosen numbers themselves
        std::array<JeZahl, 6> je{};                            ///< [j][number] what one more number would add to it
        std::array<std::array<const Zaehler*, 6>, 6> zeilen{}; ///< [j] table rows of their sets of j - 2
        std::array<std::size_t, 6> zeilenzahl{};
    };

    static std::size_t stelle(int zahl) { return static_cast<std::size_t>(zahl); }

    /// `gewaehlte` numbers are chosen.
    bool steigeAb(int gewaehlte)
    {
        sucheZeilen(gewaehlte);
        if (gewaehlte == kGewaehlte)
            return gibBlock();
        for (int zahl = naechste(gewaehlte); zahl <= tafel_.n() - (K - gewaehlte) + 1; ++zahl) {
            waehle(gewaehlte, zahl);
            if (!steigeAb(gewaehlte + 1))
                return false;
        }
        return true;
    }

    /// The first number that may follow.
    int naechste(int gewaehlte) const { return gewaehlte == 0 ? 1 : block_.anfang[stelle(gewaehlte - 1)] + 1; }

    /// How many pairs of numbers may follow, that is, combinations in a block of these chosen numbers.
    std::int32_t paare(int gewaehlte) const { return tafel_.gewicht(2, naechste(gewaehlte) - 1); }

    /// Finds, for every set of at most three of the chosen numbers, where its table has it together with two more
    /// numbers. Like the places themselves, the sets grow from their last number to their first.
    void sucheZeilen(int gewaehlte)
    {
        Ebene& ebene = ebenen_[stelle(gewaehlte)];
        ebene.zeilenzahl = {};
        const auto merke = [this, &ebene](std::size_t j, std::int32_t vomEnde) {
            ebene.zeilen[j][ebene.zeilenzahl[j]++] = tafelende_[j] - vomEnde;
        };
        const auto& zahl = block_.anfang;
        const std::int32_t ab2 = paare(gewaehlte);
        merke(2, ab2);
        for (std::size_t c = 0; c < stelle(gewaehlte); ++c) {
            const std::int32_t ab3 = ab2 + tafel_.gewicht(3, zahl[c]);
            merke(3, ab3);
            for (std::size_t b = 0; b < c; ++b) {
                const std::int32_t ab4 = ab3 + tafel_.gewicht(4, zahl[b]);
                merke(4, ab4);
                for (std::size_t a = 0; a < b; ++a)
                    merke(5, ab4 + tafel_.gewicht(5, zahl[a]));
            }
        }
    }

    /// Takes `zahl` for the next one: what it would have added is fixed, and to what another one would add come the
    /// sets that hold them both.
    void waehle(int gewaehlte, int zahl)
    {
        const Ebene& bisher = ebenen_[stelle(gewaehlte)];
        Ebene& neu = ebenen_[stelle(gewaehlte + 1)];
        const std::ptrdiff_t zeilenort = paare(gewaehlte) - tafel_.gewicht(2, zahl - 1) - zahl - 1;
        block_.anfang[stelle(gewaehlte)] = zahl;
        for (std::size_t j = Ab; j <= kGroesste; ++j) {
            neu.fest[j] = static_cast<Zaehler>(bisher.fest[j] + bisher.je[j][stelle(zahl)]);
            for (int weitere = zahl + 1; weitere <= tafel_.n(); weitere += Vektoren<Zaehler>::kBreite) {
                typename Vektoren<Zaehler>::Vektor summe{};
                Vektoren<Zaehler>::addiere(summe, &bisher.je[j][stelle(weitere)]);
                for (std::size_t r = 0; r < bisher.zeilenzahl[j]; ++r)
                    Vektoren<Zaehler>::addiere(summe, bisher.zeilen[j][r] + (zeilenort + weitere));
                std::memcpy(&neu.je[j][stelle(weitere)], &summe, sizeof summe);
            }
        }
    }

    bool gibBlock()
    {
        const Ebene& ebene = ebenen_[kGewaehlte];
        auftrag_.ab = naechste(kGewaehlte);
        auftrag_.fest = ebene.fest;
        auftrag_.zeilen = ebene.zeilen;
        for (std::size_t j = Ab; j <= kGroesste; ++j)
            auftrag_.je[j] = ebene.je[j].data();
        block_.anzahl = stelle(paare(kGewaehlte));
        rechne_(auftrag_);
        const auto ersteGanze = ganze_;
        mischeGanze();
        const bool weiter = besucher_(block_);
        for (auto ganze = ersteGanze; ganze != ganze_; ++ganze)
            treffer_[6][ganze->nummer - block_.nummer] = 0;
        block_.nummer += static_cast<std::uint32_t>(block_.anzahl);
        return weiter;
    }

    /// A whole row of six stands in no table. It is T_6 of one combination, and enters that one alone.
    void mischeGanze()
    {
        if constexpr (K == 6) {
            for (; ganze_ != tafel_.ganze().end() && ganze_->nummer - block_.nummer < block_.anzahl; ++ganze_) {
                for (std::size_t h = Ab; h <= 6; ++h) {
                    Zaehler& n = treffer_[h][ganze_->nummer - block_.nummer];
                    n = static_cast<Zaehler>(n + static_cast<std::uint32_t>(umkehrfaktor(6, h)) * ganze_->anzahl);
                }
            }
        }
    }

    const Teilmengentafel<Zaehler>& tafel_;
    void (*rechne_)(const Blockauftrag<Zaehler, K>&);
    const Besucher& besucher_;
    std::span<const GanzeReihe>::iterator ganze_; ///< the first whole row not yet merged
    std::array<const Zaehler*, 6> tafelende_{};
    std::array<Ebene, static_cast<std::size_t>(K - 1)> ebenen_;
    Blockauftrag<Zaehler, K> auftrag_;
    std::array<std::vector<Zaehler>, 7> treffer_;
    Trefferblock<Zaehler> block_;
};

template <class Zaehler, int K>
bool gehe(const Teilmengentafel<Zaehler>& tafel, int ab, Trefferkern::Befehlssatz befehlssatz,
          const typename Gang<Zaehler, K, 2>::Besucher& besucher)
{
    return ab == 2 ? Gang<Zaehler, K, 2>(tafel, befehlssatz, besucher).lauf()
                   : Gang<Zaehler, K, 3>(tafel, befehlssatz, besucher).lauf();
}

template <class Zaehler, class Besucher>
bool gehe(const Teilmengentafel<Zaehler>& tafel, int k, int ab, Trefferkern::Befehlssatz befehlssatz,
          const Besucher& besucher)
{
    switch (k) {
    case 2:
        return gehe<Zaehler, 2>(tafel, ab, befehlssatz, besucher);
    case 3:
        return gehe<Zaehler, 3>(tafel, ab, befehlssatz, besucher);
    case 4:
        return gehe<Zaehler, 4>(tafel, ab, befehlssatz, besucher);
    case 5:
        return gehe<Zaehler, 5>(tafel, ab, befehlssatz, besucher);
    default:
        return gehe<Zaehler, 6>(tafel, ab, befehlssatz, besucher);
    }
}

/// A row that shares two or more numbers with a combination holds at least two of them. So there are at most half as
/// many such rows as the combination's numbers have entries in all rows.
bool passtIn16Bit(std::span<const Zahlenmenge> reihen)
{
    constexpr std::size_t kGrenze = std::numeric_limits<std::uint16_t>::max();
    if (reihen.size() <= kGrenze)
        return true;
    std::array<std::size_t, 64> eintraege{};
    for (const Zahlenmenge reihe : reihen)
        for (Zahlenmenge rest = reihe; rest != 0; rest &= rest - 1)
            ++eintraege[static_cast<std::size_t>(std::countr_zero(rest))];
    std::ranges::nth_element(eintraege, eintraege.begin() + 6, std::greater{});
    return std::reduce(eintraege.begin(), eintraege.begin() + 6) / 2 <= kGrenze;
}

Trefferkern::Befehlssatz bester()
{
    using enum Trefferkern::Befehlssatz;
    return Trefferkern::hat(Avx2) ? Avx2 : Einfach;
}

} // namespace

Trefferkern::Trefferkern(int n, std::span<const Zahlenmenge> reihen, Befehlssatz befehlssatz)
    : tafel_(Teilmengentafel<std::uint16_t>(0, {})),
      befehlssatz_(befehlssatz == Befehlssatz::Bester ? bester() : befehlssatz)
{
    if (passtIn16Bit(reihen))
        tafel_.emplace<Teilmengentafel<std::uint16_t>>(n, reihen);
    else
        tafel_.emplace<Teilmengentafel<std::uint32_t>>(n, reihen);
}

bool Trefferkern::laufe(int k, int ab, const Schmal& schmal, const Breit& breit) const
{
    if (const auto* tafel = std::get_if<Teilmengentafel<std::uint16_t>>(&tafel_))
        return gehe(*tafel, k, ab, befehlssatz_, schmal);
    return gehe(std::get<Teilmengentafel<std::uint32_t>>(tafel_), k, ab, befehlssatz_, breit);
}

std::size_t Trefferkern::tafelgroesse() const
{
    return std::visit(
        [](const auto& tafel) {
            std::size_t bytes = tafel.ganze().size_bytes();
            for (int k = tafel.kKleinste; k <= tafel.kGroesste; ++k)
                bytes += tafel.tabelle(k).size_bytes();
            return bytes;
        },
        tafel_);
}

bool Trefferkern::hat(Befehlssatz befehlssatz)
{
#ifdef __x86_64__
    if (befehlssatz == Befehlssatz::Avx2)
        return __builtin_cpu_supports("avx2") != 0;
#endif
    return befehlssatz != Befehlssatz::Avx2;
}

std::string_view Trefferkern::name(Befehlssatz befehlssatz)
{
    switch (befehlssatz) {
    case Befehlssatz::Einfach:
        return "Einfach";
    case Befehlssatz::Avx2:
        return "AVX2";
    case Befehlssatz::Bester:
        return name(bester());
    }
    return {};
}
