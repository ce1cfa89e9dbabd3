#include "filters/screens/Verhaeltnisfilter.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/screens/Spielartenwahl.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr auto kListentitel = "Gefundene Ziehungen";
constexpr std::size_t kVoreinstellung = 3; ///< three of the six numbers
constexpr int kTafelzeilen = 9;
constexpr int kTafelzeichen = 34;
constexpr int kFundzeichen = 46;

std::string zeileVon(const Ziehungsfund& fund)
{
    return fundzeile(fund, 2);
}

} // namespace

Verhaeltnisfilter::Verhaeltnisfilter(Umgebung& umgebung, const VerhaeltnisfilterTexte& texte, const Verhaeltnisart& art)
    : Bildschirm(umgebung, texte.name, texte.titel),
      anzeige_(*this, {.zeile = zeileVon, .zeichen = kFundzeichen}),
      texte_(texte),
      art_(art)
{
    frmArt = new Spielartenwahl(*this, {.titel = "Diese Spielarten in die Auswertung einbeziehen"});
    for (std::size_t i = 0; i < Option1.size(); ++i)
        Option1[i] = option(QString("Option1(%1)").arg(i), qt(art.beschriftungen[i]));
    Option1[kVoreinstellung]->setChecked(true);
    Liste3 = liste("Liste3");
    Liste3->setzeSichtbar(kTafelzeilen, kTafelzeichen);
    Bezeichnung1 = bezeichnung("Bezeichnung1", kListentitel);
    Bezeichnung3 = bezeichnung("Bezeichnung3", "Click auf ListenEintrag->Anzeige der Ziehung im Tippscheinfeld");
    Bezeichnung7 = bezeichnung("Bezeichnung7");
    Befehl1 = befehl("Befehl1", "Start");
    Befehl2 = befehl("Befehl2", ">>");
    if (texte.erklaerung) {
        auto* tafel = new Infotafel(this, texte.erklaerung,
                                    {.rahmen = "Rahmen1", .text = "Rahmen1Text", .ok = "Befehl4", .okText = "<<"});
        Befehl3 = befehl("Befehl3", "Info");
        bei(Befehl3, [tafel] { tafel->zeige(); });
    }
    behaltePlatz(Bezeichnung3);
    Bezeichnung3->hide();
    zeigeAnzahl(umgebung.archiv.AnzahlZiehungen);
    hauptaktionen({Befehl1});

    frmArt->beiWechsel = [this] { folgeSpielarten(); };
    for (QRadioButton* wahl : Option1)
        bei(wahl, [this] { suche(); });
    bei(Befehl1, [this] { suche(); });
    bei(Befehl2, [this] { schliesse(); });
}

void Verhaeltnisfilter::ordneAn(const Bloecke& knoepfe)
{
    Bloecke wahl(Option1.rbegin(), Option1.rend());
    Bloecke fuss(knoepfe);
    if (Befehl3)
        fuss.emplace_back(Befehl3);
    fuss.insert(fuss.begin(), luecke());
    fuss.emplace_back(Befehl2);

    // clang-format off
    setzeInhalt(zeile({
        dehnbar(spalte({
            frmArt,
            rahmen("Rahmen2", "Ziehungen suchen mit:", spalte({eng(spalte(wahl)), zeile({Befehl1, luecke()})})),
            Bezeichnung7,
            dehnbar(Liste3),
        })),
        dehnbar(spalte({Bezeichnung1, dehnbar(anzeige_.liste()), Bezeichnung3}), 2),
        spalte({anzeige_.rahmen(), luecke(), zeile(fuss)}),
    }));
    // clang-format on
}

int Verhaeltnisfilter::gesucht() const
{
    const auto gewaehlt = std::ranges::find_if(Option1, &QRadioButton::isChecked);
    return static_cast<int>(Option1.end() - gewaehlt) - 1;
}

void Verhaeltnisfilter::suche()
{
    if (frmArt->maske() == 0) {
        zeigeAnzahl(0);
        leere();
        umgebung().boxen.info(kProgrammtitel, "Es ist noch keine Spielart ausgewählt!");
        return;
    }
    const Lauf lauf(*this);
    if (!lauf)
        return;
    Verhaeltnissuche suche = FiltereZiehungen(umgebung().archiv, art_, gesucht());
    Liste3->modell().fuelle(uebersicht(suche, art_));
    Bezeichnung1->setText(qt(ergebniszeile(suche, art_)));
    Bezeichnung3->show();
    anzeige_.zeige(std::move(suche.funde));
}

void Verhaeltnisfilter::folgeSpielarten()
{
    if (frmArt->maske() == 0)
        leere();
    zeigeAnzahl(frmArt->maske() == 0 ? 0 : umgebung().archiv.AnzahlZiehungen);
}

void Verhaeltnisfilter::leere()
{
    Liste3->modell().Clear();
    anzeige_.leere();
    Bezeichnung1->setText(kListentitel);
    Bezeichnung3->hide();
}

void Verhaeltnisfilter::zeigeAnzahl(std::int32_t ziehungen)
{
    Bezeichnung7->setText(texte_.anzahl + QString::number(ziehungen));
}
