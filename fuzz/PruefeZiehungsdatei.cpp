#include "fuzz/PruefeZiehungsdatei.h"

#include "archive/logic/Strukturpruefung.h"
#include "archive/logic/Ziehungsleser.h"

#include <vector>

namespace {

std::string alsText(const Ziehungssatz& satz)
{
    std::string text;
    for (const std::int32_t wert : satz)
        text += (text.empty() ? "" : ",") + std::to_string(wert);
    return text + "\r\n";
}

struct Lesung {
    std::vector<Ziehungssatz> saetze;
    Ziehungsleser::Ergebnis ende = Ziehungsleser::Ergebnis::Satz;
};

Lesung liesAlle(std::string_view bytes, bool vollstaendig)
{
    Ziehungsleser leser(bytes, vollstaendig);
    Lesung lesung;
    Ziehungssatz satz{};
    while ((lesung.ende = leser.lies(satz)) == Ziehungsleser::Ergebnis::Satz && lesung.saetze.size() <= bytes.size())
        lesung.saetze.push_back(satz);
    return lesung;
}

} // namespace

std::string pruefeZiehungsleser(std::string_view bytes)
{
    const Lesung lesung = liesAlle(bytes, true);
    if (lesung.saetze.size() > bytes.size())
        return "mehr Sätze als Bytes";
    std::string geschrieben;
    for (const Ziehungssatz& satz : lesung.saetze)
        geschrieben += alsText(satz);
    const Lesung nochmals = liesAlle(geschrieben, true);
    if (nochmals.saetze != lesung.saetze || nochmals.ende != Ziehungsleser::Ergebnis::Ende)
        return "geschriebene Sätze werden anders gelesen";
    const bool mitStrgZ = bytes.find('\x1a') != std::string_view::npos;
    if (!mitStrgZ && liesAlle(bytes, false).ende == Ziehungsleser::Ergebnis::Ende)
        return "ein Teil einer Datei gilt als ganze";
    return {};
}

std::string pruefeStrukturpruefung(std::string_view bytes)
{
    const Strukturbericht bericht = pruefeStruktur({Dateistand::Gelesen, std::string(bytes)}, {});
    if (!bericht.vollstaendig)
        return "die Prüfung hielt von selbst an";
    for (std::size_t nr = 0; nr < bericht.FalscheZiehungen; ++nr) {
        const std::string zeile = bericht.fehlerzeile(nr);
        if (fehlernummer(zeile) == 0)
            return "eine Fehlerzeile ohne Nummer";
        const std::size_t anfang = zeile.find(" >> ") + 4;
        const std::string satz = zeile.substr(anfang, zeile.size() - anfang - 3);
        if (pruefeDatensatz(satz) != fehlernummer(zeile))
            return "der Satz allein hat einen anderen Fehler";
    }
    const bool eineZeile = bytes.find_first_of("\r\n\x1a") == std::string_view::npos;
    if (eineZeile && pruefeDatensatz(bytes) == 0 && bericht.KorrekteZiehungen != 1)
        return "ein richtiger Satz wird nicht gezählt";
    return {};
}
