#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferliste.h"
#include "engines/screens/frmAlleKombis.h"
#include "engines/tests/Treffertest.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Zahlen.h"
#include "testhilfen/ZaehlerReferenz.h"

#include <QCoreApplication>
#include <QFile>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr auto kNummerFalsch = "info|Tombrix|Die Kombinationsnummer muss >1 und <=13.983.816 sein.";
constexpr auto kAnzahlFalsch =
    "info|Tombrix|Falsche Zahleneingabe! Es müssen 6 Zahlen durch Komma oder Leerzeichen getrennt eingegeben werden.";
constexpr auto kZahlFalsch =
    "info|Tombrix|Falsche Zahleneingabe. Die einzelnen Zahlen müssen grösser 1 und kleiner 49 sein.";

class AlleKombisBildschirm : public Treffertest {
protected:
    void oeffneSchirm()
    {
        starte();
        oeffne("frmAlleKombis");
    }

    /// Two draws of Saturday and one of each Wednesday game, the last three with a Superzahl of their own.
    void schreibeKleinesArchiv() const
    {
        std::vector<std::string> samstag(1886, "1955,41,40,41,42,43,44,45,00,0");
        samstag.emplace_back("1991,49,01,02,03,04,05,06,07,7");
        schreibe("SALOTTO.DAT", samstag);
        std::vector<std::string> mittwoch(496, "1986,23,40,41,42,43,44,45,00,0");
        mittwoch.emplace_back("1995,49,01,02,03,10,11,12,07,7");
        schreibe("MALOTTO.DAT", mittwoch);
        mittwoch.back() = "1995,49,01,02,20,21,22,23,07,7";
        schreibe("MBLOTTO.DAT", mittwoch);
    }

    frmAlleKombis& schirm() const { return dynamic_cast<frmAlleKombis&>(*buehne.bildschirme.geladen("frmAlleKombis")); }
    QStringList seite() { return bedienung.zeilen("List1", 0, 1000).zeilen; }
    QStringList details() { return Treffertest::details(schirm()); }
    QStringList farben(int zeile) { return bedienung.farben("ListView1", zeile).zeilen.value(0).split('\t'); }
    QStringList gewaehlte() { return bedienung.gewaehlte("List1").zeilen; }
    int ersteNummer() { return seite().value(0).left(10).remove('.').toInt(); }
    QString zahlen(int zeile) { return seite().value(zeile).mid(13, 17); }

    /// The nine counts in the order of a row's columns.
    QStringList zaehler()
    {
        QStringList werte;
        for (const char* name :
             {"lblSSZ", "lblSechser", "lblFSZ", "lblFuenfer", "lblVSZ", "lblVierer", "lblDSZ", "lblDreier", "lblZSZ"})
            werte << lies(name);
        return werte;
    }
    static QStringList zaehlerIn(const QString& zeile)
    {
        QStringList werte = zeile.split('|').mid(1, 9);
        for (QString& wert : werte)
            wert = wert.trimmed();
        return werte;
    }
    static const QStringList nichts() { return QStringList(9, "0"); }

