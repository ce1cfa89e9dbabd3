#include "engines/screens/frmZusammenFUENFW.h"
#include "engines/tests/Wiederholungsbuehne.h"
#include "shell/elements/Liste.h"

#include <QFile>
#include <QScrollBar>

namespace {

constexpr auto kStriche = "------------------------------------------------";
constexpr auto kBitte = "info|Tombrix|Bitte mindestens eine Spielart auswählen.";

class WiederholungssucheZusammen : public Wiederholungsbuehne {
protected:
    void oeffneKleine()
    {
        schreibe("SALOTTO.DAT", {"1986,51,15,25,27,30,42,48,00,0"});
        schreibe("MALOTTO.DAT", {"1986,23,15,25,27,30,42,48,00,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,02,27,30,48,49,00,0"});
        starte();
        oeffne("frmZusammenFÜNFW");
    }
};

TEST_F(WiederholungssucheZusammen, OeffnetMitAllenSpielen)
{
    oeffneKleine();
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(zustand(QString("chkArt(%1)").arg(i)).contains("checked=true"));
    EXPECT_EQ(lies("lblZ(0)"), "1  [1986/51]");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 3");
    EXPECT_EQ(lies("lblCaption"), "Nie gezogene Dreierkominationen");
    for (const char* fehlt : {"Liste1", "Kontroll1", "Befehl14", "Bezeichnung11", "Bezeichnung13"})
        EXPECT_FALSE(bedienung.text(fehlt).gelungen()) << fehlt;
}

TEST_F(WiederholungssucheZusammen, EineKombinationInZweiSpielenIstEineWiederholung)
{
    oeffneKleine();
    klicke("Befehl6");
    EXPECT_EQ(zeilen("Liste6"), QStringList{" 2 mal-> 15 25 27 30 42 48"});
    EXPECT_EQ(gewaehlt("Liste6"), "0");
    klicke("Befehl16");
    EXPECT_EQ(zeilen("Liste8").last(), "  3 mal ->  27 30 48");
    waehle("Liste8", {static_cast<int>(zeilen("Liste8").size()) - 1});
    EXPECT_EQ(zeilen("Liste3"),
              (QStringList{"Kombination:  27 30 48", kStriche, "1986/51  15 25 27 30 42 48   So, 09.10.1955",
                           "1986/23  15 25 27 30 42 48   Mi, 04.06.1986",
                           "1986/23  01 02 27 30 48 49   Mi, 04.06.1986 (B)", kStriche}));
    klicke("chkArt(1)");
    klicke("Befehl6");
    EXPECT_EQ(zeilen("Liste6"), QStringList{"Keine Sechserwiederholungen !"});
}

TEST_F(WiederholungssucheZusammen, FindetDasselbeWieDiePlaneSuche)
{
    starte();
    oeffne("frmZusammenFÜNFW");
    for (const Wiederholungsfeld& feld : kWiederholungsfelder) {
        SCOPED_TRACE(feld.k);
        klicke(feld.suchen);
        QStringList soll = sollzeilen(feld.k, kAlleSpielarten);
        if (feld.k == 6 && soll.isEmpty())
            soll << "Keine Sechserwiederholungen !";
        EXPECT_EQ(zeilen(feld.liste), soll);
        EXPECT_EQ(titel(), "Fertig !");
        EXPECT_TRUE(bedienbar(feld.details));
    }
}

TEST_F(WiederholungssucheZusammen, OhneSpielartKommtEineBitte)
{
    oeffneKleine();
    klicke("Befehl11");
    const QStringList vorher = zeilen("Liste7");
    const QString zusammenfassung = lies("txtH");
    for (int i = 0; i < 3; ++i)
        klicke(QString("chkArt(%1)").arg(i));
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    EXPECT_EQ(lies("lblZ(2)"), "-");
    for (const char* knopf : {"Befehl11", "Befehl16", "Befehl12", "Befehl1", "Befehl6", "cmdNGD"}) {
        klicke(knopf);
        EXPECT_EQ(boxen(), QStringList{kBitte}) << knopf;
    }
    EXPECT_EQ(zeilen("Liste7"), vorher);
    EXPECT_EQ(lies("txtH"), zusammenfassung);
    EXPECT_TRUE(zeilen("lstNGD").isEmpty());
}

TEST_F(WiederholungssucheZusammen, OhneEineDateiZaehltKeineZiehung)
{
    starte();
    QFile::remove(ordner.filePath("MBLOTTO.DAT"));
    oeffne("frmZusammenFÜNFW");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 0");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(lies(QString("lblZ(%1)").arg(i)), "-");
    klicke("Befehl11");
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
    EXPECT_TRUE(lies("txtH").contains("noch nie gezogene: 1176\n"));
    klicke("Befehl13");
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    klicke("cmdNGD");
    EXPECT_EQ(lies("lblNGD"), "18424");
    klicke("chkArt(2)");
    klicke("Befehl11");
    EXPECT_EQ(zeilen("Liste7"), sollzeilen(2, kAlleSpielarten));
    EXPECT_FALSE(zeilen("Liste7").isEmpty());
}

TEST_F(WiederholungssucheZusammen, LaesstSichNichtAnhalten)
{
    oeffneKleine();
    buehne.umgebung.BerichtAbbruch = true;
    klicke("Befehl11");
    buehne.umgebung.BerichtAbbruch = false;
    EXPECT_EQ(titel(), "Fertig !");
}

TEST_F(WiederholungssucheZusammen, DieSpieleBleibenWaehrendDerSuche)
{
    oeffneKleine();
    klickeUnd("Befehl11", [this] {
        klicke("chkArt(0)");
        klicke("cmdNGD");
    });
    EXPECT_TRUE(zustand("chkArt(0)").contains("checked=true"));
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 3);
    EXPECT_EQ(zeilen("Liste7").size(), 15);
    EXPECT_TRUE(zeilen("lstNGD").isEmpty());
}

