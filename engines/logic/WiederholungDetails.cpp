#include "engines/logic/WiederholungDetails.h"

#include "engines/logic/Ziehungssuche.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

namespace {

constexpr std::size_t kZeilenlaenge = 48;

/// The texts of the draws, each made when it is first needed.
class Ziehungstexte {
public:
    Ziehungstexte(const ZiehungsArchiv& archiv, const Wiederholungsart& art, Detailzeilen& zeilen)
        : archiv_(archiv),
          art_(art),
          zeilen_(zeilen),
          nummern_(static_cast<std::size_t>(archiv.AnzahlZiehungen) + 1)
    {}

    void haengeAn(std::size_t nr)
    {
        if (nummern_[nr] == 0)
            nummern_[nr] = zeilen_.merke(detailzeile(archiv_, nr, art_));
        zeilen_.haengeAn(nummern_[nr]);
    }

private:
    const ZiehungsArchiv& archiv_;
    const Wiederholungsart& art_;
    Detailzeilen& zeilen_;
    std::vector<std::uint32_t> nummern_; ///< 0: not made yet; that number is the dash line's
};

} // namespace

std::uint32_t Detailzeilen::merke(std::string text)
{
    texte_.push_back(std::move(text));
    return static_cast<std::uint32_t>(texte_.size() - 1);
}

std::string detailzeile(const ZiehungsArchiv& archiv, std::size_t nr, const Wiederholungsart& art)
{
    const std::vector<std::string>& daten = art.datumAlle ? archiv.DatumAlle : archiv.Datum;
    std::string zeile;
    zeile.reserve(kZeilenlaenge);
    zeile.append(jahrUndWoche(archiv, nr)).append("  ").append(zahlentext(archiv.gewinnzahlen(nr))).append("   ");
    if (nr < daten.size())
        zeile.append(daten[nr]);
    return zeile;
}

Detailzeilen wiederholungDetails(const ZiehungsArchiv& archiv, int k, const Wiederholungsart& art,
                                 std::span<const std::string> ergebniszeilen, const Fortschritt& fortschritt)
{
    Detailzeilen zeilen;
    const std::uint32_t striche = zeilen.merke(std::string(art.striche, '-'));
    const Ziehungssuche suche(archiv);
    Ziehungstexte texte(archiv, art, zeilen);
    Takt takt(fortschritt);
    std::uint64_t erledigt = 0;
    for (const std::string& ergebniszeile : ergebniszeilen) {
        if (!takt.schritt(erledigt++))
            break;
        zeilen.haengeAn(zeilen.merke("Kombination:" + std::string(zahlenteil(ergebniszeile, k))));
        zeilen.haengeAn(striche);
        const auto zahlen = zahlenDerZeile(ergebniszeile, k);
        suche.mitAllen(std::span(zahlen).first(static_cast<std::size_t>(k)),
                       [&texte](std::size_t nr) { texte.haengeAn(nr); });
        zeilen.haengeAn(striche);
    }
    return zeilen;
}
