#include "filters/tests/Filtertest.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Bildschirm.h"

#include <QCoreApplication>
#include <QFile>
#include <QSet>

namespace {

constexpr int kDatum2 = 100;
constexpr int kAnz = 102;

class Linienbildschirm : public Filtertest {
protected:
    void zeige()
    {
        starte();
        oeffne("frm49");
    }
    QStringList zeile(int nr) { return bedienung.zeilen("ListView1", nr, 1).zeilen.value(0).split('\t'); }
    int anzahl() { return bedienung.anzahl("ListView1").zeilen.value(0).toInt(); }
    QStringList farben(int nr) { return bedienung.farben("ListView1", nr).zeilen.value(0).split('\t'); }
    const ListView& liste() { return *buehne.bildschirme.geladen("frm49")->findChild<ListView*>("ListView1"); }
    /// The days of the table, from top to bottom.
    QStringList tage()
    {
        QStringList alle;
        for (int nr = 0; nr < anzahl(); ++nr)
            alle << zeile(nr)[0];
        return alle;
    }
};

/// Two draws of each game.
class KleinerLinienbildschirm : public Linienbildschirm {
protected:
    KleinerLinienbildschirm()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,20,41,49,00,0", "1955,42,11,12,13,14,15,16,00,3"});
        schreibe("MALOTTO.DAT", {"1986,23,07,17,27,37,47,48,00,5", "1986,24,08,18,28,38,46,49,00,0"});
    }
};

TEST_F(KleinerLinienbildschirm, HatEineSpalteFuerJedeZahl)
{
    zeige();
    ASSERT_EQ(liste().ColumnCount(), 103);
    EXPECT_EQ(liste().ColumnKey(0), "Datum");
    EXPECT_EQ(liste().ColumnKey(1), "trenner0");
    for (int zahl = 1; zahl <= 49; ++zahl) {
        EXPECT_EQ(liste().ColumnCaption(2 * zahl), std::to_string(zahl));
        EXPECT_EQ(liste().ColumnKey(2 * zahl + 1), "trenner" + std::to_string(zahl));
    }
    EXPECT_EQ(liste().ColumnKey(kDatum2), "Datum2");
    EXPECT_EQ(liste().ColumnKey(101), "trenner62");
    EXPECT_EQ(liste().ColumnCaption(kAnz), "Anz.");
}

TEST_F(KleinerLinienbildschirm, ZeigtGleichDieLetztenZiehungenBeiderSpiele)
{
    zeige();
    EXPECT_TRUE(zustand("optAnz(0)").contains("checked=true"));
    EXPECT_EQ(lies("cmbAnz"), "50");
    EXPECT_EQ(lies("lblAnz"), "Anzahl der ausgewerteten Ziehungen: 4");
    EXPECT_EQ(tage(), QStringList({"1955-10-09 So", "1955-10-16 So", "1986-06-04 Mi", "1986-06-11 Mi"}));
    const QStringList erste = zeile(0);
    for (int zahl = 1; zahl <= 49; ++zahl)
        EXPECT_EQ(erste[2 * zahl], QSet<int>({1, 2, 3, 20, 41, 49}).contains(zahl)
                                       ? QString::number(zahl).rightJustified(2, '0')
                                       : QString());
    EXPECT_EQ(erste[kDatum2], "1955-10-09 So");
    EXPECT_EQ(erste[kAnz], "   1");
    EXPECT_EQ(lies("lblLegende"), "Legende:  blau -> die gezogenen Gewinnzahlen,  gelb -> die Superzahl");
}

TEST_F(KleinerLinienbildschirm, MaltDieGezogenenBlau)
{
    zeige();
    EXPECT_EQ(farben(0)[2], "#0000ff/#ffffff");
    EXPECT_EQ(farben(0)[8], "#d9fcfd/#000000");
    EXPECT_EQ(farben(1)[8], "#ffffff/#000000");
    EXPECT_EQ(farben(0)[3], "#c0c0c0/#000000");
}

TEST_F(KleinerLinienbildschirm, EineGewaehlteZeileBehaeltIhreMarken)
{
    zeige();
    waehle("ListView1", {0});
    EXPECT_EQ(farben(0)[2], "#0000ff/#ffffff");
    EXPECT_NE(farben(0)[8], "#d9fcfd/#000000");
    EXPECT_EQ(farben(1)[8], "#ffffff/#000000");
}

TEST_F(KleinerLinienbildschirm, EineSuperzahlGibtEsErstAbIhrerZiehung)
{
    zeige();
    for (int nr = 0; nr < 4; ++nr)
        EXPECT_FALSE(farben(nr).join(' ').contains("#ffff00"));
    schreibe("MALOTTO.DAT", std::vector<std::string>(497, "1986,23,07,17,27,37,47,48,00,5"));
    klicke("chkSart(2)");
    klicke("chkSart(2)");
    EXPECT_FALSE(farben(48).join(' ').contains("#ffff00"));
    EXPECT_EQ(zeile(49)[10], "5");
    EXPECT_EQ(farben(49)[10], "#ffff00/#000000");
}

