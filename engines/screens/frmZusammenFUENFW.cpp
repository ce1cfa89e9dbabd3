#include "engines/screens/frmZusammenFUENFW.h"

#include "archive/screens/Spielartenwahl.h"
#include "engines/logic/NieGezogeneDreier.h"
#include "engines/logic/WiederholungBericht.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/logic/clsTimer.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

frmZusammenFÜNFW::frmZusammenFÜNFW(Umgebung& umgebung)
    : WiederholungsBildschirm(umgebung, "frmZusammenFÜNFW",
                              "Zweier-, Dreier-, Vierer-, Fünfer- und Sechserwiederholungen für Sa + Mi + Mi(B) "
                              "zusammen",
                              kAlleSpielarten)
{
    frmArt = new Spielartenwahl(*this);
    lstNGD = liste("lstNGD");
    lblCaption = bezeichnung("lblCaption", "Nie gezogene Dreierkominationen");
    lblNGD = bezeichnung("lblNGD");
    cmdNGD = befehl("cmdNGD", "Start");
    cmdClipNGD = clipBefehl("cmdClipNGD",
                            [this] { return nieGezogeneBericht(spieleDerNieGezogenen_, lstNGD->modell().zeilen()); });
    cmdClipNGD->setText("Clip");
    lstNGD->setzeSichtbar(8, 11);
    lblCaption->setWordWrap(true);

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            dehnbar(spalte({
                zeile({frmArt, dehnbar(zusammenfassungsrahmen())}),
                dehnbar(ergebnisblock()),
            }), 3),
            dehnbar(Rahmen2, 2),
            rahmen("frmNGD", {}, spalte({
                lblCaption,
                zeile({cmdNGD, cmdClipNGD, luecke()}),
                dehnbar(lstNGD),
                lblNGD,
            })),
        })),
        zeile({Befehl20, Bezeichnung2, luecke(), Befehl2}),
    }));
    // clang-format on

    bei(cmdNGD, [this] { sucheNieGezogene(); });
}

bool frmZusammenFÜNFW::darfSuchen()
{
    return frmArt->pruefe();
}

std::string frmZusammenFÜNFW::spielname() const
{
    return spielartenMitStrichen(frmArt->namen());
}

void frmZusammenFÜNFW::sucheNieGezogene()
{
    if (laeuft() || !darfSuchen())
        return;
    const WarteAnzeige anzeige(*this);
    clsTimer uhr;
    uhr.ResetTimer();
    Bezeichnung2->clear();
    lblNGD->clear();
    spieleDerNieGezogenen_ = spielname();
    lstNGD->modell().fuelle(nieGezogeneDreier(umgebung().archiv));
    lblNGD->setNum(lstNGD->zeilenzahl());
    uhr.StopTimer();
    zeigeSuchzeit(uhr);
}
