#include "archive/logic/Ziehungsdatei.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Bildschirm.h"
#include "shell/logic/Format.h"
#include "statistics/screens/Matrixbildschirm.h"
#include "statistics/tests/Statistiktest.h"

#include <QFile>
#include <QPalette>

#include <algorithm>
#include <gmock/gmock.h>

namespace {

constexpr auto kJahresinfo =
    "info|Lotto-Info|In den Statistiken zur Häufigkeit der Gewinnzahlen oder der Superzahl pro Spieljahr findet man "
    "oft kleine Abweichungen. \n\nDie 52. Ziehung im Spieljahr 2010 (2010/52) fand erst am 01.01.2011 statt.\n"
    "Die 53. Ziehung im Spieljahr 1992 (1992/53) fand erst am 02.01.1993 statt.\n"
    "Die erste Ziehung für das Jahr 2015 (2015/01) fand schon am 31.12.2014 statt.";

const QStringList kAlle{"frmZusammenHSW", "frmZusammenHJahr", "frmZusammenH_SZ_SW", "frmZusammenH_SZ_Jahr"};

/// Two draws of Saturday, one of Wednesday and one of its draw B.
class Matrixbildschirme : public Statistiktest {
protected:
    void SetUp() override
    {
        schreibe("SALOTTO.DAT", {"1955,41,02,04,06,08,10,12,00,0", "1955,42,02,03,05,07,09,11,49,0"});
        schreibe("MALOTTO.DAT", {"1986,23,02,26,27,30,35,38,49,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,02,29,31,33,41,43,39,0"});
    }

    /// Wednesday draws of one week each, from 1986/01 on, ten weeks a year; the last three have a Superzahl.
    void schreibeMitSuperzahl()
    {
        constexpr int kZiehungen = 499;
        std::vector<std::string> zeilen;
        zeilen.reserve(kZiehungen);
        for (int nr = 0; nr < kZiehungen; ++nr)
            zeilen.push_back(std::to_string(1986 + nr / 10) + "," + Format(nr % 10 + 1, "00") +
                             ",01,02,03,04,05,06,00," + (nr == 497 ? "9" : "0"));
        schreibe("MALOTTO.DAT", zeilen);
        schreibe("SALOTTO.DAT", {"1955,41,02,04,06,08,10,12,00,5"});
        schreibe("MBLOTTO.DAT", {});
    }

