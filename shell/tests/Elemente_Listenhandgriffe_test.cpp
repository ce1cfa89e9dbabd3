#include "shell/elements/Zeilenansicht.h"
#include "shell/logic/Lesedatei.h"
#include "shell/tests/ElementListe.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QElapsedTimer>

#include <gmock/gmock.h>
#include <optional>

namespace {

using testing::ElementsAre;

class Listenhandgriff : public ElementListe {
protected:
    QString kopiert() { return buehne.zwischenablage.text(); }
    QString status() { return lies("Statuszeile"); }

    /// The text file that "Als Textdatei speichern" makes, or nothing.
    std::optional<std::string> gespeichert(const QString& datei)
    {
        buehne.boxen.antworte("file:" + datei);
        druecke("Shift+F10");
        klicke("Liste1AlsTextdatei");
        const Dateiinhalt inhalt = leseDatei(datei.toStdString(), 1'000'000);
        return inhalt.ganz() ? std::optional(inhalt.bytes) : std::nullopt;
    }

    static void rechtsklick(Liste& liste, QPoint ort)
    {
        QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, liste.viewport()->mapToGlobal(ort));
        QCoreApplication::sendEvent(liste.viewport(), &ereignis);
    }

    /// Turns the event loop until the current row is the one.
    static bool wartetAuf(const Liste& liste, int zeile)
    {
        QElapsedTimer uhr;
        uhr.start();
        while (liste.fokuszeile() != zeile && uhr.elapsed() < 10'000)
            QCoreApplication::processEvents();
        return liste.fokuszeile() == zeile;
    }
};

TEST_F(Listenhandgriff, KopiertDieGewaehlteZeileWieSieSteht)
{
    Liste& liste = zeige();
    liste.modell().fuelle({"  1   479", "  2   467 ", "  3   471"});
    klickeZeile(1);
    druecke("Ctrl+C");
    EXPECT_EQ(kopiert(), "  2   467 ");
    EXPECT_EQ(status(), "1 Zeile in die Zwischenablage übertragen");
    EXPECT_EQ(titel(), "Probe");
}

TEST_F(Listenhandgriff, KopiertMehrereGewaehlteInIhrerReihenfolge)
{
    zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(5);
    klickeZeile(2, Qt::ControlModifier);
    druecke("Ctrl+C");
    EXPECT_EQ(kopiert(), "0002\r\n0005");
    EXPECT_EQ(status(), "2 Zeilen in die Zwischenablage übertragen");
}

TEST_F(Listenhandgriff, OhneGewaehlteKopiertSieDieZeileDerTastatur)
{
    zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(5);
    druecke("Space Ctrl+C");
    EXPECT_EQ(kopiert(), "0005");
}

TEST_F(Listenhandgriff, OhneZeileBleibtDieZwischenablage)
{
    zeigeZeilen(3);
    buehne.zwischenablage.setze("alt");
    druecke("Ctrl+C");
    EXPECT_EQ(kopiert(), "alt");
}

TEST_F(Listenhandgriff, StrgAWaehltAlleWoMehrereGewaehltWerdenKoennen)
{
    zeigeZeilen(4, {.MultiSelect = true});
    druecke("Ctrl+A");
    EXPECT_THAT(gewaehlte(), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(auswahlen, 1);
}

TEST_F(Listenhandgriff, StrgALaesstEineEinfacheListeWieSieIst)
{
    zeigeZeilen(4);
    klickeZeile(2);
    druecke("Ctrl+A");
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
    EXPECT_EQ(auswahlen, 1);
}

TEST_F(Listenhandgriff, DasMenueKopiertAlles)
{
    zeigeZeilen(3);
    druecke("Shift+F10");
    klicke("Liste1AllesKopieren");
    EXPECT_EQ(kopiert(), "0000\r\n0001\r\n0002");
    EXPECT_EQ(status(), "3 Zeilen in die Zwischenablage übertragen");
}

TEST_F(Listenhandgriff, AuchLeereZeilenWerdenKopiert)
{
    zeige().modell().fuelle({"", "a", "", "b", ""});
    druecke("Shift+F10");
    klicke("Liste1AllesKopieren");
    EXPECT_EQ(kopiert(), "\r\na\r\n\r\nb\r\n");
}

TEST_F(Listenhandgriff, DasMenueNenntSeineEintraege)
{
    zeigeZeilen(3);
    druecke("Menu");
    EXPECT_EQ(lies("Liste1Kopieren"), "Kopieren");
    EXPECT_EQ(lies("Liste1AllesKopieren"), "Alles kopieren");
    EXPECT_EQ(lies("Liste1AlsTextdatei"), "Als Textdatei speichern…");
    EXPECT_FALSE(bedienbar("Liste1Kopieren"));
    EXPECT_TRUE(bedienbar("Liste1AllesKopieren"));
    EXPECT_TRUE(sichtbar("Liste1Menue"));
    klicke("Liste1AllesKopieren");
    EXPECT_FALSE(sichtbar("Liste1Menue"));
}

TEST_F(Listenhandgriff, DieRechteTasteNimmtDieZeileUnterDerMaus)
{
    Liste& liste = zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(1);
    rechtsklick(liste, ort(4));
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
    klicke("Liste1Kopieren");
    EXPECT_EQ(kopiert(), "0004");
}

TEST_F(Listenhandgriff, DieRechteTasteLaesstEineAuswahlUnterDerMaus)
{
    Liste& liste = zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(1);
    klickeZeile(4, Qt::ShiftModifier);
    rechtsklick(liste, ort(3));
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 2, 3, 4));
}

