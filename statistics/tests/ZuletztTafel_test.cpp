#include "statistics/logic/ZuletztTafel.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace {

ZuletztAuswertung auswertung(std::int16_t spielart = Samstagslotto)
{
    ZuletztAuswertung ergebnis;
    ergebnis.Spielart = spielart;
    ergebnis.Grenze = 3693;
    ergebnis.stand = "2026/29";
    ergebnis.auftreten[6] = {3690, spielart, "2026/26", "Sa, 27.06.2026"};
    ergebnis.auftreten[48] = {3693, spielart, "2026/29", "Sa, 18.07.2026"};
    ergebnis.auftreten[47] = {3693, spielart, "2026/29", "Sa, 18.07.2026"};
    return ergebnis;
}

TEST(ZuletztTafel, ZeigtJahrUndWoche)
{
    const ZuletztTafel tafel = zuletztTafel(auswertung(), ZuletztAnsicht::JahrUndWoche);
    EXPECT_EQ(tafel.zellen[6], "2026/26");
    EXPECT_EQ(tafel.zellen[0], "0000/00");
    EXPECT_EQ(tafel.listenkoepfe[0], " Z    JJJJ/SW   Datum");
    EXPECT_EQ(tafel.listenkoepfe[1], "JJJJ/SW    Datum           Z");
    ASSERT_EQ(tafel.listen[0].size(), 49U);
    EXPECT_EQ(tafel.listen[0][6], " 7   2026/26  Sa, 27.06.2026");
    EXPECT_EQ(tafel.listen[0][48], "49   2026/29  Sa, 18.07.2026");
    EXPECT_EQ(tafel.listen[1][6], "2026/26  Sa, 27.06.2026    7");
    EXPECT_EQ(tafel.listen[1][48], "2026/29  Sa, 18.07.2026   49");
    EXPECT_EQ(tafel.listen[1][0], "0000/00      1");
}

TEST(ZuletztTafel, ZeigtWochen)
{
    const ZuletztTafel tafel = zuletztTafel(auswertung(), ZuletztAnsicht::Wochen);
    EXPECT_EQ(tafel.zellen[6], "3");
    EXPECT_EQ(tafel.zellen[48], "0");
    EXPECT_EQ(tafel.zellen[0], "3693");
    EXPECT_EQ(tafel.listenkoepfe[0], " Z      Wo     Datum");
    EXPECT_EQ(tafel.listenkoepfe[1], "   W   Datum            Z");
    EXPECT_EQ(tafel.listen[0][6], " 7      3  Sa, 27.06.2026");
    EXPECT_EQ(tafel.listen[1][6], "   3   Sa, 27.06.2026   7");
    EXPECT_EQ(tafel.listen[1][48], "   0   Sa, 18.07.2026  49");
    EXPECT_EQ(tafel.listen[1][0], "3693      1");
}

TEST(ZuletztTafel, DieTextordnungDerZweitenListeFolgtDerWoche)
{
    auto zeilen = zuletztTafel(auswertung(), ZuletztAnsicht::JahrUndWoche).listen[1];
    std::sort(zeilen.begin(), zeilen.end());
    EXPECT_EQ(zeilen[46], "2026/26  Sa, 27.06.2026    7");
    EXPECT_EQ(zeilen[47], "2026/29  Sa, 18.07.2026   48");
    EXPECT_EQ(zeilen[48], "2026/29  Sa, 18.07.2026   49");
}

TEST(ZuletztTafel, NenntDasSpiel)
{
    EXPECT_EQ(spielLabel(auswertung()), "SAMSTAGSLOTTO");
    EXPECT_EQ(spielLabel(auswertung(Mittwochslotto)), "MITTWOCHSLOTTO ");
    EXPECT_EQ(spielLabel(auswertung(MittwochslottoB)), "MITTWOCHSLOTTO (B)");
    ZuletztAuswertung beide = auswertung(MittwochslottoB);
    beide.mittwochAB = true;
    EXPECT_EQ(spielLabel(beide), "Mittwochslotto (A+B)");
}

