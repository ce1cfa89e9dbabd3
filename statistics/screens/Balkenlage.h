#pragma once

#include <QFontMetrics>
#include <QLine>
#include <QRect>

/// How the bars of a chart run: upward, one beside the other, or to the right, one below the other.
enum class Balkenrichtung { Aufwaerts, Rechts };

/// A text of a chart: where it stands, and at which side of that room.
struct Textplatz {
    QRect rechteck;
    Qt::Alignment ausrichtung;
};

/// Where the parts of a bar chart lie in its frame, in pixels. Places count from 0, heights are the twips of
/// `Balkengraphik`.
class Balkenlage {
public:
    Balkenlage(Balkenrichtung richtung, const QRect& rahmen, int balken, const QFontMetrics& schrift);

    QRect balken(int stelle, int oben) const;
    /// Of the number that a bar stands for.
    Textplatz zahl(int stelle) const;
    /// Of the count at the end of a bar.
    Textplatz anzahl(int stelle, int oben) const;
    Textplatz skalentext(int hoehe) const;
    QLine linie(int hoehe) const;

    /// The least room that so many bars need.
    static QSize mindestgroesse(Balkenrichtung richtung, int balken, const QFontMetrics& schrift);

private:
    bool steht() const { return richtung_ == Balkenrichtung::Aufwaerts; }
    int laengs(int twips) const;
    int quer(int stelle) const;

    Balkenrichtung richtung_;
    QRect rahmen_;
    QRect flaeche_; ///< of the bars alone
    int balken_;
    int zeile_; ///< height of a line of text
};
