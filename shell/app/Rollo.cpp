#include "shell/app/Rollo.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Stil.h"
#include "shell/elements/TextRand.h"

#include <QLabel>
#include <QPainter>
#include <QTextEdit>

namespace {

constexpr auto kLaengsterName = "Mittwochslotto 6 aus 49 (B)";
constexpr auto kRolloText =
    "Mit diesen Programmfunktionen können die Ziehungen des Samstags- und Mittwochslotto zusammen "
    "ausgewertet werden.";

/// The name of the game stands where the ground is the brightest green: only a dark text is readable there, and its
/// shadow is a light.
const QColor kSchattenfarbe(160, 255, 160);

/// A strip of slats, as the blind shows them where it is rolled up.
QPixmap lamellen(int breite)
{
    constexpr int kLamelle = 5;
    constexpr int kAnzahl = 4;
    QPixmap bild(breite, kLamelle * kAnzahl);
    QPainter maler(&bild);
    for (int i = 0; i < kAnzahl; ++i) {
        QLinearGradient verlauf(0, i * kLamelle, 0, (i + 1) * kLamelle);
        verlauf.setColorAt(0, QColor(210, 232, 214));
        verlauf.setColorAt(1, QColor(120, 160, 130));
        maler.fillRect(0, i * kLamelle, breite, kLamelle, verlauf);
    }
    return bild;
}

} // namespace

Spielname::Spielname(QWidget* eltern) : QWidget(eltern)
{
    QFont schrift = font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.35);
    schrift.setBold(true);
    for (std::size_t i = 0; i < bezeichnungen_.size(); ++i) {
        bezeichnungen_[i] = new QLabel(this);
        bezeichnungen_[i]->setObjectName(QString("Bezeichnung3(%1)").arg(i));
        bezeichnungen_[i]->setFont(schrift);
        bezeichnungen_[i]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        QPalette farben = palette();
        farben.setColor(QPalette::WindowText, i == 0 ? kSchattenfarbe : Farben::Fuss);
        bezeichnungen_[i]->setPalette(farben);
    }
}

QSize Spielname::sizeHint() const
{
    const QFontMetrics masse(bezeichnungen_[0]->font());
    return {masse.horizontalAdvance(kLaengsterName) + 8, masse.height() + 8};
}

void Spielname::resizeEvent(QResizeEvent*)
{
    constexpr QPoint kSchatten{1, 2};
    const QSize platz(width() - kSchatten.x(), height() - kSchatten.y());
    bezeichnungen_[0]->setGeometry(QRect(kSchatten, platz));
    bezeichnungen_[1]->setGeometry(QRect(QPoint(0, 0), platz));
}

Rollo::Rollo(QWidget* eltern) : QFrame(eltern)
{
    setObjectName("frameRollo");
    setAutoFillBackground(true);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);

    imgRollo = new QLabel(this);
    imgRollo->setObjectName("imgRollo");
    imgRollo->setPixmap(lamellen(16));
    imgRollo->setScaledContents(true);
    imgRollo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    ShapeRollo = new QFrame(this);
    ShapeRollo->setObjectName("ShapeRollo");
    ShapeRollo->setFrameStyle(QFrame::HLine | QFrame::Sunken);

    txtRollo = new QTextEdit(kRolloText, this);
    txtRollo->setObjectName("txtRollo");
    txtRollo->setReadOnly(true);
    txtRollo->setFrameStyle(QFrame::NoFrame);
    txtRollo->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    txtRollo->setFocusPolicy(Qt::NoFocus);
    txtRollo->viewport()->setAutoFillBackground(false);
    txtRollo->setFixedHeight(2 * fontMetrics().lineSpacing());
    TextRand(txtRollo, 0, 0, 0, 0);
}

void Rollo::setzeInhalt(QWidget* inhalt)
{
    QLayout* ganz = spalte({imgRollo, txtRollo, dehnbar(inhalt), ShapeRollo});
    ganz->setContentsMargins(Stil::kAbstand, 0, Stil::kAbstand, Stil::kAbstand);
    setLayout(ganz);
}
