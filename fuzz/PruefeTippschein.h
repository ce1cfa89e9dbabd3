#pragma once

#include <string>
#include <string_view>

/// Takes any bytes as a slip and looks whether the reader keeps its bounds and its own slips are read back alike: what
/// was broken, or the empty text.
std::string pruefeTippschein(std::string_view bytes);
