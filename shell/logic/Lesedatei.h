#pragma once

#include "shell/logic/OffeneDatei.h"

#include <cstddef>
#include <filesystem>
#include <string>

/// What became of the attempt to read a file.
enum class Dateistand {
    Gelesen,
    Fehlt,    ///< there is no such entry
    Unlesbar, ///< a directory, pipe or device in its place, no rights, an error while reading
};

/// A file that is read from its beginning to its end. Only a regular file is opened, so that no call ever waits.
class Lesedatei {
public:
    explicit Lesedatei(const std::filesystem::path& datei);

    Dateistand stand() const { return stand_; }
    int fehler() const { return fehler_; }         ///< the system's error number; 0 while nothing has failed
    std::size_t laenge() const { return laenge_; } ///< in bytes, when it was opened; it may have changed since

    /// Appends the next `anzahl` bytes to `ziel`, fewer only where the file ends or fails. Gives how many.
    std::size_t lies(std::string& ziel, std::size_t anzahl);

private:
    int oeffne(const std::filesystem::path& datei);
    void scheitere(int fehler);

    OffeneDatei datei_;
    Dateistand stand_{Dateistand::Gelesen};
    int fehler_{0};
    std::size_t laenge_{0};
};

struct Dateiinhalt {
    Dateistand stand{Dateistand::Fehlt};
    std::string bytes{};     ///< empty unless read
    bool vollstaendig{true}; ///< false if the file goes on beyond the bytes
    int fehler{0};           ///< why it is missing or cannot be read: the system's error number

    /// True if the bytes are the whole file.
    bool ganz() const { return stand == Dateistand::Gelesen && vollstaendig; }
};

/// Reads a file, at most `hoechstens` bytes of it.
Dateiinhalt leseDatei(const std::filesystem::path& datei, std::size_t hoechstens);
