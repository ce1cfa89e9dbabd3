// What one screen does and another one shows: the whole program over several screens.

#include "engines/screens/frmAlleKombis.h"
#include "engines/screens/frmTreffer.h"
#include "engines/screens/frmZusammenFUENFW.h"
#include "engines/screens/frmZusammenHGDV.h"
#include "testhilfen/Testserver.h"
#include "testhilfen/Programmbuehne.h"

#include <QDir>
#include <QFile>

namespace {

constexpr auto kFreitag = "2026-11-20T10:00:00";

class Zusammenspiel : public Programmbuehne {
protected:
    QByteArray inhalt(const QString& name) const
    {
        QFile datei(ordner.filePath(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    /// Opens the browser on a day without a draw, and saves the draw that it proposes.
    void oeffneAnzeige()
    {
        buehne.uhr.stelle(std::string_view(kFreitag));
        oeffne("frmAnzeige");
    }
    void speichereZiehung()
    {
        for (const int zahl : {4, 8, 15, 16, 23, 42})
            klicke(QString("Label6(%1)").arg(zahl));
        setze("cmbSZ", "7");
        buehne.boxen.antworte("yes");
        klicke("Befehl8");
    }
    QString status() { return lies("Bezeichnung2"); }
    static QString letzteZiehung(const QString& datei, const QString& ziehung)
    {
        return "*** Letzte eingetragene Ziehung in Gewinnzahl-Datei (" + datei + ") ->  " + ziehung + " ***";
    }
};

class Menuestatus : public Zusammenspiel {};

TEST_F(Menuestatus, NenntDieVonHandEingegebeneZiehung)
{
    starte();
    EXPECT_EQ(status(), letzteZiehung("SALOTTO.DAT; Samstagslotto", "2026/46 vom Sa, 14.11.2026"));
    oeffneAnzeige();
    speichereZiehung();
    schliesse();
    const QString neu = letzteZiehung("SALOTTO.DAT; Samstagslotto", "2026/47 vom Sa, 21.11.2026");
    EXPECT_EQ(status(), neu);
    ueberfahre("Befehl2");
    ueberfahre("RahmenSpielart");
    EXPECT_EQ(status(), neu);
}

TEST_F(Menuestatus, NenntDasSpielAufDasDieEingabeGeschaltetHat)
{
    starte();
    oeffneAnzeige();
    klicke("Befehl10");
    speichereZiehung();
    schliesse();
    EXPECT_TRUE(zustand("Option2").contains("checked=true"));
    EXPECT_EQ(status(), letzteZiehung("MALOTTO.DAT; Mittwochslotto A", "2026/47 vom Mi, 18.11.2026"));
}

// The option stays where it was then: the line goes by the file that is loaded.
TEST_F(Menuestatus, NenntDieDateiBAuchWennDieOptionStehenBleibt)
{
    starte();
    oeffneAnzeige();
    klicke("Befehl11");
    schliesse();
    EXPECT_TRUE(zustand("Option1").contains("checked=true"));
    const QString b = letzteZiehung("MBLOTTO.DAT; Mittwochslotto B", "2000/48 vom Mi, 29.11.2000");
    EXPECT_EQ(status(), b);
    ueberfahre("Rahmen1");
    EXPECT_EQ(status(), b);
    klicke("Option1");
    EXPECT_EQ(status(), letzteZiehung("SALOTTO.DAT; Samstagslotto", "2026/46 vom Sa, 14.11.2026"));
}

TEST_F(Menuestatus, NenntDieVomServerGeholteZiehung)
{
    Testserver server;
    server.setze("/lotto/Salotto.dat",
                 antworte((inhalt("SALOTTO.DAT") + "2026,47,01,02,03,14,25,49,00,7\r\n").toStdString()));
    server.setze("/lotto/Malotto.dat",
                 antworte((inhalt("MALOTTO.DAT") + "2026,47,01,02,03,14,25,49,00,7\r\n").toStdString()));
    starte();
    for (const auto& [start, feld, pfad, erwartet] :
         {std::tuple("cmdStart(1)", "txtSa", "/lotto/Salotto.dat",
                     letzteZiehung("SALOTTO.DAT; Samstagslotto", "2026/47 vom Sa, 21.11.2026")),
          std::tuple("cmdStart(2)", "txtMa", "/lotto/Malotto.dat",
                     letzteZiehung("MALOTTO.DAT; Mittwochslotto A", "2026/47 vom Mi, 18.11.2026"))}) {
        oeffne("frmOnline");
        setze(feld, QString::fromStdString(server.url(pfad)));
        klicke(start);
        schliesse();
        EXPECT_EQ(status(), erwartet) << start;
    }
}

/// A combined tool with one of its files gone: the search runs over no draws.
class OhneDatei : public Zusammenspiel {
protected:
    void oeffneOhne(const QString& datei, const QString& bildschirm)
    {
        starte();
        QFile::remove(ordner.filePath(datei));
        oeffne(bildschirm);
        EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Datei " + QDir(ordner.path()).absolutePath() + "/" + datei +
                                       " wurde nicht gefunden!"});
        EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
    }
    void erwarteOhneStand()
    {
        for (const char* feld : {"lblZ(0)", "lblZ(1)", "lblZ(2)"})
            EXPECT_EQ(lies(feld), "-") << feld;
    }
    template <class Schirm> Schirm& schirm(const char* name) const
    {
        return dynamic_cast<Schirm&>(*buehne.bildschirme.geladen(name));
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 20'000).zeilen; }
};

TEST_F(OhneDatei, SuchtFrmZusammenHGDVInKeinerZiehung)
{
    oeffneOhne("MBLOTTO.DAT", "frmZusammenHGDV");
    erwarteOhneStand();
    EXPECT_FALSE(titel().contains(" Ziehungen von "));
    klicke("cmdKombiSuche(2)");
    EXPECT_EQ(schirm<frmZusammenHGDV>("frmZusammenHGDV").ergebnis().NieGezogen, 1176);
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    klicke("cmdKombiSuche(6)");
    klicke("Befehl6");
    EXPECT_TRUE(buehne.zwischenablage.text().contains("Anzahl der ausgewerteten Ziehungen: 0\r\n"));
}

TEST_F(OhneDatei, SuchtFrmZusammenFUENFWInKeinerZiehung)
{
    oeffneOhne("MALOTTO.DAT", "frmZusammenFÜNFW");
    erwarteOhneStand();
    klicke("Befehl11");
    EXPECT_TRUE(zeilen("Liste7").isEmpty());
    EXPECT_TRUE(schirm<frmZusammenFÜNFW>("frmZusammenFÜNFW").ergebnis(2).mehrfache.empty());
    klicke("cmdNGD");
    EXPECT_EQ(lies("lblNGD"), "18424");
}

TEST_F(OhneDatei, VergleichtFrmTrefferMitKeinerZiehung)
{
    oeffneOhne("MALOTTO.DAT", "frmTreffer");
    erwarteOhneStand();
    klicke("Command1");
    EXPECT_EQ(schirm<frmTreffer>("frmTreffer").ergebnis().AnzahlZiehungen, 0U);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    for (const char* liste : {"lstDrei", "lstVier", "lstFuenf"})
        EXPECT_TRUE(zeilen(liste).isEmpty()) << liste;
}

TEST_F(OhneDatei, ZeigtFrmAlleKombisKeineTreffer)
{
    oeffneOhne("MBLOTTO.DAT", "frmAlleKombis");
    erwarteOhneStand();
    for (const Kombinationszeile& zeile : schirm<frmAlleKombis>("frmAlleKombis").seite())
        EXPECT_EQ(zeile.zaehler.Gewinnfaelle(), 0);
    waehle("List1", {3});
    EXPECT_EQ(lies("lblDetail"), "Anzahl der Gewinnfälle: 0");
    klicke("chkArt(2)");
    EXPECT_GT(buehne.archiv.AnzahlZiehungen, 5000);
}

TEST_F(OhneDatei, KehrtDasMenueZurEinenDateiZurueck)
{
    oeffneOhne("MBLOTTO.DAT", "frmAlleKombis");
    schliesse();
    klicke("Option1");
    EXPECT_EQ(status(), letzteZiehung("SALOTTO.DAT; Samstagslotto", "2026/46 vom Sa, 14.11.2026"));
    EXPECT_GT(buehne.archiv.AnzahlZiehungen, 3000);
}

} // namespace
