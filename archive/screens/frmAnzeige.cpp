#include "archive/screens/frmAnzeige.h"

#include "archive/screens/Ablauftext.h"
#include "archive/screens/AnzeigeTexte.h"
#include "archive/screens/Editor.h"
#include "archive/screens/Spielartlader.h"
#include "archive/screens/Ziehungseingabe.h"
#include "archive/screens/Ziehungsfelder.h"
#include "archive/screens/Ziehungsspeicher.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <optional>

namespace {

constexpr auto kTitel = "Neue Ziehungen eingeben (Aktualisieren), gespeicherte Ziehungen anzeigen.";

QString spielname(std::int16_t spielart)
{
    if (istSamstag(spielart))
        return "SAMSTAGSLOTTO 6 aus 49";
    return spielart == Mittwochslotto ? "MITTWOCHSLOTTO 6 aus 49" : "MITTWOCHSLOTTO(B) 6 aus 49";
}

} // namespace

frmAnzeige::frmAnzeige(Umgebung& umgebung) : Bildschirm(umgebung, "frmAnzeige", kTitel)
{
    baueAnzeige();
    baueEingabe();
    baueKnoepfe();

    // clang-format off
    setzeInhalt(zeile({
        dehnbar(spalte({Rahmen2, dehnbar(Rahmen3), fEditor})),
        spalte({
            Rahmen1,
            luecke(),
            zeile({luecke(), Befehl5, Befehl2, Befehl1}),
        }),
    }));
    // clang-format on
    verbinde();
    Eingabe->setFocus();
}

void frmAnzeige::baueAnzeige()
{
    Texte = new Ziehungsfelder(this);
    HBildlauf1 = new QScrollBar(Qt::Horizontal, this);
    HBildlauf1->setObjectName("HBildlauf1");
    HBildlauf1->setFocusPolicy(Qt::StrongFocus);
    bezeichnung23 = bezeichnung("bezeichnung23");
    lblDate = bezeichnung("lblDate");
    chkTippfeld = kontroll("chkTippfeld", "Das Tippmuster beim Scrollen im Tippfeld anzeigen?");
    Rahmen2 = rahmen("Rahmen2", "Die schon gespeicherten Ziehungen anzeigen",
                     spalte({zeile({bezeichnung23, luecke(), lblDate}), Texte, HBildlauf1, chkTippfeld}));

    Bezeichnung24 = listenkopf("Bezeichnung24", "Zieh.Nr.  Datum         JJJJ/SW   Gewinnzahlen       ZZ   SZ");
    Liste1 = liste("Liste1");
    Liste1->setzeSichtbar(12, 66);
    Befehl12 = befehl("Befehl12", "Datei erzeugen");
    Rahmen3 = rahmen("Rahmen3", "Die schon gespeicherten Ziehungen in Listenform",
                     spalte({Bezeichnung24, dehnbar(Liste1), zeile({luecke(), Befehl12})}));
}

void frmAnzeige::baueEingabe()
{
    Eingabe = new Ziehungseingabe(this);
    Bezeichnung13 = bezeichnung("Bezeichnung13");
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    lblArt = bezeichnung("lblArt");
    alsUeberschrift(Bezeichnung13);
    cmdClear = befehl("cmdClear", "C", hinweis("Löscht alle eingegenen Gewinnzahlen im Tippfeld"));
    Befehl7 = befehl("Befehl7", "&Samstagslotto aktualisieren",
                     hinweis("Auf die Spielart Samstagslotto schalten, um die Ziehungsdatei Salotto.dat zu "
                             "aktualisieren."));
    Befehl7->setShortcut({}); // Alt+S saves
    Befehl10 = befehl("Befehl10", "&Mittwochslotto aktualisieren",
                      hinweis("Auf die Spielart Mittwochslotto schalten, um die Ziehungsdatei  Malotto.dat zu "
                              "aktualisieren."));
    Befehl11 = befehl("Befehl11", "Mittwoch (&B)", hinweis("Schaltet auf Mittwochslotto, Ziehung B."));
    Befehl8 = befehl("Befehl8", "Gewinnzahlen &speichern");
    Befehl8->setEnabled(false);

    // clang-format off
    Rahmen1 = rahmen("Rahmen1", "Die Gewinnzahlen einer neuen Ziehung erfassen", spalte({
        Bezeichnung13,
        Bezeichnung2,
        lblArt,
        Befehl7,
        zeile({dehnbar(Befehl10), Befehl11}),
        Eingabe,
        zeile({dehnbar(Befehl8), cmdClear}),
    }));
    // clang-format on
}

