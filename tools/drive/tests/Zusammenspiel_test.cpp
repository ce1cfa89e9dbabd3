// What one screen does and another one shows: the whole program over several screens.

#include "testhilfen/Programmbuehne.h"
#include "testhilfen/Testserver.h"

#include <QFile>

namespace {

constexpr auto kFreitag = "2026-11-20T10:00:00";

/// The status line of the menu, after what the tools have done to the archive.
class Menuestatus : public Programmbuehne {
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

TEST_F(Menuestatus, GehtNachEinemWerkzeugOhneZiehungenWiederNachDerEinenDatei)
{
    starte();
    QFile::remove(ordner.filePath("MBLOTTO.DAT"));
    oeffne("frmAlleKombis");
    ASSERT_EQ(buehne.archiv.AnzahlZiehungen, 0);
    schliesse();
    EXPECT_TRUE(sichtbar("frameRollo"));
    klicke("Option1");
    EXPECT_EQ(status(), letzteZiehung("SALOTTO.DAT; Samstagslotto", "2026/46 vom Sa, 14.11.2026"));
}

} // namespace
