#pragma once

#include <QPlainTextEdit>

#include <string_view>

/// A text of several lines that a screen shows and the user can only read and copy: fixed pitch, never wrapped.
class Textanzeige final : public QPlainTextEdit {
public:
    /// Room for this many rows and characters, at least; the texts are no longer than that.
    Textanzeige(const QString& name, int zeilen, int zeichen, QWidget* eltern);

    /// Lines are separated by CR LF or LF.
    void zeige(std::string_view text);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

private:
    int zeilen_;
    int zeichen_;
};
