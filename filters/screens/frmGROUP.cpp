#include "filters/screens/frmGROUP.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"

#include <QLabel>

#include <algorithm>

frmGROUP::frmGROUP(Umgebung& umgebung)
    : Nachbarbildschirm(umgebung, {.name = "frmGROUP",
                                   .knoepfe = {"&Zwei Nachbarn", "&Drei Nachbarn", "&Vier Nachbarn", "&Fünf Nachbarn",
                                               "&Sechs Nachbarn"},
                                   .meldetAb = 5})
{
    Bezeichnung1 = bezeichnung("Bezeichnung1");
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    alsUeberschrift(Bezeichnung1);
    ordneAn(zeile({Bezeichnung1, luecke(), Bezeichnung2}));
}

void frmGROUP::beimZeigen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    Bezeichnung1->setText(qt(spielartGross(archiv.Spielart)));
    Bezeichnung2->setText(qt("Auswertung von: " + jahrUndWoche(archiv, std::min<std::size_t>(1, letzte)) + " bis: " +
                             jahrUndWoche(archiv, letzte) + "    Anzahl der Ziehungen: " + std::to_string(letzte)));
}
