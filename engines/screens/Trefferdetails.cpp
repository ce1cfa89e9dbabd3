#include "engines/screens/Trefferdetails.h"

#include "listcontrol/screens/ListView.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Bloecke.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Zahlen.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

namespace {

constexpr int kScheibeMs = 12; ///< one go of filling

TextAlign ausrichtung(Trefferfeld feld)
{
    return feld == Trefferfeld::JahrUndWoche || feld == Trefferfeld::Ziehungstag ? TextAlign::Left : TextAlign::Center;
}

} // namespace

Trefferdetails::Trefferdetails(Bildschirm& bildschirm, std::span<const Trefferspalte> spalten, QLayout* dazu)
    : Rahmen({}, &bildschirm),
      spalten_(spalten),
      ListView1(new ListView(this)),
      lblDetail(new QLabel(this)),
      fuellung_(new QTimer(this))
{
    setObjectName("FrameDetail");
    ListView1->setObjectName("ListView1");
    lblDetail->setObjectName("lblDetail");
    baueSpalten();
    Bloecke inhalt{dehnbar(ListView1)};
    if (dazu)
        inhalt.emplace_back(dazu);
    inhalt.emplace_back(lblDetail);
    setzeInhalt(spalte(inhalt));
    fuellung_->setInterval(0);
    connect(fuellung_, &QTimer::timeout, this, [this] { fuelleWeiter(); });
    leere();
}

void Trefferdetails::baueSpalten()
{
    for (const Trefferspalte& spalte : spalten_)
        if (spalte.feld == Trefferfeld::Trenner)
            ListView1->AddTrenner(spalte.schluessel);
        else
            ListView1->AddColumn(spalte.schluessel, spalte.titel, ausrichtung(spalte.feld),
                                 ListView1->breiteFuerZeichen(spalte.zeichen));
    ListView1->setColumnsAutoSize(true);
    ListView1->setDrawCallback(this);
}

void Trefferdetails::zeige(const ZiehungsArchiv& ziehungen, const Kombination& kombination,
                           std::optional<std::int32_t> superzahl)
{
    leere();
    kombination_ = kombination;
    faelle_ = gewinnfaelle(ziehungen, kombination, superzahl);
    setTitle("Trefferliste für die Kombination: " + qt(zahlentext(kombination)));
    lblDetail->setText("Anzahl der Gewinnfälle: " + QString::number(faelle_.size()));
    ListView1->PrepareForItems(static_cast<int>(faelle_.size()));
    fuelleWeiter();
}

void Trefferdetails::leere()
{
    fuellung_->stop();
    kombination_.reset();
    faelle_.clear();
    setTitle("Detailliste");
    lblDetail->setText("0");
    ListView1->Clear();
}

/// A list that is longer than all real ones goes on at the next turns of the event loop.
void Trefferdetails::fuelleWeiter()
{
    QElapsedTimer uhr;
    uhr.start();
    ListView1->setRedraw(false);
    auto fall = static_cast<std::size_t>(ListView1->ItemCount());
    for (; fall < faelle_.size() && uhr.elapsed() < kScheibeMs; ++fall)
        haengeAn(faelle_[fall]);
    ListView1->setRedraw(true);
    if (fall < faelle_.size())
        fuellung_->start();
    else
        fuellung_->stop();
}

void Trefferdetails::haengeAn(const Gewinnfall& fall)
{
    const int zeile = ListView1->AddItem({});
    for (std::size_t spalte = 0; spalte < spalten_.size(); ++spalte)
        if (spalten_[spalte].feld != Trefferfeld::Trenner)
            ListView1->setItemText(zeile, static_cast<int>(spalte),
                                   trefferzelle(spalten_[spalte].feld, fall, *kombination_));
}

void Trefferdetails::CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled)
{
    const Trefferfeld feld = spalten_[static_cast<std::size_t>(column)].feld;
    const auto farbe = trefferfarbe(feld, ListView1->ItemText(row, column));
    if (!farbe)
        return;
    backColor = farbe->grund;
    foreColor = farbe->schrift.value_or(foreColor);
    handled = true;
}
