#include "tools/muster/MusterDateien.h"

#include "archive/logic/Ziehungsdatei.h"
#include "archive/tests/Testordner.h"
#include "tools/muster/Muster.h"

#include <gtest/gtest.h>

using namespace std::chrono;

namespace {

constexpr sys_days kStand = year{2026} / July / 24;

} // namespace

TEST(MusterDateien, SchreibtDieDreiDateienUndSonstNichts)
{
    const Testordner ordner;
    EXPECT_EQ(schreibeMusterDateien(ordner.text(), kStand), std::nullopt);
    EXPECT_EQ(ordner.lies("SALOTTO.DAT"), musterDatei(Samstagslotto, kStand));
    EXPECT_EQ(ordner.lies("MALOTTO.DAT"), musterDatei(Mittwochslotto, kStand));
    EXPECT_EQ(ordner.lies("MBLOTTO.DAT"), musterDatei(MittwochslottoB, kStand));
    EXPECT_EQ(ordner.anzahlEintraege(), 3U);
}

TEST(MusterDateien, SindDemProgrammLesbar)
{
    const Testordner ordner;
    ASSERT_EQ(schreibeMusterDateien(ordner.text(), kStand), std::nullopt);
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ordner.text();
    EXPECT_EQ(LadeAlleZiehungen(archiv, 7, {}), "3693  [2026/29]:2094  [2026/29]:757  [2000/48]");
}

TEST(MusterDateien, LegtEinenFehlendenOrdnerAn)
{
    const Testordner ordner;
    EXPECT_EQ(schreibeMusterDateien(ordner.text() + "/neu/tief", kStand), std::nullopt);
    EXPECT_EQ(ordner.lies("neu/tief/MBLOTTO.DAT"), musterDatei(MittwochslottoB, kStand));
}

TEST(MusterDateien, UeberschreibtKeineVorhandeneDatei)
{
    const Testordner ordner;
    ordner.schreibe("MALOTTO.DAT", "echte Ziehungen");
    const auto fehler = schreibeMusterDateien(ordner.text(), kStand);
    ASSERT_TRUE(fehler);
    EXPECT_EQ(*fehler, "Die Datei " + ordner.text() + "/MALOTTO.DAT ist schon vorhanden und wird nicht überschrieben.");
    EXPECT_EQ(ordner.lies("MALOTTO.DAT"), "echte Ziehungen");
    EXPECT_EQ(ordner.anzahlEintraege(), 1U);
}

TEST(MusterDateien, ErkenntEineVorhandeneDateiInAndererSchreibweise)
{
    const Testordner ordner;
    ordner.schreibe("Mblotto.dat", "echte Ziehungen");
    EXPECT_TRUE(schreibeMusterDateien(ordner.text(), kStand));
    EXPECT_EQ(ordner.lies("Mblotto.dat"), "echte Ziehungen");
    EXPECT_EQ(ordner.anzahlEintraege(), 1U);
}

TEST(MusterDateien, MeldetEinenOrdnerDerKeinerIst)
{
    const Testordner ordner;
    ordner.schreibe("datei", "x");
    const auto fehler = schreibeMusterDateien(ordner.text() + "/datei", kStand);
    ASSERT_TRUE(fehler);
    EXPECT_EQ(*fehler, "Die Datei " + ordner.text() + "/datei/SALOTTO.DAT kann nicht geschrieben werden.");
    EXPECT_EQ(ordner.lies("datei"), "x");
}

TEST(MusterDateien, LaesstNachEinemFehlerKeineDateiZurueck)
{
    const Testordner ordner;
    ordner.legeOrdnerAn("MBLOTTO.DAT.neu-muster");
    EXPECT_TRUE(schreibeMusterDateien(ordner.text(), kStand));
    EXPECT_FALSE(ordner.gibtEs("SALOTTO.DAT"));
    EXPECT_FALSE(ordner.gibtEs("SALOTTO.DAT.neu-muster"));
    EXPECT_FALSE(ordner.gibtEs("MALOTTO.DAT"));
}
