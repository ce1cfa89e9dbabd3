#pragma once

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

/// The main program of a benchmark: runs it if there are draws to measure with and `stimmen` finds the results right.
inline int messe(int argc, char** argv, bool gibtZiehungen, bool (*stimmen)())
{
    if (!gibtZiehungen) {
        std::fputs("no draws in ../shared/daten\n", stderr);
        return EXIT_FAILURE;
    }
    if (!stimmen()) {
        std::fputs("the results differ\n", stderr);
        return EXIT_FAILURE;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
