#pragma once

#include <QLabel>

#include <functional>

/// A small framed label that can be clicked: a number of a ticket grid, a bar of a graph.
class Zelle final : public QLabel {
public:
    Zelle(const QString& name, const QString& text, QWidget* eltern);

    std::function<void()> beiKlick;

protected:
    void mousePressEvent(QMouseEvent* ereignis) override;
};
