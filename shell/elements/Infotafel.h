#pragma once

#include <QFrame>

/// The info frame of a tool: its explanation over the screen, until "ok".
class Infotafel final : public QFrame {
public:
    Infotafel(QWidget* bildschirm, const QString& text);
    /// Shows it in the middle of the screen, which grows if it is too small.
    void zeige();

protected:
    /// Esc puts the frame away and leaves the screen open.
    void keyPressEvent(QKeyEvent* ereignis) override;
};
