#include "archive/logic/HttpKopf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;

HttpAnfrage anfrage(const std::string& objekt = "/lotto/Salotto.dat")
{
    HttpAnfrage eine;
    eine.verb = "GET";
    eine.objekt = objekt;
    eine.version = "HTTP/1.1";
    eine.host = "h";
    eine.port = 80;
    eine.agent = "http sample";
    return eine;
}

TEST(HttpKopfLaenge, EndetHinterDerErstenLeerenZeile)
{
    EXPECT_EQ(httpKopfLaenge("HTTP/1.1 200 OK\r\nA: b\r\n\r\nrumpf"), 25U);
    EXPECT_EQ(httpKopfLaenge("HTTP/1.1 200 OK\n\nrumpf\n\n"), 17U);
    EXPECT_EQ(httpKopfLaenge("HTTP/1.1 200 OK\r\nA: b\r\n"), std::nullopt);
    EXPECT_EQ(httpKopfLaenge("HTTP/1.1 200 OK\r\n\r"), std::nullopt);
    EXPECT_EQ(httpKopfLaenge(""), std::nullopt);
}

TEST(KannHttpSein, ErkenntFremdesAmErstenZeichen)
{
    EXPECT_TRUE(kannHttpSein(""));
    EXPECT_TRUE(kannHttpSein("HT"));
    EXPECT_TRUE(kannHttpSein("HTTP/1.1 2"));
    EXPECT_FALSE(kannHttpSein("SSH-2.0"));
    EXPECT_FALSE(kannHttpSein("HTTX"));
    EXPECT_FALSE(kannHttpSein("<html>"));
    EXPECT_FALSE(kannHttpSein("HTTP/1.1 200 OK\r\nA: " + std::string(kMaxHttpKopf, 'a')));
}

TEST(LiesHttpKopf, LiestStatusUndFelder)
{
    const HttpKopf kopf = liesHttpKopf("HTTP/1.0 404 Not Found\r\nContent-length:  12 \r\nX:\r\n\r\nrumpf: nein\r\n");
    EXPECT_EQ(kopf.status, 404);
    EXPECT_EQ(kopf.felder.size(), 2U);
    EXPECT_EQ(kopf.feld("CONTENT-LENGTH"), "12");
    EXPECT_EQ(kopf.feld("x"), "");
    EXPECT_EQ(kopf.feld("rumpf"), std::nullopt);
}

TEST(LiesHttpKopf, EineFalscheStatuszeileGibtNull)
{
    for (const std::string_view zeile :
         {"", "HTTP/1.1", "HTTP/1.1 ", "HTTP/1.1 20", "HTTP/1.1 2000", "HTTP/1.1 2x0", "HTTP/1.1200 OK",
          "HTTP/11 200 OK", "HTTP/1.x 200", "http/1.1 200 OK", "HTTP/1.1 -12", "HTTP/1.1 012", "SSH-2.0-x", "200"})
        EXPECT_EQ(liesHttpKopf(std::string(zeile) + "\r\n\r\n").status, 0) << zeile;
    EXPECT_EQ(liesHttpKopf("HTTP/1.1 200\r\n\r\n").status, 200);
    EXPECT_EQ(liesHttpKopf("HTTP/1.1  200  OK\n\n").status, 200);
}

TEST(LiesHttpKopf, UebergehtZeilenDieKeinFeldSind)
{
    const HttpKopf kopf = liesHttpKopf("HTTP/1.1 200 OK\r\nunsinn\r\n: leer\r\nA: b\r\n  c\r\n\r\n");
    ASSERT_EQ(kopf.felder.size(), 1U);
    EXPECT_EQ(kopf.feld("a"), "b c");
}

