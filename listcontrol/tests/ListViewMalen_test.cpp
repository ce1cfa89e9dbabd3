// What the list shows.

#include "listcontrol/tests/ListViewTest.h"

namespace {

using testing::ElementsAre;

class ListViewMalen : public ListViewTest {
protected:
    QImage bild() { return liste->viewport()->grab().toImage(); }

    /// The colour in the lower left corner of a cell, where no text is.
    QColor grund(int zeile, int x) { return bild().pixelColor(x + 1, liste->zeilenrechteck(zeile).bottom() - 1); }

    /// How many pixels of a rectangle have another colour than its corner.
    int beschrieben(const QRect& rechteck)
    {
        const QImage ganzes = bild();
        int anzahl = 0;
        for (int y = rechteck.top(); y <= rechteck.bottom(); ++y)
            for (int x = rechteck.left(); x <= rechteck.right(); ++x)
                anzahl += ganzes.pixel(x, y) != ganzes.pixel(rechteck.topLeft()) ? 1 : 0;
        return anzahl;
    }

    int hoechsteGemalte() const { return faerber.gefragt.empty() ? -1 : faerber.gefragt.rbegin()->first.first; }
};

TEST_F(ListViewMalen, OhneZeilenIstAllesHintergrund)
{
    legeSpaltenAn();
    liste->setBackColor(Qt::yellow);
    zeige();
    EXPECT_EQ(beschrieben(liste->viewport()->rect()), 0);
    EXPECT_EQ(bild().pixelColor(10, 10), QColor(Qt::yellow));
    EXPECT_TRUE(kopf()->isVisible());
}

TEST_F(ListViewMalen, DerKopfStehtUeberDenZeilen)
{
    legeSpaltenAn();
    zeige();
    EXPECT_EQ(kopf()->geometry().bottom() + 1, liste->viewport()->geometry().top());
    EXPECT_EQ(kopf()->width(), liste->viewport()->width());
    const int hoehe = liste->viewport()->height();
    const int kopfhoehe = kopf()->height();
    liste->setColumnsVisible(false);
    EXPECT_FALSE(kopf()->isVisible());
    EXPECT_EQ(liste->viewport()->height(), hoehe + kopfhoehe);
    liste->setColumnsVisible(true);
    EXPECT_TRUE(kopf()->isVisible());
    EXPECT_EQ(liste->viewport()->height(), hoehe);
}

TEST_F(ListViewMalen, MarkenImTextSindNichtZuSehen)
{
    for (const TextAlign ausrichtung : {TextAlign::Left, TextAlign::Center, TextAlign::Right}) {
        EXPECT_EQ(Zellmaler::anzeige("17\n\x1D", ausrichtung), "17");
        EXPECT_EQ(Zellmaler::anzeige("\n", ausrichtung), "");
    }
    EXPECT_EQ(Zellmaler::anzeige("\n17\x1D", TextAlign::Center), "17");
    EXPECT_EQ(Zellmaler::anzeige("oben\x1Dunten", TextAlign::Left), "oben unten");
}

TEST_F(ListViewMalen, HoltEineSpalteInsBild)
{
    legeSpaltenAn();
    liste->AddColumn("weit", "Weit", TextAlign::Left, 400);
    liste->AddColumn("rechts", "Rechts", TextAlign::Left, 50);
    fuelle(3);
    zeige();
    const QScrollBar* leiste = liste->horizontalScrollBar();
    liste->zeigeSpalte(2);
    EXPECT_EQ(leiste->value(), 0);
    liste->zeigeSpalte(6);
    EXPECT_EQ(leiste->value(), 182 + 400 + 50 - liste->viewport()->width());
    liste->zeigeSpalte(0);
    EXPECT_EQ(leiste->value(), 0);
    liste->zeigeSpalte(5); // wider than the list: its left edge
    EXPECT_EQ(leiste->value(), 182);
    liste->setColumnVisible(4, false);
    liste->gleicheAb();
    const int vorher = leiste->value();
    liste->zeigeSpalte(4);
    EXPECT_EQ(leiste->value(), vorher);
}

TEST_F(ListViewMalen, WuenschtSichSoVieleZeilenWieVerlangt)
{
    legeSpaltenAn();
    const int achtZeilen = liste->sizeHint().height();
    liste->setzeSichtbar(20);
    EXPECT_EQ(liste->sizeHint().height(), achtZeilen + 12 * liste->ItemHeight());
    EXPECT_LT(liste->minimumSizeHint().height(), achtZeilen);
}

TEST_F(ListViewMalen, MaltNurSichtbareZeilenUndSpalten)
{
    legeSpaltenAn();
    liste->AddColumn("weit", "Weit", TextAlign::Left, 2000);
    liste->AddColumn("draussen", "Draussen", TextAlign::Left, 50);
    fuelle(1000);
    liste->setDrawCallback(&faerber);
    zeige();
    const int seite = liste->viewport()->height() / liste->ItemHeight();
    EXPECT_GE(hoechsteGemalte(), seite - 1);
    EXPECT_LE(hoechsteGemalte(), seite);
    EXPECT_TRUE(faerber.gefragt.contains({0, 5}));
    EXPECT_FALSE(faerber.gefragt.contains({0, 6}));
}

TEST_F(ListViewMalen, NimmtDieFarbenDesRueckrufs)
{
    legeSpaltenAn();
    fuelle(3);
    liste->setDrawCallback(&faerber);
    zeige();
    EXPECT_EQ(grund(0, 62), QColor(128, 255, 255));
    EXPECT_EQ(grund(1, 59), QColor(192, 192, 192));
    const std::vector<Zellfarben> farben = liste->zellfarben(1);
    ASSERT_EQ(farben.size(), 5U);
    EXPECT_EQ(farben[0].grund, QColor(128, 255, 255));
    EXPECT_EQ(farben[0].schrift, QColor(255, 0, 0));
    EXPECT_EQ(farben[1].grund, QColor(192, 192, 192));
    EXPECT_EQ(farben[1].schrift, liste->ForeColor());
}

TEST_F(ListViewMalen, OhneHandledBleibenDieVorgegebenenFarben)
{
    legeSpaltenAn();
    fuelle(3);
    faerber.behandelt = false;
    liste->setDrawCallback(&faerber);
    zeige();
    EXPECT_FALSE(faerber.gefragt.empty());
    EXPECT_EQ(grund(0, 62), liste->BackColor());
    EXPECT_EQ(liste->zellfarben(0)[0].grund, liste->BackColor());
    EXPECT_EQ(liste->zellfarben(0)[0].schrift, liste->ForeColor());
}

class FehlerhafterFaerber final : public ICustomDraw {
public:
    explicit FehlerhafterFaerber(const ListView& liste) : liste_(liste) {}

