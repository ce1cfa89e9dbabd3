#include "shell/elements/Bildschirm.h"
#include "statistics/screens/Registrierung.h"
#include "tips/tests/Tipptest.h"

#include <QStringList>

#include <algorithm>
#include <set>

namespace {

class Vorschlagsbildschirm : public Tipptest {
protected:
    Vorschlagsbildschirm() { registriereStatistikbildschirme(buehne.bildschirme); }

    void oeffneVorschlag()
    {
        starte();
        oeffne("frmVorschlag");
    }
    QStringList erzeuge(const QString& anzahl = "12")
    {
        setze("Kombi1", anzahl);
        klicke("Befehl5");
        return tipps();
    }
    QStringList tipps() { return bedienung.zeilen("Liste4", 0, 100).zeilen; }
    QStringList statistik(const QString& liste) { return bedienung.zeilen(liste, 0, 100).zeilen; }

    /// The six numbers of a row, by its characters.
    static std::set<int> zahlen(const QString& tipp)
    {
        std::set<int> zahlen;
        for (int i = 0; i < 6; ++i)
            zahlen.insert(tipp.mid(11 + 3 * i, 2).toInt());
        return zahlen;
    }
    /// The number of a rank, best first, of a list whose best row is the last.
    static int vonHinten(const QStringList& liste, int rang) { return liste[liste.size() - rang].right(2).toInt(); }
};

TEST_F(Vorschlagsbildschirm, OhneWunschGibtEsZufallstipps)
{
    oeffneVorschlag();
    EXPECT_EQ(lies("Bezeichnung5"), "SAMSTAGSLOTTO-TIPPREIHEN");
    const QStringList reihen = erzeuge();
    ASSERT_EQ(reihen.size(), 12);
    for (int k = 0; k < 12; ++k) {
        EXPECT_TRUE(reihen[k].startsWith(" Tip " + QString::number(k + 1).rightJustified(3) + ": ")) << k;
        EXPECT_EQ(zahlen(reihen[k]).size(), 6U);
    }
    EXPECT_TRUE(statistik("Liste1").isEmpty());
    EXPECT_FALSE(sichtbar("Rahmen7"));
    EXPECT_EQ(markierte("Bezeichnung100").size(), 6);
}

TEST_F(Vorschlagsbildschirm, JedeStatistikGibtDieZahlIhresRangs)
{
    oeffneVorschlag();
    for (const char* kontrolle : {"Kontroll1", "Kontroll2", "Kontroll3"})
        klicke(kontrolle);
    const QStringList reihen = erzeuge();
    const QStringList woche = statistik("Liste1");
    const QStringList haeufig = statistik("Liste2");
    const QStringList zuletzt = statistik("Liste3");
    ASSERT_EQ(woche.size(), 49);
    ASSERT_EQ(haeufig.size(), 49);
    ASSERT_EQ(zuletzt.size(), 49);
    EXPECT_TRUE(std::ranges::is_sorted(haeufig));
    EXPECT_TRUE(std::ranges::is_sorted(zuletzt));
    for (int k = 1; k <= 12; ++k) {
        const std::set<int> tipp = zahlen(reihen[k - 1]);
        EXPECT_TRUE(tipp.contains(woche[k - 1].right(3).trimmed().toInt())) << k;
        EXPECT_TRUE(tipp.contains(vonHinten(haeufig, k))) << k;
        EXPECT_TRUE(tipp.contains(vonHinten(zuletzt, k))) << k;
    }
}

TEST_F(Vorschlagsbildschirm, DieHaeufigkeitenSindDieDesArchivs)
{
    oeffneVorschlag();
    klicke("Kontroll2");
    erzeuge("01");
    QStringList erwartet;
    for (int zahl = 1; zahl <= 49; ++zahl) {
        int anzahl = 0;
        for (int nr = 1; nr <= buehne.archiv.AnzahlZiehungen; ++nr)
            anzahl +=
                static_cast<int>(std::ranges::count(buehne.archiv.gewinnzahlen(static_cast<std::size_t>(nr)), zahl));
        erwartet += QString("%1 %2").arg(anzahl, 3, 10, QChar('0')).arg(zahl, 2, 10, QChar('0'));
    }
    erwartet.sort();
    EXPECT_EQ(statistik("Liste2"), erwartet);
}

TEST_F(Vorschlagsbildschirm, BankzahlenStehenInJedemTipp)
{
    oeffneVorschlag();
    EXPECT_FALSE(bedienbar("cmbB1"));
    klicke("Kontroll4");
    klicke("Kontroll5");
    setze("cmbB1", "13");
    setze("cmbB2", "31");
    for (const QString& reihe : erzeuge()) {
        EXPECT_TRUE(zahlen(reihe).contains(13)) << reihe.toStdString();
        EXPECT_TRUE(zahlen(reihe).contains(31)) << reihe.toStdString();
    }
}

TEST_F(Vorschlagsbildschirm, GleicheBankzahlenFallenErstBeimErzeugenAuf)
{
    oeffneVorschlag();
    for (const char* kontrolle : {"Kontroll2", "Kontroll4", "Kontroll5"})
        klicke(kontrolle);
    setze("cmbB1", "13");
    setze("cmbB2", "13");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_TRUE(erzeuge().isEmpty());
    EXPECT_EQ(statistik("Liste2").size(), 49);
    EXPECT_EQ(boxen(), QStringList({"info|Tombrix|Es wurden 2 gleiche Bankzahlen ausgewählt!"}));
}

TEST_F(Vorschlagsbildschirm, ImSpielBWirdKeinKnopfDerStatistikenGedrueckt)
{
    starte();
    klicke("Option3");
    oeffne("frmVorschlag");
    EXPECT_EQ(lies("Bezeichnung5"), "MITTWOCHSLOTTO-TIPPREIHEN");
    klicke("Kontroll2");
    klicke("Kontroll3");
    erzeuge("01");
    EXPECT_EQ(statistik("Liste2").last(), "000 49");
    EXPECT_EQ(statistik("Liste3").last(), "000 49");
    EXPECT_EQ(statistik("Liste3").first(), "000 01");
}

TEST_F(Vorschlagsbildschirm, DieStatistikenHinterlassenKeineBildschirme)
{
    oeffneVorschlag();
    for (const char* kontrolle : {"Kontroll1", "Kontroll2", "Kontroll3"})
        klicke(kontrolle);
    erzeuge();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const char* quelle : {"frmSTAT1", "frmSWH", "frmZuletzt"})
        EXPECT_EQ(buehne.bildschirme.geladen(quelle), nullptr) << quelle;
    EXPECT_FALSE(buehne.umgebung.VorschlagLaeuft);
    EXPECT_EQ(titel(), "Tippreihen unter Einbeziehung der Ziehungsstatistiken generieren.");
}

