#pragma once

#include "listcontrol/screens/ListView.h"
#include "listcontrol/screens/Listenkopf.h"
#include "tools/buehne/Eingabe.h"

#include <QApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// Colours cells as a screen would and writes down what it is asked for.
class TestFaerber final : public ICustomDraw {
public:
    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override
    {
        ++gefragt[{row, column}];
        vorher = {backColor, foreColor};
        if (column % 2 == 1) {
            backColor = farbeAusBGR(0xC0C0C0);
        } else {
            backColor = {128, 255, 255};
            foreColor = {255, 0, 0};
        }
        handled = behandelt;
    }

    bool behandelt = true;
    std::map<std::pair<int, int>, int> gefragt; ///< how often for each cell
    std::pair<Farbe, Farbe> vorher;
};

/// A list of its own in a window: a | b | c with separators of one pixel, a 0..60, b 61..101, c 102..182.
class ListViewTest : public testing::Test {
protected:
    ListViewTest()
    {
        liste->setGeometry(0, 0, 400, 300);
        fenster.resize(400, 300);
    }

    void legeSpaltenAn()
    {
        liste->AddColumn("a", "Zieh.Nr.", TextAlign::Right, 60);
        liste->AddTrenner("trenner0");
        liste->AddColumn("b", "Z1", TextAlign::Center, 40);
        liste->AddTrenner("trenner1");
        liste->AddColumn("c", "Gewinn", TextAlign::Left, 80);
    }

    /// Rows "0000", "0001" ... with the number in reverse in column c.
    void fuelle(int zeilen)
    {
        for (int i = 0; i < zeilen; ++i) {
            const int zeile = liste->AddItem(nummer(i));
            liste->setItemText(zeile, 2, nummer(i).substr(2));
            liste->setItemText(zeile, 4, nummer(9999 - i));
        }
    }

    void zeige()
    {
        fenster.show();
        QApplication::processEvents();
    }

    /// Until what is due has been painted: the window asks for it a few milliseconds later.
    static void warteAufsMalen()
    {
        QEventLoop schleife;
        QTimer::singleShot(50, &schleife, &QEventLoop::quit);
        schleife.exec();
    }

    static std::string nummer(int wert)
    {
        const std::string ziffern = std::to_string(wert);
        return std::string(4 - ziffern.size(), '0') + ziffern;
    }

    std::vector<std::string> spalte(int column) const
    {
        std::vector<std::string> texte;
        for (int zeile = 0; zeile < liste->ItemCount(); ++zeile)
            texte.push_back(liste->ItemText(zeile, column));
        return texte;
    }

    std::vector<int> gewaehlte() const
    {
        std::vector<int> zeilen;
        for (int zeile = 0; zeile < liste->ItemCount(); ++zeile)
            if (liste->ItemSelected(zeile))
                zeilen.push_back(zeile);
        return zeilen;
    }

    QPoint ort(int zeile, int x = 20) const { return {x, liste->zeilenrechteck(zeile).center().y()}; }

    void klicke(int zeile, Qt::KeyboardModifiers tasten = {})
    {
        Eingabe::klicke(liste->viewport(), ort(zeile), tasten);
    }

    Listenkopf* kopf() const { return static_cast<Listenkopf*>(uhr()->parent()); }
    QTimer* uhr() const { return liste->findChild<QTimer*>("tmrMove"); }
    QPoint kopfort(int x) const { return {x, kopf()->height() / 2}; }

    /// Moves the mouse over the header with the button held down.
    void ziehe(int x)
    {
        QMouseEvent ereignis(QEvent::MouseMove, kopfort(x), kopf()->mapToGlobal(kopfort(x)), Qt::NoButton,
                             Qt::LeftButton, {});
        QApplication::sendEvent(kopf(), &ereignis);
    }

    /// A drag on the header from one x to another.
    void ziehe(int von, int nach)
    {
        Eingabe::druecke(kopf(), kopfort(von));
        ziehe(nach);
        Eingabe::lasseLos(kopf(), kopfort(nach));
        QApplication::processEvents();
    }

    QWidget fenster;
    ListView* liste = new ListView(&fenster);
    TestFaerber faerber;
};
