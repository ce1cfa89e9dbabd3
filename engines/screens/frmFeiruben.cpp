#include "engines/screens/frmFeiruben.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/clsTimer.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <set>

namespace {

struct Feldnamen {
    const char *zerlegen, *beschriftung, *liste, *details;
};

constexpr std::array<Feldnamen, 4> kNamen{{
    {"Befehl11", "&Zweierkombinationen auflisten", "Liste7", "Befehl13"},
    {"Befehl16", "&Dreierkombinationen auflisten", "Liste8", "Befehl17"},
    {"Befehl12", "&Viererkombinationen auflisten", "Liste4", "Befehl7"},
    {"Befehl1", "&Fünferkombinationen auflisten", "Liste5", "Befehl5"},
}};

constexpr std::size_t kFuenfer = 3;

constexpr int groesse(std::size_t nummer)
{
    return kKleinsteWiederholung + static_cast<int>(nummer);
}

/// The values of a column as entries of a box that shows none of them at first.
void fuelle(QComboBox& kombi, const ZiehungsArchiv::Spalte& spalte)
{
    kombi.clear();
    for (const std::int32_t wert : std::set<std::int32_t>(spalte.begin() + 1, spalte.end()))
        kombi.addItem(QString::number(wert), wert);
    kombi.setCurrentIndex(-1);
}

} // namespace

frmFeiruben::frmFeiruben(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmFeiruben",
                 "In ausgewählten Ziehungen enthaltene Zweier-, Dreier-, Vierer- und Fünferkombinationen zaehlen und "
                 "auflisten"),
      auswahl_(std::make_shared<const ZiehungsArchiv>())
{
    QLayout* auswahl = auswahlblock();
    baueFelder();
    Text15 = listenkopf("Text15", "JJJJ/SW   Ziehungen mit Kombination");
    Liste3 = liste("Liste3");
    Liste3->setzeSichtbar(14, 29);
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    cmdClip7 = clipBefehl("cmdClip7", [this] { return zerlegungsbericht(zerlegungen_, auswahl_); });
    Befehl2 = befehl("Befehl2", "&<<");

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            dehnbar(auswahl, 3),
            dehnbar(spalte({
                dehnbar(zeile({dehnbar(feldblock(0)), dehnbar(feldblock(1))})),
                dehnbar(zeile({dehnbar(feldblock(2)), dehnbar(feldblock(3))})),
            }), 4),
            dehnbar(rahmen("Rahmen2", "Details (Kombinationen wann gezogen ?)", eng(spalte({
                Text15,
                dehnbar(Liste3),
            }))), 2),
        })),
        zeile({cmdClip7, Bezeichnung2, luecke(), Befehl2}),
    }));
    // clang-format on

    hauptaktionen({felder_[0].zerlegen, felder_[1].zerlegen, felder_[2].zerlegen, felder_[3].zerlegen});
    bei(Befehl2, [this] { schliesse(); });
}

QLayout* frmFeiruben::auswahlblock()
{
    Bezeichnung13 = bezeichnung("Bezeichnung13");
    alsUeberschrift(Bezeichnung13);
    Liste1 = liste("Liste1", {.MultiSelect = true});
    List12 = liste("List12");
    Label333 = bezeichnung("Label333");
    cmbJahr = kombi("cmbJahr");
    cmbMonat = kombi("cmbMonat");
    cmdAll = befehl("cmdAll", "A", hinweis("Alle Ziehungen auswählen"));
    cmdClear = befehl("cmdClear", "C", hinweis("Auswahl aufheben"));
    cmdAll->setToolTip("Alle Ziehungen auswählen");
    cmdClear->setToolTip("Auswahl aufheben");
    Liste1->setzeSichtbar(9, 34);
    List12->setzeSichtbar(6, 34);

    Liste1->beiAuswahl = [this] { uebernimmListe(); };
    bei(cmbJahr, [this] { waehleZiehungen(umgebung().archiv.jjjj, *cmbJahr); });
    bei(cmbMonat, [this] { waehleZiehungen(umgebung().archiv.sw, *cmbMonat); });
    bei(cmdAll, [this] { Liste1->waehleAlle(); });
    bei(cmdClear, [this] { hebeAuswahlAuf(); });

    // clang-format off
    return spalte({
        Bezeichnung13,
        dehnbar(Liste1, 3),
        formular({
            {bezeichnung("lblJahr", "Alle Ziehungen eines bestimmten Spieljahres auswählen:"), cmbJahr},
            {bezeichnung("lblMonat", "Alle Ziehungen einer bestimmten Spielwoche auswählen:"), cmbMonat},
        }),
        zeile({Label333, luecke(), cmdAll, cmdClear}),
        dehnbar(List12, 2),
    });
    // clang-format on
}

