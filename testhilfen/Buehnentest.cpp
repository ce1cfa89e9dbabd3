#include "testhilfen/Buehnentest.h"

#include "shell/elements/Programm.h"
#include "shell/logic/Lottozahl.h"

#include <QDir>
#include <QFile>

void Buehnentest::schreibe(const QString& name, const std::vector<std::string>& zeilen) const
{
    QFile datei(QDir(ordner.path()).filePath(name));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    for (const std::string& zeile : zeilen)
        datei.write(QByteArray::fromStdString(zeile + "\r\n"));
}

QString Buehnentest::gelungen(const Antwort& antwort)
{
    EXPECT_EQ(antwort.grund.toStdString(), "");
    return antwort.zeilen.join('\n');
}

void Buehnentest::oeffne(const QString& bildschirm)
{
    gelungen(bedienung.oeffne(bildschirm));
}
void Buehnentest::klicke(const QString& name)
{
    gelungen(bedienung.klicke(name));
}
void Buehnentest::ueberfahre(const QString& name)
{
    gelungen(bedienung.ueberfahre(name));
}
void Buehnentest::setze(const QString& name, const QString& text)
{
    gelungen(bedienung.setze(name, text));
}
void Buehnentest::tippe(const QString& name, const QString& tasten)
{
    gelungen(bedienung.tippe(name, tasten));
}
void Buehnentest::schliesse()
{
    gelungen(bedienung.schliesse());
}
QString Buehnentest::lies(const QString& name)
{
    return gelungen(bedienung.text(name));
}
QString Buehnentest::zustand(const QString& name)
{
    return gelungen(bedienung.zustand(name));
}
QList<int> Buehnentest::markierte(const QString& feld)
{
    QList<int> zahlen;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        if (zustand(QString("%1(%2)").arg(feld).arg(zahl)).endsWith("bold=true back=#00ffff fore=#ff0000"))
            zahlen << zahl;
    return zahlen;
}
QString Buehnentest::titel()
{
    return gelungen(bedienung.titel());
}

void Buehnentest::waehle(const QString& name, const QList<int>& zeilen)
{
    gelungen(bedienung.waehle(name, zeilen));
}

QStringList Buehnentest::boxen()
{
    QStringList alle;
    for (const GezeigteBox& box : buehne.boxen.entnehme())
        alle << box.art + "|" + box.titel + "|" + box.text;
    return alle;
}

int main(int anzahl, char** argumente)
{
    testing::InitGoogleTest(&anzahl, argumente);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Programm programm(anzahl, argumente);
    return RUN_ALL_TESTS();
}
