#include "tips/screens/frmLottoneu_alt_mitZZ.h"

#include "shell/elements/Stil.h"
#include "tips/screens/Tippwahl.h"

#include <QLabel>
#include <QPushButton>

frmLottoneu_alt_mitZZ::frmLottoneu_alt_mitZZ(Umgebung& umgebung)
    : Zeitreisebildschirm(umgebung, "frmLottoneu_alt_mitZZ", Zeitreiseform::AlterPlan)
{
    Label6 = bezeichnung("Label6", "AUSWERTUNG NACH DEM ALTEN GEWINNSCHEMA MIT ZUSATZZAHL (GALT BIS  04.05.2013)");
    Label8 = bezeichnung("Label8", "ALTE GEWINNKLASSEN!");
    Command3 = befehl("Command3", "&Info");
    Command3->setToolTip("Wann zählt die Superzahl?");
    alsUeberschrift(Label8);
    tippwahl().ohneInfokuerzel();
    ordneAn({Block(zeile({Label6, luecke(), Label8}))}, {}, {Command3});

    bei(Command3, [this] {
        this->umgebung().boxen.info(kInfotitel, "Die Superzahl spielte bei diesem alten Gewinnklassenschema nur bei 6 "
                                                "Richtigen eine Rolle (6er+SZ, Jackpot).");
    });
}

QString frmLottoneu_alt_mitZZ::info() const
{
    return "Die Gewinne werden nach dem alten Gewinnklassenschema mit Zusatzzahl ermittelt, das vor dem 04.05.2013 "
           "galt. Erst ab drei Richtigen wird gewonnen.\n\n"
           "Vollständigen Tipp auswerten: Sechs Zahlen und die Superzahl auswählen.\n"
           "Kombinationen suchen: Eine bis sechs Zahlen auswählen.";
}
