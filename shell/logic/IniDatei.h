#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

/// The value of a key in a section of an INI file, blanks at its ends and one pair of quotes around it taken off, at
/// most as long as the platform's 255 character buffer (with its terminator) allows. The empty text if file, section
/// or key is missing. Names compare without regard to case; of several equal ones the first counts.
std::string IniLesen(const std::filesystem::path& datei, std::string_view abschnitt, std::string_view schluessel);

/// Sets the value of a key; file, section and key are made as needed, every other line stays as it is. Line breaks in
/// the value become blanks; a value that begins or ends with a blank or a quote is put in quotes. False, and the file
/// is as before, if a name is empty or would break the file, or if the file cannot be read or written.
bool IniSchreiben(const std::filesystem::path& datei, std::string_view abschnitt, std::string_view schluessel,
                  std::string_view wert);

/// A key of a section and its value.
struct IniEintrag {
    std::string_view abschnitt;
    std::string schluessel;
    std::string wert;
};

/// Sets several keys in one write: all of them or, if it gives false, none.
bool IniSchreiben(const std::filesystem::path& datei, std::span<const IniEintrag> eintraege);

/// True for "True", "Wahr", "1" and "-1", in any case; false for everything else.
bool istWahr(std::string_view text);

/// "True" or "False".
std::string wahrheitswert(bool wert);
