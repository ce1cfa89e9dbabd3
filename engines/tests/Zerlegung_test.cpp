#include "engines/logic/Zerlegung.h"
#include "testhilfen/ArchivAus.h"
#include "testhilfen/WiederholungenReferenz.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace {

Ziehungsauswahl auswahlAus(const std::vector<Zahlenreihe>& reihen)
{
    return std::make_shared<const ZiehungsArchiv>(archivAus(reihen));
}

std::vector<std::string> zeilen(const Zerlegung& zerlegung)
{
    std::vector<std::string> texte;
    for (const Wiederholung& menge : zerlegung.mengen)
        texte.push_back(zerlegungszeile(menge, zerlegung.k));
    return texte;
}

std::vector<std::string> detailtexte(const Detailzeilen& details)
{
    std::vector<std::string> texte;
    for (std::size_t i = 0; i < details.anzahl(); ++i)
        texte.push_back(details.zeile(i));
    return texte;
}

/// The lines by the plain way: the keys sorted as texts, runs of equal ones counted.
std::vector<std::string> sollzeilen(const ZiehungsArchiv& archiv, int k)
{
    std::map<std::string, int> anzahlen;
    for (const std::string& schluessel : Referenz::suchschluessel(archiv, k))
        ++anzahlen[schluessel];
    std::vector<std::string> texte;
    for (const auto& [schluessel, anzahl] : anzahlen)
        texte.push_back((anzahl < 10 ? " " : "") + std::to_string(anzahl) + " mal -> " + schluessel);
    return texte;
}

TEST(Zerlege, EineZiehungHatJedeMengeEinMal)
{
    const Ziehungsauswahl eine = auswahlAus({{1, 2, 10, 19, 20, 49}});
    const Zerlegung zerlegung = zerlege(eine, 2);
    EXPECT_TRUE(zerlegung.vollstaendig);
    EXPECT_EQ(zeilen(zerlegung),
              (std::vector<std::string>{" 1 mal -> 1,10", " 1 mal -> 1,19", " 1 mal -> 1,2", " 1 mal -> 1,20",
                                        " 1 mal -> 1,49", " 1 mal -> 10,19", " 1 mal -> 10,20", " 1 mal -> 10,49",
                                        " 1 mal -> 19,20", " 1 mal -> 19,49", " 1 mal -> 2,10", " 1 mal -> 2,19",
                                        " 1 mal -> 2,20", " 1 mal -> 2,49", " 1 mal -> 20,49"}));
    EXPECT_EQ(zerlege(eine, 3).mengen.size(), 20U);
    EXPECT_EQ(zerlege(eine, 4).mengen.size(), 15U);
    EXPECT_EQ(zerlege(eine, 5).mengen.size(), 6U);
}

TEST(Zerlege, WieMitTextenBeiZufaelligenZiehungen)
{
    std::mt19937 zufall(5);
    for (const int hoechste : {8, 20, 49}) {
        std::vector<Zahlenreihe> reihen;
        for (int nr = 0; nr < 120; ++nr) {
            std::vector<std::int32_t> topf;
            for (int zahl = 1; zahl <= hoechste; ++zahl)
                topf.push_back(zahl);
            Zahlenreihe reihe{};
            std::ranges::sample(topf, reihe.begin(), 6, zufall);
            reihen.push_back(reihe);
        }
        const Ziehungsauswahl auswahl = auswahlAus(reihen);
        for (int k = 2; k <= 5; ++k)
            EXPECT_EQ(zeilen(zerlege(auswahl, k)), sollzeilen(*auswahl, k)) << hoechste << " " << k;
    }
}

TEST(Zerlege, AuchMitFalschenZahlenInDerFolgeDerTexte)
{
    const Ziehungsauswahl auswahl = auswahlAus({{-5, 0, 7, 70, 700, 2147483647}, {49, 48, 7, 7, 1, 0}});
    for (int k = 2; k <= 5; ++k)
        EXPECT_EQ(zeilen(zerlege(auswahl, k)), sollzeilen(*auswahl, k)) << k;
}

TEST(Zerlege, KeineZiehungHatKeineMenge)
{
    EXPECT_TRUE(zerlege(auswahlAus({}), 3).mengen.empty());
}

TEST(Zerlege, LaesstSichAnhalten)
{
    const Zerlegung zerlegung = zerlege(auswahlAus({{1, 2, 3, 4, 5, 6}}), 2, [](std::uint64_t) { return false; });
    EXPECT_FALSE(zerlegung.vollstaendig);
}

