#include "tips/screens/Tipphaeufigkeitsfeld.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Liste.h"
#include "tips/logic/Tipphaeufigkeit.h"

#include <QPushButton>

Tipphaeufigkeitsfeld::Tipphaeufigkeitsfeld(QWidget* eltern) : QWidget(eltern)
{
    nachZahl_ = baueAnsicht("cmdTipzahl", "          Tipzahl        Häufigkeit", "Liste2");
    nachAnzahl_ = baueAnsicht("cmdHaeufigkeit", "Häufigkeit                Tipzahl", "Liste4");
    Liste3 = new Liste(this, {.Sorted = true});
    Liste3->setObjectName("Liste3");
    Liste3->hide();
    nachAnzahl_.kopf->hide();
    nachAnzahl_.liste->hide();
    setLayout(eng(spalte({nachZahl_.kopf, nachAnzahl_.kopf, dehnbar(nachZahl_.liste), dehnbar(nachAnzahl_.liste)})));
    layout()->setContentsMargins(0, 0, 0, 0);
}

Tipphaeufigkeitsfeld::Ansicht Tipphaeufigkeitsfeld::baueAnsicht(const QString& kopf, const QString& text,
                                                                const QString& liste)
{
    constexpr int kZeilen = 5;
    constexpr int kZeichen = 26;
    const Ansicht ansicht{new QPushButton(text, this), new Liste(this)};
    ansicht.kopf->setObjectName(kopf);
    setzeHinweis(ansicht.kopf, kHinweis);
    ansicht.liste->setObjectName(liste);
    ansicht.liste->setzeSichtbar(kZeilen, kZeichen);
    setzeHinweis(ansicht.liste, kHinweis);
    connect(ansicht.kopf, &QPushButton::clicked, this, [this] { wechsleReihenfolge(); });
    ansicht.liste->beiLoslassen = [this] { wechsleReihenfolge(); };
    return ansicht;
}

void Tipphaeufigkeitsfeld::zeige(const Tipphaeufigkeit& haeufigkeit)
{
    nachZahl_.liste->modell().fuelle(haeufigkeitNachZahl(haeufigkeit));
    Liste3->modell().fuelle(haeufigkeitNachAnzahl(haeufigkeit));
    const std::vector<std::string>& aufsteigend = Liste3->modell().zeilen();
    nachAnzahl_.liste->modell().fuelle({aufsteigend.rbegin(), aufsteigend.rend()});
}

void Tipphaeufigkeitsfeld::wechsleReihenfolge()
{
    const bool nachZahl = !nachZahl_.liste->isVisibleTo(this);
    const Ansicht& kommt = nachZahl ? nachZahl_ : nachAnzahl_;
    const Ansicht& geht = nachZahl ? nachAnzahl_ : nachZahl_;
    const bool hatteFokus = geht.kopf->hasFocus();
    geht.kopf->hide();
    geht.liste->hide();
    kommt.kopf->show();
    kommt.liste->show();
    if (hatteFokus)
        kommt.kopf->setFocus();
}
