#include "shell/elements/Bloecke.h"

#include "shell/elements/Stil.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QRadioButton>

namespace {

/// Check boxes and options are as wide as their text, so that a click beside it does nothing.
Qt::Alignment ausrichtung(const QWidget* feld)
{
    const bool schalter = qobject_cast<const QCheckBox*>(feld) || qobject_cast<const QRadioButton*>(feld);
    return schalter ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
}

void haenge(QBoxLayout* layout, const Block& block)
{
    if (auto* const* feld = std::get_if<QWidget*>(&block.teil))
        layout->addWidget(*feld, block.dehnung, ausrichtung(*feld));
    else if (auto* const* innen = std::get_if<QLayout*>(&block.teil))
        layout->addLayout(*innen, block.dehnung);
    else
        layout->addStretch(block.dehnung);
}

void haenge(QGridLayout* gitter, const Block& block, int reihe, int spalte)
{
    if (auto* const* feld = std::get_if<QWidget*>(&block.teil))
        gitter->addWidget(*feld, reihe, spalte, ausrichtung(*feld));
    else if (auto* const* innen = std::get_if<QLayout*>(&block.teil))
        gitter->addLayout(*innen, reihe, spalte);
}

QLayout* stapel(QBoxLayout* layout, const Bloecke& bloecke)
{
    layout->setSpacing(Stil::kAbstand);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const Block& block : bloecke)
        haenge(layout, block);
    return layout;
}

} // namespace

QLayout* spalte(const Bloecke& bloecke)
{
    return stapel(new QVBoxLayout, bloecke);
}

QLayout* zeile(const Bloecke& bloecke)
{
    return stapel(new QHBoxLayout, bloecke);
}

QLayout* raster(int spalten, const Bloecke& bloecke)
{
    auto* gitter = new QGridLayout;
    gitter->setSpacing(Stil::kAbstand);
    gitter->setContentsMargins(0, 0, 0, 0);
    int stelle = 0;
    for (const Block& block : bloecke) {
        haenge(gitter, block, stelle / spalten, stelle % spalten);
        ++stelle;
    }
    return gitter;
}

QLayout* formular(const std::vector<std::pair<Block, Block>>& zeilen)
{
    Bloecke bloecke;
    for (const auto& [beschriftung, feld] : zeilen) {
        bloecke.push_back(beschriftung);
        bloecke.push_back(feld);
    }
    return raster(2, bloecke);
}

Block dehnbar(Block block, int faktor)
{
    block.dehnung = faktor;
    return block;
}

QLayout* eng(QLayout* layout)
{
    layout->setSpacing(Stil::kEng);
    return layout;
}

void behaltePlatz(QWidget* feld)
{
    QSizePolicy platz = feld->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    feld->setSizePolicy(platz);
}
