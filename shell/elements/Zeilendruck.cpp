#include "shell/elements/Zeilendruck.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/DateiDialog.h"
#include "shell/elements/PdfSeiten.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>

namespace {

void maleZeilen(QPainter& maler, QPagedPaintDevice& papier, const Druckauftrag& auftrag)
{
    QFont schrift = Stil::festeSchrift();
    schrift.setPointSize(auftrag.masse.schriftgroesse);
    maler.setFont(schrift);
    const int zeilenhoehe = maler.fontMetrics().lineSpacing();
    bool ersteSeite = true;
    for (const Druckseite& seite : druckseiten(auftrag)) {
        if (!ersteSeite)
            papier.newPage();
        ersteSeite = false;
        int y = maler.fontMetrics().ascent();
        for (const std::string& zeile : seite) {
            maler.drawText(0, y, qt(zeile));
            y += zeilenhoehe;
        }
    }
}

Drucker::Maler malerVon(const Druckauftrag& auftrag)
{
    return [&auftrag](QPainter& maler, QPagedPaintDevice& papier) { maleZeilen(maler, papier, auftrag); };
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
    Umgebung& umgebung = bildschirm.umgebung();
    if (druckeZeilen(umgebung.drucker, titel, auftrag))
        return;
    bildschirm.setzeTitel("Es ist kein Standarddrucker eingerichtet.");
    if (umgebung.boxen.frage(kProgrammtitel,
                             "Es ist kein Drucker bereit.\nSoll die Liste als PDF-Datei gespeichert werden?"))
        speicherePdf(bildschirm, titel, auftrag);
}
