#include "shell/elements/Farben.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

QPalette Farben::palette()
{
    QPalette p(QColor(226, 230, 226), QColor(242, 244, 241));
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::AlternateBase, QColor(244, 248, 244));
    p.setColor(QPalette::Highlight, QColor(34, 110, 70));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(20, 95, 60));
    p.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    p.setColor(QPalette::ToolTipText, Qt::black);
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(rolle, QColor(16, 24, 18));
        p.setColor(QPalette::Disabled, rolle, QColor(140, 148, 141));
    }
    return p;
}

void faerbe(QWidget* feld, const QColor& grund, const QColor& schrift)
{
    const auto* rollend = qobject_cast<const QAbstractScrollArea*>(feld);
    const QWidget* flaeche = rollend ? rollend->viewport() : feld;
    const bool eingabe = qobject_cast<const QLineEdit*>(feld);
    QPalette p = feld->palette();
    p.setColor(eingabe ? QPalette::Base : flaeche->backgroundRole(), grund);
    p.setColor(eingabe ? QPalette::Text : flaeche->foregroundRole(), schrift);
    feld->setPalette(p);
    feld->setAutoFillBackground(true);
}

void hebeHervor(QPushButton* knopf, bool hervorgehoben)
{
    QPalette p;
    if (hervorgehoben)
        p.setColor(QPalette::Button, Farben::Gelaufen);
    knopf->setPalette(p);
}

void markiere(QWidget* feld, bool markiert)
{
    faerbe(feld, markiert ? Farben::Markiert : QGuiApplication::palette().color(QPalette::Base),
           markiert ? Farben::MarkiertText : Farben::Text);
    QFont schrift = feld->font();
    schrift.setBold(markiert);
    feld->setFont(schrift);
}
