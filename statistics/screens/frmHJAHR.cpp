#include "statistics/screens/frmHJAHR.h"

#include "archive/logic/Spielarttexte.h"
#include "reports/frame/Seitenablage.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "statistics/screens/DatumOderWoche.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr auto kErklaerung = "Was wird nach dem Start geschehen?\n\n"
                             "Es wird eine Html-Datei erzeugt die eine Tabelle enthält.\n"
                             "Die Tabelle zeigt für jedes Spieljahr die Häufigkeitsverteilung der gezogenen\n"
                             "Gewinnzahlen. Die Maxima pro Spieljahr werden \"rot\", die Minima \"blau\"  \n"
                             "dargestellt. Nach Fertigstellung der Html-Datei wird die Datei mit dem  \n"
                             "Standardbrowser geöffnet.\n\n"
                             "Legende: ZZ -> Zusatzzahl";

} // namespace

frmHJAHR::frmHJAHR(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmHJAHR", "Häufigkeit der Gewinnzahlen pro Spieljahr (als HTML-Datei)")
{
    Bezeichnung1 = bezeichnung("Bezeichnung1");
    Bezeichnung2 = bezeichnung("Bezeichnung2", kErklaerung);
    Bezeichnung3 = bezeichnung("Bezeichnung3");
    optDatumOderWoche = new DatumOderWoche(*this);
    Befehl1 = befehl("Befehl1", "&<<");
    Befehl2 = befehl("Befehl2", qt(zzKurzbefehl(ZZModus::Ohne)));
    Befehl3 = befehl("Befehl3", qt(zzKurzbefehl(ZZModus::Mit)));
    Befehl4 = befehl("Befehl4", qt(zzKurzbefehl(ZZModus::Nur)));
    alsUeberschrift(Bezeichnung1);
    hauptaktionen({Befehl2, Befehl3, Befehl4});

    // clang-format off
    setzeInhalt(spalte({
        Bezeichnung1,
        rahmen("Rahmen1", "", spalte({Bezeichnung2})),
        Bezeichnung3,
        optDatumOderWoche,
        luecke(),
        zeile({
            rahmen("Rahmen3", "Auswertung starten", zeile({Befehl2, Befehl3, Befehl4})),
            luecke(),
            spalte({luecke(), Befehl1}),
        }),
    }));
    // clang-format on

    bei(Befehl1, [this] { schliesse(); });
    bei(Befehl2, [this] { erzeuge(ZZModus::Ohne); });
    bei(Befehl3, [this] { erzeuge(ZZModus::Mit); });
    bei(Befehl4, [this] { erzeuge(ZZModus::Nur); });
}

void frmHJAHR::beimZeigen()
{
    zeigeStand();
}

void frmHJAHR::zeigeStand()
{
    Bezeichnung1->setText(qt(spielartGross(umgebung().archiv.Spielart)));
    Bezeichnung3->setText(qt(gespeicherteZiehungen(umgebung().archiv)));
}

void frmHJAHR::erzeuge(ZZModus modus)
{
    std::optional<Meldung> fehler;
    {
        Lauf lauf(*this);
        if (!lauf)
            return;
        zeigeStand();
        ergebnis_ = yearTable(umgebung().archiv, modus, optDatumOderWoche->nachDatum());
        fehler = legeSeiteAb(ordner(), datei(), jahrestabellenSeite(ergebnis_));
    }
    if (fehler)
        umgebung().boxen.info(fehler->titel.empty() ? kProgrammtitel : qt(fehler->titel), qt(fehler->text));
    else
        zeigeSeite();
}

void frmHJAHR::zeigeSeite()
{
    const QString seite = qt((ordner() / datei()).string());
    const std::array modusknoepfe{Befehl2, Befehl3, Befehl4};
    zeigeGelaufen(modusknoepfe[zzStelle(ergebnis_.ZaehlModus)]);
    setzeTitel("Gespeichert: " + seite);
    umgebung().oeffner.oeffne(seite);
}

std::filesystem::path frmHJAHR::ordner() const
{
    return umgebung().archiv.ProgrammVerzeichnis + std::string(kJahrestabellenOrdner);
}

std::string frmHJAHR::datei() const
{
    return jahrestabellenDatei(ergebnis_.Spielart, ergebnis_.ZaehlModus);
}