    void zeige(const QString& bildschirm)
    {
        starte();
        oeffne(bildschirm);
    }
    const ListView& liste() { return dynamic_cast<const ListView&>(*bedienung.finde("ListView1")); }
    int zeilenzahl() { return liste().ItemCount(); }
    std::string zelle(int zeile, const char* schluessel)
    {
        return liste().ItemText(zeile, liste().ColumnIndex(schluessel));
    }
    /// The colours of a cell as "#ground/#text".
    QString farben(int zeile, const char* schluessel)
    {
        return bedienung.farben("ListView1", zeile).zeilen.value(0).split('\t').value(liste().ColumnIndex(schluessel));
    }
    /// How many cells carry the mark of the highest counts.
    int markierteHoechste()
    {
        int anzahl = 0;
        for (int zeile = 0; zeile < zeilenzahl(); ++zeile)
            for (int spalte = 0; spalte < liste().ColumnCount(); ++spalte)
                anzahl += liste().ItemText(zeile, spalte).ends_with('\x1D') ? 1 : 0;
        return anzahl;
    }
    int hoechste()
    {
        const auto& tabelle = dynamic_cast<const Matrixbildschirm*>(bedienung.aktuell())->ergebnis().tabelle;
        int anzahl = 0;
        for (const Zahlenzeile& zeile : tabelle.zeilen)
            anzahl += static_cast<int>(std::ranges::count(zeile.zellen, tabelle.rekord->anzahl, &Zahlenzelle::anzahl));
        return anzahl;
    }
};

TEST_F(Matrixbildschirme, DieWochenStehenBeimOeffnenDa)
{
    zeige("frmZusammenHSW");
    EXPECT_EQ(titel(), "Gesamtübersicht, Häufigkeit jeder Gewinnzahl zu den einzelnen Spielwochen (Maxima \"rot\" "
                       "hinterlegt, Minima \"blau\" hinterlegt).");
    EXPECT_EQ(lies("lblZ(0)"), "2  [1955/42]");
    EXPECT_EQ(lies("lblZ(1)"), "1  [1986/23]");
    EXPECT_EQ(lies("lblZ(2)"), "1  [1986/23]");
    ASSERT_EQ(zeilenzahl(), 53);
    EXPECT_EQ(zelle(22, "SW"), "23");
    EXPECT_EQ(zelle(22, "SW1"), "23");
    EXPECT_EQ(zelle(0, "SW"), "01");
    EXPECT_EQ(zelle(22, "2"), "2\n");
    EXPECT_EQ(zelle(22, "26"), "1");
    EXPECT_EQ(zelle(22, "1"), "\n0");
    EXPECT_EQ(zelle(41, "2"), "1\n");
    EXPECT_EQ(zelle(0, "2"), "0\n");
    EXPECT_EQ(lies("lblGMAX"), "Maximum zu einer Spielwoche gezogen:  2 mal (ohne Zusatzzahl)");
    EXPECT_EQ(lies("cmdMax_all"), "M");
    EXPECT_FALSE(bedienung.finde("cmdInfo"));
    EXPECT_FALSE(bedienung.finde("lblHeader"));
}

TEST_F(Matrixbildschirme, DieSpaltenStehenZwischenTrennern)
{
    zeige("frmZusammenHJahr");
    EXPECT_EQ(titel(), "Gesamtübersicht, Häufigkeit jeder Gewinnzahl in jedem Spieljahr (Maxima \"rot\" hinterlegt, "
                       "Minima \"blau\" hinterlegt).");
    const ListView& gezeigte = liste();
    ASSERT_EQ(gezeigte.ColumnCount(), 101);
    EXPECT_EQ(gezeigte.ColumnKey(0), "Jahr");
    EXPECT_EQ(gezeigte.ColumnCaption(0), "Jahr");
    EXPECT_EQ(gezeigte.ColumnKey(100), "Jahr1");
    EXPECT_EQ(gezeigte.ColumnCaption(100), "Jahr");
    for (int i = 0; i <= 49; ++i)
        EXPECT_EQ(gezeigte.ColumnKey(2 * i + 1), "trenner" + std::to_string(i));
    for (int zahl = 1; zahl <= 49; ++zahl) {
        EXPECT_EQ(gezeigte.ColumnCaption(2 * zahl), std::to_string(zahl));
        EXPECT_GE(gezeigte.ColumnWidth(2 * zahl), gezeigte.breiteFuerZeichen(2));
    }
}

TEST_F(Matrixbildschirme, DieJahreGehenUeberAlleSpiele)
{
    zeige("frmZusammenHJahr");
    ASSERT_EQ(zeilenzahl(), 32);
    EXPECT_EQ(zelle(0, "Jahr"), "1955");
    EXPECT_EQ(zelle(31, "Jahr1"), "1986");
    EXPECT_EQ(zelle(0, "2"), "2\n");
    EXPECT_EQ(zelle(31, "2"), "2\n");
    EXPECT_EQ(lies("lblDorW"),
              "Für die Berechnung das Ziehungsdatum oder die Spielwoche verwenden? (siehe HelpButton)");
    EXPECT_TRUE(zustand("optDatumOderWoche(0)").contains("checked=true"));
    klicke("cmdInfo");
    EXPECT_EQ(boxen(), QStringList{kJahresinfo});
}

TEST_F(Matrixbildschirme, DatumUndSpielwocheZaehlenVerschiedeneJahre)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1956,01,01,02,03,04,05,07,00,0"});
    zeige("frmZusammenHJahr"); // the second draw was on 16.10.1955
    EXPECT_EQ(zelle(0, "1"), "2\n");
    EXPECT_EQ(zelle(1, "1"), "0\n");
    klicke("optDatumOderWoche(1)");
    EXPECT_EQ(zelle(0, "1"), "1\n");
    EXPECT_EQ(zelle(1, "1"), "1\n");
    klicke("optDatumOderWoche(0)");
    EXPECT_EQ(zelle(0, "1"), "2\n");
}

