#include "engines/logic/NieGezogeneDreier.h"

#include "archive/logic/Ziehungsmengen.h"
#include "engines/logic/Teilmengentafel.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Zahlen.h"

#include <array>

std::vector<std::string> nieGezogeneDreier(const ZiehungsArchiv& archiv)
{
    const Teilmengentafel<std::uint32_t> tafel(kHoechsteZahl, ziehungsmengen(archiv));

    std::vector<std::string> zeilen;
    auto anzahl = tafel.tabelle(3).begin();
    for (int a = 1; a <= kHoechsteZahl - 2; ++a)
        for (int b = a + 1; b <= kHoechsteZahl - 1; ++b)
            for (int c = b + 1; c <= kHoechsteZahl; ++c)
                if (*anzahl++ == 0)
                    zeilen.push_back("   " + zahlentext(std::array{a, b, c}));
    return zeilen;
}
