#include "tips/logic/Tippscheintexte.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"
#include "tips/logic/Tippscheinname.h"

namespace {

constexpr std::int32_t kLetzteWoche = 53;
constexpr std::size_t kStellen = 6; ///< JJJJSW

} // namespace

std::string_view tippscheinArt(std::int16_t spielart)
{
    return istSamstag(spielart) ? "Samstag-Tipschein" : "Mittwoch-Tipschein";
}

std::string naechsteSpielwoche(const ZiehungsArchiv& archiv)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    const bool imNaechstenJahr = archiv.sw[letzte] >= kLetzteWoche;
    return Format(archiv.jjjj[letzte] + (imNaechstenJahr ? 1 : 0), "0000") +
           Format(imNaechstenJahr ? 1 : archiv.sw[letzte] + 1, "00");
}

bool istSpielwoche(std::string_view antwort)
{
    const std::int32_t woche = fuehrendeZahl(Mid(antwort, kStellen - 1));
    return anzahlZeichen(antwort) == kStellen && taugtAlsDateiname(antwort) && woche >= 1 && woche <= kLetzteWoche;
}
