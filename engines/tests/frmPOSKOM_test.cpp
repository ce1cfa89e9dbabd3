#include "engines/screens/frmPOSKOM.h"
#include "engines/tests/Suchtest.h"
#include "shell/elements/Liste.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

/// Four draws, in this order at the places 6,324,251, 1, 13,983,816 and 50,000.
const std::vector<std::string> kVier{"1955,41,05,10,20,30,40,49,00,0", "1955,42,01,02,03,04,05,06,00,0",
                                     "1955,43,44,45,46,47,48,49,00,0", "1955,44,01,02,06,18,19,24,00,0"};

class Positionslistenschirm : public Suchtest {
protected:
    void beginne(const std::vector<std::string>& ziehungen = kVier)
    {
        schreibe("SALOTTO.DAT", ziehungen);
        starte();
        oeffne("frmPOSKOM");
    }

    QStringList zeilen(const QString& name) { return bedienung.zeilen(name, 0, 100000).zeilen; }
    QStringList gewaehlte(const QString& name) { return bedienung.gewaehlte(name).zeilen; }
    void ticke() { EXPECT_TRUE(bedienung.ticke("Timer1").gelungen()); }
    bool uhrLaeuft() { return schirm().findChild<QTimer*>("Timer1")->isActive(); }
    frmPOSKOM& schirm() const { return dynamic_cast<frmPOSKOM&>(*buehne.bildschirme.geladen("frmPOSKOM")); }

    /// Far more draws in memory than a file can hold, so that a list takes several turns of the event loop.
    void verlaengereArchiv()
    {
        constexpr std::int32_t kViele = 1'000'000;
        for (ZiehungsArchiv::Spalte* spalte : buehne.archiv.spalten())
            spalte->resize(kViele + 1, 7);
        buehne.archiv.AnzahlZiehungen = kViele;
    }

    /// A list of the range with what stands in `Label4` then.
    QString bereich(const char* von, const char* bis, const char* knopf = "Befehl2")
    {
        setze("Text1(0)", von);
        setze("Text1(1)", bis);
        klicke(knopf);
        return lies("Label4");
    }
};

