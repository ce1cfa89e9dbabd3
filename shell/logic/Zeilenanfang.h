#pragma once

#include <string_view>

/// How well the beginning of a row fits a number, year or draw that a user has typed; the first is the best.
enum class Passung {
    ErstesFeld,        ///< its first field is that number
    Feld,              ///< another one of its leading fields is
    AnfangErstesFeld,  ///< its first field begins with what is typed
    AnfangEinesFeldes, ///< another one does
    Keine
};

/// Looks at the first three fields of a row that begin with a digit; fields are separated by blanks and tabs. A field
/// is the typed number if the digits that it begins with have the same value: "17" is "0017", "1998" is "1998/05", and
/// "82684" is "82.684".
/// `getippt` is made of digits and signs between them, as in "1998/05".
Passung passung(std::string_view zeile, std::string_view getippt);
