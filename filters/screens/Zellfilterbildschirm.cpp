#include "filters/screens/Zellfilterbildschirm.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/screens/Spielartenwahl.h"
#include "filters/logic/Zellfilter.h"
#include "filters/screens/Zellwahl.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kFundzeichen = 47;
constexpr int kZusammenZeichen = 51; ///< with the name of the second Wednesday game
constexpr auto kAnzahl = " Anzahl der Ziehungen: ";

std::string zeileVon(const Ziehungsfund& fund)
{
    return fundzeile(fund, 5);
}

} // namespace

Zellfilterbildschirm::Zellfilterbildschirm(Umgebung& umgebung, const QString& titel, const Zellfilterart& art)
    : Bildschirm(umgebung, art.name, titel),
      art_(art),
      anzeige_(*this, {.zeile = zeileVon, .zeichen = art.zusammen ? kZusammenZeichen : kFundzeichen}),
      wahl_(new Zellwahl(*this))
{
    if (art.zusammen) {
        frmArt = new Spielartenwahl(*this, {.titel = "Diese Spielarten in die Auswertung einbeziehen"});
        frmArt->beiWechsel = [this] { hatSpielart() ? sucheNeu() : leere(QString(kAnzahl) + "0"); };
    }
    Bezeichnung7 = bezeichnung("Bezeichnung7", kAnzahl);
    Rahmen1Text = bezeichnung("Rahmen1Text", erklaerung());
    Rahmen1Text->setWordWrap(true);
    Befehl2 = befehl("Befehl2", "&<<");
    Befehl3 = befehl("Befehl3", "&Info");
    auto* tafel = new Infotafel(this, Rahmen1Text, {.rahmen = "Rahmen1", .ok = "Befehl4", .okText = "<<"});
    ordneAn();

    wahl_->beiWechsel = [this] { filtere(); };
    wahl_->beiLoeschen = [this] { leere(kAnzahl); };
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this, tafel] {
        Rahmen1Text->setText(erklaerung());
        tafel->zeige();
    });
}

void Zellfilterbildschirm::ordneAn()
{
    Bloecke eingabe{wahl_, luecke()};
    if (frmArt)
        eingabe.insert(eingabe.begin(), frmArt);

    // clang-format off
    setzeInhalt(zeile({
        spalte(eingabe),
        dehnbar(spalte({Bezeichnung7, dehnbar(anzeige_.liste())})),
        spalte({anzeige_.rahmen(), luecke(), zeile({luecke(), Befehl3, Befehl2})}),
    }));
    // clang-format on
}

void Zellfilterbildschirm::filtere()
{
    if (hatSpielart()) {
        sucheNeu();
        return;
    }
    leere(QString(kAnzahl) + "0");
    if (wahl_->zellen().anzahl() > 0)
        umgebung().boxen.info(kProgrammtitel, "Es ist noch keine Spielart ausgewählt!");
}

void Zellfilterbildschirm::sucheNeu()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    Zellsuche suche = FiltereNachZellen(umgebung().archiv, wahl_->zellen(), art_.datum);
    Bezeichnung7->setText(qt(ergebniszeile(suche)));
    anzeige_.zeige(std::move(suche.funde));
}

void Zellfilterbildschirm::leere(const QString& angabe)
{
    anzeige_.leere();
    Bezeichnung7->setText(angabe);
}

QString Zellfilterbildschirm::erklaerung() const
{
    return "6 Zahlen sind dabei mindestens auszuwählen. Da aber von den 13.983.816 möglichen Kombinationen erst " +
           QString::number(umgebung().archiv.AnzahlZiehungen) + " " + art_.spielarten +
           "gezogen wurden, müssen meistens mehr als 6 Zahlen ausgewählt werden, um passende Ziehungen für den "
           "gewählten Bereich zu finden. ";
}

bool Zellfilterbildschirm::hatSpielart() const
{
    return !frmArt || frmArt->maske() != 0;
}
