#include "shell/elements/Infotafel.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Stil.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace {
constexpr int kBreite = 440;
}

Infotafel::Infotafel(QWidget* bildschirm, const QString& text) : QFrame(bildschirm)
{
    setObjectName("Infotafel");
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto* erklaerung = new QLabel(text, this);
    erklaerung->setObjectName("InfotafelText");
    erklaerung->setForegroundRole(QPalette::ToolTipText);
    erklaerung->setWordWrap(true);
    auto* ok = new QPushButton("ok", this);
    ok->setObjectName("InfotafelOk");
    connect(ok, &QPushButton::clicked, this, &QWidget::hide);
    QLayout* inhalt = spalte({erklaerung, zeile({luecke(), ok})});
    inhalt->setContentsMargins(Stil::kRand, Stil::kRand, Stil::kRand, Stil::kRand);
    setLayout(inhalt);
    hide();
}

void Infotafel::zeige()
{
    resize(kBreite, layout()->totalHeightForWidth(kBreite) + 2 * frameWidth());
    parentWidget()->resize(parentWidget()->size().expandedTo(size()));
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
    show();
    raise();
    findChild<QPushButton*>("InfotafelOk")->setFocus();
}

void Infotafel::keyPressEvent(QKeyEvent* ereignis)
{
    if (ereignis->key() == Qt::Key_Escape)
        hide();
    else
        QFrame::keyPressEvent(ereignis);
}
