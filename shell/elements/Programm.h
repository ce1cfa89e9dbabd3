#pragma once

#include <QApplication>

/// The application object. An error that escapes a handler ends that handler and nothing else.
class Programm final : public QApplication {
public:
    Programm(int& anzahl, char** argumente);
    bool notify(QObject* ziel, QEvent* ereignis) override;
};
