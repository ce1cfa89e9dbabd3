#include "shell/elements/Bildschirm.h"
#include "statistics/screens/frmSWH.h"
#include "statistics/tests/Statistiktest.h"

#include <algorithm>

namespace {

class Wochenbildschirm : public Statistiktest {
protected:
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100000).zeilen; }

    void schreibeDreiZiehungen()
    {
        schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "1955,42,03,12,18,30,32,49,00,0",
                                 "1956,41,03,20,21,22,24,25,12,0"});
    }
};

TEST_F(Wochenbildschirm, OeffnetMitDerNaechstenWocheUndIhrenZiehungen)
{
    schreibeDreiZiehungen();
    starte();
    oeffne("frmSWH");
    EXPECT_EQ(titel(), "Häufigkeit der Gewinnzahlen für ausgewählte Spielwochen");
    EXPECT_EQ(lies("Kombi1"), "42");
    EXPECT_EQ(zeilen("Liste1"), QStringList{"1955/42  03 12 18 30 32 49      So, 16.10.1955"});
    EXPECT_EQ(zeilen("Liste2").size(), 49);
    EXPECT_EQ(zeilen("Liste2").last(), "  1 mal die 49");
    EXPECT_EQ(zeilen("Liste3").first(), " 1 Zahl  ->   0 mal");
    EXPECT_EQ(zeilen("Liste3")[2], " 3 Zahl  ->   1 mal");
    const QStringList wochen = bedienung.eintraege("Kombi1").zeilen;
    EXPECT_EQ(wochen.size(), 53);
    EXPECT_EQ(wochen.first(), "01");
    EXPECT_EQ(wochen.last(), "53");
}

TEST_F(Wochenbildschirm, EineAuswertungFolgtDemArchivDasDannGeladenIst)
{
    starte();
    oeffne("frmSWH");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    klicke("Option2");
    EXPECT_EQ(lies("Bezeichnung5"), "MITTWOCHSLOTTO (B)");
    EXPECT_TRUE(lies("Bezeichnung6").endsWith("Anzahl der Ziehungen: 757"));
    EXPECT_TRUE(zeilen("Liste1").first().startsWith("1986/"));
}

TEST_F(Wochenbildschirm, EineAndereWocheZaehltNeu)
{
    schreibeDreiZiehungen();
    starte();
    oeffne("frmSWH");
    setze("Kombi1", "41");
    EXPECT_EQ(zeilen("Liste1"), QStringList({"1955/41  03 12 13 16 23 41      So, 09.10.1955",
                                             "1956/41  03 20 21 22 24 25      So, 23.10.1955"}));
    EXPECT_EQ(zeilen("Liste2").last(), "  2 mal die  3");
    EXPECT_EQ(zeilen("Liste3")[11], "12 Zahl  ->   1 mal");
}

TEST_F(Wochenbildschirm, MitZusatzzahlStehtSieInDerZeileUndZaehlt)
{
    schreibeDreiZiehungen();
    starte();
    oeffne("frmSWH");
    setze("Kombi1", "41");
    klicke("Option2");
    EXPECT_EQ(zeilen("Liste1"), QStringList({"1955/41  03 12 13 16 23 41  -   So, 09.10.1955",
                                             "1956/41  03 20 21 22 24 25  12  So, 23.10.1955"}));
    EXPECT_EQ(zeilen("Liste2")[47], "  2 mal die  3");
    EXPECT_EQ(zeilen("Liste2")[48], "  2 mal die 12");
    klicke("Option1");
    EXPECT_EQ(zeilen("Liste3")[11], "12 Zahl  ->   1 mal");
}

