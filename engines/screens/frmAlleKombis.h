#pragma once

#include "engines/logic/Kombinationsseite.h"
#include "listcontrol/screens/CLongScroll.h"
#include "shell/elements/Bildschirm.h"

class QScrollBar;
class Spielartenwahl;
class Trefferdetails;

/// All combinations of 6 aus 49 as one long list, each with what it would have won in every draw. The list holds the 30
/// rows in sight; they are computed anew at each scroll.
class frmAlleKombis final : public Bildschirm {
public:
    explicit frmAlleKombis(Umgebung& umgebung);

    /// The rows in sight.
    const std::vector<Kombinationszeile>& seite() const { return seite_; }

    bool kehrtZumMenueZurueck() const override { return !zuDenTreffern_; }

protected:
    void beimSchliessen() override;

private:
    QLayout* baueListe();
    QLayout* baueSuche();
    QLayout* baueZaehler();
    void verbinde();

    std::int32_t superzahl() const;
    void ZeigeSeite();
    void ZeigeTreffer();
    void zeigeZaehler();
    void wechsleSuperzahl();
    void wechsleSpielarten();
    void sucheNummer();
    void sucheKombination();
    void zeigeAnErsterStelle(std::int32_t nummer);
    void wechsleZuDenTreffern();

    std::vector<Kombinationszeile> seite_;
    bool zuDenTreffern_ = false; ///< what is shown next: the menu or the most successful combinations
    Liste* List1;
    QScrollBar* VScroll1;
    CLongScroll rolle_;
    Spielartenwahl* FrameZ;
    Trefferdetails* FrameDetail;
    QLabel *lblHeader, *lblSZ, *labelInfo;
    std::array<QLabel*, 2> lblS;
    std::array<QLabel*, 9> zaehler_; ///< the nine counts below the detail list
    QComboBox* ComboSZ;
    QLineEdit *Text1, *txtV;
    QPushButton *cmdKombisearch, *Command, *cmdInfo, *cmdEnd, *cmdTreffer;
};
