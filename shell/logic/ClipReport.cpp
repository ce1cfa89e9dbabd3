#include "shell/logic/ClipReport.h"

#include "shell/logic/Texte.h"

ClipReport& ClipReport::reserviere(std::size_t bytes)
{
    text_.reserve(bytes);
    return *this;
}

ClipReport& ClipReport::spiel(std::string_view gross)
{
    return leerzeile().zeile("*** " + std::string(gross) + " ***");
}

ClipReport& ClipReport::zeile(std::string_view text)
{
    text_ += text;
    text_ += kZeilenende;
    return *this;
}

ClipReport& ClipReport::zeilen(std::span<const std::string> texte)
{
    for (const std::string& text : texte)
        zeile(text);
    return *this;
}

ClipReport& ClipReport::erfassungsstand(std::string_view jahrUndWoche, std::string_view datum)
{
    return zeile("Erfassungsstand: " + std::string(jahrUndWoche) + "  " + std::string(datum));
}

ClipReport& ClipReport::ausgewerteteZiehungen(std::int64_t anzahl)
{
    return zeile("Anzahl der ausgewerteten Ziehungen: " + std::to_string(anzahl));
}

ClipReport& ClipReport::schlusshinweis()
{
    return zeile(kClipSchluss1).zeile(kClipSchluss2);
}
