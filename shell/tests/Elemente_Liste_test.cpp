#include "shell/logic/Format.h"
#include "shell/tests/ElementListe.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kMillionen = 5'000'000;

bool istEinfarbig(const QImage& bild, const QRect& bereich)
{
    const QRect innen = bereich.intersected(bild.rect());
    for (int y = innen.top(); y <= innen.bottom(); ++y) {
        for (int x = innen.left(); x <= innen.right(); ++x)
            if (bild.pixel(x, y) != bild.pixel(innen.topLeft()))
                return false;
    }
    return true;
}

TEST_F(ElementListe, BehaeltDieReihenfolgeDerZeilen)
{
    Liste& liste = zeige();
    for (const char* zeile : {"b", "", " a ", "ä\tö"})
        liste.modell().AddItem(zeile);
    EXPECT_THAT(texte(), ElementsAre("b", "", " a ", "ä\tö"));
}

TEST_F(ElementListe, OrdnetSortierteZeilenNachIhrenBytes)
{
    Liste& liste = zeige({.Sorted = true});
    for (const char* zeile : {"99", "100", " 9", "ä", "11", "103", "10", "z"})
        liste.modell().AddItem(zeile);
    EXPECT_THAT(texte(), ElementsAre(" 9", "10", "100", "103", "11", "99", "z", "ä"));
}

TEST_F(ElementListe, DieAuswahlBleibtBeiIhrerZeileWennSortierteDazukommen)
{
    Liste& liste = zeige({.Sorted = true});
    liste.modell().AddItem("m");
    liste.modell().AddItem("z");
    klickeZeile(0);
    liste.modell().AddItem("a");
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    EXPECT_EQ(liste.zeilentext(1), "m");
}

TEST_F(ElementListe, MachtVonMillionenZeilenNurDieSichtbaren)
{
    Liste& liste = zeigeAufAnfrage(kMillionen);
    EXPECT_EQ(liste.zeilenzahl(), 5'000'000);
    gemalt();
    ASSERT_FALSE(gefragte.empty());
    EXPECT_LE(gefragte.size(), static_cast<std::size_t>(seite()) + 1);
    EXPECT_EQ(*std::ranges::max_element(gefragte), gefragte.size() - 1);

    druecke("End");
    gefragte.clear();
    gemalt();
    EXPECT_EQ(oberste(), 5'000'000 - seite());
    EXPECT_LE(gefragte.size(), static_cast<std::size_t>(seite()) + 1);
    EXPECT_EQ(*std::ranges::max_element(gefragte), kMillionen - 1);
    EXPECT_THAT(liste.modell().ausgewaehlte(), ElementsAre(kMillionen - 1));
    EXPECT_EQ(lies("Liste1"), "4999999");
}

TEST_F(ElementListe, GehtMitDenPfeilenUndBleibtInDenGrenzen)
{
    Liste& liste = zeigeZeilen(3);
    druecke("Down");
    EXPECT_EQ(liste.modell().ListIndex(), 0);
    druecke("Down Down Down");
    EXPECT_EQ(liste.modell().ListIndex(), 2);
    druecke("Up");
    EXPECT_EQ(liste.modell().ListIndex(), 1);
    druecke("Up Up Up");
    EXPECT_EQ(liste.modell().ListIndex(), 0);
    EXPECT_EQ(auswahlen, 8);
}

TEST_F(ElementListe, GehtOhneAuswahlMitAufZurErstenZeile)
{
    Liste& liste = zeigeZeilen(3);
    druecke("Up");
    EXPECT_EQ(liste.modell().ListIndex(), 0);
}

TEST_F(ElementListe, GehtSeitenweiseUndZuDenEnden)
{
    Liste& liste = zeigeZeilen(100);
    klickeZeile(0);
    druecke("PgDown");
    EXPECT_EQ(liste.modell().ListIndex(), seite());
    EXPECT_TRUE(liste.viewport()->rect().contains(liste.zeilenrechteck(seite()).center()));
    druecke("End");
    EXPECT_EQ(liste.modell().ListIndex(), 99);
    EXPECT_EQ(oberste(), 100 - seite());
    druecke("PgUp");
    EXPECT_EQ(liste.modell().ListIndex(), 99 - seite());
    druecke("Home");
    EXPECT_EQ(liste.modell().ListIndex(), 0);
    EXPECT_EQ(oberste(), 0);
    druecke("PgUp");
    EXPECT_EQ(liste.modell().ListIndex(), 0);
}

TEST_F(ElementListe, RolltBeiDenPfeilenNurSoWeitWieNoetig)
{
    zeigeZeilen(100);
    klickeZeile(seite() - 1);
    EXPECT_EQ(oberste(), 0);
    druecke("Down");
    EXPECT_EQ(oberste(), 1);
    druecke("Up");
    EXPECT_EQ(oberste(), 1);
}

