#include "shell/logic/Tippfeld7x7.h"

#include "shell/logic/Lottozahl.h"

std::vector<int> Tippfeld7x7::gewaehlte() const
{
    std::vector<int> zahlen;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        if (markiert(zahl))
            zahlen.push_back(zahl);
    return zahlen;
}

void Tippfeld7x7::klickFreieEingabe(int zahl)
{
    if (!gibtEs(zahl))
        return;
    if (markiert(zahl))
        marken_.reset(stelle(zahl));
    else if (anzahl() < kFreieEingabe)
        marken_.set(stelle(zahl));
}

void Tippfeld7x7::klickEineZahl(int zahl)
{
    if (!gibtEs(zahl))
        return;
    loesche();
    marken_.set(stelle(zahl));
}

void Tippfeld7x7::klickAuswahl(int zahl)
{
    if (gibtEs(zahl))
        marken_.flip(stelle(zahl));
}

void Tippfeld7x7::zeige(std::span<const std::int32_t> zahlen)
{
    loesche();
    for (const std::int32_t zahl : zahlen)
        if (gibtEs(zahl))
            marken_.set(stelle(zahl));
}
