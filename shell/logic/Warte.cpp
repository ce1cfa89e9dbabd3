#include "shell/logic/Warte.h"

void Warte(double sekunden, const Uhr& uhr, const std::function<bool()>& pumpe)
{
    const double ende = uhr.Timer() + sekunden;
    while (uhr.Timer() < ende)
        if (!pumpe())
            return;
}
