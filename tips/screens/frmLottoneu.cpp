#include "tips/screens/frmLottoneu.h"

#include "shell/elements/BildschirmVerzeichnis.h"
#include "tips/screens/Desktopausgabe.h"
#include "tips/screens/Markenwahl.h"
#include "tips/screens/Tippwahl.h"
#include "tips/screens/frmLottoneu_alt_mitZZ.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {
constexpr auto kAltePlan = "frmLottoneu_alt_mitZZ";
constexpr int kNurGewinne = 1; ///< place among the views
} // namespace

frmLottoneu::frmLottoneu(Umgebung& umgebung) : Zeitreisebildschirm(umgebung, "frmLottoneu", Zeitreiseform::EineSpielart)
{
    Label6 = bezeichnung("Label6", "Zeige in der Ergebnisliste:");
    Option3 = new Markenwahl({{"Option3(0)", "alle", "lblOPT3(0)", "lblc2(0)", "Alle Treffer",
                               "Es werden alle Treffer gezeigt. Also auch Einer oder Zweier ohne Superzahl."},
                              {"Option3(1)", "Gewinn", "lblOPT3(1)", "lblc2(1)", "Nur Ziehungen mit  Gewinnen",
                               "Nur die Gewinne werden aufgelistet."}},
                             this);
    Option3->waehle(kNurGewinne);
    frame3 = rahmen("frame3", {}, spalte({Label6, Option3}));
    Command3 = befehl("Command3", "&Alte Gewinnklassen");
    Command3->setToolTip(
        " Tipp nach dem alten Gewinnklassenschema mit Zusatzzahl auswerten (galt vor dem 04.05.2013).");
    nurFuerVollenTipp(frame3);
    nurFuerVollenTipp(Command3);
    ordneAn({}, {frame3}, {Command3, ausgabe()->csvKnopf(), ausgabe()->htmlKnopf()});

    Option3->beiWahl = [this](int) { erneuere(); };
    bei(Command3, [this] { zeigeAlteKlassen(); });
}

Zeitreiseart frmLottoneu::ansicht() const
{
    return Option3->gewaehlte() == kNurGewinne ? Zeitreiseart::Gewinne : Zeitreiseart::Alle;
}

void frmLottoneu::zeigeAlteKlassen()
{
    umgebung().klang.SpieleKlang(1);
    umgebung().bildschirme->lade<frmLottoneu_alt_mitZZ>(kAltePlan).uebernimm(tippwahl().tippfeld(),
                                                                             tippwahl().superzahl());
    umgebung().bildschirme->oeffne(kAltePlan);
}

QString frmLottoneu::info() const
{
    return Zeitreisebildschirm::info() +
           "\n\nDie Schaltfläche \"Alte Gewinnklassen\" bleibt: Sie wertet den Tipp nach dem alten Gewinnklassenschema "
           "mit Zusatzzahl aus.";
}

void frmLottoneu::beimSchliessen()
{
    if (Bildschirm* alte = umgebung().bildschirme->geladen(kAltePlan))
        alte->schliesse();
}
