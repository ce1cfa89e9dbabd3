#include "listcontrol/logic/concat.h"

#include <algorithm>

void concat::Append(std::string_view text)
{
    const std::size_t gesamt = Length() + text.size();
    if (gesamt > Capacity())
        puffer_.append(gesamt, ' '); // at least doubles it
    std::ranges::copy(text, puffer_.begin() + static_cast<std::ptrdiff_t>(Length()));
    position_ = gesamt + 1;
}
