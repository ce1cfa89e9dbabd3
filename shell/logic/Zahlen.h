#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The whole number that the text holds, blanks around it allowed. Nothing for any other character and for a number
/// beyond 32 bits.
std::optional<std::int32_t> ganzzahl(std::string_view text);

/// The whole number that the text begins with, behind blanks and a sign; 0 if there is none. A number beyond 32 bits
/// gives the nearest one that fits.
std::int32_t fuehrendeZahl(std::string_view text);

/// The number with a decimal point that the text begins with, behind blanks and a sign; 0 if there is none or it
/// is too large for any.
double fuehrendeDezimalzahl(std::string_view text);

/// The numbers with two digits or more each and one blank between: "01 02 49".
std::string zahlentext(std::span<const std::int32_t> zahlen);

/// The nearest whole number, halves to the even one. NaN gives 0; a value beyond 64 bits the nearest one that fits.
std::int64_t rundeZurGeraden(double wert);
