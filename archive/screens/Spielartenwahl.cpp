#include "archive/screens/Spielartenwahl.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Utf8.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr std::array kBits{1, 2, 4};
constexpr std::array kNamen{"Samstagslotto ", "Mittwochslotto ", "Mittwochslotto(B)"};

const Spielartenstand kOhneZiehungen{"-", "-", "-"};

} // namespace

Spielartenwahl::Spielartenwahl(Bildschirm& bildschirm, const SpielartenwahlNamen& namen)
    : Rahmen(namen.titel, &bildschirm),
      bildschirm_(bildschirm)
{
    setObjectName(namen.rahmen);
    Bloecke felder;
    for (std::size_t i = 0; i < chkArt.size(); ++i) {
        chkArt[i] = new QCheckBox(namen.spielarten[i], this);
        chkArt[i]->setObjectName(QString("%1(%2)").arg(namen.kasten).arg(i));
        chkArt[i]->setChecked(true);
        connect(chkArt[i], &QCheckBox::clicked, this, [this, kasten = chkArt[i]] { wechsle(*kasten); });
        lblZ[i] = new QLabel("-", this);
        lblZ[i]->setObjectName(QString("lblZ(%1)").arg(i));
        felder.insert(felder.end(), {chkArt[i], lblZ[i]});
    }
    lblTipp = new QLabel(this);
    lblTipp->setObjectName(namen.anzahl);
    setzeInhalt(eng(spalte({eng(raster(2, felder)), lblTipp})));
    lade();
}

int Spielartenwahl::maske() const
{
    int maske = 0;
    for (std::size_t i = 0; i < chkArt.size(); ++i)
        maske |= chkArt[i]->isChecked() ? kBits[i] : 0;
    return maske;
}

bool Spielartenwahl::pruefe() const
{
    if (maske() != 0)
        return true;
    bildschirm_.umgebung().boxen.info(kProgrammtitel, "Bitte mindestens eine Spielart auswählen.");
    return false;
}

std::string Spielartenwahl::namen() const
{
    std::string namen;
    for (std::size_t i = 0; i < chkArt.size(); ++i)
        namen += chkArt[i]->isChecked() ? kNamen[i] : "";
    return namen;
}

QString Spielartenwahl::beschriftung(int spielart) const
{
    return chkArt[static_cast<std::size_t>(spielart)]->text();
}

QString Spielartenwahl::stand(int spielart) const
{
    return lblZ[static_cast<std::size_t>(spielart)]->text();
}

QString Spielartenwahl::anzahltext() const
{
    return lblTipp->text();
}

void Spielartenwahl::zeigeAnzahl()
{
    lblTipp->setText("Anzahl der auszuwertenden Ziehungen: " +
                     QString::number(bildschirm_.umgebung().archiv.AnzahlZiehungen));
}

void Spielartenwahl::zeigeAusgewertete(std::int32_t ziehungen)
{
    lblTipp->setText("Anzahl der ausgewerteten Ziehungen: " + QString::number(ziehungen));
}

void Spielartenwahl::wechsle(QCheckBox& kasten)
{
    if (bildschirm_.laeuft()) { // it reads the archive that a load would exchange
        kasten.toggle();
        return;
    }
    if (maske() == 0 && !ladeAuchOhne)
        zeigeNichts();
    else
        lade();
    if (beiWechsel)
        beiWechsel();
}

void Spielartenwahl::lade()
{
    zeigeStand(ladeSpielarten(bildschirm_.umgebung(), maske()).value_or(kOhneZiehungen));
    lblTipp->setText("Anzahl der auszuwertenden Ziehugen: " +
                     QString::number(bildschirm_.umgebung().archiv.AnzahlZiehungen));
}

void Spielartenwahl::zeigeStand(const Spielartenstand& stand)
{
    for (std::size_t i = 0; i < lblZ.size(); ++i)
        lblZ[i]->setText(qt(stand[i]));
}

void Spielartenwahl::zeigeNichts()
{
    zeigeStand(kOhneZiehungen);
    lblTipp->setText("Anzahl der auszuwertenden Ziehungen: 0");
}
