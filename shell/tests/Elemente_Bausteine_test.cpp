#include "shell/elements/Farben.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Rahmen.h"
#include "shell/elements/ZZModusOptionen.h"
#include "shell/elements/Zahlenblock.h"
#include "shell/tests/Rohbau.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ElementBaustein = Rohbautest;

TEST_F(ElementBaustein, DieZZOptionenHabenEinenPresetUndMeldenJedeWahl)
{
    ZZModusOptionen* optionen = nullptr;
    zeige([&](Rohbau& bildschirm) {
        optionen = new ZZModusOptionen(&bildschirm);
        return spalte({optionen});
    });
    std::vector<ZZModus> gemeldet;
    optionen->beiWahl = [&gemeldet](ZZModus modus) { gemeldet.push_back(modus); };
    EXPECT_EQ(optionen->modus(), ZZModus::Ohne);
    EXPECT_EQ(lies("optZ(0)"), "ohne Zusatzzahl");
    EXPECT_EQ(lies("optZ(1)"), "mit Zusatzzahl");
    EXPECT_EQ(lies("optZ(2)"), "nur Zusatzzahl");
    for (const char* option : {"optZ(2)", "optZ(1)", "optZ(0)"})
        klicke(option);
    EXPECT_THAT(gemeldet, ElementsAre(ZZModus::Nur, ZZModus::Mit, ZZModus::Ohne));
    EXPECT_EQ(optionen->modus(), ZZModus::Ohne);
}

TEST_F(ElementBaustein, DerZahlenblockZeigtUnterJederZahlIhrenWert)
{
    Zahlenblock* block = nullptr;
    const Bildschirm& bildschirm = zeige([&](Rohbau& rohbau) {
        block = new Zahlenblock("Zahl", "Wert", &rohbau);
        return spalte({block});
    });
    for (int zahl = 1; zahl <= 49; ++zahl)
        block->setzeWert(zahl, QString::number(1000 + zahl));
    for (int zahl = 1; zahl <= 49; ++zahl) {
        const auto* oben = bildschirm.findChild<QLabel*>(QString("Zahl(%1)").arg(zahl));
        const auto* unten = bildschirm.findChild<QLabel*>(QString("Wert(%1)").arg(zahl));
        EXPECT_EQ(oben->text().toInt(), zahl);
        EXPECT_EQ(unten->text().toInt(), 1000 + zahl);
        EXPECT_EQ(unten->x(), oben->x());
        EXPECT_GT(unten->y(), oben->y());
    }
    EXPECT_EQ(block->wert(49), "1049");
}

TEST_F(ElementBaustein, DieSchriftDesZahlenblocksWaechstUndSchrumpftMitIhm)
{
    zeige([&](Rohbau& rohbau) { return spalte({new Zahlenblock("Zahl", "Wert", &rohbau)}); });
    auto* bildschirm = buehne.bildschirme.geladen("frmProbe");
    const auto schriftgroesse = [bildschirm](const char* name) {
        return bildschirm->findChild<QLabel*>(name)->font().pointSizeF();
    };
    const double kleinste = schriftgroesse("Wert(7)");
    const QSize kleinster = bildschirm->minimumSizeHint();
    bildschirm->resize(2 * kleinster);
    EXPECT_GE(schriftgroesse("Wert(7)"), 1.8 * kleinste);
    EXPECT_EQ(schriftgroesse("Zahl(7)"), schriftgroesse("Wert(7)"));
    EXPECT_EQ(bildschirm->minimumSizeHint(), kleinster);
    bildschirm->resize(2 * kleinster.width(), kleinster.height());
    EXPECT_EQ(schriftgroesse("Wert(7)"), kleinste);
}

