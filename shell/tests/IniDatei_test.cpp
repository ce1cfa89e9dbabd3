#include "shell/logic/IniDatei.h"
#include "testhilfen/Pruefordner.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

class IniDatei : public testing::Test {
protected:
    std::string lies(std::string_view inhalt, std::string_view abschnitt, std::string_view schluessel)
    {
        return IniLesen(ordner.lege("lesen.ini", inhalt), abschnitt, schluessel);
    }

    /// The file's bytes after one write into `inhalt`.
    std::string schreibe(std::string_view inhalt, std::string_view abschnitt, std::string_view schluessel,
                         std::string_view wert)
    {
        const fs::path ini = ordner.lege("schreiben.ini", inhalt);
        EXPECT_TRUE(IniSchreiben(ini, abschnitt, schluessel, wert));
        return inhaltVon(ini);
    }

    const Pruefordner ordner;
    const fs::path datei = ordner / "druck_settings.ini";
};

TEST_F(IniDatei, FehlenderSchluesselIstLeer)
{
    EXPECT_EQ(IniLesen(datei, "Bereich", "von"), "");
    EXPECT_EQ(lies("[Bereich]\r\nbis=9\r\n", "Bereich", "von"), "");
    EXPECT_EQ(lies("[Anders]\r\nvon=9\r\n", "Bereich", "von"), "");
    EXPECT_FALSE(istWahr(IniLesen(datei, "Separator", "optSep(0)")));
}

TEST_F(IniDatei, LiestWieDieProfilaufrufe)
{
    EXPECT_EQ(lies("[Bereich]\r\nvon=1\r\nbis=49\r\n", "Bereich", "bis"), "49");
    EXPECT_EQ(lies("[Bereich]\nvon=1\nbis=49", "Bereich", "bis"), "49");
    EXPECT_EQ(lies("  [bereich]  \r\n  VON  =   1  \r\n", "Bereich", "von"), "1");
    EXPECT_EQ(lies("[Save_Path]\r\nSavePath=c:\\a=b;c\r\n", "Save_Path", "SavePath"), "c:\\a=b;c");
}

TEST_F(IniDatei, NimmtEinPaarAnfuehrungszeichenWeg)
{
    EXPECT_EQ(lies("[S]\r\nk=\" a \"\r\n", "S", "k"), " a ");
    EXPECT_EQ(lies("[S]\r\nk='a'\r\n", "S", "k"), "a");
    EXPECT_EQ(lies("[S]\r\nk=\"\"a\"\"\r\n", "S", "k"), "\"a\"");
    EXPECT_EQ(lies("[S]\r\nk=\"a\r\n", "S", "k"), "\"a");
    EXPECT_EQ(lies("[S]\r\nk=\"\r\n", "S", "k"), "\"");
}

TEST_F(IniDatei, KommentareUndFremdeZeilenSindKeineEintraege)
{
    EXPECT_EQ(lies("[S]\r\n;k=1\r\nohne Gleichheit\r\nk=2\r\n", "S", "k"), "2");
    EXPECT_EQ(lies("k=0\r\n[S]\r\nk=2\r\n", "S", "k"), "2");
}

TEST_F(IniDatei, NurDerErsteGleicheZaehlt)
{
    EXPECT_EQ(lies("[S]\r\nk=1\r\nk=2\r\n", "S", "k"), "1");
    EXPECT_EQ(lies("[S]\r\na=1\r\n[S]\r\nk=2\r\n", "S", "k"), "");
}

TEST_F(IniDatei, WertEndetMitDemPuffer)
{
    const std::string lang(400, 'x');
    EXPECT_EQ(lies("[S]\r\nk=" + lang + "\r\n", "S", "k").size(), 254U);
    EXPECT_EQ(lies("[S]\r\nk=" + std::string(254, 'x') + "\r\n", "S", "k").size(), 254U);
}

