// convert.h, int64.h, half.h and packed24.h.
#include "frame/simd/convert.h"

#include "frame/simd/half.h"
#include "frame/simd/int64.h"
#include "frame/simd/lanes.h"
#include "frame/simd/packed24.h"

namespace {

using namespace vlq;
using namespace vlqtest;

// op on N vectors of consecutive elements against scalarOp on each.
template <class T, int N, class Op, class ScalarOp>
void checkBlock(Rng& rng, Op op, ScalarOp scalarOp, int rounds = 300) {
    for (int round = 0; round < rounds; ++round) {
        const auto a = extremeVector<T>(static_cast<std::size_t>(N * Vec<T>::lanes), rng);
        const auto block = blockOf<N>(a);
        const auto got = [&] {
            if constexpr (N == 1)
                return lanesOf(op(block.part[0]));
            else
                return lanesOf(op(block));
        }();
        ASSERT_EQ(a.size(), got.size());
        ASSERT_TRUE(sameLanes(got, [&](std::size_t i) { return scalarOp(a[i]); }))
            << "of " << ::testing::PrintToString(a);
    }
}

template <class To, class T>
To clampedTo(T x) {
    return static_cast<To>(std::clamp<std::int64_t>(x, std::numeric_limits<To>::min(),
                                                    std::numeric_limits<To>::max()));
}

TEST_F(Simd, WidenAndNarrow) {
    using i8 = std::int8_t;
    using u8 = std::uint8_t;
    using i16 = std::int16_t;
    using u16 = std::uint16_t;
    using i32 = std::int32_t;
    using u32 = std::uint32_t;
    const auto wide = [](auto v) { return widen(v); };
    const auto twiceWide = [](auto v) { return widenTwice(v); };
    checkBlock<i8, 1>(rng, wide, [](i8 x) { return i16{x}; });
    checkBlock<u8, 1>(rng, wide, [](u8 x) { return u16{x}; });
    checkBlock<i16, 1>(rng, wide, [](i16 x) { return i32{x}; });
    checkBlock<u16, 1>(rng, wide, [](u16 x) { return u32{x}; });
    checkBlock<i8, 1>(rng, twiceWide, [](i8 x) { return i32{x}; });
    checkBlock<u8, 1>(rng, twiceWide, [](u8 x) { return u32{x}; });

    checkBlock<i32, 2>(
        rng, [](auto v) { return narrowSat<i16>(v); }, clampedTo<i16, i32>);
    checkBlock<i32, 2>(
        rng, [](auto v) { return narrowSat<u16>(v); }, clampedTo<u16, i32>);
    checkBlock<i16, 2>(
        rng, [](auto v) { return narrowSat<i8>(v); }, clampedTo<i8, i16>);
    checkBlock<i16, 2>(
        rng, [](auto v) { return narrowSat<u8>(v); }, clampedTo<u8, i16>);
    checkBlock<i32, 4>(
        rng, [](auto v) { return narrowSat<i8>(v); }, clampedTo<i8, i32>);
    checkBlock<i32, 4>(
        rng, [](auto v) { return narrowSat<u8>(v); }, clampedTo<u8, i32>);
    checkBlock<std::int64_t, 2>(
        rng, [](auto v) { return narrowSat(v); }, clampedTo<i32, std::int64_t>);
}

TEST_F(Simd, IntegersToFloats) {
    checkBlock<std::int32_t, 1>(
        rng, [](auto v) { return toFloat(v); },
        [](std::int32_t x) { return static_cast<float>(x); });
    checkBlock<std::int32_t, 1>(
        rng, [](auto v) { return toDouble(v); },
        [](std::int32_t x) { return static_cast<double>(x); });
    checkBlock<std::int64_t, 1>(
        rng, [](auto v) { return toDouble(v); },
        [](std::int64_t x) { return static_cast<double>(x); });
    checkBlock<float, 1>(
        rng, [](auto v) { return toDouble(v); }, [](float x) { return double{x}; });
    checkBlock<double, 2>(
        rng, [](auto v) { return toFloat(v); }, [](double x) { return static_cast<float>(x); });
}

// The most negative integer where the rounded value has no place in I.
template <class I, class T>
I integerOr(T rounded) {
    constexpr T limit = static_cast<T>(std::numeric_limits<I>::max() / 2 + 1) * 2;
    return rounded >= -limit && rounded < limit ? static_cast<I>(rounded)
                                                : std::numeric_limits<I>::min();
}

template <class I, class T, int N, class V>
void checkRounding(Rng& rng, V nearest, V zero, V away) {
    checkBlock<T, N>(rng, nearest, [](T x) { return integerOr<I>(std::nearbyint(x)); });
    checkBlock<T, N>(rng, zero, [](T x) { return integerOr<I>(std::trunc(x)); });
    checkBlock<T, N>(rng, away, [](T x) { return integerOr<I>(std::round(x)); });
}

TEST_F(Simd, FloatsToIntegers) {
    using I = std::int32_t;
    using L = std::int64_t;
    using VF = Vec<I> (*)(Vec<float>);
    using VD = Vec<I> (*)(Block<double, 2>);
    using VL = Vec<L> (*)(Vec<double>);
    checkRounding<I, float, 1, VF>(rng, toNearest, toZero, toNearestAway);
    checkRounding<I, double, 2, VD>(rng, toNearest, toZero, toNearestAway);
    checkRounding<L, double, 1, VL>(rng, toNearest64, toZero64, toNearestAway64);
}

// ---- binary16 -----------------------------------------------------------------------------------
float valueOfHalf(unsigned half) {
    const int exponent = static_cast<int>(half >> 10 & 31);
    const float fraction = static_cast<float>(half & 1023);
    const float magnitude = exponent == 31
                                ? (fraction != 0 ? std::numeric_limits<float>::quiet_NaN()
                                                 : std::numeric_limits<float>::infinity())
                            : exponent == 0 ? std::ldexp(fraction, -24)
                                            : std::ldexp(1024 + fraction, exponent - 25);
    return half >> 15 ? -magnitude : magnitude;
}

TEST_F(Simd, EveryHalf) {
    constexpr unsigned lanes = Vec<std::uint16_t>::lanes;
    for (unsigned first = 0; first < 65536; first += lanes) {
        const auto halves = laneIndices<std::uint16_t>() +
                            Vec<std::uint16_t>::broadcast(static_cast<std::uint16_t>(first));
        const auto floats = halfToFloat(halves);
        const auto got = lanesOf(floats);
        const auto nearest = lanesOf(floatToHalf<true>(floats)),
                   zero = lanesOf(floatToHalf<false>(floats));
        for (unsigned i = 0; i < lanes; ++i) {
            const float want = valueOfHalf(first + i);
            ASSERT_TRUE(sameBits(got[i], want) || (isNaN(got[i]) && isNaN(want))) << first + i;
            // A NaN comes back quiet, with its sign and payload.
            const unsigned back = isNaN(want) ? (first + i) | 0x200 : first + i;
            ASSERT_EQ(back, nearest[i]) << first + i;
            ASSERT_EQ(back, zero[i]) << first + i;
        }
    }
}

TEST_F(Simd, FloatsBetweenHalves) {
    std::vector<float> values(2 * Vec<float>::lanes);
    for (int round = 0; round < 3000; ++round) {
        for (float& v : values) {
            // Near a half, near the middle of two, or anything.
            const unsigned half = static_cast<unsigned>(rng() % 0x7C00);
            const float low = valueOfHalf(half),
                        high = half == 0x7BFF ? 65536.0f : valueOfHalf(half + 1);
            v = low + (high - low) * static_cast<float>(rng() % 5) / 4;
            if (rng() % 2) v = std::nextafter(v, rng() % 2 ? 0.0f : 1e9f);
            if (rng() % 8 == 0) v = extremeValue<float>(rng);
            if (rng() % 2) v = -v;
        }
        const auto block = blockOf<2>(values);
        const auto nearest = lanesOf(floatToHalf<true>(block)),
                   zero = lanesOf(floatToHalf<false>(block));
        for (std::size_t i = 0; i < values.size(); ++i) {
            const float a = std::fabs(values[i]);
            if (isNaN(a)) continue;
            const unsigned sign = std::signbit(values[i]) ? 0x8000 : 0;
            // The largest half that is not above the magnitude, by bisection.
            unsigned below = 0, above = 0x7C00;
            while (above - below > 1) {
                const unsigned middle = (below + above) / 2;
                (valueOfHalf(middle) <= a ? below : above) = middle;
            }
            if (std::isinf(a)) below = 0x7C00;
            ASSERT_EQ(sign | below, zero[i]) << values[i];
            const double next = below >= 0x7BFF ? 65536.0 : double{valueOfHalf(below + 1)};
            const double low = valueOfHalf(below), up = next - a, down = a - low;
            const bool goesUp = below < 0x7C00 && (up < down || (up == down && below % 2 == 1));
            ASSERT_EQ(sign | (goesUp ? below + 1 : below), nearest[i]) << values[i];
        }
    }
}

// ---- three bytes --------------------------------------------------------------------------------
TEST_F(Simd, Packed24) {
    constexpr auto count = static_cast<std::size_t>(kPacked24Count);
    for (const Placement place : {Placement{0, false}, Placement{5, false}, Placement{0, true}}) {
        for (int round = 0; round < 100; ++round) {
            const auto bytes = extremeVector<std::uint8_t>(3 * count, rng);
            const Buffer<std::uint8_t> src(bytes, place);
            const auto asSigned = unpack24<true>(src.data()),
                       asUnsigned = unpack24<false>(src.data());
            const auto value = [&](std::size_t i) {
                return bytes[3 * i] | bytes[3 * i + 1] << 8 | bytes[3 * i + 2] << 16;
            };
            EXPECT_TRUE(sameLanes(lanesOf(asUnsigned), value));
            EXPECT_TRUE(sameLanes(lanesOf(asSigned), [&](std::size_t i) {
                return value(i) < 1 << 23 ? value(i) : value(i) - (1 << 24);
            }));
            Buffer<std::uint8_t> dst(3 * count, place);
            pack24(dst.data(), asSigned);
            EXPECT_TRUE(same(dst, bytes));
        }
    }
}

}  // namespace
