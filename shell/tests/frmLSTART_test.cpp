#include "shell/app/Menuetafel.h"
#include "shell/app/frmLSTART.h"
#include "shell/elements/Bildschirm.h"
#include "testhilfen/Programmbuehne.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <cmath>
#include <functional>
#include <set>

namespace {

/// A tool that is there only to be opened.
class Werkzeug final : public Bildschirm {
public:
    explicit Werkzeug(Umgebung& umgebung, const QString& name) : Bildschirm(umgebung, name, name) {}
    void druckeStart() override { ++gestartet; }
    int gestartet = 0;
    int* geschlossen = nullptr;

protected:
    void beimSchliessen() override
    {
        if (geschlossen)
            ++*geschlossen;
    }
};

void registriereWerkzeug(BildschirmVerzeichnis& bildschirme, const QString& name)
{
    bildschirme.registriere(name, [name](Umgebung& umgebung) { return std::make_unique<Werkzeug>(umgebung, name); });
}

class Auswahlmenue : public Programmbuehne {
protected:
    void registriere(const QString& name) { registriereWerkzeug(buehne.bildschirme, name); }

    QString status() { return lies("Bezeichnung2"); }
    const QString samstag = "*** Letzte eingetragene Ziehung in Gewinnzahl-Datei (SALOTTO.DAT; Samstagslotto) ->  "
                            "2026/46 vom Sa, 14.11.2026 ***";
};

/// A program that has two of its tools.
class MenueFastOhneWerkzeuge : public Archivbuehne {
protected:
    MenueFastOhneWerkzeuge()
        : Archivbuehne([](BildschirmVerzeichnis& bildschirme) {
              bildschirme.registriere<frmLSTART>("frmLSTART");
              registriereWerkzeug(bildschirme, "frmOnline");
              registriereWerkzeug(bildschirme, "frmTA");
          })
    {}
    void starte() override { starteProgramm(buehne.umgebung); }
    QString status() { return lies("Bezeichnung2"); }
};

TEST_F(Auswahlmenue, RaeumtBeimStartAufWasGetoeteteProgrammeLiessen)
{
    schreibe(".neu-99999999-0.tmp", {"1955,41,03,12,13,16,23,41,00,0"}); // no process can have this number
    schreibe(QString(".neu-%1-0.tmp").arg(QCoreApplication::applicationPid()), {"lebt"});
    starte();
    EXPECT_FALSE(QFile::exists(ordner.filePath(".neu-99999999-0.tmp")));
    EXPECT_TRUE(QFile::exists(ordner.filePath(QString(".neu-%1-0.tmp").arg(QCoreApplication::applicationPid()))));
}

TEST_F(Auswahlmenue, BeginntAufSamstagslotto)
{
    starte();
    EXPECT_EQ(titel(), "Lotto-Auswahlmenü");
    EXPECT_TRUE(zustand("Option1").contains("checked=true"));
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(status(), samstag);
    EXPECT_EQ(lies("Bezeichnung3(0)"), "Samstagslotto 6 aus 49");
    EXPECT_EQ(lies("Bezeichnung3(1)"), "Samstagslotto 6 aus 49");
    EXPECT_FALSE(sichtbar("frameRollo"));
}

TEST_F(Auswahlmenue, WechseltDieSpielartUndLaedtNeu)
{
    starte();
    klicke("Option2");
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(lies("Bezeichnung3(1)"), "Mittwochslotto 6 aus 49 ");
    EXPECT_EQ(status(), "*** Letzte eingetragene Ziehung in Gewinnzahl-Datei (MALOTTO.DAT; Mittwochslotto A) ->  "
                        "2026/46 vom Mi, 11.11.2026 ***");
    klicke("Option3");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 757);
    EXPECT_EQ(lies("Bezeichnung3(1)"), "Mittwochslotto 6 aus 49 (B)");
    EXPECT_EQ(status(), "*** Letzte eingetragene Ziehung in Gewinnzahl-Datei (MBLOTTO.DAT; Mittwochslotto B) ->  "
                        "2000/48 vom Mi, 29.11.2000 ***");
    klicke("Option1");
    EXPECT_EQ(status(), samstag);
    EXPECT_EQ(titel(), "Lotto-Auswahlmenü");
}

