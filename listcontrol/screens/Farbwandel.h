#pragma once

#include "listcontrol/logic/Farbe.h"

#include <QColor>

/// A colour of the logic as the toolkit has it, and back.
inline QColor qt(const Farbe& farbe)
{
    return {farbe.rot, farbe.gruen, farbe.blau};
}
inline Farbe farbe(const QColor& farbe)
{
    return {static_cast<std::uint8_t>(farbe.red()), static_cast<std::uint8_t>(farbe.green()),
            static_cast<std::uint8_t>(farbe.blue())};
}
