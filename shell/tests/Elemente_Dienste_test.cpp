#include "shell/elements/Bildschirm.h"
#include "shell/elements/DateiDialog.h"
#include "shell/elements/Farben.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/TextRand.h"
#include "shell/elements/Zeilendruck.h"
#include "testhilfen/Buehnentest.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTextBlock>
#include <QTextEdit>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Boxes that keep what a file dialog was asked and give one answer.
class GefragteBoxen final : public Boxen {
public:
    void info(const QString&, const QString&) override {}
    bool frage(const QString&, const QString&) override { return false; }
    std::optional<QString> eingabe(const QString&, const QString&, const QString&) override { return std::nullopt; }
    std::optional<QString> datei(const DateiFrage& frage) override
    {
        gefragt = frage;
        return antwort;
    }

    DateiFrage gefragt;
    std::optional<QString> antwort;
};

class ElementDateiDialog : public Buehnentest {
protected:
    GefragteBoxen boxen;
    Umgebung umgebung{buehne.archiv,  boxen,      buehne.zwischenablage, buehne.drucker, buehne.klang,
                      buehne.oeffner, buehne.uhr, buehne.zufall,         buehne.pumpe};
    QString pfad = "/daten/";
    const QString filter = "Textdateien|*.txt|Webseiten|*.htm;*.html|Alle Dateien|*.*";
};

TEST_F(ElementDateiDialog, OeffnenFragtNachEinerVorhandenenDatei)
{
    boxen.antwort = "/daten/alt.txt";
    DateiOeffnen(umgebung, "alt.txt", pfad, filter, "System laden", "txt");
    EXPECT_FALSE(boxen.gefragt.speichern);
    EXPECT_FALSE(boxen.gefragt.frageVorUeberschreiben);
    EXPECT_EQ(boxen.gefragt.titel, "System laden");
    EXPECT_EQ(boxen.gefragt.standardendung, "txt");
}

TEST_F(ElementDateiDialog, SpeichernFragtVorDemUeberschreibenNurInEinemModus)
{
    DateiSpeichern(umgebung, "a.txt", pfad, filter, "T", "txt");
    EXPECT_TRUE(boxen.gefragt.speichern);
    EXPECT_TRUE(boxen.gefragt.frageVorUeberschreiben);
    DateiSpeichernOhneFrage(umgebung, "a.txt", pfad, filter, "T", "txt");
    EXPECT_TRUE(boxen.gefragt.speichern);
    EXPECT_FALSE(boxen.gefragt.frageVorUeberschreiben);
}

TEST_F(ElementDateiDialog, UebersetztDenFilter)
{
    DateiOeffnen(umgebung, "", pfad, filter, "T", "");
    EXPECT_EQ(boxen.gefragt.filter, "Textdateien (*.txt);;Webseiten (*.htm *.html);;Alle Dateien (*.*)");
    DateiOeffnen(umgebung, "", pfad, "", "T", "");
    EXPECT_EQ(boxen.gefragt.filter, "");
}

TEST_F(ElementDateiDialog, BeginntImPfadMitDemVorgeschlagenenNamen)
{
    for (const char* anfang : {"/daten/", "/daten"}) {
        pfad = anfang;
        DateiSpeichern(umgebung, "tipp.txt", pfad, filter, "T", "txt");
        EXPECT_EQ(boxen.gefragt.pfad, "/daten/tipp.txt");
    }
    pfad.clear();
    DateiSpeichern(umgebung, "tipp.txt", pfad, filter, "T", "txt");
    EXPECT_EQ(boxen.gefragt.pfad, "tipp.txt");
}

TEST_F(ElementDateiDialog, BeginntOhneNamenImPfad)
{
    DateiOeffnen(umgebung, "", pfad, filter, "T", "txt");
    EXPECT_EQ(boxen.gefragt.pfad, "/daten");
}

TEST_F(ElementDateiDialog, TeiltDieAntwortInOrdnerUndNamen)
{
    boxen.antwort = "/anders wo/Überblick 1.txt";
    EXPECT_EQ(DateiSpeichern(umgebung, "a.txt", pfad, filter, "T", "txt"), "Überblick 1.txt");
    EXPECT_EQ(pfad, "/anders wo/");
}

TEST_F(ElementDateiDialog, EineAntwortOhneOrdnerLaesstDenPfadLeer)
{
    boxen.antwort = "nur.txt";
    EXPECT_EQ(DateiOeffnen(umgebung, "", pfad, filter, "T", "txt"), "nur.txt");
    EXPECT_EQ(pfad, "");
}

