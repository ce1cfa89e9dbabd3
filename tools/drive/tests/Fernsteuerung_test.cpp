#include "shell/elements/Bildschirm.h"
#include "shell/elements/DateiDialog.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "testhilfen/Programmbuehne.h"
#include "tools/drive/Fernsteuerung.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEventLoop>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextEdit>

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int kGeduld = 20000; ///< milliseconds after which a script that does not end has failed

/// A screen with one control of every kind.
class Werkzeug final : public Bildschirm {
public:
    Werkzeug(Umgebung& umgebung, const QString& name) : Bildschirm(umgebung, name, "Werkzeug " + name)
    {
        Befehl1 = befehl("Befehl1", "&Start", hinweis("Startet."));
        Befehl2 = befehl("Befehl2", "Abbruch");
        Befehl3 = befehl("Befehl3", "verborgen");
        Befehl4 = befehl("Befehl4", "gesperrt", hinweis("Geht nicht."));
        Befehl5 = befehl("Befehl5", "Boxen");
        Befehl6 = befehl("Befehl6", "Öffner, Ablage, Drucker");
        Befehl7 = befehl("Befehl7", "&<<");
        Bezeichnung1 = bezeichnung("Bezeichnung1");
        Bezeichnung2 = bezeichnung("Bezeichnung2(17)", "  a\tb \r\nc\n");
        Text1 = textfeld("Text1", "alt");
        Text2 = textfeld("Text2", "fest");
        Kombi1 = kombi("Kombi1");
        Kombi2 = kombi("Kombi2");
        Kontroll1 = kontroll("Kontroll1", "Ja");
        Option1 = option("optZ(0)", "eins");
        Option2 = option("optZ(1)", "zwei");
        Liste1 = liste("Liste1", {.MultiSelect = true});
        Liste2 = liste("Liste2");
        Bildlauf1 = new QScrollBar(Qt::Horizontal, this);
        Bildlauf1->setObjectName("Bildlauf1");
        lang = new QTextEdit(this);
        lang->setObjectName("Text3");
        Timer1 = new QTimer(this);
        Timer1->setObjectName("Timer1");

        Befehl3->hide();
        Befehl4->setEnabled(false);
        Text2->setReadOnly(true);
        Kombi1->addItems({"eins", "zwei", "   3"});
        Kombi2->addItems({"1955", "1956"});
        Kombi2->setEditable(true);
        Bildlauf1->setRange(5, 50);
        for (int i = 0; i < 100; ++i)
            Liste1->modell().AddItem("Zeile\t" + std::to_string(i) + " \n");
        Liste2->modell().AddItem("einzige");
        verbinde();

        setzeInhalt(spalte({
            zeile({Befehl1, Befehl2, Befehl3, Befehl4, Befehl5, Befehl6, Befehl7}),
            zeile({Bezeichnung1, Bezeichnung2, Text1, Text2, Kombi1, Kombi2}),
            zeile({Kontroll1, rahmen("Rahmen1", "Rahmen", zeile({Option1, Option2})), Bildlauf1}),
            zeile({dehnbar(Liste1), dehnbar(Liste2), lang}),
        }));
    }

private:
    void verbinde()
    {
        bei(Befehl1, [this] { laufe(); });
        bei(Befehl2, [this] { stoppe(); });
        bei(Befehl5, [this] { zeigeBoxen(); });
        bei(Befehl6, [this] { wirkeNachAussen(); });
        bei(Befehl7, [this] { schliesse(); });
        bei(Kombi1, [this] { melde("Kombi1 " + Kombi1->currentText()); });
        bei(Kontroll1, [this] { melde("Kontroll1"); });
        connect(Text1, &QLineEdit::textEdited, this, [this](const QString& text) { melde("Text1 " + text); });
        connect(Bildlauf1, &QScrollBar::valueChanged, this, [this](int wert) { melde(QString::number(wert)); });
        connect(Timer1, &QTimer::timeout, this, [this] { melde(Bezeichnung1->text() + "tick"); });
        Liste1->beiDoppelklick = [this](int reihe) { melde(QString("doppelt %1").arg(reihe)); };
        Liste2->beiAuswahl = [this] { melde("Liste2"); };
    }

    void melde(const QString& text) { Bezeichnung1->setText(text); }

    void laufe()
    {
        Lauf lauf(*this);
        if (!lauf)
            return;
        while (lauf.weiter()) {
        }
        setzeTitel("Ergebnis");
        melde("gelaufen");
    }

    void zeigeBoxen()
    {
        Boxen& boxen = umgebung().boxen;
        boxen.info("Lotto-Info", "Zeile 1\nZeile 2");
        const bool ja = boxen.frage("Lotto-Hinweis", "Sicher?");
        const auto text = boxen.eingabe("Lotto-Nachricht", "Name?", "Vorgabe");
        QString pfad = "/start/";
        const QString datei = DateiOeffnen(umgebung(), "", pfad, "Text|*.txt", "Laden", "txt");
        melde(QString("%1|%2|%3|%4").arg(ja).arg(text.value_or("-"), pfad, datei));
    }

