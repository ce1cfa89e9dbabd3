#include "archive/logic/Ziehungssaetze.h"

#include "shell/logic/Format.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::size_t kMaxSaetze = kMaxZiehungenJeDatei;
constexpr std::size_t kKuerzesterSatz = std::string_view("1,1,1,1,1,1,1,1,1,1\n").size();

} // namespace

Ziehungssaetze liesZiehungssaetze(std::string_view bytes, bool vollstaendig)
{
    Ziehungssaetze saetze;
    saetze.ganze.reserve(std::min(bytes.size() / kKuerzesterSatz + 1, kMaxSaetze));
    Ziehungsleser leser(bytes, vollstaendig);
    Ziehungssatz satz{};
    Ziehungsleser::Ergebnis ergebnis = leser.lies(satz);
    while (ergebnis == Ziehungsleser::Ergebnis::Satz && saetze.ganze.size() < kMaxSaetze) {
        saetze.ganze.push_back(satz);
        saetze.ende = leser.satzende();
        ergebnis = leser.lies(satz);
    }
    saetze.fehlerfrei = ergebnis == Ziehungsleser::Ergebnis::Ende;
    if (!saetze.fehlerfrei && saetze.ganze.size() < kMaxSaetze)
        saetze.teilsatz = satz;
    return saetze;
}

Ziehungssaetze liesZiehungssaetze(const Dateiinhalt& inhalt)
{
    return liesZiehungssaetze(inhalt.bytes, inhalt.vollstaendig);
}

std::string datensatz(const Ziehungssatz& satz)
{
    std::string text = Format(satz.front(), "0000");
    for (std::size_t feld = 1; feld < satz.size() - 1; ++feld)
        text += "," + Format(satz[feld], "00");
    return text + "," + Format(satz.back(), "0");
}
