#pragma once

#include "shell/app/Programmstart.h"
#include "testhilfen/Archivbuehne.h"
#include "tools/drive/Menueweg.h"

/// The whole program on a stage: the real menu, all screens.
class Programmbuehne : public Archivbuehne {
protected:
    Programmbuehne() : Archivbuehne(registriereBildschirme)
    {
        bedienung.ausMenue = [this](const QString& bildschirm) { return geheAusMenue(bedienung, buehne, bildschirm); };
    }

    void starte() override { starteProgramm(buehne.umgebung); }
};
