#pragma once

#include <string>
#include <string_view>
#include <vector>

/// One choice of a file dialog: what the user reads and the file patterns behind it ("*.txt", "*.htm;*.html").
struct DateiFilter {
    std::string text;
    std::string muster;

    bool operator==(const DateiFilter&) const = default;
};

/// Takes a filter of the form "Text|Muster|Text|Muster" apart. An empty text ends it; a text without a pattern is
/// left out.
std::vector<DateiFilter> teileDateiFilter(std::string_view filter);
