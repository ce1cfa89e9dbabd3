#include "shell/logic/Format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>

namespace {

constexpr char kDezimalzeichen = ',';
constexpr char kGruppenzeichen = '.';

/// The digits of a decimal number without its sign. Longest is a 64-bit whole number or a shortest double.
class Dezimalzahl {
public:
    explicit Dezimalzahl(std::uint64_t betrag)
    {
        if (betrag != 0) {
            char* const ende = std::to_chars(feld_.data() + 1, feld_.data() + feld_.size(), betrag).ptr;
            anzahl_ = ende - feld_.data() - 1;
            vorn_ = anzahl_;
        }
    }

    /// `betrag` is finite and not negative.
    explicit Dezimalzahl(double betrag)
    {
        if (betrag == 0)
            return;
        std::array<char, 32> text{};
        char* const ende =
            std::to_chars(text.data(), text.data() + text.size(), betrag, std::chars_format::scientific).ptr;
        const char* const e = std::find(text.data(), ende, 'e');
        for (const char* zeichen = text.data(); zeichen != e; ++zeichen)
            if (*zeichen != '.')
                feld_[static_cast<std::size_t>(++anzahl_)] = *zeichen;
        int hochzahl = 0;
        std::from_chars(e[1] == '+' ? e + 2 : e + 1, ende, hochzahl);
        vorn_ = hochzahl + 1;
    }

    void malHundert() { vorn_ += 2; }

    /// Rounds to `stellen` places behind the decimal sign, halves away from zero.
    void runde(std::ptrdiff_t stellen)
    {
        const std::ptrdiff_t behalten = vorn_ + stellen;
        if (behalten < anzahl_) {
            const bool auf = behalten >= 0 && ziffern()[behalten] >= '5';
            anzahl_ = std::max<std::ptrdiff_t>(behalten, 0);
            if (auf)
                zaehleHoch();
        }
        while (anzahl_ > 0 && ziffern()[anzahl_ - 1] == '0')
            --anzahl_;
        if (anzahl_ == 0)
            vorn_ = 0;
    }

    bool istNull() const { return anzahl_ == 0; }
    std::ptrdiff_t stellenVorn() const { return std::max<std::ptrdiff_t>(vorn_, 0); }
    std::ptrdiff_t stellenHinten() const { return std::max<std::ptrdiff_t>(anzahl_ - vorn_, 0); }

    /// The digit of 10 to the power `stelle`.
    char ziffer(std::ptrdiff_t stelle) const
    {
        const std::ptrdiff_t ort = vorn_ - 1 - stelle;
        return ort < 0 || ort >= anzahl_ ? '0' : ziffern()[ort];
    }

private:
    char* ziffern() { return feld_.data() + anfang_; }
    const char* ziffern() const { return feld_.data() + anfang_; }

    void zaehleHoch()
    {
        std::ptrdiff_t stelle = anzahl_ - 1;
        while (stelle >= 0 && ziffern()[stelle] == '9')
            ziffern()[stelle--] = '0';
        if (stelle >= 0) {
            ++ziffern()[stelle];
            return;
        }
        --anfang_; // the spare place in front
        ziffern()[0] = '1';
        ++anzahl_;
        ++vorn_;
    }

    std::array<char, 24> feld_{};
    std::ptrdiff_t anfang_{1};
    std::ptrdiff_t anzahl_{0};
    std::ptrdiff_t vorn_{0}; ///< digits before the decimal sign; below 0: zeros stand right behind it
};

/// Calls `jedes(zeichen, woertlich)` for each character of the mask that shows, with quotes and backslashes resolved,
/// until it gives false. Returns how many bytes of the mask lie before that place.
template <class Jedes> std::size_t durchlaufe(std::string_view maske, Jedes jedes)
{
    bool inAnfuehrung = false;
    std::size_t i = 0;
    while (i < maske.size()) {
        const std::size_t anfang = i;
        char zeichen = maske[i++];
        if (zeichen == '"') {
            inAnfuehrung = !inAnfuehrung;
            continue;
        }
        const bool maskiert = !inAnfuehrung && zeichen == '\\' && i < maske.size();
        if (maskiert)
            zeichen = maske[i++];
        if (!jedes(zeichen, inAnfuehrung || maskiert))
            return anfang;
    }
    return maske.size();
}

bool istPlatz(char zeichen, bool woertlich)
{
    return !woertlich && (zeichen == '0' || zeichen == '#');
}

/// What a number mask asks for.
struct Zahlmaske {
    explicit Zahlmaske(std::string_view maske)
    {
        const std::size_t punkt =
            durchlaufe(maske, [](char zeichen, bool woertlich) { return woertlich || zeichen != '.'; });
        vorn = maske.substr(0, punkt);
        dezimal = punkt < maske.size();
        hinten = dezimal ? maske.substr(punkt + 1) : std::string_view{};
        liesVorn();
        liesHinten();
    }