TEST_F(ElementDateiDialog, EinAbbruchLaesstDenPfad)
{
    for (const auto modus : {DateiModus::Oeffnen, DateiModus::SpeichernMitFrage, DateiModus::SpeichernOhneFrage}) {
        EXPECT_EQ(DateiDialog(umgebung, "a.txt", pfad, filter, "T", "txt", modus), "");
        EXPECT_EQ(pfad, "/daten/");
    }
    boxen.antwort = "";
    EXPECT_EQ(DateiOeffnen(umgebung, "", pfad, filter, "T", "txt"), "");
    EXPECT_EQ(pfad, "/daten/");
}

TEST(ElementDateinamen, LassenWegWasEinSystemVerbietet)
{
    EXPECT_EQ(dateinameAus("Häufigkeit", "pdf"), "Häufigkeit.pdf");
    EXPECT_EQ(dateinameAus("a/b\\c \"d\" * ?..", "txt"), "a b c d.txt");
    EXPECT_EQ(dateinameAus("Ausbleibestatistik, nach wieviel Wochen?", "txt"), "Ausbleibestatistik.txt");
}

TEST(ElementSpezialOrdner, KenntDesktopUndDokumente)
{
    EXPECT_EQ(SpezialOrdner(0), QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    EXPECT_EQ(SpezialOrdner(16), SpezialOrdner(0));
    EXPECT_EQ(SpezialOrdner(5), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    EXPECT_FALSE(SpezialOrdner(0).isEmpty());
}

TEST(ElementSpezialOrdner, IstLeerFuerUnbekannteNummern)
{
    for (const int nummer : {-1, 3, 999})
        EXPECT_EQ(SpezialOrdner(nummer), "") << nummer;
}

TEST(ElementTextRand, RuecktDenTextUmEinenPunktMehrEin)
{
    QTextEdit feld("Ein Wort");
    feld.resize(300, 200);
    feld.show();
    TextRand(&feld, 10, 20, 30, 40);
    EXPECT_EQ(feld.cursorRect().topLeft(), QPoint(11, 21));
    const QTextFrameFormat form = feld.document()->rootFrame()->frameFormat();
    EXPECT_EQ(form.rightMargin(), 32);
    EXPECT_EQ(form.bottomMargin(), 42);
}

TEST(ElementTextRand, BleibtBeiEinemNeuenText)
{
    QTextEdit feld("Ein Wort");
    feld.resize(300, 200);
    feld.show();
    TextRand(&feld, 1, 1, 1, 1);
    TextRand(&feld, 10, 20, 30, 40);
    feld.setPlainText("Ein anderes");
    EXPECT_EQ(feld.cursorRect().topLeft(), QPoint(11, 21));
    feld.clear();
    EXPECT_EQ(feld.cursorRect().topLeft(), QPoint(11, 21));
}

TEST(ElementTextRand, DerRechteRandBrichtDenTextUm)
{
    QTextEdit feld("Wort Wort Wort Wort");
    feld.resize(400, 200);
    feld.show();
    EXPECT_EQ(feld.document()->firstBlock().layout()->lineCount(), 1);
    TextRand(&feld, 0, 0, 330, 0);
    EXPECT_GT(feld.document()->firstBlock().layout()->lineCount(), 1);
}

class ElementZeilendruck : public Buehnentest {
protected:
    QString pdf = ordner.filePath("druck.pdf");

    bool drucke(const Druckauftrag& auftrag)
    {
        buehne.drucker.setzeDatei(pdf);
        return druckeZeilen(buehne.drucker, "Häufigkeit", auftrag);
    }

    static Druckauftrag auftragMit(int zeilen)
    {
        Druckauftrag auftrag{{"Kopf"}, {"Folgekopf"}, {}, {}};
        for (int i = 1; i <= zeilen; ++i)
            auftrag.zeilen.push_back("Zeile  " + std::to_string(i));
        return auftrag;
    }

    int seiten() const
    {
        QFile datei(pdf);
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
        return static_cast<int>(datei.readAll().count("/Type /Page\n"));
    }

    /// The printed text, its pages separated by form feeds; nothing where no reader of PDF is installed.
    std::optional<QStringList> gedruckteSeiten() const
    {
        const QString leser = QStandardPaths::findExecutable("pdftotext");
        if (leser.isEmpty())
            return std::nullopt;
        QProcess lauf;
        lauf.start(leser, {"-layout", pdf, "-"});
        EXPECT_TRUE(lauf.waitForFinished());
        QStringList alle = QString::fromUtf8(lauf.readAllStandardOutput()).split('\f');
        alle.removeLast();
        return alle;
    }
};

TEST_F(ElementZeilendruck, OhneDruckerGehtNichts)
{
    EXPECT_FALSE(druckeZeilen(buehne.drucker, "T", auftragMit(1)));
}

TEST_F(ElementZeilendruck, EinUnschreibbaresZielIstEinFehler)
{
    pdf = ordner.filePath("gibt es nicht/druck.pdf");
    EXPECT_FALSE(drucke(auftragMit(1)));
}

TEST_F(ElementZeilendruck, FuenfzigZeilenSindEineSeite)
{
    ASSERT_TRUE(drucke(auftragMit(50)));
    EXPECT_EQ(seiten(), 1);
    ASSERT_TRUE(drucke(auftragMit(51)));
    EXPECT_EQ(seiten(), 2);
}

TEST_F(ElementZeilendruck, OhneZeilenStehtDerKopfAllein)
{
    ASSERT_TRUE(drucke(auftragMit(0)));
    EXPECT_EQ(seiten(), 1);
}

TEST_F(ElementZeilendruck, DrucktJedeZeileUndAufWeiterenSeitenDenFolgekopf)
{
    ASSERT_TRUE(drucke(auftragMit(101)));
    const auto gedruckt = gedruckteSeiten();
    if (!gedruckt)
        GTEST_SKIP() << "pdftotext ist nicht installiert.";
    ASSERT_EQ(gedruckt->size(), 3);
    const auto zeilen = [&](int seite) { return (*gedruckt)[seite].split('\n', Qt::SkipEmptyParts); };
    EXPECT_EQ(zeilen(0).first().trimmed(), "Kopf");
    EXPECT_EQ(zeilen(0).size(), 51);
    EXPECT_EQ(zeilen(0).last().simplified(), "Zeile 50");
    EXPECT_EQ(zeilen(1).first().trimmed(), "Folgekopf");
    EXPECT_EQ(zeilen(1).last().simplified(), "Zeile 100");
    EXPECT_EQ(zeilen(2).last().simplified(), "Zeile 101");
}

TEST_F(ElementZeilendruck, UmlauteUndSpaltenBleibenLesbar)
{
    Druckauftrag auftrag = auftragMit(0);
    auftrag.zeilen = {"ÄÖÜ äöü ß", "12   34"};
    ASSERT_TRUE(drucke(auftrag));
    const auto gedruckt = gedruckteSeiten();
    if (!gedruckt)
        GTEST_SKIP() << "pdftotext ist nicht installiert.";
    ASSERT_EQ(gedruckt->size(), 1);
    EXPECT_TRUE(gedruckt->first().contains("ÄÖÜ äöü ß")) << gedruckt->first().toStdString();
    EXPECT_TRUE(gedruckt->first().contains("12   34")) << gedruckt->first().toStdString();
}

/// A screen with a button that prints.
class Druckprobe final : public Bildschirm {
public:
    Druckprobe(Umgebung& umgebung, const Druckauftrag& auftrag) : Bildschirm(umgebung, "frmProbe", "Probe")
    {
        auto* drucken = befehl("Befehl6", "&Drucken");
        bei(drucken, [this, auftrag] { druckeZeilen(*this, "Häufigkeit: 6/49", auftrag); });
        setzeInhalt(spalte({drucken}));
    }
};

class ElementDruckbildschirm : public ElementZeilendruck {
protected:
    void druckeOhneDrucker()
    {
        buehne.bildschirme.registriere("frmProbe",
                                       [](Umgebung& u) { return std::make_unique<Druckprobe>(u, auftragMit(60)); });
        oeffne("frmProbe");
        klicke("Befehl6");
    }

    const QString frage =
        "question|Tombrix|Es ist kein Drucker bereit.\nSoll die Liste als PDF-Datei gespeichert werden?";
};

TEST_F(ElementDruckbildschirm, MitDruckerWirdNichtsGefragt)
{
    buehne.drucker.setzeDatei(pdf);
    druckeOhneDrucker();
    EXPECT_EQ(seiten(), 2);
    EXPECT_THAT(boxen(), IsEmpty());
    EXPECT_EQ(titel(), "Probe");
}

TEST_F(ElementDruckbildschirm, OhneDruckerEntstehtAufWunschEinPdf)
{
    buehne.boxen.antworte("yes");
    buehne.boxen.antworte("file:" + pdf);
    druckeOhneDrucker();
    EXPECT_EQ(seiten(), 2);
    EXPECT_EQ(titel(), "Es ist kein Standarddrucker eingerichtet.");
    EXPECT_EQ(lies("Statuszeile"), "Gespeichert in druck.pdf");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 2);
    EXPECT_EQ(gezeigt[0], frage);
    EXPECT_TRUE(gezeigt[1].startsWith("file|Als PDF-Datei speichern|"));
    EXPECT_TRUE(gezeigt[1].endsWith("Häufigkeit.pdf")) << gezeigt[1].toStdString();
}

TEST_F(ElementDruckbildschirm, EinNeinOderEinAbbruchSchreibtNichts)
{
    druckeOhneDrucker();
    EXPECT_EQ(boxen(), QStringList{frage});
    buehne.boxen.antworte("yes");
    klicke("Befehl6");
    EXPECT_EQ(boxen().size(), 2);
    EXPECT_FALSE(QFile::exists(pdf));
    EXPECT_EQ(titel(), "Es ist kein Standarddrucker eingerichtet.");
}

TEST_F(ElementDruckbildschirm, EinUnschreibbaresPdfWirdGesagt)
{
    buehne.boxen.antworte("yes");
    buehne.boxen.antworte("file:" + ordner.filePath("gibt es nicht/druck.pdf"));
    druckeOhneDrucker();
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 3);
    EXPECT_TRUE(gezeigt[2].startsWith("info|Tombrix|Die Datei druck.pdf konnte nicht geschrieben werden.\n"));
}