TEST_F(Listenhandgriff, EineLeereListeHatNichtsAnzubieten)
{
    zeige();
    druecke("Shift+F10");
    for (const char* name : {"Liste1Kopieren", "Liste1AllesKopieren", "Liste1AlsTextdatei"})
        EXPECT_FALSE(bedienbar(name)) << name;
}

TEST_F(Listenhandgriff, SpeichertAlleZeilenAlsWindowsText)
{
    Liste& liste = zeige();
    liste.modell().fuelle({"März 1955", " 17  €"});
    EXPECT_EQ(gespeichert(ordner.filePath("liste.txt")), "M\xE4rz 1955\r\n 17  \x80\r\n");
    EXPECT_EQ(status(), "2 Zeilen gespeichert in liste.txt");
    const std::vector<GezeigteBox> gezeigte = buehne.boxen.entnehme();
    ASSERT_EQ(gezeigte.size(), 1U);
    EXPECT_EQ(gezeigte[0].art, "file");
    EXPECT_TRUE(gezeigte[0].text.endsWith("Probe.txt")) << gezeigte[0].text.toStdString();
}

TEST_F(Listenhandgriff, EinUnschreibbaresZielWirdGesagt)
{
    zeigeZeilen(2);
    EXPECT_FALSE(gespeichert(ordner.filePath("gibt es nicht/liste.txt")).has_value());
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 2);
    EXPECT_TRUE(gezeigt[1].startsWith("info|Tombrix|Die Datei liste.txt konnte nicht geschrieben werden.\n"));
}

TEST_F(Listenhandgriff, EinAbbruchSpeichertNichts)
{
    zeigeZeilen(2);
    druecke("Shift+F10");
    klicke("Liste1AlsTextdatei");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(status(), "Probe");
}

