#include "listcontrol/screens/Zellmaler.h"

#include <QFontInfo>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {

constexpr qsizetype kHoechstensGesetzte = 4096;

bool istEinfach(QChar zeichen)
{
    return zeichen.unicode() >= 0x20 && zeichen.unicode() < 0x7F;
}

} // namespace

Zellmaler::Zellmaler(const QFont& schrift)
    : schrift_(schrift),
      masse_(schrift),
      zeichenbreite_(QFontInfo(schrift).fixedPitch() ? QFontMetricsF(schrift).horizontalAdvance('0') : 0)
{}

int Zellmaler::textbreite(const QString& text) const
{
    if (zeichenbreite_ > 0 && std::all_of(text.begin(), text.end(), istEinfach))
        return qCeil(zeichenbreite_ * static_cast<qreal>(text.size()));
    return masse_.horizontalAdvance(text);
}

QString Zellmaler::anzeige(std::string_view text, TextAlign ausrichtung)
{
    constexpr std::string_view kLeer = " \r\n\t\x1D";
    const std::size_t ende = text.find_last_not_of(kLeer) + 1; // npos + 1 is 0
    const std::size_t anfang = ausrichtung == TextAlign::Left ? 0 : std::min(ende, text.find_first_not_of(kLeer));
    QString zeile = QString::fromUtf8(text.data() + anfang, static_cast<qsizetype>(ende - anfang));
    zeile.replace("\r\n", " ");
    for (QChar& zeichen : zeile)
        if (zeichen < ' ')
            zeichen = ' ';
    return zeile;
}

const QStaticText& Zellmaler::satz(const QString& text) const
{
    const auto bekannter = gesetzte_.constFind(text);
    if (bekannter != gesetzte_.constEnd())
        return *bekannter;
    if (gesetzte_.size() >= kHoechstensGesetzte)
        gesetzte_.clear();
    QStaticText neuer(text);
    neuer.setTextFormat(Qt::PlainText);
    neuer.setPerformanceHint(QStaticText::AggressiveCaching);
    return *gesetzte_.insert(text, neuer);
}

void Zellmaler::male(QPainter& maler, const QRect& zelle, const QMargins& rand, TextAlign ausrichtung,
                     const QString& text) const
{
    const int platz = zelle.width() - 2 * kLuft;
    QString sichtbar = text;
    int breite = textbreite(text);
    if (breite > platz) {
        sichtbar = masse_.elidedText(text, Qt::ElideRight, platz);
        breite = textbreite(sichtbar);
        ausrichtung = TextAlign::Left;
    }
    if (sichtbar.isEmpty() || breite > platz)
        return;
    const QRect innen = zelle.marginsRemoved({rand.left(), 0, rand.right(), 0});
    const int frei = innen.width() - breite;
    const int schub = ausrichtung == TextAlign::Left ? 0 : (ausrichtung == TextAlign::Center ? frei / 2 : frei);
    const int links = zelle.left() + kLuft;
    const int x = std::clamp(innen.left() + schub, links, links + platz - breite);
    const int y = zelle.top() + (zelle.height() - masse_.height()) / 2;
    maler.drawStaticText(QPoint(x, y), satz(sichtbar));
}
