#pragma once

#include "shell/logic/Fortschritt.h"

#include <QString>

#include <chrono>
#include <memory>

class Bildschirm;

/// The wait state of a screen: a wait text in the title and the hourglass, for as long as it lives. The screen sets
/// its result title afterwards; without one the title falls back.
class WarteAnzeige {
public:
    /// What the mouse looks like: the arrow while an animation plays that the user watches.
    enum class Zeiger { Sanduhr, Pfeil };

    explicit WarteAnzeige(Bildschirm& bildschirm, const QString& text = "Bitte warten !",
                          Zeiger zeiger = Zeiger::Sanduhr);
    ~WarteAnzeige();
    WarteAnzeige(const WarteAnzeige&) = delete;
    WarteAnzeige& operator=(const WarteAnzeige&) = delete;

private:
    Bildschirm& bildschirm_;
    QString text_;
    Zeiger zeiger_;
};

/// One evaluation of a screen, from its start button to its last line. A screen runs one at a time: a second one is
/// false and its caller returns. A screen closed meanwhile stays alive until the run has unwound.
class Lauf {
public:
    explicit Lauf(Bildschirm& bildschirm, const QString& wartetext = "Bitte warten !",
                  WarteAnzeige::Zeiger zeiger = WarteAnzeige::Zeiger::Sanduhr);
    ~Lauf();
    Lauf(const Lauf&) = delete;
    Lauf& operator=(const Lauf&) = delete;

    explicit operator bool() const { return gilt_; }

    /// To be called often by a long loop: gives the event loop a turn every 16 ms. False once the run is to stop.
    bool weiter();
    /// Gives the event loop a turn at once. False once the run is to stop.
    bool zug();
    /// `weiter` in the form that the logic takes.
    Fortschritt fortschritt();

private:
    Bildschirm& bildschirm_;
    bool gilt_;
    std::unique_ptr<WarteAnzeige> anzeige_;
    std::chrono::steady_clock::time_point letzterZug_;
};
