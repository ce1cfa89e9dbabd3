#include "listcontrol/logic/Textsortierung.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

// Lines of a result list are alike for long stretches, and each comparison of two of them begins anew at their first
// byte and far away in memory. So eight bytes of each line are laid side by side as one number, these are sorted, and
// only lines with equal numbers are looked at again, eight bytes further on.

namespace {

constexpr std::size_t kFenster = 8;
constexpr std::size_t kTiefste = 64; ///< bytes; what differs later only is compared as a whole
constexpr std::size_t kWenige = 16;

struct Eintrag {
    std::uint64_t teil; ///< the bytes of the line in the window, the first one highest, zeros behind its end
    std::size_t zeile;
};

std::uint64_t liesTeil(std::string_view text, std::size_t ab)
{
    std::uint64_t teil = 0;
    for (std::size_t i = ab; i < ab + kFenster; ++i) {
        teil = (teil << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    }
    return teil;
}

/// Orders the entries, whose lines are alike before byte `ab`.
void ordneAb(std::span<const std::string> texte, std::span<Eintrag> eintraege, std::size_t ab)
{
    const bool alleLaenger =
        std::ranges::all_of(eintraege, [&](const Eintrag& e) { return texte[e.zeile].size() > ab; });
    if (eintraege.size() < kWenige || ab >= kTiefste || !alleLaenger) {
        std::ranges::sort(eintraege, {}, [&](const Eintrag& e) { return std::string_view(texte[e.zeile]); });
        return;
    }
    for (Eintrag& eintrag : eintraege) {
        eintrag.teil = liesTeil(texte[eintrag.zeile], ab);
    }
    std::ranges::sort(eintraege, {}, &Eintrag::teil);
    for (std::size_t anfang = 0; anfang < eintraege.size();) {
        std::size_t ende = anfang + 1;
        while (ende < eintraege.size() && eintraege[ende].teil == eintraege[anfang].teil) {
            ++ende;
        }
        if (ende - anfang > 1) {
            ordneAb(texte, eintraege.subspan(anfang, ende - anfang), ab + kFenster);
        }
        anfang = ende;
    }
}

} // namespace

void sortiereTexte(std::span<std::string> texte)
{
    if (texte.size() < kWenige) {
        std::ranges::sort(texte);
        return;
    }
    std::vector<Eintrag> eintraege(texte.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        eintraege[i].zeile = i;
    }
    ordneAb(texte, eintraege, 0);
    std::vector<std::string> geordnete;
    geordnete.reserve(texte.size());
    for (const Eintrag& eintrag : eintraege) {
        geordnete.push_back(std::move(texte[eintrag.zeile]));
    }
    std::ranges::move(geordnete, texte.begin());
}
