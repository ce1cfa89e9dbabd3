#include "engines/screens/frmpos2.h"

#include "shell/elements/Liste.h"

#include <QPushButton>

namespace {

const std::vector<std::string> kDefinition{
    "Positionszahl (oder auch Ordnungszahl):",
    "Position einer Tip-Kombination innerhalb einer ",
    "lexikographisch geordneten Auflistung aller ",
    "13.983.816 möglichen Kombinationen.",
    "Beispiel:",
    "   1  2  3  4  5  6   -> an Position:          1",
    "   1  2  3  4  5  7   -> an Position:          2",
    "   1  2  3  4  5  8   -> an Position:          3",
    "       ........",
    "   5 10 20 30 40 49   -> an Position:  6.324.251",
    "       ........",
    "  11 12 23 34 35 48   -> an Position: 10.771.741",
    "       ........",
    "  43,45,46,47,48,49   -> an Position: 13.983.815",
    "  44,45,46,47,48,49   -> an Position: 13.983.816",
};
constexpr int kZeichen = 48;

} // namespace

frmpos2::frmpos2(Umgebung& umgebung) : Bildschirm(umgebung, "frmpos2", "Definition Positionszahl")
{
    Liste1 = liste("Liste1");
    Liste1->modell().fuelle(kDefinition);
    Liste1->setzeSichtbar(static_cast<int>(kDefinition.size()), kZeichen);
    Befehl1 = befehl("Befehl1", "&<<");
    setzeInhalt(spalte({dehnbar(Liste1), zeile({luecke(), Befehl1})}));
    bei(Befehl1, [this] { schliesse(); });
}
