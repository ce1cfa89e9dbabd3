#include "listcontrol/logic/ListenFehler.h"
#include "listcontrol/screens/CLongScroll.h"

#include <QLabel>
#include <QSlider>

#include <gtest/gtest.h>

namespace {

constexpr int kGroesster = 13'983'787;

class Rollbalken : public testing::Test {
protected:
    Rollbalken()
    {
        scroll.beiAenderung = [this] { ++ereignisse; };
    }

    QScrollBar bar;
    CLongScroll scroll;
    int ereignisse = 0;
};

TEST_F(Rollbalken, NimmtNurEinenRollbalken)
{
    QLabel label;
    QSlider regler;
    for (QObject* falscher :
         {static_cast<QObject*>(&label), static_cast<QObject*>(&regler), static_cast<QObject*>(nullptr)}) {
        try {
            scroll.setClient(falscher);
            FAIL() << "no error was raised";
        } catch (const ListenFehler& fehler) {
            EXPECT_STREQ(fehler.what(), "Client object must be a scrollbar.");
            EXPECT_EQ(fehler.quelle(), "CLongScroll");
        }
    }
    EXPECT_EQ(scroll.Client(), nullptr);
    QScrollBar waagrecht(Qt::Horizontal);
    scroll.setClient(&waagrecht);
    EXPECT_EQ(scroll.Client(), &waagrecht);
}

TEST_F(Rollbalken, UebergibtSeineZahlen)
{
    scroll.setClient(&bar);
    scroll.setMin(1);
    scroll.setMax(kGroesster);
    scroll.setLargeChange(1398);
    scroll.setSmallChange(2);
    EXPECT_EQ(bar.minimum(), 1);
    EXPECT_EQ(bar.maximum(), kGroesster);
    EXPECT_EQ(bar.pageStep(), 1398);
    EXPECT_EQ(bar.singleStep(), 2);
    EXPECT_EQ(scroll.Min(), 1);
    EXPECT_EQ(scroll.Max(), kGroesster);
    EXPECT_EQ(scroll.LargeChange(), 1398);
    EXPECT_EQ(scroll.SmallChange(), 2);
}

TEST_F(Rollbalken, UebergibtAuchWasVorherGesetztWar)
{
    scroll.setMax(kGroesster);
    scroll.setValue(5'000'000);
    scroll.setClient(&bar);
    EXPECT_EQ(bar.maximum(), kGroesster);
    EXPECT_EQ(bar.value(), 5'000'000);
}

TEST_F(Rollbalken, MeldetJedeAenderungGenauEinmal)
{
    scroll.setClient(&bar);
    scroll.setMax(kGroesster);
    EXPECT_EQ(ereignisse, 0);
    scroll.setValue(7'000'001);
    EXPECT_EQ(ereignisse, 1);
    EXPECT_EQ(bar.value(), 7'000'001);
    scroll.setValue(7'000'001);
    EXPECT_EQ(ereignisse, 1);
    bar.setValue(3);
    EXPECT_EQ(ereignisse, 2);
    EXPECT_EQ(scroll.Value(), 3);
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(ereignisse, 3);
    EXPECT_EQ(scroll.Value(), 4);
}

TEST_F(Rollbalken, BegrenztDenWert)
{
    scroll.setClient(&bar);
    scroll.setMin(1);
    scroll.setMax(kGroesster);
    scroll.setValue(13'983'816);
    EXPECT_EQ(scroll.Value(), kGroesster);
    scroll.setValue(-5);
    EXPECT_EQ(scroll.Value(), 1);
}

TEST_F(Rollbalken, EineGrenzeNimmtDenWertMit)
{
    scroll.setClient(&bar);
    scroll.setMin(1);
    EXPECT_EQ(scroll.Value(), 1);
    EXPECT_EQ(ereignisse, 1);
    scroll.setValue(500);
    scroll.setMax(100);
    EXPECT_EQ(scroll.Value(), 100);
    EXPECT_EQ(ereignisse, 3);
    scroll.setMin(200);
    EXPECT_EQ(scroll.Max(), 200);
    EXPECT_EQ(scroll.Value(), 200);
}

TEST_F(Rollbalken, ImEreignisGiltDerNeueWert)
{
    scroll.setClient(&bar);
    int gesehen = 0;
    int amBalken = 0;
    scroll.beiAenderung = [&] {
        gesehen = scroll.Value();
        amBalken = bar.value();
    };
    scroll.setValue(77);
    EXPECT_EQ(gesehen, 77);
    EXPECT_EQ(amBalken, 77);
}

TEST_F(Rollbalken, UeberlebtSeinenBalken)
{
    {
        QScrollBar kurz;
        scroll.setClient(&kurz);
        scroll.setValue(9);
    }
    EXPECT_EQ(scroll.Client(), nullptr);
    scroll.setValue(10);
    EXPECT_EQ(scroll.Value(), 10);
}

TEST(CLongScroll, EinBalkenUeberlebtIhn)
{
    QScrollBar bar;
    int ereignisse = 0;
    {
        CLongScroll scroll(&bar);
        scroll.beiAenderung = [&] { ++ereignisse; };
        bar.setValue(1);
    }
    bar.setValue(2);
    EXPECT_EQ(ereignisse, 1);
}

} // namespace
