// One number for many results: the same in every build and under every compiler, since inputs and
// hash depend on nothing else.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "harness/element.h"

namespace vlqtest {

class Digest {
public:
    template <class T>
    void add(const std::vector<T>& values) {
        for (const T v : values) {
            if constexpr (ComplexElement<T>) {
                mix(static_cast<std::uint64_t>(v.re));
                mix(static_cast<std::uint64_t>(v.im));
            } else {
                mix(static_cast<std::uint64_t>(v));
            }
        }
    }
    std::uint64_t value() const { return hash_; }

private:
    void mix(std::uint64_t v) {
        hash_ ^= v;
        hash_ *= 0x100000001B3u;
        hash_ ^= hash_ >> 29;
    }
    std::uint64_t hash_ = 0xCBF29CE484222325u;
};

// Integers of all magnitudes, from a generator of its own.
template <class T>
std::vector<T> fixedVector(std::size_t count, std::uint64_t state) {
    const auto next = [&state]<class Part>(Part) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const std::uint64_t bits = state >> 32 ^ state << 21;
        return static_cast<Part>(bits >> (state >> 59) % (8 * sizeof(Part)));
    };
    std::vector<T> values(count);
    for (T& v : values) {
        if constexpr (ComplexElement<T>) {
            v.re = next(v.re);
            v.im = next(v.im);
        } else {
            v = next(v);
        }
    }
    return values;
}

// The digest of the library's results and that of the definition's, both as expected.
inline void expectDigest(std::uint64_t expected, const Digest& got, const Digest& want) {
    EXPECT_EQ(expected, want.value()) << std::hex << "of the definition: 0x" << want.value();
    EXPECT_EQ(expected, got.value()) << std::hex << "of the results: 0x" << got.value();
}

}  // namespace vlqtest
