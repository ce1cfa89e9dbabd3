#include "filters/screens/Fundanzeige.h"

#include "shell/elements/AutomatischeAnzeige.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Rahmen.h"
#include "shell/elements/Tippfeld7x7View.h"

#include <QPushButton>

namespace {

template <class Feld> Feld* benannt(Feld* feld, const char* name)
{
    feld->setObjectName(name);
    return feld;
}

} // namespace

Fundanzeige::Fundanzeige(Bildschirm& bildschirm, const Fundliste& fundliste)
    : macheZeile_(fundliste.zeile),
      List1(benannt(new Liste(&bildschirm), "List1")),
      cmdAuto(benannt(new QPushButton("E", &bildschirm), "cmdAuto")),
      Bezeichnung6(new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::NurAnzeige, &bildschirm))
{
    List1->setzeSichtbar(fundliste.zeilen, fundliste.zeichen);
    cmdAuto->setToolTip(fundliste.hinweis);
    auto* rahmen = benannt(new Rahmen("Anzeige der Ziehung", &bildschirm), "frame3");
    rahmen->setzeInhalt(spalte({Bezeichnung6, zeile({luecke(), cmdAuto})}));
    frame3 = rahmen;

    automatik_ = new AutomatischeAnzeige(cmdAuto, {.ein = "E", .aus = "A"}, &bildschirm);
    automatik_->fuehre(List1, AutomatischeAnzeige::NachLoslassen::NurEingeschaltet);
    automatik_->beiZeile = [this](const Liste& liste) {
        if (liste.modell().ListIndex() >= 0)
            zeigeZeile(static_cast<std::size_t>(liste.modell().ListIndex()));
    };
}

void Fundanzeige::zeige(std::vector<Ziehungsfund> funde)
{
    funde_ = std::move(funde);
    List1->modell().aufAnfrage(funde_.size(), [this](std::size_t zeile) { return macheZeile_(funde_[zeile]); });
    if (funde_.empty())
        return;
    List1->modell().SetListIndex(0);
    zeigeZeile(0);
}

void Fundanzeige::leere()
{
    List1->modell().Clear();
    funde_.clear();
}

void Fundanzeige::zeigeZahlen(std::span<const std::int32_t> zahlen)
{
    automatik_->schalteAus();
    markiere(zahlen);
}

void Fundanzeige::zeigeZeile(std::size_t zeile)
{
    markiere(funde_[zeile].zahlen);
}

void Fundanzeige::markiere(std::span<const std::int32_t> zahlen)
{
    Tippfeld7x7 feld;
    feld.zeige(zahlen);
    Bezeichnung6->zeige(feld);
}