TEST(WaehleAus, NimmtDieZiehungenMitIhremDatum)
{
    ZiehungsArchiv archiv = archivAus(Mittwochslotto, {{1999, 1, {1, 2, 3, 4, 5, 6}, 9},
                                                       {1999, 2, {7, 8, 9, 10, 11, 12}, 0},
                                                       {2000, 3, {13, 14, 15, 16, 17, 18}, 1}});
    archiv.Datum = {"", "a", "b", "c", "eines zu viel"};
    const std::vector<std::size_t> nummern{1, 3};
    const Ziehungsauswahl auswahl = waehleAus(archiv, nummern);
    EXPECT_EQ(auswahl->AnzahlZiehungen, 2);
    EXPECT_EQ(auswahl->Spielart, Mittwochslotto);
    EXPECT_EQ(auswahl->jjjj, (ZiehungsArchiv::Spalte{0, 1999, 2000}));
    EXPECT_EQ(auswahl->zz, (ZiehungsArchiv::Spalte{0, 9, 1}));
    EXPECT_EQ(auswahl->gewinnzahlen(2), (Zahlenreihe{13, 14, 15, 16, 17, 18}));
    EXPECT_EQ(auswahl->Datum, (std::vector<std::string>{"", "a", "c"}));
    EXPECT_TRUE(gleicheZiehungen(*auswahl, *waehleAus(archiv, nummern)));
    EXPECT_FALSE(gleicheZiehungen(*auswahl, archiv));
    archiv.Datum[3] = "anders";
    EXPECT_FALSE(gleicheZiehungen(*auswahl, *waehleAus(archiv, nummern)));
}

TEST(Zerlegungsdetails, NennenZuJederMengeIhreZiehungen)
{
    const Zerlegung zerlegung = zerlege(auswahlAus({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 7}}), 5);
    const std::vector<std::string> texte = detailtexte(zerlegungsdetails(zerlegung));
    ASSERT_GE(texte.size(), 4U);
    EXPECT_EQ(texte[0], "Kombination: 1,2,3,4,5");
    EXPECT_EQ(texte[1], "2000/01   01 02 03 04 05 06");
    EXPECT_EQ(texte[2], "2000/01   01 02 03 04 05 07");
    EXPECT_EQ(texte[3], "----------------------------");
    EXPECT_EQ(texte.size(), 11U * 3 + 1); // eleven sets, one of them in both draws
    EXPECT_EQ(ziehungenMit(zerlegung, zerlegung.mengen[0]), (std::vector<std::size_t>{1, 2}));
    EXPECT_EQ(ziehungenMit(zerlegung, zerlegung.mengen[1]).size(), 1U);
    EXPECT_EQ(zerlegungsdetails(Zerlegung{}).anzahl(), 0U);
    EXPECT_EQ(zerlegungsdetails(zerlegung, [](std::uint64_t) { return false; }).anzahl(), 0U);
}

TEST(Zerlegungsbericht, HatDieZiehungenUndAlleVierListen)
{
    ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 6}});
    archiv.Datum = {"", "Sa, 01.01.2000"};
    const std::vector<std::size_t> nummern{1};
    const Ziehungsauswahl eine = waehleAus(archiv, nummern);
    std::array<Zerlegung, 4> listen;
    EXPECT_EQ(zerlegungsbericht(listen, std::make_shared<const ZiehungsArchiv>()), "");
    EXPECT_EQ(zerlegungsbericht(listen, eine), "Die ausgewählten 1 Ziehungen:\r\n"
                                               "2000/01  01 02 03 04 05 06   Sa, 01.01.2000\r\n"
                                               "Die enthaltenen 0 Zweierkombinationen:\r\n"
                                               "Die enthaltenen 0 Dreierkombinationen:\r\n"
                                               "Die enthaltenen 0 Viererkombinationen:\r\n"
                                               "Die enthaltenen 0 Fünferkombinationen:\r\n");
    listen[3] = zerlege(eine, 5);
    EXPECT_TRUE(zerlegungsbericht(listen, eine)
                    .ends_with("Die enthaltenen 6 Fünferkombinationen:\r\n"
                               " 1 mal -> 1,2,3,4,5\r\n 1 mal -> 1,2,3,4,6\r\n 1 mal -> 1,2,3,5,6\r\n"
                               " 1 mal -> 1,2,4,5,6\r\n 1 mal -> 1,3,4,5,6\r\n 1 mal -> 2,3,4,5,6\r\n"));
}

TEST(Zerlegungsbericht, NenntDieZiehungenJederListe)
{
    const ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 6}, {44, 45, 46, 47, 48, 49}});
    const std::vector<std::size_t> erste{1};
    const std::vector<std::size_t> zweite{2};
    std::array<Zerlegung, 4> listen;
    listen[0] = zerlege(waehleAus(archiv, erste), 2);
    listen[1] = zerlege(waehleAus(archiv, erste), 3);
    listen[3] = zerlege(waehleAus(archiv, zweite), 5);
    const std::string bericht = zerlegungsbericht(listen, std::make_shared<const ZiehungsArchiv>());
    const auto ort = [&bericht](const char* text) { return bericht.find(text); };
    EXPECT_EQ(ort("01 02 03 04 05 06"), bericht.rfind("01 02 03 04 05 06"));
    EXPECT_LT(ort("01 02 03 04 05 06"), ort("Zweierkombinationen"));
    EXPECT_LT(ort("Dreierkombinationen"), ort("44 45 46 47 48 49"));
    EXPECT_LT(ort("44 45 46 47 48 49"), ort("Die enthaltenen 6 Fünferkombinationen"));
}

} // namespace