    void wirkeNachAussen()
    {
        umgebung().oeffner.oeffne("/tmp/eins zwei.htm");
        umgebung().oeffner.oeffne("https://example.org/");
        umgebung().zwischenablage.setze("\r\n*** A ***\r\n 1\t2\r\n");
        melde(umgebung().drucker.drucke("Titel", [](QPainter& maler, auto&) { maler.drawText(0, 100, "Druck"); })
                  ? "gedruckt"
                  : "kein Drucker");
    }

    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7;
    QLabel *Bezeichnung1, *Bezeichnung2;
    QLineEdit *Text1, *Text2;
    QComboBox *Kombi1, *Kombi2;
    QCheckBox* Kontroll1;
    QRadioButton *Option1, *Option2;
    Liste *Liste1, *Liste2;
    QScrollBar* Bildlauf1;
    QTextEdit* lang;
    QTimer* Timer1;
};

class Fernsteuerungstest : public Programmbuehne {
protected:
    void registriere(const QString& name)
    {
        buehne.bildschirme.registriere(
            name, [name](Umgebung& umgebung) { return std::make_unique<Werkzeug>(umgebung, name); });
    }

    /// The menu with one ordinary tool and one of the panel; the tool is open.
    void zeigeWerkzeug()
    {
        registriere("frmZuletzt");
        registriere("frmZusammenGU");
        starte();
        skript({"open frmZuletzt"});
    }

    /// Obeys the lines as they come from standard input, up to the end of the input. What was printed.
    QStringList skript(const QStringList& zeilen)
    {
        QStringList ausgabe;
        Fernsteuerung steuerung(buehne, [&ausgabe](const QString& zeile) { ausgabe << zeile; });
        QEventLoop schleife;
        QTimer geduld;
        geduld.setSingleShot(true);
        QObject::connect(&geduld, &QTimer::timeout, &schleife, [&] {
            ADD_FAILURE() << "Das Skript endet nicht: " << ausgabe.join('\n').toStdString();
            buehne.pumpe.beendet = true;
            schleife.quit();
        });
        geduld.start(kGeduld);
        steuerung.beiEnde = [&schleife] { schleife.quit(); };
        for (const QString& zeile : zeilen)
            QMetaObject::invokeMethod(
                &steuerung, [&steuerung, zeile] { steuerung.nimm(zeile); }, Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            &steuerung, [&steuerung] { steuerung.nimmEnde(); }, Qt::QueuedConnection);
        schleife.exec();
        buehne.pumpe.beendet = false;
        missglueckt = steuerung.missglueckt();
        return ausgabe;
    }

    /// The answer of one command, without the repeated command.
    QStringList antwort(const QString& zeile)
    {
        QStringList ausgabe = skript({zeile});
        EXPECT_EQ(ausgabe.value(0), "> " + zeile);
        return ausgabe.mid(1);
    }

    bool missglueckt = false;
};

TEST_F(Fernsteuerungstest, WiederholtDenBefehlUndRuecktDieAntwortEin)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"get Text1"}), ElementsAre("> get Text1", "  alt"));
    EXPECT_FALSE(missglueckt);
}

TEST_F(Fernsteuerungstest, UebergehtLeereZeilenUndKommentare)
{
    starte();
    EXPECT_THAT(skript({"", "   ", "# get nichts", "#", "title"}), ElementsAre("> title", "  Lotto-Auswahlmenü"));
    EXPECT_FALSE(missglueckt);
}

TEST_F(Fernsteuerungstest, EinUnbekannterBefehlMissglueckt)
{
    starte();
    EXPECT_THAT(skript({"tanze Befehl2", "title"}),
                ElementsAre("> tanze Befehl2", "! unbekannter Befehl tanze", "> title", "  Lotto-Auswahlmenü"));
    EXPECT_TRUE(missglueckt);
}

TEST_F(Fernsteuerungstest, JederBefehlDerEinenNamenBrauchtVerweigertEinenUnbekannten)
{
    zeigeWerkzeug();
    for (const QString befehl : {"click", "dblclick", "hover", "press", "release", "get", "state"})
        EXPECT_THAT(antwort(befehl + " Befehl99"), ElementsAre("! kein Feld Befehl99")) << befehl.toStdString();
    EXPECT_THAT(antwort("set Befehl99 x"), ElementsAre("! kein Feld Befehl99"));
    EXPECT_THAT(antwort("key Befehl99 Down"), ElementsAre("! kein Feld Befehl99"));
    for (const QString befehl : {"count", "rows", "selected"})
        EXPECT_THAT(antwort(befehl + " Befehl99"), ElementsAre("! keine Liste Befehl99")) << befehl.toStdString();
    EXPECT_THAT(antwort("select Befehl99 0"), ElementsAre("! keine Liste Befehl99"));
    EXPECT_THAT(antwort("colors Befehl99 0"), ElementsAre("! keine Liste Befehl99"));
    EXPECT_THAT(antwort("items Befehl99"), ElementsAre("! keine Auswahl Befehl99"));
    EXPECT_THAT(antwort("tick Befehl99"), ElementsAre("! keine Uhr Befehl99"));
    EXPECT_TRUE(missglueckt);
}

TEST_F(Fernsteuerungstest, VerweigertVerborgeneUndGesperrteFelder)
{
    zeigeWerkzeug();
    for (const QString befehl : {"click", "dblclick", "press", "release"}) {
        EXPECT_THAT(antwort(befehl + " Befehl3"), ElementsAre("! Befehl3 ist verborgen"));
        EXPECT_THAT(antwort(befehl + " Befehl4"), ElementsAre("! Befehl4 ist gesperrt"));
    }
    EXPECT_THAT(antwort("hover Befehl3"), ElementsAre("! Befehl3 ist verborgen"));
    EXPECT_THAT(antwort("key Befehl4 Space"), ElementsAre("! Befehl4 ist gesperrt"));
    EXPECT_THAT(antwort("set Befehl3 on"), ElementsAre("! Befehl3 ist verborgen"));
    EXPECT_THAT(antwort("get Befehl3"), ElementsAre("  verborgen"));
}

