#pragma once

#include "tips/logic/Spielscheindruck.h"

#include <filesystem>

/// What the slip printing keeps from one time to the next, in `druck_settings.ini`. The days of the draw are chosen
/// anew each time.
struct Druckeinstellungen {
    Scheinversatz versatz;
    bool spiel77 = false;
    bool super6 = false;
    bool gluecksspirale = false;
    Laufzeit laufzeit = Laufzeit::EineWoche;

    bool operator==(const Druckeinstellungen&) const = default;
};

/// Furthest that the crosses can be moved either way, in tenths of a millimetre.
inline constexpr int kGroessterVersatz = 200;

/// What is missing or makes no sense has its preset: no offset, "Nein", one week.
Druckeinstellungen liesDruckeinstellungen(const std::filesystem::path& ordner);
/// False if the file cannot be written; it is then as before, or holds some of the new values.
bool schreibeDruckeinstellungen(const std::filesystem::path& ordner, const Druckeinstellungen& einstellungen);
