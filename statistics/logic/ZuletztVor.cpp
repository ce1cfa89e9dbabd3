#include "statistics/logic/ZuletztVor.h"

#include "statistics/logic/ZuletztGezogen.h"

ZuletztVor zuletztVor(const ZiehungsArchiv& archiv, ZZModus modus)
{
    ZuletztVor vor = zuletztGezogen(archiv, suchbeginn(archiv.Spielart), archiv.AnzahlZiehungen, modus);
    for (std::int32_t& eintrag : vor)
        eintrag = archiv.AnzahlZiehungen - eintrag;
    return vor;
}
