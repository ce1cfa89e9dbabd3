#pragma once

#include "shell/app/Menuetafel.h"

#include <QWidget>

#include <functional>
#include <map>

class QPushButton;

/// The tool buttons of one face of the selection menu, in columns of groups.
class Knopfwand final : public QWidget {
public:
    using Spalten = std::vector<std::vector<Menuegruppe>>;

    /// `gruppenname` begins the object names of the groups. `beiKlick` gets every button that was clicked.
    Knopfwand(const Spalten& spalten, const QString& gruppenname,
              const std::function<void(const Menueknopf&)>& beiKlick, QWidget* eltern);

    /// The button of that name, which must be one of this wall.
    QPushButton* knopf(const QString& name) const { return knoepfe_.at(name); }
    /// Enables every button whose tool is built, and those that open none.
    void gibFrei(const std::function<bool(const QString& ziel)>& gibtEs);

private:
    QWidget* baueGruppe(const Menuegruppe& gruppe, const QString& gruppenname);

    std::function<void(const Menueknopf&)> beiKlick_;
    std::map<QString, QPushButton*> knoepfe_;
    std::map<QString, QString> ziele_; ///< of each button
};