TEST_F(Fernsteuerungstest, HoverZeigtAuchDenHinweisEinesGesperrtenFeldes)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"hover Befehl4", "title", "hover frmZuletzt", "title"}),
                ElementsAre("> hover Befehl4", "> title", "  Geht nicht.", "> hover frmZuletzt", "> title",
                            "  Werkzeug frmZuletzt"));
}

TEST_F(Fernsteuerungstest, ZaehltDieBildschirmeAuf)
{
    zeigeWerkzeug();
    const QStringList namen = antwort("screens");
    EXPECT_EQ(namen.value(0), "  frmLSTART");
    EXPECT_THAT(namen, Contains("  frmSTAT1"));
    EXPECT_THAT(namen, Contains("  frmZusammenGU"));
}

TEST_F(Fernsteuerungstest, OeffnetUeberDenKnopfDesMenues)
{
    registriere("frmZuletzt");
    starte();
    EXPECT_THAT(skript({"open frmZuletzt", "title"}),
                ElementsAre("> open frmZuletzt", "> title", "  Werkzeug frmZuletzt"));
    EXPECT_EQ(buehne.klang.gespielt, std::vector<int>{1});
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Fernsteuerungstest, OeffnetEinWerkzeugDerTafelUeberZusammen)
{
    registriere("frmZusammenGU");
    starte();
    skript({"open frmZusammenGU"});
    EXPECT_EQ(buehne.klang.gespielt, std::vector<int>{1});
    EXPECT_THAT(skript({"use frmLSTART", "state Option4", "use frmZusammenGU", "close", "state frameRollo"}),
                Contains(testing::Truly([](const QString& z) {
                    return z.startsWith("  visible=false enabled=true checked=true");
                })).Times(1));
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Fernsteuerungstest, OeffnetNachDerTafelWiederEinGewoehnlichesWerkzeug)
{
    registriere("frmZusammenGU");
    starte();
    skript({"click Option2", "open frmZusammenGU", "close", "open frmSTAT1"});
    EXPECT_FALSE(missglueckt);
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(titel(), "Häufigkeitsverteilung der einzelnen Gewinnzahlen");
}

TEST_F(Fernsteuerungstest, OeffnetUeberDasPopup)
{
    registriere("GLOTTO");
    starte();
    EXPECT_THAT(antwort("open GLOTTO"), IsEmpty());
    EXPECT_EQ(buehne.klang.gespielt, std::vector<int>{1});
    EXPECT_THAT(antwort("title"), ElementsAre("  Werkzeug GLOTTO"));
}

TEST_F(Fernsteuerungstest, OeffnetWasKeinenKnopfHatOhneDasMenue)
{
    registriere("frmDetail");
    starte();
    EXPECT_THAT(skript({"open frmDetail", "title"}),
                ElementsAre("> open frmDetail", "> title", "  Werkzeug frmDetail"));
    EXPECT_THAT(buehne.klang.gespielt, IsEmpty());
}

TEST_F(Fernsteuerungstest, OeffnetNichtsWasGesperrtOderUnbekanntIst)
{
    registriere("frmTA");
    starte();
    EXPECT_THAT(antwort("open frmGibtEsNicht"), ElementsAre("! kein Bildschirm frmGibtEsNicht"));
    EXPECT_THAT(skript({"click Option3", "open frmTA"}),
                ElementsAre("> click Option3", "> open frmTA", "! Befehl18 ist gesperrt"));
}

TEST_F(Fernsteuerungstest, EintraegeDesPopupsLassenSichAnklickenSolangeEsOffenIst)
{
    registriere("GLOTTO");
    starte();
    buehne.bildschirme.geladen("frmLSTART")->findChild<QAction*>("mnuAnimat")->setEnabled(false);
    EXPECT_THAT(antwort("click mnuSchein"), ElementsAre("! mnuSchein ist verborgen"));
    EXPECT_THAT(skript({"click Befehl1", "click mnuAnimat", "click mnuSchein", "title"}),
                ElementsAre("> click Befehl1", "> click mnuAnimat", "! mnuAnimat ist gesperrt", "> click mnuSchein",
                            "> title", "  Werkzeug GLOTTO"));
    const QStringList stand = skript({"use frmLSTART", "state mnuSchein", "state mnuAnimat", "get mnuSchein"});
    EXPECT_THAT(stand, Contains(testing::Truly([](const QString& z) {
                    return z.startsWith("  visible=false enabled=true checked=true");
                })));
    EXPECT_THAT(stand, Contains(testing::Truly([](const QString& z) {
                    return z.startsWith("  visible=false enabled=false checked=false");
                })));
    EXPECT_EQ(stand.last(), "  Zufallstipps als Tippschein");
}

TEST_F(Fernsteuerungstest, UseNimmtEinenOffenenBildschirmAuchEinenVerborgenen)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"use frmLSTART", "title", "get Option1", "click Option1", "use frmZuletzt", "title"}),
                ElementsAre("> use frmLSTART", "> title", "  Lotto-Auswahlmenü", "> get Option1", "  Samstagslotto",
                            "> click Option1", "! Option1 ist verborgen", "> use frmZuletzt", "> title",
                            "  Werkzeug frmZuletzt"));
    EXPECT_THAT(antwort("use frmSTAT1"), ElementsAre("! nicht offen: frmSTAT1"));
}