    void dreheRad(int rasten) const
    {
        auto* flaeche = schirm().findChild<Liste*>("List1")->viewport();
        QWheelEvent rad({5, 5}, flaeche->mapToGlobal(QPointF(5, 5)), {}, {0, -120 * rasten}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(flaeche, &rad);
    }
};

TEST_F(AlleKombisBildschirm, PasstMitFensterrahmenAufDenKleinstenSchirm)
{
    oeffneSchirm();
    EXPECT_LE(schirm().minimumSizeHint().width(), 1280 - 12);
    EXPECT_LE(schirm().minimumSizeHint().height(), 800 - 40);
}

TEST_F(AlleKombisBildschirm, OhneEineDateiZaehltKeineZiehung)
{
    starte();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    oeffne("frmAlleKombis");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 0");
    EXPECT_TRUE(seite().first().endsWith("GF: 000"));
    waehle("List1", {0});
    EXPECT_EQ(lies("lblDetail"), "Anzahl der Gewinnfälle: 0");
    klicke("chkArt(1)");
    EXPECT_FALSE(seite().first().endsWith("GF: 000"));
}

TEST_F(AlleKombisBildschirm, OeffnetMitDerErstenSeite)
{
    oeffneSchirm();
    EXPECT_EQ(titel(), "Alle möglichen Lottokombinationen der Spielart 6 aus 49 und ihre Treffer in allen bisherigen "
                       "Lottoziehungen");
    EXPECT_EQ(lies("FrameAlle"), "Alle möglichen 13.983.816 Lottokombinationen und ihre Treffer");
    EXPECT_EQ(lies("FrameZ"), "Alle Ziehungen dieser Spielarten einbeziehen");
    EXPECT_EQ(lies("lblHeader"),
              " Kombi.-Nr.   Kombination       |6-SZ|6-er|5-SZ|5-er|4-SZ|4-er|3-SZ| 3-er|2-SZ|Gewinnfälle");
    EXPECT_EQ(lies("lblSZ"), "Superahl wählen:");
    EXPECT_EQ(lies("ComboSZ"), "0");
    EXPECT_EQ(bedienung.eintraege("ComboSZ").zeilen.join(""), "0123456789");
    EXPECT_EQ(lies("Text1"), "11 13 24 35 46 48");
    EXPECT_EQ(lies("txtV"), "12.000.000");
    EXPECT_EQ(lies("FrameDetail"), "Detailliste");
    EXPECT_EQ(lies("lblDetail"), "0");
    EXPECT_EQ(lies("labelInfo"), "Ein Click auf eine Kombination zeigt die Gewinne detailliert in der Detailliste->");
    EXPECT_EQ(lies("VScroll1"), "1");
    EXPECT_EQ(zaehler(), nichts());
    ASSERT_EQ(seite().size(), 30);
    EXPECT_EQ(zahlen(0), "01 02 03 04 05 06");
    EXPECT_EQ(zahlen(29), "01 02 03 04 05 35");
    EXPECT_TRUE(gewaehlte().isEmpty());
}

TEST_F(AlleKombisBildschirm, DieSpielartenSindZusammenGeladen)
{
    oeffneSchirm();
    const ZiehungsArchiv& archiv = schirm().umgebung().archiv;
    EXPECT_GT(archiv.AnzahlZiehungen, 6000);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: " + QString::number(archiv.AnzahlZiehungen));
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(zustand(QString("chkArt(%1)").arg(i)).contains("checked=true"));
        EXPECT_NE(lies(QString("lblZ(%1)").arg(i)), "-");
    }
    EXPECT_EQ(lies("chkArt(2)"), "Mittwochslotto (B)");
}

TEST_F(AlleKombisBildschirm, EinKlickZeigtDieTreffer)
{
    oeffneSchirm();
    waehle("List1", {4});
    const QString zeile = seite()[4];
    EXPECT_EQ(lies("FrameDetail"), "Trefferliste für die Kombination: 01 02 03 04 05 10");
    EXPECT_EQ(zaehler(), zaehlerIn(zeile));
    EXPECT_EQ(details().size(), zeile.section("GF: ", 1).toInt());
    EXPECT_EQ(lies("lblDetail"), "Anzahl der Gewinnfälle: " + QString::number(details().size()));
    const Trefferzaehler erwartet = trefferEinfach(schirm().umgebung().archiv, schirm().seite()[4].zahlen, 0);
    EXPECT_EQ(schirm().seite()[4].zaehler, erwartet);
    EXPECT_GT(erwartet.Gewinnfaelle(), 0);
}

