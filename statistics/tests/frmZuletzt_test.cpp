#include "archive/logic/Ziehungskalender.h"
#include "statistics/screens/frmZuletzt.h"
#include "statistics/tests/Statistiktest.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <fstream>

namespace {

struct Datei {
    std::vector<std::string> zeilen;

    explicit Datei(const std::string& pfad)
    {
        std::ifstream strom(pfad);
        for (std::string zeile; std::getline(strom, zeile);)
            zeilen.push_back(zeile);
    }
    int anzahl() const { return static_cast<int>(zeilen.size()); }

    /// The last record from `von` to `bis` with each number, from the text alone; 0 for none.
    std::array<int, 50> letzte(int von, int bis, bool gewinnzahlen, bool zz) const
    {
        std::array<int, 50> nummern{};
        for (int nr = von; nr <= std::min(bis, anzahl()); ++nr) {
            const std::string& zeile = zeilen[static_cast<std::size_t>(nr - 1)];
            for (std::size_t i = 0; i < 7; ++i)
                if (i < 6 ? gewinnzahlen : zz)
                    nummern[std::stoul(zeile.substr(8 + 3 * i, 2))] = nr;
        }
        nummern[0] = 0;
        return nummern;
    }
    QString woche(int nr) const
    {
        if (nr == 0)
            return "0000/00";
        const std::string& zeile = zeilen[static_cast<std::size_t>(nr - 1)];
        return QString::fromStdString(zeile.substr(0, 4) + "/" + zeile.substr(5, 2));
    }
};

class Zuletztbildschirm : public Statistiktest {
protected:
    Datei datei(const char* name) const { return Datei(ordner.filePath(name).toStdString()); }
    QString zelle(int zahl) { return lies(QString("Bezeichnung1(%1)").arg(zahl)); }
    QString farbe(int zahl)
    {
        return zustand(QString("Bezeichnung1(%1)").arg(zahl)).section("back=", 1).section(' ', 0, 0);
    }
    QStringList zeilen(const char* liste) { return bedienung.zeilen(liste, 0, 1000).zeilen; }
    int anzahl() const { return buehne.archiv.AnzahlZiehungen; }
    const ZuletztAuswertung& ergebnis() const
    {
        return dynamic_cast<const frmZuletzt&>(*buehne.bildschirme.geladen("frmZuletzt")).ergebnis();
    }

