#include "shell/logic/Zahlen.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

struct Gelesen {
    std::int32_t wert{0};
    std::errc fehler{};
    std::string_view rest;
};

Gelesen lies(std::string_view text)
{
    // from_chars knows no plus sign, and "+-1" is no number.
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    Gelesen ergebnis;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), ergebnis.wert);
    ergebnis.fehler = fehler;
    ergebnis.rest = text.substr(static_cast<std::size_t>(ende - text.data()));
    return ergebnis;
}

} // namespace

std::optional<std::int32_t> ganzzahl(std::string_view text)
{
    const Gelesen gelesen = lies(trim(text));
    if (gelesen.fehler != std::errc{} || !gelesen.rest.empty())
        return std::nullopt;
    return gelesen.wert;
}

std::int32_t fuehrendeZahl(std::string_view text)
{
    const std::string_view zahl = trim(text);
    const Gelesen gelesen = lies(zahl);
    if (gelesen.fehler == std::errc::result_out_of_range) {
        using Grenzen = std::numeric_limits<std::int32_t>;
        return zahl.starts_with('-') ? Grenzen::min() : Grenzen::max();
    }
    return gelesen.wert;
}

double fuehrendeDezimalzahl(std::string_view text)
{
    std::string_view zahl = trim(text);
    if (zahl.starts_with('+') && !zahl.starts_with("+-"))
        zahl.remove_prefix(1);
    double wert = 0;
    const auto [ende, fehler] = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert, std::chars_format::fixed);
    return fehler == std::errc() && std::isfinite(wert) ? wert : 0;
}

std::int64_t rundeZurGeraden(double wert)
{
    using Grenzen = std::numeric_limits<std::int64_t>;
    constexpr double kZuGross = 9223372036854775808.0; // 2 to the power 63
    if (std::isnan(wert))
        return 0;
    if (wert >= kZuGross)
        return Grenzen::max();
    if (wert < -kZuGross)
        return Grenzen::min();
    return static_cast<std::int64_t>(std::nearbyint(wert)); // nobody changes the rounding mode, which is to even
}

std::string zahlentext(std::span<const std::int32_t> zahlen)
{
    std::string text;
    for (const std::int32_t zahl : zahlen) {
        if (!text.empty())
            text += ' ';
        if (zahl >= 0 && zahl <= 99) {
            text += static_cast<char>('0' + zahl / 10);
            text += static_cast<char>('0' + zahl % 10);
        } else {
            text += Format(zahl, "00");
        }
    }
    return text;
}
