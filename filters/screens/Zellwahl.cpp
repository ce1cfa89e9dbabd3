#include "filters/screens/Zellwahl.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Tippfeld7x7View.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr std::array kModi{"Zeile", "Spalte", "Beides", "Bereich"};
constexpr auto kBereichHinweis =
    "Gewünschten Zahlenbereich im Tippfeld auswählen. 6 Zahlen sind mindestens erforderlich.";

const QColor kGewaehlt{255, 255, 0};

using Kaestchen = std::array<QCheckBox*, Tippfeld7x7::kJeZeile>;

Linienwahl angekreuzte(const Kaestchen& kaestchen)
{
    Linienwahl linien;
    for (std::size_t i = 0; i < kaestchen.size(); ++i)
        linien[i] = kaestchen[i]->isChecked();
    return linien;
}

/// Boxes without a caption: what each stands for is seen from its place, and told to those who cannot see it.
Kaestchen kaestchen(const QString& name, const QString& linie, QWidget* eltern)
{
    Kaestchen alle{};
    for (std::size_t i = 0; i < alle.size(); ++i) {
        alle[i] = new QCheckBox(eltern);
        alle[i]->setObjectName(QString("%1(%2)").arg(name).arg(i));
        alle[i]->setToolTip(QString("%1 %2").arg(linie).arg(i + 1));
        alle[i]->setAccessibleName(alle[i]->toolTip());
        behaltePlatz(alle[i]);
    }
    return alle;
}

void zeige(const Kaestchen& kaestchen, bool sichtbar)
{
    for (QCheckBox* eines : kaestchen)
        eines->setVisible(sichtbar);
}

} // namespace

Zellwahl::Zellwahl(Bildschirm& bildschirm)
    : Rahmen("Zahlenauswahl", &bildschirm),
      cz(kaestchen("cz", "Zeile", this)),
      cs(kaestchen("cs", "Spalte", this)),
      feld_(new Tippfeld7x7View("Zelle", Tippfeld7x7View::Art::NurAnzeige, this)),
      cmdClear(new QPushButton("C", this))
{
    setObjectName("frmZellen");
    cmdClear->setObjectName("cmdClear");
    cmdClear->setToolTip("Zahlenauswahl löschen");
    baueOptionen();
    setzeInhalt(spalte({
        zeile({Option1[Zeile], Option1[Spalte], Option1[Beides], Option1[Bereich]}),
        zeile({luecke(), ordneGitter(), luecke()}),
        zeile({luecke(), cmdClear}),
    }));
    for (const Kaestchen* linien : {&cz, &cs})
        for (QCheckBox* eines : *linien)
            connect(eines, &QCheckBox::clicked, this, [this] { folgeKaestchen(); });
    feld_->beiKlick = [this](int) { beiWechsel(); };
    connect(cmdClear, &QPushButton::clicked, this, [this] {
        leere();
        beiLoeschen();
    });
    Option1[Zeile]->setChecked(true);
    waehleModus(Zeile);
}

const Tippfeld7x7& Zellwahl::zellen() const
{
    return feld_->modell();
}

void Zellwahl::baueOptionen()
{
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        Option1[i] = new QRadioButton(kModi[i], this);
        Option1[i]->setObjectName(QString("Option1(%1)").arg(i));
        connect(Option1[i], &QRadioButton::clicked, this, [this, modus = static_cast<Modus>(i)] {
            waehleModus(modus);
            beiWechsel();
        });
    }
    Option1[Bereich]->setToolTip(kBereichHinweis);
}

/// The boxes of the columns above the ticket and those of the rows to its left, each in line with its cells.
QLayout* Zellwahl::ordneGitter()
{
    constexpr int kLinien = Tippfeld7x7::kJeZeile;
    constexpr int kErste = 2; // row and column of the first cell, behind the boxes and the edge of the ticket
    constexpr int kRand = Tippfeld7x7View::kSteg / 2;
    auto* gitter = new QGridLayout;
    gitter->setSpacing(0);
    for (const int rand : {kErste - 1, kErste + kLinien}) {
        gitter->setColumnMinimumWidth(rand, kRand);
        gitter->setRowMinimumHeight(rand, kRand);
    }
    for (int i = 0; i < kLinien; ++i) // the layout is written in the order of the tab key
        gitter->addWidget(cz[static_cast<std::size_t>(i)], kErste + i, 0, Qt::AlignCenter);
    for (int i = 0; i < kLinien; ++i) {
        gitter->addWidget(cs[static_cast<std::size_t>(i)], 0, kErste + i, Qt::AlignCenter);
        gitter->setColumnMinimumWidth(kErste + i, Tippfeld7x7View::kZellseite + Tippfeld7x7View::kSteg);
        gitter->setRowMinimumHeight(kErste + i, Tippfeld7x7View::kZellseite + Tippfeld7x7View::kSteg);
    }
    gitter->addWidget(feld_, kErste - 1, kErste - 1, kLinien + 2, kLinien + 2);
    return gitter;
}

void Zellwahl::waehleModus(Modus modus)
{
    for (QRadioButton* option : Option1)
        faerbe(option, option == Option1[modus] ? kGewaehlt : palette().color(QPalette::Button), Farben::Text);
    zeige(cz, modus == Zeile || modus == Beides);
    zeige(cs, modus == Spalte || modus == Beides);
    feld_->setzeArt(modus == Bereich ? Tippfeld7x7View::Art::Auswahl : Tippfeld7x7View::Art::NurAnzeige);
    setTabOrder(cs.back(), feld_); // has its place among those that take the focus now
    leere();
}

void Zellwahl::folgeKaestchen()
{
    feld_->zeige(zellenDer(angekreuzte(cz), angekreuzte(cs)));
    beiWechsel();
}

void Zellwahl::leere()
{
    for (const Kaestchen* linien : {&cz, &cs})
        for (QCheckBox* eines : *linien)
            eines->setChecked(false);
    feld_->zeige({});
}
