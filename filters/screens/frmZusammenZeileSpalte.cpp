#include "filters/screens/frmZusammenZeileSpalte.h"

frmZusammenZeileSpalte::frmZusammenZeileSpalte(Umgebung& umgebung)
    : Zellfilterbildschirm(
          umgebung, "Zeilen-, Spalten- oder Zahlenbereichsfilter ",
          {.name = "frmZusammenZeileSpalte", .datum = datumAlleVon, .spielarten = "(Sa+Mi+Mi(B)) ", .zusammen = true})
{}
