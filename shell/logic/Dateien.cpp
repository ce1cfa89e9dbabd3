#include "shell/logic/Dateien.h"

#include "shell/logic/Lesedatei.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Vorlaeufige.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPuffer = 262'144;
constexpr std::size_t kStueckZumSichern = std::size_t{1} << 20;
constexpr int kVersuche = 1000;
constexpr unsigned kAlleRechte = 0777;

DateiErgebnis fehlschlag(int fehler)
{
    return {fehler, std::generic_category().message(fehler)};
}

/// Tells the folder's new entry to the disk. A file system that cannot do that has done its part already.
void sichereOrdner(const fs::path& ordner)
{
    if (const OffeneDatei offen(ordner, O_RDONLY | O_DIRECTORY); offen)
        ::fsync(offen.nummer());
}

} // namespace

AtomareDatei::AtomareDatei(const fs::path& ziel, Schreibschutz schutz)
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
        const fs::path pfad = ziel_.parent_path() / (vorlaeufigerName(versuch) + ".tmp");
        datei_ = OffeneDatei(pfad, O_WRONLY | O_CREAT | O_EXCL);
        if (datei_) {
            vorlaeufige_ = pfad;
            return !ersetzt_ || ::fchmod(datei_.nummer(), rechte_) == 0 || scheitere(errno);
        }
        if (errno != EEXIST)
            break;
    }
    return scheitere(errno);
}

bool AtomareDatei::schreibe(std::string_view bytes)
{
    if (!datei_)
        return false;
    if (puffer_.size() + bytes.size() >= kPuffer)
        return leere() && gibWeiter(bytes);
    puffer_.append(bytes);
    return true;
}

bool AtomareDatei::leere()
{
    const bool geschrieben = gibWeiter(puffer_);
    puffer_.clear();
    return geschrieben;
}

bool AtomareDatei::gibWeiter(std::string_view rest)
{
    while (!rest.empty()) {
        const ssize_t geschrieben = ::write(datei_.nummer(), rest.data(), rest.size());
        if (geschrieben < 0) {
            if (errno != EINTR)
                return scheitere(errno);
            continue;
        }
        rest.remove_prefix(static_cast<std::size_t>(geschrieben));
        beginneSichern(static_cast<std::size_t>(geschrieben));
    }
    return true;
}

/// The disk takes what there is of a long file while the rest is still being made; at the end little is left to wait
/// for. Only a wish: what counts is the flush at the end.
void AtomareDatei::beginneSichern(std::size_t bytes)
{
    ungesichert_ += bytes;
    if (ungesichert_ < kStueckZumSichern)
        return;
    ungesichert_ = 0;
    ::sync_file_range(datei_.nummer(), 0, 0, SYNC_FILE_RANGE_WRITE);
}

DateiErgebnis AtomareDatei::uebernimm()
{
    if (!datei_)
        return ergebnis_.gut() ? fehlschlag(EBADF) : ergebnis_;
    if (!leere())
        return ergebnis_;
    const bool gesichert = ::fsync(datei_.nummer()) == 0;
    const int sicherungsfehler = errno;
    const bool geschlossen = datei_.schliesse();
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
    datei_ = OffeneDatei();
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

DateiErgebnis kopiereDatei(const fs::path& von, const fs::path& nach)
{
    Lesedatei quelle(von);
    if (quelle.fehler() != 0)
        return fehlschlag(quelle.fehler());
    AtomareDatei ziel(nach);
    std::string block;
    while (quelle.lies(block, kPuffer) > 0) {
        if (!ziel.schreibe(block))
            return ziel.ergebnis();
        block.clear();
    }
    return quelle.fehler() != 0 ? fehlschlag(quelle.fehler()) : ziel.uebernimm();
}

bool gleicherInhalt(const fs::path& a, const fs::path& b)
{
    Lesedatei eine(a);
    Lesedatei andere(b);
    std::string links;
    std::string rechts;
    do {
        links.clear();
        rechts.clear();
        eine.lies(links, kPuffer);
        andere.lies(rechts, kPuffer);
    } while (links == rechts && !links.empty());
    return links == rechts && eine.fehler() == 0 && andere.fehler() == 0;
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

fs::path inRichtigerSchreibung(const fs::path& datei, std::string_view name)
{
    fs::path richtig = datei.parent_path() / fs::path(name);
    std::error_code fehler;
    if (datei != richtig && fs::exists(datei, fehler))
        fs::rename(datei, richtig, fehler);
    return fehler ? datei : richtig;
}

std::string mitTrenner(std::string pfad)
{
    if (!pfad.empty() && pfad.back() != '/' && pfad.back() != fs::path::preferred_separator)
        pfad += fs::path::preferred_separator;
    return pfad;
}
