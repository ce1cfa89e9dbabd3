#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

/// Fusion with what this program wants otherwise: one frame around whatever has the focus, scroll bars with a handle
/// that is seen, combo boxes that open a list of rows instead of covering the screen, sharp pictures in boxes, and more
/// room beside the caption of a button.
class Programmstil final : public QProxyStyle {
public:
    Programmstil();

    using QProxyStyle::polish;
    void polish(QWidget* feld) override;
    int styleHint(StyleHint frage, const QStyleOption* option, const QWidget* feld,
                  QStyleHintReturn* antwort) const override;
    int pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* feld) const override;
    QSize sizeFromContents(ContentsType art, const QStyleOption* option, const QSize& inhalt,
                           const QWidget* feld) const override;
    QRect subElementRect(SubElement teil, const QStyleOption* option, const QWidget* feld) const override;
    QIcon standardIcon(StandardPixmap bild, const QStyleOption* option, const QWidget* feld) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                       const QWidget* feld) const override;
    void drawComplexControl(ComplexControl art, const QStyleOptionComplex* option, QPainter* maler,
                            const QWidget* feld) const override;

private:
    void maleRollbalken(const QStyleOptionSlider& option, QPainter& maler, const QWidget* feld) const;
    void maleRollpfeil(const QStyleOptionSlider& option, SubControl teil, QPainter& maler, const QWidget* feld) const;
};
