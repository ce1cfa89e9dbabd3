#include "testhilfen/Pruefordner.h"
#include "tips/logic/Druckeinstellungen.h"

#include <gtest/gtest.h>

namespace {

constexpr Kombination kTipp{1, 7, 8, 25, 43, 49};
constexpr std::size_t kImmer = 4; ///< Spiel 77, Super 6, run time, Glücksspirale

void erwarteOrt(const Scheinort& ort, double senkrecht, double waagerecht)
{
    EXPECT_NEAR(ort.senkrecht, senkrecht, 1e-4);
    EXPECT_NEAR(ort.waagerecht, waagerecht, 1e-4);
}

} // namespace

TEST(Spielscheindruck, DieKreuzeStehenInDenZellen)
{
    const std::vector<Scheinort> orte = layoutSlip({kTipp}, {}, {});
    ASSERT_EQ(orte.size(), 6 + kImmer);
    erwarteOrt(orte[0], 4.8 + 0.8, 18.7 + 0.5);
    erwarteOrt(orte[1], 4.8 + 0.8, 18.7 + 0.5 + 6 * 3.5);
    erwarteOrt(orte[2], 4.8 + 0.8 + 3.8, 18.7 + 0.5);
    erwarteOrt(orte[3], 4.8 + 0.8 + 3 * 3.8, 18.7 + 0.5 + 3 * 3.5);
    erwarteOrt(orte[4], 4.8 + 0.8 + 6 * 3.8, 18.7 + 0.5);
    erwarteOrt(orte[5], 4.8 + 0.8 + 6 * 3.8, 18.7 + 0.5 + 6 * 3.5);
}

TEST(Spielscheindruck, ZwoelfFelderStehenInZweiReihen)
{
    const std::vector<Scheinort> orte = layoutSlip(std::vector<Kombination>(12, kTipp), {}, {});
    ASSERT_EQ(orte.size(), 72 + kImmer);
    for (std::size_t tip = 0; tip < 12; ++tip) {
        const double spalte = static_cast<double>(tip / 2);
        erwarteOrt(orte[6 * tip], 5.6 + (tip % 2 == 0 ? 0 : 26.5), 19.2 + spalte * 25.2 - spalte * 0.1);
    }
}

TEST(Spielscheindruck, MehrAlsZwoelfTippsGehenUeberDenScheinHinaus)
{
    const std::vector<Scheinort> orte = layoutSlip(std::vector<Kombination>(13, kTipp), {}, {});
    erwarteOrt(orte[72], 5.6, 19.2 + 6 * 25.1);
}

TEST(Spielscheindruck, JedeWahlHatIhrKaestchen)
{
    const Scheinwahl keine;
    std::vector<Scheinort> orte = layoutSlip({}, keine, {});
    ASSERT_EQ(orte.size(), kImmer);
    erwarteOrt(orte[0], 73.6, 73.2);
    erwarteOrt(orte[1], 73.6, 105.5);
    erwarteOrt(orte[2], 66.0, 33.8);
    erwarteOrt(orte[3], 73.6, 137.8);
    orte = layoutSlip({}, {true, true, true, true, true, Laufzeit::Dauerspiel}, {});
    ASSERT_EQ(orte.size(), kImmer + 2);
    erwarteOrt(orte[0], 66.0, 137.9);
    erwarteOrt(orte[1], 66.0, 159.3);
    erwarteOrt(orte[2], 73.6, 62.5);
    erwarteOrt(orte[3], 73.6, 94.7);
    erwarteOrt(orte[4], 66.0, 105.6);
    erwarteOrt(orte[5], 73.6, 127.1);
}

TEST(Spielscheindruck, DieLaufzeiten)
{
    const auto kreuz = [](Laufzeit laufzeit) { return layoutSlip({}, {.laufzeit = laufzeit}, {})[2]; };
    erwarteOrt(kreuz(Laufzeit::ZweiWochen), 66.0, 40.9);
    erwarteOrt(kreuz(Laufzeit::DreiWochen), 66.0, 48.1);
    erwarteOrt(kreuz(Laufzeit::VierWochen), 66.0, 55.2);
    erwarteOrt(kreuz(Laufzeit::FuenfWochen), 66.0, 0.0); // at the left edge
    EXPECT_EQ(layoutSlip({}, {.laufzeit = Laufzeit::DreizehnAlt}, {}).size(), kImmer - 1);
}

