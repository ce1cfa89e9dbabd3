#pragma once

#include "filters/logic/Ziehungsfund.h"
#include "shell/logic/Tippfeld7x7.h"

#include <bitset>
#include <cstdint>
#include <string>
#include <vector>

/// Rows or columns of the ticket, bit 0 the first one.
using Linienwahl = std::bitset<Tippfeld7x7::kJeZeile>;

/// Marks the cells that lie in a chosen row or in a chosen column.
Tippfeld7x7 zellenDer(const Linienwahl& zeilen, const Linienwahl& spalten);

/// The draws that lie wholly in marked cells.
struct Zellsuche {
    Tippfeld7x7 ZellFlag;
    std::int32_t AnzahlZiehungen = 0; ///< all that were looked at
    std::vector<Ziehungsfund> funde;  ///< oldest first
};

/// Looks through an archive. A number that is none of 1..49 lies in no cell.
Zellsuche FiltereNachZellen(const ZiehungsArchiv& archiv, const Tippfeld7x7& zellen, Datumsspalte datum);

/// "12 Ziehungen (0,32%) von 3693 Ziehungen "; without any cell the share is "0%".
std::string ergebniszeile(const Zellsuche& suche);
