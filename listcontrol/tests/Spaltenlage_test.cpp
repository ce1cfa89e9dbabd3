#include "listcontrol/logic/Spaltenlage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

/// a | b | c with separators of one pixel: a 0..40, b 41..71, c 72..122.
class Lage : public testing::Test {
protected:
    Lage()
    {
        neu("a", 40);
        trenner();
        neu("b", 30);
        trenner();
        neu("c", 50);
        lage.ordne(0, false);
    }

    void neu(const std::string& name, int breite)
    {
        Column spalte;
        spalte.key = name;
        spalte.Caption = name;
        spalte.Width = breite;
        spalten.Add(spalte);
    }

    void trenner()
    {
        Column spalte;
        spalte.key = "trenner" + std::to_string(spalten.Count());
        spalte.Width = 1;
        spalte.Resizable = false;
        spalten.Add(spalte);
    }

    std::vector<int> folge() const
    {
        std::vector<int> alle;
        for (const Spaltenlage::Platz& platz : lage.plaetze())
            alle.push_back(platz.spalte);
        return alle;
    }

    std::vector<int> breiten() const
    {
        std::vector<int> alle;
        for (const Spaltenlage::Platz& platz : lage.plaetze())
            alle.push_back(platz.breite);
        return alle;
    }

    ColumnCollection spalten;
    Spaltenlage lage{spalten};
};

TEST_F(Lage, StelltDieSpaltenNebeneinander)
{
    EXPECT_EQ(lage.gesamtbreite(), 122);
    EXPECT_EQ(lage.platz(2)->x, 41);
    EXPECT_EQ(lage.platz(2)->ende(), 71);
    EXPECT_EQ(lage.spalteBei(0), 0);
    EXPECT_EQ(lage.spalteBei(40), 1);
    EXPECT_EQ(lage.spalteBei(41), 2);
    EXPECT_EQ(lage.spalteBei(121), 4);
    EXPECT_EQ(lage.spalteBei(122), -1);
    EXPECT_EQ(lage.spalteBei(-1), -1);
}

TEST_F(Lage, LaesstVerborgeneSpaltenAus)
{
    spalten.Item(2).Visible = false;
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(0, 1, 3, 4));
    EXPECT_EQ(lage.platz(2), nullptr);
    EXPECT_EQ(lage.gesamtbreite(), 92);
}

TEST_F(Lage, OhneSpaltenIstSieLeer)
{
    const ColumnCollection keine;
    Spaltenlage leer(keine);
    leer.ordne(500, true);
    EXPECT_EQ(leer.gesamtbreite(), 0);
    EXPECT_EQ(leer.spalteBei(0), -1);
    EXPECT_EQ(leer.teilerBei(0), -1);
    EXPECT_EQ(leer.einfuegestelle(0), -1);
}

TEST_F(Lage, VerteiltDenUeberschussAufDieDatenspalten)
{
    lage.ordne(132, true);
    EXPECT_THAT(breiten(), ElementsAre(43, 1, 33, 1, 54));
    EXPECT_EQ(lage.gesamtbreite(), 132);
    EXPECT_EQ(lage.platz(4)->x, 78);
}

TEST_F(Lage, VerteiltNichtsAnSpaltenMitEigenerBreite)
{
    spalten.Item(0).WidthAutoSized = false;
    lage.ordne(132, true);
    EXPECT_THAT(breiten(), ElementsAre(40, 1, 35, 1, 55));
    spalten.Item(2).WidthAutoSized = false;
    spalten.Item(4).WidthAutoSized = false;
    lage.ordne(132, true);
    EXPECT_THAT(breiten(), ElementsAre(40, 1, 30, 1, 50));
}

TEST_F(Lage, SchrumpftKeineSpalte)
{
    lage.ordne(50, true);
    EXPECT_EQ(lage.gesamtbreite(), 122);
}

TEST_F(Lage, EinTeilerGehoertDerSpalteDavorAuchUeberEinenTrennerHinweg)
{
    EXPECT_EQ(lage.teilerBei(35), -1);
    EXPECT_EQ(lage.teilerBei(36), 0);
    EXPECT_EQ(lage.teilerBei(40), 0);
    EXPECT_EQ(lage.teilerBei(45), 0);
    EXPECT_EQ(lage.teilerBei(46), -1);
    EXPECT_EQ(lage.teilerBei(70), 2);
    EXPECT_EQ(lage.teilerBei(124), 4);
    EXPECT_EQ(lage.teilerBei(200), -1);
}

TEST_F(Lage, EineFesteSpalteHatKeinenTeiler)
{
    spalten.Item(2).Resizable = false;
    EXPECT_EQ(lage.teilerBei(71), -1);
    EXPECT_EQ(lage.teilerBei(40), 0);
}

TEST_F(Lage, FindetDieEinfuegestelle)
{
    EXPECT_EQ(lage.einfuegestelle(-50), 0);
    EXPECT_EQ(lage.einfuegestelle(19), 0);
    EXPECT_EQ(lage.einfuegestelle(20), 2);
    EXPECT_EQ(lage.einfuegestelle(60), 4);
    EXPECT_EQ(lage.einfuegestelle(110), -1);
    EXPECT_EQ(lage.einfuegemarke(2), 41);
    EXPECT_EQ(lage.einfuegemarke(-1), 122);
}

TEST_F(Lage, VerschiebenLaesstDieTrennerStehen)
{
    lage.verschiebe(4, 0);
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(4, 1, 0, 3, 2));
    lage.verschiebe(4, -1);
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(Lage, VerschiebenAnDieEigeneStelleAendertNichts)
{
    lage.verschiebe(0, 0);
    lage.verschiebe(0, 2);
    lage.verschiebe(4, -1);
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(Lage, VerborgeneSpaltenBehaltenBeimVerschiebenIhrenPlatz)
{
    spalten.Item(2).Visible = false;
    lage.verschiebe(4, 0);
    spalten.Item(2).Visible = true;
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(4, 1, 0, 3, 2));
}

TEST_F(Lage, NeueSpaltenStehenHinten)
{
    lage.verschiebe(4, 0);
    neu("d", 10);
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(4, 1, 0, 3, 2, 5));
}

TEST_F(Lage, BehaeltDieFolgeWennEineSpalteGeht)
{
    lage.verschiebe(4, 0);
    lage.vorEntfernen(0);
    spalten.Remove(0);
    lage.ordne(0, false);
    EXPECT_THAT(folge(), ElementsAre(3, 0, 2, 1));
}

} // namespace
