#include "shell/elements/Programmstil.h"

#include "shell/elements/Boxbild.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Fokusrahmen.h"
#include "shell/elements/Stil.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int kKnopfrand = 24;
constexpr int kAuswahlzeilen = 20; ///< in sight of an open combo box; the others scroll
constexpr int kBoxbild = 40;

void maleFokus(const QStyleOption& option, QPainter& maler)
{
    maleFokus(maler, option.rect, option.palette.color(QPalette::Highlight));
}

/// True for a control that shows by its own edge that it has the focus.
bool hatFokusrand(QStyle::PrimitiveElement element, const QStyleOption& option, const QWidget* feld)
{
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return false;
    switch (element) {
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_FrameLineEdit:
        return true;
    case QStyle::PE_Frame:
        return qobject_cast<const QAbstractScrollArea*>(feld);
    default:
        return false;
    }
}

/// False for a button that Alt and its underlined letter would not press.
bool kannKuerzel(const QWidget* feld)
{
    const auto* knopf = qobject_cast<const QAbstractButton*>(feld);
    return !knopf || !knopf->shortcut().isEmpty();
}

QColor grifffarbe(const QStyleOptionSlider& option)
{
    if (!option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider))
        return Farben::Griff;
    return option.state.testFlag(QStyle::State_Sunken) ? option.palette.color(QPalette::Highlight)
                                                       : Farben::GriffUnterMaus;
}

} // namespace

Programmstil::Programmstil() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void Programmstil::polish(QWidget* feld)
{
    QProxyStyle::polish(feld);
    if (auto* auswahl = qobject_cast<QComboBox*>(feld))
        auswahl->setMaxVisibleItems(kAuswahlzeilen);
}

int Programmstil::styleHint(StyleHint frage, const QStyleOption* option, const QWidget* feld,
                            QStyleHintReturn* antwort) const
{
    switch (frage) {
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_UnderlineShortcut:
        return kannKuerzel(feld) ? QProxyStyle::styleHint(frage, option, feld, antwort) : 0;
    default:
        return QProxyStyle::styleHint(frage, option, feld, antwort);
    }
}

int Programmstil::pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* feld) const
{
    if (mass == PM_DefaultFrameWidth && qobject_cast<const QAbstractScrollArea*>(feld))
        return Stil::kFokus;
    return mass == PM_MessageBoxIconSize ? kBoxbild : QProxyStyle::pixelMetric(mass, option, feld);
}

QSize Programmstil::sizeFromContents(ContentsType art, const QStyleOption* option, const QSize& inhalt,
                                     const QWidget* feld) const
{
    const QSize platz = QProxyStyle::sizeFromContents(art, option, inhalt, feld);
    return art == CT_PushButton ? platz.expandedTo(QSize(inhalt.width() + kKnopfrand, 0)) : platz;
}

QRect Programmstil::subElementRect(SubElement teil, const QStyleOption* option, const QWidget* feld) const
{
    return teil == SE_PushButtonFocusRect ? option->rect : QProxyStyle::subElementRect(teil, option, feld);
}

QIcon Programmstil::standardIcon(StandardPixmap bild, const QStyleOption* option, const QWidget* feld) const
{
    const QIcon eigenes = boxbild(bild);
    return eigenes.isNull() ? QProxyStyle::standardIcon(bild, option, feld) : eigenes;
}

void Programmstil::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                                 const QWidget* feld) const
{
    if (element != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(element, option, maler, feld);
    if (element == PE_FrameFocusRect || hatFokusrand(element, *option, feld))
        maleFokus(*option, *maler);
}

void Programmstil::drawComplexControl(ComplexControl art, const QStyleOptionComplex* option, QPainter* maler,
                                      const QWidget* feld) const
{
    const auto* balken = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (art == CC_ScrollBar && balken)
        maleRollbalken(*balken, *maler, feld);
    else
        QProxyStyle::drawComplexControl(art, option, maler, feld);
    if ((art == CC_ScrollBar || art == CC_ComboBox) && option->state.testFlag(State_HasFocus))
        maleFokus(*option, *maler);
}

void Programmstil::maleRollbalken(const QStyleOptionSlider& option, QPainter& maler, const QWidget* feld) const
{
    constexpr int kLuft = 2;
    maler.fillRect(option.rect, Farben::Rollbahn);
    for (const SubControl teil : {SC_ScrollBarSubLine, SC_ScrollBarAddLine})
        maleRollpfeil(option, teil, maler, feld);
    if (option.minimum == option.maximum || !option.state.testFlag(State_Enabled))
        return;
    const QRect griff = proxy()->subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, feld);
    const int rundung = std::min(griff.width(), griff.height()) / 2 - kLuft;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(grifffarbe(option));
    maler.drawRoundedRect(griff.adjusted(kLuft, kLuft, -kLuft, -kLuft), rundung, rundung);
    maler.restore();
}

void Programmstil::maleRollpfeil(const QStyleOptionSlider& option, SubControl teil, QPainter& maler,
                                 const QWidget* feld) const
{
    constexpr int kLuft = 3;
    const bool zurueck = teil == SC_ScrollBarSubLine;
    const bool amEnde = option.sliderValue == (zurueck ? option.minimum : option.maximum);
    QStyleOption pfeil(option);
    pfeil.rect = proxy()->subControlRect(CC_ScrollBar, &option, teil, feld).adjusted(kLuft, kLuft, -kLuft, -kLuft);
    pfeil.state.setFlag(State_Enabled, option.state.testFlag(State_Enabled) && !amEnde);
    const bool quer = option.orientation == Qt::Horizontal;
    const PrimitiveElement zumAnfang = quer ? PE_IndicatorArrowLeft : PE_IndicatorArrowUp;
    const PrimitiveElement zumEnde = quer ? PE_IndicatorArrowRight : PE_IndicatorArrowDown;
    proxy()->drawPrimitive(zurueck ? zumAnfang : zumEnde, &pfeil, &maler, feld);
}
