#include "shell/elements/Hauptaktionen.h"

#include "shell/elements/Farben.h"

#include <QPushButton>

#include <algorithm>

namespace {

bool istZuSehen(const QPushButton* knopf)
{
    return knopf && knopf->isVisibleTo(knopf->window());
}

} // namespace

void Hauptaktionen::setze(const std::vector<QPushButton*>& knoepfe)
{
    knoepfe_ = knoepfe;
    for (QPushButton* knopf : knoepfe_)
        QObject::connect(knopf, &QPushButton::clicked, knopf, [this, knopf] { zuletzt_ = knopf; });
}

QPushButton* Hauptaktionen::knopf() const
{
    if (istZuSehen(zuletzt_))
        return zuletzt_;
    const auto erster = std::ranges::find_if(knoepfe_, istZuSehen);
    return erster == knoepfe_.end() ? nullptr : *erster;
}

void Hauptaktionen::zeigeGelaufen(const QPushButton* gelaufener) const
{
    for (QPushButton* knopf : knoepfe_)
        hebeHervor(knopf, knopf == gelaufener);
}
