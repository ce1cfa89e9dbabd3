#include "archive/tests/Archivbildschirmtest.h"
#include "shell/logic/Dateisperre.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QWidget>

#include <chrono>

namespace {

using namespace std::chrono_literals;

class Anzeigebildschirm : public Archivbildschirmtest {
protected:
    static constexpr auto kFreitag = "2026-11-20T10:00:00";
    static constexpr auto kSamstag = "2026-11-21T19:30:00";
    static constexpr auto kUnlesbar =
        "info|Tombrix|Die Ziehungsdatei SALOTTO.DAT kann nicht ganz gelesen werden (lesbare Ziehungen: 1). Es wurde "
        "nichts gespeichert.\nKorrigieren Sie die Datei mit einem Editor. Die Strukturprüfung nennt die fehlerhaften "
        "Datensätze.";
    static constexpr auto kMittwoch = "2026-11-18T19:30:00";

    void oeffneAm(const char* zeit)
    {
        buehne.uhr.stelle(std::string_view(zeit));
        oeffne("frmAnzeige");
    }
    void tippeZahlen(const QList<int>& zahlen)
    {
        for (const int zahl : zahlen)
            klicke(QString("Label6(%1)").arg(zahl));
    }
    QByteArray inhalt(const char* name) const
    {
        QFile datei(ordner.filePath(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    QStringList zahlen()
    {
        QStringList texte;
        for (int i = 1; i <= 6; ++i)
            texte << lies(QString("lblZ(%1)").arg(i));
        return texte;
    }
    QWidget* feld(const QString& name) { return qobject_cast<QWidget*>(bedienung.finde(name)); }
    void lege(const char* name, const QByteArray& bytes) const
    {
        QFile datei(ordner.filePath(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(bytes);
    }
    /// Enters a draw and saves it, with a "Ja" to the question.
    void speichere()
    {
        tippeZahlen({3, 12, 24, 33, 41, 49});
        setze("cmbSZ", "0");
        buehne.boxen.antworte("yes");
        klicke("Befehl8");
    }
    int letzteZeile() { return bedienung.anzahl("Liste1").zeilen.value(0).toInt() - 1; }
};

TEST_F(Anzeigebildschirm, ZeigtDieLetzteZiehungUndSchlaegtDieNaechsteVor)
{
    starte();
    oeffneAm(kFreitag);
    const int anzahl = buehne.archiv.AnzahlZiehungen;
    EXPECT_EQ(titel(), "Neue Ziehungen eingeben (Aktualisieren), gespeicherte Ziehungen anzeigen.");
    EXPECT_EQ(lies("Bezeichnung13"), "SAMSTAGSLOTTO 6 aus 49");
    EXPECT_EQ(lies("Kombi1"), "2026");
    EXPECT_EQ(lies("Kombi2"), "47");
    EXPECT_EQ(bedienung.eintraege("Kombi1").zeilen.first(), "2027");
    EXPECT_EQ(bedienung.eintraege("Kombi1").zeilen.size(), 101);
    EXPECT_EQ(lies("Bezeichnung2"), " Gespeicherte Ziehungen von 1955/41 bis 2026/46 -");
    EXPECT_EQ(lies("bezeichnung23"), QString("Ziehung %1  (von %1 gespeicherten)").arg(anzahl));
    EXPECT_EQ(lies("lblDate"), "Sa, 14.11.2026");
    EXPECT_EQ(bedienung.gewaehlte("Liste1").zeilen, QStringList{QString::number(anzahl - 1)});
    EXPECT_FALSE(bedienbar("Befehl8"));
    EXPECT_FALSE(bedienbar("Befehl9"));
}

TEST_F(Anzeigebildschirm, AmSamstagSchaltetErSelbstAufSamstagslotto)
{
    starte();
    klicke("Option2");
    oeffneAm(kSamstag);
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(lies("Bezeichnung13"), "SAMSTAGSLOTTO 6 aus 49");
    schliesse();
    EXPECT_TRUE(zustand("Option1").contains("checked=true"));
}

TEST_F(Anzeigebildschirm, AmMittwochSchaltetErAufMittwochslotto)
{
    starte();
    oeffneAm(kMittwoch);
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(lies("Bezeichnung2"), " Gespeicherte Ziehungen von 1986/23 bis 2026/46 -");
}

TEST_F(Anzeigebildschirm, BlaettertDurchDieZiehungen)
{
    starte();
    oeffneAm(kFreitag);
    setze("HBildlauf1", "1");
    EXPECT_EQ(lies("Text1"), "1955");
    EXPECT_EQ(lies("Text2"), "41");
    EXPECT_EQ(lies("Text9"), "-");
    EXPECT_EQ(lies("Text10"), "-");
    EXPECT_EQ(lies("lblDate"), "So, 09.10.1955");
    setze("HBildlauf1", "1886");
    EXPECT_EQ(lies("Text10"), "-");
    setze("HBildlauf1", "1887");
    EXPECT_EQ(lies("Text10"), QString::number(buehne.archiv.s[1887]));
    EXPECT_EQ(lies("Text9").toInt(), buehne.archiv.zz[1887]);
}

TEST_F(Anzeigebildschirm, DasTippmusterZeigtDieZiehungUndEinKlickBeendetEs)
{
    starte();
    oeffneAm(kFreitag);
    setze("chkTippfeld", "on");
    setze("HBildlauf1", "2000");
    for (const int zahl : buehne.archiv.gewinnzahlen(2000))
        EXPECT_TRUE(zustand(QString("Label6(%1)").arg(zahl)).contains("back=#00ffff")) << zahl;
    EXPECT_EQ(lies("lblSZ"), QString::number(buehne.archiv.s[2000]));
    EXPECT_EQ(lies("cmbSZ"), lies("lblSZ"));
    EXPECT_EQ(zahlen(), QStringList(6, ""));
    EXPECT_FALSE(bedienbar("Befehl8"));
    setze("HBildlauf1", "100");
    EXPECT_EQ(lies("lblSZ"), "-");
    EXPECT_EQ(lies("cmbSZ"), "");
    klicke(QString("Label6(%1)").arg(buehne.archiv.z1[100]));
    EXPECT_TRUE(zustand("chkTippfeld").contains("checked=false"));
    EXPECT_EQ(zahlen().last(), "");
}

TEST_F(Anzeigebildschirm, EineGezeigteZiehungWirdNichtZurEingabe)
{
    starte();
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("chkTippfeld", "on");
    setze("cmbSZ", "4");
    EXPECT_EQ(lies("lblSZ"), "4");
    EXPECT_EQ(zahlen(), QStringList(6, ""));
    EXPECT_FALSE(bedienbar("Befehl8"));
    setze("chkTippfeld", "off");
    EXPECT_EQ(lies("lblSZ"), "");
    EXPECT_EQ(lies("cmbSZ"), "");
    for (int zahl = 1; zahl <= 49; ++zahl)
        EXPECT_TRUE(zustand(QString("Label6(%1)").arg(zahl)).contains("bold=false")) << zahl;
    setze("cmbSZ", "4");
    EXPECT_FALSE(bedienbar("Befehl8"));
}

TEST_F(Anzeigebildschirm, ListeUndBildlaufZeigenDieselbeZiehung)
{
    starte();
    oeffneAm(kFreitag);
    setze("chkTippfeld", "on");
    waehle("Liste1", {1999});
    EXPECT_EQ(lies("HBildlauf1"), "2000");
    EXPECT_EQ(lies("Text1"), QString::number(buehne.archiv.jjjj[2000]));
    EXPECT_TRUE(lies("bezeichnung23").startsWith("Ziehung 2000  (von "));
    EXPECT_TRUE(zustand(QString("Label6(%1)").arg(buehne.archiv.z6[2000])).contains("bold=true"));
    tippe("Liste1", "Down");
    EXPECT_EQ(lies("HBildlauf1"), "2001");
    tippe("Liste1", "Home");
    EXPECT_EQ(lies("lblDate"), "So, 09.10.1955");
    setze("HBildlauf1", "100");
    EXPECT_EQ(bedienung.gewaehlte("Liste1").zeilen, QStringList{"99"});
    setze("chkTippfeld", "off");
    tippeZahlen({3, 12, 24, 33, 41, 49});
    waehle("Liste1", {4});
    EXPECT_EQ(zahlen(), (QStringList{"3", "12", "24", "33", "41", "49"})) << "browsing leaves the entry alone";
}

TEST_F(Anzeigebildschirm, DieFelderDerGezeigtenZiehungSindNurZumLesen)
{
    starte();
    oeffneAm(kFreitag);
    for (int i = 1; i <= 10; ++i) {
        const QString name = QString("Text%1").arg(i);
        EXPECT_FALSE(feld(name)->focusPolicy() & Qt::TabFocus) << i;
        EXPECT_FALSE(zustand(name).contains("back=#ffffff")) << i;
        EXPECT_FALSE(bedienung.setze(name, "1").gelungen()) << i;
    }
    EXPECT_EQ(feld("Label6(1)")->window()->focusWidget(), feld("Label6(1)")->parentWidget()) << "the entry comes first";
}

TEST_F(Anzeigebildschirm, VonEinerDateiDieNichtMehrLaedtBleibtNichtsStehen)
{
    starte();
    oeffneAm(kFreitag);
    setze("chkTippfeld", "on");
    const QString zelle = QString("Label6(%1)").arg(buehne.archiv.z1[1]);
    setze("HBildlauf1", "1");
    EXPECT_TRUE(zustand(zelle).contains("bold=true"));
    schreibe("SALOTTO.DAT", {"kaputt"});
    klicke("cmdNotepad");
    klicke("Befehl9");
    EXPECT_EQ(lies("bezeichnung23"), "Ziehung 0  (von 0 gespeicherten)");
    EXPECT_EQ(lies("Text1"), "");
    EXPECT_TRUE(zustand(zelle).contains("bold=false"));
    EXPECT_EQ(letzteZeile(), -1);
}

TEST_F(Anzeigebildschirm, DieListeHaeltEinArchivAusDasKleinerGewordenIst)
{
    starte();
    oeffneAm(kFreitag);
    buehne.archiv.AnzahlZiehungen = 2;
    buehne.archiv.jjjj.resize(3);
    EXPECT_TRUE(bedienung.zeilen("Liste1", 1, 1).zeilen.value(0).startsWith("0002    "));
    EXPECT_EQ(bedienung.zeilen("Liste1", 2, 1).zeilen, QStringList(""));
}

TEST_F(Anzeigebildschirm, DerKnopfZumSpeichernBleibtBeiDerEingabe)
{
    starte();
    oeffneAm(kFreitag);
    const auto abstand = [this] {
        const QWidget* woche = feld("Kombi2");
        return feld("Befehl8")->geometry().top() - woche->geometry().bottom();
    };
    const int vorher = abstand();
    const int breite = feld("Befehl8")->width();
    feld("Befehl8")->window()->resize(1900, 1000);
    QCoreApplication::processEvents();
    EXPECT_EQ(abstand(), vorher);
    EXPECT_EQ(feld("Befehl8")->width(), breite);
}

TEST_F(Anzeigebildschirm, SpeichernGehtErstMitSechsZahlenUndSuperzahl)
{
    starte();
    oeffneAm(kFreitag);
    tippeZahlen({49, 3, 12, 24, 33});
    setze("cmbSZ", "7");
    EXPECT_FALSE(bedienbar("Befehl8"));
    tippeZahlen({41});
    EXPECT_TRUE(bedienbar("Befehl8"));
    EXPECT_EQ(zahlen(), (QStringList{"3", "12", "24", "33", "41", "49"}));
    tippeZahlen({7});
    EXPECT_EQ(zahlen(), (QStringList{"3", "12", "24", "33", "41", "49"})) << "a seventh number changes nothing";
    tippeZahlen({41});
    EXPECT_FALSE(bedienbar("Befehl8"));
    klicke("cmdClear");
    EXPECT_EQ(zahlen(), QStringList(6, ""));
}

TEST_F(Anzeigebildschirm, AltSSpeichertUndSchaltetNichtUm)
{
    starte();
    oeffneAm(kFreitag);
    EXPECT_EQ(lies("Befehl7"), "&Samstagslotto aktualisieren");
    klicke("Befehl10");
    tippeZahlen({3, 12, 24, 33, 41, 49});
    drueckeKuerzel("frmAnzeige", "Alt+S");
    EXPECT_EQ(boxen().size(), 0);
    setze("cmbSZ", "0");
    drueckeKuerzel("frmAnzeige", "Alt+S");
    EXPECT_TRUE(boxen().value(0).startsWith("question|Lottoprogramm Kontroll-Abfrage|"));
    EXPECT_EQ(lies("Bezeichnung13"), "MITTWOCHSLOTTO 6 aus 49");
}

TEST_F(Anzeigebildschirm, SpeichertNachDerFrageUndRuecktWeiter)
{
    schreibe("sa-mi-mib.dat", {"1"});
    starte();
    const QByteArray vorher = inhalt("SALOTTO.DAT");
    const int anzahl = buehne.archiv.AnzahlZiehungen;
    oeffneAm(kSamstag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "7");
    buehne.boxen.antworte("yes");
    klicke("Befehl8");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher + "2026,47,03,12,24,33,41,49,00,7\r\n");
    EXPECT_EQ(inhalt("sa-mi-mib.dat"), "1\r\n2026,47,03,12,24,33,41,49,00,7,Sa,Sa, 21.11.2026\r\n");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, anzahl + 1);
    EXPECT_EQ(lies("Kombi2"), "48");
    EXPECT_EQ(zahlen(), QStringList(6, ""));
    EXPECT_EQ(lies("lblSZ"), "");
    EXPECT_FALSE(bedienbar("Befehl8"));
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 2);
    EXPECT_TRUE(gezeigt[0].startsWith("question|Lottoprogramm Kontroll-Abfrage|Sind die eingegebenen neuen"));
    EXPECT_TRUE(gezeigt[0].contains("Eingestellte Spielart:             ***  SAMSTAGSLOTTO 6 aus 49  ***"));
    EXPECT_TRUE(gezeigt[0].contains("Aktive Ziehungsdatei ist:     SALOTTO.DAT"));
    EXPECT_TRUE(gezeigt[0].contains("Neuer Datensatz:                    2026,47,03,12,24,33,41,49  SZ:7"));
    EXPECT_EQ(gezeigt[1],
              "info|Lotto-Info|Die Gewinnzahlen der letzten Spielwoche wurden in Datei SALOTTO.DAT gespeichert !");
}

TEST_F(Anzeigebildschirm, NeinLaesstAllesWieEsIst)
{
    starte();
    const QByteArray vorher = inhalt("SALOTTO.DAT");
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "0");
    buehne.boxen.antworte("no");
    klicke("Befehl8");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher);
    EXPECT_EQ(zahlen(), (QStringList{"3", "12", "24", "33", "41", "49"}));
    EXPECT_TRUE(bedienbar("Befehl8"));
}

TEST_F(Anzeigebildschirm, OhneSicherungGehtDasSpeichernStillWeiter)
{
    starte();
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "0");
    buehne.boxen.antworte("yes");
    klicke("Befehl8");
    EXPECT_FALSE(QFile::exists(ordner.filePath("sa-mi-mib.dat")));
    EXPECT_EQ(boxen().size(), 2);
}

