#include "statistics/screens/DatumOderWoche.h"

#include "shell/elements/Bildschirm.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr auto kInfo =
    "In den Statistiken zur Häufigkeit der Gewinnzahlen oder der Superzahl pro Spieljahr findet man oft kleine "
    "Abweichungen. \n\n"
    "Die 52. Ziehung im Spieljahr 2010 (2010/52) fand erst am 01.01.2011 statt.\n"
    "Die 53. Ziehung im Spieljahr 1992 (1992/53) fand erst am 02.01.1993 statt.\n"
    "Die erste Ziehung für das Jahr 2015 (2015/01) fand schon am 31.12.2014 statt.";

constexpr int kFragebreite = 320; ///< least, in pixels

} // namespace

DatumOderWoche::DatumOderWoche(Bildschirm& bildschirm, const DatumOderWocheNamen& namen)
    : Rahmen({}, &bildschirm),
      optDatumOderWoche{new QRadioButton("Ziehungsdatum", this), new QRadioButton("Spielwoche", this)},
      frage_(new QLabel(namen.frage, this)),
      cmdInfo(new QPushButton("?", this))
{
    setObjectName(namen.rahmen);
    frage_->setObjectName(namen.bezeichnung);
    frage_->setWordWrap(true);
    frage_->setMinimumWidth(kFragebreite);
    cmdInfo->setObjectName("cmdInfo");
    optDatumOderWoche[0]->setChecked(true);
    for (std::size_t i = 0; i < optDatumOderWoche.size(); ++i) {
        optDatumOderWoche[i]->setObjectName(QString("optDatumOderWoche(%1)").arg(i));
        connect(optDatumOderWoche[i], &QRadioButton::clicked, this, [this] {
            if (beiWahl)
                beiWahl();
        });
    }
    connect(cmdInfo, &QPushButton::clicked, this,
            [&bildschirm] { bildschirm.umgebung().boxen.info(kInfotitel, kInfo); });
    setzeInhalt(spalte({frage_, zeile({optDatumOderWoche[0], optDatumOderWoche[1], luecke(), cmdInfo}), luecke()}));
}

bool DatumOderWoche::nachDatum() const
{
    return optDatumOderWoche[0]->isChecked();
}
