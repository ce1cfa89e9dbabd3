#pragma once

#include "filters/logic/Zahlennachbarn.h"
#include "listcontrol/logic/ICustomDraw.h"
#include "shell/elements/Bildschirm.h"

#include <optional>

class Lauf;
class ListView;

/// What the screens of the number neighbours differ in, beside the files they search.
struct NachbarbildschirmTexte {
    const char* name;
    std::array<const char*, kNachbargruppen.size()> knoepfe; ///< of two to six neighbours
    int meldetAb = 0;      ///< the list says from this size on that there is no hit; below it stays empty
    bool zusammen = false; ///< over the files of several games
};

/// The number neighbours: the draws with so many consecutive numbers, oldest first for each number that they start
/// with. Base of the tool for one game and of its twin for all games.
class Nachbarbildschirm : public Bildschirm, private ICustomDraw {
public:
    /// Presses the search button of `k`, 2..6; the screen need not be shown.
    void SucheNachbarn(int k) { suche(kNachbargruppen.at(static_cast<std::size_t>(k - kKleinsteNachbargruppe))); }
    /// The search that the list shows; nothing before the first one.
    const std::optional<Nachbarsuche>& ergebnis() const { return ergebnis_; }

protected:
    Nachbarbildschirm(Umgebung& umgebung, const NachbarbildschirmTexte& texte);

    /// Lays the screen out; `seite` stands between the five searches and the state of the run, `fuss` beside the
    /// buttons below. To be called once.
    void ordneAn(QLayout* kopf, const Bloecke& seite = {}, const Bloecke& fuss = {});
    /// Makes a button that searches for `gruppe`, which has to outlive the screen.
    QPushButton* suchknopf(const QString& name, const QString& text, const Nachbargruppe& gruppe);
    void suche(const Nachbargruppe& gruppe);
    /// Puts away whatever a search has left.
    void leere();

    /// False, after a message, if there is nothing to search in.
    virtual bool darfSuchen() { return true; }
    /// The games whose files are searched, in this order.
    virtual std::vector<std::int16_t> spielarten() const;
    /// Makes the archive hold the file of a game.
    virtual void lade(std::int16_t spielart) { Q_UNUSED(spielart) }
    /// A search has ended, whole or not; what it has found is `ergebnis`.
    virtual void endetSuche() {}

private:
    /// A search button, and the field that shows how often its group was found.
    struct Start {
        const Nachbargruppe* gruppe;
        QPushButton* knopf;
        QLineEdit* anzahl; ///< null for a mixed pattern
    };

    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override;

    void baueListe();
    void beginneSuche(const Nachbargruppe& gruppe);
    bool durchsucheDateien(Lauf& lauf);
    bool durchsuche(Lauf& lauf);
    void haengeAn(Nachbartreffer treffer);
    void zeigeErgebnis(const Start& start);
    void sperre(bool gesperrt);
    void setzeGruppenbreite(std::string_view text);
    const Start& startVon(const Nachbargruppe& gruppe) const;
    void ExportiereHtml();

    const NachbarbildschirmTexte texte_;
    std::optional<Nachbarsuche> ergebnis_;
    std::vector<Start> starts_;
    ListView* ListView1;
    QLabel *Bezeichnung6, *Bezeichnung8, *Bezeichnung10, *Bezeichnung12;
    QPushButton *Befehl2, *Befehl5, *Command2;
};