TEST_F(Anzeigebildschirm, EinFalschesJahrSpeichertNichts)
{
    starte();
    const QByteArray vorher = inhalt("SALOTTO.DAT");
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "0");
    for (const char* jahr : {"abcd", "", "26", "20266", "-999", "02026", "+999"}) {
        setze("Kombi1", jahr);
        klicke("Befehl8");
        EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !"}) << jahr;
    }
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher);
}

TEST_F(Anzeigebildschirm, EinSchreibfehlerMeldetSichUndAendertNichts)
{
    starte();
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "0");
    const int anzahl = buehne.archiv.AnzahlZiehungen;
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    QDir(ordner.path()).mkdir("SALOTTO.DAT");
    buehne.boxen.antworte("yes");
    klicke("Befehl8");
    EXPECT_EQ(boxen().value(1), "info|Tombrix|Fehler beim Schreiben! Mögliche Ursachen:\n"
                                "1. Die Ziehungsdateien befinden sich auf einen schreibgeschützten Datenträger.\n"
                                "2. Sie besitzen nicht die erforderlichen Rechte um in diesen Ordner zu schreiben.");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, anzahl);
    EXPECT_TRUE(bedienbar("Befehl8"));
}

TEST_F(Anzeigebildschirm, NachMittwochBGehtNichtsInEineAndereDatei)
{
    starte();
    const QByteArray samstag = inhalt("SALOTTO.DAT");
    const QByteArray mittwoch = inhalt("MALOTTO.DAT");
    const QByteArray mittwochB = inhalt("MBLOTTO.DAT");
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "5");
    klicke("Befehl11");
    buehne.boxen.antworte("yes");
    klicke("Befehl8");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), samstag);
    EXPECT_EQ(inhalt("MALOTTO.DAT"), mittwoch);
    EXPECT_EQ(inhalt("MBLOTTO.DAT"), mittwochB + "2000,49,03,12,24,33,41,49,00,5\r\n");
    klicke("Befehl7");
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(lies("lblArt"), "Aktive Ziehungsdatei: SALOTTO.DAT");
}

