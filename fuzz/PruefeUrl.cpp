#include "fuzz/PruefeUrl.h"

#include "archive/logic/HttpKopf.h"
#include "archive/logic/InternetUrl.h"
#include "archive/logic/cURL.h"

#include <algorithm>

namespace {

bool hatSteuerzeichen(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char zeichen) { return static_cast<unsigned char>(zeichen) < 0x20 || zeichen == 0x7F; });
}

bool sindImRahmen(const UrlTeile& teile)
{
    return teile.Scheme.size() <= 32 && teile.HostName.size() <= 256 && teile.UserName.size() <= 128 &&
           teile.Password.size() <= 128 && teile.UrlPath.size() <= 2048 && teile.ExtraInfo.size() <= 1024 &&
           teile.nPort >= 0 && teile.nPort <= 65535;
}

/// The head has exactly the lines that the program writes, whatever the URL was.
bool istEineAnfrage(const UrlTeile& teile)
{
    HttpAnfrage anfrage;
    anfrage.verb = "GET";
    anfrage.objekt = teile.UrlPath + teile.ExtraInfo;
    anfrage.version = "HTTP/1.1";
    anfrage.host = teile.HostName;
    anfrage.port = teile.nPort;
    anfrage.benutzer = teile.UserName;
    anfrage.kennwort = teile.Password;
    const std::string text = httpAnfragetext(anfrage);
    const std::string_view ersteZeile = std::string_view(text).substr(0, text.find("\r\n"));
    const auto zeilen = std::count(text.begin(), text.end(), '\n');
    return zeilen == (teile.UserName.empty() ? 8 : 9) && std::count(text.begin(), text.end(), '\r') == zeilen &&
           std::count(ersteZeile.begin(), ersteZeile.end(), ' ') == 2 && httpKopfLaenge(text) == text.size();
}

/// Put together again, path and query come apart as before.
bool kehrtWieder(const UrlTeile& teile)
{
    const auto kanonisch = InternetCanonicalizeUrlA("http://h" + maskiere(teile.UrlPath + teile.ExtraInfo));
    if (!kanonisch)
        return true; // too long now
    const auto nochmal = InternetCrackUrlA(*kanonisch);
    return nochmal && nochmal->UrlPath == teile.UrlPath && nochmal->ExtraInfo == teile.ExtraInfo;
}

std::string pruefeName(const std::string& pfad)
{
    const auto name = dateinameAusPfad(pfad);
    if (!name)
        return {};
    const bool gut = !name->empty() && *name != "." && *name != ".." && !hatSteuerzeichen(*name) &&
                     name->find_first_of("/\\") == std::string::npos;
    return gut ? "" : "the file name leads away";
}

std::string pruefeTeile(const std::string& kanonisch, const UrlTeile& teile)
{
    if (!sindImRahmen(teile))
        return "a part is too long";
    if (teile.nScheme != INTERNET_SCHEME_HTTP)
        return {};
    if (teile.HostName.empty() || teile.UrlPath.empty() || teile.UrlPath.front() != '/' || teile.nPort == 0)
        return "a part is missing";
    if ((teile.UrlPath + "/").find("/../") != std::string::npos)
        return "the path climbs";
    if (!istEineAnfrage(teile))
        return "more than one request";
    if (!kehrtWieder(teile))
        return "path and query change on the way";
    cURL url;
    if (!url.GetURL(kanonisch) || url.URLPath() != teile.UrlPath)
        return "the canonical form is another URL";
    return pruefeName(teile.UrlPath);
}

} // namespace

std::string pruefeUrl(std::string_view bytes)
{
    const auto roh = InternetCrackUrlA(bytes);
    if (roh && !sindImRahmen(*roh))
        return "a part of the raw URL is too long";
    const auto kanonisch = InternetCanonicalizeUrlA(bytes);
    if (!kanonisch)
        return {};
    if (kanonisch->size() > kMaxUrl || hatSteuerzeichen(*kanonisch) || kanonisch->find(' ') != std::string::npos)
        return "no canonical form";
    if (InternetCanonicalizeUrlA(*kanonisch) != kanonisch)
        return "the canonical form has another one";
    const auto teile = InternetCrackUrlA(*kanonisch);
    return teile ? pruefeTeile(*kanonisch, *teile) : "";
}
