#pragma once

#include "shell/elements/Rahmen.h"

#include <QLabel>

#include <functional>

/// Gives a control its name.
template <class Feld> Feld* benannt(Feld* feld, const QString& name)
{
    feld->setObjectName(name);
    return feld;
}

/// A card with its content.
inline Rahmen* karte(const QString& name, const QString& titel, QLayout* inhalt, QWidget* eltern)
{
    auto* karte = benannt(new Rahmen(titel, eltern), name);
    karte->setzeInhalt(inhalt);
    return karte;
}

/// Another title of a card that had one before: its content keeps its place.
inline void wechsleTitel(Rahmen& rahmen, const QString& titel)
{
    rahmen.setTitle(titel);
    rahmen.setContentsMargins(0, 0, 0, 0);
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
