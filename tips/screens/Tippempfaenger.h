#pragma once

#include <string>
#include <vector>

/// A screen that takes tips from another one as lines of its list: `tippzeilen` makes them.
class Tippempfaenger {
public:
    virtual ~Tippempfaenger() = default;
    /// Adds the lines to the list.
    virtual void nimmTippzeilen(const std::vector<std::string>& zeilen) = 0;
};
