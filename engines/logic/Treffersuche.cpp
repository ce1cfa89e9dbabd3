#include "engines/logic/Treffersuche.h"

#include "engines/logic/Trefferkern.h"
#include "shell/logic/Binomial.h"
#include "shell/logic/Lottozahl.h"

namespace {

/// Which lists take a combination, a bit for each. Without a branch, so that the loop over a block runs on vectors; the
/// thresholds are far below the width of the counts.
template <class Zaehler> class Listenwahl {
public:
    Listenwahl(const Trefferschwellen& schwellen, bool nurExakt)
        : loser_(static_cast<Zaehler>(schwellen.SchwelleLoser)),
          drei_(static_cast<Zaehler>(schwellen.SchwelleDrei)),
          vier_(static_cast<Zaehler>(schwellen.SchwelleVier)),
          fuenf_(static_cast<Zaehler>(schwellen.SchwelleFuenf)),
          auchHoehere_(!nurExakt)
    {}

    Zaehler listen(Zaehler n6, Zaehler n5, Zaehler n4, Zaehler n3) const
    {
        const Zaehler ohne6 = n6 == 0, ohne65 = ohne6 & (n5 == 0), ohne654 = ohne65 & (n4 == 0);
        return static_cast<Zaehler>(bit(Rangliste::Drei, (n3 >= drei_) & (auchHoehere_ | ohne654)) |
                                    bit(Rangliste::Vier, (n4 >= vier_) & (auchHoehere_ | ohne65)) |
                                    bit(Rangliste::Fuenf, (n5 >= fuenf_) & (auchHoehere_ | ohne6)) |
                                    bit(Rangliste::Sechs, (n6 >= 2) | ((n6 >= 1) & (n5 >= 1))) |
                                    bit(Rangliste::Loser, ohne654 & (n3 < loser_)));
    }

private:
    static Zaehler bit(Rangliste liste, int ja) { return static_cast<Zaehler>(ja << static_cast<int>(liste)); }

    Zaehler loser_, drei_, vier_, fuenf_, auchHoehere_;
};

class Sichtung {
public:
    Sichtung(Treffersuche& suche, const Fortschritt& fortschritt) : suche_(suche), takt_(fortschritt) {}

    bool beginne() { return takt_.melde(0); }

    template <class Zaehler> bool nimm(const Trefferblock<Zaehler>& block)
    {
        std::array<Zaehler, static_cast<std::size_t>(Binomial(kHoechsteZahl, 2))>
            listen; // every entry of the block is written
        if (bestimmeListen(block, listen.data())) {
            for (std::size_t i = 0; i < block.anzahl; ++i)
                if (listen[i] != 0)
                    ordneEin(listen[i], stand(block, i), static_cast<std::int32_t>(block.nummer + i + 1));
        }
        suche_.AnzahlKombis += block.anzahl;
        return takt_.schritt(suche_.AnzahlKombis);
    }

private:
    template <class Zaehler> static Trefferstand stand(const Trefferblock<Zaehler>& block, std::size_t i)
    {
        return {block.treffer[6][i], block.treffer[5][i], block.treffer[4][i], block.treffer[3][i]};
    }

    /// Counts the combinations without a win as well. False if no list takes any of the block.
    template <class Zaehler> bool bestimmeListen(const Trefferblock<Zaehler>& block, Zaehler* listen)
    {
        const Listenwahl<Zaehler> wahl(suche_.schwellen, suche_.NurExakt);
        const Zaehler *n3 = block.treffer[3], *n4 = block.treffer[4], *n5 = block.treffer[5], *n6 = block.treffer[6];
        Zaehler ohneGewinn = 0;
        Zaehler irgendeine = 0;
        for (std::size_t i = 0; i < block.anzahl; ++i) {
            listen[i] = wahl.listen(n6[i], n5[i], n4[i], n3[i]);
            irgendeine |= listen[i];
            ohneGewinn = static_cast<Zaehler>(ohneGewinn + ((n4[i] | n5[i] | n6[i]) == 0));
        }
        suche_.AnzahlOhneGewinn += ohneGewinn;
        return irgendeine != 0;
    }

    void ordneEin(unsigned listen, const Trefferstand& stand, std::int32_t nummer)
    {
        for (std::size_t liste = 0; liste < kRanglisten; ++liste)
            if ((listen >> liste & 1U) != 0)
                suche_.listen[liste].fuegeHinzu(stand, nummer);
    }

    Treffersuche& suche_;
    Takt takt_;
};

} // namespace

Trefferschwellen trefferschwellen(int maske)
{
    switch (maske) {
    case 1 | 2 | 4:
        return {70, 135, 17, 4};
    case 1:
        return {34, 90, 11, 3};
    case 1 | 2:
        return {60, 115, 14, 4};
    case 1 | 4:
        return {60, 110, 14, 4};
    case 4:
        return {1, 30, 6, 3};
    case 2:
        return {10, 50, 9, 3};
    case 2 | 4:
        return {20, 65, 10, 3};
    default:
        return {};
    }
}

Treffersuche sucheTreffer(std::span<const Zahlenmenge> reihen, const Trefferschwellen& schwellen, bool nurExakt,
                          const Fortschritt& fortschritt)
{
    Treffersuche suche;
    suche.schwellen = schwellen;
    suche.NurExakt = nurExakt;
    suche.AnzahlZiehungen = reihen.size();
    Sichtung sichtung(suche, fortschritt);
    suche.gestoppt =
        !sichtung.beginne() || !Trefferkern(kHoechsteZahl, reihen).durchlaufe(6, 3, [&sichtung](const auto& block) {
            return sichtung.nimm(block);
        });
    for (Trefferrang& liste : suche.listen)
        liste.ordne();
    return suche;
}
