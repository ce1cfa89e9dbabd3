#include "engines/screens/Vollsuchbildschirm.h"

#include "archive/logic/Spielarttexte.h"
#include "archive/screens/Spielartenwahl.h"
#include "engines/screens/Suchlaufanzeige.h"
#include "listcontrol/logic/modLargeList.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Textanzeige.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace {

constexpr int kKleinste = 2;
constexpr int kGroesste = 6;
constexpr int kDreier = 3;
constexpr auto kInfo = "frmInfoHGDV";
constexpr std::chrono::milliseconds kTick{500};

/// The lines of `alle` behind the first `gezeigte` ones go into the list.
void fuegeAn(Liste* liste, const std::vector<std::string>& alle, std::size_t& gezeigte)
{
    for (; gezeigte < alle.size(); ++gezeigte)
        AddItem(&liste->modell(), alle[gezeigte]);
}

} // namespace

Vollsuchbildschirm::Vollsuchbildschirm(Umgebung& umgebung, const QString& name, Spiele spiele)
    : Bildschirm(umgebung, name, qt(kSuchtitel))
{
    if (spiele == Spiele::MehrereZusammen) {
        SpielartenwahlNamen namen;
        namen.anzahl = "lblZ";
        wahl_ = new Spielartenwahl(*this, namen);
        wahl_->beiWechsel = [this] { zeigeStand(); };
    }
    baueStart();
    baueErgebnis();
    setzeInhalt(anordnung());
    hauptaktionen({cmdKombiSuche.begin(), cmdKombiSuche.end()});
    stoppknopf(Befehl5);

    for (int groesse = kKleinste; groesse <= kGroesste; ++groesse)
        bei(cmdKombiSuche[static_cast<std::size_t>(groesse - kKleinste)], [this, groesse] { suche(groesse); });
    bei(Befehl1, [this] { zeigeInfo(); });
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl5, [this] { stoppe(); });
    Timer2->callOnTimeout([this] {
        if (laeuft())
            anzeige_->zeigeZeit(ergebnis_, this->umgebung().uhr.jetzt());
    });
}

void Vollsuchbildschirm::baueStart()
{
    for (int groesse = kKleinste; groesse <= kGroesste; ++groesse)
        cmdKombiSuche[static_cast<std::size_t>(groesse - kKleinste)] =
            befehl(QString("cmdKombiSuche(%1)").arg(groesse), qt(groessentexte(groesse).befehl));
    Option1 = option("Option1", "mit Animation", hinweis("Zeigt jede Kombination im Zahlenfeld an (langsam)."));
    Option2 = option("Option2", "ohne Animation", hinweis("Zählt so schnell wie möglich."));
    Option2->setChecked(true);
    Rahmen5 = rahmen("Rahmen5", "Ablauf", spalte({Option1, Option2}));
    behaltePlatz(Rahmen5);
    Befehl5 = befehl("Befehl5", "&Abbrechen");
    Befehl1 = befehl("Befehl1", "&Info");
    Befehl2 = befehl("Befehl2", "Zur&ück");
    anzeige_ = new Suchlaufanzeige(this);
    Timer2 = new QTimer(this);
    Timer2->setObjectName("Timer2");
    Timer2->setInterval(kTick);
}

void Vollsuchbildschirm::baueErgebnis()
{
    Liste3 = liste("Liste3", {.Sorted = true});
    Liste3->setzeSichtbar(26, 30);
    Befehl6 =
        clipBefehl("Befehl6", [this] { return wiederholungsbericht(quelle_, ergebnis_.groesse, wiederholungen()); });
    Befehl6->setText("&ClipBoard");
    txtH = new Textanzeige("txtH", 7, 32, this);
    txtH->zeige(leereZusammenfassung());
    Bezeichnung8 = bezeichnung("Bezeichnung8", "Noch nie gezogene Dreierkombinationen:");
    Liste1 = liste("Liste1");
    Bezeichnung9 = bezeichnung("Bezeichnung9", "Anzahl:");
    Text1 = textfeld("Text1");
    Text1->setReadOnly(true);
    Befehl3 = clipBefehl("Befehl3", [this] { return nieGezogenBericht(quelle_, ergebnis_.nieGezogene); });
    Befehl3->setText("Clip&Board");
    nieGezogenBlock_ = new QWidget(this);
    nieGezogenBlock_->hide();
}

QLayout* Vollsuchbildschirm::anordnung()
{
    QLayout* nieGezogene = spalte({Bezeichnung8, dehnbar(Liste1), zeile({Befehl3, luecke(), Bezeichnung9, Text1})});
    nieGezogene->setContentsMargins(0, 0, 0, 0);
    nieGezogenBlock_->setLayout(nieGezogene);

    Bloecke lauf{anzeige_, luecke()};
    if (wahl_)
        lauf.insert(lauf.begin(), wahl_);

    // clang-format off
    return spalte({
        dehnbar(zeile({
            spalte({
                rahmen("Rahmen1", "Suche starten", spalte(Bloecke(cmdKombiSuche.begin(), cmdKombiSuche.end()))),
                Rahmen5, luecke(),
            }),
            spalte(lauf),
            dehnbar(spalte({
                bezeichnung("Bezeichnung4", "Wiederholungen:"),
                dehnbar(Liste3),
                zeile({Befehl6, luecke()}),
            })),
            spalte({
                bezeichnung("Bezeichnung5", "Zusammenfassung:"),
                dehnbar(txtH),
                dehnbar(nieGezogenBlock_, 3),
            }),
        })),
        zeile({Befehl5, Befehl1, luecke(), Befehl2}),
    });
    // clang-format on
}

