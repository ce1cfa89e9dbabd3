#include "shell/elements/Liste.h"

#include "shell/elements/Fokusrahmen.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"

#include <QPainter>
#include <QScrollBar>

Liste::Liste(QWidget* eltern, ListenModell::Eigenschaften eigenschaften) : Zeilenansicht(eltern), modell_(eigenschaften)
{
    setFont(Stil::festeSchrift());
    modell_.beiAenderung([this](ListenModell::Aenderung aenderung) {
        if (aenderung == ListenModell::Aenderung::Auswahl) {
            erneuere();
            return;
        }
        breite_ = 0;
        erneuereZeilen();
    });
}

void Liste::setzeSichtbar(int zeilen, int zeichen)
{
    sichtbareZeilen_ = zeilen;
    sichtbareZeichen_ = zeichen;
    updateGeometry();
}

QSize Liste::minimumSizeHint() const
{
    const int rand = 2 * frameWidth();
    const int breite = sichtbareZeichen_ * fontMetrics().horizontalAdvance('0') + 2 * kEinzug;
    return {breite + verticalScrollBar()->sizeHint().width() + rand, sichtbareZeilen_ * zeilenhoehe() + rand};
}

QString Liste::zeilentext(int zeile) const
{
    return qt(modell_.List(static_cast<std::size_t>(zeile)));
}

void Liste::maleZeile(QPainter& maler, int zeile, const QRect& rechteck)
{
    const QString text = zeilentext(zeile);
    breite_ = std::max(breite_, fontMetrics().horizontalAdvance(text) + 2 * kEinzug);
    const Zellfarben farben = zellfarben(zeile).front();
    maler.fillRect(rechteck, farben.grund);
    maler.setPen(farben.schrift);
    maler.drawText(rechteck.adjusted(kEinzug, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    if (hasFocus() && zeile == fokuszeile())
        maleFokus(maler, rechteck, palette().color(QPalette::Highlight));
}

void Liste::waehle(int zeile, Qt::KeyboardModifiers tasten)
{
    const auto stelle = static_cast<std::size_t>(zeile);
    if (!modell_.MultiSelect() || tasten == Qt::NoModifier)
        setzeAuswahl(zeile);
    else if (tasten.testFlag(Qt::ShiftModifier))
        waehleBereich(zeile);
    else
        modell_.SetSelected(stelle, !modell_.Selected(stelle));
    if (!tasten.testFlag(Qt::ShiftModifier))
        anker_ = zeile;
    modell_.SetListIndex(zeile);
    if (beiAuswahl)
        beiAuswahl();
}

void Liste::schalte(int zeile)
{
    if (modell_.MultiSelect())
        waehle(zeile, Qt::ControlModifier);
}

void Liste::setzeAuswahl(int zeile)
{
    for (const std::size_t gewaehlte : modell_.ausgewaehlte())
        modell_.SetSelected(gewaehlte, false);
    modell_.SetSelected(static_cast<std::size_t>(zeile), true);
}

void Liste::waehleVonBis(int von, int bis)
{
    for (int zeile = von; zeile <= bis; ++zeile)
        modell_.SetSelected(static_cast<std::size_t>(zeile), true);
}

void Liste::waehleBereich(int zeile)
{
    setzeAuswahl(zeile);
    const auto [von, bis] = std::minmax(anker_, zeile);
    waehleVonBis(von, bis);
}

bool Liste::waehleAlle()
{
    if (!modell_.MultiSelect())
        return false;
    waehleVonBis(0, zeilenzahl() - 1);
    if (beiAuswahl)
        beiAuswahl();
    return true;
}
