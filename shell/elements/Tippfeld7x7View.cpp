#include "shell/elements/Tippfeld7x7View.h"

#include "shell/elements/Farben.h"
#include "shell/elements/Fokusrahmen.h"
#include "shell/elements/Zelle.h"
#include "shell/logic/Lottozahl.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

namespace {
constexpr int kRahmen = Tippfeld7x7View::kSteg - 1; ///< of the focus around a cell, clear of the next one
} // namespace

Tippfeld7x7View::Tippfeld7x7View(const QString& name, Art art, QWidget* eltern) : QWidget(eltern)
{
    auto* gitter = new QGridLayout(this);
    gitter->setSpacing(kSteg);
    gitter->setContentsMargins(kSteg, kSteg, kSteg, kSteg);
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        auto* zelle = new Zelle(QString("%1(%2)").arg(name).arg(zahl), QString::number(zahl), this);
        zelle->setFixedSize(kZellseite, kZellseite);
        zelle->beiKlick = [this, zahl] { klick(zahl); };
        zellen_[static_cast<std::size_t>(zahl)] = zelle;
        gitter->addWidget(zelle, Tippfeld7x7::zeile(zahl), Tippfeld7x7::spalte(zahl));
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setzeArt(art);
}

void Tippfeld7x7View::setzeArt(Art art)
{
    art_ = art;
    setFocusPolicy(art == Art::NurAnzeige ? Qt::NoFocus : Qt::StrongFocus);
    update();
}

void Tippfeld7x7View::zeige(const Tippfeld7x7& modell)
{
    modell_ = modell;
    frischeAuf();
}

void Tippfeld7x7View::klick(int zahl)
{
    if (art_ == Art::NurAnzeige)
        return;
    fokuszahl_ = zahl;
    nimm(zahl);
    frischeAuf();
    if (beiKlick)
        beiKlick(zahl);
}

void Tippfeld7x7View::nimm(int zahl)
{
    if (art_ == Art::FreieEingabe)
        modell_.klickFreieEingabe(zahl);
    else if (art_ == Art::EineZahl)
        modell_.klickEineZahl(zahl);
    else
        modell_.klickAuswahl(zahl);
}

void Tippfeld7x7View::frischeAuf()
{
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        if (modell_.markiert(zahl) != gezeigt_.markiert(zahl))
            markiere(zellen_[static_cast<std::size_t>(zahl)], modell_.markiert(zahl));
    gezeigt_ = modell_;
    update();
}

void Tippfeld7x7View::keyPressEvent(QKeyEvent* ereignis)
{
    int ziel = fokuszahl_;
    switch (ereignis->key()) {
    case Qt::Key_Left:
        ziel -= 1;
        break;
    case Qt::Key_Right:
        ziel += 1;
        break;
    case Qt::Key_Up:
        ziel -= 7;
        break;
    case Qt::Key_Down:
        ziel += 7;
        break;
    case Qt::Key_Space:
        klick(fokuszahl_);
        return;
    default:
        QWidget::keyPressEvent(ereignis);
        return;
    }
    if (gibtEs(ziel))
        fokuszahl_ = ziel;
    update();
}

void Tippfeld7x7View::paintEvent(QPaintEvent*)
{
    if (!hasFocus() || art_ == Art::NurAnzeige)
        return;
    QPainter maler(this);
    const QRect zelle = zellen_[static_cast<std::size_t>(fokuszahl_)]->geometry();
    maleFokus(maler, zelle.adjusted(-kRahmen, -kRahmen, kRahmen, kRahmen), palette().color(QPalette::Highlight));
}
