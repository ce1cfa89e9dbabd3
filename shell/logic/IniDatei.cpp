#include "shell/logic/IniDatei.h"

#include "shell/logic/Dateien.h"
#include "shell/logic/Lesedatei.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace {

constexpr std::size_t kGroessteDatei = 1'048'576;
constexpr std::size_t kLaengsterWert = 254;
constexpr std::string_view kLeer = " \t";

/// One line of the file in Windows-1252: its text and where it lies, its end included.
struct Zeile {
    std::string_view text;
    std::size_t anfang;
    std::size_t ende;
};

Zeile liesZeile(std::string_view inhalt, std::size_t anfang)
{
    const std::size_t umbruch = inhalt.find('\n', anfang);
    const std::size_t ende = umbruch == std::string_view::npos ? inhalt.size() : umbruch + 1;
    std::string_view text = inhalt.substr(anfang, ende - anfang);
    while (text.ends_with('\n') || text.ends_with('\r'))
        text.remove_suffix(1);
    return {trim(text, kLeer), anfang, ende};
}

bool gleich(std::string_view windows, std::string_view name)
{
    return gleichOhneGrossKlein(ausWindows1252(trim(windows, kLeer)), name);
}

bool istAbschnitt(std::string_view zeile)
{
    return zeile.starts_with('[');
}

bool istAbschnitt(std::string_view zeile, std::string_view name)
{
    return istAbschnitt(zeile) && gleich(zeile.substr(1, zeile.find(']') - 1), name);
}

/// Where the value of a key stands, or where its line belongs.
struct Fundstelle {
    bool abschnitt{false};
    std::optional<Zeile> zeile;
    std::size_t einfuegen{0}; ///< behind the last line of the section that is not empty
};

Fundstelle suche(std::string_view inhalt, std::string_view abschnitt, std::string_view schluessel)
{
    Fundstelle fund;
    for (std::size_t ort = 0; ort < inhalt.size();) {
        const Zeile zeile = liesZeile(inhalt, ort);
        ort = zeile.ende;
        if (!fund.abschnitt) {
            fund.abschnitt = istAbschnitt(zeile.text, abschnitt);
            fund.einfuegen = zeile.ende;
            continue;
        }
        if (istAbschnitt(zeile.text))
            break;
        const std::size_t gleichheit = zeile.text.find('=');
        const bool eintrag = gleichheit != std::string_view::npos && !zeile.text.starts_with(';');
        if (eintrag && gleich(zeile.text.substr(0, gleichheit), schluessel)) {
            fund.zeile = zeile;
            break;
        }
        fund.einfuegen = zeile.text.empty() ? fund.einfuegen : zeile.ende;
    }
    return fund;
}

bool istAnfuehrung(char zeichen)
{
    return zeichen == '"' || zeichen == '\'';
}

std::string_view ohneAnfuehrung(std::string_view wert)
{
    const bool paar = wert.size() >= 2 && istAnfuehrung(wert.front()) && wert.front() == wert.back();
    return paar ? wert.substr(1, wert.size() - 2) : wert;
}

bool istName(std::string_view name)
{
    return !trim(name, kLeer).empty() && trim(name, kLeer) == name &&
           std::ranges::none_of(name, [](char zeichen) { return static_cast<unsigned char>(zeichen) < ' '; });
}

bool istAbschnittsname(std::string_view name)
{
    return istName(name) && name.find(']') == std::string_view::npos;
}

bool istSchluessel(std::string_view name)
{
    return istName(name) && name.find('=') == std::string_view::npos && !name.starts_with(';') && !istAbschnitt(name);
}

/// The value as it stands behind the "=".
std::string alsWert(std::string_view wert)
{
    std::string text = nachWindows1252(wert);
    std::ranges::replace_if(
        text, [](char zeichen) { return zeichen == '\r' || zeichen == '\n' || zeichen == '\0'; }, ' ');
    if (trim(text, kLeer) != text || ohneAnfuehrung(text) != text)
        text = '"' + text + '"';
    return text;
}

/// The file's bytes, none if there is no file yet; nothing if there is one that cannot be read.
std::optional<std::string> liesInhalt(const std::filesystem::path& datei)
{
    Dateiinhalt inhalt = leseDatei(datei, kGroessteDatei);
    if (!inhalt.ganz() && inhalt.stand != Dateistand::Fehlt)
        return std::nullopt;
    return std::move(inhalt.bytes);
}

std::string mitZeilenende(std::string inhalt)
{
    if (!inhalt.empty() && !inhalt.ends_with('\n'))
        inhalt += kZeilenende;
    return inhalt;
}

bool hatNamen(const IniEintrag& eintrag)
{
    return istAbschnittsname(eintrag.abschnitt) && istSchluessel(eintrag.schluessel);
}

/// Sets a key in the bytes of a file.
void setze(std::string& inhalt, const IniEintrag& eintrag)
{
    std::string neu = nachWindows1252(eintrag.schluessel) + "=" + alsWert(eintrag.wert);
    neu += kZeilenende;
    const Fundstelle fund = suche(inhalt, eintrag.abschnitt, eintrag.schluessel);
    if (fund.zeile) {
        inhalt.replace(fund.zeile->anfang, fund.zeile->ende - fund.zeile->anfang, neu);
    } else if (fund.abschnitt && fund.einfuegen < inhalt.size()) {
        inhalt.insert(fund.einfuegen, neu);
    } else {
        inhalt = mitZeilenende(std::move(inhalt));
        if (!fund.abschnitt)
            inhalt += "[" + nachWindows1252(eintrag.abschnitt) + "]" + std::string(kZeilenende);
        inhalt += neu;
    }
}

} // namespace

std::string IniLesen(const std::filesystem::path& datei, std::string_view abschnitt, std::string_view schluessel)
{
    const std::string inhalt = liesInhalt(datei).value_or("");
    const Fundstelle fund = suche(inhalt, abschnitt, schluessel);
    if (!fund.zeile)
        return {};
    const std::string_view wert = fund.zeile->text.substr(fund.zeile->text.find('=') + 1);
    return ausWindows1252(ohneAnfuehrung(trim(wert, kLeer)).substr(0, kLaengsterWert));
}

bool IniSchreiben(const std::filesystem::path& datei, std::string_view abschnitt, std::string_view schluessel,
                  std::string_view wert)
{
    const IniEintrag eintrag{abschnitt, std::string(schluessel), std::string(wert)};
    return IniSchreiben(datei, {&eintrag, 1});
}

bool IniSchreiben(const std::filesystem::path& datei, std::span<const IniEintrag> eintraege)
{
    std::optional<std::string> inhalt = liesInhalt(datei);
    if (!inhalt || !std::ranges::all_of(eintraege, hatNamen))
        return false;
    for (const IniEintrag& eintrag : eintraege)
        setze(*inhalt, eintrag);
    return inhalt->size() <= kGroessteDatei && schreibeDatei(datei, *inhalt, Schreibschutz::Achten).gut();
}

bool istWahr(std::string_view text)
{
    constexpr std::array<std::string_view, 4> kWahr = {"True", "Wahr", "1", "-1"};
    const std::string_view wert = trim(text);
    return std::ranges::any_of(kWahr, [&](std::string_view wahr) { return gleichOhneGrossKlein(wahr, wert); });
}

std::string wahrheitswert(bool wert)
{
    return wert ? "True" : "False";
}
