#include "filters/screens/frmEndziffer.h"

#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Textanzeige.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int kZeichen = 86;
constexpr int kAlleZeilen = 12;
constexpr int kFundzeilen = 12;
constexpr int kBeispielzeilen = 3;
constexpr int kBeispielzeichen = 86;

constexpr std::string_view kBeispiel =
    "Ziffern 0 bis 9: So viele der sechs Gewinnzahlen enden auf diese Ziffer.\n"
    "E, Z, D, V, F: So viele Endziffern kommen ein-, zwei-, drei-, vier- und fünfmal vor.\n"
    "Beispiel: |2|-|-|1|-| heißt, dass zwei Endziffern einmal vorkommen und eine viermal.";

QString titelVon(std::int16_t spielart)
{
    if (istSamstag(spielart))
        return "Endziffer Filter - Samstagslotto";
    return spielart == Mittwochslotto ? "Zeilen / Endziffer Filter  - Mittwochslotto "
                                      : "Zeilen / Endziffer Filter - Mittwochslotto (B)";
}

} // namespace

frmEndziffer::frmEndziffer(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmEndziffer", titelVon(umgebung.archiv.Spielart)),
      ziehungen_(alleZiehungen(umgebung.archiv, datumVon)),
      anzeige_(*this, {.zeile = endzifferzeile,
                       .zeichen = kZeichen,
                       .zeilen = kFundzeilen,
                       .hinweis = "Automatische Anzeige im Tippfeld ein/aus"}),
      Bezeichnung1(bezeichnung("Bezeichnung1", "Gefundene Ziehungen")),
      uebersicht_(*this, Bezeichnung1, anzeige_, [this] { return uebersicht(zaehleEndziffern(ziehungen_)); })
{
    baueOptionen();
    baueZiehungen();
    auto* txtBeispiel = new Textanzeige("txtBeispiel", kBeispielzeilen, kBeispielzeichen, this);
    txtBeispiel->zeige(kBeispiel);
    cmdExit = befehl("cmdExit", "&<<");

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            rahmen("Rahmen1", "Ziehungen suchen mit:", spalte({
                eng(spalte(Bloecke(optZeile.begin(), optZeile.end()))),
                luecke(),
                zeile({luecke(), uebersicht_.knopf()}),
            })),
            dehnbar(spalte({lblAll, dehnbar(lstAll)})),
        })),
        dehnbar(zeile({
            spalte({anzeige_.rahmen(), luecke()}),
            dehnbar(spalte({Bezeichnung1, dehnbar(anzeige_.liste()), dehnbar(uebersicht_.liste())})),
        })),
        zeile({dehnbar(txtBeispiel), spalte({luecke(), cmdExit})}),
    }));
    // clang-format on

    bei(cmdExit, [this] { schliesse(); });
}

void frmEndziffer::baueOptionen()
{
    for (std::size_t i = 0; i < optZeile.size(); ++i) {
        optZeile[i] = option(QString("optZeile(%1)").arg(i), qt(beschriftung(i)));
        bei(optZeile[i], [this, i] { suche(i); });
    }
}

void frmEndziffer::baueZiehungen()
{
    lblAll = listenkopf("lblAll", qt(kEndzifferkopf));
    lstAll = liste("lstAll");
    lstAll->setzeSichtbar(kAlleZeilen, kZeichen);
    lstAll->modell().aufAnfrage(ziehungen_.size(), [this](std::size_t i) { return endzifferzeile(ziehungen_[i]); });
    lstAll->beiAuswahl = [this] {
        if (const auto zeile = lstAll->modell().ListIndex(); zeile >= 0)
            anzeige_.zeigeZahlen(ziehungen_[static_cast<std::size_t>(zeile)].zahlen);
    };
}

void frmEndziffer::suche(std::size_t nummer)
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    Endziffernsuche suche = sucheEndziffern(ziehungen_, nummer);
    Bezeichnung1->setText(qt(ergebniszeile(suche)));
    anzeige_.zeige(std::move(suche.funde));
    uebersicht_.zeige(false);
}
