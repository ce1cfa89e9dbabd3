// Runs the real screens and obeys command lines from standard input; README.md beside this file lists them.

#include "shell/app/Programmstart.h"
#include "shell/elements/Programm.h"
#include "tools/drive/Fernsteuerung.h"

#include <QCommandLineParser>

#include <cstdio>
#include <iostream>
#include <string>
#include <thread>

namespace {

struct Optionen {
    QString verzeichnis;
    QString zeit;
    QString saat;
};

/// Nothing if the arguments are wrong; the reason has been printed.
std::optional<Optionen> liesOptionen(const QCoreApplication& programm)
{
    QCommandLineParser zerleger;
    zerleger.addOptions({{"dir", "ProgrammVerzeichnis", "DIR"}, {"clock", "Uhrzeit", "ISO"}, {"seed", "Saat", "N"}});
    zerleger.addHelpOption();
    zerleger.process(programm);
    if (!zerleger.isSet("dir")) {
        std::fputs("tombrix-drive --dir DIR [--clock ISO] [--seed N]\n", stderr);
        return std::nullopt;
    }
    return Optionen{zerleger.value("dir"), zerleger.value("clock"), zerleger.value("seed")};
}

void gibAus(const QString& zeile)
{
    const QByteArray bytes = zeile.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

/// Reads standard input on a thread of its own and hands the lines to the event loop.
void leseEingabe(Fernsteuerung& steuerung)
{
    std::string zeile;
    while (std::getline(std::cin, zeile)) {
        if (!zeile.empty() && zeile.back() == '\r')
            zeile.pop_back();
        QMetaObject::invokeMethod(&steuerung, [&steuerung, zeile] { steuerung.nimm(QString::fromStdString(zeile)); });
    }
    QMetaObject::invokeMethod(&steuerung, [&steuerung] { steuerung.nimmEnde(); });
}

} // namespace

int main(int anzahl, char** argumente)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Programm programm(anzahl, argumente);
    const auto optionen = liesOptionen(programm);
    if (!optionen)
        return 2;

    Buehne buehne(optionen->verzeichnis);
    registriereBildschirme(buehne.bildschirme);
    if (!optionen->zeit.isEmpty() && !buehne.uhr.stelle(optionen->zeit.toStdString())) {
        std::fputs("--clock: keine Zeit\n", stderr);
        return 2;
    }
    if (!optionen->saat.isEmpty()) {
        bool istZahl = false;
        buehne.zufall.stelle(optionen->saat.toULongLong(&istZahl));
        if (!istZahl) {
            std::fputs("--seed: keine Saat\n", stderr);
            return 2;
        }
    }

    Fernsteuerung steuerung(buehne, gibAus);
    std::thread leser([&steuerung] { leseEingabe(steuerung); });
    leser.detach();
    bool zuEnde = false;
    steuerung.beiEnde = [&zuEnde] {
        zuEnde = true;
        QCoreApplication::exit(); // a screen that stays open would hold up quit()
    };
    starteProgramm(buehne.umgebung);
    if (!zuEnde)
        QCoreApplication::exec();
    buehne.bildschirme.entladeAlle();
    // The reader may still wait for a line: the program ends without it.
    std::_Exit(steuerung.missglueckt() ? 1 : 0);
}
