#include "reports/frame/Seitenablage.h"

#include "shell/logic/Dateien.h"

#include <system_error>

namespace fs = std::filesystem;

bool macheSeitenordner(const fs::path& ordner)
{
    std::error_code fehler;
    fs::create_directory(ordner, fehler);
    return fs::is_directory(ordner, fehler);
}

std::optional<Meldung> legeSeiteAb(const fs::path& ordner, std::string_view name, std::string_view bytes)
{
    if (!macheSeitenordner(ordner))
        return ordnerfehler();
    if (!schreibeDatei(ordner / fs::path(name), bytes))
        return schreibfehler();
    return std::nullopt;
}

Meldung ordnerfehler()
{
    return {"FEHLER", "Der Html-Ziel-Ordner kann nicht erstellt werden!"};
}

Meldung schreibfehler()
{
    return {"", "Fehler beim Schreiben! Mögliche Ursachen:\n"
                "1. Der aktuelle Ordner befindet sich auf einen schreibgeschützten Datenträger.\n"
                "2. Sie besitzen nicht die erforderlichen Rechte um in diesen Ordner zu schreiben."};
}