TEST_F(Anzeigebildschirm, DerWechselDerSpielartBehaeltDieEingabe)
{
    starte();
    oeffneAm(kFreitag);
    tippeZahlen({3, 12, 24, 33, 41, 49});
    setze("cmbSZ", "5");
    for (const auto& [knopf, woche] : {std::pair("Befehl10", "47"), std::pair("Befehl11", "49"),
                                       std::pair("Befehl7", "47"), std::pair("cmdNotepad", "47")}) {
        SCOPED_TRACE(knopf);
        klicke(knopf);
        EXPECT_EQ(zahlen(), (QStringList{"3", "12", "24", "33", "41", "49"}));
        EXPECT_EQ(lies("lblSZ"), "5");
        EXPECT_EQ(lies("Kombi2"), woche);
        EXPECT_TRUE(bedienbar("Befehl8"));
    }
    klicke("Befehl9");
    EXPECT_EQ(zahlen().last(), "49");
    EXPECT_TRUE(bedienbar("Befehl8"));
}

TEST_F(Anzeigebildschirm, DieSpielartHeisstNachDemSpeichernWieVorher)
{
    starte();
    klicke("Option3");
    oeffneAm(kFreitag);
    const auto speichere = [this] {
        tippeZahlen({3, 12, 24, 33, 41, 49});
        setze("cmbSZ", "5");
        buehne.boxen.antworte("yes");
        klicke("Befehl8");
        return boxen().value(0);
    };
    EXPECT_TRUE(speichere().contains("***  MITTWOCHSLOTTO(B) 6 aus 49  ***"));
    EXPECT_EQ(lies("Bezeichnung13"), "MITTWOCHSLOTTO(B) 6 aus 49");
    klicke("Befehl11");
    EXPECT_TRUE(speichere().contains("***  MITTWOCHSLOTTO (B)  ***"));
    EXPECT_EQ(lies("Bezeichnung13"), "MITTWOCHSLOTTO (B)");
    klicke("cmdNotepad");
    klicke("Befehl9");
    EXPECT_EQ(lies("Bezeichnung13"), "MITTWOCHSLOTTO (B)");
}

