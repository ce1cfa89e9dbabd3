#include "engines/screens/frmpos_calc.h"

#include "engines/logic/Positionsliste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr auto kInfo =
    "Das Programm ermittelt die lexikographische Ordnungszahl (hier als Positionszahl bezeichnet) einer gegebenen "
    "Kombination.\r\n"
    "Auch der umgekehrte Weg, die Ermittlung der Kombination zu einer gegebenen Ordnungszahl, ist möglich. \r\n"
    "Beispiel:\r\n"
    "Kombination: 1 2 3 4 5 6 -> Ordnungszahl: 1\r\n"
    "Ordnungszahl: 13.983.816 -> Kombination: 44 45 46 47 48 49\r\n";

constexpr auto kFehler = " Fehler: Die Positionszahl muss >=1 und <=13.983.816 sein.";

struct Schrittknopf {
    const char* name;
    const char* text;
    const char* hinweis;
};

/// In the order of `kPositionsschritte`.
constexpr std::array<Schrittknopf, kPositionsschritte.size()> kKnoepfe{{
    {"Command2", "<", "-1"},
    {"Command3", ">", "+1"},
    {"Command4", "<<", "-10"},
    {"Command6", ">>", "+10"},
    {"Command5", "<<<", "-100"},
    {"Command7", ">>>", "+100"},
    {"Command8", "<<<<", "-1000"},
    {"Command9", ">>>>", "+1000"},
}};

} // namespace

frmpos_calc::frmpos_calc(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmpos_calc", "Positionszahl->Kombination;   Kombination -> Positionszahl")
{
    Option1 = {option("Option1(0)", "Positionszahl (Ordnungszahl) ->  Kombination "),
               option("Option1(1)", "Kombination                                  -> Positionszahl (Ordnungszahl)")};
    Text1 = textfeld("Text1", "1");
    Text2 = textfeld("Text2");
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::FreieEingabe, this);
    Label1 = bezeichnung("Label1");
    Label2 = bezeichnung("Label2", "Eine Positionszahl eingeben (von >= 1 bis <=13983816):");
    Label3 = bezeichnung("Label3", "6 Zahlen auswählen >>");
    Label4 = bezeichnung("Label4");
    Label5 = bezeichnung("Label5", "- velmark -");
    Command1 = befehl("Command1", "Info");
    baueSchritte();
    ordneAn();

    bei(Option1[0], [this] { waehleRichtung(); });
    bei(Option1[1], [this] { waehleRichtung(); });
    bei(Command1, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    connect(Text1, &QLineEdit::textChanged, this, [this] { pruefeEingabe(); });
    Bezeichnung6->beiKlick = [this](int zahl) { klicke(zahl); };

    Option1[0]->setChecked(true);
    waehleRichtung();
}

void frmpos_calc::baueSchritte()
{
    for (std::size_t i = 0; i < schritte_.size(); ++i) {
        schritte_[i] = befehl(kKnoepfe[i].name, kKnoepfe[i].text);
        schritte_[i]->setToolTip(kKnoepfe[i].hinweis);
        bei(schritte_[i], [this, i] { schreite(kPositionsschritte[i]); });
    }
}

void frmpos_calc::ordneAn()
{
    Text2->setReadOnly(true);
    Text2->setFont(Stil::festeSchrift());
    Frame1 = rahmen("Frame1", {}, raster(2, {schritte_.begin(), schritte_.end()}));
    Rahmen6 = rahmen("Rahmen6", "Kombination", spalte({Bezeichnung6}));
    for (QWidget* feld : std::initializer_list<QWidget*>{Label2, Label3, Frame1})
        behaltePlatz(feld);

    // clang-format off
    setzeInhalt(spalte({
        zeile({
            spalte({
                Option1[0],
                Option1[1],
                eng(spalte({Label2, Text1})),
                Frame1,
                zeile({luecke(), Label3}),
                Label4,
                luecke(),
            }),
            Rahmen6,
        }),
        Text2,
        zeile({Command1, Label1, luecke(), Label5}),
    }));
    // clang-format on
}

void frmpos_calc::waehleRichtung()
{
    const bool zurKombination = Option1[0]->isChecked();
    Label2->setVisible(zurKombination);
    Frame1->setVisible(zurKombination);
    Label3->setVisible(!zurKombination);
    Rahmen6->setEnabled(!zurKombination);
    if (!zurKombination)
        liesGewaehlte();
    if (zurKombination || istAufsteigend(gewaehlte_))
        Berechne();
}

void frmpos_calc::liesGewaehlte()
{
    gewaehlte_ = {};
    const std::vector<int> markierte = Bezeichnung6->modell().gewaehlte();
    std::copy_n(markierte.begin(), std::min(markierte.size(), gewaehlte_.size()), gewaehlte_.begin());
}

void frmpos_calc::klicke(int zahl)
{
    // An unmarked cell beside six marked ones was clicked in vain.
    if (Bezeichnung6->modell().markiert(zahl)) {
        liesGewaehlte();
        if (istAufsteigend(gewaehlte_)) {
            Bezeichnung6->repaint();
            Berechne();
        }
    }
    gewaehlte_ = {};
}

void frmpos_calc::schreite(const Positionsschritt& schritt)
{
    const auto wert = liesGruppierteZahl(utf8(Text1->text()));
    if (const auto neuer = wert ? nachSchritt(*wert, schritt) : std::nullopt)
        Text1->setText(QString::number(*neuer));
}

void frmpos_calc::pruefeEingabe()
{
    Label4->clear();
    if (liesPositionszahl(utf8(Text1->text())))
        Berechne();
    else
        Label4->setText(kFehler);
}

void frmpos_calc::Berechne()
{
    Text2->clear();
    Label1->clear();
    if (Option1[0]->isChecked())
        zeigeKombination();
    else
        zeigePosition();
}

void frmpos_calc::zeigeKombination()
{
    Tippfeld7x7 feld;
    Bezeichnung6->zeige(feld);
    const auto position = liesPositionszahl(utf8(Text1->text()));
    const auto zahlen = position ? KombinationZaehlen(*position) : std::nullopt;
    if (!zahlen)
        return;
    feld.zeige(*zahlen);
    Bezeichnung6->zeige(feld);
    Text2->setText(qt(positionsergebnis(*zahlen, *position)));
}

void frmpos_calc::zeigePosition()
{
    const auto position = PositionszahlZaehlen(gewaehlte_);
    if (!position)
        return;
    Text2->setText(qt(positionsergebnis(gewaehlte_, *position)));
    // Where this changes the field, its own handler calculates once more and finds the same.
    Text1->setText(QString::number(*position));
}
