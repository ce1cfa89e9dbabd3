#pragma once

#include "filters/logic/Ziehungsfolge.h"

#include <array>

/// How many numbers draws share with the draw before them.
struct Folgewiederholungen {
    std::string spielarten; ///< the games that the draws are of
    GeteilteFolge folge;
    std::vector<std::uint8_t> gemeinsame; ///< by the place of the later draw; the first one shares none
    std::array<std::int32_t, 7> anzahl{}; ///< index: shared numbers; draws with a draw before them
};

Folgewiederholungen zaehleWiederholungen(GeteilteFolge folge, std::string spielarten);

/// The six counts, then how many draws share so many numbers or more.
std::vector<std::string> uebersicht(const Folgewiederholungen& wiederholungen);

/// The list of the draws that share exactly so many numbers with the one before. Lines are made when they are looked
/// at.
class Wiederholungszeilen {
public:
    /// `zahlen` is 1..6.
    Wiederholungszeilen(const Folgewiederholungen& wiederholungen, int zahlen);

    int zahlen() const { return zahlen_; }
    std::size_t faelle() const { return spaetere_.size(); }
    std::size_t anzahl() const;
    /// `nr` is 0..`anzahl` - 1.
    std::string zeile(std::size_t nr) const;

private:
    std::string fallzeile(std::size_t platz, std::size_t imFall) const;

    GeteilteFolge folge_;
    int zahlen_;
    std::vector<std::uint32_t> spaetere_; ///< the places of the draws that repeat numbers
};
