#include "tips/screens/Spielscheinmaler.h"

#include "shell/elements/Utf8.h"
#include "shell/logic/Tippfeld7x7.h"

#include <QFontMetricsF>
#include <QPainter>

#include <map>

namespace {

using Spielscheinmaler::kJeMillimeter;

constexpr double kKreuz = 3.0;      ///< size of the cross's font
constexpr double kZellenzahl = 1.9; ///< of the small numbers in the cells
constexpr double kTitel = 1.9;
constexpr QSizeF kKaestchen{3.0, 3.2};
constexpr double kLuft = 0.5; ///< from the edge of a box to its cross
const QColor kRot{205, 60, 50};
const QColor kPapier{255, 252, 246};
const QColor kKugelschreiber{20, 30, 90};

QFont schrift(double millimeter, bool fett)
{
    QFont schrift;
    schrift.setFamilies({"Arial", "Liberation Sans"});
    schrift.setPixelSize(qRound(millimeter * kJeMillimeter));
    schrift.setBold(fett);
    return schrift;
}

QPointF punkt(const Scheinort& ort)
{
    return QPointF(ort.waagerecht, ort.senkrecht) * kJeMillimeter;
}

QRectF rechteck(const Scheinort& ecke, const QSizeF& groesse)
{
    return {punkt(ecke), groesse * kJeMillimeter};
}

void maleFeld(QPainter& maler, std::size_t tip)
{
    const Scheinfeld feld = scheinfeld(tip);
    const QSizeF zelle(Scheinfeld::kZellenbreite, Scheinfeld::kZellenhoehe);
    maler.setFont(schrift(kZellenzahl, false));
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        const QPointF ecke(Tippfeld7x7::spalte(zahl) * zelle.width(), Tippfeld7x7::zeile(zahl) * zelle.height());
        const QRectF rand(punkt(feld.ecke) + ecke * kJeMillimeter, zelle * kJeMillimeter);
        maler.drawRect(rand);
        maler.drawText(rand, Qt::AlignCenter, QString::number(zahl));
    }
}

void maleKaestchen(QPainter& maler, const Scheinkaestchen& kaestchen)
{
    const Scheinort ecke{kaestchen.ort.senkrecht - static_cast<float>(kLuft),
                         kaestchen.ort.waagerecht - static_cast<float>(kLuft)};
    const QRectF rand = rechteck(ecke, kKaestchen);
    maler.setFont(schrift(kTitel, false));
    maler.drawRect(rand);
    maler.drawText(QRectF(rand.topRight() + QPointF(kLuft * kJeMillimeter, 0), rand.size() * 2), Qt::AlignLeft,
                   qt(kaestchen.beschriftung));
}

/// Each group of boxes has its name to the left of its first one.
void maleGruppen(QPainter& maler)
{
    std::map<std::string_view, bool> benannt;
    for (const Scheinkaestchen& kaestchen : scheinkaestchen()) {
        maleKaestchen(maler, kaestchen);
        if (std::exchange(benannt[kaestchen.gruppe], true))
            continue;
        const QRectF links(0, punkt(kaestchen.ort).y() - kLuft * kJeMillimeter,
                           punkt(kaestchen.ort).x() - 2 * kLuft * kJeMillimeter, kKaestchen.height() * kJeMillimeter);
        maler.setFont(schrift(kTitel, true));
        maler.drawText(links, Qt::AlignRight | Qt::AlignVCenter, qt(kaestchen.gruppe));
    }
}

} // namespace

void Spielscheinmaler::maleKreuze(QPainter& maler, const std::vector<Scheinort>& orte)
{
    maler.setFont(schrift(kKreuz, true));
    maler.setPen(kKugelschreiber);
    const double hoehe = QFontMetricsF(maler.font()).capHeight();
    for (const Scheinort& ort : orte)
        maler.drawText(punkt(ort) + QPointF(0, hoehe), "X");
}

void Spielscheinmaler::maleSchein(QPainter& maler)
{
    maler.setPen(QPen(kRot, 0.12 * kJeMillimeter));
    maler.setBrush(kPapier);
    maler.drawRect(QRectF(QPointF(), kSchein * kJeMillimeter));
    maler.setBrush(Qt::white);
    for (std::size_t tip = 0; tip < 12; ++tip)
        maleFeld(maler, tip);
    maleGruppen(maler);
}