void frmAnzeige::baueKnoepfe()
{
    cmdNotepad = befehl("cmdNotepad", "Korrektur mit &Notepad");
    Befehl3 = befehl("Befehl3", "Korrektur mit MS-&Write");
    Befehl9 = befehl("Befehl9", "Neu &Laden",
                     hinweis("Nur notwendig wenn die Ziehungsdateien mit Notepad oder einen anderen Editor verändert "
                             "oder aktualisiert wurden."));
    Befehl9->setEnabled(false);
    fEditor = rahmen("fEditor", "Eventuell falsch erfasste Gewinnzahlen mit einem Editor korrigieren",
                     zeile({cmdNotepad, Befehl3, Befehl9}));
    Befehl5 = befehl("Befehl5", "&Hilfe");
    Befehl2 = befehl("Befehl2", "&Info");
    Befehl1 = befehl("Befehl1", "<< &Zurück");

    Frame1 = new Infotafel(this, new Ablauftext, {.rahmen = "Frame1", .ok = "Command1", .titel = "Info"});
    behaltePlatz(Rahmen1);
}

void frmAnzeige::verbinde()
{
    hauptaktionen({Befehl8});
    connect(HBildlauf1, &QScrollBar::valueChanged, this, [this](int nr) { zeigeZiehung(nr); });
    Liste1->beiAuswahl = [this] { HBildlauf1->setValue(static_cast<int>(Liste1->modell().ListIndex()) + 1); };
    connect(chkTippfeld, &QCheckBox::clicked, this, [this] { schalteTippmuster(); });
    Eingabe->beiKlick = [this] { chkTippfeld->setChecked(false); };
    Eingabe->beiAenderung = [this] { Befehl8->setEnabled(Eingabe->vollstaendig()); };
    bei(cmdClear, [this] { Eingabe->leere(); });
    bei(Befehl1, [this] { schliesse(); });
    bei(Befehl2, [this] { zeigeInfo(); });
    Frame1->beimWeglegen = [this] { Rahmen1->show(); };
    bei(Befehl3, [this] { oeffneEditor("MS-Write wurde nicht gefunden. Verwenden Sie einen "); });
    bei(cmdNotepad, [this] { oeffneEditor("Notepad wurde nicht gefunden. Verwenden Sie einen "); });
    bei(Befehl5, [this] { umgebung().boxen.info(kProgrammtitel, AnzeigeTexte::kHilfe); });
    bei(Befehl7, [this] { schalteAufMenue(Samstagslotto); });
    bei(Befehl10, [this] { schalteAufMenue(Mittwochslotto); });
    bei(Befehl11, [this] { schalteAufMittwochB(); });
    bei(Befehl8, [this] { speichere(); });
    bei(Befehl9, [this] { ladeNeu(); });
    bei(Befehl12, [this] { erzeugeDatei(); });
}

void frmAnzeige::beimZeigen()
{
    Bezeichnung13->setText(spielname(umgebung().archiv.Spielart));
    const std::chrono::weekday wochentag{std::chrono::local_days{umgebung().uhr.heute()}};
    if (wochentag == std::chrono::Saturday)
        schalteAufMenue(Samstagslotto);
    else if (wochentag == std::chrono::Wednesday)
        schalteAufMenue(Mittwochslotto);
    else
        frischeAuf();
}

QString frmAnzeige::dateiname() const
{
    return qt(ziehungsdateiName(umgebung().archiv.Spielart));
}

