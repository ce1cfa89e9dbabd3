#include "tips/logic/Zeitreise.h"

#include "archive/logic/Zahlenmenge.h"
#include "archive/logic/Ziehungskalender.h"
#include "listcontrol/logic/modShellSort.h"
#include "tips/rules/Gewinntexte.h"

#include <algorithm>
#include <tuple>

namespace {

Zahlenmenge einzelne(std::int32_t zahl)
{
    return zahlenmenge(std::span(&zahl, 1));
}

Zeitreisezeile zeileVon(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, std::int16_t spielart,
                        Zahlenmenge gefragte)
{
    const auto nr = static_cast<std::size_t>(ziehungsNr);
    Zeitreisezeile zeile{.Spielart = spielart,
                         .ziehungsNr = ziehungsNr,
                         .jjjj = archiv.jjjj[nr],
                         .sw = archiv.sw[nr],
                         .zahlen = archiv.gewinnzahlen(nr),
                         .zz = archiv.zz[nr]};
    if (ziehungsNr >= superzahlBeginn(spielart))
        zeile.s = archiv.s[nr];
    std::ranges::transform(zeile.zahlen, zeile.getroffen.begin(),
                           [gefragte](std::int32_t zahl) { return (einzelne(zahl) & gefragte) != 0; });
    return zeile;
}

Zeitreise begonnen(const ZiehungsArchiv& archiv, Zeitreiseart art, Zeitreiseform form, std::int16_t spielart)
{
    Zeitreise neu;
    neu.art = art;
    neu.form = form;
    neu.spielarten = {spielart};
    neu.ziehungen = archiv.AnzahlZiehungen;
    if (archiv.AnzahlZiehungen > 0) {
        neu.von = std::min(neu.von, jahrUndWoche(archiv, 1));
        neu.bis = std::max(neu.bis, jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen)));
    }
    return neu;
}

Zeitreise werteTippAus(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t tipSZ, Zeitreise neu)
{
    const std::int16_t spielart = neu.spielarten.front();
    const auto bewerte = neu.form == Zeitreiseform::AlterPlan ? bewerteAlt : bewerteNeu;
    const Zahlenmenge gefragte = zahlenmenge(tip);
    neu.zahlen.assign(tip.begin(), tip.end());
    neu.tipSZ = tipSZ;
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
        const Tippbewertung bewertung = bewerte(archiv, nr, tip, tipSZ, spielart);
        neu.bilanz.zaehle(bewertung);
        if (neu.art == Zeitreiseart::Gewinne && !bewertung.istGewinn())
            continue;
        neu.zeilen.push_back(zeileVon(archiv, nr, spielart, gefragte));
        neu.zeilen.back().klasse = bewertung.klasse;
    }
    return neu;
}

Zeitreise ohneTipp(const ZiehungsArchiv& archiv, std::int16_t spielart)
{
    Zeitreise neu = begonnen(archiv, Zeitreiseart::Alle, Zeitreiseform::EineSpielart, spielart);
    neu.zeilen.reserve(static_cast<std::size_t>(archiv.AnzahlZiehungen));
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
        neu.zeilen.push_back(zeileVon(archiv, nr, spielart, 0));
    return neu;
}

} // namespace

bool Zeitreisefrage::istVollstaendig() const
{
    switch (art) {
    case Zeitreiseart::Gewinne:
        return zahlen.size() == Kombination{}.size();
    case Zeitreiseart::Alle:
        return true;
    default:
        return !zahlen.empty();
    }
}

bool Zeitreise::istVon(const ZiehungsArchiv& archiv) const
{
    return spielarten == std::vector{archiv.Spielart} && ziehungen == archiv.AnzahlZiehungen &&
           (ziehungen == 0 || bis == jahrUndWoche(archiv, static_cast<std::size_t>(ziehungen)));
}

bool Zeitreise::seit1955() const
{
    return std::ranges::any_of(spielarten, istSamstag);
}

Zeitreise evaluateGewinne(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t tipSZ,
                          std::int16_t spielart, Zeitreiseform form)
{
    return werteTippAus(archiv, tip, tipSZ, begonnen(archiv, Zeitreiseart::Gewinne, form, spielart));
}

Zeitreise evaluateAlle(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t tipSZ, std::int16_t spielart)
{
    Zeitreise neu = begonnen(archiv, Zeitreiseart::Alle, Zeitreiseform::EineSpielart, spielart);
    neu.zeilen.reserve(static_cast<std::size_t>(archiv.AnzahlZiehungen));
    return werteTippAus(archiv, tip, tipSZ, std::move(neu));
}

