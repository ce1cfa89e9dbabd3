#include "filters/screens/frm49.h"

#include "filters/logic/Zahlenlinie.h"
#include "filters/screens/Anzahleingabe.h"
#include "listcontrol/screens/ListView.h"
#include "shell/elements/Lauf.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr std::array<Spielart, 2> kSpielarten{Samstagslotto, Mittwochslotto};
constexpr std::array kNamen{"Samstagslotto", "Mittwochslotto"};
constexpr std::array kAnzahlen{10, 20, 30, 40, 50, 75, 100, 150, 200, 300, 500, 1000, 2000};
constexpr std::int32_t kVoreinstellung = 50;
constexpr int kDatumszeichen = 13;
constexpr int kZahlzeichen = 2;
constexpr int kAnzahlzeichen = 4;
constexpr int kZellrand = 1;
constexpr int kSichtbareZeilen = 22;
constexpr std::size_t kZeilenJeZug = 10'000; ///< of a long table; a shorter one is there at once

} // namespace

frm49::frm49(Umgebung& umgebung)
    : Bildschirm(umgebung, "frm49", "Die gezogenen Gewinnzahlen in einer 49-er Linie"),
      lader_(umgebung),
      letzte_(kVoreinstellung)
{
    Bloecke spiele;
    for (std::size_t spiel = 0; spiel < chkSart.size(); ++spiel) {
        chkSart[spiel] = kontroll(QString("chkSart(%1)").arg(kSpielarten[spiel]), kNamen[spiel]);
        chkSart[spiel]->setChecked(true);
        spiele.emplace_back(chkSart[spiel]);
        bei(chkSart[spiel], [this, spiel] {
            lade(spiel);
            mische();
        });
    }
    baueAnzahl();
    baueListe();
    lblAnz = bezeichnung("lblAnz");
    lblLegende = bezeichnung("lblLegende", "Legende:  blau -> die gezogenen Gewinnzahlen,  gelb -> die Superzahl");
    cmdEnd = befehl("cmdEnd", "<<");

    // clang-format off
    setzeInhalt(spalte({
        zeile({
            rahmen("Rahmen1", "Spielarten", zeile(spiele)),
            rahmen("Rahmen2", "Anzahl der Ziehungen", zeile({optAnz[0], cmbAnz, optAnz[1]})),
            luecke(),
            lblAnz,
        }),
        dehnbar(ListView1),
        zeile({lblLegende, luecke(), cmdEnd}),
    }));
    // clang-format on

    bei(cmdEnd, [this] { schliesse(); });
    for (std::size_t spiel = 0; spiel < spiele_.size(); ++spiel)
        lade(spiel);
    mische();
}

void frm49::baueAnzahl()
{
    optAnz = {option("optAnz(0)", "nur die letzten"), option("optAnz(1)", "alle")};
    optAnz[0]->setChecked(true);
    cmbAnz = kombi("cmbAnz");
    cmbAnz->setEditable(true);
    cmbAnz->setInsertPolicy(QComboBox::NoInsert);
    for (const int anzahl : kAnzahlen)
        cmbAnz->addItem(QString::number(anzahl));
    cmbAnz->setCurrentText(QString::number(letzte_));
    for (QRadioButton* wahl : optAnz)
        bei(wahl, [this] { zeige(); });
    bei(cmbAnz, [this] { nimmAnzahl(); });
    connect(cmbAnz->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (cmbAnz->currentText() != QString::number(letzte_))
            nimmAnzahl();
    });
}

void frm49::baueListe()
{
    using namespace Liniespalten;
    ListView1 = new ListView(this);
    ListView1->setObjectName("ListView1");
    ListView1->setItemPaddingLeft(kZellrand);
    ListView1->setItemPaddingRight(kZellrand);
    const auto spalte = [this](std::string_view schluessel, std::string_view titel, int zeichen) {
        ListView1->AddColumn(schluessel, titel, TextAlign::Center, ListView1->breiteFuerZeichen(zeichen));
    };
    spalte("Datum", "Datum", kDatumszeichen);
    ListView1->AddColumn("trenner0", {}, TextAlign::Center, ListView1->breiteFuerZeichen(1), false);
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        spalte(std::to_string(zahl), std::to_string(zahl), kZahlzeichen);
        ListView1->AddTrenner("trenner" + std::to_string(zahl));
    }
    spalte("Datum2", "Datum", kDatumszeichen);
    ListView1->AddTrenner("trenner62");
    spalte("Anz.", "Anz.", kAnzahlzeichen);
    ListView1->setDrawCallback(this);
    ListView1->setzeSichtbar(kSichtbareZeilen);
}

void frm49::lade(std::size_t spiel)
{
    spiele_[spiel] = {};
    if (!chkSart[spiel]->isChecked())
        return;
    lader_.lade(kSpielarten[spiel]);
    spiele_[spiel] = umgebung().archiv;
}

void frm49::mische()
{
    ZiehungsArchiv zusammen;
    for (const ZiehungsArchiv& spiel : spiele_)
        haengeAn(zusammen, spiel);
    folge_ = gemischteFolge(zusammen);
    zeige();
}

/// What is entered becomes the count of draws; if it is none, the field shows the count that holds.
void frm49::nimmAnzahl()
{
    const QString eingabe = cmbAnz->currentText();
    cmbAnz->setEditText(QString::number(letzte_)); // before a box takes the focus and so ends the entry once more
    const auto anzahl = anzahlAus(*this, eingabe);
    if (!anzahl)
        return;
    letzte_ = *anzahl;
    cmbAnz->setEditText(QString::number(letzte_));
    optAnz[0]->setChecked(true);
    zeige();
}

/// A choice that is made while a long table fills ends that, and the table fills anew.
void frm49::zeige()
{
    veraltet_ = laeuft();
    if (veraltet_) {
        stoppe();
        return;
    }
    do {
        veraltet_ = false;
        fuelle();
    } while (veraltet_ && !schliesst());
}

void frm49::fuelle()
{
    Lauf lauf(*this);
    const GeteilteFolge folge = folge_;
    const std::size_t alle = folge->ziehungen.size();
    const std::size_t anzahl = optAnz[1]->isChecked() ? alle : std::min(alle, static_cast<std::size_t>(letzte_));
    ListView1->Clear();
    ListView1->PrepareForItems(static_cast<int>(anzahl));
    for (std::size_t nr = 1; nr <= anzahl; ++nr) {
        if (nr % kZeilenJeZug == 0 && !lauf.zug())
            break;
        const int zeile = ListView1->AddItem({});
        for (const Linienzelle& zelle : linienzellen(folge->ziehungen[alle - anzahl + nr - 1], nr))
            ListView1->setItemText(zeile, zelle.spalte, zelle.text);
    }
    if (ListView1->ItemCount() > 0)
        ListView1->MakeSureVisible(ListView1->ItemCount() - 1);
    lblAnz->setText("Anzahl der ausgewerteten Ziehungen: " + QString::number(ListView1->ItemCount()));
}

void frm49::beimSchliessen()
{
    lader_.gibZurueck();
}

void frm49::CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled)
{
    const auto [farben, bleibt] = linienfarbe(row, column, ListView1->ItemText(row, column));
    backColor = farben.grund;
    foreColor = farben.schrift;
    handled = bleibt || !ListView1->ItemSelected(row);
}
