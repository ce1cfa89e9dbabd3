#include "statistics/screens/frmZusammenHSW.h"

#include "archive/screens/Spielartlader.h"

namespace {

constexpr Matrixtexte kTexte{
    .name = "frmZusammenHSW",
    .titel = "Gesamtübersicht, Häufigkeit jeder Gewinnzahl zu den einzelnen Spielwochen (Maxima \"rot\" hinterlegt, "
             "Minima \"blau\" hinterlegt).",
    .spalten = Matrixspalten::Gewinnzahlen,
    .markierung = "Maxima markieren (gelb)",
    .maxima = "Maxima pro SW",
    .minima = "Minima pro SW",
};

} // namespace

frmZusammenHSW::frmZusammenHSW(Umgebung& umgebung)
    : Matrixbildschirm(umgebung, kTexte),
      gefunden_(umgebung.archiv.Spielart)
{}

void frmZusammenHSW::beimSchliessen()
{
    if (umgebung().archiv.Spielart != gefunden_)
        ladeSpielart(umgebung(), gefunden_);
}
