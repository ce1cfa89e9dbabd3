#pragma once

#include "shell/logic/ZZModus.h"

#include <QWidget>

#include <array>
#include <functional>

class QRadioButton;

/// The three options "ohne / mit / nur Zusatzzahl", named `name(0)` to `name(2)`; the first is preset.
class ZZModusOptionen final : public QWidget {
public:
    explicit ZZModusOptionen(QWidget* eltern, const QString& name = "optZ");

    ZZModus modus() const;

    /// The user has clicked an option.
    std::function<void(ZZModus)> beiWahl;

private:
    std::array<QRadioButton*, 3> optionen_;
};
