#include "tips/tests/Tipptest.h"

#include <QStringList>

namespace {

class Computerlottobildschirm : public Tipptest {
protected:
    void oeffneMitTip()
    {
        starte();
        oeffne("GLottoneu");
        for (const int zahl : {3, 7, 12, 23, 34, 45})
            klicke(QString("Bezeichnung6(%1)").arg(zahl));
    }
    void ziehe(const QString& anzahl, const QString& knopf = "Befehl7")
    {
        setze("Text7", anzahl);
        klicke(knopf);
    }
    int zahl(const QString& feld) { return lies(feld).remove('.').toInt(); }
    int zeilen(const QString& liste) { return bedienung.anzahl(liste).zeilen[0].toInt(); }
};

TEST_F(Computerlottobildschirm, ZaehltTrefferUndZahlen)
{
    oeffneMitTip();
    EXPECT_EQ(titel(), "\"Computerlotto\", vergleicht einen Tip mit Computer-Zufallsziehungen");
    ziehe("20.000");
    EXPECT_EQ(lies("Text9"), "20.000");
    int ausZahlen = 0, ausTreffern = 0;
    for (int i = 1; i <= 6; ++i)
        ausZahlen += zahl(QString("Text%1").arg(i));
    int hits = 1;
    for (const char* feld : {"txtEiner", "txtZweier", "txtDreier", "txtVierer", "txtFünfer", "txtSechser"})
        ausTreffern += hits++ * zahl(feld);
    EXPECT_GT(ausZahlen, 13000); // some 20,000 * 36 / 49
    EXPECT_EQ(ausZahlen, ausTreffern);
    EXPECT_TRUE(lies("lblZeit").startsWith("Zeit = "));
}

TEST_F(Computerlottobildschirm, ZeigtDieListenUndIhrEnde)
{
    oeffneMitTip();
    ziehe("32735");
    EXPECT_FALSE(sichtbar("Liste1"));
    klicke("Befehl5");
    EXPECT_EQ(zeilen("Liste1"), 32735);
    EXPECT_FALSE(sichtbar("Labelvoll"));
    EXPECT_EQ(zeilen("Liste2"), zahl("txtDreier") + zahl("txtVierer") + zahl("txtFünfer") + zahl("txtSechser"));
    ziehe("32736");
    EXPECT_EQ(zeilen("Liste1"), 32735);
    EXPECT_TRUE(sichtbar("Labelvoll"));
    EXPECT_EQ(lies("Text9"), "32.736");
    klicke("Befehl5");
    EXPECT_FALSE(sichtbar("Liste1"));
}

TEST_F(Computerlottobildschirm, OhneSechsZahlenUndOhneAnzahlBeginntNichts)
{
    oeffneMitTip();
    for (const char* text : {"", "abc", "0", "-5", "99999999999"}) {
        ziehe(text);
        EXPECT_EQ(lies("Text9"), "") << text;
    }
    EXPECT_TRUE(boxen().isEmpty());
    klicke("Bezeichnung6(45)");
    ziehe("100");
    EXPECT_EQ(lies("Text9"), "");
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Bitte zunächst einen Tip aus sechs Zahlen auswählen."}));
}

TEST_F(Computerlottobildschirm, EinAndererTipVergisstDasErgebnis)
{
    oeffneMitTip();
    ziehe("1000");
    klicke("Bezeichnung6(45)");
    EXPECT_EQ(lies("Text9"), "");
    EXPECT_EQ(lies("txtEiner"), "");
    EXPECT_EQ(lies("lblTippzahl(0)"), "");
    klicke("Befehl5");
    EXPECT_EQ(zeilen("Liste1"), 0);
}

TEST_F(Computerlottobildschirm, ZurueckBeendetErstDenLauf)
{
    oeffneMitTip();
    bool gedrueckt = false;
    buehne.pumpe.beiZug = [&] {
        if (!std::exchange(gedrueckt, true))
            klicke("Befehl2");
    };
    ziehe("2.000.000.000");
    buehne.pumpe.beiZug = {};
    EXPECT_TRUE(gedrueckt);
    EXPECT_GT(zahl("Text9"), 0);
    EXPECT_LT(zahl("Text9"), 2'000'000'000);
    EXPECT_NE(buehne.bildschirme.geladen("GLottoneu"), nullptr);
    klicke("Befehl2");
    EXPECT_EQ(buehne.bildschirme.geladen("GLottoneu"), nullptr);
}

TEST_F(Computerlottobildschirm, MitAnimationZeigenKugelnDieZiehung)
{
    oeffneMitTip();
    ziehe("1", "Befehl1");
    EXPECT_EQ(lies("Text9"), "1");
    QStringList kugeln;
    for (int i = 0; i < 6; ++i)
        kugeln += lies(QString("Bezeichnung1(%1)").arg(i)).rightJustified(2, '0');
    kugeln.sort();
    klicke("Befehl5");
    EXPECT_EQ(bedienung.zeilen("Liste1", 0, 9).zeilen, QStringList({"00001  " + kugeln.join(' ') + " "}));
}

TEST_F(Computerlottobildschirm, DieZeitspanneFolgtDerAnzahl)
{
    starte();
    oeffne("GLottoneu");
    EXPECT_EQ(lies("Text7"), "10000");
    EXPECT_EQ(QStringList({lies("Text12"), lies("Text13"), lies("Text14")}), QStringList({"192", "3", "3"}));
    setze("Text7", "52");
    EXPECT_EQ(QStringList({lies("Text12"), lies("Text13"), lies("Text14")}), QStringList({"1", "0", "0"}));
    setze("Text7", "x");
    EXPECT_EQ(QStringList({lies("Text12"), lies("Text13"), lies("Text14")}), QStringList({"0", "0", "0"}));
}

} // namespace
