#include "tips/screens/Tippwahl.h"

#include "engines/logic/Positionszahl.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "tips/screens/Felder.h"
#include "tips/screens/Positionstafel.h"

#include <QPushButton>

#include <algorithm>

namespace {

constexpr std::array kZahlenfelder{"Bezeichnung10", "Bezeichnung11", "Bezeichnung12",
                                   "Bezeichnung14", "Bezeichnung15", "Bezeichnung16"};
constexpr int kFeldbreite = 34;

void alsZahlenfeld(QLabel* feld)
{
    feld->setAlignment(Qt::AlignCenter);
    feld->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    feld->setMinimumWidth(kFeldbreite);
    feld->setBackgroundRole(QPalette::Base);
    feld->setAutoFillBackground(true);
    alsUeberschrift(feld);
}

} // namespace

Tippwahl::Tippwahl(Bildschirm& bildschirm) : Rahmen("6 Zahlen auswählen", &bildschirm), bildschirm_(bildschirm)
{
    setObjectName("Rahmen6");
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::FreieEingabe, this);
    baueZahlen();
    baueKnoepfe();

    // clang-format off
    setzeInhalt(spalte({
        zeile({
            Bezeichnung6,
            spalte({
                Label5,
                lblSZ,
                zeile({Command1, Command2}),
                luecke(),
                Command4,
                Befehl3,
                Befehl1,
            }),
        }),
        Label3,
        zeile(Bloecke(zahlen_.begin(), zahlen_.end())),
        zeile({lblPositionszahl, Bezeichnung13, luecke()}),
    }));
    // clang-format on
    verbinde();
    zeigeZahlen();
}

void Tippwahl::baueZahlen()
{
    for (std::size_t i = 0; i < zahlen_.size(); ++i) {
        zahlen_[i] = benannt(new Klickfeld(this), kZahlenfelder[i]);
        alsZahlenfeld(zahlen_[i]);
    }
    zahlen_.back()->setToolTip("Ein Doppelklick übernimmt die letzte Ziehung als Tipp.");
    Label3 = beschriftung("Label3");
    Label5 = beschriftung("Label5", "Superzahl:");
    lblSZ = beschriftung("lblSZ", "0");
    lblPositionszahl = beschriftung("lblPositionszahl", "Positionszahl:");
    Bezeichnung13 = beschriftung("Bezeichnung13");
    alsZahlenfeld(lblSZ);
}

void Tippwahl::baueKnoepfe()
{
    Command1 = knopf("Command1", "<", "Superzahl -1");
    Command2 = knopf("Command2", ">", "Superzahl +1");
    Command4 = knopf("Command4", "Z", "Erzeugt einen Zufallstipp.");
    Befehl3 = knopf("Befehl3", "&P", Positionstafel::kTitel);
    Befehl1 = knopf("Befehl1", "&I", "Info zur Positionszahl (Ordnungszahl)");
    for (QPushButton* pfeil : {Command1, Command2}) {
        pfeil->setAutoRepeat(true);
        pfeil->setFixedWidth(kFeldbreite);
    }
    for (QWidget* feld : std::initializer_list<QWidget*>{Label5, lblSZ, Command1, Command2, Command4, Befehl3})
        behaltePlatz(feld);
}

void Tippwahl::verbinde()
{
    const auto rufe = [](const std::function<void()>& ereignis) {
        if (ereignis)
            ereignis();
    };
    Bezeichnung6->beiKlick = [this, rufe](int) {
        zeigeZahlen();
        rufe(beiKlick);
        rufe(beiAenderung);
    };
    zahlen_.back()->beiDoppelklick = [this, rufe] { rufe(beiLetzterZiehung); };
    connect(Command1, &QPushButton::clicked, this, [this] { stelleSuperzahl(superzahl_ - 1); });
    connect(Command2, &QPushButton::clicked, this, [this] { stelleSuperzahl(superzahl_ + 1); });
    connect(Command4, &QPushButton::clicked, this, [this] { ziehe(); });
    connect(Befehl3, &QPushButton::clicked, this, [this, rufe] { rufe(beiPositionswunsch); });
    connect(Befehl1, &QPushButton::clicked, this, [this, rufe] { rufe(beiPositionsinfo); });
}

QPushButton* Tippwahl::knopf(const QString& name, const QString& text, const QString& hinweis)
{
    auto* neuer = benannt(new QPushButton(text, this), name);
    neuer->setToolTip(hinweis);
    neuer->setAccessibleName(hinweis);
    setzeHinweis(neuer, hinweis);
    return neuer;
}

QLabel* Tippwahl::beschriftung(const QString& name, const QString& text)
{
    return benannt(new QLabel(text, this), name);
}

const Tippfeld7x7& Tippwahl::tippfeld() const
{
    return Bezeichnung6->modell();
}

std::vector<std::int32_t> Tippwahl::zahlen() const
{
    return tippfeld().gewaehlte();
}

void Tippwahl::zeige(const Tippfeld7x7& feld)
{
    Bezeichnung6->zeige(feld);
    zeigeZahlen();
}

void Tippwahl::zeigeSuperzahl(int superzahl)
{
    superzahl_ = superzahl;
    lblSZ->setNum(superzahl);
}

void Tippwahl::stelleModus(bool kombination)
{
    wechsleTitel(*this, kombination ? "Kombination auswählen" : "6 Zahlen auswählen");
    Label3->setText(kombination ? "Ausgabe: Ausgewählte Kombination" : "Ausgabe: Ausgewählte Tippreihe");
    for (QWidget* feld : std::initializer_list<QWidget*>{Label5, lblSZ, Command1, Command2, Command4, Befehl3})
        feld->setVisible(!kombination);
}

void Tippwahl::ohneInfokuerzel()
{
    Befehl1->setText("I");
}

void Tippwahl::zeigeZahlen()
{
    const std::vector<std::int32_t> gewaehlte = zahlen();
    for (std::size_t i = 0; i < zahlen_.size(); ++i)
        zahlen_[i]->setText(i < gewaehlte.size() ? QString::number(gewaehlte[i]) : QString());
    Kombination tipp{};
    std::ranges::copy(gewaehlte, tipp.begin());
    Bezeichnung13->setText(istAufsteigend(tipp) ? qt(Format(PositionszahlSumme(tipp), "#,###,###")) : QString());
}

void Tippwahl::stelleSuperzahl(int superzahl)
{
    zeigeSuperzahl((superzahl + kSuperzahlen) % kSuperzahlen);
    if (beiSuperzahl)
        beiSuperzahl();
}

void Tippwahl::ziehe()
{
    Umgebung& umgebung = bildschirm_.umgebung();
    umgebung.zufall.Randomize(umgebung.uhr.Timer());
    Tippfeld7x7 feld;
    feld.zeige(sechsZahlen(umgebung.zufall));
    zeige(feld);
    if (beiAenderung)
        beiAenderung();
}