TEST_F(AlleKombisBildschirm, DieZeilenDerDetailliste)
{
    schreibeKleinesArchiv();
    oeffneSchirm();
    setze("ComboSZ", "7");
    waehle("List1", {0});
    EXPECT_EQ(details(), (QStringList{
                             "1991/49\t\t01 \t\t02 \t\t03 \t\t04 \t\t05 \t\t06 \t\t7 \t\t6-SZ\t\tSa",
                             "1995/49\t\t01 \t\t02 \t\t03 \t\t10\t\t11\t\t12\t\t7 \t\t3-SZ\t\tMi",
                             "1995/49\t\t01 \t\t02 \t\t20\t\t21\t\t22\t\t23\t\t7 \t\t2-SZ\t\tMi(B)",
                         }));
    EXPECT_EQ(zaehler(), (QStringList{"1", "0", "0", "0", "0", "0", "1", "0", "1"}));
    setze("ComboSZ", "8");
    EXPECT_EQ(details(), (QStringList{
                             "1991/49\t\t01 \t\t02 \t\t03 \t\t04 \t\t05 \t\t06 \t\t7\t\t6-er\t\tSa",
                             "1995/49\t\t01 \t\t02 \t\t03 \t\t10\t\t11\t\t12\t\t7\t\t3-er\t\tMi",
                         }));
    EXPECT_EQ(zaehler(), (QStringList{"0", "1", "0", "0", "0", "0", "0", "1", "0"}));
    EXPECT_EQ(lies("lblDetail"), "Anzahl der Gewinnfälle: 2");
}

TEST_F(AlleKombisBildschirm, DieSpaltenDerDetailliste)
{
    oeffneSchirm();
    const auto* liste = schirm().findChild<ListView*>("ListView1");
    const QStringList titel{"Jahr/SW", "", "Z1", "", "Z2", "", "Z3",   "", "Z4", "",
                            "Z5",      "", "Z6", "", "SZ", "", "Gew.", "", "S/M"};
    ASSERT_EQ(liste->ColumnCount(), titel.size());
    for (int spalte = 0; spalte < titel.size(); ++spalte)
        EXPECT_EQ(qt(liste->ColumnCaption(spalte)), titel[spalte]);
    EXPECT_EQ(liste->ColumnIndex("zahl1"), 2);
    EXPECT_EQ(liste->ColumnIndex("zahl6"), 12);
    EXPECT_EQ(liste->ColumnIndex("trenner9"), 17);
    EXPECT_EQ(liste->ColumnIndex("S/M"), 18);
}

TEST_F(AlleKombisBildschirm, DieFarbenDerDetailliste)
{
    schreibeKleinesArchiv();
    oeffneSchirm();
    setze("ComboSZ", "7");
    waehle("List1", {0});
    const QStringList zellen = farben(1);
    ASSERT_EQ(zellen.size(), 19);
    const QString schrift = zellen[0].section('/', 1);
    for (int spalte = 1; spalte < zellen.size(); spalte += 2)
        EXPECT_TRUE(zellen[spalte].startsWith("#c0c0c0/")) << spalte;
    for (int spalte = 2; spalte <= 6; spalte += 2)
        EXPECT_EQ(zellen[spalte], "#80ffff/#ff0000");
    for (const int spalte : {0, 8, 10, 12, 16, 18})
        EXPECT_EQ(zellen[spalte], "#ffffff/" + schrift);
    EXPECT_EQ(zellen[14], "#ffff00/" + schrift);
    setze("ComboSZ", "8");
    EXPECT_EQ(farben(0)[14], "#ffffff/" + schrift);
}

TEST_F(AlleKombisBildschirm, EineZiehungOhneSuperzahlTraegtDieElf)
{
    schreibeKleinesArchiv();
    oeffneSchirm();
    setze("Text1", "40 41 42 43 44 45");
    klicke("cmdKombisearch");
    EXPECT_EQ(details().size(), 1886 + 496 + 496);
    EXPECT_EQ(details().value(0).split('\t').value(14), "11");
    EXPECT_EQ(details().value(0).split('\t').value(16), "6-er");
    EXPECT_EQ(lies("lblSSZ"), "0");
    EXPECT_EQ(lies("lblSechser"), QString::number(1886 + 496 + 496));
}

