#pragma once

#include "reports/frame/HtmlStil.h"
#include "reports/frame/HtmlText.h"

#include <string>
#include <string_view>

inline constexpr std::string_view kDoctypeHtml5 = "<!DOCTYPE html>";
inline constexpr std::string_view kDoctypeHtml40 = R"(<!doctype html public "-//W3C//DTD HTML 4.0 //EN">)";
inline constexpr std::string_view kDoctypeHtml401 =
    R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN" "http://www.w3.org/TR/html4/loose.dtd">)";

/// How the head of a page is written: in full, or short with its language and without the lines for small screens.
enum class HtmlKopfform { Haus, Kurz };

/// What the heads of the pages differ in.
struct HtmlKopf {
    std::string titel;        ///< plain text
    std::string_view doctype; ///< a line of its own in front; empty: none
    HtmlKopfform form = HtmlKopfform::Haus;
    bool mitAutor = true; ///< an author line beside the generator line
    HtmlZeichensatz zeichensatz = HtmlZeichensatz::Iso8859_1;
    HtmlZeilen stil; ///< all rules of the page
};

/// A page, written line by line in UTF-8 and given out in the character set that its head names. Lines are markup and
/// stand as they are: a text from outside goes through `htmlMaskiert` first.
class HtmlSeite {
public:
    /// Writes everything up to "</head>". The body and its end are the caller's.
    explicit HtmlSeite(const HtmlKopf& kopf);

    HtmlSeite& zeile(std::string_view markup);
    HtmlSeite& zeilen(const HtmlZeilen& markup);

    /// The page so far; its lines end with CR LF.
    std::string bytes() const { return htmlBytes(text_, zeichensatz_); }

private:
    void schreibeHauskopf(const HtmlKopf& kopf);
    void schreibeKurzkopf(const HtmlKopf& kopf);
    void schreibeErzeuger(const HtmlKopf& kopf);
    void schreibeTitel(const HtmlKopf& kopf);

    HtmlZeichensatz zeichensatz_;
    std::string text_;
};
