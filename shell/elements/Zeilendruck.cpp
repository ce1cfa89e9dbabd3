#include "shell/elements/Zeilendruck.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/DateiDialog.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/PdfSeiten.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>

namespace {

/// Asks `weiter` behind every page; without it, or while it is true, the next one follows.
void maleZeilen(QPainter& maler, QPagedPaintDevice& papier, const Druckauftrag& auftrag, const Fortschritt& weiter)
{
    QFont schrift = Stil::festeSchrift();
    schrift.setPointSize(auftrag.masse.schriftgroesse);
    maler.setFont(schrift);
    const int zeilenhoehe = maler.fontMetrics().lineSpacing();
    std::uint64_t gedruckt = 0;
    for (const Druckseite& seite : druckseiten(auftrag)) {
        if (gedruckt > 0 && weiter && !weiter(gedruckt))
            return;
        if (gedruckt++ > 0)
            papier.newPage();
        int y = maler.fontMetrics().ascent();
        for (const std::string& zeile : seite) {
            maler.drawText(0, y, qt(zeile));
            y += zeilenhoehe;
        }
    }
}

Drucker::Maler malerVon(const Druckauftrag& auftrag, const Fortschritt& weiter = {})
{
    return
        [&auftrag, weiter](QPainter& maler, QPagedPaintDevice& papier) { maleZeilen(maler, papier, auftrag, weiter); };
}

enum class Druckausgang { Gut, Abgebrochen, KeinDrucker };

/// Prints as a run of the screen, whose title stands again afterwards, or within the run that it is in.
Druckausgang druckeAlsLauf(Bildschirm& bildschirm, const QString& titel, const Druckauftrag& auftrag)
{
    const QString stand = bildschirm.stand();
    Lauf lauf(bildschirm);
    const Fortschritt weiter = lauf ? lauf.fortschritt() : Fortschritt{};
    const bool gedruckt = bildschirm.umgebung().drucker.drucke(titel, malerVon(auftrag, weiter));
    if (lauf)
        bildschirm.setzeTitel(stand);
    if (lauf && bildschirm.gestoppt())
        return Druckausgang::Abgebrochen;
    return gedruckt ? Druckausgang::Gut : Druckausgang::KeinDrucker;
}

void speicherePdf(Bildschirm& bildschirm, const QString& titel, const Druckauftrag& auftrag)
{
    QString pfad = SpezialOrdner(kCsidlDokumente);
    const QString name = DateiSpeichern(bildschirm.umgebung(), dateinameAus(titel, "pdf"), pfad, "PDF-Dateien|*.pdf",
                                        "Als PDF-Datei speichern", "pdf");
    if (name.isEmpty())
        return;
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    schreibePdf(pdf, titel, malerVon(auftrag));
    if (const DateiErgebnis ergebnis = schreibeDatei(utf8(pfad + name), pdf.data().toStdString()); !ergebnis)
        meldeNichtGeschrieben(bildschirm.umgebung(), name, ergebnis);
    else
        bildschirm.melde("Gespeichert in " + name);
}

} // namespace

bool druckeZeilen(Drucker& drucker, const QString& titel, const Druckauftrag& auftrag)
{
    return drucker.drucke(titel, malerVon(auftrag));
}

void druckeZeilen(Bildschirm& bildschirm, const QString& titel, const Druckauftrag& auftrag)
{
    const Druckausgang ausgang = druckeAlsLauf(bildschirm, titel, auftrag);
    if (ausgang == Druckausgang::Abgebrochen)
        bildschirm.melde("Druck abgebrochen");
    if (ausgang != Druckausgang::KeinDrucker)
        return;
    Umgebung& umgebung = bildschirm.umgebung();
    bildschirm.setzeTitel("Es ist kein Standarddrucker eingerichtet.");
    if (umgebung.boxen.frage(kProgrammtitel,
                             "Es ist kein Drucker bereit.\nSoll die Liste als PDF-Datei gespeichert werden?"))
        speicherePdf(bildschirm, titel, auftrag);
}
