#include "filters/logic/Fundangabe.h"

#include "shell/logic/Format.h"

double prozentVon(std::size_t ziehungen, std::int32_t alle)
{
    return alle > 0 ? 100.0 * static_cast<double>(ziehungen) / alle : 0;
}

std::string fundangabe(std::size_t funde, std::int32_t alle, const Fundwortlaut& wortlaut)
{
    std::string text = std::to_string(funde) + " ";
    text += funde == 1 ? wortlaut.einzahl : "Ziehungen";
    text += " (" + Format(prozentVon(funde, alle), wortlaut.prozentmaske) + "%) von ";
    return text + std::to_string(alle) + " Ziehungen ";
}