void frmFeiruben::baueFelder()
{
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const Feldnamen& namen = kNamen[i];
        Feld& neu = felder_[i];
        neu.zerlegen = befehl(namen.zerlegen, namen.beschriftung);
        neu.liste = liste(namen.liste);
        neu.details = befehl(namen.details, "Details");
        neu.anzahl = bezeichnung(QString("lblAnzahl(%1)").arg(groesse(i)));
        neu.herkunft = bezeichnung(QString("lblHerkunft(%1)").arg(groesse(i)));
        neu.liste->setzeSichtbar(9, 24);
        neu.liste->beiAuswahl = [this, i] { zeigeDetail(i); };
        bei(neu.zerlegen, [this, i] { zerlege(i); });
        bei(neu.details, [this, i] { zeigeDetails(i); });
    }
}

QLayout* frmFeiruben::feldblock(std::size_t nummer) const
{
    const Feld& hier = felder_[nummer];
    return eng(spalte({
        hier.zerlegen,
        dehnbar(hier.liste),
        zeile({hier.details, luecke(), hier.anzahl}),
        hier.herkunft,
    }));
}

void frmFeiruben::beimZeigen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    Bezeichnung13->setText(qt(spielartGross(archiv.Spielart)));
    fuelle(*cmbJahr, archiv.jjjj);
    fuelle(*cmbMonat, archiv.sw);
    fuelleZiehungen();
}

void frmFeiruben::fuelleZiehungen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    std::vector<std::string> zeilen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        zeilen.push_back(detailzeile(archiv, nr, kEineSpielart));
    Liste1->modell().fuelle(std::move(zeilen));
    uebernimmAuswahl();
}

/// Adds the draws that have the value in the column to the chosen ones.
void frmFeiruben::waehleZiehungen(const ZiehungsArchiv::Spalte& spalte, const QComboBox& wert)
{
    ListenModell& modell = Liste1->modell();
    for (std::size_t nr = modell.ListCount(); nr >= 1; --nr) {
        if (spalte[nr] != wert.currentData().toInt())
            continue;
        modell.SetSelected(nr - 1, true);
        Liste1->zeigeZeile(static_cast<int>(nr) - 1);
    }
    uebernimmAuswahl();
}

void frmFeiruben::hebeAuswahlAuf()
{
    for (const std::size_t zeile : Liste1->modell().ausgewaehlte())
        Liste1->modell().SetSelected(zeile, false);
    uebernimmListe();
}

/// The draws are no longer those of a year or a week.
void frmFeiruben::uebernimmListe()
{
    cmbJahr->setCurrentIndex(-1);
    cmbMonat->setCurrentIndex(-1);
    uebernimmAuswahl();
}

void frmFeiruben::uebernimmAuswahl()
{
    std::vector<std::size_t> nummern = Liste1->modell().ausgewaehlte();
    for (std::size_t& nummer : nummern)
        ++nummer;
    auswahl_ = waehleAus(umgebung().archiv, nummern);
    Label333->setText("Anzahl der Ausgewählte Ziehungen: " + QString::number(nummern.size()));
    List12->modell().aufAnfrage(nummern.size(), [auswahl = auswahl_](std::size_t zeile) {
        return detailzeile(*auswahl, zeile + 1, kEineSpielart);
    });
    zeigeHerkunft();
}

