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
    bedienung.benutze("frmSTAT1");
    EXPECT_TRUE(titel().endsWith("nur Zusatzzahl"));
    bedienung.benutze("frmGraph");
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
    for (const char* knopf : {"Befehl5", "Befehl6", "Befehl7"})
        EXPECT_FALSE(sichtbar(knopf)) << knopf;
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
