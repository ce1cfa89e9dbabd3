#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// The slips lie in the program directory, a file for each Spielwoche. Both Wednesday games share their files.

/// "S_" for the Saturday game, "M_" for both Wednesday games.
std::string_view tippscheinPraefix(std::int16_t spielart);

/// "S_202418.dat". `jjjjsw` is what the slip is saved under, usually six digits; a shorter number is padded with zeros.
std::string tippscheinName(std::int16_t spielart, std::string_view jjjjsw);

/// True if the name is one of "s_*.dat" or "m_*.dat", without regard to case.
bool istTippscheinName(std::int16_t spielart, std::string_view name);

/// True for a yearly collection of slips: "al" at the characters 7 and 8, in any case.
bool istJahresTippschein(std::string_view name);

/// False for a text that holds a path separator or another character that no file name may hold.
bool taugtAlsDateiname(std::string_view text);

/// The names of all slips of a game in the folder, in the order of their letters without regard to case. Empty if the
/// folder cannot be read.
std::vector<std::string> tippscheinNamen(const std::filesystem::path& ordner, std::int16_t spielart);
