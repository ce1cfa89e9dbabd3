#pragma once

#include "engines/logic/Kombinationsexport.h"

#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view kExporttitel = "Alle Lottokombinationen erzeugen und in ASCII-Textdateien speichern.";
inline constexpr std::string_view kExportsuche = "Suche läuft...";

/// What the order does, as the hint over its controls.
std::string exporthinweis(const Exportauftrag& auftrag);

/// The name of the file, or of the first and the last of several, and the size of all of them.
std::string dateienangabe(const std::vector<Exportdatei>& dateien);

/// The count of combinations while they are written, and at the end.
std::string exportfortschritt(const Exportauftrag& auftrag, std::uint64_t kombinationen);
std::string exportstand(const Exportauftrag& auftrag, std::uint64_t kombinationen);

/// "Zeit = 0,25 s" of a duration in milliseconds.
std::string zeittext(double millisekunden);

/// Texts of the boxes before an export.
std::string ordnerFehlt(std::string_view ordner);
std::string ueberschreibfrage(const std::vector<std::string>& vorhandene, std::string_view ordner);
std::string platzReichtNicht(std::string_view ordner, const std::vector<Exportdatei>& dateien, std::uint64_t fehlende);

/// The box after an export that failed, and the title after one that was stopped.
std::string exportGescheitert(const Exportergebnis& ergebnis);
std::string exportGestoppt(const Exportergebnis& ergebnis);
