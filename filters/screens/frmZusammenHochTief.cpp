#include "filters/screens/frmZusammenHochTief.h"

frmZusammenHochTief::frmZusammenHochTief(Umgebung& umgebung)
    : Verhaeltnisfilter(umgebung,
                        {.name = "frmZusammenHochTief",
                         .titel = "Tief/Hoch   [7*7 Tippfeld]",
                         .erklaerung = "Das Programm durchsucht jede Ziehung und ermittelt wieviele Gewinnzahlen sich "
                                       "im tiefen Bereich (1-24) oder im hohen Bereich (25-49) des 7*7 "
                                       "Tippscheinfeldes befinden.\n"
                                       "Es wird das Verhältnis\n"
                                       "Anzahl tiefer Bereich : Anzahl hoher Bereich\n"
                                       " ermittelt."},
                        kTiefHoch)
{
    ordneAn();
}
