#include "reports/frame/HtmlStil.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <string>

namespace {

TEST(HtmlStil, HausIstDunkelAmSchirmUndWeissImDruck)
{
    const HtmlZeilen erwartet{
        "@media screen  {body {",
        "background: #000005;",
        "font-family:verdana,sans-serif;",
        "font-size:11px;",
        "color:#999999;",
        "scrollbar-base-color:#000005;",
        "scrollbar-3d-light-color:#333333;",
        "scrollbar-arrow-color:#aabbcc;",
        "scrollbar-darkshadow-color:#000005;",
        "scrollbar-face-color:#000005;",
        "scrollbar-highlight-color:#333333;",
        "scrollbar-shadow-color:#333333;",
        "scrollbar-track-color:#111;",
        "cursor:default;}",
        "div.scroll{border:0px; height:360px; width:50%;overflow-x:hidden; overflow-y:auto;}",
        "::-webkit-scrollbar {width: 14px;background: #111;}",
        "::-webkit-scrollbar-thumb {border: 1px solid #666;border-radius: 0px;}",
        "::-webkit-scrollbar-thumb:hover {background: #222;}",
        "::-webkit-scrollbar-thumb:active {background:#333;}",
        "::-webkit-scrollbar-button:single-button {",
        "  background-color: #111;",
        "  display: block;",
        "  border-style: solid;",
        "  height: 13px;",
        "  width: 14px;",
        "}",
        "::-webkit-scrollbar-button:single-button:vertical:decrement {",
        "  border-width: 0 7px 7px 7px;",
        "  border-color: transparent transparent #333 transparent;",
        "}",
        "::-webkit-scrollbar-button:single-button:vertical:decrement:hover {",
        "  border-color: transparent transparent #444 transparent;",
        "}",
        "::-webkit-scrollbar-button:single-button:vertical:increment {",
        "  border-width: 7px 7px 0 7px;",
        "  border-color: #333 transparent transparent transparent;",
        "}",
        "::-webkit-scrollbar-button:single-button:vertical:increment:hover {",
        "  border-color: #444 transparent transparent transparent;",
        "}",
        "h1 {font: 18px verdana,sans-serif;color:#999;letter-spacing:5px}",
        "h2 {font: 13px verdana,sans-serif;color:#999;}",
        "table {font: 13px verdana,sans-serif;color:#000;}",
        "th {letter-spacing:2px;}",
        "p {font:13px verdana,sans-serif;color:#999;}",
        "}",
        "@media print  {",
        "body{background-color: #fff;font: 11px verdana,sans-serif;color:#000;}",
        "div.scroll{width:100%; text-align:left;overflow:visible;}",
        "}",
    };
    EXPECT_EQ(hausStil(), erwartet);
}

TEST(HtmlStil, JedeSeiteHatIhrEigenesRollfeld)
{
    EXPECT_THAT(
        hausStil("505px", "600px"),
        testing::Contains("div.scroll{border:0px; height:505px; width:600px;overflow-x:hidden; overflow-y:auto;}"));
}

TEST(HtmlStil, TabellenDerKompaktenSeite)
{
    EXPECT_THAT(
        tabelle1Stil(),
        testing::ElementsAre(".tabelle1 {width:70%;font: 13px arial,verdana; border:1px solid  #333;}",
                             ".tabelle1 td{width:14%;text-align:center;}",
                             ".tabelle1 tr:nth-child(odd) {background-color: #008000;color:yellow;font-weight: bold;}",
                             ".tabelle1 tr:nth-child(even) {background-color: white;}"));
    EXPECT_THAT(groupStil(), testing::ElementsAre(
                                 ".group {border: 2px solid #000; width:70%;border-collapse: separate;}",
                                 ".group th {padding:4px;letter-spacing:3px;background-color:#008000;color:yellow;}",
                                 ".group td {text-align:center;background-color:#fff}",
                                 ".group td:nth-child(1){width:40%;}", ".group td:nth-child(2){width::60%;}"));
    EXPECT_THAT(guStil(),
                testing::ElementsAre(".gu {border: 2px solid #000; width:50%;border-collapse: separate;}",
                                     ".gu th {padding:4px;letter-spacing:3px;background-color:#008000;color:yellow;}",
                                     ".gu td {width:50%;background-color:#fff}"));
    EXPECT_THAT(
        minmaxStil(),
        testing::ElementsAre(".minmax {border: 0; width:70%;border-collapse: separate;}",
                             ".minmax td:nth-child(1){text-align:center;width:5%;background-color:red;}",
                             ".minmax td:nth-child(2){text-align:left;width:45%;background-color:#000;color:#999;}",
                             ".minmax td:nth-child(3){text-align:center;width:5%;background-color:cyan;}",
                             ".minmax td:nth-child(4){text-align:left;width:45%;background-color:#000;color:#999;}"));
}

/// A rule left open would swallow all that follow it.
TEST(HtmlStil, JedeKlammerWirdGeschlossen)
{
    for (const HtmlZeilen& block : {hausStil(), tabelle1Stil(), groupStil(), guStil(), minmaxStil()}) {
        int offen = 0;
        for (const std::string& zeile : block) {
            offen += static_cast<int>(std::ranges::count(zeile, '{') - std::ranges::count(zeile, '}'));
            EXPECT_GE(offen, 0) << zeile;
        }
        EXPECT_EQ(offen, 0) << block.front();
    }
}

TEST(HtmlStil, VerbindeReihtAneinander)
{
    EXPECT_THAT(verbinde({{"a", "b"}, {}, {"c"}}), testing::ElementsAre("a", "b", "c"));
    EXPECT_TRUE(verbinde({}).empty());
}

} // namespace
