#include "filters/screens/frmZusammenGU.h"

frmZusammenGU::frmZusammenGU(Umgebung& umgebung)
    : Verhaeltnisfilter(umgebung,
                        {.name = "frmZusammenGU",
                         .titel = "Gerade - Ungerade",
                         .erklaerung = "Dieser Programmteil sucht Ziehungen mit einem gewünschten Verhältnis gerader "
                                       "Gewinnzahlen zu ungeraden Gewinnzahlen und listet diese Ziehungen auf."},
                        kGeradeUngerade)
{
    ordneAn();
}
