#include "tips/screens/frmTippen.h"

#include "archive/logic/Ziehungskalender.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "tips/logic/Tippscheindatei.h"
#include "tips/logic/Tippscheinname.h"
#include "tips/logic/Tippzeile.h"
#include "tips/screens/Spielscheinbild.h"
#include "tips/screens/Spielscheinmaler.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr auto kTitel = "Lottoscheindruck (Für Spielscheine des Sachsenlotto)";
constexpr auto kAbfrage = "Lotto-Tipps Kontrollabfrage";
constexpr auto kNurZwoelf = "Es können pro Spielschein nur zwölf Tipps aus der Datei übernommen werden.";
constexpr auto kKeineSpielart = "Bitte die Spielart auswählen (Samstag oder Mittwoch bzw. Samstag + Mittwoch).";
constexpr auto kInfo =
    "Um die Druckausgabe zu justieren, sind eventuell einige Testausdrucke erforderlich. \n"
    "Mit den ScrollBars kann die Druckausgabe in 0,1 mm Schritten justiert werden. \n"
    "Falls eine Justage erforderlich war, sind die Tippkreuze im Programmfenster wahrscheinlich \n"
    "gegen den Spielschein verschoben. Der Knopf \"S\" rückt ihn darunter zurecht.\n\n"
    "Die Einstellungen für die horizontale und vertikale Justage der Druckausgabe, \n"
    "die Einstellungen für das Spiel 77 und Super 6 sowie die Laufzeit in Wochen, werden in der ini-Datei "
    "gespeichert \n"
    "und stehen beim nächsten Programmstart wieder zur Verfügung.\n\n"
    "Die Druckausgabe ist nur mit Lottoscheinen des \"Sachsenlotto\" und mit dem Laserprinter\n"
    "Brother HL-1450 getestet.";
constexpr auto kSchreibfehler = "Fehler beim Schreiben! Mögliche Ursachen:\n"
                                "1. Der aktuelle Ordner befindet sich auf einen schreibgeschützten Datenträger.\n"
                                "2. Sie besitzen keine Rechte um in diesen Ordner zu schreiben.";
constexpr auto kJustage = "Die Druckausgabe kann mit den beiden ScrollBars in 0,1 mm Schritten horizontal und "
                          "vertikal justiert werden";
constexpr std::array kJaNein{"Ja", "Nein"};
constexpr std::array kLaufzeittexte{"1", "2", "3", "4", "5", "13 alt", "Ja"};
constexpr int kZeichen = 30;

/// "Tippliste_21.11.2026 19-30-05.txt".
std::string listenname(const Uhr& uhr)
{
    constexpr std::size_t kWochentag = 4; ///< "Sa, "
    std::string zeit = uhrtext(static_cast<std::int64_t>(uhr.Timer()));
    std::ranges::replace(zeit, ':', '-');
    return "Tippliste_" + datumText(uhr.heute()).substr(kWochentag) + " " + zeit + ".txt";
}

template <std::size_t N> std::size_t stelle(const std::array<QRadioButton*, N>& wahl)
{
    return static_cast<std::size_t>(std::ranges::find_if(wahl, &QRadioButton::isChecked) - wahl.begin());
}

/// The origin of the crosses is the corner of the paper, whatever margin the printer has.
void maleAufPapier(QPainter& maler, const QPagedPaintDevice& papier, const std::vector<Scheinort>& kreuze)
{
    constexpr double kMillimeterJeZoll = 25.4;
    const QMarginsF rand = papier.pageLayout().margins(QPageLayout::Millimeter);
    maler.scale(maler.device()->logicalDpiX() / kMillimeterJeZoll / Spielscheinmaler::kJeMillimeter,
                maler.device()->logicalDpiY() / kMillimeterJeZoll / Spielscheinmaler::kJeMillimeter);
    maler.translate(-QPointF(rand.left(), rand.top()) * Spielscheinmaler::kJeMillimeter);
    Spielscheinmaler::maleKreuze(maler, kreuze);
}

} // namespace

