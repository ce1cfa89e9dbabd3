#include "shell/logic/Vorlaeufige.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kAnfang = ".neu-";

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

std::string vorlaeufigerName(int nummer)
{
    return std::string(kAnfang) + std::to_string(::getpid()) + "-" + std::to_string(nummer);
}

std::optional<fs::path> legeVorlaeufigenOrdnerAn(const fs::path& ordner)
{
    constexpr int kVersuche = 1000;
    std::error_code fehler;
    for (int nummer = 0; nummer < kVersuche && !fehler; ++nummer) {
        const fs::path neuer = ordner / vorlaeufigerName(nummer);
        if (fs::create_directory(neuer, fehler))
            return neuer;
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