TEST_F(ElementListe, EineLeereListeNimmtTastenUndKlicksHin)
{
    Liste& liste = zeige();
    druecke("Down Up PgDown PgUp Home End Return Space");
    Eingabe::klicke(liste.viewport(), QPoint(5, 5));
    Eingabe::doppelklicke(liste.viewport(), QPoint(5, 5));
    EXPECT_EQ(liste.modell().ListIndex(), ListenModell::kKeiner);
    EXPECT_EQ(auswahlen, 0);
    EXPECT_THAT(doppelklicks, IsEmpty());
    EXPECT_EQ(liste.verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(istEinfarbig(gemalt(), liste.viewport()->rect()));
}

TEST_F(ElementListe, WaehltMitDerMaus)
{
    zeigeZeilen(100);
    klickeZeile(3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
    klickeZeile(1);
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    EXPECT_EQ(auswahlen, 2);
}

TEST_F(ElementListe, WaehltNachDemRollenDieZeileUnterDerMaus)
{
    Liste& liste = zeigeZeilen(100);
    liste.verticalScrollBar()->setValue(40);
    Eingabe::klicke(liste.viewport(), QPoint(10, 1));
    EXPECT_THAT(gewaehlte(), ElementsAre(40));
}

TEST_F(ElementListe, EinKlickUnterDieLetzteZeileWaehltNichts)
{
    Liste& liste = zeigeZeilen(3);
    klickeZeile(1);
    Eingabe::klicke(liste.viewport(), QPoint(10, liste.zeilenrechteck(2).bottom() + 5));
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    EXPECT_EQ(auswahlen, 1);
}

TEST_F(ElementListe, DieGezogeneMausNimmtDieAuswahlMit)
{
    Liste& liste = zeigeZeilen(100);
    Eingabe::druecke(liste.viewport(), ort(1));
    QMouseEvent zug(QEvent::MouseMove, ort(4), liste.viewport()->mapToGlobal(ort(4)), Qt::NoButton, Qt::LeftButton,
                    Qt::NoModifier);
    QCoreApplication::sendEvent(liste.viewport(), &zug);
    Eingabe::lasseLos(liste.viewport(), ort(4));
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
}

TEST_F(ElementListe, OhneMehrfachauswahlGiltEineZeileAuchMitStrgUndUmschalt)
{
    zeigeZeilen(20);
    klickeZeile(1);
    klickeZeile(4, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
    klickeZeile(7, Qt::ShiftModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(7));
}

TEST_F(ElementListe, StrgSchaltetInDerMehrfachauswahlEinzelneZeilen)
{
    zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(1);
    klickeZeile(4, Qt::ControlModifier);
    klickeZeile(6, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 4, 6));
    klickeZeile(4, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 6));
    klickeZeile(2);
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
}

TEST_F(ElementListe, UmschaltWaehltDenBereichVonDerErstenZeileAn)
{
    zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(5);
    klickeZeile(8, Qt::ShiftModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(5, 6, 7, 8));
    klickeZeile(3, Qt::ShiftModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(3, 4, 5));
    klickeZeile(3, Qt::ControlModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(4, 5));
}

TEST_F(ElementListe, UmschaltGehtAuchMitDerTastatur)
{
    zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(2);
    druecke("Shift+Down Shift+Down");
    EXPECT_THAT(gewaehlte(), ElementsAre(2, 3, 4));
    druecke("Shift+Up");
    EXPECT_THAT(gewaehlte(), ElementsAre(2, 3));
    druecke("Down");
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
}

TEST_F(ElementListe, DieLeertasteSchaltetInDerMehrfachauswahl)
{
    zeigeZeilen(20, {.MultiSelect = true});
    klickeZeile(2);
    druecke("Space");
    EXPECT_THAT(gewaehlte(), IsEmpty());
    druecke("Space");
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
    EXPECT_EQ(auswahlen, 3);
}

TEST_F(ElementListe, UmschaltNachEinerKuerzerenFuellungBleibtInDerListe)
{
    Liste& liste = zeigeZeilen(20, {.MultiSelect = true});
    druecke("End");
    liste.modell().fuelle({"a", "b", "c"});
    QCoreApplication::processEvents();
    klickeZeile(1, Qt::ShiftModifier);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 2));
}

TEST_F(ElementListe, DoppelklickWaehltUndMeldetDieZeile)
{
    Liste& liste = zeigeZeilen(20);
    Eingabe::doppelklicke(liste.viewport(), ort(4));
    EXPECT_THAT(doppelklicks, ElementsAre(4));
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
    Eingabe::doppelklicke(liste.viewport(), QPoint(10, liste.viewport()->height() - 1) + QPoint(0, 500));
    EXPECT_THAT(doppelklicks, ElementsAre(4));
}

TEST_F(ElementListe, ReturnIstDerDoppelklickAufDieGewaehlteZeile)
{
    zeigeZeilen(20);
    druecke("Return");
    EXPECT_THAT(doppelklicks, IsEmpty());
    druecke("Down Down Return");
    EXPECT_THAT(doppelklicks, ElementsAre(1));
    druecke("Enter");
    EXPECT_THAT(doppelklicks, ElementsAre(1, 1));
}

