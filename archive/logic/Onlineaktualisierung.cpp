#include "archive/logic/Onlineaktualisierung.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungsschreiber.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Dateisperre.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Vorlaeufige.h"

#include <chrono>
#include <string_view>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr auto kZip = "ziehungen.zip";
constexpr std::string_view kAlteFassung = ".alt";

/// How long the exchange waits for another program's writing.
constexpr std::chrono::seconds kGeduld{2};

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

/// The Spielart whose Ziehungsdatei has that name, in whatever case; 0 if it is none.
std::int16_t spielartMitDatei(std::string_view name)
{
    for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB})
        if (gleichOhneGrossKlein(name, ziehungsdateiName(spielart)))
            return spielart;
    return SpielartStart;
}

/// True for a file that bears the name of a Ziehungsdatei, be it broken, or holds draws under another one.
bool istZiehungsdatei(const fs::path& datei)
{
    const bool heisstSo = spielartMitDatei(datei.filename().string()) != SpielartStart;
    return (heisstSo && existiert(datei)) || zaehleZiehungen(datei) > 0;
}

/// True for the names under which the program keeps its own copies and unfinished files: nothing that comes from
/// outside may lie there.
bool istArbeitsname(const std::string& name)
{
    for (const Onlineaufgabe aufgabe : {Onlineaufgabe::Zip, Onlineaufgabe::Samstag, Onlineaufgabe::Mittwoch})
        if (gleichOhneGrossKlein(name, kopiename(aufgabe)))
            return true;
    const std::string klein = kleinbuchstaben(name);
    return klein.starts_with('.') || klein.ends_with(kAlteFassung);
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
    const fs::path datei = findeDatei(programm_, dateiname(aufgabe_));
    if (existiert(datei))
        kopiert_ = kopiereDatei(datei, kopie()).gut();
    return true;
}

std::string Onlineaktualisierung::empfangsordner() const
{
    return mitTrenner(empfang_.string());
}

fs::path Onlineaktualisierung::kopie() const
{
    return findeDatei(programm_, kopiename(aufgabe_));
}

Onlineausgang Onlineaktualisierung::schliesseAb(std::optional<std::int64_t> empfangeneBytes,
                                                const std::function<bool()>& beimWarten)
{
    const fs::path neue = empfangene();
    const Platz platz = platzFuer(neue.empty() ? fs::path(dateiname(aufgabe_)) : neue);
    const auto sperre = Dateisperre::nimm(platz.datei, kGeduld, beimWarten);
    Onlineausgang ausgang = Onlineausgang::KeineNeue;
    if (!neue.empty())
        ausgang = sperre ? urteile(neue, platz, empfangeneBytes) : Onlineausgang::Besetzt;
    if (aufgabe_ != Onlineaufgabe::Zip || ausgang != Onlineausgang::Uebernommen)
        stelleHer();
    verwirfEmpfang();
    return ausgang;
}

/// The file that has come; empty if none has.
fs::path Onlineaktualisierung::empfangene() const
{
    std::error_code fehler;
    const fs::directory_iterator eintrag(empfang_, fehler);
    return fehler || eintrag == fs::directory_iterator() ? fs::path() : eintrag->path();
}

Onlineaktualisierung::Platz Onlineaktualisierung::platzFuer(const fs::path& neue) const
{
    const std::string name = neue.filename().string();
    const bool beimProgramm = istDasselbe(ordner_, programm_);
    const std::int16_t spielart = beimProgramm ? spielartMitDatei(name) : std::int16_t{SpielartStart};
    const bool eigener = beimProgramm && gleichOhneGrossKlein(name, dateiname(aufgabe_));
    std::string_view richtig = name;
    if (spielart != SpielartStart)
        richtig = ziehungsdateiName(spielart);
    else if (eigener)
        richtig = kZip;
    return {findeDatei(ordner_, richtig), eigener, spielart};
}

Onlineausgang Onlineaktualisierung::urteile(const fs::path& neue, const Platz& platz, std::optional<std::int64_t> bytes)
{
    const bool zip = platz.eigener && aufgabe_ == Onlineaufgabe::Zip;
    const bool ziehungen = !zip && (platz.spielart != SpielartStart || istZiehungsdatei(platz.datei));
    // A text that the full disk or an impatient client has cut at a line end would pass the count.
    const bool ganz = bytes && hatGroesse(neue, *bytes);
    if (istArbeitsname(platz.datei.filename().string()) || (ziehungen && !ganz))
        return Onlineausgang::Abgewiesen;
    if (!ganz)
        return Onlineausgang::KeineNeue;
    if (zip)
        return legeZip(neue, platz);
    if (ziehungen)
        return legeZiehungsdatei(neue, platz);
    // Nobody looks at another file, but what it takes the place of is kept.
    if (bewahreAlteFassung(platz.datei))
        kopiereDatei(neue, platz.datei);
    return Onlineausgang::KeineNeue;
}

Onlineausgang Onlineaktualisierung::legeZip(const fs::path& neue, const Platz& platz) const
{
    const bool sicher = kopiert_ || !existiert(platz.datei);
    return sicher && kopiereDatei(neue, platz.datei) ? Onlineausgang::Uebernommen : Onlineausgang::KeineNeue;
}

Onlineausgang Onlineaktualisierung::legeZiehungsdatei(const fs::path& neue, const Platz& platz) const
{
    const bool nurKopie = platz.eigener && !existiert(platz.datei);
    const std::int32_t oldCount = zaehleZiehungen(nurKopie ? kopie() : platz.datei);
    const std::int32_t newCount = zaehleZiehungen(neue);
    if (newCount == 0 || oldCount > newCount)
        return Onlineausgang::Abgewiesen;
    const fs::path ziel = platz.spielart == SpielartStart
                              ? platz.datei
                              : inRichtigerSchreibung(platz.datei, ziehungsdateiName(platz.spielart));
    // The same file once more: the content kept from before the last change is worth more than a second copy of this.
    if (!gleicherInhalt(neue, ziel) && !(bewahreAlteFassung(ziel) && kopiereDatei(neue, ziel)))
        return Onlineausgang::Abgewiesen;
    return platz.eigener ? Onlineausgang::Uebernommen : Onlineausgang::KeineNeue;
}

/// Takes the copy away. If there is no file, the copy becomes the file.
void Onlineaktualisierung::stelleHer() const
{
    const fs::path alte = kopie();
    if (!existiert(alte))
        return;
    const std::string name = dateiname(aufgabe_);
    if (existiert(findeDatei(programm_, name)))
        entferne(alte);
    else
        benenneUm(alte, programm_ / name);
}
