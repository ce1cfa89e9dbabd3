#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// A value that is a number or a text. Numbers compare as numbers, texts as texts, and a number stands before a text.
using Variante = std::variant<double, std::string>;

/// (i + j) / 2 rounded to a whole number, halves to the even one. Both are 0 or more.
constexpr std::ptrdiff_t gerundeteMitte(std::ptrdiff_t i, std::ptrdiff_t j)
{
    const std::ptrdiff_t summe = i + j;
    const std::ptrdiff_t unten = summe / 2;
    return summe % 2 != 0 && unten % 2 != 0 ? unten + 1 : unten;
}

/// Sorts `feld` ascending in place, from the 0-based index `unten` to `oben`, both included; left out, they are the
/// ends of the array, and what lies outside of it is left out too. Equal elements may change places.
template <class T>
void QuickSort(std::vector<T>& feld, std::optional<std::ptrdiff_t> unten = {}, std::optional<std::ptrdiff_t> oben = {})
{
    const auto bei = [&feld](std::ptrdiff_t index) -> T& { return feld[static_cast<std::size_t>(index)]; };
    std::ptrdiff_t links = std::max<std::ptrdiff_t>(unten.value_or(0), 0);
    std::ptrdiff_t rechts = std::min<std::ptrdiff_t>(oben.value_or(std::ssize(feld) - 1), std::ssize(feld) - 1);
    while (links < rechts) {
        std::ptrdiff_t i = links;
        std::ptrdiff_t j = rechts;
        const T mitte = bei(gerundeteMitte(i, j));
        while (i <= j) {
            while (bei(i) < mitte)
                ++i;
            while (mitte < bei(j))
                --j;
            if (i <= j)
                std::swap(bei(i++), bei(j--));
        }
        // The two parts do not touch each other, so their order is free: the call takes the shorter one, which keeps
        // the depth below the logarithm of the length.
        if (j - links < rechts - i) {
            QuickSort(feld, links, j);
            links = i;
        } else {
            QuickSort(feld, i, rechts);
            rechts = j;
        }
    }
}
