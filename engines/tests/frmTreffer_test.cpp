#include "engines/screens/frmTreffer.h"
#include "engines/tests/Treffertest.h"
#include "shell/elements/Liste.h"

#include <QCoreApplication>
#include <QFile>
#include <QScrollBar>
#include <QTimer>

#include <random>
#include <set>

namespace {

class Trefferbildschirm : public Treffertest {
protected:
    void oeffneTreffer()
    {
        starte();
        oeffne("frmTreffer");
    }

    void suche() { klicke("Command1"); }

    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100).zeilen; }
    qint64 anzahl(const QString& liste) { return bedienung.anzahl(liste).zeilen.value(0).toLongLong(); }
    const QScrollBar& rolle(const char* liste) const { return *schirm().findChild<Liste*>(liste)->verticalScrollBar(); }
    frmTreffer& schirm() const { return dynamic_cast<frmTreffer&>(*buehne.bildschirme.geladen("frmTreffer")); }
};

const QStringList kListen{"lstDrei", "lstVier", "lstFuenf", "lstSechs", "lstLoser"};

TEST_F(Trefferbildschirm, OeffnetMitAllenSpielarten)
{
    oeffneTreffer();
    EXPECT_EQ(titel(), "Suche nach Kombinationen, die in der Lottogeschichte die meisten oder wenigsten Treffer "
                       "erbracht hätten");
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(zustand(QString("chkArt(%1)").arg(i)).contains("checked=true"));
    EXPECT_EQ(lies("chkArt(0)"), "Samstagsziehungen");
    EXPECT_TRUE(lies("lblTipp").startsWith("Anzahl der auszuwertenden Ziehugen: "));
    EXPECT_EQ(lies("lblTitel(0)"), " Kombinationen, die die meisten Dreier erbracht hätten:");
    EXPECT_EQ(lies("lblKopf(0)"), "6er  5er  4er  3er      Kombination");
    EXPECT_EQ(lies("cmdSortAuf"), "5");
    EXPECT_EQ(lies("cmdSortAb"), "6");
    for (const QString& liste : kListen)
        EXPECT_EQ(anzahl(liste), 0);
}

TEST_F(Trefferbildschirm, SuchtUndSortiertInBeidenRichtungen)
{
    oeffneTreffer();
    suche();
    EXPECT_EQ(lies("Label1"), "13.983.816 von 13.983.816");
    EXPECT_TRUE(lies("lbl8").startsWith("Suchzeit: 00:00:"));
    EXPECT_TRUE(lies("lblTipp").startsWith("Anzahl der auszuwertenden Ziehungen: "));
    EXPECT_EQ(lies("lblTitel(2)"), "Kombinationen, die die meisten Fuenfer erbracht hätten (>=4):");
    EXPECT_TRUE(lies("lblCount(4)").contains(" davon Kombinationen mit Anz. < 70: "));
    EXPECT_EQ(lies("lblCount(1)").toLongLong(), anzahl("lstVier"));
    EXPECT_GT(anzahl("lstVier"), 100);

    const QStringList aufsteigend = zeilen("lstVier");
    QStringList geordnet = aufsteigend;
    std::ranges::sort(geordnet);
    EXPECT_EQ(aufsteigend, geordnet);
    klicke("cmdSortAb");
    EXPECT_GE(zeilen("lstVier").first(), aufsteigend.last());
    klicke("cmdSortAuf");
    EXPECT_EQ(zeilen("lstVier"), aufsteigend);
}

TEST_F(Trefferbildschirm, KlickZeigtDieGewinne)
{
    oeffneTreffer();
    suche();
    waehle("lstVier", {0});
    const QString zeile = zeilen("lstVier").first();
    const QString zahlen = zeile.mid(zeile.lastIndexOf('|') + 1).trimmed();
    EXPECT_EQ(lies("FrameDetail"), "Trefferliste für die Kombination: " + zahlen);
    const QStringList spalten = zeile.split('|');
    const int treffer = spalten[0].toInt() + spalten[1].toInt() + spalten[2].toInt() + spalten[3].toInt();
    EXPECT_EQ(details(schirm()).size(), treffer);
    EXPECT_EQ(lies("lblDetail"), QString("Anzahl der Gewinnfälle: %1").arg(treffer));
}

TEST_F(Trefferbildschirm, OhneSechserStehtEsInDerListe)
{
    schreibe("MBLOTTO.DAT", {"1986,23,02,08,10,12,22,35,46,3"});
    oeffneTreffer();
    klicke("chkArt(0)");
    klicke("chkArt(1)");
    suche();
    ASSERT_EQ(anzahl("lstSechs"), 2);
    EXPECT_EQ(zeilen("lstSechs"),
              QStringList({"   Es gabe in den ausgewählten Ziehungen ", "   keine Sechserwiederholungen."}));
    EXPECT_EQ(lies("lblCount(3)"), "0");
    waehle("lstSechs", {0});
    EXPECT_EQ(lies("FrameDetail"), "Detailliste");
    klicke("cmdSortAb");
    EXPECT_EQ(zeilen("lstSechs"),
              QStringList({"   keine Sechserwiederholungen.", "   Es gabe in den ausgewählten Ziehungen "}));
}

