#include "tips/logic/Scheinvergleich.h"

#include "archive/logic/Ziehungsmengen.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"
#include "tips/logic/Tippscheinname.h"
#include "tips/rules/Gewinntexte.h"

#include <algorithm>

namespace {

constexpr std::string_view kGroessereGewinne = "**** Größere Gewinne (ab Vierer werden markiert ! ****";
constexpr std::size_t kKopfzeilen = 3;

std::string superzahltext(std::int32_t superzahl)
{
    return superzahl == Scheintipp::kOhneSuperzahl ? "-" : Format(superzahl, "0");
}

std::string kopftext(const std::string& name)
{
    return "*    Tipschein " + grossbuchstaben(Mid(name, 1, 6)) + "/" + grossbuchstaben(Mid(name, 7, 2)) + "     *";
}

/// The row before a tip of a yearly collection: year, tip and number of its line.
std::string jahreszeile(const Scheintipp& tipp, std::string_view zeile)
{
    return Format(Mid(tipp.jjjjsw, 1, 4), "0000") + std::string(Mid(trim(zeile), 8)) + "Tip" +
           std::to_string(tipp.nummer) + ":  ";
}

std::string tippzeile(const Scheintipp& tipp, std::string_view woche)
{
    return "**Tip" + Format(tipp.nummer, "@@@@@") + zahlentext(tipp.zahlen) + "   " + superzahltext(tipp.superzahl) +
           " **/" + std::string(woche);
}

bool istGroesserer(Gewinnklasse klasse)
{
    return klasse != Gewinnklasse::Keine && klasse <= Gewinnklasse::GK6;
}

} // namespace

Scheinvergleich::Scheinvergleich(const ZiehungsArchiv& archiv, std::size_t linie)
    : archiv_(archiv),
      ziehungen_(ziehungsmengen(archiv)),
      superzahlen_(superzahlen(archiv)),
      linie_(linie)
{}

std::vector<std::int32_t> Scheinvergleich::superzahlen(const ZiehungsArchiv& archiv)
{
    std::vector<std::int32_t> alle(static_cast<std::size_t>(archiv.AnzahlZiehungen), kKeine);
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
        for (std::int32_t ziffer = 0; ziffer <= 9; ++ziffer)
            if (superzahlTrifft(archiv, nr, ziffer, archiv.Spielart))
                alle[static_cast<std::size_t>(nr - 1)] = ziffer;
    return alle;
}

bool Scheinvergleich::nimmAuf(const std::string& name, const Tippscheinzeilen& schein, Takt& takt)
{
    beginneSchein(name);
    std::int32_t nummer = 0;
    for (const std::string& zeile : schein.zeilen) {
        if (const std::optional<Scheintipp> tipp = scheintippAus(zeile, ++nummer))
            nimmAuf(*tipp, name, zeile);
        if (!takt.schritt(static_cast<std::uint64_t>(nummer)))
            return false;
    }
    return true;
}

void Scheinvergleich::beginneSchein(const std::string& name)
{
    abschnitte_.push_back({ende_, gewinne_.size(), kopftext(name)});
    ende_ += kKopfzeilen;
}

void Scheinvergleich::nimmAuf(const Scheintipp& tipp, const std::string& name, const std::string& zeile)
{
    const bool jahresdatei = istJahresTippschein(name);
    abschnitte_.push_back(
        {ende_, gewinne_.size(), jahresdatei ? zeile : grossbuchstaben(Mid(name, 7, 2)), tipp, jahresdatei});
    ende_ += jahresdatei ? 3 : 2;
    vergleiche(tipp);
}

void Scheinvergleich::vergleiche(const Scheintipp& tipp)
{
    const Zahlenmenge zahlen = zahlenmenge(tipp.zahlen);
    std::array<std::int32_t, 3> wenige{}; // draws with no hit, one and two
    for (std::size_t i = 0; i < ziehungen_.size(); ++i) {
        const int treffer = gemeinsame(zahlen, ziehungen_[i]);
        if (treffer <= 2)
            ++wenige[static_cast<std::size_t>(treffer)];
        const Gewinnklasse klasse = GewinnklassenplanNeu.klasse(treffer, superzahlen_[i] == tipp.superzahl);
        if (klasse != Gewinnklasse::Keine)
            nimmAuf({static_cast<std::int32_t>(i + 1), klasse});
    }
    bilanz_.Null += wenige[0];
    bilanz_.Einer += wenige[1];
    bilanz_.zweierRoh += wenige[2];
}

