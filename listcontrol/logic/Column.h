#pragma once

#include "listcontrol/logic/modSortCallback.h"

#include <optional>
#include <string>

enum class TextAlign { Left = 0, Center = 1, Right = 2 };

/// A column of the result list.
struct Column {
    std::optional<Sortierrichtung> LastSortOrder; ///< the direction of its last sort; none before the first one
    bool Pushed{false};                           ///< the mouse holds its header down
    bool Visible{true};
    std::string key; ///< its name for the program, unique without regard to case
    std::string Caption;
    ::TextAlign TextAlign{::TextAlign::Left};
    int Width{0};              ///< in pixels, without its share of spare width
    bool WidthAutoSized{true}; ///< takes a share of spare width; false once the user has given it a width
    bool Resizable{true};

    /// A line between two columns of data: it is not dragged, sorted or stretched.
    bool istTrenner() const { return Caption.empty() && !Resizable; }
};
