#include "statistics/screens/frmSWH.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/ZZModus.h"
#include "statistics/logic/Spielwochen.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int kSichtbareZeilen = 24;

std::string infotext(const ZiehungsArchiv& archiv)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    const std::string von = archiv.AnzahlZiehungen > 0 ? Format(archiv.jjjj[1], "0000") : "0000";
    return "1. Es werden alle Ziehungen der ausgewählten Spielwoche angezeigt. (von " + von + "-" +
           Format(archiv.jjjj[letzte], "0000") +
           ")\n"
           "2. Es wird berechnet welche Gewinnzahlen in der ausgewählten (z.B. in der nächsten) \n"
           "    Spielwoche am häufigsten gezogen wurden.\n"
           "     (Unten vorgegebene Woche = letzte erfasste Spielwoche +1)";
}

} // namespace

frmSWH::frmSWH(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmSWH", "Häufigkeit der Gewinnzahlen für ausgewählte Spielwochen")
{
    Liste1 = liste("Liste1");
    Liste2 = liste("Liste2", {.Sorted = true});
    Liste3 = liste("Liste3");
    Liste1->setzeSichtbar(kSichtbareZeilen, 48);
    Liste2->setzeSichtbar(kSichtbareZeilen, 18);
    Liste3->setzeSichtbar(kSichtbareZeilen, 22);
    auto* Bezeichnung1 = bezeichnung("Bezeichnung1", "Ziehungen der ausgewählten Spielwoche");
    auto* Bezeichnung2 = bezeichnung("Bezeichnung2", "Gewinnzahlen geordnet nach Häufigkeit");
    auto* Bezeichnung3 = bezeichnung("Bezeichnung3", "geordnet nach Gewinnzahl");
    auto* Bezeichnung4 = bezeichnung("Bezeichnung4", "Spielwoche:");
    Bezeichnung5 = bezeichnung("Bezeichnung5");
    Bezeichnung6 = bezeichnung("Bezeichnung6");
    Kombi1 = kombi("Kombi1");
    for (int woche = 1; woche <= kSpielwochen; ++woche)
        Kombi1->addItem(qt(Format(woche, "00")));
    Option1 = option("Option1", qt(zzText(ZZModus::Ohne)));
    Option2 = option("Option2", qt(zzText(ZZModus::Mit)));
    Option1->setChecked(true);
    Befehl1 = befehl("Befehl1", "&Info");
    Befehl2 = befehl("Befehl2", "&<<");
    alsUeberschrift(Bezeichnung5);

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung5, luecke(), Bezeichnung6}),
        zeile({
            dehnbar(spalte({Bezeichnung1, dehnbar(Liste1)}), 5),
            dehnbar(spalte({Bezeichnung2, dehnbar(Liste2)}), 3),
            dehnbar(spalte({Bezeichnung3, dehnbar(Liste3)}), 3),
        }),
        zeile({
            rahmen("Rahmen1", "", zeile({Bezeichnung4, Kombi1, Option1, Option2})),
            luecke(), Befehl1, Befehl2,
        }),
    }));
    // clang-format on

    bei(Kombi1, [this] { werteAus(); });
    bei(Option1, [this] { werteAus(); });
    bei(Option2, [this] { werteAus(); });
    bei(Befehl1, [this] { this->umgebung().boxen.info(kInfotitel, qt(infotext(this->umgebung().archiv))); });
    bei(Befehl2, [this] { schliesse(); });
}

void frmSWH::beimZeigen()
{
    werteAus(naechsteSpielwoche(umgebung().archiv), Option2->isChecked());
}

void frmSWH::werteAus(int sw, bool mitZZ)
{
    Kombi1->setCurrentIndex(sw - 1);
    (mitZZ ? Option2 : Option1)->setChecked(true);
    werteAus();
}

void frmSWH::werteAus()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = weekStatistics(umgebung().archiv, Kombi1->currentIndex() + 1, Option2->isChecked());
    zeigeStand();
    Liste1->modell().fuelle(ziehungszeilen(ergebnis_));
    Liste2->modell().fuelle(zeilenNachHaeufigkeit(ergebnis_));
    Liste2->zeigeZeile(Liste2->zeilenzahl() - 1); // the most frequent
    Liste3->modell().fuelle(zeilenNachZahl(ergebnis_));
}

void frmSWH::zeigeStand()
{
    Bezeichnung5->setText(qt(spielartGross(umgebung().archiv.Spielart)));
    Bezeichnung6->setText(qt(gespeicherteZiehungen(umgebung().archiv)));
}

bool frmSWH::kehrtZumMenueZurueck() const
{
    return !umgebung().VorschlagLaeuft;
}
