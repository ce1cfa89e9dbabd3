#pragma once

#include "filters/logic/Dekaden.h"
#include "shell/elements/Bildschirm.h"

class Infotafel;
class Textanzeige;

/// The draws by the decades of their numbers: all of them with their counts, those with so many numbers in a decade,
/// those whose numbers lie in chosen decades, and a table of all sets of decades.
class frmDekade final : public Bildschirm {
public:
    explicit frmDekade(Umgebung& umgebung);

private:
    struct Dekadenliste {
        QLabel* kopf = nullptr;
        QLabel* lblc = nullptr;
        Liste* liste = nullptr; ///< List0 to List4
    };

    void baueDekaden();
    void baueZiehungen();
    void baueUebersicht();
    QLayout* dekadenspalte(std::size_t dekade);
    void sucheAnzahl();
    void sucheMuster();
    void zeigeUebersicht();
    /// Lists draws by their places; the choice of one chooses it in `lstAll`.
    void fuelle(Liste* liste, std::vector<std::size_t> stellen, std::string (*zeile)(const Ziehungsfund&));

    const std::vector<Ziehungsfund> ziehungen_; ///< all that `lstAll` lists
    QComboBox* Combo1;
    QPushButton *Command1, *cmdInfo, *cmdExit;
    std::array<Dekadenliste, kDekaden> dekaden_{};
    Textanzeige* Text1;
    std::array<QCheckBox*, kDekaden> Check1{};
    QLabel *lblAll, *lblMuster;
    Liste *lstAll, *lstMuster, *lstInfo;
    Infotafel* frmInfo;
};