QColor gemalterGrund(QWidget& feld)
{
    const QImage bild = feld.grab().toImage();
    return bild.pixelColor(bild.width() - 6, bild.height() / 2);
}

/// True if some pixel has the colour, as a letter's stem does.
bool maltFarbe(QWidget& feld, const QColor& farbe)
{
    const QImage bild = feld.grab().toImage();
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixelColor(x, y) == farbe)
                return true;
    }
    return false;
}

/// Wide enough for an empty place at the right of its text.
template <class Feld> std::unique_ptr<Feld> breit()
{
    auto feld = std::make_unique<Feld>();
    feld->setText("HHHH");
    feld->resize(200, 60);
    return feld;
}

TEST(ElementFarben, FaerbtGrundUndSchriftJederArtVonFeld)
{
    const QColor grund(0, 255, 255);
    const QColor schrift(255, 0, 0);
    const auto pruefe = [&](QWidget& feld) {
        faerbe(&feld, grund, schrift);
        EXPECT_EQ(gemalterGrund(feld), grund) << feld.metaObject()->className();
        EXPECT_TRUE(maltFarbe(feld, schrift)) << feld.metaObject()->className();
    };
    pruefe(*breit<QLabel>());
    pruefe(*breit<QLineEdit>());
    pruefe(*breit<QTextEdit>());
    pruefe(*breit<QCheckBox>());
}

