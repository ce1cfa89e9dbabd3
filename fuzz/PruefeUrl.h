#pragma once

#include <string>
#include <string_view>

/// Takes any bytes as a URL and looks whether what comes of them holds together: what was broken, or the empty text.
std::string pruefeUrl(std::string_view bytes);