TEST_F(Matrixbildschirme, DerZZModusZaehltSofortNeu)
{
    zeige("frmZusammenHSW");
    EXPECT_TRUE(zustand("optZZ(0)").contains("checked=true"));
    klicke("optZZ(1)");
    EXPECT_EQ(lies("lblGMAX"), "Maximum zu einer Spielwoche gezogen:  2 mal (mit Zusatzzahl)");
    EXPECT_EQ(zelle(41, "49"), "1\n");
    EXPECT_EQ(zelle(40, "1"), "\n0"); // a Zusatzzahl of 0 counts nowhere
    klicke("optZZ(2)");
    EXPECT_EQ(lies("lblGMAX"), "Maximum zu einer Spielwoche gezogen:  1 mal (nur Zusatzzahl)");
    EXPECT_EQ(zelle(41, "2"), "\n0");
    EXPECT_EQ(zelle(22, "39"), "1\n");
    EXPECT_EQ(zelle(40, "49"), "0\n");
}

TEST_F(Matrixbildschirme, EinKaestchenZaehltSofortNeu)
{
    zeige("frmZusammenHJahr");
    klicke("chkArt(0)");
    ASSERT_EQ(zeilenzahl(), 1);
    EXPECT_EQ(zelle(0, "Jahr"), "1986");
    EXPECT_EQ(lies("lblZ(0)"), "-");
    klicke("chkArt(1)");
    EXPECT_EQ(zelle(0, "26"), "\n0");
    EXPECT_EQ(zelle(0, "29"), "1\n");
}

TEST_F(Matrixbildschirme, OhneKaestchenIstDieListeLeer)
{
    starte();
    for (const QString& bildschirm : kAlle) {
        SCOPED_TRACE(bildschirm.toStdString());
        oeffne(bildschirm);
        for (const char* kasten : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
            klicke(kasten);
        EXPECT_EQ(zeilenzahl(), 0);
        EXPECT_EQ(lies("lblGMAX"), "");
        EXPECT_FALSE(bedienbar("cmdMax_all"));
        EXPECT_EQ(lies("lblZ(0)") + lies("lblZ(1)") + lies("lblZ(2)"), "---");
        klicke("chkArt(1)");
        EXPECT_GT(zeilenzahl(), 0);
        EXPECT_TRUE(bedienbar("cmdMax_all"));
        schliesse();
    }
}

TEST_F(Matrixbildschirme, LeereDateienGebenNullenOderKeineJahre)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {});
    zeige("frmZusammenHSW");
    EXPECT_EQ(zeilenzahl(), 53);
    EXPECT_EQ(lies("lblGMAX"), "Maximum zu einer Spielwoche gezogen:  0 mal (ohne Zusatzzahl)");
    schliesse();
    oeffne("frmZusammenH_SZ_Jahr");
    EXPECT_EQ(zeilenzahl(), 0);
    EXPECT_EQ(lies("lblGMAX"), "");
    EXPECT_FALSE(bedienbar("cmdMax_all"));
}

TEST_F(Matrixbildschirme, EineFehlendeDateiWirdEinmalGenanntUndNichtsGezaehlt)
{
    starte();
    QFile::remove(ordner.filePath("MBLOTTO.DAT"));
    oeffne("frmZusammenHJahr");
    ASSERT_EQ(boxen().size(), 1);
    EXPECT_EQ(zeilenzahl(), 0);
    EXPECT_EQ(lies("lblZ(0)"), "-");
    klicke("optZZ(1)");
    EXPECT_EQ(zeilenzahl(), 0);
    EXPECT_EQ(boxen(), QStringList());
    klicke("chkArt(2)");
    EXPECT_EQ(zeilenzahl(), 32);
}

TEST_F(Matrixbildschirme, MMarkiertDieHoechstenUndNimmtEsZurueck)
{
    zeige("frmZusammenHSW");
    klicke("cmdMax_all");
    EXPECT_TRUE(zustand("cmdMax_all").contains("checked=true"));
    EXPECT_EQ(zelle(22, "2"), "2\n\x1D");
    EXPECT_EQ(markierteHoechste(), 1);
    EXPECT_EQ(farben(22, "2"), "#ffff00/#000000");
    klicke("cmdMax_all");
    EXPECT_FALSE(zustand("cmdMax_all").contains("checked=true"));
    EXPECT_EQ(zelle(22, "2"), "2\n");
    EXPECT_EQ(markierteHoechste(), 0);
}

