#include "engines/screens/frmPOSKOM.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/AutomatischeAnzeige.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr auto kTitel = "Die bisherigen  Ziehungen und ihre Positionszahlen";
constexpr auto kRechner = "frmpos_calc";
constexpr auto kDefinition = "frmpos2";
constexpr int kZeilen = 24;
constexpr int kZeichen = 44;

} // namespace

frmPOSKOM::frmPOSKOM(Umgebung& umgebung) : Bildschirm(umgebung, "frmPOSKOM", kTitel)
{
    Liste1 = liste("Liste1", {.Sorted = true});
    Liste2 = liste("Liste2");
    Option1 = {option("Option1(0)", "Alle bisherige Ziehungen und ihre Positionszahlen"),
               option("Option1(1)", "Nur Ziehungen aus einem zu wählenden Positionszahlenbereich")};
    Text1 = {textfeld("Text1(0)", "40000"), textfeld("Text1(1)", "100000")};
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::NurAnzeige, this);
    Bezeichnung1 = listenkopf("Bezeichnung1", "Positionszahl    JJJJ/SW    Kombination");
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    Label2 = bezeichnung("Label2", " Positionszahlen aus dem Bereich:");
    Label3 = bezeichnung("Label3");
    Label4 = bezeichnung("Label4");
    lblBis = bezeichnung("lblBis", "bis");
    Befehl1 = befehl("Befehl1", "Auflistung geordnet nach &Position");
    Befehl2 = befehl("Befehl2", "Auflistung geordnet in &Ziehungsreihenfolge");
    Befehl3 = befehl("Befehl3", "&<<");
    Befehl4 = befehl("Befehl4", "&Info");
    Command1 = befehl("Command1", "Positionszahlen&rechner");
    cmdAuto = befehl("cmdAuto", "&E");
    automatik_ = new AutomatischeAnzeige(cmdAuto, {.ein = "&E", .aus = "&A"}, this);

    ordneAn();
    hauptaktionen({Befehl1, Befehl2});

    automatik_->fuehre(Liste1, AutomatischeAnzeige::NachLoslassen::Immer);
    automatik_->fuehre(Liste2, AutomatischeAnzeige::NachLoslassen::NurEingeschaltet);
    automatik_->beiZeile = [this](const Liste& liste) { zeigeZiehung(liste); };
    for (QRadioButton* umfang : Option1)
        bei(umfang, [this] { waehleUmfang(); });
    bei(Befehl1, [this] { listeAuf(Liste1); });
    bei(Befehl2, [this] { listeAuf(Liste2); });
    bei(Befehl3, [this] { schliesse(); });
    bei(Befehl4, [this] { oeffne(kDefinition); });
    bei(Command1, [this] { oeffne(kRechner); });
}

void frmPOSKOM::ordneAn()
{
    alsUeberschrift(Bezeichnung2);
    Liste2->setToolTip("Ein Click auf eine Ziehung zeigt die Kombination im 7x7 Tippfeldformat.");
    cmdAuto->setToolTip("Automatische Anzeige im Tippfeld ein/aus");
    Text1[0]->setToolTip(">=1");
    Text1[1]->setToolTip("<=13.983.816");
    for (Liste* jede : {Liste1, Liste2})
        jede->setzeSichtbar(kZeilen, kZeichen);
    Liste2->hide();
    Option1[0]->setChecked(true);
    Frame1 = rahmen("Frame1", {}, spalte({Label2, zeile({Text1[0], lblBis, Text1[1]})}));
    Frame1->setEnabled(false);

    // clang-format off
    setzeInhalt(spalte({
        Bezeichnung2,
        dehnbar(zeile({
            dehnbar(eng(spalte({Bezeichnung1, dehnbar(Liste1), dehnbar(Liste2), zeile({Label4, luecke(), Label3})}))),
            spalte({
                eng(spalte({Option1[0], Option1[1]})),
                Frame1,
                Befehl1,
                Befehl2,
                rahmen("Rahmen6", "Die Ziehung im 7x7 Tippformat", spalte({
                    zeile({luecke(), Bezeichnung6, luecke()}),
                    zeile({luecke(), cmdAuto, luecke()}),
                })),
                luecke(),
            }),
        })),
        zeile({Command1, Befehl4, luecke(), Befehl3}),
    }));
    // clang-format on
}

void frmPOSKOM::beimZeigen()
{
    Bezeichnung2->setText(qt(spielartGross(umgebung().archiv.Spielart)));
}

void frmPOSKOM::beimSchliessen()
{
    for (const char* name : {kRechner, kDefinition})
        if (Bildschirm* offen = umgebung().bildschirme->geladen(name))
            offen->schliesse();
}

void frmPOSKOM::oeffne(const QString& bildschirm)
{
    umgebung().klang.SpieleKlang(1);
    umgebung().bildschirme->oeffne(bildschirm);
}

void frmPOSKOM::waehleUmfang()
{
    stoppe(); // a list that is being made is that of the other choice
    Frame1->setEnabled(Option1[1]->isChecked());
    leereListen();
}

void frmPOSKOM::leereListen()
{
    ergebnis_ = {};
    zeigeGelaufen(nullptr);
    Liste1->modell().Clear();
    Liste2->modell().Clear();
    Label4->clear();
}

void frmPOSKOM::listeAuf(Liste* gezeigte)
{
    Lauf lauf(*this, "Bitte warten, die Positionszahlen werden berechnet !");
    if (!lauf)
        return;
    leereListen();
    Liste1->setVisible(gezeigte == Liste1);
    Liste2->setVisible(gezeigte == Liste2);
    automatik_->beginneVorn(gezeigte);
    Positionsbereichspruefung pruefung;
    if (Option1[1]->isChecked())
        pruefung = pruefePositionsbereich(utf8(Text1[0]->text()), utf8(Text1[1]->text()));
    if (!pruefung.fehler.empty()) {
        Label4->setText(qt(pruefung.fehler));
        return;
    }
    Positionsliste neue = positionsliste(umgebung().archiv, pruefung.bereich, lauf.fortschritt());
    if (gestoppt())
        return;
    ergebnis_ = std::move(neue);
    Liste1->modell().fuelle(ergebnis_.zeilen);
    Liste2->modell().fuelle(ergebnis_.zeilen);
    Label4->setText(qt(ergebnis_.anzahlText()));
    zeigeGelaufen(gezeigte == Liste1 ? Befehl1 : Befehl2);
}

void frmPOSKOM::zeigeZiehung(const Liste& liste)
{
    const auto zeile = static_cast<std::size_t>(liste.modell().ListIndex());
    Tippfeld7x7 feld;
    feld.zeige(zahlenInZeile(liste.modell().List(zeile)));
    Bezeichnung6->zeige(feld);
}
