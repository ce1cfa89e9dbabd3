#include "tips/screens/Wunschfeld.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "statistics/logic/Spielwochen.h"
#include "tips/logic/Tippreihe.h"
#include "tips/screens/Felder.h"

#include <QCheckBox>
#include <QComboBox>

#include <algorithm>
#include <array>

namespace {

constexpr int kVorgabeTippreihen = 6;

QLabel* schrift(const char* name, const char* text, QWidget* eltern)
{
    return benannt(new QLabel(text, eltern), name);
}

std::optional<int> bankzahl(const QCheckBox* kasten, const QComboBox* kombi)
{
    return kasten->isChecked() ? std::optional(kombi->currentIndex() + 1) : std::nullopt;
}

} // namespace

Wunschfeld::Wunschfeld(QWidget* eltern) : QWidget(eltern)
{
    Kontroll1 = kontroll("Kontroll1", "Zahlen die in der nächsten Spielwoche");
    Kontroll2 = kontroll("Kontroll2", "Die am häufigsten gezogenen Zahlen  überhaupt?");
    Kontroll3 = kontroll("Kontroll3", "Lange nicht gezogene Zahlen?");
    Kontroll4 = kontroll("Kontroll4", "Bankzahl 1 einbeziehen?");
    Kontroll5 = kontroll("Kontroll5", "Bankzahl 2 einbeziehen?");
    Kombi1 = kombi("Kombi1", static_cast<int>(kTippsJeSchein));
    Kombi2 = kombi("Kombi2", kSpielwochen);
    cmbB1 = kombi("cmbB1", kHoechsteZahl);
    cmbB2 = kombi("cmbB2", kHoechsteZahl);
    lblBank1_ = schrift("lblBank(0)", "Bank1", this);
    lblBank2_ = schrift("lblBank(1)", "Bank2", this);
    Kombi1->setCurrentIndex(kVorgabeTippreihen - 1);

    // clang-format off
    QLayout* inhalt = spalte({
        karte("Rahmen1", "Diese Zahlen einbeziehen:", spalte({
            Kontroll1,
            zeile({schrift("Bezeichnung1", "Spielwoche", this), Kombi2,
                   schrift("Bezeichnung2", "am häufigsten gezogen wurden?", this), luecke()}),
            Kontroll2,
            Kontroll3,
        }), this),
        karte("Rahmen6", "Bankzahlen", raster(3, {
            Kontroll4, lblBank1_, cmbB1,
            Kontroll5, lblBank2_, cmbB2,
        }), this),
        zeile({schrift("Bezeichnung3", "Anzahl der gewünschten Tippreihen:", this), Kombi1, luecke()}),
    });
    // clang-format on
    setLayout(inhalt);
    schalteBankzahlen();
    for (QCheckBox* bank : {Kontroll4, Kontroll5})
        connect(bank, &QCheckBox::toggled, this, [this] { schalteBankzahlen(); });
}

QCheckBox* Wunschfeld::kontroll(const char* name, const char* text)
{
    return benannt(new QCheckBox(text, this), name);
}

/// With the entries "01" to `letzter`.
QComboBox* Wunschfeld::kombi(const char* name, int letzter)
{
    auto* kombi = benannt(new QComboBox(this), name);
    for (int zahl = 1; zahl <= letzter; ++zahl)
        kombi->addItem(qt(Format(zahl, "00")));
    return kombi;
}

void Wunschfeld::schalteBankzahlen()
{
    for (QWidget* feld : std::initializer_list<QWidget*>{cmbB1, lblBank1_})
        feld->setEnabled(Kontroll4->isChecked());
    for (QWidget* feld : std::initializer_list<QWidget*>{cmbB2, lblBank2_})
        feld->setEnabled(Kontroll5->isChecked());
}

bool Wunschfeld::willStatistik(std::size_t stelle) const
{
    return std::array{Kontroll1, Kontroll2, Kontroll3}[stelle]->isChecked();
}

std::optional<int> Wunschfeld::bank1() const
{
    return bankzahl(Kontroll4, cmbB1);
}

std::optional<int> Wunschfeld::bank2() const
{
    return bankzahl(Kontroll5, cmbB2);
}

std::size_t Wunschfeld::anzahl() const
{
    return static_cast<std::size_t>(Kombi1->currentIndex()) + 1;
}

void Wunschfeld::erhoeheAnzahl()
{
    Kombi1->setCurrentIndex(std::min(Kombi1->currentIndex() + 1, Kombi1->count() - 1));
}

int Wunschfeld::spielwoche() const
{
    return Kombi2->currentIndex() + 1;
}

QString Wunschfeld::spielwochentext() const
{
    return Kombi2->currentText();
}

void Wunschfeld::stelleSpielwoche(int sw)
{
    Kombi2->setCurrentIndex(sw - 1);
}