    void pruefeZellen(const Datei& text, const std::array<int, 50>& nummern)
    {
        for (int zahl = 1; zahl <= 49; ++zahl) {
            const int nr = nummern[static_cast<std::size_t>(zahl)];
            EXPECT_EQ(zelle(zahl), text.woche(nr)) << zahl;
            EXPECT_EQ(ergebnis().fuer(zahl).ZiehungsNr, nr) << zahl;
        }
    }
};

TEST_F(Zuletztbildschirm, OeffnetMitDemGanzenArchiv)
{
    starte();
    oeffne("frmZuletzt");
    EXPECT_EQ(titel(), "Wann wurden die Zahlen zuletzt gezogen ?");
    EXPECT_EQ(lies("Bezeichnung5"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung2"),
              QString("Gespeicherte Ziehungen von: 1955/41 bis: 2026/46, %1 Ziehungen").arg(anzahl()));
    EXPECT_EQ(lies("Text1"), QString::number(anzahl()));
    const QStringList auswahl = bedienung.eintraege("cmbZ").zeilen;
    EXPECT_EQ(auswahl.size(), anzahl());
    EXPECT_EQ(auswahl.first(), "1955/41 ZNr: 0001");
    EXPECT_EQ(auswahl.last(), QString("2026/46 ZNr: %1").arg(anzahl()));
    EXPECT_FALSE(sichtbar("Befehl1"));
    EXPECT_FALSE(bedienbar("Befehl3"));
    EXPECT_FALSE(bedienbar("Befehl4"));
    EXPECT_EQ(zelle(1), "");
    EXPECT_EQ(lies("Bezeichnung3"), "max");
    EXPECT_EQ(lies("Bezeichnung4"), "min");
}

TEST_F(Zuletztbildschirm, ZeigtJedenModusWieDerText)
{
    starte();
    oeffne("frmZuletzt");
    const Datei text = datei("SALOTTO.DAT");
    klicke("Befehl5");
    pruefeZellen(text, text.letzte(2000, anzahl(), true, false));
    EXPECT_EQ(titel(), "Wann wurden die Zahlen zuletzt gezogen ?");
    EXPECT_TRUE(bedienbar("Befehl3"));
    EXPECT_TRUE(bedienbar("Befehl4"));
    klicke("Befehl6");
    pruefeZellen(text, text.letzte(2000, anzahl(), true, true));
    klicke("Befehl7");
    pruefeZellen(text, text.letzte(2000, anzahl(), false, true));
    EXPECT_EQ(ergebnis().ZaehlModus, ZZModus::Nur);
}

TEST_F(Zuletztbildschirm, FuelltBeideListen)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl5");
    EXPECT_EQ(lies("Label2(0)"), " Z    JJJJ/SW   Datum");
    EXPECT_EQ(lies("Label2(1)"), "JJJJ/SW    Datum           Z");
    const QStringList nachZahl = zeilen("lstB114(0)");
    QStringList nachAuftreten = zeilen("lstB114(1)");
    ASSERT_EQ(nachZahl.size(), 49);
    ASSERT_EQ(nachAuftreten.size(), 49);
    EXPECT_TRUE(std::is_sorted(nachAuftreten.begin(), nachAuftreten.end()));
    for (int zahl = 1; zahl <= 49; ++zahl) {
        const QString datum = QString::fromStdString(ergebnis().fuer(zahl).datum);
        const QString nr = QString::number(zahl).rightJustified(2);
        EXPECT_EQ(nachZahl[zahl - 1], nr + "   " + zelle(zahl) + "  " + datum);
        EXPECT_TRUE(nachAuftreten.removeOne(zelle(zahl) + "  " + datum + "   " + nr)) << zahl;
    }
    EXPECT_TRUE(nachAuftreten.isEmpty());
}

TEST_F(Zuletztbildschirm, ZeigtDieWochen)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl5");
    klicke("Befehl4");
    const auto letzte = datei("SALOTTO.DAT").letzte(2000, anzahl(), true, false);
    const QStringList nachZahl = zeilen("lstB114(0)");
    QStringList nachWochen = zeilen("lstB114(1)");
    EXPECT_TRUE(std::is_sorted(nachWochen.begin(), nachWochen.end()));
    for (int zahl = 1; zahl <= 49; ++zahl) {
        const QString wochen = QString::number(anzahl() - letzte[static_cast<std::size_t>(zahl)]);
        const QString datum = QString::fromStdString(ergebnis().fuer(zahl).datum);
        const QString nr = QString::number(zahl).rightJustified(2);
        EXPECT_EQ(zelle(zahl), wochen);
        EXPECT_EQ(nachZahl[zahl - 1], nr + "   " + wochen.rightJustified(4) + "  " + datum);
        EXPECT_TRUE(nachWochen.removeOne(wochen.rightJustified(4) + "   " + datum + "  " + nr)) << zahl;
    }
    EXPECT_EQ(lies("Label2(0)"), " Z      Wo     Datum");
    EXPECT_EQ(lies("Label2(1)"), "   W   Datum            Z");
    EXPECT_FALSE(bedienbar("Befehl3"));
    EXPECT_FALSE(bedienbar("Befehl4"));
    klicke("Befehl5");
    EXPECT_EQ(lies("Label2(0)"), " Z    JJJJ/SW   Datum");
    EXPECT_TRUE(bedienbar("Befehl4"));
}

TEST_F(Zuletztbildschirm, MarkiertDieNeuestenGelbUndDieAeltestenRot)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl6");
    const auto letzte = datei("SALOTTO.DAT").letzte(2000, anzahl(), true, true);
    const int aelteste = *std::min_element(letzte.begin() + 1, letzte.end());
    for (const bool wochen : {false, true}) {
        if (wochen)
            klicke("Befehl4");
        for (int zahl = 1; zahl <= 49; ++zahl) {
            const int nr = letzte[static_cast<std::size_t>(zahl)];
            EXPECT_EQ(farbe(zahl), nr == anzahl() ? "#ffff00" : nr == aelteste ? "#ff0000" : "#ffffff") << zahl;
        }
    }
}

