#include "shell/elements/Bildschirm.h"
#include "statistics/tests/Statistiktest.h"

#include <QFileInfo>

#include <array>
#include <fstream>
#include <sstream>

namespace {

/// The counts of one file, counted from its text alone.
std::array<int, 50> zaehleText(const std::string& datei, int von, int bis, int letzte, bool gewinnzahlen, bool zz)
{
    std::array<int, 50> anzahl{};
    std::ifstream strom(datei);
    std::string zeile;
    for (int nr = 1; nr <= letzte && std::getline(strom, zeile); ++nr) {
        const int jahr = std::stoi(zeile.substr(0, 4));
        if (jahr < von || jahr > bis)
            continue;
        for (std::size_t i = 0; i < 7; ++i) {
            const int zahl = std::stoi(zeile.substr(8 + 3 * i, 2));
            if ((i < 6 ? gewinnzahlen : zz) && zahl > 0)
                ++anzahl[static_cast<std::size_t>(zahl)];
        }
    }
    return anzahl;
}

class Haeufigkeitsbildschirm : public Statistiktest {
protected:
    static constexpr int kAlle = 100000;

    void pruefe(const std::array<int, 50>& erwartet)
    {
        for (int zahl = 1; zahl <= 49; ++zahl)
            EXPECT_EQ(lies(QString("bezeichnung114(%1)").arg(zahl)).toInt(), erwartet[static_cast<std::size_t>(zahl)])
                << zahl;
    }
    std::string datei(const char* name) const { return ordner.filePath(name).toStdString(); }
};

TEST_F(Haeufigkeitsbildschirm, OeffnetMitDemGanzenArchiv)
{
    starte();
    oeffne("frmSTAT1");
    EXPECT_EQ(titel(), "Häufigkeitsverteilung der einzelnen Gewinnzahlen");
    EXPECT_EQ(lies("Text1"), "1955");
    EXPECT_EQ(lies("Text2"), "2026");
    EXPECT_EQ(lies("Text3"), QString::number(buehne.archiv.AnzahlZiehungen));
    EXPECT_EQ(lies("Bezeichnung7"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung6"), QString("Gespeicherte Ziehungen: 1955/41 bis: 2026/46    Anzahl der Ziehungen: %1")
                                        .arg(buehne.archiv.AnzahlZiehungen));
    EXPECT_EQ(bedienung.eintraege("cmbVon").zeilen.size(), 72);
    EXPECT_EQ(bedienung.eintraege("cmbT3").zeilen.first(), "   1");
    EXPECT_EQ(bedienung.eintraege("cmbT3").zeilen.size(), buehne.archiv.AnzahlZiehungen);
    EXPECT_FALSE(sichtbar("Befehl5"));
    EXPECT_FALSE(bedienbar("Befehl6"));
}

TEST_F(Haeufigkeitsbildschirm, ZaehltJedenModusWieDerText)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl2");
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1955, 2026, kAlle, true, false));
    EXPECT_EQ(titel(), QString("Samstagslotto: Auswertung von 1955 bis 2026 ; %1 Ziehungen; ohne Zusatzzahl")
                           .arg(buehne.archiv.AnzahlZiehungen));
    EXPECT_EQ(lies("Bezeichnung58").toInt(), buehne.archiv.AnzahlZiehungen);
    klicke("Befehl3");
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1955, 2026, kAlle, true, true));
    EXPECT_TRUE(titel().endsWith("; mit Zusatzzahl"));
    klicke("Befehl4");
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1955, 2026, kAlle, false, true));
    EXPECT_TRUE(titel().endsWith("; nur Zusatzzahl"));
    EXPECT_TRUE(sichtbar("Befehl5"));
    EXPECT_TRUE(bedienbar("Befehl6"));
}

TEST_F(Haeufigkeitsbildschirm, VonGleichBisWertetDasEineJahrAus)
{
    starte();
    oeffne("frmSTAT1");
    setze("cmbVon", "1999");
    setze("cmbBis", "1999");
    EXPECT_EQ(lies("Text1"), "1999");
    klicke("Befehl2");
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1999, 1999, kAlle, true, false));
    EXPECT_EQ(lies("Bezeichnung58"), "52");
}