TEST_F(Trefferbildschirm, VorDerSucheStehtImBerichtWasAufDemBildschirmSteht)
{
    oeffneTreffer();
    klicke("chkHoeher");
    klicke("cmdClip");
    const QString bericht = buehne.zwischenablage.text();
    EXPECT_TRUE(bericht.contains("\r\n Kombinationen, die die meisten Dreier erbracht hätten::  Anzahl: 0\r\n"));
    EXPECT_TRUE(bericht.contains("gehabt hätten? ja\r\n"));
}

TEST_F(Trefferbildschirm, FehlendeDateiWirdEinmalGemeldet)
{
    starte();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    boxen();
    oeffne("frmTreffer");
    EXPECT_EQ(boxen().size(), 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(lies(QString("lblZ(%1)").arg(i)), "-");
    EXPECT_TRUE(titel().startsWith("Suche nach Kombinationen"));
    suche();
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    EXPECT_EQ(schirm().ergebnis().AnzahlZiehungen, 0U);
    klicke("chkArt(1)");
    suche();
    EXPECT_GT(schirm().ergebnis().AnzahlZiehungen, 0U);
}

TEST_F(Trefferbildschirm, OhneSpielartSindDieSchwellenNull)
{
    oeffneTreffer();
    for (int i = 0; i < 3; ++i)
        klicke(QString("chkArt(%1)").arg(i));
    EXPECT_EQ(lies("lblZ(0)"), "-");
    klicke("chkHoeher");
    suche();
    EXPECT_EQ(anzahl("lstDrei"), 13'983'816);
    EXPECT_EQ(anzahl("lstVier"), 13'983'816);
    EXPECT_EQ(anzahl("lstFuenf"), 13'983'816);
    EXPECT_EQ(anzahl("lstLoser"), 0);
    boxen();
    klicke("cmdClip");
    EXPECT_TRUE(boxen().value(0).contains("zu lang für die Zwischenablage"));
}

TEST_F(Trefferbildschirm, UebertraegtDieListen)
{
    oeffneTreffer();
    suche();
    klicke("cmdClip");
    const QString bericht = buehne.zwischenablage.text();
    EXPECT_TRUE(bericht.contains("\r\nSamstagsziehungen:      " + lies("lblZ(0)") + "\r\n"));
    EXPECT_TRUE(bericht.contains("(>=17)::  Anzahl: " + lies("lblCount(1)") + "\r\n"));
    EXPECT_TRUE(bericht.contains("gehabt hätten? nein\r\n"));
    for (const QString& zeile : zeilen("lstFuenf"))
        EXPECT_TRUE(bericht.contains("\r\n" + zeile + "\r\n"));
}

TEST_F(Trefferbildschirm, BerichtUndDetailsSindDieDerSuche)
{
    oeffneTreffer();
    suche();
    const QString stand = lies("lblZ(0)");
    const QString ziehungen = lies("lblTipp");
    waehle("lstVier", {0});
    const QStringList gewinne = details(schirm());
    klicke("chkArt(0)");
    klicke("chkArt(2)");
    klicke("chkHoeher");
    EXPECT_EQ(lies("lblZ(0)"), "-");
    EXPECT_TRUE(details(schirm()) == gewinne);
    waehle("lstVier", {1});
    waehle("lstVier", {0});
    EXPECT_TRUE(details(schirm()) == gewinne);
    klicke("cmdClip");
    const QString bericht = buehne.zwischenablage.text();
    EXPECT_TRUE(bericht.contains("\r\nSamstagsziehungen:      " + stand + "\r\n"));
    EXPECT_TRUE(bericht.contains("\r\n" + ziehungen + "\r\n"));
    EXPECT_TRUE(bericht.contains("gehabt hätten? nein\r\n"));

    klicke("chkArt(2)");
    suche();
    EXPECT_EQ(lies("FrameDetail"), "Detailliste");
    EXPECT_TRUE(details(schirm()).isEmpty());
    klicke("cmdClip");
    EXPECT_TRUE(buehne.zwischenablage.text().contains("\r\nSamstagsziehungen:      -\r\n"));
    EXPECT_TRUE(buehne.zwischenablage.text().contains("gehabt hätten? ja\r\n"));
}

TEST_F(Trefferbildschirm, DieBestenKommenInSicht)
{
    oeffneTreffer();
    suche();
    ASSERT_GT(rolle("lstVier").maximum(), 0);
    for (const char* liste : {"lstDrei", "lstVier", "lstFuenf", "lstSechs"})
        EXPECT_EQ(rolle(liste).value(), rolle(liste).maximum()) << liste;
    klicke("cmdSortAb");
    for (const char* liste : {"lstDrei", "lstVier", "lstFuenf", "lstSechs"})
        EXPECT_EQ(rolle(liste).value(), 0) << liste;
}

/// Does something once, at the first turn of the event loop after the search has begun.
void beimErstenZug(frmTreffer& schirm, const std::function<void()>& tue)
{
    QTimer::singleShot(0, &schirm, [&schirm, tue] {
        EXPECT_TRUE(schirm.laeuft());
        tue();
    });
}

TEST_F(Trefferbildschirm, AbbruchLaesstDasGefundeneStehen)
{
    oeffneTreffer();
    beimErstenZug(schirm(), [this] { klicke("cmdAbbruch"); });
    suche();
    EXPECT_TRUE(schirm().ergebnis().gestoppt);
    EXPECT_LT(schirm().ergebnis().AnzahlKombis, 13'983'816U);
    EXPECT_TRUE(bedienbar("cmdClip"));
    EXPECT_TRUE(bedienbar("chkArt(0)"));
}

TEST_F(Trefferbildschirm, WaehrendDerSucheIstGesperrtWasSieStoert)
{
    oeffneTreffer();
    bool gesperrt = false;
    beimErstenZug(schirm(), [&] {
        gesperrt =
            !bedienbar("chkArt(0)") && !bedienbar("cmdSortAuf") && !bedienbar("cmdSortAb") && !bedienbar("cmdClip");
        klicke("Command1");
    });
    suche();
    EXPECT_TRUE(gesperrt);
    EXPECT_EQ(schirm().ergebnis().AnzahlKombis, 13'983'816U);
}

TEST_F(Trefferbildschirm, SchliessenInDerSucheBeendetSie)
{
    oeffneTreffer();
    beimErstenZug(schirm(), [this] { schliesse(); });
    suche();
    QCoreApplication::processEvents();
    EXPECT_FALSE(buehne.bildschirme.FormGeladen("frmTreffer"));
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

/// A list of the worst with more than a million rows.
class LangerBericht : public Trefferbildschirm {
protected:
    void sucheViele()
    {
        constexpr int kZiehungen = 1'660;
        std::mt19937 zufall(49);
        std::vector<std::string> saetze;
        for (int i = 0; i < kZiehungen; ++i)
            saetze.push_back("1955,41," + zufallszahlen(zufall) + "00,0");
        schreibe("SALOTTO.DAT", saetze);
        oeffneTreffer();
        klicke("chkArt(1)");
        klicke("chkArt(2)");
        suche();
    }

private:
    static std::string zufallszahlen(std::mt19937& zufall)
    {
        std::set<int> zahlen;
        while (zahlen.size() < 6)
            zahlen.insert(static_cast<int>(zufall() % 49) + 1);
        std::string text;
        for (const int zahl : zahlen)
            text += (zahl < 10 ? "0" : "") + std::to_string(zahl) + ",";
        return text;
    }
};

TEST_F(LangerBericht, PasstInDieZwischenablage)
{
    sucheViele();
    const qint64 anzahl = this->anzahl("lstLoser");
    ASSERT_GT(anzahl, 1'000'000);
    int zuege = 0;
    buehne.pumpe.beiZug = [&zuege] { ++zuege; };
    klicke("cmdClip");
    buehne.pumpe.beiZug = {};
    EXPECT_GT(zuege, 3);
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_GT(buehne.zwischenablage.text().count('\n'), anzahl);
    EXPECT_TRUE(buehne.zwischenablage.text().contains("\r\n" + zeilen("lstLoser").first() + "\r\n"));
}

TEST_F(LangerBericht, DieSchlechtestenStehenImmerInSicht)
{
    sucheViele();
    EXPECT_EQ(rolle("lstLoser").value(), 0);
    klicke("cmdSortAb");
    EXPECT_EQ(rolle("lstLoser").value(), rolle("lstLoser").maximum());
}

TEST_F(LangerBericht, LaesstSichAnhalten)
{
    sucheViele();
    const QStringList vorher = zeilen("lstLoser");
    buehne.zwischenablage.setze("vorher");
    beimErstenZug(schirm(), [this] {
        klicke("cmdSortAb"); // not while the lists are read
        klicke("cmdAbbruch");
    });
    klicke("cmdClip");
    EXPECT_EQ(buehne.zwischenablage.text(), "vorher");
    EXPECT_EQ(zeilen("lstLoser"), vorher);
    klicke("cmdSortAb");
    EXPECT_NE(zeilen("lstLoser"), vorher);
}

TEST_F(Trefferbildschirm, InfoStehtUeberDemBildschirm)
{
    oeffneTreffer();
    klicke("cmdInfo");
    EXPECT_TRUE(sichtbar("frameInfo"));
    EXPECT_TRUE(lies("txtInfo").contains("15 25 27 30 42 48"));
    klicke("cmdOK");
    EXPECT_FALSE(sichtbar("frameInfo"));
}

TEST_F(Trefferbildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    schreibe("MALOTTO.DAT", {});
    schreibe("MBLOTTO.DAT", {});
    oeffneTreffer();
    suche();
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    EXPECT_EQ(anzahl("lstLoser"), 13'983'816);
    EXPECT_EQ(anzahl("lstSechs"), 2);
}

} // namespace
