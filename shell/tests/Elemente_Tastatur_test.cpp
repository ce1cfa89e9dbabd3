#include "shell/elements/Farben.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/tests/Rohbau.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A screen with three start buttons, a field of every kind and an info frame.
class ElementTastatur : public Rohbautest {
protected:
    void SetUp() override
    {
        zeige([this](Rohbau& schirm) {
            rohbau = &schirm;
            auto* zurueck = schirm.befehl("cmdEnd", "<<");
            schirm.bei(zurueck, [&schirm] { schirm.schliesse(); });
            Bloecke starts;
            std::vector<QPushButton*> startknoepfe;
            for (const char* name : {"Start1", "Start2", "Start3"}) {
                startknoepfe.push_back(schirm.befehl(name, name));
                schirm.bei(startknoepfe.back(), [this, name] { gedrueckt.emplace_back(name); });
                starts.emplace_back(startknoepfe.back());
            }
            schirm.hauptaktionen(startknoepfe);
            auto* eigener = schirm.befehl("Suchen", "Suchen");
            schirm.bei(eigener, [this] { gedrueckt.emplace_back("Suchen"); });
            auto* Text2 = schirm.textfeld("Text2");
            schirm.enterDrueckt(Text2, eigener);
            auto* Kombi2 = schirm.kombi("Kombi2");
            Kombi2->setEditable(true);
            tafel = new Infotafel(&schirm, "Erklärung");
            // clang-format off
            return spalte({
                zeile({zurueck, schirm.textfeld("Text1"), Text2, eigener, schirm.kombi("Kombi1"), Kombi2}),
                zeile(starts),
                zeile({schirm.kontroll("Kontroll1", "Ja"), schirm.option("Option1", "Eins"), schirm.liste("Liste1")}),
            });
            // clang-format on
        });
    }

    QPushButton* knopf(const char* name) const { return rohbau->findChild<QPushButton*>(name); }
    QColor grund(const char* name) const { return knopf(name)->palette().color(QPalette::Button); }

    Rohbau* rohbau = nullptr;
    Infotafel* tafel = nullptr;
    std::vector<std::string> gedrueckt;
};

TEST_F(ElementTastatur, DerErsteFokusLiegtAufDerHauptaktion)
{
    QCoreApplication::processEvents();
    ASSERT_NE(rohbau->focusWidget(), nullptr);
    EXPECT_EQ(rohbau->focusWidget()->objectName(), "Start1");
}

TEST_F(ElementTastatur, EnterUndF5DrueckenVonJedemFeldAusDieHauptaktion)
{
    for (const char* feld : {"Text1", "Kombi1", "Kombi2", "Kontroll1", "Option1"}) {
        for (const char* taste : {"Return", "Enter", "F5"}) {
            gedrueckt.clear();
            tippe(feld, taste);
            EXPECT_THAT(gedrueckt, ElementsAre("Start1")) << feld << " " << taste;
        }
    }
    gedrueckt.clear();
    tippe("Liste1", "F5");
    tippe("cmdEnd", "F5");
    EXPECT_THAT(gedrueckt, ElementsAre("Start1", "Start1"));
}

TEST_F(ElementTastatur, DieHauptaktionIstDerZuletztGedrueckteStartknopf)
{
    klicke("Start3");
    gedrueckt.clear();
    tippe("Text1", "Return");
    tippe("Liste1", "F5");
    EXPECT_THAT(gedrueckt, ElementsAre("Start3", "Start3"));
}

TEST_F(ElementTastatur, EinVerborgenerStartknopfIstNichtDieHauptaktion)
{
    klicke("Start3");
    gedrueckt.clear();
    knopf("Start3")->hide();
    knopf("Start1")->hide();
    tippe("Text1", "Return");
    EXPECT_THAT(gedrueckt, ElementsAre("Start2"));
}

TEST_F(ElementTastatur, EinGesperrterStartknopfTutNichtsUndKeinAndererTrittFuerIhnEin)
{
    knopf("Start1")->setEnabled(false);
    tippe("Text1", "Return");
    tippe("Text1", "F5");
    EXPECT_THAT(gedrueckt, IsEmpty());
}