TEST_F(Anzeigebildschirm, DatenDateiErzeugenNormtUndBehaeltDieAlte)
{
    schreibe("SALOTTO.DAT", {"1955,41, 3,12,13,16,23,41,0,0"});
    starte();
    oeffneAm(kFreitag);
    klicke("Befehl12");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), "1955,41,03,12,13,16,23,41,00,0\r\n");
    EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), "1955,41, 3,12,13,16,23,41,0,0\r\n");
}

TEST_F(Anzeigebildschirm, EineKaputteDateiWirdNichtNeuErzeugt)
{
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "kaputt"});
    starte();
    const QByteArray vorher = inhalt("SALOTTO.DAT");
    oeffneAm(kFreitag);
    EXPECT_EQ(letzteZeile(), -1);
    klicke("Befehl12");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher);
    EXPECT_FALSE(QFile::exists(ordner.filePath("SALOTTO.DAT.alt")));
    EXPECT_EQ(boxen(), QStringList{kUnlesbar});
    EXPECT_FALSE(titel().contains("erzeugt"));
}

TEST_F(Anzeigebildschirm, InEineKaputteDateiWirdNichtGespeichert)
{
    starte();
    oeffneAm(kFreitag);
    const QByteArray vorher = "1955,41,03,12,13,16,23,41,00,0\r\nkaputt\r\n";
    lege("SALOTTO.DAT", vorher);
    speichere();
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher);
    EXPECT_EQ(boxen().value(1), kUnlesbar);
    EXPECT_TRUE(bedienbar("Befehl8")) << "what was entered is still there";
}

