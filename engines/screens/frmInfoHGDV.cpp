#include "engines/screens/frmInfoHGDV.h"

#include "shell/elements/Liste.h"

#include <QPushButton>

namespace {

constexpr int kBreite = 64;

// The count of all sixes has stood here with a wrong digit since the first version of the text.
const std::vector<std::string>& infotext()
{
    static const std::vector<std::string> zeilen{
        "Suche nach Wiederholungen (brute force)",
        "",
        "Es werden alle überhaupt möglichen Kombinationen einer Größe",
        "gebildet und nacheinander mit jeder Ziehung verglichen. Dadurch",
        "werden auch die Kombinationen gezählt, die noch nie gezogen",
        "wurden. Die noch nie gezogenen Dreierkombinationen werden",
        "aufgelistet.",
        "",
        "Bei den Sechserwiederholungen sind das 13.983.616 Kombinationen.",
        "",
        "Suchzeiten (Datenstand 1998/17, 2200 Ziehungen):",
        "",
        "Zweier:  ca:       24 sek, ohne Animation        4 sek",
        "Dreier:  ca:     1:20 min, ohne Animation       23 sek",
        "Vierer:  ca:    14:00 min, ohne Animation     2:20 min",
        "Fünfer:  ca:  1:58:00 h  , ohne Animation    23:00 min",
        "Sechser: ca: 14:00:00 h  , ohne Animation 02:40:00 h",
        "",
        "Die Zeiten stammen von einem damaligen Rechner. Heute ist jede",
        "Suche ohne Animation in weniger als einer Sekunde fertig. Mit",
        "Animation wird jede einzelne Kombination angezeigt; das dauert",
        "vor allem bei den Sechsern noch immer lange.",
        "",
        "Wer nur die Wiederholungen sucht, kommt mit dem Programm",
        "\"Wiederholungen\" schneller zum Ziel: Es zerlegt nur die",
        "Ziehungen und zeigt zu jeder Kombination auch ihre Ziehungen.",
        "",
        "Eine laufende Suche kann mit \"Abbrechen\" beendet werden. Was",
        "bis dahin gefunden wurde, bleibt in der Liste stehen.",
    };
    return zeilen;
}

} // namespace

frmInfoHGDV::frmInfoHGDV(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmInfoHGDV", "Info zur Suche nach Wiederholungen (brute force)")
{
    Liste1 = liste("Liste1");
    Liste1->modell().fuelle(infotext());
    Liste1->setzeSichtbar(static_cast<int>(infotext().size()), kBreite);
    Befehl1 = befehl("Befehl1", "&ok");

    // clang-format off
    setzeInhalt(spalte({
        dehnbar(Liste1),
        zeile({luecke(), Befehl1}),
    }));
    // clang-format on

    bei(Befehl1, [this] { schliesse(); });
}