TEST_F(Haeufigkeitsbildschirm, NachZiehungBleibtDieGraphikVerborgen)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl9");
    EXPECT_TRUE(sichtbar("Rahmen2"));
    EXPECT_FALSE(sichtbar("Rahmen1"));
    setze("Text3", "100");
    klicke("Befehl2");
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1955, 2026, 100, true, false));
    EXPECT_EQ(titel(), "Samstagslotto: Auswertung von Ziehung 1 bis Ziehung 100 , ohne Zusatzzahl");
    EXPECT_FALSE(sichtbar("Befehl5"));
    klicke("Befehl10");
    EXPECT_TRUE(sichtbar("Rahmen1"));
    klicke("Befehl2");
    EXPECT_TRUE(sichtbar("Befehl5"));
}

TEST_F(Haeufigkeitsbildschirm, EineZuHoheZiehungWirdImFeldBerichtigt)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl9");
    setze("Text3", "99999999999");
    klicke("Befehl2");
    EXPECT_EQ(lies("Text3"), QString::number(buehne.archiv.AnzahlZiehungen));
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1955, 2026, kAlle, true, false));
}

TEST_F(Haeufigkeitsbildschirm, WeistFalscheJahreZurueck)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl2");
    const QString vorher = lies("bezeichnung114(7)");
    setze("Text1", "19");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !"});
    setze("Text1", "2001");
    setze("Text2", "2000");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|\"Bis\" muss grösser \"Von\" sein!"});
    setze("Text2", "200");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !"});
    setze("Text2", "abcd");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !"});
    EXPECT_EQ(lies("bezeichnung114(7)"), vorher);
}

TEST_F(Haeufigkeitsbildschirm, NurZusatzzahl1955IstAllesNullUndCyan)
{
    starte();
    oeffne("frmSTAT1");
    setze("Text2", "1955");
    klicke("Befehl4");
    pruefe({});
    for (int zahl = 1; zahl <= 49; ++zahl)
        EXPECT_TRUE(zustand(QString("bezeichnung114(%1)").arg(zahl)).contains("back=#00ffff")) << zahl;
    EXPECT_TRUE(lies("Bezeichnung3").contains("49"));
    EXPECT_TRUE(lies("Bezeichnung4").contains("49"));
}

TEST_F(Haeufigkeitsbildschirm, MarkiertAlleHoechstenRotUndAlleNiedrigstenCyan)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,04,05,07,00,0"});
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl2");
    for (const int zahl : {1, 2, 3, 4, 5})
        EXPECT_TRUE(zustand(QString("bezeichnung114(%1)").arg(zahl)).contains("back=#ff0000")) << zahl;
    for (const int zahl : {6, 7})
        EXPECT_TRUE(zustand(QString("bezeichnung114(%1)").arg(zahl)).contains("back=#ffffff")) << zahl;
    for (const int zahl : {8, 30, 49})
        EXPECT_TRUE(zustand(QString("bezeichnung114(%1)").arg(zahl)).contains("back=#00ffff")) << zahl;
    EXPECT_TRUE(lies("Bezeichnung3").contains("5 (2"));
}

TEST_F(Haeufigkeitsbildschirm, AmSamstagGibtEsKeineBZiehung)
{
    starte();
    oeffne("frmSTAT1");
    EXPECT_FALSE(sichtbar("Befehl8"));
}

TEST_F(Haeufigkeitsbildschirm, AUndBZusammenEndetAufMittwochA)
{
    for (const char* option : {"Option2", "Option3"}) {
        starte();
        klicke(option);
        oeffne("frmSTAT1");
        setze("Text1", "1986");
        setze("Text2", "2000");
        klicke("Befehl8");
        auto erwartet = zaehleText(datei("MALOTTO.DAT"), 1986, 2000, kAlle, true, false);
        const auto mehr = zaehleText(datei("MBLOTTO.DAT"), 1986, 2000, kAlle, true, false);
        for (std::size_t zahl = 1; zahl <= 49; ++zahl)
            erwartet[zahl] += mehr[zahl];
        pruefe(erwartet);
        EXPECT_EQ(lies("Bezeichnung7"), "MITTWOCHSLOTTO (A+B)");
        EXPECT_EQ(titel(), QString("Mittwochslotto (A+B): Auswertung von 1986 bis 2000 ; %1 Ziehungen ohne Zusatzzahl")
                               .arg(lies("Bezeichnung58")));
        EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
        EXPECT_GT(buehne.archiv.AnzahlZiehungen, 757);
        EXPECT_EQ(lies("Text2"), "2000");
        schliesse();
        EXPECT_TRUE(zustand("Option2").contains("checked=true"));
    }
}