frmTippen::frmTippen(Umgebung& umgebung) : Bildschirm(umgebung, "frmTippen", kTitel)
{
    Picture1 = new Spielscheinbild("Picture1", this);
    Command1 = befehl("Command1", "&Info");
    Command2 = befehl("Command2", "<<", hinweis("Zum Startmenü"));
    Command10 = befehl("Command10", "&Drucken");
    cmdTippliste = befehl("cmdTippliste", "&Tippliste speichern");
    cmdBild = befehl("cmdBild", "&Spielschein zeigen");
    hauptaktionen({Command10});

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            dehnbar(baueBild()),
            baueListe(),
        })),
        zeile({Command10, cmdTippliste, luecke(), cmdBild, Command1, Command2}),
    }));
    // clang-format on
    stelleEin(liesDruckeinstellungen(umgebung.archiv.ProgrammVerzeichnis));
    verbinde();
    zeigeVersatz();
    zeichne();
}

template <std::size_t N>
Bloecke frmTippen::baueOptionen(std::array<QRadioButton*, N>& wahl, const QString& name,
                                const std::array<const char*, N>& texte)
{
    Bloecke bloecke;
    for (std::size_t i = 0; i < N; ++i) {
        wahl[i] = option(QString("%1(%2)").arg(name).arg(i), texte[i]);
        bei(wahl[i], [this] { zeichne(); });
        bloecke.emplace_back(wahl[i]);
    }
    return bloecke;
}

QGroupBox* frmTippen::baueLaufzeit()
{
    Bloecke bloecke = baueOptionen(Option4, "Option4", kLaufzeittexte);
    bloecke.insert(bloecke.end() - 1, bezeichnung("Label3", "Dauerspiel:"));
    return rahmen("Frame4", "Laufzeit ", zeile(bloecke));
}

QLayout* frmTippen::baueWahl()
{
    Check1 = kontroll("Check1", "Samstag");
    Check2 = kontroll("Check2", "Mittwoch");
    // clang-format off
    return spalte({
        zeile({
            rahmen("Frame3", "Spielart", zeile({Check1, Check2})),
            baueLaufzeit(),
            luecke(),
        }),
        zeile({
            rahmen("Frame2", "Spiel 77", zeile(baueOptionen(Option1, "Option1", kJaNein))),
            rahmen("Frame1", "Super 6", zeile(baueOptionen(Option3, "Option3", kJaNein))),
            rahmen("Frame5", "Glücksspirale", zeile(baueOptionen(chkGlueck, "chkGlueck", kJaNein))),
            luecke(),
        }),
    });
    // clang-format on
}

QLayout* frmTippen::baueBild()
{
    HScroll1 = new QScrollBar(Qt::Horizontal, this);
    VScroll1 = new QScrollBar(Qt::Vertical, this);
    HScroll1->setObjectName("HScroll1");
    VScroll1->setObjectName("VScroll1");
    for (QScrollBar* leiste : {HScroll1, VScroll1}) {
        leiste->setRange(-kGroessterVersatz, kGroessterVersatz);
        leiste->setFocusPolicy(Qt::StrongFocus);
        setzeHinweis(leiste, kJustage);
    }
    Label1 = bezeichnung("Label1");
    Label2 = bezeichnung("Label2");
    Command3 = befehl("Command3", "S",
                      hinweis("Nach einer Justierung der Druckausgabe kann die Position des Spielscheins auf dem "
                              "Screen ausgerichtet werden."));
    // clang-format off
    return spalte({
        dehnbar(zeile({dehnbar(Picture1), VScroll1})),
        zeile({dehnbar(HScroll1), Command3}),
        zeile({Label1, Label2, luecke()}),
        baueWahl(),
    });
    // clang-format on
}

QLayout* frmTippen::baueListe()
{
    List1 = liste("List1");
    List1->setzeSichtbar(static_cast<int>(kTippsJeSchein), kZeichen);
    File1 = liste("File1");
    File1->setzeSichtbar(5, 14);
    Combo1 = kombi("Combo1");
    Combo2 = kombi("Combo2");
    for (std::size_t i = 1; i <= kTippsJeSchein; ++i)
        Combo1->addItem(QString::number(i));
    Combo1->setCurrentIndex(static_cast<int>(kTippsJeSchein) - 1);
    Combo1->setToolTip("Anzahl Quicktipps");
    Command4 = befehl("Command4", "Tippdatei &laden",
                      hinweis("Gespeicherte Tipps können zum Drucken aus einer Tippdatei geladen werden."));
    Command6 = befehl("Command6", "&Uebernahme");
    Command11 = befehl("Command11", "&Quick Tipps", hinweis("Erzeugt Zufallstippreihen"));
    Frame6 = rahmen("Frame6", "Gespeicherte Tippscheine", spalte({File1, zeile({luecke(), Command6})}));
    Frame6->hide();
    // clang-format off
    return spalte({
        rahmen("Frame7", "Tipps", spalte({
            List1,
            zeile({bezeichnung("Label5", "Anzahl Quick Tipps:"), Combo1, luecke()}),
            zeile({Command11, Command4, luecke()}),
        })),
        Frame6,
        spalte({bezeichnung("Label7", "Drucker auswählen:"), Combo2}),
        luecke(),
    });
    // clang-format on
}

