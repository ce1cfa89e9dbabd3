#pragma once

#include "listcontrol/logic/Farbe.h"

/// Colours single cells of a result list. A screen or a part of its logic implements it.
class ICustomDraw {
public:
    virtual ~ICustomDraw() = default;

    /// Called for each cell that is painted, row and column counting from 0. The colours come in as the list would
    /// paint them; what is set here is taken only if `handled`, false at first, is set to true.
    virtual void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) = 0;

protected:
    ICustomDraw() = default;
    ICustomDraw(const ICustomDraw&) = default;
    ICustomDraw& operator=(const ICustomDraw&) = default;
};
