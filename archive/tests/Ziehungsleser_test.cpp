#include "archive/logic/Ziehungsleser.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace {

using Ergebnis = Ziehungsleser::Ergebnis;

constexpr Ziehungssatz kBeispiel{1998, 13, 2, 8, 10, 12, 22, 35, 46, 3};
constexpr std::string_view kBeispielzeile = "1998,13,02,08,10,12,22,35,46,3";

struct Gelesen {
    std::vector<Ziehungssatz> saetze;
    Ergebnis schluss = Ergebnis::Ende;
    Ziehungssatz rest{};
};

Gelesen liesAlles(std::string_view bytes, bool vollstaendig = true)
{
    Ziehungsleser leser(bytes, vollstaendig);
    Gelesen gelesen;
    Ziehungssatz satz{};
    while ((gelesen.schluss = leser.lies(satz)) == Ergebnis::Satz)
        gelesen.saetze.push_back(satz);
    gelesen.rest = satz;
    return gelesen;
}

/// One example record, then the text; what does the reader make of the text?
Gelesen nachBeispiel(std::string_view text)
{
    return liesAlles(std::string(kBeispielzeile) + std::string(text));
}

void erwarteEnde(std::string_view text)
{
    const Gelesen gelesen = nachBeispiel(text);
    EXPECT_EQ(gelesen.schluss, Ergebnis::Ende) << testing::PrintToString(text);
    EXPECT_EQ(gelesen.saetze, std::vector{kBeispiel}) << testing::PrintToString(text);
}

void erwarteBruch(std::string_view text)
{
    const Gelesen gelesen = nachBeispiel(text);
    EXPECT_EQ(gelesen.schluss, Ergebnis::Bruch) << testing::PrintToString(text);
    EXPECT_EQ(gelesen.saetze, std::vector{kBeispiel}) << testing::PrintToString(text);
}

/// The first value of a record, with nine plain ones behind it.
std::optional<std::int32_t> ersterWert(std::string_view text)
{
    const Gelesen gelesen = liesAlles(std::string(text) + ",1,1,1,1,1,1,1,1,1");
    return gelesen.saetze.size() == 1 ? std::optional{gelesen.saetze[0][0]} : std::nullopt;
}

} // namespace

TEST(Ziehungsleser, LiestDieZehnWerteInDerReihenfolgeDerDatei)
{
    const Gelesen gelesen = liesAlles("1998,13,02,08,10,12,22,35,46,3\r\n");
    EXPECT_EQ(gelesen.saetze, std::vector{kBeispiel});
    EXPECT_EQ(gelesen.schluss, Ergebnis::Ende);
}

TEST(Ziehungsleser, LeereDateiIstAmEnde)
{
    for (const std::string_view text : {"", "\r\n", " ", "\n\n \t\r\n", "\x1A", "  \x1A"}) {
        EXPECT_EQ(liesAlles(text).schluss, Ergebnis::Ende);
        EXPECT_TRUE(liesAlles(text).saetze.empty());
    }
    EXPECT_EQ(liesAlles(std::string_view()).schluss, Ergebnis::Ende);
}

TEST(Ziehungsleser, BleibtAmEndeUndNachEinemBruch)
{
    Ziehungssatz satz{};
    Ziehungsleser amEnde("");
    EXPECT_EQ(amEnde.lies(satz), Ergebnis::Ende);
    EXPECT_EQ(amEnde.lies(satz), Ergebnis::Ende);
    Ziehungsleser bruch("x");
    EXPECT_EQ(bruch.lies(satz), Ergebnis::Bruch);
    EXPECT_EQ(bruch.lies(satz), Ergebnis::Bruch);
}

TEST(Ziehungsleser, LetzteZeileBrauchtKeinZeilenende)
{
    erwarteEnde("");
}

TEST(Ziehungsleser, RestAusLeerzeichenLeerzeilenUndStrgZIstDasEnde)
{
    for (const std::string_view rest : {"\r\n", "\n", "\r", "\r\n\r\n\r\n", "\n\n", "   ", "\r\n  \t \r\n ", "\x1A",
                                        "\r\n\x1A", "\r\n\x1A\x1A\x1A\x1A", " \x1A", ",\r\n"})
        erwarteEnde(rest);
}

