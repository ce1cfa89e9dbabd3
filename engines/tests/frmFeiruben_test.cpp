#include "engines/screens/frmFeiruben.h"
#include "engines/tests/Suchtest.h"
#include "shell/elements/Liste.h"

#include <QCoreApplication>

#include <random>
#include <utility>

namespace {

constexpr auto kNochKeine = "info|Tombrix|Es wurden noch keine Ziehungen ausgewählt.";

struct Zerlegungsfeld {
    int k;
    const char *zerlegen, *liste, *details;
    int jeZiehung;
};

constexpr std::array<Zerlegungsfeld, 4> kFelder{{
    {2, "Befehl11", "Liste7", "Befehl13", 15},
    {3, "Befehl16", "Liste8", "Befehl17", 20},
    {4, "Befehl12", "Liste4", "Befehl7", 15},
    {5, "Befehl1", "Liste5", "Befehl5", 6},
}};

class Zerlegungsbildschirm : public Suchtest {
protected:
    void oeffneDrei()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,10,19,20,49,00,0", "1955,42,01,02,10,19,20,48,00,0",
                                 "1956,42,03,04,05,06,07,08,00,0"});
        starte();
        oeffne("frmFeiruben");
    }

    /// So many draws that cutting them up takes several turns of the event loop.
    void oeffneViele()
    {
        std::vector<std::string> ziehungen;
        std::mt19937 zufall(1);
        for (int nr = 0; nr < 30'000; ++nr) {
            std::string zeile = "1990,01";
            unsigned zahl = 0;
            for (int i = 0; i < 6; ++i) {
                zahl += 1 + static_cast<unsigned>(zufall() % 8);
                zeile += (zahl < 10 ? ",0" : ",") + std::to_string(zahl);
            }
            ziehungen.push_back(zeile + ",00,0");
        }
        schreibe("SALOTTO.DAT", ziehungen);
        starte();
        oeffne("frmFeiruben");
        klicke("cmdAll");
    }

    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 1'000'000).zeilen; }
    QString gewaehlt(const QString& liste) { return bedienung.gewaehlte(liste).zeilen.join(','); }
    QString herkunft(int k) { return lies(QString("lblHerkunft(%1)").arg(k)); }
};

