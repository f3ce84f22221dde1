// multiply.h and pairs.h: exact products.
#include "frame/simd/multiply.h"

#include "frame/simd/lanes.h"
#include "frame/simd/pairs.h"

namespace {

using namespace vlq;
using namespace vlqtest;

using i16 = std::int16_t;
using i32 = std::int32_t;
using i64 = std::int64_t;
using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;

// op on two vectors, which gives any number of lanes, against scalarOp on those of one index.
template <class A, class B, class Op, class ScalarOp>
void check(Rng& rng, Op op, ScalarOp scalarOp) {
    for (int round = 0; round < 300; ++round) {
        const auto a = extremeVector<A>(Vec<A>::lanes, rng);
        const auto b = extremeVector<B>(Vec<B>::lanes, rng);
        const auto got = lanesOf(op(load(a.data()), load(b.data())));
        ASSERT_EQ(a.size(), got.size());
        ASSERT_TRUE(sameLanes(got, [&](std::size_t i) { return scalarOp(a[i], b[i]); }))
            << ::testing::PrintToString(a) << " and " << ::testing::PrintToString(b);
    }
}

TEST_F(Simd, ProductsOfTwiceTheWidth) {
    const auto product = [](auto a, auto b) { return inMemoryOrder(productLanes(a, b)); };
    check<u8, u8>(rng, product, [](u8 a, u8 b) { return static_cast<u16>(a * b); });
    check<i16, i16>(rng, product, [](i16 a, i16 b) { return i32{a} * b; });
    check<u16, u16>(rng, product, [](u16 a, u16 b) { return u32{a} * b; });
    check<u16, i16>(rng, product, [](u16 a, i16 b) { return static_cast<i32>(i64{a} * b); });
    const auto upper = [](auto a, auto b) { return productUpper(a, b); };
    check<i16, i16>(rng, upper, [](i16 a, i16 b) { return static_cast<i16>(i32{a} * b >> 16); });
    check<u16, i16>(rng, upper, [](u16 a, i16 b) { return static_cast<i16>(i64{a} * b >> 16); });
    // c + a b where it fits.
    check<i16, i16>(
        rng,
        [](auto a, auto b) {
            return inMemoryOrder(productLanesPlus(shiftRight(a, 1), b, shiftRight(b, 3)));
        },
        [](i16 a, i16 b) { return i32{a >> 1} * b + (b >> 3); });
}

TEST_F(Simd, LaneOrderAndBack) {
    checkUnary<i16>(
        rng, [](auto v) { return narrowLanes<i16>(widenLanes(v)); }, [](i16 v) { return v; });
    check<i16, i16>(
        rng, [](auto a, auto b) { return narrowLanes<i16>(productLanes(a, b)); },
        [](i16 a, i16 b) { return static_cast<i16>(std::clamp(i32{a} * b, -32768, 32767)); });
    // Below 2^31 and 2^15.
    check<u16, u16>(
        rng, [](auto a, auto b) { return narrowLanes<u16>(productLanes(shiftRight(a, 1), b)); },
        [](u16 a, u16 b) { return static_cast<u16>(std::min<u32>(u32{a} / 2 * b, 65535)); });
    check<u8, u8>(
        rng, [](auto a, auto b) { return narrowLanes<u8>(productLanes(shiftRight(a, 1), b)); },
        [](u8 a, u8 b) { return static_cast<u8>(std::min(a / 2 * b, 255)); });
}

TEST_F(Simd, SaturatingProducts) {
    const auto product = [](auto a, auto b) { return productSat(a, b); };
    check<u16, u16>(rng, product, [](u16 a, u16 b) {
        return static_cast<u16>(std::min<u32>(u32{a} * b, 65535));
    });
    check<u8, u8>(rng, product, [](u8 a, u8 b) { return static_cast<u8>(std::min(a * b, 255)); });
}

TEST_F(Simd, ComplexProductParts) {
    for (int round = 0; round < 500; ++round) {
        const auto a = extremeVector<i16>(Vec<i16>::lanes, rng),
                   b = extremeVector<i16>(Vec<i16>::lanes, rng);
        const auto parts = productParts(bitCast<i32>(load(a.data())), bitCast<i32>(load(b.data())));
        // The one part that does not fit is 2^31.
        const auto fit = [](i64 v) { return static_cast<i32>(std::min<i64>(v, 0x7FFFFFFF)); };
        const auto re = [&](std::size_t i) {
            return fit(i64{a[2 * i]} * b[2 * i] - i64{a[2 * i + 1]} * b[2 * i + 1]);
        };
        const auto im = [&](std::size_t i) {
            return fit(i64{a[2 * i]} * b[2 * i + 1] + i64{a[2 * i + 1]} * b[2 * i]);
        };
        ASSERT_TRUE(sameLanes(lanesOf(parts.part[0]), re));
        ASSERT_TRUE(sameLanes(lanesOf(parts.part[1]), im));
        ASSERT_TRUE(sameLanes(lanesOf(bitCast<i16>(joinParts(parts))), [&](std::size_t i) {
            return static_cast<i16>(std::clamp(i % 2 ? im(i / 2) : re(i / 2), -32768, 32767));
        }));
    }
}

TEST_F(Simd, ProductsOf32Bits) {
    for (int round = 0; round < 500; ++round) {
        const auto a = extremeVector<u32>(Vec<u32>::lanes, rng),
                   b = extremeVector<u32>(Vec<u32>::lanes, rng);
        const auto x = load(a.data()), y = load(b.data());
        const auto even = productEven(x, y), odd = productOdd(x, y);
        ASSERT_TRUE(
            sameLanes(lanesOf(even), [&](std::size_t i) { return u64{a[2 * i]} * b[2 * i]; }));
        ASSERT_TRUE(sameLanes(lanesOf(odd),
                              [&](std::size_t i) { return u64{a[2 * i + 1]} * b[2 * i + 1]; }));
        ASSERT_TRUE(
            sameLanes(lanesOf(joinEvenOdd(even, odd)), [&](std::size_t i) { return a[i] * b[i]; }));
#if VLQ_SIMD_BYTES >= 32
        ASSERT_TRUE(
            sameLanes(lanesOf(productLower(bitCast<i64>(x), bitCast<i64>(y))), [&](std::size_t i) {
                return i64{static_cast<i32>(a[2 * i])} * static_cast<i32>(b[2 * i]);
            }));
#endif
    }
}

TEST_F(Simd, Pairs) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        for (int round = 0; round < 300; ++round) {
            const auto a = extremeVector<i16>(Vec<i16, B>::lanes, rng),
                       b = extremeVector<i16>(Vec<i16, B>::lanes, rng);
            ASSERT_TRUE(sameLanes(lanesOf(pairSums(load<i16, B>(a.data()), load<i16, B>(b.data()))),
                                  [&](std::size_t i) {
                                      return static_cast<i32>(i64{a[2 * i]} * b[2 * i] +
                                                              i64{a[2 * i + 1]} * b[2 * i + 1]);
                                  }));
            const auto even = extremeVector<i32>(Vec<i32, B>::lanes, rng),
                       odd = extremeVector<i32>(Vec<i32, B>::lanes, rng);
            ASSERT_TRUE(sameLanes(
                lanesOf(interleaveSat(load<i32, B>(even.data()), load<i32, B>(odd.data()))),
                [&](std::size_t i) {
                    return static_cast<i16>(
                        std::clamp(i % 2 ? odd[i / 2] : even[i / 2], -32768, 32767));
                }));
            ASSERT_TRUE(sameLanes(lanesOf(broadcastPair<B>(a.data() + 1)),
                                  [&](std::size_t i) { return a[1 + i % 2]; }));
        }
    });
}

