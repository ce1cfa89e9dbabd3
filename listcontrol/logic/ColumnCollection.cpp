#include "listcontrol/logic/ColumnCollection.h"

#include "listcontrol/logic/ListenFehler.h"

#include <algorithm>
#include <utility>

const Column& ColumnCollection::Item(int index) const
{
    if (index < 0 || index >= Count())
        throw IndexFehler("ColumnCollection");
    return spalten_[static_cast<std::size_t>(index)];
}

Column& ColumnCollection::Item(int index)
{
    return const_cast<Column&>(std::as_const(*this).Item(index));
}

int ColumnCollection::Index(std::string_view key) const
{
    const auto gleich = [key](const Column& spalte) { return gleichOhneGrossKlein(spalte.key, key); };
    const auto ort = std::ranges::find_if(spalten_, gleich);
    return ort == spalten_.end() ? -1 : static_cast<int>(ort - spalten_.begin());
}

void ColumnCollection::Remove(int index)
{
    Item(index);
    spalten_.erase(spalten_.begin() + index);
}

void ColumnCollection::Add(Column spalte)
{
    if (Index(spalte.key) >= 0)
        throw ListenFehler("ColumnCollection", "Objekt nicht eindeutig in Aufzählung!");
    spalten_.push_back(std::move(spalte));
}
