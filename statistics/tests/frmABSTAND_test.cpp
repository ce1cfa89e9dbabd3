#include "archive/logic/Ziehungskalender.h"
#include "listcontrol/screens/ListView.h"
#include "statistics/screens/frmABSTAND.h"
#include "statistics/tests/Statistiktest.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace {

constexpr int kSpalteWochen = 22;

class Abstandsbildschirm : public Statistiktest {
protected:
    /// The records of a file that hold a number, by its text alone; counted from 1.
    std::vector<int> treffer(const char* datei, int zahl, bool gewinnzahlen, bool zz) const
    {
        std::vector<int> nummern;
        std::ifstream strom(ordner.filePath(datei).toStdString());
        int nr = 0;
        for (std::string zeile; std::getline(strom, zeile);) {
            ++nr;
            for (std::size_t i = 0; i < 7; ++i)
                if ((i < 6 ? gewinnzahlen : zz) && std::stoi(zeile.substr(8 + 3 * i, 2)) == zahl)
                    nummern.push_back(nr);
        }
        return nummern;
    }

    QStringList zeilen() { return bedienung.zeilen("ListView1", 0, 100000).zeilen; }
    QString zelle(int zeile, int spalte) { return zeilen()[zeile].split('\t')[spalte]; }
    QStringList farben(int zeile) { return bedienung.farben("ListView1", zeile).zeilen.value(0).split('\t'); }
    static QString zahlfeld(int zahl) { return QString("Bezeichnung6(%1)").arg(zahl); }

    frmABSTAND& schirm() const { return dynamic_cast<frmABSTAND&>(*buehne.bildschirme.geladen("frmABSTAND")); }

    void pruefe(const std::vector<int>& nummern)
    {
        const QStringList alle = zeilen();
        ASSERT_EQ(static_cast<std::size_t>(alle.size()), nummern.size());
        for (std::size_t i = 0; i < nummern.size(); ++i) {
            const QStringList zellen = alle[static_cast<qsizetype>(i)].split('\t');
            const int wochen = nummern[i] - (i == 0 ? 1 : nummern[i - 1]);
            EXPECT_EQ(zellen[0], QString::number(nummern[i]).rightJustified(4));
            EXPECT_EQ(zellen[kSpalteWochen], QString::number(wochen).rightJustified(4));
        }
        EXPECT_EQ(lies("Bezeichnung8"), QString::number(nummern.size()));
    }
};

