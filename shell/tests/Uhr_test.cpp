#include "shell/logic/Uhr.h"
#include "shell/logic/Warte.h"
#include "shell/logic/clsTimer.h"

#include <chrono>
#include <ctime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <thread>

namespace {

using namespace std::chrono_literals;
using namespace std::chrono;

Zeitpunkt um(std::string_view iso)
{
    return liesIsoZeit(iso).value();
}

TEST(IsoZeit, GanzeAngabe)
{
    EXPECT_EQ(um("2026-11-21T19:30:15"), local_days{2026y / 11 / 21} + 19h + 30min + 15s);
    EXPECT_EQ(um("2026-11-21 19:30:15.25"), local_days{2026y / 11 / 21} + 19h + 30min + 15s + 250ms);
}

TEST(IsoZeit, TeileDerUhrzeitDuerfenFehlen)
{
    EXPECT_EQ(um("1955-10-09"), Zeitpunkt(local_days{1955y / 10 / 9}));
    EXPECT_EQ(um("1955-10-09T08:05"), local_days{1955y / 10 / 9} + 8h + 5min);
}

TEST(IsoZeit, AllesAndereIstKeine)
{
    for (const char* const text : {"",
                                   "2026",
                                   "2026-11",
                                   "2026-11-31",
                                   "2026-02-29",
                                   "2026-13-01",
                                   "2026-00-10",
                                   "26-11-21",
                                   "21.11.2026",
                                   "2026-11-21T",
                                   "2026-11-21T24:00:00",
                                   "2026-11-21T19:60:00",
                                   "2026-11-21T19:30:60",
                                   "2026-11-21T1:30:00",
                                   "2026-11-21T19:30:00Z",
                                   "2026-11-21T19:30:00.",
                                   "2026-11-21T19:30:00.x",
                                   "2026-11-21T-1:30:00",
                                   "2026--1-21",
                                   "-026-11-21"}) {
        EXPECT_EQ(liesIsoZeit(text), std::nullopt) << text;
    }
    EXPECT_TRUE(liesIsoZeit("2024-02-29"));
}

TEST(GestellteUhr, StehtBisSieGestelltWird)
{
    GestellteUhr uhr(um("2026-11-21T19:30:00"), GestellteUhr::Lauf::Steht);
    EXPECT_EQ(uhr.Timer(), 70200.0);
    std::this_thread::sleep_for(3ms);
    EXPECT_EQ(uhr.Timer(), 70200.0);
    uhr.rueckeVor(1500ms);
    EXPECT_EQ(uhr.Timer(), 70201.5);
    EXPECT_TRUE(uhr.stelle("2026-11-22T00:00:01"));
    EXPECT_EQ(uhr.Timer(), 1.0);
    EXPECT_EQ(uhr.heute(), 2026y / 11 / 22);
}

TEST(GestellteUhr, LaeuftNachDemStellenWeiter)
{
    GestellteUhr uhr;
    ASSERT_TRUE(uhr.stelle("2026-11-21T19:30:00"));
    std::this_thread::sleep_for(20ms);
    const auto vergangen = uhr.jetzt() - um("2026-11-21T19:30:00");
    EXPECT_GE(vergangen, 20ms);
    EXPECT_LT(vergangen, 10s);
}

TEST(GestellteUhr, UnlesbareZeitAendertNichts)
{
    GestellteUhr uhr(um("2026-11-21T19:30:00"), GestellteUhr::Lauf::Steht);
    EXPECT_FALSE(uhr.stelle("morgen"));
    EXPECT_EQ(uhr.jetzt(), um("2026-11-21T19:30:00"));
}

TEST(GestellteUhr, MitternachtBeginntBeiNull)
{
    GestellteUhr uhr(um("2026-12-31T23:59:59.999"), GestellteUhr::Lauf::Steht);
    EXPECT_DOUBLE_EQ(uhr.Timer(), 86399.999);
    uhr.rueckeVor(1ms);
    EXPECT_EQ(uhr.Timer(), 0.0);
    EXPECT_EQ(uhr.heute(), 2027y / 1 / 1);
}

TEST(SystemUhr, GehtWieDieDesRechners)
{
    // std::time may lag behind the clock by a tick of the system, and then by a second.
    const auto utc = [] {
        std::timespec jetzt{};
        EXPECT_EQ(std::timespec_get(&jetzt, TIME_UTC), TIME_UTC);
        return jetzt.tv_sec;
    };
    const std::time_t vorher = utc();
    const Zeitpunkt zeit = SystemUhr().jetzt();
    const std::time_t nachher = utc();
    const std::time_t sekunden = floor<seconds>(zeit).time_since_epoch().count();
    const auto alsOrtszeit = [](std::time_t t) {
        std::tm teile{};
        localtime_r(&t, &teile);
        return t + teile.tm_gmtoff;
    };
    EXPECT_GE(sekunden, alsOrtszeit(vorher));
    EXPECT_LE(sekunden, alsOrtszeit(nachher));
}

TEST(Warte, EndetNachDenSekundenDerUhr)
{
    GestellteUhr uhr(um("2026-11-21T12:00:00"), GestellteUhr::Lauf::Steht);
    int runden = 0;
    Warte(1.5, uhr, [&] {
        ++runden;
        uhr.rueckeVor(100ms);
        return true;
    });
    EXPECT_EQ(runden, 15);
}

TEST(Warte, NullSekundenPumpenNicht)
{
    const GestellteUhr uhr(um("2026-11-21T12:00:00"), GestellteUhr::Lauf::Steht);
    int runden = 0;
    Warte(0, uhr, [&] { return ++runden < 5; });
    EXPECT_EQ(runden, 0);
}

TEST(Warte, ProgrammendeBrichtAb)
{
    const GestellteUhr uhr(um("2026-11-21T12:00:00"), GestellteUhr::Lauf::Steht);
    int runden = 0;
    Warte(60, uhr, [&] { return ++runden < 3; });
    EXPECT_EQ(runden, 3);
}

TEST(Warte, UeberMitternachtEndetNieVonSelbst)
{
    GestellteUhr uhr(um("2026-11-21T23:59:59"), GestellteUhr::Lauf::Steht);
    int runden = 0;
    Warte(2, uhr, [&] {
        uhr.rueckeVor(1h);
        return ++runden < 100;
    });
    EXPECT_EQ(runden, 100);
}

TEST(clsTimer, MisstMillisekunden)
{
    clsTimer uhr;
    EXPECT_TRUE(uhr.HasCounter());
    EXPECT_GT(uhr.TicksPerSecond(), 0);
    uhr.ResetTimer();
    std::this_thread::sleep_for(5ms);
    uhr.StopTimer();
    EXPECT_GE(uhr.Elapsed(), 5.0);
    EXPECT_LT(uhr.Elapsed(), 60'000.0);
}

TEST(clsTimer, HaeltDieAblesungen)
{
    clsTimer uhr;
    EXPECT_EQ(uhr.Elapsed(), 0.0);
    uhr.ResetTimer();
    uhr.StopTimer();
    const double erste = uhr.Elapsed();
    std::this_thread::sleep_for(2ms);
    EXPECT_EQ(uhr.Elapsed(), erste);
    uhr.StopTimer();
    EXPECT_GE(uhr.Elapsed(), erste + 2.0);
}

TEST(Uhrtext, ZaehltStundenMinutenUndSekunden)
{
    EXPECT_EQ(uhrtext(0), "00:00:00");
    EXPECT_EQ(uhrtext(59), "00:00:59");
    EXPECT_EQ(uhrtext(3661), "01:01:01");
    EXPECT_EQ(uhrtext(360000), "100:00:00");
    EXPECT_EQ(uhrtext(-1), "");
}

TEST(clsTimer, TextMitDreiStellen)
{
    clsTimer uhr;
    EXPECT_EQ(uhr.strElapsed(), "Execution took 0,000 ms");
    uhr.ResetTimer();
    std::this_thread::sleep_for(2ms);
    uhr.StopTimer();
    EXPECT_THAT(uhr.strElapsed(), testing::MatchesRegex("Execution took [0-9.]+,[0-9][0-9][0-9] ms"));
}

} // namespace
