#pragma once

#include <QFrame>
#include <QLabel>

#include <functional>

/// Gives a control its name.
template <class Feld> Feld* benannt(Feld* feld, const QString& name)
{
    feld->setObjectName(name);
    return feld;
}

/// A label that can be clicked.
class Klickfeld final : public QLabel {
public:
    using QLabel::QLabel;

    std::function<void()> beiKlick;
    std::function<void()> beiDoppelklick;

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        if (beiKlick)
            beiKlick();
    }
    void mouseDoubleClickEvent(QMouseEvent*) override
    {
        if (beiDoppelklick)
            beiDoppelklick();
    }
};
