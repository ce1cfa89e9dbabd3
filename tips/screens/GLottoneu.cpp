#include "tips/screens/GLottoneu.h"

#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Wartezeit.h"
#include "shell/elements/Zaehlerfeld.h"
#include "shell/logic/Format.h"
#include "shell/logic/clsTimer.h"
#include "tips/screens/Kugelreihe.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr auto kTitel = "\"Computerlotto\", vergleicht einen Tip mit Computer-Zufallsziehungen";
constexpr auto kZaehlermaske = "###,###,###";
constexpr std::chrono::milliseconds kSchritt{40}; ///< of the animation, from number to number
constexpr int kZeilen = 10;
constexpr int kZeichen = 34;

constexpr std::array kTreffernamen{"txtEiner", "txtZweier", "txtDreier", "txtVierer", "txtFünfer", "txtSechser"};
constexpr std::array kTreffertexte{"Einer", "Zweier", "Dreier", "Vierer", "Fünfer", "Sechser"};

constexpr auto kInfo1 =
    "Der Computer zieht so oft, wie es eingestellt ist, sechs Zufallszahlen und vergleicht sie mit dem ausgewählten "
    "Tip.\nGezählt wird, wie oft jede Zahl des Tips gezogen wurde und wie viele Ziehungen einen bis sechs Treffer "
    "hatten.\n\nNur Spielerei, interessant nur für Lotto- oder Zahlen-Fans.";
constexpr auto kInfo2 =
    "Eine Superzahl wird nicht gezogen, Gewinnklassen gibt es hier nicht: es zählen allein die Treffer.\n"
    "\"<<\" oder Esc beendet einen Lauf; was bis dahin gezählt wurde, bleibt stehen.";
constexpr auto kInfoListen = "In den Listenfeldern können maximal 32735 Ziehungen angezeigt werden.\n"
                             "Wird eine grössere Anzahl von Ziehungen gewählt (>32735), \n"
                             "werden im linken Listenfeld nur die ersten 32735 Ziehungen ausgegeben. \n"
                             "und die einzelnen Gewinne werden gezählt.";

void fuelle(Liste& liste, const std::vector<Computerziehung>& ziehungen, std::string (*zeile)(const Computerziehung&))
{
    liste.modell().aufAnfrage(ziehungen.size(), [&ziehungen, zeile](std::size_t i) { return zeile(ziehungen[i]); });
}

} // namespace

GLottoneu::GLottoneu(Umgebung& umgebung) : Bildschirm(umgebung, "GLottoneu", kTitel)
{
    Befehl1 = befehl("Befehl1", "Ziehungen mit &Animation");
    Befehl2 =
        befehl("Befehl2", "&<<", hinweis("Zurück zum Vergleichsprogramm 1 (alle Ziehungen seit 1955 o. 1986 Mi)."));
    Befehl3 = befehl("Befehl3", "&Info2");
    Befehl5 = befehl("Befehl5", "Zie&hungen anzeigen", hinweis("Zeigt die Zufallstipreihen und Gewinnreihen an."));
    Befehl7 = befehl("Befehl7", "&Ziehungen ohne Animation");
    Befehl9 = befehl("Befehl9", "In&fo1");
    Command1 = befehl("Command1", "Inf&o");
    Rahmen4 = baueListen();
    hauptaktionen({Befehl7, Befehl1});
    stoppknopf(Befehl2);

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            baueEingabe(),
            baueErgebnis(),
            dehnbar(Rahmen4),
        })),
        zeile({Befehl7, Befehl1, Befehl5, luecke(), Befehl9, Befehl3, Command1, Befehl2}),
    }));
    // clang-format on
    zeigeZeitspanne();

    Bezeichnung6->beiKlick = [this](int) { vergiss(); };
    connect(Text7, &QLineEdit::textChanged, this, [this] { zeigeZeitspanne(); });
    bei(Befehl1, [this] { starte(Befehl1, &GLottoneu::zieheMitAnimation); });
    bei(Befehl7, [this] { starte(Befehl7, &GLottoneu::zieheOhneAnimation); });
    bei(Befehl2, [this] { geheZurueck(); });
    bei(Befehl5, [this] { schalteListen(); });
    bei(Befehl3, [this] { this->umgebung().boxen.info("Tombrix-Info", kInfo2); });
    bei(Befehl9, [this] { this->umgebung().boxen.info("Tombrix-Info", kInfo1); });
    bei(Command1, [this] { this->umgebung().boxen.info("Tombrix-Info", kInfoListen); });
}

