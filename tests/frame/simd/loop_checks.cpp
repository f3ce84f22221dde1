// The loops above the layer: map, reduce and scan, and what bulk copies are made of.
#include "frame/loop/map.h"

#include "frame/loop/reduce.h"
#include "frame/loop/scan.h"
#include "frame/simd/cache.h"
#include "frame/simd/lanes.h"
#include "frame/simd/string.h"

namespace {

using namespace vlq;
using namespace vlqtest;

constexpr Placement kPlaces[] = {{0, false}, {1, false}, {28, false}, {0, true}};

// A map of several element sizes: widths differ between source and destination.
TEST_F(Simd, MapBlocksOverSizes) {
    for (int len = 1; len < 600; len += 7) {
        for (const Placement place : kPlaces) {
            const auto n = static_cast<std::size_t>(len);
            const auto a = extremeVector<std::int16_t>(n, rng),
                       b = extremeVector<std::int16_t>(n, rng);
            std::vector<std::int16_t> want(n);
            for (std::size_t i = 0; i < n; ++i) want[i] = static_cast<std::int16_t>(a[i] ^ b[i]);
            const Buffer<std::int16_t> x(a, place), y(b, place);
            Buffer<std::int16_t> z(n, place);
            map(
                z.data(), len, [](auto p, auto q) { return p ^ q; }, x.data(), y.data());
            ASSERT_TRUE(same(z, want));
        }
    }
}

struct SumOfProducts {
    Vec<float> operator()(Vec<float> acc, const Block<float, 1>& a,
                          const Block<float, 1>& b) const {
        return acc + a.part[0] * b.part[0];
    }
    Vec<float> merge(Vec<float> a, Vec<float> b) const { return a + b; }
};

// The order that reduce documents, over scalars.
float productSumByDefinition(const std::vector<float>& a, const std::vector<float>& b) {
    constexpr std::size_t lanes = Vec<float>::lanes, count = kReduceAccumulators;
    std::vector<float> acc(count * lanes);
    const std::size_t whole = a.size() / lanes, rest = a.size() % lanes;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::size_t block = i / lanes;
        const bool last = block == whole && rest != 0;
        acc[(last ? count - 1 : block % count) * lanes + i % lanes] += a[i] * b[i];
    }
    for (std::size_t n = acc.size() / 2; n > 0; n /= 2)
        for (std::size_t i = 0; i < n; ++i) acc[i] += acc[i + n];
    return acc[0];
}

TEST_F(Simd, ReduceDependsOnTheLengthAlone) {
    for (int len = 1; len < 400; ++len) {
        const auto n = static_cast<std::size_t>(len);
        const auto a = uniformVector<float>(n, -1, 1, rng), b = uniformVector<float>(n, -1, 1, rng);
        const float want = productSumByDefinition(a, b);
        for (const Placement place : kPlaces) {
            const Buffer<float> x(a, place), y(b);
            EXPECT_EQ(want,
                      laneSum(reduce(len, Vec<float>::zero(), SumOfProducts{}, x.data(), y.data())))
                << len;
        }
    }
}

// Elements of two sizes: a block is one vector of the narrower type.
struct WideSum {
    Vec<std::int32_t> operator()(Vec<std::int32_t> acc, const Block<std::int16_t, 1>& a,
                                 const Block<std::int32_t, 2>& b) const {
        const auto ones = Vec<std::int16_t>::broadcast(1);
        (void)a;
        (void)ones;
        return acc + b.part[0] + b.part[1];
    }
    Vec<std::int32_t> merge(Vec<std::int32_t> a, Vec<std::int32_t> b) const { return a + b; }
};

TEST_F(Simd, ReduceOverTwoSizes) {
    for (int len = 1; len < 300; ++len) {
        const auto n = static_cast<std::size_t>(len);
        const auto a = extremeVector<std::int16_t>(n, rng);
        const auto b = extremeVector<std::int32_t>(n, rng);
        const Buffer<std::int16_t> x(a, {0, true});
        const Buffer<std::int32_t> y(b, {0, true});
        std::uint32_t want = 0;
        for (const std::int32_t v : b) want += static_cast<std::uint32_t>(v);
        EXPECT_EQ(want, static_cast<std::uint32_t>(laneSum(reduce(len, Vec<std::int32_t>::zero(),
                                                                  WideSum{}, x.data(), y.data()))));
    }
}

struct Magnitude {
    template <class V>
    V operator()(V v) const {
        return absolute(v);
    }
};