TEST(Ziehungsleser, HinterStrgZZaehltNichtsMehr)
{
    erwarteEnde("\r\n\x1A\r\n1998,14,xx\r\n");
}

TEST(Ziehungsleser, JedesZeilenendeTrenntSaetze)
{
    const std::string zeile(kBeispielzeile);
    const std::vector zweimal{kBeispiel, kBeispiel};
    EXPECT_EQ(liesAlles(zeile + "\r\n" + zeile).saetze, zweimal);
    EXPECT_EQ(liesAlles(zeile + "\n" + zeile).saetze, zweimal);
    EXPECT_EQ(liesAlles(zeile + "\r" + zeile).saetze, zweimal);
}

TEST(Ziehungsleser, WerteSindEinStromUeberZeilenHinweg)
{
    const std::vector zweimal{kBeispiel, kBeispiel};
    const std::string zeile(kBeispielzeile);
    EXPECT_EQ(liesAlles("1998,13,02\r\n08,10\n12\n22\n35,46,3\r\n").saetze, std::vector{kBeispiel});
    EXPECT_EQ(liesAlles(zeile + "," + zeile).saetze, zweimal);
}

TEST(Ziehungsleser, BreiteSpieltKeineRolle)
{
    EXPECT_EQ(liesAlles("1998,13,2,8,10,12,22,35,46,3").saetze, std::vector{kBeispiel});
    EXPECT_EQ(liesAlles("0001998,013,002,8,10,12,22,35,46,03").saetze, std::vector{kBeispiel});
    EXPECT_EQ(liesAlles(" 1998 ,\t13, 02,08,10 ,12,22,35,46, 3 \r\n").saetze, std::vector{kBeispiel});
}

TEST(Ziehungsleser, WertMussIn32BitPassen)
{
    EXPECT_EQ(ersterWert("2147483647"), 2147483647);
    EXPECT_EQ(ersterWert("2147483648"), std::nullopt);
    EXPECT_EQ(ersterWert("-2147483648"), INT32_MIN);
    EXPECT_EQ(ersterWert("-2147483649"), std::nullopt);
    EXPECT_EQ(ersterWert("99999999999999999999999999"), std::nullopt);
    EXPECT_EQ(ersterWert(std::string(100000, '0') + "7"), 7);
}

TEST(Ziehungsleser, VorzeichenSindErlaubt)
{
    EXPECT_EQ(ersterWert("-5"), -5);
    EXPECT_EQ(ersterWert("+5"), 5);
    EXPECT_EQ(ersterWert("-0"), 0);
    EXPECT_EQ(ersterWert("-"), std::nullopt);
    EXPECT_EQ(ersterWert("--5"), std::nullopt);
    EXPECT_EQ(ersterWert("- 5"), std::nullopt);
}

TEST(Ziehungsleser, TextInEinerZahlIstEinBruch)
{
    for (const std::string_view text : {"x", "1x", "x1", "1.5", "1e3", "0x10", "\"12\"", "1 2", "", " ",
                                        "\xEF\xBB\xBF"
                                        "1998"})
        EXPECT_EQ(ersterWert(text), std::nullopt) << text;
}

TEST(Ziehungsleser, NullbytesSindKeineZahlen)
{
    EXPECT_EQ(liesAlles(std::string(1000, '\0')).schluss, Ergebnis::Bruch);
    EXPECT_EQ(ersterWert(std::string_view("1\0", 2)), std::nullopt);
    erwarteBruch(std::string_view("\r\n\0", 3));
}

TEST(Ziehungsleser, DateiendeImSatzIstEinBruch)
{
    const std::string zeile(kBeispielzeile);
    // The record is whole once its last digit is there.
    for (std::size_t laenge = 1; laenge + 1 < zeile.size(); ++laenge)
        erwarteBruch("\r\n" + zeile.substr(0, laenge));
    erwarteBruch("\r\n1998,13,02\x1A");
}

TEST(Ziehungsleser, LeererWertIstEinBruch)
{
    erwarteBruch("\r\n1998,,02,08,10,12,22,35,46,3");
    erwarteBruch("\r\n,13,02,08,10,12,22,35,46,3");
}

