#include "fuzz/PruefeHttpKopf.h"

#include "archive/logic/HttpKopf.h"

#include <algorithm>

namespace {

/// The head grows byte by byte on its way; what is known of it must not change then.
std::string pruefeWachsen(std::string_view bytes)
{
    const auto laenge = httpKopfLaenge(bytes);
    const bool moeglich = kannHttpSein(bytes);
    for (std::size_t da = 0; da < std::min<std::size_t>(bytes.size(), 64); ++da) {
        const std::string_view anfang = bytes.substr(0, da);
        if (moeglich && !kannHttpSein(anfang))
            return "the beginning of an answer is none";
        const auto schon = httpKopfLaenge(anfang);
        if (schon && schon != laenge)
            return "the head has two ends";
    }
    return {};
}

} // namespace

std::string pruefeHttpKopf(std::string_view bytes)
{
    const auto laenge = httpKopfLaenge(bytes);
    if (laenge && (*laenge > bytes.size() || bytes[*laenge - 1] != '\n'))
        return "the head ends outside";
    const HttpKopf kopf = liesHttpKopf(bytes);
    if (kopf.status != 0 && (kopf.status < 100 || kopf.status > 999))
        return "no status";
    for (const auto& [name, wert] : kopf.felder)
        if (name.empty() || name.find_first_of(":\n") != std::string::npos || wert.find('\n') != std::string::npos)
            return "no field";
    const auto text = kopf.ContentLength();
    if (text && httpLaenge(*text).value_or(0) < 0)
        return "a negative length";
    return pruefeWachsen(bytes);
}