TEST_F(Abstandsbildschirm, OeffnetOhneZahl)
{
    starte();
    oeffne("frmABSTAND");
    EXPECT_EQ(titel(), "Ausbleibestatistik, nach wieviel Wochen wurde eine Gewinnzahl wieder gezogen?");
    EXPECT_EQ(lies("Bezeichnung10"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung4"), "1955/41");
    EXPECT_EQ(lies("Bezeichnung2"), "Hinweis: Eine Zusatzzahl wurde erst ab der 25. Spielwoche 1956 ermittelt.");
    EXPECT_TRUE(zustand("optZ(0)").contains("checked=true"));
    EXPECT_FALSE(bedienbar("cmdMax"));
    EXPECT_FALSE(bedienbar("cmdClip"));
    EXPECT_TRUE(zeilen().isEmpty());
}

TEST_F(Abstandsbildschirm, DieListeHatDreiundzwanzigSpalten)
{
    starte();
    oeffne("frmABSTAND");
    const auto* liste = schirm().findChild<ListView*>("ListView1");
    const QStringList erwartet{"Zieh.Nr", "trenner0", "Jahr", "trenner1", "SW", "trenner2",  "Datum", "trenner3",
                               "Z1",      "trenner4", "Z2",   "trenner5", "Z3", "trenner6",  "Z4",    "trenner7",
                               "Z5",      "trenner8", "Z6",   "trenner9", "ZZ", "trenner10", "Wochen"};
    ASSERT_EQ(liste->ColumnCount(), erwartet.size());
    for (int spalte = 0; spalte < liste->ColumnCount(); ++spalte)
        EXPECT_EQ(QString::fromStdString(liste->ColumnKey(spalte)), erwartet[spalte]);
    EXPECT_EQ(liste->ColumnCaption(0), "Zieh.Nr.");
    EXPECT_EQ(liste->ColumnCaption(kSpalteWochen), "Wochen");
}

TEST_F(Abstandsbildschirm, ZeigtJedenModusWieDerText)
{
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(17));
    EXPECT_TRUE(zustand(zahlfeld(17)).contains("back=#00ffff"));
    pruefe(treffer("SALOTTO.DAT", 17, true, false));
    klicke("optZ(1)");
    pruefe(treffer("SALOTTO.DAT", 17, true, true));
    klicke("optZ(2)");
    const auto nur = treffer("SALOTTO.DAT", 17, false, true);
    pruefe(nur);
    EXPECT_GE(zelle(0, 2) + "/" + zelle(0, 4), "1956/25");
    EXPECT_LE(zelle(static_cast<int>(nur.size()) - 1, 2), "2013");
    klicke(zahlfeld(18));
    EXPECT_TRUE(zustand(zahlfeld(17)).contains("back=#ffffff"));
    pruefe(treffer("SALOTTO.DAT", 18, false, true));
    EXPECT_EQ(schirm().ergebnis().ZaehlModus, ZZModus::Nur);
}

TEST_F(Abstandsbildschirm, EineZeileZeigtDieZiehung)
{
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "1955,42,03,12,18,30,32,49,07,0"});
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(12));
    EXPECT_EQ(zeilen().value(0),
              "   1\t\t1955\t\t41\t\tSo, 09.10.1955\t\t03\t\t12 \t\t13\t\t16\t\t23\t\t41\t\t-\t\t   0");
    EXPECT_EQ(zeilen().value(1),
              "   2\t\t1955\t\t42\t\tSo, 16.10.1955\t\t03\t\t12 \t\t18\t\t30\t\t32\t\t49\t\t07\t\t   1");
    EXPECT_EQ(lies("Bezeichnung4"), "1955/41");
    EXPECT_EQ(lies("Bezeichnung16"), "1955/42");
    EXPECT_EQ(lies("Bezeichnung58"), "2");
    EXPECT_EQ(lies("Bezeichnung8"), "2");
    EXPECT_EQ(titel(), "Ausbleibestatistik, nach wieviel Wochen wurde eine Gewinnzahl wieder gezogen?");
    EXPECT_TRUE(bedienbar("cmdMax"));
    EXPECT_TRUE(bedienbar("cmdClip"));
}

TEST_F(Abstandsbildschirm, MaltNachDenMarken)
{
    schreibe("SALOTTO.DAT",
             {"1955,41,03,12,13,16,23,41,00,0", "1955,42,03,12,18,30,32,49,12,0", "1955,43,01,02,04,05,06,07,00,0",
              "1955,44,03,12,18,30,32,49,07,0", "1955,45,01,02,04,05,06,07,00,0", "1955,46,03,12,18,30,32,49,07,0"});
    starte();
    oeffne("frmABSTAND");
    klicke("optZ(1)");
    boxen();
    klicke(zahlfeld(12));
    ASSERT_EQ(zeilen().size(), 4);
    // The absences are 0, 1, 2, 2: of the two equal ones the earlier is marked.
    const std::array<QString, 4> grund{"#d9fcfd", "#ffffff", "#ffc080", "#ffffff"};
    for (int zeile = 0; zeile < 4; ++zeile) {
        const QString& hier = grund[static_cast<std::size_t>(zeile)];
        const QStringList zellen = farben(zeile);
        ASSERT_EQ(zellen.size(), 23);
        for (int spalte = 0; spalte < 23; ++spalte) {
            const bool treffer = spalte == 10 || (zeile == 1 && spalte == 20);
            const QString erwartet = spalte % 2 == 1           ? "#c0c0c0/#000000"
                                     : spalte == kSpalteWochen ? hier + "/#ff0000"
                                     : treffer                 ? "#80ffff/#ff0000"
                                                               : hier + "/#000000";
            EXPECT_EQ(zellen[spalte], erwartet) << zeile << ' ' << spalte;
        }
    }
}

TEST_F(Abstandsbildschirm, DieFarbenGeltenAuchInGewaehltenZeilen)
{
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(12));
    const QStringList vorher = farben(1);
    waehle("ListView1", {1});
    EXPECT_EQ(farben(1), vorher);
}

TEST_F(Abstandsbildschirm, DieMarkeWandertMitDerSortiertenZeile)
{
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(12));
    auto* liste = schirm().findChild<ListView*>("ListView1");
    liste->Sort(kSpalteWochen, Sortierrichtung::Absteigend);
    int markierte = 0;
    for (int zeile = 0; zeile < liste->ItemCount(); ++zeile) {
        if (farben(zeile)[0] == "#ffc080/#000000") {
            ++markierte;
            EXPECT_EQ(zelle(zeile, kSpalteWochen), zelle(0, kSpalteWochen));
        }
    }
    EXPECT_EQ(markierte, 1);
    klicke("cmdClip");
    const QStringList bericht = buehne.zwischenablage.text().split("\r\n");
    EXPECT_EQ(bericht[5].left(4), zelle(0, 0));
    EXPECT_EQ(bericht[6].left(4), zelle(1, 0));
}