TEST_F(Auswahlmenue, SperrtDreiKnoepfeNurBeiMittwochB)
{
    for (const char* name : {"frmAnzeige", "frmTA", "frmVorschlag"})
        registriere(name);
    starte();
    const QStringList knoepfe{"Befehl3", "Befehl1", "Befehl18"};
    for (const auto& [option, erlaubt] : {std::pair("Option1", true), std::pair("Option3", false),
                                          std::pair("Option2", true), std::pair("Option3", false)}) {
        klicke(option);
        for (const QString& knopf : knoepfe)
            EXPECT_EQ(bedienbar(knopf), erlaubt) << option << knopf.toStdString();
    }
}

TEST_F(MenueFastOhneWerkzeuge, EinGrauerKnopfSagtWarum)
{
    starte();
    EXPECT_TRUE(bedienbar("Command5"));
    EXPECT_FALSE(bedienbar("Befehl11"));
    ueberfahre("Befehl11");
    EXPECT_EQ(status(), "Vergleicht gespeicherte Spielscheine mit allen Ziehungen seit 1955  –  Dieses Werkzeug gehört "
                        "noch nicht zum Programm.");
    ueberfahre("cmdZeileSpalt2");
    EXPECT_EQ(status(), "Dieses Werkzeug gehört noch nicht zum Programm.");
    ueberfahre("Befehl1");
    EXPECT_TRUE(status().endsWith("  –  Dieses Werkzeug gehört noch nicht zum Programm."));
    ueberfahre("Befehl18");
    EXPECT_TRUE(status().endsWith(" Speichert Tip's."));
    klicke("Option3");
    ueberfahre("Befehl18");
    EXPECT_TRUE(
        status().endsWith("  –  Die Ziehung B des Mittwochslottos wurde am 29.11.2000 zum letzten Mal ausgespielt."));
    klicke("Option4");
    ueberfahre("cmdGU");
    EXPECT_TRUE(status().endsWith("  –  Dieses Werkzeug gehört noch nicht zum Programm."));
    klicke("Option3");
    EXPECT_TRUE(bedienbar("Command5"));
    ueberfahre("Befehl2");
    EXPECT_TRUE(status().startsWith("Berechnet die Häufigkeit der Gewinnzahlen seit 1. Ziehung 1986"));
}

TEST_F(Auswahlmenue, ZeigtUeberDerFormWiederDieLetzteZiehung)
{
    starte();
    for (const char* option : {"Option2", "Option3", "Option1"}) {
        klicke(option);
        const QString nachWechsel = status();
        ueberfahre("Befehl2");
        EXPECT_NE(status(), nachWechsel);
        ueberfahre("frmLSTART");
        EXPECT_EQ(status(), nachWechsel) << option;
    }
}

TEST_F(Auswahlmenue, ZeigtSieAuchUeberRahmenLueckenUndKnoepfenOhneHinweis)
{
    starte();
    klicke("Option2");
    const QString mittwoch = status();
    EXPECT_TRUE(mittwoch.contains("MALOTTO.DAT"));
    for (const char* leer : {"RahmenSpielart", "Rahmen1", "GruppeGewinnzahlen", "Bezeichnung2", "Befehl15"}) {
        ueberfahre("Befehl2");
        ueberfahre(leer);
        EXPECT_EQ(status(), mittwoch) << leer;
    }
}

TEST_F(Auswahlmenue, MitDenWerkzeugenFuerAlleBleibtDieZeileUeberRahmenUndLuecken)
{
    starte();
    klicke("Option4");
    ueberfahre("cmdTreffer");
    const QString hinweis = status();
    for (const char* leer : {"frmLSTART", "RahmenSpielart", "frameRollo", "RolloFilter", "txtRollo", "cmdInfo2"}) {
        ueberfahre(leer);
        EXPECT_EQ(status(), hinweis) << leer;
    }
}

