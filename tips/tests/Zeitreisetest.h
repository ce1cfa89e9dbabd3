#pragma once

#include "engines/screens/Registrierung.h"
#include "shell/elements/Bildschirm.h"
#include "testhilfen/Archivbuehne.h"
#include "tips/screens/Registrierung.h"

#include <QFile>

/// The stage of the time travel. Saturday has 1886 draws of 1 2 40 41 42 43 without a Superzahl, all of them with the
/// Superzahl 4 in their record, and behind them four with one: 1 2 3 40 41 42 (4), 1 2 40 41 42 43 (4), 1 2 3 4 5 6 (5)
/// and 7 8 9 10 11 12 (3). Wednesday has 1 2 3 4 40 41 and 1 2 3 40 41 42 with the Zusatzzahl 5, Wednesday (B)
/// 1 2 3 4 40 41 with the Zusatzzahl 5.
class Zeitreisetest : public Archivbuehne {
protected:
    Zeitreisetest()
        : Archivbuehne([](BildschirmVerzeichnis& verzeichnis) {
              registriereTippbildschirme(verzeichnis);
              registriereSuchbildschirme(verzeichnis);
          })
    {
        std::vector<std::string> samstag(1886, "1970,01,01,02,40,41,42,43,00,4");
        samstag.insert(samstag.end(), {"1991,49,01,02,03,40,41,42,00,4", "1991,50,01,02,40,41,42,43,00,4",
                                       "1991,51,01,02,03,04,05,06,00,5", "1991,52,07,08,09,10,11,12,00,3"});
        schreibe("SALOTTO.DAT", samstag);
        schreibe("MALOTTO.DAT", {"1986,23,01,02,03,04,40,41,00,0", "1991,50,01,02,03,40,41,42,05,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,02,03,04,40,41,05,0"});
    }

    void klickeZahlen(const QList<int>& zahlen)
    {
        for (const int zahl : zahlen)
            klicke(QString("Bezeichnung6(%1)").arg(zahl));
    }
    void stelleSuperzahl(int superzahl)
    {
        while (lies("lblSZ").toInt() != superzahl)
            klicke("Command2");
    }

    int zeilen() { return bedienung.anzahl("ListView1").zeilen.value(0).toInt(); }
    /// The cells of a row without the separators, joined by "|".
    QString zeile(int nummer)
    {
        const QStringList alle = bedienung.zeilen("ListView1", nummer, 1).zeilen.value(0).split('\t');
        QStringList daten;
        for (qsizetype spalte = 0; spalte < alle.size(); spalte += 2)
            daten << alle[spalte];
        return daten.join('|');
    }
    /// The texts of fields, joined by blanks.
    QString felder(const QStringList& namen)
    {
        QStringList texte;
        for (const QString& name : namen)
            texte << lies(name);
        return texte.join(' ');
    }
    QString haeufigkeiten() { return felder({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"}); }
    QString tippzahlen()
    {
        return felder(
            {"Bezeichnung10", "Bezeichnung11", "Bezeichnung12", "Bezeichnung14", "Bezeichnung15", "Bezeichnung16"});
    }

    QByteArray aufDemDesktop(const QString& name) const
    {
        QFile datei(ordner.filePath("Desktop/" + name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    bool liegtAufDemDesktop(const QString& name) const { return QFile::exists(ordner.filePath("Desktop/" + name)); }

    inline static const QList<int> kTip{1, 2, 3, 4, 5, 6};
};
