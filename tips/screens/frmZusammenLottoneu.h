#pragma once

#include "archive/screens/Einzellader.h"
#include "tips/screens/Zeitreisebildschirm.h"

class QCheckBox;

/// The time travel through the draws of several games, whose files are loaded one after the other. The game that was
/// evaluated last stays in the archive.
class frmZusammenLottoneu final : public Zeitreisebildschirm {
public:
    explicit frmZusammenLottoneu(Umgebung& umgebung);

protected:
    Zeitreise werteAus(const Zeitreisefrage& frage) override;
    std::vector<std::int16_t> spielarten() const override;
    std::optional<Zeitreisezeile> letzte() override;

private:
    void lade(std::int16_t spielart);

    Einzellader lader_;
    std::array<QCheckBox*, 3> chkArt{};
    std::array<bool, 3> fehlt_{}; ///< the user knows that its file is missing
};
