#include "shell/elements/Bildschirm.h"
#include "statistics/tests/Statistiktest.h"

namespace {

class Graphikbildschirm : public Statistiktest {
protected:
    void oeffneGraphik(const char* modus)
    {
        oeffne("frmSTAT1");
        klicke(modus);
        klicke("Befehl5");
        bedienung.benutze("frmGraph");
    }

    int hoehe(int zahl)
    {
        return buehne.bildschirme.geladen("frmGraph")->findChild<QWidget*>(QString("Bild2(%1)").arg(zahl))->height();
    }
    QStringList skala()
    {
        QStringList texte;
        for (int i = 0; i < 5; ++i)
            texte << lies(QString("lblSkala(%1)").arg(i));
        return texte;
    }
};

TEST_F(Graphikbildschirm, VerbirgtDenGraphikknopfUndSetztDenTitelDerStatistik)
{
    starte();
    oeffneGraphik("Befehl2");
    EXPECT_EQ(titel(), "Graphische Darstellung der Häufigkeitsverteilung");
    EXPECT_EQ(buehne.klang.gespielt.size(), 1u);
    bedienung.benutze("frmSTAT1");
    EXPECT_EQ(titel(), "Graphische Darstellung der Häufigkeitsverteilung");
    EXPECT_FALSE(sichtbar("Befehl5"));
    bedienung.benutze("frmGraph");
    klicke("Befehl1");
    EXPECT_EQ(buehne.bildschirme.geladen("frmGraph"), nullptr);
    bedienung.benutze("frmSTAT1");
    EXPECT_TRUE(titel().startsWith("Samstagslotto: Auswertung von 1955"));
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Graphikbildschirm, DerTitelDerStatistikNenntDieGraphikSolangeSieOffenIst)
{
    starte();
    oeffneGraphik("Befehl2");
    bedienung.benutze("frmSTAT1");
    for (const char* knopf : {"Befehl3", "Befehl4", "Befehl5"}) {
        klicke(knopf);
        bedienung.benutze("frmSTAT1");
        EXPECT_EQ(titel(), "Graphische Darstellung der Häufigkeitsverteilung") << knopf;
        ueberfahre("frmSTAT1");
        EXPECT_EQ(titel(), "Graphische Darstellung der Häufigkeitsverteilung") << knopf;
    }
    bedienung.benutze("frmGraph");
    klicke("Befehl1");
    bedienung.benutze("frmSTAT1");
    EXPECT_TRUE(titel().endsWith("; nur Zusatzzahl"));
    ueberfahre("frmSTAT1");
    EXPECT_EQ(titel(), "Häufigkeitsverteilung der einzelnen Zahlen");
    klicke("Befehl2");
    EXPECT_TRUE(titel().endsWith("; ohne Zusatzzahl"));
}

TEST_F(Graphikbildschirm, FolgtJederAuswertung)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,04,05,07,00,0",
                             "1956,01,01,02,03,04,08,09,49,0", "1956,02,01,10,11,12,13,14,49,0"});
    starte();
    oeffneGraphik("Befehl2");
    EXPECT_EQ(lies("lblErgebnis"), "Samstagslotto: Auswertung von 1955 bis 1956 ; 4 Ziehungen; ohne Zusatzzahl");
    klicke("Befehl2");
    ueberfahre("Bild2(1)");
    EXPECT_EQ(lies("Bezeichnung19"), "Zahl 1 -> 4 mal gezogen, zuletzt gezogen vor: 4 Wochen (ohne ZZ)");

    bedienung.benutze("frmSTAT1");
    setze("Text2", "1955");
    klicke("Befehl3");
    bedienung.benutze("frmGraph");
    EXPECT_EQ(lies("lblErgebnis"), "Samstagslotto: Auswertung von 1955 bis 1955 ; 2 Ziehungen; mit Zusatzzahl");
    EXPECT_EQ(lies("Bezeichnung3"), "Max: Zahl -> 5 (2 mal gezogen)");
    EXPECT_EQ(lies("Bezeichnung4"), "Min: Zahl -> 49 (0 mal gezogen)");
    EXPECT_EQ(lies("Bezeichnung19"), "");
    EXPECT_EQ(skala(), (QStringList{"2,00", "1,50", "1,00", "0,50", "0,00"}));
    EXPECT_EQ(hoehe(1), hoehe(5));
    EXPECT_LT(hoehe(49), hoehe(6));
    EXPECT_TRUE(bedienbar("Befehl2"));
    EXPECT_FALSE(bedienbar("Befehl3"));
    ueberfahre("Bild2(1)");
    EXPECT_EQ(lies("Bezeichnung19"), "Zahl 1 -> 2 mal gezogen,  (mit ZZ)");

    bedienung.benutze("frmSTAT1");
    klicke("Befehl9");
    klicke("Befehl4");
    bedienung.benutze("frmGraph");
    EXPECT_EQ(lies("lblErgebnis"), "Samstagslotto: Auswertung von Ziehung 1 bis Ziehung 4 , nur Zusatzzahl");
    ueberfahre("Bild2(49)");
    EXPECT_EQ(lies("Bezeichnung19"), "Zahl 49 -> 2 mal gezogen, zuletzt gezogen vor: 4 Wochen (nur ZZ)");
}

