#include "engines/logic/Positionsrechner.h"

#include "shell/logic/Format.h"

std::string positionsergebnis(const Kombination& zahlen, Positionszahl position)
{
    std::string text = "Die Kombination:  ";
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        text.append(Format(zahlen[i], "@@")).append(i + 1 < zahlen.size() ? " " : "");
    return text.append(" -> steht an Position: ").append(Format(position, "##,###,###"));
}