TEST(ZuletztTafel, NenntZiehungenUndStand)
{
    const ZiehungsArchiv archiv =
        archivAus(Samstagslotto, {{1955, 41, {1, 2, 3, 4, 5, 6}, 0}, {1955, 9, {1, 2, 3, 4, 5, 6}, 0}});
    EXPECT_EQ(ziehungsauswahl(archiv, 2), "1955/09 ZNr: 0002");
    EXPECT_EQ(gespeicherteZiehungenVonBis(archiv), "Gespeicherte Ziehungen von: 1955/41 bis: 1955/09, 2 Ziehungen");
    EXPECT_EQ(gespeicherteZiehungenVonBis(ZiehungsArchiv()), "");
}

std::string spielzeile(const std::string& spiel)
{
    return std::string(25, ' ') + spiel;
}

TEST(ZuletztDruck, UeberschriftNenntSpielModusUndStand)
{
    const auto kopf = [](ZuletztAuswertung ergebnis) {
        return druckauftrag(ergebnis, ZuletztAnsicht::JahrUndWoche).kopf;
    };
    ZuletztAuswertung ergebnis = auswertung();
    EXPECT_EQ(kopf(ergebnis), (Druckseite{spielzeile("*** Samstagslotto ***"),
                                          "-Wann zuletzt gezogen ?, (ohne ZZ) Stand: 2026/29, 3693 Ziehungen -"}));
    ergebnis.ZaehlModus = ZZModus::Nur;
    EXPECT_EQ(kopf(ergebnis)[1], "-Wann zuletzt gezogen ?, (nur ZZ) Stand: 2026/29, 3693 Ziehungen -");
    EXPECT_EQ(kopf(auswertung(Mittwochslotto))[0], spielzeile("*** Mittwochslotto  ***"));
    EXPECT_EQ(kopf(auswertung(MittwochslottoB))[0], spielzeile("*** Mittwochslotto (B) ***"));
    ergebnis.mittwochAB = true;
    EXPECT_EQ(kopf(ergebnis)[0], spielzeile(" *** Mittwochslotto (A+B) ***"));
    ergebnis.Grenze = -5;
    ergebnis.stand = "0000/00";
    EXPECT_EQ(kopf(ergebnis)[1], "-Wann zuletzt gezogen ?, (nur ZZ) Stand: 0000/00, 0 Ziehungen -");
}

TEST(ZuletztDruck, EineZeileJeZahl)
{
    const auto zeilen = druckauftrag(auswertung(), ZuletztAnsicht::JahrUndWoche).zeilen;
    ASSERT_EQ(zeilen.size(), 49U);
    EXPECT_EQ(zeilen[6], "   Zahl 07 zuletzt gezogen in Spielwoche: 2026/26");
    const auto wochen = druckauftrag(auswertung(), ZuletztAnsicht::Wochen).zeilen;
    EXPECT_EQ(wochen[6], "   Zahl 07 zuletzt gezogen vor (Wochen): 3");
}

TEST(ZuletztDruck, PasstAufEineSeite)
{
    const auto seiten = druckseiten(druckauftrag(auswertung(), ZuletztAnsicht::JahrUndWoche));
    ASSERT_EQ(seiten.size(), 1U);
    EXPECT_EQ(seiten[0].size(), 51U);
}

TEST(ZuletztDruck, EineWeitereSeiteWiederholtDieTitelzeile)
{
    Druckauftrag auftrag = druckauftrag(auswertung(), ZuletztAnsicht::JahrUndWoche);
    auftrag.masse.zeilenJeSeite = 40;
    const auto seiten = druckseiten(auftrag);
    ASSERT_EQ(seiten.size(), 2U);
    EXPECT_EQ(seiten[1][0], "       ");
    EXPECT_EQ(seiten[1][1], spielzeile("*** Samstagslotto ***"));
    EXPECT_EQ(seiten[1][2], "  -- Wann zuletzt gezogen ? -- ");
    EXPECT_EQ(seiten[1][3], "   Zahl 39 zuletzt gezogen in Spielwoche: 0000/00");
}

} // namespace
