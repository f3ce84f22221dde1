// Elements of 16 bytes, such as complex doubles: loops move them, and no operator takes them.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

struct Bits128 {
    std::uint64_t half[2];
};

template <int Bytes>
struct Vec<Bits128, Bytes> {
    using RawType = typename Raw<double, Bytes>::type;
    static constexpr int bytes = Bytes;
    static constexpr int lanes = Bytes / 16;

    RawType raw;

    Vec() = default;
    explicit Vec(RawType r) : raw(r) {}
    static Vec zero() { return Vec(RawType{}); }
};

}  // namespace vlq
