#include "shell/app/Knopfwand.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Rahmen.h"
#include "shell/logic/Lottozahl.h"

#include <QPushButton>

namespace {
constexpr int kKnopfhoehe = 34;
}

Knopfwand::Knopfwand(const Spalten& spalten, const QString& gruppenname,
                     const std::function<void(const Menueknopf&)>& beiKlick, QWidget* eltern)
    : QWidget(eltern),
      beiKlick_(beiKlick)
{
    Bloecke nebeneinander;
    for (const std::vector<Menuegruppe>& gruppen : spalten) {
        Bloecke untereinander;
        for (const Menuegruppe& gruppe : gruppen)
            untereinander.push_back(baueGruppe(gruppe, gruppenname));
        untereinander.push_back(luecke());
        nebeneinander.push_back(dehnbar(spalte(untereinander)));
    }
    setLayout(zeile(nebeneinander));
}

QWidget* Knopfwand::baueGruppe(const Menuegruppe& gruppe, const QString& gruppenname)
{
    Bloecke bloecke;
    for (const Menueknopf& eintrag : gruppe.knoepfe) {
        auto* knopf = new QPushButton(eintrag.text, this);
        knopf->setObjectName(eintrag.name);
        knopf->setMinimumHeight(kKnopfhoehe);
        setzeHinweis(knopf, eintrag.hinweis);
        connect(knopf, &QPushButton::clicked, this, [this, eintrag] { beiKlick_(eintrag); });
        knoepfe_[eintrag.name] = knopf;
        ziele_[eintrag.name] = eintrag.ziel;
        bloecke.push_back(knopf);
    }
    auto* rahmen = new Rahmen(gruppe.titel, this);
    rahmen->setObjectName(gruppenname + gruppe.titel);
    rahmen->setzeInhalt(eng(spalte(bloecke)));
    return rahmen;
}

void Knopfwand::gibFrei(const std::function<bool(const QString& ziel)>& gibtEs)
{
    for (const auto& [name, knopf] : knoepfe_)
        knopf->setEnabled(ziele_.at(name).isEmpty() || gibtEs(ziele_.at(name)));
}
