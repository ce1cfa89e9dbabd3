#pragma once

#include "tips/logic/Zeitreise.h"

#include <functional>
#include <string>
#include <string_view>

class Bildschirm;
class QPushButton;

/// The exports of a time travel to the desktop: the list as csv by `Befehl18`, the page of wins by `cmdHtml_Gewinn`.
/// The file is handed to the system to be opened.
class Desktopausgabe {
public:
    /// `inhalt` is asked for what the list shows.
    Desktopausgabe(Bildschirm& bildschirm, std::function<Zeitreise()> inhalt);

    QPushButton* csvKnopf() const { return Befehl18; }
    QPushButton* htmlKnopf() const { return cmdHtml_Gewinn; }

    /// After an evaluation: both can be pressed, the page only if there are rows of a tip.
    void erlaube(const Zeitreise& zeitreise);
    /// The list was cleared.
    void sperreHtml();

private:
    void schreibe(std::string_view name, const std::string& bytes);

    Bildschirm& bildschirm_;
    std::function<Zeitreise()> inhalt_;
    QPushButton *Befehl18, *cmdHtml_Gewinn;
};
