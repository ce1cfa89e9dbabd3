#include "listcontrol/logic/ListBoxSort.h"

#include "shell/logic/clsTimer.h"

#include <algorithm>
#include <functional>
#include <utility>

void ListBoxSort(std::vector<std::string>& feld, std::size_t erster, std::size_t letzter, bool absteigend)
{
    if (erster >= letzter || erster >= feld.size())
        return;
    const auto anfang = feld.begin() + static_cast<std::ptrdiff_t>(erster);
    const auto ende = feld.begin() + static_cast<std::ptrdiff_t>(std::min(letzter, feld.size() - 1)) + 1;
    if (absteigend)
        std::sort(anfang, ende, std::greater<>());
    else
        std::sort(anfang, ende);
}

std::optional<double> ListBoxSort(ListenModell& liste, bool absteigend)
{
    if (liste.wirdAufAnfrageGemacht())
        return std::nullopt;
    clsTimer uhr;
    uhr.ResetTimer();
    std::vector<std::string> zeilen = liste.zeilen();
    if (!zeilen.empty())
        ListBoxSort(zeilen, 0, zeilen.size() - 1, absteigend);
    liste.fuelle(std::move(zeilen));
    uhr.StopTimer();
    return uhr.Elapsed();
}
