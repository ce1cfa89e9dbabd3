#include "tips/screens/frmVorschlag.h"

#include "listcontrol/logic/concat.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Texte.h"
#include "tips/screens/Felder.h"
#include "tips/screens/Statistikquelle.h"
#include "tips/screens/Tippanimation.h"
#include "tips/screens/Wunschfeld.h"
#include "tips/screens/frmTA.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr auto kTitel = "Tippreihen unter Einbeziehung der Ziehungsstatistiken generieren.";
constexpr auto kWartetitel = " *** Bitte warten, Tipreihen werden generiert. ***";
constexpr auto kTippschein = "frmTA";
constexpr auto kNichtGespeichert =
    "Die generierten Tips wurden nicht gespeichert ! Sollen diese jetzt zu einem  Programm mit Speichermöglichkeit "
    "übergeben werden ?  (Die Tipreihen können dort auch noch verändert werden.)";
constexpr auto kInfo = "Es werden Gewinnzahlen einbezogen, die in den vergangenen Jahren zu der eingestellten "
                       "Spielwoche am häufigsten gezogen wurden. (Voreingestellte Spielwoche-> Letzte erfasste "
                       "Spielwoche+1)";

constexpr int kKurz = 8; ///< rows of a statistic in sight
constexpr int kLang = 24;
constexpr int kStatistikzeichen = 8;
constexpr int kTippzeichen = 30;

QString archivzeile(const ZiehungsArchiv& archiv)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    return " Ziehungen, von: " + qt(jahrUndWoche(archiv, std::min<std::size_t>(letzte, 1))) +
           " bis: " + qt(jahrUndWoche(archiv, letzte)) + " gespeichert";
}

QString ueberschrift(std::int16_t spielart)
{
    if (istSamstag(spielart))
        return "SAMSTAGSLOTTO-TIPPREIHEN";
    return spielart == Mittwochslotto ? "MITTWOCHSLOTTO-TIPPREIHEN " : "MITTWOCHSLOTTO-TIPPREIHEN";
}

std::vector<std::string> texte(const Statistikliste& liste)
{
    std::vector<std::string> zeilen;
    zeilen.reserve(liste.zeilen.size());
    for (const Statistikzeile& zeile : liste.zeilen)
        zeilen.push_back(zeile.text);
    return zeilen;
}

} // namespace

frmVorschlag::frmVorschlag(Umgebung& umgebung) : Bildschirm(umgebung, "frmVorschlag", kTitel)
{
    Bezeichnung5 = ::benannt(new Klickfeld(this), "Bezeichnung5");
    Bezeichnung10 = bezeichnung("Bezeichnung10");
    Bezeichnung4 = ::benannt(new Klickfeld("Statistiken, die einbezogen wurden:", this), "Bezeichnung4");
    Rahmen7 = bezeichnung("Rahmen7");
    wunsch_ = new Wunschfeld(this);
    alsUeberschrift(Bezeichnung5);
    Liste4 = liste("Liste4");
    Liste4->setzeSichtbar(static_cast<int>(kTippsJeSchein), kTippzeichen);
    Bezeichnung100 = new Tippfeld7x7View("Bezeichnung100", Tippfeld7x7View::Art::NurAnzeige, this);
    Befehl1 = befehl("Befehl1", "&Clipboard", hinweis("Überträgt die generierten Tippreihen in die Zwischenablage."));
    Befehl2 = befehl("Befehl2", "< zum &Speichern",
                     hinweis("Übergibt die Tip's zum Programm Auswerten/Speichern, dort Speichermöglichkeit."));
    Befehl2->setToolTip("Zum Speichern und Drucken auf Spielschein");
    Befehl4 = befehl("Befehl4", "&>>", hinweis("Zum Lotto-Auswahlmenü"));
    Befehl5 = befehl("Befehl5", "&Tippreihen erzeugen");
    Command1 = befehl("Command1", "I");
    Befehl1->setEnabled(false);
    Befehl2->setEnabled(false);
    hauptaktionen({Befehl5});

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung5, luecke(), Bezeichnung10}),
        dehnbar(zeile({
            spalte({wunsch_, zeile({Befehl5, Rahmen7, luecke()}), luecke()}),
            dehnbar(spalte({Bezeichnung4, dehnbar(baueStatistiken())})),
            dehnbar(rahmen("Rahmen3", "Generierte Tips", spalte({
                dehnbar(Liste4),
                zeile({luecke(), Bezeichnung100, luecke()}),
            }))),
        })),
        zeile({Befehl2, Befehl1, luecke(), Command1, Befehl4}),
    }));
    // clang-format on
    verbinde();
}

