#include "fuzz/PruefeTippschein.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl)
{
    const std::string fehler = pruefeTippschein({reinterpret_cast<const char*>(bytes), anzahl});
    if (!fehler.empty()) {
        std::cerr << fehler << '\n';
        std::abort();
    }
    return 0;
}
