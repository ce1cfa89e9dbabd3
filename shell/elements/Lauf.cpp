#include "shell/elements/Lauf.h"

#include "shell/elements/Bildschirm.h"

#include <QGuiApplication>
#include <QTimer>

WarteAnzeige::WarteAnzeige(Bildschirm& bildschirm, const QString& text, Zeiger zeiger)
    : bildschirm_(bildschirm),
      text_(text),
      zeiger_(zeiger)
{
    bildschirm_.setzeStand(text_);
    bildschirm_.zeigeStatus(text_);
    if (zeiger_ == Zeiger::Sanduhr)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WarteAnzeige::~WarteAnzeige()
{
    if (zeiger_ == Zeiger::Sanduhr)
        QGuiApplication::restoreOverrideCursor();
    if (bildschirm_.windowTitle() == text_)
        bildschirm_.setzeStand(bildschirm_.grundtitel());
}

Lauf::Lauf(Bildschirm& bildschirm, const QString& wartetext, WarteAnzeige::Zeiger zeiger)
    : bildschirm_(bildschirm),
      gilt_(!bildschirm.laeuft()),
      letzterZug_(std::chrono::steady_clock::now())
{
    if (!gilt_)
        return;
    bildschirm_.stopp_ = false;
    ++bildschirm_.laeufe_;
    anzeige_ = std::make_unique<WarteAnzeige>(bildschirm, wartetext, zeiger);
}

Lauf::~Lauf()
{
    if (!gilt_)
        return;
    anzeige_.reset();
    --bildschirm_.laeufe_;
    if (bildschirm_.schliesstNachLauf_)
        QTimer::singleShot(0, &bildschirm_, [&schirm = bildschirm_] { schirm.close(); });
}

bool Lauf::weiter()
{
    constexpr std::chrono::milliseconds kZug{16};
    return std::chrono::steady_clock::now() - letzterZug_ >= kZug ? zug() : !bildschirm_.gestoppt();
}

bool Lauf::zug()
{
    if (!bildschirm_.umgebung().pumpe.verarbeite())
        bildschirm_.stoppe();
    letzterZug_ = std::chrono::steady_clock::now();
    return !bildschirm_.gestoppt();
}

Fortschritt Lauf::fortschritt()
{
    return [this](std::uint64_t) { return weiter(); };
}
