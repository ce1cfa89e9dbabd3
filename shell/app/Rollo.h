#pragma once

#include <QFrame>
#include <QWidget>

#include <array>

class QLabel;
class QTextEdit;

/// The name of the game, twice: a shadow and, a little to the upper left, the text.
class Spielname final : public QWidget {
public:
    explicit Spielname(QWidget* eltern);
    /// The shadow, then the text.
    const std::array<QLabel*, 2>& bezeichnungen() const { return bezeichnungen_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    std::array<QLabel*, 2> bezeichnungen_;
};

/// The panel of the combined tools, which covers the wall of buttons like a roller blind.
class Rollo final : public QFrame {
public:
    explicit Rollo(QWidget* eltern);
    void setzeInhalt(QWidget* inhalt);

private:
    QLabel* imgRollo;
    QFrame* ShapeRollo;
    QTextEdit* txtRollo;
};
