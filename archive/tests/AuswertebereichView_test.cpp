#include "archive/screens/AuswertebereichView.h"
#include "archive/tests/Archivbildschirmtest.h"
#include "shell/elements/Bildschirm.h"

#include <QLabel>
#include <QPushButton>

#include <gmock/gmock.h>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Bereichsprobe final : public Bildschirm {
public:
    explicit Bereichsprobe(Umgebung& umgebung)
        : Bildschirm(umgebung, "frmProbe", "Grundtitel"),
          bereich(new AuswertebereichView(*this))
    {
        QPushButton* Befehl1 = befehl("Befehl1", "Start");
        setzeInhalt(spalte({zeile({bereich, luecke()}), Befehl1}));
        bei(Befehl1, [this] { ergebnis = bereich->pruefe(); });
    }

    AuswertebereichView* bereich;
    std::optional<Ziehungsbereich> ergebnis;
};

class ElementAuswertebereich : public Archivbildschirmtest {
protected:
    /// `option` is the menu's option of the game.
    void zeige(const char* option = "Option1")
    {
        buehne.bildschirme.registriere<Bereichsprobe>("frmProbe");
        starte();
        klicke(option);
        oeffne("frmProbe");
        buehne.bildschirme.geladen("frmLSTART")->hide();
        probe = &buehne.bildschirme.lade<Bereichsprobe>("frmProbe");
        anzahl = buehne.archiv.AnzahlZiehungen;
    }

    std::optional<Ziehungsbereich> werteAus()
    {
        probe->ergebnis.reset();
        klicke("Befehl1");
        return probe->ergebnis;
    }

    QStringList eintraege(const QString& name) { return bedienung.eintraege(name).zeilen; }

    Bereichsprobe* probe = nullptr;
    std::int32_t anzahl = 0;
    const QString vierstellig = "info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !";
};

TEST_F(ElementAuswertebereich, BeginntMitDenJahrenDesGanzenArchivs)
{
    zeige();
    EXPECT_EQ(lies("Text1"), "1955");
    EXPECT_EQ(lies("Text2"), "2026");
    EXPECT_EQ(lies("Text3"), QString::number(anzahl));
    EXPECT_TRUE(sichtbar("Rahmen1"));
    EXPECT_FALSE(sichtbar("Rahmen2"));
    EXPECT_EQ(lies("Befehl9"), "Z");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026}));
    EXPECT_THAT(boxen(), IsEmpty());
}

TEST_F(ElementAuswertebereich, DieListenHaltenAlleJahreUndAlleZiehungen)
{
    zeige();
    QStringList jahre;
    for (int jahr = 1955; jahr <= 2026; ++jahr)
        jahre << QString::number(jahr);
    EXPECT_EQ(eintraege("cmbVon"), jahre);
    EXPECT_EQ(eintraege("cmbBis"), jahre);
    const QStringList nummern = eintraege("cmbT3");
    ASSERT_EQ(nummern.size(), anzahl);
    EXPECT_EQ(nummern[0], "   1");
    EXPECT_EQ(nummern[9], "  10");
    EXPECT_EQ(nummern[999], "1000");
    EXPECT_EQ(nummern.last(), QString::number(anzahl));
}

TEST_F(ElementAuswertebereich, EinEintragDerListeKommtInsFeld)
{
    zeige();
    setze("cmbVon", "1960");
    EXPECT_EQ(lies("Text1"), "1960");
    EXPECT_EQ(lies("Text2"), "2026");
    setze("cmbBis", "1961");
    EXPECT_EQ(lies("Text2"), "1961");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1960, 1961}));
    klicke("Befehl9");
    setze("cmbT3", "  37");
    EXPECT_EQ(lies("Text3"), "37");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026, 37}));
}

TEST_F(ElementAuswertebereich, EinEintragKommtAuchMitDerTastaturInsFeld)
{
    zeige();
    setze("Text1", "1999");
    tippe("cmbVon", "Down Down");
    EXPECT_EQ(lies("Text1"), "1957");
}

TEST_F(ElementAuswertebereich, ZweistelligesVonWirdVorAllemAnderenAbgelehnt)
{
    zeige();
    setze("Text1", "19");
    EXPECT_EQ(werteAus(), std::nullopt);
    EXPECT_THAT(boxen(), ElementsAre(vierstellig));
    EXPECT_EQ(lies("Text1"), "19");
}

