// What a user does with the list: mouse and keys.

#include "listcontrol/tests/ListViewTest.h"

#include <QHelpEvent>
#include <QMimeData>
#include <QToolTip>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListViewBedienung : public ListViewTest {
protected:
    void SetUp() override
    {
        legeSpaltenAn();
        fuelle(100);
        zeige();
        liste->beiAuswahl = [this] { ++auswahlen; };
    }

    /// The order of the columns as the user sees it.
    std::vector<int> folge() const
    {
        std::vector<int> spalten;
        for (int x = liste->frameWidth(); x < liste->width(); ++x) {
            const int gesehene = liste->ColumnFromPoint(x, 5);
            if (gesehene >= 0 && (spalten.empty() || spalten.back() != gesehene))
                spalten.push_back(gesehene);
        }
        return spalten;
    }

    int auswahlen = 0;
};

// --- Rows

TEST_F(ListViewBedienung, EinKlickWaehltEineZeile)
{
    klicke(2);
    klicke(4);
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
    EXPECT_EQ(liste->SelectedItem(), 4);
    EXPECT_EQ(auswahlen, 2);
}

TEST_F(ListViewBedienung, StrgSchaltetUmUmschaltWaehltVomAnkerAn)
{
    klicke(1);
    klicke(5, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 5));
    klicke(5, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    klicke(7, Qt::ShiftModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(5, 6, 7));
}

TEST_F(ListViewBedienung, OhneMehrfachauswahlZaehltNurDerLetzteKlick)
{
    liste->setMultiSelect(false);
    klicke(1);
    klicke(5, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(5));
    Eingabe::tippe(liste, "Ctrl+A");
    EXPECT_THAT(gewaehlte(), ElementsAre(5));
}

TEST_F(ListViewBedienung, EinKlickUnterDieZeilenAendertNichts)
{
    liste->Clear();
    fuelle(2);
    QApplication::processEvents();
    klicke(1);
    Eingabe::klicke(liste->viewport(), {10, 2 * liste->ItemHeight() + 5});
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
}