TEST(HttpKopfContentLength, GibtEsNurEindeutig)
{
    const auto laenge = [](const std::string& felder) {
        const HttpKopf kopf = liesHttpKopf("HTTP/1.1 200 OK\r\n" + felder + "\r\n");
        return std::string(kopf.ContentLength().value_or("-"));
    };
    EXPECT_EQ(laenge("Content-Length: 118208\r\n"), "118208");
    EXPECT_EQ(laenge("Content-Length: 5\r\nContent-Length: 5\r\n"), "5");
    EXPECT_EQ(laenge("Content-Length: 5\r\ncontent-length: 6\r\n"), "-");
    EXPECT_EQ(laenge("Transfer-Encoding: chunked\r\nContent-Length: 5\r\n"), "-");
    EXPECT_EQ(laenge(""), "-");
}

TEST(HttpLaenge, IstEineZahlAusZiffern)
{
    EXPECT_EQ(httpLaenge("0"), 0);
    EXPECT_EQ(httpLaenge("9663676416"), 9'663'676'416);
    for (const std::string_view text : {"", "-1", "+1", " 1", "1 ", "1x", "0x10", "99999999999999999999"})
        EXPECT_EQ(httpLaenge(text), std::nullopt) << text;
}

TEST(HttpAnfragetext, FragtAmCacheVorbei)
{
    EXPECT_EQ(httpAnfragetext(anfrage("/lotto/Salotto.dat?v=1")),
              "GET /lotto/Salotto.dat?v=1 HTTP/1.1\r\nHost: h\r\nUser-Agent: http sample\r\nAccept-Encoding: "
              "identity\r\nCache-Control: no-cache\r\nPragma: no-cache\r\nConnection: close\r\n\r\n");
}

TEST(HttpAnfragetext, NenntEinenAnderenPortUndKlammertIPv6)
{
    HttpAnfrage eine = anfrage();
    eine.port = 8049;
    EXPECT_THAT(httpAnfragetext(eine), HasSubstr("\r\nHost: h:8049\r\n"));
    eine.host = "::1";
    EXPECT_THAT(httpAnfragetext(eine), HasSubstr("\r\nHost: [::1]:8049\r\n"));
}

TEST(HttpAnfragetext, SchreibtEinemProxyDieGanzeAdresse)
{
    HttpAnfrage eine = anfrage();
    eine.ueberProxy = true;
    eine.proxyBenutzer = "p";
    eine.proxyKennwort = "w";
    EXPECT_THAT(httpAnfragetext(eine), HasSubstr("GET http://h/lotto/Salotto.dat HTTP/1.1\r\n"));
    EXPECT_THAT(httpAnfragetext(eine), HasSubstr("\r\nProxy-Authorization: Basic cDp3\r\n"));
}

TEST(HttpAnfragetext, SchicktBenutzerUndKennwortMit)
{
    HttpAnfrage eine = anfrage();
    EXPECT_THAT(httpAnfragetext(eine), Not(HasSubstr("Authorization")));
    for (const auto& [benutzer, kennwort, erwartet] :
         {std::tuple("Aladdin", "open sesame", "QWxhZGRpbjpvcGVuIHNlc2FtZQ=="), std::tuple("a", "", "YTo="),
          std::tuple("a", "b", "YTpi"), std::tuple("a", "bc", "YTpiYw==")}) {
        eine.benutzer = benutzer;
        eine.kennwort = kennwort;
        EXPECT_THAT(httpAnfragetext(eine), HasSubstr("\r\nAuthorization: Basic " + std::string(erwartet) + "\r\n"));
    }
}

TEST(HttpAnfragetext, NichtsFuegtEineZeileHinzu)
{
    HttpAnfrage eine = anfrage("/a\r\nX: 1\r\n\r\nGET /b HTTP/1.1");
    eine.host = "h\r\nY: 2";
    eine.benutzer = "u\r\n";
    const std::string text = httpAnfragetext(eine);
    EXPECT_THAT(text, HasSubstr("GET /a%0D%0AX:%201%0D%0A%0D%0AGET%20/b%20HTTP/1.1 HTTP/1.1\r\n"));
    EXPECT_THAT(text, Not(HasSubstr("\r\nX:")));
    EXPECT_THAT(text, Not(HasSubstr("\r\nY:")));
    EXPECT_EQ(httpKopfLaenge(text), text.size());
}

} // namespace
