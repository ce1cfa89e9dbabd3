#pragma once

#include "shell/elements/Rahmen.h"

#include <array>
#include <functional>

class Bildschirm;
class QLabel;
class QPushButton;
class QRadioButton;

/// How a screen calls the frame and the question in it.
struct DatumOderWocheNamen {
    const char* rahmen = "Rahmen2";
    const char* bezeichnung = "lblDorW";
    const char* frage = "Für die Berechnung das Ziehungsdatum oder die Spielwoche verwenden? (siehe HelpButton)";
};

/// Which year a draw counts for: that of its day, preset, or its Spieljahr. The options `optDatumOderWoche(0)` and
/// `optDatumOderWoche(1)` under a question, and the button `cmdInfo` that tells where the two differ.
class DatumOderWoche final : public Rahmen {
public:
    explicit DatumOderWoche(Bildschirm& bildschirm, const DatumOderWocheNamen& namen = {});

    bool nachDatum() const;

    /// The user has clicked an option.
    std::function<void()> beiWahl;

private:
    std::array<QRadioButton*, 2> optDatumOderWoche;
    QLabel* frage_;
    QPushButton* cmdInfo;
};
