#include "archive/logic/Ziehungsdatei.h"

#include "archive/logic/Ziehungskalender.h"
#include "archive/logic/Ziehungssaetze.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Format.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

namespace {

Dateiinhalt leseZiehungsdatei(const std::string& verzeichnis, std::string_view name)
{
    return leseDatei(findeDatei(verzeichnis, name), kGroessteZiehungsdatei);
}

std::size_t letzteNummer(const ZiehungsArchiv& archiv)
{
    return archiv.jjjj.size() - 1;
}

void leereSpalten(ZiehungsArchiv& archiv)
{
    for (ZiehungsArchiv::Spalte* spalte : archiv.spalten())
        spalte->assign(1, 0);
}

/// Appends the records behind the draws in the columns.
void haengeAn(ZiehungsArchiv& archiv, std::span<const Ziehungssatz> saetze)
{
    const std::size_t vorher = archiv.jjjj.size();
    const auto spalten = archiv.spalten();
    for (std::size_t feld = 0; feld < spalten.size(); ++feld) {
        ZiehungsArchiv::Spalte& spalte = *spalten[feld];
        spalte.resize(vorher + saetze.size());
        for (std::size_t i = 0; i < saetze.size(); ++i)
            spalte[vorher + i] = saetze[i][feld];
    }
}

void baueDaten(ZiehungsArchiv& archiv, std::int16_t spielart)
{
    if (istSamstag(spielart))
        BaueSamstagsDaten(archiv);
    else
        BaueMittwochsDaten(archiv);
}

std::string fehltText(std::string_view name)
{
    const std::string datei(name);
    return "ERROR 53: Die Ziehungsdatei " + datei + " wurde nicht gefunden. Die Datei " + datei +
           " muß sich im gleichen Verzeichnis wie das Programm TOMBRIX.EXE befinden.";
}

struct Teil {
    int bit;
    std::int16_t spielart;
    std::int32_t superzahlBeginn;
};

constexpr std::array<Teil, 3> kTeile{{
    {1, Samstagslotto, kSuperzahlBeginnSamstag},
    {2, Mittwochslotto, kSuperzahlBeginnMittwoch},
    {4, MittwochslottoB, kSuperzahlBeginnMittwoch},
}};

void merkeOhneSuperzahl(ZiehungsArchiv& archiv, std::size_t vorher, const Teil& teil)
{
    const std::size_t ende = std::min(vorher + static_cast<std::size_t>(teil.superzahlBeginn), archiv.s.size());
    for (std::size_t nr = vorher + 1; nr < ende; ++nr)
        archiv.s[nr] = kOhneSuperzahl;
}

void uebernimmDaten(ZiehungsArchiv& archiv, std::size_t vorher, const Teil& teil)
{
    const auto anzahl = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    archiv.DatumAlle.resize(vorher + anzahl + 1);
    for (std::size_t nr = 1; nr <= anzahl; ++nr) {
        archiv.DatumAlle[vorher + nr] = archiv.Datum[nr];
        if (teil.spielart == MittwochslottoB)
            archiv.DatumAlle[vorher + nr] += " (B)";
    }
}

/// Appends the draws of one game behind the first `vorher` ones and returns their number. `vorher` 0 starts anew.
std::size_t haengeTeilAn(ZiehungsArchiv& archiv, const Dateiinhalt& inhalt, std::size_t vorher, const Teil& teil)
{
    if (vorher == 0)
        leereSpalten(archiv);
    haengeAn(archiv, liesZiehungssaetze(inhalt).ganze);
    const std::size_t anzahl = letzteNummer(archiv) - vorher;
    merkeOhneSuperzahl(archiv, vorher, teil);
    archiv.AnzahlZiehungen = static_cast<std::int32_t>(anzahl);
    baueDaten(archiv, teil.spielart);
    uebernimmDaten(archiv, vorher, teil);
    return anzahl;
}

std::string feldText(const ZiehungsArchiv& archiv, std::size_t anzahl, std::size_t letzte)
{
    if (anzahl == 0)
        return "-";
    return std::to_string(anzahl) + "  [" + std::to_string(archiv.jjjj[letzte]) + "/" +
           Format(archiv.sw[letzte], "00") + "]";
}

} // namespace

std::string programmVerzeichnis(std::string path)
{
    return mitTrenner(path.empty() ? "." : std::move(path));
}

void LadeZiehungsdatei(ZiehungsArchiv& archiv, const MeldeFehlendeDatei& melde)
{
    const std::int16_t spielart = archiv.Spielart;
    const std::string_view name = ziehungsdateiName(spielart);
    archiv.ProgrammVerzeichnis = programmVerzeichnis(std::move(archiv.ProgrammVerzeichnis));
    archiv.AnzahlZiehungen = 0;
    if (name.empty())
        return;

    Dateiinhalt inhalt = leseZiehungsdatei(archiv.ProgrammVerzeichnis, name);
    while (inhalt.stand == Dateistand::Fehlt) {
        if (!melde || !melde(fehltText(name)))
            return;
        inhalt = leseZiehungsdatei(archiv.ProgrammVerzeichnis, name);
    }
    if (inhalt.stand != Dateistand::Gelesen)
        return;

    leereSpalten(archiv);
    const Ziehungssaetze saetze = liesZiehungssaetze(inhalt);
    haengeAn(archiv, saetze.ganze);
    if (saetze.teilsatz)
        haengeAn(archiv, {&*saetze.teilsatz, 1});
    if (!saetze.fehlerfrei)
        return;
    archiv.AnzahlZiehungen = static_cast<std::int32_t>(letzteNummer(archiv));
    baueDaten(archiv, spielart);
}

std::int32_t zaehleZiehungen(const std::filesystem::path& datei)
{
    const Ziehungssaetze saetze = liesZiehungssaetze(leseDatei(datei, kGroessteZiehungsdatei));
    return saetze.fehlerfrei ? static_cast<std::int32_t>(saetze.ganze.size()) : 0;
}

std::string LadeAlleZiehungen(ZiehungsArchiv& archiv, int maske, const MeldeFehlendeDatei& melde)
{
    const std::string verzeichnis = programmVerzeichnis(archiv.ProgrammVerzeichnis);
    archiv.AnzahlZiehungen = 0;
    std::string felder;
    std::size_t vorher = 0;
    for (const Teil& teil : kTeile) {
        std::size_t anzahl = 0;
        if ((maske & teil.bit) != 0) {
            const std::string_view name = ziehungsdateiName(teil.spielart);
            const Dateiinhalt inhalt = leseZiehungsdatei(verzeichnis, name);
            if (inhalt.stand == Dateistand::Fehlt) {
                if (melde)
                    melde("Die Datei " + verzeichnis + std::string(name) + " wurde nicht gefunden!");
                return "False";
            }
            anzahl = haengeTeilAn(archiv, inhalt, vorher, teil);
        }
        vorher += anzahl;
        felder += (teil.bit == 1 ? "" : ":") + feldText(archiv, anzahl, vorher);
    }
    archiv.AnzahlZiehungen = static_cast<std::int32_t>(letzteNummer(archiv));
    archiv.DatumAlle.resize(std::max(archiv.DatumAlle.size(), archiv.jjjj.size()));
    return felder;
}
