#pragma once

#include "listcontrol/logic/ICustomDraw.h"
#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Matrix.h"
#include "statistics/screens/DatumOderWoche.h"

#include <optional>

class ListView;
class Spielartenwahl;
class ZZModusOptionen;

/// What the screens of the matrices differ in.
struct Matrixtexte {
    const char* name;
    const char* titel;
    Matrixspalten spalten;
    const char* markierung;                     ///< hint of the button that marks the highest counts
    const char* maxima;                         ///< captions of the two colours
    const char* minima;                         ///< of a row
    const char* ueberschrift = nullptr;         ///< stands over the list
    const char* info = nullptr;                 ///< what `cmdInfo` tells
    std::optional<DatumOderWocheNamen> jahre{}; ///< the rows are years; without it they are weeks
};

/// How often each number was drawn in each week or year, over the draws of the chosen games: a row for each week or
/// year, counted anew with every choice. Base of the four tools.
class Matrixbildschirm : public Bildschirm, private ICustomDraw {
public:
    /// The matrix on show; without rows where no game is chosen.
    const Matrix& ergebnis() const { return ergebnis_; }

    void beimZeigen() override { werteAus(); }

protected:
    Matrixbildschirm(Umgebung& umgebung, const Matrixtexte& texte);

private:
    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override;
    void ordneAn(const Matrixtexte& texte);
    void baueSpalten();
    Matrixzeilen zeilen() const;
    void werteAus();
    void fuelleListe();
    void schreibeZeile(int zeile);
    void passeBreitenAn();
    void zeigeErsteGezaehlte();
    void markiereHoechste();
    void zeigeZelle(int zeile, int spalte);

    Matrix ergebnis_;
    Matrixspalten spalten_;
    int stellen_ = 0; ///< digits that the columns of the counts have room for
    Spielartenwahl* frmArt;
    ZZModusOptionen* optZZ = nullptr;
    DatumOderWoche* optDatumOderWoche = nullptr;
    ListView* ListView1;
    QLabel* lblGMAX;
    QPushButton* cmdMax_all;
};
