#include "shell/logic/Formular.h"
#include "shell/logic/Texte.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string gekuerzt(std::string text)
{
    return LeerzeichenKuerzen(text);
}

TEST(DateiName, HinterDemLetztenTrenner)
{
    EXPECT_EQ(DateiName("c:\\lotto\\SALOTTO.DAT"), "SALOTTO.DAT");
    EXPECT_EQ(DateiName("/home/anna/SALOTTO.DAT"), "SALOTTO.DAT");
    EXPECT_EQ(DateiName("c:\\lotto/tipps\\S_202418.DAT"), "S_202418.DAT");
}

TEST(DateiName, OhneTrennerDerGanzeText)
{
    EXPECT_EQ(DateiName("SALOTTO.DAT"), "SALOTTO.DAT");
    EXPECT_EQ(DateiName(""), "");
}

TEST(DateiName, HinterEinemTrennerAmEndeStehtNichts)
{
    EXPECT_EQ(DateiName("/home/anna/"), "");
}

TEST(LeerzeichenKuerzen, BeideEndenUndJedeLuecke)
{
    EXPECT_EQ(gekuerzt("  a   b  "), "a b");
    EXPECT_EQ(gekuerzt("a b c"), "a b c");
    EXPECT_EQ(gekuerzt("1  2       3 4"), "1 2 3 4");
}

TEST(LeerzeichenKuerzen, NurBlanksIstLeer)
{
    EXPECT_EQ(gekuerzt("     "), "");
    EXPECT_EQ(gekuerzt(""), "");
}

TEST(LeerzeichenKuerzen, LaesstAnderenLeerraumStehen)
{
    EXPECT_EQ(gekuerzt(" a\t\tb "), "a\t\tb");
}

TEST(LeerzeichenKuerzen, AendertDenTextSelbst)
{
    std::string text = "  x  y ";
    std::string& ergebnis = LeerzeichenKuerzen(text);
    EXPECT_EQ(&ergebnis, &text);
    EXPECT_EQ(text, "x y");
}

TEST(ZaehleVorkommen, LeereSucheGibtMinusEins)
{
    EXPECT_EQ(ZaehleVorkommen("abc", ""), -1);
    EXPECT_EQ(ZaehleVorkommen("", "", Vergleich::Text), -1);
}

TEST(ZaehleVorkommen, SuchtEinZeichenHinterDemLetztenTreffer)
{
    EXPECT_EQ(ZaehleVorkommen("aaaa", "aa"), 3);
    EXPECT_EQ(ZaehleVorkommen("a|b|c", "|"), 2);
    EXPECT_EQ(ZaehleVorkommen("üüü", "üü"), 2);
}

TEST(ZaehleVorkommen, KeinTrefferGibtNull)
{
    EXPECT_EQ(ZaehleVorkommen("abc", "x"), 0);
    EXPECT_EQ(ZaehleVorkommen("", "x"), 0);
    EXPECT_EQ(ZaehleVorkommen("ab", "abc"), 0);
}

TEST(ZaehleVorkommen, BinaerUnterscheidetSchreibungTextNicht)
{
    EXPECT_EQ(ZaehleVorkommen("Zahl zahl ZAHL", "zahl"), 1);
    EXPECT_EQ(ZaehleVorkommen("Zahl zahl ZAHL", "zahl", Vergleich::Text), 3);
    EXPECT_EQ(ZaehleVorkommen("Übung übung", "ÜBUNG", Vergleich::Text), 2);
    EXPECT_EQ(ZaehleVorkommen("Übung übung", "übung"), 1);
}

TEST(BinaerNachLong, WerteDerStellen)
{
    EXPECT_EQ(BinaerNachLong(""), 0);
    EXPECT_EQ(BinaerNachLong("101"), 5);
    EXPECT_EQ(BinaerNachLong("0"), 0);
    EXPECT_EQ(BinaerNachLong("11111"), 31);
    EXPECT_EQ(BinaerNachLong("0000010"), 2);
}

TEST(BinaerNachLong, JedeZifferAusserNullZaehlt)
{
    EXPECT_EQ(BinaerNachLong("90020"), 18);
}

TEST(BinaerNachLong, StellenUeber32BitFallenWeg)
{
    EXPECT_EQ(BinaerNachLong(std::string(31, '1')), INT32_MAX);
    EXPECT_EQ(BinaerNachLong(std::string(100, '1')), INT32_MAX);
}

TEST(Utf8Bytes, BytesOhneEndzeichen)
{
    EXPECT_THAT(Utf8Bytes("aä€"), ElementsAre(0x61, 0xC3, 0xA4, 0xE2, 0x82, 0xAC));
    EXPECT_THAT(Utf8Bytes(""), IsEmpty());
}

