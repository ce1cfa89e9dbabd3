#pragma once

#include "filters/logic/Gittermuster.h"
#include "filters/screens/Fundanzeige.h"
#include "filters/screens/Musteruebersicht.h"
#include "shell/elements/Bildschirm.h"

/// The draws whose numbers spread in a chosen way over the rows or the columns of the ticket, and a table of all ways.
class frmZeileSpalte2 final : public Bildschirm {
public:
    explicit frmZeileSpalte2(Umgebung& umgebung);

private:
    void baueOptionen();
    void waehleArt();
    void suche();
    Linienart Art() const;

    Fundanzeige anzeige_;
    QLabel* Bezeichnung7;
    Musteruebersicht uebersicht_;
    std::array<QRadioButton*, 2> optAuswahl{};
    std::array<QRadioButton*, kGittermuster> optZeile{};
    QPushButton *Command22, *Befehl2;
};
