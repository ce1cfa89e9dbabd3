#include "tips/screens/frmVorschlag.h"

#include "listcontrol/logic/concat.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "statistics/logic/Spielwochen.h"
#include "tips/screens/Felder.h"
#include "tips/screens/Statistikquelle.h"
#include "tips/screens/Tippanimation.h"
#include "tips/screens/frmTA.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
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

constexpr int kVorgabeTippreihen = 6;
constexpr int kKurz = 8; ///< rows of a statistic in sight
constexpr int kLang = 24;
constexpr int kStatistikzeichen = 8;
constexpr int kTippzeichen = 30;

/// Two-digit entries from 1 to `letzter`.
void fuelle(QComboBox* kombi, int letzter)
{
    for (int zahl = 1; zahl <= letzter; ++zahl)
        kombi->addItem(qt(Format(zahl, "00")));
}

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
            spalte({baueWuensche(), zeile({Befehl5, Rahmen7, luecke()}), luecke()}),
            dehnbar(spalte({Bezeichnung4, dehnbar(baueStatistiken())})),
            dehnbar(rahmen("Rahmen3", "Generierte Tips", spalte({
                dehnbar(Liste4),
                zeile({luecke(), Bezeichnung100, luecke()}),
            }))),
        })),
        zeile({Befehl2, Befehl1, luecke(), Command1, Befehl4}),
    }));
    // clang-format on
    schalteBankzahlen();
    verbinde();
}

QLayout* frmVorschlag::baueWuensche()
{
    constexpr std::array kTexte{"Zahlen die in der nächsten Spielwoche",
                                "Die am häufigsten gezogenen Zahlen  überhaupt?", "Lange nicht gezogene Zahlen?",
                                "Bankzahl 1 einbeziehen?", "Bankzahl 2 einbeziehen?"};
    for (std::size_t i = 0; i < kontrolle_.size(); ++i)
        kontrolle_[i] = kontroll(QString("Kontroll%1").arg(i + 1), kTexte[i]);
    Kombi1 = kombi("Kombi1");
    Kombi2 = kombi("Kombi2");
    fuelle(Kombi1, static_cast<int>(kTippsJeSchein));
    fuelle(Kombi2, kSpielwochen);
    Kombi1->setCurrentIndex(kVorgabeTippreihen - 1);
    for (std::size_t i = 0; i < cmbB.size(); ++i) {
        cmbB[i] = kombi(QString("cmbB%1").arg(i + 1));
        lblBank[i] = bezeichnung(QString("lblBank(%1)").arg(i), QString("Bank%1").arg(i + 1));
        fuelle(cmbB[i], kHoechsteZahl);
    }

    // clang-format off
    return spalte({
        rahmen("Rahmen1", "Diese Zahlen einbeziehen:", spalte({
            kontrolle_[0],
            zeile({bezeichnung("Bezeichnung1", "Spielwoche"), Kombi2,
                   bezeichnung("Bezeichnung2", "am häufigsten gezogen wurden?"), luecke()}),
            kontrolle_[1],
            kontrolle_[2],
        })),
        rahmen("Rahmen6", "Bankzahlen", raster(3, {
            kontrolle_[3], lblBank[0], cmbB[0],
            kontrolle_[4], lblBank[1], cmbB[1],
        })),
        zeile({bezeichnung("Bezeichnung3", "Anzahl der gewünschten Tippreihen:"), Kombi1, luecke()}),
    });
    // clang-format on
}