QGroupBox* frmVorschlag::baueStatistiken()
{
    constexpr std::array kStatistiken{"SW", "Häufigkeit", "Zuletzt gez."};
    constexpr std::array kKoepfe{"Häuf.  Zahl", "Häuf.  Zahl", "Wochen Zahl"};
    Bloecke spalten;
    for (std::size_t i = 0; i < statistiken_.size(); ++i) {
        statistiken_[i] = liste(QString("Liste%1").arg(i + 1), {.Sorted = i > 0});
        statistiken_[i]->setzeSichtbar(kKurz, kStatistikzeichen);
        statistiktitel_[i] = bezeichnung(QString("Bezeichnung%1").arg(i + 6), kStatistiken[i]);
        QLabel* kopf = listenkopf(QString("Bezeichnung%1").arg(i + 11), kKoepfe[i]);
        spalten.push_back(dehnbar(eng(spalte({statistiktitel_[i], kopf, dehnbar(statistiken_[i])}))));
    }
    Label1 = bezeichnung("Label1");
    return rahmen("Rahmen2", "Statistiken", spalte({dehnbar(zeile(spalten)), Label1}));
}

void frmVorschlag::verbinde()
{
    bei(Befehl1, [this] { kopiere(); });
    bei(Befehl2, [this] { uebergib(); });
    bei(Befehl4, [this] { schliesse(); });
    bei(Befehl5, [this] { erzeuge(); });
    bei(Command1, [this] { umgebung().boxen.info(kInfotitel, kInfo); });
    Liste4->beiAuswahl = [this] { zeigeTipp(); };
    Bezeichnung4->beiDoppelklick = [this] { vergroessereStatistiken(); };
    Bezeichnung5->beiDoppelklick = [this] { fuegeFestenTippHinzu(); };
}

void frmVorschlag::beimZeigen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    Bezeichnung5->setText(ueberschrift(archiv.Spielart));
    Bezeichnung10->setText(archivzeile(archiv));
    wunsch_->stelleSpielwoche(naechsteSpielwoche(archiv));
}

void frmVorschlag::erzeuge()
{
    Lauf lauf(*this, kWartetitel, WarteAnzeige::Zeiger::Pfeil);
    if (!lauf)
        return;
    Befehl1->setEnabled(false);
    Befehl2->setEnabled(false);
    Rahmen7->setText(wunsch_->willEine() ? "Ziehungsstatistiken auswerten..." : "Zufallstips erzeugen");
    Rahmen7->show();
    tipps_.clear();
    Liste4->modell().Clear();
    generateTips(lauf, leseWunsch());
    Rahmen7->hide();
    Liste4->modell().SetListIndex(static_cast<std::ptrdiff_t>(tipps_.size()) - 1);
    zeigeTipp();
    Befehl1->setEnabled(true);
    Befehl2->setEnabled(true);
    ungespeichert_ = !tipps_.empty() && !schliesst();
}

void frmVorschlag::generateTips(Lauf& lauf, const Tippwunsch& wunsch)
{
    Tippanimation animation(*Bezeichnung100, umgebung().animationsdauer);
    const QScopedValueRollback laufende(animation_, &animation);
    const std::size_t anzahl = wunsch_->anzahl();
    bool weiter = animation.spiele(lauf);
    for (std::size_t rang = 1; weiter && rang <= anzahl; ++rang) {
        weiter = animation.spiele(lauf);
        if (wunsch.gleicheBankzahlen()) {
            umgebung().boxen.info(kProgrammtitel, "Es wurden 2 gleiche Bankzahlen ausgewählt!");
            return;
        }
        if (weiter)
            fuegeHinzu(generateTip(wunsch, rang, umgebung().zufall, umgebung().uhr.Timer()));
    }
}

