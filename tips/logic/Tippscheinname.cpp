#include "tips/logic/Tippscheinname.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <system_error>

namespace fs = std::filesystem;

namespace {
constexpr std::string_view kEndung = ".dat";
} // namespace

std::string_view tippscheinPraefix(std::int16_t spielart)
{
    return istSamstag(spielart) ? "S_" : "M_";
}

std::string tippscheinName(std::int16_t spielart, std::string_view jjjjsw)
{
    return std::string(tippscheinPraefix(spielart)) + Format(jjjjsw, "000000") + std::string(kEndung);
}

bool istTippscheinName(std::int16_t spielart, std::string_view name)
{
    const std::string_view praefix = tippscheinPraefix(spielart);
    return name.size() >= praefix.size() + kEndung.size() &&
           gleichOhneGrossKlein(name.substr(0, praefix.size()), praefix) &&
           gleichOhneGrossKlein(name.substr(name.size() - kEndung.size()), kEndung);
}

bool istJahresTippschein(std::string_view name)
{
    return gleichOhneGrossKlein(Mid(name, 7, 2), "al");
}

bool taugtAlsDateiname(std::string_view text)
{
    constexpr std::string_view kVerboten = R"(<>:"/\|?*)";
    return std::ranges::none_of(text, [&](char zeichen) {
        return kVerboten.find(zeichen) != std::string_view::npos || static_cast<unsigned char>(zeichen) < ' ' ||
               zeichen == '\x7F';
    });
}

std::vector<std::string> tippscheinNamen(const fs::path& ordner, std::int16_t spielart)
{
    std::vector<std::string> namen;
    std::error_code fehler;
    fs::directory_iterator eintrag(ordner, fehler);
    while (!fehler && eintrag != fs::directory_iterator()) {
        std::string name = eintrag->path().filename().string();
        std::error_code keineDatei;
        if (istTippscheinName(spielart, name) && eintrag->is_regular_file(keineDatei))
            namen.push_back(std::move(name));
        eintrag.increment(fehler);
    }
    std::ranges::sort(namen, [](const std::string& links, const std::string& rechts) {
        const int ordnung = vergleicheText(links, rechts);
        return ordnung != 0 ? ordnung < 0 : links < rechts;
    });
    return namen;
}
