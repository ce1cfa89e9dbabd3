#include "archive/logic/Onlineaktualisierung.h"

#include "archive/logic/Vorlaeufige.h"
#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungsschreiber.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr auto kZip = "ziehungen.zip";

/// The name under which the program leaves the file of a task.
std::string dateiname(Onlineaufgabe aufgabe)
{
    const std::int16_t spielart = spielartVon(aufgabe);
    return spielart == SpielartStart ? kZip : std::string(ziehungsdateiName(spielart));
}

const char* kopiename(Onlineaufgabe aufgabe)
{
    switch (aufgabe) {
    case Onlineaufgabe::Samstag:
        return "Salotto-kopie.dat";
    case Onlineaufgabe::Mittwoch:
        return "Malotto-kopie.dat";
    case Onlineaufgabe::Zip:
        break;
    }
    return "ziehungen-kopie.zip";
}

bool existiert(const fs::path& pfad)
{
    std::error_code egal;
    return fs::exists(pfad, egal);
}

bool istDasselbe(const fs::path& a, const fs::path& b)
{
    std::error_code egal;
    return fs::equivalent(a, b, egal);
}

bool hatGroesse(const fs::path& datei, std::int64_t bytes)
{
    std::error_code fehler;
    return fs::file_size(datei, fehler) == static_cast<std::uintmax_t>(bytes) && !fehler;
}

void entferne(const fs::path& pfad)
{
    std::error_code egal;
    fs::remove(pfad, egal);
}

bool benenneUm(const fs::path& von, const fs::path& nach)
{
    std::error_code fehler;
    fs::rename(von, nach, fehler);
    return !fehler;
}

/// The file of that name, which from here on has exactly this spelling if it exists.
fs::path inRichtigerSchreibung(const fs::path& ordner, const std::string& name)
{
    const fs::path datei = findeDatei(ordner, name);
    const fs::path richtig = ordner / name;
    return datei != richtig && existiert(datei) && !benenneUm(datei, richtig) ? datei : richtig;
}

} // namespace

std::int16_t spielartVon(Onlineaufgabe aufgabe)
{
    switch (aufgabe) {
    case Onlineaufgabe::Samstag:
        return Samstagslotto;
    case Onlineaufgabe::Mittwoch:
        return Mittwochslotto;
    case Onlineaufgabe::Zip:
        break;
    }
    return SpielartStart;
}

std::int32_t zaehleZiehungen(const fs::path& ordner, std::int16_t spielart)
{
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.ProgrammVerzeichnis = ordner.string();
    LadeZiehungsdatei(archiv, {});
    return archiv.AnzahlZiehungen;
}

bool gibtZiehungsdatei(const fs::path& ordner, std::int16_t spielart)
{
    return existiert(findeDatei(ordner, ziehungsdateiName(spielart)));
}

Onlineaktualisierung::Onlineaktualisierung(Onlineaufgabe aufgabe, fs::path programmVerzeichnis, fs::path ordner)
    : aufgabe_(aufgabe),
      programm_(std::move(programmVerzeichnis)),
      ordner_(std::move(ordner))
{}

Onlineaktualisierung::~Onlineaktualisierung()
{
    verwirfEmpfang();
}

void Onlineaktualisierung::verwirfEmpfang()
{
    std::error_code egal;
    if (!empfang_.empty())
        fs::remove_all(empfang_, egal);
    empfang_.clear();
}

bool Onlineaktualisierung::beginne()
{
    raeumeVorlaeufigeAuf(ordner_);
    raeumeVorlaeufigeAuf(programm_);
    const auto empfang = legeVorlaeufigenOrdnerAn(ordner_);
    if (!empfang)
        return false;
    empfang_ = *empfang;
    if (aufgabe_ != Onlineaufgabe::Zip)
        oldCount_ = zaehleZiehungen(programm_, spielartVon(aufgabe_));
    const fs::path datei = findeDatei(programm_, dateiname(aufgabe_));
    if (existiert(datei))
        kopiert_ = kopiereDatei(datei, findeDatei(programm_, kopiename(aufgabe_))).gut();
    return true;
}

std::string Onlineaktualisierung::empfangsordner() const
{
    return mitTrenner(empfang_.string());
}

Onlineausgang Onlineaktualisierung::schliesseAb(std::int64_t empfangeneBytes)
{
    const Onlineausgang ausgang = urteile(empfangeneBytes);
    if (aufgabe_ != Onlineaufgabe::Zip || ausgang != Onlineausgang::Uebernommen)
        stelleHer();
    verwirfEmpfang();
    return ausgang;
}

Onlineausgang Onlineaktualisierung::urteile(std::int64_t empfangeneBytes)
{
    const fs::path neue = empfangene();
    if (neue.empty())
        return Onlineausgang::KeineNeue;
    // A text that the full disk has cut at a line end would pass the count.
    if (!hatGroesse(neue, empfangeneBytes))
        return istEigene(neue) && aufgabe_ != Onlineaufgabe::Zip ? Onlineausgang::Abgewiesen : Onlineausgang::KeineNeue;
    return lege(neue);
}

