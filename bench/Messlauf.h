#pragma once

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

/// The main program of a benchmark: runs it if `stimmen` finds that the program and its reference give the same.
inline int messe(int argc, char** argv, bool (*stimmen)())
{
    if (!stimmen()) {
        std::fputs("the results differ\n", stderr);
        return EXIT_FAILURE;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
