#include "engines/screens/frmZusammenHGDV.h"
#include "engines/tests/Suchtest.h"
#include "testhilfen/VollsucheReferenz.h"

#include <QFile>

#include <functional>

namespace {

class VollsuchtestZusammen : public Suchtest {
protected:
    VollsuchtestZusammen()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,13,16,23,41,00,0"});
        schreibe("MALOTTO.DAT", {"1986,23,01,02,27,30,35,38,49,0", "2001,02,08,16,23,32,34,42,26,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,04,15,28,31,35,43,25,0"});
    }

    void oeffneZusammen()
    {
        starte();
        oeffne("frmZusammenHGDV");
    }

    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 2'000'000).zeilen; }
    frmZusammenHGDV& schirm() const
    {
        return dynamic_cast<frmZusammenHGDV&>(*buehne.bildschirme.geladen("frmZusammenHGDV"));
    }
};

TEST_F(VollsuchtestZusammen, NimmtAlleSpielartenAuf)
{
    oeffneZusammen();
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 4);
    EXPECT_EQ(lies("lblZ"), "Anzahl der auszuwertenden Ziehugen: 4");
    EXPECT_EQ(titel(), "Suche nach Wiederholungen (brute force)   Samstagslotto Mittwochslotto Mittwochslotto(B)   "
                       "4 Ziehungen von 1955/41 bis 2001/02");
    klicke("cmdKombiSuche(2)");
    EXPECT_EQ(zeilen("Liste3"), (QStringList{"   2 mal -> 01 02", "   2 mal -> 16 23"}));
    EXPECT_EQ(schirm().ergebnis(), sucheEinfach(buehne.archiv, 2));
}

TEST_F(VollsuchtestZusammen, EinKaestchenLaedtNeu)
{
    oeffneZusammen();
    setze("chkArt(1)", "off");
    EXPECT_EQ(lies("lblZ"), "Anzahl der auszuwertenden Ziehugen: 2");
    EXPECT_EQ(titel(), "Suche nach Wiederholungen (brute force)   Samstagslotto Mittwochslotto(B)   "
                       "2 Ziehungen von 1955/41 bis 1986/23");
    klicke("cmdKombiSuche(2)");
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
}

TEST_F(VollsuchtestZusammen, OhneSpielartBittetEsUmEine)
{
    oeffneZusammen();
    klicke("cmdKombiSuche(2)");
    const Suchergebnis vorher = schirm().ergebnis();
    for (const char* kaestchen : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
        setze(kaestchen, "off");
    for (int groesse = 2; groesse <= 6; ++groesse) {
        klicke(QString("cmdKombiSuche(%1)").arg(groesse));
        EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Bitte mindestens eine Spielart auswählen."});
        EXPECT_EQ(schirm().ergebnis(), vorher);
        EXPECT_EQ(lies("Text15"), "Zweierwiederholungen");
    }
    EXPECT_TRUE(titel().endsWith("   4 Ziehungen von 1955/41 bis 2001/02")); // those of what is still shown
}

TEST_F(VollsuchtestZusammen, DerTitelGehoertZumErgebnis)
{
    oeffneZusammen();
    klicke("cmdKombiSuche(2)");
    setze("chkArt(1)", "off");
    EXPECT_EQ(lies("lblZ"), "Anzahl der auszuwertenden Ziehugen: 2");
    EXPECT_TRUE(
        titel().endsWith("Samstagslotto Mittwochslotto Mittwochslotto(B)   4 Ziehungen von 1955/41 bis 2001/02"));
    klicke("cmdKombiSuche(2)");
    EXPECT_TRUE(titel().endsWith("Samstagslotto Mittwochslotto(B)   2 Ziehungen von 1955/41 bis 1986/23"));
}

TEST_F(VollsuchtestZusammen, DerBerichtNenntDieSpielartenDerSuche)
{
    oeffneZusammen();
    klicke("cmdKombiSuche(2)");
    setze("chkArt(0)", "off"); // what was found stays what it is
    klicke("Befehl6");
    EXPECT_EQ(buehne.zwischenablage.text(),
              "\r\n*** SAMSTAGSLOTTO MITTWOCHSLOTTO MITTWOCHSLOTTO(B) ***\r\n"
              "Zweierwiederholungen im Samstagslotto Mittwochslotto Mittwochslotto(B)\r\n"
              "\r\n"
              "   2 mal -> 01 02\r\n"
              "   2 mal -> 16 23\r\n"
              "\r\n"
              "Erfassungstand der Ziehungen: 2001/02  Mi, 11.06.1986\r\n"
              "Anzahl der ausgewerteten Ziehungen: 4\r\n"
              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
    klicke("cmdKombiSuche(3)");
    klicke("Befehl3");
    EXPECT_TRUE(buehne.zwischenablage.text().contains(
        "\r\nNoch nie gezogene Dreierkombinationen im Mittwochslotto Mittwochslotto(B)\r\n"));
}

TEST_F(VollsuchtestZusammen, WaehrendDesLaufsBleibenDieSpielarten)
{
    oeffneZusammen();
    setze("Option1", "on");
    int zug = 0;
    buehne.pumpe.beiZug = [&] { EXPECT_TRUE(++zug != 3 || !bedienbar("chkArt(0)")); };
    klicke("cmdKombiSuche(2)");
    buehne.pumpe.beiZug = {};
    EXPECT_EQ(zug, 1176);
    EXPECT_TRUE(bedienbar("chkArt(0)"));
}

TEST_F(VollsuchtestZusammen, OhneEineDateiZaehltKeineZiehung)
{
    starte();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    oeffne("frmZusammenHGDV");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblZ"), "Anzahl der auszuwertenden Ziehugen: 0");
    klicke("cmdKombiSuche(2)");
    EXPECT_EQ(schirm().ergebnis().NieGezogen, 1176);
    klicke("Befehl6");
    setze("chkArt(1)", "off");
    klicke("cmdKombiSuche(2)");
    EXPECT_EQ(schirm().ergebnis(), sucheEinfach(buehne.archiv, 2));
    EXPECT_EQ(schirm().ergebnis().EinmalGezogen, 30);
}

TEST_F(VollsuchtestZusammen, DreiLeereDateien)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {});
    oeffneZusammen();
    klicke("cmdKombiSuche(6)");
    EXPECT_EQ(zeilen("Liste3"), QStringList{"Keine Sechserwiederholungen!"});
    EXPECT_EQ(schirm().ergebnis().NieGezogen, 13983816);
}

} // namespace
