#include "shell/logic/Dateien.h"

#include "shell/logic/Texte.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPuffer = 262'144;
constexpr int kVersuche = 1000;
constexpr unsigned kRechteNeu = 0666; ///< less what the user's mask takes away
constexpr unsigned kAlleRechte = 0777;

DateiErgebnis fehlschlag(int fehler)
{
    return {fehler, std::generic_category().message(fehler)};
}

/// Tells the folder's new entry to the disk. A file system that cannot do that has done its part already.
void sichereOrdner(const fs::path& ordner)
{
    const int offen = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (offen >= 0) {
        ::fsync(offen);
        ::close(offen);
    }
}

/// Closes a file that is read only.
class Lesedatei {
public:
    explicit Lesedatei(const fs::path& datei) : nummer_(::open(datei.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
    Lesedatei(const Lesedatei&) = delete;
    Lesedatei& operator=(const Lesedatei&) = delete;
    ~Lesedatei()
    {
        if (nummer_ >= 0)
            ::close(nummer_);
    }

    /// The length that the file has now; nothing if it is no regular file.
    std::optional<std::size_t> laenge() const
    {
        struct stat zustand {};
        if (nummer_ < 0 || ::fstat(nummer_, &zustand) != 0 || !S_ISREG(zustand.st_mode))
            return std::nullopt;
        return static_cast<std::size_t>(zustand.st_size);
    }

    /// Appends at most `anzahl` bytes. The count read, 0 at the end, -1 on an error.
    ssize_t lies(std::string& ziel, std::size_t anzahl) const
    {
        const std::size_t alt = ziel.size();
        ziel.resize(alt + anzahl);
        ssize_t gelesen = 0;
        do {
            gelesen = ::read(nummer_, ziel.data() + alt, anzahl);
        } while (gelesen < 0 && errno == EINTR);
        ziel.resize(alt + static_cast<std::size_t>(gelesen < 0 ? 0 : gelesen));
        return gelesen;
    }

private:
    int nummer_;
};

} // namespace

AtomareDatei::AtomareDatei(const fs::path& ziel, Schreibschutz schutz) : rechte_(kRechteNeu)
{
    if (oeffneZiel(ziel, schutz) && oeffneVorlaeufige())
        puffer_.reserve(kPuffer);
}

AtomareDatei::~AtomareDatei()
{
    raeumeAuf();
}

bool AtomareDatei::oeffneZiel(const fs::path& ziel, Schreibschutz schutz)
{
    std::error_code fehler;
    ziel_ = fs::is_symlink(ziel, fehler) ? fs::weakly_canonical(ziel, fehler) : ziel;
    if (fehler && fehler != std::errc::no_such_file_or_directory)
        return scheitere(fehler.value());
    struct stat zustand {};
    if (::stat(ziel_.c_str(), &zustand) != 0)
        return errno == ENOENT || scheitere(errno);
    if (!S_ISREG(zustand.st_mode))
        return scheitere(S_ISDIR(zustand.st_mode) ? EISDIR : EINVAL);
    if ((zustand.st_mode & S_IWUSR) == 0 && schutz == Schreibschutz::Achten)
        return scheitere(EACCES);
    rechte_ = (zustand.st_mode & kAlleRechte) | S_IWUSR;
    ersetzt_ = true;
    return true;
}

bool AtomareDatei::oeffneVorlaeufige()
{
    for (int versuch = 0; versuch < kVersuche; ++versuch) {
        const std::string name = ".neu-" + std::to_string(::getpid()) + "-" + std::to_string(versuch) + ".tmp";
        const fs::path pfad = ziel_.parent_path() / name;
        datei_ = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kRechteNeu);
        if (datei_ >= 0) {
            vorlaeufige_ = pfad;
            return !ersetzt_ || ::fchmod(datei_, rechte_) == 0 || scheitere(errno);
        }
        if (errno != EEXIST)
            break;
    }
    return scheitere(errno);
}

