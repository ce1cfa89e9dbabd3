#include "tips/screens/frmTA.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Pfeilknopf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Meldung.h"
#include "shell/logic/Texte.h"
#include "tips/logic/Tippscheindatei.h"
#include "tips/logic/Tippscheinname.h"
#include "tips/logic/Tippscheintexte.h"
#include "tips/logic/Tippzeile.h"
#include "tips/screens/Tippempfaenger.h"
#include "tips/screens/Tippreihenfelder.h"
#include "tips/screens/Tippscheinliste.h"
#include "tips/screens/Tippscheinsicherung.h"
#include "tips/screens/Vergleichsziehungsfelder.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr auto kKontrollabfrage = "Lotto-Kontrollabfrage";
constexpr auto kDruckbildschirm = "frmTippen";
constexpr std::size_t kPraefixUndWoche = 8; ///< characters of a slip's name before its ending

constexpr auto kHilfe =
    "Um einen Tippschein mit der letzten (der aktuellen) Ziehung auszuwerten, muß die Gewinnzahldatei (xxLotto.dat) "
    "natürlich auf aktuellen Stand sein. "
    "Die Datei ist deshalb vor der Auswertung zu aktualisieren (Lotto-Auswahlmenü -> Aktualisieren, manuell oder "
    "online). Soll die Datei erst später aktualisiert werden, "
    "können die aktuellen Gewinnzahlen für eine Auswertung in die rechten Textfelder Z1-Z6 u. SZ geordnet eingegeben "
    "werden. Die Datei xxLotto.Dat wird dabei "
    "jedoch nicht aktualisiert.\n"
    "(xx=SA für Samstag, xx=MA für Mittwoch , xx=MB für Mittwoch (B)\n\n"
    "Beim Speichern von Tipps in einer Tippscheindatei werden folgende Dateinamen vergeben:\n"
    "Samstagslotto   : S_JJJJSW.DAT (JJJJSW-> Jahr Spielwoche)\n"
    "Mittwochslotto  : M_JJJJSW.DAT\n\n"
    "Beim Speichern von Tippscheinen ist auf die richtige Spielwoche zu achten. "
    "Vorgabe: Spielwoche der letzten gespeicherten Ziehung +1  (Tippschein deshalb "
    "möglichst schon vor Aktualisierung der Gewinnzahldatei speichern, sonst "
    "muß die vorgegebene Spielwoche korrigiert werden (-1).";

} // namespace

frmTA::frmTA(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmTA", "Tippscheinauswertung - vergleicht Tipps mit der letzten (aktuellen) Ziehung")
{
    baueReihen();
    baueZiehung();
    baueZahlenfeld();
    baueDateien();
    baueKnoepfe();
    ordneAn();
    verbinde();
    reihen_->setzeSuperzahlen(kombo1->currentText());
}

void frmTA::baueReihen()
{
    reihen_ = new Tippreihenfelder(this);
    Bezeichnung46 = bezeichnung("Bezeichnung46");
    Bezeichnung47 = bezeichnung("Bezeichnung47");
    alsUeberschrift(Bezeichnung46);
    alsUeberschrift(Bezeichnung47);
    lblSuperzahl = bezeichnung("lblSuperzahl", "Superzahl für alle Tipps:");
    kombo1 = kombi("kombo1");
    for (int ziffer = 0; ziffer <= 9; ++ziffer)
        kombo1->addItem(QString::number(ziffer));
    kombo1->setEditable(true);
    kombo1->setInsertPolicy(QComboBox::NoInsert);
    setzeHinweis(kombo1, "Beim Speichern von Tipps kann hier die Superzahl für alle Tipps gesetzt werden.");
    Rahmen1 = rahmen("Rahmen1", "Tippreihen", spalte({reihen_, zeile({lblSuperzahl, kombo1, luecke()})}));
}

void frmTA::baueZiehung()
{
    ziehung_ = new Vergleichsziehungsfelder(umgebung().archiv, this);
    Befehl1 = befehl("Befehl1", "Tipps mit letzter Ziehung &vergleichen");
    Rahmen2 = rahmen("Rahmen2", {}, spalte({ziehung_, Befehl1}));
}

void frmTA::baueZahlenfeld()
{
    Befehl5 = new Pfeilknopf("Befehl5", "4", "Setzt den Cursor ein Eingabefeld vor.", this);
    Befehl6 = new Pfeilknopf("Befehl6", "3", "Setzt den Cursor ein Eingabefeld zurück.", this);
    Befehl7 = new Pfeilknopf("Befehl7", "6", "Setzt den Cursor einen Tip tiefer.", this);
    Befehl8 = new Pfeilknopf("Befehl8", "5", "Setzt den Cursor einen Tip höher.", this);
    for (QPushButton* knopf : {Befehl5, Befehl6, Befehl7, Befehl8})
        setzeHinweis(knopf, knopf->toolTip());
    Bloecke zahlen;
    for (std::size_t i = 0; i < Befehl4.size(); ++i) {
        Befehl4[i] = befehl(QString("Befehl4(%1)").arg(i), QString::number(i + 1));
        Befehl4[i]->setFixedWidth(Befehl4[i]->fontMetrics().horizontalAdvance("000000"));
        zahlen.emplace_back(Befehl4[i]);
    }
    Rahmen3 = rahmen("Rahmen3", "Tipps eingeben",
                     spalte({eng(raster(7, zahlen)), zeile({Befehl6, Befehl5, Befehl8, Befehl7, luecke()})}));
    for (auto* knopf : Rahmen3->findChildren<QPushButton*>())
        knopf->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the field that it fills
}

void frmTA::baueDateien()
{
    Bezeichnung33 = bezeichnung("Bezeichnung33");
    Datei1 = liste("Datei1");
    Datei1->setzeSichtbar(12, 14);
    setzeHinweis(Datei1, "Click-> Tipdatei laden");
    Datei2 = liste("Datei2");
    Datei2->hide();
    Text20 = textfeld("Text20");
    Text20->hide();
    scheine_ = new Tippscheinliste(umgebung().archiv, *Datei1);
    vorhandene_ = new Tippscheinliste(umgebung().archiv, *Datei2);
    Befehl11 = befehl("Befehl11", "&Laden", hinweis("Laden eines gespeicherten Tipscheins."));
    Rahmen4 = rahmen("Rahmen4", "Tipscheine", spalte({Bezeichnung33, dehnbar(Datei1), Befehl11}));
}

void frmTA::baueKnoepfe()
{
    Befehl10 = befehl("Befehl10", "&Save", hinweis("Speichert die Tipps in einer Tipschein-Datei."));
    Befehl9 = befehl("Befehl9", "&Clear", hinweis("Löscht alle Tip-Eingabefelder."));
    Command1 =
        befehl("Command1", "&Print", hinweis("Druckt die Tipps auf ein Spielscheinformular (nur für Sachsenlotto)."));
    Befehl3 = befehl("Befehl3", "&I ");
    Befehl2 = befehl("Befehl2", "&<<");
}

void frmTA::ordneAn()
{
    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung46, luecke(), Bezeichnung47}),
        dehnbar(zeile({
            spalte({Rahmen1, luecke()}),
            spalte({Rahmen2, Rahmen3, luecke()}),
            dehnbar(Rahmen4),
        })),
        zeile({Befehl10, Befehl9, Command1, Befehl3, luecke(), Befehl2}),
    }));
    // clang-format on
}

