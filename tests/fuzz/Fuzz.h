#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What a target holds to be true of every input. A false one ends the process, which the fuzzer takes for a finding.
inline void Expect(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "not so: %s\n", what);
        std::abort();
    }
}

inline QString TextOf(const std::uint8_t* data, std::size_t size) {
    return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
