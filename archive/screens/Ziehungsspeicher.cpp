#include "archive/screens/Ziehungsspeicher.h"

#include "archive/logic/Ziehungskalender.h"
#include "archive/logic/Ziehungsschreiber.h"
#include "archive/screens/AnzeigeTexte.h"
#include "archive/screens/Editor.h"
#include "archive/screens/Spielartlader.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateianhang.h"
#include "shell/logic/Dateisperre.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <filesystem>
#include <optional>

namespace {

constexpr auto kSicherung = "sa-mi-mib.dat";
constexpr std::chrono::milliseconds kSicherungszeit{500};

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
void ergaenzeSicherung(const ZiehungsArchiv& archiv, const NeueZiehung& ziehung, std::int32_t nr)
{
    const std::filesystem::path sicherung = findeDatei(archiv.ProgrammVerzeichnis, kSicherung);
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(sicherung, fehler))
        return;
    const auto sperre = Dateisperre::nimm(sicherung, kSicherungszeit);
    const auto tag = istSamstag(archiv.Spielart) ? samstagsZiehung(nr) : mittwochsZiehung(nr);
    if (sperre)
        haengeZeileAn(sicherung, sicherungszeile(ziehung, archiv.Spielart, datumText(tag)));
}

QString fehlertext(const Schreibergebnis& ergebnis, const QString& datei)
{
    switch (ergebnis.ausgang) {
    case Schreibausgang::Besetzt:
        return QString(AnzeigeTexte::kBesetzt).arg(datei);
    case Schreibausgang::Unlesbar:
        return QString(AnzeigeTexte::kUnlesbar).arg(datei).arg(ergebnis.nr);
    case Schreibausgang::NichtBestaetigt:
        return QString(AnzeigeTexte::kNichtBestaetigt).arg(datei);
    case Schreibausgang::Schreibfehler:
    case Schreibausgang::Gut:
        break;
    }
    return AnzeigeTexte::kSchreibfehler;
}

/// The screen while it waits for another program: it stays alive but takes no input, since what has been begun is to be
/// ended first.
class Wartestand {
public:
    explicit Wartestand(Bildschirm& bildschirm)
        : bildschirm_(bildschirm),
          lauf_(bildschirm, "Ein anderes Programm ändert die Ziehungsdatei. Bitte warten !"),
          fokus_(bildschirm.focusWidget())
    {
        bildschirm_.setEnabled(false);
    }
    Wartestand(const Wartestand&) = delete;
    Wartestand& operator=(const Wartestand&) = delete;
    ~Wartestand()
    {
        bildschirm_.setEnabled(true);
        if (fokus_)
            fokus_->setFocus();
    }

    /// False if the screen is closed meanwhile.
    bool weiter() { return lauf_.weiter(); }

private:
    Bildschirm& bildschirm_;
    Lauf lauf_;
    QPointer<QWidget> fokus_;
};

/// Changes the active Ziehungsdatei. Nothing, behind a box, after an error.
template <class Schreibe> std::optional<std::int32_t> schreibeMitPause(Bildschirm& bildschirm, Schreibe schreibe)
{
    Umgebung& umgebung = bildschirm.umgebung();
    std::optional<Wartestand> wartestand;
    const Schreibergebnis ergebnis = schreibe([&] {
        if (!wartestand)
            wartestand.emplace(bildschirm);
        return wartestand->weiter();
    });
    wartestand.reset();
    if (ergebnis.ausgang == Schreibausgang::Gut)
        return ergebnis.nr;
    umgebung.boxen.info(kProgrammtitel, fehlertext(ergebnis, qt(ziehungsdateiName(umgebung.archiv.Spielart))));
    return std::nullopt;
}

} // namespace

bool speichereZiehung(Bildschirm& bildschirm, const NeueZiehung& ziehung, const QString& spiel)
{
    Umgebung& umgebung = bildschirm.umgebung();
    if (!bestaetigt(umgebung, ziehung, spiel))
        return false;
    const auto nr = schreibeMitPause(bildschirm, [&](const Sperrpause& pause) {
        return haengeZiehungAn(utf8(aktiveZiehungsdatei(umgebung)), neuerDatensatz(ziehung), pause);
    });
    if (!nr)
        return false;
    ladeSpielart(umgebung, umgebung.archiv.Spielart);
    ergaenzeSicherung(umgebung.archiv, ziehung, *nr);
    return true;
}

bool erzeugeZiehungsdatei(Bildschirm& bildschirm)
{
    Umgebung& umgebung = bildschirm.umgebung();
    const auto nr = schreibeMitPause(
        bildschirm, [&](const Sperrpause& pause) { return erzeugeZiehungsdatei(umgebung.archiv, pause); });
    if (nr)
        ladeSpielart(umgebung, umgebung.archiv.Spielart);
    return nr.has_value();
}
