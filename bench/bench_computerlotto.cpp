#include "bench/Messlauf.h"
#include "shell/logic/Format.h"
#include "tips/logic/Computerlotto.h"

#include <string>

// Ten million draws by chance against one tip: by bits, and number by number with a table and a text for each draw.

namespace {

constexpr Kombination kTip{3, 7, 12, 23, 34, 45};
constexpr std::int32_t kZiehungen = 10'000'000;

struct Zaehler {
    std::array<std::int32_t, 6> haeufigkeit{};
    std::array<std::int32_t, 7> treffer{};

    bool operator==(const Zaehler&) const = default;
};

Zaehler plain(std::int32_t anzahl)
{
    Zufall zufall(1);
    Zaehler zaehler;
    for (std::int32_t i = 1; i <= anzahl; ++i) {
        zufall.Randomize(i);
        std::array<bool, kHoechsteZahl + 1> gezogen{};
        std::size_t treffer = 0;
        for (const int zahl : sechsZahlen(zufall)) {
            gezogen[static_cast<std::size_t>(zahl)] = true;
            for (std::size_t j = 0; j < kTip.size(); ++j)
                if (kTip[j] == zahl) {
                    ++zaehler.haeufigkeit[j];
                    ++treffer;
                }
        }
        std::string text;
        for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
            if (gezogen[static_cast<std::size_t>(zahl)])
                text += Format(zahl, "00") + " ";
        benchmark::DoNotOptimize(text);
        zaehler.treffer[treffer] += treffer > 0 ? 1 : 0;
    }
    return zaehler;
}

Zaehler program(std::int32_t anzahl)
{
    Zufall zufall(1);
    Computerlotto lotto{.tip = kTip};
    simulateDraws(lotto, anzahl, zufall, GestellteUhr(), {});
    return {lotto.haeufigkeit, lotto.treffer};
}

void draws(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(program(kZiehungen));
}

void drawsPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(plain(kZiehungen));
}

BENCHMARK(draws)->Unit(benchmark::kMillisecond);
BENCHMARK(drawsPlain)->Unit(benchmark::kMillisecond);

/// Both draw the same numbers.
bool stimmen()
{
    return program(100'000) == plain(100'000);
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}
