#include "statistics/screens/frmGraph.h"

#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "statistics/screens/Balkenfeld.h"
#include "statistics/screens/frmSTAT1.h"

#include <QLabel>
#include <QPushButton>

namespace {
constexpr auto kInfo = "Wird der Mauszeiger auf einen Farbbalken bewegt, wird in einer Textzeile angezeigt wann die "
                       "entsprechende Gewinnzahl zuletzt gezogen wurde.";
} // namespace

frmGraph::frmGraph(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmGraph", kTitel),
      statistik_(umgebung.bildschirme->lade<frmSTAT1>("frmSTAT1")),
      Bild1(new Balkenfeld(this))
{
    lblErgebnis = bezeichnung("lblErgebnis");
    Bezeichnung3 = bezeichnung("Bezeichnung3");
    Bezeichnung4 = bezeichnung("Bezeichnung4");
    Bezeichnung19 = bezeichnung("Bezeichnung19");
    Befehl1 = befehl("Befehl1", "&<<");
    Befehl2 = befehl("Befehl2", "Zoom", hinweis("Die Differenzen werden deutlicher (gezoomt) dargestellt."));
    Befehl3 = befehl("Befehl3", "Normal", hinweis("Normale Darstellung der Differenzen."));
    Befehl4 = befehl("Befehl4", "&Info");
    Befehl5 = befehl("Befehl5", "&mit Zusatzzahl");
    Befehl6 = befehl("Befehl6", "&ohne Zusatzzahl");
    Befehl7 = befehl("Befehl7", "&nur Zusatzzahl");
    alsUeberschrift(lblErgebnis);
    alsUeberschrift(Bezeichnung19);
    hauptaktionen({Befehl6, Befehl5, Befehl7});

    // clang-format off
    setzeInhalt(spalte({
        lblErgebnis,
        zeile({Bezeichnung3, luecke(), Bezeichnung4}),
        dehnbar(Bild1),
        Bezeichnung19,
        zeile({Befehl2, Befehl3, Befehl6, Befehl5, Befehl7, Befehl4, luecke(), Befehl1}),
    }));
    // clang-format on

    bei(Befehl1, [this] { schliesse(); });
    bei(Befehl2, [this] { zeige(Balkenansicht::Zoom); });
    bei(Befehl3, [this] { zeige(Balkenansicht::Normal); });
    bei(Befehl4, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(Befehl5, [this] { statistik_.werteAus(ZZModus::Mit); });
    bei(Befehl6, [this] { statistik_.werteAus(ZZModus::Ohne); });
    bei(Befehl7, [this] { statistik_.werteAus(ZZModus::Nur); });
}

void frmGraph::beimZeigen()
{
    folge();
    statistik_.zeigeTitel(true);
}

void frmGraph::folge()
{
    const HaeufigkeitAuswertung& ergebnis = statistik_.ergebnis();
    lblErgebnis->setText(qt(ergebniszeile(ergebnis)));
    const std::array modusknoepfe{Befehl6, Befehl5, Befehl7};
    for (QPushButton* knopf : modusknoepfe)
        knopf->setVisible(!ergebnis.mittwochAB);
    zeigeGelaufen(modusknoepfe[zzStelle(ergebnis.ZaehlModus)]);
    const Extremwerte extreme = extremwerte(ergebnis.haeufigkeit);
    Bezeichnung3->setText(qt(maximumText(extreme)));
    Bezeichnung4->setText(qt(minimumText(extreme)));
    Bezeichnung19->setText({});
    zeige(Balkenansicht::Normal);
}

void frmGraph::zeige(Balkenansicht ansicht)
{
    Bild1->zeige(balkengraphik(balkenwerte(statistik_.ergebnis().haeufigkeit.anzahl, 1), ansicht));
    Befehl2->setEnabled(ansicht == Balkenansicht::Normal);
    Befehl3->setEnabled(ansicht == Balkenansicht::Zoom);
}

void frmGraph::mausUeber(QWidget* feld)
{
    if (const auto zahl = Bild1->zahlVon(feld))
        Bezeichnung19->setText(qt(balkenText(statistik_.ergebnis(), *zahl)));
    Bildschirm::mausUeber(feld);
}

void frmGraph::beimSchliessen()
{
    statistik_.zeigeTitel(false);
}