TEST_F(AlleKombisBildschirm, DieLeisteRolltSeiteFuerSeite)
{
    oeffneSchirm();
    setze("VScroll1", "7000000");
    EXPECT_EQ(ersteNummer(), 7'000'000);
    EXPECT_EQ(zahlen(0), qt(zahlentext(KombinationAusNummer(7'000'000))));
    tippe("VScroll1", "Down");
    EXPECT_EQ(ersteNummer(), 7'000'001);
    tippe("VScroll1", "PgDown");
    EXPECT_EQ(ersteNummer(), 7'001'399);
    const auto* leiste = schirm().findChild<QScrollBar*>("VScroll1");
    EXPECT_EQ(leiste->minimum(), 1);
    EXPECT_EQ(leiste->maximum(), 13'983'787);
    EXPECT_EQ(leiste->singleStep(), 1);
    EXPECT_EQ(leiste->pageStep(), 1398);
}

TEST_F(AlleKombisBildschirm, DieLetzteSeiteIstVoll)
{
    oeffneSchirm();
    setze("VScroll1", "13983787");
    ASSERT_EQ(seite().size(), 30);
    EXPECT_EQ(zahlen(29), "44 45 46 47 48 49");
    EXPECT_TRUE(seite()[29].startsWith("13.983.816   "));
    tippe("VScroll1", "Down");
    EXPECT_EQ(ersteNummer(), 13'983'787);
}

TEST_F(AlleKombisBildschirm, DieTastenDerListeRollenUeberIhrenRandHinaus)
{
    oeffneSchirm();
    waehle("List1", {0});
    tippe("List1", "Up");
    EXPECT_EQ(ersteNummer(), 1);
    tippe("List1", "PgDown");
    EXPECT_EQ(ersteNummer(), 31);
    EXPECT_EQ(gewaehlte(), QStringList{"0"});
    EXPECT_EQ(lies("FrameDetail"), "Trefferliste für die Kombination: " + zahlen(0));
    tippe("List1", "Up");
    EXPECT_EQ(ersteNummer(), 30);
    EXPECT_EQ(gewaehlte(), QStringList{"0"});
    tippe("List1", "Down");
    EXPECT_EQ(ersteNummer(), 30);
    EXPECT_EQ(gewaehlte(), QStringList{"1"});
    tippe("List1", "End");
    EXPECT_EQ(ersteNummer(), 13'983'787);
    EXPECT_EQ(lies("FrameDetail"), "Trefferliste für die Kombination: 44 45 46 47 48 49");
    tippe("List1", "Down");
    EXPECT_EQ(gewaehlte(), QStringList{"29"});
    tippe("List1", "PgUp");
    EXPECT_EQ(ersteNummer(), 13'983'757);
    tippe("List1", "Down");
    EXPECT_EQ(ersteNummer(), 13'983'758);
    EXPECT_EQ(gewaehlte(), QStringList{"29"});
    tippe("List1", "Home");
    EXPECT_EQ(ersteNummer(), 1);
    EXPECT_EQ(gewaehlte(), QStringList{"0"});
}

TEST_F(AlleKombisBildschirm, DasRadRolltUeberDerListe)
{
    oeffneSchirm();
    dreheRad(1);
    const int rast = ersteNummer() - 1;
    EXPECT_GE(rast, 1);
    EXPECT_LE(rast, 30);
    dreheRad(2);
    EXPECT_EQ(ersteNummer(), 1 + 3 * rast);
    dreheRad(-100);
    EXPECT_EQ(ersteNummer(), 1);
}

