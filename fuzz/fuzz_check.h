#pragma once
// A failed check in a fuzz target is a fault like a sanitizer report: it prints what broke and
// aborts, so libFuzzer keeps the input that led there.
#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(condition, what)                                                        \
    do {                                                                                   \
        if (!(condition)) {                                                                \
            std::fprintf(stderr, "fuzz check failed: %s (%s) at %s:%d\n", what, #condition, \
                         __FILE__, __LINE__);                                              \
            std::abort();                                                                  \
        }                                                                                  \
    } while (0)
