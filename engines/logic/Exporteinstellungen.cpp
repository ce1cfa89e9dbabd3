#include "engines/logic/Exporteinstellungen.h"

#include "shell/logic/IniDatei.h"
#include "shell/logic/Zahlen.h"

#include <vector>

namespace {

constexpr std::string_view kOrdner = "Save_Path";
constexpr std::string_view kTrenner = "Separator";
constexpr std::string_view kEndung = "Extension";
constexpr std::string_view kEineDatei = "EineDatei";
constexpr std::string_view kNummerierung = "Nummerierung";
constexpr std::string_view kBereich = "Bereich";

constexpr std::size_t kDateiwahlen = 2; ///< one file, several files

std::string optionsname(std::string_view option, std::size_t index)
{
    return std::string(option) + "(" + std::to_string(index) + ")";
}

/// The one option that is on; 0 if none is, or several.
std::size_t liesOption(const std::filesystem::path& ini, std::string_view abschnitt, std::string_view option,
                       std::size_t anzahl)
{
    std::size_t gewaehlte = 0;
    std::size_t eingeschaltete = 0;
    for (std::size_t i = 0; i < anzahl; ++i) {
        if (istWahr(IniLesen(ini, abschnitt, optionsname(option, i)))) {
            gewaehlte = i;
            ++eingeschaltete;
        }
    }
    return eingeschaltete == 1 ? gewaehlte : 0;
}

Zahlenbereich liesBereich(const std::filesystem::path& ini)
{
    const auto von = ganzzahl(IniLesen(ini, kBereich, "von"));
    const auto bis = ganzzahl(IniLesen(ini, kBereich, "bis"));
    return von && bis && gibtEs(*von) && gibtEs(*bis) && *von < *bis ? Zahlenbereich{*von, *bis} : Zahlenbereich{};
}

std::string liesOrdner(const std::filesystem::path& ini)
{
    std::string ordner = IniLesen(ini, kOrdner, "SavePath");
    return std::filesystem::path(ordner).is_absolute() ? ordner : std::string();
}

} // namespace

Exporteinstellungen liesExporteinstellungen(const std::filesystem::path& ini)
{
    return {.ordner = liesOrdner(ini),
            .trenner = liesOption(ini, kTrenner, "optSep", kExporttrenner.size()),
            .endung = liesOption(ini, kEndung, "optEx", kExportendungen.size()),
            .geteilt = liesOption(ini, kEineDatei, "optAll", kDateiwahlen) == 1,
            .nummeriert = istWahr(IniLesen(ini, kNummerierung, "chkKN")),
            .bereich = liesBereich(ini)};
}

bool schreibeExporteinstellungen(const std::filesystem::path& ini, const Exporteinstellungen& einstellungen)
{
    std::vector<IniEintrag> eintraege{{kOrdner, "SavePath", einstellungen.ordner}};
    const auto optionen = [&](std::string_view abschnitt, std::string_view option, std::size_t anzahl, std::size_t an) {
        for (std::size_t i = 0; i < anzahl; ++i)
            eintraege.push_back({abschnitt, optionsname(option, i), wahrheitswert(i == an)});
    };
    optionen(kTrenner, "optSep", kExporttrenner.size(), einstellungen.trenner);
    optionen(kEndung, "optEx", kExportendungen.size(), einstellungen.endung);
    optionen(kEineDatei, "optAll", kDateiwahlen, einstellungen.geteilt ? 1 : 0);
    eintraege.push_back({kNummerierung, "chkKN", wahrheitswert(einstellungen.nummeriert)});
    eintraege.push_back({kBereich, "von", std::to_string(einstellungen.bereich.von)});
    eintraege.push_back({kBereich, "bis", std::to_string(einstellungen.bereich.bis)});
    return IniSchreiben(ini, eintraege);
}
