#include "statistics/logic/AbstandMaximum.h"

#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

/// What is known of one number on the way through the draws.
struct Stand {
    std::int32_t vorher = 0; ///< ZiehungsNr of the last hit
    std::int32_t wochen = 0; ///< longest absence so far
    std::int32_t bei = 0;    ///< ZiehungsNr that ended it
};

using Staende = std::array<Stand, 50>; // [1..49]

void merke(Staende& staende, std::int32_t zahl, std::int32_t nr)
{
    if (!gibtEs(zahl))
        return;
    Stand& stand = staende[static_cast<std::size_t>(zahl)];
    if (nr - stand.vorher > stand.wochen) {
        stand.wochen = nr - stand.vorher;
        stand.bei = nr;
    }
    stand.vorher = nr;
}

/// One pass over the draws for all numbers at once.
Staende alleStaende(const ZiehungsArchiv& archiv, ZZModus modus)
{
    Staende staende{};
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
        const auto i = static_cast<std::size_t>(nr);
        if (zaehltGewinnzahlen(modus))
            for (const std::int32_t zahl : archiv.gewinnzahlen(i))
                merke(staende, zahl, nr);
        if (zaehltZusatzzahl(modus))
            merke(staende, archiv.zz[i], nr);
    }
    return staende;
}

} // namespace

LaengsterAbstand laengsterAbstand(const ZiehungsArchiv& archiv, ZZModus modus)
{
    const Staende staende = alleStaende(archiv, modus);
    const auto laengster = std::max_element(staende.begin() + 1, staende.end(),
                                            [](const Stand& a, const Stand& b) { return a.wochen < b.wochen; });
    if (laengster->wochen == 0)
        return {};
    const auto nr = static_cast<std::size_t>(laengster->bei);
    return {static_cast<int>(laengster - staende.begin()), laengster->bei, archiv.jjjj[nr], archiv.sw[nr],
            laengster->wochen};
}

void loescheFrueheZusatzzahlen(ZiehungsArchiv& archiv)
{
    const std::int32_t ende = std::min(archiv.AnzahlZiehungen, kZusatzzahlBeginnSamstag - 1);
    std::fill_n(archiv.zz.begin() + 1, std::max(ende, 0), 0);
}

std::string laengsterAbstandText(const LaengsterAbstand& abstand, ZZModus modus)
{
    std::string text;
    if (abstand.zahl > 0) {
        text = (modus == ZZModus::Nur ? "Die Zusatzzahl " : "Die Gewinnzahl ") + Format(abstand.zahl, "00") +
               " wurde mit Zieh.Nr. " + Format(abstand.ZiehungsNr, "@@@@") + " " + Format(abstand.jjjj, "0000") + "/" +
               Format(abstand.sw, "00") + ", nach" + " " + Format(abstand.wochen, "@@@@") + " Wochen wieder gezogen\n";
    }
    return text + " *** Längster Ausbleibezeitraum überhaupt (" + zzText(modus) + ") ***";
}
