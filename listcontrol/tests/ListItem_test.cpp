#include "listcontrol/logic/Farbe.h"
#include "listcontrol/logic/ListItem.h"
#include "listcontrol/logic/ListenFehler.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

TEST(ListItem, HatAmAnfangLeereTexte)
{
    const ListItem posten(3);
    EXPECT_EQ(posten.SubItemCount(), 3);
    EXPECT_EQ(posten.Text(0), "");
    EXPECT_EQ(posten.Text(2), "");
    EXPECT_EQ(posten.Tag(), "");
    EXPECT_EQ(posten.PictureIndex(), -1);
    EXPECT_FALSE(posten.Checked());
    EXPECT_FALSE(posten.Selected());
}

TEST(ListItem, BehaeltJedenTextBeiSeinerSpalte)
{
    ListItem posten(4);
    posten.setText(2, "14.02.1976 Sa");
    posten.setText(0, "   1");
    posten.setTag("a");
    posten.setText(3, "Zwölf €");
    EXPECT_EQ(posten.Text(0), "   1");
    EXPECT_EQ(posten.Text(1), "");
    EXPECT_EQ(posten.Text(2), "14.02.1976 Sa");
    EXPECT_EQ(posten.Text(3), "Zwölf €");
    EXPECT_EQ(posten.Tag(), "a");
}

TEST(ListItem, EineMarkeKommtUndGeht)
{
    ListItem posten(3);
    posten.setText(0, "07");
    posten.setText(1, "12");
    posten.setText(2, "49");
    posten.setText(1, " 12 ");
    EXPECT_EQ(posten.Text(1), " 12 ");
    EXPECT_EQ(posten.Text(2), "49");
    posten.setText(1, "12");
    EXPECT_EQ(posten.Text(0), "07");
    EXPECT_EQ(posten.Text(1), "12");
    EXPECT_EQ(posten.Text(2), "49");
}

TEST(ListItem, NimmtEinenTextAusSichSelbst)
{
    ListItem posten(3);
    posten.setText(0, "ein Text, der nicht klein ist");
    posten.setText(1, posten.Text(0));
    posten.setText(0, posten.Text(1).substr(4, 4));
    posten.setText(2, posten.Text(1));
    EXPECT_EQ(posten.Text(0), "Text");
    EXPECT_EQ(posten.Text(1), "ein Text, der nicht klein ist");
    EXPECT_EQ(posten.Text(2), "ein Text, der nicht klein ist");
}

// A short one fits into the room that is there, so that the texts move within the block while one of them is read.
TEST(ListItem, NimmtEinenTextAusSichSelbstOhneUmzuziehen)
{
    ListItem posten(4, 200);
    posten.setTag("T");
    posten.setText(0, "0123456789");
    posten.setText(3, "abcdefghij");
    const void* vorher = posten.Kennung();
    posten.setText(0, posten.Text(3));
    EXPECT_EQ(posten.Text(0), "abcdefghij");
    posten.setText(1, posten.Text(0).substr(5));
    EXPECT_EQ(posten.Text(1), "fghij");
    posten.setText(0, posten.Text(3).substr(9));
    EXPECT_EQ(posten.Text(0), "j");
    posten.setTag(posten.Text(3));
    EXPECT_EQ(posten.Tag(), "abcdefghij");
    posten.setText(2, posten.Tag());
    EXPECT_EQ(posten.Text(0), "j");
    EXPECT_EQ(posten.Text(1), "fghij");
    EXPECT_EQ(posten.Text(2), "abcdefghij");
    EXPECT_EQ(posten.Text(3), "abcdefghij");
    EXPECT_EQ(posten.Kennung(), vorher);
}

// The first byte of the block and the last one that it has room for.
TEST(ListItem, NimmtAuchDenErstenUndDenLetztenTextAusSichSelbst)
{
    ListItem posten(2);
    posten.setTag("erster");
    while (posten.Textlaenge() < 300)
        posten.setText(1, std::string(posten.Text(1)) + "x");
    posten.setText(0, posten.Tag());
    EXPECT_EQ(posten.Text(0), "erster");
    posten.setText(1, posten.Text(1).substr(posten.Text(1).size() - 1));
    EXPECT_EQ(posten.Text(1), "x");
    EXPECT_EQ(posten.Tag(), "erster");
}

