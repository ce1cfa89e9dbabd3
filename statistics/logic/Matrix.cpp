#include "statistics/logic/Matrix.h"

#include "shell/logic/Format.h"
#include "statistics/logic/Jahrestabelle.h"
#include "statistics/logic/Spielwochen.h"

#include <algorithm>
#include <limits>

namespace {

constexpr char kExtrem = '\n';
constexpr char kMarkiert = '\x1D';

constexpr Farbpaar kHoechste{.grund = {255, 255, 0}, .schrift = Listenfarben::Schrift};

bool nachWochen(Matrixzeilen zeilen)
{
    return zeilen == Matrixzeilen::Spielwochen;
}

Zahlentabelle zaehleJahre(const Zaehlspalten& gezaehlt, std::span<const std::int32_t> jahre)
{
    std::int32_t von = std::numeric_limits<std::int32_t>::max();
    std::int32_t bis = 0;
    for (const std::int32_t jahr : jahre.subspan(1, static_cast<std::size_t>(gezaehlt.AnzahlZiehungen))) {
        if (jahr < 0 || jahr > kLetztesJahr)
            continue;
        von = std::min(von, jahr);
        bis = std::max(bis, jahr);
    }
    return zaehleTabelle(gezaehlt, jahre, von, bis);
}

} // namespace

Matrix matrix(const ZiehungsArchiv& archiv, Matrixspalten spalten, Matrixzeilen zeilen, ZZModus zzModus)
{
    const Zaehlspalten gezaehlt =
        spalten == Matrixspalten::Superzahlen ? superzahlspalte(archiv) : gewinnzahlspalten(archiv, zzModus);
    Matrix ergebnis{.tabelle = {}, .spalten = spalten, .zeilen = zeilen, .ZaehlModus = zzModus};
    switch (zeilen) {
    case Matrixzeilen::Spielwochen:
        ergebnis.tabelle = zaehleTabelle(gezaehlt, archiv.sw, 1, kSpielwochen);
        break;
    case Matrixzeilen::JahreNachDatum:
        ergebnis.tabelle = zaehleJahre(gezaehlt, datumsjahre(archiv, archiv.DatumAlle));
        break;
    case Matrixzeilen::JahreNachSpielwoche:
        ergebnis.tabelle = zaehleJahre(gezaehlt, archiv.jjjj);
        break;
    }
    return ergebnis;
}

std::string_view zeilentitel(Matrixzeilen zeilen)
{
    return nachWochen(zeilen) ? "SW" : "Jahr";
}

std::string zeilenname(Matrixzeilen zeilen, std::int32_t schluessel)
{
    return Format(schluessel, nachWochen(zeilen) ? "00" : "0000");
}

std::string rekordtext(const Matrix& matrix)
{
    const auto& rekord = matrix.tabelle.rekord;
    if (!rekord)
        return {};
    const bool wochen = nachWochen(matrix.zeilen);
    const std::string text =
        (wochen ? "Maximum zu einer Spielwoche gezogen:  " : "Maximum in einem Spieljahr gezogen:  ") +
        std::to_string(rekord->anzahl);
    if (matrix.spalten == Matrixspalten::Gewinnzahlen)
        return text + " mal (" + zzText(matrix.ZaehlModus) + ")";
    return text + (wochen ? " mal" : " mal ");
}

std::string matrixzelle(const Zahlenzelle& zelle, bool markiert)
{
    std::string text = std::to_string(zelle.anzahl);
    if (zelle.marke == Zellmarke::Maximum)
        text += kExtrem;
    else if (zelle.marke == Zellmarke::Minimum)
        text.insert(text.begin(), kExtrem);
    if (markiert)
        text += kMarkiert;
    return text;
}

Farbpaar matrixfarbe(std::string_view text, int zeile, bool gewaehlt)
{
    if (text.ends_with(kMarkiert))
        return kHoechste;
    if (text.ends_with(kExtrem))
        return kMatrixMaximum;
    if (text.starts_with(kExtrem))
        return kMatrixMinimum;
    return {gewaehlt ? Listenfarben::Hervorgehoben : Listenfarben::zeilengrund(zeile), Listenfarben::Schrift};
}