TEST(Spielscheindruck, DerVersatzGiltFuerAlleKreuze)
{
    const Scheinwahl wahl{.samstag = true};
    const std::vector<Scheinort> ohne = layoutSlip({kTipp}, wahl, {});
    const std::vector<Scheinort> mit = layoutSlip({kTipp}, wahl, {.waagerecht = 13, .senkrecht = -7});
    ASSERT_EQ(ohne.size(), mit.size());
    for (std::size_t i = 0; i < ohne.size(); ++i)
        erwarteOrt(mit[i], ohne[i].senkrecht - 0.7, ohne[i].waagerecht + 1.3);
}

TEST(Spielscheindruck, EineZeileGibtIhreZahlen)
{
    const Kombination tip{3, 7, 12, 23, 34, 45};
    EXPECT_EQ(quicktippzeile(1, tip), " Tipp  1:   3  7 12 23 34 45");
    EXPECT_EQ(kombinationAusZeile(quicktippzeile(12, tip)), tip);
    EXPECT_EQ(kombinationAusZeile("            3  7 50 xx"), (Kombination{3, 7, 0, 0, 0, 0}));
    EXPECT_EQ(kombinationAusZeile(""), Kombination{});
    EXPECT_EQ(layoutSlip({kombinationAusZeile("")}, {}, {}).size(), kImmer);
}

TEST(Spielscheindruck, DieFrageNenntAlleAngaben)
{
    EXPECT_EQ(druckfrage({true, true, true, false, true, Laufzeit::DreizehnAlt}, 5, "Laser"),
              "Soll der Tippschein in dieser Form gedruckt werden? \nJa= Drucken, Nein=Angaben ändern\n\n"
              "Spielart: Samstags- und Mittwochslotto\nAnzahl der Tipps: 5\nSpiel77: Ja\nSuper6: Nein\n"
              "Glueckspirale: Ja\nLaufzeit: 13 Wochen\nAuf Drucker: Laser");
    EXPECT_NE(druckfrage({.samstag = true}, 1, "").find("Samstagslotto\n"), std::string::npos);
    EXPECT_NE(druckfrage({.mittwoch = true}, 1, "").find("Mittwochslotto\n"), std::string::npos);
}

TEST(Druckeinstellungen, WasGeschriebenWirdStehtWiederDa)
{
    const Pruefordner ordner;
    EXPECT_EQ(liesDruckeinstellungen(ordner.pfad()), Druckeinstellungen{});
    for (std::size_t i = 0; i < kLaufzeiten; ++i) {
        const Druckeinstellungen einstellungen{{-15, 27}, i % 2 == 0, true, i % 3 == 0, static_cast<Laufzeit>(i)};
        ASSERT_TRUE(schreibeDruckeinstellungen(ordner.pfad(), einstellungen));
        EXPECT_EQ(liesDruckeinstellungen(ordner.pfad()), einstellungen);
    }
}

TEST(Druckeinstellungen, UnsinnGibtDieVorgaben)
{
    const Pruefordner ordner;
    ordner.lege("druck_settings.ini", "[Druck_Settings]\r\nDruck_Versatz_horizontal=abc\r\n"
                                      "Druck_Versatz_vertikal=99999999999\r\nSpiel_77=vielleicht\r\nSuper_6=\r\n"
                                      "Gluecksspirale=1\r\nTippschein_Laufzeit=6\r\n");
    EXPECT_EQ(liesDruckeinstellungen(ordner.pfad()), Druckeinstellungen{});
}

TEST(Druckeinstellungen, DieSchluesselStehenInDerDatei)
{
    const Pruefordner ordner;
    schreibeDruckeinstellungen(ordner.pfad(), {{-5, 3}, true, false, true, Laufzeit::DreizehnAlt});
    const std::string text = inhaltVon(ordner / "druck_settings.ini");
    for (const char* zeile : {"[Druck_Settings]", "Druck_Versatz_horizontal=-5", "Druck_Versatz_vertikal=3",
                              "Spiel_77=Ja", "Super_6=Nein", "Gluecksspirale=Ja", "Tippschein_Laufzeit=13"})
        EXPECT_NE(text.find(zeile), std::string::npos) << zeile << "\n" << text;
}
