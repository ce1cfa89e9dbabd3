#pragma once

#include "shell/elements/Hauptaktionen.h"

#include <map>

class Bildschirm;
class QKeyEvent;
class QWidget;

/// The keys that mean the same on every screen. Enter presses the button with the focus; from a field it presses the
/// main action, or the button that belongs to the field; F5 presses the main action from everywhere. Esc puts an open
/// info frame away, else stops a run that has a button for it, else leaves the screen.
class Tastatur {
public:
    explicit Tastatur(Bildschirm& bildschirm) : bildschirm_(bildschirm) {}

    Hauptaktionen hauptaktionen;
    std::map<const QWidget*, QPushButton*> enterknoepfe; ///< fields with a button of their own
    QPushButton* stoppknopf = nullptr;                   ///< ends a run; null: runs of this screen have no such button

    /// True if the key has been used.
    bool nimm(const QKeyEvent& taste) const;

private:
    bool bestaetige() const;
    bool starte() const;
    bool brichAb() const;

    Bildschirm& bildschirm_;
};
