#include "archive/logic/ProgrammVerzeichnis.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <system_error>

namespace fs = std::filesystem;

namespace {

fs::path ausUtf8(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

char gross(char zeichen)
{
    return zeichen >= 'a' && zeichen <= 'z' ? static_cast<char>(zeichen - 'a' + 'A') : zeichen;
}

bool gleichOhneGrossKlein(std::u8string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, [](char8_t x, char y) { return gross(static_cast<char>(x)) == gross(y); });
}

std::optional<fs::path> sucheOhneGrossKlein(const fs::path& verzeichnis, std::string_view name)
{
    std::optional<fs::path> gefunden;
    std::error_code fehler;
    fs::directory_iterator eintrag(verzeichnis, fehler);
    for (; !fehler && eintrag != fs::directory_iterator(); eintrag.increment(fehler)) {
        const fs::path& pfad = eintrag->path();
        if (gleichOhneGrossKlein(pfad.filename().u8string(), name) && (!gefunden || pfad < *gefunden))
            gefunden = pfad;
    }
    return gefunden;
}

Dateistand pruefeVorDemOeffnen(const fs::path& pfad)
{
    std::error_code fehler;
    const fs::file_status status = fs::status(pfad, fehler);
    if (status.type() == fs::file_type::not_found)
        return Dateistand::Fehlt;
    return fs::is_regular_file(status) ? Dateistand::Gelesen : Dateistand::Unlesbar;
}

} // namespace

std::string programmVerzeichnis(std::string path)
{
    constexpr char trenner = static_cast<char>(fs::path::preferred_separator);
    if (path.empty())
        path += '.';
    if (path.back() != '/' && path.back() != trenner)
        path += trenner;
    return path;
}

fs::path sucheDatei(std::string_view verzeichnis, std::string_view name)
{
    const fs::path ordner = ausUtf8(verzeichnis);
    fs::path genau = ordner / ausUtf8(name);
    if (pruefeVorDemOeffnen(genau) != Dateistand::Fehlt)
        return genau;
    return sucheOhneGrossKlein(ordner, name).value_or(std::move(genau));
}

Dateiinhalt leseDatei(std::string_view verzeichnis, std::string_view name, std::size_t hoechstens)
{
    const fs::path pfad = sucheDatei(verzeichnis, name);
    if (const Dateistand stand = pruefeVorDemOeffnen(pfad); stand != Dateistand::Gelesen)
        return {stand, {}, true};
    std::error_code fehler;
    const std::uintmax_t groesse = fs::file_size(pfad, fehler);
    std::ifstream datei(pfad, std::ios::binary);
    if (fehler || !datei)
        return {Dateistand::Unlesbar, {}, true};

    Dateiinhalt inhalt{Dateistand::Gelesen, std::string(std::min<std::uintmax_t>(groesse, hoechstens), '\0'), true};
    datei.read(inhalt.bytes.data(), static_cast<std::streamsize>(inhalt.bytes.size()));
    if (datei.bad())
        return {Dateistand::Unlesbar, {}, true};
    inhalt.bytes.resize(static_cast<std::size_t>(datei.gcount()));
    inhalt.vollstaendig = groesse <= hoechstens;
    return inhalt;
}
