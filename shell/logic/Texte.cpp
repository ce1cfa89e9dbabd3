#include "shell/logic/Texte.h"

#include <algorithm>

namespace {

constexpr auto kLatinVorbyte = static_cast<char>(0xC3);
constexpr unsigned char kGrossKlein = 0x20; ///< the distance between the cases, in ASCII and in Latin-1

/// Moves one byte of a text from one case to the other. `ab` is the first letter of the case that changes: "A" or "a".
/// The Latin-1 letters stand behind the lead byte C3, at the same distance from "A" in the upper half.
char wechsle(char davor, char zeichen, unsigned char ab)
{
    const auto byte = static_cast<unsigned char>(zeichen);
    if (davor != kLatinVorbyte)
        return byte >= ab && byte < ab + 26 ? static_cast<char>(byte ^ kGrossKlein) : zeichen;
    const unsigned ersteLatin = ab + 0x3FU;            // C3 80 "À" or C3 A0 "à"
    const unsigned keinBuchstabe = ersteLatin + 0x17U; // C3 97 "×" or C3 B7 "÷"
    const bool buchstabe = byte >= ersteLatin && byte < ersteLatin + 0x1FU && byte != keinBuchstabe;
    return buchstabe ? static_cast<char>(byte ^ kGrossKlein) : zeichen;
}

/// The byte at `i` in lower case.
unsigned char klein(std::string_view text, std::size_t i)
{
    return static_cast<unsigned char>(wechsle(i > 0 ? text[i - 1] : '\0', text[i], 'A'));
}

std::string inAndererSchreibung(std::string_view text, unsigned char ab)
{
    std::string ergebnis(text);
    for (std::size_t i = 0; i < text.size(); ++i)
        ergebnis[i] = wechsle(i > 0 ? text[i - 1] : '\0', text[i], ab);
    return ergebnis;
}

bool istFolgebyte(char zeichen)
{
    return (static_cast<unsigned char>(zeichen) & 0xC0U) == 0x80U;
}

/// Where the character `anzahl` characters behind `ab` begins, at most the end of the text.
std::size_t ruecke(std::string_view text, std::size_t ab, std::size_t anzahl)
{
    while (anzahl > 0 && ab < text.size()) {
        ++ab;
        while (ab < text.size() && istFolgebyte(text[ab]))
            ++ab;
        --anzahl;
    }
    return ab;
}

} // namespace

std::string DateiName(std::string_view pfad)
{
    const std::size_t trenner = pfad.find_last_of("/\\");
    return std::string(trenner == std::string_view::npos ? pfad : pfad.substr(trenner + 1));
}

std::string& LeerzeichenKuerzen(std::string& text)
{
    const auto doppelt = [](char links, char rechts) { return links == ' ' && rechts == ' '; };
    text.erase(std::unique(text.begin(), text.end(), doppelt), text.end());
    text = std::string(trim(text));
    return text;
}

int ZaehleVorkommen(std::string_view text, std::string_view suche, Vergleich vergleich)
{
    if (suche.empty())
        return -1;
    if (vergleich == Vergleich::Text)
        return ZaehleVorkommen(kleinbuchstaben(text), kleinbuchstaben(suche), Vergleich::Binaer);
    int anzahl = 0;
    for (std::size_t ort = text.find(suche); ort != std::string_view::npos; ort = text.find(suche, ort + 1))
        ++anzahl;
    return anzahl;
}

std::int32_t BinaerNachLong(std::string_view text)
{
    constexpr std::size_t kStellen = 31;
    std::int32_t wert = 0;
    for (const char ziffer : text.substr(text.size() - std::min(text.size(), kStellen)))
        wert = wert * 2 + (ziffer >= '1' && ziffer <= '9' ? 1 : 0);
    return wert;
}

std::vector<std::uint8_t> Utf8Bytes(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::string grossbuchstaben(std::string_view text)
{
    return inAndererSchreibung(text, 'a');
}

std::string kleinbuchstaben(std::string_view text)
{
    return inAndererSchreibung(text, 'A');
}

int vergleicheText(std::string_view links, std::string_view rechts)
{
    const std::size_t gemeinsam = std::min(links.size(), rechts.size());
    for (std::size_t i = 0; i < gemeinsam; ++i) {
        const unsigned char l = klein(links, i);
        const unsigned char r = klein(rechts, i);
        if (l != r)
            return l < r ? -1 : 1;
    }
    return links.size() == rechts.size() ? 0 : (links.size() < rechts.size() ? -1 : 1);
}

bool gleichOhneGrossKlein(std::string_view links, std::string_view rechts)
{
    return links.size() == rechts.size() && vergleicheText(links, rechts) == 0;
}

std::string_view trim(std::string_view text, std::string_view zeichen)
{
    const std::size_t anfang = text.find_first_not_of(zeichen);
    return anfang == std::string_view::npos ? std::string_view{}
                                            : text.substr(anfang, text.find_last_not_of(zeichen) - anfang + 1);
}

std::vector<std::string> teile(std::string_view text, std::string_view trenner)
{
    std::vector<std::string> ergebnis;
    if (text.empty())
        return ergebnis;
    std::size_t anfang = 0;
    while (!trenner.empty()) {
        const std::size_t ende = text.find(trenner, anfang);
        if (ende == std::string_view::npos)
            break;
        ergebnis.emplace_back(text.substr(anfang, ende - anfang));
        anfang = ende + trenner.size();
    }
    ergebnis.emplace_back(text.substr(anfang));
    return ergebnis;
}

std::size_t anzahlZeichen(std::string_view text)
{
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, istFolgebyte));
}

std::string_view Mid(std::string_view text, std::size_t ab, std::size_t anzahl)
{
    const std::size_t anfang = ruecke(text, 0, ab > 0 ? ab - 1 : 0);
    return text.substr(anfang, ruecke(text, anfang, anzahl) - anfang);
}
