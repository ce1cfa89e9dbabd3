#include "tools/architektur/Stockwerke.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <set>

namespace {

using std::filesystem::path;
using Einschluesse = std::map<std::string, std::vector<std::string>>; ///< of each file, both from the root of the tree

bool istQuelltext(const path& datei)
{
    return datei.extension() == ".h" || datei.extension() == ".cpp";
}

/// The first `teile` folders of a file: "shell/logic" of "shell/logic/Format.h".
std::string ordner(const std::string& datei, int teile)
{
    std::size_t ende = 0;
    for (int i = 0; i < teile && ende != std::string::npos; ++i)
        ende = datei.find('/', ende + (i > 0 ? 1 : 0));
    return datei.substr(0, ende);
}

/// What a file includes in quotes.
std::vector<std::string> einschluesseVon(const path& datei)
{
    constexpr std::string_view kAnfang = "#include \"";
    std::vector<std::string> gefunden;
    std::ifstream strom(datei);
    for (std::string zeile; std::getline(strom, zeile);)
        if (zeile.starts_with(kAnfang))
            gefunden.push_back(zeile.substr(kAnfang.size(), zeile.find('"', kAnfang.size()) - kAnfang.size()));
    return gefunden;
}

/// Hidden folders and what is built hold no source text.
bool istTeil(const std::filesystem::directory_entry& eintrag)
{
    const std::string name = eintrag.path().filename().string();
    return eintrag.is_directory() && !name.starts_with('.') && name != "build";
}

Einschluesse lies(const path& wurzel)
{
    Einschluesse alle;
    for (const auto& teil : std::filesystem::directory_iterator(wurzel))
        if (istTeil(teil))
            for (const auto& eintrag : std::filesystem::recursive_directory_iterator(teil))
                if (istQuelltext(eintrag.path()))
                    alle[eintrag.path().lexically_relative(wurzel).generic_string()] = einschluesseVon(eintrag.path());
    return alle;
}

class Pruefung {
public:
    Pruefung(const Einschluesse& einschluesse, const std::vector<std::string>& stockwerke)
        : einschluesse_(einschluesse),
          stockwerke_(stockwerke)
    {}

    std::vector<std::string> befunde()
    {
        for (const auto& [datei, ziele] : einschluesse_) {
            for (const std::string& ziel : ziele)
                pruefePfeil(datei, ziel);
            if (!besucht_.contains(datei))
                sucheKreis(datei);
        }
        return befunde_;
    }

private:
    std::optional<std::size_t> stockwerk(const std::string& datei) const
    {
        const auto treffer = std::find(stockwerke_.begin(), stockwerke_.end(), ordner(datei, 2));
        if (treffer == stockwerke_.end())
            return std::nullopt;
        return static_cast<std::size_t>(treffer - stockwerke_.begin());
    }

    void pruefePfeil(const std::string& datei, const std::string& ziel)
    {
        const auto von = stockwerk(datei);
        const auto nach = stockwerk(ziel);
        if (von && !nach)
            befunde_.push_back(datei + " includes " + ziel + ", which is on no floor");
        else if (von && *nach > *von)
            befunde_.push_back(datei + " includes upwards: " + ziel);
        else if (!von && ziel.find("/tests/") != std::string::npos && ordner(ziel, 1) != ordner(datei, 1))
            befunde_.push_back(datei + " borrows from other tests: " + ziel);
    }

    void sucheKreis(const std::string& datei)
    {
        besucht_.insert(datei);
        weg_.push_back(datei);
        const auto ziele = einschluesse_.find(datei);
        for (const std::string& ziel : ziele == einschluesse_.end() ? std::vector<std::string>{} : ziele->second) {
            const auto anfang = std::find(weg_.begin(), weg_.end(), ziel);
            if (anfang != weg_.end())
                meldeKreis(anfang);
            else if (!besucht_.contains(ziel))
                sucheKreis(ziel);
        }
        weg_.pop_back();
    }

    void meldeKreis(std::vector<std::string>::const_iterator anfang)
    {
        std::string kreis;
        for (auto datei = anfang; datei != weg_.end(); ++datei)
            kreis += *datei + " -> ";
        befunde_.push_back("circle: " + kreis + *anfang);
    }

    const Einschluesse& einschluesse_;
    const std::vector<std::string>& stockwerke_;
    std::set<std::string> besucht_;
    std::vector<std::string> weg_; ///< of includes from the file where the search began
    std::vector<std::string> befunde_;
};

} // namespace

std::vector<std::string> pruefeStockwerke(const path& wurzel, const std::vector<std::string>& stockwerke)
{
    const Einschluesse einschluesse = lies(wurzel);
    return Pruefung(einschluesse, stockwerke).befunde();
}