TEST_F(KleinerLinienbildschirm, EinKaestchenWaehltDieZiehungen)
{
    zeige();
    klicke("chkSart(1)");
    EXPECT_EQ(tage(), QStringList({"1986-06-04 Mi", "1986-06-11 Mi"}));
    EXPECT_EQ(lies("lblAnz"), "Anzahl der ausgewerteten Ziehungen: 2");
    klicke("chkSart(2)");
    EXPECT_EQ(anzahl(), 0);
    EXPECT_EQ(lies("lblAnz"), "Anzahl der ausgewerteten Ziehungen: 0");
    klicke("chkSart(1)");
    EXPECT_EQ(tage(), QStringList({"1955-10-09 So", "1955-10-16 So"}));
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(KleinerLinienbildschirm, DieAnzahlWirdGewaehltOderEingegeben)
{
    zeige();
    setze("cmbAnz", "3");
    EXPECT_EQ(tage(), QStringList({"1955-10-16 So", "1986-06-04 Mi", "1986-06-11 Mi"}));
    EXPECT_EQ(zeile(0)[kAnz], "   1");
    EXPECT_EQ(lies("lblAnz"), "Anzahl der ausgewerteten Ziehungen: 3");
    klicke("optAnz(1)");
    EXPECT_EQ(anzahl(), 4);
    klicke("optAnz(0)");
    EXPECT_EQ(anzahl(), 3);
    klicke("optAnz(1)");
    setze("cmbAnz", "20");
    EXPECT_TRUE(zustand("optAnz(0)").contains("checked=true"));
    EXPECT_EQ(anzahl(), 4);
}

TEST_F(KleinerLinienbildschirm, UnsinnigeAnzahlenAendernNichts)
{
    zeige();
    setze("cmbAnz", "2");
    for (const char* eingabe : {"", "abc", "0", "-3", "99999999999"}) {
        setze("cmbAnz", eingabe);
        EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Bitte eine ganze Zahl von 1 bis 32767 eingeben !"});
        EXPECT_EQ(lies("cmbAnz"), "2");
        EXPECT_EQ(anzahl(), 2);
    }
}

TEST_F(KleinerLinienbildschirm, EineFehlendeDateiNenntEineBoxUndZaehltNull)
{
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    zeige();
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(anzahl(), 2);
    klicke("chkSart(1)");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(anzahl(), 0);
    klicke("chkSart(1)");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(anzahl(), 2);
}

TEST_F(KleinerLinienbildschirm, SchliessenGibtSpielUndArchivZurueck)
{
    starte();
    buehne.umgebung.menue->waehleSpielart(Samstagslotto);
    oeffne("frm49");
    klicke("chkSart(1)");
    klicke("cmdEnd");
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(buehne.archiv.jjjj[1], 1955);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(KleinerLinienbildschirm, LeereUndFeindlicheDateien)
{
    schreibe("SALOTTO.DAT", {});
    schreibe("MALOTTO.DAT", {"1986,23,00,50,-1,99,2147483647,07,00,5"});
    zeige();
    ASSERT_EQ(anzahl(), 1);
    EXPECT_EQ(zeile(0)[14], "07");
    EXPECT_EQ(farben(0).filter("#0000ff").size(), 1);
    schreibe("MALOTTO.DAT", {});
    klicke("chkSart(2)");
    klicke("chkSart(2)");
    EXPECT_EQ(anzahl(), 0);
}

TEST_F(Linienbildschirm, DasSortierenNimmtDieFarbenMit)
{
    schreibe("SALOTTO.DAT", {"1955,41,11,12,13,20,41,49,00,0", "1955,42,07,12,13,14,15,16,00,3"});
    schreibe("MALOTTO.DAT", {});
    zeige();
    EXPECT_EQ(farben(1)[14], "#0000ff/#ffffff");
    buehne.bildschirme.geladen("frm49")->findChild<ListView*>("ListView1")->Sort(14, Sortierrichtung::Absteigend);
    EXPECT_EQ(zeile(0)[0], "1955-10-16 So");
    EXPECT_EQ(farben(0)[14], "#0000ff/#ffffff");
    EXPECT_EQ(farben(1)[14], "#ffffff/#000000");
}

/// Files that are long enough for turns of the event loop while the table fills.
class LangerLinienbildschirm : public Linienbildschirm {
protected:
    static constexpr int kZiehungen = 32'767;

    LangerLinienbildschirm()
    {
        for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT"})
            schreibe(datei, std::vector<std::string>(kZiehungen, "1986,23,01,02,03,20,41,49,00,0"));
    }
};

TEST_F(LangerLinienbildschirm, EineAndereWahlInDerMitteGilt)
{
    zeige();
    EXPECT_EQ(anzahl(), 50);
    int zuege = 0;
    buehne.pumpe.beiZug = [this, &zuege] {
        if (++zuege == 1)
            klicke("chkSart(2)");
    };
    klicke("optAnz(1)");
    buehne.pumpe.beiZug = nullptr;
    EXPECT_GT(zuege, 0);
    EXPECT_EQ(anzahl(), kZiehungen);
    EXPECT_EQ(lies("lblAnz"), "Anzahl der ausgewerteten Ziehungen: 32767");
}

TEST_F(LangerLinienbildschirm, SchliessenInDerMitteGibtSpielUndArchivZurueck)
{
    zeige();
    buehne.umgebung.archiv.AnzahlZiehungen = 0;
    buehne.pumpe.beiZug = [this] { buehne.bildschirme.geladen("frm49")->schliesse(); };
    klicke("optAnz(1)");
    buehne.pumpe.beiZug = nullptr;
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frm49"), nullptr);
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, kZiehungen);
}

TEST_F(Linienbildschirm, DieNeuesteZiehungIstZuSehen)
{
    zeige();
    bool zug = false;
    buehne.pumpe.beiZug = [&zug] { zug = true; };
    klicke("optAnz(1)");
    buehne.pumpe.beiZug = nullptr;
    EXPECT_FALSE(zug); // it is there at once
    EXPECT_EQ(anzahl(), lies("lblAnz").section(' ', -1).toInt());
    EXPECT_GT(anzahl(), 5000);
    const QRect letzte = liste().zeilenrechteck(anzahl() - 1);
    EXPECT_TRUE(liste().viewport()->rect().contains(letzte.topLeft()));
}

} // namespace
