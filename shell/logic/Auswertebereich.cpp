#include "shell/logic/Auswertebereich.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr std::int32_t kLetztesJahr = 9999;
constexpr std::size_t kJahresstellen = 4;

bool nurZiffern(std::string_view text)
{
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The ZiehungsNr in a text of digits, one too large for the type being its bound; 0 for any other text.
std::int32_t ziehungsNr(std::string_view text)
{
    return nurZiffern(trim(text)) ? fuehrendeZahl(text) : 0;
}

} // namespace

std::optional<std::int32_t> jahreszahl(std::string_view text)
{
    return text.size() == kJahresstellen && nurZiffern(text) ? ganzzahl(text) : std::nullopt;
}

Meldung falscheJahreszahl()
{
    return {std::string(kLottoNachricht), "Jahreszahlen 4-stellig eingeben !"};
}

Auswertebereich::Auswertebereich(std::int32_t erstesJahr, std::int32_t letztesJahr, std::int32_t anzahlZiehungen)
{
    if (anzahlZiehungen < 1)
        return;
    erstes_ = std::clamp(erstesJahr, 0, kLetztesJahr);
    letztes_ = std::clamp(letztesJahr, 0, kLetztesJahr);
    anzahl_ = anzahlZiehungen;
    erstesJahr_ = Format(erstes_, "0000");
    letztesJahr_ = Format(letztes_, "0000");
    angabe_ = {Bereichsform::Jahre, erstesJahr_, letztesJahr_, std::to_string(anzahl_)};
}

std::vector<std::string> Auswertebereich::jahre() const
{
    std::vector<std::string> eintraege;
    for (std::int32_t jahr = erstes_; jahr <= letztes_; ++jahr)
        eintraege.push_back(Format(jahr, "0000"));
    return eintraege;
}

std::vector<std::string> Auswertebereich::ziehungsnummern() const
{
    std::vector<std::string> eintraege;
    eintraege.reserve(static_cast<std::size_t>(anzahl_));
    for (std::int32_t nr = 1; nr <= anzahl_; ++nr)
        eintraege.push_back(Format(Format(nr, "###0"), "@@@@"));
    return eintraege;
}

void Auswertebereich::zeigeBisZiehung()
{
    angabe_.form = Bereichsform::BisZiehung;
    angabe_.von = erstesJahr_;
    angabe_.bis = letztesJahr_;
}

bool Auswertebereich::gleichesArchiv(const Auswertebereich& anderer) const
{
    return erstes_ == anderer.erstes_ && letztes_ == anderer.letztes_ && anzahl_ == anderer.anzahl_;
}

void Auswertebereich::folge(Auswertebereich neuer)
{
    const bool nachZiehung = angabe_.form == Bereichsform::BisZiehung;
    const bool andereZiehung = angabe_.bisZiehung != std::to_string(anzahl_);
    if (nachZiehung) {
        neuer.zeigeBisZiehung();
    } else {
        neuer.setzeVon(std::move(angabe_.von));
        neuer.setzeBis(std::move(angabe_.bis));
    }
    if (nachZiehung || andereZiehung)
        neuer.setzeBisZiehung(std::move(angabe_.bisZiehung));
    *this = std::move(neuer);
}

Bereichspruefung Auswertebereich::pruefe()
{
    const auto von = jahreszahl(angabe_.von);
    const auto bis = jahreszahl(angabe_.bis);
    if (!von || !bis)
        return {std::nullopt, falscheJahreszahl()};
    if (*bis < *von)
        return {std::nullopt, Meldung{"", "\"Bis\" muss grösser \"Von\" sein!"}};
    return {Ziehungsbereich{*von, *bis, letzteZiehung()}, std::nullopt};
}

std::int32_t Auswertebereich::letzteZiehung()
{
    if (angabe_.form == Bereichsform::Jahre)
        return Ziehungsbereich::kAlleZiehungen;
    const std::int32_t nr = ziehungsNr(angabe_.bisZiehung);
    if (nr > anzahl_) {
        angabe_.bisZiehung = std::to_string(anzahl_);
        return anzahl_;
    }
    return nr;
}

std::string hinweisVon(std::string_view erstesSpieljahr)
{
    return "Jahreszahl nicht kleiner " + std::string(erstesSpieljahr) + " wählen.";
}
