#include "archive/logic/Dateiinhalt.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

namespace {

Dateistand standVorDemOeffnen(const fs::path& datei)
{
    std::error_code fehler;
    const fs::file_status status = fs::status(datei, fehler);
    if (status.type() == fs::file_type::not_found)
        return Dateistand::Fehlt;
    return fs::is_regular_file(status) ? Dateistand::Gelesen : Dateistand::Unlesbar;
}

} // namespace

Dateiinhalt leseDateiinhalt(const fs::path& datei, std::size_t hoechstens)
{
    if (const Dateistand stand = standVorDemOeffnen(datei); stand != Dateistand::Gelesen)
        return {stand, {}, true};
    std::error_code fehler;
    const std::uintmax_t groesse = fs::file_size(datei, fehler);
    std::ifstream strom(datei, std::ios::binary);
    if (fehler || !strom)
        return {Dateistand::Unlesbar, {}, true};

    Dateiinhalt inhalt{Dateistand::Gelesen, std::string(std::min<std::uintmax_t>(groesse, hoechstens), '\0'), true};
    strom.read(inhalt.bytes.data(), static_cast<std::streamsize>(inhalt.bytes.size()));
    if (strom.bad())
        return {Dateistand::Unlesbar, {}, true};
    inhalt.bytes.resize(static_cast<std::size_t>(strom.gcount()));
    inhalt.vollstaendig = groesse <= hoechstens;
    return inhalt;
}
