#include "shell/elements/Bildschirm.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "testhilfen/Buehnentest.h"

#include <QApplication>
#include <QLabel>

#include <gmock/gmock.h>
#include <map>
#include <memory>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Zaehler {
    int gemacht = 0;
    int gezeigt = 0;
    int geschlossen = 0;
    int zerstoert = 0;
};

/// What happened to the screens, by name.
using Buch = std::map<QString, Zaehler>;

class Blatt : public Bildschirm {
public:
    Blatt(Umgebung& umgebung, std::shared_ptr<Buch> buch, const QString& name)
        : Bildschirm(umgebung, name, name),
          buch_(std::move(buch))
    {
        ++(*buch_)[name].gemacht;
        setzeInhalt(spalte({bezeichnung("Bezeichnung1", name)}));
    }
    ~Blatt() override { ++(*buch_)[name()].zerstoert; }

    void beimZeigen() override { ++(*buch_)[name()].gezeigt; }

    /// Loaded or closed in closing.
    QString laedtBeimSchliessen;
    QString schliesstBeimSchliessen;
    bool entlaedtAlleBeimSchliessen = false;

protected:
    void beimSchliessen() override
    {
        ++(*buch_)[name()].geschlossen;
        if (!laedtBeimSchliessen.isEmpty())
            umgebung().bildschirme->lade(laedtBeimSchliessen);
        Bildschirm* anderer = umgebung().bildschirme->geladen(schliesstBeimSchliessen);
        if (anderer)
            anderer->schliesse();
        if (std::exchange(entlaedtAlleBeimSchliessen, false))
            umgebung().bildschirme->entladeAlle();
    }

private:
    std::shared_ptr<Buch> buch_;
};

class ElementVerzeichnis : public Buehnentest {
protected:
    ElementVerzeichnis()
    {
        for (const char* name : {"frmAlt", "frmÄlter", "frmNeu"}) {
            verzeichnis.registriere(
                name, [gemeinsam = buch_, name](Umgebung& u) { return std::make_unique<Blatt>(u, gemeinsam, name); });
        }
    }

    Blatt& blatt(const QString& name) { return verzeichnis.lade<Blatt>(name); }

    static void raeumeAuf() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    BildschirmVerzeichnis& verzeichnis = buehne.bildschirme;
    std::shared_ptr<Buch> buch_ = std::make_shared<Buch>(); ///< outlives the last screen
    Buch& buch = *buch_;
};

TEST_F(ElementVerzeichnis, KenntDieRegistriertenInIhrerReihenfolge)
{
    const std::vector<QString> namen = verzeichnis.namen();
    ASSERT_GE(namen.size(), 3u);
    EXPECT_THAT(std::vector(namen.end() - 3, namen.end()), ElementsAre("frmAlt", "frmÄlter", "frmNeu"));
    EXPECT_TRUE(verzeichnis.kennt("frmAlt"));
    EXPECT_FALSE(verzeichnis.kennt("frmGibtEsNicht"));
    EXPECT_FALSE(verzeichnis.kennt(""));
    EXPECT_TRUE(buch.empty());
}

TEST_F(ElementVerzeichnis, NocheinmalRegistriertGiltDerNeueErzeuger)
{
    const std::size_t vorher = verzeichnis.namen().size();
    verzeichnis.registriere("frmalt", [this](Umgebung& u) { return std::make_unique<Blatt>(u, buch_, "frmErsatz"); });
    EXPECT_EQ(verzeichnis.lade("frmAlt").name(), "frmErsatz");
    EXPECT_EQ(verzeichnis.namen().size(), vorher);
}

TEST_F(ElementVerzeichnis, LaedtEinmalUndZeigtNicht)
{
    EXPECT_EQ(verzeichnis.geladen("frmAlt"), nullptr);
    Bildschirm& erster = verzeichnis.lade("frmAlt");
    EXPECT_EQ(&verzeichnis.lade("frmAlt"), &erster);
    EXPECT_EQ(verzeichnis.geladen("frmAlt"), &erster);
    EXPECT_FALSE(erster.isVisible());
    EXPECT_EQ(buch["frmAlt"].gemacht, 1);
    EXPECT_EQ(buch["frmAlt"].gezeigt, 0);
}

