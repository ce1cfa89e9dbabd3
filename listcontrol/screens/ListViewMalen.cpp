#include "listcontrol/screens/Farbwandel.h"
#include "listcontrol/screens/ListView.h"
#include "listcontrol/screens/Listenkopf.h"
#include "shell/elements/Fokusrahmen.h"
#include "shell/elements/Utf8.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <exception>
#include <iterator>

namespace {

constexpr int kKaestchen = 13; ///< pixels of an edge
constexpr int kZeilenMindestens = 3;
constexpr int kBreiteHoechstens = 1240; ///< that the list would like; beyond it scrolls
constexpr int kBreiteMindestens = 160;

/// The text without the control characters at its ends, which mark a cell.
std::string_view ohneMarken(std::string_view text)
{
    const auto istText = [](char zeichen) { return static_cast<unsigned char>(zeichen) >= ' '; };
    const auto anfang = std::ranges::find_if(text, istText);
    const auto ende = std::find_if(text.rbegin(), std::make_reverse_iterator(anfang), istText).base();
    return {anfang, ende};
}

} // namespace

// --- Geometry

int ListView::zeilenhoehe() const
{
    const int mitRand = zellmaler_.schrifthoehe() + innenrand_.top() + innenrand_.bottom();
    const int hoehe = std::max(mitRand, bildgroesse_.height());
    const int flaeche = viewport()->height();
    return zeilenStrecken_ && flaeche > hoehe ? flaeche / (flaeche / hoehe) : hoehe;
}

QSize ListView::groesseFuer(int zeilen, int hoechstens) const
{
    const int rand = 2 * frameWidth();
    const int breite = lage_.gesamtbreite() + verticalScrollBar()->sizeHint().width() + rand;
    return {std::min(breite, hoechstens), viewportMargins().top() + zeilen * zeilenhoehe() + rand};
}

QSize ListView::sizeHint() const
{
    return groesseFuer(sichtbareZeilen_, kBreiteHoechstens);
}

QSize ListView::minimumSizeHint() const
{
    return groesseFuer(kZeilenMindestens, kBreiteMindestens);
}

QRect ListView::zelle(int zeile, const Spaltenlage::Platz& platz) const
{
    const QRect ganze = zeilenrechteck(zeile);
    return {ganze.left() + platz.x, ganze.top(), platz.breite, ganze.height()};
}

QRect ListView::kaestchen(const QRect& zelle) const
{
    const int oben = zelle.top() + (zelle.height() - kKaestchen) / 2;
    return {zelle.left() + innenrand_.left(), oben, kKaestchen, kKaestchen};
}

QRect ListView::bildplatz(const QRect& zelle) const
{
    const int links = kaestchenSichtbar_ ? kKaestchen + innenrand_.left() : 0;
    const int oben = zelle.top() + (zelle.height() - bildgroesse_.height()) / 2;
    return {QPoint(zelle.left() + innenrand_.left() + links, oben), bildgroesse_};
}

int ListView::vorDemText(int zeile, int spalte) const
{
    if (spalte != 0)
        return 0;
    const int breite = kaestchenSichtbar_ ? kKaestchen + innenrand_.left() : 0;
    return breite + (bildVon(zeile) ? bildgroesse_.width() + innenrand_.left() : 0);
}

const QPixmap* ListView::bildVon(int zeile) const
{
    const int bild = posten_.Item(zeile).PictureIndex();
    return bilderSichtbar_ && bild >= 0 && bild < PictureCount() ? &bilder_[static_cast<std::size_t>(bild)] : nullptr;
}

// --- Contents

QString ListView::zeilentext(int zeile) const
{
    const ListItem& posten = posten_.Item(zeile);
    QString text;
    for (int spalte = 0; spalte < ColumnCount(); ++spalte) {
        if (spalte > 0)
            text += '\t';
        text += ::qt(posten.Text(spalte));
    }
    return text;
}

QString ListView::kopierzeile(int zeile) const
{
    const ListItem& posten = posten_.Item(zeile);
    QStringList zellen;
    for (const Spaltenlage::Platz& platz : lage_.plaetze())
        if (!spalten_.Item(platz.spalte).istTrenner())
            zellen << ::qt(ohneMarken(posten.Text(platz.spalte))).replace('\n', ' ');
    return zellen.join('\t');
}

Zellfarben ListView::farben(int zeile, int spalte) const
{
    const bool gewaehlt = isEnabled() && posten_.Item(zeile).Selected();
    const Zellfarben farben{gewaehlt ? SelectedBackColor() : BackColor(), gewaehlt ? SelectedForeColor() : ForeColor()};
    if (!faerber_)
        return farben;
    Farbe grund = farbe(farben.grund);
    Farbe schrift = farbe(farben.schrift);
    bool behandelt = false;
    try {
        faerber_->CustomDraw(zeile, spalte, grund, schrift, behandelt);
    } catch (const std::exception&) {
        return farben; // no error of a callback gets into the toolkit's painting
    }
    return behandelt ? Zellfarben{qt(grund), qt(schrift)} : farben;
}

