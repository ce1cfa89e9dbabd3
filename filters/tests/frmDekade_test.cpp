#include "filters/tests/Filtertest.h"
#include "shell/elements/Bildschirm.h"

#include <gmock/gmock.h>

namespace {

using testing::IsEmpty;

class Dekadenbuehne : public Filtertest {
protected:
    Dekadenbuehne()
    {
        schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "1955,42,01,02,03,10,11,12,00,0",
                                 "1955,43,01,10,20,30,40,41,00,0"});
    }

    void zeige()
    {
        starte();
        oeffne("frmDekade");
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 1000).zeilen; }
};

TEST_F(Dekadenbuehne, OeffnetMitAllenZiehungen)
{
    zeige();
    EXPECT_EQ(titel(), "Ziehungen mit einer gewünschten Anzahl von gezogenen Gewinnzahlen innerhalb einer Dekade");
    EXPECT_EQ(lies("lblAll"), "JJJJ/SW   Z1 Z2 Z3 Z4 Z5 Z6    0-9  10-19 20-29 30-39 40-49");
    EXPECT_EQ(zeilen("lstAll"), QStringList({"1955/41   03 12 13 16 23 41  |  1  |  3  |  1  |  0  |  1",
                                             "1955/42   01 02 03 10 11 12  |  3  |  3  |  0  |  0  |  0",
                                             "1955/43   01 10 20 30 40 41  |  1  |  1  |  1  |  1  |  2"}));
    EXPECT_EQ(lies("lblDekade(0)"), "Gewinnzahlen im Bereich 1-9");
    EXPECT_EQ(bedienung.eintraege("Combo1").zeilen, QStringList({"0", "1", "2", "3", "4", "5", "6"}));
    EXPECT_THAT(zeilen("List0"), IsEmpty());
    EXPECT_EQ(lies("Text1"), "");
}

TEST_F(Dekadenbuehne, StartListetJeDekade)
{
    zeige();
    setze("Combo1", "3");
    klicke("Command1");
    EXPECT_EQ(zeilen("List0"), QStringList("1955/42   01 02 03 10 11 12"));
    EXPECT_EQ(zeilen("List1"), QStringList({"1955/41   03 12 13 16 23 41", "1955/42   01 02 03 10 11 12"}));
    EXPECT_THAT(zeilen("List4"), IsEmpty());
    EXPECT_EQ(lies("lblc(1)"), "Anzahl: 2");
    EXPECT_EQ(lies("lblc(4)"), "Anzahl: 0");
    EXPECT_TRUE(lies("Text1").contains("Ziehungen mit 3 Gewinnzahlen im Bereich 0-9   :     1"));
    setze("Combo1", "0");
    tippe("frmDekade", "F5");
    EXPECT_THAT(zeilen("List0"), IsEmpty());
    EXPECT_EQ(zeilen("List3").size(), 2);
    EXPECT_TRUE(lies("Text1").contains("Ziehungen mit 0 Gewinnzahlen im Bereich 30-39 :     2"));
}

TEST_F(Dekadenbuehne, EinKlickWaehltDieZiehungInDerGesamtliste)
{
    zeige();
    klicke("Command1");
    waehle("List1", {1});
    EXPECT_EQ(bedienung.gewaehlte("lstAll").zeilen, QStringList("1"));
    ueberfahre("List1");
    EXPECT_EQ(titel(), "Ein Click auf einen Listeneintrag selektiert die Ziehung in der Gesamtliste.");
}

TEST_F(Dekadenbuehne, DieKaestchenSuchenIhreKonstellation)
{
    zeige();
    klicke("Check1(0)");
    EXPECT_EQ(lies("lblMuster"),
              " Die Konstellationan alle \"6 Gewinnzahlen in nur einer Dekade\" ist noch nicht aufgetreten.");
    klicke("Check1(1)");
    EXPECT_EQ(zeilen("lstMuster"), QStringList("1955/42   01 02 03 10 11 12  |  3  |  3  |  0  |  0  |  0"));
    EXPECT_EQ(lies("lblMuster"), "Anzahl der Ziehungen: 1");
    waehle("lstMuster", {0});
    EXPECT_EQ(bedienung.gewaehlte("lstAll").zeilen, QStringList("1"));
    klicke("Check1(2)");
    EXPECT_EQ(lies("lblMuster"), " Die Konstellationan ist noch nicht aufgetreten.");
    EXPECT_THAT(zeilen("lstMuster"), IsEmpty());
    for (const char* dekade : {"Check1(0)", "Check1(1)", "Check1(2)"})
        klicke(dekade);
    EXPECT_EQ(lies("lblMuster"), "Anzahl der Ziehungen: 0");
}

TEST_F(Dekadenbuehne, DieUebersichtStehtInIhremRahmen)
{
    zeige();
    EXPECT_FALSE(sichtbar("frmInfo"));
    klicke("cmdInfo");
    EXPECT_EQ(lies("lblInfo"), "|  1-9  | 10-19 | 20-29 | 30-39 | 40-49 |Ziehungen|");
    const QStringList tafel = zeilen("lstInfo");
    ASSERT_EQ(tafel.size(), 39);
    EXPECT_EQ(tafel[1], "|   x   |   -   |   -   |   -   |   -   |  :0");
    EXPECT_EQ(tafel[8], "|   x   |   x   |   -   |   -   |   -   |  :1");
    EXPECT_EQ(tafel[38], "|   x   |   x   |   x   |   x   |   x   |  :1");
    klicke("cmdWeg");
    EXPECT_FALSE(sichtbar("frmInfo"));
}

TEST_F(Dekadenbuehne, EineLeereDatei)
{
    schreibe("SALOTTO.DAT", {});
    zeige();
    klicke("Command1");
    klicke("Check1(4)");
    klicke("cmdInfo");
    EXPECT_EQ(lies("lblc(0)"), "Anzahl: 0");
    EXPECT_EQ(zeilen("lstInfo").size(), 39);
}

TEST_F(Dekadenbuehne, SchliesstMitSeinemKnopf)
{
    zeige();
    klicke("cmdExit");
    EXPECT_FALSE(buehne.bildschirme.geladen("frmDekade"));
}

} // namespace
