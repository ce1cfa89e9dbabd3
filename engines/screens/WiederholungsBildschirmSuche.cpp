#include "engines/screens/WiederholungsBildschirm.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Textanzeige.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/clsTimer.h"

#include <QLabel>
#include <QPushButton>

// The run of a search: what its button does from the press to the last line.

namespace {

/// New lines of a sorted list are put in order in pieces of this length, so that no piece takes long.
constexpr std::size_t kStueck = 4096;

/// Searches that lock each other: those of two and three numbers, and those of four to six.
bool sperrenSich(int a, int b)
{
    return (a <= 3) == (b <= 3);
}

} // namespace

void WiederholungsBildschirm::sperre(const Feld& hier)
{
    for (const Feld& andere : felder_)
        if (sperrenSich(andere.k, hier.k))
            andere.suchen->setEnabled(false);
    if (hier.k <= 3) {
        hier.details->setEnabled(false);
        hier.clip->setEnabled(false);
    }
}

void WiederholungsBildschirm::gibFrei(const Feld& hier)
{
    for (const Feld& andere : felder_)
        if (sperrenSich(andere.k, hier.k))
            andere.suchen->setEnabled(true);
    hier.details->setEnabled(true);
    hier.clip->setEnabled(true);
}

void WiederholungsBildschirm::suche(int k)
{
    if (laeuft() || !darfSuchen())
        return;
    Feld& hier = feld(k);
    const bool hatFokus = hier.suchen->hasFocus();
    hier.liste->modell().Clear();
    txtH->zeige(leereWiederholungszusammenfassung());
    if (hier.anzahl)
        hier.anzahl->clear();
    sperre(hier);
    Wiederholungslaenge = k;
    WiederholungsSuche(hier);
    gibFrei(hier);
    if (hatFokus)
        hier.suchen->setFocus();
    zeigeAnzahl(hier);
    Text15->setText("Bei diesen Lottoziehungen wurde die Kombination gezogen");
    if (k == 6)
        hier.liste->modell().SetListIndex(0);
    else
        hier.liste->zeigeZeile(hier.liste->zeilenzahl() - 1); // the most frequent
}

void WiederholungsBildschirm::WiederholungsSuche(Feld& hier)
{
    const Wiederholungsname& name = wiederholungsname(hier.k);
    hier.quelle = std::make_shared<const Quelle>(gegenwart());
    beginntSuche();
    Bezeichnung2->clear();
    Lauf lauf(*this, qt(name.zerlegen));
    setzeTitel(qt(kSucheLaeuft));
    clsTimer uhr;
    uhr.ResetTimer();
    hier.ergebnis =
        ::WiederholungsSuche(hier.quelle->ziehungen, hier.k, [&](Suchschritt schritt, std::uint64_t erledigt) {
            if (schritt == Suchschritt::Zerlegen)
                zeigtZiehung(erledigt + 1);
            else
                setzeTitel(qt(name.vergleichen));
            return lauf.zug() && !sollEnden();
        });
    fuelleListe(hier, lauf);
    if (hier.ergebnis.vollstaendig) {
        txtH->zeige(zusammenfassung(hier.ergebnis));
        setzeTitel(qt(kSucheFertig));
    }
    uhr.StopTimer();
    zeigeSuchzeit(uhr);
    endetSuche();
}

/// What a stopped search has found goes into the list to its end; a stop in here leaves the lines so far.
void WiederholungsBildschirm::fuelleListe(Feld& hier, Lauf& lauf)
{
    ListenModell& modell = hier.liste->modell();
    const bool warGestoppt = !hier.ergebnis.vollstaendig;
    hier.liste->setUpdatesEnabled(false);
    for (const Wiederholung& wiederholung : hier.ergebnis.mehrfache) {
        modell.AddItem(ergebniszeile(wiederholung, hier.k, art_));
        if (modell.ListCount() % kStueck == 0)
            modell.zeilen();
        hier.ergebnis.vollstaendig = lauf.weiter() && !sollEnden() && !warGestoppt;
        if (!hier.ergebnis.vollstaendig && !warGestoppt)
            break;
    }
    if (hier.ergebnis.vollstaendig && hier.k == 6 && modell.ListCount() == 0)
        modell.AddItem(std::string(kKeineSechserwiederholungen));
    hier.liste->setUpdatesEnabled(true);
}

void WiederholungsBildschirm::zeigeAnzahl(const Feld& hier)
{
    if (hier.anzahl)
        hier.anzahl->setNum(istKeineSechser(hier.liste->modell().List(0)) ? 0 : hier.liste->zeilenzahl());
}

void WiederholungsBildschirm::zeigeSuchzeit(const clsTimer& uhr)
{
    Bezeichnung2->setText(qt(suchzeittext(uhr.Elapsed())));
}