TEST_F(Graphikbildschirm, EineAbgelehnteAuswertungLaesstSieStehen)
{
    starte();
    oeffneGraphik("Befehl2");
    const QString vorher = lies("lblErgebnis");
    bedienung.benutze("frmSTAT1");
    setze("Text1", "19");
    bedienung.benutze("frmGraph");
    klicke("Befehl7");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblErgebnis"), vorher);
    EXPECT_EQ(gelaufene({"Befehl5", "Befehl6", "Befehl7"}), QStringList{"Befehl6"});
    bedienung.benutze("frmSTAT1");
    EXPECT_EQ(titel(), "Graphische Darstellung der Häufigkeitsverteilung");
}

TEST_F(Graphikbildschirm, DieTextzeileBleibtBeiDemErgebnisWennDasArchivWechselt)
{
    starte();
    oeffneGraphik("Befehl2");
    ueberfahre("Bild2(49)");
    const QString vorher = lies("Bezeichnung19");
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    ueberfahre("Bild2(1)");
    ueberfahre("Bild2(49)");
    EXPECT_EQ(lies("Bezeichnung19"), vorher);
}

TEST_F(Graphikbildschirm, ZoomtUndKehrtZurueck)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,04,05,07,00,0",
                             "1955,43,01,02,03,04,08,09,00,0", "1955,44,01,10,11,12,13,14,00,0"});
    starte();
    oeffneGraphik("Befehl2");
    EXPECT_EQ(skala(), (QStringList{"4,00", "3,00", "2,00", "1,00", "0,00"}));
    EXPECT_TRUE(bedienbar("Befehl2"));
    EXPECT_FALSE(bedienbar("Befehl3"));
    EXPECT_GT(hoehe(1), hoehe(2));
    EXPECT_GT(hoehe(2), hoehe(6));
    EXPECT_GT(hoehe(49), 0);
    klicke("Befehl2");
    EXPECT_FALSE(bedienbar("Befehl2"));
    EXPECT_TRUE(bedienbar("Befehl3"));
    EXPECT_EQ(skala(), (QStringList{"4,00", "3,00", "2,00", "1,00", "0,00"}));
    klicke("Befehl3");
    EXPECT_TRUE(bedienbar("Befehl2"));
}

TEST_F(Graphikbildschirm, ZoomtVomKleinstenZumGroesstenWert)
{
    starte();
    oeffneGraphik("Befehl2");
    const int vorher = hoehe(1) - hoehe(2);
    klicke("Befehl2");
    EXPECT_GT(std::abs(hoehe(1) - hoehe(2)), std::abs(vorher));
    EXPECT_NE(skala().last(), "0,00");
}

TEST_F(Graphikbildschirm, DieModusknoepfeWertenNeuAus)
{
    starte();
    oeffneGraphik("Befehl2");
    klicke("Befehl7");
    EXPECT_TRUE(lies("lblErgebnis").endsWith("; nur Zusatzzahl"));
    ueberfahre("Bild2(13)");
    EXPECT_TRUE(lies("Bezeichnung19").endsWith("(nur ZZ)"));
    klicke("Befehl5");
    ueberfahre("Bild2(13)");
    EXPECT_TRUE(lies("Bezeichnung19").endsWith("(mit ZZ)"));
    klicke("Befehl6");
    ueberfahre("Bild2(13)");
    EXPECT_TRUE(lies("Bezeichnung19").endsWith("(ohne ZZ)"));
}