TEST_F(Abstandsbildschirm, OhneZahlBittetDieOptionUmEine)
{
    starte();
    oeffne("frmABSTAND");
    klicke("optZ(2)");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Bitte zunächst eine Gewinnzahl auswählen."});
    EXPECT_TRUE(zeilen().isEmpty());
    klicke(zahlfeld(5));
    EXPECT_EQ(boxen(), QStringList());
    pruefe(treffer("SALOTTO.DAT", 5, false, true));
}

TEST_F(Abstandsbildschirm, SuchtDasMaximumUeberAlleZahlen)
{
    starte();
    klicke("Option2");
    oeffne("frmABSTAND");
    klicke(zahlfeld(1));
    klicke("cmdMax");
    int zahlMax = 0;
    int nrMax = 0;
    int wochenMax = 0;
    for (int zahl = 1; zahl <= 49; ++zahl) {
        int vorher = 0;
        for (const int nr : treffer("MALOTTO.DAT", zahl, true, false)) {
            if (nr - vorher > wochenMax) {
                wochenMax = nr - vorher;
                nrMax = nr;
                zahlMax = zahl;
            }
            vorher = nr;
        }
    }
    EXPECT_EQ(schirm().maximum().zahl, zahlMax);
    EXPECT_EQ(lies("lblmax"),
              QString("Die Gewinnzahl %1 wurde mit Zieh.Nr. %2 %3, nach %4 Wochen wieder gezogen\n"
                      " *** Längster Ausbleibezeitraum überhaupt (ohne Zusatzzahl) ***")
                  .arg(zahlMax, 2, 10, QChar('0'))
                  .arg(nrMax, 4)
                  .arg(QString::fromStdString(jahrUndWoche(buehne.archiv, static_cast<std::size_t>(nrMax))))
                  .arg(wochenMax, 4));
    klicke("optZ(1)");
    EXPECT_EQ(lies("lblmax"), "");
}

TEST_F(Abstandsbildschirm, DasMaximumOhneZusatzzahlLaesstDasArchivWieEsIst)
{
    starte();
    klicke("Option2");
    oeffne("frmABSTAND");
    const auto vorher = buehne.archiv.zz;
    ASSERT_GT(vorher[1], 0);
    klicke(zahlfeld(1));
    klicke("cmdMax");
    EXPECT_EQ(buehne.archiv.zz, vorher);
}

TEST_F(Abstandsbildschirm, MitZusatzzahlLoeschtEsDieErstenBisZumNaechstenLaden)
{
    for (const char* option : {"optZ(1)", "optZ(2)"}) {
        starte();
        klicke("Option2");
        const auto vorher = buehne.archiv.zz;
        oeffne("frmABSTAND");
        klicke(zahlfeld(1));
        klicke(option);
        EXPECT_EQ(buehne.archiv.zz, vorher);
        klicke("cmdMax");
        for (std::size_t nr = 1; nr < vorher.size(); ++nr)
            EXPECT_EQ(buehne.archiv.zz[nr], nr < 37 ? 0 : vorher[nr]) << nr;
        EXPECT_TRUE(lies("lblmax").startsWith(QString(option) == "optZ(2)" ? "Die Zusatzzahl " : "Die Gewinnzahl "));
        schliesse();
        EXPECT_EQ(buehne.archiv.zz[1], 0);
        klicke("Option2");
        EXPECT_EQ(buehne.archiv.zz, vorher);
    }
}

