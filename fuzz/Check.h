#pragma once
// A broken invariant is a crash, so that libFuzzer keeps the input.

#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(condition)                                                               \
    do {                                                                                    \
        if (!(condition)) {                                                                 \
            std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                   \
        }                                                                                   \
    } while (0)