TEST_F(Vorschlagsbildschirm, DieZwischenablageEndetMitEinerLeerenZeile)
{
    oeffneVorschlag();
    EXPECT_FALSE(bedienbar("Befehl1"));
    const QStringList reihen = erzeuge("02");
    klicke("Befehl1");
    EXPECT_EQ(buehne.zwischenablage.text(), reihen[0] + "\r\n" + reihen[1] + "\r\n\r\n");
}

TEST_F(Vorschlagsbildschirm, DieTippsGehenAufDenTippschein)
{
    oeffneVorschlag();
    const std::set<int> erster = zahlen(erzeuge("03")[0]);
    klicke("Befehl2");
    EXPECT_EQ(buehne.bildschirme.geladen("frmVorschlag"), nullptr);
    bedienung.benutze("frmTA");
    std::set<int> felder;
    for (int i = 0; i < 6; ++i)
        felder.insert(lies(QString("Text1(%1)").arg(i)).toInt());
    EXPECT_EQ(felder, erster);
    EXPECT_EQ(lies("Text4(0)"), "");
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(Vorschlagsbildschirm, BeimVerlassenWirdNachUngespeichertenGefragt)
{
    const QString frage = "question|Lotto Nachricht|Die generierten Tips wurden nicht gespeichert ! Sollen diese jetzt "
                          "zu einem  Programm mit Speichermöglichkeit übergeben werden ?  (Die Tipreihen können dort "
                          "auch noch verändert werden.)";
    oeffneVorschlag();
    klicke("Befehl4");
    EXPECT_TRUE(boxen().isEmpty());
    oeffne("frmVorschlag");
    erzeuge("01");
    klicke("Befehl4"); // "no" just leaves
    EXPECT_EQ(boxen(), QStringList({frage}));
    EXPECT_EQ(buehne.bildschirme.geladen("frmTA"), nullptr);
    oeffne("frmVorschlag");
    erzeuge("01");
    buehne.boxen.antworte("yes");
    klicke("Befehl4");
    EXPECT_EQ(boxen(), QStringList({frage}));
    EXPECT_NE(buehne.bildschirme.geladen("frmTA"), nullptr);
    EXPECT_EQ(buehne.bildschirme.geladen("frmVorschlag"), nullptr);
}

TEST_F(Vorschlagsbildschirm, DieAnimationAendertNichtsAnDenTipps)
{
    buehne.zufall.stelle(7);
    oeffneVorschlag();
    buehne.zufall.stelle(7);
    const QStringList ohne = erzeuge("02");
    buehne.umgebung.animationsdauer = std::chrono::milliseconds(160);
    buehne.zufall.stelle(7);
    EXPECT_EQ(erzeuge("02"), ohne);
}

TEST_F(Vorschlagsbildschirm, EscUeberspringtDieAnimation)
{
    oeffneVorschlag();
    buehne.umgebung.animationsdauer = std::chrono::minutes(1);
    bool gedrueckt = false;
    buehne.pumpe.beiZug = [&] {
        if (!std::exchange(gedrueckt, true))
            tippe("Befehl5", "Escape");
    };
    EXPECT_EQ(erzeuge("03").size(), 3);
    buehne.pumpe.beiZug = {};
    EXPECT_NE(buehne.bildschirme.geladen("frmVorschlag"), nullptr);
}

TEST_F(Vorschlagsbildschirm, EinDoppelklickAufDasSpielFuegtEinenFestenTippHinzu)
{
    oeffneVorschlag();
    erzeuge("11");
    bedienung.doppelklicke("Bezeichnung5");
    EXPECT_EQ(tipps().last(), " Tip  12:   4  8 15 30 38 43");
    EXPECT_EQ(lies("Kombi1"), "12");
    bedienung.doppelklicke("Bezeichnung5");
    EXPECT_EQ(tipps().last(), " Tip  13:   4  8 15 30 38 43");
    EXPECT_EQ(lies("Kombi1"), "12");
}

TEST_F(Vorschlagsbildschirm, EinDoppelklickAufDieUeberschriftVergroessertDieStatistiken)
{
    oeffneVorschlag();
    setze("Kombi2", "17");
    bedienung.doppelklicke("Bezeichnung4");
    EXPECT_EQ(lies("Label1"), "SW 17");
}

TEST_F(Vorschlagsbildschirm, EineZeileZeigtIhrenTipp)
{
    oeffneVorschlag();
    const QStringList reihen = erzeuge("05");
    waehle("Liste4", {1});
    const QList<int> gezeigt = markierte("Bezeichnung100");
    EXPECT_EQ(std::set<int>(gezeigt.begin(), gezeigt.end()), zahlen(reihen[1]));
}

TEST_F(Vorschlagsbildschirm, EinLeeresArchivGibtAuchTipps)
{
    schreibe("SALOTTO.DAT", {});
    oeffneVorschlag();
    EXPECT_EQ(lies("Kombi2"), "01");
    for (const char* kontrolle : {"Kontroll1", "Kontroll2", "Kontroll3"})
        klicke(kontrolle);
    const QStringList reihen = erzeuge("12");
    ASSERT_EQ(reihen.size(), 12);
    EXPECT_TRUE(zahlen(reihen[0]).contains(49));
}

} // namespace
