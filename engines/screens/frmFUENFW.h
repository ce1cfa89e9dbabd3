#pragma once

#include "engines/screens/WiederholungsBildschirm.h"

/// The repetition search in the draws of one game. Other tools use it as their engine: `suche` and `ergebnis`.
class frmFÜNFW final : public WiederholungsBildschirm {
public:
    explicit frmFÜNFW(Umgebung& umgebung);

    void beimZeigen() override;

protected:
    void beginntSuche() override;
    void endetSuche() override;
    void zeigtZiehung(std::size_t nr) override;
    bool sollEnden() const override;
    std::string spielname() const override;
    std::string berichtsschluss() const override;

private:
    void fuelleZiehungen();
    void waehleZiehung(std::size_t nr);

    bool SucheAbbruch = false;
    bool zeigtFortschritt_ = false; ///< `Kontroll1` at the start of the search
    Liste* Liste1;
    QCheckBox* Kontroll1;
    QPushButton* Befehl14;
    QLabel *Bezeichnung3, *Bezeichnung13;
};
