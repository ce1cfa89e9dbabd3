#include "reports/frame/HtmlText.h"

#include <gtest/gtest.h>
#include <string>

namespace {

std::string latin1(std::string_view text)
{
    return htmlBytes(text, HtmlZeichensatz::Iso8859_1);
}
std::string utf8(std::string_view text)
{
    return htmlBytes(text, HtmlZeichensatz::Utf8);
}

TEST(HtmlMaskiert, LaesstKeinMarkupAusFremdenTextenDurch)
{
    EXPECT_EQ(htmlMaskiert("<script>alert(\"x\" & 'y')</script>"),
              "&lt;script&gt;alert(&quot;x&quot; &amp; &#39;y&#39;)&lt;/script&gt;");
}

TEST(HtmlMaskiert, LaesstUmlauteUndLeerenText)
{
    EXPECT_EQ(htmlMaskiert("Häufigkeit  größer"), "Häufigkeit  größer");
    EXPECT_EQ(htmlMaskiert(""), "");
}

TEST(HtmlMaskiert, MaskiertAuchWasSchonEineEntitaetIst)
{
    EXPECT_EQ(htmlMaskiert("&amp;"), "&amp;amp;");
}

TEST(HtmlBytes, Iso8859UmlauteSindEinByte)
{
    EXPECT_EQ(latin1("Häufigkeit ÄÖÜ äöü ß é ÿ"), "H\xE4ufigkeit \xC4\xD6\xDC \xE4\xF6\xFC \xDF \xE9 \xFF");
}

TEST(HtmlBytes, WasIso8859FehltWirdEntitaet)
{
    EXPECT_EQ(latin1("5 €"), "5 &#8364;");
    EXPECT_EQ(latin1("„Lotto“ – …"), "&#8222;Lotto&#8220; &#8211; &#8230;");
    EXPECT_EQ(latin1("😀"), "&#128512;");
}

TEST(HtmlBytes, DieGrenzeVonIso8859)
{
    EXPECT_EQ(latin1("\xC2\xA0|\xC3\xBF|\xC4\x80"), "\xA0|\xFF|&#256;"); // U+00A0, U+00FF, U+0100
}

TEST(HtmlBytes, Utf8BleibtUtf8)
{
    EXPECT_EQ(utf8("Häufigkeit 5 € 😀"), "Häufigkeit 5 € 😀");
}

TEST(HtmlBytes, VerirrteBytesWerdenErsatzzeichen)
{
    EXPECT_EQ(latin1("a\xFFz"), "a&#65533;z");
    EXPECT_EQ(utf8("a\xFFz"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(utf8("\xC3"), "\xEF\xBF\xBD");
    EXPECT_EQ(latin1("\xE2\x82"), "&#65533;&#65533;");
}

TEST(HtmlBytes, SteuerzeichenWerdenErsatzzeichen)
{
    EXPECT_EQ(latin1(std::string_view("a\0b", 3)), "a&#65533;b");
    EXPECT_EQ(latin1("\x1B|\x7F"), "&#65533;|&#65533;");
    EXPECT_EQ(latin1("\xC2\x80"), "&#65533;"); // browsers would read the byte 80 as a euro sign
    EXPECT_EQ(utf8("\xC2\x9F"), "\xEF\xBF\xBD");
}

TEST(HtmlBytes, TabUndZeilenendeBleiben)
{
    EXPECT_EQ(latin1("a\tb\r\nc"), "a\tb\r\nc");
    EXPECT_EQ(utf8("a\tb\r\nc"), "a\tb\r\nc");
    EXPECT_EQ(latin1(""), "");
}

} // namespace
