#pragma once

#include "engines/logic/Positionszahl.h"
#include "shell/elements/Rahmen.h"

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

/// The panel that makes a combination of a Positionszahl, `Rahmen4`: the number, steps from it, its start button.
class Positionstafel final : public Rahmen {
public:
    static constexpr auto kTitel = "Eine Kombination aus Positionszahl generieren (von 1 bis 13983816)";

    explicit Positionstafel(QWidget* eltern);

    /// Shows it with the focus in its field.
    void oeffne();

    const QLineEdit* eingabe() const { return Text7; }
    QPushButton* startknopf() const { return Befehl6; }

    std::function<void(const Kombination&)> beiKombination; ///< the field named one

private:
    QPushButton* knopf(const QString& name, const QString& text, const std::function<void()>& tue);
    QPushButton* schrittknopf(const QString& name, int weite);
    void nimm(std::optional<std::int64_t> position);

    QLineEdit* Text7;
    QLabel* Bezeichnung19;
    QPushButton* Befehl6;
};
