#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <string>
#include <vector>

/// The triples of the numbers 1..49 that no draw holds, in lexicographic order, as lines such as "   02 13 37". A draw
/// holds a number that stands anywhere among its six. With an empty archive these are all 18424.
std::vector<std::string> nieGezogeneDreier(const ZiehungsArchiv& archiv);
