#include "reports/frame/HtmlText.h"

#include "shell/logic/Zeichensatz.h"

#include <algorithm>

namespace {

constexpr char32_t kErsatz = 0xFFFD;
constexpr std::string_view kErsatzUtf8 = "\xEF\xBF\xBD";

std::string_view entitaet(char zeichen)
{
    switch (zeichen) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}

bool istSteuerzeichen(char32_t zeichen)
{
    const bool erlaubt = zeichen == '\t' || zeichen == '\r' || zeichen == '\n';
    return !erlaubt && (zeichen < 0x20 || (zeichen >= 0x7F && zeichen < 0xA0));
}

bool istEinfach(char byte)
{
    return (byte >= ' ' && byte <= '~') || byte == '\r' || byte == '\n' || byte == '\t';
}

void haengeAn(std::string& bytes, char32_t zeichen, std::string_view utf8, HtmlZeichensatz zeichensatz)
{
    if (zeichensatz == HtmlZeichensatz::Utf8)
        bytes += zeichen == kErsatz ? kErsatzUtf8 : utf8;
    else if (zeichen <= 0xFF)
        bytes += static_cast<char>(zeichen);
    else
        bytes.append("&#").append(std::to_string(static_cast<unsigned long>(zeichen))).append(";");
}

} // namespace

std::string htmlMaskiert(std::string_view text)
{
    std::string maskiert;
    maskiert.reserve(text.size());
    for (const char zeichen : text) {
        const std::string_view fuer = entitaet(zeichen);
        if (fuer.empty())
            maskiert += zeichen;
        else
            maskiert += fuer;
    }
    return maskiert;
}

std::string htmlBytes(std::string_view text, HtmlZeichensatz zeichensatz)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const auto* const besonderes = std::find_if_not(text.begin(), text.end(), istEinfach);
        bytes.append(text.begin(), besonderes);
        text.remove_prefix(static_cast<std::size_t>(besonderes - text.begin()));
        if (text.empty())
            break;
        std::string_view rest = text;
        const char32_t zeichen = naechstesZeichen(rest);
        haengeAn(bytes, istSteuerzeichen(zeichen) ? kErsatz : zeichen, text.substr(0, text.size() - rest.size()),
                 zeichensatz);
        text = rest;
    }
    return bytes;
}
