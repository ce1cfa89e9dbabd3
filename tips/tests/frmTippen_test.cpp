#include "shell/elements/Bildschirm.h"
#include "shell/logic/IniDatei.h"
#include "tips/logic/Spielscheindruck.h"
#include "tips/tests/Tipptest.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <cmath>

namespace {

/// Where a word stands on a printed page, in millimetres.
struct Fund {
    double x, y;
};

class Scheindruck : public Tipptest {
protected:
    void oeffneDruck(bool mitDrucker = true)
    {
        if (mitDrucker)
            buehne.drucker.setzeDatei(pdf());
        starte();
        oeffne("frmTippen");
    }
    QString pdf() const { return ordner.filePath("schein.pdf"); }
    QStringList liste() { return bedienung.zeilen("List1", 0, 100).zeilen; }
    QString ini(const char* schluessel) const
    {
        return QString::fromStdString(
            IniLesen(ordner.filePath("druck_settings.ini").toStdString(), "Druck_Settings", schluessel));
    }
    void schreibeSchein(const QString& name, int zeilen)
    {
        std::vector<std::string> tips;
        for (int i = 0; i < zeilen; ++i)
            tips.push_back("202630. " + std::to_string(i % 9 + 1) + ".12.23.34.45.49:5");
        schreibe(name, tips);
    }

    /// The crosses of the printed page, by poppler.
    std::vector<Fund> gedruckteKreuze() const
    {
        constexpr double kMillimeterJePunkt = 25.4 / 72;
        QProcess leser;
        leser.start("pdftotext", {"-bbox", pdf(), "-"});
        EXPECT_TRUE(leser.waitForFinished());
        const QString seite = QString::fromUtf8(leser.readAllStandardOutput());
        static const QRegularExpression wort(R"re(xMin="([\d.-]+)" yMin="([\d.-]+)"[^>]*>X<)re");
        std::vector<Fund> funde;
        for (const QRegularExpressionMatch& fund : wort.globalMatch(seite))
            funde.push_back(
                {fund.captured(1).toDouble() * kMillimeterJePunkt, fund.captured(2).toDouble() * kMillimeterJePunkt});
        return funde;
    }
    std::vector<Fund> drucke()
    {
        buehne.boxen.antworte("yes");
        klicke("Command10");
        return gedruckteKreuze();
    }
};

/// Each expected cross has been printed, all at one and the same offset, that of the glyph in its box.
void erwarteKreuze(std::vector<Fund> gedruckt, const std::vector<Scheinort>& erwartet, Fund versatz)
{
    constexpr double kGenau = 0.1;
    EXPECT_EQ(gedruckt.size(), erwartet.size());
    for (const Scheinort& ort : erwartet) {
        const auto fund = std::ranges::find_if(gedruckt, [&](const Fund& f) {
            return std::abs(f.x - versatz.x - ort.waagerecht) < kGenau &&
                   std::abs(f.y - versatz.y - ort.senkrecht) < kGenau;
        });
        ASSERT_NE(fund, gedruckt.end()) << ort.senkrecht << " / " << ort.waagerecht;
        gedruckt.erase(fund);
    }
}

TEST_F(Scheindruck, GedrucktWirdAufZehntelmillimeter)
{
    oeffneDruck();
    klicke("Check1");
    klicke("Command11");
    ASSERT_EQ(liste().size(), 12);
    std::vector<Kombination> tipps;
    for (const QString& zeile : liste())
        tipps.push_back(kombinationAusZeile(zeile.toStdString()));

    const std::vector<Scheinort> ort = layoutSlip(tipps, {.samstag = true}, {});
    const std::vector<Fund> gedruckt = drucke();
    ASSERT_EQ(gedruckt.size(), ort.size());
    const Fund glyphe{
        std::ranges::min(gedruckt, {}, &Fund::x).x - std::ranges::min(ort, {}, &Scheinort::waagerecht).waagerecht,
        std::ranges::min(gedruckt, {}, &Fund::y).y - std::ranges::min(ort, {}, &Scheinort::senkrecht).senkrecht};
    EXPECT_LT(std::abs(glyphe.x), 0.6);
    EXPECT_LT(std::abs(glyphe.y), 2.0);
    erwarteKreuze(gedruckt, ort, glyphe);

    setze("HScroll1", "37");
    setze("VScroll1", "-21");
    erwarteKreuze(drucke(), layoutSlip(tipps, {.samstag = true}, {.waagerecht = 37, .senkrecht = -21}), glyphe);
    setze("HScroll1", "0");
    setze("VScroll1", "0");
    for (const char* knopf : {"Check2", "Option1(0)", "Option3(0)", "chkGlueck(0)"})
        klicke(knopf);
    for (const std::size_t laufzeit : {0U, 1U, 2U, 3U, 5U, 6U}) {
        klicke(QString("Option4(%1)").arg(laufzeit));
        erwarteKreuze(drucke(), layoutSlip(tipps, {true, true, true, true, true, static_cast<Laufzeit>(laufzeit)}, {}),
                      glyphe);
    }
}

TEST_F(Scheindruck, OhneDruckerOderSpielartWirdNichtGedruckt)
{
    oeffneDruck(false);
    klicke("Check1");
    klicke("Command10");
    EXPECT_EQ(boxen(), QStringList({"info|Error|Sie haben keinen Drucker ausgewählt!"}));
    klicke("Check1");
    buehne.drucker.setzeDatei(pdf());
    klicke("Command10");
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Bitte die Spielart auswählen (Samstag oder Mittwoch bzw. Samstag + "
                                    "Mittwoch)."}));
    EXPECT_FALSE(QFile::exists(pdf()));
}