TEST_F(WiederholungssucheZusammen, SchliesstInDerSuche)
{
    starte();
    oeffne("frmZusammenFÜNFW");
    klickeUnd("Befehl16", [this] { schliesse(); });
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmZusammenFÜNFW"), nullptr);
}

TEST_F(WiederholungssucheZusammen, DasArchivBleibtBeimSchliessen)
{
    oeffneKleine();
    schliesse();
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 3);
}

TEST_F(WiederholungssucheZusammen, NenntDieSpieleInDenBerichten)
{
    oeffneKleine();
    klicke("Befehl6");
    klicke("Befehl10");
    EXPECT_EQ(buehne.zwischenablage.text(),
              "Sechserwiederholungen(Samstagslotto - Mittwochslotto - Mittwochslotto(B)):\r\n\r\n"
              " 2 mal-> 15 25 27 30 42 48\r\n\r\n\r\n");
    const QString bericht = buehne.zwischenablage.text();
    klicke("Befehl8");
    klicke("chkArt(1)");
    klicke("chkArt(2)");
    klicke("Befehl10");
    EXPECT_EQ(buehne.zwischenablage.text(), bericht); // the games of the search, not those that are ticked since
    klicke("Befehl18");
    EXPECT_TRUE(buehne.zwischenablage.text().startsWith(
        "Die Sechserwiederholungen im Detail (Samstagslotto - Mittwochslotto - Mittwochslotto(B)):\r\n\r\n"
        "Kombination: 15 25 27 30 42 48\r\n"));
    klicke("Befehl6");
    klicke("Befehl10");
    EXPECT_TRUE(buehne.zwischenablage.text().startsWith("Sechserwiederholungen(Samstagslotto - ):\r\n"));
    buehne.zwischenablage.setze("vorher");
    klicke("Befehl19");
    EXPECT_EQ(buehne.zwischenablage.text(), "vorher");
}

