#include "tips/screens/Positionstafel.h"

#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Positionsliste.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Utf8.h"
#include "tips/screens/Felder.h"

#include <QLineEdit>
#include <QPushButton>

Positionstafel::Positionstafel(QWidget* eltern) : Rahmen(kTitel, eltern)
{
    setObjectName("Rahmen4");
    Text7 = benannt(new QLineEdit("1", this), "Text7");
    Bezeichnung19 = benannt(new QLabel(this), "Bezeichnung19");
    Befehl6 = knopf("Befehl6", "&Start", [this] { nimm(liesGruppierteZahl(utf8(Text7->text()))); });
    QPushButton* Befehl4 = knopf("Befehl4", "Schließen", [this] { hide(); });

    // clang-format off
    setzeInhalt(spalte({
        zeile({
            Text7,
            Befehl6,
            schrittknopf("Befehl5", +1),
            schrittknopf("Befehl7", -1),
            schrittknopf("Befehl9", +10),
            schrittknopf("Befehl8", -10),
            schrittknopf("Befehl11", +100),
            schrittknopf("Befehl10", -100),
        }),
        zeile({Bezeichnung19, luecke(), Befehl4}),
    }));
    // clang-format on
    hide();
}

QPushButton* Positionstafel::knopf(const QString& name, const QString& text, const std::function<void()>& tue)
{
    auto* neuer = benannt(new QPushButton(text, this), name);
    connect(neuer, &QPushButton::clicked, this, [tue] { tue(); });
    return neuer;
}

QPushButton* Positionstafel::schrittknopf(const QString& name, int weite)
{
    const QString text = (weite > 0 ? "+" : "") + QString::number(weite);
    QPushButton* neuer = knopf(name, text, [this, weite] {
        const auto zahl = liesGruppierteZahl(utf8(Text7->text()));
        nimm(zahl ? std::optional(*zahl + weite) : zahl);
    });
    neuer->setFixedWidth(neuer->fontMetrics().horizontalAdvance("+100") + 4 * neuer->fontMetrics().averageCharWidth());
    return neuer;
}

void Positionstafel::oeffne()
{
    Bezeichnung19->clear();
    show();
    Text7->setFocus();
    Text7->selectAll();
}

void Positionstafel::nimm(std::optional<std::int64_t> position)
{
    const bool gibtEs = position && istPositionszahl(*position);
    Bezeichnung19->setText(gibtEs ? "" : "Fehler");
    if (!gibtEs)
        return;
    Text7->setText(QString::number(*position));
    if (beiKombination)
        beiKombination(KombinationAusNummer(static_cast<Positionszahl>(*position)));
}
