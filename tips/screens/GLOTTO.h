#pragma once

#include "shell/elements/Bildschirm.h"
#include "tips/logic/Zufallstipps.h"

#include <array>

class Infotafel;
class Tippfeld7x7View;
class Zahlenblock;

/// Six tip fields with random tips. One of them can go to the time travel.
class GLOTTO final : public Bildschirm {
public:
    explicit GLOTTO(Umgebung& umgebung);

private:
    enum class Folge { Ziehung, Zahlen };

    QGroupBox* baueTipp(std::size_t tip);

    void tippe();
    void zeigeListen(Folge folge);
    void zeigeTipps();
    void werteAus(std::size_t tip);
    void drucke();

    Zufallstipps tipps_;
    std::array<Tippfeld7x7View*, kZufallstipps> felder_; ///< Bezeichnung1 to Bezeichnung6
    std::array<QPushButton*, kZufallstipps> cmdTipp;
    std::array<Liste*, 2 * kZufallstipps> listen_; ///< Liste1 to Liste12: in the order drawn, then by number
    Infotafel* Rahmen7;
    Zahlenblock* Bezeichnung114;
    QLabel* Bezeichnung58;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7, *Befehl8;
};
