#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

/// What became of the attempt to read a file.
enum class Dateistand {
    Gelesen,
    Fehlt,    ///< there is no such entry
    Unlesbar, ///< a directory, pipe or device in its place, no rights, an error while reading
};

struct Dateiinhalt {
    Dateistand stand = Dateistand::Fehlt;
    std::string bytes;        ///< empty unless read
    bool vollstaendig = true; ///< false if the file goes on beyond the bytes
};

/// Reads a file, at most `hoechstens` bytes of it. Only a regular file is opened, so that the call never waits.
Dateiinhalt leseDateiinhalt(const std::filesystem::path& datei, std::size_t hoechstens);