TEST_F(Fernsteuerungstest, NachCloseGiltDerBildschirmDerGezeigtWird)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"close", "title", "get Text1"}),
                ElementsAre("> close", "> title", "  Lotto-Auswahlmenü", "> get Text1", "! kein Feld Text1"));
    EXPECT_EQ(buehne.bildschirme.geladen("frmZuletzt"), nullptr);
}

TEST_F(Fernsteuerungstest, FolgtDemBildschirmDenEinKnopfOeffnetUndSchliesst)
{
    registriere("frmZuletzt");
    starte();
    EXPECT_THAT(skript({"click Befehl4", "title", "click Befehl7", "title"}),
                ElementsAre("> click Befehl4", "> title", "  Werkzeug frmZuletzt", "> click Befehl7", "> title",
                            "  Lotto-Auswahlmenü"));
}

TEST_F(Fernsteuerungstest, NamesZeigtNamenKlasseUndText)
{
    zeigeWerkzeug();
    const QStringList namen = antwort("names");
    EXPECT_THAT(namen, Contains("  Befehl1\tQPushButton\t&Start"));
    EXPECT_THAT(namen, Contains("  Befehl3\tQPushButton\tverborgen"));
    EXPECT_THAT(namen, Contains("  Bezeichnung2(17)\tQLabel\t  a\tb \\nc\\n"));
    EXPECT_THAT(namen, Contains("  Kombi2\tQComboBox\t1955"));
    EXPECT_THAT(namen, Contains("  Timer1\tQTimer\t"));
    EXPECT_THAT(namen, Not(Contains(testing::Truly([](const QString& z) { return z.startsWith("  qt_"); }))));
}

TEST_F(Fernsteuerungstest, GetLiestJedeArtVonFeld)
{
    zeigeWerkzeug();
    EXPECT_THAT(antwort("get Befehl1"), ElementsAre("  &Start"));
    EXPECT_THAT(antwort("get Bezeichnung2(17)"), ElementsAre("    a\tb \\nc\\n"));
    EXPECT_THAT(antwort("get Bezeichnung1"), ElementsAre("  "));
    EXPECT_THAT(antwort("get Kombi1"), ElementsAre("  eins"));
    EXPECT_THAT(antwort("get Kontroll1"), ElementsAre("  Ja"));
    EXPECT_THAT(antwort("get Bildlauf1"), ElementsAre("  5"));
    EXPECT_THAT(antwort("get Rahmen1"), ElementsAre("  Rahmen"));
    EXPECT_THAT(antwort("get Liste1"), ElementsAre("  "));
    EXPECT_THAT(antwort("get frmZuletzt"), ElementsAre("  Werkzeug frmZuletzt"));
}

TEST_F(Fernsteuerungstest, SetGibtInEinTextfeldEinWieEinBenutzer)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"set Text1  neu mit  Lücken ", "get Text1", "get Bezeichnung1"}),
                ElementsAre("> set Text1  neu mit  Lücken ", "> get Text1", "   neu mit  Lücken ", "> get Bezeichnung1",
                            "  Text1  neu mit  Lücken "));
    EXPECT_THAT(skript({"set Text1", "get Text1"}), ElementsAre("> set Text1", "> get Text1", "  "));
    EXPECT_THAT(antwort("set Text2 x"), ElementsAre("! Text2: nur zum Lesen"));
    EXPECT_THAT(skript({"set Text3 lang", "get Text3"}), ElementsAre("> set Text3 lang", "> get Text3", "  lang"));
}

TEST_F(Fernsteuerungstest, SetWaehltEinenEintragOderTipptIhn)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"set Kombi1 zwei", "get Kombi1", "get Bezeichnung1"}),
                ElementsAre("> set Kombi1 zwei", "> get Kombi1", "  zwei", "> get Bezeichnung1", "  Kombi1 zwei"));
    EXPECT_THAT(skript({"set Kombi1 3", "get Kombi1"}), ElementsAre("> set Kombi1 3", "> get Kombi1", "     3"));
    EXPECT_THAT(antwort("set Kombi1 vier"), ElementsAre("! Kombi1: kein Eintrag vier"));
    EXPECT_THAT(skript({"set Kombi2 2001", "get Kombi2"}), ElementsAre("> set Kombi2 2001", "> get Kombi2", "  2001"));
    EXPECT_THAT(antwort("items Kombi1"), ElementsAre("  eins", "  zwei", "     3"));
    EXPECT_THAT(antwort("count Kombi1"), ElementsAre("  3"));
}

TEST_F(Fernsteuerungstest, SetSchaltetKaestchenUndOptionen)
{
    zeigeWerkzeug();
    const auto gesetzt = [this](const QString& name) { return zustand(name).contains("checked=true"); };
    skript({"set Kontroll1 on"});
    EXPECT_TRUE(gesetzt("Kontroll1"));
    EXPECT_THAT(skript({"set Kontroll1 on", "get Bezeichnung1", "set Kontroll1 off"}),
                ElementsAre("> set Kontroll1 on", "> get Bezeichnung1", "  Kontroll1", "> set Kontroll1 off"));
    EXPECT_FALSE(gesetzt("Kontroll1"));
    skript({"set optZ(1) on"});
    EXPECT_TRUE(gesetzt("optZ(1)"));
    EXPECT_FALSE(gesetzt("optZ(0)"));
    EXPECT_THAT(antwort("set optZ(1) off"), ElementsAre("! optZ(1): bleibt, wie es ist"));
    EXPECT_THAT(antwort("set Kontroll1 ja"), ElementsAre("! Kontroll1: weder on noch off"));
    EXPECT_THAT(antwort("set Befehl1 on"), ElementsAre("! Befehl1: weder on noch off"));
    EXPECT_THAT(antwort("set Bezeichnung1 x"), ElementsAre("! Bezeichnung1: nimmt keine Eingabe"));
}

