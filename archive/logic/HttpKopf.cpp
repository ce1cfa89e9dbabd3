#include "archive/logic/HttpKopf.h"

#include "archive/logic/InternetUrl.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view kAnfang = "HTTP/";
constexpr std::string_view kLuft = " \t";

/// Takes the next line off, without its line end.
std::string_view naechsteZeile(std::string_view& rest)
{
    const std::size_t ende = rest.find('\n');
    std::string_view zeile = rest.substr(0, ende);
    rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    if (!zeile.empty() && zeile.back() == '\r')
        zeile.remove_suffix(1);
    return zeile;
}

/// "HTTP/1.1 200 OK" gives 200, anything of another form 0.
int liesStatus(std::string_view zeile)
{
    constexpr std::size_t kVersion = 8;
    if (zeile.substr(0, kAnfang.size()) != kAnfang || zeile.size() < kVersion || !istZiffer(zeile[5]) ||
        zeile[6] != '.' || !istZiffer(zeile[7]))
        return 0;
    zeile.remove_prefix(kVersion);
    const std::string_view status = trim(zeile).substr(0, 3);
    const std::string_view dahinter = trim(zeile).substr(status.size());
    if (zeile.empty() || zeile.front() != ' ' || status.size() != 3 || (!dahinter.empty() && dahinter.front() != ' ') ||
        !std::all_of(status.begin(), status.end(), istZiffer) || status.front() == '0')
        return 0;
    return (status[0] - '0') * 100 + (status[1] - '0') * 10 + (status[2] - '0');
}

std::string base64(std::string_view bytes)
{
    constexpr std::string_view kZeichen = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t gruppe = 0;
        for (std::size_t j = i; j < i + 3; ++j)
            gruppe = gruppe << 8U | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
        for (std::size_t j = 0; j < 4; ++j)
            text += i + j > bytes.size() ? '=' : kZeichen[gruppe >> (18U - 6U * j) & 0x3FU];
    }
    return text;
}

std::string ohneSteuerzeichen(std::string text)
{
    std::erase_if(text, [](char zeichen) { return static_cast<unsigned char>(zeichen) < 0x20 || zeichen == 0x7F; });
    return text;
}

void haengeFeldAn(std::string& text, std::string_view name, std::string wert)
{
    text.append(name).append(": ").append(ohneSteuerzeichen(std::move(wert))).append(kZeilenende);
}

std::string server(const HttpAnfrage& anfrage)
{
    constexpr int kUeblicherPort = 80;
    const bool ipv6 = anfrage.host.find(':') != std::string::npos;
    std::string text = ipv6 ? "[" + anfrage.host + "]" : anfrage.host;
    if (anfrage.port != kUeblicherPort)
        text += ":" + std::to_string(anfrage.port);
    return text;
}

} // namespace

std::optional<std::string_view> HttpKopf::feld(std::string_view name) const
{
    for (const auto& [feldname, wert] : felder)
        if (gleichOhneGrossKlein(feldname, name))
            return wert;
    return std::nullopt;
}

std::optional<std::string_view> HttpKopf::ContentLength() const
{
    constexpr std::string_view kName = "Content-Length";
    const std::optional<std::string_view> laenge = feld(kName);
    if (!laenge || feld("Transfer-Encoding"))
        return std::nullopt;
    const auto widerspricht = [&](const auto& eines) {
        return gleichOhneGrossKlein(eines.first, kName) && eines.second != *laenge;
    };
    return std::any_of(felder.begin(), felder.end(), widerspricht) ? std::nullopt : laenge;
}

std::optional<std::size_t> httpKopfLaenge(std::string_view bytes)
{
    for (std::size_t ende = bytes.find('\n'); ende != std::string_view::npos; ende = bytes.find('\n', ende + 1)) {
        const std::string_view dahinter = bytes.substr(ende + 1, 2);
        if (!dahinter.empty() && dahinter.front() == '\n')
            return ende + 2;
        if (dahinter == kZeilenende)
            return ende + 3;
    }
    return std::nullopt;
}

bool kannHttpSein(std::string_view bytes)
{
    const std::size_t anzahl = std::min(bytes.size(), kAnfang.size());
    return bytes.size() <= kMaxHttpKopf && bytes.substr(0, anzahl) == kAnfang.substr(0, anzahl);
}

HttpKopf liesHttpKopf(std::string_view kopf)
{
    HttpKopf ergebnis;
    std::string_view rest = kopf.substr(0, kMaxHttpKopf);
    ergebnis.status = liesStatus(naechsteZeile(rest));
    while (!rest.empty()) {
        const std::string_view zeile = naechsteZeile(rest);
        if (zeile.empty())
            break;
        const bool fortsetzung = kLuft.find(zeile.front()) != std::string_view::npos;
        const std::size_t doppelpunkt = zeile.find(':');
        if (fortsetzung && !ergebnis.felder.empty())
            ergebnis.felder.back().second.append(" ").append(trim(zeile, kLuft));
        else if (!fortsetzung && doppelpunkt != std::string_view::npos && doppelpunkt > 0)
            ergebnis.felder.emplace_back(zeile.substr(0, doppelpunkt), trim(zeile.substr(doppelpunkt + 1), kLuft));
    }
    return ergebnis;
}

std::optional<std::int64_t> httpLaenge(std::string_view text)
{
    std::int64_t laenge = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), laenge);
    if (fehler != std::errc() || ende != text.data() + text.size() || !istZiffer(text.front()))
        return std::nullopt;
    return laenge;
}

std::string httpAnfragetext(const HttpAnfrage& anfrage)
{
    const std::string host = ohneSteuerzeichen(server(anfrage));
    std::string text = anfrage.verb + " ";
    if (anfrage.ueberProxy)
        text += "http://" + host;
    text.append(maskiere(anfrage.objekt)).append(" ").append(anfrage.version).append(kZeilenende);
    haengeFeldAn(text, "Host", host);
    haengeFeldAn(text, "User-Agent", anfrage.agent);
    haengeFeldAn(text, "Accept-Encoding", "identity");
    haengeFeldAn(text, "Cache-Control", "no-cache");
    haengeFeldAn(text, "Pragma", "no-cache");
    if (!anfrage.benutzer.empty())
        haengeFeldAn(text, "Authorization", "Basic " + base64(anfrage.benutzer + ":" + anfrage.kennwort));
    if (!anfrage.proxyBenutzer.empty())
        haengeFeldAn(text, "Proxy-Authorization",
                     "Basic " + base64(anfrage.proxyBenutzer + ":" + anfrage.proxyKennwort));
    haengeFeldAn(text, "Connection", "close");
    return text.append(kZeilenende);
}
