#include "reports/frame/HtmlStil.h"

#include <iterator>

namespace {

/// An arrow of the scroll bar: a box whose borders leave a triangle. `blass` is its colour, `hell` the one under the
/// mouse; "%" in `farben` stands for the colour.
HtmlZeilen pfeil(const std::string& welcher, const std::string& breiten, std::string_view farben)
{
    const auto farbe = [farben](std::string_view wert) {
        const std::size_t stelle = farben.find('%');
        return "  border-color: " +
               std::string(farben.substr(0, stelle)).append(wert).append(farben.substr(stelle + 1)) + ";";
    };
    const std::string knopf = "::-webkit-scrollbar-button:single-button:vertical:" + welcher;
    return {knopf + " {", "  border-width: " + breiten + ";", farbe("#333"), "}", knopf + ":hover {", farbe("#444"),
            "}"};
}

HtmlZeilen rollbalkenKnoepfe()
{
    return verbinde({{"::-webkit-scrollbar-button:single-button {", "  background-color: #111;", "  display: block;",
                      "  border-style: solid;", "  height: 13px;", "  width: 14px;", "}"},
                     pfeil("decrement", "0 7px 7px 7px", "transparent transparent % transparent"),
                     pfeil("increment", "7px 7px 0 7px", "% transparent transparent transparent")});
}

std::string kopfzelle(std::string_view tabelle)
{
    return std::string(tabelle) + " th {padding:4px;letter-spacing:3px;background-color:#008000;color:yellow;}";
}

} // namespace

HtmlZeilen verbinde(std::initializer_list<HtmlZeilen> bloecke)
{
    HtmlZeilen alle;
    for (const HtmlZeilen& block : bloecke)
        alle.insert(alle.end(), block.begin(), block.end());
    return alle;
}

HtmlZeilen rollbalkenFarben()
{
    return {"scrollbar-base-color:#000005;",   "scrollbar-3d-light-color:#333333;",
            "scrollbar-arrow-color:#aabbcc;",  "scrollbar-darkshadow-color:#000005;",
            "scrollbar-face-color:#000005;",   "scrollbar-highlight-color:#333333;",
            "scrollbar-shadow-color:#333333;", "scrollbar-track-color:#111;"};
}

HtmlZeilen rollbalkenDaumen()
{
    return {"::-webkit-scrollbar-thumb:hover {background: #222;}",
            "::-webkit-scrollbar-thumb:active {background:#333;}"};
}

HtmlZeilen hausStil(std::string_view hoehe, std::string_view breite)
{
    return verbinde({
        {"@media screen  {body {", "background: #000005;", "font-family:verdana,sans-serif;", "font-size:11px;",
         "color:#999999;"},
        rollbalkenFarben(),
        {"cursor:default;}",
         "div.scroll{border:0px; height:" + std::string(hoehe) + "; width:" + std::string(breite) +
             ";overflow-x:hidden; overflow-y:auto;}",
         "::-webkit-scrollbar {width: 14px;background: #111;}",
         "::-webkit-scrollbar-thumb {border: 1px solid #666;border-radius: 0px;}"},
        rollbalkenDaumen(),
        rollbalkenKnoepfe(),
        {"h1 {font: 18px verdana,sans-serif;color:#999;letter-spacing:5px}",
         "h2 {font: 13px verdana,sans-serif;color:#999;}", "table {font: 13px verdana,sans-serif;color:#000;}",
         "th {letter-spacing:2px;}", "p {font:13px verdana,sans-serif;color:#999;}", "}"},
        {"@media print  {", "body{background-color: #fff;font: 11px verdana,sans-serif;color:#000;}",
         "div.scroll{width:100%; text-align:left;overflow:visible;}", "}"},
    });
}

HtmlZeilen tabelle1Stil()
{
    return {".tabelle1 {width:70%;font: 13px arial,verdana; border:1px solid  #333;}",
            ".tabelle1 td{width:14%;text-align:center;}",
            ".tabelle1 tr:nth-child(odd) {background-color: #008000;color:yellow;font-weight: bold;}",
            ".tabelle1 tr:nth-child(even) {background-color: white;}"};
}

HtmlZeilen groupStil()
{
    return {".group {border: 2px solid #000; width:70%;border-collapse: separate;}", kopfzelle(".group"),
            ".group td {text-align:center;background-color:#fff}", ".group td:nth-child(1){width:40%;}",
            ".group td:nth-child(2){width::60%;}"};
}

HtmlZeilen guStil()
{
    return {".gu {border: 2px solid #000; width:50%;border-collapse: separate;}", kopfzelle(".gu"),
            ".gu td {width:50%;background-color:#fff}"};
}

HtmlZeilen minmaxStil()
{
    return {".minmax {border: 0; width:70%;border-collapse: separate;}",
            ".minmax td:nth-child(1){text-align:center;width:5%;background-color:red;}",
            ".minmax td:nth-child(2){text-align:left;width:45%;background-color:#000;color:#999;}",
            ".minmax td:nth-child(3){text-align:center;width:5%;background-color:cyan;}",
            ".minmax td:nth-child(4){text-align:left;width:45%;background-color:#000;color:#999;}"};
}