TEST_F(Positionslistenschirm, OeffnetMitLeerenListen)
{
    beginne();
    EXPECT_EQ(titel(), "Die bisherigen  Ziehungen und ihre Positionszahlen");
    EXPECT_EQ(lies("Bezeichnung2"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung1"), "Positionszahl    JJJJ/SW    Kombination");
    EXPECT_EQ(lies("Label3"), "");
    EXPECT_EQ(lies("Label4"), "");
    EXPECT_EQ(lies("Text1(0)"), "40000");
    EXPECT_EQ(lies("Text1(1)"), "100000");
    EXPECT_FALSE(bedienbar("Frame1"));
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    EXPECT_TRUE(zeilen("Liste2").isEmpty());
    EXPECT_TRUE(uhrLaeuft());
    EXPECT_EQ(schirm().findChild<QTimer*>("Timer1")->interval(), 2000);
    EXPECT_EQ(schirm().findChild<QWidget*>("cmdAuto")->toolTip(), "Automatische Anzeige im Tippfeld ein/aus");
    EXPECT_EQ(schirm().findChild<QWidget*>("Text1(0)")->toolTip(), ">=1");
    EXPECT_EQ(schirm().findChild<QWidget*>("Text1(1)")->toolTip(), "<=13.983.816");
    EXPECT_EQ(schirm().findChild<QWidget*>("Liste2")->toolTip(),
              "Ein Click auf eine Ziehung zeigt die Kombination im 7x7 Tippfeldformat.");
}

TEST_F(Positionslistenschirm, ListetNachPositionUndNachZiehung)
{
    beginne();
    const QStringList nachZiehung{
        "  6.324.251  ->  1955/41  05 10 20 30 40 49",
        "          1  ->  1955/42  01 02 03 04 05 06",
        " 13.983.816  ->  1955/43  44 45 46 47 48 49",
        "     50.000  ->  1955/44  01 02 06 18 19 24",
    };
    const QStringList nachPosition{nachZiehung[1], nachZiehung[3], nachZiehung[0], nachZiehung[2]};
    klicke("Befehl1");
    EXPECT_TRUE(sichtbar("Liste1"));
    EXPECT_FALSE(sichtbar("Liste2"));
    const QRect platz = schirm().findChild<Liste*>("Liste1")->geometry();
    klicke("Befehl2");
    EXPECT_FALSE(sichtbar("Liste1"));
    EXPECT_TRUE(sichtbar("Liste2"));
    QCoreApplication::processEvents();
    EXPECT_EQ(schirm().findChild<Liste*>("Liste2")->geometry(), platz);
    EXPECT_EQ(zeilen("Liste1"), nachPosition);
    EXPECT_EQ(zeilen("Liste2"), nachZiehung);
    EXPECT_EQ(lies("Label4"), "Anzahl der Ziehungen: 4");
    EXPECT_EQ(titel(), "Die bisherigen  Ziehungen und ihre Positionszahlen");
    EXPECT_EQ(schirm().ergebnis().zeilen.size(), 4U);
}

TEST_F(Positionslistenschirm, DieWahlDesUmfangsLeertDieListen)
{
    beginne();
    klicke("Befehl1");
    klicke("Option1(1)");
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    EXPECT_TRUE(zeilen("Liste2").isEmpty());
    EXPECT_EQ(lies("Label4"), "");
    EXPECT_TRUE(bedienbar("Text1(0)"));
    klicke("Befehl1");
    EXPECT_EQ(lies("Label4"), "Anzahl der Ziehungen im gewählten Bereich: 1");
    klicke("Option1(0)");
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    EXPECT_FALSE(bedienbar("Text1(0)"));
    klicke("Befehl1");
    EXPECT_EQ(lies("Label4"), "Anzahl der Ziehungen: 4");
}

TEST_F(Positionslistenschirm, DerBereichNimmtBeideEndenUndGruppenpunkte)
{
    beginne();
    klicke("Option1(1)");
    EXPECT_EQ(bereich("1", "13.983.816"), "Anzahl der Ziehungen im gewählten Bereich: 4");
    EXPECT_EQ(bereich("50000", "6324251"), "Anzahl der Ziehungen im gewählten Bereich: 2");
    EXPECT_EQ(bereich("6.324.251", "6.324.251", "Befehl1"), "Anzahl der Ziehungen im gewählten Bereich: 1");
    EXPECT_EQ(zeilen("Liste1"), QStringList{"  6.324.251  ->  1955/41  05 10 20 30 40 49"});
    EXPECT_EQ(bereich("2", "49999"), "Anzahl der Ziehungen im gewählten Bereich: 0");
}

TEST_F(Positionslistenschirm, EinFehlerImBereichLeertDieListen)
{
    beginne();
    klicke("Option1(1)");
    for (const auto& [von, bis, text] : std::vector<std::array<const char*, 3>>{
             {"x", "5", "Fehler: Bereich 'von' ist nicht numerisch."},
             {"5", "", "Fehler: Bereich 'bis' ist nicht numerisch."},
             {"0", "5", "Fehler: 'von' muss im Bereich von 1-13.983.816 liegen"},
             {"1", "13983817", "Fehler: 'bis' muss im Bereich von 1-13.983.816 liegen"},
             {"6", "5", "Fehler: 'bis' muss grösser 'von' sein."}}) {
        bereich("1", "13983816");
        ASSERT_EQ(zeilen("Liste2").size(), 4);
        EXPECT_EQ(bereich(von, bis), text);
        EXPECT_TRUE(zeilen("Liste1").isEmpty());
        EXPECT_TRUE(zeilen("Liste2").isEmpty());
    }
}

TEST_F(Positionslistenschirm, EinKlickZeigtDieZiehung)
{
    beginne();
    klicke("Befehl1");
    waehle("Liste1", {2});
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{5, 10, 20, 30, 40, 49}));
    waehle("Liste1", {0});
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{1, 2, 3, 4, 5, 6}));
    tippe("Liste1", "Down");
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{1, 2, 6, 18, 19, 24}));
}