TEST_F(Anzeigebildschirm, HinterLeerzeilenUndStrgZWirdDieZiehungGespeichert)
{
    for (const char* rest : {"\r\n\r\n", "   ", "\x1A"}) {
        lege("SALOTTO.DAT", QByteArray("1955,41,03,12,13,16,23,41,00,0\r\n") + rest);
        starte();
        oeffneAm(kFreitag);
        speichere();
        EXPECT_EQ(inhalt("SALOTTO.DAT"), "1955,41,03,12,13,16,23,41,00,0\r\n1955,42,03,12,24,33,41,49,00,0\r\n");
        EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
        EXPECT_TRUE(boxen().value(1).endsWith("gespeichert !"));
        schliesse();
    }
}

TEST_F(Anzeigebildschirm, DateiErzeugenSchreibtDenNamenGross)
{
    starte();
    QFile::rename(ordner.filePath("SALOTTO.DAT"), ordner.filePath("Salotto.dat"));
    const QByteArray vorher = inhalt("Salotto.dat");
    oeffneAm(kFreitag);
    klicke("Befehl12");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher);
    EXPECT_FALSE(QDir(ordner.path()).entryList(QDir::Files).contains("Salotto.dat"));
    EXPECT_EQ(titel(), "Die Datei SALOTTO.DAT wurde erzeugt.");
}

