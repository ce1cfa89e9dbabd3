#include "shell/logic/Lesedatei.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kBlock = 65'536;

/// 0 for a regular file, else why it is not read.
int fehlerVon(int abfrage, const struct stat& zustand)
{
    if (abfrage != 0)
        return errno;
    if (S_ISDIR(zustand.st_mode))
        return EISDIR;
    return S_ISREG(zustand.st_mode) ? 0 : EINVAL;
}

} // namespace

Lesedatei::Lesedatei(const std::filesystem::path& datei)
{
    if (const int fehler = oeffne(datei))
        scheitere(fehler);
}

int Lesedatei::oeffne(const std::filesystem::path& datei)
{
    struct stat zustand {};
    // To open a pipe or a device would have effects of its own.
    if (const int fehler = fehlerVon(::stat(datei.c_str(), &zustand), zustand))
        return fehler;
    datei_ = OffeneDatei(datei, O_RDONLY);
    if (!datei_)
        return errno;
    const int fehler = fehlerVon(::fstat(datei_.nummer(), &zustand), zustand);
    laenge_ = static_cast<std::size_t>(zustand.st_size);
    return fehler;
}

void Lesedatei::scheitere(int fehler)
{
    stand_ = fehler == ENOENT || fehler == ENOTDIR ? Dateistand::Fehlt : Dateistand::Unlesbar;
    fehler_ = fehler;
    datei_ = OffeneDatei();
}

std::size_t Lesedatei::lies(std::string& ziel, std::size_t anzahl)
{
    const std::size_t vorher = ziel.size();
    std::size_t gelesen = 0;
    ziel.resize(vorher + anzahl);
    while (datei_ && gelesen < anzahl) {
        const ssize_t stueck = ::read(datei_.nummer(), ziel.data() + vorher + gelesen, anzahl - gelesen);
        if (stueck == 0)
            break;
        if (stueck > 0)
            gelesen += static_cast<std::size_t>(stueck);
        else if (errno != EINTR)
            scheitere(errno);
    }
    ziel.resize(vorher + gelesen);
    return gelesen;
}

Dateiinhalt leseDatei(const std::filesystem::path& datei, std::size_t hoechstens)
{
    Lesedatei lesedatei(datei);
    Dateiinhalt inhalt;
    const std::size_t block = std::max(lesedatei.laenge() + 1, kBlock);
    std::size_t gefragt = 0;
    do {
        // One byte more than wanted tells whether there are more. A file may grow while it is read.
        gefragt = std::min(block, hoechstens + 1 - inhalt.bytes.size());
    } while (gefragt > 0 && lesedatei.lies(inhalt.bytes, gefragt) == gefragt);
    inhalt.stand = lesedatei.stand();
    inhalt.fehler = lesedatei.fehler();
    inhalt.vollstaendig = inhalt.bytes.size() <= hoechstens;
    inhalt.bytes.resize(inhalt.stand == Dateistand::Gelesen ? std::min(inhalt.bytes.size(), hoechstens) : 0);
    return inhalt;
}
