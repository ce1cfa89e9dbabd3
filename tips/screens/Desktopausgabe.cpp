#include "tips/screens/Desktopausgabe.h"

#include "reports/frame/Seitenablage.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"
#include "tips/logic/Zeitreiseausgabe.h"
#include "tips/screens/Felder.h"

#include <QDir>
#include <QPushButton>

#include <utility>

namespace {

QPushButton* ausgabeknopf(Bildschirm& bildschirm, const QString& name, const QString& text, const QString& hinweis)
{
    auto* neuer = benannt(new QPushButton(text, &bildschirm), name);
    neuer->setToolTip(hinweis);
    setzeHinweis(neuer, hinweis);
    neuer->setEnabled(false);
    return neuer;
}

/// The user's home where the system has no desktop.
QDir desktop(const Umgebung& umgebung)
{
    const QString ordner = umgebung.desktopordner.value_or(SpezialOrdner(kCsidlDesktop));
    return ordner.isEmpty() ? QDir::home() : QDir(ordner);
}

} // namespace

Desktopausgabe::Desktopausgabe(Bildschirm& bildschirm, std::function<Zeitreise()> inhalt)
    : bildschirm_(bildschirm),
      inhalt_(std::move(inhalt)),
      Befehl18(ausgabeknopf(bildschirm, "Befehl18", "&Export", "Exportiert die Ergebnisliste als csv- Datei.")),
      cmdHtml_Gewinn(ausgabeknopf(bildschirm, "cmdHtml_Gewinn", "&Html",
                                  "Erzeugt die Gewinnliste als Html-Datei und legt sie auf dem Desktop ab."))
{
    QObject::connect(Befehl18, &QPushButton::clicked, Befehl18, [this] {
        const Zeitreise zeitreise = inhalt_();
        if (zeitreise.zeilen.empty())
            bildschirm_.melde("Die Liste ist leer.");
        else
            schreibe(csvDateiname(zeitreise), writeCsv(zeitreise));
    });
    QObject::connect(cmdHtml_Gewinn, &QPushButton::clicked, cmdHtml_Gewinn,
                     [this] { schreibe(kGewinnlistenDatei, writeHtml(inhalt_())); });
}

void Desktopausgabe::erlaube(const Zeitreise& zeitreise)
{
    Befehl18->setEnabled(true);
    const bool tipp = zeitreise.art != Zeitreiseart::Suche && !zeitreise.zahlen.empty();
    cmdHtml_Gewinn->setEnabled(tipp && !zeitreise.zeilen.empty());
}

void Desktopausgabe::sperreHtml()
{
    cmdHtml_Gewinn->setEnabled(false);
}

void Desktopausgabe::schreibe(std::string_view name, const std::string& bytes)
{
    const QDir ordner = desktop(bildschirm_.umgebung());
    const std::filesystem::path pfad = utf8(ordner.absolutePath());
    if (!macheSeitenordner(pfad) || !schreibeDatei(pfad / name, bytes)) {
        bildschirm_.umgebung().boxen.info(kProgrammtitel, qt(schreibfehler().text));
        return;
    }
    const QString datei = ordner.absoluteFilePath(qt(name));
    bildschirm_.melde("Gespeichert: " + datei);
    bildschirm_.umgebung().oeffner.oeffne(datei);
}
