#include "shell/elements/AutomatischeAnzeige.h"

#include "shell/elements/Liste.h"

#include <QPushButton>
#include <QTimer>

#include <chrono>

namespace {
constexpr std::chrono::milliseconds kTakt{2000};
} // namespace

AutomatischeAnzeige::AutomatischeAnzeige(QPushButton* cmdAuto_, const Beschriftung& beschriftung, QWidget* eltern)
    : QObject(eltern),
      beschriftung_(beschriftung),
      cmdAuto(cmdAuto_),
      Timer1(new QTimer(eltern))
{
    Timer1->setObjectName("Timer1");
    connect(Timer1, &QTimer::timeout, this, [this] { ticke(); });
    connect(cmdAuto, &QPushButton::clicked, this, [this] { schalte(); });
    Timer1->start(kTakt);
}

void AutomatischeAnzeige::fuehre(Liste* liste, NachLoslassen nachLoslassen)
{
    listen_.push_back({liste});
    liste->beiAuswahl = [this, liste] { melde(*liste); };
    liste->beiDruecken = [this] { Timer1->stop(); };
    liste->beiLoslassen = [this, nachLoslassen] {
        if (nachLoslassen == NachLoslassen::Immer || cmdAuto->text() == beschriftung_.ein)
            Timer1->start(kTakt);
    };
}

void AutomatischeAnzeige::beginneVorn(const Liste* liste)
{
    for (Gefuehrt& gefuehrt : listen_)
        if (gefuehrt.liste == liste)
            gefuehrt.zeile = 0;
}

void AutomatischeAnzeige::schalte()
{
    if (Timer1->isActive())
        Timer1->stop();
    else
        Timer1->start(kTakt);
    cmdAuto->setText(Timer1->isActive() ? beschriftung_.ein : beschriftung_.aus);
}

void AutomatischeAnzeige::schalteAus()
{
    Timer1->stop();
    cmdAuto->setText(beschriftung_.aus);
}

void AutomatischeAnzeige::ticke()
{
    for (Gefuehrt& gefuehrt : listen_) {
        const int zeilen = gefuehrt.liste->zeilenzahl();
        if (gefuehrt.liste->isHidden() || zeilen == 0)
            continue;
        gefuehrt.zeile = gefuehrt.zeile + 1 < zeilen ? gefuehrt.zeile + 1 : 0;
        gefuehrt.liste->modell().SetListIndex(gefuehrt.zeile);
        gefuehrt.liste->zeigeZeile(gefuehrt.zeile);
        melde(*gefuehrt.liste);
    }
}

void AutomatischeAnzeige::melde(const Liste& liste) const
{
    if (beiZeile)
        beiZeile(liste);
}
