#include "shell/elements/Infotafel.h"

#include "shell/elements/Bloecke.h"
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

Infotafel::Infotafel(QWidget* bildschirm, const QString& text, const InfotafelNamen& namen)
    : Infotafel(bildschirm, absatz(text, namen.text), namen)
{}

Infotafel::Infotafel(QWidget* bildschirm, QWidget* erklaerung, const InfotafelNamen& namen)
    : QFrame(bildschirm),
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
    Bloecke teile{dehnbar(erklaerung), zeile({luecke(), ok_})};
    if (!windowTitle().isEmpty())
        teile.insert(teile.begin(), ueberschrift(windowTitle()));
    QLayout* inhalt = spalte(teile);
    inhalt->setContentsMargins(Stil::kRand, Stil::kRand, Stil::kRand, Stil::kRand);
    setLayout(inhalt);
    hide();
}

void Infotafel::zeige()
{
    if (layout()->hasHeightForWidth())
        resize(kBreite, layout()->totalHeightForWidth(kBreite) + 2 * frameWidth());
    else
        adjustSize();
    parentWidget()->resize(parentWidget()->size().expandedTo(size()));
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
    show();
    raise();
    ok_->setFocus();
}

/// A screen that goes away hides its frame too; only a frame hidden by itself was put away.
void Infotafel::hideEvent(QHideEvent* ereignis)
{
    QFrame::hideEvent(ereignis);
    if (isHidden() && beimWeglegen)
        beimWeglegen();
}
