#pragma once

#include "listcontrol/logic/ICustomDraw.h"
#include "shell/elements/Bildschirm.h"
#include "statistics/logic/AbstandAuswertung.h"
#include "statistics/logic/AbstandMaximum.h"

class ListView;
class Tippfeld7x7View;
class ZZModusOptionen;

/// Absence statistics: the draws with one number and how long it had stayed away before each of them.
class frmABSTAND final : public Bildschirm, private ICustomDraw {
public:
    explicit frmABSTAND(Umgebung& umgebung);

    /// The last evaluation; of no number before the first one.
    const AbstandAuswertung& ergebnis() const { return ergebnis_; }
    /// The last search over all 49 numbers.
    const LaengsterAbstand& maximum() const { return maximum_; }

    void beimZeigen() override;

private:
    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override;

    void baueListe();
    void werteAus();
    void wechsleModus();
    void sucheMaximum();
    void fuelleListe();
    void zeigeStand();
    std::size_t trefferIn(int zeile) const;
    std::string bericht() const;

    AbstandAuswertung ergebnis_;
    LaengsterAbstand maximum_;
    int GewaehlteZahl = 0; ///< 0: none yet
    Tippfeld7x7View* Bezeichnung6;
    ZZModusOptionen* optZ;
    ListView* ListView1;
    QLabel *Bezeichnung1, *Bezeichnung2, *Bezeichnung4, *Bezeichnung5, *Bezeichnung7, *Bezeichnung8, *Bezeichnung9,
        *Bezeichnung10, *Bezeichnung16, *Bezeichnung57, *Bezeichnung58, *lblmax;
    QPushButton *Befehl2, *Befehl5, *cmdMax, *cmdClip;
};
