#pragma once

#include "statistics/screens/Matrixbildschirm.h"

#include <cstdint>

/// How often each number was drawn in each Spielwoche, over several games. Gives back the game that it has found, if
/// another one became active meanwhile.
class frmZusammenHSW final : public Matrixbildschirm {
public:
    explicit frmZusammenHSW(Umgebung& umgebung);

protected:
    void beimSchliessen() override;

private:
    std::int16_t gefunden_;
};
