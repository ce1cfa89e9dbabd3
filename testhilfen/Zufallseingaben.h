#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// A short run of what the fuzz targets do, the same every time.

/// The examples of a fuzz target, in the order of their names.
inline std::vector<std::string> beispiele(const std::string& ordner)
{
    std::vector<std::filesystem::path> dateien;
    for (const auto& eintrag : std::filesystem::directory_iterator("fuzz/beispiele/" + ordner))
        dateien.push_back(eintrag.path());
    std::sort(dateien.begin(), dateien.end());
    std::vector<std::string> alle;
    for (const auto& datei : dateien) {
        std::ifstream strom(datei, std::ios::binary);
        alle.emplace_back(std::istreambuf_iterator<char>(strom), std::istreambuf_iterator<char>());
    }
    return alle;
}

/// Changes, adds, takes away and mixes bytes of examples.
class Verderber {
public:
    explicit Verderber(std::vector<std::string> vorlagen) : vorlagen_(std::move(vorlagen)) {}

    std::string naechste()
    {
        std::string text = vorlage();
        for (std::size_t i = wuerfle(8) + 1; i > 0; --i)
            verdirb(text);
        return text;
    }

private:
    std::size_t wuerfle(std::size_t bis) { return zufall_() % bis; }
    const std::string& vorlage() { return vorlagen_[wuerfle(vorlagen_.size())]; }
    std::string endstueck(const std::string& text) { return text.substr(wuerfle(text.size())); }
    char zeichen()
    {
        constexpr std::string_view kHeikle = "%/\\.:?#@[]\r\n \t\0025FfHTP1";
        return wuerfle(2) == 0 ? kHeikle[wuerfle(kHeikle.size())] : static_cast<char>(wuerfle(256));
    }

    void verdirb(std::string& text)
    {
        const std::size_t stelle = wuerfle(text.size() + 1);
        switch (wuerfle(5)) {
        case 0:
            text.insert(stelle, 1, zeichen());
            break;
        case 1:
            text.erase(stelle, wuerfle(4));
            break;
        case 2:
            text.insert(stelle, wuerfle(300), zeichen());
            break;
        case 3:
            text.insert(stelle, endstueck(vorlage()));
            break;
        default:
            if (stelle < text.size())
                text[stelle] = zeichen();
        }
    }

    std::vector<std::string> vorlagen_;
    std::mt19937 zufall_{49};
};

/// Fails the test with the first of many changed examples in which `pruefe` finds something broken.
template <class Pruefe> void pruefeViele(const std::string& ordner, Pruefe pruefe)
{
    constexpr int kAnzahl = 20'000;
    Verderber verderber(beispiele(ordner));
    for (int i = 0; i < kAnzahl; ++i) {
        const std::string eingabe = verderber.naechste();
        ASSERT_EQ(pruefe(eingabe), "") << testing::PrintToString(eingabe);
    }
}
