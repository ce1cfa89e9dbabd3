#include "shell/elements/Bildschirm.h"
#include "shell/elements/Liste.h"
#include "tips/tests/Tipptest.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

const QByteArray kZeile = "202418. 3. 7.12.23.34.45:5\r\n";

class Scheinvergleichsbildschirm : public Tipptest {
protected:
    /// Four draws of each game: one hit, two, three and six of the tip.
    void oeffneVergleich(const QString& option = "Option1")
    {
        for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
            schreibe(datei, {"2024,16,03,08,13,24,35,46,00,5", "2024,17,03,07,13,24,35,46,00,5",
                             "2024,18,03,07,12,24,35,46,00,5", "2024,19,03,07,12,23,34,45,00,5"});
        starte();
        klicke(option);
        oeffne("frmSSA");
    }
    QString pfad(const QString& name) const { return QDir(ordner.path()).filePath(name); }
    void lege(const QString& name, const QByteArray& bytes) const
    {
        QFile datei(pfad(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(bytes);
    }
    QStringList zeilen(const QString& name) { return bedienung.zeilen(name, 0, 10'000).zeilen; }
    QString gewaehlte(const QString& name) { return bedienung.gewaehlte(name).zeilen.value(0); }
    QStringList zaehler()
    {
        QStringList texte;
        for (const char* name : {"txtEiner", "txtZweier", "txtZZ", "txtDreier", "txtDZ", "txtVierer", "txtVZ",
                                 "txtFünfer", "txtFZ", "txtSechser", "txtSechser_SZ"})
            texte << lies(name);
        return texte;
    }
};

TEST_F(Scheinvergleichsbildschirm, OhneScheineSagtErEs)
{
    oeffneVergleich();
    EXPECT_EQ(titel(), "Vergleicht einen  gespeicherten Tipschein mit allen Ziehungen seit 1955");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Es wurden noch keine wöchentlichen Tipscheine gespeichert !"});
    EXPECT_EQ(lies("Bezeichnung10"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung2"), "2024/16");
    EXPECT_EQ(lies("Bezeichnung16"), "2024/19");
    EXPECT_EQ(lies("Text15"), "JJJJ/SW  Z1 Z2 Z3 Z4 Z5 Z6   SZ Gewinn");
    klicke("Befehl5");
    klicke("Befehl4");
    EXPECT_EQ(boxen(), QStringList{});
    EXPECT_EQ(zeilen("Liste1"), QStringList{});
    EXPECT_EQ(zaehler(), QStringList(11, "0"));
}

TEST_F(Scheinvergleichsbildschirm, EinKlickVergleichtEinenSchein)
{
    lege("S_202418.dat", kZeile);
    lege("M_202418.dat", "");
    oeffneVergleich();
    EXPECT_EQ(boxen(), QStringList{});
    EXPECT_EQ(zeilen("Datei1"), QStringList{"S_202418.dat"});
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(zeilen("Liste1"),
              (QStringList{"**** Größere Gewinne (ab Vierer werden markiert ! ****", QString(30, '*'),
                           "*    Tipschein S_2024/18     *", QString(30, '*'), "**Tip    103 07 12 23 34 45   5 **/18",
                           QString(30, '-'), "2024/18  03 07 12 24 35 46   - (3er)",
                           "2024/19  03 07 12 23 34 45   - (6er)"}));
    EXPECT_EQ(zaehler(), (QStringList{"1", "1", "0", "1", "0", "0", "0", "0", "0", "1", "0"}));
    EXPECT_EQ(gewaehlte("Liste1"), "7");
    EXPECT_TRUE(titel().startsWith("Suchzeit=0,")) << titel().toStdString();
    EXPECT_TRUE(titel().endsWith(" s"));
}

TEST_F(Scheinvergleichsbildschirm, EineZeileZeigtIhreZahlenUndDieMarkenBleiben)
{
    lege("S_202418.dat", kZeile);
    oeffneVergleich();
    bedienung.waehle("Datei1", {0});
    bedienung.waehle("Liste1", {6});
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{3, 7, 12, 24, 35, 46}));
    EXPECT_EQ(lies("Label1"), "2024/18");
    EXPECT_EQ(gewaehlte("Liste1"), "6,7");
    bedienung.waehle("Liste1", {4});
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{3, 7, 12, 23, 34, 45}));
    EXPECT_EQ(lies("Label1"), "Tip 1");
    EXPECT_EQ(gewaehlte("Liste1"), "4,7");
    bedienung.waehle("Liste1", {1});
    EXPECT_EQ(lies("Label1"), "Tip 1");
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(markierte("Bezeichnung6"), QList<int>{});
    EXPECT_EQ(lies("Label1"), "");
}

TEST_F(Scheinvergleichsbildschirm, AlleScheineZaehlenZusammen)
{
    lege("S_202418.dat", kZeile);
    lege("S_202419.dat", kZeile + kZeile);
    lege("S_1999al.dat", kZeile);
    lege("M_202418.dat", kZeile);
    oeffneVergleich();
    klicke("Befehl5");
    EXPECT_EQ(zaehler(), (QStringList{"4", "4", "0", "4", "0", "0", "0", "0", "0", "4", "0"}));
    const QStringList liste = zeilen("Liste1");
    EXPECT_EQ(liste.size(), 1 + 3 * 3 + 4 * 4 + 1);
    EXPECT_EQ(liste[1], QString(28, '*'));
    EXPECT_EQ(liste[2], "*    Tipschein S_1999/AL     *");
    EXPECT_EQ(liste[4], "2024 3. 7.12.23.34.45:5Tip1:  ");
    klicke("Befehl5");
    EXPECT_EQ(zeilen("Liste1"), liste) << "jeder Lauf beginnt von vorn";
    klicke("Befehl19");
    EXPECT_EQ(zeilen("Liste1"), QStringList{});
    EXPECT_EQ(zaehler(), QStringList(11, "0"));
    EXPECT_EQ(titel(), "Vergleicht einen  gespeicherten Tipschein mit allen Ziehungen seit 1955");
}

TEST_F(Scheinvergleichsbildschirm, AmMittwochGehoerenDieScheineBeidenSpielarten)
{
    lege("M_202418.dat", kZeile);
    oeffneVergleich("Option3");
    EXPECT_EQ(titel(), "Vergleicht einen  gespeicherten Tipschein mit allen Ziehungen seit 1986");
    EXPECT_EQ(lies("Bezeichnung10"), "MITTWOCHSLOTTO (B)");
    klicke("Befehl3");
    EXPECT_TRUE(boxen().value(0).startsWith("info|Lotto-Hinweis|Wäre der ausgewählte Tipschein seit 1986 jede Woche"));
    klicke("Befehl5");
    EXPECT_EQ(zeilen("Liste1").size(), 8);
}

TEST_F(Scheinvergleichsbildschirm, VerschwundeneUndUnlesbareScheine)
{
    lege("S_202418.dat", kZeile);
    lege("S_202419.dat", {});
    ASSERT_TRUE(QFile::resize(pfad("S_202419.dat"), 100'000'000));
    oeffneVergleich();
    bedienung.waehle("Datei1", {0});
    const QStringList vorher = zeilen("Liste1");
    QFile::remove(pfad("S_202418.dat"));
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|ERROR 53: Tipdatei nicht gefunden !"});
    EXPECT_EQ(zeilen("Datei1"), QStringList{"S_202419.dat"});
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Datei S_202419.dat kann nicht gelesen werden."});
    EXPECT_EQ(zeilen("Liste1"), vorher) << "die Liste bleibt bei dem, was gelesen wurde";
    klicke("Befehl4");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Datei S_202419.dat kann nicht gelesen werden."});
}

TEST_F(Scheinvergleichsbildschirm, DieGetipptenZahlenInBeidenReihenfolgen)
{
    lege("S_202418.dat", kZeile + "202418. 1. 2. 3. 4. 5. 6:3\r\n");
    oeffneVergleich();
    klicke("Befehl4");
    const QStringList nachZahl = zeilen("Liste2");
    ASSERT_EQ(nachZahl.size(), 49);
    EXPECT_EQ(nachZahl[2], " 3   mal die  2");
    EXPECT_EQ(nachZahl[48], "49   mal die  0");
    EXPECT_TRUE(sichtbar("Liste2"));
    EXPECT_FALSE(sichtbar("Liste4"));
    klicke("cmdTipzahl");
    EXPECT_TRUE(sichtbar("Liste4"));
    EXPECT_FALSE(sichtbar("Liste2"));
    EXPECT_EQ(zeilen("Liste4").value(0), "   2 Zahl   3 -> 2  mal");
    EXPECT_EQ(zeilen("Liste4").value(1), "   1 Zahl  45 -> 1  mal");
    bedienung.waehle("Liste4", {0});
    EXPECT_TRUE(sichtbar("Liste2"));
    EXPECT_TRUE(sichtbar("cmdTipzahl"));
    klicke("Befehl6");
    EXPECT_TRUE(boxen().value(0).contains("ändert die Sortierreihenfolge (Tipzahl <-> Häufigkeit)."));
}

TEST_F(Scheinvergleichsbildschirm, EscHaeltDenLaufAnUndLaesstDenSchirmOffen)
{
    const QByteArray viele = kZeile.repeated(9'000);
    for (int i = 0; i < 20; ++i)
        lege(QString("S_%1.dat").arg(202401 + i), viele);
    oeffneVergleich();
    QStringList gesehen;
    buehne.pumpe.beiZug = [&] {
        gesehen << titel();
        tippe("frmSSA", "Esc");
    };
    klicke("Befehl5");
    buehne.pumpe.beiZug = {};
    ASSERT_FALSE(gesehen.isEmpty());
    EXPECT_TRUE(gesehen[0].startsWith("Bitte warten ! ")) << gesehen[0].toStdString();
    EXPECT_TRUE(gesehen[0].endsWith(" von 20 Tipscheinen"));
    EXPECT_TRUE(titel().endsWith(" s (abgebrochen)")) << titel().toStdString();
    EXPECT_GT(zeilen("Liste1").size(), 0);
    EXPECT_LT(lies("txtSechser").toInt(), 180'000);
    EXPECT_NE(buehne.bildschirme.geladen("frmSSA"), nullptr);
    tippe("frmSSA", "Esc");
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmSSA"), nullptr);
}

TEST_F(Scheinvergleichsbildschirm, EscHaeltDenDruckAn)
{
    lege("S_202418.dat", kZeile.repeated(9'000));
    oeffneVergleich();
    klicke("Befehl5");
    const QString vorher = titel();
    buehne.drucker.setzeDatei(pfad("druck.pdf"));
    int zuege = 0;
    buehne.pumpe.beiZug = [&] {
        ++zuege;
        EXPECT_EQ(titel(), "Bitte warten !");
        tippe("frmSSA", "Esc");
    };
    klicke("Befehl18");
    buehne.pumpe.beiZug = {};
    EXPECT_EQ(zuege, 1);
    EXPECT_EQ(titel(), vorher);
    EXPECT_NE(buehne.bildschirme.geladen("frmSSA"), nullptr);
}

TEST_F(Scheinvergleichsbildschirm, DrucktDieListe)
{
    lege("S_202418.dat", kZeile);
    oeffneVergleich();
    bedienung.waehle("Datei1", {0});
    buehne.drucker.setzeDatei(pfad("druck.pdf"));
    klicke("Befehl18");
    EXPECT_GT(QFile(pfad("druck.pdf")).size(), 1000);
    EXPECT_EQ(boxen(), QStringList{});
    buehne.drucker.setzeDatei({});
    klicke("Befehl18");
    EXPECT_EQ(titel(), "Es ist kein Standarddrucker eingerichtet.");
}

} // namespace