void frmFeiruben::zerlege(std::size_t nummer)
{
    if (auswahl_->AnzahlZiehungen == 0) {
        umgebung().boxen.info(kProgrammtitel, "Es wurden noch keine Ziehungen ausgewählt.");
        return;
    }
    Lauf lauf(*this);
    if (!lauf)
        return;
    Feld& hier = felder_[nummer];
    const Ziehungsauswahl gewaehlt = auswahl_; // whatever is chosen while it runs
    clsTimer uhr;
    uhr.ResetTimer();
    hier.liste->modell().Clear();
    zerlegungen_[nummer] = {};
    zerlegungen_[nummer] = ::zerlege(gewaehlt, groesse(nummer), lauf.fortschritt());
    zeigeMengen(nummer);
    hier.liste->zeigeZeile(0);
    hier.anzahl->setNum(hier.liste->zeilenzahl());
    zeigeHerkunft();
    uhr.StopTimer();
    Bezeichnung2->setText(qt(suchzeittext(uhr.Elapsed())));
}

/// The list of a size; `tipreihe`, if there is one, stands behind it.
void frmFeiruben::zeigeMengen(std::size_t nummer, const std::string& tipreihe)
{
    const std::vector<Wiederholung>& mengen = zerlegungen_[nummer].mengen;
    felder_[nummer].liste->modell().aufAnfrage(
        mengen.size() + (tipreihe.empty() ? 0 : 1), [&mengen, tipreihe, k = groesse(nummer)](std::size_t zeile) {
            return zeile < mengen.size() ? zerlegungszeile(mengen[zeile], k) : tipreihe;
        });
}

/// Says of each list what draws it was made of, and if these are no longer the chosen ones.
void frmFeiruben::zeigeHerkunft()
{
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const Ziehungsauswahl& ziehungen = zerlegungen_[i].ziehungen;
        if (!ziehungen)
            continue;
        QString text = "aus " + qt(Format(ziehungen->AnzahlZiehungen, "#,###,###")) + " Ziehungen";
        if (!gleicheZiehungen(*ziehungen, *auswahl_))
            text += " (frühere Auswahl)";
        felder_[i].herkunft->setText(text);
    }
}

void frmFeiruben::zeigeDetails(std::size_t nummer)
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    Liste3->modell().Clear();
    const auto details =
        std::make_shared<const Detailzeilen>(zerlegungsdetails(zerlegungen_[nummer], lauf.fortschritt()));
    Liste3->modell().aufAnfrage(details->anzahl(), [details](std::size_t zeile) { return details->zeile(zeile); });
    Liste3->zeigeZeile(0);
}

void frmFeiruben::zeigeDetail(std::size_t nummer)
{
    const Zerlegung& zerlegung = zerlegungen_[nummer];
    ListenModell& modell = felder_[nummer].liste->modell();
    const std::ptrdiff_t index = modell.ListIndex();
    if (laeuft() || index == ListenModell::kKeiner || static_cast<std::size_t>(index) >= zerlegung.mengen.size())
        return;
    for (const Feld& andere : felder_)
        if (&andere != &felder_[nummer])
            andere.liste->modell().SetListIndex(ListenModell::kKeiner);
    const ZiehungsArchiv& ziehungen = *zerlegung.ziehungen;
    const auto nummern = ziehungenMit(zerlegung, zerlegung.mengen[static_cast<std::size_t>(index)]);
    if (nummer == kFuenfer && !nummern.empty()) {
        zeigeMengen(nummer, tipreihe(ziehungen, nummern.front()));
        modell.SetListIndex(index);
    }
    std::vector<std::string> zeilen;
    for (const std::size_t nr : nummern)
        zeilen.push_back(ziehungszeile(ziehungen, nr));
    Liste3->modell().fuelle(std::move(zeilen));
    Liste3->zeigeZeile(0);
}
