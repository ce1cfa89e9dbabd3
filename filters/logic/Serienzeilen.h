#pragma once

#include "filters/logic/Serien.h"

#include <string_view>

/// What the screens that list runs word differently.
struct Serientexte {
    std::string_view kopf;   ///< before the numbers of a run
    std::string_view ohneZZ; ///< behind its length, without and with the Zusatzzahl
    std::string_view mitZZ;
    std::string_view nichts; ///< the only line if there is no run
};

extern const Serientexte kSerienEinesSpiels;
extern const Serientexte kSerienZusammen;

/// The list of a search, a block for each run: its numbers, its length and a row for each of its draws. Lines are made
/// when they are looked at.
class Serienzeilen {
public:
    Serienzeilen(Seriensuche suche, const Serientexte& texte);

    const Seriensuche& suche() const { return suche_; }
    std::size_t anzahl() const { return anfaenge_.back() + 1; }
    /// `nr` is 0..`anzahl` - 1.
    std::string zeile(std::size_t nr) const;

private:
    Seriensuche suche_;
    const Serientexte& texte_;
    std::vector<std::size_t> anfaenge_; ///< the first line of each run, and the one behind the last
};
