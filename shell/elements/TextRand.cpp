#include "shell/elements/TextRand.h"

#include <QTextDocument>
#include <QTextEdit>
#include <QTextFrame>

void TextRand(QTextEdit* feld, int links, int oben, int rechts, int unten)
{
    feld->document()->setDocumentMargin(0);
    QTextFrame* rahmen = feld->document()->rootFrame();
    QTextFrameFormat form = rahmen->frameFormat();
    form.setLeftMargin(links + 1);
    form.setTopMargin(oben + 1);
    form.setRightMargin(rechts + 2);
    form.setBottomMargin(unten + 2);
    rahmen->setFrameFormat(form);
}
