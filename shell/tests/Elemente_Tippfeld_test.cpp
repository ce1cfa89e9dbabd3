#include "shell/elements/Bildschirm.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "testhilfen/Buehnentest.h"
#include "tools/buehne/Eingabe.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Feldprobe final : public Bildschirm {
public:
    Feldprobe(Umgebung& umgebung, Tippfeld7x7View::Art art)
        : Bildschirm(umgebung, "frmProbe", "Probe"),
          feld(new Tippfeld7x7View("Zahl", art, this))
    {
        feld->setObjectName("Feld");
        setzeInhalt(spalte({feld}));
    }

    Tippfeld7x7View* feld;
};

class ElementTippfeld : public Buehnentest {
protected:
    Tippfeld7x7View& zeige(Tippfeld7x7View::Art art)
    {
        buehne.bildschirme.registriere("frmProbe", [art](Umgebung& u) { return std::make_unique<Feldprobe>(u, art); });
        oeffne("frmProbe");
        feld_ = buehne.bildschirme.lade<Feldprobe>("frmProbe").feld;
        feld_->beiKlick = [this](int zahl) { klicks.push_back(zahl); };
        return *feld_;
    }

    static QString zelle(int zahl) { return QString("Zahl(%1)").arg(zahl); }

    /// The marked numbers; the cells of all others look unmarked in every respect.
    QList<int> markierte()
    {
        const QString grund = QApplication::palette().color(QPalette::Base).name();
        const QString unmarkiert = "checked=false bold=false back=" + grund + " fore=#000000";
        const QList<int> zahlen = Buehnentest::markierte("Zahl");
        for (int zahl = 1; zahl <= 49; ++zahl)
            EXPECT_TRUE(zahlen.contains(zahl) || zustand(zelle(zahl)).endsWith(unmarkiert)) << zahl;
        return zahlen;
    }

    QColor gemalterGrund(int zahl) { return feld_->findChild<QLabel*>(zelle(zahl))->grab().toImage().pixelColor(3, 3); }

    void klickeZahlen(std::initializer_list<int> zahlen)
    {
        for (const int zahl : zahlen)
            klicke(zelle(zahl));
    }

    std::vector<int> klicks;

private:
    Tippfeld7x7View* feld_ = nullptr;
};

TEST_F(ElementTippfeld, ZeigtDieZahlenInLeserichtung)
{
    const Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::FreieEingabe);
    const QRect erste = feld.findChild<QLabel*>(zelle(1))->geometry();
    const QPoint schritt = feld.findChild<QLabel*>(zelle(9))->pos() - erste.topLeft();
    for (int zahl = 1; zahl <= 49; ++zahl) {
        const QPoint stelle((zahl - 1) % 7 * schritt.x(), (zahl - 1) / 7 * schritt.y());
        EXPECT_EQ(feld.findChild<QLabel*>(zelle(zahl))->pos(), erste.topLeft() + stelle) << zahl;
        EXPECT_EQ(lies(zelle(zahl)).toInt(), zahl);
    }
    EXPECT_THAT(markierte(), IsEmpty());
}

TEST_F(ElementTippfeld, MarkiertInCyanMitFetterRoterSchriftUndNimmtDieMarkeZurueck)
{
    zeige(Tippfeld7x7View::Art::FreieEingabe);
    const QColor vorher = gemalterGrund(17);
    klicke(zelle(17));
    EXPECT_THAT(markierte(), ElementsAre(17));
    EXPECT_EQ(gemalterGrund(17), QColor(0, 255, 255));
    klicke(zelle(17));
    EXPECT_THAT(markierte(), IsEmpty());
    EXPECT_EQ(gemalterGrund(17), vorher);
    EXPECT_EQ(vorher, QApplication::palette().color(QPalette::Base));
    EXPECT_THAT(klicks, ElementsAre(17, 17));
}

TEST_F(ElementTippfeld, DerSiebteKlickAendertNichtsUndSagtNichts)
{
    const Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::FreieEingabe);
    klickeZahlen({49, 1, 30, 7, 22, 14});
    klicke(zelle(40));
    EXPECT_THAT(markierte(), ElementsAre(1, 7, 14, 22, 30, 49));
    EXPECT_THAT(feld.modell().gewaehlte(), ElementsAre(1, 7, 14, 22, 30, 49));
    EXPECT_THAT(boxen(), IsEmpty());
}

TEST_F(ElementTippfeld, BeiSechsMarkenNimmtEinKlickAufEineMarkeSieZurueck)
{
    zeige(Tippfeld7x7View::Art::FreieEingabe);
    klickeZahlen({1, 2, 3, 4, 5, 6});
    klicke(zelle(3));
    EXPECT_THAT(markierte(), ElementsAre(1, 2, 4, 5, 6));
    klicke(zelle(49));
    EXPECT_THAT(markierte(), ElementsAre(1, 2, 4, 5, 6, 49));
}

TEST_F(ElementTippfeld, EinSchnellerZweiterKlickZaehltAuch)
{
    zeige(Tippfeld7x7View::Art::FreieEingabe);
    EXPECT_TRUE(bedienung.doppelklicke(zelle(8)).gelungen());
    EXPECT_THAT(klicks, ElementsAre(8, 8));
    EXPECT_THAT(markierte(), IsEmpty());
}

