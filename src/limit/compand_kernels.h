// G.711 companding in lanes. Both laws write a magnitude as a segment (three bits) and a mantissa
// (four bits): the exponent and the upper fraction bits of that magnitude as a float, less a bias.
// So the conversions between integers and floats find and apply the segments. All of it is exact.
#pragma once

#include <array>

#include "frame/loop/map.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"
#include "frame/simd/saturate.h"

namespace vlq::compand {

using Int16 = Vec<std::int16_t>;
using Int32 = Vec<std::int32_t>;

inline constexpr int kFraction = 23;             // bits of a float below its exponent
inline constexpr int kMantissa = kFraction - 4;  // bits below a code's mantissa
inline constexpr int kHalfStep = 1 << (kMantissa - 1);
inline constexpr int kSegment = 16;  // codes of one segment

// The biased exponent of 2^exponent as a distance between codes.
constexpr int codeOf(int exponent) { return (127 + exponent) * kSegment; }

// 16 * segment + mantissa of magnitudes from 2^exponent on, the bottom of segment 0.
template <int exponent>
inline Int16 compress(Int16 magnitude) {
    const auto wide = widen(magnitude);
    const auto upperBits = [](Int32 v) {
        return shiftRight(bitCast<std::int32_t>(toFloat(v)), kMantissa);
    };
    return narrowSat<std::int16_t>(
               Block<std::int32_t, 2>{{upperBits(wide.part[0]), upperBits(wide.part[1])}}) -
           Int16::broadcast(codeOf(exponent));
}

// The middle of the interval whose code is 16 * segment + mantissa: the inverse of compress.
template <int exponent>
inline Int16 expand(Int16 code) {
    const auto wide = widen(code);
    const auto middle = [](Int32 v) {
        const auto bits = shiftLeft(v + Int32::broadcast(codeOf(exponent)), kMantissa);
        return toZero(bitCast<float>(bits | Int32::broadcast(kHalfStep)));
    };
    return narrowSat<std::int16_t>(
        Block<std::int32_t, 2>{{middle(wide.part[0]), middle(wide.part[1])}});
}

// v where the mask is clear, -v where it is set.
inline Int16 negateWhere(Int16 mask, Int16 v) { return (v ^ mask) - mask; }

// ---- the laws -----------------------------------------------------------------------------------
// A sample's magnitude is its one's complement where it is negative, so that -32768 has one too.

struct MuLaw {
    // 14 bits plus a bias of 33, which makes segment s begin at 2^(s + 5).
    static constexpr int kBias = 33, kExponent = 5, kLargest = 8191;

    static Int16 encode(Int16 x) {
        const auto sign = signMask(x);
        const auto biased = shiftRight(x ^ sign, 2) + Int16::broadcast(kBias);
        const auto code = compress<kExponent>(minimum(biased, Int16::broadcast(kLargest)));
        return code ^ (sign & Int16::broadcast(0x80)) ^ Int16::broadcast(0xFF);
    }
    static Int16 decode(Int16 code) {
        const auto plain = code ^ Int16::broadcast(0xFF);
        const auto magnitude = expand<kExponent>(plain & Int16::broadcast(0x7F));
        const auto sign = plain > Int16::broadcast(0x7F);
        return negateWhere(sign, shiftLeft(magnitude - Int16::broadcast(kBias), 2));
    }
};

struct ALaw {
    // 13 bits. Segment s begins at 2^(s + 4), but segment 0 at 0 with the steps of segment 1: it is
    // handled as a part of that one.
    static constexpr int kExponent = 4, kFirst = 32;