TEST_F(Fernsteuerungstest, SetStelltEinenRollbalken)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"set Bildlauf1 42", "get Bildlauf1", "get Bezeichnung1"}),
                ElementsAre("> set Bildlauf1 42", "> get Bildlauf1", "  42", "> get Bezeichnung1", "  42"));
    EXPECT_THAT(antwort("set Bildlauf1 51"), ElementsAre("! Bildlauf1: kein Wert von 5 bis 50"));
    EXPECT_THAT(antwort("set Bildlauf1 viel"), ElementsAre("! Bildlauf1: kein Wert von 5 bis 50"));
}

TEST_F(Fernsteuerungstest, KeyDruecktTastenUndTipptText)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"key Text1 End", "key Text1 1955/01", "get Text1"}).last(), "  alt1955/01");
    EXPECT_THAT(skript({"key Text1 Ctrl+A Delete", "key Text1 Groß", "get Text1"}).last(), "  Groß");
    EXPECT_THAT(skript({"key Text1 Home Delete", "get Text1"}).last(), "  roß");
    EXPECT_THAT(skript({"key Liste1 PgDown", "selected Liste1", "key Liste1 Home", "selected Liste1"}).last(), "  0");
    EXPECT_THAT(skript({"key Kombi1 Down", "get Kombi1"}).last(), "  zwei");
}

TEST_F(Fernsteuerungstest, KeyGehtMitDemFokusWeiter)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"key Befehl6 Tab Space", "title"}).last(), "  Lotto-Auswahlmenü");
}

TEST_F(Fernsteuerungstest, KeyDruecktEinenKnopfUeberSeinenUnterstrichenenBuchstaben)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"key Text1 Alt+S", "wait 300", "title", "click Befehl2"}), Contains("  Bitte warten !"));
}

TEST_F(Fernsteuerungstest, EscSchliesstDenBildschirm)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"key Text1 Esc", "title"}).last(), "  Lotto-Auswahlmenü");
}

TEST_F(Fernsteuerungstest, ListenGebenZeilenAnzahlUndAuswahl)
{
    zeigeWerkzeug();
    EXPECT_THAT(antwort("count Liste1"), ElementsAre("  100"));
    EXPECT_THAT(antwort("rows Liste1 98"), ElementsAre("  Zeile\t98 \\n", "  Zeile\t99 \\n"));
    EXPECT_THAT(antwort("rows Liste1 3 2"), ElementsAre("  Zeile\t3 \\n", "  Zeile\t4 \\n"));
    EXPECT_THAT(antwort("rows Liste1 3 0"), IsEmpty());
    EXPECT_THAT(antwort("rows Liste1 100 5"), IsEmpty());
    EXPECT_THAT(antwort("rows Liste1"), SizeIs(100));
    EXPECT_THAT(antwort("rows Liste1 x"), ElementsAre("! keine Zeilen x"));
    EXPECT_THAT(antwort("selected Liste1"), IsEmpty());
}

TEST_F(Fernsteuerungstest, SelectKlicktZeilen)
{
    zeigeWerkzeug();
    EXPECT_THAT(
        skript({"select Liste1 2,97,5", "selected Liste1", "get Liste1"}),
        ElementsAre("> select Liste1 2,97,5", "> selected Liste1", "  2,5,97", "> get Liste1", "  Zeile\t2 \\n"));
    EXPECT_THAT(skript({"select Liste1 50", "selected Liste1"}).last(), "  50");
    EXPECT_THAT(antwort("select Liste1 100"), ElementsAre("! Liste1 hat keine Zeile 100"));
    EXPECT_THAT(antwort("select Liste1 -1"), ElementsAre("! keine Zeile -1"));
    EXPECT_THAT(antwort("select Liste1"), ElementsAre("! keine Zeile "));
    EXPECT_THAT(antwort("select Liste1 a"), ElementsAre("! keine Zeile a"));
    skript({"select Liste2 0"});
    EXPECT_THAT(antwort("get Bezeichnung1"), ElementsAre("  Liste2"));
}

TEST_F(Fernsteuerungstest, DblclickTrifftDieGewaehlteZeile)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"select Liste1 93", "dblclick Liste1", "get Bezeichnung1"}).last(), "  doppelt 93");
}

TEST_F(Fernsteuerungstest, ColorsZeigtDieFarbenDerZellen)
{
    zeigeWerkzeug();
    const QPalette farben = QApplication::palette();
    const auto paar = [&](QPalette::ColorRole grund, QPalette::ColorRole schrift) {
        return "  " + farben.color(grund).name() + "/" + farben.color(schrift).name();
    };
    skript({"select Liste1 1"});
    EXPECT_THAT(antwort("colors Liste1 0"), ElementsAre(paar(QPalette::Base, QPalette::Text)));
    EXPECT_THAT(antwort("colors Liste1 1"), ElementsAre(paar(QPalette::Highlight, QPalette::HighlightedText)));
    EXPECT_THAT(antwort("colors Liste1 100"), ElementsAre("! Liste1 hat keine Zeile 100"));
    EXPECT_THAT(antwort("colors Liste1"), ElementsAre("! keine Zeile "));
}

