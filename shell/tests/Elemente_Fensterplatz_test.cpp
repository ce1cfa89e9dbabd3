#include "shell/elements/Fensterplatz.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Rollinhalt.h"
#include "shell/tests/Rohbau.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

constexpr QRect kKlein{0, 0, 1024, 768};

/// A screen of 1200 x 900 with a control in each corner, on a desktop that a test chooses.
class ElementFensterplatz : public Rohbautest {
protected:
    Bildschirm& zeigeAuf(const QRect& schreibtisch, QSize flaeche = {1100, 800})
    {
        buehne.umgebung.schreibtisch = schreibtisch;
        Bildschirm& schirm = zeige([this, flaeche](Rohbau& rohbau) {
            mitte = rohbau.bezeichnung("Bezeichnung1");
            mitte->setMinimumSize(flaeche);
            return spalte({
                zeile({rohbau.textfeld("Text1"), luecke()}),
                mitte,
                zeile({luecke(), rohbau.befehl("Befehl1", "<<")}),
            });
        });
        QCoreApplication::processEvents();
        return schirm;
    }

    static QScrollBar* balken(const Bildschirm& schirm, Qt::Orientation richtung)
    {
        for (auto* balken : schirm.findChildren<QScrollBar*>(Qt::FindDirectChildrenOnly))
            if (balken->orientation() == richtung)
                return balken;
        return nullptr;
    }

    /// The control as the screen shows it.
    static QRect ort(const Bildschirm& schirm, const char* name)
    {
        const auto* feld = schirm.findChild<QWidget*>(name);
        return {feld->mapTo(&schirm, QPoint(0, 0)), feld->size()};
    }

    QLabel* mitte = nullptr;
};

TEST_F(ElementFensterplatz, WasPasstRolltNichtUndStehtInDerMitte)
{
    const Bildschirm& schirm = zeigeAuf({0, 0, 1280, 1000});
    EXPECT_FALSE(balken(schirm, Qt::Horizontal)->isVisible());
    EXPECT_FALSE(balken(schirm, Qt::Vertical)->isVisible());
    EXPECT_EQ(schirm.size(), schirm.inhalt().sizeHint());
    const QPoint mitteDesFensters = schirm.frameGeometry().center();
    EXPECT_NEAR(mitteDesFensters.x(), 640, 20);
    EXPECT_NEAR(mitteDesFensters.y(), 500, 20);
}

TEST_F(ElementFensterplatz, EinZuKleinerSchreibtischRolltUndZeigtLinksObenUndDenFuss)
{
    const Bildschirm& schirm = zeigeAuf(kKlein);
    EXPECT_TRUE(kKlein.contains(schirm.frameGeometry()));
    EXPECT_TRUE(balken(schirm, Qt::Horizontal)->isVisible());
    EXPECT_TRUE(balken(schirm, Qt::Vertical)->isVisible());
    EXPECT_TRUE(schirm.rect().contains(ort(schirm, "Text1")));
    EXPECT_FALSE(schirm.rect().intersects(ort(schirm, "Befehl1")));
    EXPECT_EQ(ort(schirm, "Statuszeile").bottom(), schirm.rect().bottom());
}

