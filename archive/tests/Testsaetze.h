#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <string>

/// `anzahl` different records in the form of a Ziehungsdatei. The Superzahl is the last digit of the row, the year
/// counts every 50 rows from `jahr`.
inline std::string testsaetze(int anzahl, int jahr = 1955)
{
    const auto zweistellig = [](int wert) { return (wert < 10 ? "0" : "") + std::to_string(wert); };
    std::string datei;
    for (int nr = 1; nr <= anzahl; ++nr) {
        datei += std::to_string(jahr + (nr - 1) / 50) + "," + zweistellig((nr - 1) % 50 + 1) + ",";
        for (int z = 0; z < 6; ++z)
            datei += zweistellig(nr % 9 + 1 + 8 * z) + ",";
        datei += "00," + std::to_string(nr % 10) + "\r\n";
    }
    return datei;
}

/// True if all ten columns are of one length.
inline bool spaltenGleichLang(ZiehungsArchiv& archiv)
{
    for (const ZiehungsArchiv::Spalte* spalte : archiv.spalten())
        if (spalte->size() != archiv.jjjj.size())
            return false;
    return true;
}
