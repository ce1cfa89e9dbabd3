#include "tips/logic/Druckeinstellungen.h"

#include "shell/logic/IniDatei.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

namespace {

constexpr auto kDatei = "druck_settings.ini";
constexpr auto kAbschnitt = "Druck_Settings";
constexpr auto kWaagerecht = "Druck_Versatz_horizontal";
constexpr auto kSenkrecht = "Druck_Versatz_vertikal";
constexpr auto kSpiel77 = "Spiel_77";
constexpr auto kSuper6 = "Super_6";
constexpr auto kGluecksspirale = "Gluecksspirale";
constexpr auto kLaufzeit = "Tippschein_Laufzeit";
constexpr std::array<std::string_view, kLaufzeiten> kLaufzeitwerte{"1", "2", "3", "4", "5", "13", "Dauerspiel"};

int versatz(const std::string& text)
{
    const std::int32_t wert = ganzzahl(text).value_or(0);
    return wert >= -kGroessterVersatz && wert <= kGroessterVersatz ? wert : 0;
}

Laufzeit laufzeit(const std::string& text)
{
    const auto stelle = std::ranges::find(kLaufzeitwerte, text);
    return stelle == kLaufzeitwerte.end() ? Laufzeit::EineWoche
                                          : static_cast<Laufzeit>(stelle - kLaufzeitwerte.begin());
}

std::string jaNein(bool ja)
{
    return ja ? "Ja" : "Nein";
}

} // namespace

Druckeinstellungen liesDruckeinstellungen(const std::filesystem::path& ordner)
{
    const auto lies = [datei = ordner / kDatei](const char* schluessel) {
        return IniLesen(datei, kAbschnitt, schluessel);
    };
    return {.versatz = {versatz(lies(kWaagerecht)), versatz(lies(kSenkrecht))},
            .spiel77 = lies(kSpiel77) == "Ja",
            .super6 = lies(kSuper6) == "Ja",
            .gluecksspirale = lies(kGluecksspirale) == "Ja",
            .laufzeit = laufzeit(lies(kLaufzeit))};
}

bool schreibeDruckeinstellungen(const std::filesystem::path& ordner, const Druckeinstellungen& einstellungen)
{
    const auto schreibe = [datei = ordner / kDatei](const char* schluessel, const std::string& wert) {
        return IniSchreiben(datei, kAbschnitt, schluessel, wert);
    };
    return schreibe(kWaagerecht, std::to_string(einstellungen.versatz.waagerecht)) &&
           schreibe(kSenkrecht, std::to_string(einstellungen.versatz.senkrecht)) &&
           schreibe(kSpiel77, jaNein(einstellungen.spiel77)) && schreibe(kSuper6, jaNein(einstellungen.super6)) &&
           schreibe(kGluecksspirale, jaNein(einstellungen.gluecksspirale)) &&
           schreibe(kLaufzeit, std::string(kLaufzeitwerte[static_cast<std::size_t>(einstellungen.laufzeit)]));
}