TEST_F(Auswahlmenue, EineLeereDateiLaesstDieZeileStehen)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    EXPECT_EQ(status(), "");
    for (const char* leer : {"frmLSTART", "RahmenSpielart", "Befehl15"}) {
        ueberfahre(leer);
        EXPECT_EQ(status(), "") << leer;
    }
    ueberfahre("Befehl2");
    const QString hinweis = status();
    ueberfahre("Rahmen1");
    EXPECT_EQ(status(), hinweis);
}

TEST_F(Auswahlmenue, NachEinemWerkzeugNenntDieZeileDieZiehungDieDasArchivJetztHat)
{
    starte();
    oeffne("frmSTAT1");
    buehne.archiv.AnzahlZiehungen -= 1;
    schliesse();
    EXPECT_TRUE(status().contains(" ->  2026/45 vom Sa, 07.11.2026 ***")) << status().toStdString();
    klicke("Option4");
    const QString vorher = status();
    oeffne("frmAlleKombis");
    schliesse();
    EXPECT_TRUE(sichtbar("frameRollo"));
    EXPECT_EQ(status(), vorher);
}

TEST_F(Auswahlmenue, NachEinemWerkzeugIstDerFokusZuSehenWoErWar)
{
    starte();
    Bildschirm* menue = buehne.bildschirme.geladen("frmLSTART");
    auto* knopf = menue->findChild<QPushButton*>("Befehl4");
    const std::array<std::function<void()>, 3> wege{[this, knopf] {
                                                        knopf->setFocus();
                                                        tippe("Befehl4", "Space");
                                                    },
                                                    [this] { klicke("Befehl4"); }, [knopf] { knopf->click(); }};
    for (const auto& oeffneWerkzeug : wege) {
        menue->findChild<QWidget*>("Option1")->setFocus();
        oeffneWerkzeug();
        ASSERT_FALSE(menue->isVisible());
        schliesse();
        EXPECT_EQ(menue->focusWidget(), knopf);
        EXPECT_TRUE(menue->testAttribute(Qt::WA_KeyboardFocusChange)); // else the style does not draw it
    }
}

TEST_F(Auswahlmenue, ZusammenVerdecktDieWandUndLaesstSpielartUndStatus)
{
    starte();
    klicke("Option2");
    const QString vorher = status();
    klicke("Option4");
    EXPECT_TRUE(sichtbar("frameRollo"));
    EXPECT_FALSE(sichtbar("Befehl10"));
    EXPECT_FALSE(sichtbar("Befehl2"));
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(status(), vorher);
    EXPECT_EQ(lies("txtRollo"), "Mit diesen Programmfunktionen können die Ziehungen des Samstags- und Mittwochslotto "
                                "zusammen ausgewertet werden.");
    ueberfahre("cmdGU");
    const QString hinweis = status();
    EXPECT_TRUE(
        hinweis.startsWith("Sucht Ziehungen mit einem bestimmten Verhältnis gerade zu ungeraden Gewinnzahlen."));
    ueberfahre("frmLSTART");
    EXPECT_EQ(status(), hinweis);
    klicke("Option1");
    EXPECT_FALSE(sichtbar("frameRollo"));
    EXPECT_TRUE(sichtbar("Befehl10"));
}

TEST_F(Auswahlmenue, TipptSechsZahlenBeiJederMausbewegungUeberBeenden)
{
    buehne.zufall.stelle(7);
    starte();
    const QList<int> erster = markierte("Bezeichnung1");
    EXPECT_EQ(erster.size(), 6);
    ueberfahre("Befehl13");
    EXPECT_EQ(status(), "Beendet das Programm.");
    const QList<int> zweiter = markierte("Bezeichnung1");
    EXPECT_EQ(zweiter.size(), 6);
    ueberfahre("Befehl13");
    const QList<int> dritter = markierte("Bezeichnung1");
    EXPECT_EQ(dritter.size(), 6);
    EXPECT_TRUE(erster != zweiter || zweiter != dritter);
    ueberfahre("Befehl2");
    EXPECT_EQ(markierte("Bezeichnung1"), dritter);
}

TEST_F(Auswahlmenue, DerTippNimmtKeineKlicks)
{
    starte();
    const QList<int> vorher = markierte("Bezeichnung1");
    for (int zahl = 1; zahl <= 49; ++zahl)
        klicke(QString("Bezeichnung1(%1)").arg(zahl));
    EXPECT_EQ(markierte("Bezeichnung1"), vorher);
}

