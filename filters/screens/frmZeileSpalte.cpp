#include "filters/screens/frmZeileSpalte.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Utf8.h"

frmZeileSpalte::frmZeileSpalte(Umgebung& umgebung)
    : Zellfilterbildschirm(
          umgebung, "Zeilen-, Spalten- oder Zahlenbereichsfilter - " + qt(spielartName(umgebung.archiv.Spielart)),
          {.name = "frmZeileSpalte", .datum = datumVon, .spielarten = "", .zusammen = false})
{}
