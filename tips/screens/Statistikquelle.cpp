#include "tips/screens/Statistikquelle.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "statistics/screens/frmSTAT1.h"
#include "statistics/screens/frmSWH.h"
#include "statistics/screens/frmZuletzt.h"

Statistikquelle::Statistikquelle(Umgebung& umgebung)
    : umgebung_(umgebung),
      vorschlagLaeuft_(umgebung.VorschlagLaeuft, true)
{}

Statistikliste Statistikquelle::wochenliste(int sw)
{
    auto& quelle = umgebung_.bildschirme->lade<frmSWH>("frmSWH");
    quelle.werteAus(sw, false);
    Statistikliste liste = fillWochenListe(quelle.ergebnis());
    quelle.schliesse();
    return liste;
}

Statistikliste Statistikquelle::haeufigkeitsliste()
{
    auto& quelle = umgebung_.bildschirme->lade<frmSTAT1>("frmSTAT1");
    if (umgebung_.archiv.Spielart != MittwochslottoB)
        quelle.werteAus(ZZModus::Ohne);
    Statistikliste liste = fillHaeufigkeitListe(quelle.ergebnis().haeufigkeit);
    quelle.schliesse();
    return liste;
}

Statistikliste Statistikquelle::abwesenheitsliste()
{
    auto& quelle = umgebung_.bildschirme->lade<frmZuletzt>("frmZuletzt");
    if (umgebung_.archiv.Spielart != MittwochslottoB)
        quelle.werteAus(ZZModus::Ohne);
    Statistikliste liste = fillAbwesenheitListe(quelle.ergebnis());
    quelle.schliesse();
    return liste;
}
