#pragma once

#include "listcontrol/logic/ICustomDraw.h"
#include "tips/logic/Zeitreise.h"

#include <span>

class ListView;
class QWidget;
struct Zeitreisespalte;

/// The result list of a time travel, `ListView1`: its columns, rows and colours.
class Zeitreiseliste final : private ICustomDraw {
public:
    Zeitreiseliste(Zeitreiseform form, QWidget* eltern);

    ListView* feld() const { return ListView1; }

    /// The widths of the columns; a combination has no class.
    void stelleModus(bool kombination);
    void zeige(const Zeitreise& zeitreise);
    /// Blank rows and no others.
    void leere(int zeilen);
    /// What is shown, with its rows in the order of the list, which the user may have sorted.
    Zeitreise inListenfolge(const Zeitreise& gezeigte) const;

private:
    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override;
    /// Null for a separator.
    const Zeitreisespalte* spalteVon(int column) const;
    void setzeZeile(const Zeitreise& zeitreise, int zeile);

    std::span<const Zeitreisespalte> spalten_;
    Zeitreiseart art_ = Zeitreiseart::Gewinne; ///< of what is shown
    ListView* ListView1;
};
