#include "listcontrol/logic/concat.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

TEST(concat, IstAmAnfangLeer)
{
    const concat text;
    EXPECT_EQ(text.Value(), "");
    EXPECT_EQ(text.Length(), 0U);
    EXPECT_EQ(text.Capacity(), 0U);
}

TEST(concat, HaengtAn)
{
    concat text;
    text.Append("Sechs");
    text.Append("");
    text.Append(" aus 49");
    EXPECT_EQ(text.Value(), "Sechs aus 49");
    EXPECT_EQ(text.Length(), 12U);
}

TEST(concat, NullbytesSindText)
{
    concat text;
    text.Append(std::string("a\0b", 3));
    EXPECT_EQ(text.Value(), std::string("a\0b", 3));
}

TEST(concat, WaechstUmEinenBlockVonDerNeuenGesamtlaenge)
{
    concat text;
    text.Append("12345");
    EXPECT_EQ(text.Capacity(), 5U);
    text.Append("67");
    EXPECT_EQ(text.Capacity(), 5U + 7U);
    text.Append("89012");
    EXPECT_EQ(text.Capacity(), 12U); // just fits
    text.Append("3");
    EXPECT_EQ(text.Capacity(), 12U + 13U);
    EXPECT_EQ(text.Value(), "1234567890123");
}

TEST(concat, ClearBehaeltDenPlatz)
{
    concat text;
    text.Append("ein ganzer Satz");
    const std::size_t platz = text.Capacity();
    text.Clear();
    EXPECT_EQ(text.Capacity(), platz);
    EXPECT_EQ(text.Length(), 0U);
    EXPECT_EQ(text.Value(), "");
    text.Append("kurz");
    EXPECT_EQ(text.Value(), "kurz");
    EXPECT_EQ(text.Capacity(), platz);
}

TEST(concat, VieleStueckeBrauchenWenigeVergroesserungen)
{
    concat text;
    std::string erwartet;
    std::set<std::size_t> groessen;
    for (int i = 0; i < 100'000; ++i) {
        const std::string zeile = std::to_string(i) + "\r\n";
        text.Append(zeile);
        erwartet += zeile;
        groessen.insert(text.Capacity());
    }
    EXPECT_EQ(text.Value(), erwartet);
    EXPECT_LE(groessen.size(), 20U);
}

} // namespace
