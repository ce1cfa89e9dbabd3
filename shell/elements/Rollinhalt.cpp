#include "shell/elements/Rollinhalt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int kSchritt = 20; ///< pixels that a line is scrolled by

/// Sets a bar for a content of a length of which so much is in sight.
void stelle(QScrollBar* balken, int inhalt, int sicht)
{
    const QSignalBlocker still(balken);
    balken->setRange(0, std::max(0, inhalt - sicht));
    balken->setPageStep(sicht);
    balken->setVisible(inhalt > sicht);
}

/// How far to scroll so that `von` to `bis` is in sight; of a piece that is too long, its beginning.
int weg(int von, int bis, int sichtVon, int sichtBis)
{
    return von < sichtVon ? von - sichtVon : std::clamp(bis - sichtBis, 0, von - sichtVon);
}

/// Moves all widgets of a layout item.
void verschiebe(QLayoutItem* teil, QPoint um)
{
    if (QWidget* feld = teil->widget())
        feld->move(feld->pos() + um);
    if (const QLayout* innen = teil->layout())
        for (int i = 0; i < innen->count(); ++i)
            verschiebe(innen->itemAt(i), um);
}

bool blaettert(const QEvent* ereignis)
{
    if (ereignis->type() != QEvent::KeyPress)
        return false;
    const int taste = static_cast<const QKeyEvent*>(ereignis)->key();
    return taste == Qt::Key_PageUp || taste == Qt::Key_PageDown;
}

} // namespace

Rollinhalt::Rollinhalt(QWidget* eltern, QLayout* inhalt, QWidget* fuss, std::function<QSize()> hoechstens)
    : QLayout(eltern),
      hoechstens_(std::move(hoechstens)),
      quer_(new QScrollBar(Qt::Horizontal, eltern)),
      hoch_(new QScrollBar(Qt::Vertical, eltern))
{
    setContentsMargins(0, 0, 0, 0);
    addChildLayout(inhalt);
    addItem(inhalt);
    addWidget(fuss);
    fuss->raise();
    for (QScrollBar* balken : {quer_, hoch_}) {
        balken->hide();
        balken->raise();
        balken->setSingleStep(kSchritt);
        connect(balken, &QScrollBar::valueChanged, this, [this] { setGeometry(geometry()); });
    }
    // A window that opens shows its top left, wherever its focus is.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* vorher, const QWidget* feld) {
        if (vorher && vorher->window() == parentWidget()->window())
            rolleZu(feld);
    });
    eltern->installEventFilter(this);
}

Rollinhalt::~Rollinhalt()
{
    while (const QLayoutItem* teil = takeAt(0))
        delete teil;
}

QLayoutItem* Rollinhalt::itemAt(int stelle) const
{
    return stelle >= 0 && stelle < count() ? teile_[static_cast<std::size_t>(stelle)] : nullptr;
}

QLayoutItem* Rollinhalt::takeAt(int stelle)
{
    QLayoutItem* teil = itemAt(stelle);
    if (teil)
        teile_.erase(teile_.begin() + stelle);
    return teil;
}

int Rollinhalt::fusshoehe(int breite) const
{
    const QLayoutItem* fuss = itemAt(1);
    if (!fuss)
        return 0;
    return fuss->hasHeightForWidth() ? fuss->heightForWidth(breite) : fuss->sizeHint().height();
}

/// What the content needs at least if it is to stand in this width, or in its own if that is larger.
QSize Rollinhalt::bedarf(int breite) const
{
    QSize mindestens = itemAt(0)->minimumSize();
    if (itemAt(0)->hasHeightForWidth())
        mindestens.setHeight(itemAt(0)->minimumHeightForWidth(std::max(breite, mindestens.width())));
    return mindestens;
}

QSize Rollinhalt::groesseIn(const QSize& platz) const
{
    const QSize mindestens = bedarf(platz.width()) + QSize(0, fusshoehe(platz.width()));
    QSize groesse = sizeHint();
    if (mindestens.width() > platz.width())
        groesse.rheight() += quer_->sizeHint().height();
    if (mindestens.height() > platz.height())
        groesse.rwidth() += hoch_->sizeHint().width();
    return groesse.boundedTo(platz);
}

