#pragma once

#include "tips/logic/Spielscheindruck.h"

#include <QWidget>

#include <vector>

/// The slip with its crosses as a picture that is true to scale, as large as there is room.
class Spielscheinbild final : public QWidget {
public:
    Spielscheinbild(const QString& name, QWidget* eltern);

    void zeige(std::vector<Scheinort> kreuze);
    /// Moves the slip under the crosses.
    void rueckeSchein(const Scheinversatz& versatz);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    std::vector<Scheinort> kreuze_;
    Scheinversatz versatz_;
};
