#include "archive/logic/Ziehungsleser.h"

#include "shell/logic/Texte.h"

#include <cstddef>
#include <limits>

namespace {

constexpr char kStrgZ = '\x1A';

bool istLeerzeichen(char zeichen)
{
    return zeichen == ' ' || zeichen == '\t';
}

bool istZeilenende(char zeichen)
{
    return zeichen == '\r' || zeichen == '\n';
}

// "0" stands for any digit.
constexpr std::string_view kNormsatz = "0000,00,00,00,00,00,00,00,00,0\r\n";

// How far a byte may stand above that of the form.
constexpr auto kSpielraum = [] {
    std::array<unsigned char, kNormsatz.size()> spielraum{};
    for (std::size_t i = 0; i < spielraum.size(); ++i)
        spielraum[i] = kNormsatz[i] == '0' ? 9 : 0;
    return spielraum;
}();

constexpr std::uint64_t kGroessterBetrag = std::numeric_limits<std::int32_t>::max();

} // namespace

Ziehungsleser::Ziehungsleser(std::string_view bytes, bool vollstaendig)
    : anfang_(bytes.data()),
      stelle_(bytes.data()),
      ende_(bytes.data() + bytes.size()),
      vollstaendig_(vollstaendig)
{}

void Ziehungsleser::ueberspringeLeerzeichen()
{
    while (stelle_ != ende_ && istLeerzeichen(*stelle_))
        ++stelle_;
}

/// True if there was a line end.
bool Ziehungsleser::ueberspringeLeerzeilen()
{
    bool zeilenende = false;
    while (stelle_ != ende_ && (istLeerzeichen(*stelle_) || istZeilenende(*stelle_)))
        zeilenende |= istZeilenende(*stelle_++);
    return zeilenende;
}

/// Steps over the comma or line end behind a value. The end of the file ends a value too, the end of a part does not:
/// the number may go on.
bool Ziehungsleser::beendeWert()
{
    ueberspringeLeerzeichen();
    if (stelle_ == ende_)
        return vollstaendig_;
    if (*stelle_ == kStrgZ)
        return true;
    const char zeichen = *stelle_;
    if (zeichen != ',' && !istZeilenende(zeichen))
        return false;
    ++stelle_;
    if (zeichen == '\r' && stelle_ != ende_ && *stelle_ == '\n')
        ++stelle_;
    return true;
}

bool Ziehungsleser::liesZahl(std::int32_t& zahl)
{
    ueberspringeLeerzeichen();
    const bool negativ = stelle_ != ende_ && *stelle_ == '-';
    if (negativ || (stelle_ != ende_ && *stelle_ == '+'))
        ++stelle_;
    const std::uint64_t grenze = kGroessterBetrag + (negativ ? 1 : 0);
    const char* stelle = stelle_;
    std::uint64_t betrag = 0;
    for (; stelle != ende_ && istZiffer(*stelle) && betrag <= grenze; ++stelle)
        betrag = betrag * 10 + static_cast<unsigned char>(*stelle - '0');
    const bool gelesen = stelle != stelle_ && betrag <= grenze;
    stelle_ = stelle;
    satzende_ = static_cast<std::size_t>(stelle - anfang_);
    if (!gelesen || !beendeWert())
        return false;
    const auto wert = static_cast<std::int64_t>(betrag);
    zahl = static_cast<std::int32_t>(negativ ? -wert : wert);
    return true;
}

/// Reads a record that stands in the form in which the program itself writes it, a line end behind it. False leaves
/// everything as it was: the record may still be one.
bool Ziehungsleser::liesGenormt(Ziehungssatz& satz)
{
    if (static_cast<std::size_t>(ende_ - stelle_) < kNormsatz.size())
        return false;
    unsigned char zuWeit = 0;
    for (std::size_t i = 0; i < kNormsatz.size(); ++i) {
        const auto abstand = static_cast<unsigned char>(stelle_[i] - kNormsatz[i]);
        zuWeit |= static_cast<unsigned char>(abstand > kSpielraum[i] ? 1 : 0);
    }
    if (zuWeit != 0)
        return false;
    const auto zweistellig = [this](std::size_t i) { return (stelle_[i] - '0') * 10 + (stelle_[i + 1] - '0'); };
    satz[0] = zweistellig(0) * 100 + zweistellig(2);
    for (std::size_t feld = 1; feld < satz.size() - 1; ++feld)
        satz[feld] = zweistellig(2 + 3 * feld);
    satz.back() = stelle_[29] - '0';
    stelle_ += kNormsatz.size();
    satzende_ = static_cast<std::size_t>(stelle_ - anfang_) - kZeilenende.size();
    return true;
}

Ziehungsleser::Ergebnis Ziehungsleser::lies(Ziehungssatz& satz)
{
    if (liesGenormt(satz))
        return Ergebnis::Satz;
    satz.fill(0);
    const bool leerzeile = ueberspringeLeerzeilen();
    if (stelle_ == ende_)
        return vollstaendig_ ? Ergebnis::Ende : Ergebnis::Bruch;
    if (*stelle_ == kStrgZ)
        return Ergebnis::Ende;
    if (leerzeile)
        return Ergebnis::Bruch;
    for (std::int32_t& zahl : satz)
        if (!liesZahl(zahl))
            return Ergebnis::Bruch;
    return Ergebnis::Satz;
}
