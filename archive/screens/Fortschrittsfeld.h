#pragma once

#include <QColor>
#include <QFrame>

/// A box in which a bar grows from the left.
class Fortschrittsfeld final : public QFrame {
public:
    explicit Fortschrittsfeld(QWidget* eltern);

    /// Fills so many pixels from the left; 0 clears the box.
    void fuelle(int breite, const QColor& farbe);
    int gefuellt() const { return breite_; }
    const QColor& farbe() const { return farbe_; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    int breite_ = 0;
    QColor farbe_;
};
