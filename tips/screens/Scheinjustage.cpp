#include "tips/screens/Scheinjustage.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "tips/logic/Druckeinstellungen.h"
#include "tips/screens/Felder.h"
#include "tips/screens/Spielscheinbild.h"

#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr auto kHinweis = "Die Druckausgabe kann mit den beiden ScrollBars in 0,1 mm Schritten horizontal und "
                          "vertikal justiert werden";
constexpr auto kAusrichten = "Nach einer Justierung der Druckausgabe kann die Position des Spielscheins auf dem "
                             "Screen ausgerichtet werden.";

QString millimeter(const QScrollBar& leiste)
{
    return qt(Dezimaltext(leiste.value() / 10.0, 1));
}

} // namespace

Scheinjustage::Scheinjustage(QWidget* eltern) : QWidget(eltern)
{
    Picture1 = new Spielscheinbild("Picture1", this);
    HScroll1 = leiste("HScroll1", Qt::Horizontal);
    VScroll1 = leiste("VScroll1", Qt::Vertical);
    Label1 = benannt(new QLabel(this), "Label1");
    Label2 = benannt(new QLabel(this), "Label2");
    auto* Command3 = benannt(new QPushButton("S", this), "Command3");
    setzeHinweis(Command3, kAusrichten);
    connect(Command3, &QPushButton::clicked, this, [this] { Picture1->rueckeSchein(versatz()); });

    // clang-format off
    setLayout(spalte({
        dehnbar(zeile({dehnbar(Picture1), VScroll1})),
        zeile({dehnbar(HScroll1), Command3}),
        zeile({Label1, Label2, luecke()}),
    }));
    // clang-format on
    zeigeVersatz();
}

QScrollBar* Scheinjustage::leiste(const QString& name, Qt::Orientation richtung)
{
    auto* leiste = benannt(new QScrollBar(richtung, this), name);
    leiste->setRange(-kGroessterVersatz, kGroessterVersatz);
    leiste->setFocusPolicy(Qt::StrongFocus);
    setzeHinweis(leiste, kHinweis);
    connect(leiste, &QScrollBar::valueChanged, this, [this] {
        zeigeVersatz();
        beiVersatz();
    });
    return leiste;
}

Scheinversatz Scheinjustage::versatz() const
{
    return {.waagerecht = HScroll1->value(), .senkrecht = VScroll1->value()};
}

void Scheinjustage::stelle(const Scheinversatz& versatz)
{
    HScroll1->setValue(versatz.waagerecht);
    VScroll1->setValue(versatz.senkrecht);
}

void Scheinjustage::zeigeVersatz()
{
    Label1->setText("Versatz horizontal (mm): " + millimeter(*HScroll1));
    Label2->setText("Versatz vertikal (mm): " + millimeter(*VScroll1));
}
