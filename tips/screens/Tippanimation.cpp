#include "tips/screens/Tippanimation.h"

#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Wartezeit.h"

#include <vector>

namespace {

constexpr int kRunden = 15;
constexpr int kZahlenJeRunde = 10;
constexpr int kZahlenAmEnde = 6;
constexpr int kSchritte = kRunden * kZahlenJeRunde + kZahlenAmEnde;

} // namespace

bool Tippanimation::spiele(Lauf& lauf)
{
    if (dauer_.count() == 0)
        return true;
    for (int runde = 1; runde <= kRunden; ++runde)
        if (!zeigeRunde(lauf, kZahlenJeRunde))
            return false;
    return zeigeRunde(lauf, kZahlenAmEnde);
}

bool Tippanimation::zeigeRunde(Lauf& lauf, int zahlen)
{
    std::vector<std::int32_t> markierte;
    Tippfeld7x7 feld;
    while (!uebersprungen_ && feld.anzahl() < zahlen) {
        markierte.push_back(lottozahl(zufall_.Rnd()));
        feld.zeige(markierte);
        feld_.zeige(feld);
        if (!warte(lauf, dauer_ / kSchritte))
            return false;
    }
    return true;
}
