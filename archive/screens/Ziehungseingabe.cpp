#include "archive/screens/Ziehungseingabe.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"

#include <QComboBox>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int kJahreZurWahl = 101;
constexpr int kHoechsteWoche = 53;

QString zweistellig(int zahl)
{
    return qt(Format(zahl, "00"));
}

QString vierstellig(int zahl)
{
    return qt(Format(zahl, "0000"));
}

/// The year that was typed; nothing unless it has four digits.
std::optional<int> spieljahr(const QString& eingabe)
{
    const int jahr = eingabe.toInt();
    return eingabe.size() == 4 && jahr >= 1000 ? std::optional(jahr) : std::nullopt;
}

} // namespace

Ziehungseingabe::Ziehungseingabe(QWidget* eltern) : QWidget(eltern)
{
    Label6 = new Tippfeld7x7View("Label6", Tippfeld7x7View::Art::FreieEingabe, this);
    cmbSZ = kombi("cmbSZ");
    for (int superzahl = 0; superzahl <= 9; ++superzahl)
        cmbSZ->addItem(QString::number(superzahl));
    cmbSZ->setCurrentIndex(-1);
    Kombi1 = kombi("Kombi1");
    Kombi1->setEditable(true);
    Kombi2 = kombi("Kombi2");
    for (int woche = 1; woche <= kHoechsteWoche; ++woche)
        Kombi2->addItem(zweistellig(woche));

    // clang-format off
    setLayout(spalte({
        zeile({luecke(), Label6, luecke()}),
        zahlenzeile(),
        formular({
            {beschriftung("lblSuperzahl", "Superzahl auswählen:"), cmbSZ},
            {beschriftung("lblSpieljahr", "Spieljahr:"), Kombi1},
            {beschriftung("lblSpielwoche", "Spielwoche:"), Kombi2},
        }),
    }));
    // clang-format on
    setFocusProxy(Label6);

    connect(cmbSZ, &QComboBox::currentIndexChanged, this, [this] { zeigeSuperzahl(); });
    Label6->beiKlick = [this](int) {
        if (beiKlick)
            beiKlick();
        zeigeZahlen();
        zeigeSuperzahl();
    };
}

QLabel* Ziehungseingabe::beschriftung(const QString& name, const QString& text)
{
    auto* feld = new QLabel(text, this);
    feld->setObjectName(name);
    return feld;
}

QComboBox* Ziehungseingabe::kombi(const QString& name)
{
    auto* feld = new QComboBox(this);
    feld->setObjectName(name);
    return feld;
}

QLayout* Ziehungseingabe::zahlenzeile()
{
    Bloecke zahlen;
    const auto zahlenfeld = [this, &zahlen](const QString& name, const QString& text) {
        QLabel* kopf = beschriftung("lblKopf" + text, text);
        QLabel* feld = beschriftung(name);
        for (QLabel* teil : {kopf, feld})
            teil->setAlignment(Qt::AlignCenter);
        feld->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        feld->setMinimumWidth(30);
        zahlen.push_back(eng(spalte({kopf, feld})));
        return feld;
    };
    for (std::size_t i = 0; i < lblZ.size(); ++i)
        lblZ[i] = zahlenfeld(QString("lblZ(%1)").arg(i + 1), QString("Z%1").arg(i + 1));
    lblSZ = zahlenfeld("lblSZ", "SZ");
    return zeile(zahlen);
}

void Ziehungseingabe::schlageVor(const ZiehungsArchiv& archiv)
{
    const Vorschlag vorschlag = naechsteZiehung(archiv);
    Kombi1->clear();
    for (int weiter = 1; weiter <= kJahreZurWahl; ++weiter)
        Kombi1->addItem(vierstellig(letztesSpieljahr(archiv) + weiter));
    Kombi1->setCurrentText(vierstellig(vorschlag.jjjj));
    Kombi2->setCurrentText(zweistellig(vorschlag.sw));
}

void Ziehungseingabe::zeige(const ZiehungsArchiv& archiv, std::size_t nr)
{
    leere();
    Tippfeld7x7 tippfeld;
    tippfeld.zeige(archiv.gewinnzahlen(nr));
    Label6->zeige(tippfeld);
    const QString superzahl = qt(superzahlText(archiv, nr));
    cmbSZ->setCurrentIndex(cmbSZ->findText(superzahl));
    lblSZ->setText(superzahl);
}

void Ziehungseingabe::leere()
{
    Label6->zeige({});
    zeigeZahlen();
    cmbSZ->setCurrentIndex(-1);
    zeigeSuperzahl();
}

void Ziehungseingabe::zeigeZahlen()
{
    const std::vector<int> zahlen = Label6->modell().gewaehlte();
    for (std::size_t i = 0; i < lblZ.size(); ++i)
        lblZ[i]->setText(i < zahlen.size() ? QString::number(zahlen[i]) : QString());
}

void Ziehungseingabe::zeigeSuperzahl()
{
    lblSZ->setText(cmbSZ->currentText());
    if (beiAenderung)
        beiAenderung();
}

bool Ziehungseingabe::vollstaendig() const
{
    return !lblZ.back()->text().isEmpty() && cmbSZ->currentIndex() >= 0;
}

std::optional<NeueZiehung> Ziehungseingabe::ziehung() const
{
    const std::optional<int> jahr = spieljahr(Kombi1->currentText());
    if (!jahr)
        return std::nullopt;
    NeueZiehung ziehung;
    ziehung.jjjj = *jahr;
    ziehung.sw = Kombi2->currentText().toInt();
    const std::vector<int> zahlen = Label6->modell().gewaehlte();
    std::copy_n(zahlen.begin(), std::min(zahlen.size(), ziehung.zahlen.size()), ziehung.zahlen.begin());
    ziehung.superzahl = cmbSZ->currentIndex();
    return ziehung;
}