TEST_F(Haeufigkeitsbildschirm, AUndBNachZiehungZaehltJedeDateiBisDahin)
{
    starte();
    klicke("Option2");
    oeffne("frmSTAT1");
    klicke("Befehl9");
    setze("Text3", "1000");
    klicke("Befehl8");
    auto erwartet = zaehleText(datei("MALOTTO.DAT"), 1986, 2026, 1000, true, false);
    const auto mehr = zaehleText(datei("MBLOTTO.DAT"), 1986, 2026, 1000, true, false);
    for (std::size_t zahl = 1; zahl <= 49; ++zahl)
        erwartet[zahl] += mehr[zahl];
    pruefe(erwartet);
    EXPECT_EQ(titel(), "Mittwochslotto (A+B): Auswertung von Ziehung 1 bis Ziehung 1000 ,ohne Zusatzzahl");
    EXPECT_EQ(lies("Text3"), "1000");
}

TEST_F(Haeufigkeitsbildschirm, NachAUndBVonBAusSchraenkenKeineVerborgenenJahreEin)
{
    starte();
    klicke("Option3");
    oeffne("frmSTAT1");
    klicke("Befehl9");
    klicke("Befehl8");
    EXPECT_EQ(lies("Text3"), "757");
    setze("Text3", "1000");
    klicke("Befehl2");
    pruefe(zaehleText(datei("MALOTTO.DAT"), 1986, 2026, 1000, true, false));
    EXPECT_EQ(lies("Bezeichnung58"), "1000");
    EXPECT_EQ(titel(), "Mittwochslotto : Auswertung von Ziehung 1 bis Ziehung 1000 , ohne Zusatzzahl");
}

TEST_F(Haeufigkeitsbildschirm, EineAuswertungFolgtDemArchivDasDannGeladenIst)
{
    starte();
    klicke("Option3");
    oeffne("frmSTAT1");
    klicke("Befehl9");
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    setze("Text3", "1000");
    klicke("Befehl2");
    pruefe(zaehleText(datei("MALOTTO.DAT"), 1986, 2026, 1000, true, false));
    EXPECT_EQ(lies("Bezeichnung7"), "MITTWOCHSLOTTO ");
    EXPECT_TRUE(lies("Bezeichnung6").endsWith(QString::number(buehne.archiv.AnzahlZiehungen)));
    buehne.umgebung.menue->waehleSpielart(Samstagslotto);
    klicke("Befehl2");
    pruefe(zaehleText(datei("SALOTTO.DAT"), 1955, 2026, 1000, true, false));
    EXPECT_FALSE(sichtbar("Befehl8"));
}

TEST_F(Haeufigkeitsbildschirm, DerKnopfDesGezeigtenErgebnissesSiehtSoAus)
{
    const QStringList knoepfe{"Befehl2", "Befehl3", "Befehl4", "Befehl8"};
    starte();
    klicke("Option2");
    oeffne("frmSTAT1");
    EXPECT_EQ(gelaufene(knoepfe), QStringList());
    for (const QString& knopf : knoepfe) {
        klicke(knopf);
        EXPECT_EQ(gelaufene(knoepfe), QStringList{knopf});
    }
    setze("Text1", "19");
    klicke("Befehl3");
    EXPECT_EQ(gelaufene(knoepfe), QStringList{"Befehl8"});
}

TEST_F(Haeufigkeitsbildschirm, EnterImFeldUndF5DrueckenDenStartknopfVonZuletzt)
{
    starte();
    oeffne("frmSTAT1");
    tippe("Text1", "Return");
    EXPECT_TRUE(titel().endsWith("; ohne Zusatzzahl"));
    klicke("Befehl4");
    setze("Text2", "2000");
    tippe("Text2", "Return");
    EXPECT_TRUE(titel().startsWith("Samstagslotto: Auswertung von 1955 bis 2000"));
    EXPECT_TRUE(titel().endsWith("; nur Zusatzzahl"));
    klicke("Befehl9");
    setze("Text3", "50");
    tippe("Text3", "Return");
    EXPECT_EQ(titel(), "Samstagslotto: Auswertung von Ziehung 1 bis Ziehung 50 , nur Zusatzzahl");
    klicke("Befehl3");
    setze("Text3", "60");
    tippe("frmSTAT1", "F5");
    EXPECT_EQ(titel(), "Samstagslotto: Auswertung von Ziehung 1 bis Ziehung 60 , mit Zusatzzahl");
}

