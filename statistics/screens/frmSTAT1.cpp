#include "statistics/screens/frmSTAT1.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zahlenblock.h"
#include "shell/elements/Zeilendruck.h"
#include "shell/logic/Lottozahl.h"
#include "statistics/screens/frmGraph.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr auto kErgebnistitel = "Häufigkeitsverteilung der einzelnen Zahlen";

constexpr auto kInfo = "Es wird ermittelt, wie oft jede der 49 Gewinnzahlen im gewählten Bereich gezogen wurde. Die "
                       "größte Häufigkeit wird "
                       "rot, die kleinste cyan markiert.\n\n"
                       "Der Bereich wird nach Jahren gewählt, oder mit \"Z\" bis zu einer bestimmten Ziehung.\n\n";

constexpr auto kInfoMittwoch =
    "Bei ausgewählter Spielart Mittwochslotto wird die zusätzliche Befehlsschaltfläche Mittwochslotto (A+B) sichtbar. "
    "Mit dieser Befehlsschaltfläche werden zusätzlich die Ziehungen der Ziehung B ausgewertet. Die Ziehung B wurde im "
    "Mittwochslotto bis 29.11.2000 ausgespielt. Ausgewertet wird dabei ohne Zusatzzahl.";

/// Keeps room for a text, so that nothing moves when it comes.
void haltePlatz(QLabel* feld, const QString& text)
{
    feld->setMinimumWidth(feld->fontMetrics().horizontalAdvance(text));
}

} // namespace

frmSTAT1::frmSTAT1(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmSTAT1", "Häufigkeitsverteilung der einzelnen Gewinnzahlen"),
      bereich_(new AuswertebereichView(*this)),
      infotafel_(new Infotafel(this, kInfoMittwoch))
{
    bezeichnung114 = new Zahlenblock("bezeichnung59", "bezeichnung114", this);
    Bezeichnung3 = bezeichnung("Bezeichnung3", "max");
    Bezeichnung4 = bezeichnung("Bezeichnung4", "min");
    Bezeichnung6 = bezeichnung("Bezeichnung6");
    Bezeichnung7 = bezeichnung("Bezeichnung7");
    Bezeichnung57 = bezeichnung("Bezeichnung57", " Anzahl der ausgewerteten Ziehungen ->");
    Bezeichnung58 = bezeichnung("Bezeichnung58");
    Befehl1 = befehl("Befehl1", "&<<");
    Befehl2 = befehl("Befehl2", "&ohne ZZ");
    Befehl3 = befehl("Befehl3", "&mit ZZ");
    Befehl4 = befehl("Befehl4", "&nur ZZ");
    Befehl5 = befehl("Befehl5", "&Graphik", hinweis("Zeigt die Häufigkeitsverteilung in einer Graphik an."));
    Befehl6 = befehl("Befehl6", "&Drucken");
    Befehl7 = befehl("Befehl7", "i");
    Befehl8 = befehl("Befehl8", "Mittwoch A+B zusammen (ohne ZZ)");
    Befehl11 = befehl("Befehl11", "&Info");
    Befehl6->setEnabled(false);
    behaltePlatz(Befehl5);
    Befehl5->hide();
    alsUeberschrift(Bezeichnung7);
    haltePlatz(Bezeichnung58, "00000");
    for (QLabel* extrem : {Bezeichnung3, Bezeichnung4})
        haltePlatz(extrem, qt(maximumText({.max = 9999, .maxima = {}, .minima = {}})));
    hauptaktionen({Befehl2, Befehl3, Befehl4, Befehl8});

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung7, luecke(), Bezeichnung6}),
        zeile({
            bereich_,
            rahmen("Rahmen8", "Auswertung starten", zeile({Befehl2, Befehl3, Befehl4, Befehl8})),
            luecke(),
        }),
        dehnbar(bezeichnung114),
        zeile({
            Bezeichnung57, Bezeichnung58, luecke(),
            Bezeichnung3, luecke(), Bezeichnung4,
        }),
        zeile({Befehl6, Befehl11, Befehl7, Befehl5, luecke(), Befehl1}),
    }));
    // clang-format on

    bei(Befehl1, [this] { schliesse(); });
    bei(Befehl2, [this] { werteAus(ZZModus::Ohne); });
    bei(Befehl3, [this] { werteAus(ZZModus::Mit); });
    bei(Befehl4, [this] { werteAus(ZZModus::Nur); });
    bei(Befehl5, [this] { zeigeGraphik(); });
    bei(Befehl6, [this] { drucke(); });
    bei(Befehl7, [this] { infotafel_->zeige(); });
    bei(Befehl8, [this] { werteMittwochAus(); });
    bei(Befehl11, [this] { this->umgebung().boxen.info(kInfotitel, kInfo + qt(kZusatzzahlHinweis)); });
}

