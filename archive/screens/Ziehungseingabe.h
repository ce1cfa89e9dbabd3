#pragma once

#include "archive/logic/Neueingabe.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class Tippfeld7x7View;

/// The entry of a new draw: the ticket grid Label6, below it the numbers entered lblZ(1) to lblZ(6) and lblSZ, and the
/// choice of Superzahl cmbSZ, year Kombi1 and week Kombi2. The grid can show a stored draw instead: its numbers then
/// stand in the grid alone, so that they cannot be saved a second time.
class Ziehungseingabe final : public QWidget {
public:
    explicit Ziehungseingabe(QWidget* eltern);

    /// Offers the year and the week of the draw behind the last one.
    void schlageVor(const ZiehungsArchiv& archiv);
    /// Shows a stored draw in place of an entry; `nr` is 1..AnzahlZiehungen.
    void zeige(const ZiehungsArchiv& archiv, std::size_t nr);
    /// Takes numbers and Superzahl away; year and week stay.
    void leere();

    /// True with six numbers and a Superzahl.
    bool vollstaendig() const;
    /// Nothing unless the year has four digits.
    std::optional<NeueZiehung> ziehung() const;

    std::function<void()> beiKlick;     ///< a cell of the grid was clicked
    std::function<void()> beiAenderung; ///< numbers or Superzahl have changed

private:
    QLayout* zahlenzeile();
    QLabel* beschriftung(const QString& name, const QString& text = {});
    QComboBox* kombi(const QString& name);
    void zeigeZahlen();
    void zeigeSuperzahl();

    Tippfeld7x7View* Label6;
    std::array<QLabel*, 6> lblZ;
    QLabel* lblSZ;
    QComboBox *cmbSZ, *Kombi1, *Kombi2;
};