TEST_F(IniDatei, UmlauteStehenInWindows1252)
{
    EXPECT_TRUE(IniSchreiben(datei, "Größe", "schlüssel", "Fünfer €"));
    EXPECT_EQ(inhaltVon(datei), "[Gr\xF6\xDF"
                                "e]\r\nschl\xFC"
                                "ssel=F\xFC"
                                "nfer \x80\r\n");
    EXPECT_EQ(IniLesen(datei, "GRÖßE", "SCHLÜSSEL"), "Fünfer €");
}

TEST_F(IniDatei, SchreibtNeueDatei)
{
    EXPECT_TRUE(IniSchreiben(datei, "Separator", "optSep(0)", "True"));
    EXPECT_TRUE(IniSchreiben(datei, "Separator", "optSep(1)", "False"));
    EXPECT_TRUE(IniSchreiben(datei, "Save_Path", "SavePath", "/home/anna/Desktop/"));
    EXPECT_EQ(inhaltVon(datei), "[Separator]\r\noptSep(0)=True\r\noptSep(1)=False\r\n"
                                "[Save_Path]\r\nSavePath=/home/anna/Desktop/\r\n");
    EXPECT_TRUE(istWahr(IniLesen(datei, "separator", "OPTSEP(0)")));
}

TEST_F(IniDatei, ErsetztNurDieEineZeile)
{
    EXPECT_EQ(schreibe("; oben\r\n[A]\r\nk=1\r\n\r\n[B]\r\n;k=0\r\nk=1\r\nm=2\r\nunklar\r\n[C]\r\nk=1", "b", "K", "9"),
              "; oben\r\n[A]\r\nk=1\r\n\r\n[B]\r\n;k=0\r\nK=9\r\nm=2\r\nunklar\r\n[C]\r\nk=1");
}

TEST_F(IniDatei, NeuerSchluesselStehtAmEndeSeinesAbschnitts)
{
    EXPECT_EQ(schreibe("[A]\r\nk=1\r\n\r\n\r\n[B]\r\nk=1\r\n", "A", "neu", "2"),
              "[A]\r\nk=1\r\nneu=2\r\n\r\n\r\n[B]\r\nk=1\r\n");
    EXPECT_EQ(schreibe("[A]\r\n[B]\r\n", "A", "neu", "2"), "[A]\r\nneu=2\r\n[B]\r\n");
    EXPECT_EQ(schreibe("[A]\r\nk=1\r\n", "A", "neu", "2"), "[A]\r\nk=1\r\nneu=2\r\n");
}

TEST_F(IniDatei, LetzteZeileOhneEndeBekommtEins)
{
    EXPECT_EQ(schreibe("[A]\r\nk=1", "A", "neu", "2"), "[A]\r\nk=1\r\nneu=2\r\n");
    EXPECT_EQ(schreibe("[A]", "A", "neu", "2"), "[A]\r\nneu=2\r\n");
    EXPECT_EQ(schreibe("[A]\r\nk=1", "B", "neu", "2"), "[A]\r\nk=1\r\n[B]\r\nneu=2\r\n");
    EXPECT_EQ(schreibe("[A]\r\nk=1", "A", "k", "2"), "[A]\r\nk=2\r\n");
}

TEST_F(IniDatei, BytesOhneZeichenInFremdenZeilenBleiben)
{
    EXPECT_EQ(schreibe("; \x81\x8D\xFF\r\n[A]\r\nk=1\r\n", "A", "k", "2"), "; \x81\x8D\xFF\r\n[A]\r\nk=2\r\n");
}

TEST_F(IniDatei, ZeilenumbruecheImWertBrechenNichts)
{
    EXPECT_TRUE(IniSchreiben(datei, "A", "k", "1\r\n[B]\nk=2"));
    EXPECT_TRUE(IniSchreiben(datei, "A", "m", "3"));
    EXPECT_EQ(IniLesen(datei, "A", "k"), "1  [B] k=2");
    EXPECT_EQ(IniLesen(datei, "A", "m"), "3");
    EXPECT_EQ(IniLesen(datei, "B", "k"), "");
}

