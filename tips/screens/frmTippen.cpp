#include "tips/screens/frmTippen.h"

#include "archive/logic/Ziehungskalender.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Texte.h"
#include "tips/logic/Tippscheindatei.h"
#include "tips/logic/Tippscheinname.h"
#include "tips/logic/Tippzeile.h"
#include "tips/logic/Zufallstipps.h"
#include "tips/screens/Scheinjustage.h"
#include "tips/screens/Scheinwahlfeld.h"
#include "tips/screens/Spielscheinbild.h"
#include "tips/screens/Spielscheinmaler.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPushButton>

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
constexpr int kZeichen = 30;

/// "Tippliste_21.11.2026 19-30-05.txt".
std::string listenname(const Uhr& uhr)
{
    constexpr std::size_t kWochentag = 4; ///< "Sa, "
    std::string zeit = uhrtext(static_cast<std::int64_t>(uhr.Timer()));
    std::ranges::replace(zeit, ':', '-');
    return "Tippliste_" + datumText(uhr.heute()).substr(kWochentag) + " " + zeit + ".txt";
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

frmTippen::frmTippen(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmTippen", kTitel),
      gelesene_(liesDruckeinstellungen(umgebung.archiv.ProgrammVerzeichnis))
{
    justage_ = new Scheinjustage(this);
    wahl_ = new Scheinwahlfeld(this);
    Command1 = befehl("Command1", "&Info");
    Command2 = befehl("Command2", "<<", hinweis("Zum Startmenü"));
    Command10 = befehl("Command10", "&Drucken");
    cmdTippliste = befehl("cmdTippliste", "&Tippliste speichern");
    cmdBild = befehl("cmdBild", "&Spielschein zeigen");
    hauptaktionen({Command10});

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(zeile({
            dehnbar(spalte({dehnbar(justage_), wahl_})),
            baueListe(),
        })),
        zeile({Command10, cmdTippliste, luecke(), cmdBild, Command1, Command2}),
    }));
    // clang-format on
    verbinde();
    justage_->stelle(gelesene_.versatz);
    wahl_->stelle(gelesene_);
    zeichne();
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
    justage_->beiVersatz = [this] { zeichne(); };
    wahl_->beiWahl = [this] { zeichne(); };
    bei(Command1, [this] { umgebung().boxen.info(kInfotitel, kInfo); });
    bei(Command2, [this] { schliesse(); });
    bei(Command4, [this] { zeigeDateien(); });
    bei(Command6, [this] { uebernimmDatei(); });
    bei(Command10, [this] { drucke(); });
    bei(Command11, [this] { erzeugeQuicktipps(); });
    bei(cmdTippliste, [this] { saveTipList(); });
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
    const Druckeinstellungen neue = einstellungen();
    if (!schreibeDruckeinstellungen(umgebung().archiv.ProgrammVerzeichnis, neue) && neue != gelesene_)
        umgebung().boxen.info(kProgrammtitel, "Die Druckeinstellungen konnten nicht gespeichert werden.");
}

Druckeinstellungen frmTippen::einstellungen() const
{
    const Scheinwahl wahl = wahl_->wahl();
    return {.versatz = justage_->versatz(),
            .spiel77 = wahl.spiel77,
            .super6 = wahl.super6,
            .gluecksspirale = wahl.gluecksspirale,
            .laufzeit = wahl.laufzeit};
}

std::vector<Kombination> frmTippen::tipps() const
{
    std::vector<Kombination> tipps;
    for (const std::string& zeile : List1->modell().zeilen())
        tipps.push_back(kombinationAusZeile(zeile));
    return tipps;
}

std::vector<Scheinort> frmTippen::kreuze() const
{
    return layoutSlip(tipps(), wahl_->wahl(), justage_->versatz());
}

void frmTippen::zeichne()
{
    justage_->bild().zeige(kreuze());
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
    vomTippschein_ = true;
    zeigeTipps(zeilen);
}

void frmTippen::erzeugeQuicktipps()
{
    std::vector<std::string> zeilen;
    for (int k = 1; k <= Combo1->currentIndex() + 1; ++k) {
        const Kombination tipp = zufallstipp(umgebung().zufall, umgebung().uhr.Timer() * k);
        zeilen.push_back(quicktippzeile(static_cast<std::size_t>(k), tipp));
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

void frmTippen::saveTipList()
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
    const Scheinwahl wahl = wahl_->wahl();
    if (!wahl.samstag && !wahl.mittwoch) {
        umgebung().boxen.info(kProgrammtitel, kKeineSpielart);
        return false;
    }
    return umgebung().boxen.frage(kAbfrage, qt(druckfrage(wahl, tipps().size(), utf8(Combo2->currentText()))));
}

void frmTippen::drucke()
{
    folgeDruckern();
    if (!darfDrucken())
        return;
    const bool gedruckt =
        umgebung().drucker.druckeAuf(Combo2->currentText(), kTitel, [this](QPainter& maler, QPagedPaintDevice& papier) {
            maleAufPapier(maler, papier, kreuze());
        });
    if (gedruckt)
        melde("Der Tippschein wurde gedruckt.");
    else
        umgebung().boxen.info("Error", "Der Drucker " + Combo2->currentText() + " ist nicht bereit.");
}
