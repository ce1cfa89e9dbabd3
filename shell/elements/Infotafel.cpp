#include "shell/elements/Infotafel.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Fensterplatz.h"
#include "shell/elements/Rollinhalt.h"
#include "shell/elements/Stil.h"

#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kBreite = 440;

QLabel* beschriftung(const QString& text, const char* name)
{
    auto* feld = new QLabel(text);
    feld->setObjectName(name);
    feld->setForegroundRole(QPalette::ToolTipText);
    return feld;
}

QLabel* absatz(const QString& text, const char* name)
{
    QLabel* feld = beschriftung(text, name);
    feld->setWordWrap(true);
    return feld;
}

QLabel* ueberschrift(const QString& text)
{
    QLabel* feld = beschriftung(text, "InfotafelTitel");
    alsUeberschrift(feld);
    return feld;
}

} // namespace

Infotafel::Infotafel(Bildschirm* bildschirm, const QString& text, const InfotafelNamen& namen)
    : Infotafel(bildschirm, absatz(text, namen.text), namen)
{}

Infotafel::Infotafel(Bildschirm* bildschirm, QWidget* erklaerung, const InfotafelNamen& namen)
    : QFrame(bildschirm),
      bildschirm_(*bildschirm),
      ok_(new QPushButton(namen.okText, this))
{
    setObjectName(namen.rahmen);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    ok_->setObjectName(namen.ok);
    connect(ok_, &QPushButton::clicked, this, &QWidget::hide);
    setWindowTitle(namen.titel);
    Bloecke teile{dehnbar(erklaerung)};
    if (!windowTitle().isEmpty())
        teile.insert(teile.begin(), ueberschrift(windowTitle()));
    QLayout* inhalt = spalte(teile);
    inhalt->setContentsMargins(Stil::kRand, Stil::kRand, Stil::kRand, 0);
    new Rollinhalt(this, inhalt, fusszeile(), [this] { return bildschirm_.size(); });
    hide();
}

QWidget* Infotafel::fusszeile()
{
    auto* fuss = new QWidget(this);
    fuss->setAutoFillBackground(true);
    fuss->setBackgroundRole(backgroundRole());
    QLayout* inhalt = zeile({luecke(), ok_});
    inhalt->setContentsMargins(Stil::kRand, Stil::kRand, Stil::kRand, Stil::kRand);
    fuss->setLayout(inhalt);
    return fuss;
}

void Infotafel::zeige()
{
    const int hoehe = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(kBreite) : 0;
    const QSize gewuenscht = hoehe > 0 ? QSize(kBreite, hoehe + 2 * frameWidth()) : sizeHint();
    const QSize platz = Fensterplatz::hoechstgroesse(bildschirm_).expandedTo(bildschirm_.size());
    bildschirm_.resize(bildschirm_.size().expandedTo(gewuenscht).boundedTo(platz));
    resize(gewuenscht.boundedTo(bildschirm_.size()));
    move((bildschirm_.width() - width()) / 2, (bildschirm_.height() - height()) / 2);
    vorher_ = bildschirm_.focusWidget();
    show();
    raise();
    ok_->setFocus();
}

/// The focus goes back to where it was. A screen that goes away hides its frame too; only a frame hidden by itself was
/// put away.
void Infotafel::hideEvent(QHideEvent* ereignis)
{
    QFrame::hideEvent(ereignis);
    if (!isHidden())
        return;
    if (vorher_)
        vorher_->setFocus();
    if (beimWeglegen)
        beimWeglegen();
}