void frmSTAT1::beimZeigen()
{
    Bezeichnung7->setText(qt(spielartGross(umgebung().archiv.Spielart)));
    zeigeStand();
}

void frmSTAT1::zeigeStand()
{
    Befehl8->setVisible(umgebung().archiv.Spielart > Samstagslotto);
    Bezeichnung6->setText(qt(gespeicherteZiehungen(umgebung().archiv)));
}

void frmSTAT1::werteAus(ZZModus modus)
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    const auto bereich = bereich_->pruefe();
    if (!bereich)
        return;
    ergebnis_ = ::werteAus(umgebung().archiv, *bereich, bereich_->angabe(), modus);
    zeigeErgebnis();
}

void frmSTAT1::werteMittwochAus()
{
    Lauf lauf(*this);
    if (!lauf || umgebung().archiv.Spielart <= Samstagslotto)
        return;
    const auto bereich = bereich_->pruefe();
    if (!bereich)
        return;
    const bool vonB = umgebung().archiv.Spielart == MittwochslottoB;
    ergebnis_ = ::werteAus(umgebung().archiv, *bereich, bereich_->angabe(), ZZModus::Ohne);
    umgebung().menue->waehleSpielart(vonB ? Mittwochslotto : MittwochslottoB);
    ergaenzeMittwoch(ergebnis_, umgebung().archiv);
    if (!vonB)
        umgebung().menue->waehleSpielart(Mittwochslotto);
    bereich_->folgeArchiv();
    zeigeErgebnis();
}

void frmSTAT1::zeigeErgebnis()
{
    zeigeStand();
    const Extremwerte extreme = extremwerte(ergebnis_.haeufigkeit);
    bezeichnung114->loescheFarben();
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        const auto stelle = static_cast<std::size_t>(zahl);
        bezeichnung114->setzeWert(zahl, QString::number(ergebnis_.haeufigkeit.fuer(zahl)));
        if (extreme.maxima[stelle])
            bezeichnung114->faerbeWert(zahl, Farben::Hoechstwert);
        if (extreme.minima[stelle])
            bezeichnung114->faerbeWert(zahl, Farben::Markiert);
    }
    Bezeichnung3->setText(qt(maximumText(extreme)));
    Bezeichnung4->setText(qt(minimumText(extreme)));
    Bezeichnung7->setText(qt(spielLabel(ergebnis_)));
    Bezeichnung58->setNum(ergebnis_.haeufigkeit.AusgewerteteZiehungen);
    Befehl5->setVisible(ergebnis_.angabe.form == Bereichsform::Jahre);
    Befehl6->setEnabled(true);
    const std::array modusknoepfe{Befehl2, Befehl3, Befehl4};
    zeigeGelaufen(ergebnis_.mittwochAB ? Befehl8 : modusknoepfe[zzStelle(ergebnis_.ZaehlModus)]);
    auto* graph = dynamic_cast<frmGraph*>(umgebung().bildschirme->geladen("frmGraph"));
    if (graph)
        graph->folge();
    zeigeTitel(graph != nullptr);
}

void frmSTAT1::zeigeTitel(bool graphikOffen)
{
    setzeGrundtitel(graphikOffen ? frmGraph::kTitel : kErgebnistitel);
    setzeTitel(graphikOffen ? QString(frmGraph::kTitel) : qt(ergebniszeile(ergebnis_)));
}

void frmSTAT1::zeigeGraphik()
{
    umgebung().klang.SpieleKlang(1);
    Befehl5->hide();
    umgebung().bildschirme->oeffne("frmGraph");
}

void frmSTAT1::drucke()
{
    druckeZeilen(*this, kErgebnistitel, druckauftrag(ergebnis_));
}

bool frmSTAT1::kehrtZumMenueZurueck() const
{
    return !umgebung().VorschlagLaeuft;
}

void frmSTAT1::beimSchliessen()
{
    if (Bildschirm* graph = umgebung().bildschirme->geladen("frmGraph"))
        graph->schliesse();
}