void frmTA::verbinde()
{
    hauptaktionen({Befehl1});
    ziehung_->beiWahl = [this] { folgeZiehung(); };
    connect(kombo1, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { reihen_->setzeSuperzahlen(text); });
    for (std::size_t i = 0; i < Befehl4.size(); ++i)
        bei(Befehl4[i], [this, zahl = static_cast<int>(i) + 1] { gibEin(zahl); });
    bei(Befehl1, [this] { vergleiche(); });
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this] { umgebung().boxen.info("Lotto-Hinweis zur Tipschein-Auswertung", kHilfe); });
    bei(Befehl5, [this] { reihen_->geheZu(reihen_->cursor().vor()); });
    bei(Befehl6, [this] { reihen_->geheZu(reihen_->cursor().zurueck()); });
    bei(Befehl7, [this] { reihen_->geheZu(reihen_->cursor().tiefer()); });
    bei(Befehl8, [this] { reihen_->geheZu(reihen_->cursor().hoeher()); });
    bei(Befehl9, [this] { leere(); });
    bei(Befehl10, [this] { speichere(); });
    bei(Befehl11, [this] {
        if (lade())
            reihen_->geheZu({});
    });
    bei(Command1, [this] { drucke(); });
    Datei1->beiAuswahl = [this] { lade(); };
    scheine_->beiLoeschen = [this](const std::string& name) { loesche(name); };
}

void frmTA::beimZeigen()
{
    const std::int16_t spielart = umgebung().archiv.Spielart;
    Bezeichnung46->setText(istSamstag(spielart) ? "SAMSTAGS-TIPPS" : "MITTWOCHS-TIPPS");
    Bezeichnung47->setText(qt(spielartGross(spielart)));
    Command1->setEnabled(umgebung().bildschirme->kennt(kDruckbildschirm));
    scheine_->frischeAuf();
    zeigeLetzteZiehung();
}

void frmTA::showEvent(QShowEvent* ereignis)
{
    Bildschirm::showEvent(ereignis);
    reihen_->geheZu(reihen_->ersteFreie());
}

void frmTA::zeigeLetzteZiehung()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    ziehung_->zeigeLetzte();
    reihen_->loescheErgebnisse();
    Rahmen2->setTitle("Letzte (aktuelle) Ziehung " +
                      qt(jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen))));
}

void frmTA::folgeZiehung()
{
    reihen_->loescheErgebnisse();
    Rahmen2->setTitle(ziehung_->beschriftung());
}