TEST_F(Positionslistenschirm, DieUhrGehtDieListeDurch)
{
    beginne();
    ticke();
    EXPECT_TRUE(markierte("Bezeichnung6").isEmpty());
    klicke("Befehl2");
    const std::vector<std::pair<QString, int>> folge{{"1", 1}, {"2", 44}, {"3", 1}, {"0", 5}, {"1", 1}};
    for (const auto& [zeile, kleinste] : folge) {
        ticke();
        EXPECT_EQ(gewaehlte("Liste2"), QStringList{zeile});
        EXPECT_EQ(markierte("Bezeichnung6").value(0), kleinste);
    }
    EXPECT_TRUE(gewaehlte("Liste1").isEmpty());
    // Each list has a place of its own, and its button sends it back.
    klicke("Befehl1");
    ticke();
    EXPECT_EQ(gewaehlte("Liste1"), QStringList{"1"});
    klicke("Befehl2");
    ticke();
    EXPECT_EQ(gewaehlte("Liste2"), QStringList{"1"});
}

TEST_F(Positionslistenschirm, DerKnopfHaeltDieUhrAn)
{
    beginne();
    EXPECT_EQ(lies("cmdAuto"), "&E");
    klicke("cmdAuto");
    EXPECT_EQ(lies("cmdAuto"), "&A");
    EXPECT_FALSE(uhrLaeuft());
    klicke("cmdAuto");
    EXPECT_EQ(lies("cmdAuto"), "&E");
    EXPECT_TRUE(uhrLaeuft());
}

TEST_F(Positionslistenschirm, DieMausAufEinerListeHaeltDieUhrAn)
{
    beginne();
    klicke("Befehl1");
    ASSERT_TRUE(bedienung.druecke("Liste1").gelungen());
    EXPECT_FALSE(uhrLaeuft());
    ASSERT_TRUE(bedienung.lasseLos("Liste1").gelungen());
    EXPECT_TRUE(uhrLaeuft());
    klicke("Befehl2");
    ASSERT_TRUE(bedienung.druecke("Liste2").gelungen());
    EXPECT_FALSE(uhrLaeuft());
    ASSERT_TRUE(bedienung.lasseLos("Liste2").gelungen());
    EXPECT_TRUE(uhrLaeuft());
}

TEST_F(Positionslistenschirm, AusgeschaltetStartetNurDieErsteListeDieUhrWieder)
{
    beginne();
    klicke("Befehl2");
    klicke("cmdAuto");
    waehle("Liste2", {0});
    EXPECT_FALSE(uhrLaeuft());
    klicke("Befehl1");
    waehle("Liste1", {0});
    EXPECT_TRUE(uhrLaeuft());
    EXPECT_EQ(lies("cmdAuto"), "&A");
    // The clock runs, so the next press of the button stops it.
    klicke("cmdAuto");
    EXPECT_EQ(lies("cmdAuto"), "&A");
    EXPECT_FALSE(uhrLaeuft());
}

TEST_F(Positionslistenschirm, OeffnetRechnerUndDefinitionUndSchliesstSieMit)
{
    beginne();
    for (const auto& [knopf, schirm] : {std::pair{"Command1", "frmpos_calc"}, std::pair{"Befehl4", "frmpos2"}}) {
        klicke(knopf);
        ASSERT_TRUE(bedienung.benutze(schirm).gelungen());
        schliesse();
        EXPECT_EQ(buehne.bildschirme.geladen(schirm), nullptr);
        EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
        ASSERT_TRUE(bedienung.benutze("frmPOSKOM").gelungen());
        buehne.klang.gespielt.clear();
        klicke(knopf);
        EXPECT_EQ(buehne.klang.gespielt, std::vector<int>{1});
        ASSERT_TRUE(bedienung.benutze("frmPOSKOM").gelungen());
    }
    klicke("Befehl3");
    EXPECT_EQ(buehne.bildschirme.geladene().size(), 1U);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Positionslistenschirm, DieDefinition)
{
    beginne();
    klicke("Befehl4");
    ASSERT_TRUE(bedienung.benutze("frmpos2").gelungen());
    EXPECT_EQ(titel(), "Definition Positionszahl");
    EXPECT_EQ(zeilen("Liste1"),
              (QStringList{"Positionszahl (oder auch Ordnungszahl):", "Position einer Tip-Kombination innerhalb einer ",
                           "lexikographisch geordneten Auflistung aller ", "13.983.816 möglichen Kombinationen.",
                           "Beispiel:", "   1  2  3  4  5  6   -> an Position:          1",
                           "   1  2  3  4  5  7   -> an Position:          2",
                           "   1  2  3  4  5  8   -> an Position:          3", "       ........",
                           "   5 10 20 30 40 49   -> an Position:  6.324.251", "       ........",
                           "  11 12 23 34 35 48   -> an Position: 10.771.741", "       ........",
                           "  43,45,46,47,48,49   -> an Position: 13.983.815",
                           "  44,45,46,47,48,49   -> an Position: 13.983.816"}));
    klicke("Befehl1");
    EXPECT_EQ(bedienung.aktuell()->name(), "frmPOSKOM");
}

