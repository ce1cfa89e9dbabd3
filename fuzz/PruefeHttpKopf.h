#pragma once

#include <string>
#include <string_view>

/// Takes any bytes as the answer of a server and looks whether what comes of its head holds together: what was broken,
/// or the empty text.
std::string pruefeHttpKopf(std::string_view bytes);
