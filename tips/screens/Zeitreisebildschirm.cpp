#include "tips/screens/Zeitreisebildschirm.h"

#include "listcontrol/screens/ListView.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "tips/logic/Zeitreisetexte.h"
#include "tips/screens/Desktopausgabe.h"
#include "tips/screens/Felder.h"
#include "tips/screens/Markenwahl.h"
#include "tips/screens/Positionstafel.h"
#include "tips/screens/Tippwahl.h"
#include "tips/screens/Zeitreisezaehler.h"

#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kLeereZeilen = 11; ///< of a list that the user has cleared
constexpr int kKombination = 1;  ///< place of the combination search among the modes
constexpr auto kPositionsinfo = "frmpos2";

} // namespace

Zeitreisebildschirm::Zeitreisebildschirm(Umgebung& umgebung, const QString& name, Zeitreiseform form)
    : Bildschirm(umgebung, name, qt(zeitreisetitel(form, false, true))),
      form_(form),
      liste_(form, this)
{
    Rahmen6 = new Tippwahl(*this);
    Rahmen4 = new Positionstafel(this);
    Rahmen2 = new Zahlenhaeufigkeit(this);
    Rahmen1 = new Zeitreisezaehler(form, this);
    modus_ = new Markenwahl(
        {{"option1", "gewinn", "lblOPT1(0)", "lblC(0)", "Vollständigen Tipp auswerten",
          "Es müssen 6 Zahlen und die Superzahl ausgewählt werden."},
         {"Option2", "kombination", "lblOPT1(1)", "lblC(1)", "Kombinationen  suchen", "Auswahl von 1-6 Zahlen."}},
        this);
    Bezeichnung1 = bezeichnung("Bezeichnung1");
    Bezeichnung8 = bezeichnung("Bezeichnung8");
    Bezeichnung20 = bezeichnung("Bezeichnung20");
    Label2 = bezeichnung("Label2");
    Befehl2 = befehl("Befehl2", "Zum  Lotto Auswahl&menü  > ");
    Befehl13 = befehl("Befehl13", "In&fo");
    Befehl19 = befehl("Befehl19", "&Löschen", hinweis("Löscht die Tabelleneinträge."));
    Befehl19->setToolTip("Löscht die Tabelleneinträge.");
    alsUeberschrift(Bezeichnung20);
    alsUeberschrift(Label2);
    if (form != Zeitreiseform::AlterPlan)
        ausgabe_ = std::make_unique<Desktopausgabe>(*this, [this] { return liste_.inListenfolge(ergebnis_); });
}

Zeitreisebildschirm::~Zeitreisebildschirm() = default;

void Zeitreisebildschirm::ordneAn(const Bloecke& oben, const Bloecke& links, const Bloecke& knoepfe)
{
    Bloecke linkeSpalte{Rahmen6, rahmen("frameModus", {}, spalte({modus_}))};
    linkeSpalte.insert(linkeSpalte.end(), links.begin(), links.end());
    linkeSpalte.emplace_back(luecke());
    Bloecke fuss = knoepfe;
    fuss.insert(fuss.end(), {Befehl19, Befehl13, luecke(), Befehl2});

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung20, luecke(), Bezeichnung1}),
        spalte(oben),
        dehnbar(zeile({
            spalte(linkeSpalte),
            dehnbar(spalte({
                Rahmen2,
                Rahmen1,
                Rahmen4,
                zeile({Label2, luecke(), Bezeichnung8}),
                dehnbar(liste_.feld()),
            })),
        })),
        zeile(fuss),
    }));
    // clang-format on
    verbinde();
    modus_->waehle(0);
}

void Zeitreisebildschirm::verbinde()
{
    modus_->beiWahl = [this](int) { wechsleModus(); };
    Rahmen6->beiKlick = [this] { Rahmen4->hide(); };
    Rahmen6->beiAenderung = [this] { erneuere(); };
    Rahmen6->beiSuperzahl = [this] {
        if (Rahmen6->zahlen().size() == Kombination{}.size())
            erneuere();
    };
    Rahmen6->beiLetzterZiehung = [this] { nimmLetzteZiehung(); };
    Rahmen6->beiPositionswunsch = [this] { Rahmen4->oeffne(); };
    Rahmen6->beiPositionsinfo = [this] {
        if (umgebung().bildschirme->kennt(kPositionsinfo))
            umgebung().bildschirme->oeffne(kPositionsinfo);
    };
    Rahmen4->beiKombination = [this](const Kombination& zahlen) {
        Tippfeld7x7 feld;
        feld.zeige(zahlen);
        Rahmen6->zeige(feld);
        erneuere();
    };
    enterDrueckt(Rahmen4->eingabe(), Rahmen4->startknopf());
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl13, [this] { umgebung().boxen.info(kInfotitel, info()); });
    bei(Befehl19, [this] { leereListe(); });
}

bool Zeitreisebildschirm::kombination() const
{
    return modus_->gewaehlte() == kKombination;
}

Zeitreisefrage Zeitreisebildschirm::frage() const
{
    return {kombination() ? Zeitreiseart::Suche : ansicht(), Rahmen6->zahlen(), Rahmen6->superzahl()};
}

std::vector<std::int16_t> Zeitreisebildschirm::spielarten() const
{
    return {umgebung().archiv.Spielart};
}

Zeitreise Zeitreisebildschirm::werteAus(const Zeitreisefrage& frage)
{
    return evaluate(umgebung().archiv, frage, umgebung().archiv.Spielart, form_);
}

