#include "engines/logic/Exporttexte.h"

#include "engines/logic/WiederholungTexte.h"
#include "shell/logic/Format.h"

#include <cerrno>

namespace {

constexpr std::string_view kGenerierte = "Generierte Kombinationen: ";
constexpr std::string_view kGefilterte = "Gefilterte Kombinationen: ";

std::uint64_t gesamtgroesse(const std::vector<Exportdatei>& dateien)
{
    std::uint64_t bytes = 0;
    for (const Exportdatei& datei : dateien)
        bytes += datei.bytes;
    return bytes;
}

std::string groessenangabe(std::uint64_t bytes)
{
    if (bytes < 1'000'000)
        return Format(bytes, "#,##0") + " Bytes";
    return Format(static_cast<double>(bytes) / 1'000'000, "#,##0.0") + " MB";
}

std::string fertigeTeile(const Exportergebnis& ergebnis)
{
    if (ergebnis.fertige == 0)
        return "Es wurde keine Datei fertig.";
    return "Fertige Dateien: " + std::to_string(ergebnis.fertige);
}

/// The usual reasons in the words of the program.
std::string grund(const DateiErgebnis& fehler)
{
    switch (fehler.fehler) {
    case EACCES:
    case EPERM:
    case EROFS:
        return "In diesen Ordner darf nicht geschrieben werden.";
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return "Auf dem Datenträger ist kein Platz mehr.";
    case ENOENT:
    case ENOTDIR:
        return "Den Ordner gibt es nicht.";
    default:
        return fehler.meldung;
    }
}

} // namespace

std::string exporthinweis(const Exportauftrag& auftrag)
{
    const std::string moegliche(wiederholungsname(auftrag.k).moegliche);
    if (!auftrag.gefiltert())
        return "Generiert alle " + moegliche + " möglichen Kombinationen " + std::to_string(auftrag.k) +
               "aus49 und schreibt sie in eine ASCII-Textdatei oder in mehrere Teildateien ";
    const std::string heraus = "Filtert aus allen möglichen " + moegliche + " Kombinationen nur die heraus, ";
    return heraus + (auftrag.bereich ? "deren Zahlen alle im gewählten Bereich liegen."
                                     : "in denen alle ausgewählten Bankzahlen enthalten sind.");
}

std::string dateienangabe(const std::vector<Exportdatei>& dateien)
{
    std::string namen = dateien.front().name;
    if (dateien.size() > 1)
        namen += " bis " + dateien.back().name;
    return namen + " (" + groessenangabe(gesamtgroesse(dateien)) + ")";
}

std::string exportfortschritt(const Exportauftrag& auftrag, std::uint64_t kombinationen)
{
    return (auftrag.gefiltert() ? "Suche läuft -> " : "") + exportstand(auftrag, kombinationen);
}

std::string exportstand(const Exportauftrag& auftrag, std::uint64_t kombinationen)
{
    return std::string(auftrag.gefiltert() ? kGefilterte : kGenerierte) + Format(kombinationen, "##,###,##0");
}

std::string zeittext(double millisekunden)
{
    return "Zeit = " + Dezimaltext(millisekunden / 1000, 2) + " s";
}

std::string ordnerFehlt(std::string_view ordner)
{
    return "Den Ordner " + std::string(ordner) + " gibt es nicht.\nBitte einen anderen Speicherordner wählen.";
}

std::string ueberschreibfrage(const std::vector<std::string>& vorhandene, std::string_view ordner)
{
    const std::string ort = "Im Ordner " + std::string(ordner) + " ";
    if (vorhandene.size() == 1)
        return ort + "gibt es die Datei " + vorhandene.front() + " schon.\nSoll sie ersetzt werden?";
    return ort + "gibt es " + std::to_string(vorhandene.size()) + " der Dateien schon, von " + vorhandene.front() +
           " bis " + vorhandene.back() + ".\nSollen sie ersetzt werden?";
}

std::string platzReichtNicht(std::string_view ordner, const std::vector<Exportdatei>& dateien, std::uint64_t fehlende)
{
    return "Für " + dateienangabe(dateien) + " reicht der freie Platz im Ordner " + std::string(ordner) +
           " nicht: Es fehlen " + groessenangabe(fehlende) + ".\nEs wurde nichts geschrieben.";
}

std::string exportGescheitert(const Exportergebnis& ergebnis)
{
    return "Die Datei " + ergebnis.datei + " konnte nicht geschrieben werden.\n" + grund(ergebnis.fehler) + "\n" +
           fertigeTeile(ergebnis);
}

std::string exportGestoppt(const Exportergebnis& ergebnis)
{
    return "Abgebrochen. " + fertigeTeile(ergebnis);
}
