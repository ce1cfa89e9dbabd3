#include "shell/logic/Zeichensatz.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using namespace std::string_view_literals;

TEST(Windows1252, DeutscheTexte)
{
    EXPECT_EQ(nachWindows1252("Glück ÄÖÜß"), "Gl\xFC"
                                             "ck \xC4\xD6\xDC\xDF");
    EXPECT_EQ(ausWindows1252("Gl\xFC"
                             "ck \xC4\xD6\xDC\xDF"),
              "Glück ÄÖÜß");
}

TEST(Windows1252, ZeichenZwischen80Und9F)
{
    EXPECT_EQ(nachWindows1252("€„“–"), "\x80\x84\x93\x96");
    EXPECT_EQ(ausWindows1252("\x80\x84\x93\x96\x9F"), "€„“–Ÿ");
}

TEST(Windows1252, BytesOhneZeichenWerdenFragezeichen)
{
    EXPECT_EQ(ausWindows1252("\x81\x8D\x8F\x90\x9D"), "?????");
}

TEST(Windows1252, ZeichenOhneByteWerdenFragezeichen)
{
    EXPECT_EQ(nachWindows1252("łя😀a"), "???a");
    EXPECT_EQ(nachWindows1252("\xC2\x80"), "?"); // the control character U+0080 is not the byte 80
}

TEST(Windows1252, JedesByteKommtZurueck)
{
    for (int byte = 0; byte < 256; ++byte) {
        if (byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D)
            continue;
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(nachWindows1252(ausWindows1252(bytes)), bytes) << byte;
    }
}

TEST(Windows1252, KaputtesUtf8WirdFragezeichenUndNichtsWeiter)
{
    EXPECT_EQ(nachWindows1252("a\xC3"), "a?");
    EXPECT_EQ(nachWindows1252("\xFF-"), "?-");
    EXPECT_EQ(nachWindows1252("\xC3(ab"), "?(ab");
    EXPECT_EQ(nachWindows1252("\xC0\xAF"), "??");           // a longer form than need be
    EXPECT_EQ(nachWindows1252("\xED\xA0\x80"), "???");      // half of a surrogate pair
    EXPECT_EQ(nachWindows1252("\xF5\x80\x80\x80"), "????"); // behind the last character
}

TEST(NaechstesZeichen, NimmtEinsNachDemAnderen)
{
    std::string_view rest = "aä€😀";
    EXPECT_EQ(naechstesZeichen(rest), U'a');
    EXPECT_EQ(naechstesZeichen(rest), U'ä');
    EXPECT_EQ(naechstesZeichen(rest), U'€');
    EXPECT_EQ(naechstesZeichen(rest), U'😀');
    EXPECT_TRUE(rest.empty());
}

TEST(NaechstesZeichen, NullIstEinZeichen)
{
    std::string_view rest = "\0x"sv;
    EXPECT_EQ(naechstesZeichen(rest), U'\0');
    EXPECT_EQ(rest, "x");
}

} // namespace