QSize Rollinhalt::sizeHint() const
{
    const QSize inhalt = itemAt(0)->sizeHint();
    return inhalt + QSize(0, fusshoehe(inhalt.width()));
}

QSize Rollinhalt::minimumSize() const
{
    const QSize inhalt = itemAt(0)->minimumSize();
    return (inhalt + QSize(0, fusshoehe(inhalt.width()))).boundedTo(hoechstens_());
}

bool Rollinhalt::hasHeightForWidth() const
{
    return itemAt(0)->hasHeightForWidth();
}

int Rollinhalt::heightForWidth(int breite) const
{
    return itemAt(0)->heightForWidth(breite) + fusshoehe(breite);
}

int Rollinhalt::minimumHeightForWidth(int breite) const
{
    return std::min(itemAt(0)->minimumHeightForWidth(breite) + fusshoehe(breite), hoechstens_().height());
}

void Rollinhalt::setGeometry(const QRect& rechteck)
{
    QLayout::setGeometry(rechteck);
    if (count() < 2)
        return;
    sicht_ = rechteck.adjusted(0, 0, 0, -fusshoehe(rechteck.width()));
    itemAt(1)->setGeometry({sicht_.left(), sicht_.bottom() + 1, sicht_.width(), rechteck.bottom() - sicht_.bottom()});

    const int dicke = hoch_->sizeHint().width();
    const QRect ganz = sicht_;
    QSize inhalt = bedarf(ganz.width());
    if (inhalt.width() > ganz.width())
        sicht_.setBottom(ganz.bottom() - dicke);
    if (inhalt.height() > sicht_.height())
        sicht_.setRight(ganz.right() - dicke);
    if (inhalt.width() > sicht_.width())
        sicht_.setBottom(ganz.bottom() - dicke);
    inhalt = bedarf(sicht_.width()).expandedTo(sicht_.size());
    stelle(quer_, inhalt.width(), sicht_.width());
    stelle(hoch_, inhalt.height(), sicht_.height());
    quer_->setGeometry(sicht_.left(), sicht_.bottom() + 1, sicht_.width(), dicke);
    hoch_->setGeometry(sicht_.right() + 1, ganz.top(), dicke, ganz.height());
    // Qt's layouts know no place to the left of 0 or above it: the content is laid out in its place, then moved.
    verschiebe(itemAt(0), gerollt_);
    itemAt(0)->setGeometry({sicht_.topLeft(), inhalt});
    gerollt_ = {quer_->value(), hoch_->value()};
    verschiebe(itemAt(0), -gerollt_);
}

void Rollinhalt::rolleZu(const QWidget* feld)
{
    const QWidget* eltern = parentWidget();
    // What is pressed with the mouse stays where it is until the button is let go.
    const bool gedrueckt = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (!feld || gedrueckt || !eltern->isAncestorOf(feld) || feld->window() != eltern->window())
        return;
    if (const QWidget* fuss = itemAt(1)->widget(); fuss == feld || fuss->isAncestorOf(feld))
        return;
    const QRect ort(feld->mapTo(eltern, QPoint(0, 0)), feld->size());
    quer_->setValue(quer_->value() + weg(ort.left(), ort.right(), sicht_.left(), sicht_.right()));
    hoch_->setValue(hoch_->value() + weg(ort.top(), ort.bottom(), sicht_.top(), sicht_.bottom()));
}

bool Rollinhalt::eventFilter(QObject* eltern, QEvent* ereignis)
{
    QScrollBar* balken = hoch_->isVisible() ? hoch_ : quer_;
    const bool rollt = ereignis->type() == QEvent::Wheel || blaettert(ereignis);
    if (rollt && balken->isVisible() && eltern == parent())
        return QCoreApplication::sendEvent(balken, ereignis);
    return QLayout::eventFilter(eltern, ereignis);
}
