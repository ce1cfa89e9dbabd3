#include "filters/screens/frmZusammenPrim.h"

#include <QPushButton>

frmZusammenPrim::frmZusammenPrim(Umgebung& umgebung)
    : Verhaeltnisfilter(umgebung,
                        {.name = "frmZusammenPrim",
                         .titel = "Anzahl der Primzahlen pro Ziehung",
                         .anzahl = " Anzahl der ausgewerteten Ziehungen: "},
                        kPrimzahlen)
{
    QPushButton* cmdPrimAnzeigen = befehl("cmdPrimAnzeigen", "Die 15  möglichen Primzahlen anzeigen");
    ordneAn({cmdPrimAnzeigen});
    bei(cmdPrimAnzeigen, [this] { anzeige_.zeigeZahlen(kAllePrimzahlen); });
}
