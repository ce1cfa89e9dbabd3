#include "engines/logic/TreffersucheTexte.h"

#include <gtest/gtest.h>

namespace {

Treffersuche beispiel()
{
    Treffersuche suche;
    suche.schwellen = trefferschwellen(7);
    suche.AnzahlOhneGewinn = 22'040;
    suche.listen[0].fuegeHinzu({0, 0, 0, 135}, 1);
    suche.listen[0].fuegeHinzu({0, 0, 0, 140}, 2);
    suche.listen[4].fuegeHinzu({0, 0, 0, 68}, 13'983'816);
    for (Trefferrang& liste : suche.listen)
        liste.ordne();
    return suche;
}

TEST(TreffersucheTexte, UeberschriftenVorUndNachDerSuche)
{
    const Trefferschwellen schwellen = trefferschwellen(7);
    EXPECT_EQ(ranglistentitel(Rangliste::Drei), " Kombinationen, die die meisten Dreier erbracht hätten:");
    EXPECT_EQ(ranglistentitel(Rangliste::Fuenf), "Kombinationen, die die meisten Fünfer erbracht hätten:");
    EXPECT_EQ(ranglistentitel(Rangliste::Loser), "Die schlechtesten Kombinationen:");
    EXPECT_EQ(ranglistentitel(Rangliste::Drei, schwellen),
              "Kombinationen, die die meisten Dreier erbracht hätten (>=135):");
    EXPECT_EQ(ranglistentitel(Rangliste::Vier, schwellen),
              "Kombinationen, die die meisten Vierer erbracht hätten (>=17):");
    EXPECT_EQ(ranglistentitel(Rangliste::Fuenf, schwellen),
              "Kombinationen, die die meisten Fuenfer erbracht hätten (>=4):");
    EXPECT_EQ(ranglistentitel(Rangliste::Sechs, schwellen), "Die erfogreichsten Sechserkombinationen:");
    EXPECT_EQ(ranglistentitel(Rangliste::Loser, schwellen),
              "Die schlechtesten Kombinationen, keine 6-,5-,4-er, 3-er (<70):");
}

TEST(TreffersucheTexte, Zaehlungen)
{
    EXPECT_EQ(kombinationenText(13'983'816), "13.983.816 von 13.983.816");
    EXPECT_EQ(vergleicheText(13'983'816, 6'545), "91.524.075.720");
    EXPECT_EQ(vergleicheText(13'983'816, 98'301), "1.374.623.096.616");
    EXPECT_EQ(anzahltext(beispiel(), Rangliste::Drei), "2");
    EXPECT_EQ(anzahltext(beispiel(), Rangliste::Loser), "Anzahl gesamt: 22.040 davon Kombinationen mit Anz. < 70: 1");
}

TEST(TreffersucheTexte, Bericht)
{
    const Treffersucheangaben angaben{{"Sa", "Mi", "Mi (B)"}, {"3693  [2026/29]", "-", "-"}, "Anzahl: 3693", "Höher?"};
    const std::string aufsteigend = treffersucheBericht(beispiel(), angaben, false);
    EXPECT_TRUE(aufsteigend.starts_with(
        "Suche nach Kombinationen, die in der Lottogeschichte die meisten oder wenigsten Treffer erbracht hätten\r\n"
        "In die Auswertung einbezogene Ziehungen:\r\n"
        "Sa:      3693  [2026/29]\r\n"
        "Mi:      -\r\n"
        "Mi (B):      -\r\n"
        "Anzahl: 3693\r\n"
        "\r\n"
        "Kombinationen, die die meisten Dreier erbracht hätten (>=135):  Anzahl: 2\r\n"
        "6er  5er  4er  3er      Kombination\r\n"
        " 0 |  0 |  0 | 135 |    01 02 03 04 05 06\r\n"
        " 0 |  0 |  0 | 140 |    01 02 03 04 05 07\r\n"
        "\r\n"
        "Kombinationen, die die meisten Vierer erbracht hätten (>=17):  Anzahl: 0\r\n"))
        << aufsteigend;
    EXPECT_NE(aufsteigend.find("(<70):  Anzahl gesamt: 22.040 davon Kombinationen mit Anz. < 70: 1\r\n"),
              std::string::npos);
    EXPECT_NE(aufsteigend.find("\r\nHöher? nein\r\n"), std::string::npos);

    const std::string absteigend = treffersucheBericht(beispiel(), angaben, true);
    EXPECT_LT(absteigend.find("140 |"), absteigend.find("135 |    "));
}

TEST(TreffersucheTexte, BerichtEndetAufWunsch)
{
    EXPECT_EQ(treffersucheBericht(beispiel(), {}, false, [](std::uint64_t) { return true; }),
              treffersucheBericht(beispiel(), {}, false));
    Treffersuche lang;
    for (std::int32_t nummer = 1; nummer <= 200'000; ++nummer)
        lang.listen[0].fuegeHinzu({}, nummer);
    lang.listen[0].ordne();
    EXPECT_EQ(treffersucheBericht(lang, {}, false, [](std::uint64_t) { return false; }), "");
}

} // namespace