TEST_F(Auswahlmenue, OeffnetEinWerkzeugMitKlangUndVerbirgtSich)
{
    starte();
    oeffne("frmSTAT1");
    EXPECT_EQ(buehne.klang.gespielt, std::vector<int>{1});
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    schliesse();
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    EXPECT_EQ(buehne.bildschirme.geladen("frmSTAT1"), nullptr);
}

TEST_F(Auswahlmenue, DruecktDenStartknopfVonExcelUndPdfUndBleibt)
{
    registriere("frmExcel");
    registriere("formConvertToPDF");
    starte();
    klicke("Command10");
    klicke("Command11");
    for (const char* name : {"frmExcel", "formConvertToPDF"}) {
        const auto* werkzeug = dynamic_cast<Werkzeug*>(buehne.bildschirme.geladen(name));
        ASSERT_NE(werkzeug, nullptr) << name;
        EXPECT_EQ(werkzeug->gestartet, 1);
        EXPECT_FALSE(werkzeug->isVisible());
    }
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Auswahlmenue, OeffnetJedesWerkzeugUeberSeinenKnopf)
{
    std::vector<QString> ziele;
    for (const auto* tafel : {&menuewand(), &menuerollo()}) {
        for (const auto& spalte : *tafel) {
            for (const Menuegruppe& gruppe : spalte) {
                for (const Menueknopf& knopf : gruppe.knoepfe) {
                    if (*knopf.ziel && !buehne.bildschirme.kennt(knopf.ziel))
                        registriere(knopf.ziel);
                    if (*knopf.ziel && knopf.oeffnung != Oeffnung::NurDruecken)
                        ziele.push_back(knopf.ziel);
                }
            }
        }
    }
    starte();
    EXPECT_EQ(ziele.size(), 54u);
    for (const QString& ziel : ziele) {
        oeffne(ziel);
        ASSERT_NE(buehne.bildschirme.geladen(ziel), nullptr) << ziel.toStdString();
        EXPECT_TRUE(buehne.bildschirme.geladen(ziel)->isVisible()) << ziel.toStdString();
        EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible()) << ziel.toStdString();
        schliesse();
    }
}

TEST_F(Auswahlmenue, DasPopupSetztSeinenHakenUndOeffnet)
{
    for (const char* ziel : {"frmVorschlag", "GLOTTO", "frmKugel1"})
        registriere(ziel);
    starte();
    klicke("Befehl1");
    klicke("mnuSchein");
    EXPECT_TRUE(buehne.bildschirme.geladen("GLOTTO")->isVisible());
    schliesse();
    klicke("Befehl1");
    klicke("mnuStatistik");
    EXPECT_TRUE(buehne.bildschirme.geladen("frmVorschlag")->isVisible());
    schliesse();
    const auto haken = [this](const char* name) {
        return buehne.bildschirme.geladen("frmLSTART")->findChild<QAction*>(name)->isChecked();
    };
    EXPECT_TRUE(haken("mnuStatistik"));
    EXPECT_FALSE(haken("mnuSchein"));
}

TEST_F(Auswahlmenue, EinVerborgenerEintragDesPopupsLaesstSichNichtWaehlen)
{
    registriere("GLOTTO");
    starte();
    EXPECT_FALSE(bedienung.klicke("mnuSchein").gelungen());
    buehne.bildschirme.geladen("frmLSTART")->findChild<QAction*>("mnuAnimat")->setEnabled(false);
    klicke("Befehl1");
    EXPECT_FALSE(bedienung.klicke("mnuAnimat").gelungen());
}

