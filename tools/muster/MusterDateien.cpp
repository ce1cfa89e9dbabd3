#include "tools/muster/MusterDateien.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Dateien.h"
#include "tools/muster/Muster.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr std::array kSpielarten{Samstagslotto, Mittwochslotto, MittwochslottoB};

fs::path musterPfad(const fs::path& ordner, std::int16_t spielart)
{
    return findeDatei(ordner, ziehungsdateiName(spielart));
}

std::optional<fs::path> vorhandeneDatei(const fs::path& ordner)
{
    for (const std::int16_t spielart : kSpielarten) {
        std::error_code fehler;
        const fs::path datei = musterPfad(ordner, spielart);
        if (fs::exists(fs::symlink_status(datei, fehler)))
            return datei;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> schreibeMusterDateien(const std::string& ordner, std::chrono::sys_days stand)
{
    if (const std::optional<fs::path> datei = vorhandeneDatei(ordner))
        return "Die Datei " + datei->string() + " ist schon vorhanden und wird nicht überschrieben.";
    std::error_code fehler;
    fs::create_directories(ordner, fehler);

    for (const std::int16_t spielart : kSpielarten) {
        const fs::path datei = musterPfad(ordner, spielart);
        if (const DateiErgebnis ergebnis = schreibeDatei(datei, musterDatei(spielart, stand)); !ergebnis)
            return "Die Datei " + datei.string() + " kann nicht geschrieben werden: " + ergebnis.meldung;
    }
    return std::nullopt;
}
