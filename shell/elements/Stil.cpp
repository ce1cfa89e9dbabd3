#include "shell/elements/Stil.h"

#include "shell/elements/Farben.h"
#include "shell/elements/Programmstil.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QTranslator>
#include <QWidget>

void Stil::richteEin(QApplication& programm)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* uebersetzung = new QTranslator(&programm);
    if (uebersetzung->load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        programm.installTranslator(uebersetzung);
    programm.setStyle(new Programmstil);
    programm.setPalette(Farben::palette());
    QFont schrift;
    schrift.setFamilies({"Segoe UI", "Arial", "Liberation Sans"});
    schrift.setPointSizeF(10);
    programm.setFont(schrift);
}

QFont Stil::festeSchrift()
{
    QFont schrift;
    schrift.setFamilies({"Courier New", "Liberation Mono"});
    schrift.setStyleHint(QFont::Monospace);
    schrift.setFixedPitch(true);
    schrift.setPointSizeF(10);
    return schrift;
}

void alsUeberschrift(QWidget* feld)
{
    QFont schrift = feld->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.15);
    schrift.setBold(true);
    feld->setFont(schrift);
}

void alsAnzeige(QLineEdit* feld)
{
    QPalette farben = feld->palette();
    farben.setColor(QPalette::Base, farben.color(QPalette::Window));
    feld->setPalette(farben);
    feld->setReadOnly(true);
    feld->setFrame(false);
    feld->setFocusPolicy(Qt::ClickFocus);
}
