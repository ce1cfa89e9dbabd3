#pragma once

#include "shell/elements/Bildschirm.h"
#include "tips/logic/Tippvorschlag.h"

#include <array>

class Klickfeld;
class Lauf;
class Statistikquelle;
class Tippanimation;
class Tippfeld7x7View;
class Wunschfeld;

/// Tips from Bankzahlen, from numbers that the statistics of the draws name, and from random numbers.
class frmVorschlag final : public Bildschirm {
public:
    explicit frmVorschlag(Umgebung& umgebung);

    void beimZeigen() override;
    bool kehrtZumMenueZurueck() const override;

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    QGroupBox* baueStatistiken();
    void verbinde();

    void erzeuge();
    void generateTips(Lauf& lauf, const Tippwunsch& wunsch);
    Tippwunsch leseWunsch();
    /// Lists a statistic, of those in sight the one at `stelle` 0..2, and gives it.
    Statistikliste zeigeStatistik(Statistikquelle& quelle, std::size_t stelle);

    void fuegeHinzu(const Kombination& tip);
    void fuegeFestenTippHinzu();
    void zeigeTipp();
    void vergroessereStatistiken();
    void kopiere();
    void uebergib();
    void zeigeTippschein();

    std::vector<Kombination> tipps_;
    bool ungespeichert_ = false;
    bool uebergeben_ = false;            ///< the slip has taken over, and leads back to the menu
    Tippanimation* animation_ = nullptr; ///< of the run in hand
    Wunschfeld* wunsch_;
    std::array<Liste*, 3> statistiken_; ///< Liste1 to Liste3
    std::array<QLabel*, 3> statistiktitel_;
    Liste* Liste4;
    Tippfeld7x7View* Bezeichnung100;
    Klickfeld *Bezeichnung4, *Bezeichnung5; ///< headings
    QLabel *Label1, *Bezeichnung10, *Rahmen7;
    QPushButton *Befehl1, *Befehl2, *Befehl4, *Befehl5, *Command1;
};
