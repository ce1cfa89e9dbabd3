#include "engines/logic/Trefferrang.h"

#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferliste.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

std::string standtext(const Trefferstand& stand)
{
    return Format(stand.n6, "@@") + " | " + Format(stand.n5, "@@") + " | " + Format(stand.n4, "@@") + " | " +
           Format(stand.n3, "@@@") + " | ";
}

std::string kombinationsteil(std::int32_t nummer)
{
    return "   " + zahlentext(KombinationAusNummer(nummer));
}

} // namespace

void Trefferrang::fuegeHinzu(const Trefferstand& stand, std::int32_t nummer)
{
    const auto [eintrag, neu] = fachVon_.try_emplace(stand, faecher_.size());
    if (neu)
        faecher_.push_back({stand, {}, {}, 0});
    faecher_[eintrag->second].nummern.push_back(nummer);
    ++anzahl_;
}

void Trefferrang::ordne()
{
    fachVon_.clear();
    for (Fach& fach : faecher_)
        fach.text = standtext(fach.stand);
    std::ranges::sort(faecher_, {}, &Fach::text);
    std::size_t ab = 0;
    for (Fach& fach : faecher_) {
        fach.ab = ab;
        ab += fach.nummern.size();
    }
}

Trefferrang::Ort Trefferrang::ort(std::size_t index) const
{
    const Fach& fach = *std::prev(std::ranges::upper_bound(faecher_, index, {}, &Fach::ab));
    return {fach, fach.nummern[index - fach.ab]};
}

std::string Trefferrang::zeile(std::size_t index) const
{
    const Ort zeile = ort(index);
    return zeile.fach.text + kombinationsteil(zeile.nummer);
}

std::int32_t Trefferrang::nummer(std::size_t index) const
{
    return ort(index).nummer;
}

std::size_t Trefferrang::Streuung::operator()(const Trefferstand& stand) const
{
    std::uint64_t wert = stand.n3 | std::uint64_t{stand.n4} << 32U;
    wert ^= (stand.n5 | std::uint64_t{stand.n6} << 32U) * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(wert * 0x9E3779B97F4A7C15U >> 20U);
}

std::string trefferzeile(const Trefferstand& stand, std::int32_t nummer)
{
    return standtext(stand) + kombinationsteil(nummer);
}