TEST_F(ElementVerzeichnis, SuchtNamenOhneRuecksichtAufGrossUndKlein)
{
    Bildschirm& bildschirm = verzeichnis.lade("FRMäLTER");
    EXPECT_EQ(bildschirm.name(), "frmÄlter");
    EXPECT_EQ(verzeichnis.geladen("frmälter"), &bildschirm);
    EXPECT_TRUE(verzeichnis.FormGeladen("FRMäLTER"));
    EXPECT_FALSE(verzeichnis.FormGeladen("frmAlt"));
    EXPECT_FALSE(verzeichnis.FormGeladen(""));
    EXPECT_TRUE(verzeichnis.kennt("FRMALT"));
    EXPECT_EQ(verzeichnis.geladen("frmalt"), nullptr);
}

TEST_F(ElementVerzeichnis, ZaehltNurDieGeladenen)
{
    EXPECT_THAT(verzeichnis.geladene(), IsEmpty());
    Bildschirm& neu = verzeichnis.lade("frmNeu");
    Bildschirm& alt = verzeichnis.lade("frmAlt");
    EXPECT_THAT(verzeichnis.geladene(), ElementsAre(&alt, &neu));
}

TEST_F(ElementVerzeichnis, OeffnenZeigtUndBringtAufDenStand)
{
    Bildschirm& bildschirm = verzeichnis.oeffne("frmAlt");
    EXPECT_TRUE(bildschirm.isVisible());
    EXPECT_EQ(buch["frmAlt"].gezeigt, 1);
    verzeichnis.oeffne("frmAlt");
    EXPECT_EQ(buch["frmAlt"].gezeigt, 1);
    bildschirm.hide();
    EXPECT_EQ(&verzeichnis.oeffne("frmAlt"), &bildschirm);
    EXPECT_EQ(buch["frmAlt"].gezeigt, 2);
    EXPECT_EQ(buch["frmAlt"].gemacht, 1);
}

TEST_F(ElementVerzeichnis, GeschlossenIstErEntladenUndDasNaechsteMalNeu)
{
    Bildschirm& bildschirm = verzeichnis.oeffne("frmAlt");
    bildschirm.schliesse();
    EXPECT_EQ(verzeichnis.geladen("frmAlt"), nullptr);
    EXPECT_EQ(buch["frmAlt"].geschlossen, 1);
    EXPECT_EQ(buch["frmAlt"].zerstoert, 0);
    verzeichnis.oeffne("frmAlt");
    raeumeAuf();
    EXPECT_EQ(buch["frmAlt"].gemacht, 2);
    EXPECT_EQ(buch["frmAlt"].zerstoert, 1);
    EXPECT_NE(verzeichnis.geladen("frmAlt"), nullptr);
}

TEST_F(ElementVerzeichnis, EntlaedtAlleAuchDieVerborgenen)
{
    verzeichnis.oeffne("frmAlt");
    verzeichnis.lade("frmNeu");
    verzeichnis.entladeAlle();
    EXPECT_THAT(verzeichnis.geladene(), IsEmpty());
    raeumeAuf();
    EXPECT_EQ(buch["frmAlt"].zerstoert, 1);
    EXPECT_EQ(buch["frmNeu"].zerstoert, 1);
}

TEST_F(ElementVerzeichnis, EntlaedtAuchWasBeimSchliessenNochGeladenWird)
{
    blatt("frmNeu").laedtBeimSchliessen = "frmAlt";
    verzeichnis.entladeAlle();
    EXPECT_THAT(verzeichnis.geladene(), IsEmpty());
    EXPECT_EQ(buch["frmAlt"].gemacht, 1);
    EXPECT_EQ(buch["frmAlt"].geschlossen, 1);
}

TEST_F(ElementVerzeichnis, WerAndereMitSichSchliesstSchliesstSieEinmal)
{
    verzeichnis.oeffne("frmNeu");
    verzeichnis.oeffne("frmÄlter");
    blatt("frmAlt").schliesstBeimSchliessen = "frmNeu";
    verzeichnis.entladeAlle();
    EXPECT_THAT(verzeichnis.geladene(), IsEmpty());
    EXPECT_EQ(buch["frmNeu"].geschlossen, 1);
    EXPECT_EQ(buch["frmÄlter"].geschlossen, 1);
}

TEST_F(ElementVerzeichnis, EntladenSchliesstJedenEinmalAuchWennEinerAlleEntlaedt)
{
    blatt("frmAlt").entlaedtAlleBeimSchliessen = true;
    verzeichnis.oeffne("frmÄlter");
    verzeichnis.lade("frmNeu");
    verzeichnis.entladeAlle();
    EXPECT_THAT(verzeichnis.geladene(), IsEmpty());
    for (const char* name : {"frmAlt", "frmÄlter", "frmNeu"})
        EXPECT_EQ(buch[name].geschlossen, 1) << name;
}

} // namespace