TEST_F(Fernsteuerungstest, StateZeigtDenZustandWieErZuSehenIst)
{
    zeigeWerkzeug();
    const QPalette p = QApplication::palette();
    const auto zeile = [](const char* stand, const QColor& grund, const QColor& schrift) {
        return QString("  %1 back=%2 fore=%3").arg(stand, grund.name(), schrift.name());
    };
    const auto farbe = [&p](QPalette::ColorRole rolle) { return p.color(rolle); };
    const auto blass = [&p](QPalette::ColorRole rolle) { return p.color(QPalette::Disabled, rolle); };
    EXPECT_THAT(antwort("state Befehl4"), ElementsAre(zeile("visible=true enabled=false checked=false bold=false",
                                                            blass(QPalette::Button), blass(QPalette::ButtonText))));
    EXPECT_THAT(antwort("state Befehl3"), ElementsAre(zeile("visible=false enabled=true checked=false bold=false",
                                                            farbe(QPalette::Button), farbe(QPalette::ButtonText))));
    EXPECT_THAT(antwort("state Liste1"), ElementsAre(zeile("visible=true enabled=true checked=false bold=false",
                                                           farbe(QPalette::Base), farbe(QPalette::Text))));
    EXPECT_THAT(antwort("state Bezeichnung1"),
                ElementsAre(zeile("visible=true enabled=true checked=false bold=false", farbe(QPalette::Window),
                                  farbe(QPalette::WindowText))));
    auto* bezeichnung = buehne.bildschirme.geladen("frmZuletzt")->findChild<QLabel*>("Bezeichnung1");
    markiere(bezeichnung, true);
    EXPECT_THAT(antwort("state Bezeichnung1"),
                ElementsAre("  visible=true enabled=true checked=false bold=true back=#00ffff fore=#ff0000"));
    auto* text = buehne.bildschirme.geladen("frmZuletzt")->findChild<QLineEdit*>("Text1");
    faerbe(text, Qt::yellow, Qt::red);
    EXPECT_THAT(antwort("state Text1"),
                ElementsAre("  visible=true enabled=true checked=false bold=false back=#ffff00 fore=#ff0000"));
    auto* lang = buehne.bildschirme.geladen("frmZuletzt")->findChild<QTextEdit*>("Text3");
    faerbe(lang, Qt::yellow, Qt::red);
    EXPECT_THAT(antwort("state Text3"),
                ElementsAre("  visible=true enabled=true checked=false bold=false back=#ffff00 fore=#ff0000"));
}

TEST_F(Fernsteuerungstest, PressUndReleaseSindDieHaelftenEinesKlicks)
{
    zeigeWerkzeug();
    skript({"press Kontroll1"});
    EXPECT_TRUE(zustand("Kontroll1").contains("checked=false"));
    skript({"release Kontroll1"});
    EXPECT_TRUE(zustand("Kontroll1").contains("checked=true"));
}

TEST_F(Fernsteuerungstest, BoxenWerdenOhneAntwortAbgelehntUndAufgeschrieben)
{
    zeigeWerkzeug();
    skript({"click Befehl5"});
    EXPECT_THAT(antwort("boxes"),
                ElementsAre("  info\tLotto-Info\tZeile 1\\nZeile 2\tok", "  question\tLotto-Hinweis\tSicher?\tno",
                            "  input\tLotto-Nachricht\tName?\tcancel", "  file\tLaden\t/start\tcancel"));
    EXPECT_THAT(antwort("boxes"), IsEmpty());
    EXPECT_THAT(antwort("get Bezeichnung1"), ElementsAre("  0|-|/start/|"));
}

TEST_F(Fernsteuerungstest, BoxenNehmenDieVorgemerktenAntworten)
{
    zeigeWerkzeug();
    EXPECT_THAT(antwort("answer yes text:zwei  Worte file:/tmp/mit Lücke.txt"), IsEmpty());
    skript({"click Befehl5"});
    const QStringList gezeigt = antwort("boxes");
    ASSERT_THAT(gezeigt, SizeIs(4));
    EXPECT_EQ(gezeigt[1], "  question\tLotto-Hinweis\tSicher?\tyes");
    EXPECT_EQ(gezeigt[2], "  input\tLotto-Nachricht\tName?\ttext:zwei  Worte");
    EXPECT_EQ(gezeigt[3], "  file\tLaden\t/start\tfile:/tmp/mit Lücke.txt");
    EXPECT_THAT(antwort("get Bezeichnung1"), ElementsAre("  1|zwei  Worte|/tmp/|mit Lücke.txt"));
}

TEST_F(Fernsteuerungstest, OkNimmtDieVorgabeUndCancelBricht)
{
    zeigeWerkzeug();
    skript({"answer ok", "answer no ok cancel", "click Befehl5"});
    EXPECT_THAT(antwort("get Bezeichnung1"), ElementsAre("  0|Vorgabe|/start/|"));
    EXPECT_THAT(antwort("answer vielleicht"), ElementsAre("! keine Antwort vielleicht"));
    EXPECT_THAT(antwort("answer"), ElementsAre("! keine Antwort "));
}

