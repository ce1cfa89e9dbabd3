#pragma once

#include <QPushButton>

/// A button whose caption is a sign of a symbol font; it shows the arrow that the sign stands for: "3" left, "4"
/// right, "5" up, "6" down.
class Pfeilknopf final : public QPushButton {
public:
    Pfeilknopf(const QString& name, const QString& zeichen, const QString& hinweis, QWidget* eltern);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};
