#include "tips/screens/Scheinwahlfeld.h"

#include "tips/screens/Felder.h"

#include <QCheckBox>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr std::array kJaNein{"Ja", "Nein"};
constexpr std::array kLaufzeittexte{"1", "2", "3", "4", "5", "13 alt", "Ja"};

QRadioButton* jaOderNein(const std::array<QRadioButton*, 2>& wahl, bool ja)
{
    return wahl[ja ? 0 : 1];
}

} // namespace

Scheinwahlfeld::Scheinwahlfeld(QWidget* eltern) : QWidget(eltern)
{
    Check1 = tag("Check1", "Samstag");
    Check2 = tag("Check2", "Mittwoch");
    Bloecke laufzeiten = optionen(Option4, "Option4", kLaufzeittexte);
    laufzeiten.insert(laufzeiten.end() - 1, benannt(new QLabel("Dauerspiel:", this), "Label3"));

    // clang-format off
    setLayout(spalte({
        zeile({
            karte("Frame3", "Spielart", zeile({Check1, Check2}), this),
            karte("Frame4", "Laufzeit ", zeile(laufzeiten), this),
            luecke(),
        }),
        zeile({
            karte("Frame2", "Spiel 77", zeile(optionen(Option1, "Option1", kJaNein)), this),
            karte("Frame1", "Super 6", zeile(optionen(Option3, "Option3", kJaNein)), this),
            karte("Frame5", "Glücksspirale", zeile(optionen(chkGlueck, "chkGlueck", kJaNein)), this),
            luecke(),
        }),
    }));
    // clang-format on
}

QCheckBox* Scheinwahlfeld::tag(const QString& name, const QString& text)
{
    auto* kasten = benannt(new QCheckBox(text, this), name);
    connect(kasten, &QCheckBox::clicked, this, [this] { beiWahl(); });
    return kasten;
}

template <std::size_t N>
Bloecke Scheinwahlfeld::optionen(std::array<QRadioButton*, N>& wahl, const QString& name,
                                 const std::array<const char*, N>& texte)
{
    Bloecke bloecke;
    for (std::size_t i = 0; i < N; ++i) {
        wahl[i] = benannt(new QRadioButton(texte[i], this), QString("%1(%2)").arg(name).arg(i));
        connect(wahl[i], &QRadioButton::clicked, this, [this] { beiWahl(); });
        bloecke.emplace_back(wahl[i]);
    }
    return bloecke;
}

Scheinwahl Scheinwahlfeld::wahl() const
{
    const auto laufzeit = std::ranges::find_if(Option4, &QRadioButton::isChecked) - Option4.begin();
    return {.samstag = Check1->isChecked(),
            .mittwoch = Check2->isChecked(),
            .spiel77 = Option1[0]->isChecked(),
            .super6 = Option3[0]->isChecked(),
            .gluecksspirale = chkGlueck[0]->isChecked(),
            .laufzeit = static_cast<Laufzeit>(laufzeit)};
}

void Scheinwahlfeld::stelle(const Druckeinstellungen& einstellungen)
{
    jaOderNein(Option1, einstellungen.spiel77)->setChecked(true);
    jaOderNein(Option3, einstellungen.super6)->setChecked(true);
    jaOderNein(chkGlueck, einstellungen.gluecksspirale)->setChecked(true);
    Option4[static_cast<std::size_t>(einstellungen.laufzeit)]->setChecked(true);
}
