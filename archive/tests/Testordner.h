#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

/// A directory of its own for one test, gone with it.
class Testordner {
public:
    Testordner()
    {
        // Test programs run side by side: the first name that nobody else has taken.
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        const std::string name = std::string("tombrix-") + test->test_suite_name() + "-" + test->name() + "-";
        for (int nummer = 0; !std::filesystem::create_directory(pfad_); ++nummer)
            pfad_ = std::filesystem::temp_directory_path() / (name + std::to_string(nummer));
    }
    ~Testordner() { std::filesystem::remove_all(pfad_); }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;

    const std::filesystem::path& pfad() const { return pfad_; }
    std::string text() const { return pfad_.string(); }

    void schreibe(const std::string& name, const std::string& inhalt) const
    {
        std::ofstream(pfad_ / name, std::ios::binary) << inhalt;
    }
    std::string lies(const std::string& name) const
    {
        std::ifstream datei(pfad_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }
    void legeOrdnerAn(const std::string& name) const { std::filesystem::create_directory(pfad_ / name); }
    bool gibtEs(const std::string& name) const { return std::filesystem::exists(pfad_ / name); }
    std::size_t anzahlEintraege() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(pfad_), std::filesystem::directory_iterator()));
    }

private:
    std::filesystem::path pfad_ = std::filesystem::temp_directory_path();
};