/// False, behind a box, if the fields of the draw are no draw; the rows stay as they are.
bool frmTA::vergleiche()
{
    const std::optional<Vergleichsziehung> ziehung = ziehung_->ziehung();
    if (!ziehung) {
        umgebung().boxen.info("Lotto-Fehler",
                              "Felder Z1-Z6 oder SZ sind nicht vollständig, nicht sortiert oder falsch ausgefüllt. ");
        return false;
    }
    reihen_->zeige(compareSlip(reihen_->reihen(), ziehung->zahlen, ziehung->superzahl));
    return true;
}

void frmTA::gibEin(int zahl)
{
    const Tippcursor cursor = reihen_->cursor();
    const Tippreihe reihe = reihen_->reihe(cursor.reihe);
    reihen_->setzeReihe(cursor.reihe, mitZahl(reihe, static_cast<std::size_t>(cursor.feld), zahl));
    ungespeichert_ = true;
    reihen_->geheZu(cursor.vor());
}

void frmTA::leere()
{
    reihen_->leere();
    reihen_->geheZu({});
}

void frmTA::uebernimm(const std::vector<Tippreihe>& reihen)
{
    for (std::size_t i = 0; i < std::min(reihen.size(), kTippsJeSchein); ++i) {
        const int nr = static_cast<int>(i) + 1;
        Tippreihe reihe = reihen[i];
        if (reihe.superzahl.empty())
            reihe.superzahl = reihen_->reihe(nr).superzahl;
        reihen_->setzeReihe(nr, reihe);
    }
    ungespeichert_ = true;
}

/// False if nothing was saved.
bool frmTA::speichere()
{
    if (!vergleiche())
        reihen_->zeigeFehler();
    const auto name =
        sichereTipps(umgebung(), reihen_->reihen(), [this](const std::string& gesucht) { return gibtEs(gesucht); });
    if (!name)
        return false;
    ungespeichert_ = false;
    Text20->setText(qt(Mid(*name, 3, 6)));
    Bezeichnung33->setText(qt(grossbuchstaben(Mid(*name, 1, kPraefixUndWoche))));
    scheine_->frischeAuf();
    return true;
}

bool frmTA::gibtEs(const std::string& name)
{
    vorhandene_->frischeAuf();
    return std::ranges::any_of(Datei2->modell().zeilen(),
                               [&](const std::string& vorhanden) { return gleichOhneGrossKlein(vorhanden, name); });
}

/// False, behind a box, if no slip was loaded; the rows are as before then.
bool frmTA::lade()
{
    const std::string name = scheine_->gewaehlter();
    if (name.empty())
        return false;
    Bezeichnung33->setText(qt(grossbuchstaben(Mid(name, 1, kPraefixUndWoche))));
    if (istJahresTippschein(name)) {
        umgebung().boxen.info(qt(kLottoNachricht),
                              QString("Die Datei %1   ist eine, aus wöchentlichen Tipscheinen zusammengefasste, "
                                      "Jahres-Tipscheindatei. Es können in diesem Programm nur wöchentliche "
                                      "Tipschein-Dateien geladen werden.")
                                  .arg(qt(name)));
        return false;
    }
    const Tippschein schein = loadSlip(scheine_->pfad(name));
    if (!schein.gelesen()) {
        meldeUnlesbar(name, schein.stand);
        return false;
    }
    reihen_->leere();
    for (std::size_t i = 0; i < schein.reihen.size(); ++i)
        reihen_->setzeReihe(static_cast<int>(i) + 1, schein.reihen[i]);
    return true;
}

void frmTA::meldeUnlesbar(const std::string& name, Dateistand stand)
{
    const bool fehlt = stand == Dateistand::Fehlt;
    umgebung().boxen.info(kProgrammtitel, fehlt ? qt(kTippdateiFehlt)
                                                : QString("Die Datei %1 kann nicht gelesen werden.").arg(qt(name)));
    scheine_->frischeAuf();
}

void frmTA::loesche(const std::string& name)
{
    if (!umgebung().boxen.frage(kKontrollabfrage,
                                QString("Soll Tipschein-Datei %1 wirklich gelöscht werden ?").arg(qt(name))))
        return;
    std::error_code fehler;
    std::filesystem::remove(scheine_->pfad(name), fehler);
    if (fehler)
        umgebung().boxen.info(kProgrammtitel, QString("Die Datei %1 kann nicht gelöscht werden.").arg(qt(name)));
    scheine_->frischeAuf();
}

void frmTA::drucke()
{
    BildschirmVerzeichnis& bildschirme = *umgebung().bildschirme;
    bildschirme.lade<Tippempfaenger>(kDruckbildschirm).nimmTippzeilen(tippzeilen(reihen_->reihen()));
    bildschirme.oeffne(kDruckbildschirm);
}

/// Asks what becomes of tips that are not saved. False if the screen stays.
bool frmTA::darfGehen()
{
    if (!ungespeichert_)
        return true;
    if (umgebung().boxen.frage(kKontrollabfrage, "Die Tipps wurden noch nicht gespeichert. Jetzt speichern ?")) {
        speichere();
        return false;
    }
    ungespeichert_ = false;
    return true;
}

void frmTA::closeEvent(QCloseEvent* ereignis)
{
    if (darfGehen())
        Bildschirm::closeEvent(ereignis);
    else
        ereignis->ignore();
}