TEST_F(Positionslistenschirm, FolgtDerSpielart)
{
    starte();
    klicke("Option2");
    oeffne("frmPOSKOM");
    EXPECT_EQ(lies("Bezeichnung2"), "MITTWOCHSLOTTO ");
    klicke("Befehl1");
    EXPECT_EQ(lies("Label4"), QString("Anzahl der Ziehungen: %1").arg(buehne.archiv.AnzahlZiehungen));
    EXPECT_TRUE(std::is_sorted(schirm().findChild<Liste*>("Liste1")->modell().zeilen().begin(),
                               schirm().findChild<Liste*>("Liste1")->modell().zeilen().end()));
}

TEST_F(Positionslistenschirm, LeeresArchivUndUnsinnigeWerte)
{
    beginne({});
    klicke("Befehl1");
    EXPECT_EQ(lies("Label4"), "Anzahl der Ziehungen: 0");
    ticke();
    schliesse();

    beginne({"1955,41,05,10,20,30,40,49,00,0", "-5,999999,-1,2147483647,0,77,3,3,00,0"});
    klicke("Befehl2");
    ASSERT_EQ(zeilen("Liste2").size(), 2);
    EXPECT_TRUE(zeilen("Liste2")[1].startsWith("             ->  "));
    waehle("Liste2", {1});
    EXPECT_LE(markierte("Bezeichnung6").size(), 6);
    ticke();
    EXPECT_LE(markierte("Bezeichnung6").size(), 6);
}

TEST_F(Positionslistenschirm, EinVollesArchivStehtSofort)
{
    std::vector<std::string> ziehungen;
    for (int i = 0; i < kMaxZiehungenJeDatei; ++i)
        ziehungen.push_back(kVier[static_cast<std::size_t>(i) % kVier.size()]);
    beginne(ziehungen);
    QElapsedTimer uhr;
    uhr.start();
    klicke("Befehl1");
    EXPECT_EQ(zeilen("Liste1").size(), kMaxZiehungenJeDatei);
    EXPECT_EQ(lies("Label4"), QString("Anzahl der Ziehungen: %1").arg(kMaxZiehungenJeDatei));
    EXPECT_LT(uhr.elapsed(), 5000); // far above what it takes, for a busy machine
}

TEST_F(Positionslistenschirm, EinSchlussMittenImLaufBeendetIhn)
{
    beginne();
    verlaengereArchiv();
    bool geschlossen = false;
    buehne.pumpe.beiZug = [&] {
        if (!std::exchange(geschlossen, true)) {
            EXPECT_TRUE(schirm().laeuft());
            EXPECT_EQ(schirm().windowTitle(), "Bitte warten, die Positionszahlen werden berechnet !");
            schirm().schliesse();
        }
    };
    klicke("Befehl1");
    buehne.pumpe.beiZug = {};
    QCoreApplication::processEvents();
    EXPECT_TRUE(geschlossen);
    EXPECT_EQ(buehne.bildschirme.geladen("frmPOSKOM"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Positionslistenschirm, DieWahlDesUmfangsMittenImLaufLaesstDieListenLeer)
{
    beginne();
    verlaengereArchiv();
    bool gewaehlt = false;
    buehne.pumpe.beiZug = [&] {
        if (!std::exchange(gewaehlt, true)) {
            klicke("Befehl2"); // a second start while one runs does nothing
            EXPECT_TRUE(sichtbar("Liste1"));
            klicke("Option1(1)");
        }
    };
    klicke("Befehl1");
    buehne.pumpe.beiZug = {};
    EXPECT_TRUE(gewaehlt);
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    EXPECT_EQ(lies("Label4"), "");
    EXPECT_TRUE(bedienbar("Text1(0)"));
    EXPECT_EQ(titel(), "Die bisherigen  Ziehungen und ihre Positionszahlen");
}

} // namespace