Tippwunsch frmVorschlag::leseWunsch()
{
    Tippwunsch wunsch{.bank1 = wunsch_->bank1(), .bank2 = wunsch_->bank2(), .statistiken = {}};
    Statistikquelle quelle(umgebung());
    for (std::size_t i = 0; i < statistiken_.size(); ++i) {
        statistiken_[i]->modell().Clear();
        if (wunsch_->willStatistik(i))
            wunsch.statistiken.push_back(zeigeStatistik(quelle, i));
    }
    return wunsch;
}

Statistikliste frmVorschlag::zeigeStatistik(Statistikquelle& quelle, std::size_t stelle)
{
    const std::array<std::function<Statistikliste()>, 3> lies{
        [&] { return quelle.wochenliste(wunsch_->spielwoche()); },
        [&] { return quelle.haeufigkeitsliste(); },
        [&] { return quelle.abwesenheitsliste(); },
    };
    Statistikliste statistik = lies[stelle]();
    Liste& anzeige = *statistiken_[stelle];
    anzeige.modell().fuelle(texte(statistik));
    anzeige.zeigeZeile(statistik.besteZuletzt ? anzeige.zeilenzahl() - 1 : 0);
    if (stelle == 0)
        statistiktitel_[0]->setText("SW" + wunsch_->spielwochentext());
    return statistik;
}

void frmVorschlag::fuegeHinzu(const Kombination& tip)
{
    tipps_.push_back(tip);
    Liste4->modell().AddItem(tippzeile(tipps_.size(), tip));
}

void frmVorschlag::fuegeFestenTippHinzu()
{
    if (laeuft())
        return;
    fuegeHinzu(istSamstag(umgebung().archiv.Spielart) ? Kombination{4, 8, 15, 30, 38, 43}
                                                      : Kombination{9, 19, 24, 26, 38, 47});
    wunsch_->erhoeheAnzahl();
    Befehl1->setEnabled(true);
    Befehl2->setEnabled(true);
}

void frmVorschlag::zeigeTipp()
{
    const std::ptrdiff_t zeile = Liste4->modell().ListIndex();
    if (zeile < 0)
        return;
    Tippfeld7x7 feld;
    feld.zeige(tipps_[static_cast<std::size_t>(zeile)]);
    Bezeichnung100->zeige(feld);
}

void frmVorschlag::vergroessereStatistiken()
{
    for (Liste* statistik : statistiken_)
        statistik->setzeSichtbar(kLang, kStatistikzeichen);
    Label1->setText("SW " + wunsch_->spielwochentext());
}

void frmVorschlag::kopiere()
{
    if (tipps_.empty())
        return;
    concat text;
    for (std::size_t i = 0; i < tipps_.size(); ++i)
        text.Append(tippzeile(i + 1, tipps_[i]) + std::string(kZeilenende));
    text.Append(kZeilenende);
    uebertrage(qt(text.Value()));
}

void frmVorschlag::uebergib()
{
    if (tipps_.empty())
        return;
    zeigeTippschein();
    schliesse();
}

void frmVorschlag::zeigeTippschein()
{
    std::vector<Tippreihe> reihen(std::min(wunsch_->anzahl(), tipps_.size()));
    for (std::size_t n = 0; n < reihen.size(); ++n)
        std::ranges::transform(tipps_[n], reihen[n].zahlen.begin(),
                               [](std::int32_t zahl) { return std::to_string(zahl); });
    ungespeichert_ = false;
    uebergeben_ = true;
    dynamic_cast<frmTA&>(umgebung().bildschirme->oeffne(kTippschein)).uebernimm(reihen);
}

bool frmVorschlag::kehrtZumMenueZurueck() const
{
    return !uebergeben_;
}

void frmVorschlag::keyPressEvent(QKeyEvent* ereignis)
{
    if (animation_ && ereignis->key() == Qt::Key_Escape)
        animation_->ueberspringe();
    else
        Bildschirm::keyPressEvent(ereignis);
}

void frmVorschlag::closeEvent(QCloseEvent* ereignis)
{
    if (ungespeichert_ && !laeuft() && umgebung().boxen.frage("Lotto Nachricht", kNichtGespeichert))
        zeigeTippschein();
    Bildschirm::closeEvent(ereignis);
}
