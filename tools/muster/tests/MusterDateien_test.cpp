#include "archive/logic/Ziehungsdatei.h"
#include "testhilfen/Pruefordner.h"
#include "tools/muster/Muster.h"
#include "tools/muster/MusterDateien.h"

#include <gtest/gtest.h>

using namespace std::chrono;

namespace {

constexpr sys_days kStand = year{2026} / July / 24;

} // namespace

TEST(MusterDateien, SchreibtDieDreiDateienUndSonstNichts)
{
    const Pruefordner ordner;
    EXPECT_EQ(schreibeMusterDateien(ordner.pfad().string(), kStand), std::nullopt);
    EXPECT_EQ(inhaltVon(ordner / "SALOTTO.DAT"), musterDatei(Samstagslotto, kStand));
    EXPECT_EQ(inhaltVon(ordner / "MALOTTO.DAT"), musterDatei(Mittwochslotto, kStand));
    EXPECT_EQ(inhaltVon(ordner / "MBLOTTO.DAT"), musterDatei(MittwochslottoB, kStand));
    EXPECT_EQ(ordner.eintraege(), 3U);
}

TEST(MusterDateien, SindDemProgrammLesbar)
{
    const Pruefordner ordner;
    ASSERT_EQ(schreibeMusterDateien(ordner.pfad().string(), kStand), std::nullopt);
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ordner.pfad().string();
    EXPECT_EQ(LadeAlleZiehungen(archiv, 7, {}), "3693  [2026/29]:2094  [2026/29]:757  [2000/48]");
}

TEST(MusterDateien, LegtEinenFehlendenOrdnerAn)
{
    const Pruefordner ordner;
    EXPECT_EQ(schreibeMusterDateien(ordner.pfad().string() + "/neu/tief", kStand), std::nullopt);
    EXPECT_EQ(inhaltVon(ordner / "neu/tief/MBLOTTO.DAT"), musterDatei(MittwochslottoB, kStand));
}

TEST(MusterDateien, UeberschreibtKeineVorhandeneDatei)
{
    const Pruefordner ordner;
    ordner.lege("MALOTTO.DAT", "echte Ziehungen");
    const auto fehler = schreibeMusterDateien(ordner.pfad().string(), kStand);
    ASSERT_TRUE(fehler);
    EXPECT_EQ(*fehler,
              "Die Datei " + ordner.pfad().string() + "/MALOTTO.DAT ist schon vorhanden und wird nicht überschrieben.");
    EXPECT_EQ(inhaltVon(ordner / "MALOTTO.DAT"), "echte Ziehungen");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(MusterDateien, ErkenntEineVorhandeneDateiInAndererSchreibweise)
{
    const Pruefordner ordner;
    ordner.lege("Mblotto.dat", "echte Ziehungen");
    EXPECT_TRUE(schreibeMusterDateien(ordner.pfad().string(), kStand));
    EXPECT_EQ(inhaltVon(ordner / "Mblotto.dat"), "echte Ziehungen");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(MusterDateien, MeldetEinenOrdnerDerKeinerIst)
{
    const Pruefordner ordner;
    ordner.lege("datei", "x");
    const auto fehler = schreibeMusterDateien(ordner.pfad().string() + "/datei", kStand);
    ASSERT_TRUE(fehler);
    EXPECT_TRUE(fehler->starts_with("Die Datei " + ordner.pfad().string() +
                                    "/datei/SALOTTO.DAT kann nicht geschrieben werden: "))
        << *fehler;
    EXPECT_EQ(inhaltVon(ordner / "datei"), "x");
}
