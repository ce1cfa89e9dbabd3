#include "statistics/screens/Balkenlage.h"

#include "statistics/logic/Balkengraphik.h"

#include <algorithm>

namespace {

constexpr int kSkalenbreite = 64;
constexpr int kZahlbreite = 32;
constexpr int kAnzahlbreite = 56;
constexpr int kRand = 8;
constexpr int kLuecke = 2;            ///< on both sides of a bar
constexpr int kSchmalsterBalken = 14; ///< with its gaps
constexpr int kInEinerReihe = 10;     ///< of more bars, every second number stands a line lower

} // namespace

Balkenlage::Balkenlage(Balkenrichtung richtung, const QRect& rahmen, int balken, const QFontMetrics& schrift)
    : richtung_(richtung),
      rahmen_(rahmen),
      balken_(std::max(balken, 1)),
      zeile_(schrift.lineSpacing())
{
    flaeche_ = steht() ? rahmen.adjusted(kSkalenbreite, kRand, -kRand, -2 * zeile_ - kRand)
                       : rahmen.adjusted(kZahlbreite, zeile_ + kRand, -kSkalenbreite / 2, -kRand);
}

/// Where a height lies along the bars.
int Balkenlage::laengs(int twips) const
{
    if (steht())
        return flaeche_.top() + twips * flaeche_.height() / Balkengraphik::kGrundlinie;
    return flaeche_.left() + (Balkengraphik::kGrundlinie - twips) * flaeche_.width() / Balkengraphik::kGrundlinie;
}

/// Where the room of a bar begins across the bars.
int Balkenlage::quer(int stelle) const
{
    if (steht())
        return flaeche_.left() + stelle * flaeche_.width() / balken_;
    return flaeche_.top() + stelle * flaeche_.height() / balken_;
}

QRect Balkenlage::balken(int stelle, int oben) const
{
    const int von = quer(stelle) + kLuecke;
    const int bis = quer(stelle + 1) - kLuecke;
    if (steht())
        return {QPoint(von, laengs(oben)), QPoint(bis, flaeche_.bottom())};
    return {QPoint(flaeche_.left(), von), QPoint(laengs(oben), bis)};
}

Textplatz Balkenlage::zahl(int stelle) const
{
    const int breite = quer(stelle + 1) - quer(stelle);
    if (!steht())
        return {{rahmen_.left(), quer(stelle), kZahlbreite - 2 * kLuecke, breite}, Qt::AlignRight | Qt::AlignVCenter};
    const int reihe = balken_ > kInEinerReihe ? stelle % 2 : 0;
    const int oben = flaeche_.bottom() + 2 * kLuecke + reihe * zeile_;
    return {{quer(stelle) - kRand, oben, breite + 2 * kRand, zeile_}, Qt::AlignCenter};
}

Textplatz Balkenlage::anzahl(int stelle, int oben) const
{
    const int breite = quer(stelle + 1) - quer(stelle);
    if (steht())
        return {{quer(stelle), laengs(oben) - zeile_ - kLuecke, breite, zeile_}, Qt::AlignCenter};
    return {{laengs(oben) + 2 * kLuecke, quer(stelle), kAnzahlbreite, breite}, Qt::AlignLeft | Qt::AlignVCenter};
}

Textplatz Balkenlage::skalentext(int hoehe) const
{
    if (steht())
        return {{rahmen_.left(), laengs(hoehe) - zeile_ / 2, kSkalenbreite - kRand, zeile_},
                Qt::AlignRight | Qt::AlignVCenter};
    return {{laengs(hoehe) - kSkalenbreite / 2, rahmen_.top() + kRand / 2, kSkalenbreite, zeile_}, Qt::AlignCenter};
}

QLine Balkenlage::linie(int hoehe) const
{
    if (steht())
        return {flaeche_.left(), laengs(hoehe), flaeche_.right(), laengs(hoehe)};
    return {laengs(hoehe), flaeche_.top(), laengs(hoehe), flaeche_.bottom()};
}

QSize Balkenlage::mindestgroesse(Balkenrichtung richtung, int balken, const QFontMetrics& schrift)
{
    constexpr QSize kFlaeche{320, 240};
    if (richtung == Balkenrichtung::Rechts)
        return {kFlaeche.width(), schrift.lineSpacing() + balken * (schrift.lineSpacing() + kLuecke) + 2 * kRand};
    return {std::max(kFlaeche.width(), kSkalenbreite + balken * kSchmalsterBalken + kRand), kFlaeche.height()};
}
