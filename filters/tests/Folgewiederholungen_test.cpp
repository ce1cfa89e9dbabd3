#include "filters/logic/Folgewiederholungen.h"
#include "filters/tests/Zufallsfolge.h"

#include <gmock/gmock.h>
#include <set>

namespace {

using testing::ElementsAre;

GeteilteFolge folge(const std::vector<Zahlenreihe>& reihen)
{
    return einzelneFolge(archivAus(reihen));
}

std::vector<std::string> alleZeilen(const Wiederholungszeilen& zeilen)
{
    std::vector<std::string> alle;
    for (std::size_t nr = 0; nr < zeilen.anzahl(); ++nr)
        alle.push_back(zeilen.zeile(nr));
    return alle;
}

TEST(Folgewiederholungen, ZaehltNurMitDerVorigenZiehung)
{
    const auto gezaehlt = zaehleWiederholungen(
        folge({{1, 2, 3, 4, 5, 6}, {1, 2, 13, 14, 15, 16}, {3, 4, 23, 24, 25, 26}, {3, 4, 23, 24, 25, 26}}), "");
    EXPECT_THAT(gezaehlt.anzahl, ElementsAre(1, 0, 1, 0, 0, 0, 1));
    EXPECT_THAT(gezaehlt.gemeinsame, ElementsAre(0, 2, 0, 6));
}

TEST(Folgewiederholungen, DieErsteZiehungHatKeineVorige)
{
    EXPECT_THAT(zaehleWiederholungen(folge({{1, 2, 3, 4, 5, 6}}), "").anzahl, ElementsAre(0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(zaehleWiederholungen(folge({}), "").anzahl, ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST(Folgewiederholungen, WasKeineZahlIstWiederholtSichNicht)
{
    EXPECT_THAT(zaehleWiederholungen(folge({{0, -1, 50, 99, 7, 7}, {0, -1, 50, 99, 7, 7}}), "").anzahl,
                ElementsAre(0, 1, 0, 0, 0, 0, 0));
}

TEST(Folgewiederholungen, ZaehltWieEinPaarweiserVergleich)
{
    for (const int hoechste : {7, 10, 20, 49}) {
        const auto alle = zufallsziehungen(500, hoechste, static_cast<std::uint64_t>(hoechste));
        std::array<std::int32_t, 7> soll{};
        for (std::size_t i = 1; i < alle.size(); ++i) {
            const std::set<int> vorige(alle[i - 1].zahlen.begin(), alle[i - 1].zahlen.end());
            ++soll[static_cast<std::size_t>(
                std::ranges::count_if(alle[i].zahlen, [&](int zahl) { return vorige.contains(zahl); }))];
        }
        const auto gezaehlt = zaehleWiederholungen(folgeAus(alle), "");
        EXPECT_EQ(gezaehlt.anzahl, soll);
        for (int zahlen = 1; zahlen <= 6; ++zahlen)
            EXPECT_EQ(Wiederholungszeilen(gezaehlt, zahlen).faelle(),
                      static_cast<std::size_t>(soll[static_cast<std::size_t>(zahlen)]));
    }
}

TEST(Folgewiederholungen, DieUebersichtZaehltEinzelnUndZusammen)
{
    const auto gezaehlt = zaehleWiederholungen(
        folge({{1, 2, 3, 4, 5, 6}, {1, 2, 13, 14, 15, 16}, {2, 13, 23, 24, 25, 26}, {2, 33, 34, 35, 36, 37}}), "");
    EXPECT_THAT(
        uebersicht(gezaehlt),
        ElementsAre(
            " Übersicht - Wiederholung von:", "    6 Zahlen in der Folgeziehung:    0 mal",
            "    5 Zahlen in der Folgeziehung:    0 mal", "    4 Zahlen in der Folgeziehung:    0 mal",
            "    3 Zahlen in der Folgeziehung:    0 mal", "    2 Zahlen in der Folgeziehung:    2 mal",
            "    1 Zahl   in der Folgeziehung:    1 mal", "6           Zahlen in der Folgeziehung:    0 mal",
            "5 oder mehr Zahlen in der Folgeziehung:    0 mal", "4 oder mehr Zahlen in der Folgeziehung:    0 mal",
            "3 oder mehr Zahlen in der Folgeziehung:    0 mal", "2 oder mehr Zahlen in der Folgeziehung:    2 mal",
            "1 oder mehr Zahlen in der Folgeziehung:    3 mal"));
}

TEST(Wiederholungszeilen, ZeigtBeideZiehungenUndDieZahlen)
{
    const auto gezaehlt = zaehleWiederholungen(folge({{1, 2, 3, 4, 5, 6}, {2, 5, 13, 14, 15, 16}}), "");
    EXPECT_THAT(alleZeilen(Wiederholungszeilen(gezaehlt, 2)),
                ElementsAre(std::string(68, '-'), "Wiederholung von Zwei Zahlen in der Folgeziehung",
                            std::string(68, '-'), " 2000  01  01 02 03 04 05 06  00    -                    Nr.     1",
                            " 2000  01  02 05 13 14 15 16  00    -                    Nr.     2",
                            " Wiederholung der Zahlen: 02 05", "", " 1 mal aufgetreten", std::string(68, '=')));
}

TEST(Wiederholungszeilen, EineZahlStehtInDerEinzahl)
{
    const auto gezaehlt = zaehleWiederholungen(folge({{1, 2, 3, 4, 5, 6}, {6, 11, 12, 13, 14, 15}}), "");
    const auto zeilen = alleZeilen(Wiederholungszeilen(gezaehlt, 1));
    EXPECT_EQ(zeilen[1], "Wiederholung von Einer Zahl in der Folgeziehung");
    EXPECT_EQ(zeilen[5], " Wiederholung der Zahl: 06");
}

TEST(Wiederholungszeilen, OhneFallStehtEsSo)
{
    const auto gezaehlt = zaehleWiederholungen(folge({{1, 2, 3, 4, 5, 6}}), "");
    for (const auto& [zahlen, wort] : {std::pair(3, "Drei"), {4, "Vier"}, {5, "Fuenf"}, {6, "Sechs"}})
        EXPECT_THAT(alleZeilen(Wiederholungszeilen(gezaehlt, zahlen)),
                    ElementsAre(std::string(68, '-'),
                                "Wiederholung von " + std::string(wort) + " Zahlen in der Folgeziehung",
                                std::string(68, '-'),
                                "----------------- noch nicht aufgetreten -------------------------------------  "));
}

} // namespace