QLayout* GLottoneu::baueEingabe()
{
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::FreieEingabe, this);
    Text7 = textfeld("Text7", "10000");
    Text7->setAlignment(Qt::AlignRight);
    Text7->setFixedWidth(Text7->fontMetrics().horizontalAdvance("0000000000000"));
    QLabel* spannentext =
        bezeichnung("Bezeichnung8", "Die ausgewählte Anzahl von Ziehungen entspricht einer Zeitspanne von ca:");
    spannentext->setWordWrap(true);
    Text12 = alsZaehler(textfeld("Text12"));
    Text13 = alsZaehler(textfeld("Text13"));
    Text14 = alsZaehler(textfeld("Text14"));

    // clang-format off
    return spalte({
        rahmen("Rahmen1", "Tip auswählen:", zeile({luecke(), Bezeichnung6, luecke()})),
        rahmen("Rahmen2", "Anzahl der Ziehungen", spalte({
            zeile({bezeichnung("Bezeichnung7", "Ziehungen:"), Text7, luecke()}),
            eng(spalte({
                spannentext,
                formular({
                    {bezeichnung("Bezeichnung10", "Jahre"), Text12},
                    {bezeichnung("Bezeichnung11", "Monate"), Text13},
                    {bezeichnung("Bezeichnung12", "Wochen"), Text14},
                }),
                bezeichnung("Bezeichnung13", "(bei 1-er Ziehung/ Wo.)"),
            })),
        })),
        luecke(),
    });
    // clang-format on
}

QLayout* GLottoneu::baueErgebnis()
{
    kugeln_ = new Kugelreihe(this);
    Text9 = alsZaehler(textfeld("Text9"));
    lblZeit = bezeichnung("lblZeit");
    std::vector<std::pair<Block, Block>> zahlen, treffer;
    for (std::size_t i = 0; i < haeufigkeiten_.size(); ++i) {
        tippzahlen_[i] = bezeichnung(QString("lblTippzahl(%1)").arg(i));
        haeufigkeiten_[i] = alsZaehler(textfeld(QString("Text%1").arg(i + 1)));
        treffer_[i] = alsZaehler(textfeld(kTreffernamen[i]));
        zahlen.emplace_back(tippzahlen_[i], haeufigkeiten_[i]);
        treffer.emplace_back(bezeichnung(QString("lblTreffer(%1)").arg(i), kTreffertexte[i]), treffer_[i]);
    }

    // clang-format off
    return spalte({
        kugeln_,
        zeile({bezeichnung("lblZiehungen", "Ziehungen bisher:"), Text9, luecke()}),
        rahmen("Rahmen3", "Ausgabe : Häufigkeit der ausgewählten Zahlen", formular(zahlen)),
        rahmen("Rahmen5", "Ziehungen mit Treffern", formular(treffer)),
        lblZeit,
        luecke(),
    });
    // clang-format on
}

QGroupBox* GLottoneu::baueListen()
{
    Liste1 = liste("Liste1");
    Liste2 = liste("Liste2");
    for (Liste* jede : {Liste1, Liste2})
        jede->setzeSichtbar(kZeilen, kZeichen);
    Labelvoll = bezeichnung("Labelvoll", "Listenfeld voll!");
    Bezeichnung14 = bezeichnung("Bezeichnung14", "Listenfeld voll ! (max. 32735 Einträge)");
    for (QLabel* voll : {Labelvoll, Bezeichnung14}) {
        behaltePlatz(voll);
        voll->hide();
    }

    // clang-format off
    QGroupBox* listen = rahmen("Rahmen4", "Ziehungen", spalte({
        dehnbar(eng(spalte({
            listenkopf("Bezeichnung15", "Zieh.-Nr.                          Ziehung"),
            dehnbar(Liste1),
            Labelvoll,
        }))),
        dehnbar(eng(spalte({
            listenkopf("Bezeichnung16", "Zieh.-Nr.                    Zeihungen mit Gewinnen"),
            dehnbar(Liste2),
            Bezeichnung14,
        }))),
    }));
    // clang-format on
    listen->hide();
    return listen;
}