TEST_F(Auswahlmenue, ReichtHilfeUndSpendenseiteWeiter)
{
    schreibe("lotto-hilfe.html", {"x"});
    starte();
    klicke("Befehl15");
    klicke("cmdPaypal");
    const QStringList geoeffnet = buehne.oeffner.entnehme();
    ASSERT_EQ(geoeffnet.size(), 2);
    EXPECT_EQ(geoeffnet[0], QString::fromStdString(buehne.archiv.ProgrammVerzeichnis) + "lotto-hilfe.html");
    EXPECT_TRUE(geoeffnet[1].startsWith("https://"));
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(Auswahlmenue, OhneProgrammFuerDieHilfeSagtEsWoSieLiegt)
{
    schreibe("lotto-hilfe.html", {"x"});
    schreibe("lotto-hilfe.chm", {"x"});
    buehne.oeffner.scheitert = true;
    starte();
    klicke("Befehl15");
    EXPECT_EQ(boxen(),
              QStringList{"info|Tombrix|Die Hilfe lässt sich auf diesem Rechner nicht öffnen. Sie liegt hier:\n" +
                          QDir(ordner.path()).absolutePath() + "/lotto-hilfe.html"});
}

TEST_F(Auswahlmenue, OhneHilfeSagtEsWohinSieGehoert)
{
    starte();
    klicke("Befehl15");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Hilfe wurde nicht gefunden. Sie gehört hierhin:\n" +
                                   QDir(ordner.path()).absolutePath() + "/lotto-hilfe.html"});
}

TEST_F(Auswahlmenue, BevorzugtDieKompilierteHilfeWennSieDaIst)
{
    schreibe("lotto-hilfe.chm", {"x"});
    starte();
    klicke("Befehl15");
    EXPECT_EQ(buehne.oeffner.entnehme(),
              QStringList{QString::fromStdString(buehne.archiv.ProgrammVerzeichnis) + "lotto-hilfe.chm"});
}

TEST_F(Auswahlmenue, ErklaertSamstagUndMittwochZusammen)
{
    starte();
    klicke("Option4");
    klicke("cmdInfo2");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 1);
    EXPECT_TRUE(gezeigt[0].startsWith("info|Tombrix|Bis Juni 2013 wurden"));
    EXPECT_TRUE(gezeigt[0].endsWith("auch zusammen für das Samstags- und Mittwochslotto ausgewertet werden."));
    EXPECT_EQ(gezeigt[0].count('\n'), 3);
}

TEST_F(Auswahlmenue, MaltDenFarblaufVonGruenNachSchwarz)
{
    starte();
    Bildschirm* menue = buehne.bildschirme.geladen("frmLSTART");
    const QImage bild = menue->grab().toImage();
    EXPECT_EQ(bild.pixelColor(2, 0), QColor(0, 255, 0));
    EXPECT_EQ(bild.pixelColor(2, bild.height() - 2), QColor(0, 22, 0));
    int vorher = 256;
    for (int y = 0; y < bild.height() - 60; ++y) {
        const QColor farbe = bild.pixelColor(2, y);
        EXPECT_EQ(farbe.red() + farbe.blue(), 0);
        EXPECT_LE(farbe.green(), vorher);
        vorher = farbe.green();
    }
}

/// Relative luminance of a colour, 0 (black) to 1 (white).
double leuchtdichte(const QColor& farbe)
{
    const auto linear = [](double anteil) {
        return anteil <= 0.04045 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) + 0.0722 * linear(farbe.blueF());
}

double kontrast(const QColor& eine, const QColor& andere)
{
    const auto [dunkel, hell] = std::minmax(leuchtdichte(eine), leuchtdichte(andere));
    return (hell + 0.05) / (dunkel + 0.05);
}

TEST_F(Auswahlmenue, DerNameDesSpielsIstAufSeinemGruenZuLesen)
{
    EXPECT_NEAR(kontrast(Qt::white, Qt::black), 21, 1e-9);
    starte();
    Bildschirm* menue = buehne.bildschirme.geladen("frmLSTART");
    const auto* name = menue->findChild<QLabel*>("Bezeichnung3(1)");
    const QColor schrift = name->palette().color(QPalette::WindowText);
    for (const QSize groesse : {menue->size(), QSize(1022, 740), QSize(2560, 1400)}) {
        menue->resize(groesse);
        QCoreApplication::processEvents();
        const QImage bild = menue->grab().toImage();
        const int oben = name->mapTo(menue, QPoint(0, 0)).y();
        for (int y = oben; y < oben + name->height(); ++y)
            EXPECT_GE(kontrast(bild.pixelColor(2, y), schrift), 7) << y;
    }
}

