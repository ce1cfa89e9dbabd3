#include "reports/frame/HtmlSeite.h"

#include <gtest/gtest.h>
#include <string>

namespace {

/// The lines of a text, each ended with CR LF.
std::string mitZeilenenden(std::string_view text)
{
    std::string bytes;
    for (const char zeichen : text)
        bytes += zeichen == '\n' ? std::string("\r\n") : std::string(1, zeichen);
    return bytes;
}

TEST(HtmlSeite, KopfDerKompaktenSeite)
{
    HtmlSeite seite({.titel = "Tombrix", .doctype = {}, .mitAutor = false, .stil = {"p {color:#999;}", "h1 {}"}});
    seite.zeile("<body>").zeilen({"</body>", "</html>"});
    EXPECT_EQ(seite.bytes(), mitZeilenenden(R"(<html>
<head>
<meta name="viewport" content="initial-scale=1,maximum-scale=2,user-scalable=yes"/>
<meta name="mobile-web-app-capable" content="yes">
<meta http-equiv="Content-Type"
content="text/html; charset=iso-8859-1">
<meta name="generator" content="Tombrix">
<meta name="format-detection" content="telephone=no">
<HTTP-EQUIV="PRAGMA" CONTENT="NO-CACHE">
<title>Tombrix</title>
<style type="text/css">
<!--
p {color:#999;}
h1 {}
-->
</style>
</head>
<body>
</body>
</html>
)"));
}

TEST(HtmlSeite, KurzerKopfInUtf8)
{
    const HtmlSeite seite({.titel = "Die Historischen-Gewinnzahlen 1955 im Samstagslotto",
                           .doctype = kDoctypeHtml5,
                           .form = HtmlKopfform::Kurz,
                           .mitAutor = false,
                           .zeichensatz = HtmlZeichensatz::Utf8,
                           .stil = {"form{margin:0px;}"}});
    EXPECT_EQ(seite.bytes(), mitZeilenenden(R"(<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="UTF-8">
<meta name="generator" content="Tombrix">
<title>Die Historischen-Gewinnzahlen 1955 im Samstagslotto</title>
<STYLE type="text/css">
form{margin:0px;}
</style>
</head>
)"));
}

TEST(HtmlSeite, DoctypeStehtVorAllemAnderen)
{
    for (const std::string_view doctype : {kDoctypeHtml5, kDoctypeHtml40, kDoctypeHtml401}) {
        const HtmlSeite seite({.titel = "x", .doctype = doctype, .stil = {}});
        EXPECT_TRUE(seite.bytes().starts_with(std::string(doctype) + "\r\n<html>\r\n")) << doctype;
    }
    EXPECT_EQ(kDoctypeHtml40, "<!doctype html public \"-//W3C//DTD HTML 4.0 //EN\">");
}

TEST(HtmlSeite, AutorStehtVorDemErzeuger)
{
    const HtmlSeite seite({.titel = "Zahlennachbarn", .doctype = {}, .stil = {}});
    EXPECT_NE(seite.bytes().find("<meta name=\"author\" content=\"Tombrix\">\r\n"
                                 "<meta name=\"generator\" content=\"Tombrix\">\r\n"),
              std::string::npos);
}

TEST(HtmlSeite, ZeichensatzzeileUndBytesStimmenUeberein)
{
    const HtmlKopf latin1{.titel = "Häufigkeit €", .doctype = {}, .stil = {}};
    HtmlKopf utf8 = latin1;
    utf8.zeichensatz = HtmlZeichensatz::Utf8;
    const std::string alte = HtmlSeite(latin1).bytes();
    EXPECT_NE(alte.find("charset=iso-8859-1\">"), std::string::npos);
    EXPECT_NE(alte.find("<title>H\xE4ufigkeit &#8364;</title>"), std::string::npos);
    const std::string neue = HtmlSeite(utf8).bytes();
    EXPECT_NE(neue.find("charset=UTF-8\">"), std::string::npos);
    EXPECT_NE(neue.find("<title>Häufigkeit €</title>"), std::string::npos);
}

TEST(HtmlSeite, DerTitelIstText)
{
    const HtmlSeite seite({.titel = "</title><script>", .doctype = {}, .stil = {}});
    EXPECT_NE(seite.bytes().find("<title>&lt;/title&gt;&lt;script&gt;</title>"), std::string::npos);
}

} // namespace
