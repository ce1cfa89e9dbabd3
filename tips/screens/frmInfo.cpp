#include "tips/screens/frmInfo.h"

#include "tips/screens/Spielscheinbild.h"

#include <QPushButton>

frmInfo::frmInfo(Umgebung& umgebung) : Bildschirm(umgebung, "frmInfo", "Der Spielschein")
{
    auto* Picture1 = new Spielscheinbild("Picture1", this);
    auto* Command1 = befehl("Command1", "OK");
    setzeInhalt(spalte({dehnbar(Picture1), zeile({luecke(), Command1})}));
    bei(Command1, [this] { schliesse(); });
}
