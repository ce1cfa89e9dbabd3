#include "tips/logic/Tippscheindatei.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "tips/logic/Tippscheinname.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kErsteZahl = 8; ///< character at which the first number of a line begins
constexpr std::size_t kZahlenschritt = 3;
constexpr std::size_t kSuperzahl = 26;

std::string tippscheinzeile(std::string_view jjjjsw, const Kombination& zahlen, std::optional<std::int32_t> superzahl)
{
    std::string zeile = Format(jjjjsw, "000000");
    for (const std::int32_t zahl : zahlen)
        zeile += "." + Format(zahl, "@@");
    return zeile + ":" + (superzahl ? Format(*superzahl, "0") : "");
}

/// Takes the next line off `rest`, its end too.
std::string_view naechsteZeile(std::string_view& rest)
{
    const std::size_t ende = std::min(rest.find_first_of(kZeilenende), rest.size());
    const std::string_view zeile = rest.substr(0, ende);
    rest.remove_prefix(ende);
    rest.remove_prefix(rest.starts_with(kZeilenende) ? kZeilenende.size() : std::min<std::size_t>(rest.size(), 1));
    return zeile;
}

std::ptrdiff_t anzahlTipps(const Tippscheinzeilen& schein)
{
    return std::ranges::count_if(schein.zeilen,
                                 [](const std::string& zeile) { return !tippreiheAus(zeile).istLeer(); });
}

/// True if something would be lost by writing `neue` over the slip.
bool haelteMehr(const fs::path& datei, std::string_view neue)
{
    const Tippscheinzeilen alte = liesTippscheinzeilen(datei);
    if (alte.stand == Dateistand::Fehlt)
        return false;
    return !alte.gelesen() || anzahlTipps(alte) > anzahlTipps(tippscheinzeilen(neue));
}

} // namespace

Tippscheinzeilen tippscheinzeilen(std::string_view bytes)
{
    Tippscheinzeilen schein{Dateistand::Gelesen};
    while (!bytes.empty()) {
        if (schein.zeilen.size() == kMaxTippzeilen)
            return {Dateistand::Gelesen, true};
        schein.zeilen.push_back(ausWindows1252(naechsteZeile(bytes).substr(0, kMaxTippzeile)));
    }
    return schein;
}

Tippscheinzeilen liesTippscheinzeilen(const fs::path& datei)
{
    const Dateiinhalt inhalt = leseDatei(datei, kGroessterTippschein);
    if (inhalt.ganz())
        return tippscheinzeilen(inhalt.bytes);
    return {inhalt.stand, !inhalt.vollstaendig};
}

Tippreihe tippreiheAus(std::string_view zeile)
{
    Tippreihe reihe;
    for (std::size_t i = 0; i < reihe.zahlen.size(); ++i)
        reihe.zahlen[i] = Mid(zeile, kErsteZahl + kZahlenschritt * i, 2);
    reihe.superzahl = Mid(zeile, kSuperzahl, 1);
    return reihe;
}

std::vector<Tippreihe> tippreihenAus(const Tippscheinzeilen& zeilen)
{
    std::vector<Tippreihe> reihen;
    for (std::size_t i = 0; i < std::min(zeilen.zeilen.size(), kTippsJeSchein); ++i)
        reihen.push_back(tippreiheAus(zeilen.zeilen[i]));
    return reihen;
}

std::string tippscheinBytes(std::string_view jjjjsw, const std::vector<Tippreihe>& reihen)
{
    std::string bytes;
    for (std::size_t i = 0; i < std::min(reihen.size(), kTippsJeSchein); ++i)
        if (const auto zahlen = kombinationVon(reihen[i]))
            bytes += tippscheinzeile(jjjjsw, *zahlen, superzahlVon(reihen[i])) + std::string(kZeilenende);
    return nachWindows1252(bytes);
}

Tippschein loadSlip(const fs::path& datei)
{
    const Tippscheinzeilen zeilen = liesTippscheinzeilen(datei);
    return {zeilen.stand, zeilen.zuGross, tippreihenAus(zeilen)};
}

DateiErgebnis saveSlip(const fs::path& ordner, std::int16_t spielart, std::string_view jjjjsw,
                       const std::vector<Tippreihe>& reihen)
{
    const fs::path datei = findeDatei(ordner, tippscheinName(spielart, jjjjsw));
    const std::string bytes = tippscheinBytes(jjjjsw, reihen);
    if (haelteMehr(datei, bytes)) {
        fs::path kopie = datei;
        kopie += ".bak";
        if (DateiErgebnis kopiert = kopiereDatei(datei, kopie); !kopiert)
            return kopiert;
    }
    return schreibeDatei(datei, bytes);
}
