#include "shell/elements/Bildschirm.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "testhilfen/Buehnentest.h"
#include "testhilfen/Menueersatz.h"
#include "tools/buehne/Eingabe.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCursor>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>

namespace {

constexpr int kGeduld = 5000; ///< milliseconds after which a run that does not end has failed

/// What happened to a screen, also after it is gone.
struct Protokoll {
    int runden = 0;
    int abgewiesen = 0;
    int abgewickelt = 0;
    int geschlossen = 0;
    bool zerstoert = false;
    bool ausserGeduld = false;
};

/// A screen with one control of every kind and a long evaluation.
class Werkbank final : public Bildschirm {
public:
    Werkbank(Umgebung& umgebung, std::shared_ptr<Protokoll> protokoll)
        : Bildschirm(umgebung, "frmWerkbank", "Grundtitel"),
          protokoll_(std::move(protokoll))
    {
        // Not in the order in which they stand on the screen.
        auto* Text1 = textfeld("Text1");
        auto* Befehl3 = befehl("Befehl3", "Fehler");
        auto* Befehl4 = befehl("Befehl4", "Fehler im Lauf");
        auto* Befehl1 = befehl("Befehl1", "&Start", hinweis("Startet."));
        auto* Befehl2 = befehl("Befehl2", "&Abbruch");
        auto* Befehl5 = befehl("Befehl5", "Gesperrt", hinweis("Heute nicht."));
        auto* Befehl6 = befehl("Befehl6", "&<<");
        auto* Kombi1 = kombi("Kombi1");
        auto* Kontroll1 = kontroll("Kontroll1", "Ja");
        auto* Option1 = option("Option1", "Eins", hinweis("Die erste."));
        auto* Liste1 = liste("Liste1");
        auto* Bezeichnung1 = bezeichnung("Bezeichnung1", "Text");
        Befehl5->setEnabled(false);
        auto* Rahmen1 = rahmen("Rahmen1", "Rahmen", spalte({Kontroll1, Option1}));
        setzeHinweis(Rahmen1, "Im Rahmen.");

        setzeInhalt(spalte({
            zeile({Befehl1, Befehl2, Text1}),
            zeile({Rahmen1, dehnbar(Liste1)}),
            zeile({Bezeichnung1, Kombi1, Befehl3, Befehl4, Befehl5, luecke(), Befehl6}),
        }));

        bei(Befehl1, [this] { laufe(); });
        bei(Befehl2, [this] { stoppe(); });
        bei(Befehl3, [] { throw std::runtime_error("Fehler in einem Handler"); });
        bei(Befehl4, [this] {
            const Lauf lauf(*this);
            throw std::runtime_error("Fehler in einem Lauf");
        });
        bei(Befehl6, [this] { schliesse(); });
    }
    ~Werkbank() override { protokoll_->zerstoert = true; }

protected:
    void beimSchliessen() override { ++protokoll_->geschlossen; }

private:
    void laufe()
    {
        Lauf lauf(*this, "Bitte warten ! (Probe)");
        if (!lauf) {
            ++protokoll_->abgewiesen;
            return;
        }
        QElapsedTimer seit;
        seit.start();
        while (lauf.weiter() && !protokoll_->ausserGeduld) {
            ++protokoll_->runden;
            protokoll_->ausserGeduld = seit.elapsed() > kGeduld;
        }
        ++protokoll_->abgewickelt;
        setzeTitel("Ergebnis");
    }

    std::shared_ptr<Protokoll> protokoll_;
};

class ElementBildschirm : public Buehnentest {
protected:
    ElementBildschirm()
    {
        buehne.bildschirme.registriere(
            "frmWerkbank", [gemeinsam = protokoll_](Umgebung& u) { return std::make_unique<Werkbank>(u, gemeinsam); });
        buehne.bildschirme.registriere(
            "frmLSTART", [](Umgebung& u) { return std::make_unique<Menueersatz>(u, [](std::int16_t) {}); });
    }

    Bildschirm& zeige()
    {
        buehne.bildschirme.oeffne("frmLSTART");
        oeffne("frmWerkbank");
        return *buehne.bildschirme.geladen("frmWerkbank");
    }

    /// Runs the long evaluation and calls `tue` at its first turns, one after the other.
    void laufeUnd(std::vector<std::function<void()>> tue)
    {
        buehne.pumpe.beiZug = [this, tue = std::move(tue), zug = std::size_t{0}]() mutable {
            if (zug < tue.size())
                tue[zug++]();
            else
                bedienung.klicke("Befehl2");
        };
        klicke("Befehl1");
        buehne.pumpe.beiZug = nullptr;
        EXPECT_FALSE(protokoll.ausserGeduld);
    }