TEST_F(Haeufigkeitsbildschirm, WennDasErgebnisKommtVerschiebtSichNichts)
{
    starte();
    for (const char* option : {"Option1", "Option2"}) {
        klicke(option);
        oeffne("frmSTAT1");
        const auto plaetze = [this] {
            QList<QRect> alle;
            for (const auto* feld : buehne.bildschirme.geladen("frmSTAT1")->findChildren<QWidget*>())
                if (feld->isVisible() && feld->objectName() != "Befehl5")
                    alle << feld->geometry();
            return alle;
        };
        const QList<QRect> vorher = plaetze();
        klicke("Befehl2");
        klicke("Befehl4");
        EXPECT_EQ(plaetze(), vorher);
        schliesse();
    }
}

TEST_F(Haeufigkeitsbildschirm, DrucktAufDenStandarddrucker)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl2");
    const QString pdf = ordner.filePath("druck.pdf");
    buehne.drucker.setzeDatei(pdf);
    klicke("Befehl6");
    EXPECT_GT(QFileInfo(pdf).size(), 1000);
}

TEST_F(Haeufigkeitsbildschirm, OhneDruckerSagtEsDerTitel)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl2");
    klicke("Befehl6");
    EXPECT_EQ(titel(), "Es ist kein Standarddrucker eingerichtet.");
}

TEST_F(Haeufigkeitsbildschirm, ZeigtHinweiseImTitel)
{
    starte();
    oeffne("frmSTAT1");
    ueberfahre("Befehl9");
    EXPECT_EQ(titel(), "Ermöglicht die Auswertung bis zu einer bestimmten Ziehung.");
    ueberfahre("Text1");
    EXPECT_EQ(titel(), "Jahreszahl nicht kleiner 1955 wählen.");
    ueberfahre("frmSTAT1");
    EXPECT_EQ(titel(), "Häufigkeitsverteilung der einzelnen Gewinnzahlen");
    klicke("Befehl2");
    ueberfahre("frmSTAT1");
    EXPECT_EQ(titel(), "Häufigkeitsverteilung der einzelnen Zahlen");
}

TEST_F(Haeufigkeitsbildschirm, ErklaertSich)
{
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl7");
    EXPECT_TRUE(sichtbar("Infotafel"));
    EXPECT_TRUE(lies("InfotafelText").contains("Mittwochslotto (A+B)"));
    klicke("InfotafelOk");
    EXPECT_FALSE(sichtbar("Infotafel"));
    klicke("Befehl7");
    tippe("InfotafelOk", "Esc");
    EXPECT_FALSE(sichtbar("Infotafel"));
    EXPECT_TRUE(buehne.bildschirme.geladen("frmSTAT1")->isVisible());
    klicke("Befehl11");
    EXPECT_TRUE(boxen().value(0).startsWith("info|Lotto-Info|"));
}

TEST_F(Haeufigkeitsbildschirm, LeeresArchivUndEineZiehung)
{
    schreibe("SALOTTO.DAT", {});
    schreibe("MALOTTO.DAT", {"1986,23,01,02,03,04,05,06,07,0"});
    starte();
    oeffne("frmSTAT1");
    klicke("Befehl2");
    EXPECT_EQ(boxen().size(), 1);
    schliesse();
    klicke("Option2");
    oeffne("frmSTAT1");
    klicke("Befehl3");
    EXPECT_EQ(lies("bezeichnung114(7)"), "1");
    EXPECT_EQ(lies("Bezeichnung58"), "1");
}

TEST_F(Haeufigkeitsbildschirm, AlsZaehlwerkKehrtErNichtZumMenueZurueck)
{
    starte();
    oeffne("frmSTAT1");
    buehne.umgebung.VorschlagLaeuft = true;
    schliesse();
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    EXPECT_EQ(buehne.bildschirme.geladen("frmSTAT1"), nullptr);
}

} // namespace