TEST(Schreibung, DeutscheBuchstaben)
{
    EXPECT_EQ(grossbuchstaben("Glückspiel äöü ß é 49"), "GLÜCKSPIEL ÄÖÜ ß É 49");
    EXPECT_EQ(kleinbuchstaben("FÜNFW ÄÖÜ ß É 49"), "fünfw äöü ß é 49");
}

TEST(Schreibung, RechenzeichenSindKeineBuchstaben)
{
    EXPECT_EQ(grossbuchstaben("3÷4"), "3÷4");
    EXPECT_EQ(kleinbuchstaben("3×4"), "3×4");
    EXPECT_EQ(kleinbuchstaben("@[`{"), "@[`{");
    EXPECT_EQ(grossbuchstaben("@[`{ÿ"), "@[`{ÿ");
}

TEST(Schreibung, AndereZeichenBleiben)
{
    EXPECT_EQ(grossbuchstaben("€ „ł“"), "€ „ł“");
}

TEST(VergleicheText, OhneGrossKlein)
{
    EXPECT_EQ(vergleicheText("Zahl", "zAHL"), 0);
    EXPECT_EQ(vergleicheText("FÜNF", "fünf"), 0);
    EXPECT_EQ(vergleicheText("a", "B"), -1);
    EXPECT_EQ(vergleicheText("B", "a"), 1);
    EXPECT_EQ(vergleicheText("ab", "abc"), -1);
    EXPECT_EQ(vergleicheText("abc", "AB"), 1);
    EXPECT_EQ(vergleicheText("", ""), 0);
    EXPECT_EQ(vergleicheText(" 9", "10"), -1);
}

TEST(VergleicheText, UmlauteStehenHinterZ)
{
    EXPECT_EQ(vergleicheText("Ä", "z"), 1);
}

TEST(GleichOhneGrossKlein, GanzeTexte)
{
    EXPECT_TRUE(gleichOhneGrossKlein("Salotto.dat", "SALOTTO.DAT"));
    EXPECT_FALSE(gleichOhneGrossKlein("Salotto.dat", "SALOTTO.DA"));
    EXPECT_FALSE(gleichOhneGrossKlein("Mütze", "Mutze"));
}

TEST(Trim, NimmtDieEndenWeg)
{
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim("\ta\r\n", " \t\r\n"), "a");
    EXPECT_EQ(trim("\ta"), "\ta");
}

TEST(Teile, ZwischenDenTrennern)
{
    EXPECT_THAT(teile("a|b|c", "|"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(teile("|a||b|", "|"), ElementsAre("", "a", "", "b", ""));
    EXPECT_THAT(teile("a\r\nb", "\r\n"), ElementsAre("a", "b"));
    EXPECT_THAT(teile("abc", "|"), ElementsAre("abc"));
}

TEST(Teile, LeererTextHatKeineTeile)
{
    EXPECT_THAT(teile("", "|"), IsEmpty());
}

TEST(Teile, LeererTrennerTeiltNichts)
{
    EXPECT_THAT(teile("a|b", ""), ElementsAre("a|b"));
}

TEST(Mid, ZeichenAbDerEinsGezaehlt)
{
    EXPECT_EQ(Mid("Gewinnzahl", 1, 6), "Gewinn");
    EXPECT_EQ(Mid("Gewinnzahl", 7), "zahl");
    EXPECT_EQ(Mid("Fünf für €5", 6, 5), "für €");
    EXPECT_EQ(Mid("kurz", 3, 10), "rz");
    EXPECT_EQ(Mid("kurz", 5, 1), "");
    EXPECT_EQ(Mid("kurz", 99), "");
    EXPECT_EQ(Mid("kurz", 0, 2), "ku");
    EXPECT_EQ(Mid("", 1, 1), "");
}

TEST(AnzahlZeichen, UmlauteZaehlenEinmal)
{
    EXPECT_EQ(anzahlZeichen("Übergröße"), 9U);
    EXPECT_EQ(anzahlZeichen(""), 0U);
}

TEST(FormGeladen, OhneGrossKlein)
{
    const std::vector<std::string> geladene = {"frmLSTART", "frmFÜNFW"};
    EXPECT_TRUE(FormGeladen(geladene, "FRMlstart"));
    EXPECT_TRUE(FormGeladen(geladene, "frmfünfw"));
    EXPECT_FALSE(FormGeladen(geladene, "frmSTAT1"));
    EXPECT_FALSE(FormGeladen({}, "frmLSTART"));
}

} // namespace
