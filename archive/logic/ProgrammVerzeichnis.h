#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

/// `path` with the platform's separator behind it, if it does not end in one. An empty path means the current
/// directory.
std::string programmVerzeichnis(std::string path);

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

/// The file `name` of a directory, looked up without regard to the case of ASCII letters: the exact name first, then
/// the first match in plain order of bytes. A path with the exact name if there is none. Both texts are UTF-8.
std::filesystem::path sucheDatei(std::string_view verzeichnis, std::string_view name);

/// Reads the file that `sucheDatei` finds, at most `hoechstens` bytes of it. Only a regular file is opened, so that
/// the call never waits.
Dateiinhalt leseDatei(std::string_view verzeichnis, std::string_view name, std::size_t hoechstens);