TEST_F(ElementTastatur, EinFeldMitEigenemKnopfDruecktDiesen)
{
    tippe("Text2", "Return");
    EXPECT_THAT(gedrueckt, ElementsAre("Suchen"));
    tippe("Text2", "F5");
    EXPECT_THAT(gedrueckt, ElementsAre("Suchen", "Start1"));
}

TEST_F(ElementTastatur, EnterDruecktDenKnopfMitDemFokusUndAufEinerListeKeinen)
{
    tippe("Start2", "Return");
    tippe("Liste1", "Return");
    EXPECT_THAT(gedrueckt, ElementsAre("Start2"));
    tippe("cmdEnd", "Enter");
    EXPECT_FALSE(istOffen());
}

TEST_F(ElementTastatur, NurDerKnopfDesErgebnissesIstHervorgehoben)
{
    const QColor sonst = grund("Start1");
    rohbau->zeigeGelaufen(knopf("Start2"));
    EXPECT_EQ(grund("Start2"), Farben::Gelaufen);
    EXPECT_EQ(grund("Start1"), sonst);
    rohbau->zeigeGelaufen(knopf("Start1"));
    EXPECT_EQ(grund("Start1"), Farben::Gelaufen);
    EXPECT_EQ(grund("Start2"), sonst);
    rohbau->zeigeGelaufen(nullptr);
    EXPECT_EQ(grund("Start1"), sonst);
}

TEST_F(ElementTastatur, EscLegtErstDieInfotafelWegUndVerlaesstDannDenBildschirm)
{
    tafel->zeige();
    tippe("Text1", "Esc");
    EXPECT_FALSE(tafel->isVisible());
    EXPECT_TRUE(istOffen());
    tippe("Text1", "Esc");
    EXPECT_FALSE(istOffen());
}

TEST_F(ElementTastatur, EscAufDerInfotafelLegtNurSieWeg)
{
    tafel->zeige();
    tippe("InfotafelOk", "Esc");
    EXPECT_FALSE(tafel->isVisible());
    EXPECT_TRUE(istOffen());
}

TEST_F(ElementTastatur, EscHaeltEineSucheMitStoppknopfAnUndVerlaesstErstDanachDenBildschirm)
{
    rohbau->stoppknopf(knopf("Suchen"));
    rohbau->bei(knopf("Suchen"), [this] { rohbau->stoppe(); });
    {
        const Lauf lauf(*rohbau);
        tafel->zeige();
        tippe("Text1", "Esc");
        EXPECT_FALSE(rohbau->gestoppt());
        tippe("Text1", "Esc");
        EXPECT_TRUE(rohbau->gestoppt());
        EXPECT_FALSE(rohbau->schliesst());
        EXPECT_TRUE(rohbau->isVisible());
    }
    tippe("Text1", "Esc");
    EXPECT_FALSE(istOffen());
}

TEST_F(ElementTastatur, OhneBedienbarenStoppknopfVerlaesstEscAuchDieSuche)
{
    rohbau->stoppknopf(knopf("Suchen"));
    knopf("Suchen")->setEnabled(false);
    const Lauf lauf(*rohbau);
    tippe("Text1", "Esc");
    EXPECT_TRUE(rohbau->gestoppt());
    EXPECT_TRUE(rohbau->schliesst());
}

TEST_F(ElementTastatur, NurEinGebundenesKuerzelIstUnterstrichen)
{
    knopf("Start1")->setText("&Suchen");
    knopf("Start2")->setText("&Speichern");
    knopf("Start2")->setShortcut({});
    const auto unterstrichen = [this](const char* name) {
        return QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, knopf(name)) != 0;
    };
    EXPECT_TRUE(unterstrichen("Start1"));
    EXPECT_FALSE(unterstrichen("Start2"));
    EXPECT_EQ(lies("Start2"), "&Speichern");
}

} // namespace
