#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdlib.h>
#include <string>
#include <string_view>

/// A folder of its own for one test, gone with it.
class Pruefordner {
public:
    Pruefordner()
    {
        std::string muster = (std::filesystem::temp_directory_path() / "tombrix-XXXXXX").string();
        pfad_ = ::mkdtemp(muster.data());
    }
    Pruefordner(const Pruefordner&) = delete;
    Pruefordner& operator=(const Pruefordner&) = delete;
    ~Pruefordner()
    {
        std::error_code egal;
        std::filesystem::permissions(pfad_, std::filesystem::perms::owner_all, egal);
        std::filesystem::remove_all(pfad_, egal);
    }

    const std::filesystem::path& pfad() const { return pfad_; }
    std::filesystem::path operator/(std::string_view name) const { return pfad_ / name; }

    std::filesystem::path lege(std::string_view name, std::string_view inhalt) const
    {
        std::ofstream(pfad_ / name, std::ios::binary) << inhalt;
        return pfad_ / name;
    }

    /// Files and folders that lie directly in it.
    std::size_t eintraege() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(pfad_), std::filesystem::directory_iterator()));
    }

private:
    std::filesystem::path pfad_;
};

inline std::string inhaltVon(const std::filesystem::path& datei)
{
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), std::istreambuf_iterator<char>()};
}
