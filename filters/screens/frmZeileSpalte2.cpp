#include "filters/screens/frmZeileSpalte2.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr int kFundzeichen = 47;
constexpr int kFundzeilen = 29;            ///< as many as the overview has
constexpr std::size_t kVoreinstellung = 8; ///< the most frequent way

std::string zeileVon(const Ziehungsfund& fund)
{
    return fundzeile(fund, 5);
}

} // namespace

frmZeileSpalte2::frmZeileSpalte2(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZeileSpalte2",
                 "Zeilen / Spalten Filter 2 - " + qt(spielartName(umgebung.archiv.Spielart))),
      anzeige_(*this, {.zeile = zeileVon, .zeichen = kFundzeichen, .zeilen = kFundzeilen}),
      Bezeichnung7(bezeichnung("Bezeichnung7", " Anzahl der Ziehungen: ")),
      uebersicht_(*this, Bezeichnung7, anzeige_, [this] { return uebersicht(zaehleMuster(this->umgebung().archiv)); })
{
    baueOptionen();
    Command22 = befehl("Command22", "Berechnung");
    Befehl2 = befehl("Befehl2", "&<<");
    hauptaktionen({Command22});

    // clang-format off
    setzeInhalt(zeile({
        spalte({
            rahmen("Rahmen1", "Verteilung auf", zeile({optAuswahl[0], optAuswahl[1], luecke()})),
            rahmen("Rahmen2", "SUCHE ZIEHUNGEN MIT :", spalte({
                spalte(Bloecke(optZeile.begin(), optZeile.end())),
                zeile({Command22, luecke(), uebersicht_.knopf()}),
            })),
            luecke(),
        }),
        dehnbar(spalte({Bezeichnung7, dehnbar(anzeige_.liste()), dehnbar(uebersicht_.liste())})),
        spalte({anzeige_.rahmen(), luecke(), zeile({luecke(), Befehl2})}),
    }));
    // clang-format on

    optAuswahl[0]->setChecked(true); // not before each group stands in its frame: until then they are one
    optZeile[kVoreinstellung]->setChecked(true);
    for (QRadioButton* art : optAuswahl)
        bei(art, [this] { waehleArt(); });
    for (QRadioButton* muster : optZeile)
        bei(muster, [this] { suche(); });
    bei(Command22, [this] { suche(); });
    bei(Befehl2, [this] { schliesse(); });
}

void frmZeileSpalte2::baueOptionen()
{
    optAuswahl = {option("optAuswahl(0)", "Zeile"), option("optAuswahl(1)", "Spalte")};
    for (std::size_t i = 0; i < optZeile.size(); ++i)
        optZeile[i] = option(QString("optZeile(%1)").arg(i), qt(beschriftung(i, Linienart::Zeile)));
}

void frmZeileSpalte2::waehleArt()
{
    for (std::size_t i = 0; i < optZeile.size(); ++i)
        optZeile[i]->setText(qt(beschriftung(i, Art())));
    suche();
}

void frmZeileSpalte2::suche()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    const auto gewaehlt = std::ranges::find_if(optZeile, &QRadioButton::isChecked);
    const auto muster = static_cast<std::size_t>(gewaehlt - optZeile.begin());
    Mustersuche suche = BerechneMuster(umgebung().archiv, Art(), muster);
    Bezeichnung7->setText(qt(ergebniszeile(suche)));
    anzeige_.zeige(std::move(suche.funde));
    uebersicht_.zeige(false);
}

Linienart frmZeileSpalte2::Art() const
{
    return optAuswahl[0]->isChecked() ? Linienart::Zeile : Linienart::Spalte;
}
