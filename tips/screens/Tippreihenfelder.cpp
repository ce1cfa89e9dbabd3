#include "tips/screens/Tippreihenfelder.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "tips/screens/Tippfarben.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace {

constexpr auto kFehler = "Fehler";

/// The arrow key leaves the field: upwards and downwards always, to the sides where the text ends.
bool fuehrtHinaus(const QLineEdit& feld, int taste)
{
    const bool ganz = feld.selectedText() == feld.text();
    switch (taste) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    case Qt::Key_Left:
        return ganz || feld.cursorPosition() == 0;
    case Qt::Key_Right:
        return ganz || feld.cursorPosition() == feld.text().size();
    default:
        return false;
    }
}

Tippcursor nachTaste(const Tippcursor& cursor, int taste)
{
    switch (taste) {
    case Qt::Key_Up:
        return cursor.hoeher();
    case Qt::Key_Down:
        return cursor.tiefer();
    case Qt::Key_Left:
        return cursor.zurueck();
    default:
        return cursor.vor();
    }
}

} // namespace

Tippreihenfelder::Tippreihenfelder(QWidget* eltern) : QWidget(eltern)
{
    for (int nr = 1; nr <= Tippcursor::kReihen; ++nr)
        zeilen_[index(nr)] = baueZeile(nr);
    setLayout(ordneAn());
}

Tippreihenfelder::Zeile Tippreihenfelder::baueZeile(int nr)
{
    Zeile zeile;
    for (std::size_t i = 0; i < zeile.zahlen.size(); ++i)
        zeile.zahlen[i] = baueFeld(QString("Text%1(%2)").arg(nr).arg(i), nr);
    zeile.superzahl = baueFeld(QString("tSZ(%1)").arg(nr), nr);
    zeile.fehler = new QLabel(this);
    zeile.fehler->setObjectName(QString("lblFehler(%1)").arg(nr - 1));
    zeile.fehler->setMinimumWidth(zeile.fehler->fontMetrics().horizontalAdvance(kFehler));
    zeile.gewinn = new QLabel(this);
    zeile.gewinn->setObjectName(QString("lblGewinn(%1)").arg(nr - 1));
    zeile.gewinn->setMinimumWidth(zeile.gewinn->fontMetrics().horizontalAdvance("6-er+SZ "));
    return zeile;
}

QLineEdit* Tippreihenfelder::baueFeld(const QString& name, int nr)
{
    auto* feld = new QLineEdit(this);
    feld->setObjectName(name);
    feld->setAlignment(Qt::AlignCenter);
    feld->setFixedWidth(feld->fontMetrics().horizontalAdvance("00000"));
    feld->installEventFilter(this);
    connect(feld, &QLineEdit::textChanged, this, [this, nr] { loescheErgebnis(zeilen_[index(nr)]); });
    return feld;
}

QLayout* Tippreihenfelder::ordneAn()
{
    const auto beschriftung = [this](const QString& name, const QString& text) {
        auto* feld = new QLabel(text, this);
        feld->setObjectName(name);
        return feld;
    };
    auto* raster = new QGridLayout;
    raster->setSpacing(Stil::kEng);
    raster->setContentsMargins(0, 0, 0, 0);
    for (int spalte = 0; spalte <= Tippcursor::kFelder; ++spalte) {
        const bool letzte = spalte == Tippcursor::kFelder;
        auto* kopf = beschriftung(QString("lblSpalte(%1)").arg(spalte), letzte ? "SZ" : QString("Z%1").arg(spalte + 1));
        raster->addWidget(kopf, 0, spalte + 1, Qt::AlignCenter);
    }
    for (int nr = 1; nr <= Tippcursor::kReihen; ++nr) {
        const Zeile& zeile = zeilen_[index(nr)];
        int spalte = 0;
        raster->addWidget(beschriftung(QString("lblTip(%1)").arg(nr), QString("Tip %1").arg(nr)), nr, spalte++);
        for (QLineEdit* zahl : zeile.zahlen)
            raster->addWidget(zahl, nr, spalte++);
        raster->addWidget(zeile.superzahl, nr, spalte++);
        raster->addWidget(zeile.gewinn, nr, spalte++);
        raster->addWidget(zeile.fehler, nr, spalte++);
    }
    return raster;
}

std::vector<Tippreihe> Tippreihenfelder::reihen() const
{
    std::vector<Tippreihe> alle;
    for (int nr = 1; nr <= Tippcursor::kReihen; ++nr)
        alle.push_back(reihe(nr));
    return alle;
}