TEST_F(Anzeigebildschirm, WasEinAnderesProgrammGespeichertHatBleibtUndWirdGezeigt)
{
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0"});
    starte();
    oeffneAm(kFreitag);
    const QByteArray mehr = "1955,41,03,12,13,16,23,41,00,0\r\n1955,42,03,12,18,30,32,49,00,0\r\n";
    lege("SALOTTO.DAT", mehr);
    klicke("Befehl12");
    EXPECT_EQ(inhalt("SALOTTO.DAT"), mehr);
    EXPECT_EQ(letzteZeile(), 1);
    EXPECT_EQ(lies("Kombi2"), "43");
}

/// Another program holds the file and lets it go after a while. Meanwhile the screen lives, but takes nothing more.
TEST_F(Anzeigebildschirm, SpeichertWennDasAndereProgrammFertigIst)
{
    starte();
    oeffneAm(kFreitag);
    const int anzahl = buehne.archiv.AnzahlZiehungen;
    auto fremde = Dateisperre::nimm(ordner.filePath("SALOTTO.DAT").toStdString(), 0ms);
    int zuege = 0;
    bool nahmEingaben = false;
    buehne.pumpe.beiZug = [&] {
        nahmEingaben |= bedienbar("Befehl8") || bedienbar("Befehl10");
        if (++zuege == 5)
            fremde.reset();
    };
    speichere();
    EXPECT_EQ(zuege, 5);
    EXPECT_FALSE(nahmEingaben);
    EXPECT_TRUE(bedienbar("Befehl10"));
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, anzahl + 1);
    EXPECT_TRUE(boxen().value(1).endsWith("in Datei SALOTTO.DAT gespeichert !"));
}

