// vec.h: loads, stores, halves, masks and selection.
#include "frame/simd/vec.h"

#include "frame/simd/lanes.h"

namespace {

using namespace vlq;
using namespace vlqtest;

constexpr Placement kPlaces[] = {{0, false}, {3, false}, {0, true}};

template <class T, int B>
void checkPartials(Rng& rng) {
    constexpr int lanes = Vec<T, B>::lanes;
    for (int count = 0; count <= lanes; ++count) {
        for (const Placement place : kPlaces) {
            const auto values = extremeVector<T>(static_cast<std::size_t>(count), rng);
            const Buffer<T> src(values, place);
            Buffer<T> dst(values.size(), place);
            const auto v = loadPartial<T, B>(src.data(), count);
            EXPECT_TRUE(sameLanes(lanesOf(v), [&](std::size_t i) {
                return i < values.size() ? values[i] : T{};
            })) << count;
            storePartial(dst.data(), v, count);
            EXPECT_TRUE(same(dst, values)) << count;
        }
    }
}

template <class T>
void checkMemory(Rng& rng) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        constexpr auto lanes = static_cast<std::size_t>(Vec<T, B>::lanes);
        checkPartials<T, B>(rng);
        const auto values = extremeVector<T>(lanes, rng);
        for (const Placement place : kPlaces) {
            const Buffer<T> src(values, place);
            Buffer<T> dst(lanes, place);
            store(dst.data(), load<T, B>(src.data()));
            EXPECT_TRUE(same(dst, values));
            const T element = loadScalar(src.data() + 1);
            EXPECT_TRUE(sameBits(element, values[1]));
            storeScalar(dst.data(), element);
            EXPECT_TRUE(sameBits(dst.values()[0], values[1]));
        }
        const Buffer<T> src(values);
        Buffer<T> aligned(lanes), streamed(lanes);
        storeAligned(aligned.data(), loadAligned<T, B>(src.data()));
        EXPECT_TRUE(same(aligned, values));
        stream(streamed.data(), load<T, B>(src.data()));
        streamFence();
        EXPECT_TRUE(same(streamed, values));
        EXPECT_TRUE(sameLanes(lanesOf(opaque(load<T, B>(src.data()))),
                              [&](std::size_t i) { return values[i]; }));
        if constexpr (B > 16) {
            const auto v = load<T, B>(src.data());
            EXPECT_TRUE(sameLanes(lanesOf(lowHalf(v)), [&](std::size_t i) { return values[i]; }));
            EXPECT_TRUE(sameLanes(lanesOf(highHalf(v)),
                                  [&](std::size_t i) { return values[i + lanes / 2]; }));
            EXPECT_TRUE(sameLanes(lanesOf(joinHalves(highHalf(v), lowHalf(v))),
                                  [&](std::size_t i) { return values[(i + lanes / 2) % lanes]; }));
        }
    });
}

TEST_F(Simd, LoadsAndStoresTouchTheirElementsAlone) {
    checkMemory<std::uint8_t>(rng);
    checkMemory<std::int16_t>(rng);
    checkMemory<std::int32_t>(rng);
    checkMemory<std::int64_t>(rng);
    checkMemory<float>(rng);
    checkMemory<double>(rng);
}

TEST_F(Simd, ScalarsOfAnotherType) {
    const std::uint8_t bytes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(0x05040302u, loadScalar<std::uint32_t>(bytes + 1));
    std::uint8_t written[6] = {};
    storeScalar<std::uint32_t>(written + 1, 0x05040302u);
    EXPECT_EQ(0, written[0]);
    EXPECT_EQ(0, std::memcmp(written + 1, bytes + 1, 4));
    EXPECT_EQ(0, written[5]);
}

TEST_F(Simd, BroadcastKeepsBits) {
    const std::uint32_t signallingNaN = 0x7F800001u;
    const auto v =
        bitCast<std::uint32_t>(Vec<float>::broadcast(std::bit_cast<float>(signallingNaN)));
    for (const std::uint32_t lane : lanesOf(v)) EXPECT_EQ(signallingNaN, lane);
}

template <class T>
void checkMasks(Rng& rng) {
    using Bits = BitsOf<T>;
    forEachSize([&](auto size) {
        constexpr int B = size;
        constexpr int lanes = Vec<T, B>::lanes;
        EXPECT_TRUE(sameLanes(lanesOf(laneIndices<T, B>()),
                              [](std::size_t i) { return static_cast<T>(i); }));
        for (int count = 0; count <= lanes; ++count) {
            const auto mask = firstLanes<T, B>(count);
            EXPECT_TRUE(sameLanes(lanesOf(mask), [&](std::size_t i) {
                return static_cast<Bits>(static_cast<int>(i) < count ? -1 : 0);
            }));
            const std::uint64_t bits =
                count == 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << count) - 1;
            EXPECT_EQ(bits, maskBits(mask));
            EXPECT_EQ(count > 0, any(mask));
        }
        for (int round = 0; round < 100; ++round) {
            const std::uint64_t chosen = rng();
            std::vector<Bits> set(lanes);
            std::uint64_t want = 0;
            for (int i = 0; i < lanes; ++i) {
                const std::uint64_t bit = chosen >> i & 1;
                set[static_cast<std::size_t>(i)] = static_cast<Bits>(bit ? -1 : 0);
                want |= bit << i;
            }
            const auto mask = load<Bits, B>(set.data());
            EXPECT_EQ(want, maskBits(mask));
            EXPECT_EQ(want != 0, any(mask));
            const auto a = extremeVector<T>(set.size(), rng), b = extremeVector<T>(set.size(), rng);
            EXPECT_TRUE(sameLanes(lanesOf(select(mask, load<T, B>(a.data()), load<T, B>(b.data()))),
                                  [&](std::size_t i) { return set[i] ? a[i] : b[i]; }));
        }
    });
}

TEST_F(Simd, MasksAndSelection) {
    checkMasks<std::int8_t>(rng);
    checkMasks<std::int16_t>(rng);
    checkMasks<std::int32_t>(rng);
    checkMasks<std::int64_t>(rng);
    checkMasks<float>(rng);
    checkMasks<double>(rng);
}

TEST_F(Simd, AnySeesEachLane) {
    for (std::size_t lane = 0; lane < Vec<std::int8_t>::lanes; ++lane) {
        std::vector<std::int8_t> mask(Vec<std::int8_t>::lanes);
        mask[lane] = -1;
        EXPECT_TRUE(any(load(mask.data())));
    }
}

}  // namespace