const std::vector<std::string>& Vollsuchbildschirm::wiederholungen() const
{
    return Liste3->modell().zeilen();
}

std::string Vollsuchbildschirm::spiel() const
{
    return wahl_ ? wahl_->namen() : std::string(spielartName(umgebung().archiv.Spielart));
}

/// What was found keeps the title that tells of its draws, until the next search.
void Vollsuchbildschirm::zeigeStand()
{
    if (ergebnis_.groesse != 0)
        return;
    setzeGrundtitel(qt(suchtitel(umgebung().archiv, spiel())));
    setzeTitel(grundtitel());
}

void Vollsuchbildschirm::zeigeInfo()
{
    umgebung().klang.SpieleKlang(1);
    umgebung().bildschirme->oeffne(kInfo);
}

void Vollsuchbildschirm::beimSchliessen()
{
    if (Bildschirm* info = umgebung().bildschirme->geladen(kInfo))
        info->schliesse();
}

void Vollsuchbildschirm::suche(int groesse)
{
    if (groesse < kKleinste || groesse > kGroesste || (wahl_ && !wahl_->pruefe()))
        return;
    Lauf lauf(*this);
    if (!lauf)
        return;
    beginne(groesse);
    durchsuche(lauf);
    beende();
}

void Vollsuchbildschirm::beginne(int groesse)
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    const Groessentexte& texte = groessentexte(groesse);
    ergebnis_ = beginneSuche(groesse);
    quelle_ = suchquelle(archiv, spiel(), wahl_ ? archiv.DatumAlle : archiv.Datum);
    setzeGrundtitel(qt(suchtitel(archiv, quelle_.spiel)));
    ClearList(&Liste3->modell());
    ClearList(&Liste1->modell());
    gezeigteWiederholungen_ = gezeigteNieGezogene_ = 0;
    txtH->clear();
    Text1->clear();
    nieGezogenBlock_->setVisible(groesse == kDreier);
    sperre(true);
    Befehl5->setFocus();
    anzeige_->beginne(ergebnis_, umgebung().uhr.jetzt());
    Timer2->start();
    if (!texte.titel.empty())
        setzeTitel(qt(texte.titel));
}

void Vollsuchbildschirm::durchsuche(Lauf& lauf)
{
    Vollsuche kombinationen(umgebung().archiv, ergebnis_.groesse, ergebnis_);
    if (Option1->isChecked())
        animiere(kombinationen, lauf);
    else
        kombinationen.testeAlle([this, &lauf](std::uint64_t) {
            uebernimmZeilen();
            return lauf.weiter() && !umgebung().BerichtAbbruch;
        });
    uebernimmZeilen();
}

/// Every combination is seen: each gets a turn of the event loop before its test, and a stop acts at the next one. The
/// lists need not follow faster than the eye.
void Vollsuchbildschirm::animiere(Vollsuche& suche, Lauf& lauf)
{
    Takt listen([this](std::uint64_t) {
        uebernimmZeilen();
        return true;
    });
    while (!suche.fertig() && !gestoppt() && !umgebung().BerichtAbbruch) {
        anzeige_->zeigeKombination(suche.kombination());
        lauf.zug();
        suche.teste();
        listen.schritt(0);
    }
}

void Vollsuchbildschirm::beende()
{
    Timer2->stop();
    const bool abgebrochen = ergebnis_.abgebrochen();
    txtH->zeige(abgebrochen ? std::string(kSucheAbgebrochen) : zusammenfassung(ergebnis_));
    if (GetListCount(&Liste3->modell()) > 0)
        SetListIndex(&Liste3->modell(), 0);
    if (!abgebrochen && ergebnis_.groesse == kGroesste && ergebnis_.wiederholungen.empty())
        AddItem(&Liste3->modell(), std::string(kKeineSechser));
    anzeige_->beende(ergebnis_);
    sperre(false);
    zeigeGelaufen(cmdKombiSuche[static_cast<std::size_t>(ergebnis_.groesse - kKleinste)]);
    setzeTitel(grundtitel());
}

void Vollsuchbildschirm::sperre(bool gesperrt)
{
    Rahmen5->setVisible(!gesperrt);
    Befehl1->setEnabled(!gesperrt);
    Befehl2->setEnabled(!gesperrt);
    for (QPushButton* knopf : cmdKombiSuche)
        knopf->setEnabled(!gesperrt);
    if (wahl_)
        wahl_->setEnabled(!gesperrt);
}

void Vollsuchbildschirm::uebernimmZeilen()
{
    fuegeAn(Liste3, ergebnis_.wiederholungen, gezeigteWiederholungen_);
    fuegeAn(Liste1, ergebnis_.nieGezogene, gezeigteNieGezogene_);
    if (gezeigteNieGezogene_ > 0)
        Text1->setText(QString::number(GetListCount(&Liste1->modell())));
}
