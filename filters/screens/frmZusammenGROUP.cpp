#include "filters/screens/frmZusammenGROUP.h"

#include "archive/logic/Ziehungsdatei.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr std::array kSpiele{"Samstag", "Mittwoch", "Mittwoch (B)"};
constexpr std::array kMuster{"2 Zwillinge", "3 Zwillinge", "1 Zwill+1 Drill.", "2 Drillinge", "1 Zwill. +1 Vierl."};
static_assert(kMuster.size() == kNachbarmuster.size());

} // namespace

frmZusammenGROUP::frmZusammenGROUP(Umgebung& umgebung)
    : Nachbarbildschirm(umgebung, {.name = "frmZusammenGROUP",
                                   .knoepfe = {"&Zwillinge", "&Drillinge", "&Vierlinge", "&Fünflinge", "&Sechslinge"},
                                   .meldetAb = 4,
                                   .zusammen = true}),
      lader_(umgebung)
{
    Bloecke kaesten;
    for (std::size_t i = 0; i < chkSart.size(); ++i) {
        chkSart[i] = kontroll(QString("chkSart(%1)").arg(i + 1), kSpiele[i]);
        chkSart[i]->setChecked(true);
        kaesten.emplace_back(chkSart[i]);
        connect(chkSart[i], &QCheckBox::clicked, this, [this, kasten = chkSart[i]] { wechsle(*kasten); });
    }
    Bloecke muster;
    for (std::size_t i = 0; i < cmdMulti.size(); ++i) {
        cmdMulti[i] = suchknopf(QString("cmdMulti(%1)").arg(i), kMuster[i], kNachbarmuster[i]);
        muster.emplace_back(cmdMulti[i]);
    }
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    lblMulti = bezeichnung("lblMulti");
    kaesten.insert(kaesten.end(), {luecke(), Bezeichnung2});
    ordneAn(zeile(kaesten), {rahmen("Rahmen3", "Mehrere Gruppen suchen", spalte(muster))}, {lblMulti});
    zeigeAnzahl(zaehle());
}

void frmZusammenGROUP::SucheMuster(int code)
{
    const auto muster = std::ranges::find(kNachbarmuster, code, &Nachbargruppe::code);
    if (muster != kNachbarmuster.end())
        suche(*muster);
}

bool frmZusammenGROUP::darfSuchen()
{
    if (!spielarten().empty())
        return true;
    umgebung().boxen.info(kProgrammtitel, "Bitte mindestens eine Spielart auswählen.");
    return false;
}

std::vector<std::int16_t> frmZusammenGROUP::spielarten() const
{
    std::vector<std::int16_t> gewaehlte;
    for (std::size_t i = 0; i < chkSart.size(); ++i)
        if (chkSart[i]->isChecked())
            gewaehlte.push_back(static_cast<std::int16_t>(i + 1));
    return gewaehlte;
}

void frmZusammenGROUP::wechsle(QCheckBox& kasten)
{
    if (laeuft()) { // the list that it fills is one of the boxes as they were
        kasten.toggle();
        return;
    }
    leere();
    lblMulti->clear();
    zeigeAnzahl(zaehle());
}

void frmZusammenGROUP::endetSuche()
{
    const Nachbarsuche& suche = *ergebnis();
    std::int32_t ziehungen = 0;
    for (const Nachbardatei& datei : suche.dateien)
        ziehungen += datei.AnzahlZiehungen;
    zeigeAnzahl(ziehungen);
    lblMulti->setText(suche.gruppe.istMuster() && !suche.treffer.empty()
                          ? QString::number(suche.treffer.size()) + " in den Ziehungen " + qt(suche.gruppe.name)
                          : QString());
}

void frmZusammenGROUP::zeigeAnzahl(std::int32_t ziehungen)
{
    Bezeichnung2->setText(" Anzahl der ausgewerteten Ziehungen: " + QString::number(ziehungen));
}

/// How many draws the files of the chosen games hold.
std::int32_t frmZusammenGROUP::zaehle() const
{
    std::int32_t ziehungen = 0;
    for (const std::int16_t spielart : spielarten())
        ziehungen += zaehleZiehungen(findeDatei(umgebung().archiv.ProgrammVerzeichnis, ziehungsdateiName(spielart)));
    return ziehungen;
}
