#pragma once

#include "shell/elements/Rahmen.h"
#include "tips/logic/Zeitreise.h"

#include <array>
#include <vector>

class QLabel;
class QLineEdit;

/// How often each number of the tip was drawn: `Text1` to `Text6` in `Rahmen2`.
class Zahlenhaeufigkeit final : public Rahmen {
public:
    explicit Zahlenhaeufigkeit(QWidget* eltern);

    /// A field behind the numbers asked for stays empty, all of them without an evaluation.
    void zeige(const Zeitreise& zeitreise);

private:
    std::array<QLineEdit*, 6> felder_{};
};

/// How many draws fell into each class, or how many hold the combination: `txtNull` to `txtSechser_SZ` in `Rahmen1`.
class Zeitreisezaehler final : public Rahmen {
public:
    Zeitreisezaehler(Zeitreiseform form, QWidget* eltern);

    void zeige(const Zeitreise& zeitreise);
    void stelleModus(bool kombination);

private:
    struct Feld {
        QLineEdit* text;
        std::int32_t trefferzahl;
        bool mit; ///< with the Superzahl or Zusatzzahl that makes a class of its own
    };

    QLabel* Label1;
    std::vector<Feld> felder_;
};
