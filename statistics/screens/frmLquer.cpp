#include "statistics/screens/frmLquer.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/ZZModus.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kZeilen = 24;
constexpr int kZeichen = 50;
constexpr auto kInfotitelSummen = "Mögliche Summen max/min pro Lottoziehung 6 aus 49";
constexpr auto kInfo = "Mögliche Summe max. (ohne ZZ):"
                       "279\n"
                       "Mögliche Summe max.  ( mit ZZ):"
                       "322\n"
                       "Mögliche Summe min. (ohne ZZ):"
                       " 21\n"
                       "Mögliche Summe min.  ( mit ZZ):"
                       " 28";

std::string bereich(const ZiehungsArchiv& archiv)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    return "Auswertung von " + jahrUndWoche(archiv, std::min<std::size_t>(1, letzte)) + " bis " +
           jahrUndWoche(archiv, letzte);
}

} // namespace

frmLquer::frmLquer(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmLquer", "Ermitteln der Summe der Gewinnzahlen pro Ziehung")
{
    Liste1 = liste("Liste1");
    Liste1->setzeSichtbar(kZeilen, kZeichen);
    auto* Bezeichnung2 = listenkopf("Bezeichnung2", "    Summe               Ziehung");
    Bezeichnung1 = bezeichnung("Bezeichnung1");
    Bezeichnung3 = bezeichnung("Bezeichnung3");
    Bezeichnung4 = bezeichnung("Bezeichnung4");
    Bezeichnung5 = bezeichnung("Bezeichnung5");
    Bezeichnung6 = bezeichnung("Bezeichnung6");
    Bezeichnung7 = bezeichnung("Bezeichnung7");
    Bezeichnung8 = bezeichnung("Bezeichnung8");
    alsUeberschrift(Bezeichnung1);
    Befehl1 = befehl("Befehl1", qt(zzBefehl(ZZModus::Ohne)));
    Befehl2 = befehl("Befehl2", qt(zzBefehl(ZZModus::Mit)));
    Befehl3 = befehl("Befehl3", "&Zurück");
    Befehl4 = befehl("Befehl4", "&Häufigste Summe suchen");
    cmdInfo = befehl("cmdInfo", "&Info");
    hauptaktionen({Befehl1, Befehl2});

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung1, luecke(), Bezeichnung8}),
        dehnbar(rahmen("Rahmen1", "Detailierte Auflistung", eng(spalte({Bezeichnung2, dehnbar(Liste1)})))),
        zeile({Bezeichnung3, luecke(), Bezeichnung4, luecke(), Bezeichnung5}),
        Bezeichnung6,
        Bezeichnung7,
        zeile({Befehl1, Befehl2, Befehl4, luecke(), cmdInfo, Befehl3}),
    }));
    // clang-format on

    bei(Befehl1, [this] { summiereAlle(false); });
    bei(Befehl2, [this] { summiereAlle(true); });
    bei(Befehl3, [this] { schliesse(); });
    bei(Befehl4, [this] { Bezeichnung7->setText(qt(haeufigstetext(ergebnis_))); });
    bei(cmdInfo, [this] { this->umgebung().boxen.info(kInfotitelSummen, kInfo); });
}

void frmLquer::beimZeigen()
{
    Bezeichnung1->setText(qt(spielartName(umgebung().archiv.Spielart)));
    Bezeichnung8->setText(qt(bereich(umgebung().archiv)));
}

void frmLquer::summiereAlle(bool mitZZ)
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    beimZeigen();
    ergebnis_ = summiere(umgebung().archiv, mitZZ);
    Liste1->modell().fuelle(ergebnis_.zeilen);
    Bezeichnung3->setText(qt(anzahltext(ergebnis_)));
    Bezeichnung4->setText(qt(minimumText(ergebnis_)));
    Bezeichnung5->setText(qt(maximumText(ergebnis_)));
    Bezeichnung6->setText(qt(gesamttext(ergebnis_)));
    Bezeichnung7->clear();
    zeigeGelaufen(mitZZ ? Befehl2 : Befehl1);
}
