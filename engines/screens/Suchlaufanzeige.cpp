#include "engines/screens/Suchlaufanzeige.h"

#include "engines/logic/VollsucheTexte.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"

#include <QLabel>
#include <QLineEdit>

namespace {
constexpr auto kUhrNull = "00:00:00";
}

Suchlaufanzeige::Suchlaufanzeige(QWidget* eltern) : QWidget(eltern)
{
    Bezeichnung6 = new Tippfeld7x7View("Bezeichnung6", Tippfeld7x7View::Art::NurAnzeige, this);
    Text15 = new QLineEdit(this);
    Text15->setObjectName("Text15");
    Text15->setReadOnly(true);
    Label4 = bezeichnung("Label4", kUhrNull);
    Label5 = bezeichnung("Label5", kUhrNull);
    lblSL = bezeichnung("lblSL", {});
    Bezeichnung10 = bezeichnung("Bezeichnung10", "BITTE WARTEN !");
    alsUeberschrift(Bezeichnung10);
    behaltePlatz(Bezeichnung10);
    Bezeichnung10->hide();

    // clang-format off
    QLayout* inhalt = spalte({
        Bezeichnung6,
        eng(formular({
            {bezeichnung("Bezeichnung1", "Suche:"), Text15},
            {bezeichnung("Bezeichnung2", "Laufzeit:"), Label4},
            {bezeichnung("Bezeichnung3", "voraussichtlich:"), Label5},
        })),
        lblSL,
        Bezeichnung10,
        luecke(),
    });
    // clang-format on
    inhalt->setContentsMargins(0, 0, 0, 0);
    setLayout(inhalt);
}

QLabel* Suchlaufanzeige::bezeichnung(const QString& name, const QString& text)
{
    auto* feld = new QLabel(text, this);
    feld->setObjectName(name);
    return feld;
}

void Suchlaufanzeige::beginne(const Suchergebnis& ergebnis, Zeitpunkt jetzt)
{
    constexpr std::array<std::int32_t, 6> kErste{1, 2, 3, 4, 5, 6};
    SuchStart = jetzt;
    Text15->setText(qt(groessentexte(ergebnis.groesse).wiederholungen));
    Label4->setText(kUhrNull);
    Label5->setText(kUhrNull);
    lblSL->setText(qt(suchlaeufeText(ergebnis)));
    Bezeichnung10->show();
    zeigeKombination(std::span(kErste).first(static_cast<std::size_t>(ergebnis.groesse)));
}

void Suchlaufanzeige::zeigeKombination(std::span<const std::int32_t> zahlen)
{
    Tippfeld7x7 feld;
    feld.zeige(zahlen);
    Bezeichnung6->zeige(feld);
}

void Suchlaufanzeige::zeigeZeit(const Suchergebnis& ergebnis, Zeitpunkt jetzt)
{
    const std::int64_t sekunden = suchzeit(SuchStart, jetzt);
    Label4->setText(qt(uhrtext(sekunden)));
    Label5->setText(qt(schaetzung(ergebnis, sekunden)));
    lblSL->setText(qt(suchlaeufeMitProzent(ergebnis)));
}

void Suchlaufanzeige::beende(const Suchergebnis& ergebnis)
{
    Bezeichnung10->hide();
    if (ergebnis.abgebrochen()) {
        lblSL->setText(qt(kSucheAbgebrochen));
        return;
    }
    lblSL->setText(qt(alleSuchlaeufe(ergebnis)));
    Label5->setText(Label4->text());
}