QGroupBox* frmVorschlag::baueStatistiken()
{
    constexpr std::array kTitel{"SW", "Häufigkeit", "Zuletzt gez."};
    constexpr std::array kKoepfe{"Häuf.  Zahl", "Häuf.  Zahl", "Wochen Zahl"};
    Bloecke spalten;
    for (std::size_t i = 0; i < statistiken_.size(); ++i) {
        statistiken_[i] = liste(QString("Liste%1").arg(i + 1), {.Sorted = i > 0});
        statistiken_[i]->setzeSichtbar(kKurz, kStatistikzeichen);
        statistiktitel_[i] = bezeichnung(QString("Bezeichnung%1").arg(i + 6), kTitel[i]);
        QLabel* kopf = listenkopf(QString("Bezeichnung%1").arg(i + 11), kKoepfe[i]);
        spalten.push_back(dehnbar(eng(spalte({statistiktitel_[i], kopf, dehnbar(statistiken_[i])}))));
    }
    Label1 = bezeichnung("Label1");
    return rahmen("Rahmen2", "Statistiken", spalte({dehnbar(zeile(spalten)), Label1}));
}

void frmVorschlag::verbinde()
{
    for (const std::size_t bank : {std::size_t{3}, std::size_t{4}})
        bei(kontrolle_[bank], [this] { schalteBankzahlen(); });
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
    Kombi2->setCurrentIndex(naechsteSpielwoche(archiv) - 1);
}

std::size_t frmVorschlag::anzahl() const
{
    return static_cast<std::size_t>(Kombi1->currentIndex() + 1);
}

void frmVorschlag::erzeuge()
{
    Lauf lauf(*this, kWartetitel, WarteAnzeige::Zeiger::Pfeil);
    if (!lauf)
        return;
    Befehl1->setEnabled(false);
    Befehl2->setEnabled(false);
    const bool mitStatistik = std::ranges::any_of(std::span(kontrolle_).first(3), &QCheckBox::isChecked);
    Rahmen7->setText(mitStatistik ? "Ziehungsstatistiken auswerten..." : "Zufallstips erzeugen");
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
    bool weiter = animation.spiele(lauf);
    for (std::size_t rang = 1; weiter && rang <= anzahl(); ++rang) {
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
    const auto bank = [this](std::size_t i) {
        return kontrolle_[i + 3]->isChecked() ? std::optional(cmbB[i]->currentIndex() + 1) : std::nullopt;
    };
    Tippwunsch wunsch{.bank1 = bank(0), .bank2 = bank(1), .statistiken = {}};
    Statistikquelle quelle(umgebung());
    for (std::size_t i = 0; i < statistiken_.size(); ++i) {
        statistiken_[i]->modell().Clear();
        if (kontrolle_[i]->isChecked())
            wunsch.statistiken.push_back(zeigeStatistik(quelle, i));
    }
    return wunsch;
}

Statistikliste frmVorschlag::zeigeStatistik(Statistikquelle& quelle, std::size_t stelle)
{
    const std::array<std::function<Statistikliste()>, 3> lies{
        [&] { return quelle.wochenliste(Kombi2->currentIndex() + 1); },
        [&] { return quelle.haeufigkeitsliste(); },
        [&] { return quelle.abwesenheitsliste(); },
    };
    Statistikliste statistik = lies[stelle]();
    Liste& anzeige = *statistiken_[stelle];
    anzeige.modell().fuelle(texte(statistik));
    anzeige.zeigeZeile(statistik.besteZuletzt ? anzeige.zeilenzahl() - 1 : 0);
    if (stelle == 0)
        statistiktitel_[0]->setText("SW" + Kombi2->currentText());
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
    if (Kombi1->currentIndex() < Kombi1->count() - 1)
        Kombi1->setCurrentIndex(Kombi1->currentIndex() + 1);
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
    Label1->setText("SW " + Kombi2->currentText());
}

void frmVorschlag::schalteBankzahlen()
{
    for (std::size_t i = 0; i < cmbB.size(); ++i)
        for (QWidget* feld : std::initializer_list<QWidget*>{cmbB[i], lblBank[i]})
            feld->setEnabled(kontrolle_[i + 3]->isChecked());
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
    std::vector<Tippreihe> reihen(std::min(anzahl(), tipps_.size()));
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