TEST_F(Scheindruck, VorDemDruckWirdGefragt)
{
    oeffneDruck();
    setze("Combo1", "5");
    klicke("Command11");
    klicke("Check2");
    klicke("Option3(0)");
    klicke("Option4(6)");
    klicke("Command10"); // no
    EXPECT_EQ(boxen(), QStringList({"question|Lotto-Tipps Kontrollabfrage|Soll der Tippschein in dieser Form gedruckt "
                                    "werden? \nJa= Drucken, Nein=Angaben ändern\n\nSpielart: Mittwochslotto\nAnzahl "
                                    "der Tipps: 5\nSpiel77: Nein\nSuper6: Ja\nGlueckspirale: Nein\nLaufzeit: "
                                    "Dauerspiel\nAuf Drucker: PDF-Drucker"}));
    EXPECT_FALSE(QFile::exists(pdf()));
}

TEST_F(Scheindruck, EinVerschwundenerDruckerIstNichtMehrGewaehlt)
{
    oeffneDruck();
    klicke("Check1");
    EXPECT_EQ(lies("Combo2"), "PDF-Drucker");
    buehne.drucker.setzeDatei({});
    klicke("Command10");
    EXPECT_EQ(boxen(), QStringList({"info|Error|Sie haben keinen Drucker ausgewählt!"}));
    EXPECT_EQ(lies("Combo2"), "");
}

TEST_F(Scheindruck, QuicktippsErsetzenDieListe)
{
    oeffneDruck();
    setze("Combo1", "3");
    klicke("Command11");
    const QStringList erste = liste();
    ASSERT_EQ(erste.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(erste[i].startsWith(QString(" Tipp  %1: ").arg(i + 1)));
        EXPECT_TRUE(istAufsteigend(kombinationAusZeile(erste[i].toStdString())));
    }
    klicke("Command11");
    EXPECT_EQ(liste().size(), 3);
    EXPECT_NE(liste(), erste);
}

TEST_F(Scheindruck, GespeicherteTippscheineWerdenUebernommen)
{
    oeffneDruck();
    klicke("Command4");
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Es sind noch keine Tippscheine in Tippscheindateien gespeichert."}));
    EXPECT_FALSE(sichtbar("File1"));
    schreibeSchein("S_202630.DAT", 12);
    schreibeSchein("S_202631.DAT", 13);
    schreibeSchein("M_202631.DAT", 1);
    klicke("Command4");
    EXPECT_EQ(bedienung.zeilen("File1", 0, 9).zeilen, QStringList({"S_202630.DAT", "S_202631.DAT"}));
    waehle("File1", {0});
    EXPECT_TRUE(liste().isEmpty());
    klicke("Command6");
    EXPECT_EQ(liste().size(), 12);
    EXPECT_EQ(kombinationAusZeile(liste()[1].toStdString()), (Kombination{2, 12, 23, 34, 45, 49}));
    EXPECT_TRUE(boxen().isEmpty());
    waehle("File1", {1});
    klicke("Command6");
    EXPECT_EQ(liste().size(), 12);
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Es können pro Spielschein nur zwölf Tipps aus der Datei übernommen "
                                    "werden."}));
    QFile::remove(ordner.filePath("S_202630.DAT"));
    waehle("File1", {0});
    klicke("Command6");
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Die Tippdatei S_202630.DAT kann nicht gelesen werden."}));
    EXPECT_EQ(liste().size(), 12);
}