TEST_F(ElementTippfeld, DieRechteTasteMarkiertNicht)
{
    const Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::FreieEingabe);
    auto* zelle17 = feld.findChild<QLabel*>(zelle(17));
    QMouseEvent druck(QEvent::MouseButtonPress, QPointF(5, 5), zelle17->mapToGlobal(QPointF(5, 5)), Qt::RightButton,
                      Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(zelle17, &druck);
    EXPECT_THAT(markierte(), IsEmpty());
}

TEST_F(ElementTippfeld, EineVon49VerdraengtDieVorige)
{
    const Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::EineZahl);
    klickeZahlen({5, 33});
    EXPECT_THAT(markierte(), ElementsAre(33));
    klicke(zelle(33));
    EXPECT_THAT(markierte(), ElementsAre(33));
    EXPECT_THAT(feld.modell().gewaehlte(), ElementsAre(33));
    EXPECT_THAT(klicks, ElementsAre(5, 33, 33));
}

TEST_F(ElementTippfeld, EineAuswahlNimmtMehrAlsSechs)
{
    zeige(Tippfeld7x7View::Art::Auswahl);
    klickeZahlen({1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_THAT(markierte(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
    tippe("Feld", "Space Up Space");
    EXPECT_THAT(markierte(), ElementsAre(2, 3, 4, 5, 6, 7));
}

TEST_F(ElementTippfeld, WirdZurAnzeigeUndWiederZurAuswahl)
{
    Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::Auswahl);
    klicke(zelle(9));
    feld.setzeArt(Tippfeld7x7View::Art::NurAnzeige);
    klicke(zelle(10));
    EXPECT_EQ(feld.focusPolicy(), Qt::NoFocus);
    EXPECT_THAT(markierte(), ElementsAre(9));
    feld.setzeArt(Tippfeld7x7View::Art::Auswahl);
    tippe("Feld", "Right Space");
    EXPECT_THAT(markierte(), ElementsAre(9, 10));
}

TEST_F(ElementTippfeld, ZurAnzeigeNimmtEsWederKlicksNochTasten)
{
    Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::NurAnzeige);
    Tippfeld7x7 ziehung;
    ziehung.zeige(std::array<std::int32_t, 6>{3, 12, 13, 16, 23, 41});
    feld.zeige(ziehung);
    klickeZahlen({1, 3, 49});
    EXPECT_EQ(feld.focusPolicy(), Qt::NoFocus);
    EXPECT_THAT(markierte(), ElementsAre(3, 12, 13, 16, 23, 41));
    EXPECT_THAT(klicks, IsEmpty());
}

TEST_F(ElementTippfeld, EineNeueZiehungLoeschtDieAlteGanz)
{
    Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::NurAnzeige);
    Tippfeld7x7 ziehung;
    ziehung.zeige(std::array<std::int32_t, 6>{1, 2, 3, 4, 5, 6});
    feld.zeige(ziehung);
    ziehung.zeige(std::array<std::int32_t, 6>{6, 7, 8, 9, 10, 49});
    feld.zeige(ziehung);
    EXPECT_THAT(markierte(), ElementsAre(6, 7, 8, 9, 10, 49));
    feld.zeige({});
    EXPECT_THAT(markierte(), IsEmpty());
}

TEST_F(ElementTippfeld, LaesstSichMitPfeilenUndLeertasteAusfuellen)
{
    zeige(Tippfeld7x7View::Art::FreieEingabe);
    tippe("Feld", "Space Right Right Space Down Space Left Up Space");
    EXPECT_THAT(markierte(), ElementsAre(1, 2, 3, 10));
    EXPECT_THAT(klicks, ElementsAre(1, 3, 10, 2));
    tippe("Feld", "Space");
    EXPECT_THAT(markierte(), ElementsAre(1, 3, 10));
}

TEST_F(ElementTippfeld, DiePfeileVerlassenDasFeldNicht)
{
    zeige(Tippfeld7x7View::Art::EineZahl);
    tippe("Feld", "Left Up Space");
    EXPECT_THAT(markierte(), ElementsAre(1));
    klicke(zelle(49));
    tippe("Feld", "Right Down Space");
    EXPECT_THAT(markierte(), ElementsAre(49));
}

TEST_F(ElementTippfeld, DieTastaturGehtVonDerGeklicktenZahlWeiter)
{
    zeige(Tippfeld7x7View::Art::FreieEingabe);
    klicke(zelle(25));
    tippe("Feld", "Up Space");
    EXPECT_THAT(markierte(), ElementsAre(18, 25));
}

TEST_F(ElementTippfeld, UmrahmtDieZahlDerTastatur)
{
    Tippfeld7x7View& feld = zeige(Tippfeld7x7View::Art::FreieEingabe);
    const QImage ohne = feld.grab().toImage();
    feld.window()->activateWindow();
    feld.setFocus();
    QCoreApplication::processEvents();
    ASSERT_TRUE(feld.hasFocus());
    const QImage auf1 = feld.grab().toImage();
    EXPECT_NE(auf1, ohne);
    tippe("Feld", "Right");
    EXPECT_NE(feld.grab().toImage(), auf1);
}

} // namespace