void frmTippen::verbinde()
{
    for (QCheckBox* tag : {Check1, Check2})
        bei(tag, [this] { zeichne(); });
    for (QScrollBar* leiste : {HScroll1, VScroll1})
        connect(leiste, &QScrollBar::valueChanged, this, [this] {
            zeigeVersatz();
            zeichne();
        });
    bei(Command1, [this] { umgebung().boxen.info(kInfotitel, kInfo); });
    bei(Command2, [this] { schliesse(); });
    bei(Command3, [this] { Picture1->rueckeSchein(versatz()); });
    bei(Command4, [this] { zeigeDateien(); });
    bei(Command6, [this] { uebernimmDatei(); });
    bei(Command10, [this] { drucke(); });
    bei(Command11, [this] { erzeugeQuicktipps(); });
    bei(cmdTippliste, [this] { speichereListe(); });
    bei(cmdBild, [this] { umgebung().bildschirme->oeffne("frmInfo"); });
}

void frmTippen::beimZeigen()
{
    folgeDruckern();
}

/// Printers come and go. One that was chosen and is gone leaves none chosen.
void frmTippen::folgeDruckern()
{
    const QStringList namen = umgebung().drucker.namen();
    const QString gewaehlt = Combo2->currentText();
    Combo2->clear();
    Combo2->addItems(namen);
    Combo2->setCurrentIndex(gewaehlt.isEmpty() ? 0 : static_cast<int>(namen.indexOf(gewaehlt)));
}

void frmTippen::beimSchliessen()
{
    if (Bildschirm* bild = umgebung().bildschirme->geladen("frmInfo"))
        bild->schliesse();
    const Scheinwahl gewaehlt = wahl();
    schreibeDruckeinstellungen(umgebung().archiv.ProgrammVerzeichnis, {.versatz = versatz(),
                                                                       .spiel77 = gewaehlt.spiel77,
                                                                       .super6 = gewaehlt.super6,
                                                                       .gluecksspirale = gewaehlt.gluecksspirale,
                                                                       .laufzeit = gewaehlt.laufzeit});
}

void frmTippen::stelleEin(const Druckeinstellungen& einstellungen)
{
    HScroll1->setValue(einstellungen.versatz.waagerecht);
    VScroll1->setValue(einstellungen.versatz.senkrecht);
    Option1[einstellungen.spiel77 ? 0 : 1]->setChecked(true);
    Option3[einstellungen.super6 ? 0 : 1]->setChecked(true);
    chkGlueck[einstellungen.gluecksspirale ? 0 : 1]->setChecked(true);
    Option4[static_cast<std::size_t>(einstellungen.laufzeit)]->setChecked(true);
}

Scheinwahl frmTippen::wahl() const
{
    return {.samstag = Check1->isChecked(),
            .mittwoch = Check2->isChecked(),
            .spiel77 = Option1[0]->isChecked(),
            .super6 = Option3[0]->isChecked(),
            .gluecksspirale = chkGlueck[0]->isChecked(),
            .laufzeit = static_cast<Laufzeit>(stelle(Option4))};
}

Scheinversatz frmTippen::versatz() const
{
    return {.waagerecht = HScroll1->value(), .senkrecht = VScroll1->value()};
}

std::vector<Kombination> frmTippen::tipps() const
{
    std::vector<Kombination> tipps;
    for (const std::string& zeile : List1->modell().zeilen())
        tipps.push_back(kombinationAusZeile(zeile));
    return tipps;
}

void frmTippen::zeichne()
{
    Picture1->zeige(layoutSlip(tipps(), wahl(), versatz()));
}

