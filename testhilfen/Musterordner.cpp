#include "testhilfen/Musterordner.h"

#include "tools/muster/MusterDateien.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdlib.h>
#include <string>

namespace {

constexpr std::chrono::sys_days kStand{std::chrono::year{2026} / std::chrono::November / 21};

class Ordner {
public:
    Ordner()
    {
        std::string muster = (std::filesystem::temp_directory_path() / "tombrix-muster-XXXXXX").string();
        pfad = ::mkdtemp(muster.data());
        if (const auto fehler = schreibeMusterDateien(pfad.string(), kStand)) {
            std::fprintf(stderr, "%s\n", fehler->c_str());
            std::abort();
        }
    }
    Ordner(const Ordner&) = delete;
    Ordner& operator=(const Ordner&) = delete;
    ~Ordner()
    {
        std::error_code egal;
        std::filesystem::remove_all(pfad, egal);
    }

    std::filesystem::path pfad;
};

} // namespace

const std::filesystem::path& musterordner()
{
    static const Ordner ordner;
    return ordner.pfad;
}