TEST(ElementFarben, DieMarkeGehtWiederGanzWeg)
{
    const auto feld = breit<QLabel>();
    markiere(feld.get(), false);
    const QColor vorher = gemalterGrund(*feld);
    EXPECT_EQ(vorher, QApplication::palette().color(QPalette::Base));
    markiere(feld.get(), true);
    EXPECT_EQ(gemalterGrund(*feld), QColor(0, 255, 255));
    EXPECT_TRUE(feld->font().bold());
    markiere(feld.get(), false);
    EXPECT_EQ(gemalterGrund(*feld), vorher);
    EXPECT_FALSE(feld->font().bold());
}

TEST(ElementFarben, DieMarkeGehtAuchAufDemGrundDerListenWiederWeg)
{
    const auto feld = breit<QLabel>();
    feld->setBackgroundRole(QPalette::Base);
    markiere(feld.get(), true);
    EXPECT_EQ(gemalterGrund(*feld), QColor(0, 255, 255));
    markiere(feld.get(), false);
    EXPECT_EQ(gemalterGrund(*feld), QApplication::palette().color(QPalette::Base));
}

TEST(ElementFarben, JedeSchriftIstAufIhremGrundLesbar)
{
    const QPalette farben = Farben::palette();
    for (const auto& [schrift, grund] :
         {std::pair(QPalette::Text, QPalette::Base), std::pair(QPalette::WindowText, QPalette::Window),
          std::pair(QPalette::ButtonText, QPalette::Button), std::pair(QPalette::HighlightedText, QPalette::Highlight),
          std::pair(QPalette::ToolTipText, QPalette::ToolTipBase), std::pair(QPalette::Link, QPalette::Window)}) {
        const int abstand = qAbs(qGray(farben.color(schrift).rgb()) - qGray(farben.color(grund).rgb()));
        EXPECT_GE(abstand, 110) << schrift << '/' << grund;
    }
}

} // namespace
