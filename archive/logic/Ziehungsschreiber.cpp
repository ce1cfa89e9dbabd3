#include "archive/logic/Ziehungsschreiber.h"

#include "archive/logic/Ziehungsdatei.h"
#include "shell/logic/Format.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::string_view kZeilenende = "\r\n";

/// An open file that is closed with the object.
class OffeneDatei {
public:
    explicit OffeneDatei(const std::filesystem::path& datei)
        : nummer_(::open(datei.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666))
    {}
    OffeneDatei(const OffeneDatei&) = delete;
    OffeneDatei& operator=(const OffeneDatei&) = delete;
    ~OffeneDatei()
    {
        if (nummer_ >= 0)
            ::close(nummer_);
    }
    int nummer() const { return nummer_; }

private:
    int nummer_;
};

DateiErgebnis letzterFehler()
{
    return {errno, std::strerror(errno)};
}

void hebeSchreibschutzAuf(const std::filesystem::path& datei)
{
    std::error_code fehler;
    if (std::filesystem::is_regular_file(datei, fehler))
        std::filesystem::permissions(datei, std::filesystem::perms::owner_write, std::filesystem::perm_options::add,
                                     fehler);
}

/// True if the file is empty or its last byte ends a line.
bool endetMitZeilenende(int nummer, off_t laenge)
{
    char letztes = '\n';
    if (laenge > 0 && ::pread(nummer, &letztes, 1, laenge - 1) != 1)
        return false;
    return letztes == '\n' || letztes == '\r';
}

} // namespace

std::string datensatz(const ZiehungsArchiv& archiv, std::size_t nr)
{
    std::string satz = Format(archiv.jjjj[nr], "0000") + "," + Format(archiv.sw[nr], "00");
    for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
        satz += "," + Format(zahl, "00");
    return satz + "," + Format(archiv.zz[nr], "00") + "," + Format(archiv.s[nr], "0");
}

DateiErgebnis haengeZeileAn(const std::filesystem::path& datei, std::string_view zeile)
{
    hebeSchreibschutzAuf(datei);
    const OffeneDatei offen(datei);
    struct stat stand {};
    if (offen.nummer() < 0 || ::fstat(offen.nummer(), &stand) != 0)
        return letzterFehler();
    if (!S_ISREG(stand.st_mode))
        return {EISDIR, std::strerror(EISDIR)};

    std::string bytes(endetMitZeilenende(offen.nummer(), stand.st_size) ? "" : kZeilenende);
    bytes.append(zeile).append(kZeilenende);
    // One call writes the whole line, so that an end of the program leaves all of it or nothing.
    const ssize_t geschrieben = ::pwrite(offen.nummer(), bytes.data(), bytes.size(), stand.st_size);
    if (geschrieben == static_cast<ssize_t>(bytes.size()) && ::fsync(offen.nummer()) == 0)
        return {};
    DateiErgebnis ergebnis = geschrieben < 0 ? letzterFehler() : DateiErgebnis{ENOSPC, std::strerror(ENOSPC)};
    if (::ftruncate(offen.nummer(), stand.st_size) != 0)
        ergebnis.meldung += std::string("; ") + std::strerror(errno);
    return ergebnis;
}

DateiErgebnis bewahreAlteFassung(const std::filesystem::path& datei)
{
    std::error_code fehler;
    if (!std::filesystem::exists(datei, fehler))
        return {};
    constexpr std::size_t kGroessteZiehungsdatei = std::size_t{64} << 20;
    const auto bytes = leseDatei(datei, kGroessteZiehungsdatei);
    if (!bytes)
        return {EIO, std::strerror(EIO)};
    std::filesystem::path alte = datei;
    alte += ".alt";
    const bool ohneZiehungen = zaehleZiehungen(datei) == 0;
    if (bytes->empty() || (ohneZiehungen && std::filesystem::exists(alte, fehler)))
        return {};
    return schreibeDatei(alte, *bytes);
}

DateiErgebnis schreibeZiehungsdatei(const std::filesystem::path& datei, const ZiehungsArchiv& archiv)
{
    if (DateiErgebnis ergebnis = bewahreAlteFassung(datei); !ergebnis)
        return ergebnis;
    std::string bytes;
    const auto anzahl = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    for (std::size_t nr = 1; nr <= anzahl; ++nr)
        bytes.append(datensatz(archiv, nr)).append(kZeilenende);
    return schreibeDatei(datei, bytes);
}
