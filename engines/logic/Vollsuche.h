#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Teilmengentafel.h"
#include "shell/logic/Fortschritt.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// What a search through all combinations of one size has found so far.
struct Suchergebnis {
    int groesse = 0;                         ///< numbers of a combination, 2..6; 0 before the first search
    std::int32_t SuchlaeufeGesamt = 0;       ///< combinations of this size
    std::int32_t Suchlaeufe = 0;             ///< combinations tested
    std::int32_t NieGezogen = 0;             ///< of them in no draw
    std::int32_t EinmalGezogen = 0;          ///< in exactly one
    std::vector<std::string> wiederholungen; ///< a line for each one in several draws, in the order of the combinations
    std::vector<std::string> nieGezogene;    ///< "01 02 03" for each triple in no draw; only of size 3

    bool abgebrochen() const { return Suchlaeufe < SuchlaeufeGesamt; }
    bool operator==(const Suchergebnis&) const = default;
};

/// The result of a search of `groesse`, 2..6, before its first test.
Suchergebnis beginneSuche(int groesse);

/// Enters that the combination `zahlen` is in `haeufigkeit` draws.
void trageEin(Suchergebnis& ergebnis, std::span<const std::int32_t> zahlen, std::uint32_t haeufigkeit);

/// Tests all combinations of one size in ascending order against all draws, one by one or the rest at once.
///
/// The draws are counted once, at the start, for all their parts; a test then is a look into that table. A row of a
/// file that is no draw of six ascending numbers 1..49 counts with the numbers that it has of them, from that of its
/// first column to that of its last.
class Vollsuche {
public:
    /// `groesse` is 2..6. `ergebnis` is begun anew, and can be read between two tests.
    Vollsuche(const ZiehungsArchiv& archiv, int groesse, Suchergebnis& ergebnis);

    bool fertig() const { return !ergebnis_.abgebrochen(); }

    /// The combination that the next test is for; the last one when there is none left.
    std::span<const std::int32_t> kombination() const;

    /// Tests one combination; only while the search is not `fertig`.
    void teste();

    /// Tests all that are left, or until `fortschritt`, which takes `Suchlaeufe`, is false.
    void testeAlle(const Fortschritt& fortschritt);

private:
    std::uint32_t haeufigkeit();
    void geheWeiter();
    void ueberspringeNieGezogene();

    Suchergebnis& ergebnis_;
    Teilmengentafel<std::uint32_t> tafel_;
    Kombination zahlen_{1, 2, 3, 4, 5, 6};
    std::size_t naechsteGanze_ = 0; ///< of the rows of six
};
