#pragma once

#include <string>
#include <string_view>

/// Takes any bytes as a Ziehungsdatei and looks whether the reader ends, reads its own records back alike, and never
/// takes a part of a file for a whole one: what was broken, or the empty text.
std::string pruefeZiehungsleser(std::string_view bytes);

/// Takes any bytes as a Ziehungsdatei and looks whether the structure check tells of every line, and finds the fault of
/// each alone again: what was broken, or the empty text.
std::string pruefeStrukturpruefung(std::string_view bytes);
