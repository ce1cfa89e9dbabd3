#include "filters/tests/Filtertest.h"
#include "shell/elements/Bildschirm.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Endziffernbuehne : public Filtertest {
protected:
    Endziffernbuehne()
    {
        schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "1955,42,01,02,11,21,31,41,00,0",
                                 "1955,43,01,11,21,33,43,46,00,0"});
    }

    void zeige()
    {
        starte();
        oeffne("frmEndziffer");
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 1000).zeilen; }
};

const QString kErste = "1955/41   03 12 13 16 23 41    So, 09.10.1955   |-|1|1|3|-|-|1|-|-|-|    |3|-|1|-|-|";

TEST_F(Endziffernbuehne, OeffnetMitAllenZiehungen)
{
    zeige();
    EXPECT_EQ(titel(), "Endziffer Filter - Samstagslotto");
    EXPECT_EQ(lies("lblAll"), "JJJJ/SW   Z1 Z2 Z3 Z4 Z5 Z6    Datum            |0|1|2|3|4|5|6|7|8|9|    |E|Z|D|V|F|");
    ASSERT_EQ(zeilen("lstAll").size(), 3);
    EXPECT_EQ(zeilen("lstAll")[0], kErste);
    EXPECT_THAT(zeilen("List1"), IsEmpty());
    EXPECT_TRUE(lies("txtBeispiel").contains("|2|-|-|1|-|"));
    EXPECT_FALSE(sichtbar("List2"));
}

TEST_F(Endziffernbuehne, DieTitelDerMittwochsspieleNennenZeilen)
{
    starte();
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    oeffne("frmEndziffer");
    EXPECT_EQ(titel(), "Zeilen / Endziffer Filter  - Mittwochslotto ");
    klicke("cmdExit");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    oeffne("frmEndziffer");
    EXPECT_EQ(titel(), "Zeilen / Endziffer Filter - Mittwochslotto (B)");
}

TEST_F(Endziffernbuehne, EineWahlListetIhreZiehungen)
{
    zeige();
    klicke("optZeile(2)");
    EXPECT_EQ(zeilen("List1"), QStringList(kErste));
    EXPECT_EQ(lies("Bezeichnung1"), "1 Ziehung  (33,333%) von 3 Ziehungen ");
    EXPECT_THAT(markierte("Bezeichnung6"), ElementsAre(3, 12, 13, 16, 23, 41));
    klicke("optZeile(6)");
    EXPECT_THAT(markierte("Bezeichnung6"), ElementsAre(1, 2, 11, 21, 31, 41));
    klicke("optZeile(9)");
    EXPECT_THAT(zeilen("List1"), IsEmpty());
    EXPECT_EQ(lies("Bezeichnung1"), "      *** Noch nicht aufgetreten ***");
}

TEST_F(Endziffernbuehne, EinKlickInDieGesamtlisteZeigtDieZiehungUndHaeltDieAutomatikAn)
{
    zeige();
    waehle("lstAll", {2});
    EXPECT_THAT(markierte("Bezeichnung6"), ElementsAre(1, 11, 21, 33, 43, 46));
    EXPECT_EQ(lies("cmdAuto"), "A");
}

TEST_F(Endziffernbuehne, DieUebersichtStehtAnStelleDerFunde)
{
    zeige();
    const QSize vorher = buehne.bildschirme.geladen("frmEndziffer")->size();
    klicke("cmdUebersicht");
    EXPECT_FALSE(sichtbar("List1"));
    EXPECT_TRUE(sichtbar("lstAll"));
    EXPECT_EQ(zeilen("List2").size(), 16);
    EXPECT_EQ(zeilen("List2")[5], " 3 verschiedene, 3 gleiche                   1 Ziehungen  33,333%"
                                  "                      924.000   6,608%");
    EXPECT_EQ(buehne.bildschirme.geladen("frmEndziffer")->size(), vorher);
    klicke("optZeile(0)");
    EXPECT_TRUE(sichtbar("List1"));
    EXPECT_FALSE(sichtbar("List2"));
    EXPECT_EQ(lies("cmdUebersicht"), "Übersicht");
}

TEST_F(Endziffernbuehne, EineLeereDatei)
{
    schreibe("SALOTTO.DAT", {});
    zeige();
    klicke("optZeile(0)");
    EXPECT_EQ(lies("Bezeichnung1"), "      *** Noch nicht aufgetreten ***");
    klicke("cmdUebersicht");
    EXPECT_TRUE(zeilen("List2")[3].contains("       0 Ziehungen   0,000%"));
}

} // namespace
