#pragma once

#include "engines/screens/WiederholungsBildschirm.h"

class Spielartenwahl;

/// The repetition search in the draws of all chosen games together, and the search for triples that were never drawn.
class frmZusammenFÜNFW final : public WiederholungsBildschirm {
public:
    explicit frmZusammenFÜNFW(Umgebung& umgebung);

protected:
    bool darfSuchen() override;
    std::string spielname() const override;

private:
    void sucheNieGezogene();

    std::string spieleDerNieGezogenen_; ///< those of their search; empty before the first one
    Spielartenwahl* frmArt;
    Liste* lstNGD;
    QLabel *lblCaption, *lblNGD;
    QPushButton *cmdNGD, *cmdClipNGD;
};