TEST_F(Zuletztbildschirm, EineFruehereZiehungSuchtVonAnfangAn)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl5");
    setze("cmbZ", bedienung.eintraege("cmbZ").zeilen[4]);
    EXPECT_EQ(lies("Text1"), "0005");
    EXPECT_FALSE(bedienbar("Befehl4"));
    klicke("Befehl5");
    const Datei text = datei("SALOTTO.DAT");
    const auto letzte = text.letzte(1, 5, true, false);
    pruefeZellen(text, letzte);
    EXPECT_TRUE(bedienbar("Befehl4"));
    const int nie = static_cast<int>(std::find(letzte.begin() + 1, letzte.end(), 0) - letzte.begin());
    EXPECT_EQ(zelle(nie), "0000/00");
    EXPECT_EQ(farbe(nie), "#ff0000");
    EXPECT_EQ(zeilen("lstB114(0)")[nie - 1], QString::number(nie).rightJustified(2) + "   0000/00  ");
    klicke("Befehl4");
    EXPECT_EQ(zelle(nie), "5");
}

TEST_F(Zuletztbildschirm, DieAuswahlFolgtDerGetipptenZiehung)
{
    starte();
    oeffne("frmZuletzt");
    setze("Text1", "5");
    klicke("Befehl5");
    EXPECT_EQ(lies("cmbZ"), "1955/45 ZNr: 0005");
    EXPECT_EQ(lies("Text1"), "5");
    EXPECT_TRUE(bedienbar("Befehl4"));
}

TEST_F(Zuletztbildschirm, EineGetippteZiehungSperrtDieWochenBisZurNaechstenAuswertung)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl5");
    EXPECT_TRUE(bedienbar("Befehl4"));
    tippe("Text1", "Backspace");
    EXPECT_FALSE(bedienbar("Befehl4"));
    EXPECT_TRUE(bedienbar("Befehl3"));
    klicke("Befehl6");
    EXPECT_TRUE(bedienbar("Befehl4"));
    setze("Text1", "99999");
    EXPECT_FALSE(bedienbar("Befehl4"));
    klicke("Befehl6");
    EXPECT_EQ(lies("Text1"), QString::number(anzahl()));
    EXPECT_TRUE(bedienbar("Befehl4"));
}

TEST_F(Zuletztbildschirm, DieselbeZiehungNochEinmalGewaehltSperrtDieWochen)
{
    starte();
    oeffne("frmZuletzt");
    const QString fuenfte = bedienung.eintraege("cmbZ").zeilen[4];
    setze("cmbZ", fuenfte);
    klicke("Befehl5");
    EXPECT_TRUE(bedienbar("Befehl4"));
    setze("cmbZ", fuenfte);
    EXPECT_FALSE(bedienbar("Befehl4"));
}

TEST_F(Zuletztbildschirm, DerKnopfDesGezeigtenErgebnissesSiehtSoAus)
{
    const QStringList knoepfe{"Befehl5", "Befehl6", "Befehl7", "Befehl1"};
    starte();
    klicke("Option2");
    oeffne("frmZuletzt");
    EXPECT_EQ(gelaufene(knoepfe), QStringList());
    for (const QString& knopf : knoepfe) {
        klicke(knopf);
        EXPECT_EQ(gelaufene(knoepfe), QStringList{knopf});
    }
}

TEST_F(Zuletztbildschirm, EnterImFeldUndF5DrueckenDenStartknopfVonZuletzt)
{
    starte();
    oeffne("frmZuletzt");
    setze("Text1", "5");
    tippe("Text1", "Return");
    EXPECT_EQ(ergebnis().Grenze, 5);
    EXPECT_EQ(ergebnis().ZaehlModus, ZZModus::Ohne);
    klicke("Befehl6");
    setze("Text1", "6");
    tippe("frmZuletzt", "F5");
    EXPECT_EQ(ergebnis().Grenze, 6);
    EXPECT_EQ(ergebnis().ZaehlModus, ZZModus::Mit);
}

TEST_F(Zuletztbildschirm, DieWochenSindDieDesErgebnissesAuchNachEinemAnderenArchiv)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl5");
    const int grenze = anzahl();
    const auto letzte = datei("SALOTTO.DAT").letzte(2000, grenze, true, false);
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    klicke("Befehl4");
    for (int zahl = 1; zahl <= 49; ++zahl)
        EXPECT_EQ(zelle(zahl), QString::number(grenze - letzte[static_cast<std::size_t>(zahl)])) << zahl;
}

