#pragma once

#include "tips/logic/Tippreihe.h"

#include <string>
#include <vector>

/// The valid rows as lines of the list of the slip printing: 11 blanks, then six numbers "@@" with one blank between.
std::vector<std::string> tippzeilen(const std::vector<Tippreihe>& reihen);
