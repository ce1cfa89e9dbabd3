// Opens every registered screen at its default size and looks for what a user would stumble over.

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Zeilenansicht.h"
#include "testhilfen/Programmbuehne.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <map>

namespace {

constexpr QSize kKleinsterSchirm{1280, 800};

std::vector<QWidget*> sichtbareFelder(const Bildschirm& bildschirm)
{
    std::vector<QWidget*> felder;
    for (QWidget* feld : bildschirm.findChildren<QWidget*>())
        if (feld->isVisible() && !feld->objectName().startsWith("qt_"))
            felder.push_back(feld);
    return felder;
}

bool istSteuerelement(const QWidget* feld)
{
    return qobject_cast<const QAbstractButton*>(feld) || qobject_cast<const QComboBox*>(feld) ||
           qobject_cast<const QLineEdit*>(feld) || qobject_cast<const QLabel*>(feld) ||
           dynamic_cast<const Zeilenansicht*>(feld);
}

/// Parts of a compound control, such as the line edit of a combo box, have no name of their own.
bool istTeil(const QWidget* feld)
{
    for (const QWidget* eltern = feld->parentWidget(); eltern && !eltern->isWindow(); eltern = eltern->parentWidget())
        if (qobject_cast<const QComboBox*>(eltern) || qobject_cast<const QAbstractScrollArea*>(eltern))
            return true;
    return false;
}

QSize platzFuerText(const QWidget* feld)
{
    if (const auto* bezeichnung = qobject_cast<const QLabel*>(feld))
        return bezeichnung->wordWrap() || bezeichnung->text().isEmpty() ? QSize() : bezeichnung->sizeHint();
    if (const auto* rahmen = qobject_cast<const QGroupBox*>(feld))
        return rahmen->minimumSizeHint();
    if (const auto* knopf = qobject_cast<const QAbstractButton*>(feld))
        return {knopf->fontMetrics().size(Qt::TextShowMnemonic, knopf->text()).width(), knopf->fontMetrics().height()};
    return {};
}

QRect aufSchirm(const QWidget* feld)
{
    return {feld->mapToGlobal(QPoint(0, 0)), feld->size()};
}

/// The button that leads back, by its caption: one with nothing below it and nothing to its right. `frmpos_calc` has
/// arrows of the same look, and no such button.
const QAbstractButton* schliessknopf(const Bildschirm& bildschirm)
{
    static const QStringList kBeschriftungen{"<<", "<< Zurück", "Zurück", "Beenden"};
    if (bildschirm.name() == "frmpos_calc")
        return nullptr;
    for (const auto* knopf : bildschirm.findChildren<QAbstractButton*>())
        if (knopf->isVisible() && kBeschriftungen.contains(knopf->text().remove('&').trimmed()))
            return knopf;
    return nullptr;
}

/// The game's name and its shadow lie on each other on purpose.
bool sindSchatten(const QWidget* a, const QWidget* b)
{
    return a->objectName().startsWith("Bezeichnung3(") && b->objectName().startsWith("Bezeichnung3(");
}

class AlleBildschirme : public Programmbuehne {
protected:
    void SetUp() override { starte(); }

