#pragma once

#include "engines/logic/WiederholungDetails.h"
#include "engines/logic/Wiederholungen.h"
#include "shell/logic/Fortschritt.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

/// Draws that someone has chosen. What is made of them keeps them.
using Ziehungsauswahl = std::shared_ptr<const ZiehungsArchiv>;

/// The draws with these numbers, 1..AnzahlZiehungen, in this order, as an archive of their own.
Ziehungsauswahl waehleAus(const ZiehungsArchiv& archiv, std::span<const std::size_t> nummern);

/// True if both hold the same draws.
bool gleicheZiehungen(const ZiehungsArchiv& a, const ZiehungsArchiv& b);

/// The chosen draws cut up into their sets of `k` numbers.
struct Zerlegung {
    int k = 0;                        ///< 2..6; 0 before anything was cut up
    Ziehungsauswahl ziehungen;        ///< null before
    std::vector<Wiederholung> mengen; ///< in the order of their keys as texts: "1,10" before "1,2"
    bool vollstaendig = false;        ///< false if it was stopped
};

Zerlegung zerlege(Ziehungsauswahl ziehungen, int k, const Fortschritt& fortschritt = {});

/// A set as a line of its list: " 3 mal -> 1,10".
std::string zerlegungszeile(const Wiederholung& menge, int k);

/// The numbers of the draws that hold a set of the list, oldest first.
std::vector<std::size_t> ziehungenMit(const Zerlegung& zerlegung, const Wiederholung& menge);

/// A draw as a row of the details: "1955/41   03 12 13 16 23 41".
std::string ziehungszeile(const ZiehungsArchiv& archiv, std::size_t nr);

/// The six numbers of a draw as they stand behind its sets of five: "Tipreihe 6  -> 03 12 13 16 23 41".
std::string tipreihe(const ZiehungsArchiv& archiv, std::size_t nr);

/// For each set a head with its numbers, the rows of its draws and a dash line. Counts the sets that are done; ends
/// with the rows so far if it is stopped.
Detailzeilen zerlegungsdetails(const Zerlegung& zerlegung, const Fortschritt& fortschritt = {});

/// The clipboard text: the draws and the lists of the sizes from two to five, one after the other. Lists of other draws
/// than the one before follow behind these draws. Before the first list `auswahl` stands for the draws.
std::string zerlegungsbericht(std::span<const Zerlegung> zerlegungen, const Ziehungsauswahl& auswahl);
