#include "shell/logic/Dateianhang.h"

#include "shell/logic/OffeneDatei.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

DateiErgebnis fehlschlag(int fehler)
{
    return {fehler, std::generic_category().message(fehler)};
}

void hebeSchreibschutzAuf(const fs::path& datei)
{
    std::error_code fehler;
    if (fs::is_regular_file(datei, fehler))
        fs::permissions(datei, fs::perms::owner_write, fs::perm_options::add, fehler);
}

/// One call writes all, so that an end of the program leaves all of it or nothing. 0, or why it failed.
int schreibeAn(const OffeneDatei& datei, std::string_view bytes, off_t ab)
{
    const ssize_t geschrieben = ::pwrite(datei.nummer(), bytes.data(), bytes.size(), ab);
    if (geschrieben < 0)
        return errno;
    return geschrieben == static_cast<ssize_t>(bytes.size()) ? 0 : ENOSPC;
}

int ersetze(const OffeneDatei& datei, std::string_view bytes, off_t ab)
{
    // What goes is cut first, or a kill would leave its rest behind the new bytes.
    if (::ftruncate(datei.nummer(), ab) != 0)
        return errno;
    if (const int fehler = schreibeAn(datei, bytes, ab))
        return fehler;
    return ::fsync(datei.nummer()) == 0 ? 0 : errno;
}

/// A file whose end is to be changed.
struct Anhangdatei {
    OffeneDatei datei;
    off_t laenge{0};
    int fehler{0}; ///< why it cannot be changed
};

Anhangdatei oeffne(const fs::path& pfad)
{
    hebeSchreibschutzAuf(pfad);
    Anhangdatei offen{OffeneDatei(pfad, O_RDWR)};
    struct stat stand {};
    if (!offen.datei || ::fstat(offen.datei.nummer(), &stand) != 0)
        offen.fehler = errno;
    else if (!S_ISREG(stand.st_mode))
        offen.fehler = EINVAL;
    offen.laenge = stand.st_size;
    return offen;
}

/// The bytes from `ab` on; nothing if they cannot be read.
std::optional<std::string> endeVon(const Anhangdatei& offen, off_t ab)
{
    std::string ende(static_cast<std::size_t>(offen.laenge - ab), '\0');
    if (::pread(offen.datei.nummer(), ende.data(), ende.size(), ab) != static_cast<ssize_t>(ende.size()))
        return std::nullopt;
    return ende;
}

DateiErgebnis ersetzeEnde(const Anhangdatei& offen, off_t ab, std::string_view bytes)
{
    const auto altesEnde = endeVon(offen, ab);
    if (!altesEnde)
        return fehlschlag(EIO);
    const int fehler = ersetze(offen.datei, bytes, ab);
    if (fehler == 0)
        return {};
    DateiErgebnis ergebnis = fehlschlag(fehler);
    if (const int zurueck = ersetze(offen.datei, *altesEnde, ab))
        ergebnis.meldung += "; " + fehlschlag(zurueck).meldung;
    return ergebnis;
}

} // namespace

DateiErgebnis ersetzeDateiende(const fs::path& datei, std::uintmax_t ab, std::string_view bytes)
{
    const Anhangdatei offen = oeffne(datei);
    if (offen.fehler == ENOENT)
        return schreibeDatei(datei, bytes);
    if (offen.fehler != 0)
        return fehlschlag(offen.fehler);
    return ersetzeEnde(offen, std::min(static_cast<off_t>(ab), offen.laenge), bytes);
}

DateiErgebnis haengeZeileAn(const fs::path& datei, std::string_view zeile)
{
    std::string bytes = std::string(zeile).append(kZeilenende);
    const Anhangdatei offen = oeffne(datei);
    if (offen.fehler == ENOENT)
        return schreibeDatei(datei, bytes);
    if (offen.fehler != 0)
        return fehlschlag(offen.fehler);
    const auto letztes = endeVon(offen, std::max<off_t>(offen.laenge - 1, 0));
    if (!letztes)
        return fehlschlag(EIO);
    if (!letztes->empty() && !letztes->ends_with('\n') && !letztes->ends_with('\r'))
        bytes.insert(0, kZeilenende);
    return ersetzeEnde(offen, offen.laenge, bytes);
}