TEST_F(ElementBaustein, DerZahlenblockFaerbtLesbarUndNimmtDieFarbenZurueck)
{
    Zahlenblock* block = nullptr;
    zeige([&](Rohbau& rohbau) {
        block = new Zahlenblock("Zahl", "Wert", &rohbau);
        return spalte({block});
    });
    const QString vorher = zustand("Wert(7)");
    block->faerbeWert(7, Farben::Markiert);
    EXPECT_TRUE(zustand("Wert(7)").endsWith("back=#00ffff fore=#000000"));
    block->faerbeWert(7, Farben::Hoechstwert);
    EXPECT_TRUE(zustand("Wert(7)").endsWith("back=#ff0000 fore=#ffffff"));
    EXPECT_EQ(zustand("Wert(8)"), vorher);
    block->loescheFarben();
    EXPECT_EQ(zustand("Wert(7)"), vorher);
}

TEST_F(ElementBaustein, DieInfotafelStehtUeberDemBildschirmBisOk)
{
    Infotafel* tafel = nullptr;
    Bildschirm& bildschirm = zeige([&](Rohbau& rohbau) {
        tafel = new Infotafel(&rohbau, "Erklärung");
        auto* flaeche = rohbau.bezeichnung("Bezeichnung1", "Text");
        flaeche->setMinimumSize(600, 300);
        return spalte({flaeche});
    });
    EXPECT_FALSE(sichtbar("Infotafel"));
    tafel->zeige();
    EXPECT_TRUE(sichtbar("Infotafel"));
    EXPECT_EQ(lies("InfotafelText"), "Erklärung");
    EXPECT_EQ(bildschirm.focusWidget()->objectName(), "InfotafelOk");
    EXPECT_TRUE(bildschirm.rect().contains(tafel->geometry()));
    klicke("InfotafelOk");
    EXPECT_FALSE(sichtbar("Infotafel"));
}

TEST_F(ElementBaustein, DieInfotafelZeigtIhrenTitelUndMeldetDasWeglegen)
{
    Infotafel* tafel = nullptr;
    int weggelegt = 0;
    Bildschirm& bildschirm = zeige([&](Rohbau& rohbau) {
        tafel = new Infotafel(&rohbau, "Erklärung", {.rahmen = "Rahmen1", .titel = "Info"});
        tafel->beimWeglegen = [&weggelegt] { ++weggelegt; };
        auto* flaeche = rohbau.bezeichnung("Bezeichnung1", "Text");
        flaeche->setMinimumSize(600, 300);
        return spalte({flaeche});
    });
    tafel->zeige();
    EXPECT_EQ(lies("Rahmen1"), "Info");
    EXPECT_EQ(lies("InfotafelTitel"), "Info");
    bildschirm.hide();
    bildschirm.show();
    EXPECT_EQ(weggelegt, 0) << "the frame has only gone with its screen";
    tippe("InfotafelOk", "Esc");
    EXPECT_EQ(weggelegt, 1);
    tafel->zeige();
    klicke("InfotafelOk");
    EXPECT_EQ(weggelegt, 2);
}

TEST_F(ElementBaustein, DieInfotafelPasstAuchAufEinenKleinenBildschirm)
{
    Infotafel* tafel = nullptr;
    Bildschirm& bildschirm = zeige([&](Rohbau& rohbau) {
        tafel = new Infotafel(&rohbau, QString("Eine lange Erklärung. ").repeated(40));
        return spalte({rohbau.bezeichnung("Bezeichnung1", "Text")});
    });
    tafel->zeige();
    QCoreApplication::processEvents();
    EXPECT_TRUE(bildschirm.rect().contains(tafel->geometry()));
    auto* ok = bildschirm.findChild<QPushButton*>("InfotafelOk");
    EXPECT_TRUE(tafel->rect().contains(ok->geometry()));
    EXPECT_FALSE(ok->visibleRegion().isEmpty());
}

