#pragma once

#include <QWidget>

#include <string>

class Liste;
class QPushButton;
struct Tipphaeufigkeit;

/// How often each number was tipped, by number (`Liste2`) or the most frequent one first (`Liste4`). A click on the
/// heading or the list changes from one to the other.
class Tipphaeufigkeitsfeld final : public QWidget {
public:
    static constexpr auto kHinweis = "\"Click\" auf Liste ändert die Sortierreihenfolge (Tipzahl <-> Häufigkeit).";

    explicit Tipphaeufigkeitsfeld(QWidget* eltern);

    void zeige(const Tipphaeufigkeit& haeufigkeit);

private:
    struct Ansicht {
        QPushButton* kopf = nullptr;
        Liste* liste = nullptr;
    };

    Ansicht baueAnsicht(const QString& kopf, const QString& text, const QString& liste);
    void wechsleReihenfolge();

    Ansicht nachZahl_, nachAnzahl_;
    Liste* Liste3; ///< the rows in the order of their text, out of sight
};
