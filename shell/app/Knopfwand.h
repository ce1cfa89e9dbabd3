#pragma once

#include "shell/app/Menuetafel.h"

#include <QWidget>

#include <functional>
#include <map>

class QPushButton;

/// What a button tells while the mouse is over it, and why it cannot be pressed; no reason: it can.
struct Knopfstand {
    QString hinweis;
    QString sperrgrund;
};

/// The tool buttons of one face of the selection menu, in columns of groups. The columns are of one width, wide enough
/// for every caption.
class Knopfwand final : public QWidget {
public:
    using Spalten = std::vector<std::vector<Menuegruppe>>;

    /// `gruppenname` begins the object names of the groups. `beiKlick` gets every button that was clicked.
    Knopfwand(const Spalten& spalten, const QString& gruppenname,
              const std::function<void(const Menueknopf&)>& beiKlick, QWidget* eltern);

    /// The button of that name, which must be one of this wall.
    QPushButton* knopf(const QString& name) const { return knoepfe_.at(name).feld; }
    /// Enables the buttons that nothing speaks against; the others tell why behind their hint.
    void stelle(const std::function<Knopfstand(const Menueknopf&)>& standVon);

private:
    struct Knopf {
        QPushButton* feld;
        Menueknopf eintrag;
    };

    QWidget* baueGruppe(const Menuegruppe& gruppe, const QString& gruppenname);
    QPushButton* baueKnopf(const Menueknopf& eintrag);

    std::function<void(const Menueknopf&)> beiKlick_;
    std::map<QString, Knopf> knoepfe_;
};
