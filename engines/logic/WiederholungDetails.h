#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/WiederholungTexte.h"
#include "shell/logic/Fortschritt.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// Rows of which many are alike: each text is kept once.
class Detailzeilen {
public:
    std::size_t anzahl() const { return zeilen_.size(); }
    /// `index` is below `anzahl`, from 0.
    const std::string& zeile(std::size_t index) const { return texte_[zeilen_[index]]; }

    /// Keeps a text and gives its number.
    std::uint32_t merke(std::string text);
    /// Adds a row with the text of that number.
    void haengeAn(std::uint32_t text) { zeilen_.push_back(text); }

private:
    std::vector<std::string> texte_;
    std::vector<std::uint32_t> zeilen_; ///< numbers of texts
};

/// A draw as the details show it: "1955/41  03 12 13 16 23 41   So, 09.10.1955". `nr` is 1..AnzahlZiehungen.
std::string detailzeile(const ZiehungsArchiv& archiv, std::size_t nr, const Wiederholungsart& art);

/// For each line of the result list of `k`: its numbers, a dash line, all draws that hold these numbers, oldest first,
/// and a dash line. Counts the lines that are done; ends with the rows so far if it is stopped.
Detailzeilen wiederholungDetails(const ZiehungsArchiv& archiv, int k, const Wiederholungsart& art,
                                 std::span<const std::string> ergebniszeilen, const Fortschritt& fortschritt = {});