Tippreihe Tippreihenfelder::reihe(int nr) const
{
    const Zeile& zeile = zeilen_[index(nr)];
    Tippreihe reihe;
    std::ranges::transform(zeile.zahlen, reihe.zahlen.begin(),
                           [](const QLineEdit* feld) { return utf8(feld->text()); });
    reihe.superzahl = utf8(zeile.superzahl->text());
    return reihe;
}

void Tippreihenfelder::setzeReihe(int nr, const Tippreihe& reihe)
{
    const Zeile& zeile = zeilen_[index(nr)];
    for (std::size_t i = 0; i < zeile.zahlen.size(); ++i)
        zeile.zahlen[i]->setText(qt(reihe.zahlen[i]));
    zeile.superzahl->setText(qt(reihe.superzahl));
}

void Tippreihenfelder::setzeSuperzahlen(const QString& text)
{
    for (const Zeile& zeile : zeilen_)
        zeile.superzahl->setText(text);
}

void Tippreihenfelder::leere()
{
    for (int nr = 1; nr <= Tippcursor::kReihen; ++nr)
        setzeReihe(nr, {});
    loescheErgebnisse();
    cursor_ = {};
}

const Tippcursor& Tippreihenfelder::cursor()
{
    merkeFokus(window()->focusWidget()); // a window in the background gets no word of its focus
    return cursor_;
}

void Tippreihenfelder::geheZu(const Tippcursor& cursor)
{
    cursor_ = cursor;
    feld(cursor)->setFocus();
    feld(cursor)->selectAll();
}

Tippcursor Tippreihenfelder::ersteFreie() const
{
    for (Tippcursor ort; ort.reihe <= Tippcursor::kReihen; ++ort.reihe)
        if (feld(ort)->text().isEmpty())
            return ort;
    return {};
}

void Tippreihenfelder::zeige(const std::vector<Reihenvergleich>& vergleiche)
{
    for (std::size_t i = 0; i < zeilen_.size(); ++i)
        zeigeIn(zeilen_[i], vergleiche[i]);
}

void Tippreihenfelder::zeigeFehler()
{
    for (int nr = 1; nr <= Tippcursor::kReihen; ++nr)
        zeilen_[index(nr)].fehler->setText(checkRow(reihe(nr)) == Reihenstand::Fehler ? kFehler : "");
}

void Tippreihenfelder::loescheErgebnisse()
{
    for (const Zeile& zeile : zeilen_)
        loescheErgebnis(zeile);
}

void Tippreihenfelder::loescheErgebnis(const Zeile& zeile)
{
    for (QLineEdit* zahl : zeile.zahlen)
        zahl->setPalette({});
    zeile.superzahl->setPalette({});
    zeile.fehler->clear();
    zeile.gewinn->clear();
}

void Tippreihenfelder::zeigeIn(const Zeile& zeile, const Reihenvergleich& vergleich)
{
    loescheErgebnis(zeile);
    for (std::size_t i = 0; i < zeile.zahlen.size(); ++i)
        if (vergleich.getroffen[i])
            faerbe(zeile.zahlen[i], Tippfarben::Zahl, Farben::Text);
    if (vergleich.superzahlGetroffen)
        faerbe(zeile.superzahl, Tippfarben::Superzahl, Farben::Text);
    zeile.fehler->setText(vergleich.stand == Reihenstand::Fehler ? kFehler : "");
    zeile.gewinn->setText(qt(vergleich.gewinn));
}

/// A field outside of the numbers changes nothing.
void Tippreihenfelder::merkeFokus(const QObject* feld)
{
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        const auto& zahlen = zeilen_[i].zahlen;
        const auto gefunden = std::ranges::find(zahlen, feld);
        if (gefunden != zahlen.end())
            cursor_ = {static_cast<int>(i) + 1, static_cast<int>(gefunden - zahlen.begin())};
    }
}

bool Tippreihenfelder::bewege(const QObject* feld, int taste)
{
    const QLineEdit* hier = this->feld(cursor());
    if (feld != hier || !fuehrtHinaus(*hier, taste))
        return false;
    geheZu(nachTaste(cursor_, taste));
    return true;
}

bool Tippreihenfelder::eventFilter(QObject* feld, QEvent* ereignis)
{
    if (ereignis->type() == QEvent::FocusIn)
        merkeFokus(feld);
    if (ereignis->type() == QEvent::KeyPress) {
        const auto& taste = static_cast<const QKeyEvent&>(*ereignis);
        return !(taste.modifiers() & ~Qt::KeypadModifier) && bewege(feld, taste.key());
    }
    return false;
}