TEST_F(Anzeigebildschirm, SolangeEinAnderesProgrammSchreibtMeldetErDas)
{
    starte();
    const QByteArray vorher = inhalt("SALOTTO.DAT");
    oeffneAm(kFreitag);
    const auto fremde = Dateisperre::nimm(ordner.filePath("SALOTTO.DAT").toStdString(), 0ms);
    speichere();
    EXPECT_EQ(inhalt("SALOTTO.DAT"), vorher);
    EXPECT_EQ(boxen().value(1), "info|Tombrix|Die Ziehungsdatei SALOTTO.DAT wird gerade von einem anderen Programm "
                                "geändert. Es wurde nichts gespeichert.\nBitte versuchen Sie es noch einmal.");
    EXPECT_TRUE(bedienbar("Befehl8")) << "what was entered is still there";
}

TEST_F(Anzeigebildschirm, EditorGibtNeuLadenFrei)
{
    starte();
    oeffneAm(kFreitag);
    klicke("cmdNotepad");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{ordner.filePath("SALOTTO.DAT")});
    EXPECT_TRUE(bedienbar("Befehl9"));
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0"});
    klicke("Befehl9");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 1);
    EXPECT_EQ(lies("Kombi2"), "42");
    EXPECT_FALSE(bedienbar("Befehl9"));
    buehne.oeffner.scheitert = true;
    klicke("Befehl3");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|ERROR 53: MS-Write wurde nicht gefunden. Verwenden Sie einen  "
                                   "vorhandenen ASCII-Text-Editor um die Datei SALOTTO.DAT zu aktualisieren."});
    EXPECT_FALSE(bedienbar("Befehl9"));
}

TEST_F(Anzeigebildschirm, HilfeInfoUndHinweise)
{
    starte();
    oeffneAm(kFreitag);
    klicke("Befehl5");
    EXPECT_TRUE(boxen().value(0).contains("Es gibt Spieljahre mit 52 oder 53 Spielwochen."));
    const QSize vorher = feld("Befehl2")->window()->size();
    klicke("Befehl2");
    EXPECT_FALSE(sichtbar("Rahmen1"));
    EXPECT_TRUE(lies("Text11").startsWith("Ablauf der Aktualisierung: \nStep 1:"));
    EXPECT_EQ(lies("Text11").count('\n'), 19);
    EXPECT_TRUE(feld("Frame1")->parentWidget()->rect().contains(feld("Frame1")->geometry()));
    EXPECT_EQ(feld("Frame1")->window()->size(), vorher);
    klicke("Command1");
    EXPECT_TRUE(sichtbar("Rahmen1"));
    klicke("Befehl2");
    tippe("Command1", "Esc");
    EXPECT_FALSE(sichtbar("Frame1"));
    EXPECT_TRUE(sichtbar("Rahmen1"));
    ueberfahre("Befehl10");
    EXPECT_EQ(titel(), "Auf die Spielart Mittwochslotto schalten, um die Ziehungsdatei  Malotto.dat zu aktualisieren.");
    ueberfahre("cmdNotepad");
    EXPECT_EQ(titel(), "Korrigieren oder Aktualisieren der Datei SALOTTO.DAT mit Notepad.exe");
}

} // namespace
