#include "tools/muster/Muster.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/logic/Ziehungskalender.h"
#include "shell/logic/Lottozahl.h"
#include "tools/muster/Spielwoche.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <random>
#include <string_view>

using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year;

namespace {

constexpr sys_days kOhneZusatzzahlAb = year{2013} / std::chrono::May / 4;
constexpr sys_days kLetzteBZiehung = year{2000} / std::chrono::November / 29;
constexpr std::size_t kSatzlaenge = std::string_view("jjjj,sw,z1,z2,z3,z4,z5,z6,zz,s\r\n").size();

/// Random numbers that are the same with every compiler and library.
class Musterzufall {
public:
    explicit Musterzufall(std::uint64_t saat) : quelle_(saat) {}

    /// 0..grenze - 1, each equally likely.
    int unter(int grenze)
    {
        const auto n = static_cast<std::uint64_t>(grenze);
        const std::uint64_t gleichVerteiltBis = quelle_.max() - quelle_.max() % n;
        std::uint64_t wert = quelle_();
        while (wert >= gleichVerteiltBis)
            wert = quelle_();
        return static_cast<int>(wert % n);
    }

private:
    std::mt19937_64 quelle_;
};

sys_days ziehungstag(std::int16_t spielart, std::int32_t nr)
{
    return istSamstag(spielart) ? samstagsZiehung(nr) : mittwochsZiehung(nr);
}

bool hatZusatzzahl(std::int16_t spielart, std::int32_t nr)
{
    const bool begonnen = !istSamstag(spielart) || nr >= kZusatzzahlBeginnSamstag;
    return begonnen && ziehungstag(spielart, nr) < kOhneZusatzzahlAb;
}

bool hatSuperzahl(std::int16_t spielart, std::int32_t nr)
{
    return nr >= superzahlBeginn(spielart);
}

int zieheZahl(Musterzufall& zufall, std::bitset<kHoechsteZahl + 1>& gezogen)
{
    int zahl = zufall.unter(kHoechsteZahl) + 1;
    while (gezogen.test(static_cast<std::size_t>(zahl)))
        zahl = zufall.unter(kHoechsteZahl) + 1;
    gezogen.set(static_cast<std::size_t>(zahl));
    return zahl;
}

void haengeZweistelligAn(std::string& datei, int wert)
{
    datei += static_cast<char>('0' + wert / 10 % 10);
    datei += static_cast<char>('0' + wert % 10);
    datei += ',';
}

void haengeZiehungAn(std::string& datei, Musterzufall& zufall, std::int16_t spielart, std::int32_t nr)
{
    std::bitset<kHoechsteZahl + 1> gezogen;
    std::array<int, 6> gewinnzahlen{};
    for (int& zahl : gewinnzahlen)
        zahl = zieheZahl(zufall, gezogen);
    std::ranges::sort(gewinnzahlen);
    const int zusatzzahl = hatZusatzzahl(spielart, nr) ? zieheZahl(zufall, gezogen) : 0;
    const int superzahl = hatSuperzahl(spielart, nr) ? zufall.unter(10) : 0;

    const Spielwoche woche = spielwocheVon(ziehungstag(spielart, nr));
    datei += std::to_string(woche.jahr) + ",";
    haengeZweistelligAn(datei, woche.woche);
    for (const int zahl : gewinnzahlen)
        haengeZweistelligAn(datei, zahl);
    haengeZweistelligAn(datei, zusatzzahl);
    datei += std::to_string(superzahl) + "\r\n";
}

} // namespace

std::int32_t musterAnzahl(std::int16_t spielart, sys_days stand)
{
    sys_days bis = stand - (weekday{stand} - std::chrono::Monday) - std::chrono::days{1};
    if (spielart == MittwochslottoB)
        bis = std::min(bis, kLetzteBZiehung);
    std::int32_t anzahl = 0;
    while (anzahl < kMaxZiehungenJeDatei && ziehungstag(spielart, anzahl + 1) <= bis)
        ++anzahl;
    return anzahl;
}

std::string musterDatei(std::int16_t spielart, sys_days stand)
{
    const std::int32_t anzahl = musterAnzahl(spielart, stand);
    Musterzufall zufall(19551009 + static_cast<std::uint64_t>(spielart));
    std::string datei;
    datei.reserve(static_cast<std::size_t>(anzahl) * kSatzlaenge);
    for (std::int32_t nr = 1; nr <= anzahl; ++nr)
        haengeZiehungAn(datei, zufall, spielart, nr);
    return datei;
}