TEST_F(Auswahlmenue, DieSpaltenBeiderTafelnSindGleichBreit)
{
    starte();
    Bildschirm* menue = buehne.bildschirme.geladen("frmLSTART");
    for (const auto& [option, gruppen] : {std::pair("Option1", "Gruppe"), std::pair("Option4", "Rollo")}) {
        klicke(option);
        for (const QSize groesse : {menue->size(), menue->minimumSizeHint(), QSize(1900, 1000)}) {
            menue->resize(groesse);
            QCoreApplication::processEvents();
            std::set<int> breiten;
            for (const QGroupBox* gruppe : menue->findChildren<QGroupBox*>())
                if (gruppe->isVisible() && gruppe->objectName().startsWith(gruppen))
                    breiten.insert(gruppe->width());
            ASSERT_FALSE(breiten.empty());
            EXPECT_LE(*breiten.rbegin() - *breiten.begin(), 1) << option << groesse.width();
        }
    }
}

// A desktop of 1024 x 768 less the frame of a window manager.
TEST_F(Auswahlmenue, PasstAufEinenKleinenSchirm)
{
    starte();
    const QSize bedarf = buehne.bildschirme.geladen("frmLSTART")->minimumSizeHint();
    EXPECT_LE(bedarf.width(), 1014);
    EXPECT_LE(bedarf.height(), 720);
}

TEST_F(Auswahlmenue, JederHinweisPasstAuchDannInDieStatuszeile)
{
    starte();
    Bildschirm* menue = buehne.bildschirme.geladen("frmLSTART");
    menue->resize(menue->minimumSizeHint());
    QCoreApplication::processEvents();
    const auto* zeile = menue->findChild<QLabel*>("Bezeichnung2");
    const QSize platz = zeile->contentsRect().size();
    for (const QPushButton* knopf : menue->findChildren<QPushButton*>()) {
        const QRect bedarf =
            zeile->fontMetrics().boundingRect(QRect({}, platz), Qt::TextWordWrap | Qt::AlignLeft, hinweisVon(knopf));
        EXPECT_LE(bedarf.height(), platz.height()) << knopf->objectName().toStdString();
    }
}

TEST_F(Auswahlmenue, EineUnlesbareDateiLaesstDieStatuszeileStehen)
{
    schreibe("MALOTTO.DAT", {"1986,23,01,02,03,04,05,06,00,0", "1986,24,01,02,drei,04,05,06,00,0"});
    starte();
    klicke("Option2");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(status(), samstag);
    oeffne("frmSTAT1");
    EXPECT_EQ(lies("Text1"), "");
    schliesse();
}

TEST_F(Auswahlmenue, EineFehlendeDateiHaeltDasProgrammInDerBoxBisSieDaIst)
{
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    int zuege = 0;
    buehne.pumpe.beiZug = [this, &zuege] {
        if (++zuege == 3)
            schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0"});
    };
    starte();
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 3);
    EXPECT_EQ(gezeigt[0], "info|Tombrix|ERROR 53: Die Ziehungsdatei SALOTTO.DAT wurde nicht gefunden. Die Datei "
                          "SALOTTO.DAT muß sich im gleichen Verzeichnis wie das Programm TOMBRIX.EXE befinden.");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 1);
    EXPECT_EQ(status(), "*** Letzte eingetragene Ziehung in Gewinnzahl-Datei (SALOTTO.DAT; Samstagslotto) ->  1955/41 "
                        "vom So, 09.10.1955 ***");
}

TEST_F(Auswahlmenue, EscBeendetDasProgrammNicht)
{
    starte();
    tippe("Befehl2", "Esc");
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Auswahlmenue, SchliessenEntlaedtAlleBildschirme)
{
    registriere("frmExcel");
    starte();
    klicke("Command10");
    int geschlossen = 0;
    buehne.bildschirme.lade<Werkzeug>("frmExcel").geschlossen = &geschlossen;
    klicke("Befehl13");
    EXPECT_TRUE(buehne.bildschirme.geladene().empty());
    EXPECT_EQ(geschlossen, 1);
}

} // namespace
