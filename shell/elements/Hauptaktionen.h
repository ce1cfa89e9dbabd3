#pragma once

#include <vector>

class QPushButton;

/// The start buttons of a tool. The one pressed last is its main action, at first the first of them.
class Hauptaktionen {
public:
    void setze(const std::vector<QPushButton*>& knoepfe);

    /// The button of the main action; null if none of them is to be seen.
    QPushButton* knopf() const;
    /// Marks the button that has made what the screen shows; null marks none.
    void zeigeGelaufen(const QPushButton* gelaufener) const;

private:
    std::vector<QPushButton*> knoepfe_;
    QPushButton* zuletzt_ = nullptr;
};
