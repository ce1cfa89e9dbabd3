#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/WiederholungDetails.h"
#include "shell/elements/Bildschirm.h"

#include <array>
#include <memory>

class Infotafel;
class Lauf;
class Textanzeige;
class clsTimer;

/// The repetition search: which sets of two to six numbers have come up more than once. Base of the tool for one game
/// and of its twin for all games; the lists, the details and the reports are the same in both.
class WiederholungsBildschirm : public Bildschirm {
public:
    /// Presses the search button of `k`, 2..6; the screen need not be shown.
    void suche(int k);
    /// What the last search of `k` has found.
    const Wiederholungen& ergebnis(int k) const { return feld(k).ergebnis; }
    /// The lines that the result list of `k` shows, in their order.
    const std::vector<std::string>& ergebniszeilen(int k) const;

protected:
    /// What a search goes through, and what its reports say of that. It stays with the result when the games change.
    struct Quelle {
        ZiehungsArchiv ziehungen;
        std::string spiel;   ///< the game or the games
        std::string schluss; ///< last line of a report
    };

    /// What stands on the screen for one `k`.
    struct Feld {
        int k = 0;
        Liste* liste = nullptr;
        QPushButton *suchen = nullptr, *details = nullptr, *clip = nullptr;
        QLabel* anzahl = nullptr; ///< of the lines; not every screen shows it
        Wiederholungen ergebnis;
        std::shared_ptr<const Quelle> quelle; ///< of the last search; null before the first one
    };

    /// `hinweise` are lines of the explanation behind those of both screens.
    WiederholungsBildschirm(Umgebung& umgebung, const QString& name, const QString& titel, const Wiederholungsart& art,
                            const std::vector<std::string>& hinweise = {});

    Feld& feld(int k) { return felder_[static_cast<std::size_t>(k - kKleinsteWiederholung)]; }
    const Feld& feld(int k) const { return felder_[static_cast<std::size_t>(k - kKleinsteWiederholung)]; }

    /// The five result lists with their buttons.
    QLayout* ergebnisblock();
    QGroupBox* zusammenfassungsrahmen();

    /// The text that the duration of a search has.
    void zeigeSuchzeit(const clsTimer& uhr);

    /// False, after a message, if there is nothing to search in.
    virtual bool darfSuchen() { return true; }
    virtual void beginntSuche() {}
    virtual void endetSuche() {}
    /// The search cuts up the draw `nr`, from 1.
    virtual void zeigtZiehung(std::size_t nr) { Q_UNUSED(nr) }
    /// Asked after each turn of the event loop in a search.
    virtual bool sollEnden() const { return false; }
    /// The game or the games, and the last line, of a report on the draws as they are now.
    virtual std::string spielname() const = 0;
    virtual std::string berichtsschluss() const { return {}; }

    QPushButton *Befehl2, *Befehl20;
    QLabel* Bezeichnung2;
    QGroupBox* Rahmen2;

private:
    /// The rows of the detail list, and whose draws they are.
    struct Details {
        Detailzeilen zeilen;
        std::string spiel;
        std::string schluss;
    };

    void baueFelder();
    QLayout* feldblock(Feld& hier);
    void sperre(const Feld& hier);
    void gibFrei(const Feld& hier);
    void WiederholungsSuche(Feld& hier);
    void fuelleListe(Feld& hier, Lauf& lauf);
    void zeigeAnzahl(const Feld& hier);
    void ZeigeDetails(const Feld& hier);
    void ZeigeDetail(const Feld& hier);
    void zeige(Detailzeilen zeilen, const Quelle& quelle);
    Quelle gegenwart() const;
    std::shared_ptr<const Quelle> quelleVon(const Feld& hier) const;
    std::string KopiereListe(const Feld& hier) const;
    std::string KopiereDetails() const;

    const Wiederholungsart& art_;
    std::array<Feld, 5> felder_;
    int Wiederholungslaenge = kKleinsteWiederholung; ///< of the last search, or of the list that was clicked last
    std::shared_ptr<const Details> details_;
    Textanzeige* txtH;
    Liste *Liste2, *Liste3;
    Infotafel* Rahmen1;
    QPushButton* Befehl18;
    QLabel* Text15;
};