/// The file that has come; empty if none has.
fs::path Onlineaktualisierung::empfangene() const
{
    std::error_code fehler;
    const fs::directory_iterator eintrag(empfang_, fehler);
    return fehler || eintrag == fs::directory_iterator() ? fs::path() : eintrag->path();
}

/// True if what has come belongs in the place of the task's own file.
bool Onlineaktualisierung::istEigene(const fs::path& neue) const
{
    return istDasselbe(ordner_, programm_) && gleichOhneGrossKlein(neue.filename().string(), dateiname(aufgabe_));
}

Onlineausgang Onlineaktualisierung::lege(const fs::path& neue)
{
    if (istEigene(neue))
        return aufgabe_ == Onlineaufgabe::Zip ? legeZip(neue) : legeZiehungsdatei(neue);
    // Another name or another folder: nobody looks at it, but what it takes the place of is kept.
    const fs::path ziel = findeDatei(ordner_, neue.filename().string());
    if (bewahreAlteFassung(ziel))
        kopiereDatei(neue, ziel);
    return Onlineausgang::KeineNeue;
}

Onlineausgang Onlineaktualisierung::legeZip(const fs::path& neue)
{
    const fs::path ziel = findeDatei(programm_, kZip);
    const bool sicher = kopiert_ || !existiert(ziel);
    return sicher && kopiereDatei(neue, ziel) ? Onlineausgang::Uebernommen : Onlineausgang::KeineNeue;
}

Onlineausgang Onlineaktualisierung::legeZiehungsdatei(const fs::path& neue)
{
    const std::int32_t newCount = zaehleZiehungen(empfang_, spielartVon(aufgabe_));
    if (newCount == 0 || oldCount_ > newCount)
        return Onlineausgang::Abgewiesen;
    const fs::path ziel = inRichtigerSchreibung(programm_, dateiname(aufgabe_));
    // The same file once more: the content kept from before the last change is worth more than a second copy of this.
    if (gleicherInhalt(neue, ziel))
        return Onlineausgang::Uebernommen;
    return bewahreAlteFassung(ziel) && kopiereDatei(neue, ziel) ? Onlineausgang::Uebernommen
                                                                : Onlineausgang::Abgewiesen;
}

/// Takes the copy away. If there is no file, the copy becomes the file.
void Onlineaktualisierung::stelleHer() const
{
    const fs::path kopie = findeDatei(programm_, kopiename(aufgabe_));
    if (!existiert(kopie))
        return;
    const std::string name = dateiname(aufgabe_);
    if (existiert(findeDatei(programm_, name)))
        entferne(kopie);
    else
        benenneUm(kopie, programm_ / name);
}

Meldung erfolgsmeldung(const ZiehungsArchiv& archiv)
{
    const bool samstag = istSamstag(archiv.Spielart);
    const auto nr = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    std::string zahlen;
    for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
        zahlen += (zahlen.empty() ? "" : ", ") + Format(zahl, "@@");
    std::string text = samstag ? "Letzte eingetragene Samstags-Ziehung: " : "Letzte eingetragene Mittwochs-Ziehung: ";
    text += "\n" + archiv.Datum[nr] + "\n" + jahrUndWoche(archiv, nr) + (samstag ? " -> " : " ->  ") + zahlen +
            (samstag ? "  SZ: " : "   SZ: ") + Format(archiv.s[nr], "@@");
    return {"Lotto-Aktualisieren-Nachricht", text};
}

Meldung abweisung()
{
    return {"", "Fehler: Die vom Server geladene Datei ist fehlerhaft oder ist älter als die Ziehungsdatei auf ihrem "
                "Rechner! Ihre Ziehungsdatei wird wieder hergestellt."};
}

Meldung downloadHilfe()
{
    return {"Download-Info",
            "Das Programm baut selbst keine Verbindung zum Internet auf. Es muss eine Verbindung ins Internet aktiv "
            "sein. Ist keine Verbindung aktiv, erscheint in der Statuszeile die Meldung \"Server nicht gefunden\".\n\n"
            "Die Ziehungsdateien stehen ca. 10 min nach jeder Ziehung aktualisiert zum Download bereit.\n\n"
            "Vor dem Download wird eine Kopie der jeweiligen Ziehungsdatei erstellt. Dies dient der Sicherheit für den "
            "Fall, dass keine Verbindung zum Server hergestellt werden kann oder Übertragungsprobleme auftreten.  Wenn "
            "die Aktualisierung erfolgreich war, werden die Kopien wieder gelöscht.\n\n"
            "Bei Verlust oder Defekt der Ziehungsdateien (Salotto.dat, Malotto.dat, Mblotto.dat) können diese zusammen "
            "als Zip-File neu geladen werden. Sie müssen dann noch mit einem Zip-Programm entpackt werden."};
}