bool AtomareDatei::schreibe(std::string_view bytes)
{
    if (datei_ < 0)
        return false;
    puffer_.append(bytes);
    return puffer_.size() < kPuffer || leere();
}

bool AtomareDatei::leere()
{
    std::string_view rest = puffer_;
    while (!rest.empty()) {
        const ssize_t geschrieben = ::write(datei_, rest.data(), rest.size());
        if (geschrieben >= 0)
            rest.remove_prefix(static_cast<std::size_t>(geschrieben));
        else if (errno != EINTR)
            return scheitere(errno);
    }
    puffer_.clear();
    return true;
}

DateiErgebnis AtomareDatei::uebernimm()
{
    if (datei_ < 0)
        return ergebnis_.gut() ? fehlschlag(EBADF) : ergebnis_;
    if (!leere())
        return ergebnis_;
    const bool gesichert = ::fsync(datei_) == 0;
    const int sicherungsfehler = errno;
    const bool geschlossen = ::close(datei_) == 0;
    datei_ = -1;
    if (!gesichert || !geschlossen) {
        scheitere(gesichert ? errno : sicherungsfehler);
    } else if (::rename(vorlaeufige_.c_str(), ziel_.c_str()) != 0) {
        scheitere(errno);
    } else {
        vorlaeufige_.clear();
        sichereOrdner(ziel_.has_parent_path() ? ziel_.parent_path() : fs::path("."));
    }
    return ergebnis_;
}

bool AtomareDatei::scheitere(int fehler)
{
    ergebnis_ = fehlschlag(fehler);
    raeumeAuf();
    return false;
}

void AtomareDatei::raeumeAuf()
{
    if (datei_ >= 0) {
        ::close(datei_);
        datei_ = -1;
    }
    if (!vorlaeufige_.empty()) {
        ::unlink(vorlaeufige_.c_str());
        vorlaeufige_.clear();
    }
}

DateiErgebnis schreibeDatei(const fs::path& ziel, std::string_view bytes, Schreibschutz schutz)
{
    AtomareDatei datei(ziel, schutz);
    if (!datei.schreibe(bytes))
        return datei.ergebnis();
    return datei.uebernimm();
}

std::optional<std::string> leseDatei(const fs::path& datei, std::size_t hoechstens)
{
    const Lesedatei offen(datei);
    const std::optional<std::size_t> laenge = offen.laenge();
    if (!laenge || *laenge > hoechstens)
        return std::nullopt;
    std::string bytes;
    bytes.reserve(*laenge + 1);
    ssize_t gelesen = 0;
    do {
        // The file may grow or shrink meanwhile, so its end is where a read gives nothing.
        const std::size_t block = bytes.size() < *laenge ? *laenge - bytes.size() : 1;
        gelesen = offen.lies(bytes, block);
    } while (gelesen > 0 && bytes.size() <= hoechstens);
    if (gelesen < 0 || bytes.size() > hoechstens)
        return std::nullopt;
    return bytes;
}

fs::path findeDatei(const fs::path& ordner, std::string_view name)
{
    fs::path genau = ordner / fs::path(name);
    std::error_code fehler;
    if (fs::exists(genau, fehler))
        return genau;
    fs::path gefunden;
    const std::string gesucht = genau.filename().string();
    fs::directory_iterator eintrag(genau.parent_path(), fehler);
    while (!fehler && eintrag != fs::directory_iterator()) {
        const fs::path& pfad = eintrag->path();
        if (gleichOhneGrossKlein(pfad.filename().string(), gesucht) && (gefunden.empty() || pfad < gefunden))
            gefunden = pfad;
        eintrag.increment(fehler);
    }
    return gefunden.empty() ? genau : gefunden;
}

std::string mitTrenner(std::string pfad)
{
    if (!pfad.empty() && pfad.back() != '/' && pfad.back() != fs::path::preferred_separator)
        pfad += fs::path::preferred_separator;
    return pfad;
}
