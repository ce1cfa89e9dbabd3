#include "engines/screens/frmZusammenBank.h"

#include "archive/screens/Spielartenwahl.h"
#include "engines/logic/Zusammengezogene.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int kSichtbareZeilen = 20;
constexpr int kZeichenJeZeile = 26;

/// What was counted: "7 und 19 in 5.788 Ziehungen (Samstagslotto Mittwochslotto)".
QString ergebnistext(const Zusammengezogene& ergebnis, const std::string& spiele)
{
    QStringList zahlen;
    for (const std::int32_t zahl : ergebnis.gewaehlte)
        zahlen << QString::number(zahl);
    return zahlen.join(" und ") + " in " + qt(Format(ergebnis.ziehungen, "#,###,##0")) + " Ziehungen (" +
           qt(trim(spiele)) + ")";
}

} // namespace

frmZusammenBank::frmZusammenBank(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZusammenBank",
                 "Wie oft wurden bestimmte Gewinnzahlen (z.B. Bankzahlen) zusammen mit anderen  gezogen?")
{
    frmArt = new Spielartenwahl(*this);
    optA = {option("optA(0)", "Wie oft wurde   1 Gewinnzahl zusammen mit den restlichen Zahlen gezogen? "),
            option("optA(1)", "Wie oft wurden 2 Gewinnzahlen zusammen mit den restlichen Zahlen gezogen?")};
    Combo1 = kombi("Combo1");
    Combo2 = kombi("Combo2");
    Command1 = befehl("Command1", "&Start");
    lblErgebnis = bezeichnung("lblErgebnis");
    List2 = liste("List2");
    List3 = liste("List3");
    cmdEnd = befehl("cmdEnd", "&<<");
    frmZahl = rahmen("frmZahl", {}, zeile({Combo1, Combo2, Command1, luecke()}));
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        for (QComboBox* kombi : {Combo1, Combo2})
            kombi->addItem(QString::number(zahl), zahl);
    Combo2->setCurrentIndex(1);
    behaltePlatz(Combo2);
    optA[0]->setChecked(true);
    for (Liste* liste : {List2, List3})
        liste->setzeSichtbar(kSichtbareZeilen, kZeichenJeZeile);

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            spalte({
                frmArt,
                rahmen("frmA", {}, eng(spalte({optA[0], optA[1]}))),
                frmZahl,
                luecke(),
            }),
            dehnbar(eng(spalte({bezeichnung("Label2", "Sortiert nach Gewinnzahl:"), dehnbar(List2)}))),
            dehnbar(eng(spalte({bezeichnung("Label3", "Sortiert nach Häufigkeit:"), dehnbar(List3)}))),
        })),
        zeile({lblErgebnis, luecke(), cmdEnd}),
    }));
    // clang-format on

    hauptaktionen({Command1});
    bei(Command1, [this] { zaehle(); });
    bei(cmdEnd, [this] { schliesse(); });
    for (QRadioButton* knopf : optA)
        bei(knopf, [this] { zeigeWahl(); });
    zeigeWahl();
}

void frmZusammenBank::zeigeWahl()
{
    const bool zwei = optA[1]->isChecked();
    frmZahl->setTitle(zwei ? "Gewinnzahlen wählen" : "Gewinnzahl wählen");
    Combo2->setVisible(zwei);
}

void frmZusammenBank::zaehle()
{
    if (!frmArt->pruefe())
        return;
    List2->modell().Clear();
    List3->modell().Clear();
    lblErgebnis->clear();
    std::vector<std::int32_t> zahlen{Combo1->currentData().toInt()};
    if (optA[1]->isChecked())
        zahlen.push_back(Combo2->currentData().toInt());
    if (zahlen.front() == zahlen.back() && zahlen.size() == 2) {
        umgebung().boxen.info(kProgrammtitel, "Abbruch. Es wurden gleiche Zahle ausgewählt!");
        return;
    }
    const Zusammengezogene ergebnis = zaehleZusammengezogene(umgebung().archiv, std::move(zahlen));
    List2->modell().fuelle(zeilenNachZahl(ergebnis));
    List3->modell().fuelle(zeilenNachHaeufigkeit(ergebnis));
    List3->zeigeZeile(List3->zeilenzahl() - 1); // the most frequent
    lblErgebnis->setText(ergebnistext(ergebnis, frmArt->namen()));
}