    void CustomDraw(int, int, Farbe& backColor, Farbe&, bool& handled) override
    {
        handled = true;
        backColor = {};
        (void)liste_.ItemText(999, 0);
    }

private:
    const ListView& liste_;
};

TEST_F(ListViewMalen, EinFehlerDesRueckrufsLaesstDieVorgegebenenFarben)
{
    legeSpaltenAn();
    fuelle(3);
    FehlerhafterFaerber fehlerhafter(*liste);
    liste->setDrawCallback(&fehlerhafter);
    zeige();
    EXPECT_EQ(grund(0, 62), liste->BackColor());
    EXPECT_EQ(liste->zellfarben(0)[0].grund, liste->BackColor());
}

TEST_F(ListViewMalen, DerRueckrufBekommtDieFarbenDerAuswahl)
{
    legeSpaltenAn();
    fuelle(2);
    liste->setDrawCallback(&faerber);
    liste->setSelectedItem(1);
    liste->setSelectedBackColor(QColor(1, 2, 3));
    liste->setSelectedForeColor(QColor(4, 5, 6));
    (void)liste->zellfarben(1);
    EXPECT_EQ(faerber.vorher, std::make_pair(Farbe{1, 2, 3}, Farbe{4, 5, 6}));
    (void)liste->zellfarben(0);
    EXPECT_NE(faerber.vorher.first, (Farbe{1, 2, 3}));
    liste->setEnabled(false);
    (void)liste->zellfarben(1);
    EXPECT_NE(faerber.vorher.first, (Farbe{1, 2, 3}));
}

TEST_F(ListViewMalen, OhneRueckrufGeltenDieEigenenFarben)
{
    legeSpaltenAn();
    fuelle(2);
    liste->setSelectedItem(1);
    zeige();
    EXPECT_EQ(grund(0, 62), liste->BackColor());
    EXPECT_EQ(grund(1, 62), liste->SelectedBackColor());
    EXPECT_EQ(liste->zellfarben(1)[4].schrift, liste->SelectedForeColor());
}

TEST_F(ListViewMalen, RedrawHaeltMalenUndRollbalkenAn)
{
    legeSpaltenAn();
    liste->setDrawCallback(&faerber);
    zeige();
    warteAufsMalen();
    liste->setRedraw(false);
    EXPECT_FALSE(liste->Redraw());
    fuelle(500);
    liste->setSelectedItem(3);
    warteAufsMalen();
    EXPECT_TRUE(faerber.gefragt.empty());
    EXPECT_EQ(liste->verticalScrollBar()->maximum(), 0);
    liste->setRedraw(true);
    EXPECT_GT(liste->verticalScrollBar()->maximum(), 400);
    warteAufsMalen();
    EXPECT_EQ((faerber.gefragt[{0, 0}]), 1);
    EXPECT_EQ((faerber.gefragt[{5, 4}]), 1);
}

TEST_F(ListViewMalen, RefreshMaltSofort)
{
    legeSpaltenAn();
    fuelle(5);
    zeige();
    liste->setDrawCallback(&faerber);
    liste->Refresh();
    EXPECT_TRUE(faerber.gefragt.contains({4, 4}));
    faerber.gefragt.clear();
    liste->setRedraw(false);
    liste->Refresh();
    EXPECT_TRUE(faerber.gefragt.empty());
}

TEST_F(ListViewMalen, VieleAenderungenMalenEinMal)
{
    legeSpaltenAn();
    fuelle(5);
    zeige();
    liste->setDrawCallback(&faerber);
    warteAufsMalen();
    faerber.gefragt.clear();
    for (int i = 0; i < 100; ++i)
        liste->setItemText(i % 5, 2, std::to_string(i));
    warteAufsMalen();
    EXPECT_EQ((faerber.gefragt[{0, 0}]), 1);
}

TEST_F(ListViewMalen, EineGeaenderteZelleZeigtSich)
{
    legeSpaltenAn();
    liste->AddItem("");
    zeige();
    const QRect zelle(62, 1, 38, liste->ItemHeight() - 2);
    EXPECT_EQ(beschrieben(zelle), 0);
    liste->setItemText(0, 2, "49");
    QApplication::processEvents();
    EXPECT_GT(beschrieben(zelle), 20);
}

TEST_F(ListViewMalen, EinTextBleibtInSeinerZelle)
{
    legeSpaltenAn();
    liste->AddItem("");
    liste->setItemText(0, 2, "ein Text, der viel zu lang ist");
    zeige();
    EXPECT_GT(beschrieben({62, 1, 38, liste->ItemHeight() - 2}), 0);
    EXPECT_EQ(beschrieben({1, 1, 58, liste->ItemHeight() - 2}), 0);
    EXPECT_EQ(beschrieben({103, 1, 78, liste->ItemHeight() - 2}), 0);
}

TEST_F(ListViewMalen, MarkenAusLeerzeichenVerschiebenDieZahlNicht)
{
    legeSpaltenAn();
    for (const char* text : {"07", "07 ", " 07", " 07 "})
        liste->setItemText(liste->AddItem(""), 2, text);
    zeige();
    const QImage ganzes = bild();
    const int hoehe = liste->ItemHeight();
    for (int zeile = 1; zeile < 4; ++zeile)
        EXPECT_EQ(ganzes.copy(61, zeile * hoehe, 40, hoehe), ganzes.copy(61, 0, 40, hoehe)) << zeile;
}

TEST_F(ListViewMalen, RichtetNachDerSpalteAus)
{
    legeSpaltenAn();
    liste->AddItem("1");
    liste->setItemText(0, 2, "1");
    liste->setItemText(0, 4, "1");
    zeige();
    const int hoehe = liste->ItemHeight();
    EXPECT_EQ(beschrieben({0, 0, 40, hoehe}), 0);
    EXPECT_GT(beschrieben({40, 0, 15, hoehe}), 0);
    EXPECT_GT(beschrieben({74, 0, 14, hoehe}), 0);
    EXPECT_EQ(beschrieben({89, 0, 11, hoehe}), 0);
    EXPECT_GT(beschrieben({102, 0, 14, hoehe}), 0);
    EXPECT_EQ(beschrieben({116, 0, 60, hoehe}), 0);
}

TEST_F(ListViewMalen, DieZeilenhoeheFolgtSchriftRaendernUndBild)
{
    legeSpaltenAn();
    const int schrift = QFontMetrics(liste->Font()).height();
    EXPECT_EQ(liste->ItemHeight(), schrift + 8);
    liste->setItemPaddingTop(1);
    liste->setItemPaddingBottom(0);
    EXPECT_EQ(liste->ItemHeight(), schrift + 1);
    liste->setPictureHeight(60);
    EXPECT_EQ(liste->ItemHeight(), 60);
    liste->setPictureHeight(16);
    QFont gross = liste->Font();
    gross.setPointSize(24);
    liste->setFont(gross);
    EXPECT_EQ(liste->ItemHeight(), QFontMetrics(gross).height() + 1);
}

TEST_F(ListViewMalen, ItemsAutoSizeFuelltDieHoeheMitGanzenZeilen)
{
    legeSpaltenAn();
    fuelle(100);
    zeige();
    const int vorher = liste->ItemHeight();
    const int ganze = liste->viewport()->height() / vorher;
    liste->setItemsAutoSize(true);
    EXPECT_GE(liste->ItemHeight(), vorher);
    EXPECT_EQ(liste->viewport()->height() / liste->ItemHeight(), ganze);
    EXPECT_LT(liste->viewport()->height() - ganze * liste->ItemHeight(), ganze);
}

TEST_F(ListViewMalen, ColumnsAutoSizeFuelltDieBreite)
{
    legeSpaltenAn();
    zeige();
    liste->setColumnsAutoSize(true);
    const int breite = liste->viewport()->width();
    EXPECT_EQ(liste->ColumnFromPoint(breite - 1, 50), 4);
    EXPECT_EQ(liste->ColumnWidth(4), 80);
    liste->resize(600, 300);
    EXPECT_EQ(liste->ColumnFromPoint(breite + 150, 50), 4);
    EXPECT_EQ(liste->horizontalScrollBar()->maximum(), 0);
}

TEST_F(ListViewMalen, VerborgeneSpaltenNehmenKeinenPlatz)
{
    legeSpaltenAn();
    fuelle(1);
    liste->setDrawCallback(&faerber);
    liste->setColumnVisible(2, false);
    zeige();
    EXPECT_FALSE(faerber.gefragt.contains({0, 2}));
    EXPECT_EQ(liste->ColumnFromPoint(70 + liste->frameWidth(), 50), 4);
    EXPECT_EQ(liste->zellfarben(0).size(), 5U);
}

TEST_F(ListViewMalen, DerFokusrahmenZeigtSichNurMitFokus)
{
    legeSpaltenAn();
    fuelle(3);
    liste->setSelectedItem(1);
    liste->setFocusRectColor(Qt::red);
    zeige();
    const QPoint oben = liste->zeilenrechteck(1).topLeft() + QPoint(20, 0);
    liste->clearFocus();
    EXPECT_NE(bild().pixelColor(oben), QColor(Qt::red));
    fenster.activateWindow();
    liste->setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(liste->hasFocus());
    EXPECT_EQ(bild().pixelColor(oben), QColor(Qt::red));
    EXPECT_EQ(bild().pixelColor(oben + QPoint(0, 1)), QColor(Qt::red));
    EXPECT_NE(bild().pixelColor(oben + QPoint(0, 2)), QColor(Qt::red));
    liste->setSolidFocusRect(false);
    EXPECT_NE(bild().pixelColor(oben), QColor(Qt::red));
}

TEST_F(ListViewMalen, KaestchenUndBilderStehenVorDemText)
{
    legeSpaltenAn();
    liste->AddItem("");
    zeige();
    const QRect links(1, 1, 55, liste->ItemHeight() - 2);
    EXPECT_EQ(beschrieben(links), 0);
    liste->setCheckboxes(true);
    const int leer = beschrieben(links);
    EXPECT_GT(leer, 30);
    liste->setItemChecked(0, true);
    const int angekreuzt = beschrieben(links);
    EXPECT_GT(angekreuzt, leer);
    QPixmap rot(16, 16);
    rot.fill(Qt::red);
    liste->setItemPicture(0, liste->AddPicture(rot));
    EXPECT_EQ(beschrieben(links), angekreuzt + 16 * 16);
    liste->setPicturesVisible(false);
    EXPECT_EQ(beschrieben(links), angekreuzt);
}

TEST_F(ListViewMalen, BorderStyleNimmtDenRahmenWeg)
{
    zeige();
    EXPECT_GT(liste->frameWidth(), 0);
    liste->setBorderStyle(0);
    EXPECT_EQ(liste->frameWidth(), 0);
    EXPECT_EQ(liste->BorderStyle(), 0);
    EXPECT_EQ(liste->viewport()->geometry(), QRect(0, kopf()->height(), 400, 300 - kopf()->height()));
    liste->setBorderStyle(1);
    EXPECT_GT(liste->frameWidth(), 0);
}

TEST_F(ListViewMalen, PunkteFuehrenZuZeileUndSpalte)
{
    legeSpaltenAn();
    fuelle(2);
    zeige();
    const QPoint oben = liste->viewport()->pos();
    EXPECT_EQ(liste->RowFromPoint(oben.x() + 5, oben.y()), 0);
    EXPECT_EQ(liste->RowFromPoint(oben.x() + 5, oben.y() + liste->ItemHeight()), 1);
    EXPECT_EQ(liste->RowFromPoint(oben.x() + 5, oben.y() + 2 * liste->ItemHeight()), -1);
    EXPECT_EQ(liste->RowFromPoint(oben.x() + 5, oben.y() - 1), -1);
    EXPECT_EQ(liste->ColumnFromPoint(oben.x(), oben.y()), 0);
    EXPECT_EQ(liste->ColumnFromPoint(oben.x() + 61, oben.y() - 3), 2);
    EXPECT_EQ(liste->ColumnFromPoint(oben.x() + 182, oben.y()), -1);
    EXPECT_EQ(liste->ColumnFromPoint(-5, oben.y()), -1);
    liste->resize(120, 300);
    QApplication::processEvents();
    liste->horizontalScrollBar()->setValue(40);
    EXPECT_EQ(liste->ColumnFromPoint(oben.x() + 21, oben.y()), 2);
}

TEST_F(ListViewMalen, RolltEineZeileInSicht)
{
    legeSpaltenAn();
    fuelle(200);
    zeige();
    liste->MakeSureVisible(150);
    EXPECT_TRUE(liste->viewport()->rect().contains(liste->zeilenrechteck(150)));
    liste->MakeSureVisible(150);
    const int oberste = liste->obersteZeile();
    liste->MakeSureVisible(149);
    EXPECT_EQ(liste->obersteZeile(), oberste);
    liste->MakeSureVisible(0);
    EXPECT_EQ(liste->obersteZeile(), 0);
}

TEST_F(ListViewMalen, WaehrendRedrawAusIstMerktSieSichWohinZuRollenIst)
{
    legeSpaltenAn();
    zeige();
    liste->setRedraw(false);
    fuelle(200);
    liste->MakeSureVisible(150);
    EXPECT_EQ(liste->obersteZeile(), 0);
    liste->setRedraw(true);
    EXPECT_TRUE(liste->viewport()->rect().contains(liste->zeilenrechteck(150)));
}

TEST_F(ListViewMalen, NachDemLeerenBeginntSieOben)
{
    legeSpaltenAn();
    fuelle(200);
    zeige();
    liste->MakeSureVisible(150);
    liste->setRedraw(false);
    liste->Clear();
    fuelle(300);
    liste->setRedraw(true);
    EXPECT_EQ(liste->obersteZeile(), 0);
}

TEST_F(ListViewMalen, DerKopfRolltMitDenSpalten)
{
    legeSpaltenAn();
    fuelle(1);
    liste->resize(120, 300);
    zeige();
    const QImage vorher = kopf()->grab().toImage();
    liste->horizontalScrollBar()->setValue(30);
    EXPECT_EQ(kopf()->grab().toImage().copy(5, 0, 30, 20), vorher.copy(35, 0, 30, 20));
}

} // namespace
