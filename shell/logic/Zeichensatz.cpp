#include "shell/logic/Zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace {

constexpr char32_t kKeinZeichen = 0xFFFD;

/// The characters of the bytes 80 to 9F; all other bytes are the code points themselves.
constexpr std::array<char16_t, 32> kHohe = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};
constexpr char32_t kHoheAb = 0x80;
constexpr char32_t kLatinAb = 0xA0;

/// The length that the first byte promises and the bits it brings; 0 for a byte that begins no character.
struct Anfang {
    std::size_t laenge;
    char32_t bits;
    char32_t kleinstes; ///< what is smaller would have a shorter form
};

Anfang liesAnfang(unsigned char byte)
{
    if (byte < 0x80U)
        return {1, byte, 0};
    if ((byte & 0xE0U) == 0xC0U)
        return {2, byte & 0x1FU, 0x80};
    if ((byte & 0xF0U) == 0xE0U)
        return {3, byte & 0x0FU, 0x800};
    if ((byte & 0xF8U) == 0xF0U)
        return {4, byte & 0x07U, 0x10000};
    return {0, 0, 0};
}

bool istZeichen(char32_t zeichen)
{
    return zeichen < 0xD800 || (zeichen > 0xDFFF && zeichen <= 0x10FFFF);
}

void haengeAn(std::string& ziel, char32_t zeichen)
{
    if (zeichen < 0x80) {
        ziel += static_cast<char>(zeichen);
    } else if (zeichen < 0x800) {
        ziel += static_cast<char>(0xC0U | (zeichen >> 6U));
        ziel += static_cast<char>(0x80U | (zeichen & 0x3FU));
    } else { // the character set ends far below the planes that need four bytes
        ziel += static_cast<char>(0xE0U | (zeichen >> 12U));
        ziel += static_cast<char>(0x80U | ((zeichen >> 6U) & 0x3FU));
        ziel += static_cast<char>(0x80U | (zeichen & 0x3FU));
    }
}

char alsByte(char32_t zeichen)
{
    if (zeichen < kHoheAb || (zeichen >= kLatinAb && zeichen <= 0xFF))
        return static_cast<char>(zeichen);
    const auto* const stelle = std::ranges::find(kHohe, static_cast<char32_t>(zeichen));
    return stelle == kHohe.end() ? '?' : static_cast<char>(kHoheAb + static_cast<char32_t>(stelle - kHohe.begin()));
}

} // namespace

char32_t naechstesZeichen(std::string_view& rest)
{
    const Anfang anfang = liesAnfang(static_cast<unsigned char>(rest.front()));
    char32_t zeichen = anfang.bits;
    bool gueltig = anfang.laenge != 0 && anfang.laenge <= rest.size();
    for (std::size_t i = 1; gueltig && i < anfang.laenge; ++i) {
        const auto byte = static_cast<unsigned char>(rest[i]);
        gueltig = (byte & 0xC0U) == 0x80U;
        zeichen = (zeichen << 6U) | (byte & 0x3FU);
    }
    gueltig = gueltig && zeichen >= anfang.kleinstes && istZeichen(zeichen);
    rest.remove_prefix(gueltig ? anfang.laenge : 1);
    return gueltig ? zeichen : kKeinZeichen;
}

std::string nachWindows1252(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty())
        bytes += alsByte(naechstesZeichen(text));
    return bytes;
}

std::string ausWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        char32_t zeichen = static_cast<unsigned char>(byte);
        if (zeichen >= kHoheAb && zeichen < kLatinAb) {
            zeichen = kHohe[zeichen - kHoheAb];
            zeichen = zeichen == 0 ? U'?' : zeichen;
        }
        haengeAn(text, zeichen);
    }
    return text;
}
