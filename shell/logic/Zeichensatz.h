#pragma once

#include <string>
#include <string_view>

/// UTF-8 text as Windows-1252 bytes. What the character set lacks, and every stray byte, becomes "?".
std::string nachWindows1252(std::string_view text);

/// Windows-1252 bytes as UTF-8 text. The five bytes without a character (81, 8D, 8F, 90, 9D) become "?".
std::string ausWindows1252(std::string_view bytes);

/// Takes the first character off `rest`. A byte that begins no valid UTF-8 character is taken alone and gives U+FFFD.
/// `rest` must not be empty.
char32_t naechstesZeichen(std::string_view& rest);