TEST_F(Wochenbildschirm, EineWocheOhneZiehungZeigtNeunundvierzigNullen)
{
    schreibeDreiZiehungen();
    starte();
    oeffne("frmSWH");
    setze("Kombi1", "53");
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    ASSERT_EQ(zeilen("Liste2").size(), 49);
    ASSERT_EQ(zeilen("Liste3").size(), 49);
    for (int zahl = 1; zahl <= 49; ++zahl) {
        EXPECT_EQ(zeilen("Liste2")[zahl - 1], QString("  0 mal die %1").arg(zahl, 2));
        EXPECT_EQ(zeilen("Liste3")[zahl - 1], QString("%1 Zahl  ->   0 mal").arg(zahl, 2));
    }
}

TEST_F(Wochenbildschirm, ListeNachHaeufigkeitStehtInTextfolge)
{
    starte();
    oeffne("frmSWH");
    const QStringList nachHaeufigkeit = zeilen("Liste2");
    EXPECT_TRUE(std::is_sorted(nachHaeufigkeit.begin(), nachHaeufigkeit.end()));
    const Wochenstatistik& ergebnis = buehne.bildschirme.lade<frmSWH>("frmSWH").ergebnis();
    const int letzte = nachHaeufigkeit.last().last(2).trimmed().toInt();
    const auto hoechste = std::max_element(ergebnis.anzahl.rbegin(), ergebnis.anzahl.rend());
    EXPECT_EQ(letzte, std::distance(hoechste, ergebnis.anzahl.rend()));
    EXPECT_EQ(nachHaeufigkeit.last().first(3).trimmed().toInt(), *hoechste);
}

TEST_F(Wochenbildschirm, NachWoche53KommtWoche1)
{
    schreibe("SALOTTO.DAT", {"1955,53,03,12,13,16,23,41,00,0"});
    starte();
    oeffne("frmSWH");
    EXPECT_EQ(lies("Kombi1"), "01");
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
}

TEST_F(Wochenbildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmSWH");
    EXPECT_EQ(lies("Kombi1"), "01");
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    EXPECT_EQ(zeilen("Liste2").size(), 49);
    klicke("Befehl1");
    boxen();
}

TEST_F(Wochenbildschirm, ErklaertSich)
{
    schreibeDreiZiehungen();
    starte();
    oeffne("frmSWH");
    klicke("Befehl1");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Info|1. Es werden alle Ziehungen der ausgewählten Spielwoche angezeigt. "
                                   "(von 1955-1956)\n2. Es wird berechnet welche Gewinnzahlen in der ausgewählten "
                                   "(z.B. in der nächsten) \n    Spielwoche am häufigsten gezogen wurden.\n"
                                   "     (Unten vorgegebene Woche = letzte erfasste Spielwoche +1)"});
}

TEST_F(Wochenbildschirm, AlsZaehlwerkWirdErGestelltUndKehrtNichtZumMenueZurueck)
{
    schreibeDreiZiehungen();
    starte();
    buehne.umgebung.VorschlagLaeuft = true;
    auto& zaehlwerk = buehne.bildschirme.lade<frmSWH>("frmSWH");
    zaehlwerk.werteAus(41, true);
    EXPECT_EQ(zaehlwerk.ergebnis().sw, 41);
    EXPECT_TRUE(zaehlwerk.ergebnis().mitZZ);
    EXPECT_EQ(zaehlwerk.ergebnis().ziehungen.size(), 2U);
    EXPECT_EQ(zeilenNachHaeufigkeit(zaehlwerk.ergebnis()).back(), "  2 mal die 12");
    EXPECT_FALSE(zaehlwerk.kehrtZumMenueZurueck());
    zaehlwerk.schliesse();
    EXPECT_EQ(buehne.bildschirme.geladen("frmSWH"), nullptr);
}

TEST_F(Wochenbildschirm, JedesSpielHatSeinenNamen)
{
    starte();
    klicke("Option3");
    oeffne("frmSWH");
    EXPECT_EQ(lies("Bezeichnung5"), "MITTWOCHSLOTTO (B)");
    EXPECT_EQ(lies("Bezeichnung6"), "Gespeicherte Ziehungen: 1986/23 bis: 2000/48    Anzahl der Ziehungen: 757");
    EXPECT_EQ(lies("Kombi1"), "49");
}

} // namespace
