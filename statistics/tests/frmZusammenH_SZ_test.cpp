#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Bildschirm.h"
#include "statistics/tests/Statistiktest.h"

#include <QCoreApplication>
#include <QFile>

namespace {

std::vector<std::string> ziehungen(std::size_t anzahl, const std::string& letzteSuperzahlen)
{
    std::vector<std::string> zeilen(anzahl, "1990,01,01,02,03,04,05,06,00,9");
    for (std::size_t i = 0; i < letzteSuperzahlen.size(); ++i)
        zeilen[anzahl - letzteSuperzahlen.size() + i].back() = letzteSuperzahlen[i];
    return zeilen;
}

/// So many draws of each game that the last ones have a Superzahl: 1 2 2 on Saturday, 2 3 on Wednesday, 2 in B.
class Superzahlbildschirm : public Statistiktest {
protected:
    Superzahlbildschirm()
    {
        schreibe("SALOTTO.DAT", ziehungen(1889, "122"));
        schreibe("MALOTTO.DAT", ziehungen(498, "23"));
        schreibe("MBLOTTO.DAT", ziehungen(497, "2"));
    }

    void zeige()
    {
        starte();
        oeffne("frmZusammenH_SZ");
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100).zeilen; }
    QWidget* feld(const QString& name)
    {
        return buehne.bildschirme.geladen("frmZusammenH_SZ")->findChild<QWidget*>(name);
    }
    int hoehe(int ziffer) { return feld(QString("Balken(%1)").arg(ziffer))->height(); }
    bool hatBalken(int ziffer) { return feld(QString("Balken(%1)").arg(ziffer))->isVisible(); }
};

TEST_F(Superzahlbildschirm, ZaehltBeimOeffnenAlleSpiele)
{
    zeige();
    EXPECT_EQ(titel(), "Häufigkeit der gezogenen Superzahl. Wann zuletzt gezogen?");
    const QStringList bericht = zeilen("List1");
    ASSERT_EQ(bericht.size(), 18);
    EXPECT_EQ(bericht[1], " 1889 Samstagsziehungen , davon       3 Ziehungen mit Superzahl");
    EXPECT_EQ(bericht[2], "  498 Mittwochsziehungen, davon       2 Ziehungen mit Superzahl   (alle)");
    EXPECT_EQ(bericht[3], "  497 Mittwochsz.(B)    , davon       1 Ziehungen mit Superzahl");
    EXPECT_EQ(bericht[5], " 2884 Ziehungen gesamt  , davon      6 Ziehungen mit Superzahl ausgewertet");
    EXPECT_EQ(bericht[9],
              "Superzahl: 2 ->      4 mal gezogen (Maximum)    Samstag:    2    Mittwoch:    1    Mittwoch (B):    1");
    EXPECT_EQ(zeilen("List2").size(), 2);
    EXPECT_TRUE(zeilen("List2")[0].startsWith("1 vor  2 Wochen, Sa, "));
    EXPECT_TRUE(zeilen("List3")[0].startsWith("2 vor  1 Woche,  Mi, "));
    EXPECT_TRUE(zeilen("List4").isEmpty()); // too few draws for the recent ones
    EXPECT_GT(hoehe(2), hoehe(1));
    EXPECT_GT(hoehe(1), hoehe(0));
}

TEST_F(Superzahlbildschirm, JedesKaestchenZaehltNeu)
{
    zeige();
    klicke("check1");
    EXPECT_EQ(zeilen("List1")[1], "  498 Mittwochsziehungen, davon       2 Ziehungen mit Superzahl   (alle)");
    EXPECT_TRUE(zeilen("List2").isEmpty());
    klicke("Check2");
    EXPECT_EQ(zeilen("List1")[1], "  497 Mittwochsz.(B)    , davon       1 Ziehungen mit Superzahl");
    EXPECT_TRUE(zeilen("List3").isEmpty());
    EXPECT_FALSE(bedienbar("optMi(1)"));
    klicke("Check2");
    EXPECT_TRUE(bedienbar("optMi(1)"));
}

TEST_F(Superzahlbildschirm, OhneSpielartBleibtAllesLeer)
{
    zeige();
    for (const char* kasten : {"check1", "Check2", "Check3"})
        klicke(kasten);
    for (const char* liste : {"List1", "List2", "List3", "List4"})
        EXPECT_TRUE(zeilen(liste).isEmpty()) << liste;
    for (int ziffer = 0; ziffer <= 9; ++ziffer)
        EXPECT_FALSE(hatBalken(ziffer)) << ziffer;
    klicke("Command2");
    EXPECT_FALSE(hatBalken(0));
}

