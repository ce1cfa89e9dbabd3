#include "archive/logic/InternetUrl.h"

#include "shell/logic/Texte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

namespace {

constexpr std::string_view kHex = "0123456789ABCDEF";

/// What may not stand in a path or a query as it is, besides blanks, control characters and everything beyond ASCII.
constexpr std::string_view kZuMaskieren = "\"<>\\^`{|}";

struct Schema {
    std::string_view name;
    int nummer;
    int port;
    bool mitHost;
};

constexpr std::array<Schema, 7> kSchemata{{{"ftp", 1, 21, true},
                                           {"gopher", 2, 70, true},
                                           {"http", INTERNET_SCHEME_HTTP, 80, true},
                                           {"https", 4, 443, true},
                                           {"file", 5, 0, false},
                                           {"news", 6, 0, false},
                                           {"mailto", 7, 0, false}}};

bool istBuchstabe(char zeichen)
{
    return (zeichen >= 'a' && zeichen <= 'z') || (zeichen >= 'A' && zeichen <= 'Z');
}
bool istSteuerzeichen(char zeichen)
{
    const auto wert = static_cast<unsigned char>(zeichen);
    return wert < 0x20 || wert == 0x7F;
}
bool istUnreserviert(char zeichen)
{
    return istBuchstabe(zeichen) || istZiffer(zeichen) || std::string_view("-._~").find(zeichen) != std::string::npos;
}
bool istNichtAscii(char zeichen)
{
    return static_cast<unsigned char>(zeichen) > 0x7F;
}

int hexwert(char zeichen)
{
    if (istZiffer(zeichen))
        return zeichen - '0';
    if (zeichen >= 'a' && zeichen <= 'f')
        return zeichen - 'a' + 10;
    return zeichen >= 'A' && zeichen <= 'F' ? zeichen - 'A' + 10 : -1;
}

/// The byte that the escape at `stelle` stands for.
std::optional<char> entschluesselt(std::string_view text, std::size_t stelle)
{
    if (stelle + 2 >= text.size() || text[stelle] != '%')
        return std::nullopt;
    const int hoch = hexwert(text[stelle + 1]);
    const int tief = hexwert(text[stelle + 2]);
    if (hoch < 0 || tief < 0)
        return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(hoch * 16 + tief));
}

void haengeMaskiertAn(std::string& ziel, char zeichen)
{
    const auto wert = static_cast<unsigned char>(zeichen);
    ziel += '%';
    ziel += kHex[wert >> 4U];
    ziel += kHex[wert & 0xFU];
}

/// Resolves the escapes whose byte `loese` accepts; the others are written with capital digits.
template <class Loese> std::string loeseAuf(std::string_view text, Loese loese)
{
    std::string ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::optional<char> byte = entschluesselt(text, i);
        if (!byte) {
            ergebnis += text[i];
            continue;
        }
        if (loese(*byte))
            ergebnis += *byte;
        else
            haengeMaskiertAn(ergebnis, *byte);
        i += 2;
    }
    return ergebnis;
}

/// Takes "." and ".." out of a path that begins with "/".
std::string ohnePunkte(std::string_view pfad)
{
    std::vector<std::string_view> bleibende;
    bool endetImOrdner = false;
    for (std::size_t ab = 1; ab <= pfad.size();) {
        const std::size_t bis = std::min(pfad.find('/', ab), pfad.size());
        const std::string_view teil = pfad.substr(ab, bis - ab);
        const bool punkt = teil == "." || teil == "..";
        if (!punkt)
            bleibende.push_back(teil);
        else if (teil == ".." && !bleibende.empty())
            bleibende.pop_back();
        endetImOrdner = punkt;
        ab = bis + 1;
    }
    std::string ergebnis;
    for (const std::string_view teil : bleibende)
        ergebnis.append("/").append(teil);
    return endetImOrdner || ergebnis.empty() ? ergebnis + "/" : ergebnis;
}

/// The rough cut of a URL, everything as it stands there.
struct Schnitt {
    std::string_view schema;
    bool mitHost = false; ///< "//" stands behind the scheme
    std::string_view autoritaet;
    std::string_view pfad;
    std::string_view anfrage; ///< with its "?"
};

std::optional<Schnitt> schneide(std::string_view url)
{
    const std::size_t doppelpunkt = url.find(':');
    if (doppelpunkt == std::string_view::npos || doppelpunkt == 0 || !istBuchstabe(url.front()))
        return std::nullopt;
    Schnitt schnitt{url.substr(0, doppelpunkt), false, {}, {}, {}};
    const auto imSchema = [](char z) { return istBuchstabe(z) || istZiffer(z) || z == '+' || z == '-' || z == '.'; };
    if (!std::all_of(schnitt.schema.begin(), schnitt.schema.end(), imSchema))
        return std::nullopt;

    std::string_view rest = url.substr(doppelpunkt + 1);
    rest = rest.substr(0, rest.find('#'));
    if (rest.substr(0, 2) == "//") {
        schnitt.mitHost = true;
        rest.remove_prefix(2);
        const std::size_t ende = std::min(rest.find_first_of("/?"), rest.size());
        schnitt.autoritaet = rest.substr(0, ende);
        rest.remove_prefix(ende);
    }
    const std::size_t frage = std::min(rest.find('?'), rest.size());
    schnitt.pfad = rest.substr(0, frage);
    schnitt.anfrage = rest.substr(frage);
    return schnitt;
}

struct Autoritaet {
    std::string_view benutzer; ///< "user:password", without the "@"
    bool mitBenutzer = false;
    std::string_view host; ///< with the brackets of an IPv6 address
    int port = 0;          ///< 0: none is given
};

bool istHostname(std::string_view host)
{
    if (host.size() > 2 && host.front() == '[' && host.back() == ']') {
        host = host.substr(1, host.size() - 2);
        return host.find(':') != std::string_view::npos && std::all_of(host.begin(), host.end(), [](char zeichen) {
                   return hexwert(zeichen) >= 0 || zeichen == ':' || zeichen == '.';
               });
    }
    return std::all_of(host.begin(), host.end(),
                       [](char zeichen) { return istUnreserviert(zeichen) || istNichtAscii(zeichen); });
}

/// Nothing if the text is no port; 0 if it is empty.
std::optional<int> liesPort(std::string_view text)
{
    constexpr int kHoechster = 65535;
    int port = 0;
    if (text.empty())
        return port;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (fehler != std::errc() || ende != text.data() + text.size() || port < 1 || port > kHoechster)
        return std::nullopt;
    return port;
}

std::optional<Autoritaet> teileAutoritaet(std::string_view text)
{
    Autoritaet teile;
    if (const std::size_t at = text.rfind('@'); at != std::string_view::npos) {
        teile.mitBenutzer = true;
        teile.benutzer = text.substr(0, at);
        text.remove_prefix(at + 1);
    }
    const std::size_t klammer = text.rfind(']');
    const std::size_t doppelpunkt = text.find(':', klammer == std::string_view::npos ? 0 : klammer);
    teile.host = text.substr(0, doppelpunkt);
    const auto port = liesPort(doppelpunkt == std::string_view::npos ? "" : text.substr(doppelpunkt + 1));
    if (!port || !istHostname(teile.host) || teile.benutzer.find('@') != std::string_view::npos)
        return std::nullopt;
    teile.port = *port;
    return teile;
}

const Schema* findeSchema(std::string_view name)
{
    const auto* schema =
        std::find_if(kSchemata.begin(), kSchemata.end(), [name](const Schema& eines) { return eines.name == name; });
    return schema == kSchemata.end() ? nullptr : schema;
}

std::optional<std::string> kanonischeAutoritaet(std::string_view text)
{
    const std::optional<Autoritaet> teile = teileAutoritaet(text);
    if (!teile)
        return std::nullopt;
    std::string ergebnis;
    if (teile->mitBenutzer)
        ergebnis = maskiere(teile->benutzer) + "@";
    // Of the letters of a host only the ASCII ones have a lower case that every resolver agrees on.
    for (const char zeichen : teile->host)
        ergebnis += zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen - 'A' + 'a') : zeichen;
    if (teile->port != 0)
        ergebnis += ":" + std::to_string(teile->port);
    return ergebnis;
}

std::string kanonischerPfad(std::string_view pfad, bool mitHost)
{
    // Stray "%" are escaped first, so that nothing resolved here can grow into a new escape.
    std::string einheitlich = loeseAuf(maskiere(pfad), istUnreserviert);
    if (!mitHost)
        return einheitlich;
    return einheitlich.empty() ? "/" : ohnePunkte(einheitlich);
}