void Scheinvergleich::nimmAuf(const Gewinn& gewinn)
{
    ++bilanz_.klassen[static_cast<std::size_t>(gewinn.klasse)];
    if (istGroesserer(gewinn.klasse))
        groessere_.push_back(ende_);
    gewinne_.push_back(gewinn);
    ++ende_;
}

const Scheinvergleich::Abschnitt& Scheinvergleich::abschnittVon(std::size_t zeile) const
{
    return *std::prev(std::ranges::upper_bound(abschnitte_, zeile, {}, &Abschnitt::ersteZeile));
}

/// Null for a row that is none of a win.
const Scheinvergleich::Gewinn* Scheinvergleich::gewinnIn(const Abschnitt& abschnitt, std::size_t zeile) const
{
    const std::size_t kopf = !abschnitt.tipp || abschnitt.jahresdatei ? 3 : 2;
    const std::size_t stelle = zeile - abschnitt.ersteZeile;
    return stelle < kopf ? nullptr : &gewinne_[abschnitt.ersterGewinn + stelle - kopf];
}

std::string Scheinvergleich::kopfzeile(const Abschnitt& abschnitt, std::size_t zeile) const
{
    std::size_t stelle = zeile - abschnitt.ersteZeile;
    if (!abschnitt.tipp)
        return stelle == 1 ? abschnitt.text : std::string(linie_, '*');
    if (abschnitt.jahresdatei && stelle-- == 0)
        return jahreszeile(*abschnitt.tipp, abschnitt.text);
    if (stelle > 0)
        return std::string(linie_, '-');
    return tippzeile(*abschnitt.tipp, abschnitt.jahresdatei ? Mid(abschnitt.tipp->jjjjsw, 5, 2) : abschnitt.text);
}

std::string Scheinvergleich::gewinnzeile(const Gewinn& gewinn) const
{
    const auto nr = static_cast<std::size_t>(gewinn.nr);
    const bool ohne = gewinn.nr < superzahlBeginn(archiv_.Spielart);
    return jahrUndWoche(archiv_, nr) + "  " + zahlentext(archiv_.gewinnzahlen(nr)) + "   " +
           (ohne ? "-" : Format(archiv_.s[nr], "0")) + std::string(gewinntextBericht(gewinn.klasse));
}

std::string Scheinvergleich::zeile(std::size_t nr) const
{
    if (nr >= zeilenzahl())
        return {};
    if (nr == 0)
        return std::string(kGroessereGewinne);
    const Abschnitt& abschnitt = abschnittVon(nr);
    const Gewinn* gewinn = gewinnIn(abschnitt, nr);
    return gewinn ? gewinnzeile(*gewinn) : kopfzeile(abschnitt, nr);
}

std::optional<Scheinvergleich::Anzeige> Scheinvergleich::anzeige(std::size_t zeile) const
{
    if (zeile == 0 || zeile >= zeilenzahl())
        return std::nullopt;
    const Abschnitt& abschnitt = abschnittVon(zeile);
    if (const Gewinn* gewinn = gewinnIn(abschnitt, zeile)) {
        const auto nr = static_cast<std::size_t>(gewinn->nr);
        return Anzeige{archiv_.gewinnzahlen(nr), jahrUndWoche(archiv_, nr)};
    }
    if (!abschnitt.tipp || this->zeile(zeile).starts_with('-'))
        return std::nullopt;
    return Anzeige{abschnitt.tipp->zahlen, "Tip " + std::to_string(abschnitt.tipp->nummer)};
}

Scheingang compareSlipFile(Scheinvergleich& vergleich, const std::filesystem::path& ordner, const std::string& name,
                           const Fortschritt& fortschritt)
{
    return compareAllSlips(vergleich, ordner, {name}, fortschritt);
}

Scheingang compareAllSlips(Scheinvergleich& vergleich, const std::filesystem::path& ordner,
                           const std::vector<std::string>& namen, const Fortschritt& fortschritt)
{
    Scheingang gang;
    std::uint64_t erledigt = 0;
    Takt takt([&](std::uint64_t) { return !fortschritt || fortschritt(erledigt); });
    for (const std::string& name : namen) {
        const Tippscheinzeilen schein = liesTippscheinzeilen(ordner / name);
        if (!schein.gelesen())
            gang.fehler.push_back({name, schein.stand});
        gang.vollstaendig = schein.gelesen() ? vergleich.nimmAuf(name, schein, takt) : takt.schritt(erledigt);
        if (!gang.vollstaendig)
            break;
        ++erledigt;
    }
    return gang;
}
