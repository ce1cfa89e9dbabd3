#pragma once

#include "tools/buehne/Buehne.h"

#include <QPoint>
#include <QStringList>

class QAction;
class QObject;
class QTimer;
class QWidget;
class Zeilenansicht;

/// What an operation gave: lines to read, or why it could not be done.
struct Antwort {
    QStringList zeilen;
    QString grund;

    bool gelungen() const { return grund.isEmpty(); }
};

/// Works the screens as a user would: by the names of their controls, with real mouse and key events. A control that
/// is missing, hidden or disabled refuses. Rows count from 0.
class Bedienung {
public:
    explicit Bedienung(Buehne& buehne);

    /// The screen that the operations go to: the one opened or named last, and when it goes the one that is shown.
    Bildschirm* aktuell();

    /// Opens a screen: from the selection menu while that is in sight, which hides it.
    Antwort oeffne(const QString& bildschirm);
    /// How the menu in sight opens a screen; without it the menu is hidden and the screen opened by itself.
    std::function<Antwort(const QString& bildschirm)> ausMenue;
    Antwort benutze(const QString& bildschirm);
    Antwort schliesse();
    Antwort namen();

    Antwort klicke(const QString& name);
    Antwort doppelklicke(const QString& name);
    Antwort ueberfahre(const QString& name);
    Antwort druecke(const QString& name);
    Antwort lasseLos(const QString& name);
    Antwort setze(const QString& name, const QString& text);
    Antwort tippe(const QString& name, const QString& tasten);
    Antwort waehle(const QString& name, const QList<int>& zeilen);
    Antwort ticke(const QString& name);

    Antwort text(const QString& name);
    Antwort zustand(const QString& name);
    Antwort anzahl(const QString& name);
    Antwort zeilen(const QString& name, int ab, int hoechstens);
    Antwort gewaehlte(const QString& name);
    Antwort farben(const QString& name, int zeile);
    Antwort eintraege(const QString& name);
    Antwort titel();
    Antwort bild(const QString& datei);

    /// A control or timer of the current screen, the visible one of those that share a name; null without one.
    QObject* finde(const QString& name);

private:
    /// The widget of that name, if a user could use it now; otherwise null and the reason.
    QWidget* bedienbar(const QString& name, Antwort& antwort);
    Zeilenansicht* ansicht(const QString& name, Antwort& antwort, bool bedienen = false);
    /// Does something with the mouse where it stands on a control.
    Antwort mitMaus(const QString& name, const std::function<void(QWidget* feld, QPoint ort)>& tue);

    Buehne& buehne_;
    QString name_ = "frmLSTART";
    bool istVerborgenBenannt_ = false; ///< a hidden screen was named, and stays the current one
};
