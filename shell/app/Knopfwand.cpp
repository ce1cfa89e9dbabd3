#include "shell/app/Knopfwand.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Rahmen.h"

#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kKnopfhoehe = 34;

/// The least room beside a caption, frame included: on a small desktop the buttons give way before anything else.
constexpr int kSchmalerRand = 5;

void gleicheBreite(const std::vector<QWidget*>& gruppen)
{
    int breite = 0;
    for (const QWidget* gruppe : gruppen)
        breite = std::max(breite, gruppe->minimumSizeHint().width());
    for (QWidget* gruppe : gruppen)
        gruppe->setMinimumWidth(breite);
}

} // namespace

Knopfwand::Knopfwand(const Spalten& spalten, const QString& gruppenname,
                     const std::function<void(const Menueknopf&)>& beiKlick, QWidget* eltern)
    : QWidget(eltern),
      beiKlick_(beiKlick)
{
    std::vector<QWidget*> alle;
    Bloecke nebeneinander;
    for (const std::vector<Menuegruppe>& gruppen : spalten) {
        Bloecke untereinander;
        for (const Menuegruppe& gruppe : gruppen) {
            alle.push_back(baueGruppe(gruppe, gruppenname));
            untereinander.push_back(alle.back());
        }
        untereinander.push_back(luecke());
        nebeneinander.push_back(dehnbar(spalte(untereinander)));
    }
    setLayout(zeile(nebeneinander));
    gleicheBreite(alle);
}

QWidget* Knopfwand::baueGruppe(const Menuegruppe& gruppe, const QString& gruppenname)
{
    Bloecke bloecke;
    for (const Menueknopf& eintrag : gruppe.knoepfe)
        bloecke.push_back(baueKnopf(eintrag));
    auto* rahmen = new Rahmen(gruppe.titel, this);
    rahmen->setObjectName(gruppenname + gruppe.titel);
    rahmen->setzeInhalt(eng(spalte(bloecke)));
    return rahmen;
}

QPushButton* Knopfwand::baueKnopf(const Menueknopf& eintrag)
{
    auto* knopf = new QPushButton(eintrag.text, this);
    const int schrift = knopf->fontMetrics().size(Qt::TextShowMnemonic, knopf->text()).width();
    knopf->setObjectName(eintrag.name);
    knopf->setMinimumSize(schrift + 2 * kSchmalerRand, kKnopfhoehe);
    connect(knopf, &QPushButton::clicked, this, [this, knopf, eintrag] {
        knopf->setFocus(); // its underlined letter leaves the focus where it was
        beiKlick_(eintrag);
    });
    knoepfe_[eintrag.name] = {knopf, eintrag};
    return knopf;
}

void Knopfwand::stelle(const std::function<Knopfstand(const Menueknopf&)>& standVon)
{
    for (const auto& [name, knopf] : knoepfe_) {
        const auto [hinweis, sperrgrund] = standVon(knopf.eintrag);
        const QString trenner = hinweis.isEmpty() || sperrgrund.isEmpty() ? "" : "  –  ";
        knopf.feld->setEnabled(sperrgrund.isEmpty());
        setzeHinweis(knopf.feld, hinweis + trenner + sperrgrund);
    }
}
