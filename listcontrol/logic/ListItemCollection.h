#pragma once

#include "listcontrol/logic/ListItem.h"
#include "listcontrol/logic/modSortCallback.h"

#include <string_view>
#include <vector>

/// The rows of a result list. Rows and columns count from 0; an index out of range raises `IndexFehler`.
class ListItemCollection {
public:
    static constexpr int kAnfangskapazitaet = 1000;

    explicit ListItemCollection(int spalten = 0) : spalten_(spalten) {}

    int ColumnCount() const { return spalten_; }
    /// Rows that are there keep the texts that still have a column.
    void setColumnCount(int spalten);

    const ListItem& Item(int index) const;
    ListItem& Item(int index);
    int ItemCount() const { return static_cast<int>(posten_.size()); }
    /// How many rows have room before the array grows by half.
    int Capacity() const { return kapazitaet_; }

    /// The capacity stays.
    void Clear() { posten_.clear(); }

    /// Sorts by the text of a column, without regard to case. Rows with equal texts may change places, always in the
    /// same way.
    void Sort(int column, Sortierrichtung order);

    /// Takes a row out and puts it back so that it becomes row `to`.
    void MoveItem(int from, int to);
    void RemoveItem(int index);

    /// Adds a row in front of row `index`, or with an index below 0 behind the last one; `text` is that of the first
    /// column. Returns the index of the new row. Raises `ListenFehler` while there are no columns.
    int AddItem(std::string_view text, std::string_view tag = {}, int index = -1);

    /// Makes room for exactly this many rows, or for those that are there.
    void PrepareForItems(int anzahl);

private:
    int spalten_;
    int kapazitaet_{kAnfangskapazitaet};
    std::vector<ListItem> posten_;
};
