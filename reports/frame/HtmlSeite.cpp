#include "reports/frame/HtmlSeite.h"

#include "shell/logic/Texte.h"

namespace {

std::string_view charset(HtmlZeichensatz zeichensatz)
{
    return zeichensatz == HtmlZeichensatz::Utf8 ? "UTF-8" : "iso-8859-1";
}

} // namespace

HtmlSeite::HtmlSeite(const HtmlKopf& kopf) : zeichensatz_(kopf.zeichensatz)
{
    if (!kopf.doctype.empty())
        zeile(kopf.doctype);
    if (kopf.form == HtmlKopfform::Haus)
        schreibeHauskopf(kopf);
    else
        schreibeKurzkopf(kopf);
    zeile("</style>").zeile("</head>");
}

HtmlSeite& HtmlSeite::zeile(std::string_view markup)
{
    text_.append(markup).append(kZeilenende);
    return *this;
}

HtmlSeite& HtmlSeite::zeilen(const HtmlZeilen& markup)
{
    for (const std::string& eine : markup)
        zeile(eine);
    return *this;
}

void HtmlSeite::schreibeHauskopf(const HtmlKopf& kopf)
{
    zeilen({"<html>", "<head>",
            R"(<meta name="viewport" content="initial-scale=1,maximum-scale=2,user-scalable=yes"/>)",
            R"(<meta name="mobile-web-app-capable" content="yes">)", R"(<meta http-equiv="Content-Type")",
            R"(content="text/html; charset=)" + std::string(charset(zeichensatz_)) + R"(">)"});
    schreibeErzeuger(kopf);
    // Browsers take the pragma line for an element of its own, without effect on the page.
    zeilen({R"(<meta name="format-detection" content="telephone=no">)", R"(<HTTP-EQUIV="PRAGMA" CONTENT="NO-CACHE">)"});
    schreibeTitel(kopf);
    zeile(R"(<style type="text/css">)").zeile("<!--").zeilen(kopf.stil).zeile("-->");
}

void HtmlSeite::schreibeKurzkopf(const HtmlKopf& kopf)
{
    zeilen({R"(<html lang="de">)", "<head>", R"(<meta charset=")" + std::string(charset(zeichensatz_)) + R"(">)"});
    schreibeErzeuger(kopf);
    schreibeTitel(kopf);
    zeile(R"(<STYLE type="text/css">)").zeilen(kopf.stil);
}

void HtmlSeite::schreibeErzeuger(const HtmlKopf& kopf)
{
    if (kopf.mitAutor)
        zeile(R"(<meta name="author" content="Tombrix">)");
    zeile(R"(<meta name="generator" content="Tombrix">)");
}

void HtmlSeite::schreibeTitel(const HtmlKopf& kopf)
{
    zeile("<title>" + htmlMaskiert(kopf.titel) + "</title>");
}
