#include "tips/screens/Vergleichsziehungsfelder.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Utf8.h"
#include "tips/screens/Tippfarben.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

Vergleichsziehungsfelder::Vergleichsziehungsfelder(const ZiehungsArchiv& archiv, QWidget* eltern)
    : QWidget(eltern),
      archiv_(archiv)
{
    Bloecke felder;
    for (std::size_t i = 0; i < Text13.size(); ++i) {
        const bool superzahl = i + 1 == Text13.size();
        auto* kopf = new QLabel(superzahl ? "SZ" : QString("Z%1").arg(i + 1), this);
        kopf->setObjectName(QString("lblZiehung(%1)").arg(i));
        kopf->setAlignment(Qt::AlignCenter);
        Text13[i] = new QLineEdit(this);
        Text13[i]->setObjectName(QString("Text13(%1)").arg(i));
        Text13[i]->setAlignment(Qt::AlignCenter);
        Text13[i]->setFixedWidth(Text13[i]->fontMetrics().horizontalAdvance("00000"));
        faerbe(Text13[i], superzahl ? Tippfarben::Superzahl : Tippfarben::Zahl, Farben::Text);
        felder.emplace_back(eng(spalte({kopf, Text13[i]})));
    }
    felder.emplace_back(luecke());
    HBildlauf1 = new QScrollBar(Qt::Horizontal, this);
    HBildlauf1->setObjectName("HBildlauf1");
    HBildlauf1->setFocusPolicy(Qt::StrongFocus);
    setLayout(spalte({zeile(felder), HBildlauf1}));
    layout()->setContentsMargins(0, 0, 0, 0);

    connect(HBildlauf1, &QScrollBar::valueChanged, this, [this](int nr) {
        setze(ziehungstexte(archiv_, static_cast<std::size_t>(nr)));
        if (beiWahl)
            beiWahl();
    });
}

void Vergleichsziehungsfelder::zeigeLetzte()
{
    const std::int32_t letzte = archiv_.AnzahlZiehungen;
    const QSignalBlocker ruhe(HBildlauf1);
    HBildlauf1->setRange(std::min(1, letzte), letzte);
    HBildlauf1->setValue(letzte);
    setze(letzte > 0 ? ziehungstexte(archiv_, static_cast<std::size_t>(letzte)) : Ziehungstexte{});
}

QString Vergleichsziehungsfelder::beschriftung() const
{
    const auto nr = static_cast<std::size_t>(HBildlauf1->value());
    return (HBildlauf1->value() == archiv_.AnzahlZiehungen ? "Letzte Ziehung: " : "Ziehung: ") +
           qt(datumVon(archiv_, nr) + "    " + jahrUndWoche(archiv_, nr));
}

std::optional<Vergleichsziehung> Vergleichsziehungsfelder::ziehung() const
{
    Ziehungstexte texte;
    std::ranges::transform(Text13, texte.begin(), [](const QLineEdit* feld) { return utf8(feld->text()); });
    return vergleichsziehung(texte);
}

void Vergleichsziehungsfelder::setze(const Ziehungstexte& texte)
{
    for (std::size_t i = 0; i < texte.size(); ++i)
        Text13[i]->setText(qt(texte[i]));
}
