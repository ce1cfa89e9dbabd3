#include "statistics/screens/frmZusammenZuletzt.h"

#include "archive/screens/Spielartenwahl.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Zahlenblock.h"
#include "statistics/screens/Legende.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

const QColor kNeueste{255, 255, 0};
const QColor kAelteste{255, 0, 0};
constexpr auto kListenkopf = "GZ   Anz.    Datum";
constexpr int kListenzeilen = 20;
constexpr int kListenzeichen = 27;

} // namespace

frmZusammenZuletzt::frmZusammenZuletzt(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZusammenZuletzt",
                 "Wann wurden die Gewinnzahlen zuletzt gezogen? ( Samstag und Mittwoch zusammen)")
{
    frmArt = new Spielartenwahl(*this);
    bezeichnung114 = new Zahlenblock("bezeichnung59", "bezeichnung114", this);
    lblLegende = {bezeichnung("lblLegende(0)", "Zuletzt gezogen"), bezeichnung("lblLegende(1)", " Maximum")};
    alsLegende(lblLegende[0], kNeueste);
    alsLegende(lblLegende[1], kAelteste, Qt::white);
    lstZuletzt = liste("lstZuletzt");
    lstZuletztSort = liste("lstZuletztSort");
    for (Liste* liste : {lstZuletzt, lstZuletztSort})
        liste->setzeSichtbar(kListenzeilen, kListenzeichen);
    Command3 = befehl("Command3", ">>", hinweis("Beenden und zurück zum Auswahlmenü."));

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            dehnbar(spalte({
                zeile({frmArt, luecke()}),
                dehnbar(rahmen("frame1", "Vor wievielen Ausspielungen wurden die Gewinnzahlen zuletzt gezogen?", spalte({
                    dehnbar(bezeichnung114),
                    zeile({lblLegende[0], lblLegende[1], luecke()}),
                }))),
            })),
            rahmen("frame2", "Sortiert nach Gewinnzahl (aufsteigend)", eng(spalte({
                listenkopf("lblKopf(0)", kListenkopf), dehnbar(lstZuletzt),
            }))),
            rahmen("frame3", "Sortiert nach Anzahl der Ausspielungen (absteigend)", eng(spalte({
                listenkopf("lblKopf(1)", kListenkopf), dehnbar(lstZuletztSort),
            }))),
        })),
        zeile({luecke(), Command3}),
    }));
    // clang-format on

    frmArt->beiWechsel = [this] { werteAus(); };
    bei(Command3, [this] { schliesse(); });
}

void frmZusammenZuletzt::werteAus()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = lastDrawn(umgebung().archiv, frmArt->maske());
    frmArt->zeigeAusgewertete(ergebnis_.ziehungen);
    lstZuletzt->modell().fuelle(zeilenNachZahl(ergebnis_));
    lstZuletztSort->modell().fuelle(zeilenNachAusspielungen(ergebnis_));
    zeigeZahlen();
}

void frmZusammenZuletzt::zeigeZahlen()
{
    bezeichnung114->loescheFarben();
    const auto [min, max] = std::ranges::minmax(ergebnis_.eintraege, {}, &Zuletzteintrag::ausspielungen);
    for (const Zuletzteintrag& eintrag : ergebnis_.eintraege) {
        bezeichnung114->setzeWert(eintrag.zahl, QString::number(eintrag.ausspielungen));
        if (ergebnis_.ziehungen == 0)
            continue;
        if (eintrag.ausspielungen == min.ausspielungen)
            bezeichnung114->faerbeWert(eintrag.zahl, kNeueste);
        if (eintrag.ausspielungen == max.ausspielungen)
            bezeichnung114->faerbeWert(eintrag.zahl, kAelteste);
    }
}
