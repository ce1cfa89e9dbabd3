#include "archive/screens/Ziehungsspeicher.h"

#include "archive/logic/Ziehungsschreiber.h"
#include "archive/screens/AnzeigeTexte.h"
#include "archive/screens/Editor.h"
#include "archive/screens/Spielartlader.h"
#include "shell/elements/Umgebung.h"
#include "shell/elements/Utf8.h"

#include <filesystem>

namespace {

constexpr auto kSicherung = "sa-mi-mib.dat";

bool bestaetigt(Umgebung& umgebung, const NeueZiehung& ziehung, const QString& spiel)
{
    return umgebung.boxen.frage(
        "Lottoprogramm Kontroll-Abfrage",
        QString("Sind die eingegebenen neuen Gewinnzahlen, das Spieljahr und die Spielwoche wirklich richtig?\n"
                "Stimmt die eingestellte Spielart (Samstagslotto, oder Mittwochslotto)?\n\n"
                "Eingestellte Spielart:             ***  %1  ***\n"
                "Aktive Ziehungsdatei ist:     %2\n"
                "Neuer Datensatz:                    %3\n\n"
                "Den neuen Datensatz jetzt speichern?")
            .arg(spiel, qt(ziehungsdateiName(umgebung.archiv.Spielart)), qt(anzeigeform(ziehung))));
}

/// The log is only ever added to where it already exists; without it nothing is missing.
void ergaenzeSicherung(const ZiehungsArchiv& archiv, const NeueZiehung& ziehung)
{
    const std::filesystem::path sicherung = findeDatei(archiv.ProgrammVerzeichnis, kSicherung);
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(sicherung, fehler))
        return;
    const std::string& datum = archiv.Datum[static_cast<std::size_t>(archiv.AnzahlZiehungen)];
    haengeZeileAn(sicherung, sicherungszeile(ziehung, archiv.Spielart, datum));
}

bool geschrieben(Umgebung& umgebung, const DateiErgebnis& ergebnis)
{
    if (!ergebnis)
        umgebung.boxen.info(kProgrammtitel, AnzeigeTexte::kSchreibfehler);
    return ergebnis.gut();
}

} // namespace

bool speichereZiehung(Umgebung& umgebung, const NeueZiehung& ziehung, const QString& spiel)
{
    if (!bestaetigt(umgebung, ziehung, spiel))
        return false;
    const std::string datei = utf8(aktiveZiehungsdatei(umgebung));
    if (!geschrieben(umgebung, haengeZeileAn(datei, neuerDatensatz(ziehung))))
        return false;
    ladeSpielart(umgebung, umgebung.archiv.Spielart);
    ergaenzeSicherung(umgebung.archiv, ziehung);
    return true;
}

bool erzeugeZiehungsdatei(Umgebung& umgebung)
{
    return geschrieben(umgebung, schreibeZiehungsdatei(utf8(aktiveZiehungsdatei(umgebung)), umgebung.archiv));
}