TEST_F(Abstandsbildschirm, BeideErgebnisseUnterscheidenSichAmAnfangUmEins)
{
    schreibe("SALOTTO.DAT",
             {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,04,05,06,00,0", "1955,43,01,02,03,04,05,49,00,0"});
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(49));
    EXPECT_EQ(zelle(0, kSpalteWochen), "   2");
    klicke("cmdMax");
    EXPECT_TRUE(lies("lblmax").startsWith(
        "Die Gewinnzahl 49 wurde mit Zieh.Nr.    3 1955/43, nach    3 Wochen wieder gezogen"));
}

TEST_F(Abstandsbildschirm, ZeigtDenLaengstenAusbleibezeitraum)
{
    starte();
    oeffne("frmABSTAND");
    const auto* liste = schirm().findChild<ListView*>("ListView1");
    bool gerollt = false;
    for (const int zahl : {1, 7, 13, 25, 49}) {
        klicke(zahlfeld(zahl));
        const QRect laengster = liste->zeilenrechteck(schirm().ergebnis().laengster);
        EXPECT_TRUE(liste->viewport()->rect().contains(laengster)) << zahl;
        gerollt = gerollt || liste->obersteZeile() > 0;
    }
    EXPECT_TRUE(gerollt);
}

TEST_F(Abstandsbildschirm, DerBerichtIstDerDesErgebnissesAuchNachEinemAnderenArchiv)
{
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(13));
    klicke("cmdClip");
    const QString vorher = buehne.zwischenablage.text();
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    klicke("cmdMax");
    klicke("cmdClip");
    EXPECT_EQ(buehne.zwischenablage.text(), vorher);
}

TEST_F(Abstandsbildschirm, EineAuswertungFolgtDemArchivDasDannGeladenIst)
{
    starte();
    oeffne("frmABSTAND");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    klicke(zahlfeld(13));
    pruefe(treffer("MBLOTTO.DAT", 13, true, false));
    EXPECT_EQ(lies("Bezeichnung10"), "MITTWOCHSLOTTO (B)");
    EXPECT_EQ(lies("Bezeichnung58"), "757");
}

TEST_F(Abstandsbildschirm, BerichtetInDieZwischenablage)
{
    schreibe("MALOTTO.DAT", {"1986,23,11,26,27,30,35,38,49,0", "1986,24,08,16,23,32,34,42,26,0"});
    starte();
    klicke("Option2");
    oeffne("frmABSTAND");
    EXPECT_EQ(lies("Bezeichnung4"), "1986/23");
    klicke(zahlfeld(26));
    klicke("optZ(1)");
    klicke("cmdClip");
    EXPECT_EQ(buehne.zwischenablage.text(),
              "\r\n*** MITTWOCHSLOTTO  ***\r\n"
              "Statistik für die Gewinnzahl: 26   (mit Zusatzzahl)\r\n"
              "\r\n"
              " ZNr. Jahr  SW  Datum           Z1  Z2  Z3  Z4  Z5  Z6  ZZ   Wochen\r\n"
              "   1  1986  23  Mi, 04.06.1986  11  26  27  30  35  38  49     0  \r\n"
              "   2  1986  24  Mi, 11.06.1986  08  16  23  32  34  42  26     1  \r\n"
              "\r\n"
              "Erfassungsstand: 1986/24  Mi, 11.06.1986\r\n"
              "Anzahl der ausgewerteten Ziehungen: 2\r\n"
              "Anzahl der Ziehungen mit der ausgewählten Gewinnzahl: 2  (MITTWOCHSLOTTO )\r\n"
              "\r\n"
              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
}

TEST_F(Abstandsbildschirm, EineLeereListeLaesstDieZwischenablage)
{
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0"});
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(7));
    buehne.zwischenablage.setze("vorher");
    klicke("cmdClip");
    EXPECT_EQ(buehne.zwischenablage.text(), "vorher");
}

TEST_F(Abstandsbildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmABSTAND");
    klicke(zahlfeld(7));
    EXPECT_EQ(lies("Bezeichnung8"), "0");
    EXPECT_EQ(lies("Bezeichnung58"), "0");
    EXPECT_EQ(lies("Bezeichnung16"), "0000/00");
    klicke("optZ(2)");
    klicke("cmdMax");
    EXPECT_EQ(lies("lblmax"), " *** Längster Ausbleibezeitraum überhaupt (nur Zusatzzahl) ***");
}

TEST_F(Abstandsbildschirm, ErklaertSich)
{
    starte();
    oeffne("frmABSTAND");
    klicke("Befehl5");
    EXPECT_EQ(boxen(),
              QStringList{"info|Lotto-Info|Das Programm ermittelt wieviele Wochen eine bestimmte Gewinnzahl in der "
                          "Vergangenheit nicht gezogen wurde, bzw. nach wievielen Wochen die Zahl wieder gezogen "
                          "wurde. Der größte Ausbleibezeitraum wird in der Liste markiert.\n\nButton \"Maximum "
                          "suchen\" -> Es wird der überhaupt größte Ausbleibezeitraum gesucht (für alle Gewinnzahlen "
                          "1-49 in einem Lauf)."});
}

} // namespace
