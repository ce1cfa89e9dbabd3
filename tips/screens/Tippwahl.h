#pragma once

#include "archive/logic/Kombination.h"
#include "shell/elements/Rahmen.h"
#include "shell/logic/Tippfeld7x7.h"

#include <array>
#include <functional>
#include <vector>

class Bildschirm;
class Klickfeld;
class QLabel;
class QPushButton;
class Tippfeld7x7View;

/// The entry of a tip or of a combination: the ticket grid `Bezeichnung6`, its numbers in order, their Positionszahl,
/// the Superzahl between its arrows, a random tip.
class Tippwahl final : public Rahmen {
public:
    explicit Tippwahl(Bildschirm& bildschirm);

    const Tippfeld7x7& tippfeld() const;
    /// The chosen numbers, ascending.
    std::vector<std::int32_t> zahlen() const;
    int superzahl() const { return superzahl_; }

    /// Without an event.
    void zeige(const Tippfeld7x7& feld);
    /// 0..9, without an event.
    void zeigeSuperzahl(int superzahl);
    /// Superzahl, random tip and Positionszahl panel belong to the full tip.
    void stelleModus(bool kombination);

    /// Takes the letter I away from `Befehl1`, for a screen that has another button of that letter.
    void ohneInfokuerzel();

    std::function<void()> beiKlick;           ///< the grid was clicked, before anything is evaluated
    std::function<void()> beiAenderung;       ///< the numbers have changed
    std::function<void()> beiSuperzahl;       ///< the Superzahl has changed
    std::function<void()> beiLetzterZiehung;  ///< the last draw is wanted as the tip
    std::function<void()> beiPositionswunsch; ///< a tip is to be made of a Positionszahl
    std::function<void()> beiPositionsinfo;

private:
    static constexpr int kSuperzahlen = 10;

    void baueZahlen();
    void baueKnoepfe();
    void verbinde();
    QPushButton* knopf(const QString& name, const QString& text, const QString& hinweis);
    QLabel* beschriftung(const QString& name, const QString& text = {});
    void zeigeZahlen();
    void stelleSuperzahl(int superzahl);
    void ziehe();

    Bildschirm& bildschirm_;
    int superzahl_ = 0;
    Tippfeld7x7View* Bezeichnung6;
    std::array<Klickfeld*, 6> zahlen_{}; ///< Bezeichnung10, 11, 12, 14, 15, 16
    QLabel *Bezeichnung13, *Label3, *Label5, *lblSZ, *lblPositionszahl;
    QPushButton *Befehl1, *Befehl3, *Command1, *Command2, *Command4;
};
