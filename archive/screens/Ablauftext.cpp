#include "archive/screens/Ablauftext.h"

#include "archive/screens/AnzeigeTexte.h"

#include <QTextDocument>

#include <cmath>
#include <memory>

namespace {
constexpr int kBreite = 840;
}

Ablauftext::Ablauftext()
{
    setObjectName("Text11");
    setReadOnly(true);
    setTabChangesFocus(true);
    setPlainText(AnzeigeTexte::kAblauf);
}

QSize Ablauftext::sizeHint() const
{
    const std::unique_ptr<QTextDocument> text(document()->clone());
    text->setTextWidth(kBreite);
    const int hoehe = static_cast<int>(std::ceil(text->size().height()));
    return QSize(kBreite, hoehe) + QSize(2 * frameWidth(), 2 * frameWidth());
}
