#include "shell/elements/Zahlenblock.h"

#include "shell/elements/Farben.h"
#include "shell/elements/Stil.h"
#include "shell/logic/Lottozahl.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kJeReihe = 7;
constexpr QSize kKleinstesFeld{72, 24};
constexpr double kGroessteVergroesserung = 3;

/// Black or white, whichever is easier to read.
QColor schriftAuf(const QColor& grund)
{
    return qGray(grund.rgb()) < 100 ? QColor(Qt::white) : Farben::Text;
}

/// A label of the grid. Its text takes the room there is and asks for none, so that a large font does not keep the
/// window from being made smaller again.
QLabel* benannt(QLabel* feld, const QString& name, int zahl)
{
    feld->setObjectName(QString("%1(%2)").arg(name).arg(zahl));
    feld->setAlignment(Qt::AlignCenter);
    feld->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return feld;
}

} // namespace

Zahlenblock::Zahlenblock(const QString& zahlen, const QString& werte, QWidget* eltern) : QWidget(eltern)
{
    auto* gitter = new QGridLayout(this);
    gitter->setContentsMargins(0, 0, 0, 0);
    gitter->setHorizontalSpacing(Stil::kAbstand);
    gitter->setVerticalSpacing(Stil::kEng);
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        auto* wert = benannt(new QLabel(this), werte, zahl);
        wert->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        wert->setMinimumSize(kKleinstesFeld);
        wert->setBackgroundRole(QPalette::Base);
        auto* nummer = benannt(new QLabel(QString::number(zahl), this), zahlen, zahl);
        nummer->setMinimumHeight(fontMetrics().height());
        zahlen_[static_cast<std::size_t>(zahl - 1)] = nummer;
        werte_[static_cast<std::size_t>(zahl - 1)] = wert;
        const int reihe = 2 * ((zahl - 1) / kJeReihe);
        const int spalte = (zahl - 1) % kJeReihe;
        gitter->addWidget(nummer, reihe, spalte);
        gitter->addWidget(wert, reihe + 1, spalte);
        gitter->setRowStretch(reihe, nummer->minimumHeight());
        gitter->setRowStretch(reihe + 1, wert->minimumHeight());
    }
    loescheFarben();
}

void Zahlenblock::resizeEvent(QResizeEvent*)
{
    const QSize kleinster = minimumSizeHint();
    const double faktor = std::min({static_cast<double>(width()) / kleinster.width(),
                                    static_cast<double>(height()) / kleinster.height(), kGroessteVergroesserung});
    const double groesse = std::floor(font().pointSizeF() * std::max(faktor, 1.0));
    if (groesse == std::exchange(schriftgroesse_, groesse))
        return;
    QFont schrift = font();
    schrift.setPointSizeF(groesse);
    for (const auto& felder : {zahlen_, werte_})
        for (QLabel* feld : felder)
            feld->setFont(schrift);
}

void Zahlenblock::setzeWert(int zahl, const QString& wert)
{
    feld(zahl)->setText(wert);
}

QString Zahlenblock::wert(int zahl) const
{
    return feld(zahl)->text();
}

void Zahlenblock::loescheFarben()
{
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        faerbeWert(zahl, palette().color(QPalette::Base));
}

void Zahlenblock::faerbeWert(int zahl, const QColor& grund)
{
    faerbe(feld(zahl), grund, schriftAuf(grund));
}