TEST_F(Fernsteuerungstest, MerktZwischenablageUndGeoeffnetes)
{
    zeigeWerkzeug();
    EXPECT_THAT(antwort("clipboard"), ElementsAre("  "));
    skript({"click Befehl6"});
    EXPECT_THAT(antwort("clipboard"), ElementsAre("  \\n*** A ***\\n 1\t2\\n"));
    EXPECT_THAT(antwort("opened"), ElementsAre("  /tmp/eins zwei.htm", "  https://example.org/"));
    EXPECT_THAT(antwort("opened"), IsEmpty());
}

TEST_F(Fernsteuerungstest, DrucktInDieGenannteDatei)
{
    zeigeWerkzeug();
    const QString pdf = ordner.filePath("mit Lücke.pdf");
    EXPECT_EQ(skript({"click Befehl6", "get Bezeichnung1"}).last(), "  kein Drucker");
    EXPECT_EQ(skript({"printer " + pdf, "click Befehl6", "get Bezeichnung1"}).last(), "  gedruckt");
    EXPECT_TRUE(QFile::exists(pdf));
    EXPECT_EQ(skript({"printer none", "click Befehl6", "get Bezeichnung1"}).last(), "  kein Drucker");
}

TEST_F(Fernsteuerungstest, StelltDieUhr)
{
    starte();
    EXPECT_THAT(antwort("clock 2026-11-21T19:30:00"), IsEmpty());
    EXPECT_GE(buehne.uhr.Timer(), 19.5 * 3600);
    EXPECT_LT(buehne.uhr.Timer(), 19.5 * 3600 + 10);
    EXPECT_THAT(antwort("clock gestern"), ElementsAre("! keine Zeit gestern"));
}

TEST_F(Fernsteuerungstest, GleicheSaatGibtGleicheTipps)
{
    starte();
    const auto tipp = [this](const QString& saat) {
        QStringList zeilen{"seed " + saat, "hover Befehl13"};
        for (int zahl = 1; zahl <= 49; ++zahl)
            zeilen << QString("state Bezeichnung1(%1)").arg(zahl);
        return skript(zeilen).mid(1);
    };
    const QStringList erster = tipp("7");
    EXPECT_EQ(erster.filter("bold=true").size(), 6);
    EXPECT_EQ(tipp("7"), erster);
    EXPECT_NE(tipp("8"), erster);
    EXPECT_THAT(antwort("seed x"), ElementsAre("! keine Saat x"));
}

TEST_F(Fernsteuerungstest, TickLaesstEineUhrEinmalSchlagen)
{
    zeigeWerkzeug();
    EXPECT_EQ(skript({"tick Timer1", "tick Timer1", "get Bezeichnung1"}).last(), "  ticktick");
}

TEST_F(Fernsteuerungstest, ShotMaltDenBildschirm)
{
    zeigeWerkzeug();
    const QString datei = ordner.filePath("bild 1.png");
    EXPECT_THAT(antwort("shot " + datei), IsEmpty());
    EXPECT_EQ(QImage(datei).size(), buehne.bildschirme.geladen("frmZuletzt")->size());
    EXPECT_THAT(antwort("shot /gibt/es/nicht.png"), ElementsAre("! nicht zu schreiben: /gibt/es/nicht.png"));
}

TEST_F(Fernsteuerungstest, WaitLaesstDieEreignisseLaufenUndTimeMisstEs)
{
    zeigeWerkzeug();
    bool gelaufen = false;
    QTimer::singleShot(30, [&gelaufen] { gelaufen = true; });
    const QStringList ausgabe = skript({"wait 60", "time"});
    EXPECT_TRUE(gelaufen);
    ASSERT_THAT(ausgabe, SizeIs(3));
    EXPECT_TRUE(QRegularExpression("^  \\d+\\.\\d{3}$").match(ausgabe[2]).hasMatch()) << ausgabe[2].toStdString();
    EXPECT_GE(ausgabe[2].trimmed().toDouble(), 60);
    EXPECT_LT(ausgabe[2].trimmed().toDouble(), 1000);
    EXPECT_THAT(antwort("wait"), ElementsAre("! keine Dauer "));
    EXPECT_THAT(antwort("wait lang"), ElementsAre("! keine Dauer lang"));
    EXPECT_THAT(antwort("wait-idle -1"), ElementsAre("! keine Dauer -1"));
}

TEST_F(Fernsteuerungstest, TimeMisstDenLetztenBefehlUndNichtSichSelbst)
{
    zeigeWerkzeug();
    const QStringList ausgabe = skript({"wait 30", "time", "time"});
    EXPECT_EQ(ausgabe.value(2), ausgabe.value(4));
}

TEST_F(Fernsteuerungstest, TimeMisstEinenLaufMitDemWartenAufSeinEnde)
{
    zeigeWerkzeug();
    EXPECT_GE(skript({"click Befehl1", "wait 50", "click Befehl2", "wait-idle", "time"}).last().toDouble(), 50);
    EXPECT_GE(skript({"wait 40", "wait-idle", "time"}).last().toDouble(), 40);
}

TEST_F(Fernsteuerungstest, EinFolgenderKlickWirktMittenImLauf)
{
    zeigeWerkzeug();
    EXPECT_THAT(
        skript({"click Befehl1", "title", "get Text1", "click Befehl2", "wait-idle", "title", "get Bezeichnung1"}),
        ElementsAre("> click Befehl1", "> title", "  Bitte warten !", "> get Text1", "  alt", "> click Befehl2",
                    "> wait-idle", "> title", "  Ergebnis", "> get Bezeichnung1", "  gelaufen"));
}

