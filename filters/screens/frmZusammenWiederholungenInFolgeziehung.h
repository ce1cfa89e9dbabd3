#pragma once

#include "filters/logic/Folgewiederholungen.h"
#include "shell/elements/Bildschirm.h"

#include <optional>

class AtomareDatei;
class Spielartenwahl;

/// Numbers that a draw shares with the draw before it, over the draws of all chosen games in the order of their days.
class frmZusammenWiederholungenInFolgeziehung final : public Bildschirm {
public:
    explicit frmZusammenWiederholungenInFolgeziehung(Umgebung& umgebung);

private:
    /// What the list of details shows.
    struct Wahl {
        int zahlen = 1;       ///< 1..6
        bool inFolge = false; ///< runs of so many numbers, instead of the draws that repeat so many
        const QPushButton* knopf = nullptr;
    };

    QLayout* baueWahl();
    void waehle(const Wahl& wahl);
    void zeige(const Wahl& wahl);
    void folgeSpielarten();
    void leere();
    void speichere();
    bool schreibe(AtomareDatei& datei);

    Folgewiederholungen wiederholungen_; ///< of the chosen games
    std::optional<Wahl> wahl_;           ///< stays when other games are chosen
    Spielartenwahl* frmArt;
    Liste *List1, *List2;
    QPushButton *cmdSave, *cmdInfo, *cmdInfo2, *cmdEnd;
};
