#pragma once

#include "filters/screens/Nachbarbildschirm.h"

/// The number neighbours of the active game.
class frmGROUP final : public Nachbarbildschirm {
public:
    explicit frmGROUP(Umgebung& umgebung);

    void beimZeigen() override;
    void druckeStart() override { SucheNachbarn(kKleinsteNachbargruppe); }

private:
    QLabel *Bezeichnung1, *Bezeichnung2;
};
