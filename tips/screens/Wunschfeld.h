#pragma once

#include <QWidget>

#include <cstddef>
#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;

/// What the user wants of tip proposals: which statistics give a number, which Bankzahlen every tip holds, how many
/// tips.
class Wunschfeld final : public QWidget {
public:
    explicit Wunschfeld(QWidget* eltern);

    /// Is a number wanted from the Spielwoche (0), from the frequency (1), from the absence (2)?
    bool willStatistik(std::size_t stelle) const;
    bool willEine() const { return willStatistik(0) || willStatistik(1) || willStatistik(2); }
    std::optional<int> bank1() const; ///< 1..49
    std::optional<int> bank2() const;

    std::size_t anzahl() const; ///< 1..12
    /// One more, up to the most.
    void erhoeheAnzahl();

    int spielwoche() const; ///< 1..53
    QString spielwochentext() const;
    void stelleSpielwoche(int sw);

private:
    QCheckBox* kontroll(const char* name, const char* text);
    QComboBox* kombi(const char* name, int letzter);
    void schalteBankzahlen();

    QCheckBox *Kontroll1, *Kontroll2, *Kontroll3, *Kontroll4, *Kontroll5;
    QComboBox *Kombi1, *Kombi2, *cmbB1, *cmbB2;
    QLabel *lblBank1_, *lblBank2_;
};
