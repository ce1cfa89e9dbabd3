#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Builds the report of a tool for the clipboard, piece by piece; every line ends with CR LF. The usual order:
/// `spiel`, the title lines, an empty line, the header and the rows, an empty line, `erfassungsstand`,
/// `ausgewerteteZiehungen`, the tool's result lines, `schlusshinweis`.
class ClipReport {
public:
    /// Makes room for this many bytes: a report of millions of lines is not moved while it grows.
    ClipReport& reserviere(std::size_t bytes);
    /// A line break, then "*** SAMSTAGSLOTTO ***" for the game in upper case.
    ClipReport& spiel(std::string_view gross);
    ClipReport& zeile(std::string_view text);
    ClipReport& zeilen(std::span<const std::string> texte);
    ClipReport& leerzeile() { return zeile({}); }
    /// "Erfassungsstand: 2026/29  Sa, 18.07.2026" from year and week and the date text of the last draw.
    ClipReport& erfassungsstand(std::string_view jahrUndWoche, std::string_view datum);
    /// "Anzahl der ausgewerteten Ziehungen: 3693".
    ClipReport& ausgewerteteZiehungen(std::int64_t anzahl);
    /// The two lines about a fixed-pitch font that close every report.
    ClipReport& schlusshinweis();

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

inline constexpr std::string_view kClipBefehl = "ClipBoard";
inline constexpr std::string_view kClipHinweis = "Überträgt die Ergebnisse in die Zwischenablage.";
inline constexpr std::string_view kClipSchluss1 =
    "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, ";
inline constexpr std::string_view kClipSchluss2 =
    "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).";