TEST_F(Scheindruck, DieTippsDesTippscheinsStehenInDerListe)
{
    starte();
    oeffne("frmTA");
    for (int i = 0; i < 6; ++i)
        setze(QString("Text1(%1)").arg(i), QString::number(7 * i + 1));
    klicke("Command1");
    bedienung.benutze("frmTippen");
    EXPECT_EQ(liste(), QStringList({"            1  8 15 22 29 36"}));
    klicke("Command2");
    EXPECT_EQ(bedienung.aktuell()->name(), "frmTA");
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Scheindruck, DieTipplisteWirdGespeichert)
{
    oeffneDruck();
    klicke("cmdTippliste");
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Die Tippliste ist leer!"}));
    setze("Combo1", "2");
    klicke("Command11");
    buehne.uhr.stelle("2026-11-21T19:30:05");
    klicke("cmdTippliste");
    QFile datei(ordner.filePath("Tippliste_21.11.2026 19-30-05.txt"));
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromLatin1(datei.readAll()), liste()[0] + "\r\n" + liste()[1] + "\r\n");
}

TEST_F(Scheindruck, DieEinstellungenUeberdauern)
{
    oeffneDruck();
    EXPECT_EQ(lies("Label1"), "Versatz horizontal (mm): 0");
    EXPECT_EQ(lies("Label2"), "Versatz vertikal (mm): 0");
    setze("HScroll1", "-15");
    setze("VScroll1", "20");
    EXPECT_EQ(lies("Label1"), "Versatz horizontal (mm): -1,5");
    EXPECT_EQ(lies("Label2"), "Versatz vertikal (mm): 2");
    klicke("Option1(0)");
    klicke("Option4(5)");
    klicke("Check1");
    klicke("Command2");
    EXPECT_EQ(ini("Druck_Versatz_horizontal"), "-15");
    EXPECT_EQ(ini("Druck_Versatz_vertikal"), "20");
    EXPECT_EQ(ini("Spiel_77"), "Ja");
    EXPECT_EQ(ini("Super_6"), "Nein");
    EXPECT_EQ(ini("Gluecksspirale"), "Nein");
    EXPECT_EQ(ini("Tippschein_Laufzeit"), "13");
    oeffne("frmTippen");
    EXPECT_EQ(lies("Label1"), "Versatz horizontal (mm): -1,5");
    EXPECT_TRUE(zustand("Option1(0)").contains("checked=true"));
    EXPECT_TRUE(zustand("Option4(5)").contains("checked=true"));
    EXPECT_TRUE(zustand("Check1").contains("checked=false"));
}

TEST_F(Scheindruck, EinstellungenDieSichNichtSpeichernLassenWerdenGemeldet)
{
    oeffneDruck();
    QDir(ordner.path()).mkdir("druck_settings.ini");
    klicke("Command2"); // nothing has changed
    EXPECT_TRUE(boxen().isEmpty());
    oeffne("frmTippen");
    setze("HScroll1", "5");
    klicke("Command2");
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Die Druckeinstellungen konnten nicht gespeichert werden."}));
}

TEST_F(Scheindruck, DasBildZeigtDenSchein)
{
    oeffneDruck();
    klicke("cmdBild");
    bedienung.benutze("frmInfo");
    klicke("Command1");
    EXPECT_EQ(buehne.bildschirme.geladen("frmInfo"), nullptr);
    EXPECT_NE(buehne.bildschirme.geladen("frmTippen"), nullptr);
}

} // namespace