void frmAnzeige::frischeAuf()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    lblArt->setText("Aktive Ziehungsdatei: " + dateiname());
    setzeHinweis(cmdNotepad, "Korrigieren oder Aktualisieren der Datei " + dateiname() + " mit Notepad.exe");
    setzeHinweis(Befehl3, "Korrigieren oder Aktualisieren der Datei " + dateiname() + " mit MS-Write");

    Eingabe->schlageVor(archiv);
    Bezeichnung2->setText(
        QString(" Gespeicherte Ziehungen von %1 bis %2 -")
            .arg(istSamstag(archiv.Spielart) ? "1955/41" : "1986/23", qt(jahrUndWoche(archiv, letzte))));
    fuelleListe();
    {
        const QSignalBlocker stumm(HBildlauf1);
        HBildlauf1->setRange(std::min(1, archiv.AnzahlZiehungen), archiv.AnzahlZiehungen);
        HBildlauf1->setValue(archiv.AnzahlZiehungen);
    }
    zeigeZiehung(archiv.AnzahlZiehungen);
}

/// While a file is being loaded or is missing, the archive holds fewer draws than the list has rows.
void frmAnzeige::fuelleListe()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    const auto anzahl = [&archiv] { return static_cast<std::size_t>(archiv.AnzahlZiehungen); };
    Liste1->modell().aufAnfrage(anzahl(), [&archiv, anzahl](std::size_t zeile) {
        return zeile < anzahl() ? listenzeile(archiv, zeile + 1) : std::string();
    });
}

void frmAnzeige::zeigeZiehung(int nr)
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    if (nr < 1 || nr > archiv.AnzahlZiehungen) {
        Texte->leere();
        lblDate->clear();
        bezeichnung23->setText("Ziehung 0  (von 0 gespeicherten)");
        if (chkTippfeld->isChecked())
            Eingabe->leere();
        return;
    }
    const auto stelle = static_cast<std::size_t>(nr);
    Texte->zeige(archiv, stelle);
    bezeichnung23->setText(QString("Ziehung %1  (von %2 gespeicherten)").arg(nr).arg(archiv.AnzahlZiehungen));
    lblDate->setText(qt(archiv.Datum[stelle]));
    Liste1->modell().SetListIndex(nr - 1);
    Liste1->zeigeZeile(nr - 1);
    if (chkTippfeld->isChecked())
        Eingabe->zeige(archiv, stelle);
}

void frmAnzeige::schalteTippmuster()
{
    Eingabe->leere();
    if (chkTippfeld->isChecked())
        zeigeZiehung(HBildlauf1->value());
}

void frmAnzeige::speichere()
{
    const std::optional<NeueZiehung> ziehung = Eingabe->ziehung();
    if (!ziehung) {
        umgebung().boxen.info("Lotto-Nachricht", "Jahreszahlen 4-stellig eingeben !");
        return;
    }
    const QString datei = dateiname();
    if (!speichereZiehung(*this, *ziehung, Bezeichnung13->text()))
        return;
    frischeAuf();
    Eingabe->leere();
    Eingabe->setFocus();
    umgebung().boxen.info(kInfotitel,
                          "Die Gewinnzahlen der letzten Spielwoche wurden in Datei " + datei + " gespeichert !");
}

void frmAnzeige::erzeugeDatei()
{
    if (!erzeugeZiehungsdatei(*this))
        return;
    frischeAuf();
    setzeTitel("Die Datei " + dateiname() + " wurde erzeugt.");
}

void frmAnzeige::schalteAufMenue(std::int16_t spielart)
{
    const WarteAnzeige warten(*this);
    umgebung().menue->waehleSpielart(spielart);
    Bezeichnung13->setText(spielname(spielart));
    frischeAuf();
}

void frmAnzeige::schalteAufMittwochB()
{
    ladeSpielart(umgebung(), MittwochslottoB);
    Bezeichnung13->setText("MITTWOCHSLOTTO (B)");
    frischeAuf();
}

void frmAnzeige::ladeNeu()
{
    const WarteAnzeige warten(*this, "Die 'Historischen Ziehungszahlen' werden aktualisiert und neu geladen...");
    ladeSpielart(umgebung(), umgebung().archiv.Spielart);
    frischeAuf();
    Befehl9->setEnabled(false);
}

void frmAnzeige::oeffneEditor(const QString& meldung)
{
    const QString rest = " vorhandenen ASCII-Text-Editor um die Datei " + dateiname() + " zu aktualisieren.";
    if (oeffneImEditor(umgebung(), aktiveZiehungsdatei(umgebung()), meldung + rest))
        Befehl9->setEnabled(true);
}

void frmAnzeige::zeigeInfo()
{
    Rahmen1->hide();
    Frame1->zeige();
}
