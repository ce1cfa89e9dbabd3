#pragma once

#include "shell/logic/OffeneDatei.h"

#include <filesystem>
#include <string>
#include <string_view>

/// How a file operation ended: 0, or the system's error number with its text.
struct DateiErgebnis {
    int fehler{0};
    std::string meldung;

    bool gut() const { return fehler == 0; }
    explicit operator bool() const { return gut(); }
};

/// What happens to a write protected file that is to be replaced.
enum class Schreibschutz {
    Aufheben, ///< it is replaced and loses its protection
    Achten    ///< the write fails
};

/// Writes a whole file so that a reader sees the old content or the new one, never a part: the bytes go to a temporary
/// file in the same folder, which takes the target's place in `uebernimm`. Until then, and after any error, the target
/// is untouched; without `uebernimm` the temporary file is gone with the object. A target behind a symbolic link is
/// replaced where it lies; a target that is no regular file is refused.
class AtomareDatei {
public:
    explicit AtomareDatei(const std::filesystem::path& ziel, Schreibschutz schutz = Schreibschutz::Aufheben);
    AtomareDatei(const AtomareDatei&) = delete;
    AtomareDatei& operator=(const AtomareDatei&) = delete;
    ~AtomareDatei();

    /// False once something has failed; `ergebnis` tells what.
    bool schreibe(std::string_view bytes);

    /// Brings the bytes to the disk and puts the file in place. Nothing can be written afterwards.
    DateiErgebnis uebernimm();

    const DateiErgebnis& ergebnis() const { return ergebnis_; }

private:
    bool oeffneZiel(const std::filesystem::path& ziel, Schreibschutz schutz);
    bool oeffneVorlaeufige();
    bool leere();
    bool gibWeiter(std::string_view bytes);
    void beginneSichern(std::size_t bytes);
    bool scheitere(int fehler);
    void raeumeAuf();

    std::filesystem::path ziel_;
    std::filesystem::path vorlaeufige_;
    unsigned rechte_{0};  ///< of the old file
    bool ersetzt_{false}; ///< there is an old file, whose rights the new one keeps
    OffeneDatei datei_;
    std::string puffer_;
    std::size_t ungesichert_{0}; ///< bytes that the disk has not been asked to take yet
    DateiErgebnis ergebnis_;
};

/// Replaces the file by `bytes` in one step, as `AtomareDatei` does.
DateiErgebnis schreibeDatei(const std::filesystem::path& ziel, std::string_view bytes,
                            Schreibschutz schutz = Schreibschutz::Aufheben);

/// Copies a file over another one in one step; the target is as before if that fails.
DateiErgebnis kopiereDatei(const std::filesystem::path& von, const std::filesystem::path& nach);

/// True if both files can be read and hold the same bytes.
bool gleicherInhalt(const std::filesystem::path& a, const std::filesystem::path& b);

/// The file `name` in `ordner`: the exact name if it exists, else one that differs in case only (of several the first
/// in byte order), else the path under which it would be created.
std::filesystem::path findeDatei(const std::filesystem::path& ordner, std::string_view name);

/// The file, which from here on has that name in its folder if it exists and can be renamed.
std::filesystem::path inRichtigerSchreibung(const std::filesystem::path& datei, std::string_view name);

/// The path with the platform's separator at its end. The empty path stays empty.
std::string mitTrenner(std::string pfad);
