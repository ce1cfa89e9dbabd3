#pragma once

#include "filters/logic/Endziffern.h"
#include "filters/screens/Fundanzeige.h"
#include "filters/screens/Musteruebersicht.h"
#include "shell/elements/Bildschirm.h"

/// The draws by the last digits of their numbers: all of them with their digits, those of a chosen constellation, and
/// a table of all constellations.
class frmEndziffer final : public Bildschirm {
public:
    explicit frmEndziffer(Umgebung& umgebung);

private:
    void baueOptionen();
    void baueZiehungen();
    void suche(std::size_t nummer);

    const std::vector<Ziehungsfund> ziehungen_; ///< all that `lstAll` lists
    Fundanzeige anzeige_;
    QLabel* Bezeichnung1;
    Musteruebersicht uebersicht_;
    std::array<QRadioButton*, kEndzifferkonstellationen> optZeile{};
    QLabel* lblAll;
    Liste* lstAll;
    QPushButton* cmdExit;
};
