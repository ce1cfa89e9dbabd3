#pragma once

#include "tools/buehne/Bedienung.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Screens on a stage, with a program directory of their own. The operations fail the test where a user could not do
/// them.
class Buehnentest : public testing::Test {
protected:
    /// Writes a file of the program directory, line by line with CR LF.
    void schreibe(const QString& name, const std::vector<std::string>& zeilen) const;

    void oeffne(const QString& bildschirm);
    void klicke(const QString& name);
    void ueberfahre(const QString& name);
    void setze(const QString& name, const QString& text);
    void waehle(const QString& name, const QList<int>& zeilen);
    void tippe(const QString& name, const QString& tasten);
    void schliesse();

    QString lies(const QString& name);
    QString zustand(const QString& name);
    bool sichtbar(const QString& name) { return zustand(name).contains("visible=true"); }
    bool bedienbar(const QString& name) { return zustand(name).contains("enabled=true"); }
    /// The numbers 1..49 whose cells `feld(n)` look marked in every respect.
    QList<int> markierte(const QString& feld);
    QString titel();
    /// The boxes since the last call, each as "kind|title|text".
    QStringList boxen();

    QTemporaryDir ordner;
    Buehne buehne{ordner.path()};
    Bedienung bedienung{buehne};

private:
    QString gelungen(const Antwort& antwort);
};
