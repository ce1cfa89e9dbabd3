#pragma once

#include "listcontrol/logic/Column.h"

#include <string_view>
#include <vector>

/// The columns of a result list, found by their index, from 0, or by their key, without regard to case.
class ColumnCollection {
public:
    int Count() const { return static_cast<int>(spalten_.size()); }

    /// Raises `IndexFehler` for an index that is not there.
    const Column& Item(int index) const;
    Column& Item(int index);

    /// -1 if no column has this key.
    int Index(std::string_view key) const;

    /// Raises `IndexFehler` for an index that is not there. Later columns move up by one.
    void Remove(int index);

    /// Adds a column behind the last one. Raises `ListenFehler`, and adds nothing, if the key is taken.
    void Add(Column spalte);

private:
    std::vector<Column> spalten_;
};