TEST_F(ElementBaustein, ClipBoardErsetztDieZwischenablageDurchDenBericht)
{
    std::string bericht = "\n*** SAMSTAGSLOTTO ***\näöü";
    const Bildschirm& bildschirm =
        zeige([&](Rohbau& rohbau) { return spalte({rohbau.clipBefehl("cmdClip", [&bericht] { return bericht; })}); });
    EXPECT_EQ(lies("cmdClip"), "ClipBoard");
    EXPECT_EQ(bildschirm.findChild<QPushButton*>("cmdClip")->toolTip(),
              "Überträgt die Ergebnisse in die Zwischenablage.");
    buehne.zwischenablage.setze("alt");
    klicke("cmdClip");
    EXPECT_EQ(buehne.zwischenablage.text().toStdString(), bericht);
    EXPECT_EQ(lies("Statuszeile"), "3 Zeilen in die Zwischenablage übertragen");
    EXPECT_EQ(titel(), "Probe");
    bericht.clear();
    klicke("cmdClip");
    EXPECT_NE(buehne.zwischenablage.text(), "");
}

TEST_F(ElementBaustein, WieVielKopiertWurdeStehtDaBisDieMausWeitergeht)
{
    zeige([&](Rohbau& rohbau) {
        return spalte({rohbau.clipBefehl("cmdClip", [] { return std::string("a\r\n"); }),
                       rohbau.bezeichnung("Bezeichnung1", "Text")});
    });
    ueberfahre("cmdClip");
    klicke("cmdClip");
    EXPECT_EQ(lies("Statuszeile"), "1 Zeile in die Zwischenablage übertragen");
    ueberfahre("cmdClip");
    EXPECT_EQ(lies("Statuszeile"), "1 Zeile in die Zwischenablage übertragen");
    ueberfahre("Bezeichnung1");
    EXPECT_EQ(lies("Statuszeile"), "Probe");
}

TEST_F(ElementBaustein, EinRahmenGibtSeinemTitelPlatz)
{
    const Bildschirm& bildschirm = zeige([](Rohbau& rohbau) {
        auto* innen = rohbau.bezeichnung("Bezeichnung1", "x");
        return spalte({zeile({rohbau.rahmen("Rahmen1", "Ein ziemlich langer Titel", spalte({innen})), luecke()})});
    });
    const auto* rahmen = bildschirm.findChild<Rahmen*>("Rahmen1");
    QFont fett = rahmen->font();
    fett.setBold(true);
    const QFontMetrics masse(fett);
    EXPECT_GE(rahmen->width(), masse.horizontalAdvance(rahmen->title()));
    EXPECT_GE(bildschirm.findChild<QLabel*>("Bezeichnung1")->y(), masse.height());
}

TEST_F(ElementBaustein, EinVerborgenesFeldBehaeltSeinenPlatzWennEsSoll)
{
    QLabel* erstes = nullptr;
    const Bildschirm& bildschirm = zeige([&](Rohbau& rohbau) {
        erstes = rohbau.bezeichnung("Bezeichnung1", "oben");
        behaltePlatz(erstes);
        return spalte({erstes, rohbau.bezeichnung("Bezeichnung2", "unten")});
    });
    const auto* zweites = bildschirm.findChild<QLabel*>("Bezeichnung2");
    const int vorher = zweites->y();
    erstes->hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(zweites->y(), vorher);
}

TEST_F(ElementBaustein, EinRasterFuelltZeileUmZeile)
{
    const Bildschirm& bildschirm = zeige([](Rohbau& rohbau) {
        Bloecke bloecke;
        for (int i = 0; i < 7; ++i)
            bloecke.push_back(rohbau.bezeichnung(QString("Feld(%1)").arg(i), "Text"));
        return raster(3, bloecke);
    });
    const auto ort = [&](int i) { return bildschirm.findChild<QLabel*>(QString("Feld(%1)").arg(i))->pos(); };
    EXPECT_EQ(ort(1).y(), ort(0).y());
    EXPECT_GT(ort(2).x(), ort(1).x());
    EXPECT_EQ(ort(3).x(), ort(0).x());
    EXPECT_GT(ort(3).y(), ort(0).y());
    EXPECT_EQ(ort(6).x(), ort(3).x());
}

} // namespace
