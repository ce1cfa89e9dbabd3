#pragma once

#include <QFrame>
#include <QPointer>

#include <functional>

class Bildschirm;
class QPushButton;

/// How a tool calls its info frame and what is in it.
struct InfotafelNamen {
    const char* rahmen = "Infotafel";
    const char* text = "InfotafelText";
    const char* ok = "InfotafelOk";
    const char* okText = "ok";
    const char* titel = ""; ///< above the explanation
};

/// The info frame of a tool: its explanation over the screen, until "ok".
class Infotafel final : public QFrame {
public:
    Infotafel(Bildschirm* bildschirm, const QString& text, const InfotafelNamen& namen = {});
    /// With an explanation of another kind, such as a list box, that has its own name.
    Infotafel(Bildschirm* bildschirm, QWidget* erklaerung, const InfotafelNamen& namen);
    /// Shows it in the middle of the screen, which grows if it is too small and the desktop has room.
    void zeige();

    std::function<void()> beimWeglegen; ///< the user has read it

protected:
    void hideEvent(QHideEvent* ereignis) override;

private:
    QWidget* fusszeile();

    Bildschirm& bildschirm_;
    QPointer<QWidget> vorher_; ///< had the focus before
    QPushButton* ok_;
};