TEST_F(ElementAuswertebereich, JedesFeldMussVierZeichenHaben)
{
    zeige();
    for (const auto& [von, bis] : {std::pair("", "2000"), std::pair("19555", "2000"), std::pair("1955", "200"),
                                   std::pair("1955", "20000"), std::pair(" 1955", "2000")}) {
        setze("Text1", von);
        setze("Text2", bis);
        EXPECT_EQ(werteAus(), std::nullopt) << von << ' ' << bis;
        EXPECT_THAT(boxen(), ElementsAre(vierstellig)) << von << ' ' << bis;
    }
}

TEST_F(ElementAuswertebereich, DieBisMeldungKommtErstNachDemVierzeichentest)
{
    zeige();
    setze("Text1", "2000");
    setze("Text2", "199");
    werteAus();
    EXPECT_THAT(boxen(), ElementsAre(vierstellig));
    setze("Text2", "1999");
    EXPECT_EQ(werteAus(), std::nullopt);
    EXPECT_THAT(boxen(), ElementsAre("info|Tombrix|\"Bis\" muss grösser \"Von\" sein!"));
}

TEST_F(ElementAuswertebereich, VonDarfGleichBisSein)
{
    zeige();
    setze("Text1", "1999");
    setze("Text2", "1999");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1999, 1999}));
    EXPECT_THAT(boxen(), IsEmpty());
}

TEST_F(ElementAuswertebereich, VierZeichenDieKeineZiffernSindWerdenAbgelehnt)
{
    zeige();
    setze("Text1", "19x5");
    EXPECT_EQ(werteAus(), std::nullopt);
    EXPECT_THAT(boxen(), ElementsAre(vierstellig));
    EXPECT_EQ(lies("Text1"), "19x5");
}

TEST_F(ElementAuswertebereich, ZUndJWechselnDieFormAnGleicherStelle)
{
    zeige();
    const auto platz = [this](const char* name) {
        const auto* rahmen = probe->findChild<QWidget*>(name);
        return QRect(rahmen->mapToGlobal(QPoint(0, 0)), rahmen->size());
    };
    const QRect jahre = platz("Rahmen1");
    klicke("Befehl9");
    EXPECT_FALSE(sichtbar("Rahmen1"));
    EXPECT_TRUE(sichtbar("Rahmen2"));
    EXPECT_EQ(platz("Rahmen2"), jahre);
    EXPECT_EQ(lies("Befehl10"), "J");
    klicke("Befehl10");
    EXPECT_TRUE(sichtbar("Rahmen1"));
    EXPECT_FALSE(sichtbar("Rahmen2"));
}

TEST_F(ElementAuswertebereich, ZNachZiehungSetztDieJahreZurueck)
{
    zeige();
    setze("Text1", "1990");
    setze("Text2", "1991");
    klicke("Befehl9");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026, anzahl}));
    klicke("Befehl10");
    EXPECT_EQ(lies("Text1"), "1955");
    EXPECT_EQ(lies("Text2"), "2026");
}

TEST_F(ElementAuswertebereich, ZNachEinemFalschenVonWertetAus)
{
    zeige();
    setze("Text1", "19");
    klicke("Befehl9");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026, anzahl}));
    EXPECT_THAT(boxen(), IsEmpty());
}

TEST_F(ElementAuswertebereich, EineZiehungUeberDerLetztenWirdImFeldBerichtigt)
{
    zeige();
    klicke("Befehl9");
    setze("Text3", "99999");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026, anzahl}));
    EXPECT_EQ(lies("Text3"), QString::number(anzahl));
    EXPECT_THAT(boxen(), IsEmpty());
}

TEST_F(ElementAuswertebereich, DieZiehungBleibtBeimWechselDerFormStehen)
{
    zeige();
    klicke("Befehl9");
    setze("Text3", "100");
    klicke("Befehl10");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026}));
    klicke("Befehl9");
    EXPECT_EQ(lies("Text3"), "100");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1955, 2026, 100}));
}

TEST_F(ElementAuswertebereich, EinTextStattEinerZiehungWertetKeineAus)
{
    zeige();
    klicke("Befehl9");
    for (const char* text : {"", "abc", "0", "-3"}) {
        setze("Text3", text);
        const auto bereich = werteAus();
        ASSERT_TRUE(bereich.has_value()) << text;
        EXPECT_EQ(bereich->ende(anzahl), 0) << text;
        EXPECT_EQ(lies("Text3"), text);
    }
}