    template <class Pruefung> void jeden(Pruefung pruefe)
    {
        for (const QString& name : buehne.bildschirme.namen()) {
            SCOPED_TRACE(name.toStdString());
            if (name != "frmLSTART")
                oeffne(name);
            QCoreApplication::processEvents();
            pruefe(*buehne.bildschirme.geladen(name));
            if (name != "frmLSTART")
                schliesse();
        }
    }
};

TEST_F(AlleBildschirme, PassenAufDenKleinstenSchirm)
{
    jeden([](const Bildschirm& bildschirm) {
        EXPECT_LE(bildschirm.width(), kKleinsterSchirm.width());
        EXPECT_LE(bildschirm.height(), kKleinsterSchirm.height());
    });
}

TEST_F(AlleBildschirme, SchneidenKeineBeschriftungAb)
{
    jeden([](const Bildschirm& bildschirm) {
        for (const QWidget* feld : sichtbareFelder(bildschirm)) {
            const QSize platz = platzFuerText(feld);
            EXPECT_GE(feld->width(), platz.width()) << feld->objectName().toStdString();
            EXPECT_GE(feld->height(), platz.height()) << feld->objectName().toStdString();
        }
    });
}

TEST_F(AlleBildschirme, LassenNichtsUebereinanderLiegen)
{
    jeden([](const Bildschirm& bildschirm) {
        std::vector<QWidget*> felder;
        for (QWidget* feld : sichtbareFelder(bildschirm))
            if (istSteuerelement(feld) && !istTeil(feld))
                felder.push_back(feld);
        for (std::size_t i = 0; i < felder.size(); ++i) {
            EXPECT_TRUE(aufSchirm(&bildschirm).contains(aufSchirm(felder[i]))) << felder[i]->objectName().toStdString();
            for (std::size_t j = i + 1; j < felder.size(); ++j) {
                EXPECT_TRUE(sindSchatten(felder[i], felder[j]) ||
                            !aufSchirm(felder[i]).intersects(aufSchirm(felder[j])))
                    << felder[i]->objectName().toStdString() << " / " << felder[j]->objectName().toStdString();
            }
        }
    });
}

TEST_F(AlleBildschirme, HabenDenKnopfZumSchliessenUntenRechts)
{
    int mitKnopf = 0;
    jeden([&mitKnopf](const Bildschirm& bildschirm) {
        const QAbstractButton* knopf = schliessknopf(bildschirm);
        if (!knopf || bildschirm.name() == "frmLSTART")
            return;
        ++mitKnopf;
        for (const QWidget* feld : sichtbareFelder(bildschirm)) {
            if (!istSteuerelement(feld) || feld->objectName() == "Statuszeile")
                continue;
            EXPECT_LE(aufSchirm(feld).right(), aufSchirm(knopf).right()) << feld->objectName().toStdString();
            EXPECT_LE(aufSchirm(feld).bottom(), aufSchirm(knopf).bottom()) << feld->objectName().toStdString();
        }
    });
    EXPECT_GE(mitKnopf, 18);
}

TEST_F(AlleBildschirme, GebenJedemFeldEinenNamenUndKeinenZweimal)
{
    jeden([](const Bildschirm& bildschirm) {
        std::map<QString, int> namen;
        for (const QWidget* feld : bildschirm.findChildren<QWidget*>()) {
            if (istSteuerelement(feld) && !istTeil(feld) && !feld->objectName().startsWith("qt_")) {
                EXPECT_FALSE(feld->objectName().isEmpty()) << feld->metaObject()->className();
                EXPECT_EQ(++namen[feld->objectName()], 1) << feld->objectName().toStdString();
            }
        }
    });
}

// Of a group of options only the chosen one takes the Tab key; the arrow keys reach the others.
TEST_F(AlleBildschirme, SindMitDerTastaturErreichbar)
{
    jeden([](const Bildschirm& bildschirm) {
        for (const QWidget* feld : sichtbareFelder(bildschirm)) {
            const bool knopf = qobject_cast<const QAbstractButton*>(feld) && !qobject_cast<const QRadioButton*>(feld);
            const bool bedient =
                knopf || qobject_cast<const QComboBox*>(feld) || dynamic_cast<const Zeilenansicht*>(feld);
            EXPECT_TRUE(!bedient || feld->focusPolicy() & Qt::TabFocus) << feld->objectName().toStdString();
        }
    });
}

TEST_F(AlleBildschirme, SchliessenZumMenueUndBleibenNichtGeladen)
{
    for (const QString& name : buehne.bildschirme.namen()) {
        if (name == "frmLSTART")
            continue;
        SCOPED_TRACE(name.toStdString());
        oeffne(name);
        while (buehne.bildschirme.geladene().size() > 1) {
            const std::size_t vorher = buehne.bildschirme.geladene().size();
            for (Bildschirm* offen : buehne.bildschirme.geladene()) {
                if (offen->name() != "frmLSTART") {
                    offen->schliesse();
                    break;
                }
            }
            ASSERT_LT(buehne.bildschirme.geladene().size(), vorher);
        }
        EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    }
}

} // namespace
