#include "tips/screens/GLOTTO.h"

#include "archive/logic/Ziehungskalender.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zahlenblock.h"
#include "shell/elements/Zeilendruck.h"
#include "shell/logic/Format.h"
#include "tips/screens/frmLottoneu.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr auto kDrucktitel = "** Computer Zufalls-Tip's **";
constexpr auto kZeitreise = "frmLottoneu";
constexpr int kJeReihe = 3;
constexpr std::size_t kWochentag = 4; ///< "Sa, " before a date

constexpr auto kInfo =
    "TIPPEN füllt die sechs Felder mit Zufallstips. Die Listen zeigen die Zahlen in der Ziehungsfolge "
    "oder der Größe nach.\n\n"
    "Click auf den oberen gelben Rand eines Tips -> zur Auswertung\n"
    "Der ausgewählte Tip wird zur Auswertung an ein Unterprogramm  übergeben.";

std::vector<std::string> spalteAus(std::span<const std::int32_t> zahlen)
{
    std::vector<std::string> zeilen;
    for (const std::int32_t zahl : zahlen)
        zeilen.push_back(Format(std::to_string(zahl), "@@"));
    return zeilen;
}

} // namespace

GLOTTO::GLOTTO(Umgebung& umgebung) : Bildschirm(umgebung, "GLOTTO", " Lottozahlen-Generator")
{
    Befehl1 = befehl("Befehl1", "&TIPPEN");
    Befehl2 = befehl("Befehl2", "&Zurück");
    Befehl3 = befehl("Befehl3", "Ziehungs&folge");
    Befehl4 = befehl("Befehl4", "&Info");
    Befehl5 = befehl("Befehl5", "&Drucken");
    Befehl6 = befehl("Befehl6", "Z&ahlenfolge");
    Befehl7 = befehl("Befehl7", "&Statistik ");
    Bezeichnung58 = bezeichnung("Bezeichnung58");
    Bezeichnung114 = new Zahlenblock("Bezeichnung59", "Bezeichnung114", this);
    Rahmen7 = new Infotafel(this, Bezeichnung114,
                            {.rahmen = "Rahmen7",
                             .ok = "Befehl8",
                             .okText = "OK",
                             .titel = "Häufigkeit der vom Computer getippten Zahlen"});
    Bloecke tipps;
    for (std::size_t tip = 0; tip < kZufallstipps; ++tip)
        tipps.emplace_back(baueTipp(tip));
    for (QPushButton* knopf : {Befehl3, Befehl5, Befehl6, Befehl7})
        knopf->setEnabled(false);
    hauptaktionen({Befehl1});

    // clang-format off
    setzeInhalt(spalte({
        raster(kJeReihe, tipps),
        Bezeichnung58,
        luecke(),
        zeile({Befehl1, Befehl3, Befehl6, Befehl7, Befehl5, luecke(), Befehl4, Befehl2}),
    }));
    // clang-format on
    zeigeTipps();
    zeigeListen(Folge::Ziehung);

    bei(Befehl1, [this] { tippe(); });
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this] { zeigeListen(Folge::Ziehung); });
    bei(Befehl4, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(Befehl5, [this] { drucke(); });
    bei(Befehl6, [this] { zeigeListen(Folge::Zahlen); });
    bei(Befehl7, [this] { Rahmen7->zeige(); });
}

QGroupBox* GLOTTO::baueTipp(std::size_t tip)
{
    const QString nummer = QString::number(tip + 1);
    felder_[tip] = new Tippfeld7x7View("Bezeichnung" + nummer, Tippfeld7x7View::Art::NurAnzeige, this);
    cmdTipp[tip] = befehl(QString("cmdTipp(%1)").arg(tip), "Tipp auswerten",
                          hinweis("Der ausgewählte Tip wird zur Auswertung an ein Unterprogramm  übergeben."));
    cmdTipp[tip]->setToolTip("Click auf den oberen gelben Rand eines Tips -> zur Auswertung");
    cmdTipp[tip]->setEnabled(false);
    faerbe(cmdTipp[tip], Qt::yellow, Farben::Text);
    bei(cmdTipp[tip], [this, tip] { werteAus(tip); });
    Bloecke listen;
    for (const std::size_t stelle : {tip, tip + kZufallstipps}) {
        listen_[stelle] = liste(QString("Liste%1").arg(stelle + 1));
        listen_[stelle]->setzeSichtbar(static_cast<int>(tipps_.tipps[tip].size()), 2);
        listen.emplace_back(listen_[stelle]);
    }
    listen.emplace_back(luecke());

    // clang-format off
    return rahmen("Rahmen" + nummer, "Tipp" + nummer, spalte({
        cmdTipp[tip],
        zeile({felder_[tip], spalte(listen)}),
    }));
    // clang-format on
}

void GLOTTO::tippe()
{
    makeTips(tipps_, umgebung().zufall, umgebung().uhr.Timer());
    zeigeTipps();
    for (QPushButton* knopf : {Befehl3, Befehl5, Befehl6, Befehl7})
        knopf->setEnabled(true);
    for (QPushButton* knopf : cmdTipp)
        knopf->setEnabled(umgebung().bildschirme->kennt(kZeitreise));
}

void GLOTTO::zeigeTipps()
{
    Bezeichnung58->setText(" Anzahl der ausgewerteten Tipps -> " + QString::number(tipps_.ausgewertet));
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        Bezeichnung114->setzeWert(zahl, QString::number(tipps_.haeufigkeit[static_cast<std::size_t>(zahl - 1)]));
    if (tipps_.ausgewertet == 0)
        return;
    for (std::size_t tip = 0; tip < kZufallstipps; ++tip) {
        const Kombination geordnet = tipps_.kombination(tip);
        Tippfeld7x7 feld;
        feld.zeige(geordnet);
        felder_[tip]->zeige(feld);
        listen_[tip]->modell().fuelle(spalteAus(tipps_.tipps[tip]));
        listen_[tip + kZufallstipps]->modell().fuelle(spalteAus(geordnet));
    }
}

void GLOTTO::zeigeListen(Folge folge)
{
    for (std::size_t i = 0; i < listen_.size(); ++i)
        listen_[i]->setVisible((i < kZufallstipps) == (folge == Folge::Ziehung));
}

void GLOTTO::werteAus(std::size_t tip)
{
    umgebung().klang.SpieleKlang(1);
    umgebung().bildschirme->lade<frmLottoneu>(kZeitreise).uebernimm(felder_[tip]->modell());
    umgebung().bildschirme->oeffne(kZeitreise);
}

void GLOTTO::drucke()
{
    Druckauftrag auftrag{.kopf = {kDrucktitel, datumText(umgebung().uhr.heute()).substr(kWochentag), ""},
                         .folgekopf = {},
                         .zeilen = {},
                         .masse = {}};
    for (std::size_t tip = 0; tip < kZufallstipps; ++tip)
        auftrag.zeilen.push_back(tipreihenzeile(tipps_, tip));
    druckeZeilen(*this, kDrucktitel, auftrag);
}
