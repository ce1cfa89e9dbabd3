#include "shell/logic/Dateisperre.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <system_error>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr auto kSperrdatei = ".tombrix-sperre";
constexpr std::chrono::milliseconds kSchritt{5};

enum class Versuch { Genommen, Besetzt, GehtNicht };

Versuch versuche(const OffeneDatei& ort)
{
    if (!ort)
        return Versuch::GehtNicht;
    if (::flock(ort.nummer(), LOCK_EX | LOCK_NB) == 0)
        return Versuch::Genommen;
    return errno == EWOULDBLOCK || errno == EINTR ? Versuch::Besetzt : Versuch::GehtNicht;
}

fs::path ordnerVon(const fs::path& datei)
{
    std::error_code fehler;
    const fs::path ziel = fs::weakly_canonical(datei, fehler);
    const fs::path ordner = (fehler ? datei : ziel).parent_path();
    return ordner.empty() ? fs::path(".") : ordner;
}

} // namespace

std::optional<Dateisperre> Dateisperre::nimm(const fs::path& datei, std::chrono::milliseconds hoechstens,
                                             const std::function<bool()>& zwischendurch)
{
    using Zeit = std::chrono::steady_clock;
    const Zeit::time_point ende = Zeit::now() + hoechstens;
    const fs::path ordner = ordnerVon(datei);
    OffeneDatei ort(ordner, O_RDONLY | O_DIRECTORY);
    Versuch versuch = versuche(ort);
    if (versuch == Versuch::GehtNicht) {
        ort = OffeneDatei(ordner / kSperrdatei, O_RDWR | O_CREAT);
        versuch = versuche(ort);
    }
    while (versuch == Versuch::Besetzt) {
        if (Zeit::now() >= ende || (zwischendurch && !zwischendurch()))
            return std::nullopt;
        std::this_thread::sleep_for(std::min<Zeit::duration>(kSchritt, ende - Zeit::now()));
        versuch = versuche(ort);
    }
    if (versuch == Versuch::GehtNicht)
        return std::nullopt;
    return Dateisperre(std::move(ort));
}