TEST_F(Zuletztbildschirm, EineAuswertungFolgtDemArchivDasDannGeladenIst)
{
    starte();
    klicke("Option3");
    oeffne("frmZuletzt");
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    setze("Text1", "1000");
    klicke("Befehl5");
    EXPECT_EQ(lies("Bezeichnung5"), "MITTWOCHSLOTTO ");
    EXPECT_TRUE(lies("Bezeichnung2").contains(QString::number(anzahl())));
    EXPECT_EQ(bedienung.eintraege("cmbZ").zeilen.size(), anzahl());
    EXPECT_TRUE(lies("cmbZ").endsWith("ZNr: 1000"));
}

TEST_F(Zuletztbildschirm, EineZuHoheAnzahlWirdBerichtigt)
{
    starte();
    oeffne("frmZuletzt");
    const Datei text = datei("SALOTTO.DAT");
    for (const char* eingabe : {"99999999999", "5000"}) {
        setze("Text1", eingabe);
        klicke("Befehl5");
        EXPECT_EQ(lies("Text1"), QString::number(anzahl()));
        pruefeZellen(text, text.letzte(2000, anzahl(), true, false));
    }
}

TEST_F(Zuletztbildschirm, OhneZahlOderUnterEinsLaeuftSieUeberKeineZiehung)
{
    starte();
    oeffne("frmZuletzt");
    for (const char* eingabe : {"abc", "0", "-5", "12x"}) {
        setze("Text1", eingabe);
        klicke("Befehl6");
        EXPECT_EQ(lies("Text1"), eingabe);
        for (int zahl = 1; zahl <= 49; ++zahl) {
            EXPECT_EQ(zelle(zahl), "0000/00");
            EXPECT_EQ(farbe(zahl), "#ff0000");
        }
        klicke("Befehl4");
        EXPECT_EQ(zelle(1), QString(eingabe) == "-5" ? "-5" : "0");
    }
}

TEST_F(Zuletztbildschirm, WenigerZiehungenAlsDerSuchbeginn)
{
    schreibe("MALOTTO.DAT", {"1986,23,01,02,03,04,05,06,07,0", "1986,24,11,12,13,14,15,16,17,0"});
    starte();
    klicke("Option2");
    oeffne("frmZuletzt");
    klicke("Befehl5");
    EXPECT_EQ(zelle(11), "0000/00");
    EXPECT_EQ(zeilen("lstB114(0)")[10], "11   0000/00  ");
    setze("Text1", "1");
    klicke("Befehl6");
    EXPECT_EQ(zelle(7), "1986/23");
    EXPECT_EQ(zelle(11), "0000/00");
    EXPECT_EQ(farbe(7), "#ffff00");
}

TEST_F(Zuletztbildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmZuletzt");
    EXPECT_EQ(lies("Text1"), "0");
    EXPECT_EQ(lies("Bezeichnung2"), "");
    klicke("Befehl5");
    EXPECT_EQ(zelle(1), "0000/00");
    EXPECT_EQ(zeilen("lstB114(1)").size(), 49);
}

