#include "shell/elements/Zeilendruck.h"

#include "shell/elements/Stil.h"
#include "shell/elements/Umgebung.h"
#include "shell/elements/Utf8.h"

#include <QPagedPaintDevice>
#include <QPainter>

bool druckeZeilen(Drucker& drucker, const QString& titel, const Druckauftrag& auftrag)
{
    return drucker.drucke(titel, [&auftrag](QPainter& maler, QPagedPaintDevice& papier) {
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
    });
}
