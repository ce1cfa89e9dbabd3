#include "testhilfen/Archivbuehne.h"

#include "archive/screens/Spielartlader.h"
#include "testhilfen/Menueersatz.h"
#include "tools/muster/MusterDateien.h"

#include <chrono>
#include <filesystem>

namespace {

/// Writing the sample takes its time, so that is done once for all tests of a program.
const QTemporaryDir& musterordner()
{
    static const QTemporaryDir ordner;
    static const auto fehler = schreibeMusterDateien(
        ordner.path().toStdString(), std::chrono::sys_days(std::chrono::year{2026} / std::chrono::November / 21));
    EXPECT_EQ(fehler.value_or(""), "");
    return ordner;
}

} // namespace

Archivbuehne::Archivbuehne(void (*registriere)(BildschirmVerzeichnis&))
{
    std::filesystem::copy(musterordner().path().toStdString(), ordner.path().toStdString());
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