    void liesVorn()
    {
        durchlaufe(vorn, [this](char zeichen, bool woertlich) {
            if (istPlatz(zeichen, woertlich)) {
                ++plaetzeVorn;
                nullenVorn += zeichen == '0' || nullenVorn > 0 ? 1 : 0;
            } else if (!woertlich) {
                gruppen = gruppen || zeichen == ',';
                prozent = prozent || zeichen == '%';
            }
            return true;
        });
    }

    void liesHinten()
    {
        durchlaufe(hinten, [this](char zeichen, bool woertlich) {
            if (istPlatz(zeichen, woertlich)) {
                ++plaetzeHinten;
                nullenHinten = zeichen == '0' ? plaetzeHinten : nullenHinten;
            } else if (!woertlich) {
                prozent = prozent || zeichen == '%';
            }
            return true;
        });
    }

    std::string_view vorn;
    std::string_view hinten;
    bool dezimal{false};
    bool gruppen{false};
    bool prozent{false};
    std::ptrdiff_t plaetzeVorn{0};
    std::ptrdiff_t nullenVorn{0}; ///< digits always shown before the decimal sign
    std::ptrdiff_t plaetzeHinten{0};
    std::ptrdiff_t nullenHinten{0}; ///< digits always shown behind it
};

void schreibeVorn(std::string& ziel, const Dezimalzahl& zahl, const Zahlmaske& maske)
{
    const auto stellen = std::max(zahl.stellenVorn(), maske.nullenVorn);
    const auto bis = [&](std::ptrdiff_t von, std::ptrdiff_t ende) {
        for (std::ptrdiff_t stelle = von; stelle >= ende; --stelle) {
            ziel += zahl.ziffer(stelle);
            if (maske.gruppen && stelle > 0 && stelle % 3 == 0)
                ziel += kGruppenzeichen;
        }
    };
    std::ptrdiff_t platz = maske.plaetzeVorn;
    durchlaufe(maske.vorn, [&](char zeichen, bool woertlich) {
        if (istPlatz(zeichen, woertlich)) {
            // Digits that the mask has no place for stand with its first place.
            bis(platz == maske.plaetzeVorn ? stellen - 1 : std::min(platz, stellen) - 1, platz - 1);
            --platz;
        } else if (woertlich || zeichen != ',') {
            ziel += zeichen;
        }
        return true;
    });
    if (maske.plaetzeVorn == 0)
        bis(stellen - 1, 0);
}

void schreibeHinten(std::string& ziel, const Dezimalzahl& zahl, const Zahlmaske& maske)
{
    const auto stellen = std::max(zahl.stellenHinten(), maske.nullenHinten);
    std::ptrdiff_t platz = 0;
    durchlaufe(maske.hinten, [&](char zeichen, bool woertlich) {
        if (!istPlatz(zeichen, woertlich))
            ziel += zeichen;
        else if (platz++ < stellen)
            ziel += zahl.ziffer(-platz);
        return true;
    });
}

std::string formatiere(bool negativ, Dezimalzahl zahl, std::string_view text)
{
    const Zahlmaske maske(text);
    if (maske.prozent)
        zahl.malHundert();
    zahl.runde(maske.plaetzeHinten);
    std::string ergebnis;
    if (negativ && !zahl.istNull())
        ergebnis += '-';
    schreibeVorn(ergebnis, zahl, maske);
    if (maske.dezimal)
        ergebnis += kDezimalzeichen;
    schreibeHinten(ergebnis, zahl, maske);
    return ergebnis;
}

bool istTextmaske(std::string_view maske)
{
    return maske.find('@') != std::string_view::npos;
}

bool istFolgebyte(char zeichen)
{
    return (static_cast<unsigned char>(zeichen) & 0xC0U) == 0x80U;
}

/// Fills the places of a text mask from its right end, or from its left end when it holds a "!".
std::string fuelle(std::string_view text, std::string_view maske)
{
    const auto plaetze = static_cast<std::size_t>(std::ranges::count(maske, '@'));
    const auto folgebytes = static_cast<std::size_t>(std::ranges::count_if(text, istFolgebyte));
    const std::size_t laenge = text.size() - folgebytes;
    const std::size_t leer = plaetze > laenge ? plaetze - laenge : 0;
    std::string ergebnis;
    ergebnis.reserve(leer + text.size());
    if (maske.find('!') == std::string_view::npos)
        ergebnis.append(leer, ' ').append(text);
    else
        ergebnis.append(text).append(leer, ' ');
    return ergebnis;
}

/// A number as it is shown without a mask.
std::string zahltext(double wert)
{
    std::string text(32, '\0');
    wert += 0.0; // no sign before a zero
    text.resize(
        static_cast<std::size_t>(std::to_chars(text.data(), text.data() + text.size(), wert).ptr - text.data()));
    std::ranges::replace(text, '.', kDezimalzeichen);
    return text;
}

/// The number that the whole of `text` holds, with a comma or a point as decimal sign.
std::optional<double> liesZahl(std::string_view text)
{
    std::string zahl(text);
    std::ranges::replace(zahl, kDezimalzeichen, '.');
    double wert = 0;
    const auto [ende, fehler] = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert, std::chars_format::fixed);
    if (fehler != std::errc{} || ende != zahl.data() + zahl.size())
        return std::nullopt;
    return wert;
}

