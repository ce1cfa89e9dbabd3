#pragma once

#include "shell/logic/ListenModell.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Sorts the rows from the 0-based index `erster` to `letzter`, both included, by the order of their bytes. Indices
/// past the end are brought back to it. Equal rows look the same, so the library's sort gives what
/// a quicksort gives, without its worst cases.
void ListBoxSort(std::vector<std::string>& feld, std::size_t erster, std::size_t letzter, bool absteigend = false);

/// Takes the rows out of the list, sorts them and puts them back; nothing is chosen afterwards. (A list that is
/// `Sorted` of itself stays ascending.) Gives the duration in milliseconds; nothing, and no change, for a list whose
/// rows are made on request: there the order belongs to whoever makes them.
std::optional<double> ListBoxSort(ListenModell& liste, bool absteigend = false);
