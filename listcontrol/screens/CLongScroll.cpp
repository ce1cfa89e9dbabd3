#include "listcontrol/screens/CLongScroll.h"

#include "listcontrol/logic/ListenFehler.h"

#include <algorithm>
#include <utility>

CLongScroll::~CLongScroll()
{
    QObject::disconnect(verbindung_);
}

void CLongScroll::setClient(QObject* client)
{
    auto* bar = qobject_cast<QScrollBar*>(client);
    if (!bar)
        throw ListenFehler("CLongScroll", "Client object must be a scrollbar.");
    QObject::disconnect(verbindung_);
    bar_ = bar;
    uebergib();
    verbindung_ = QObject::connect(bar, &QScrollBar::valueChanged, bar, [this](int value) { uebernimm(value); });
}

void CLongScroll::uebergib()
{
    if (!bar_)
        return;
    bar_->setRange(min_, max_);
    bar_->setPageStep(large_);
    bar_->setSingleStep(small_);
    bar_->setValue(value_);
}

void CLongScroll::setMax(int max)
{
    max_ = max;
    min_ = std::min(min_, max);
    setValue(value_);
}

void CLongScroll::setMin(int min)
{
    min_ = min;
    max_ = std::max(max_, min);
    setValue(value_);
}

void CLongScroll::setLargeChange(int change)
{
    large_ = std::max(1, change);
    uebergib();
}

void CLongScroll::setSmallChange(int change)
{
    small_ = std::max(1, change);
    uebergib();
}

void CLongScroll::setValue(int value)
{
    // The value is taken over first: what the bar reports while it follows is then no change any more.
    const int vorher = std::exchange(value_, std::clamp(value, min_, max_));
    uebergib();
    if (value_ != vorher && beiAenderung)
        beiAenderung();
}

void CLongScroll::uebernimm(int value)
{
    if (std::exchange(value_, value) != value && beiAenderung)
        beiAenderung();
}
