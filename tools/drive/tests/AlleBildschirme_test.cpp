// Opens every registered screen at its default size and looks for what a user would stumble over.

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Rollinhalt.h"
#include "shell/elements/Zeilenansicht.h"
#include "testhilfen/Programmbuehne.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <map>

namespace {

/// What a desktop of 1280 x 800 leaves within the frame of a window.
constexpr QSize kKleinstesFenster{1280 - 8, 800 - 36};

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

    /// Presses every button of a screen that does not close it and calls `pruefe` behind each. A run ends at its first
    /// turn, and nothing goes to the network.
    template <class Pruefung> void jedenKnopf(const QString& name, Pruefung pruefe)
    {
        buehne.pumpe.beiZug = [this, name] {
            if (Bildschirm* offen = buehne.bildschirme.geladen(name))
                offen->stoppe();
        };
        QStringList knoepfe;
        oeffne(name);
        for (const QPushButton* knopf : buehne.bildschirme.geladen(name)->findChildren<QPushButton*>())
            if (!knopf->objectName().startsWith("cmdStart("))
                knoepfe << knopf->objectName();
        for (const QString& knopf : knoepfe) {
            SCOPED_TRACE(knopf.toStdString());
            if (!buehne.bildschirme.geladen(name))
                oeffne(name);
            if (!sichtbar(knopf) || !bedienbar(knopf))
                continue;
            klicke(knopf);
            QCoreApplication::processEvents();
            if (const Bildschirm* offen = buehne.bildschirme.geladen(name))
                pruefe(*offen);
            bedienung.benutze(name);
        }
        buehne.pumpe.beiZug = nullptr;
        schliesseAlle();
    }

    /// Closes everything but the menu, one after the other: a screen may take another one with it.
    void schliesseAlle()
    {
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
    }

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

TEST_F(AlleBildschirme, PassenAufDenKleinstenSchirmOhneZuRollen)
{
    jeden([](const Bildschirm& bildschirm) {
        const int fuss = bildschirm.inhalt().itemAt(1)->geometry().height();
        const QSize ganz = bildschirm.inhalt().itemAt(0)->minimumSize() + QSize(0, fuss);
        EXPECT_LE(ganz.width(), kKleinstesFenster.width());
        EXPECT_LE(ganz.height(), kKleinstesFenster.height());
    });
}

TEST_F(AlleBildschirme, WerdenDurchKeinenKnopfGroesserAlsDerSchirm)
{
    for (const QSize schirm : {QSize(1280, 800), QSize(1024, 768), QSize(800, 600)}) {
        buehne.umgebung.schreibtisch = QRect(QPoint(0, 0), schirm);
        SCOPED_TRACE(schirm.width());
        for (const QString& name : buehne.bildschirme.namen()) {
            SCOPED_TRACE(name.toStdString());
            if (name != "frmLSTART")
                jedenKnopf(name, [&](const Bildschirm& bildschirm) {
                    EXPECT_TRUE(buehne.umgebung.schreibtisch->contains(bildschirm.frameGeometry()));
                });
        }
    }
}

TEST_F(AlleBildschirme, GebenJedesKuerzelEinmal)
{
    jeden([](const Bildschirm& bildschirm) {
        std::map<QKeySequence, QString> kuerzel;
        for (const QAbstractButton* knopf : bildschirm.findChildren<QAbstractButton*>()) {
            if (knopf->shortcut().isEmpty() || !knopf->isVisible())
                continue;
            const auto [erster, neu] = kuerzel.emplace(knopf->shortcut(), knopf->objectName());
            EXPECT_TRUE(neu) << knopf->shortcut().toString().toStdString() << ": " << erster->second.toStdString()
                             << " / " << knopf->objectName().toStdString();
        }
    });
}

TEST_F(AlleBildschirme, BeginnenNichtAufDemKnopfDerSieSchliesst)
{
    jeden([](const Bildschirm& bildschirm) {
        const auto* knopf = qobject_cast<const QAbstractButton*>(bildschirm.focusWidget());
        const bool schliesst = knopf && (knopf->text().contains("<<") || knopf->text().remove('&').contains("Zurück"));
        EXPECT_FALSE(schliesst) << knopf->objectName().toStdString();
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
        schliesseAlle();
        EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    }
}

} // namespace