bool bleibtImPfad(char zeichen)
{
    return istSteuerzeichen(zeichen) || std::string_view("%/?#").find(zeichen) != std::string_view::npos;
}

bool passen(const UrlTeile& teile)
{
    return teile.Scheme.size() <= 32 && teile.HostName.size() <= 256 && teile.UserName.size() <= 128 &&
           teile.Password.size() <= 128 && teile.UrlPath.size() <= 2048 && teile.ExtraInfo.size() <= 1024;
}

bool setzeAutoritaet(UrlTeile& teile, std::string_view text)
{
    const std::optional<Autoritaet> autoritaet = teileAutoritaet(text);
    if (!autoritaet)
        return false;
    const auto alle = [](char) { return true; };
    const std::size_t trenner = std::min(autoritaet->benutzer.find(':'), autoritaet->benutzer.size());
    teile.UserName = loeseAuf(autoritaet->benutzer.substr(0, trenner), alle);
    if (trenner < autoritaet->benutzer.size())
        teile.Password = loeseAuf(autoritaet->benutzer.substr(trenner + 1), alle);
    teile.HostName = trim(autoritaet->host, "[]");
    if (autoritaet->port != 0)
        teile.nPort = autoritaet->port;
    return true;
}

} // namespace

std::string maskiere(std::string_view text)
{
    std::string ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char zeichen = text[i];
        const bool verboten = istSteuerzeichen(zeichen) || istNichtAscii(zeichen) || zeichen == ' ' ||
                              kZuMaskieren.find(zeichen) != std::string_view::npos;
        if (verboten || (zeichen == '%' && !entschluesselt(text, i)))
            haengeMaskiertAn(ergebnis, zeichen);
        else
            ergebnis += zeichen;
    }
    return ergebnis;
}

std::optional<std::string> InternetCanonicalizeUrlA(std::string_view url)
{
    url = trim(url);
    if (url.size() > kMaxUrl || std::any_of(url.begin(), url.end(), istSteuerzeichen))
        return std::nullopt;
    const std::optional<Schnitt> schnitt = schneide(url);
    if (!schnitt)
        return std::nullopt;
    std::string kanonisch = kleinbuchstaben(schnitt->schema) + ":";
    if (schnitt->mitHost) {
        const std::optional<std::string> autoritaet = kanonischeAutoritaet(schnitt->autoritaet);
        if (!autoritaet)
            return std::nullopt;
        kanonisch += "//" + *autoritaet;
    }
    kanonisch += kanonischerPfad(schnitt->pfad, schnitt->mitHost) + maskiere(schnitt->anfrage);
    if (kanonisch.size() > kMaxUrl)
        return std::nullopt;
    return kanonisch;
}

std::optional<UrlTeile> InternetCrackUrlA(std::string_view url)
{
    const std::optional<Schnitt> schnitt = schneide(url);
    if (!schnitt)
        return std::nullopt;
    UrlTeile teile;
    teile.Scheme = schnitt->schema;
    const Schema* schema = findeSchema(teile.Scheme);
    if (schema) {
        teile.nScheme = schema->nummer;
        teile.nPort = schema->port;
    }
    if (schnitt->mitHost && !setzeAutoritaet(teile, schnitt->autoritaet))
        return std::nullopt;
    teile.UrlPath = loeseAuf(schnitt->pfad, [](char zeichen) { return !bleibtImPfad(zeichen); });
    teile.ExtraInfo = schnitt->anfrage;
    const bool hostFehlt = schema && schema->mitHost && teile.HostName.empty();
    if (hostFehlt || !passen(teile))
        return std::nullopt;
    return teile;
}

std::optional<std::string> dateinameAusPfad(std::string_view urlPath)
{
    const std::string_view name = urlPath.substr(urlPath.rfind('/') + 1);
    const bool getrennt = name.find('\\') != std::string_view::npos || name.find("%2F") != std::string_view::npos ||
                          name.find("%2f") != std::string_view::npos;
    if (name.empty() || name == "." || name == ".." || getrennt ||
        std::any_of(name.begin(), name.end(), istSteuerzeichen))
        return std::nullopt;
    return std::string(name);
}
