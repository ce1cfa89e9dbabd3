#pragma once

#include "filters/screens/Fundanzeige.h"
#include "shell/elements/Bildschirm.h"

class Spielartenwahl;
class Zellwahl;

/// What the cell filter of one game and that of several games differ in.
struct Zellfilterart {
    const char* name;
    Datumsspalte datum;
    const char* spielarten; ///< in the explanation, behind the count of draws
    bool zusammen;          ///< the user chooses the games
};

/// The draws that lie wholly in chosen rows, columns or cells of the ticket. Base of the tool for one game and of its
/// twin for several.
class Zellfilterbildschirm : public Bildschirm {
protected:
    Zellfilterbildschirm(Umgebung& umgebung, const QString& titel, const Zellfilterart& art);

private:
    void ordneAn();
    void filtere();
    void sucheNeu();
    void leere(const QString& angabe);
    QString erklaerung() const;
    bool hatSpielart() const;

    const Zellfilterart art_;
    Fundanzeige anzeige_;
    Spielartenwahl* frmArt = nullptr; ///< null in the tool for one game
    Zellwahl* wahl_;
    QLabel *Bezeichnung7, *Rahmen1Text;
    QPushButton *Befehl2, *Befehl3;
};