void frmTippen::zeigeVersatz()
{
    Label1->setText("Versatz horizontal (mm): " + qt(Dezimaltext(HScroll1->value() / 10.0, 1)));
    Label2->setText("Versatz vertikal (mm): " + qt(Dezimaltext(VScroll1->value() / 10.0, 1)));
}

void frmTippen::zeigeTipps(std::vector<std::string> zeilen)
{
    if (zeilen.size() > kTippsJeSchein)
        zeilen.resize(kTippsJeSchein);
    List1->modell().fuelle(std::move(zeilen));
    zeichne();
}

void frmTippen::nimmTippzeilen(const std::vector<std::string>& zeilen)
{
    zeigeTipps(zeilen);
}

void frmTippen::erzeugeQuicktipps()
{
    std::vector<std::string> zeilen;
    for (int k = 1; k <= Combo1->currentIndex() + 1; ++k) {
        umgebung().zufall.Randomize(umgebung().uhr.Timer() * k);
        Kombination tip{};
        std::ranges::copy(sechsZahlen(umgebung().zufall), tip.begin());
        std::ranges::sort(tip);
        zeilen.push_back(quicktippzeile(static_cast<std::size_t>(k), tip));
    }
    zeigeTipps(std::move(zeilen));
}

void frmTippen::zeigeDateien()
{
    const std::vector<std::string> namen =
        tippscheinNamen(umgebung().archiv.ProgrammVerzeichnis, umgebung().archiv.Spielart);
    Frame6->setVisible(!namen.empty());
    File1->modell().fuelle(namen);
    if (namen.empty())
        umgebung().boxen.info(kProgrammtitel, "Es sind noch keine Tippscheine in Tippscheindateien gespeichert.");
}

void frmTippen::uebernimmDatei()
{
    const std::ptrdiff_t zeile = File1->modell().ListIndex();
    if (zeile < 0)
        return;
    const std::string name = File1->modell().List(static_cast<std::size_t>(zeile));
    const Tippscheinzeilen gelesen = liesTippscheinzeilen(umgebung().archiv.ProgrammVerzeichnis + name);
    if (!gelesen.gelesen()) {
        umgebung().boxen.info(kProgrammtitel, "Die Tippdatei " + qt(name) + " kann nicht gelesen werden.");
        return;
    }
    if (gelesen.zeilen.size() > kTippsJeSchein)
        umgebung().boxen.info(kProgrammtitel, kNurZwoelf);
    zeigeTipps(tippzeilen(tippreihenAus(gelesen)));
}

void frmTippen::speichereListe()
{
    if (List1->zeilenzahl() == 0) {
        umgebung().boxen.info(kProgrammtitel, "Die Tippliste ist leer!");
        return;
    }
    std::string text;
    for (const std::string& zeile : List1->modell().zeilen())
        text += zeile + std::string(kZeilenende);
    const std::string name = listenname(umgebung().uhr);
    if (schreibeDatei(umgebung().archiv.ProgrammVerzeichnis + name, text))
        melde("Gespeichert in " + qt(name));
    else
        umgebung().boxen.info(kProgrammtitel, kSchreibfehler);
}

bool frmTippen::darfDrucken()
{
    if (Combo2->currentIndex() < 0) {
        umgebung().boxen.info("Error", "Sie haben keinen Drucker ausgewählt!");
        return false;
    }
    if (!Check1->isChecked() && !Check2->isChecked()) {
        umgebung().boxen.info(kProgrammtitel, kKeineSpielart);
        return false;
    }
    return umgebung().boxen.frage(kAbfrage, qt(druckfrage(wahl(), tipps().size(), utf8(Combo2->currentText()))));
}

void frmTippen::drucke()
{
    folgeDruckern();
    if (!darfDrucken())
        return;
    const std::vector<Scheinort> kreuze = layoutSlip(tipps(), wahl(), versatz());
    const bool gedruckt = umgebung().drucker.druckeAuf(
        Combo2->currentText(), kTitel,
        [&kreuze](QPainter& maler, QPagedPaintDevice& papier) { maleAufPapier(maler, papier, kreuze); });
    if (gedruckt)
        melde("Der Tippschein wurde gedruckt.");
    else
        umgebung().boxen.info("Error", "Der Drucker " + Combo2->currentText() + " ist nicht bereit.");
}
