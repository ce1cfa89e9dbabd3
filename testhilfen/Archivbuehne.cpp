#include "testhilfen/Archivbuehne.h"

#include "archive/screens/Spielartlader.h"
#include "shell/elements/Farben.h"
#include "testhilfen/Menueersatz.h"
#include "testhilfen/Musterordner.h"

Archivbuehne::Archivbuehne(void (*registriere)(BildschirmVerzeichnis&))
{
    std::filesystem::copy(musterordner(), ordner.path().toStdString());
    registriere(buehne.bildschirme);
}

void Archivbuehne::starte()
{
    ladeSpielart(buehne.umgebung, SpielartStart);
    buehne.bildschirme.registriere("frmLSTART", [](Umgebung& umgebung) {
        return std::make_unique<Menueersatz>(umgebung,
                                             [&umgebung](std::int16_t spielart) { ladeSpielart(umgebung, spielart); });
    });
    buehne.bildschirme.oeffne("frmLSTART");
}

QStringList Archivbuehne::gelaufene(const QStringList& startknoepfe)
{
    QStringList namen;
    for (const QString& name : startknoepfe)
        if (zustand(name).contains("back=" + Farben::Gelaufen.name()))
            namen << name;
    return namen;
}