    bool istMenueZuSehen() { return buehne.bildschirme.geladen("frmLSTART")->isVisible(); }
    bool istGeladen() { return buehne.bildschirme.geladen("frmWerkbank") != nullptr; }

    static void warteAuf(const std::function<bool()>& bedingung)
    {
        QElapsedTimer seit;
        seit.start();
        while (!bedingung() && seit.elapsed() < kGeduld) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        EXPECT_TRUE(bedingung());
    }

private:
    std::shared_ptr<Protokoll> protokoll_ = std::make_shared<Protokoll>(); ///< outlives the screen

protected:
    Protokoll& protokoll = *protokoll_;
};

TEST_F(ElementBildschirm, DerTitelZeigtDenHinweisUnterDerMaus)
{
    zeige();
    EXPECT_EQ(titel(), "Grundtitel");
    ueberfahre("Befehl1");
    EXPECT_EQ(titel(), "Startet.");
    EXPECT_EQ(lies("Statuszeile"), "Startet.");
    ueberfahre("frmWerkbank");
    EXPECT_EQ(titel(), "Grundtitel");
    EXPECT_EQ(lies("Statuszeile"), "Grundtitel");
}

TEST_F(ElementBildschirm, EinGesperrtesFeldZeigtSeinenHinweisAuch)
{
    zeige();
    EXPECT_FALSE(bedienbar("Befehl5"));
    ueberfahre("Befehl5");
    EXPECT_EQ(titel(), "Heute nicht.");
}

TEST_F(ElementBildschirm, DerHinweisEinesRahmensGiltFuerAllesDarinDasKeinenEigenenHat)
{
    zeige();
    ueberfahre("Kontroll1");
    EXPECT_EQ(titel(), "Im Rahmen.");
    ueberfahre("Option1");
    EXPECT_EQ(titel(), "Die erste.");
    ueberfahre("Rahmen1");
    EXPECT_EQ(titel(), "Im Rahmen.");
}

TEST_F(ElementBildschirm, EinFeldOhneHinweisLaesstDenErgebnistitelStehen)
{
    Bildschirm& bildschirm = zeige();
    for (const char* feld : {"Befehl2", "Text1", "Liste1", "Kombi1", "Bezeichnung1", "Statuszeile"}) {
        bildschirm.setzeTitel("Ergebnis");
        ueberfahre(feld);
        EXPECT_EQ(titel(), "Ergebnis") << feld;
        ueberfahre("Befehl1");
        ueberfahre(feld);
        EXPECT_EQ(titel(), "Ergebnis") << feld;
    }
}

TEST_F(ElementBildschirm, UeberDerBlossenFormGiltDerGrundtitelDenDerBildschirmGesetztHat)
{
    Bildschirm& bildschirm = zeige();
    bildschirm.setzeTitel("Ergebnis");
    bildschirm.setzeGrundtitel("Neuer Grundtitel");
    EXPECT_EQ(titel(), "Ergebnis");
    ueberfahre("frmWerkbank");
    EXPECT_EQ(titel(), "Neuer Grundtitel");
    ueberfahre("Befehl1");
    ueberfahre("Text1");
    EXPECT_EQ(titel(), "Neuer Grundtitel");
}

TEST_F(ElementBildschirm, DerFussFaelltAufDasLetzteErgebnisZurueckDerTitelAufDenGrundtitel)
{
    Bildschirm& bildschirm = zeige();
    bildschirm.setzeTitel("Ergebnis");
    ueberfahre("frmWerkbank");
    EXPECT_EQ(titel(), "Grundtitel");
    EXPECT_EQ(lies("Statuszeile"), "Ergebnis");
    ueberfahre("Befehl1");
    EXPECT_EQ(lies("Statuszeile"), "Startet.");
    ueberfahre("Text1");
    EXPECT_EQ(titel(), "Grundtitel");
    EXPECT_EQ(lies("Statuszeile"), "Ergebnis");
}

TEST_F(ElementBildschirm, EineWarteAnzeigeOhneErgebnisLaesstDasLetzteAmFuss)
{
    Bildschirm& bildschirm = zeige();
    bildschirm.setzeTitel("Ergebnis");
    {
        const WarteAnzeige anzeige(bildschirm);
        EXPECT_EQ(lies("Statuszeile"), "Bitte warten !");
    }
    EXPECT_EQ(titel(), "Grundtitel");
    EXPECT_EQ(lies("Statuszeile"), "Ergebnis");
}

TEST_F(ElementBildschirm, OhneErgebnisFolgtDerFussDemGrundtitel)
{
    Bildschirm& bildschirm = zeige();
    bildschirm.setzeGrundtitel("Neuer Grundtitel");
    ueberfahre("frmWerkbank");
    EXPECT_EQ(lies("Statuszeile"), "Neuer Grundtitel");
}

TEST_F(ElementBildschirm, EinGeaenderterHinweisGiltSofort)
{
    Bildschirm& bildschirm = zeige();
    setzeHinweis(bildschirm.findChild<QPushButton*>("Befehl2"), "Hält an.");
    ueberfahre("Befehl2");
    EXPECT_EQ(titel(), "Hält an.");
}

TEST_F(ElementBildschirm, WaehrendDesLaufsBleibtDerWartetextUndDieSanduhr)
{
    zeige();
    QStringList titelImLauf;
    Qt::CursorShape zeiger = Qt::ArrowCursor;
    laufeUnd({[&] { titelImLauf << titel(); },
              [&] {
                  ueberfahre("Befehl1");
                  titelImLauf << titel();
                  ueberfahre("frmWerkbank");
                  titelImLauf << titel();
                  if (const QCursor* gesetzt = QGuiApplication::overrideCursor())
                      zeiger = gesetzt->shape();
              }});
    EXPECT_EQ(titelImLauf, QStringList(3, "Bitte warten ! (Probe)"));
    EXPECT_EQ(zeiger, Qt::WaitCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(titel(), "Ergebnis");
    ueberfahre("Text1");
    EXPECT_EQ(titel(), "Ergebnis");
}

TEST_F(ElementBildschirm, EineWarteAnzeigeOhneErgebnisGibtDenGrundtitelZurueck)
{
    Bildschirm& bildschirm = zeige();
    {
        const WarteAnzeige anzeige(bildschirm);
        EXPECT_EQ(titel(), "Bitte warten !");
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(titel(), "Grundtitel");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ElementBildschirm, EineAnimationLaesstDerMausIhrenPfeil)
{
    Bildschirm& bildschirm = zeige();
    const WarteAnzeige anzeige(bildschirm, "Es rollt.", WarteAnzeige::Zeiger::Pfeil);
    EXPECT_EQ(titel(), "Es rollt.");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ElementBildschirm, EineWarteAnzeigeLaesstDenErgebnistitelDerInIhrGesetztWurde)
{
    Bildschirm& bildschirm = zeige();
    {
        const WarteAnzeige anzeige(bildschirm, "Moment !");
        bildschirm.setzeTitel("Ergebnis");
    }
    EXPECT_EQ(titel(), "Ergebnis");
}

TEST_F(ElementBildschirm, EinZweiterStartTutNichts)
{
    const Bildschirm& bildschirm = zeige();
    bool lief = false;
    laufeUnd({[&] {
        klicke("Befehl1");
        lief = bildschirm.laeuft();
        EXPECT_EQ(titel(), "Bitte warten ! (Probe)");
    }});
    EXPECT_TRUE(lief);
    EXPECT_EQ(protokoll.abgewiesen, 1);
    EXPECT_EQ(protokoll.abgewickelt, 1);
    EXPECT_FALSE(bildschirm.laeuft());
}

TEST_F(ElementBildschirm, NachEinemHaltLaeuftEinNeuerStartVonVorn)
{
    const Bildschirm& bildschirm = zeige();
    laufeUnd({});
    EXPECT_TRUE(bildschirm.gestoppt());
    int zuege = 0;
    laufeUnd({[&] { ++zuege; }, [&] { ++zuege; }});
    EXPECT_EQ(zuege, 2);
    EXPECT_EQ(protokoll.abgewickelt, 2);
}

TEST_F(ElementBildschirm, EinLaufGibtDerEreignisschleifeAlle16Millisekunden)
{
    Bildschirm& bildschirm = zeige();
    int zuege = 0;
    buehne.pumpe.beiZug = [&] { ++zuege; };
    QElapsedTimer seit;
    {
        Lauf lauf(bildschirm);
        const Fortschritt fortschritt = lauf.fortschritt();
        seit.start();
        while (seit.elapsed() < 200)
            EXPECT_TRUE(fortschritt(0));
    }
    buehne.pumpe.beiZug = nullptr;
    EXPECT_GE(zuege, 4);
    EXPECT_LE(zuege, 200 / 16 + 1);
}

TEST_F(ElementBildschirm, DasEndeDesProgrammsHaeltDenLaufAn)
{
    zeige();
    laufeUnd({[&] { buehne.pumpe.beendet = true; }});
    buehne.pumpe.beendet = false;
    EXPECT_EQ(protokoll.abgewickelt, 1);
}

TEST_F(ElementBildschirm, GeschlossenImLaufBleibtErBisZuDessenEnde)
{
    zeige();
    laufeUnd({[&] { schliesse(); }, [&] { ADD_FAILURE() << "Der Lauf geht nach dem Schließen weiter."; }});
    EXPECT_EQ(protokoll.abgewickelt, 1);
    EXPECT_FALSE(protokoll.zerstoert);
    EXPECT_EQ(protokoll.geschlossen, 0);
    warteAuf([&] { return protokoll.zerstoert; });
    EXPECT_FALSE(istGeladen());
    EXPECT_EQ(protokoll.geschlossen, 1);
    EXPECT_TRUE(istMenueZuSehen());
}

TEST_F(ElementBildschirm, ImLaufGeschlossenIstErNichtMehrZuSehenAberNochGeladen)
{
    const Bildschirm& bildschirm = zeige();
    bool sichtbarImLauf = true;
    bool geladenImLauf = false;
    bool menueImLauf = true;
    laufeUnd({[&] {
        schliesse();
        sichtbarImLauf = bildschirm.isVisible();
        geladenImLauf = istGeladen();
        menueImLauf = istMenueZuSehen();
    }});
    EXPECT_FALSE(sichtbarImLauf);
    EXPECT_TRUE(geladenImLauf);
    EXPECT_FALSE(menueImLauf);
}

TEST_F(ElementBildschirm, ZweimalImLaufGeschlossenSchliesstEinmal)
{
    Bildschirm& bildschirm = zeige();
    laufeUnd({[&] {
        bildschirm.schliesse();
        bildschirm.schliesse();
    }});
    warteAuf([&] { return protokoll.zerstoert; });
    EXPECT_EQ(protokoll.geschlossen, 1);
}

TEST_F(ElementBildschirm, EscSchliesstAuchImLauf)
{
    zeige();
    laufeUnd({[&] { tippe("Befehl2", "Esc"); }});
    warteAuf([&] { return protokoll.zerstoert; });
    EXPECT_EQ(protokoll.abgewickelt, 1);
    EXPECT_TRUE(istMenueZuSehen());
}

TEST_F(ElementBildschirm, EscSchliesstVonJedemFeldAus)
{
    for (const char* feld : {"Befehl1", "Text1", "Liste1", "Kombi1", "Kontroll1", "Option1"}) {
        protokoll = {};
        oeffne("frmWerkbank");
        tippe(feld, "Esc");
        warteAuf([&] { return protokoll.zerstoert; });
        EXPECT_FALSE(istGeladen()) << feld;
        EXPECT_EQ(protokoll.geschlossen, 1) << feld;
    }
}

TEST_F(ElementBildschirm, DerZurueckKnopfBringtDasMenueUndEntlaedtDenBildschirm)
{
    zeige();
    EXPECT_FALSE(istMenueZuSehen());
    klicke("Befehl6");
    EXPECT_TRUE(istMenueZuSehen());
    EXPECT_FALSE(istGeladen());
    EXPECT_EQ(protokoll.geschlossen, 1);
    warteAuf([&] { return protokoll.zerstoert; });
}

TEST_F(ElementBildschirm, EinFehlerImHandlerBeendetNurDenHandler)
{
    const Bildschirm& bildschirm = zeige();
    klicke("Befehl3");
    EXPECT_TRUE(bildschirm.isVisible());
    ueberfahre("Befehl1");
    EXPECT_EQ(titel(), "Startet.");
    klicke("Befehl6");
    EXPECT_TRUE(istMenueZuSehen());
}

TEST_F(ElementBildschirm, EinFehlerImLaufGibtZeigerTitelUndStartFrei)
{
    const Bildschirm& bildschirm = zeige();
    klicke("Befehl4");
    EXPECT_FALSE(bildschirm.laeuft());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(titel(), "Grundtitel");
    laufeUnd({});
    EXPECT_EQ(protokoll.abgewickelt, 1);
}

TEST_F(ElementBildschirm, TabGehtInLeserichtung)
{
    const Bildschirm& bildschirm = zeige();
    bildschirm.findChild<QPushButton*>("Befehl1")->setFocus();
    QStringList reihe;
    for (int i = 0; i < 10; ++i) {
        reihe << bildschirm.focusWidget()->objectName();
        Eingabe::tippe(bildschirm.focusWidget(), "Tab");
    }
    EXPECT_EQ(reihe, QStringList({"Befehl1", "Befehl2", "Text1", "Kontroll1", "Option1", "Liste1", "Kombi1", "Befehl3",
                                  "Befehl4", "Befehl6"}));
}

TEST_F(ElementBildschirm, DerErsteFokusLiegtAufDemErstenFeld)
{
    Bildschirm& bildschirm = zeige();
    QCoreApplication::processEvents();
    ASSERT_NE(bildschirm.focusWidget(), nullptr);
    EXPECT_EQ(bildschirm.focusWidget()->objectName(), "Befehl1");
}

TEST_F(ElementBildschirm, ReturnUndLeertasteDrueckenDenKnopfMitDemFokus)
{
    zeige();
    tippe("Befehl6", "Return");
    EXPECT_FALSE(istGeladen());
    oeffne("frmWerkbank");
    tippe("Befehl6", "Space");
    EXPECT_FALSE(istGeladen());
}

} // namespace