TEST_F(Simd, BlocksOfSums) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        constexpr std::size_t lanes = Vec<i32, B>::lanes;
        for (int round = 0; round < 300; ++round) {
            const auto m = extremeVector<i32>(4 * lanes, rng);
            Vec<i32, B> rows[4];
            for (std::size_t r = 0; r < 4; ++r) rows[r] = load<i32, B>(m.data() + r * lanes);
            ASSERT_TRUE(sameLanes(lanesOf(blockSums(rows)), [&](std::size_t i) {
                const i32* block = m.data() + i % 4 * lanes + i / 4 * 4;
                return static_cast<i32>(i64{block[0]} + block[1] + block[2] + block[3]);
            }));
            const auto saturated = [&](std::size_t i) {
                return static_cast<i16>(std::clamp(m[i], -32768, 32767));
            };
            ASSERT_TRUE(sameLanes(lanesOf(narrowSatBlocks(rows[0], rows[1])), [&](std::size_t i) {
                return saturated(i % 8 / 4 * lanes + i / 8 * 4 + i % 4);
            }));
            if constexpr (B > 16) {
                ASSERT_TRUE(sameLanes(lanesOf(addBlocks(rows[0], rows[1])), [&](std::size_t i) {
                    const i32* blocks = m.data() + i / 4 * 8 + i % 4;
                    return static_cast<i32>(i64{blocks[0]} + blocks[4]);
                }));
            }
            if constexpr (kVecBytes > 16) {
                ASSERT_TRUE(sameLanes(lanesOf(joinSat(rows[0], rows[1])),
                                      [&](std::size_t i) { return saturated(i); }));
            }
        }
    });
}

TEST_F(Simd, PickedWords) {
    if constexpr (kVecBytes > 16) {
        forEachSize([&](auto size) {
            constexpr int B = size;
            constexpr std::size_t lanes = Vec<i16, B>::lanes, unit = kPickUnit<B> / 2;
            for (int round = 0; round < 300; ++round) {
                const auto words = extremeVector<i16>(lanes, rng);
                std::vector<std::size_t> from(lanes);
                std::vector<i16> pattern(lanes);
                for (std::size_t i = 0; i < lanes; ++i) {
                    from[i] = rng() % unit;
                    pattern[i] = pickIndex(static_cast<int>(from[i]));
                }
                ASSERT_TRUE(sameLanes(
                    lanesOf(pick(load<i16, B>(words.data()), load<i16, B>(pattern.data()))),
                    [&](std::size_t i) { return words[i / unit * unit + from[i]]; }));
            }
        });
    }
}

}  // namespace
