#include "tips/screens/Zeitreisezaehler.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Stil.h"
#include "tips/screens/Felder.h"

#include <QLineEdit>

#include <span>

namespace {

constexpr int kZaehlerJeZeile = 4;

struct Zaehlername {
    const char* feld;
    const char* beschriftung;
    std::int32_t trefferzahl;
    bool mit;
};

constexpr std::array<Zaehlername, 12> kNeu{{
    {"txtSechser_SZ", "Sechser+SZ", 6, true},
    {"txtSechser", "Sechser", 6, false},
    {"txtFZ", "Fünfer+SZ", 5, true},
    {"txtFünfer", "Fünfer", 5, false},
    {"txtVZ", "Vierer+SZ", 4, true},
    {"txtVierer", "Vierer", 4, false},
    {"txtDZ", "Dreier+SZ", 3, true},
    {"txtDreier", "Dreier", 3, false},
    {"txtZZ", "Zweier+SZ", 2, true},
    {"txtZweier", "Zweier", 2, false},
    {"txtEiner", "Einer", 1, false},
    {"txtNull", "Null", 0, false},
}};

constexpr std::array<Zaehlername, 11> kAlt{{
    {"txtSSZ", "Sechser+SZ", 6, true},
    {"txtSechser", "Sechser", 6, false},
    {"txtFZ", "Fünfer+ZZ", 5, true},
    {"txtFünfer", "Fünfer", 5, false},
    {"txtVZ", "Vierer+ZZ", 4, true},
    {"txtVierer", "Vierer", 4, false},
    {"txtDZ", "Dreier+ZZ", 3, true},
    {"txtDreier", "Dreier", 3, false},
    {"txtZweier", "Zweier", 2, false},
    {"txtEiner", "Einer", 1, false},
    {"txtNull", "Null", 0, false},
}};

std::span<const Zaehlername> zaehlernamen(Zeitreiseform form)
{
    return form == Zeitreiseform::AlterPlan ? std::span<const Zaehlername>(kAlt) : kNeu;
}

QLineEdit* anzeige(const QString& name, QWidget* eltern)
{
    auto* feld = benannt(new QLineEdit(eltern), name);
    alsAnzeige(feld);
    feld->setFrame(true);
    feld->setAlignment(Qt::AlignRight);
    feld->setMinimumWidth(feld->fontMetrics().horizontalAdvance("00000") + 4 * Stil::kEng);
    return feld;
}

} // namespace

Zahlenhaeufigkeit::Zahlenhaeufigkeit(QWidget* eltern) : Rahmen("Ausgabe: Häufigkeit der Zahlen seit 1955", eltern)
{
    setObjectName("Rahmen2");
    for (std::size_t i = 0; i < felder_.size(); ++i)
        felder_[i] = anzeige(QString("Text%1").arg(i + 1), this);
    setzeInhalt(zeile(Bloecke(felder_.begin(), felder_.end())));
}

void Zahlenhaeufigkeit::zeige(const Zeitreise& zeitreise)
{
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const bool gefragt = i < zeitreise.zahlen.size();
        felder_[i]->setText(gefragt ? QString::number(zeitreise.bilanz.haeufigkeit[i]) : QString());
    }
}

Zeitreisezaehler::Zeitreisezaehler(Zeitreiseform form, QWidget* eltern)
    : Rahmen("Ausgabe: Ausgewählte Tippreihe", eltern)
{
    setObjectName("Rahmen1");
    Label1 = benannt(new QLabel(this), "Label1");
    Bloecke zaehler;
    for (const Zaehlername& name : zaehlernamen(form)) {
        QLineEdit* text = anzeige(name.feld, this);
        felder_.push_back({text, name.trefferzahl, name.mit});
        auto* beschriftung = benannt(new QLabel(name.beschriftung, this), QString("lbl") + (name.feld + 3));
        zaehler.insert(zaehler.end(), {beschriftung, text});
    }
    setzeInhalt(spalte({Label1, raster(2 * kZaehlerJeZeile, zaehler)}));
}

void Zeitreisezaehler::zeige(const Zeitreise& zeitreise)
{
    for (const Feld& feld : felder_)
        feld.text->setText(QString::number(zaehlerstand(zeitreise, feld.trefferzahl, feld.mit)));
}

void Zeitreisezaehler::stelleModus(bool kombination)
{
    wechsleTitel(*this, kombination ? "Ausgabe: Ausgewählte Kombination" : "Ausgabe: Ausgewählte Tippreihe");
    Label1->setText(kombination ? "Häufigkeit der Kombination:" : "Anzahl der Gewinne:");
}
