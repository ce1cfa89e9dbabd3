#pragma once

#include "shell/logic/Zufall.h"

#include <chrono>

class Lauf;
class Tippfeld7x7View;

/// The play of numbers on a ticket grid while tips are made. It draws from random numbers of its own, so that it
/// changes nothing in the tips, and it can be skipped.
class Tippanimation {
public:
    /// `dauer` is that of one play; 0 shows nothing.
    Tippanimation(Tippfeld7x7View& feld, std::chrono::milliseconds dauer) : feld_(feld), dauer_(dauer) {}

    /// Plays once. False once the run is to stop.
    bool spiele(Lauf& lauf);
    /// Ends the play in hand and leaves out those to come.
    void ueberspringe() { uebersprungen_ = true; }

private:
    bool zeigeRunde(Lauf& lauf, int zahlen);

    Tippfeld7x7View& feld_;
    std::chrono::milliseconds dauer_;
    Zufall zufall_;
    bool uebersprungen_ = false;
};