TEST_F(Matrixbildschirme, EineNeueZaehlungIstNichtMarkiert)
{
    zeige("frmZusammenHSW");
    klicke("cmdMax_all");
    klicke("optZZ(2)");
    EXPECT_EQ(markierteHoechste(), 0);
    EXPECT_FALSE(zustand("cmdMax_all").contains("checked=true"));
    klicke("cmdMax_all");
    EXPECT_EQ(markierteHoechste(), 3); // 49 in weeks 23 and 42, 39 in week 23
    klicke("optZZ(2)");
    EXPECT_EQ(markierteHoechste(), 0);
}

TEST_F(Matrixbildschirme, MHoltDasErsteMaximumInsBild)
{
    schreibe("SALOTTO.DAT",
             {"1955,53,02,04,06,08,10,12,00,0", "1955,53,02,03,05,07,09,11,49,0", "1955,53,02,03,05,07,09,11,49,0"});
    zeige("frmZusammenHSW");
    EXPECT_EQ(liste().obersteZeile(), 0);
    klicke("cmdMax_all");
    EXPECT_EQ(zelle(52, "2"), "3\n\x1D");
    EXPECT_GT(liste().obersteZeile(), 0);
    const QRect zeile = liste().zeilenrechteck(52);
    EXPECT_GE(zeile.top(), 0);
    EXPECT_LE(zeile.bottom(), liste().viewport()->height());
}

TEST_F(Matrixbildschirme, DieMarkenSindAufAllenVierGleichVieleWieHoechste)
{
    schreibeMitSuperzahl();
    starte();
    for (const QString& bildschirm : kAlle) {
        SCOPED_TRACE(bildschirm.toStdString());
        oeffne(bildschirm);
        klicke("cmdMax_all");
        EXPECT_EQ(markierteHoechste(), hoechste());
        EXPECT_GT(markierteHoechste(), 0);
        schliesse();
    }
}

TEST_F(Matrixbildschirme, FarbenFolgenDenMarken)
{
    zeige("frmZusammenHSW");
    EXPECT_EQ(farben(22, "2"), "#ff0000/#ffffff");
    EXPECT_EQ(farben(22, "1"), "#6d74f8/#ffffff");
    EXPECT_EQ(farben(22, "26"), "#d9fcfd/#000000");
    EXPECT_EQ(farben(22, "trenner7"), "#c0c0c0/#000000");
    const QString rand = liste().palette().color(QPalette::Midlight).name() + "/#000000";
    EXPECT_EQ(farben(22, "SW"), rand);
    EXPECT_EQ(farben(22, "SW1"), rand);
    waehle("ListView1", {22});
    EXPECT_EQ(farben(22, "26"), "#ffc080/#000000");
    EXPECT_EQ(farben(22, "2"), "#ff0000/#ffffff");
    EXPECT_EQ(farben(22, "trenner7"), "#c0c0c0/#000000");
    EXPECT_EQ(farben(22, "SW"), rand);
}

TEST_F(Matrixbildschirme, DieSuperzahlenHabenZehnSpalten)
{
    schreibeMitSuperzahl();
    zeige("frmZusammenH_SZ_SW");
    EXPECT_EQ(titel(), "Superzahl, Häufigkeit pro Spielwoche");
    EXPECT_EQ(lies("lblHeader"), "Die Superzahlen 0-9");
    EXPECT_EQ(lies("lblMaxima"), "Maxima pro SW");
    EXPECT_EQ(lies("lblMinima"), "Minima pro SW");
    EXPECT_EQ(liste().ColumnCount(), 23);
    EXPECT_EQ(liste().ColumnCaption(2), "0");
    EXPECT_EQ(liste().ColumnCaption(20), "9");
    EXPECT_FALSE(bedienung.finde("optZZ(0)"));
    ASSERT_EQ(zeilenzahl(), 53);
    EXPECT_EQ(zelle(6, "0"), "1\n"); // the 497th draw is the first with a Superzahl
    EXPECT_EQ(zelle(7, "9"), "1\n");
    EXPECT_EQ(zelle(8, "0"), "1\n");
    EXPECT_EQ(zelle(5, "0"), "0\n");
    EXPECT_EQ(zelle(40, "5"), "0\n"); // no draw of Saturday has one yet
    EXPECT_EQ(lies("lblGMAX"), "Maximum zu einer Spielwoche gezogen:  1 mal");
    klicke("cmdInfo");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Info|Das Programm ermittelt die Häufigkeit der Superzahl an den "
                                   "jeweiligen Spielwochen (1-53). Die Maxima und Minima werden farblich markiert."});
}

