#include "filters/screens/Musteruebersicht.h"

#include "filters/screens/Fundanzeige.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Liste.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

Musteruebersicht::Musteruebersicht(Bildschirm& bildschirm, QLabel* kopf, const Fundanzeige& anzeige,
                                   std::function<std::vector<std::string>()> zeilen)
    : zeilen_(std::move(zeilen)),
      verdeckte_{kopf, anzeige.liste(), anzeige.rahmen()},
      List2(new Liste(&bildschirm)),
      cmdUebersicht(new QPushButton(&bildschirm))
{
    List2->setObjectName("List2");
    cmdUebersicht->setObjectName("cmdUebersicht");
    cmdUebersicht->setToolTip("Zeigt eine Gesamtübersicht  in einer Tabelle");
    QObject::connect(cmdUebersicht, &QPushButton::clicked, List2, [this] { zeige(List2->isHidden()); });
    zeige(false);
}

void Musteruebersicht::zeige(bool sichtbar)
{
    if (sichtbar)
        List2->modell().fuelle(zeilen_());
    List2->hide(); // never beside what it stands for, or the screen would grow
    for (QWidget* feld : verdeckte_)
        feld->setHidden(sichtbar);
    List2->setVisible(sichtbar);
    cmdUebersicht->setText(sichtbar ? "<" : "Übersicht");
}