    static Int16 encode(Int16 x) {
        const auto sign = signMask(x);
        const auto magnitude = shiftRight(x ^ sign, 3);
        const auto isFirst = magnitude < Int16::broadcast(kFirst);
        const auto code = compress<kExponent>(magnitude + (isFirst & Int16::broadcast(kFirst)));
        return (code - (isFirst & Int16::broadcast(kSegment))) ^ (sign & Int16::broadcast(0x80)) ^
               Int16::broadcast(0xD5);
    }
    static Int16 decode(Int16 code) {
        const auto plain = code ^ Int16::broadcast(0xD5);
        const auto segments = plain & Int16::broadcast(0x7F);
        const auto isFirst = segments < Int16::broadcast(kSegment);
        const auto magnitude =
            expand<kExponent>(segments + (isFirst & Int16::broadcast(kSegment))) -
            (isFirst & Int16::broadcast(kFirst));
        return negateWhere(plain > Int16::broadcast(0x7F), shiftLeft(magnitude, 3));
    }
};

// ---- operations of the loops --------------------------------------------------------------------
template <class Law>
struct Encode {
    Block<std::uint8_t, 1> operator()(const Block<std::int16_t, 2>& x) const {
        return {{narrowSat<std::uint8_t>(
            Block<std::int16_t, 2>{{Law::encode(x.part[0]), Law::encode(x.part[1])}})}};
    }
    // To the nearest 16-bit integer, half away from zero, under standard rounding. A NaN counts as
    // the largest sample.
    static Int32 sample(Vec<float> v) {
        return toNearestAway(
            maximum(minimum(v * Vec<float>::broadcast(32768.0f), Vec<float>::broadcast(32767.0f)),
                    Vec<float>::broadcast(-32768.0f)));
    }
    Block<std::uint8_t, 1> operator()(const Block<float, 4>& v) const {
        const auto pair = [&](int i) {
            return narrowSat<std::int16_t>(
                Block<std::int32_t, 2>{{sample(v.part[i]), sample(v.part[i + 1])}});
        };
        return (*this)(Block<std::int16_t, 2>{{pair(0), pair(2)}});
    }
};

template <class Law>
inline Block<std::int16_t, 2> decode(const Block<std::uint8_t, 1>& codes) {
    const auto wide = widen(codes.part[0]);
    return {{Law::decode(bitCast<std::int16_t>(wide.part[0])),
             Law::decode(bitCast<std::int16_t>(wide.part[1]))}};
}
template <class Law>
struct Decode {
    Block<std::int16_t, 2> operator()(const Block<std::uint8_t, 1>& codes) const {
        return decode<Law>(codes);
    }
};
template <class Law>
struct DecodeToFloat {
    Block<float, 4> operator()(const Block<std::uint8_t, 1>& codes) const {
        const auto samples = decode<Law>(codes);
        const auto low = widen(samples.part[0]), high = widen(samples.part[1]);
        const auto unit = Vec<float>::broadcast(1.0f / 32768);
        return {{toFloat(low.part[0]) * unit, toFloat(low.part[1]) * unit,
                 toFloat(high.part[0]) * unit, toFloat(high.part[1]) * unit}};
    }
};

// ---- from one law to the other ------------------------------------------------------------------
// G.711 pairs the output values of the two laws by number (its tables 3 and 4), here both from 0
// on; a code carries the number under the law's inversion of bits, and its sign. The pairs are runs
// in which either a value of the one law meets a value of the other, or two values meet one.

constexpr int aLawNumber(int mu) {
    if (mu < 16) return mu / 2;
    if (mu < 32) return mu - 8;
    if (mu < 36) return 2 * mu - 40;
    if (mu < 48) return mu - 4;
    if (mu < 49) return 45;
    if (mu < 64) return mu - 2;
    return mu < 81 ? mu - 1 : mu;
}
constexpr int muLawNumber(int a) {
    if (a < 8) return 2 * a + 1;
    if (a < 24) return a + 8;
    if (a < 32) return 32 + (a - 24) / 2;
    if (a < 44) return a + 4;
    if (a < 48) return 48 + (a - 44) / 2;
    if (a < 62) return a + 2;
    if (a < 64) return 64;
    return a < 80 ? a + 1 : a;
}

using CodeTable = std::array<std::uint8_t, 256>;

// Positive codes have the sign bit set, as the inversions 0xFF (mu) and 0xD5 (A) of number 0 say.
constexpr CodeTable kMuLawToALaw = [] {
    CodeTable table{};
    for (int code = 0; code < 256; ++code) {
        const int plain = code ^ 0xFF;
        table[static_cast<unsigned>(code)] =
            static_cast<std::uint8_t>((aLawNumber(plain & 0x7F) | (plain & 0x80)) ^ 0xD5);
    }
    return table;
}();
constexpr CodeTable kALawToMuLaw = [] {
    CodeTable table{};
    for (int code = 0; code < 256; ++code) {
        const int plain = code ^ 0xD5;
        table[static_cast<unsigned>(code)] =
            static_cast<std::uint8_t>((muLawNumber(plain & 0x7F) | (plain & 0x80)) ^ 0xFF);
    }
    return table;
}();

}  // namespace vlq::compand
