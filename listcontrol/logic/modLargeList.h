#pragma once

#include "listcontrol/logic/ListenFehler.h"
#include "shell/logic/ListenModell.h"

#include <cstdint>
#include <string>

// Access to a list box of any length. A null pointer is no list box. All raise `ListenFehler`; indices count from 0.

/// Adds a row: behind the last one, or where it belongs in a sorted list. A list whose rows are made on request
/// refuses it.
void AddItem(ListenModell* liste, const std::string& text);

void ClearList(ListenModell* liste);

std::int32_t GetListCount(const ListenModell* liste);

std::string GetListItem(const ListenModell* liste, std::int32_t index);

/// Makes a row the current one. -1 makes none the current one and raises nevertheless, since -1 is also how the
/// platform reports a failure.
void SetListIndex(ListenModell* liste, std::int32_t index);