TEST_F(Superzahlbildschirm, AbDezember2000ZaehltBTrotzdemGanz)
{
    schreibe("MALOTTO.DAT", ziehungen(760, "234"));
    zeige();
    klicke("optMi(1)");
    EXPECT_EQ(zeilen("List1")[2],
              "    3 Mittwochsziehungen, davon       3 Ziehungen mit Superzahl   (Ziehungen ab 06.12.2000)");
    EXPECT_EQ(zeilen("List1")[3], "  497 Mittwochsz.(B)    , davon       1 Ziehungen mit Superzahl");
    klicke("optMi(0)");
    EXPECT_EQ(zeilen("List1")[2], "  760 Mittwochsziehungen, davon     264 Ziehungen mit Superzahl   (alle)");
}

TEST_F(Superzahlbildschirm, DieJuengstenZiehungenStehenGemeinsam)
{
    schreibe("SALOTTO.DAT", ziehungen(3010, "123"));
    schreibe("MALOTTO.DAT", ziehungen(1411, "456"));
    zeige();
    EXPECT_EQ(zeilen("List4"), (QStringList{"3 vor  0 Wochen, Sa, 15.06.2013", "6 vor  0 Wochen, Mi, 12.06.2013",
                                            "2 vor  1 Woche,  Sa, 08.06.2013", "5 vor  1 Woche,  Mi, 05.06.2013",
                                            "1 vor  2 Wochen, Sa, 01.06.2013", "4 vor  2 Wochen, Mi, 29.05.2013",
                                            "9 vor  3 Wochen, Sa, 25.05.2013"}));
}

TEST_F(Superzahlbildschirm, ZoomtVomKleinstenZumGroesstenWert)
{
    schreibe("SALOTTO.DAT", ziehungen(1906, "01234567890123456789"));
    zeige();
    klicke("Check2");
    klicke("Check3");
    EXPECT_EQ(hoehe(0), hoehe(9));
    klicke("check1");
    klicke("Check2");
    EXPECT_EQ(lies("Command2"), "zoom-in");
    EXPECT_EQ(lies("lblSkala(4)"), "0,00");
    klicke("check1");
    EXPECT_EQ(lies("lblSkala(0)"), "3,00");
    EXPECT_EQ(lies("lblSkala(4)"), "0,00");
    klicke("Command2");
    EXPECT_EQ(lies("Command2"), "zoom-out");
    EXPECT_EQ(lies("lblSkala(0)"), "3,00");
    EXPECT_EQ(lies("lblSkala(4)"), "2,00");
    klicke("Command2");
    EXPECT_EQ(lies("Command2"), "zoom-in");
    EXPECT_EQ(lies("lblSkala(4)"), "0,00");
}

TEST_F(Superzahlbildschirm, EineFehlendeDateiZaehltNichtsUndWirdEinmalGenannt)
{
    starte();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    boxen();
    oeffne("frmZusammenH_SZ");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(zeilen("List1")[2], "    0 Mittwochsziehungen, davon       0 Ziehungen mit Superzahl   (alle)");
    EXPECT_EQ(zeilen("List1")[5], " 2386 Ziehungen gesamt  , davon      4 Ziehungen mit Superzahl ausgewertet");
    EXPECT_TRUE(zeilen("List3").isEmpty());
}

TEST_F(Superzahlbildschirm, SchliessenGibtDasSpielZurueck)
{
    starte();
    klicke("Option2");
    oeffne("frmZusammenH_SZ");
    EXPECT_EQ(buehne.archiv.Spielart, MittwochslottoB);
    klicke("Command3");
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 498);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Superzahlbildschirm, SchliessenWaehrendDieBoxStehtGibtDasSpielZurueck)
{
    zeige();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    buehne.boxen.beiInfo = [this] { buehne.bildschirme.geladen("frmZusammenH_SZ")->schliesse(); };
    klicke("Check3");
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmZusammenH_SZ"), nullptr);
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 1889);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Superzahlbildschirm, LeereDateien)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {});
    zeige();
    EXPECT_EQ(zeilen("List1")[5], "    0 Ziehungen gesamt  , davon      0 Ziehungen mit Superzahl ausgewertet");
    EXPECT_FALSE(hatBalken(0));
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(Superzahlbildschirm, ErklaertDenMittwoch)
{
    zeige();
    EXPECT_EQ(lies("lblErklaerung"),
              "Die Superzahl wurde im Samstagslotto erst am 07.12.1991 (1991/49) eingefüht.\n"
              "Im Mittwochslotto wird sie seit dem 06.12.1995 (1995/49) ausgespielt. Seit dem 06.12.2000 gibt es nur "
              "noch eine Mittwochsziehung.");
    klicke("cmdHelp");
    EXPECT_EQ(boxen(), QStringList("info|Lotto-Info|Im Mittwochslotto wird sie seit dem 06.12.1995 (1995/49) "
                                   "ausgespielt. Seit dem 06.12.2000 gibt es nur noch eine Mittwochsziehung."));
}

} // namespace