TEST_F(ElementFensterplatz, EinFensterGehtLinksObenAufWoAuchSeinFokusIst)
{
    buehne.umgebung.schreibtisch = kKlein;
    const Bildschirm& schirm = zeige([](Rohbau& rohbau) {
        QPushButton* start = rohbau.befehl("Befehl1", "Start");
        rohbau.bezeichnung("Bezeichnung1")->setMinimumSize(1100, 800);
        rohbau.hauptaktionen({start});
        return spalte({rohbau.findChild<QLabel*>("Bezeichnung1"), zeile({luecke(), start})});
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(schirm.focusWidget()->objectName(), "Befehl1");
    EXPECT_EQ(balken(schirm, Qt::Horizontal)->value(), 0);
    EXPECT_EQ(balken(schirm, Qt::Vertical)->value(), 0);
}

TEST_F(ElementFensterplatz, WasLinksOderObenHinausrolltBehaeltSeineGroesse)
{
    Bildschirm& schirm = zeigeAuf(kKlein);
    const QRect vorher = ort(schirm, "Text1");
    const QRect mitteVorher = ort(schirm, "Bezeichnung1");
    balken(schirm, Qt::Horizontal)->setValue(60);
    balken(schirm, Qt::Vertical)->setValue(40);
    EXPECT_EQ(ort(schirm, "Text1"), vorher.translated(-60, -40));
    EXPECT_EQ(ort(schirm, "Bezeichnung1"), mitteVorher.translated(-60, -40));
    schirm.layout()->invalidate();
    schirm.layout()->activate();
    EXPECT_EQ(ort(schirm, "Text1"), vorher.translated(-60, -40));
    balken(schirm, Qt::Horizontal)->setValue(0);
    balken(schirm, Qt::Vertical)->setValue(0);
    EXPECT_EQ(ort(schirm, "Text1"), vorher);
    EXPECT_EQ(ort(schirm, "Bezeichnung1"), mitteVorher);
}

TEST_F(ElementFensterplatz, EinFeldDasDenFokusErhaeltRolltInsBild)
{
    Bildschirm& schirm = zeigeAuf(kKlein);
    schirm.findChild<QWidget*>("Befehl1")->setFocus(Qt::TabFocusReason);
    const QRect sicht = schirm.rect().adjusted(0, 0, 0, -ort(schirm, "Statuszeile").height());
    EXPECT_TRUE(sicht.contains(ort(schirm, "Befehl1")));
    schirm.findChild<QWidget*>("Text1")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(sicht.contains(ort(schirm, "Text1")));
}

TEST_F(ElementFensterplatz, RadUndSeitentastenRollen)
{
    Bildschirm& schirm = zeigeAuf(kKlein);
    const QScrollBar* hoch = balken(schirm, Qt::Vertical);
    QWheelEvent rad(QPointF(300, 300), schirm.mapToGlobal(QPointF(300, 300)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&schirm, &rad);
    EXPECT_GT(hoch->value(), 0);
    tippe("Befehl1", "PgUp");
    EXPECT_EQ(hoch->value(), 0);
    tippe("Text1", "PgDown");
    EXPECT_EQ(hoch->value(), hoch->maximum());
}

TEST_F(ElementFensterplatz, EinKlickTrifftAuchEinFeldAusserSicht)
{
    zeigeAuf(kKlein);
    klicke("Befehl1");
    EXPECT_EQ(buehne.bildschirme.geladen("frmProbe")->focusWidget()->objectName(), "Befehl1");
}

TEST_F(ElementFensterplatz, DieBlosseFormIstAuchBeimRollenUnterDerMaus)
{
    Bildschirm& schirm = zeigeAuf(kKlein);
    schirm.setzeTitel("Ergebnis");
    ueberfahre("frmProbe");
    EXPECT_EQ(titel(), "Probe");
}

TEST_F(ElementFensterplatz, WasImFensterWaechstWaechstNichtUeberDenSchreibtisch)
{
    const Bildschirm& schirm = zeigeAuf({0, 0, 1280, 800}, {300, 200});
    EXPECT_FALSE(balken(schirm, Qt::Vertical)->isVisible());
    mitte->setMinimumSize(2000, 2000);
    QCoreApplication::processEvents();
    EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(schirm.frameGeometry()));
    EXPECT_TRUE(balken(schirm, Qt::Vertical)->isVisible());
}

TEST_F(ElementFensterplatz, EinFensterAmRandWirdHereingeholtWennEsWaechst)
{
    Bildschirm& schirm = zeigeAuf({0, 0, 1280, 800}, {300, 200});
    schirm.move(900, 500);
    mitte->setMinimumSize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(schirm.frameGeometry()));
}

TEST_F(ElementFensterplatz, EineInfotafelDieNichtPasstRolltUndZeigtIhrenKnopf)
{
    Bildschirm& schirm = zeigeAuf({0, 0, 800, 600}, {100, 100});
    Infotafel tafel(&schirm, QString("Eine lange Erklärung. ").repeated(400));
    tafel.zeige();
    QCoreApplication::processEvents();
    EXPECT_TRUE(QRect(0, 0, 800, 600).contains(schirm.frameGeometry()));
    EXPECT_TRUE(schirm.rect().contains(tafel.geometry()));
    EXPECT_FALSE(tafel.findChild<QPushButton*>("InfotafelOk")->visibleRegion().isEmpty());
}

TEST_F(ElementFensterplatz, DerKnopfDerInfotafelLiegtUeberEinerErklaerungDieNichtPasst)
{
    Bildschirm& schirm = zeigeAuf({0, 0, 800, 600}, {100, 100});
    auto* erklaerung = new Liste(&schirm);
    erklaerung->setzeSichtbar(80, 200);
    Infotafel tafel(&schirm, erklaerung, {});
    tafel.zeige();
    QCoreApplication::processEvents();
    const auto* ok = tafel.findChild<QPushButton*>("InfotafelOk");
    EXPECT_EQ(schirm.childAt(ok->mapTo(&schirm, ok->rect().center())), ok);
}

TEST_F(ElementFensterplatz, NachDerInfotafelIstDerFokusWoErWar)
{
    Bildschirm& schirm = zeigeAuf({0, 0, 1280, 800}, {300, 200});
    Infotafel tafel(&schirm, "Erklärung");
    schirm.findChild<QWidget*>("Befehl1")->setFocus();
    tafel.zeige();
    klicke("InfotafelOk");
    EXPECT_EQ(schirm.focusWidget()->objectName(), "Befehl1");
}

} // namespace
