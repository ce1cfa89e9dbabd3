#pragma once

#include "listcontrol/logic/Column.h"

#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QMargins>
#include <QRect>
#include <QStaticText>
#include <QString>

#include <string_view>

class QPainter;

/// Draws the texts of cells: one line, cut to the cell, where the padding gives way before the text does. Texts that
/// have been drawn are kept in their finished form, since most cells of a list show one of a few texts.
class Zellmaler {
public:
    explicit Zellmaler(const QFont& schrift);

    const QFont& schrift() const { return schrift_; }
    int schrifthoehe() const { return masse_.height(); }
    int textbreite(const QString& text) const;

    /// The text as a cell shows it: a line feed or another mark as a blank, no blanks at the end, and at the beginning
    /// only where they push a text to the right that stands to the left.
    static QString anzeige(std::string_view text, TextAlign ausrichtung);

    /// True if the text needs no cutting in a cell of this width.
    bool passt(const QString& text, int breite) const { return textbreite(text) <= breite - 2 * kLuft; }

    /// Draws a text in the painter's pen.
    void male(QPainter& maler, const QRect& zelle, const QMargins& rand, TextAlign ausrichtung,
              const QString& text) const;

private:
    static constexpr int kLuft = 1; ///< what stays of the padding

    const QStaticText& satz(const QString& text) const;

    QFont schrift_;
    QFontMetrics masse_;
    qreal zeichenbreite_; ///< of the printable ASCII characters if all have the same; else 0
    mutable QHash<QString, QStaticText> gesetzte_;
};