std::vector<Zellfarben> ListView::zellfarben(int zeile) const
{
    std::vector<Zellfarben> alle;
    alle.reserve(static_cast<std::size_t>(ColumnCount()));
    for (int spalte = 0; spalte < ColumnCount(); ++spalte)
        alle.push_back(farben(zeile, spalte));
    return alle;
}

// --- Painting

void ListView::maleZeile(QPainter& maler, int zeile, const QRect& rechteck)
{
    for (const Spaltenlage::Platz& platz : lage_.plaetze()) {
        const QRect feld(rechteck.left() + platz.x, rechteck.top(), platz.breite, rechteck.height());
        if (feld.right() < 0 || feld.left() >= viewport()->width())
            continue;
        const Zellfarben gemalte = farben(zeile, platz.spalte);
        maler.fillRect(feld, gemalte.grund);
        if (maler.pen().color() != gemalte.schrift)
            maler.setPen(gemalte.schrift);
        maleInhalt(maler, feld, zeile, platz.spalte);
    }
    if (hasFocus() && zeile == auswahl_.fokus())
        maleZeilenfokus(maler, {rechteck.left(), rechteck.top(), lage_.gesamtbreite(), rechteck.height()});
}

void ListView::maleInhalt(QPainter& maler, const QRect& zelle, int zeile, int spalte) const
{
    const std::string_view text = posten_.Item(zeile).Text(spalte);
    const int vorher = vorDemText(zeile, spalte);
    if (vorher > 0) {
        maler.save();
        maler.setClipRect(zelle, Qt::IntersectClip);
        if (kaestchenSichtbar_)
            maleKaestchen(maler, kaestchen(zelle), zeile);
        if (const QPixmap* bild = bildVon(zeile))
            maler.drawPixmap(bildplatz(zelle), *bild);
        maler.restore();
    }
    if (!text.empty()) {
        const TextAlign ausrichtung = spalten_.Item(spalte).TextAlign;
        zellmaler_.male(maler, zelle.adjusted(vorher, 0, 0, 0), innenrand_, ausrichtung,
                        Zellmaler::anzeige(text, ausrichtung));
    }
}

void ListView::maleKaestchen(QPainter& maler, const QRect& kasten, int zeile) const
{
    const ListItem& posten = posten_.Item(zeile);
    const QColor& farbe = posten.Selected() ? kaestchenfarbeGewaehlt_ : kaestchenfarbe_;
    maler.setPen(isEnabled() ? farbe : ForeColor());
    maler.drawRect(kasten.adjusted(0, 0, -1, -1));
    if (!posten.Checked())
        return;
    for (int strich = 0; strich < 2; ++strich) {
        const QPoint knick(kasten.left() + 5, kasten.bottom() - 3 - strich);
        maler.drawLine(knick, knick - QPoint(2, 2));
        maler.drawLine(knick, knick + QPoint(4, -4));
    }
}

void ListView::maleZeilenfokus(QPainter& maler, const QRect& zeile) const
{
    if (fokusSolide_) {
        maleFokus(maler, zeile, FocusRectColor());
        return;
    }
    maler.save();
    maler.setPen(QPen(ForeColor(), 1, Qt::DotLine));
    maler.drawRect(zeile.adjusted(0, 0, -1, -1));
    maler.restore();
}

// --- Changes of the surroundings

void ListView::resizeEvent(QResizeEvent* ereignis)
{
    ordneKopf();
    stelleSpalten();
    Zeilenansicht::resizeEvent(ereignis);
}

void ListView::changeEvent(QEvent* ereignis)
{
    Zeilenansicht::changeEvent(ereignis);
    if (ereignis->type() == QEvent::FontChange)
        zellmaler_ = Zellmaler(font());
}

bool ListView::viewportEvent(QEvent* ereignis)
{
    if (ereignis->type() != QEvent::ToolTip)
        return Zeilenansicht::viewportEvent(ereignis);
    const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
    QToolTip::showText(hilfe->globalPos(), abgeschnittenerText(hilfe->pos()), viewport());
    return true;
}

QString ListView::abgeschnittenerText(QPoint ort) const
{
    const int zeile = zeileBei(ort.y());
    const int spalte = lage_.spalteBei(ort.x() + horizontalScrollBar()->value());
    if (zeile < 0 || spalte < 0)
        return {};
    const std::string_view text = posten_.Item(zeile).Text(spalte);
    const QString angezeigter = Zellmaler::anzeige(text, spalten_.Item(spalte).TextAlign);
    const int platz = lage_.platz(spalte)->breite - vorDemText(zeile, spalte);
    return zellmaler_.passt(angezeigter, platz)
               ? QString()
               : ::qt(ohneMarken(text)).trimmed().toHtmlEscaped().replace("\n", "<br>");
}
