#pragma once

#include "archive/tests/Archivbildschirmtest.h"
#include "testhilfen/Testserver.h"

#include <QDir>
#include <QFile>

/// The box about a rejected file.
inline constexpr auto kAbgewiesen =
    "info|Tombrix|Fehler: Die vom Server geladene Datei ist fehlerhaft oder ist älter als die Ziehungsdatei auf ihrem "
    "Rechner! Ihre Ziehungsdatei wird wieder hergestellt.";

/// The screen of the online update against a server on this machine.
class Onlinetest : public Archivbildschirmtest {
protected:
    void oeffneOnline()
    {
        starte();
        oeffne("frmOnline");
        setze("txtSa", adresse("/lotto/Salotto.dat"));
        setze("txtMa", adresse("/lotto/Malotto.dat"));
        setze("txtURL", adresse("/lotto/ziehungen.zip"));
    }
    QString adresse(const std::string& pfad) const { return QString::fromStdString(server.url(pfad)); }
    std::string inhalt(const QString& name) const
    {
        QFile datei(QDir(ordner.path()).filePath(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll().toStdString() : std::string();
    }
    void schreibeBytes(const QString& name, const std::string& bytes) const
    {
        QFile datei(QDir(ordner.path()).filePath(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(QByteArray::fromStdString(bytes));
    }
    bool gibtEs(const QString& name) const { return QFile::exists(QDir(ordner.path()).filePath(name)); }
    /// Every entry of the program directory besides the three files that it begins with.
    QStringList zusaetzliche() const
    {
        QStringList namen = QDir(ordner.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const char* eigene : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
            namen.removeAll(eigene);
        return namen;
    }
    /// A file with one draw more.
    static std::string mitEinerMehr(const std::string& bytes) { return bytes + "2026,47,01,02,03,14,25,49,00,7\r\n"; }

    Testserver server;
};
