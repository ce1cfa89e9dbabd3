#pragma once

#include "filters/logic/Serien.h"
#include "shell/elements/Bildschirm.h"

/// Runs of one game: the numbers, or three numbers together, that came in several draws in a row.
class frmInFolge final : public Bildschirm {
public:
    explicit frmInFolge(Umgebung& umgebung);

    void beimZeigen() override;

private:
    void sucheEinzelne(bool mitZusatzzahl);
    void zeige(const Serienfrage& frage, const QPushButton* knopf);

    QLineEdit* txtWieviel;
    Liste* List1;
    QLabel *lblSart, *lblZZ, *lblErgebnis;
    QPushButton *C2, *C3, *cmdDreiZahlen, *cmdEnd;
};