Zeitreise searchKombination(const ZiehungsArchiv& archiv, std::span<const std::int32_t> zahlen, std::int16_t spielart,
                            Zeitreiseform form)
{
    Zeitreise neu = begonnen(archiv, Zeitreiseart::Suche, form, spielart);
    neu.zahlen.assign(zahlen.begin(), zahlen.end());
    const Zahlenmenge gesuchte = zahlenmenge(zahlen);
    for (std::int32_t nr = 1; gesuchte != 0 && nr <= archiv.AnzahlZiehungen; ++nr) {
        const Zahlenmenge gezogene = zahlenmenge(archiv.gewinnzahlen(static_cast<std::size_t>(nr)));
        for (std::size_t i = 0; i < zahlen.size(); ++i)
            neu.bilanz.haeufigkeit[i] += (einzelne(zahlen[i]) & gezogene) != 0;
        if ((gezogene & gesuchte) == gesuchte)
            neu.zeilen.push_back(zeileVon(archiv, nr, spielart, gesuchte));
    }
    return neu;
}

Zeitreise evaluate(const ZiehungsArchiv& archiv, const Zeitreisefrage& frage, std::int16_t spielart, Zeitreiseform form)
{
    if (frage.art == Zeitreiseart::Suche)
        return searchKombination(archiv, frage.zahlen, spielart, form);
    Kombination tip{};
    if (frage.zahlen.size() != tip.size())
        return ohneTipp(archiv, spielart);
    std::ranges::copy(frage.zahlen, tip.begin());
    return frage.art == Zeitreiseart::Alle ? evaluateAlle(archiv, tip, frage.tipSZ, spielart)
                                           : evaluateGewinne(archiv, tip, frage.tipSZ, spielart, form);
}

Zeitreise ohneSpiele(const Zeitreisefrage& frage, Zeitreiseform form)
{
    Zeitreise neu;
    neu.art = frage.art;
    neu.form = form;
    neu.zahlen = frage.zahlen;
    neu.tipSZ = frage.tipSZ;
    return neu;
}

void fuegeHinzu(Zeitreise& summe, const Zeitreise& weitere)
{
    summe.spielarten.insert(summe.spielarten.end(), weitere.spielarten.begin(), weitere.spielarten.end());
    summe.von = std::min(summe.von, weitere.von);
    summe.bis = std::max(summe.bis, weitere.bis);
    summe.ziehungen += weitere.ziehungen;
    summe.bilanz += weitere.bilanz;
    summe.zeilen.insert(summe.zeilen.end(), weitere.zeilen.begin(), weitere.zeilen.end());
}

void ordneNachWoche(Zeitreise& zeitreise)
{
    ShellSort(zeitreise.zeilen, [](const Zeitreisezeile& links, const Zeitreisezeile& rechts) {
        return std::tie(links.jjjj, links.sw) > std::tie(rechts.jjjj, rechts.sw) ? 1 : 0;
    });
}

std::optional<Zeitreisezeile> letzteZiehung(const ZiehungsArchiv& archiv, std::int16_t spielart)
{
    if (archiv.AnzahlZiehungen < 1)
        return std::nullopt;
    const Zeitreisezeile letzte = zeileVon(archiv, archiv.AnzahlZiehungen, spielart, 0);
    return istAufsteigend(letzte.zahlen) ? std::optional(letzte) : std::nullopt;
}

std::chrono::sys_days ziehungstag(const Zeitreisezeile& zeile)
{
    return istSamstag(zeile.Spielart) ? samstagsZiehung(zeile.ziehungsNr) : mittwochsZiehung(zeile.ziehungsNr);
}

std::int32_t zaehlerstand(const Zeitreise& zeitreise, std::int32_t trefferzahl, bool mit)
{
    if (zeitreise.art == Zeitreiseart::Suche)
        return !mit && static_cast<std::size_t>(trefferzahl) == zeitreise.zahlen.size()
                   ? static_cast<std::int32_t>(zeitreise.zeilen.size())
                   : 0;
    const Gewinnklassenplan& plan =
        zeitreise.form == Zeitreiseform::AlterPlan ? GewinnklassenplanAlt : GewinnklassenplanNeu;
    const Gewinnklasse klasse = plan.klasse(trefferzahl, mit);
    if (mit || klasse != Gewinnklasse::Keine)
        return zeitreise.bilanz.anzahl(klasse);
    switch (trefferzahl) {
    case 0:
        return zeitreise.bilanz.Null;
    case 1:
        return zeitreise.bilanz.Einer;
    default:
        return zeitreise.bilanz.Zweier();
    }
}

std::string_view gewinntext(Zeitreiseform form, Gewinnklasse klasse)
{
    return form == Zeitreiseform::AlterPlan ? gewinntextAlt(klasse) : gewinntextNeu(klasse);
}
