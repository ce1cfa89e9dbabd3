#include "engines/logic/TreffersucheTexte.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

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

Trefferbericht::Abschnitt abschnitt(const char* titel, const char* anzahl, std::vector<std::string> zeilen)
{
    return {titel, anzahl, zeilen.size(), [zeilen](std::size_t zeile) { return zeilen[zeile]; }};
}

Trefferbericht angaben()
{
    Trefferbericht bericht;
    bericht.auftrag.spielarten = {"Sa", "Mi", "Mi (B)"};
    bericht.auftrag.staende = {"3693  [2026/29]", "-", "-"};
    bericht.auftrag.ziehungen = "Anzahl: 3693";
    bericht.listen = {abschnitt("Dreier (>=135):", "2", {"zwei", "eins"}), abschnitt("Vierer:", "0", {}),
                      abschnitt("Fünfer:", "0", {}), abschnitt("Sechser:", "0", {"keine"}),
                      abschnitt("Schlechte:", "Anzahl gesamt: 7", {})};
    bericht.frage = "Höher?";
    return bericht;
}

TEST(TreffersucheTexte, Bericht)
{
    const std::string bericht = treffersucheBericht(angaben());
    EXPECT_TRUE(bericht.starts_with(
        "Suche nach Kombinationen, die in der Lottogeschichte die meisten oder wenigsten Treffer erbracht hätten\r\n"
        "In die Auswertung einbezogene Ziehungen:\r\n"
        "Sa:      3693  [2026/29]\r\n"
        "Mi:      -\r\n"
        "Mi (B):      -\r\n"
        "Anzahl: 3693\r\n"
        "\r\n"
        "Dreier (>=135)::  Anzahl: 2\r\n"
        "6er  5er  4er  3er      Kombination\r\n"
        "zwei\r\n"
        "eins\r\n"
        "\r\n"
        "Vierer::  Anzahl: 0\r\n"))
        << bericht;
    EXPECT_NE(bericht.find("\r\nkeine\r\n"), std::string::npos);
    EXPECT_NE(bericht.find("\r\nSchlechte::  Anzahl:  Anzahl gesamt: 7\r\n"), std::string::npos);
    EXPECT_NE(bericht.find("\r\nHöher? nein\r\n"), std::string::npos);

    Trefferbericht hoehere = angaben();
    hoehere.auftrag.auchHoehere = true;
    EXPECT_NE(treffersucheBericht(hoehere).find("\r\nHöher? ja\r\n"), std::string::npos);
}

TEST(TreffersucheTexte, BerichtEndetAufWunsch)
{
    EXPECT_EQ(treffersucheBericht(angaben(), [](std::uint64_t) { return true; }), treffersucheBericht(angaben()));
    Trefferbericht lang = angaben();
    lang.listen[0].zeilen = 100;
    lang.listen[0].zeile = [](std::size_t) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return std::string("zeile");
    };
    EXPECT_EQ(treffersucheBericht(lang, [](std::uint64_t) { return false; }), "");
}

} // namespace