TEST_F(Zerlegungsbildschirm, OeffnetMitAllenZiehungenUndOhneAuswahl)
{
    oeffneDrei();
    EXPECT_EQ(titel(), "In ausgewählten Ziehungen enthaltene Zweier-, Dreier-, Vierer- und Fünferkombinationen zaehlen "
                       "und auflisten");
    EXPECT_EQ(zeilen("Liste1"),
              (QStringList{"1955/41  01 02 10 19 20 49   So, 09.10.1955", "1955/42  01 02 10 19 20 48   So, 16.10.1955",
                           "1956/42  03 04 05 06 07 08   So, 23.10.1955"}));
    EXPECT_EQ(lies("Bezeichnung13"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Label333"), "Anzahl der Ausgewählte Ziehungen: 0");
    EXPECT_EQ(lies("Text15"), "JJJJ/SW   Ziehungen mit Kombination");
    EXPECT_EQ(bedienung.eintraege("cmbJahr").zeilen, (QStringList{"1955", "1956"}));
    EXPECT_EQ(bedienung.eintraege("cmbMonat").zeilen, (QStringList{"41", "42"}));
    EXPECT_TRUE(zeilen("List12").isEmpty());
}

TEST_F(Zerlegungsbildschirm, NimmtEinzelneAlleJahrUndWoche)
{
    oeffneDrei();
    waehle("Liste1", {1});
    EXPECT_EQ(zeilen("List12"), QStringList{"1955/42  01 02 10 19 20 48   So, 16.10.1955"});
    EXPECT_EQ(lies("Label333"), "Anzahl der Ausgewählte Ziehungen: 1");
    klicke("cmdClear");
    EXPECT_EQ(lies("Label333"), "Anzahl der Ausgewählte Ziehungen: 0");
    EXPECT_TRUE(zeilen("List12").isEmpty());
    setze("cmbMonat", "42");
    EXPECT_EQ(gewaehlt("Liste1"), "1,2");
    setze("cmbJahr", "1955");
    EXPECT_EQ(gewaehlt("Liste1"), "0,1,2");
    EXPECT_EQ(lies("Label333"), "Anzahl der Ausgewählte Ziehungen: 3");
    klicke("cmdClear");
    EXPECT_EQ(lies("cmbJahr"), "");
    setze("cmbJahr", "1956");
    EXPECT_EQ(lies("cmbJahr"), "1956");
    klicke("cmdAll");
    EXPECT_EQ(lies("cmbJahr"), "");
    EXPECT_EQ(zeilen("List12"), zeilen("Liste1"));
}

TEST_F(Zerlegungsbildschirm, ZerlegtEineZiehung)
{
    oeffneDrei();
    waehle("Liste1", {0});
    for (const Zerlegungsfeld& feld : kFelder) {
        klicke(feld.zerlegen);
        EXPECT_EQ(zeilen(feld.liste).size(), feld.jeZiehung);
        EXPECT_EQ(zeilen(feld.liste).filter(" 1 mal -> ").size(), feld.jeZiehung);
        EXPECT_EQ(lies(QString("lblAnzahl(%1)").arg(feld.k)), QString::number(feld.jeZiehung));
        EXPECT_EQ(herkunft(feld.k), "aus 1 Ziehungen");
        EXPECT_TRUE(lies("Bezeichnung2").startsWith("Suchzeit = "));
    }
    EXPECT_EQ(zeilen("Liste7").mid(0, 3), (QStringList{" 1 mal -> 1,10", " 1 mal -> 1,19", " 1 mal -> 1,2"}));
}

TEST_F(Zerlegungsbildschirm, OhneAuswahlKommtDieMeldungUndDieListeBleibt)
{
    oeffneDrei();
    for (const Zerlegungsfeld& feld : kFelder) {
        klicke(feld.zerlegen);
        EXPECT_EQ(boxen(), QStringList{kNochKeine});
    }
    waehle("Liste1", {0});
    klicke("Befehl11");
    klicke("cmdClear");
    klicke("Befehl11");
    EXPECT_EQ(boxen(), QStringList{kNochKeine});
    EXPECT_EQ(zeilen("Liste7").size(), 15);
    EXPECT_EQ(herkunft(2), "aus 1 Ziehungen (frühere Auswahl)");
}

TEST_F(Zerlegungsbildschirm, EineListeAusEinerFruehrenAuswahlSagtEs)
{
    oeffneDrei();
    waehle("Liste1", {0});
    klicke("Befehl11");
    waehle("Liste1", {0, 1});
    EXPECT_EQ(herkunft(2), "aus 1 Ziehungen (frühere Auswahl)");
    klicke("Befehl16");
    EXPECT_EQ(herkunft(3), "aus 2 Ziehungen");
    EXPECT_EQ(herkunft(2), "aus 1 Ziehungen (frühere Auswahl)");
    waehle("Liste1", {0});
    EXPECT_EQ(herkunft(2), "aus 1 Ziehungen");
    EXPECT_EQ(herkunft(3), "aus 2 Ziehungen (frühere Auswahl)");
}

TEST_F(Zerlegungsbildschirm, EinKlickZeigtDieZiehungenDerDamaligenAuswahl)
{
    oeffneDrei();
    waehle("Liste1", {0, 1});
    klicke("Befehl16");
    const QStringList dreier = zeilen("Liste8");
    const auto beide = dreier.indexOf(" 2 mal -> 1,10,19");
    ASSERT_GE(beide, 0);
    klicke("cmdClear");
    waehle("Liste8", {static_cast<int>(beide)});
    EXPECT_EQ(zeilen("Liste3"), (QStringList{"1955/41   01 02 10 19 20 49", "1955/42   01 02 10 19 20 48"}));
    EXPECT_EQ(zeilen("Liste8"), dreier);
}

TEST_F(Zerlegungsbildschirm, DieFuenferZeigenAuchIhreTipreihe)
{
    oeffneDrei();
    waehle("Liste1", {0, 1});
    klicke("Befehl1");
    const QStringList fuenfer = zeilen("Liste5");
    EXPECT_EQ(fuenfer.size(), 11);
    EXPECT_EQ(fuenfer.front(), " 1 mal -> 1,10,19,20,48");
    waehle("Liste5", {0});
    EXPECT_EQ(zeilen("Liste5"), fuenfer + QStringList{"Tipreihe 6  -> 01 02 10 19 20 48"});
    EXPECT_EQ(gewaehlt("Liste5"), "0");
    EXPECT_EQ(zeilen("Liste3"), QStringList{"1955/42   01 02 10 19 20 48"});
    waehle("Liste5", {11});
    EXPECT_EQ(zeilen("Liste3").size(), 1); // that line is no combination
    waehle("Liste5", {1});
    EXPECT_EQ(zeilen("Liste5").last(), "Tipreihe 6  -> 01 02 10 19 20 49");
    EXPECT_EQ(lies("lblAnzahl(5)"), "11");
    klicke("Befehl1");
    EXPECT_EQ(zeilen("Liste5"), fuenfer);
}

TEST_F(Zerlegungsbildschirm, DetailsNenntDieZiehungenAllerZeilen)
{
    oeffneDrei();
    klicke("Befehl13");
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    klicke("cmdAll");
    for (const Zerlegungsfeld& feld : kFelder) {
        klicke(feld.zerlegen);
        klicke(feld.details);
        EXPECT_EQ(zeilen("Liste3").filter("Kombination: ").size(), zeilen(feld.liste).size());
        EXPECT_EQ(zeilen("Liste3").filter("/").size(), 3 * feld.jeZiehung); // each draw once for each of its sets
    }
}

TEST_F(Zerlegungsbildschirm, DasClipboardHatZiehungenUndListen)
{
    oeffneDrei();
    buehne.zwischenablage.setze("vorher");
    klicke("cmdClip7");
    EXPECT_EQ(buehne.zwischenablage.text(), "vorher");
    waehle("Liste1", {2});
    for (const Zerlegungsfeld& feld : kFelder)
        klicke(feld.zerlegen);
    waehle("Liste5", {0});
    waehle("Liste1", {0, 1}); // is not what the lists were made of
    klicke("cmdClip7");
    const QStringList text = buehne.zwischenablage.text().split("\r\n");
    QStringList soll{"Die ausgewählten 1 Ziehungen:", "1956/42  03 04 05 06 07 08   So, 23.10.1955",
                     "Die enthaltenen 15 Zweierkombinationen:"};
    soll += zeilen("Liste7");
    soll += "Die enthaltenen 20 Dreierkombinationen:";
    soll += zeilen("Liste8");
    soll += "Die enthaltenen 15 Viererkombinationen:";
    soll += zeilen("Liste4");
    soll += "Die enthaltenen 6 Fünferkombinationen:";
    soll += zeilen("Liste5").mid(0, 6);
    soll += "";
    EXPECT_EQ(text, soll);
}

TEST_F(Zerlegungsbildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmFeiruben");
    klicke("cmdAll");
    klicke("Befehl11");
    EXPECT_EQ(boxen().last(), kNochKeine);
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
}

TEST_F(Zerlegungsbildschirm, EineAndereAuswahlMittenDrinGehoertNichtDazu)
{
    oeffneViele();
    bool gewaehlt = false;
    buehne.pumpe.beiZug = [&] {
        if (std::exchange(gewaehlt, true))
            return;
        waehle("Liste1", {2});
        klicke("Befehl11"); // does nothing while another one runs
        klicke("Befehl13");
    };
    klicke("Befehl16");
    buehne.pumpe.beiZug = {};
    if (!gewaehlt)
        GTEST_SKIP() << "done before the event loop had a turn";
    EXPECT_EQ(zeilen("List12").size(), 1);
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
    EXPECT_GT(zeilen("Liste8").size(), 5000);
    EXPECT_EQ(herkunft(3), "aus 30.000 Ziehungen (frühere Auswahl)");
    waehle("Liste8", {0});
    EXPECT_GT(zeilen("Liste3").size(), 1);
}

TEST_F(Zerlegungsbildschirm, SchliesstMittenDrin)
{
    oeffneViele();
    bool geschlossen = false;
    buehne.pumpe.beiZug = [&] {
        if (!std::exchange(geschlossen, true))
            schliesse();
    };
    klicke("Befehl16");
    buehne.pumpe.beiZug = {};
    if (!geschlossen)
        GTEST_SKIP() << "done before the event loop had a turn";
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmFeiruben"), nullptr);
}

} // namespace
