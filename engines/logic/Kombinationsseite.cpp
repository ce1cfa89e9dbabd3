#include "engines/logic/Kombinationsseite.h"

#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferliste.h"
#include "engines/logic/Zahlenspalten.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

namespace {

constexpr auto kTrennung = " | ";

} // namespace

std::vector<Kombinationszeile> kombinationsseite(const ZiehungsArchiv& archiv, std::int32_t erste,
                                                 std::int32_t superzahl)
{
    const Zahlenspalten spalten(archiv, superzahl);
    std::vector<Kombinationszeile> seite;
    for (std::int32_t nummer = erste; nummer < erste + kZeilenJeSeite && nummer <= kKombinationen6aus49; ++nummer) {
        const Kombination zahlen = KombinationAusNummer(nummer);
        seite.push_back({nummer, zahlen, spalten.zaehle(zahlen)});
    }
    return seite;
}

std::string kombinationszeile(const Kombinationszeile& zeile)
{
    const Trefferzaehler& zaehler = zeile.zaehler;
    std::string text =
        Format(Format(zeile.nummer, "##,###,###"), "@@@@@@@@@@") + "   " + zahlentext(zeile.zahlen) + " " + kTrennung;
    for (std::size_t richtige = 6; richtige >= 3; --richtige) {
        text += Format(zaehler.mitSuperzahl[richtige], "@@") + kTrennung;
        text += Format(zaehler.ohneSuperzahl[richtige], richtige == 3 ? "@@@" : "@@") + kTrennung;
    }
    return text + Format(zaehler.mitSuperzahl[2], "@@") + kTrennung + "GF: " + Format(zaehler.Gewinnfaelle(), "000");
}