std::optional<Zeitreisezeile> Zeitreisebildschirm::letzte()
{
    return letzteZiehung(umgebung().archiv, umgebung().archiv.Spielart);
}

void Zeitreisebildschirm::wechsleModus()
{
    Rahmen6->zeige({});
    stelleModus();
    erneuere();
}

void Zeitreisebildschirm::stelleModus()
{
    for (QWidget* feld : nurVollerTipp_)
        feld->setVisible(!kombination());
    if (ausgabe_)
        ausgabe_->htmlKnopf()->setVisible(!kombination());
    Rahmen4->hide();
    Rahmen6->stelleModus(kombination());
    Rahmen1->stelleModus(kombination());
    liste_.stelleModus(kombination());
    zeigeUeberschriften();
}

void Zeitreisebildschirm::erneuere()
{
    const Zeitreisefrage gefragt = frage();
    ergebnis_ = {};
    Bezeichnung8->clear();
    if (gefragt.istVollstaendig() && !spielarten().empty()) {
        uhr_.ResetTimer();
        ergebnis_ = werteAus(gefragt);
        uhr_.StopTimer();
        if (!ergebnis_.zahlen.empty())
            Bezeichnung8->setText("Suchzeit: " + qt(Dezimaltext(uhr_.Elapsed(), 2)) + " ms");
    }
    zeige();
}

void Zeitreisebildschirm::zeige()
{
    const bool ausgewertet = !ergebnis_.spielarten.empty();
    liste_.zeige(ergebnis_);
    Rahmen1->zeige(ergebnis_);
    Rahmen2->zeige(ergebnis_);
    if (ausgewertet)
        Label2->setText(qt(listentitel(ergebnis_)));
    else
        Label2->setText(spielarten().empty() ? QString() : qt(listentitelVorher(kombination())));
    if (ausgabe_ && ausgewertet)
        ausgabe_->erlaube(ergebnis_);
    else if (ausgabe_)
        ausgabe_->sperreHtml();
    zeigeUeberschriften();
}

QString Zeitreisebildschirm::ziehungstext() const
{
    return qt(form_ == Zeitreiseform::Zusammen ? ziehungszeile(ergebnis_) : ziehungszeile(umgebung().archiv));
}

void Zeitreisebildschirm::zeigeUeberschriften()
{
    const std::vector<std::int16_t> spiele = spielarten();
    const bool seit1955 = spiele.empty() || std::ranges::any_of(spiele, istSamstag);
    Bezeichnung20->setText(qt(spielartenGross(spiele)));
    Bezeichnung1->setText(ziehungstext());
    wechsleTitel(*Rahmen2, qt(haeufigkeitstitel(form_, seit1955)));
    setzeGrundtitel(
        qt(ergebnis_.spielarten.empty() ? zeitreisetitel(form_, kombination(), seit1955) : zeitreisetitel(ergebnis_)));
    setzeTitel(grundtitel());
}

void Zeitreisebildschirm::leereListe()
{
    ergebnis_.zeilen.clear();
    liste_.leere(kLeereZeilen);
    Label2->setText(qt(listentitelVorher(kombination())));
    if (ausgabe_)
        ausgabe_->sperreHtml();
}

void Zeitreisebildschirm::nimmLetzteZiehung()
{
    const auto ziehung = letzte();
    if (!ziehung)
        return;
    Tippfeld7x7 feld;
    feld.zeige(ziehung->zahlen);
    Rahmen6->zeige(feld);
    if (ziehung->s >= 0 && ziehung->s <= 9)
        Rahmen6->zeigeSuperzahl(ziehung->s);
    erneuere();
}

void Zeitreisebildschirm::uebernimm(const Tippfeld7x7& tipp, std::optional<int> superzahl)
{
    uebergeben_ = true;
    Befehl2->setText("&Zurück");
    modus_->waehle(0);
    Rahmen6->zeige(tipp);
    Rahmen6->zeigeSuperzahl(superzahl.value_or(Rahmen6->superzahl()));
    erneuere();
}

bool Zeitreisebildschirm::istVeraltet() const
{
    return form_ != Zeitreiseform::Zusammen && !ergebnis_.spielarten.empty() && !ergebnis_.istVon(umgebung().archiv);
}

void Zeitreisebildschirm::beimZeigen()
{
    if (istVeraltet())
        erneuere();
    else
        zeigeUeberschriften();
}

void Zeitreisebildschirm::changeEvent(QEvent* ereignis)
{
    Bildschirm::changeEvent(ereignis);
    // The menu may have loaded another game while this screen stayed open.
    if (ereignis->type() == QEvent::ActivationChange && isActiveWindow() && Bezeichnung1->text() != ziehungstext())
        beimZeigen();
}

QString Zeitreisebildschirm::info() const
{
    return "Die Gewinne werden nach dem seit 04.05.2013 gültigen Gewinnklassenplan ermittelt.\n"
           "Die alte Zusatzzahl wird bei der Gewinnermittlung nicht mehr berücksichtigt.\n"
           "Die Superzahl gibt es im Samstagslotto erst seit 7.12.1991, im Mittwochslotto seit 6.12.1995.\n\n"
           "Vollständigen Tipp auswerten: Sechs Zahlen und die Superzahl auswählen. Die Liste zeigt die Ziehungen, in "
           "denen dieser Tipp gewonnen hätte.\n"
           "Kombinationen suchen: Eine bis sechs Zahlen auswählen. Die Liste zeigt die Ziehungen, in denen alle diese "
           "Zahlen gezogen wurden.\n\n"
           "Ein Doppelklick auf die sechste der ausgewählten Zahlen übernimmt die letzte Ziehung als Tipp.";
}
