#include "statistics/screens/frmZusammenH_SZ_Jahr.h"

namespace {

constexpr Matrixtexte kTexte{
    .name = "frmZusammenH_SZ_Jahr",
    .titel = "Häufigkeit der Superzahl pro Spieljahr",
    .spalten = Matrixspalten::Superzahlen,
    .markierung = "Maxima markieren",
    .maxima = "Maxima pro Spieljahr",
    .minima = "Minima pro Spieljahr",
    .ueberschrift = "Die Superzahlen 0-9",
    .jahre = DatumOderWocheNamen{.bezeichnung = "lblInfo", .frage = "Berechnung nach  Ziehungsdatum oder Spielwoche?"},
};

} // namespace

frmZusammenH_SZ_Jahr::frmZusammenH_SZ_Jahr(Umgebung& umgebung) : Matrixbildschirm(umgebung, kTexte) {}
