#pragma once

#include "shell/elements/Zeilenansicht.h"
#include "shell/logic/ListenModell.h"

/// The list box: fixed pitch text rows, stored and sorted by their own text, or made on demand. Screens fill the
/// model; the view follows by itself.
class Liste final : public Zeilenansicht {
public:
    static constexpr int kEinzug = 4; ///< pixels to the left of a row's text

    explicit Liste(QWidget* eltern, ListenModell::Eigenschaften eigenschaften = {});

    ListenModell& modell() { return modell_; }
    const ListenModell& modell() const { return modell_; }

    /// Room for this many rows and characters without scrolling, at least.
    void setzeSichtbar(int zeilen, int zeichen);

    int zeilenzahl() const override { return static_cast<int>(modell_.ListCount()); }
    QString zeilentext(int zeile) const override;
    bool istGewaehlt(int zeile) const override { return modell_.Selected(static_cast<std::size_t>(zeile)); }
    int fokuszeile() const override { return static_cast<int>(modell_.ListIndex()); }
    bool waehleAlle() override;
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void maleZeile(QPainter& maler, int zeile, const QRect& rechteck) override;
    int zeilenhoehe() const override { return fontMetrics().height() + 2; }
    int zeilenbreite() const override { return breite_; }
    void waehle(int zeile, Qt::KeyboardModifiers tasten) override;
    void schalte(int zeile) override;

private:
    void waehleVonBis(int von, int bis);
    void waehleBereich(int zeile);
    void setzeAuswahl(int zeile);

    ListenModell modell_;
    int anker_ = 0;
    int breite_ = 0; ///< of the widest row seen
    int sichtbareZeilen_ = 6;
    int sichtbareZeichen_ = 20;
};
