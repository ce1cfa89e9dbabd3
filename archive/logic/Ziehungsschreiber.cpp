#include "archive/logic/Ziehungsschreiber.h"

#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungssaetze.h"
#include "shell/logic/Dateianhang.h"
#include "shell/logic/Dateisperre.h"
#include "shell/logic/Lesedatei.h"
#include "shell/logic/Texte.h"

#include <chrono>
#include <string>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace {

using enum Schreibausgang;

constexpr std::chrono::seconds kSperrzeit{2};
constexpr std::string_view kGeduldet = " \t\r\n\x1A,"; ///< behind the last record

std::int32_t anzahl(const Ziehungssaetze& saetze)
{
    return static_cast<std::int32_t>(saetze.ganze.size());
}

/// Why the lock was not to be had.
Schreibergebnis ohneSperre(const fs::path& datei)
{
    std::error_code fehler;
    return {fs::is_directory(datei.parent_path(), fehler) ? Besetzt : Schreibfehler};
}

Schreibergebnis bestaetige(const fs::path& datei, const std::string& erwartet, std::int32_t nr)
{
    const Dateiinhalt inhalt = leseDatei(datei, erwartet.size());
    return {inhalt.ganz() && inhalt.bytes == erwartet ? Gut : NichtBestaetigt, nr};
}

/// What stands in the place of all from `ab` on once a record is appended.
struct Anhang {
    std::size_t ab{0};
    std::string bytes;
};

Anhang anhang(std::string_view alt, std::size_t satzende, std::string_view satz)
{
    Anhang neu{satzende, std::string(satz).append(kZeilenende)};
    const std::string_view dahinter = alt.substr(satzende);
    if (satzende == 0)
        return neu;
    if (dahinter.starts_with(kZeilenende))
        neu.ab += kZeilenende.size();
    else if (dahinter.starts_with('\n') || dahinter.starts_with('\r'))
        ++neu.ab;
    else
        neu.bytes.insert(0, kZeilenende);
    return neu;
}

/// To be called by the one who holds the lock, as the next one.
Schreibergebnis haengeAn(const fs::path& datei, std::string_view satz)
{
    const Dateiinhalt inhalt = leseDatei(datei, kGroessteZiehungsdatei);
    if (inhalt.stand == Dateistand::Unlesbar)
        return {Schreibfehler};
    const Ziehungssaetze vorher = liesZiehungssaetze(inhalt);
    if (!vorher.fehlerfrei)
        return {Unlesbar, anzahl(vorher)};
    const Anhang neu = anhang(inhalt.bytes, vorher.ende, satz);
    const std::string erwartet = inhalt.bytes.substr(0, neu.ab) + neu.bytes;
    const Ziehungssaetze nachher = liesZiehungssaetze(erwartet);
    if (!nachher.fehlerfrei || anzahl(nachher) != anzahl(vorher) + 1)
        return {Schreibfehler};
    const bool gehtVerloren = inhalt.bytes.find_first_not_of(kGeduldet, neu.ab) != std::string::npos;
    if ((gehtVerloren && !bewahreAlteFassung(datei)) || !ersetzeDateiende(datei, neu.ab, neu.bytes))
        return {Schreibfehler};
    return bestaetige(datei, erwartet, anzahl(nachher));
}

std::vector<Ziehungssatz> saetzeAus(const ZiehungsArchiv& archiv)
{
    std::vector<Ziehungssatz> saetze;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        saetze.push_back({archiv.jjjj[nr], archiv.sw[nr], archiv.z1[nr], archiv.z2[nr], archiv.z3[nr], archiv.z4[nr],
                          archiv.z5[nr], archiv.z6[nr], archiv.zz[nr], archiv.s[nr]});
    return saetze;
}

Schreibergebnis schreibeNeu(const ZiehungsArchiv& archiv)
{
    const std::string_view name = ziehungsdateiName(archiv.Spielart);
    const fs::path gefunden = findeDatei(archiv.ProgrammVerzeichnis, name);
    const Dateiinhalt inhalt = leseDatei(gefunden, kGroessteZiehungsdatei);
    Ziehungssaetze saetze = liesZiehungssaetze(inhalt);
    if (inhalt.stand == Dateistand::Fehlt)
        saetze.ganze = saetzeAus(archiv);
    const bool leer = inhalt.stand == Dateistand::Fehlt && saetze.ganze.empty();
    if (leer || inhalt.stand == Dateistand::Unlesbar || !saetze.fehlerfrei)
        return {Unlesbar, anzahl(saetze)};
    std::string bytes;
    for (const Ziehungssatz& satz : saetze.ganze)
        bytes.append(datensatz(satz)).append(kZeilenende);
    const fs::path datei = inRichtigerSchreibung(gefunden, name);
    if (!bewahreAlteFassung(datei) || !schreibeDatei(datei, bytes))
        return {Schreibfehler};
    return bestaetige(datei, bytes, anzahl(saetze));
}

} // namespace

Schreibergebnis haengeZiehungAn(const fs::path& datei, std::string_view satz, const Sperrpause& sperrpause)
{
    const auto sperre = Dateisperre::nimm(datei, kSperrzeit, sperrpause);
    return sperre ? haengeAn(datei, satz) : ohneSperre(datei);
}

Schreibergebnis erzeugeZiehungsdatei(const ZiehungsArchiv& archiv, const Sperrpause& sperrpause)
{
    const fs::path datei = findeDatei(archiv.ProgrammVerzeichnis, ziehungsdateiName(archiv.Spielart));
    const auto sperre = Dateisperre::nimm(datei, kSperrzeit, sperrpause);
    return sperre ? schreibeNeu(archiv) : ohneSperre(datei);
}

DateiErgebnis bewahreAlteFassung(const fs::path& datei)
{
    const Lesedatei alte(datei);
    if (alte.stand() == Dateistand::Fehlt || (alte.fehler() == 0 && alte.laenge() == 0))
        return {};
    fs::path kopie = datei;
    kopie += ".alt";
    std::error_code fehler;
    if (zaehleZiehungen(datei) == 0 && fs::exists(kopie, fehler))
        return {};
    return kopiereDatei(datei, kopie);
}