TEST_F(WiederholungssucheZusammen, DieDetailsBleibenWennDieSpieleWechseln)
{
    oeffneKleine();
    klicke("Befehl6");
    klicke("Befehl8");
    const QStringList vorher = zeilen("Liste3");
    klicke("chkArt(0)");
    EXPECT_EQ(zeilen("Liste3"), vorher);
}

TEST_F(WiederholungssucheZusammen, DieDetailsSindDieDerDurchsuchtenZiehungen)
{
    oeffneKleine();
    klicke("Befehl6");
    klicke("chkArt(0)");
    klicke("chkArt(2)");
    const QStringList soll{"Kombination: 15 25 27 30 42 48", kStriche, "1986/51  15 25 27 30 42 48   So, 09.10.1955",
                           "1986/23  15 25 27 30 42 48   Mi, 04.06.1986", kStriche};
    waehle("Liste6", {0});
    EXPECT_EQ(zeilen("Liste3"), soll);
    klicke("Befehl8");
    EXPECT_EQ(zeilen("Liste3"), soll);
    klicke("Befehl11"); // the other list is that of another search
    klicke("Befehl8");
    EXPECT_EQ(zeilen("Liste3"), soll);
}

TEST_F(WiederholungssucheZusammen, DerBerichtDerNieGezogenenNenntDieDurchsuchtenSpiele)
{
    oeffneKleine();
    klicke("cmdNGD");
    klicke("chkArt(0)");
    klicke("cmdClipNGD");
    EXPECT_TRUE(buehne.zwischenablage.text().startsWith(
        "Nie gezogene Dreierkombinationen (Samstagslotto - Mittwochslotto - Mittwochslotto(B)):\r\n"));
}

TEST_F(WiederholungssucheZusammen, DieHaeufigstenKommenInSicht)
{
    starte();
    oeffne("frmZusammenFÜNFW");
    for (const Wiederholungsfeld& feld : kWiederholungsfelder) {
        klicke(feld.suchen);
        const QScrollBar& rolle = *schirm("frmZusammenFÜNFW").findChild<Liste*>(feld.liste)->verticalScrollBar();
        EXPECT_EQ(rolle.value(), feld.k == 6 ? 0 : rolle.maximum()) << feld.k;
    }
}

TEST_F(WiederholungssucheZusammen, SuchtNieGezogeneDreier)
{
    oeffneKleine();
    klicke("chkArt(1)");
    klicke("chkArt(2)");
    klicke("cmdClipNGD");
    EXPECT_EQ(buehne.zwischenablage.text(), "Anzahl der nie gezogenen Dreierkombinationen: 0\r\n\r\n");
    klicke("cmdNGD");
    EXPECT_EQ(lies("lblNGD"), "18404");
    EXPECT_EQ(zeilen("lstNGD").size(), 18404);
    EXPECT_EQ(zeilen("lstNGD").first(), "   01 02 03");
    EXPECT_FALSE(zeilen("lstNGD").contains("   15 25 27"));
    EXPECT_TRUE(lies("Bezeichnung2").startsWith("Suchzeit = "));
    klicke("cmdClipNGD");
    const QString bericht = buehne.zwischenablage.text();
    EXPECT_TRUE(bericht.startsWith("Nie gezogene Dreierkombinationen (Samstagslotto - ):\r\n\r\n   01 02 03\r\n"));
    EXPECT_TRUE(bericht.endsWith("   47 48 49\r\n\r\n\r\nAnzahl der nie gezogenen Dreierkombinationen: 18404\r\n\r\n"));
}

TEST_F(WiederholungssucheZusammen, ErklaertSichInSechsZeilen)
{
    starte();
    oeffne("frmZusammenFÜNFW");
    klicke("Befehl20");
    QStringList info = zeilen("Liste2");
    EXPECT_EQ(info.removeAll(""), 1);
    EXPECT_EQ(info.size(), 6);
    EXPECT_EQ(info.last(), "angezeigt.");
}

} // namespace
