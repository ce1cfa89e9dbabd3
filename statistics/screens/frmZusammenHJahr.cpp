#include "statistics/screens/frmZusammenHJahr.h"

namespace {

constexpr Matrixtexte kTexte{
    .name = "frmZusammenHJahr",
    .titel = "Gesamtübersicht, Häufigkeit jeder Gewinnzahl in jedem Spieljahr (Maxima \"rot\" hinterlegt, Minima "
             "\"blau\" hinterlegt).",
    .spalten = Matrixspalten::Gewinnzahlen,
    .markierung = "Maxima markieren (gelb)",
    .maxima = "Maxima pro Spieljahr",
    .minima = "Minima pro Spieljahr",
    .jahre = DatumOderWocheNamen{},
};

} // namespace

frmZusammenHJahr::frmZusammenHJahr(Umgebung& umgebung) : Matrixbildschirm(umgebung, kTexte) {}
