// The SIMD layer by itself, against scalars. Compiled once for each width; the runner starts each
// program with the build of its own width alone.
#include <gtest/gtest.h>

#include <cstring>

#include "frame/loop/map.h"
#include "frame/simd/ops.h"
#include "harness/buffer.h"
#include "harness/random.h"

namespace {

using namespace vlq;
using vlqtest::Buffer;
using vlqtest::Placement;

class Simd : public ::testing::Test {
protected:
    vlqtest::Rng rng{vlqtest::seed()};
};

template <class T>
void checkPartials(vlqtest::Rng& rng) {
    constexpr int lanes = Vec<T>::lanes;
    for (int count = 0; count <= lanes; ++count) {
        for (const Placement place :
             {Placement{0, false}, Placement{3, false}, Placement{0, true}}) {
            const auto values = vlqtest::extremeVector<T>(static_cast<std::size_t>(count), rng);
            const Buffer<T> src(values, place);
            Buffer<T> dst(values.size(), place);
            const Vec<T> v = loadPartial<T>(src.data(), count);
            T all[lanes];
            std::memcpy(all, &v, sizeof all);
            EXPECT_EQ(0,
                      count == 0 ? 0 : std::memcmp(all, values.data(), values.size() * sizeof(T)));
            for (int i = count; i < lanes; ++i) {
                const T zero{};
                EXPECT_EQ(0, std::memcmp(&all[i], &zero, sizeof zero))
                    << "lane " << i << " of count " << count;
            }
            storePartial(dst.data(), v, count);
            EXPECT_TRUE(vlqtest::same(dst, values)) << count;
        }
    }
}

TEST_F(Simd, PartialLoadsAndStoresTouchTheirElementsAlone) {
    checkPartials<std::uint8_t>(rng);
    checkPartials<std::int16_t>(rng);
    checkPartials<std::int32_t>(rng);
    checkPartials<std::int64_t>(rng);
    checkPartials<float>(rng);
    checkPartials<double>(rng);
}

TEST_F(Simd, BroadcastKeepsBits) {
    const std::uint32_t signallingNaN = 0x7F800001u;
    float value;
    std::memcpy(&value, &signallingNaN, 4);
    const auto v = Vec<std::uint32_t>(bitCast<std::uint32_t>(Vec<float>::broadcast(value)));
    for (int i = 0; i < Vec<float>::lanes; ++i) EXPECT_EQ(signallingNaN, v[i]);
}

// op on vectors against op on scalars over random and extreme lanes.
template <class T, class VecOp, class ScalarOp>
void checkBinary(vlqtest::Rng& rng, VecOp vecOp, ScalarOp scalarOp) {
    constexpr int lanes = Vec<T>::lanes;
    for (int round = 0; round < 2000; ++round) {
        const auto a = vlqtest::extremeVector<T>(lanes, rng),
                   b = vlqtest::extremeVector<T>(lanes, rng);
        const auto got = vecOp(load<T>(a.data()), load<T>(b.data()));
        for (int i = 0; i < lanes; ++i) {
            const auto index = static_cast<std::size_t>(i);
            const T want = scalarOp(a[index], b[index]);
            const T lane = got[i];
            ASSERT_EQ(0, std::memcmp(&want, &lane, sizeof want)) << +a[index] << ", " << +b[index];
        }
    }
}

template <class T>
void checkInteger(vlqtest::Rng& rng) {
    using U = std::make_unsigned_t<T>;
    using Wide = long long;
    auto saturate = [](Wide x) {
        return static_cast<T>(
            std::clamp<Wide>(x, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    };
    checkBinary<T>(
        rng, [](auto a, auto b) { return a + b; },
        [](T a, T b) {
            return static_cast<T>(static_cast<U>(static_cast<U>(a) + static_cast<U>(b)));
        });
    checkBinary<T>(
        rng, [](auto a, auto b) { return a - b; },
        [](T a, T b) {
            return static_cast<T>(static_cast<U>(static_cast<U>(a) - static_cast<U>(b)));
        });
    checkBinary<T>(
        rng, [](auto a, auto b) { return minimum(a, b); }, [](T a, T b) { return std::min(a, b); });
    checkBinary<T>(
        rng, [](auto a, auto b) { return maximum(a, b); }, [](T a, T b) { return std::max(a, b); });
    if constexpr (sizeof(T) <= 2) {
        checkBinary<T>(
            rng, [](auto a, auto b) { return addSat(a, b); },
            [&](T a, T b) { return saturate(Wide{a} + b); });
        checkBinary<T>(
            rng, [](auto a, auto b) { return subSat(a, b); },
            [&](T a, T b) { return saturate(Wide{a} - b); });
    }
    for (int count = 0; count < static_cast<int>(sizeof(T)) * 8; ++count) {
        checkBinary<T>(
            rng, [&](auto a, auto) { return shiftLeft(a, count); },
            [&](T a, T) {
                return static_cast<T>(
                    static_cast<U>(static_cast<unsigned long long>(static_cast<U>(a)) << count));
            });
        if constexpr (sizeof(T) > 1 || std::is_unsigned_v<T>) {
            checkBinary<T>(
                rng, [&](auto a, auto) { return shiftRight(a, count); },
                [&](T a, T) { return static_cast<T>(a >> count); });
        }
    }
}

TEST_F(Simd, Integers) {
    checkInteger<std::int8_t>(rng);
    checkInteger<std::uint8_t>(rng);
    checkInteger<std::int16_t>(rng);
    checkInteger<std::uint16_t>(rng);
    checkInteger<std::int32_t>(rng);
    checkInteger<std::uint32_t>(rng);
}

template <class T>
void checkFloat(vlqtest::Rng& rng) {
    checkBinary<T>(
        rng, [](auto a, auto b) { return minimum(a, b); }, [](T a, T b) { return a < b ? a : b; });
    checkBinary<T>(
        rng, [](auto a, auto b) { return maximum(a, b); }, [](T a, T b) { return a > b ? a : b; });
    checkBinary<T>(
        rng, [](auto a, auto) { return absolute(a); }, [](T a, T) { return std::fabs(a); });
    checkBinary<T>(
        rng, [](auto a, auto b) { return select(a < b, b, a); },
        [](T a, T b) { return a < b ? b : a; });
    constexpr int lanes = Vec<T>::lanes;
    for (int round = 0; round < 2000; ++round) {
        const auto a = vlqtest::uniformVector<T>(lanes, -2, 2, rng),
                   b = vlqtest::uniformVector<T>(lanes, -2, 2, rng),
                   c = vlqtest::uniformVector<T>(lanes, -2, 2, rng);
        const auto va = load<T>(a.data()), vb = load<T>(b.data()), vc = load<T>(c.data());
        const auto sum = mulAdd(va, vb, vc), difference = mulSub(va, vb, vc),
                   rest = mulSubFrom(va, vb, vc);
        for (int i = 0; i < lanes; ++i) {
            const auto k = static_cast<std::size_t>(i);
#if VLQ_SIMD_BYTES > 16
            ASSERT_EQ(std::fma(a[k], b[k], c[k]), sum[i]);
            ASSERT_EQ(std::fma(a[k], b[k], -c[k]), difference[i]);
            ASSERT_EQ(std::fma(-a[k], b[k], c[k]), rest[i]);
#else
            const T product = a[k] * b[k];
            ASSERT_EQ(product + c[k], sum[i]);
            ASSERT_EQ(product - c[k], difference[i]);
            ASSERT_EQ(c[k] - product, rest[i]);
#endif
        }
    }
}

TEST_F(Simd, Floats) {
    checkFloat<float>(rng);
    checkFloat<double>(rng);
}

TEST_F(Simd, AnySeesEachLane) {
    for (int lane = 0; lane < Vec<float>::lanes; ++lane) {
        std::vector<float> values(Vec<float>::lanes, 0.0f);
        EXPECT_FALSE(any(load<float>(values.data()) > Vec<float>::zero()));
        values[static_cast<std::size_t>(lane)] = 1.0f;
        EXPECT_TRUE(any(load<float>(values.data()) > Vec<float>::zero()));
    }
}

// A map of several element sizes: widths differ between source and destination.
TEST_F(Simd, MapBlocksOverSizes) {
    for (int len = 1; len < 600; len += 7) {
        for (const Placement place :
             {Placement{0, false}, Placement{1, false}, Placement{0, true}}) {
            const auto n = static_cast<std::size_t>(len);
            const auto a = vlqtest::extremeVector<std::int16_t>(n, rng),
                       b = vlqtest::extremeVector<std::int16_t>(n, rng);
            std::vector<std::int16_t> want(n);
            for (std::size_t i = 0; i < n; ++i) want[i] = static_cast<std::int16_t>(a[i] ^ b[i]);
            const Buffer<std::int16_t> x(a, place), y(b, place);
            Buffer<std::int16_t> z(n, place);
            map(
                z.data(), len, [](auto p, auto q) { return p ^ q; }, x.data(), y.data());
            ASSERT_TRUE(vlqtest::same(z, want));
        }
    }
}

}  // namespace
