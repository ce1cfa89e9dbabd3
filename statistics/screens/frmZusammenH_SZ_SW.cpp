#include "statistics/screens/frmZusammenH_SZ_SW.h"

namespace {

constexpr Matrixtexte kTexte{
    .name = "frmZusammenH_SZ_SW",
    .titel = "Superzahl, Häufigkeit pro Spielwoche",
    .spalten = Matrixspalten::Superzahlen,
    .markierung = "Maxima markieren",
    .maxima = "Maxima pro SW",
    .minima = "Minima pro SW",
    .ueberschrift = "Die Superzahlen 0-9",
    .info = "Das Programm ermittelt die Häufigkeit der Superzahl an den jeweiligen Spielwochen (1-53). Die Maxima und "
            "Minima werden farblich markiert.",
};

} // namespace

frmZusammenH_SZ_SW::frmZusammenH_SZ_SW(Umgebung& umgebung) : Matrixbildschirm(umgebung, kTexte) {}
