#include "engines/screens/frmFUENFW.h"
#include "engines/tests/Wiederholungsbuehne.h"

// The search as a run: what is locked meanwhile, and how it ends before its time.

namespace {

TEST_F(Wiederholungssuche, SperrtKnoepfeWaehrendDerSuche)
{
    starte();
    oeffne("frmFÜNFW");
    klickeUnd("Befehl11", [this] {
        EXPECT_TRUE(schirm("frmFÜNFW").laeuft());
        for (const char* gesperrt : {"Befehl11", "Befehl13", "Befehl15", "Befehl16"})
            EXPECT_FALSE(bedienbar(gesperrt)) << gesperrt;
        for (const char* frei : {"Befehl12", "Befehl1", "Befehl6", "Befehl17", "Befehl19", "Befehl14"})
            EXPECT_TRUE(bedienbar(frei)) << frei;
        EXPECT_EQ(lies("Bezeichnung11"), "");
        EXPECT_EQ(lies("Bezeichnung2"), "");
        EXPECT_EQ(lies("txtH"), kLeereZusammenfassung);
        EXPECT_EQ(titel(), "       ***************   BITTE WARTEN, SUCHE LÄUFT !  ***************");
    });
    for (const char* frei : {"Befehl11", "Befehl13", "Befehl15", "Befehl16"})
        EXPECT_TRUE(bedienbar(frei)) << frei;
    klickeUnd("Befehl12", [this] {
        for (const char* gesperrt : {"Befehl12", "Befehl1", "Befehl6"})
            EXPECT_FALSE(bedienbar(gesperrt)) << gesperrt;
        EXPECT_TRUE(bedienbar("Befehl11"));
    });
    for (const char* frei : {"Befehl12", "Befehl5", "Befehl4", "Befehl1", "Befehl6"})
        EXPECT_TRUE(bedienbar(frei)) << frei;
    EXPECT_FALSE(bedienbar("Befehl7"));
}

TEST_F(Wiederholungssuche, EineZweiteSucheWartetBisDieErsteFertigIst)
{
    starte();
    oeffne("frmFÜNFW");
    klicke("Befehl16");
    klickeUnd("Befehl11", [this] {
        klicke("Befehl12");
        klicke("Befehl17");
        schirm("frmFÜNFW").suche(2);
        waehle("Liste8", {0});
    });
    EXPECT_TRUE(zeilen("Liste4").isEmpty());
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    EXPECT_EQ(zeilen("Liste7"), sollzeilen(2, kEineSpielart));
    EXPECT_EQ(titel(), "Fertig !");
}

TEST_F(Wiederholungssuche, HaeltVorDerErstenZiehungAn)
{
    oeffneDrei();
    klicke("Befehl11");
    klickeUnd("Befehl11", [this] { klicke("Befehl14"); });
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
    EXPECT_EQ(lies("Bezeichnung11"), "0");
    EXPECT_EQ(lies("txtH"), kLeereZusammenfassung);
    EXPECT_EQ(titel(), "       ***************   BITTE WARTEN, SUCHE LÄUFT !  ***************");
    EXPECT_TRUE(lies("Bezeichnung2").startsWith("Suchzeit = "));
    klicke("Befehl11");
    EXPECT_EQ(zeilen("Liste7").size(), 1);
    EXPECT_EQ(titel(), "Fertig !");
}

TEST_F(Wiederholungssuche, HaeltVorDemZaehlenAn)
{
    oeffneDrei();
    int zuege = 0;
    buehne.pumpe.beiZug = [&] {
        if (++zuege == 2) {
            EXPECT_EQ(titel(), "Bitte warten, die Zweierkombinationen werden verglichen, sortiert und gezählt ...");
            klicke("Befehl14");
        }
    };
    klicke("Befehl11");
    buehne.pumpe.beiZug = nullptr;
    EXPECT_EQ(zuege, 2);
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
    EXPECT_EQ(lies("txtH"), kLeereZusammenfassung);
    EXPECT_EQ(titel(), "Bitte warten, die Zweierkombinationen werden verglichen, sortiert und gezählt ...");
}

TEST_F(Wiederholungssuche, EinAltesAnhaltenZaehltNicht)
{
    oeffneDrei();
    klicke("Befehl14");
    EXPECT_TRUE(bedienbar("Befehl2"));
    klicke("Befehl11");
    EXPECT_EQ(titel(), "Fertig !");
}

TEST_F(Wiederholungssuche, DerBerichtHaeltSieAn)
{
    oeffneDrei();
    buehne.umgebung.BerichtAbbruch = true;
    klicke("Befehl11");
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
    EXPECT_EQ(lies("txtH"), kLeereZusammenfassung);
    buehne.umgebung.BerichtAbbruch = false;
    klicke("Befehl11");
    EXPECT_EQ(zeilen("Liste7").size(), 1);
}

TEST_F(Wiederholungssuche, LaeuftAlsWerkzeugOhneGezeigtZuWerden)
{
    schreibe("SALOTTO.DAT", {"1955,41,15,25,27,30,42,48,00,0", "1955,42,15,25,27,30,42,48,00,0"});
    starte();
    auto& werkzeug = buehne.bildschirme.lade<frmFÜNFW>("frmFÜNFW");
    EXPECT_EQ(werkzeug.ergebnis(5).Wiederholungslaenge, 0);
    werkzeug.suche(5);
    werkzeug.suche(6);
    EXPECT_FALSE(werkzeug.isVisible());
    EXPECT_EQ(werkzeug.ergebnis(5).AnzahlMehrfach, 6);
    EXPECT_EQ(werkzeug.ergebniszeilen(6), std::vector<std::string>{" 2 mal-> 15 25 27 30 42 48"});
    werkzeug.schliesse();
}

TEST_F(Wiederholungssuche, SchliesstInDerSuche)
{
    starte();
    oeffne("frmFÜNFW");
    klickeUnd("Befehl12", [this] { schliesse(); });
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmFÜNFW"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Wiederholungssuche, DasEndeDesProgrammsHaeltSieAn)
{
    oeffneDrei();
    klickeUnd("Befehl11", [this] { buehne.pumpe.beendet = true; });
    buehne.pumpe.beendet = false;
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
}

TEST_F(Wiederholungssuche, DieAuswahlGehtDieZiehungenHinab)
{
    starte();
    oeffne("frmFÜNFW");
    EXPECT_EQ(gewaehlt("Liste1"), "");
    klickeUnd("Befehl11", [this] { EXPECT_EQ(gewaehlt("Liste1"), "0"); });
    EXPECT_EQ(gewaehlt("Liste1"), QString::number(buehne.archiv.AnzahlZiehungen - 1));

    waehle("Liste1", {5});
    klicke("Kontroll1");
    EXPECT_EQ(lies("Kontroll1"), "aus");
    klicke("Befehl11");
    EXPECT_EQ(gewaehlt("Liste1"), "5");
    klicke("Kontroll1");
    EXPECT_EQ(lies("Kontroll1"), "ein");
}

} // namespace