/// Room for a 64-bit number with group points and leading zeros, filled from its end.
constexpr std::size_t kFeld = 64;
constexpr std::size_t kLaengsteEinfacheMaske = 32;

/// True for masks of digit places and group signs alone: those of nearly every list cell.
bool istEinfach(std::string_view maske)
{
    return maske.size() <= kLaengsteEinfacheMaske && maske.find_first_not_of("#0,") == std::string_view::npos;
}

std::string formatiereEinfach(bool negativ, std::uint64_t betrag, std::string_view maske)
{
    const bool gruppen = maske.find(',') != std::string_view::npos;
    const std::size_t ersteNull = std::min(maske.find('0'), maske.size());
    const auto nullen = std::ranges::count_if(maske.substr(ersteNull), [](char zeichen) { return zeichen != ','; });
    std::array<char, kFeld> feld{};
    std::size_t anfang = feld.size();
    const bool vorzeichen = negativ && betrag != 0;
    for (std::ptrdiff_t stelle = 0; betrag != 0 || stelle < nullen; ++stelle, betrag /= 10) {
        if (gruppen && stelle > 0 && stelle % 3 == 0)
            feld[--anfang] = kGruppenzeichen;
        feld[--anfang] = static_cast<char>('0' + betrag % 10);
    }
    if (vorzeichen)
        feld[--anfang] = '-';
    return {feld.data() + anfang, feld.size() - anfang};
}

} // namespace

std::string FormatGanzzahl(bool negativ, std::uint64_t betrag, std::string_view maske)
{
    if (maske.empty() || istTextmaske(maske))
        return fuelle(formatiereEinfach(negativ, betrag, "0"), maske);
    if (istEinfach(maske))
        return formatiereEinfach(negativ, betrag, maske);
    return formatiere(negativ, Dezimalzahl(betrag), maske);
}

std::string Format(double wert, std::string_view maske)
{
    if (!std::isfinite(wert))
        return {};
    if (maske.empty() || istTextmaske(maske))
        return fuelle(zahltext(wert), maske);
    return formatiere(std::signbit(wert), Dezimalzahl(std::abs(wert)), maske);
}

std::string Format(std::string_view text, std::string_view maske)
{
    if (maske.empty() || istTextmaske(maske))
        return fuelle(text, maske);
    const std::optional<double> zahl = liesZahl(text);
    return zahl ? Format(*zahl, maske) : std::string(text);
}

std::string Dezimaltext(double wert, int stellen)
{
    constexpr std::string_view kMaske = "0.###############";
    std::string text = Format(wert, kMaske.substr(0, 2 + static_cast<std::size_t>(std::clamp(stellen, 0, 15))));
    if (text.ends_with(kDezimalzeichen))
        text.pop_back();
    return text;
}
