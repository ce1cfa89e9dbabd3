#pragma once

#include "shell/logic/Tippfeld7x7.h"

#include <QWidget>

#include <array>
#include <functional>

class Zelle;

/// The ticket grid on a screen: 49 cells named `name(1)`..`name(49)`. A click, or Space on the focus cell, calls
/// `beiKlick` with the number; the screen lets the model decide and the grid shows it.
class Tippfeld7x7View final : public QWidget {
public:
    enum class Art { NurAnzeige, FreieEingabe, EineZahl, Auswahl };

    static constexpr int kZellseite = 30;
    static constexpr int kSteg = 4; ///< between the cells and around them

    Tippfeld7x7View(const QString& name, Art art, QWidget* eltern);

    const Tippfeld7x7& modell() const { return modell_; }
    /// From here on it takes entries of another kind, or none. The marks stay.
    void setzeArt(Art art);
    /// Takes over a changed grid and shows it.
    void zeige(const Tippfeld7x7& modell);

    /// A number was clicked and the grid has changed.
    std::function<void(int)> beiKlick;

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }

private:
    void klick(int zahl);
    void nimm(int zahl);
    void frischeAuf();

    Art art_ = Art::NurAnzeige;
    Tippfeld7x7 modell_;
    Tippfeld7x7 gezeigt_;             ///< what the cells look like
    std::array<Zelle*, 50> zellen_{}; ///< [1..49]
    int fokuszahl_ = 1;
};
