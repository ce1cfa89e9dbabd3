#include "shell/elements/Bildschirm.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "testhilfen/Buehnentest.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>

namespace {

/// A screen with one control of each kind.
class Musterschirm final : public Bildschirm {
public:
    explicit Musterschirm(Umgebung& umgebung) : Bildschirm(umgebung, "frmProbe", "Probe")
    {
        // clang-format off
        setzeInhalt(spalte({
            befehl("Befehl1", "Knopf"),
            kontroll("Check1", "Kästchen"),
            textfeld("Text1", "Text"),
            kombi("Kombi1"),
            dehnbar(liste("Liste1")),
        }));
        // clang-format on
    }
};

class ElementStil : public Buehnentest {
protected:
    ElementStil()
    {
        buehne.bildschirme.registriere("frmProbe", [](Umgebung& u) { return std::make_unique<Musterschirm>(u); });
        oeffne("frmProbe");
        schirm().resize(400, 400);
        schirm().activateWindow();
        QCoreApplication::processEvents();
    }

    Bildschirm& schirm() { return *buehne.bildschirme.geladen("frmProbe"); }
    QWidget& feld(const QString& name) { return *schirm().findChild<QWidget*>(name); }

    /// How many pixels lie one below the other in the colour of the focus, from the upper edge in.
    static int rahmenbreite(QWidget& feld)
    {
        const QImage bild = feld.grab().toImage();
        const QRgb fokus = QApplication::palette().color(QPalette::Highlight).rgb();
        int erste = 0;
        while (erste < bild.height() / 2 && bild.pixel(bild.width() / 2, erste) != fokus)
            ++erste;
        int letzte = erste;
        while (letzte < bild.height() / 2 && bild.pixel(bild.width() / 2, letzte) == fokus)
            ++letzte;
        return letzte - erste;
    }
};

TEST_F(ElementStil, DerFokusIstUeberallEinRahmenVonZweiPunkten)
{
    for (const char* name : {"Befehl1", "Check1", "Text1", "Kombi1", "Liste1"}) {
        schirm().setFocus();
        EXPECT_EQ(rahmenbreite(feld(name)), 0) << name;
        feld(name).setFocus();
        ASSERT_TRUE(feld(name).hasFocus()) << name;
        EXPECT_EQ(rahmenbreite(feld(name)), 2) << name;
    }
}

TEST_F(ElementStil, EineLangeAuswahlZeigtZwanzigZeilenUndRollt)
{
    auto& kombi = dynamic_cast<QComboBox&>(feld("Kombi1"));
    for (int i = 1; i <= 3693; ++i)
        kombi.addItem(QString::number(i));
    kombi.setCurrentIndex(3000);
    kombi.showPopup();
    QCoreApplication::processEvents();
    const QAbstractItemView* liste = kombi.view();
    EXPECT_EQ(liste->viewport()->height() / liste->sizeHintForRow(0), 20);
    EXPECT_TRUE(liste->verticalScrollBar()->isVisible());
    EXPECT_TRUE(liste->viewport()->rect().contains(liste->visualRect(kombi.model()->index(3000, 0))));
}

TEST_F(ElementStil, DerGriffEinesRollbalkensHebtSichAb)
{
    QScrollBar balken(Qt::Vertical);
    balken.setRange(0, 100);
    balken.setPageStep(20);
    balken.resize(balken.sizeHint().width(), 300);
    balken.setValue(50);
    const QImage bild = balken.grab().toImage();
    const auto grau = [&](int y) { return qGray(bild.pixel(bild.width() / 2, y)); };
    EXPECT_GE(grau(40) - grau(150), 60);
    EXPECT_EQ(grau(40), grau(260));
    balken.setRange(0, 0);
    const QImage leer = balken.grab().toImage();
    EXPECT_EQ(leer.pixel(leer.width() / 2, 150), leer.pixel(leer.width() / 2, 40));
}

TEST_F(ElementStil, DieBilderDerBoxenSindInJederGroesseGezeichnet)
{
    for (const auto art : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                           QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
        const QIcon bild = QApplication::style()->standardIcon(art);
        EXPECT_EQ(bild.pixmap(QSize(40, 40), 1).size(), QSize(40, 40));
        EXPECT_EQ(bild.pixmap(QSize(40, 40), 2).size(), QSize(80, 80));
    }
}

TEST_F(ElementStil, JaUndNeinTragenKeineBilder)
{
    QMessageBox box(QMessageBox::Question, "Titel", "Text", QMessageBox::Yes | QMessageBox::No);
    for (const QAbstractButton* knopf : box.buttons())
        EXPECT_TRUE(knopf->icon().isNull()) << knopf->text().toStdString();
}

} // namespace
