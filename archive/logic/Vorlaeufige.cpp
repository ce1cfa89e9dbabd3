#include "archive/logic/Vorlaeufige.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kAnfang = ".neu-";
constexpr std::size_t kBlock = 65'536;

bool istRegulaer(const fs::path& datei)
{
    std::error_code egal;
    return fs::is_regular_file(datei, egal);
}

/// The process that an unfinished file belongs to; nothing for any other name.
std::optional<pid_t> besitzer(std::string_view name)
{
    if (name.substr(0, kAnfang.size()) != kAnfang)
        return std::nullopt;
    name.remove_prefix(kAnfang.size());
    pid_t prozess = 0;
    const auto [ende, fehler] = std::from_chars(name.data(), name.data() + name.size(), prozess);
    const bool passt = fehler == std::errc() && ende != name.data() + name.size() && *ende == '-' && prozess > 0;
    return passt ? std::optional(prozess) : std::nullopt;
}

bool istBeendet(pid_t prozess)
{
    return ::kill(prozess, 0) != 0 && errno == ESRCH;
}

} // namespace

std::optional<fs::path> legeVorlaeufigenOrdnerAn(const fs::path& ordner)
{
    constexpr int kVersuche = 1000;
    std::error_code fehler;
    for (int nummer = 0; nummer < kVersuche && !fehler; ++nummer) {
        const std::string name = std::string(kAnfang) + std::to_string(::getpid()) + "-" + std::to_string(nummer);
        if (fs::create_directory(ordner / name, fehler))
            return ordner / name;
    }
    return std::nullopt;
}

void raeumeVorlaeufigeAuf(const fs::path& ordner)
{
    std::vector<fs::path> reste;
    std::error_code fehler;
    for (fs::directory_iterator eintrag(ordner, fehler); !fehler && eintrag != fs::directory_iterator();
         eintrag.increment(fehler)) {
        const auto prozess = besitzer(eintrag->path().filename().string());
        if (prozess && istBeendet(*prozess))
            reste.push_back(eintrag->path());
    }
    for (const fs::path& rest : reste)
        fs::remove_all(rest, fehler);
}

DateiErgebnis kopiereDatei(const fs::path& von, const fs::path& nach)
{
    std::ifstream quelle;
    if (istRegulaer(von))
        quelle.open(von, std::ios::binary);
    if (!quelle.is_open())
        return {EIO, std::generic_category().message(EIO)};
    AtomareDatei ziel(nach);
    std::vector<char> block(kBlock);
    do {
        quelle.read(block.data(), static_cast<std::streamsize>(block.size()));
        const auto gelesen = static_cast<std::size_t>(quelle.gcount());
        if (!ziel.schreibe({block.data(), gelesen}))
            return ziel.ergebnis();
    } while (quelle);
    if (quelle.bad())
        return {EIO, std::generic_category().message(EIO)};
    return ziel.uebernimm();
}

bool gleicherInhalt(const fs::path& a, const fs::path& b)
{
    if (!istRegulaer(a) || !istRegulaer(b))
        return false;
    std::ifstream eine(a, std::ios::binary);
    std::ifstream andere(b, std::ios::binary);
    std::array<char, kBlock> links{};
    std::array<char, kBlock> rechts{};
    while (eine && andere) {
        eine.read(links.data(), links.size());
        andere.read(rechts.data(), rechts.size());
        const auto laenge = static_cast<std::size_t>(eine.gcount());
        if (eine.gcount() != andere.gcount() ||
            std::string_view(links.data(), laenge) != std::string_view(rechts.data(), laenge))
            return false;
    }
    return eine.eof() && andere.eof() && !eine.bad() && !andere.bad();
}
