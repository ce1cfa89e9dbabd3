#include "tools/buehne/Feldwert.h"

#include "shell/elements/Zeilenansicht.h"
#include "tools/buehne/Eingabe.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>

#include <optional>

namespace {

QString liesAuswahl(const Zeilenansicht* ansicht)
{
    for (int zeile = 0; zeile < ansicht->zeilenzahl(); ++zeile)
        if (ansicht->istGewaehlt(zeile))
            return ansicht->zeilentext(zeile);
    return {};
}

QString setzeTextfeld(QLineEdit* feld, const QString& text)
{
    if (feld->isReadOnly())
        return "nur zum Lesen";
    feld->setFocus(Qt::OtherFocusReason);
    feld->selectAll();
    feld->insert(text);
    emit feld->editingFinished();
    return {};
}

QString setzeKombi(QComboBox* kombi, const QString& text)
{
    int stelle = kombi->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    for (int i = 0; stelle < 0 && i < kombi->count(); ++i)
        if (kombi->itemText(i).trimmed() == text.trimmed())
            stelle = i;
    if (stelle >= 0) {
        kombi->setCurrentIndex(stelle);
        emit kombi->activated(stelle);
        return {};
    }
    if (!kombi->isEditable())
        return "kein Eintrag " + text;
    return setzeTextfeld(kombi->lineEdit(), text);
}

QString setzeKnopf(QAbstractButton* knopf, const QString& text)
{
    if (!knopf->isCheckable() || (text != "on" && text != "off"))
        return "weder on noch off";
    if (knopf->isChecked() != (text == "on"))
        Eingabe::klicke(knopf, knopf->rect().center());
    return knopf->isChecked() == (text == "on") ? QString() : "bleibt, wie es ist";
}

QString setzeRegler(QAbstractSlider* regler, const QString& text)
{
    bool zahl = false;
    const int wert = text.toInt(&zahl);
    if (!zahl || wert < regler->minimum() || wert > regler->maximum())
        return QString("kein Wert von %1 bis %2").arg(regler->minimum()).arg(regler->maximum());
    regler->setValue(wert);
    return {};
}

/// The roles of the colours that a control is painted in.
struct Farbrollen {
    QPalette::ColorRole grund;
    QPalette::ColorRole schrift;
};

/// Those of a control that always paints a background of its own.
std::optional<Farbrollen> eigeneRollen(const QWidget* feld)
{
    const auto* kombi = qobject_cast<const QComboBox*>(feld);
    if (qobject_cast<const QLineEdit*>(feld) || qobject_cast<const QAbstractSpinBox*>(feld) ||
        qobject_cast<const QAbstractScrollArea*>(feld) || (kombi && kombi->isEditable()))
        return Farbrollen{QPalette::Base, QPalette::Text};
    if (qobject_cast<const QPushButton*>(feld) || kombi)
        return Farbrollen{QPalette::Button, QPalette::ButtonText};
    return std::nullopt;
}

/// The colour behind a control: its own, or that of the nearest parent that paints one.
QColor grundVon(const QWidget* feld)
{
    for (const QWidget* grund = feld;; grund = grund->parentWidget()) {
        if (const auto rollen = eigeneRollen(grund))
            return grund->palette().color(rollen->grund);
        if (!grund->parentWidget() || grund->isWindow() || grund->autoFillBackground())
            return grund->palette().color(grund->backgroundRole());
    }
}

QColor schriftVon(const QWidget* feld)
{
    const auto rollen = eigeneRollen(feld);
    return feld->palette().color(rollen ? rollen->schrift : feld->foregroundRole());
}

QString wahr(bool wert)
{
    return wert ? "true" : "false";
}

QString zustandszeile(bool sichtbar, bool bedienbar, bool gesetzt, const QFont& schriftart, const QColor& grund,
                      const QColor& schrift)
{
    return QString("visible=%1 enabled=%2 checked=%3 bold=%4 back=%5 fore=%6")
        .arg(wahr(sichtbar), wahr(bedienbar), wahr(gesetzt), wahr(schriftart.bold()), grund.name(), schrift.name());
}

} // namespace

QString liesFeld(const QObject* feld)
{
    if (const auto* knopf = qobject_cast<const QAbstractButton*>(feld))
        return knopf->text();
    if (const auto* bezeichnung = qobject_cast<const QLabel*>(feld))
        return bezeichnung->text();
    if (const auto* zeile = qobject_cast<const QLineEdit*>(feld))
        return zeile->text();
    if (const auto* kombi = qobject_cast<const QComboBox*>(feld))
        return kombi->currentText();
    if (const auto* rahmen = qobject_cast<const QGroupBox*>(feld))
        return rahmen->title();
    if (const auto* text = qobject_cast<const QTextEdit*>(feld))
        return text->toPlainText();
    if (const auto* klartext = qobject_cast<const QPlainTextEdit*>(feld))
        return klartext->toPlainText();
    if (const auto* drehfeld = qobject_cast<const QAbstractSpinBox*>(feld))
        return drehfeld->text();
    if (const auto* regler = qobject_cast<const QAbstractSlider*>(feld))
        return QString::number(regler->value());
    if (const auto* balken = qobject_cast<const QProgressBar*>(feld))
        return QString::number(balken->value());
    if (const auto* eintrag = qobject_cast<const QAction*>(feld))
        return eintrag->text();
    if (const auto* ansicht = dynamic_cast<const Zeilenansicht*>(feld))
        return liesAuswahl(ansicht);
    if (const auto* fenster = qobject_cast<const QWidget*>(feld))
        return fenster->windowTitle();
    return {};
}

QString setzeFeld(QWidget* feld, const QString& text)
{
    if (auto* zeile = qobject_cast<QLineEdit*>(feld))
        return setzeTextfeld(zeile, text);
    if (auto* kombi = qobject_cast<QComboBox*>(feld))
        return setzeKombi(kombi, text);
    if (auto* knopf = qobject_cast<QAbstractButton*>(feld))
        return setzeKnopf(knopf, text);
    if (auto* regler = qobject_cast<QAbstractSlider*>(feld))
        return setzeRegler(regler, text);
    if (auto* drehfeld = qobject_cast<QSpinBox*>(feld)) {
        drehfeld->setValue(text.toInt());
        return {};
    }
    if (auto* lang = qobject_cast<QTextEdit*>(feld); lang && !lang->isReadOnly()) {
        lang->setPlainText(text);
        return {};
    }
    if (auto* klartext = qobject_cast<QPlainTextEdit*>(feld); klartext && !klartext->isReadOnly()) {
        klartext->setPlainText(text);
        return {};
    }
    return "nimmt keine Eingabe";
}

QString zustandVon(const QWidget* feld)
{
    const auto* knopf = qobject_cast<const QAbstractButton*>(feld);
    return zustandszeile(feld->isVisible(), feld->isEnabled(), knopf && knopf->isChecked(), feld->font(),
                         grundVon(feld), schriftVon(feld));
}

QString zustandVon(const QAction* eintrag, bool zuSehen)
{
    const QPalette farben = QApplication::palette("QMenu");
    const auto gruppe = eintrag->isEnabled() ? QPalette::Active : QPalette::Disabled;
    return zustandszeile(zuSehen && eintrag->isVisible(), eintrag->isEnabled(), eintrag->isChecked(), eintrag->font(),
                         farben.color(gruppe, QPalette::Window), farben.color(gruppe, QPalette::WindowText));
}
