#pragma once

#include <QObject>

/// Watches the mouse over all screens and tells the screen under it which control it is over. One instance, installed
/// on the application; it sees disabled controls too.
class Hinweiszeile final : public QObject {
public:
    explicit Hinweiszeile(QObject* programm);
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
};