TEST_F(Matrixbildschirme, DieJahreVorDerSuperzahlSindHochgerollt)
{
    schreibeMitSuperzahl();
    zeige("frmZusammenH_SZ_Jahr");
    EXPECT_EQ(titel(), "Häufigkeit der Superzahl pro Spieljahr");
    EXPECT_EQ(lies("lblInfo"), "Berechnung nach  Ziehungsdatum oder Spielwoche?");
    EXPECT_EQ(lies("lblMaxima"), "Maxima pro Spieljahr");
    EXPECT_EQ(lies("lblMinima"), "Minima pro Spieljahr");
    klicke("optDatumOderWoche(1)");
    ASSERT_EQ(zeilenzahl(), 81); // 1955 to 2035
    EXPECT_EQ(zelle(0, "Jahr"), "1955");
    EXPECT_EQ(zelle(80, "0"), "2\n");
    EXPECT_EQ(zelle(80, "9"), "1");
    EXPECT_EQ(zelle(80, "1"), "\n0");
    EXPECT_GT(liste().obersteZeile(), 50);
    EXPECT_EQ(lies("lblGMAX"), "Maximum in einem Spieljahr gezogen:  2 mal ");
    klicke("cmdInfo");
    EXPECT_EQ(boxen(), QStringList{kJahresinfo});
}

TEST_F(Matrixbildschirme, UnmoeglicheJahreUndWochenSprengenNichts)
{
    schreibe("MALOTTO.DAT", {"-005,99,01,02,03,04,05,06,00,0", "2147483647,00,01,02,03,04,05,06,00,0"});
    starte();
    for (const QString& bildschirm : kAlle) {
        SCOPED_TRACE(bildschirm.toStdString());
        oeffne(bildschirm);
        if (bildschirm.contains("Jahr"))
            klicke("optDatumOderWoche(1)");
        EXPECT_LE(zeilenzahl(), 53);
        EXPECT_GT(zeilenzahl(), 0);
        schliesse();
    }
}

TEST_F(Matrixbildschirme, DreistelligeAnzahlenBekommenBreitereSpalten)
{
    schreibe("SALOTTO.DAT", std::vector<std::string>(100, "1955,41,02,04,06,08,10,12,00,0"));
    zeige("frmZusammenHSW");
    EXPECT_EQ(zelle(40, "2"), "100\n");
    EXPECT_EQ(liste().ColumnWidth(4), liste().breiteFuerZeichen(3));
    klicke("chkArt(0)");
    EXPECT_EQ(liste().ColumnWidth(4), liste().breiteFuerZeichen(2));
}

TEST_F(Matrixbildschirme, KopiertWirdWasZuSehenIst)
{
    zeige("frmZusammenHSW");
    klicke("cmdMax_all");
    const QStringList zellen = liste().kopierzeile(22).split('\t');
    ASSERT_EQ(zellen.size(), 51);
    EXPECT_EQ(zellen[0], "23");
    EXPECT_EQ(zellen[1], "0");
    EXPECT_EQ(zellen[2], "2");
}

TEST_F(Matrixbildschirme, DieWochenGebenDasGefundeneSpielZurueck)
{
    zeige("frmZusammenHSW");
    buehne.umgebung.archiv.Spielart = Mittwochslotto;
    schliesse();
    EXPECT_EQ(buehne.umgebung.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(buehne.umgebung.archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(titel(), "Lotto-Auswahlmenü");
}

TEST_F(Matrixbildschirme, SonstBleibenDieZusammengeladenenZiehungen)
{
    starte();
    for (const QString& bildschirm : kAlle) {
        SCOPED_TRACE(bildschirm.toStdString());
        oeffne(bildschirm);
        klicke("Command3");
        EXPECT_EQ(buehne.umgebung.archiv.Spielart, Samstagslotto);
        EXPECT_EQ(buehne.umgebung.archiv.AnzahlZiehungen, 4);
    }
}

} // namespace
