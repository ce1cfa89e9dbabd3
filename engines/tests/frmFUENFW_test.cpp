#include "archive/screens/Spielartlader.h"
#include "engines/screens/frmFUENFW.h"
#include "engines/tests/Wiederholungsbuehne.h"

namespace {

constexpr auto kStriche = "-------------------------------------------";
constexpr std::array kAnzahlen{"Bezeichnung11", "Bezeichnung12", "Bezeichnung7", "Bezeichnung8", "Bezeichnung9"};

TEST_F(Wiederholungssuche, OeffnetMitDenZiehungenDesSpiels)
{
    starte();
    oeffne("frmFÜNFW");
    EXPECT_EQ(lies("Bezeichnung13"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung3"), QString("%1 Ziehungen von 1955/41 bis %2")
                                        .arg(buehne.archiv.AnzahlZiehungen)
                                        .arg(QString::fromStdString(jahrUndWoche(
                                            buehne.archiv, static_cast<std::size_t>(buehne.archiv.AnzahlZiehungen)))));
    EXPECT_EQ(lies("txtH"), kLeereZusammenfassung);
    EXPECT_EQ(zeilen("Liste1").size(), buehne.archiv.AnzahlZiehungen);
    EXPECT_EQ(lies("Kontroll1"), "ein/aus");
    for (const Wiederholungsfeld& feld : kWiederholungsfelder) {
        EXPECT_TRUE(bedienbar(feld.suchen));
        EXPECT_EQ(bedienbar(feld.details), feld.k <= 3);
        EXPECT_EQ(bedienbar(feld.clip), feld.k <= 3);
    }
    EXPECT_FALSE(bedienbar("Befehl18"));
    EXPECT_FALSE(sichtbar("Rahmen1"));
}

TEST_F(Wiederholungssuche, JedesSpielHatSeinenNamen)
{
    starte();
    klicke("Option3");
    oeffne("frmFÜNFW");
    EXPECT_EQ(lies("Bezeichnung13"), "MITTWOCHSLOTTO (B)");
    klicke("Befehl11");
    klicke("Befehl15");
    EXPECT_TRUE(buehne.zwischenablage.text().startsWith("Zweierwiederholungen(Mittwochslotto (B)):\r\n\r\n"));
}

TEST_F(Wiederholungssuche, FindetDasselbeWieDiePlaneSuche)
{
    starte();
    oeffne("frmFÜNFW");
    for (std::size_t i = 0; i < kWiederholungsfelder.size(); ++i) {
        const Wiederholungsfeld& feld = kWiederholungsfelder[i];
        SCOPED_TRACE(feld.k);
        klicke(feld.suchen);
        QStringList soll = sollzeilen(feld.k, kEineSpielart);
        EXPECT_EQ(lies(kAnzahlen[i]), QString::number(soll.size()));
        EXPECT_EQ(schirm("frmFÜNFW").ergebnis(feld.k).mehrfache.size(), static_cast<std::size_t>(soll.size()));
        if (feld.k == 6 && soll.isEmpty())
            soll << "Keine Sechserwiederholungen !";
        EXPECT_EQ(zeilen(feld.liste), soll);
        EXPECT_EQ(titel(), "Fertig !");
        EXPECT_TRUE(lies("Bezeichnung2").startsWith("Suchzeit = "));
        EXPECT_TRUE(lies("Bezeichnung2").endsWith(" s"));
        EXPECT_EQ(lies("Text15"), "Bei diesen Lottoziehungen wurde die Kombination gezogen");
        EXPECT_TRUE(bedienbar(feld.details));
        EXPECT_TRUE(bedienbar(feld.clip));
    }
}

TEST_F(Wiederholungssuche, ZaehltZusammen)
{
    oeffneDrei();
    klicke("Befehl11");
    EXPECT_EQ(zeilen("Liste7"), QStringList{" 2 mal ->   7 19"});
    EXPECT_EQ(lies("txtH"), "      Zweierkombinationen\n"
                            "--------------------------------\n"
                            "  überhaupt mögliche: 1176\n"
                            "   noch nie gezogene: 1132\n"
                            "     einmal gezogene: 43\n"
                            "   mehrfach gezogene: 1\n");
}

TEST_F(Wiederholungssuche, EinNeuesArchivAendertNichtsAmErgebnis)
{
    oeffneDrei();
    klicke("Befehl11");
    klicke("Befehl15");
    const QString bericht = buehne.zwischenablage.text();
    EXPECT_TRUE(bericht.endsWith("Erfassungstand der Ziehungen: 1955 / 43"));
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0"});
    ladeSpielart(buehne.umgebung, Samstagslotto);
    klicke("Befehl15");
    EXPECT_EQ(buehne.zwischenablage.text(), bericht);
    waehle("Liste7", {0});
    EXPECT_EQ(zeilen("Liste3"),
              (QStringList{"Kombination:  7 19", kStriche, "1955/41  07 19 30 31 32 33   So, 09.10.1955",
                           "1955/43  07 18 19 47 48 49   So, 23.10.1955", kStriche}));
    klicke("Befehl18");
    EXPECT_TRUE(buehne.zwischenablage.text().endsWith("Erfassungstand der Ziehungen: 1955 / 43"));
    schirm("frmFÜNFW").beimZeigen();
    EXPECT_EQ(lies("Bezeichnung3"), "1 Ziehungen von 1955/41 bis 1955/41");
    EXPECT_EQ(zeilen("Liste1"), QStringList{"1955/41  01 02 03 04 05 06   So, 09.10.1955"});
}

TEST_F(Wiederholungssuche, OhneSechserStehtDasInDerListe)
{
    oeffneDrei();
    klicke("Befehl6");
    EXPECT_EQ(zeilen("Liste6"), QStringList{"Keine Sechserwiederholungen !"});
    EXPECT_EQ(lies("Bezeichnung9"), "0");
    EXPECT_EQ(gewaehlt("Liste6"), "0");
    EXPECT_TRUE(lies("txtH").contains("noch nie gezogene: 13.983.813\n"));
    EXPECT_TRUE(lies("txtH").endsWith("mehrfach gezogene: 0\n"));

    klicke("Befehl11");
    waehle("Liste7", {0});
    const QStringList details = zeilen("Liste3");
    waehle("Liste6", {0});
    EXPECT_EQ(zeilen("Liste3"), details);
    EXPECT_EQ(gewaehlt("Liste7"), "0");
    EXPECT_EQ(lies("Text15"), "Bei diesen Lottoziehungen wurde die 2-er Kombination gezogen");
    klicke("Befehl8");
    EXPECT_EQ(zeilen("Liste3"), details);
    klicke("Befehl10");
    EXPECT_EQ(buehne.zwischenablage.text(), "Sechserwiederholungen(Samstagslotto):\r\n\r\n"
                                            "Keine Sechserwiederholungen !\r\n\r\n\r\n"
                                            "Erfassungstand der Ziehungen: 1955 / 43");
}

TEST_F(Wiederholungssuche, ZweiGleicheZiehungenSindEineSechserwiederholung)
{
    oeffneMit({"1955,41,15,25,27,30,42,48,00,0", "1955,42,15,25,27,30,42,48,00,0"});
    klicke("Befehl6");
    EXPECT_EQ(zeilen("Liste6"), QStringList{" 2 mal-> 15 25 27 30 42 48"});
    EXPECT_EQ(lies("Bezeichnung9"), "1");
    EXPECT_EQ(gewaehlt("Liste6"), "0");
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    EXPECT_TRUE(bedienung.lasseLos("Liste6").gelungen());
    EXPECT_EQ(zeilen("Liste3").value(0), "Kombination: 15 25 27 30 42 48");
    EXPECT_TRUE(lies("txtH").contains("noch nie gezogene: 13.983.815\n"));
    klicke("Befehl8");
    EXPECT_EQ(zeilen("Liste3"),
              (QStringList{"Kombination: 15 25 27 30 42 48", kStriche, "1955/41  15 25 27 30 42 48   So, 09.10.1955",
                           "1955/42  15 25 27 30 42 48   So, 16.10.1955", kStriche}));
    EXPECT_EQ(lies("Text15"), "Bei diesen Lottoziehungen wurden die 6-er Kombinationen gezogen");
}

TEST_F(Wiederholungssuche, MehrAlsNeunundneunzigStehenWoIhrTextSteht)
{
    std::vector<std::string> ziehungen(100, "1955,41,01,02,03,04,05,06,00,0");
    ziehungen.insert(ziehungen.end(), 9, "1955,41,11,12,13,14,15,16,00,0");
    ziehungen.insert(ziehungen.end(), 11, "1955,41,21,22,23,24,25,26,00,0");
    oeffneMit(ziehungen);
    klicke("Befehl6");
    EXPECT_EQ(zeilen("Liste6"),
              (QStringList{" 9 mal-> 11 12 13 14 15 16", "100 mal->  1  2  3  4  5  6", "11 mal-> 21 22 23 24 25 26"}));
}

TEST_F(Wiederholungssuche, ZeigtDieDetailsEinerUndAllerZeilen)
{
    oeffneMit({"1955,41,07,19,30,31,32,33,00,0", "1955,42,01,02,30,31,47,48,00,0", "1955,43,07,18,19,47,48,49,00,0"});
    klicke("Befehl11");
    EXPECT_EQ(zeilen("Liste7"), (QStringList{" 2 mal ->   7 19", " 2 mal ->  30 31", " 2 mal ->  47 48"}));
    waehle("Liste7", {2});
    EXPECT_EQ(lies("Text15"), "Bei diesen Lottoziehungen wurde die 2-er Kombination gezogen");
    EXPECT_EQ(zeilen("Liste3"),
              (QStringList{"Kombination: 47 48", kStriche, "1955/42  01 02 30 31 47 48   So, 16.10.1955",
                           "1955/43  07 18 19 47 48 49   So, 23.10.1955", kStriche}));
    EXPECT_TRUE(bedienbar("Befehl18"));
    klicke("Befehl13");
    EXPECT_EQ(lies("Text15"), "Bei diesen Lottoziehungen wurden die 2-er Kombinationen gezogen");
    EXPECT_EQ(zeilen("Liste3").size(), 15);
    EXPECT_EQ(zeilen("Liste3")[0], "Kombination:  7 19");
    EXPECT_EQ(gewaehlt("Liste7"), "");
    klicke("Befehl18");
    EXPECT_TRUE(buehne.zwischenablage.text().startsWith("Die Zweierwiederholungen im Detail (Samstagslotto):\r\n\r\n"
                                                        "Kombination:  7 19\r\n"));
    EXPECT_TRUE(buehne.zwischenablage.text().endsWith("\r\n\r\n\r\nErfassungstand der Ziehungen: 1955 / 43"));
}

TEST_F(Wiederholungssuche, EineListeNimmtDenAnderenDieAuswahl)
{
    starte();
    oeffne("frmFÜNFW");
    klicke("Befehl11");
    klicke("Befehl16");
    waehle("Liste7", {3});
    waehle("Liste8", {1});
    EXPECT_EQ(gewaehlt("Liste7"), "");
    EXPECT_EQ(gewaehlt("Liste8"), "1");
    EXPECT_EQ(lies("Text15"), "Bei diesen Lottoziehungen wurde die 3-er Kombination gezogen");
    EXPECT_TRUE(zeilen("Liste3")[0].startsWith("Kombination:"));
    klicke("Befehl18");
    EXPECT_TRUE(buehne.zwischenablage.text().startsWith("Die Dreierwiederholungen im Detail (Samstagslotto):"));
}

TEST_F(Wiederholungssuche, OhneLinienGibtEsNurDenErfassungsstand)
{
    oeffneDrei();
    klicke("Befehl15");
    EXPECT_EQ(buehne.zwischenablage.text(), "Erfassungstand der Ziehungen: 1955 / 43");
    klicke("Befehl17");
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    EXPECT_TRUE(bedienbar("Befehl18"));
    klicke("Befehl18");
    EXPECT_EQ(buehne.zwischenablage.text(), "Erfassungstand der Ziehungen: 1955 / 43");
}

TEST_F(Wiederholungssuche, FuelltDieListeDerZiehungenNach)
{
    oeffneMit({"1955,41,07,19,30,31,32,33,00,0"});
    buehne.archiv.z1[1] = 1;
    klicke("Befehl11");
    EXPECT_EQ(zeilen("Liste1"), QStringList{"1955/41  01 19 30 31 32 33   So, 09.10.1955"});
}

TEST_F(Wiederholungssuche, EinLeeresArchiv)
{
    oeffneMit({});
    EXPECT_EQ(lies("Bezeichnung3"), "0 Ziehungen von 0000/00 bis 0000/00");
    const QStringList nie{"1176", "18.424", "211.876", "1.906.884", "13.983.816"};
    for (const Wiederholungsfeld& feld : kWiederholungsfelder) {
        klicke(feld.suchen);
        EXPECT_TRUE(lies("txtH").contains("noch nie gezogene: " + nie[feld.k - 2] + "\n     einmal gezogene: 0\n"));
        klicke(feld.details);
        EXPECT_TRUE(zeilen("Liste3").isEmpty());
    }
    klicke("Befehl15");
    EXPECT_EQ(buehne.zwischenablage.text(), "Erfassungstand der Ziehungen: 0000 / 00");
}

TEST_F(Wiederholungssuche, UnsinnigeZahlenBleibenStehen)
{
    oeffneMit({"1955,41,33,07,-9,99,07,2147483647,00,0", "1955,42,33,07,-9,99,07,2147483647,00,0"});
    for (const Wiederholungsfeld& feld : kWiederholungsfelder) {
        klicke(feld.suchen);
        EXPECT_EQ(zeilen(feld.liste), sollzeilen(feld.k, kEineSpielart));
        klicke(feld.details);
        EXPECT_FALSE(zeilen("Liste3").isEmpty());
    }
    EXPECT_EQ(zeilen("Liste6"), QStringList{" 2 mal-> 33  7 -9 99  72147483647"});
}

TEST_F(Wiederholungssuche, EineVolleDateiHaeltDieBedienungNichtAuf)
{
    std::vector<std::string> ziehungen;
    for (int i = 0; i < kMaxZiehungenJeDatei; ++i) {
        std::array<char, 40> zeile{};
        std::snprintf(zeile.data(), zeile.size(), "2000,01,%02d,%02d,%02d,%02d,%02d,49,00,0", 1 + i % 8, 9 + i / 8 % 8,
                      17 + i / 64 % 8, 25 + i / 512 % 8, 33 + i / 4096 % 8);
        ziehungen.emplace_back(zeile.data());
    }
    oeffneMit(ziehungen);
    ASSERT_EQ(buehne.archiv.AnzahlZiehungen, kMaxZiehungenJeDatei);
    for (const Wiederholungsfeld& feld : kWiederholungsfelder) {
        klicke(feld.suchen);
        EXPECT_TRUE(schirm("frmFÜNFW").ergebnis(feld.k).vollstaendig);
    }
    EXPECT_EQ(lies("Bezeichnung9"), "0");
    EXPECT_EQ(schirm("frmFÜNFW").ergebnis(6).AnzahlEinmal, kMaxZiehungenJeDatei);
    klicke("Befehl13");
    EXPECT_EQ(bedienung.anzahl("Liste3").zeilen.value(0).toInt(),
              15 * kMaxZiehungenJeDatei + 3 * schirm("frmFÜNFW").ergebnis(2).AnzahlMehrfach);
}

TEST_F(Wiederholungssuche, GibtHinweiseUndErklaertSich)
{
    starte();
    oeffne("frmFÜNFW");
    ueberfahre("Befehl11");
    EXPECT_EQ(titel(), "Sucht die häufigsten Zweierkombinationen (Zweierwiederholungen).");
    ueberfahre("Befehl12");
    EXPECT_EQ(titel(), "Sucht die häufigsten Viererkombinationen. (Viererwiederholungen)");
    klicke("Befehl20");
    EXPECT_TRUE(sichtbar("Rahmen1"));
    const QStringList info = zeilen("Liste2");
    EXPECT_EQ(info.size(), 21);
    EXPECT_EQ(info.first(), "Klickt man auf eine gefundene Kombination in den einzelnen ");
    EXPECT_EQ(info.last(), "Register \"Effekte\" ->Fenster-Menüs und Listen nicht animieren");
    klicke("Befehl3");
    EXPECT_FALSE(sichtbar("Rahmen1"));
    klicke("Befehl20");
    tippe("Befehl3", "Esc");
    EXPECT_FALSE(sichtbar("Rahmen1"));
    EXPECT_TRUE(sichtbar("Befehl2"));
    klicke("Befehl2");
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace
