#include "shell/logic/DateiFilter.h"

#include "shell/logic/Texte.h"

#include <cstddef>
#include <utility>

std::vector<DateiFilter> teileDateiFilter(std::string_view filter)
{
    std::vector<std::string> felder = teile(filter, "|");
    std::vector<DateiFilter> ergebnis;
    for (std::size_t i = 0; i + 1 < felder.size() && !felder[i].empty(); i += 2)
        ergebnis.push_back({std::move(felder[i]), std::move(felder[i + 1])});
    return ergebnis;
}