TEST(Ziehungsleser, LeerzeileVorEinemWeiterenSatzIstEinBruch)
{
    erwarteBruch("\r\n\r\n1998,14,02,08,10,12,22,35,46,3");
    EXPECT_EQ(liesAlles("\r\n1998,14,02,08,10,12,22,35,46,3").schluss, Ergebnis::Bruch);
    erwarteBruch("\r\n\r\n 1998,14,02,08,10,12,22,35,46,3");
    erwarteBruch("\r\n\n\t1998,14,02,08,10,12,22,35,46,3");
    EXPECT_EQ(liesAlles("\n 1998,14,02,08,10,12,22,35,46,3").schluss, Ergebnis::Bruch);
}

TEST(Ziehungsleser, EinCRAlsLetztesByteIstDasEnde)
{
    // What lies in memory behind the bytes is not read, even if it would go on as a line end.
    const std::string mehr = std::string(kBeispielzeile) + "\r\n1998";
    const Gelesen gelesen = liesAlles(std::string_view(mehr).substr(0, kBeispielzeile.size() + 1));
    EXPECT_EQ(gelesen.saetze, std::vector{kBeispiel});
    EXPECT_EQ(gelesen.schluss, Ergebnis::Ende);
}

TEST(Ziehungsleser, KenntDasEndeDesLetztenSatzes)
{
    const std::string zeile(kBeispielzeile);
    for (const char* rest : {"", "\r\n", "\n", "  \r\n", ",\r\n", "\x1A", "\r\n\r\n"}) {
        const std::string bytes = zeile + "\r\n" + zeile + rest;
        Ziehungsleser leser(bytes);
        Ziehungssatz satz{};
        leser.lies(satz);
        EXPECT_EQ(leser.satzende(), zeile.size());
        leser.lies(satz);
        EXPECT_EQ(leser.satzende(), 2 * zeile.size() + 2);
    }
}

TEST(Ziehungsleser, NachEinemBruchStehenDieGelesenenWerteImSatz)
{
    const Gelesen gelesen = nachBeispiel("\r\n1998,14,02,abc,10");
    EXPECT_EQ(gelesen.rest, (Ziehungssatz{1998, 14, 2}));
}

TEST(Ziehungsleser, EndeEinesTeilsIstEinBruch)
{
    const std::string zeile(kBeispielzeile);
    EXPECT_EQ(liesAlles(zeile + "\r\n", false).saetze, std::vector{kBeispiel});
    EXPECT_EQ(liesAlles(zeile + "\r\n", false).schluss, Ergebnis::Bruch);
    EXPECT_EQ(liesAlles(zeile + "\r\n   ", false).schluss, Ergebnis::Bruch);
    EXPECT_EQ(liesAlles(zeile + "\x1A", false).schluss, Ergebnis::Ende);
}

TEST(Ziehungsleser, ZahlAmEndeEinesTeilsGiltNicht)
{
    EXPECT_TRUE(liesAlles(kBeispielzeile, false).saetze.empty());
    EXPECT_EQ(liesAlles(kBeispielzeile, false).schluss, Ergebnis::Bruch);
}

TEST(Ziehungsleser, UeberstehtJedesVeraenderteByte)
{
    const std::string datei = std::string(kBeispielzeile) + "\r\n" + std::string(kBeispielzeile) + "\r\n";
    for (std::size_t i = 0; i < datei.size(); ++i) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string veraendert = datei;
            veraendert[i] = static_cast<char>(byte);
            ASSERT_LE(liesAlles(veraendert).saetze.size(), 2U);
        }
    }
}

// A blank before the record keeps the reader from taking it in its usual form at a stroke.
TEST(Ziehungsleser, UeblicheUndFreieFormGebenDasselbe)
{
    const std::string datei = std::string(kBeispielzeile) + "\r\n";
    for (std::size_t i = 0; i < datei.size(); ++i) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string veraendert = datei;
            veraendert[i] = static_cast<char>(byte);
            const Gelesen ueblich = liesAlles(veraendert);
            const Gelesen frei = liesAlles(" " + veraendert);
            ASSERT_EQ(ueblich.saetze, frei.saetze) << testing::PrintToString(veraendert);
            ASSERT_EQ(ueblich.schluss, frei.schluss) << testing::PrintToString(veraendert);
        }
    }
}