TEST_F(ElementAuswertebereich, DerHinweisUeberVonNenntDasErsteJahrDerSpielart)
{
    zeige();
    ueberfahre("Text1");
    EXPECT_EQ(titel(), "Jahreszahl nicht kleiner 1955 wählen.");
    ueberfahre("frmProbe");
    EXPECT_EQ(titel(), "Grundtitel");
    schliesse();
    for (const char* option : {"Option2", "Option3"}) {
        klicke(option);
        oeffne("frmProbe");
        buehne.bildschirme.geladen("frmLSTART")->hide();
        ueberfahre("Text1");
        EXPECT_EQ(titel(), "Jahreszahl nicht kleiner 1986 wählen.") << option;
        schliesse();
    }
}

TEST_F(ElementAuswertebereich, MittwochBEndetImJahr2000)
{
    zeige("Option3");
    EXPECT_EQ(lies("Text1"), "1986");
    EXPECT_EQ(lies("Text2"), "2000");
    EXPECT_EQ(eintraege("cmbVon").size(), 15);
    EXPECT_EQ(lies("Text3"), "757");
}

TEST_F(ElementAuswertebereich, EinLeeresArchivHatWederJahreNochZiehungen)
{
    schreibe("MALOTTO.DAT", {});
    zeige("Option2");
    EXPECT_EQ(lies("Text1"), "");
    EXPECT_THAT(eintraege("cmbVon"), IsEmpty());
    EXPECT_THAT(eintraege("cmbT3"), IsEmpty());
    EXPECT_EQ(werteAus(), std::nullopt);
    EXPECT_THAT(boxen(), ElementsAre(vierstellig));
}

TEST_F(ElementAuswertebereich, FolgtEinemAnderenArchivUndBehaeltDieEingaben)
{
    zeige("Option2");
    setze("Text1", "1990");
    setze("Text2", "1995");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    probe->bereich->folgeArchiv();
    EXPECT_EQ(lies("Text1"), "1990");
    EXPECT_EQ(lies("Text2"), "1995");
    EXPECT_EQ(eintraege("cmbT3").size(), 757);
    EXPECT_EQ(werteAus(), Ziehungsbereich({1990, 1995}));
}

TEST_F(ElementAuswertebereich, FolgtEinemAnderenArchivAuchInDerFormNachZiehung)
{
    zeige("Option2");
    klicke("Befehl9");
    setze("Text3", "1500");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    probe->bereich->folgeArchiv();
    EXPECT_TRUE(sichtbar("Rahmen2"));
    EXPECT_EQ(lies("Text3"), "1500");
    const auto bereich = werteAus();
    ASSERT_TRUE(bereich.has_value());
    EXPECT_EQ(bereich->letzteZiehung, 757);
    EXPECT_EQ(lies("Text3"), "757");
}

TEST_F(ElementAuswertebereich, DieVerborgenenJahreSindDieDesNeuenArchivs)
{
    zeige("Option3");
    klicke("Befehl9");
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    probe->bereich->folgeArchiv();
    EXPECT_EQ(lies("Text3"), "757");
    setze("Text3", "1000");
    EXPECT_EQ(werteAus(), Ziehungsbereich({1986, 2026, 1000}));
}

TEST_F(ElementAuswertebereich, DieVerborgeneZiehungIstDieLetzteDesNeuenArchivs)
{
    zeige("Option3");
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    probe->bereich->folgeArchiv();
    klicke("Befehl9");
    EXPECT_EQ(lies("Text3"), QString::number(buehne.archiv.AnzahlZiehungen));
}

TEST_F(ElementAuswertebereich, EigeneNamenGeltenFuerJedesFeld)
{
    class Andere final : public Bildschirm {
    public:
        explicit Andere(Umgebung& umgebung) : Bildschirm(umgebung, "frmAndere", "Andere")
        {
            static constexpr AuswertebereichNamen kNamen{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
            setzeInhalt(spalte({new AuswertebereichView(*this, kNamen)}));
        }
    };
    buehne.bildschirme.registriere<Andere>("frmAndere");
    const Bildschirm& andere = buehne.bildschirme.oeffne("frmAndere");
    for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"})
        EXPECT_EQ(andere.findChildren<QWidget*>(name).size(), 1) << name;
    EXPECT_EQ(andere.findChild<QWidget*>("Text1"), nullptr);
}

} // namespace
