#include "shell/elements/Textanzeige.h"

#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"

#include <QTextDocument>

Textanzeige::Textanzeige(const QString& name, int zeilen, int zeichen, QWidget* eltern)
    : QPlainTextEdit(eltern),
      zeilen_(zeilen),
      zeichen_(zeichen)
{
    setObjectName(name);
    setFont(Stil::festeSchrift());
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setTabChangesFocus(true);
    // The text has its room; bars that came up before the layout gave it would stay.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void Textanzeige::zeige(std::string_view text)
{
    setPlainText(qt(text));
}

QSize Textanzeige::minimumSizeHint() const
{
    const int rand = 2 * frameWidth() + 2 * static_cast<int>(document()->documentMargin());
    return {zeichen_ * fontMetrics().horizontalAdvance('0') + rand, zeilen_ * fontMetrics().lineSpacing() + rand};
}