template <class T>
void checkExtremes(Rng& rng) {
    constexpr int tile =
        static_cast<int>(kExtremeTileBytes / static_cast<std::ptrdiff_t>(sizeof(T)));
    std::vector<int> lengths;
    for (int len = 1; len < 5 * Vec<T>::lanes; ++len) lengths.push_back(len);
    for (const int len : {tile - 1, tile, tile + 1, 3 * tile + 5}) lengths.push_back(len);
    for (const int len : lengths) {
        const auto n = static_cast<std::size_t>(len);
        auto values = extremeVector<T>(n, rng);
        if (rng() % 4 == 0)  // few different values: the first of many equal ones counts
            for (T& v : values) v = static_cast<T>(static_cast<int>(rng() % 3));
        std::vector<T> magnitudes(values);
        const auto lowest = std::numeric_limits<T>::lowest();
        if constexpr (std::is_signed_v<T>) {
            // The layer's magnitude of the lowest integer is itself.
            for (T& v : magnitudes) {
                if (v < 0 && (v != lowest || !std::is_integral_v<T>)) v = static_cast<T>(-v);
            }
        }
        const auto expect = [&](const std::vector<T>& of, auto better, auto got) {
            std::size_t first = n;
            for (std::size_t i = 0; i < n; ++i) {
                if (!isNaN(of[i]) && (first == n || better(of[i], of[first]))) first = i;
            }
            EXPECT_EQ(static_cast<std::ptrdiff_t>(first), got.index) << "of " << len;
            if (first < n) { EXPECT_EQ(of[first], got.value) << "of " << len; }
        };
        const auto less = [](T a, T b) { return a < b; };
        const auto greater = [](T a, T b) { return a > b; };
        const Buffer<T> src(values, kPlaces[rng() % 4]);
        expect(values, less, extremeAt<Smallest<T>>(src.data(), len));
        expect(values, greater, extremeAt<Largest<T>>(src.data(), len));
        if constexpr (std::is_signed_v<T>) {
            expect(magnitudes, less, extremeAt<Smallest<T, Magnitude>>(src.data(), len));
            expect(magnitudes, greater, extremeAt<Largest<T, Magnitude>>(src.data(), len));
        }
    }
}

TEST_F(Simd, ExtremesAndTheirFirstPositions) {
    checkExtremes<std::int8_t>(rng);
    checkExtremes<std::uint8_t>(rng);
    checkExtremes<std::int16_t>(rng);
    checkExtremes<std::uint16_t>(rng);
    checkExtremes<std::int32_t>(rng);
    checkExtremes<std::uint32_t>(rng);
    checkExtremes<std::int64_t>(rng);
    checkExtremes<float>(rng);
    checkExtremes<double>(rng);
}

TEST_F(Simd, ExtremesPassOverNaN) {
    const float nan = std::numeric_limits<float>::quiet_NaN(),
                infinity = std::numeric_limits<float>::infinity();
    for (std::size_t n = 1; n < 200; n += 3) {
        const std::vector<float> nothing(n, nan);
        const auto none = extremeAt<Largest<float>>(nothing.data(), static_cast<int>(n));
        EXPECT_EQ(static_cast<std::ptrdiff_t>(n), none.index);
        EXPECT_EQ(-infinity, none.value);
        auto one = nothing;
        const std::size_t at = rng() % n;
        one[at] = -infinity;
        const auto found = extremeAt<Largest<float>>(one.data(), static_cast<int>(n));
        EXPECT_EQ(static_cast<std::ptrdiff_t>(at), found.index);
        EXPECT_EQ(-infinity, found.value);
    }
}

template <class T>
void checkFindFirst(Rng& rng) {
    for (int len = 1; len < 12 * Vec<T>::lanes; len += 1 + len / 20) {
        const auto n = static_cast<std::size_t>(len);
        for (const Placement place : kPlaces) {
            std::vector<T> values(n, T(1));
            const std::size_t first = rng() % (n + 1);
            for (std::size_t i = first; i < n; ++i)
                values[i] = i == first || rng() % 2 ? T(2) : T(1);
            const Buffer<T> src(values, place);
            EXPECT_EQ(static_cast<std::ptrdiff_t>(first), findFirst(src.data(), len, [](Vec<T> v) {
                          return v == Vec<T>::broadcast(T(2));
                      }));
            // Nor is what lies past the end taken for zeros of the vector.
            EXPECT_EQ(len,
                      findFirst(src.data(), len, [](Vec<T> v) { return v == Vec<T>::zero(); }));
        }
    }
}

TEST_F(Simd, FindFirst) {
    checkFindFirst<std::uint8_t>(rng);
    checkFindFirst<std::int16_t>(rng);
    checkFindFirst<float>(rng);
    checkFindFirst<double>(rng);
}

TEST_F(Simd, StringInstructions) {
    for (std::size_t count = 0; count < 40; ++count) {
        const auto words = extremeVector<std::uint64_t>(count, rng);
        for (const Placement place : kPlaces) {
            const Buffer<std::uint64_t> src(words, place);
            Buffer<std::uint64_t> copied(count, place), filled(count, place);
            copyWords(copied.data(), src.data(), count);
            EXPECT_TRUE(same(copied, words));
            fillWords(filled.data(), 0x0123456789ABCDEFu, count);
            EXPECT_TRUE(same(filled, std::vector<std::uint64_t>(count, 0x0123456789ABCDEFu)));
        }
    }
}

TEST_F(Simd, CacheSizeIsUnknownOrPlausible) {
    const std::size_t bytes = cacheBytes();
    EXPECT_TRUE(bytes == 0 || (bytes >= (std::size_t{64} << 10) && bytes <= std::size_t{4} << 30))
        << bytes;
    EXPECT_EQ(bytes, cacheBytes());
}

}  // namespace
