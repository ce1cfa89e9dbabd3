#pragma once

#include "filters/tests/Filtertest.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Bildschirm.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <functional>

/// The stage of both screens of the number neighbours: three draws of Saturday, two of Wednesday, one of its draw B.
class Nachbarbuehne : public Filtertest {
protected:
    Nachbarbuehne()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,20,30,00,5", "1955,42,01,02,10,11,30,40,00,6",
                                 "1955,43,05,10,15,20,48,49,00,7"});
        schreibe("MALOTTO.DAT", {"1986,23,01,02,20,21,22,40,00,1", "1986,24,11,12,13,20,21,22,00,2"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,02,10,11,48,49,00,3"});
    }

    void zeige(const QString& bildschirm)
    {
        starte();
        oeffne(bildschirm);
    }
    QStringList zeilen() { return bedienung.zeilen("ListView1", 0, 10'000'000).zeilen; }
    /// A row's cells without the separators, joined by ";".
    QStringList kurz()
    {
        QStringList alle;
        for (const QString& zeile : zeilen()) {
            const QStringList zellen = zeile.split('\t');
            QStringList daten;
            for (qsizetype i = 0; i < zellen.size(); i += 2)
                daten << zellen[i];
            alle << daten.join(';');
        }
        return alle;
    }
    Bildschirm& schirm(const QString& name) const { return *buehne.bildschirme.geladen(name); }

    /// Clicks, and does `tue` at turn `zug` (from 1) of the event loop that follows.
    void klickeUnd(const QString& name, int zug, const std::function<void()>& tue)
    {
        int zuege = 0;
        buehne.pumpe.beiZug = [&] {
            if (++zuege == zug)
                tue();
        };
        klicke(name);
        buehne.pumpe.beiZug = nullptr;
        EXPECT_GE(zuege, zug);
    }

    QString seitenpfad(const QString& name) const { return ordner.filePath(name); }
    static QByteArray inhalt(const QString& pfad)
    {
        QFile datei(pfad);
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << pfad.toStdString();
        return datei.readAll();
    }
    void legeAlteSeite(const QString& name) const
    {
        QFile datei(seitenpfad(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write("alt");
    }
    /// Leftovers of a write would be here too.
    QStringList seiten() const
    {
        return QDir(ordner.path()).entryList({"*.htm", "*.tmp", ".*"}, QDir::Files | QDir::Hidden, QDir::Name);
    }
};