TEST_F(Graphikbildschirm, DieTextzeileNenntDieWochenNurBisZurLetztenZiehung)
{
    starte();
    oeffneGraphik("Befehl2");
    ueberfahre("Bild2(49)");
    EXPECT_TRUE(lies("Bezeichnung19").startsWith("Zahl 49 -> "));
    EXPECT_TRUE(lies("Bezeichnung19").contains(" mal gezogen, zuletzt gezogen vor: "));
    klicke("Befehl1");
    bedienung.benutze("frmSTAT1");
    setze("Text2", "2000");
    klicke("Befehl2");
    klicke("Befehl5");
    bedienung.benutze("frmGraph");
    ueberfahre("Bild2(49)");
    EXPECT_TRUE(lies("Bezeichnung19").endsWith(" mal gezogen, (ohne ZZ)"));
}

TEST_F(Graphikbildschirm, NachAUndBSindDieModusknoepfeVerborgen)
{
    starte();
    klicke("Option2");
    oeffneGraphik("Befehl8");
    const QStringList modi{"Befehl5", "Befehl6", "Befehl7"};
    for (const QString& knopf : modi)
        EXPECT_FALSE(sichtbar(knopf));
    EXPECT_TRUE(lies("lblErgebnis").startsWith("Mittwochslotto (A+B): Auswertung von 1986 bis 2026 ; "));
    bedienung.benutze("frmSTAT1");
    klicke("Befehl3");
    bedienung.benutze("frmGraph");
    for (const QString& knopf : modi)
        EXPECT_TRUE(sichtbar(knopf));
    EXPECT_EQ(gelaufene(modi), QStringList{"Befehl5"});
    bedienung.benutze("frmSTAT1");
    klicke("Befehl8");
    bedienung.benutze("frmGraph");
    for (const QString& knopf : modi)
        EXPECT_FALSE(sichtbar(knopf));
}

TEST_F(Graphikbildschirm, DieStatistikZeigtDenModusDerGraphik)
{
    starte();
    oeffneGraphik("Befehl2");
    klicke("Befehl7");
    EXPECT_EQ(gelaufene({"Befehl5", "Befehl6", "Befehl7"}), QStringList{"Befehl7"});
    bedienung.benutze("frmSTAT1");
    EXPECT_EQ(gelaufene({"Befehl2", "Befehl3", "Befehl4"}), QStringList{"Befehl4"});
}

TEST_F(Graphikbildschirm, F5DruecktDenModusVonZuletzt)
{
    starte();
    oeffneGraphik("Befehl3");
    tippe("frmGraph", "F5");
    EXPECT_TRUE(lies("lblErgebnis").endsWith("; ohne Zusatzzahl"));
    klicke("Befehl7");
    bedienung.benutze("frmSTAT1");
    setze("Text2", "2000");
    bedienung.benutze("frmGraph");
    tippe("frmGraph", "F5");
    EXPECT_TRUE(lies("lblErgebnis").startsWith("Samstagslotto: Auswertung von 1955 bis 2000"));
    EXPECT_TRUE(lies("lblErgebnis").endsWith("; nur Zusatzzahl"));
}

TEST_F(Graphikbildschirm, DieStatistikNimmtIhreGraphikMit)
{
    starte();
    oeffneGraphik("Befehl2");
    bedienung.benutze("frmSTAT1");
    schliesse();
    EXPECT_EQ(buehne.bildschirme.geladen("frmGraph"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Graphikbildschirm, ErklaertSich)
{
    starte();
    oeffneGraphik("Befehl2");
    klicke("Befehl4");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Info|Wird der Mauszeiger auf einen Farbbalken bewegt, wird in einer "
                                   "Textzeile angezeigt wann die entsprechende Gewinnzahl zuletzt gezogen wurde."});
}

} // namespace
