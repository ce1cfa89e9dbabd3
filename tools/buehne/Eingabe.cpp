#include "tools/buehne/Eingabe.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <limits>
#include <optional>
#include <vector>

/// Offers a key to the shortcuts first, as the window system's own keys are. True if one has taken it. Qt exports it
/// for its own test library.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* ziel, ulong zeit, int taste, Qt::KeyboardModifiers tasten,
                                               const QString& text = {}, bool wiederholt = false, ushort anzahl = 1);

namespace {

void maus(QWidget* feld, QEvent::Type art, QPoint ort, Qt::MouseButton knopf, Qt::MouseButtons gehalten,
          Qt::KeyboardModifiers tasten)
{
    QMouseEvent ereignis(art, ort, feld->mapToGlobal(ort), knopf, gehalten, tasten);
    QApplication::sendEvent(feld, &ereignis);
}

void taste(QWidget* feld, int schluessel, Qt::KeyboardModifiers tasten, const QString& text)
{
    if (qt_sendShortcutOverrideEvent(feld, 0, schluessel, tasten, text))
        return;
    const QPointer<QWidget> noch(feld);
    for (const auto art : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (!noch)
            return;
        QKeyEvent ereignis(art, schluessel, tasten, text);
        QApplication::sendEvent(feld, &ereignis);
    }
}

/// The keys, if every word is the name of one.
std::optional<std::vector<QKeyCombination>> tastennamen(const QString& text)
{
    std::vector<QKeyCombination> alle;
    for (const QString& wort : text.split(' ', Qt::SkipEmptyParts)) {
        const QKeySequence folge = QKeySequence::fromString(wort, QKeySequence::PortableText);
        if (wort.size() == 1 || folge.count() != 1 || folge[0].key() == Qt::Key_unknown)
            return std::nullopt;
        alle.push_back(folge[0]);
    }
    return alle;
}

QString textVon(QKeyCombination taste)
{
    switch (taste.key()) {
    case Qt::Key_Space:
        return " ";
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return "\r";
    case Qt::Key_Tab:
        return "\t";
    default:
        return {};
    }
}

} // namespace

QPoint Eingabe::freieStelle(const QWidget* feld)
{
    constexpr int kRand = 2;
    constexpr int kSchritte = 16;
    const QPoint mitte = feld->rect().center();
    if (!feld->childAt(mitte))
        return mitte;
    const QRect innen = feld->rect().adjusted(kRand, kRand, -kRand, -kRand);
    QPoint beste = mitte;
    int abstand = std::numeric_limits<int>::max();
    for (int i = 0; i <= kSchritte * (kSchritte + 2); ++i) {
        const QPoint stelle = innen.topLeft() + QPoint(innen.width() * (i % (kSchritte + 1)) / kSchritte,
                                                       innen.height() * (i / (kSchritte + 1)) / kSchritte);
        const int weg = (stelle - mitte).manhattanLength();
        if (weg < abstand && feld->rect().contains(stelle) && !feld->childAt(stelle)) {
            abstand = weg;
            beste = stelle;
        }
    }
    return beste;
}

void Eingabe::druecke(QWidget* feld, QPoint ort, Qt::KeyboardModifiers tasten)
{
    if (feld->focusPolicy() & Qt::ClickFocus)
        feld->setFocus(Qt::MouseFocusReason);
    maus(feld, QEvent::MouseButtonPress, ort, Qt::LeftButton, Qt::LeftButton, tasten);
}

void Eingabe::lasseLos(QWidget* feld, QPoint ort, Qt::KeyboardModifiers tasten)
{
    maus(feld, QEvent::MouseButtonRelease, ort, Qt::LeftButton, Qt::NoButton, tasten);
}

void Eingabe::klicke(QWidget* feld, QPoint ort, Qt::KeyboardModifiers tasten)
{
    const QPointer<QWidget> noch(feld);
    druecke(feld, ort, tasten);
    if (noch)
        lasseLos(feld, ort, tasten);
}

void Eingabe::doppelklicke(QWidget* feld, QPoint ort)
{
    const QPointer<QWidget> noch(feld);
    klicke(feld, ort);
    if (noch)
        maus(feld, QEvent::MouseButtonDblClick, ort, Qt::LeftButton, Qt::LeftButton, {});
    if (noch)
        lasseLos(feld, ort);
}

void Eingabe::ueberfahre(QWidget* feld, QPoint ort)
{
    QEnterEvent herein(ort, feld->mapTo(feld->window(), ort), feld->mapToGlobal(ort));
    QApplication::sendEvent(feld, &herein);
    maus(feld, QEvent::MouseMove, ort, Qt::NoButton, Qt::NoButton, {});
}

void Eingabe::tippe(QWidget* feld, const QString& tasten)
{
    const QPointer<QWidget> fenster(feld->window());
    feld->setFocus(Qt::OtherFocusReason);
    // Every key goes to where the one before has moved the focus.
    const auto druecke = [&fenster](int schluessel, Qt::KeyboardModifiers mit, const QString& text) {
        if (fenster && fenster->focusWidget())
            taste(fenster->focusWidget(), schluessel, mit, text);
    };
    if (const auto namen = tastennamen(tasten)) {
        for (const QKeyCombination& kombination : *namen)
            druecke(kombination.key(), kombination.keyboardModifiers(), textVon(kombination));
        return;
    }
    for (const QChar zeichen : tasten)
        druecke(zeichen.toUpper().unicode(), Qt::NoModifier, zeichen);
}
