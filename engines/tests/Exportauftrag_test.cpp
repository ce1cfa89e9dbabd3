#include "engines/logic/Exporteinstellungen.h"
#include "engines/logic/Exporttexte.h"
#include "shell/logic/IniDatei.h"
#include "testhilfen/Pruefordner.h"

#include <cerrno>

namespace {

TEST(Auftragsfehler, NenntDoppelteBankzahlen)
{
    EXPECT_EQ(auftragsfehler({.bankzahlen = {5, 7, 5}}), "Es wurden Bankzahlen doppelt ausgewählt!");
    EXPECT_FALSE(auftragsfehler({.bankzahlen = {5, 7, 6}}));
    EXPECT_FALSE(auftragsfehler({}));
}

TEST(Auftragsfehler, PrueftDenBereichNachDerGroesse)
{
    EXPECT_EQ(auftragsfehler({.k = 6, .bereich = Zahlenbereich{9, 9}}),
              "Der Bereichsanfang, die Zahl1, muss kleiner als Zahl6 sein!");
    EXPECT_EQ(auftragsfehler({.k = 3, .bereich = Zahlenbereich{9, 8}}),
              "Der Bereichsanfang, die Zahl1, muss kleiner als Zahl3 sein!");
    EXPECT_EQ(auftragsfehler({.k = 6, .bereich = Zahlenbereich{9, 13}}),
              "Der gewählte Bereich ist zu klein! Z6 muss >= Z1+5 sein ");
    EXPECT_EQ(auftragsfehler({.k = 4, .bereich = Zahlenbereich{1, 3}}),
              "Der gewählte Bereich ist zu klein! Z4 muss >= Z1+3 sein ");
    EXPECT_FALSE(auftragsfehler({.k = 6, .bereich = Zahlenbereich{9, 14}}));
    EXPECT_FALSE(auftragsfehler({.k = 2, .bereich = Zahlenbereich{48, 49}}));
}

TEST(AnzahlKombinationen, JeNachFilter)
{
    EXPECT_EQ(anzahlKombinationen({.k = 6}), 13'983'816U);
    EXPECT_EQ(anzahlKombinationen({.k = 2}), 1176U);
    EXPECT_EQ(anzahlKombinationen({.k = 6, .bankzahlen = {1, 2, 3, 4, 5}}), 44U);
    EXPECT_EQ(anzahlKombinationen({.k = 5, .bankzahlen = {1, 2, 3, 4, 5}}), 1U);
    EXPECT_EQ(anzahlKombinationen({.k = 4, .bankzahlen = {1, 2, 3, 4, 5}}), 0U);
    EXPECT_EQ(anzahlKombinationen({.k = 6, .bereich = Zahlenbereich{10, 15}}), 1U);
    EXPECT_EQ(anzahlKombinationen({.k = 6, .bereich = Zahlenbereich{10, 16}}), 7U);
}

TEST(Exportdateien, HeissenNachGroesseFilterUndTeil)
{
    const auto namen = [](const Exportauftrag& auftrag) {
        std::vector<std::string> alle;
        for (const Exportdatei& datei : exportdateien(auftrag))
            alle.push_back(datei.name);
        return alle;
    };
    EXPECT_EQ(namen({}), std::vector<std::string>{"6aus49.txt"});
    EXPECT_EQ(namen({.k = 3, .endung = "csv", .geteilt = true}), std::vector<std::string>{"3aus49.csv"});
    EXPECT_EQ(namen({.bankzahlen = {5, 12}}), std::vector<std::string>{"6aus49_Bank_B5_B12.txt"});
    EXPECT_EQ(namen({.k = 5, .bereich = Zahlenbereich{5, 20}}),
              std::vector<std::string>{"5aus49_Bereich_von_5_bis_20.txt"});
    EXPECT_EQ(namen({.k = 5, .geteilt = true}).size(), 10U);
    const std::vector<std::string> teile = namen({.geteilt = true});
    EXPECT_EQ(teile.size(), 70U);
    EXPECT_EQ(teile.front(), "6aus49_Teil_1.txt");
    EXPECT_EQ(teile.back(), "6aus49_Teil_70.txt");
    EXPECT_EQ(exportdateien({.geteilt = true}).back().zeilen, 183'816U);
    EXPECT_EQ(namen({.bankzahlen = {5, 12}, .geteilt = true}).size(), 1U);
    EXPECT_EQ(namen({.bankzahlen = {5}, .geteilt = true}).back(), "6aus49_Bank_B5_Teil_9.txt");
}

TEST(Exporthinweis, FolgtDerWahl)
{
    EXPECT_EQ(exporthinweis({}), "Generiert alle 13.983.816 möglichen Kombinationen 6aus49 und schreibt sie in eine "
                                 "ASCII-Textdatei oder in mehrere Teildateien ");
    EXPECT_EQ(exporthinweis({.k = 2, .bankzahlen = {3}}),
              "Filtert aus allen möglichen 1176 Kombinationen nur die heraus, in denen alle ausgewählten Bankzahlen "
              "enthalten sind.");
    EXPECT_EQ(
        exporthinweis({.k = 4, .bereich = Zahlenbereich{}}),
        "Filtert aus allen möglichen 211.876 Kombinationen nur die heraus, deren Zahlen alle im gewählten Bereich "
        "liegen.");
}

TEST(Exporttexte, SagenWieWeitEsIst)
{
    EXPECT_EQ(exportfortschritt({}, 1'230'000), "Generierte Kombinationen: 1.230.000");
    EXPECT_EQ(exportfortschritt({.bankzahlen = {1}}, 10'000), "Suche läuft -> Gefilterte Kombinationen: 10.000");
    EXPECT_EQ(exportstand({.bankzahlen = {1}}, 0), "Gefilterte Kombinationen: 0");
    EXPECT_EQ(zeittext(1234), "Zeit = 1,23 s");
    EXPECT_EQ(dateienangabe(exportdateien({})), "6aus49.txt (265,7 MB)");
    EXPECT_EQ(dateienangabe(exportdateien({.k = 5, .geteilt = true})),
              "5aus49_Teil_1.txt bis 5aus49_Teil_10.txt (30,5 MB)");
}

TEST(Exporttexte, FragenUndMelden)
{
    EXPECT_EQ(ueberschreibfrage({"a.txt"}, "/da"),
              "Im Ordner /da gibt es die Datei a.txt schon.\nSoll sie ersetzt werden?");
    EXPECT_EQ(ueberschreibfrage({"a.txt", "b.txt", "c.txt"}, "/da"),
              "Im Ordner /da gibt es 3 der Dateien schon, von a.txt bis c.txt.\nSollen sie ersetzt werden?");
    EXPECT_EQ(platzReichtNicht("/da", {{"a.txt", 1, 5'000'000}}, 1'000'000),
              "Für a.txt (5,0 MB) reicht der freie Platz im Ordner /da nicht: Es fehlen 1,0 MB.\nEs wurde nichts "
              "geschrieben.");
    EXPECT_EQ(exportGescheitert({.fertige = 2, .datei = "c.txt", .fehler = {ENOSPC, "x"}}),
              "Die Datei c.txt konnte nicht geschrieben werden.\nAuf dem Datenträger ist kein Platz mehr.\nFertige "
              "Dateien: 2");
    EXPECT_EQ(exportGescheitert({.datei = "c.txt", .fehler = {EIO, "Ein-/Ausgabefehler"}}),
              "Die Datei c.txt konnte nicht geschrieben werden.\nEin-/Ausgabefehler\nEs wurde keine Datei fertig.");
    EXPECT_EQ(exportGestoppt({.fertige = 1}), "Abgebrochen. Fertige Dateien: 1");
}

class Einstellungen : public testing::Test {
protected:
    Exporteinstellungen lies(std::string_view inhalt)
    {
        return liesExporteinstellungen(ordner.lege("druck_settings.ini", inhalt));
    }

    const Pruefordner ordner;
};

TEST_F(Einstellungen, KommenZurueckWieSieGeschriebenWurden)
{
    const Exporteinstellungen einstellungen{.ordner = "/tmp/Öl und mehr",
                                            .trenner = 3,
                                            .endung = 1,
                                            .geteilt = true,
                                            .nummeriert = true,
                                            .bereich = {7, 33}};
    const auto ini = ordner.lege("druck_settings.ini", "[Druck]\r\nRand=3\r\n");
    ASSERT_TRUE(schreibeExporteinstellungen(ini, einstellungen));
    EXPECT_EQ(liesExporteinstellungen(ini), einstellungen);
    EXPECT_EQ(IniLesen(ini, "Separator", "optSep(0)"), "False");
    EXPECT_EQ(IniLesen(ini, "Separator", "optSep(3)"), "True");
    EXPECT_EQ(IniLesen(ini, "Extension", "optEx(1)"), "True");
    EXPECT_EQ(IniLesen(ini, "EineDatei", "optAll(0)"), "False");
    EXPECT_EQ(IniLesen(ini, "Nummerierung", "chkKN"), "True");
    EXPECT_EQ(IniLesen(ini, "Bereich", "von"), "7");
    EXPECT_EQ(IniLesen(ini, "Bereich", "bis"), "33");
    EXPECT_EQ(IniLesen(ini, "Save_Path", "SavePath"), "/tmp/Öl und mehr");
    EXPECT_EQ(IniLesen(ini, "Druck", "Rand"), "3");
    ASSERT_TRUE(schreibeExporteinstellungen(ini, {}));
    EXPECT_EQ(liesExporteinstellungen(ini), Exporteinstellungen{});
}

TEST_F(Einstellungen, OhneDateiGiltDieVorgabe)
{
    EXPECT_EQ(liesExporteinstellungen(ordner / "fehlt.ini"), Exporteinstellungen{});
}

TEST_F(Einstellungen, FuerUnsinnGiltDieVorgabe)
{
    EXPECT_EQ(lies("[Separator]\r\noptSep(1)=vielleicht\r\noptSep(9)=True\r\n[Extension]\r\noptEx(1)=2\r\n"
                   "[EineDatei]\r\noptAll(1)=ja\r\n[Nummerierung]\r\nchkKN=17\r\n[Bereich]\r\nvon=5\r\nbis=50\r\n"
                   "[Save_Path]\r\nSavePath=irgendwo\r\n"),
              Exporteinstellungen{});
    EXPECT_EQ(lies("[Separator]\r\noptSep(1)=True\r\noptSep(2)=True\r\n").trenner, 0U);
    for (const char* bereich : {"von=abc\r\nbis=9\r\n", "von=9\r\nbis=9\r\n", "von=0\r\nbis=9\r\n",
                                "von=-3\r\nbis=9\r\n", "von=3\r\n", "von=99999999999\r\nbis=9\r\n"})
        EXPECT_EQ(lies(std::string("[Bereich]\r\n") + bereich).bereich, Zahlenbereich{}) << bereich;
    EXPECT_EQ(lies(std::string(5000, '\xFF')), Exporteinstellungen{});
}

} // namespace
