#include "listcontrol/logic/ListItem.h"

#include "listcontrol/logic/ListenFehler.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <string>
#include <utility>

namespace {

constexpr std::size_t kRaster = 16;    ///< the steps in which the memory manager hands out blocks
constexpr std::size_t kVerwaltung = 8; ///< what it needs itself of each

constexpr std::size_t gerundet(std::size_t groesse)
{
    return (groesse + kVerwaltung + kRaster - 1) / kRaster * kRaster - kVerwaltung;
}

} // namespace

void ListItem::Freigabe::operator()(Kopf* kopf) const
{
    ::operator delete(kopf);
}

ListItem::Block ListItem::block(std::size_t spalten, std::size_t vorrat)
{
    const std::size_t ohneText = sizeof(Kopf) + (spalten + 1) * sizeof(std::uint32_t);
    const std::size_t groesse = gerundet(ohneText + vorrat);
    if (groesse - ohneText > std::numeric_limits<std::uint32_t>::max())
        throw std::bad_alloc();
    Block neu(static_cast<Kopf*>(::operator new(groesse)));
    *neu = {.vorrat = static_cast<std::uint32_t>(groesse - ohneText),
            .spalten = static_cast<std::uint32_t>(spalten),
            .bild = -1,
            .angekreuzt = false,
            .gewaehlt = false};
    return neu;
}

ListItem::ListItem(int spalten, std::size_t vorrat)
    : kopf_(block(static_cast<std::size_t>(std::max(0, spalten)), vorrat))
{
    std::fill_n(enden(), kopf_->spalten + 1, 0U);
}

std::size_t ListItem::pruefe(int spalte) const
{
    if (spalte < 0 || spalte >= SubItemCount())
        throw IndexFehler("ListItem");
    return static_cast<std::size_t>(spalte);
}

std::string_view ListItem::Tag() const
{
    return {texte(), enden()[0]};
}

std::string_view ListItem::Text(int spalte) const
{
    const std::uint32_t* ende = enden() + pruefe(spalte);
    return {texte() + ende[0], ende[1] - ende[0]};
}

void ListItem::setText(int spalte, std::string_view text)
{
    setze(pruefe(spalte) + 1, text);
}

void ListItem::setze(std::size_t fach, std::string_view text)
{
    const bool eigener =
        std::less_equal<>()(texte(), text.data()) && std::less<>()(text.data(), texte() + kopf_->vorrat);
    if (eigener) {
        setze(fach, std::string(text));
        return;
    }
    const std::size_t ab = fach > 0 ? enden()[fach - 1] : 0;
    const std::size_t bis = enden()[fach];
    const std::size_t laenge = Textlaenge();
    const std::size_t neueLaenge = laenge - (bis - ab) + text.size();
    if (neueLaenge > kopf_->vorrat)
        zieheUm(kopf_->spalten, std::max<std::size_t>(neueLaenge, kopf_->vorrat + kopf_->vorrat / 2));
    std::memmove(texte() + ab + text.size(), texte() + bis, laenge - bis);
    std::copy(text.begin(), text.end(), texte() + ab);
    // Unsigned, so that the texts behind move to the left as well.
    const auto schub = static_cast<std::uint32_t>(neueLaenge - laenge);
    for (std::uint32_t* ende = enden() + fach; ende <= enden() + kopf_->spalten; ++ende)
        *ende += schub;
}

void ListItem::SetSubItemCount(int spalten)
{
    zieheUm(static_cast<std::size_t>(std::max(0, spalten)), kopf_->vorrat);
}

void ListItem::zieheUm(std::size_t spalten, std::size_t vorrat)
{
    const std::uint32_t* alteEnden = enden();
    const char* alteTexte = texte();
    const std::size_t bleiben = std::min<std::size_t>(spalten, kopf_->spalten) + 1;
    const std::uint32_t laenge = alteEnden[bleiben - 1];
    const Block alt = std::exchange(kopf_, block(spalten, std::max<std::size_t>(vorrat, laenge)));
    kopf_->bild = alt->bild;
    kopf_->angekreuzt = alt->angekreuzt;
    kopf_->gewaehlt = alt->gewaehlt;
    std::copy_n(alteEnden, bleiben, enden());
    std::fill_n(enden() + bleiben, spalten + 1 - bleiben, laenge);
    std::copy_n(alteTexte, laenge, texte());
}
