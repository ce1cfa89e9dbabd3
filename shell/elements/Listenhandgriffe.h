#pragma once

#include "shell/logic/Fortschritt.h"

#include <QObject>

#include <functional>
#include <vector>

class Bildschirm;
class QAction;
class QKeyEvent;
class QMenu;
class QPoint;
class QString;
class Zeilenansicht;
class Zeilensuche;

/// What the user can do with the rows of any list: copy them, save them as a text file, choose all, and go to a row by
/// what it begins with. Many rows are handed out in slices, as a run of the
/// screen that Esc and its closing end.
class Listenhandgriffe final : public QObject {
public:
    explicit Listenhandgriffe(Zeilenansicht& ansicht);

    /// True if the key was one of these.
    bool nimm(const QKeyEvent& taste);
    /// The menu where the mouse is in the list; a row there that is not chosen becomes the chosen one.
    void zeigeMenueBei(QPoint ort);
    /// The menu at the row that the keyboard moves from.
    void zeigeMenue();

private:
    /// Some of the rows in their order, or all.
    struct Zeilenwahl {
        int anzahl = 0;
        std::vector<int> einzelne; ///< empty: all
        int operator[](int i) const { return einzelne.empty() ? i : einzelne[static_cast<std::size_t>(i)]; }
    };

    using Abnehmer = std::function<void(const QString& zeile)>;

    Bildschirm* bildschirm() const;
    Zeilenwahl alle() const;
    /// The chosen rows, or else the one that the keyboard moves from.
    Zeilenwahl gewaehlte() const;

    void kopiere(const Zeilenwahl& wahl);
    void speichere();
    /// Hands out the rows one by one. False if the user has stopped it or the list has changed meanwhile, and the
    /// screen says so.
    bool reicheAus(const Zeilenwahl& wahl, const Abnehmer& nimm);
    bool geheDurch(const Zeilenwahl& wahl, const Abnehmer& nimm, const Fortschritt& weiter) const;

    void baueMenue();
    void oeffneMenue(QPoint ort);
    QAction* eintrag(const QString& name, const QString& text, const std::function<void()>& tue);

    Zeilenansicht& ansicht_;
    Zeilensuche* suche_;
    bool reichtAus_ = false; ///< rows are being handed out
    QMenu* menue_ = nullptr; ///< made when it is first opened: the list has its name by then
    QAction *kopieren_ = nullptr, *allesKopieren_ = nullptr, *alsTextdatei_ = nullptr;
};
