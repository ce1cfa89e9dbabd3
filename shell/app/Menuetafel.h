#pragma once

#include <QString>

#include <vector>

/// How the selection menu opens a tool.
enum class Oeffnung {
    Gewoehnlich,   ///< the tool is shown, then the menu hides
    ErstVerbergen, ///< the menu hides first: the tool takes long to load
    NurDruecken,   ///< the tool is loaded and its start button pressed; the menu stays
};

/// What of a button depends on the game.
enum class Spielbezug {
    Keiner,
    MitErstemJahr, ///< its hint ends with the year of the first draw
    OhneMittwochB, ///< it is of no use for a game that is not drawn any more
};

/// One tool button of the selection menu.
struct Menueknopf {
    const char* name;
    const char* text;
    const char* ziel; ///< registered name of the screen
    const char* hinweis;
    Oeffnung oeffnung = Oeffnung::Gewoehnlich;
    Spielbezug spielbezug = Spielbezug::Keiner;
};

/// Buttons of one kind, which stand together.
struct Menuegruppe {
    const char* titel;
    std::vector<Menueknopf> knoepfe;
};

/// An entry of the popup menu behind "Tippreihen erstellen"; without a target it is the separator.
struct Popupeintrag {
    const char* name;
    const char* text;
    const char* ziel;
};

/// The columns of the ordinary button wall, from the left to the right.
const std::vector<std::vector<Menuegruppe>>& menuewand();
/// The columns of the panel "Sa + Mi zusammen".
const std::vector<std::vector<Menuegruppe>>& menuerollo();
const std::vector<Popupeintrag>& menueOption();
