#include "listcontrol/logic/modLargeList.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace {

constexpr const char* kKeineListe = "Zugriff auf dieses Objekt verweigert. Objekt ist keine Listbox.";
constexpr const char* kNichtLesbar = "Element konnte nicht ausgelesen werden.";
constexpr const char* kAusserhalb = "Index außerhalb des gültigen Bereichs.";
constexpr const char* kNichtGesetzt = "Konnte ListIndex nicht setzen.";

template <class Liste> Liste& pruefe(Liste* liste, const char* quelle)
{
    if (liste == nullptr)
        throw ListenFehler(quelle, kKeineListe);
    return *liste;
}

} // namespace

void AddItem(ListenModell* liste, const std::string& text)
{
    constexpr const char* kQuelle = "mod_Listbox.AddItem";
    if (!pruefe(liste, kQuelle).AddItem(text))
        throw ListenFehler(kQuelle, kKeineListe);
}

void ClearList(ListenModell* liste)
{
    pruefe(liste, "mod_Listbox.ClearList").Clear();
}

std::int32_t GetListCount(const ListenModell* liste)
{
    constexpr std::size_t kMeiste = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(pruefe(liste, "mod_Listbox.GetListCount").ListCount(), kMeiste));
}

std::string GetListItem(const ListenModell* liste, std::int32_t index)
{
    constexpr const char* kQuelle = "mod_ListBox.GetListItem";
    const ListenModell& zeilen = pruefe(liste, kQuelle);
    if (index < 0 || static_cast<std::size_t>(index) >= zeilen.ListCount())
        throw ListenFehler(kQuelle, kAusserhalb);
    try {
        return zeilen.List(static_cast<std::size_t>(index));
    } catch (const std::exception&) { // a row made on request may fail in any way
        throw ListenFehler(kQuelle, kNichtLesbar);
    }
}

void SetListIndex(ListenModell* liste, std::int32_t index)
{
    constexpr const char* kQuelle = "mod_Listbox.SetListIndex";
    if (!pruefe(liste, kQuelle).SetListIndex(index) || index == ListenModell::kKeiner)
        throw ListenFehler(kQuelle, kNichtGesetzt);
}
