#include "engines/logic/WiederholungBericht.h"

#include "listcontrol/logic/concat.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

namespace {

/// `zeile` gives the text of a line by its index.
template <class Zeile>
std::string bericht(std::string_view titel, std::string_view spiel, std::size_t anzahl, Zeile zeile,
                    std::string_view schluss)
{
    concat text;
    if (anzahl > 0) {
        for (const std::string_view teil : {titel, std::string_view("("), spiel, std::string_view("):"), kZeilenende})
            text.Append(teil);
        text.Append(kZeilenende);
        for (std::size_t i = 0; i < anzahl; ++i) {
            text.Append(zeile(i));
            text.Append(kZeilenende);
        }
        text.Append(kZeilenende);
        text.Append(kZeilenende);
    }
    text.Append(schluss);
    return text.Value();
}

} // namespace

std::string spielartenMitStrichen(std::string_view namen)
{
    std::string text;
    for (const char zeichen : namen)
        text += zeichen == ' ' ? " - " : std::string(1, zeichen);
    return text;
}

std::string erfassungstand(const ZiehungsArchiv& archiv)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    return "Erfassungstand der Ziehungen: " + Format(archiv.jjjj[letzte], "0000") + " / " +
           Format(archiv.sw[letzte], "00");
}

std::string listenBericht(std::string_view art, std::string_view spiel, std::span<const std::string> zeilen,
                          std::string_view schluss)
{
    return bericht(
        art, spiel, zeilen.size(), [zeilen](std::size_t i) { return zeilen[i]; }, schluss);
}

std::string detailBericht(std::string_view art, std::string_view spiel, const Detailzeilen& zeilen,
                          std::string_view schluss)
{
    const std::string titel = "Die " + std::string(art) + " im Detail ";
    return bericht(
        titel, spiel, zeilen.anzahl(), [&zeilen](std::size_t i) { return zeilen.zeile(i); }, schluss);
}

std::string nieGezogeneBericht(std::string_view spiel, std::span<const std::string> zeilen)
{
    return listenBericht("Nie gezogene Dreierkombinationen ", spiel, zeilen,
                         "Anzahl der nie gezogenen Dreierkombinationen: " + std::to_string(zeilen.size()) +
                             std::string(kZeilenende) + std::string(kZeilenende));
}