void GLottoneu::starte(QPushButton* knopf, void (GLottoneu::*ziehe)(Lauf&, std::int32_t))
{
    const std::vector<int> tip = Bezeichnung6->modell().gewaehlte();
    if (tip.size() != lotto_.tip.size()) {
        umgebung().boxen.info(kProgrammtitel, "Bitte zunächst einen Tip aus sechs Zahlen auswählen.");
        return;
    }
    const std::optional<std::int32_t> anzahl = ziehungsanzahl(utf8(Text7->text()));
    using Zeiger = WarteAnzeige::Zeiger;
    Lauf lauf(*this, "Bitte warten !", knopf == Befehl1 ? Zeiger::Pfeil : Zeiger::Sanduhr);
    if (!anzahl || !lauf)
        return;
    vergiss();
    std::ranges::copy(tip, lotto_.tip.begin());
    for (std::size_t i = 0; i < tip.size(); ++i)
        tippzahlen_[i]->setText("Zahl " + QString::number(tip[i]));
    Bezeichnung6->setEnabled(false);
    clsTimer uhr;
    uhr.ResetTimer();
    (this->*ziehe)(lauf, *anzahl);
    uhr.StopTimer();
    Bezeichnung6->setEnabled(true);
    zeigeZaehler();
    zeigeListen();
    lblZeit->setText("Zeit = " + qt(Format(uhr.Elapsed() / 1000, "0.00")) + " s");
    zeigeGelaufen(knopf);
}

void GLottoneu::zieheOhneAnimation(Lauf& lauf, std::int32_t anzahl)
{
    simulateDraws(lotto_, anzahl, umgebung().zufall, umgebung().uhr, [&](std::uint64_t) {
        zeigeZaehler();
        return lauf.zug();
    });
}

void GLottoneu::zieheMitAnimation(Lauf& lauf, std::int32_t anzahl)
{
    for (std::int32_t i = 1; i <= anzahl; ++i) {
        kugeln_->leere();
        const auto zahlen = zieheComputerzahlen(lotto_, umgebung().zufall, umgebung().uhr.Timer());
        for (std::size_t kugel = 0; kugel < zahlen.size(); ++kugel) {
            kugeln_->zeige(kugel, zahlen[kugel]);
            if (!warte(lauf, kSchritt))
                return;
        }
        zeigeZaehler();
    }
}

void GLottoneu::zeigeZaehler()
{
    Text9->setText(qt(Format(lotto_.runden, kZaehlermaske)));
    for (std::size_t i = 0; i < treffer_.size(); ++i) {
        haeufigkeiten_[i]->setText(qt(Format(lotto_.haeufigkeit[i], kZaehlermaske)));
        treffer_[i]->setText(qt(Format(lotto_.treffer[i + 1], kZaehlermaske)));
    }
}

void GLottoneu::zeigeListen()
{
    fuelle(*Liste1, lotto_.ziehungen, ziehungszeile);
    fuelle(*Liste2, lotto_.gewinne, gewinnzeile);
    Labelvoll->setVisible(lotto_.ziehungenVoll());
    Bezeichnung14->setVisible(lotto_.gewinneVoll());
}

/// What stands belongs to another tip.
void GLottoneu::vergiss()
{
    lotto_ = {};
    zeigeListen();
    kugeln_->leere();
    for (QLabel* feld : tippzahlen_)
        feld->clear();
    for (QLineEdit* feld : haeufigkeiten_)
        feld->clear();
    for (QLineEdit* feld : treffer_)
        feld->clear();
    Text9->clear();
    lblZeit->clear();
    zeigeGelaufen(nullptr);
}

void GLottoneu::zeigeZeitspanne()
{
    const Zeitspanne spanne = zeitspanne(ziehungsanzahl(utf8(Text7->text())).value_or(0));
    Text12->setText(QString::number(spanne.Jahre));
    Text13->setText(QString::number(spanne.Monate));
    Text14->setText(QString::number(spanne.Wochen));
}

void GLottoneu::schalteListen()
{
    Rahmen4->setVisible(!Rahmen4->isVisible());
}

void GLottoneu::geheZurueck()
{
    if (laeuft())
        stoppe();
    else
        schliesse();
}
