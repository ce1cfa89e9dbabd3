#include "tips/logic/Tipphaeufigkeit.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

namespace {

void zaehle(Tipphaeufigkeit& haeufigkeit, const Tippreihe& reihe)
{
    for (const std::string& text : reihe.zahlen)
        if (const std::int32_t zahl = ganzzahl(text).value_or(0); gibtEs(zahl))
            ++haeufigkeit.anzahl[static_cast<std::size_t>(zahl)];
}

template <class Zeile> std::vector<std::string> jeZahl(const Tipphaeufigkeit& haeufigkeit, Zeile zeile)
{
    std::vector<std::string> zeilen;
    for (std::size_t zahl = 1; zahl < haeufigkeit.anzahl.size(); ++zahl)
        zeilen.push_back(zeile(Format(zahl, "@@"), haeufigkeit.anzahl[zahl]));
    return zeilen;
}

} // namespace

Tipphaeufigkeit countTippedNumbers(const std::filesystem::path& ordner, const std::vector<std::string>& namen,
                                   const Fortschritt& fortschritt)
{
    Tipphaeufigkeit haeufigkeit;
    Takt takt(fortschritt);
    std::uint64_t erledigt = 0;
    for (const std::string& name : namen) {
        const Tippscheinzeilen schein = liesTippscheinzeilen(ordner / name);
        if (!schein.gelesen())
            haeufigkeit.gang.fehler.push_back({name, schein.stand});
        for (const std::string& zeile : schein.zeilen)
            zaehle(haeufigkeit, tippreiheAus(zeile));
        if (!takt.schritt(++erledigt)) {
            haeufigkeit.gang.vollstaendig = false;
            break;
        }
    }
    return haeufigkeit;
}

std::vector<std::string> haeufigkeitNachZahl(const Tipphaeufigkeit& haeufigkeit)
{
    return jeZahl(haeufigkeit, [](const std::string& zahl, std::int32_t anzahl) {
        return zahl + "   mal die  " + std::to_string(anzahl);
    });
}

std::vector<std::string> haeufigkeitNachAnzahl(const Tipphaeufigkeit& haeufigkeit)
{
    return jeZahl(haeufigkeit, [](const std::string& zahl, std::int32_t anzahl) {
        return Format(anzahl, "@@@@") + " Zahl  " + zahl + " -> " + std::to_string(anzahl) + "  mal";
    });
}
