#pragma once

#include <QWidget>

#include <functional>
#include <initializer_list>
#include <vector>

class Klickfeld;
class QRadioButton;

/// An option of a `Markenwahl`: the option button with its short caption, the round mark before it and the
/// explanation behind it.
struct Marke {
    const char* option;
    const char* kurztext;
    const char* marke;
    const char* erklaerung;
    const char* text;
    const char* hinweis;
};

/// Options of which one is chosen, a row each. A click on the round mark or on the explanation chooses like one on the
/// option itself.
class Markenwahl final : public QWidget {
public:
    Markenwahl(std::initializer_list<Marke> marken, QWidget* eltern);

    /// Counts from 0, in the order of the rows.
    int gewaehlte() const;
    void waehle(int stelle);

    /// The user has chosen another one.
    std::function<void(int)> beiWahl;

private:
    void zeigeMarken();

    std::vector<QRadioButton*> optionen_;
    std::vector<Klickfeld*> marken_;
};
