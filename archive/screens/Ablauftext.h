#pragma once

#include <QTextEdit>

/// How a new draw is entered, as a text to read: Text11. It asks for as much height as it is long.
class Ablauftext final : public QTextEdit {
public:
    Ablauftext();

    QSize sizeHint() const override;
};
