#include "fuzz/PruefeTippschein.h"

#include "shell/logic/Texte.h"
#include "tips/logic/Tippscheindatei.h"

#include <algorithm>

namespace {

std::vector<Kombination> gueltige(const std::vector<Tippreihe>& reihen)
{
    std::vector<Kombination> alle;
    for (const Tippreihe& reihe : reihen)
        if (const auto zahlen = kombinationVon(reihe))
            alle.push_back(*zahlen);
    return alle;
}

bool zuLang(const std::string& zeile)
{
    return anzahlZeichen(zeile) > kMaxTippzeile || zeile.find_first_of(kZeilenende) != std::string::npos;
}

} // namespace

std::string pruefeTippschein(std::string_view bytes)
{
    const Tippscheinzeilen zeilen = tippscheinzeilen(bytes);
    if (zeilen.zeilen.size() > kMaxTippzeilen || std::ranges::any_of(zeilen.zeilen, zuLang))
        return "eine Zeile oder der ganze Schein ist zu lang";
    const std::vector<Tippreihe> reihen = tippreihenAus(zeilen);
    if (reihen.size() > kTippsJeSchein)
        return "zu viele Tipps";
    const std::string geschrieben = tippscheinBytes("202418", reihen);
    const std::vector<Tippreihe> gelesen = tippreihenAus(tippscheinzeilen(geschrieben));
    if (gueltige(gelesen) != gueltige(reihen) || gelesen.size() != gueltige(reihen).size())
        return "geschriebene Tipps werden anders gelesen";
    if (tippscheinBytes("202418", gelesen) != geschrieben)
        return "gelesene Tipps werden anders geschrieben";
    return {};
}
