#include "archive/logic/Downloadanzeige.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

struct Teile {
    std::int64_t h = -1;
    std::int64_t m = -1;
    std::int64_t s = -1;
    std::int64_t ms = -1;
};

TEST(SplitMilliseconds, TeiltInVierTeile)
{
    Teile t;
    SplitMilliseconds(2 * 3'600'000 + 3 * 60'000 + 4 * 1000 + 5, {&t.h, &t.m, &t.s, &t.ms});
    EXPECT_EQ(t.h, 2);
    EXPECT_EQ(t.m, 3);
    EXPECT_EQ(t.s, 4);
    EXPECT_EQ(t.ms, 5);
}

TEST(SplitMilliseconds, NimmtDenBetrag)
{
    Teile t;
    SplitMilliseconds(-61'001, {&t.h, &t.m, &t.s, &t.ms});
    EXPECT_EQ(t.h, 0);
    EXPECT_EQ(t.m, 1);
    EXPECT_EQ(t.s, 1);
    EXPECT_EQ(t.ms, 1);
}

TEST(SplitMilliseconds, EinAusgelassenerTeilRundetDenNaechstgroesseren)
{
    Teile t;
    SplitMilliseconds(59'499, {&t.h, &t.m, &t.s, nullptr});
    EXPECT_EQ(t.s, 59);
    SplitMilliseconds(59'500, {&t.h, &t.m, &t.s, nullptr});
    EXPECT_EQ(t.m, 1);
    EXPECT_EQ(t.s, 0);
    SplitMilliseconds(29'999, {&t.h, &t.m, nullptr, &t.ms});
    EXPECT_EQ(t.m, 0);
    EXPECT_EQ(t.ms, 999);
    SplitMilliseconds(30'000, {&t.h, &t.m, nullptr, &t.ms});
    EXPECT_EQ(t.m, 1);
    SplitMilliseconds(30 * 60'000, {&t.h, nullptr, &t.s, &t.ms});
    EXPECT_EQ(t.h, 1);
}

TEST(FormatDuration, ZeigtMillisekundenUnterEinerSekunde)
{
    EXPECT_EQ(FormatDuration(0, 0, 0, 0), "0,000 s");
    EXPECT_EQ(FormatDuration(0, 0, 0, 250), "0,250 s");
    EXPECT_EQ(FormatDuration(0, 0, 1, 999), "1 s");
}

TEST(FormatDuration, ZeigtMinutenUndSekunden)
{
    EXPECT_EQ(FormatDuration(0, 0, 59, 0), "59 s");
    EXPECT_EQ(FormatDuration(0, 12, 0, 5), "12 m 0 s");
}

TEST(FormatDuration, VerliertDieStundenNebenMinuten)
{
    EXPECT_EQ(FormatDuration(1, 0, 5, 0), "1 h 0 m 5 s");
    EXPECT_EQ(FormatDuration(1, 5, 5, 0), "5 m 5 s");
}

TEST(DownloadStatus, NenntDenFehler)
{
    EXPECT_EQ(downloadStatus({0, 0, 0, 0, 404, "Seite/Datei nicht gefunden"}),
              "Status: Fehler 404, Seite/Datei nicht gefunden");
}

TEST(DownloadStatus, NenntDenAnteil)
{
    EXPECT_EQ(downloadStatus({200, 25, 0, 0, 0, ""}), "Status: Download  12,5% empfangen");
    EXPECT_EQ(downloadStatus({200, 200, 0, 0, 0, ""}), "Status: Download  100,0% empfangen");
}

TEST(DownloadStatus, OhneGroesseBleibtStehenWasDasteht)
{
    EXPECT_EQ(downloadStatus({0, 0, 0, 0, 0, "Unbekannter Fehler"}), std::nullopt);
    EXPECT_FALSE(downloadanzeige({0, 0, 0, 0, 0, "Unbekannter Fehler"}));
    EXPECT_FALSE(downloadanzeige({100, 50, 0, 0, 500, "Unbekannter Fehler"}));
}

TEST(Downloadanzeige, RechnetDieZeiten)
{
    const auto anzeige = downloadanzeige({118'208, 8191, 1000, 1024 * 1234.5, 0, ""});
    ASSERT_TRUE(anzeige);
    // 1000 * 118208 / 8192 = 14429.6875
    EXPECT_THAT(anzeige->werte, ElementsAre("118208 Bytes", "8191 Bytes", "1 s", "13 s", "14 s", "1.234,50 KB/s"));
    EXPECT_EQ(anzeige->anteil, "6,9 %");
    EXPECT_EQ(anzeige->prozent, 7);
}

TEST(Downloadanzeige, RundetHalbeZurGeradenZahl)
{
    // 3 * 1 / (1 + 1) = 1.5 and 5 * 1 / 2 = 2.5 milliseconds in all
    EXPECT_EQ(downloadanzeige({1, 1, 3, 0, 0, ""})->werte[4], "0,002 s");
    EXPECT_EQ(downloadanzeige({1, 1, 5, 0, 0, ""})->werte[4], "0,002 s");
    EXPECT_EQ(downloadanzeige({200, 1, 0, 0, 0, ""})->prozent, 0);
    EXPECT_EQ(downloadanzeige({200, 3, 0, 0, 0, ""})->prozent, 2);
}

TEST(Downloadanzeige, AmEndeIstNichtsMehrUebrig)
{
    const auto anzeige = downloadanzeige({100'000, 100'000, 60'000, 0, 0, ""});
    EXPECT_EQ(anzeige->werte[2], "1 m 0 s");
    EXPECT_EQ(anzeige->werte[3], "0,001 s"); // 59999 ms in all, one less than elapsed
    EXPECT_EQ(anzeige->werte[4], "59 s");
    EXPECT_EQ(anzeige->prozent, 100);
}

TEST(Fortschrittsbreite, LaesstRechtsDreiPixelFrei)
{
    EXPECT_EQ(fortschrittsbreite(100, 100, 400), 397);
    EXPECT_EQ(fortschrittsbreite(50, 100, 401), 197);
    EXPECT_EQ(fortschrittsbreite(50, 200, 400), 97);
}

TEST(Fortschrittsbreite, WirdNieNegativ)
{
    EXPECT_EQ(fortschrittsbreite(0, 100, 400), 0);
    EXPECT_EQ(fortschrittsbreite(0.5, 100, 400), 0);
    EXPECT_EQ(fortschrittsbreite(-7, 100, 400), 0);
    EXPECT_EQ(fortschrittsbreite(100, 100, 0), 0);
}

TEST(Fortschrittsbreite, EinMaximumVonNullZaehltAlsHundert)
{
    EXPECT_EQ(fortschrittsbreite(50, 0, 400), 197);
}

TEST(Fortschrittsbreite, UeberHundertBeginntVonVorn)
{
    EXPECT_EQ(fortschrittsbreite(150, 100, 400), 197);
    EXPECT_EQ(fortschrittsbreite(200, 100, 400), 0);
    EXPECT_EQ(fortschrittsbreite(150, 0, 400), 197);
    EXPECT_EQ(fortschrittsbreite(130, 60.9, 609), 97); // 130 mod 60 = 10
    EXPECT_EQ(fortschrittsbreite(150, 0.5, 400), 0);
}

} // namespace
