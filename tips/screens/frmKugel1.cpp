#include "tips/screens/frmKugel1.h"

#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Wartezeit.h"
#include "shell/elements/Zeilendruck.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"
#include "tips/logic/Zufallstipps.h"
#include "tips/screens/Kugelreihe.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr auto kTitel = "Computertips";
constexpr auto kDrucktitel = "** Computer - Zufallstips **";
constexpr int kZeilen = 18;
constexpr int kZeichen = 26;
constexpr int kVorgabe = 3; ///< tenths of a second
constexpr int kLaengste = 30;

} // namespace

frmKugel1::frmKugel1(Umgebung& umgebung) : Bildschirm(umgebung, "frmKugel1", kTitel)
{
    kugeln_ = new Kugelreihe(this);
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::NurAnzeige, this);
    Liste1 = liste("Liste1");
    Liste1->setzeSichtbar(kZeilen, kZeichen);
    lblGeordnet = bezeichnung("lblGeordnet", "Computertip in geordneter Reihenfolge");
    lblVerzoegerung = bezeichnung("lblVerzoegerung");
    HBildlauf1 = new QScrollBar(Qt::Horizontal, this);
    HBildlauf1->setObjectName("HBildlauf1");
    HBildlauf1->setFocusPolicy(Qt::StrongFocus);
    HBildlauf1->setRange(0, kLaengste);
    HBildlauf1->setValue(kVorgabe);
    setzeHinweis(HBildlauf1, "Wartezeit zwischen zwei Zahlen");
    Befehl1 = befehl("Befehl1", "Start");
    Befehl2 = befehl("Befehl2", "End");
    Befehl3 = befehl("Befehl3", "Print");
    Befehl3->setEnabled(false);
    hauptaktionen({Befehl1});
    stoppknopf(Befehl1);

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            spalte({
                lblGeordnet,
                kugeln_,
                zeile({luecke(), Bezeichnung6, luecke()}),
                rahmen("Rahmen1", "Verzögerung", zeile({dehnbar(HBildlauf1), lblVerzoegerung})),
                luecke(),
            }),
            dehnbar(rahmen("Rahmen2", "Computertips in Listenform", spalte({dehnbar(Liste1)}))),
        })),
        zeile({Befehl1, Befehl3, luecke(), Befehl2}),
    }));
    // clang-format on
    zeigeVerzoegerung();

    connect(HBildlauf1, &QScrollBar::valueChanged, this, [this] { zeigeVerzoegerung(); });
    bei(Befehl1, [this] { starteOderStoppe(); });
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this] { drucke(); });
}

void frmKugel1::starteOderStoppe()
{
    if (laeuft()) {
        stoppe();
        return;
    }
    Lauf lauf(*this, kTitel, WarteAnzeige::Zeiger::Pfeil);
    Liste1->modell().Clear();
    Befehl3->setEnabled(false);
    Befehl1->setText("Stop");
    for (std::int32_t runde = 1; warte(lauf, verzoegerung()); ++runde) {
        const Kombination tip = zufallstipp(umgebung().zufall, umgebung().uhr.Timer() * runde);
        if (!zeigeTip(lauf, tip))
            break;
        Liste1->modell().AddItem(zahlentext(tip));
        Liste1->zeigeZeile(Liste1->zeilenzahl() - 1);
    }
    Befehl1->setText("Start");
    Befehl3->setEnabled(Liste1->zeilenzahl() > 0);
}

bool frmKugel1::zeigeTip(Lauf& lauf, const Kombination& tip)
{
    kugeln_->leere();
    Tippfeld7x7 feld;
    Bezeichnung6->zeige(feld);
    for (std::size_t i = 0; i < tip.size(); ++i) {
        if (!warte(lauf, verzoegerung()))
            return false;
        feld.zeige(std::span(tip).first(i + 1));
        Bezeichnung6->zeige(feld);
        kugeln_->zeige(i, tip[i]);
    }
    return true;
}

std::chrono::milliseconds frmKugel1::verzoegerung() const
{
    return std::chrono::milliseconds(100) * HBildlauf1->value();
}

void frmKugel1::zeigeVerzoegerung()
{
    lblVerzoegerung->setText(qt(Format(HBildlauf1->value() / 10.0, "0.0") + " Sek"));
}

void frmKugel1::drucke()
{
    Druckauftrag auftrag{.kopf = {kDrucktitel, ""}, .folgekopf = {kDrucktitel, ""}, .zeilen = {}, .masse = {}};
    for (int zeile = 0; zeile < Liste1->zeilenzahl(); ++zeile)
        auftrag.zeilen.push_back(Liste1->modell().List(static_cast<std::size_t>(zeile)));
    druckeZeilen(*this, kDrucktitel, auftrag);
}