TEST_F(ListViewBedienung, EinDoppelklickMeldetDieZeile)
{
    int zeile = -1;
    liste->beiDoppelklick = [&](int geklickte) { zeile = geklickte; };
    Eingabe::doppelklicke(liste->viewport(), ort(3));
    EXPECT_EQ(zeile, 3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
    klicke(5);
    Eingabe::tippe(liste, "Return");
    EXPECT_EQ(zeile, 5);
}

TEST_F(ListViewBedienung, DieTastenBewegenDieZeile)
{
    klicke(0);
    Eingabe::tippe(liste, "Down Down");
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
    Eingabe::tippe(liste, "Up");
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    Eingabe::tippe(liste, "End");
    EXPECT_THAT(gewaehlte(), ElementsAre(99));
    EXPECT_TRUE(liste->viewport()->rect().contains(liste->zeilenrechteck(99)));
    Eingabe::tippe(liste, "PgUp");
    const int seite = liste->viewport()->height() / liste->ItemHeight();
    EXPECT_THAT(gewaehlte(), ElementsAre(99 - seite));
    Eingabe::tippe(liste, "Home");
    EXPECT_THAT(gewaehlte(), ElementsAre(0));
    Eingabe::tippe(liste, "PgDown");
    EXPECT_THAT(gewaehlte(), ElementsAre(seite));
}

TEST_F(ListViewBedienung, UmschaltMitTastenWaehltEinenBereich)
{
    klicke(3);
    Eingabe::tippe(liste, "Shift+Down Shift+Down");
    EXPECT_THAT(gewaehlte(), ElementsAre(3, 4, 5));
    Eingabe::tippe(liste, "Shift+Up");
    EXPECT_THAT(gewaehlte(), ElementsAre(3, 4));
}

TEST_F(ListViewBedienung, StrgAWaehltAlles)
{
    Eingabe::tippe(liste, "Ctrl+A");
    EXPECT_EQ(gewaehlte().size(), 100U);
    EXPECT_EQ(auswahlen, 1);
}

TEST_F(ListViewBedienung, JedeTasteWirdGemeldetBevorSieWirkt)
{
    klicke(0);
    std::vector<std::pair<int, int>> tasten;
    liste->beiTaste = [&](int taste) { tasten.emplace_back(taste, liste->SelectedItem()); };
    Eingabe::tippe(liste, "Down Del");
    EXPECT_THAT(tasten, ElementsAre(std::pair(int(Qt::Key_Down), 0), std::pair(int(Qt::Key_Delete), 1)));
}

TEST_F(ListViewBedienung, EinKlickInsKaestchenSchaltetNurDasHaekchen)
{
    liste->setCheckboxes(true);
    klicke(0);
    const QPoint kaestchen = ort(2, liste->ItemPaddingLeft() + 6);
    Eingabe::klicke(liste->viewport(), kaestchen);
    EXPECT_TRUE(liste->ItemChecked(2));
    EXPECT_THAT(gewaehlte(), ElementsAre(0));
    Eingabe::doppelklicke(liste->viewport(), kaestchen);
    EXPECT_TRUE(liste->ItemChecked(2));
    Eingabe::klicke(liste->viewport(), kaestchen);
    EXPECT_FALSE(liste->ItemChecked(2));
}

TEST_F(ListViewBedienung, ZiehenAusDemKaestchenWaehltNichts)
{
    liste->setCheckboxes(true);
    klicke(0);
    const QPoint kaestchen = ort(2, liste->ItemPaddingLeft() + 6);
    Eingabe::druecke(liste->viewport(), kaestchen);
    QMouseEvent ereignis(QEvent::MouseMove, kaestchen, liste->viewport()->mapToGlobal(kaestchen), Qt::NoButton,
                         Qt::LeftButton, {});
    QApplication::sendEvent(liste->viewport(), &ereignis);
    Eingabe::lasseLos(liste->viewport(), kaestchen);
    EXPECT_THAT(gewaehlte(), ElementsAre(0));
}

TEST_F(ListViewBedienung, DieLeertasteSchaltetDasHaekchen)
{
    klicke(1);
    Eingabe::tippe(liste, "Space");
    EXPECT_FALSE(liste->ItemChecked(1));
    liste->setCheckboxes(true);
    Eingabe::tippe(liste, "Space");
    EXPECT_TRUE(liste->ItemChecked(1));
}

TEST_F(ListViewBedienung, AbgelegtesMeldetDieZeile)
{
    std::pair<QString, int> gemeldet;
    liste->beiAblegen = [&](const QMimeData& daten, int zeile) { gemeldet = {daten.text(), zeile}; };
    EXPECT_EQ(liste->OLEDropMode(), 0);
    EXPECT_FALSE(liste->viewport()->acceptDrops());
    liste->setOLEDropMode(1);
    EXPECT_TRUE(liste->viewport()->acceptDrops());
    QMimeData daten;
    daten.setText("49");
    QDragEnterEvent herein(ort(2), Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(liste->viewport(), &herein);
    EXPECT_TRUE(herein.isAccepted());
    QDropEvent ereignis(ort(2), Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(liste->viewport(), &ereignis);
    EXPECT_EQ(gemeldet, std::pair(QString("49"), 2));
}

TEST_F(ListViewBedienung, EinAbgeschnittenerTextStehtImHinweis)
{
    liste->setItemText(1, 4, "3-er\nmit Superzahl und mehr");
    const auto hinweisBei = [this](QPoint stelle) {
        QHelpEvent ereignis(QEvent::ToolTip, stelle, liste->viewport()->mapToGlobal(stelle));
        QApplication::sendEvent(liste->viewport(), &ereignis);
        return QToolTip::text();
    };
    EXPECT_EQ(hinweisBei(ort(0, 120)), "");
    EXPECT_EQ(hinweisBei(ort(1, 300)), "");
    EXPECT_EQ(hinweisBei(ort(1, 120)), "3-er<br>mit Superzahl und mehr");
}

// --- Header

TEST_F(ListViewBedienung, EinKlickAufDenKopfSortiertUndKehrtDannUm)
{
    std::vector<std::string> nachKlick;
    liste->beiSpaltenklick = [&](int spalte) {
        nachKlick.push_back(std::to_string(spalte) + ":" + liste->ItemText(0, 4));
    };
    Eingabe::klicke(kopf(), kopfort(140));
    Eingabe::klicke(kopf(), kopfort(140));
    Eingabe::klicke(kopf(), kopfort(140));
    EXPECT_THAT(nachKlick, ElementsAre("4:9900", "4:9999", "4:9900"));
}

TEST_F(ListViewBedienung, JedeSpalteMerktSichIhreRichtung)
{
    Eingabe::klicke(kopf(), kopfort(140));
    Eingabe::klicke(kopf(), kopfort(30));
    EXPECT_EQ(liste->ItemText(0, 0), "0000");
    Eingabe::klicke(kopf(), kopfort(140));
    EXPECT_EQ(liste->ItemText(0, 4), "9999");
}

TEST_F(ListViewBedienung, NachDemLeerenSortiertDerErsteKlickWiederAufsteigend)
{
    Eingabe::klicke(kopf(), kopfort(140));
    liste->Clear();
    fuelle(3);
    Eingabe::klicke(kopf(), kopfort(140));
    EXPECT_EQ(liste->ItemText(0, 4), "9997");
}

TEST_F(ListViewBedienung, OhneSortableGeschiehtNichts)
{
    int klicks = 0;
    liste->beiSpaltenklick = [&](int) { ++klicks; };
    liste->setSortable(false);
    Eingabe::klicke(kopf(), kopfort(140));
    EXPECT_EQ(liste->ItemText(0, 4), "9999");
    EXPECT_EQ(klicks, 0);
}

TEST_F(ListViewBedienung, LoslassenNebenDemKopffeldSortiertNicht)
{
    liste->setReorder(false);
    ziehe(140, 30);
    EXPECT_EQ(liste->ItemText(0, 4), "9999");
    EXPECT_THAT(folge(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(ListViewBedienung, EinGedruecktesKopffeldSiehtAndersAus)
{
    const QImage vorher = kopf()->grab().toImage();
    Eingabe::druecke(kopf(), kopfort(140));
    EXPECT_NE(kopf()->grab().toImage(), vorher);
    Eingabe::lasseLos(kopf(), kopfort(140));
    EXPECT_NE(kopf()->grab().toImage(), vorher) << "the arrow of the sorted column is missing";
    liste->Clear();
    EXPECT_EQ(kopf()->grab().toImage(), vorher);
}

TEST_F(ListViewBedienung, ZiehenStelltEineSpalteUmUndDieIndizesBleiben)
{
    ziehe(30, 175);
    EXPECT_THAT(folge(), ElementsAre(2, 1, 4, 3, 0));
    EXPECT_EQ(liste->ItemText(7, 0), "0007");
    EXPECT_EQ(liste->ColumnIndex("a"), 0);
    EXPECT_EQ(liste->zeilentext(7).section('\t', 0, 0), "0007");
    EXPECT_EQ(liste->ItemText(0, 4), "9999");
}

TEST_F(ListViewBedienung, OhneReorderBleibtDieFolge)
{
    liste->setReorder(false);
    ziehe(30, 175);
    EXPECT_THAT(folge(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(ListViewBedienung, EinKleinesZitternIstEinKlick)
{
    ziehe(140, 142);
    EXPECT_EQ(liste->ItemText(0, 4), "9900");
    EXPECT_THAT(folge(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(ListViewBedienung, ZiehenAmTeilerAendertDieBreite)
{
    ziehe(60, 90);
    EXPECT_EQ(liste->ColumnWidth(0), 90);
    ziehe(90, -300);
    EXPECT_GT(liste->ColumnWidth(0), 0);
    EXPECT_LT(liste->ColumnWidth(0), 10);
    EXPECT_EQ(liste->ItemText(0, 0), "0000");
}

TEST_F(ListViewBedienung, EineFesteSpalteLaesstSichNichtZiehen)
{
    liste->setColumnResizable(2, false);
    liste->setReorder(false);
    ziehe(101, 150);
    EXPECT_EQ(liste->ColumnWidth(2), 40);
}

TEST_F(ListViewBedienung, DerZeigerZeigtDenTeiler)
{
    Eingabe::ueberfahre(kopf(), kopfort(60));
    EXPECT_EQ(kopf()->cursor().shape(), Qt::SplitHCursor);
    Eingabe::ueberfahre(kopf(), kopfort(30));
    EXPECT_EQ(kopf()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ListViewBedienung, EinDoppelklickAufDenTeilerPasstDieBreiteAn)
{
    const int zeichen = QFontMetrics(liste->Font()).horizontalAdvance("0123456789");
    liste->setItemText(60, 2, "0123456789");
    Eingabe::doppelklicke(kopf(), kopfort(101));
    EXPECT_NEAR(liste->ColumnWidth(2), zeichen + liste->ItemPaddingLeft() + liste->ItemPaddingRight(), 1);
    EXPECT_EQ(liste->ColumnWidth(2), liste->breiteFuerZeichen(10));
    EXPECT_EQ(liste->ItemText(0, 0), "0000");
}

TEST_F(ListViewBedienung, EineSpalteMitEigenerBreiteNimmtKeinenUeberschuss)
{
    liste->setColumnsAutoSize(true);
    const int ende = liste->viewport()->width();
    ziehe(ende - 1, ende - 41);
    const int breite = liste->ColumnWidth(4);
    liste->resize(600, 300);
    QApplication::processEvents();
    const int rechts = liste->viewport()->x() + liste->viewport()->width();
    EXPECT_EQ(liste->ColumnFromPoint(rechts - breite, 5), 4);
    EXPECT_NE(liste->ColumnFromPoint(rechts - breite - 1, 5), 4);
}

TEST_F(ListViewBedienung, DieUhrRolltMitDerGezogenenSpalte)
{
    liste->resize(120, 300);
    QApplication::processEvents();
    ASSERT_GT(liste->horizontalScrollBar()->maximum(), 30);
    Eingabe::druecke(kopf(), kopfort(30));
    ziehe(kopf()->width() + 25);
    EXPECT_TRUE(uhr()->isActive());
    QMetaObject::invokeMethod(uhr(), "timeout", Qt::DirectConnection);
    EXPECT_EQ(liste->horizontalScrollBar()->value(), 25);
    ziehe(kopf()->width() / 2);
    QMetaObject::invokeMethod(uhr(), "timeout", Qt::DirectConnection);
    EXPECT_EQ(liste->horizontalScrollBar()->value(), 25);
    ziehe(-10);
    QMetaObject::invokeMethod(uhr(), "timeout", Qt::DirectConnection);
    EXPECT_EQ(liste->horizontalScrollBar()->value(), 15);
    Eingabe::lasseLos(kopf(), kopfort(20));
    EXPECT_FALSE(uhr()->isActive());
}

TEST_F(ListViewBedienung, EntfernteSpaltenLassenSichNichtWeiterziehen)
{
    Eingabe::druecke(kopf(), kopfort(140));
    liste->Clear();
    liste->RemoveColumn(4);
    ziehe(20);
    Eingabe::lasseLos(kopf(), kopfort(20));
    EXPECT_EQ(liste->ColumnCount(), 4);
}

TEST_F(ListViewBedienung, GesperrtNimmtSieNichtsAn)
{
    liste->setEnabled(false);
    klicke(2);
    Eingabe::klicke(kopf(), kopfort(140));
    EXPECT_THAT(gewaehlte(), IsEmpty());
    EXPECT_EQ(liste->ItemText(0, 4), "9999");
}

TEST_F(ListViewBedienung, KopiertWasZuSehenIstInDerReihenfolgeDerSpalten)
{
    liste->setItemText(1, 2, " 17 ");
    EXPECT_EQ(liste->kopierzeile(1), "0001\t 17 \t9998");
    liste->setItemText(1, 4, "oben\nunten");
    EXPECT_EQ(liste->kopierzeile(1), "0001\t 17 \toben unten");
    liste->setColumnVisible(2, false);
    EXPECT_EQ(liste->kopierzeile(1), "0001\toben unten");
    EXPECT_EQ(liste->zeilentext(1), "0001\t\t 17 \t\toben\nunten");
}

TEST_F(ListViewBedienung, KopiertDieMarkenDerZellenNicht)
{
    liste->setItemText(1, 2, "\n17");
    liste->setItemText(1, 4, "17\n\x1D");
    EXPECT_EQ(liste->kopierzeile(1), "0001\t17\t17");
    liste->setItemText(1, 4, "\n");
    EXPECT_EQ(liste->kopierzeile(1), "0001\t17\t");
}

TEST_F(ListViewBedienung, EineGetippteNummerWaehltIhreZeile)
{
    Eingabe::tippe(liste, "67");
    EXPECT_THAT(gewaehlte(), ElementsAre(67));
    EXPECT_TRUE(liste->viewport()->rect().contains(liste->zeilenrechteck(67).center()));
}

} // namespace
