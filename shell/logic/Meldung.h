#pragma once

#include <string>
#include <string_view>

/// What a message box says. An empty title stands for the program's own.
struct Meldung {
    std::string titel;
    std::string text;

    bool operator==(const Meldung&) const = default;
};

inline constexpr std::string_view kLottoNachricht = "Lotto-Nachricht";
