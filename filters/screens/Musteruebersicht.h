#pragma once

#include <functional>
#include <string>
#include <vector>

class Bildschirm;
class Fundanzeige;
class Liste;
class QLabel;
class QPushButton;
class QWidget;

/// The overview of all patterns of a tool: the table `List2` in the place of the found draws and their ticket, and the
/// button `cmdUebersicht` that shows and hides it.
class Musteruebersicht {
public:
    /// `kopf` stands above the found draws and hides with them. `zeilen` makes the table each time it is shown.
    Musteruebersicht(Bildschirm& bildschirm, QLabel* kopf, const Fundanzeige& anzeige,
                     std::function<std::vector<std::string>()> zeilen);

    Liste* liste() const { return List2; }
    QPushButton* knopf() const { return cmdUebersicht; }

    void zeige(bool sichtbar);

private:
    std::function<std::vector<std::string>()> zeilen_;
    std::vector<QWidget*> verdeckte_; ///< what makes room for the table
    Liste* List2;
    QPushButton* cmdUebersicht;
};
