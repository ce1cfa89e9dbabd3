#pragma once

#include <span>
#include <string>

/// Sorts the texts ascending by the order of their bytes, which is also that of their characters. Gives what
/// `std::ranges::sort` gives, in about half the time for the lines of a result list.
void sortiereTexte(std::span<std::string> texte);
