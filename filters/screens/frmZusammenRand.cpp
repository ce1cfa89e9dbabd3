#include "filters/screens/frmZusammenRand.h"

frmZusammenRand::frmZusammenRand(Umgebung& umgebung)
    : Verhaeltnisfilter(umgebung,
                        {.name = "frmZusammenRand",
                         .titel = "Randzahlen im  [7*7 Tippfeld]",
                         .erklaerung = "Das Programm sucht Ziehungen, bei denen sich die gezogenen Gewinnzahlen am "
                                       "Rand des 7*7 Tippscheinfeldes befinden.           \n"
                                       "Es wird das Verhältnis\n"
                                       "Anzahl der Gewinnzahlen am Rand : Anzahl der Gewinnzahlen im Inneren\n"
                                       " ermittelt."},
                        kRandzahlen)
{
    ordneAn();
}
