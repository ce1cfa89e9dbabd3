#pragma once

#include "shell/elements/Bloecke.h"
#include "tips/logic/Druckeinstellungen.h"

#include <QWidget>

#include <array>
#include <functional>

class QCheckBox;
class QRadioButton;

/// What is crossed on the slip beside the tips: the days of the draw, the run time, the additional games.
class Scheinwahlfeld final : public QWidget {
public:
    explicit Scheinwahlfeld(QWidget* eltern);

    Scheinwahl wahl() const;
    /// Takes over what is kept from one time to the next.
    void stelle(const Druckeinstellungen& einstellungen);

    std::function<void()> beiWahl; ///< the user has chosen otherwise

private:
    QCheckBox* tag(const QString& name, const QString& text);
    template <std::size_t N>
    Bloecke optionen(std::array<QRadioButton*, N>& wahl, const QString& name, const std::array<const char*, N>& texte);

    QCheckBox *Check1, *Check2;
    std::array<QRadioButton*, 2> Option1, Option3, chkGlueck;
    std::array<QRadioButton*, kLaufzeiten> Option4;
};
