#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/screens/Einzellader.h"
#include "filters/logic/Ziehungsfolge.h"
#include "listcontrol/logic/ICustomDraw.h"
#include "shell/elements/Bildschirm.h"

class ListView;

/// The draws of Saturday and Wednesday in the order of their days, each as a line of 49 numbers.
class frm49 final : public Bildschirm, private ICustomDraw {
public:
    explicit frm49(Umgebung& umgebung);

private:
    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override;

    void beimSchliessen() override;
    void baueListe();
    void baueAnzahl();
    void lade(std::size_t spiel);
    void mische();
    void nimmAnzahl();
    void zeige();
    void fuelle();

    Einzellader lader_;
    std::array<ZiehungsArchiv, 2> spiele_; ///< what is loaded of each game; empty while it is not chosen
    GeteilteFolge folge_;                  ///< the draws of the chosen games
    std::int32_t letzte_;                  ///< how many of the last draws are shown, if not all
    bool veraltet_ = false;                ///< another choice was made while the table fills
    std::array<QCheckBox*, 2> chkSart{};
    std::array<QRadioButton*, 2> optAnz{};
    QComboBox* cmbAnz;
    ListView* ListView1;
    QLabel *lblAnz, *lblLegende;
    QPushButton* cmdEnd;
};
