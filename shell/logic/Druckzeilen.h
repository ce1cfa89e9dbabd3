#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// How much a printed page holds.
struct Druckmasse {
    int schriftgroesse = 8; ///< points
    int listenzeilen = 50;  ///< most list lines on a page
    int zeilenJeSeite = 53; ///< most lines on a page, heading included
};

/// A list for the line printer, in a fixed-pitch font.
struct Druckauftrag {
    std::vector<std::string> kopf;      ///< heading of the first page
    std::vector<std::string> folgekopf; ///< heading of every further page
    std::vector<std::string> zeilen;
    Druckmasse masse;
};

using Druckseite = std::vector<std::string>;

/// The line above the heading of every further page.
inline constexpr std::size_t kLeerzeichenVorFolgekopf = 7;

/// Breaks the list into pages. A further page begins with a line of 7 blanks and the heading anew. A page takes at
/// least one list line, however small the measures are. Without list lines there is one page with the heading.
inline std::vector<Druckseite> druckseiten(const Druckauftrag& auftrag)
{
    const auto hoechstens = [](int zeilen) { return zeilen > 0 ? static_cast<std::size_t>(zeilen) : 0; };
    const std::size_t jeSeite = hoechstens(auftrag.masse.zeilenJeSeite);
    const std::size_t jeListe = hoechstens(auftrag.masse.listenzeilen);

    std::vector<Druckseite> seiten{auftrag.kopf};
    std::size_t aufSeite = 0;
    for (const std::string& zeile : auftrag.zeilen) {
        const bool voll = seiten.back().size() >= jeSeite || aufSeite >= jeListe;
        if (voll && aufSeite > 0) {
            Druckseite seite{std::string(kLeerzeichenVorFolgekopf, ' ')};
            seite.insert(seite.end(), auftrag.folgekopf.begin(), auftrag.folgekopf.end());
            seiten.push_back(std::move(seite));
            aufSeite = 0;
        }
        seiten.back().push_back(zeile);
        ++aufSeite;
    }
    return seiten;
}
