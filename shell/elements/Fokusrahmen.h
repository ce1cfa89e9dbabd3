#pragma once

class QColor;
class QPainter;
class QRect;

/// The frame that shows which control, row or cell the keyboard acts on: two pixels wide, inside of the rectangle.
void maleFokus(QPainter& maler, const QRect& rechteck, const QColor& farbe);