TEST_F(IniDatei, JederWertKommtZurueck)
{
    for (const char* const wert : {"", " ", "  a  ", "\"a\"", "'a'", "\"", ";", "[A]", "a=b", "\ta", "\" \"", "-1"}) {
        EXPECT_TRUE(IniSchreiben(datei, "A", "k", wert)) << wert;
        EXPECT_EQ(IniLesen(datei, "A", "k"), wert);
    }
}

TEST_F(IniDatei, NamenDieDieDateiBrechenWerdenAbgelehnt)
{
    ASSERT_TRUE(IniSchreiben(datei, "A", "k", "1"));
    const std::string vorher = inhaltVon(datei);
    EXPECT_FALSE(IniSchreiben(datei, "", "k", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A]\r\n[B", "k", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A]", "k", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A", "", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A", "k=", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A", ";k", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A", "[k", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A", "k\nm", "2"));
    EXPECT_FALSE(IniSchreiben(datei, "A", " k", "2"));
    EXPECT_EQ(inhaltVon(datei), vorher);
}

TEST_F(IniDatei, SchreibgeschuetzteDateiBleibt)
{
    ordner.lege("druck_settings.ini", "[A]\r\nk=1\r\n");
    fs::permissions(datei, fs::perms(0444));
    EXPECT_FALSE(IniSchreiben(datei, "A", "k", "2"));
    EXPECT_EQ(IniLesen(datei, "A", "k"), "1");
}

TEST_F(IniDatei, WasNichtLesbarIstWirdNichtUeberschrieben)
{
    fs::create_directory(datei);
    EXPECT_FALSE(IniSchreiben(datei, "A", "k", "2"));
    EXPECT_EQ(IniLesen(datei, "A", "k"), "");
    const std::string riesig(2'000'000, ';');
    const fs::path gross = ordner.lege("gross.ini", riesig);
    EXPECT_FALSE(IniSchreiben(gross, "A", "k", "2"));
    EXPECT_EQ(inhaltVon(gross), riesig);
}

TEST_F(IniDatei, LeererAbschnittsnameOderKaputteKoepfe)
{
    EXPECT_EQ(lies("[A\r\nk=1\r\n", "A", "k"), "1");
    EXPECT_EQ(lies("[]\r\nk=1\r\n", "A", "k"), "");
    EXPECT_EQ(lies("[", "A", "k"), "");
}

TEST(IstWahr, WasAlsWahrGilt)
{
    for (const char* const text : {"True", "true", "TRUE", "Wahr", "wahr", "1", "-1", " True "})
        EXPECT_TRUE(istWahr(text)) << text;
    for (const char* const text : {"", "False", "Falsch", "0", "2", "ja", "Truex"})
        EXPECT_FALSE(istWahr(text)) << text;
}

TEST(Wahrheitswert, TextUndZurueck)
{
    EXPECT_EQ(wahrheitswert(true), "True");
    EXPECT_EQ(wahrheitswert(false), "False");
    EXPECT_TRUE(istWahr(wahrheitswert(true)));
    EXPECT_FALSE(istWahr(wahrheitswert(false)));
}

TEST_F(IniDatei, SchreibtMehrereAufEinmalOderKeinen)
{
    const fs::path ini = ordner.lege("mehrere.ini", "[A]\r\nx=1\r\n");
    const std::vector<IniEintrag> gute{{"A", "x", "2"}, {"B", "y(0)", "True"}, {"A", "z", "3"}};
    EXPECT_TRUE(IniSchreiben(ini, gute));
    EXPECT_EQ(inhaltVon(ini), "[A]\r\nx=2\r\nz=3\r\n[B]\r\ny(0)=True\r\n");
    const std::vector<IniEintrag> schlechte{{"A", "x", "9"}, {"A", "a=b", "9"}};
    EXPECT_FALSE(IniSchreiben(ini, schlechte));
    EXPECT_EQ(IniLesen(ini, "A", "x"), "2");
}

} // namespace
