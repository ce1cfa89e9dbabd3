#include "testhilfen/Menueersatz.h"

#include <QRadioButton>

#include <algorithm>

Menueersatz::Menueersatz(Umgebung& umgebung, std::function<void(std::int16_t)> lade)
    : Bildschirm(umgebung, "frmLSTART", "Lotto-Auswahlmenü"),
      lade_(std::move(lade))
{
    Bloecke reihe;
    for (std::size_t i = 0; i < optionen_.size(); ++i) {
        const auto spielart = static_cast<std::int16_t>(i + 1);
        optionen_[i] = option(QString("Option%1").arg(spielart), QString("Spielart %1").arg(spielart));
        bei(optionen_[i], [this, spielart] { lade_(spielart); });
        reihe.insert(reihe.end(), optionen_[i]);
    }
    setzeInhalt(spalte(reihe));
    umgebung.menue = this;
    waehleSpielart(1);
}

Menueersatz::~Menueersatz()
{
    umgebung().menue = nullptr;
}

void Menueersatz::waehleSpielart(std::int16_t spielart)
{
    optionen_.at(static_cast<std::size_t>(spielart) - 1)->click();
}

std::int16_t Menueersatz::gewaehlteSpielart() const
{
    const auto* gewaehlte = std::ranges::find_if(optionen_, &QRadioButton::isChecked);
    return gewaehlte == optionen_.end() ? 0 : static_cast<std::int16_t>(gewaehlte - optionen_.begin() + 1);
}
