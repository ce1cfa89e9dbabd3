#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class Liste;
class QPushButton;
class QTimer;

/// The automatic display: at each tick of `Timer1`, every two seconds from the start on, the next row of the list in
/// sight is chosen and shown. Its button, named `cmdAuto`, stops and starts it, and so do press and release of the
/// mouse on a list.
class AutomatischeAnzeige final : public QObject {
public:
    /// When the release of the mouse over a list starts the timer again.
    enum class NachLoslassen { Immer, NurEingeschaltet };

    /// Captions of the button: the timer runs, or it was stopped by the button.
    struct Beschriftung {
        QString ein;
        QString aus;
    };

    /// `eltern` is the screen.
    AutomatischeAnzeige(QPushButton* cmdAuto, const Beschriftung& beschriftung, QWidget* eltern);

    void fuehre(Liste* liste, NachLoslassen nachLoslassen);
    /// Stops as the button would.
    void schalteAus();
    /// The next tick counts from the first row again.
    void beginneVorn(const Liste* liste);

    /// A row was chosen, by a tick or by the user: it is the current one of the list.
    std::function<void(const Liste&)> beiZeile;

private:
    struct Gefuehrt {
        Liste* liste = nullptr;
        int zeile = 0; ///< that the last tick reached
    };

    void schalte();
    void ticke();
    void melde(const Liste& liste) const;

    std::vector<Gefuehrt> listen_;
    Beschriftung beschriftung_;
    QPushButton* cmdAuto;
    QTimer* Timer1;
};
