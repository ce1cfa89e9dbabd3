#include "archive/screens/Ziehungsfelder.h"

#include "archive/logic/Neueingabe.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"

#include <QLabel>
#include <QLineEdit>

Ziehungsfelder::Ziehungsfelder(QWidget* eltern) : QWidget(eltern)
{
    static const QStringList kKoepfe{"Jahr", "SW", "Z1", "Z2", "Z3", "Z4", "Z5", "Z6", "ZZ", "SZ"};
    Bloecke felder;
    for (std::size_t i = 0; i < texte_.size(); ++i) {
        const QString name = QString("Text%1").arg(i + 1);
        auto* text = new QLineEdit(this);
        text->setObjectName(name);
        alsAnzeige(text);
        text->setAlignment(Qt::AlignCenter);
        text->setFixedWidth(text->fontMetrics().horizontalAdvance("000000"));
        auto* kopf = new QLabel(kKoepfe[static_cast<qsizetype>(i)], this);
        kopf->setObjectName("lbl" + name);
        kopf->setAlignment(Qt::AlignCenter);
        texte_[i] = text;
        felder.push_back(eng(spalte({kopf, text})));
    }
    felder.push_back(luecke());
    setLayout(zeile(felder));
}

void Ziehungsfelder::zeige(const ZiehungsArchiv& archiv, std::size_t nr)
{
    texte_[0]->setText(qt(Format(archiv.jjjj[nr], "0000")));
    texte_[1]->setText(qt(Format(archiv.sw[nr], "00")));
    const auto zahlen = archiv.gewinnzahlen(nr);
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        texte_[i + 2]->setText(qt(Format(zahlen[i], "@@")));
    texte_[8]->setText(qt(zusatzzahlText(archiv, nr)));
    texte_[9]->setText(qt(superzahlText(archiv, nr)));
}

void Ziehungsfelder::leere()
{
    for (QLineEdit* text : texte_)
        text->clear();
}