TEST(ListItem, EinFalscherIndexIstEinFehlerUndAendertNichts)
{
    ListItem posten(2);
    posten.setText(1, "b");
    EXPECT_THROW((void)posten.Text(2), IndexFehler);
    EXPECT_THROW((void)posten.Text(-1), IndexFehler);
    EXPECT_THROW(posten.setText(2, "c"), IndexFehler);
    EXPECT_THROW(posten.setText(-1, "c"), IndexFehler);
    EXPECT_EQ(posten.Text(0), "");
    EXPECT_EQ(posten.Text(1), "b");
}

TEST(ListItem, MitAndererSpaltenzahlBleibenDieErstenTexte)
{
    ListItem posten(3);
    posten.setTag("merke");
    posten.setText(0, "a");
    posten.setText(1, "bb");
    posten.setText(2, "ccc");
    posten.setChecked(true);
    posten.setSelected(true);
    posten.setPictureIndex(4);
    posten.SetSubItemCount(2);
    EXPECT_EQ(posten.SubItemCount(), 2);
    EXPECT_EQ(posten.Text(1), "bb");
    posten.SetSubItemCount(5);
    EXPECT_EQ(posten.Text(0), "a");
    EXPECT_EQ(posten.Text(1), "bb");
    EXPECT_EQ(posten.Text(2), "");
    posten.setText(4, "e");
    EXPECT_EQ(posten.Text(4), "e");
    EXPECT_EQ(posten.Tag(), "merke");
    EXPECT_TRUE(posten.Checked());
    EXPECT_TRUE(posten.Selected());
    EXPECT_EQ(posten.PictureIndex(), 4);
    posten.SetSubItemCount(0);
    EXPECT_EQ(posten.Tag(), "merke");
    EXPECT_THROW((void)posten.Text(0), IndexFehler);
}

TEST(ListItem, BehaeltBeimVerschiebenSeineKennung)
{
    ListItem posten(1);
    posten.setText(0, "x");
    const void* kennung = posten.Kennung();
    const ListItem anderer = std::move(posten);
    EXPECT_EQ(anderer.Kennung(), kennung);
    EXPECT_EQ(anderer.Text(0), "x");
}

TEST(ListItem, VerhaeltSichWieEineReiheVonTexten)
{
    constexpr int kSpalten = 23;
    std::mt19937 wuerfel(6049);
    const auto zufall = [&](int unter) { return static_cast<int>(wuerfel() % static_cast<unsigned>(unter)); };
    ListItem posten(kSpalten, 10);
    std::vector<std::string> erwartet(kSpalten);
    for (int zug = 0; zug < 5000; ++zug) {
        const int spalte = zufall(kSpalten);
        const auto laenge = static_cast<std::size_t>(zufall(zug % 100 == 0 ? 3000 : 20));
        const std::string text(laenge, static_cast<char>('a' + zufall(26)));
        posten.setText(spalte, text);
        erwartet[static_cast<std::size_t>(spalte)] = text;
        std::size_t gesamt = 0;
        for (int i = 0; i < kSpalten; ++i) {
            ASSERT_EQ(posten.Text(i), erwartet[static_cast<std::size_t>(i)]) << zug << "/" << i;
            gesamt += posten.Text(i).size();
        }
        ASSERT_EQ(posten.Textlaenge(), gesamt);
    }
}

TEST(Farbe, LiestBlauGruenRot)
{
    EXPECT_EQ(farbeAusBGR(255), (Farbe{255, 0, 0}));
    EXPECT_EQ(farbeAusBGR(65535), (Farbe{255, 255, 0}));
    EXPECT_EQ(farbeAusBGR(0xFFFF80), (Farbe{128, 255, 255}));
    EXPECT_EQ(farbeAusBGR(16645337), (Farbe{217, 252, 253}));
    EXPECT_EQ(farbeAusBGR(0xC0C0C0), (Farbe{192, 192, 192}));
}

} // namespace