TEST_F(AlleKombisBildschirm, EineAndereSuperzahlBehaeltDieGewaehlteZeile)
{
    oeffneSchirm();
    waehle("List1", {12});
    for (const QString superzahl : {"9", "3", "0"}) {
        setze("ComboSZ", superzahl);
        EXPECT_EQ(gewaehlte(), QStringList{"12"});
        EXPECT_EQ(zaehler(), zaehlerIn(seite()[12]));
        EXPECT_EQ(schirm().seite()[12].zaehler,
                  trefferEinfach(schirm().umgebung().archiv, schirm().seite()[12].zahlen, superzahl.toInt()));
    }
}

TEST_F(AlleKombisBildschirm, OhneGewaehlteZeileBleibtKeineGewaehlt)
{
    oeffneSchirm();
    setze("ComboSZ", "5");
    EXPECT_TRUE(gewaehlte().isEmpty());
    EXPECT_EQ(zaehler(), nichts());
    EXPECT_EQ(lies("FrameDetail"), "Detailliste");
}

TEST_F(AlleKombisBildschirm, GetippteSuperzahlen)
{
    oeffneSchirm();
    const auto ersteZeile = [this](const char* text) {
        setze("ComboSZ", text);
        return schirm().seite()[0].zaehler;
    };
    const ZiehungsArchiv& archiv = schirm().umgebung().archiv;
    const Kombination erste{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(ersteZeile("unsinn"), trefferEinfach(archiv, erste, 0));
    EXPECT_EQ(ersteZeile("4"), trefferEinfach(archiv, erste, 4));
    EXPECT_EQ(ersteZeile("99999999999"), trefferEinfach(archiv, erste, -1));
    // "none" is a Superzahl that nobody can choose.
    EXPECT_EQ(ersteZeile("11"), trefferEinfach(archiv, erste, -1));
    EXPECT_EQ(bedienung.eintraege("ComboSZ").zeilen.size(), 10);
}

TEST_F(AlleKombisBildschirm, SuchtEineNummer)
{
    oeffneSchirm();
    klicke("Command");
    EXPECT_EQ(ersteNummer(), 12'000'000);
    EXPECT_EQ(lies("VScroll1"), "12000000");
    EXPECT_EQ(gewaehlte(), QStringList{"0"});
    EXPECT_EQ(lies("txtV"), "12.000.000");
    setze("txtV", "1");
    klicke("Command");
    EXPECT_EQ(ersteNummer(), 1);
    EXPECT_EQ(lies("txtV"), "1");
    setze("txtV", "1.2.3.4");
    klicke("Command");
    EXPECT_EQ(ersteNummer(), 1234);
    EXPECT_EQ(lies("txtV"), "1.234");
    setze("txtV", "77");
    tippe("txtV", "Return");
    EXPECT_EQ(ersteNummer(), 77);
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(AlleKombisBildschirm, DieLetzteNummerStehtAmEndeDerLetztenSeite)
{
    oeffneSchirm();
    setze("txtV", "13983816");
    klicke("Command");
    EXPECT_EQ(lies("VScroll1"), "13983787");
    EXPECT_EQ(zahlen(29), "44 45 46 47 48 49");
    EXPECT_EQ(gewaehlte(), QStringList{"0"});
    EXPECT_EQ(lies("txtV"), "13.983.816");
}

TEST_F(AlleKombisBildschirm, EineFalscheNummerLaesstDieListeWieSieIst)
{
    oeffneSchirm();
    setze("VScroll1", "500");
    for (const char* falsche : {"0", "-3", "13.983.817", "99999999999999", "abc", "", "..."}) {
        setze("txtV", falsche);
        klicke("Command");
        EXPECT_EQ(boxen(), QStringList{kNummerFalsch}) << falsche;
        EXPECT_EQ(ersteNummer(), 500);
        EXPECT_TRUE(gewaehlte().isEmpty());
    }
}

TEST_F(AlleKombisBildschirm, SuchtEineKombination)
{
    oeffneSchirm();
    klicke("cmdKombisearch");
    EXPECT_EQ(zahlen(0), "11 13 24 35 46 48");
    EXPECT_EQ(gewaehlte(), QStringList{"0"});
    setze("Text1", "1 2  3 4   5 6");
    klicke("cmdKombisearch");
    EXPECT_EQ(ersteNummer(), 1);
    setze("Text1", " 49,1,17,8,30,22 ");
    tippe("Text1", "Return");
    EXPECT_EQ(zahlen(0), "01 08 17 22 30 49");
    setze("Text1", "44 45 46 47 48 49");
    klicke("cmdKombisearch");
    EXPECT_EQ(zahlen(29), "44 45 46 47 48 49");
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(AlleKombisBildschirm, FalscheZahlenLassenDieListeWieSieIst)
{
    oeffneSchirm();
    setze("VScroll1", "500");
    setze("Text1", "1, 2, 3, 4, 5, 6");
    klicke("cmdKombisearch");
    EXPECT_EQ(boxen(), QStringList{kAnzahlFalsch});
    setze("Text1", "0 1 2 3 49 50");
    klicke("cmdKombisearch");
    EXPECT_EQ(boxen(), (QStringList{kZahlFalsch, kZahlFalsch}));
    setze("Text1", "a b c d e 99999999999999");
    klicke("cmdKombisearch");
    EXPECT_EQ(boxen().size(), 6);
    EXPECT_EQ(ersteNummer(), 500);
}

TEST_F(AlleKombisBildschirm, WiederholteZahlenBleibenInDenGrenzenDerLeiste)
{
    oeffneSchirm();
    for (const char* zahlen : {"1 1 1 1 1 1", "49 49 49 49 49 49", "7 7 8 8 9 9", "48 49 49 49 49 49"}) {
        setze("Text1", zahlen);
        klicke("cmdKombisearch");
        EXPECT_GE(lies("VScroll1").toInt(), 1);
        EXPECT_LE(lies("VScroll1").toInt(), 13'983'787);
        EXPECT_EQ(seite().size(), 30);
    }
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(AlleKombisBildschirm, OhneSpielartBleibenDieZeilenUndDieSuchenRuhen)
{
    oeffneSchirm();
    waehle("List1", {3});
    klicke("chkArt(1)");
    klicke("chkArt(2)");
    const QStringList samstag = seite();
    const int ziehungen = schirm().umgebung().archiv.AnzahlZiehungen;
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: " + QString::number(ziehungen));
    EXPECT_EQ(lies("lblZ(1)"), "-");
    waehle("List1", {3});
    klicke("chkArt(0)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(lies(QString("lblZ(%1)").arg(i)), "-");
    EXPECT_EQ(seite(), samstag);
    EXPECT_TRUE(details().isEmpty());
    EXPECT_EQ(zaehler(), nichts());
    EXPECT_EQ(lies("FrameDetail"), "Detailliste");
    setze("txtV", "0");
    klicke("Command");
    setze("txtV", "100");
    klicke("Command");
    setze("Text1", "1,2");
    klicke("cmdKombisearch");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(ersteNummer(), 1);
    setze("VScroll1", "100");
    EXPECT_EQ(ersteNummer(), 100);
}

TEST_F(AlleKombisBildschirm, EineAndereSpielartLeertDieDetails)
{
    oeffneSchirm();
    waehle("List1", {3});
    klicke("chkArt(0)");
    EXPECT_TRUE(details().isEmpty());
    EXPECT_EQ(zaehler(), nichts());
    EXPECT_EQ(lies("lblDetail"), "0");
    EXPECT_TRUE(gewaehlte().isEmpty());
    EXPECT_EQ(schirm().seite()[3].zaehler, trefferEinfach(schirm().umgebung().archiv, schirm().seite()[3].zahlen, 0));
}

TEST_F(AlleKombisBildschirm, DieInfo)
{
    oeffneSchirm();
    klicke("cmdInfo");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 1);
    EXPECT_TRUE(gezeigt[0].startsWith(
        "info|Lotto-Info|Es werden alle 13.983.816 möglichen Lottokombinationen des Lotto 6-aus-49  generiert. Jede"));
    EXPECT_EQ(gezeigt[0].count("\n\n"), 2);
    EXPECT_TRUE(gezeigt[0].endsWith("sind durch ein Komma oder ein Leerzeichen zu trennen."));
}

TEST_F(AlleKombisBildschirm, SchliessenKehrtZumMenueZurueckUndLaesstDasArchiv)
{
    oeffneSchirm();
    const int ziehungen = schirm().umgebung().archiv.AnzahlZiehungen;
    klicke("cmdEnd");
    EXPECT_EQ(bedienung.aktuell()->name(), "frmLSTART");
    EXPECT_EQ(buehne.bildschirme.geladen("frmAlleKombis"), nullptr);
    EXPECT_EQ(bedienung.aktuell()->umgebung().archiv.AnzahlZiehungen, ziehungen);
}

class NaechsterSchirm final : public Bildschirm {
public:
    explicit NaechsterSchirm(Umgebung& umgebung) : Bildschirm(umgebung, "frmTreffer", "Treffer") {}
};

TEST_F(AlleKombisBildschirm, DieErfolgreichstenKommenStattDesMenues)
{
    buehne.bildschirme.registriere<NaechsterSchirm>("frmTreffer");
    oeffneSchirm();
    klicke("cmdTreffer");
    EXPECT_EQ(buehne.bildschirme.geladen("frmAlleKombis"), nullptr);
    ASSERT_NE(buehne.bildschirme.geladen("frmTreffer"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmTreffer")->isVisible());
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    schliesse();
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(AlleKombisBildschirm, LeereDateien)
{
    for (const char* name : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(name, {});
    oeffneSchirm();
    EXPECT_EQ(seite().size(), 30);
    EXPECT_EQ(zaehlerIn(seite()[0]), nichts());
    waehle("List1", {0});
    EXPECT_TRUE(details().isEmpty());
    EXPECT_EQ(lies("lblDetail"), "Anzahl der Gewinnfälle: 0");
    klicke("cmdKombisearch");
    EXPECT_EQ(zahlen(0), "11 13 24 35 46 48");
}

TEST_F(AlleKombisBildschirm, UnsinnigeWerteImArchiv)
{
    schreibe("SALOTTO.DAT", {"-1,2147483647,-5,0,50,64,2147483647,-2147483648,00,-7", "9999,99,06,05,04,03,02,01,00,0",
                             "2020,01,01,01,01,02,02,03,00,0"});
    schreibe("MALOTTO.DAT", {"2020,01,04,04,04,04,04,04,00,0"});
    schreibe("MBLOTTO.DAT", {});
    oeffneSchirm();
    waehle("List1", {0});
    EXPECT_EQ(details().size(), 2);
    EXPECT_EQ(zaehler(), zaehlerIn(seite()[0]));
    klicke("Command");
    EXPECT_EQ(ersteNummer(), 12'000'000);
}

TEST_F(AlleKombisBildschirm, SoVieleGewinnfaelleWieDreiDateienFassen)
{
    for (const char* name : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(name, std::vector<std::string>(32'767, "2000,01,01,02,03,04,05,06,00,0"));
    oeffneSchirm();
    waehle("List1", {0});
    EXPECT_EQ(lies("lblDetail"), "Anzahl der Gewinnfälle: 98301");
    const auto* liste = schirm().findChild<ListView*>("ListView1");
    int zuege = 0;
    for (; liste->ItemCount() < 98'301 && zuege < 100'000; ++zuege)
        QCoreApplication::processEvents();
    EXPECT_EQ(liste->ItemCount(), 98'301);
    EXPECT_GT(zuege, 1) << "the event loop waits for the whole list";
    // A choice in the middle of it takes its place.
    waehle("List1", {1});
    klicke("chkArt(0)");
    QCoreApplication::processEvents();
    EXPECT_EQ(liste->ItemCount(), 0);
}

} // namespace
