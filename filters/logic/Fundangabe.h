#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// How many percent of all draws these are; 0 if there are none at all.
double prozentVon(std::size_t ziehungen, std::int32_t alle);

/// How a tool words its count.
struct Fundwortlaut {
    std::string_view einzahl; ///< for exactly one draw
    std::string_view prozentmaske;
};

/// "12 Ziehungen (0,32%) von 3693 Ziehungen ".
std::string fundangabe(std::size_t funde, std::int32_t alle, const Fundwortlaut& wortlaut);
