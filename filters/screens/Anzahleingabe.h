#pragma once

#include <QString>

#include <cstdint>
#include <optional>

class Bildschirm;

/// The count of draws that a user has entered: 1..32767. Anything else is told in a box and gives nothing.
std::optional<std::int32_t> anzahlAus(const Bildschirm& bildschirm, const QString& eingabe);
