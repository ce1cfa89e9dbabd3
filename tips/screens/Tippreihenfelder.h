#pragma once

#include "tips/logic/Tippcursor.h"
#include "tips/logic/Tippvergleich.h"

#include <QWidget>

#include <array>
#include <vector>

class QLabel;
class QLineEdit;

/// The twelve rows of a slip: row r has the numbers `Text<r>(0)` to `Text<r>(5)`, the Superzahl `tSZ(r)`, and behind
/// them `lblFehler(r-1)` and `lblGewinn(r-1)`. What a comparison says of a row is gone as soon as the row changes.
/// The cursor is the number field that had the focus last; the arrow keys move it too.
class Tippreihenfelder final : public QWidget {
public:
    explicit Tippreihenfelder(QWidget* eltern);

    /// All twelve rows as they stand.
    std::vector<Tippreihe> reihen() const;
    /// Rows count from 1.
    Tippreihe reihe(int nr) const;
    void setzeReihe(int nr, const Tippreihe& reihe);
    void setzeSuperzahlen(const QString& text);
    /// Empties everything. The cursor is on the first field again, the focus stays where it is.
    void leere();

    const Tippcursor& cursor();
    /// The cursor goes to a field, which gets the focus.
    void geheZu(const Tippcursor& cursor);
    /// The first field of the first row that has nothing in it; of the first row if there is none.
    Tippcursor ersteFreie() const;

    /// Shows a comparison of all twelve rows.
    void zeige(const std::vector<Reihenvergleich>& vergleiche);
    /// Shows which rows have an error; the results of the others stay.
    void zeigeFehler();
    void loescheErgebnisse();

protected:
    bool eventFilter(QObject* feld, QEvent* ereignis) override;

private:
    struct Zeile {
        std::array<QLineEdit*, Tippcursor::kFelder> zahlen{};
        QLineEdit* superzahl = nullptr;
        QLabel *fehler = nullptr, *gewinn = nullptr;
    };

    Zeile baueZeile(int nr);
    QLineEdit* baueFeld(const QString& name, int nr);
    QLayout* ordneAn();
    QLineEdit* feld(const Tippcursor& ort) const
    {
        return zeilen_[index(ort.reihe)].zahlen[static_cast<std::size_t>(ort.feld)];
    }
    void merkeFokus(const QObject* feld);
    bool bewege(const QObject* feld, int taste);
    static void loescheErgebnis(const Zeile& zeile);
    static void zeigeIn(const Zeile& zeile, const Reihenvergleich& vergleich);
    static std::size_t index(int nr) { return static_cast<std::size_t>(nr - 1); }

    std::array<Zeile, Tippcursor::kReihen> zeilen_;
    Tippcursor cursor_;
};