TEST_F(ElementListe, DerRollbalkenReichtBisZurLetztenSeite)
{
    Liste& liste = zeigeZeilen(1000);
    EXPECT_EQ(liste.verticalScrollBar()->minimum(), 0);
    EXPECT_EQ(liste.verticalScrollBar()->maximum(), 1000 - seite());
    liste.verticalScrollBar()->setValue(liste.verticalScrollBar()->maximum());
    EXPECT_TRUE(liste.viewport()->rect().contains(liste.zeilenrechteck(999)));
    EXPECT_EQ(liste.zeileBei(liste.zeilenrechteck(999).center().y()), 999);
}

TEST_F(ElementListe, WasHineinpasstRolltNicht)
{
    Liste& liste = zeigeZeilen(10);
    EXPECT_EQ(liste.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(liste.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ElementListe, EineBreiteZeileRolltQuerUndGehtMitIhr)
{
    Liste& liste = zeigeZeilen(3);
    liste.modell().AddItem(std::string(200, 'W'));
    gemalt();
    QCoreApplication::processEvents();
    EXPECT_GT(liste.horizontalScrollBar()->maximum(), 0);
    liste.modell().Clear();
    QCoreApplication::processEvents();
    EXPECT_EQ(liste.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ElementListe, GeleertWaehrendSieUntenStehtMaltSieNichts)
{
    Liste& liste = zeigeZeilen(1000);
    druecke("End");
    liste.modell().Clear();
    EXPECT_TRUE(istEinfarbig(gemalt(), liste.viewport()->rect()));
    QCoreApplication::processEvents();
    EXPECT_EQ(oberste(), 0);
    EXPECT_EQ(liste.verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(istEinfarbig(gemalt(), liste.viewport()->rect()));
    EXPECT_THAT(gewaehlte(), IsEmpty());
}

TEST_F(ElementListe, KuerzerGefuelltWaehrendSieUntenStehtFragtSieNieHinterDasEnde)
{
    Liste& liste = zeigeAufAnfrage(1000);
    druecke("End");
    gefragte.clear();
    fuelleAufAnfrage(3);
    gemalt();
    QCoreApplication::processEvents();
    gemalt();
    EXPECT_THAT(std::set<std::size_t>(gefragte.begin(), gefragte.end()), ElementsAre(0, 1, 2));
    EXPECT_TRUE(
        istEinfarbig(gemalt(), liste.viewport()->rect().adjusted(0, 3 * liste.zeilenrechteck(0).height(), 0, 0)));
}

TEST_F(ElementListe, HinterDemEndeIstNichts)
{
    Liste& liste = zeigeZeilen(2);
    for (const int zeile : {2, 1000, -1}) {
        EXPECT_EQ(liste.zeilentext(zeile), "");
        EXPECT_FALSE(liste.istGewaehlt(zeile));
        liste.zeigeZeile(zeile);
        EXPECT_EQ(oberste(), 0);
    }
    EXPECT_EQ(liste.zeileBei(liste.zeilenrechteck(2).center().y()), -1);
    EXPECT_EQ(liste.zeileBei(-1), -1);
}

TEST_F(ElementListe, MaltJedeZeileAnIhremPlatzUndDieGewaehlteInDerAuswahlfarbe)
{
    Liste& liste = zeigeZeilen(3);
    klickeZeile(1);
    liste.clearFocus(); // whose frame tints the row
    const QImage bild = gemalt();
    const QColor grund = liste.palette().color(QPalette::Base);
    const QColor auswahl = liste.palette().color(QPalette::Highlight);
    for (int zeile = 0; zeile < 3; ++zeile) {
        const QRect platz = liste.zeilenrechteck(zeile);
        EXPECT_FALSE(istEinfarbig(bild, platz.adjusted(2, 2, -2, -2))) << zeile;
        EXPECT_EQ(bild.pixelColor(platz.right() - 3, platz.center().y()), zeile == 1 ? auswahl : grund) << zeile;
        EXPECT_EQ(liste.zellfarben(zeile).front().grund, zeile == 1 ? auswahl : grund) << zeile;
    }
    EXPECT_TRUE(istEinfarbig(bild, liste.viewport()->rect().adjusted(0, liste.zeilenrechteck(3).top(), 0, 0)));
}

TEST_F(ElementListe, FolgtZeilenDieNachDemErstenBildDazukommen)
{
    Liste& liste = zeigeZeilen(0, {.Sorted = true});
    for (int i = 999; i >= 0; --i) {
        liste.modell().AddItem(Format(i, "0000"));
        if (i % 100 == 0)
            QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(liste.verticalScrollBar()->maximum(), 1000 - seite());
    EXPECT_EQ(liste.zeilentext(0), "0000");
    EXPECT_EQ(liste.zeilentext(999), "0999");
}

} // namespace
