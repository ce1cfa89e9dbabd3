#include "engines/screens/frmFUENFW.h"

#include "archive/logic/Spielarttexte.h"
#include "engines/logic/WiederholungBericht.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

/// What holds for one game alone.
const std::vector<std::string> kHinweise{
    "",
    "Hinweis:",
    "Sechserwiederholungen traten innerhalb einer Spielart bis",
    "heute (1998/17) nicht auf. In der Mittwochsziehung(A) 1995/25",
    "und der Samstagsziehung 1986/51 wurden jedoch die gleichen",
    "Gewinnzahlen (15,25,27,30,42,48) gezogen. Die Zusatzzahlen",
    "waren dabei unterschiedlich.",
    "Die Positionszahl für diese Gewinnzahlen: 12.588.102",
    "",
    "Unter Windows 98 ist die animierte Listendarstellung möglichst ",
    "abzuschalten. Es kann sonst bei einigen Progrmmteilen zu ",
    "Geschwindigkeitseinbußen kommen.",
    "Start->Einstellungen->Systemsteuerung->Anzeige->",
    "Register \"Effekte\" ->Fenster-Menüs und Listen nicht animieren",
};

constexpr std::array<const char*, 5> kAnzahlen{"Bezeichnung11", "Bezeichnung12", "Bezeichnung7", "Bezeichnung8",
                                               "Bezeichnung9"};

std::string ziehungsbereich(const ZiehungsArchiv& archiv)
{
    return std::to_string(archiv.AnzahlZiehungen) + " Ziehungen von " + jahrUndWoche(archiv, 1) + " bis " +
           jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen));
}

} // namespace

frmFÜNFW::frmFÜNFW(Umgebung& umgebung)
    : WiederholungsBildschirm(umgebung, "frmFÜNFW", "Zweier-, Dreier-, Vierer-, Fünfer- und Sechserwiederholungen",
                              kEineSpielart, kHinweise)
{
    for (std::size_t i = 0; i < kAnzahlen.size(); ++i)
        feld(kKleinsteWiederholung + static_cast<int>(i)).anzahl = bezeichnung(kAnzahlen[i]);
    Liste1 = liste("Liste1");
    Kontroll1 = kontroll("Kontroll1", "ein/aus");
    Befehl14 = befehl("Befehl14", "&Abbruch");
    Bezeichnung3 = bezeichnung("Bezeichnung3");
    Bezeichnung13 = bezeichnung("Bezeichnung13");
    alsUeberschrift(Bezeichnung13);
    Kontroll1->setChecked(true);
    Liste1->setzeSichtbar(5, static_cast<int>(kEineSpielart.striche));

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung13, luecke(), Bezeichnung3}),
        dehnbar(zeile({
            dehnbar(ergebnisblock(), 3),
            dehnbar(spalte({
                zusammenfassungsrahmen(),
                dehnbar(Rahmen2, 3),
                dehnbar(rahmen("RahmenFortschritt", " Fortschrittsanzeige:    ", spalte({Kontroll1, dehnbar(Liste1)}))),
            }), 2),
        })),
        zeile({Befehl14, Befehl20, Bezeichnung2, luecke(), Befehl2}),
    }));
    // clang-format on

    stoppknopf(Befehl14);
    bei(Befehl14, [this] {
        SucheAbbruch = true;
        Befehl2->setEnabled(true);
    });
    bei(Kontroll1, [this] { Kontroll1->setText(Kontroll1->isChecked() ? "ein" : "aus"); });
}

void frmFÜNFW::beimZeigen()
{
    Bezeichnung13->setText(qt(spielartGross(umgebung().archiv.Spielart)));
    Bezeichnung3->setText(qt(ziehungsbereich(umgebung().archiv)));
    fuelleZiehungen();
}

void frmFÜNFW::fuelleZiehungen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    std::vector<std::string> zeilen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        zeilen.push_back(detailzeile(archiv, nr, kEineSpielart));
    Liste1->modell().fuelle(std::move(zeilen));
}

void frmFÜNFW::beginntSuche()
{
    zeigtFortschritt_ = Kontroll1->isChecked();
    if (Liste1->zeilenzahl() < 2)
        fuelleZiehungen();
    SucheAbbruch = false;
}

void frmFÜNFW::zeigtZiehung(std::size_t nr)
{
    if (zeigtFortschritt_)
        waehleZiehung(nr);
}

void frmFÜNFW::endetSuche()
{
    SucheAbbruch = false;
    if (zeigtFortschritt_)
        waehleZiehung(static_cast<std::size_t>(Liste1->zeilenzahl()));
}

void frmFÜNFW::waehleZiehung(std::size_t nr)
{
    const int zeile = static_cast<int>(nr) - 1;
    if (zeile >= 0 && Liste1->modell().SetListIndex(zeile))
        Liste1->zeigeZeile(zeile);
}

bool frmFÜNFW::sollEnden() const
{
    return SucheAbbruch || umgebung().BerichtAbbruch;
}

std::string frmFÜNFW::spielname() const
{
    return std::string(spielartName(umgebung().archiv.Spielart));
}

std::string frmFÜNFW::berichtsschluss() const
{
    return erfassungstand(umgebung().archiv);
}
