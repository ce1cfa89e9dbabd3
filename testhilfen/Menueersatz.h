#pragma once

#include "shell/elements/Bildschirm.h"

/// Stands in for the selection menu where a test has no use for the real one: an option each for the three games, out
/// of sight while a tool is open. It goes by the menu's name, "frmLSTART".
class Menueersatz final : public Bildschirm, public Menue {
public:
    /// `lade` loads the archive of a game; it runs for the first one at once.
    Menueersatz(Umgebung& umgebung, std::function<void(std::int16_t spielart)> lade);
    ~Menueersatz() override;

    void waehleSpielart(std::int16_t spielart) override;
    std::int16_t gewaehlteSpielart() const override;
    void zeigeWieder() override { show(); }
    bool kehrtZumMenueZurueck() const override { return false; }

private:
    std::function<void(std::int16_t)> lade_;
    std::array<QRadioButton*, 3> optionen_{};
};
