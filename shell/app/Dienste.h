#pragma once

#include "shell/elements/Umgebung.h"

#include <QThread>

/// The services of the running program: real boxes, clipboard, printer, sound, opener and event loop.

class FensterBoxen final : public Boxen {
public:
    void info(const QString& titel, const QString& text) override;
    bool frage(const QString& titel, const QString& text) override;
    std::optional<QString> eingabe(const QString& titel, const QString& text, const QString& vorgabe) override;
    std::optional<QString> datei(const DateiFrage& frage) override;
};

class SystemZwischenablage final : public Zwischenablage {
public:
    void setze(const QString& text) override;
    QString text() const override;
};

class SystemDrucker final : public Drucker {
public:
    QStringList namen() const override;
    bool drucke(const QString& titel, const Maler& male) override;
    bool druckeAuf(const QString& name, const QString& titel, const Maler& male) override;
};

/// Plays on a thread of its own: looking for the sound device may take seconds on some machines.
class SystemKlang final : public Klang {
public:
    ~SystemKlang() override;
    void SpieleKlang(int nummer) override;

private:
    QThread faden_;
    QObject* spieler_ = nullptr; ///< lives on the thread and owns its sounds
};

class SystemOeffner final : public Oeffner {
public:
    bool oeffne(const QString& dateiOderAdresse) override;
};

class SystemPumpe final : public Pumpe {
public:
    bool verarbeite() override;
};