TEST_F(Fernsteuerungstest, WaitImLaufLaesstIhnWeiterlaufen)
{
    zeigeWerkzeug();
    QElapsedTimer seit;
    seit.start();
    EXPECT_THAT(skript({"click Befehl1", "wait 80", "title", "click Befehl2", "wait-idle", "time"}),
                Contains("  Bitte warten !"));
    EXPECT_GE(seit.elapsed(), 80);
}

TEST_F(Fernsteuerungstest, WaitIdleGibtNachSeinerZeitAuf)
{
    zeigeWerkzeug();
    QElapsedTimer seit;
    seit.start();
    EXPECT_THAT(skript({"click Befehl1", "wait-idle 60", "title", "click Befehl2", "wait-idle", "title"}),
                ElementsAre("> click Befehl1", "> wait-idle 60", "> title", "  Bitte warten !", "> click Befehl2",
                            "> wait-idle", "> title", "  Ergebnis"));
    EXPECT_GE(seit.elapsed(), 60);
}

TEST_F(Fernsteuerungstest, WaitIdleWartetBisDerLaufVonSelbstEndet)
{
    zeigeWerkzeug();
    QElapsedTimer seit;
    seit.start();
    QTimer::singleShot(80, [this] { buehne.bildschirme.geladen("frmZuletzt")->stoppe(); });
    EXPECT_THAT(skript({"click Befehl1", "wait-idle", "title"}),
                ElementsAre("> click Befehl1", "> wait-idle", "> title", "  Ergebnis"));
    EXPECT_GE(seit.elapsed(), 80);
}

TEST_F(Fernsteuerungstest, WaitIdleOhneLaufWartetNicht)
{
    zeigeWerkzeug();
    QElapsedTimer seit;
    seit.start();
    skript({"wait-idle"});
    EXPECT_LT(seit.elapsed(), 1000);
}

TEST_F(Fernsteuerungstest, CloseMittenImLaufFuehrtZumMenue)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"click Befehl1", "close", "title", "open frmZuletzt", "get Bezeichnung1"}),
                ElementsAre("> click Befehl1", "> close", "> title", "  Lotto-Auswahlmenü", "> open frmZuletzt",
                            "> get Bezeichnung1", "  "));
    EXPECT_FALSE(missglueckt);
}

TEST_F(Fernsteuerungstest, ZurueckMittenImLaufFuehrtZumMenueAuchWennDieZeilenGesammeltKommen)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"wait 20", "click Befehl1", "wait 20", "click Befehl7", "wait-idle", "title"}).last(),
                "  Lotto-Auswahlmenü");
    EXPECT_FALSE(missglueckt);
}

TEST_F(Fernsteuerungstest, DasEndeDerEingabeHaeltDenLaufAn)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"click Befehl1"}), ElementsAre("> click Befehl1"));
    EXPECT_FALSE(buehne.bildschirme.geladen("frmZuletzt")->laeuft());
    EXPECT_THAT(antwort("get Bezeichnung1"), ElementsAre("  gelaufen"));
}

TEST_F(Fernsteuerungstest, QuitEndetSofortAuchImLauf)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"click Befehl1", "quit", "title", "get Text1"}), ElementsAre("> click Befehl1", "> quit"));
    EXPECT_FALSE(buehne.bildschirme.geladen("frmZuletzt")->laeuft());
}

TEST_F(Fernsteuerungstest, NachEinemFehlschlagGehtEsWeiter)
{
    zeigeWerkzeug();
    EXPECT_THAT(skript({"click Befehl3", "get Text1"}),
                ElementsAre("> click Befehl3", "! Befehl3 ist verborgen", "> get Text1", "  alt"));
    EXPECT_TRUE(missglueckt);
}

TEST_F(Fernsteuerungstest, OhneBildschirmVerweigertSie)
{
    EXPECT_THAT(antwort("title"), ElementsAre("! kein Bildschirm"));
    EXPECT_THAT(antwort("names"), ElementsAre("! kein Bildschirm"));
    EXPECT_THAT(antwort("shot x.png"), ElementsAre("! kein Bildschirm"));
    EXPECT_THAT(antwort("get Text1"), ElementsAre("! kein Feld Text1"));
}

TEST_F(Fernsteuerungstest, SieSiehtDieBoxDerFehlendenDateiUndDasProgrammEndetAufQuit)
{
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    QStringList ausgabe;
    Fernsteuerung steuerung(buehne, [&ausgabe](const QString& zeile) { ausgabe << zeile; });
    for (const char* zeile : {"wait 50", "boxes", "quit"})
        QMetaObject::invokeMethod(
            &steuerung, [&steuerung, zeile] { steuerung.nimm(zeile); }, Qt::QueuedConnection);
    starte();
    buehne.pumpe.beendet = false;
    ASSERT_GE(ausgabe.size(), 4);
    EXPECT_LE(ausgabe.size(), 10);
    EXPECT_EQ(
        ausgabe[2],
        "  info\tTombrix\tERROR 53: Die Ziehungsdatei SALOTTO.DAT wurde nicht gefunden. Die Datei SALOTTO.DAT muß "
        "sich im gleichen Verzeichnis wie das Programm TOMBRIX.EXE befinden.\tok");
    EXPECT_EQ(ausgabe.last(), "> quit");
    EXPECT_EQ(buehne.bildschirme.geladen("frmLSTART"), nullptr);
}

} // namespace
