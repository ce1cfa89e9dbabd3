#pragma once

#include "engines/logic/Vollsuche.h"
#include "engines/logic/VollsucheTexte.h"
#include "shell/elements/Bildschirm.h"

class Lauf;
class QTimer;
class Spielartenwahl;
class Suchlaufanzeige;
class Textanzeige;

/// The search for repetitions through all combinations of a size, over the draws of one game or of several together.
/// It shows each combination that it tests, or counts as fast as it can.
class Vollsuchbildschirm : public Bildschirm {
public:
    /// The last search, also while it runs; of size 0 before the first one.
    const Suchergebnis& ergebnis() const { return ergebnis_; }
    /// The rows of the list of repetitions: the most frequent last; one row says so if there are none of six.
    const std::vector<std::string>& wiederholungen() const;

    /// Does what the button of `groesse`, 2..6, does; any other size does nothing. The screen need not be shown.
    void suche(int groesse);

    void beimZeigen() override { zeigeStand(); }

protected:
    enum class Spiele { Eines, MehrereZusammen };

    Vollsuchbildschirm(Umgebung& umgebung, const QString& name, Spiele spiele);

    void beimSchliessen() override;

private:
    void baueStart();
    void baueErgebnis();
    QLayout* anordnung();
    void zeigeStand();
    void zeigeInfo();

    void beginne(int groesse);
    void durchsuche(Lauf& lauf);
    void animiere(Vollsuche& suche, Lauf& lauf);
    void beende();
    void sperre(bool gesperrt);
    void uebernimmZeilen();

    std::string spiel() const;

    Suchergebnis ergebnis_;
    Suchquelle quelle_; ///< of the last search
    std::size_t gezeigteWiederholungen_ = 0;
    std::size_t gezeigteNieGezogene_ = 0;

    Spielartenwahl* wahl_ = nullptr; ///< null with one game
    QWidget* nieGezogenBlock_;       ///< holds what is shown of triples alone
    Suchlaufanzeige* anzeige_;
    std::array<QPushButton*, 5> cmdKombiSuche; ///< of sizes 2..6
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl5, *Befehl6;
    QRadioButton *Option1, *Option2;
    QGroupBox* Rahmen5;
    QLabel *Bezeichnung8, *Bezeichnung9;
    QLineEdit* Text1;
    Liste *Liste1, *Liste3;
    Textanzeige* txtH;
    QTimer* Timer2;
};
