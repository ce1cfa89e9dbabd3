#include "shell/elements/TextRand.h"

#include <QTextDocument>
#include <QTextEdit>
#include <QTextFrame>

namespace {

constexpr auto kRaender = "TextRand";

/// A new text comes with margins of its own, so that they are set anew then.
void setzeRaender(QTextEdit* feld)
{
    const QRectF raender = feld->property(kRaender).toRectF();
    QTextFrame* rahmen = feld->document()->rootFrame();
    QTextFrameFormat form = rahmen->frameFormat();
    form.setLeftMargin(raender.left());
    form.setTopMargin(raender.top());
    form.setRightMargin(raender.width());
    form.setBottomMargin(raender.height());
    if (form != rahmen->frameFormat())
        rahmen->setFrameFormat(form);
}

} // namespace

void TextRand(QTextEdit* feld, int links, int oben, int rechts, int unten)
{
    const bool ersteMal = !feld->property(kRaender).isValid();
    feld->setProperty(kRaender, QRectF(links + 1, oben + 1, rechts + 2, unten + 2));
    feld->document()->setDocumentMargin(0);
    setzeRaender(feld);
    if (ersteMal)
        QObject::connect(feld->document(), &QTextDocument::contentsChanged, feld, [feld] { setzeRaender(feld); });
}
