#pragma once

#include "filters/logic/Zellfilter.h"
#include "shell/elements/Rahmen.h"

#include <array>
#include <functional>

class Bildschirm;
class QCheckBox;
class QPushButton;
class QRadioButton;
class Tippfeld7x7View;

/// The choice of cells of the ticket, named `Zelle(1)` to `Zelle(49)`: whole rows by the boxes `cz(0)` to `cz(6)`,
/// whole columns by `cs(0)` to `cs(6)`, or cell by cell, as the options `Option1(0)` to `Option1(3)` say.
class Zellwahl final : public Rahmen {
public:
    explicit Zellwahl(Bildschirm& bildschirm);

    const Tippfeld7x7& zellen() const;

    std::function<void()> beiWechsel;  ///< other cells are chosen
    std::function<void()> beiLoeschen; ///< the user has taken all marks back with `cmdClear`

private:
    enum Modus { Zeile, Spalte, Beides, Bereich };

    void baueOptionen();
    QLayout* ordneGitter();
    void waehleModus(Modus modus);
    void folgeKaestchen();
    void leere();

    std::array<QRadioButton*, 4> Option1{};
    std::array<QCheckBox*, Tippfeld7x7::kJeZeile> cz{}, cs{};
    Tippfeld7x7View* feld_;
    QPushButton* cmdClear;
};