TEST_F(Listenhandgriff, VieleZeilenKommenInScheibenUndDerTitelBleibt)
{
    Liste& liste = zeigeAufAnfrage(200'000);
    buehne.bildschirme.geladen("frmProbe")->setzeTitel("Ergebnis");
    int zuege = 0;
    buehne.pumpe.beiZug = [&] { ++zuege; };
    druecke("Shift+F10");
    klicke("Liste1AllesKopieren");
    EXPECT_GE(zuege, 1);
    EXPECT_TRUE(kopiert().startsWith("0\r\n1\r\n"));
    EXPECT_TRUE(kopiert().endsWith("\r\n199999"));
    EXPECT_EQ(kopiert().count('\n'), 199'999);
    EXPECT_EQ(titel(), "Ergebnis");
    EXPECT_EQ(status(), "200.000 Zeilen in die Zwischenablage übertragen");
    EXPECT_EQ(liste.zeilenzahl(), 200'000);
}

TEST_F(Listenhandgriff, WirdDieListeUnterwegsNeuGefuelltIstNichtsKopiert)
{
    Liste& liste = zeigeAufAnfrage(1'000'000);
    buehne.zwischenablage.setze("alt");
    buehne.pumpe.beiZug = [&] { liste.modell().fuelle({"neu"}); };
    druecke("Shift+F10");
    klicke("Liste1AllesKopieren");
    EXPECT_EQ(kopiert(), "alt");
    EXPECT_EQ(status(), "Abgebrochen: es wurde nichts übertragen.");
}

TEST_F(Listenhandgriff, DasSchliessenBeendetDasSpeichernOhneRest)
{
    zeigeAufAnfrage(5'000'000);
    buehne.pumpe.beiZug = [&] { buehne.bildschirme.geladen("frmProbe")->schliesse(); };
    EXPECT_FALSE(gespeichert(ordner.filePath("liste.txt")).has_value());
    buehne.pumpe.beiZug = {};
    EXPECT_TRUE(QDir(ordner.path()).entryList({"*liste*", ".neu*"}, QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(Listenhandgriff, EscBeendetDasKopierenUndLaesstDenBildschirmOffen)
{
    zeigeAufAnfrage(5'000'000);
    buehne.pumpe.beiZug = [&] { druecke("Escape"); };
    druecke("Shift+F10");
    klicke("Liste1AllesKopieren");
    buehne.pumpe.beiZug = {};
    EXPECT_EQ(kopiert(), "");
    EXPECT_EQ(status(), "Abgebrochen: es wurde nichts übertragen.");
    EXPECT_NE(buehne.bildschirme.geladen("frmProbe"), nullptr);
}

TEST_F(Listenhandgriff, WasKeineZwischenablageFasstWirdGesagt)
{
    zeigeAufAnfrage(5'000'001);
    druecke("Shift+F10");
    klicke("Liste1AllesKopieren");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Liste ist mit 5.000.001 Zeilen zu lang für die Zwischenablage."});
    EXPECT_EQ(kopiert(), "");
}

TEST_F(Listenhandgriff, EineGetippteNummerWaehltIhreZeile)
{
    Liste& liste = zeigeZeilen(2000);
    druecke("0123");
    EXPECT_THAT(gewaehlte(), ElementsAre(123));
    EXPECT_EQ(auswahlen, 4);
    EXPECT_TRUE(liste.viewport()->rect().contains(liste.zeilenrechteck(123).center()));
}

TEST_F(Listenhandgriff, EinGetipptesJahrWaehltDieErsteZeileDesJahres)
{
    Liste& liste = zeige();
    std::vector<std::string> zeilen;
    for (int nummer = 1; nummer <= 400; ++nummer)
        zeilen.push_back(Format(nummer, "0000") + "    So, 01.01.1990 " + Format(1990 + nummer / 40, "0000") + "/05");
    liste.modell().fuelle(zeilen);
    druecke("1998");
    EXPECT_THAT(gewaehlte(), ElementsAre(319));
}

TEST_F(Listenhandgriff, NachEinerPauseBeginntDieNummerNeu)
{
    zeigeZeilen(300);
    druecke("1");
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() < 1700)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    druecke("7");
    EXPECT_THAT(gewaehlte(), ElementsAre(7));
}

TEST_F(Listenhandgriff, OhneWeiterePassendeZeileBleibtDieAuswahl)
{
    zeigeZeilen(30);
    klickeZeile(3);
    druecke("99");
    EXPECT_THAT(gewaehlte(), ElementsAre(9));
    EXPECT_EQ(status(), "Keine Zeile beginnt mit 99");
}

TEST_F(Listenhandgriff, EineLangeListeWirdInScheibenDurchsucht)
{
    Liste& liste = zeigeAufAnfrage(5'000'000);
    QElapsedTimer uhr;
    uhr.start();
    druecke("4999999");
    EXPECT_LT(uhr.elapsed(), 1000);
    EXPECT_TRUE(wartetAuf(liste, 4'999'999));
}

TEST_F(Listenhandgriff, WaehltDerBenutzerSelbstIstDieSucheVorbei)
{
    Liste& liste = zeigeAufAnfrage(5'000'000);
    druecke("4999999");
    const int andere = oberste() + 2;
    klickeZeile(andere);
    for (int i = 0; i < 100; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(liste.fokuszeile(), andere);
}

TEST_F(Listenhandgriff, EscUndEnterGehoerenDemBildschirm)
{
    zeigeZeilen(30);
    druecke("1");
    druecke("Return");
    EXPECT_THAT(doppelklicks, ElementsAre(1));
    druecke("2");
    druecke("Escape");
    EXPECT_EQ(buehne.bildschirme.geladen("frmProbe"), nullptr);
}

} // namespace
