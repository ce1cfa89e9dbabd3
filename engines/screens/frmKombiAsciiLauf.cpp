#include "engines/logic/Exporttexte.h"
#include "engines/screens/frmKombiAscii.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/clsTimer.h"

#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <atomic>
#include <future>

// The run of an export: what its button does from the press to the last line, and the folder it goes to.

void frmKombiAscii::starte()
{
    if (laeuft())
        return;
    const Exportauftrag neuer = auftrag();
    if (darfSchreiben(neuer))
        schreibe(neuer);
}

/// False, after a box, if the order has a fault, its folder does not take the files, or the user keeps the old ones.
bool frmKombiAscii::darfSchreiben(const Exportauftrag& auftrag)
{
    Boxen& boxen = umgebung().boxen;
    const std::string ordner = utf8(ordner_);
    if (const auto fehler = auftragsfehler(auftrag)) {
        boxen.info(kProgrammtitel, qt(*fehler));
        return false;
    }
    if (!QDir(ordner_).exists()) {
        boxen.info(kProgrammtitel, qt(ordnerFehlt(ordner)));
        return false;
    }
    const std::vector<Exportdatei> dateien = exportdateien(auftrag);
    if (const std::uint64_t fehlende = fehlenderPlatz(ordner, dateien); fehlende > 0) {
        boxen.info(kProgrammtitel, qt(platzReichtNicht(ordner, dateien, fehlende)));
        return false;
    }
    const std::vector<std::string> vorhandene = vorhandeneDateien(ordner, dateien);
    return vorhandene.empty() || boxen.frage(kProgrammtitel, qt(ueberschreibfrage(vorhandene, ordner)));
}

/// The files are written on a thread of their own: the disk may take its time for a block, and for the end of a file.
void frmKombiAscii::schreibe(const Exportauftrag& auftrag)
{
    constexpr std::chrono::milliseconds kWarten{10};
    Lauf lauf(*this, auftrag.gefiltert() ? qt(kExportsuche) : "Bitte warten !");
    sperre(true);
    lblZeit->clear();
    clsTimer uhr;
    uhr.ResetTimer();
    std::atomic<std::uint64_t> geschriebene = 0;
    std::atomic<bool> weiter = true;
    auto werk = std::async(std::launch::async, [&, ordner = std::filesystem::path(utf8(ordner_))] {
        return exportiereKombinationen(auftrag, ordner, [&](std::uint64_t kombinationen) {
            geschriebene = kombinationen;
            return weiter.load();
        });
    });
    do {
        lblAnzahl->setText(qt(exportfortschritt(auftrag, geschriebene)));
        if (!lauf.zug())
            weiter = false;
    } while (werk.wait_for(kWarten) != std::future_status::ready);
    const Exportergebnis ergebnis = werk.get();
    uhr.StopTimer();
    sperre(false);
    lblAnzahl->setText(qt(exportstand(auftrag, ergebnis.kombinationen)));
    lblZeit->setText(qt(zeittext(uhr.Elapsed())));
    if (ergebnis.ende == Exportende::Gestoppt)
        setzeTitel(qt(exportGestoppt(ergebnis)));
    else if (ergebnis.ende == Exportende::Gescheitert)
        umgebung().boxen.info(kProgrammtitel, qt(exportGescheitert(ergebnis)));
}

/// What is written must not change under the eyes of the user; the rest stays in reach.
void frmKombiAscii::sperre(bool laeuft)
{
    for (QGroupBox* rahmen : findChildren<QGroupBox*>())
        rahmen->setEnabled(!laeuft);
    cmdStart->setEnabled(!laeuft);
    cmdAbbruch->setEnabled(laeuft);
    (laeuft ? cmdAbbruch : cmdStart)->setFocus();
}

void frmKombiAscii::waehleOrdner()
{
    DateiFrage frage;
    frage.titel = "Bitte einen Ordner auswählen...";
    frage.pfad = ordner_;
    frage.ordner = true;
    const std::optional<QString> gewaehlter = umgebung().boxen.datei(frage);
    if (!gewaehlter || gewaehlter->isEmpty())
        return;
    ordner_ = *gewaehlter;
    zeigeAuftrag();
}

void frmKombiAscii::oeffneOrdner()
{
    if (!QDir(ordner_).exists() || !umgebung().oeffner.oeffne(ordner_))
        umgebung().boxen.info(kProgrammtitel, "Ordner " + ordner_ + " konnte nicht geöffnet werden.");
}
