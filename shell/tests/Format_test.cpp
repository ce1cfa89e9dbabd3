#include "shell/logic/Format.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <string_view>

namespace {

TEST(Format, NullenFuellenAuf)
{
    EXPECT_EQ(Format(7, "00"), "07");
    EXPECT_EQ(Format(49, "00"), "49");
    EXPECT_EQ(Format(0, "00"), "00");
    EXPECT_EQ(Format(7, "000"), "007");
    EXPECT_EQ(Format(1955, "0000"), "1955");
    EXPECT_EQ(Format(80, "0000"), "0080");
    EXPECT_EQ(Format(42, "00000"), "00042");
    EXPECT_EQ(Format(199705, "000000"), "199705");
    EXPECT_EQ(Format(1234567, "0000000000"), "0001234567");
    EXPECT_EQ(Format(5, "0"), "5");
}

TEST(Format, NullenSchneidenNichtsAb)
{
    EXPECT_EQ(Format(123, "00"), "123");
    EXPECT_EQ(Format(12345678901, "0000000000"), "12345678901");
}

TEST(Format, RautenZeigenNurWasZaehlt)
{
    EXPECT_EQ(Format(7, "##"), "7");
    EXPECT_EQ(Format(15, "##"), "15");
    EXPECT_EQ(Format(123, "##"), "123");
    EXPECT_EQ(Format(0, "##"), "");
    EXPECT_EQ(Format(0, "#0"), "0");
    EXPECT_EQ(Format(17, "#0"), "17");
    EXPECT_EQ(Format(0, "###0"), "0");
    EXPECT_EQ(Format(3693, "###0"), "3693");
    EXPECT_EQ(Format(12, "####0"), "12");
    EXPECT_EQ(Format(123456, "####0"), "123456");
}

TEST(Format, GruppenMitPunkt)
{
    EXPECT_EQ(Format(13983816, "#,###,###"), "13.983.816");
    EXPECT_EQ(Format(1000, "#,###,###"), "1.000");
    EXPECT_EQ(Format(999, "#,###,###"), "999");
    EXPECT_EQ(Format(13983816, "##,###,###"), "13.983.816");
    EXPECT_EQ(Format(1, "##,###,##0"), "1");
    EXPECT_EQ(Format(1906884, "##,###,##0"), "1.906.884");
    EXPECT_EQ(Format(18564, "#,###,##0"), "18.564");
    EXPECT_EQ(Format(123456, "###,###"), "123.456");
    EXPECT_EQ(Format(1234567, "###,###"), "1.234.567");
    EXPECT_EQ(Format(100'000'000'000, "###,###,###,###"), "100.000.000.000");
    EXPECT_EQ(Format(1234, "0,000,000"), "0.001.234");
}

TEST(Format, NullOhneNullstelleIstLeer)
{
    EXPECT_EQ(Format(0, "#,###,###"), "");
    EXPECT_EQ(Format(0, "##,###,###"), "");
    EXPECT_EQ(Format(0, "###,###,###,###"), "");
    EXPECT_EQ(Format(0.0, "#,###,###"), "");
    EXPECT_EQ(Format(0, "##,###,##0"), "0");
    EXPECT_EQ(Format(0, "#,###,##0"), "0");
}

TEST(Format, DezimalstellenMitKomma)
{
    EXPECT_EQ(Format(49.557, "##0.000"), "49,557");
    EXPECT_EQ(Format(100.0, "##0.00"), "100,00");
    EXPECT_EQ(Format(0.5, "##0.00"), "0,50");
    EXPECT_EQ(Format(0, "0.00"), "0,00");
    EXPECT_EQ(Format(12.3456, "0.000"), "12,346");
    EXPECT_EQ(Format(1.25, "#0.000"), "1,250");
    EXPECT_EQ(Format(0.75, "#0.00"), "0,75");
    EXPECT_EQ(Format(184, "#0.00"), "184,00");
    EXPECT_EQ(Format(99.9999996, "#0.000000"), "100,000000");
    EXPECT_EQ(Format(0.0000004, "#0.000000"), "0,000000");
    EXPECT_EQ(Format(0.0000005, "#0.000000"), "0,000001");
    EXPECT_EQ(Format(1.5, "0.0") + " Sek", "1,5 Sek");
    EXPECT_EQ(Format(12345.6789, "###,##0.000"), "12.345,679");
    EXPECT_EQ(Format(0.25, "###,##0.000"), "0,250");
    EXPECT_EQ(Format(1234567.0, "###,##0.000"), "1.234.567,000");
}

TEST(Format, EineNullHintenHaeltDieStellenDavor)
{
    EXPECT_EQ(Format(12.5, "#0.#0"), "12,50");
    EXPECT_EQ(Format(0, "#0.#0"), "0,00");
    EXPECT_EQ(Format(99.999, "#0.#0"), "100,00");
    EXPECT_EQ(Format(12.5, "#0.0#"), "12,5");
    EXPECT_EQ(Format(12.54, "#0.0#"), "12,54");
    EXPECT_EQ(Format(12.0, "0.##"), "12,");
}

TEST(Format, ProzentNimmtMalHundert)
{
    EXPECT_EQ(Format(0.4567, "0.0%"), "45,7%");
    EXPECT_EQ(Format(0.4567, "0.0 %"), "45,7 %");
    EXPECT_EQ(Format(1.0, "0.0%"), "100,0%");
    EXPECT_EQ(Format(0.0, "0.0 %"), "0,0 %");
    EXPECT_EQ(Format(1, "0 %"), "100 %");
    EXPECT_EQ(Format(0.0005, "0.0%"), "0,1%");
}

TEST(Format, TextInDerMaskeBleibtStehen)
{
    EXPECT_EQ(Format(1234.5, "#,##0.00 KB/s"), "1.234,50 KB/s");
    EXPECT_EQ(Format(0.0, "#,##0.00 KB/s"), "0,00 KB/s");
    EXPECT_EQ(Format(201405, "0000/00"), "2014/05");
    EXPECT_EQ(Format(93015, "00:00:00"), "09:30:15");
    EXPECT_EQ(Format(7, "\"Nr. 0:\" 00"), "Nr. 0: 07");
    EXPECT_EQ(Format(7, "\\#0"), "#7");
}

TEST(Format, HalbeRundenVonDerNullWeg)
{
    EXPECT_EQ(Format(0.125, "0.00"), "0,13");
    EXPECT_EQ(Format(-0.125, "0.00"), "-0,13");
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(3.5, "0"), "4");
    EXPECT_EQ(Format(-2.5, "0"), "-3");
    EXPECT_EQ(Format(0.5, "0"), "1");
    EXPECT_EQ(Format(0.49999, "0"), "0");
}

TEST(Format, RundetWasEinLeserSiehtUndNichtDasBinaereBild)
{
    EXPECT_EQ(Format(1.005, "0.00"), "1,01");
    EXPECT_EQ(Format(2.675, "0.00"), "2,68");
    EXPECT_EQ(Format(1.115, "0.00"), "1,12");
    EXPECT_EQ(Format(0.285, "0.00"), "0,29");
    EXPECT_EQ(Format(1.004999, "0.00"), "1,00");
}

TEST(Format, UebertragLaeuftDurchAlleNeunen)
{
    EXPECT_EQ(Format(9.995, "0.00"), "10,00");
    EXPECT_EQ(Format(999.9999, "#,##0.00"), "1.000,00");
    EXPECT_EQ(Format(0.999, "0.00"), "1,00");
    EXPECT_EQ(Format(0.0999, "0.00"), "0,10");
    EXPECT_EQ(Format(0.9, "0"), "1");
}

TEST(Format, NegativeMitVorzeichenDavor)
{
    EXPECT_EQ(Format(-5, "00"), "-05");
    EXPECT_EQ(Format(-1234, "#,###,###"), "-1.234");
    EXPECT_EQ(Format(-1.5, "#0.00"), "-1,50");
    EXPECT_EQ(Format(-5, "@@@@"), "  -5");
}

TEST(Format, AlsNullGezeigtesHatKeinVorzeichen)
{
    EXPECT_EQ(Format(-0.001, "0.00"), "0,00");
    EXPECT_EQ(Format(-0.0, "0.00"), "0,00");
    EXPECT_EQ(Format(-0.0, "@@"), " 0");
    EXPECT_EQ(Format(-0.4, "#,###"), "");
}

TEST(Format, KlammeraffenRueckenNachRechts)
{
    EXPECT_EQ(Format(7, "@@"), " 7");
    EXPECT_EQ(Format(49, "@@"), "49");
    EXPECT_EQ(Format(7, "@"), "7");
    EXPECT_EQ(Format(7, "@@@"), "  7");
    EXPECT_EQ(Format(12, "@@@@"), "  12");
    EXPECT_EQ(Format(12, "@@@@@"), "   12");
    EXPECT_EQ(Format(12, "@@@@@@"), "    12");
    EXPECT_EQ(Format(1, "@@@@@@@@@@@@"), "           1");
    EXPECT_EQ(Format(Format(13983816, "##,###,###"), "@@@@@@@@@@"), "13.983.816");
    EXPECT_EQ(Format(Format(816, "##,###,###"), "@@@@@@@@@@"), "       816");
    EXPECT_EQ(Format(0, "@@"), " 0");
}

TEST(Format, KlammeraffenSchneidenNichtsAb)
{
    EXPECT_EQ(Format(100, "@@"), "100");
    EXPECT_EQ(Format("Samstag", "@@@"), "Samstag");
}

TEST(Format, MitAusrufezeichenNachLinks)
{
    EXPECT_EQ(Format(7, "!@@@"), "7  ");
    EXPECT_EQ(Format(7, "!@@"), "7 ");
    EXPECT_EQ(Format(7, "@@!"), "7 ");
    EXPECT_EQ(Format(12345, "!@@@@"), "12345");
}

TEST(Format, PlaetzeZaehlenZeichenUndNichtBytes)
{
    EXPECT_EQ(Format("ä", "@@@"), "  ä");
    EXPECT_EQ(Format("FÜNFW", "@@@@@@"), " FÜNFW");
    EXPECT_EQ(Format("€", "!@@") + "|", "€ |");
    EXPECT_EQ(Format("Übersicht", "@@@@@@@@@"), "Übersicht");
}

TEST(Format, TextMitTextmaske)
{
    EXPECT_EQ(Format("", "@@"), "  ");
    EXPECT_EQ(Format("-", "@@"), " -");
    EXPECT_EQ(Format(std::string("ab"), "@@@"), " ab");
    EXPECT_EQ(Format(std::string_view("ab"), ""), "ab");
}

TEST(Format, TextDerEineZahlIstMitZahlmaske)
{
    EXPECT_EQ(Format("5", "00"), "05");
    EXPECT_EQ(Format("202418", "000000"), "202418");
    EXPECT_EQ(Format("1,5", "0.00"), "1,50");
    EXPECT_EQ(Format("1.5", "0.00"), "1,50");
    EXPECT_EQ(Format("x5", "00"), "x5");
    EXPECT_EQ(Format("5x", "00"), "5x");
    EXPECT_EQ(Format("", "00"), "");
}

TEST(Format, KommazahlMitTextmaske)
{
    EXPECT_EQ(Format(0.5, "@@@@"), " 0,5");
    EXPECT_EQ(Format(12.0, "@@@"), " 12");
    EXPECT_EQ(Format(0.1, ""), "0,1");
}

TEST(Format, LeereMaskeGibtDieZahl)
{
    EXPECT_EQ(Format(-17, ""), "-17");
    EXPECT_EQ(Format(0, ""), "0");
}

TEST(Format, AlleGanzzahltypen)
{
    EXPECT_EQ(Format(std::int16_t{-7}, "00"), "-07");
    EXPECT_EQ(Format(std::uint8_t{200}, "@@@@"), " 200");
    EXPECT_EQ(Format(7U, "00"), "07");
    EXPECT_EQ(Format(std::size_t{7}, "00"), "07");
    EXPECT_EQ(Format(7LL, "00"), "07");
    EXPECT_EQ(Format(1.5F, "0.00"), "1,50");
}

TEST(Format, GroessteUndKleinsteGanzzahl)
{
    EXPECT_EQ(Format(std::numeric_limits<std::int64_t>::min(), "#,##0"), "-9.223.372.036.854.775.808");
    EXPECT_EQ(Format(std::numeric_limits<std::int64_t>::max(), "0.0"), "9223372036854775807,0");
    EXPECT_EQ(Format(std::numeric_limits<std::uint64_t>::max(), "@"), "18446744073709551615");
    EXPECT_EQ(Format(std::numeric_limits<std::int32_t>::min(), "00"), "-2147483648");
}

TEST(Format, SehrGrosseUndSehrKleineKommazahlen)
{
    EXPECT_EQ(Format(1e21, "#,##0"), "1.000.000.000.000.000.000.000");
    EXPECT_EQ(Format(std::numeric_limits<double>::max(), "0").size(), 309U);
    EXPECT_EQ(Format(5e-324, "0.000"), "0,000");
    EXPECT_EQ(Format(1e-7, "0.0000000"), "0,0000001");
}

TEST(Format, KeineZahlIstLeer)
{
    EXPECT_EQ(Format(std::numeric_limits<double>::quiet_NaN(), "0.00"), "");
    EXPECT_EQ(Format(std::numeric_limits<double>::infinity(), "0.00"), "");
    EXPECT_EQ(Format(-std::numeric_limits<double>::infinity(), "@@"), "");
}

TEST(Format, MaskeNurMitDezimalstellen)
{
    EXPECT_EQ(Format(0.5, ".00"), ",50");
    EXPECT_EQ(Format(12.5, ".00"), "12,50");
}

/// The short way for plain masks and the general one must not differ; empty quotes force the general one.
TEST(Format, KurzerUndAllgemeinerWegGebenDasselbe)
{
    std::mt19937_64 zufall(49);
    for (const std::string_view maske : {"0", "00", "0000", "#", "##", "####0", "#,###,###", "##,###,##0", "0,000"}) {
        for (int i = 0; i < 2000; ++i) {
            const auto wert = static_cast<std::int64_t>(zufall()) >> (zufall() % 64);
            ASSERT_EQ(Format(wert, maske), Format(wert, std::string(maske) + "\"\"")) << wert << " " << maske;
        }
    }
}

/// Whole numbers and the same numbers as doubles must look alike.
TEST(Format, GanzeUndKommazahlGleichenWertsSehenGleichAus)
{
    for (const std::string_view maske : {"00", "#,###,###", "#0.00", "##", "0.0%", "@@@@", "#0.#0"})
        for (int wert = -1200; wert <= 1200; ++wert)
            ASSERT_EQ(Format(wert, maske), Format(static_cast<double>(wert), maske)) << wert << " " << maske;
}

TEST(Dezimaltext, RundetOhneAufzufuellen)
{
    EXPECT_EQ(Dezimaltext(0.5, 2), "0,5");
    EXPECT_EQ(Dezimaltext(2.0, 2), "2");
    EXPECT_EQ(Dezimaltext(1.235, 2), "1,24");
    EXPECT_EQ(Dezimaltext(0.0, 2), "0");
    EXPECT_EQ(Dezimaltext(-0.004, 2), "0");
    EXPECT_EQ(Dezimaltext(-1.5, 2), "-1,5");
    EXPECT_EQ(Dezimaltext(10.0, 2), "10");
    EXPECT_EQ(Dezimaltext(12.7, 0), "13");
    EXPECT_EQ(Dezimaltext(12.7, -3), "13");
}

} // namespace
