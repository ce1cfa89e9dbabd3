#pragma once

#include "shell/logic/Zeilenanfang.h"

#include <QObject>
#include <QTimer>

#include <string>

class QString;
class Zeilenansicht;

/// Goes to the row of a list that begins with the number, year or draw that the user types. What is typed is forgotten
/// after a pause. A long list is searched in slices between turns of the event loop, until the user does anything else.
class Zeilensuche final : public QObject {
public:
    explicit Zeilensuche(Zeilenansicht& ansicht);

    /// A digit, or a sign between digits. False for any other text: it is none of its business.
    bool tippe(const QString& text);

private:
    bool istNochGefragt() const;
    void suche();
    void beende();

    Zeilenansicht& ansicht_;
    std::string getippt_;
    QTimer bedenkzeit_; ///< runs out: the next key begins anew
    QTimer takt_;       ///< runs while rows are left to be looked at
    int naechste_ = 0;
    int beste_ = -1;
    Passung passung_ = Passung::Keine;
    unsigned zeilenstand_ = 0; ///< of the list when the search began
    int fokus_ = -1;           ///< likewise
};