TEST_F(Zuletztbildschirm, MittwochABZeigtDieSpaetereInWochenUndEndetAufA)
{
    for (const char* option : {"Option2", "Option3"}) {
        starte();
        klicke(option);
        oeffne("frmZuletzt");
        const int grenze = anzahl();
        klicke("Befehl1");
        const Datei a = datei("MALOTTO.DAT");
        const Datei b = datei("MBLOTTO.DAT");
        const auto inA = a.letzte(241, grenze, true, false);
        const auto inB = b.letzte(241, grenze, true, false);
        const int neueste =
            std::max(*std::max_element(inA.begin(), inA.end()), *std::max_element(inB.begin(), inB.end()));
        for (std::size_t zahl = 1; zahl <= 49; ++zahl) {
            const int nr = std::max(inA[zahl], inB[zahl]);
            const LetztesAuftreten& auftreten = ergebnis().fuer(static_cast<int>(zahl));
            EXPECT_EQ(zelle(static_cast<int>(zahl)), QString::number(grenze - nr)) << zahl;
            EXPECT_EQ(QString::fromStdString(auftreten.jahrUndWoche), (inB[zahl] > inA[zahl] ? b : a).woche(nr));
            EXPECT_EQ(auftreten.datum, datumText(mittwochsZiehung(nr)));
            EXPECT_EQ(farbe(static_cast<int>(zahl)) == "#ffff00", nr == neueste) << zahl;
        }
        EXPECT_EQ(lies("Bezeichnung5"), "Mittwochslotto (A+B)");
        EXPECT_EQ(lies("Label2(0)"), " Z      Wo     Datum");
        EXPECT_EQ(lies("Text1"), QString::number(grenze));
        EXPECT_FALSE(bedienbar("Befehl3"));
        EXPECT_FALSE(bedienbar("Befehl4"));
        EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
        EXPECT_EQ(bedienung.eintraege("cmbZ").zeilen.size(), a.anzahl());
        EXPECT_TRUE(lies("Bezeichnung2").contains(QString::number(a.anzahl())));
        schliesse();
        EXPECT_TRUE(zustand("Option2").contains("checked=true"));
    }
}

TEST_F(Zuletztbildschirm, AmSamstagGibtEsKeineBZiehung)
{
    starte();
    klicke("Option3");
    oeffne("frmZuletzt");
    EXPECT_TRUE(sichtbar("Befehl1"));
    EXPECT_EQ(lies("Bezeichnung5"), "MITTWOCHSLOTTO (B)");
    schliesse();
    klicke("Option1");
    oeffne("frmZuletzt");
    EXPECT_FALSE(sichtbar("Befehl1"));
}

TEST_F(Zuletztbildschirm, DrucktAufDenStandarddrucker)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl5");
    const QString pdf = ordner.filePath("druck.pdf");
    buehne.drucker.setzeDatei(pdf);
    klicke("Befehl3");
    EXPECT_GT(QFileInfo(pdf).size(), 1000);
    buehne.drucker.setzeDatei({});
    klicke("Befehl3");
    EXPECT_EQ(titel(), "Es ist kein Standarddrucker eingerichtet.");
}

TEST_F(Zuletztbildschirm, ZeigtHinweiseImTitel)
{
    starte();
    klicke("Option2");
    oeffne("frmZuletzt");
    klicke("Befehl5");
    ueberfahre("Befehl4");
    EXPECT_EQ(titel(), "Ausbleibezeitraum in Wochen.");
    ueberfahre("Befehl1");
    EXPECT_EQ(titel(), "Lotto am Mittwoch, Ziehung A un B zusammen ohne Zusatzzahl. (in Wochen)");
    ueberfahre("frmZuletzt");
    EXPECT_EQ(titel(), "Wann wurden die Zahlen zuletzt gezogen ?");
}

TEST_F(Zuletztbildschirm, ErklaertSich)
{
    starte();
    oeffne("frmZuletzt");
    klicke("Befehl8");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Info|Mit dem Auswahlfeld \"Letzte Ziehung\" kann auch eine frühere "
                                   "Ziehung aus der Vergangenheit ausgewählt werden.\nDann wird für diese Ziehung "
                                   "ermittelt, wann die Gewinnzahlen bis zum Zeitpunkt dieser Ziehung zuletzt gezogen "
                                   "wurden."});
}

TEST_F(Zuletztbildschirm, AlsZaehlwerkLaeuftErUngezeigtUndKehrtNichtZumMenueZurueck)
{
    starte();
    auto& schirm = buehne.bildschirme.lade<frmZuletzt>("frmZuletzt");
    schirm.werteAus(ZZModus::Ohne);
    schirm.zeigeWochen();
    const auto letzte = datei("SALOTTO.DAT").letzte(2000, anzahl(), true, false);
    EXPECT_EQ(schirm.ergebnis().wochen(7), anzahl() - letzte[7]);
    EXPECT_EQ(schirm.ergebnis().Grenze, anzahl());
    schirm.schliesse();

    oeffne("frmZuletzt");
    buehne.umgebung.VorschlagLaeuft = true;
    schliesse();
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    EXPECT_EQ(buehne.bildschirme.geladen("frmZuletzt"), nullptr);
}

} // namespace
