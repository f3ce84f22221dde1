// ops.h and saturate.h over integers, horizontal.h and gather.h.
#include "frame/simd/gather.h"
#include "frame/simd/horizontal.h"
#include "frame/simd/lanes.h"
#include "frame/simd/saturate.h"

namespace {

using namespace vlq;
using namespace vlqtest;

__extension__ typedef __int128 Wide;
__extension__ typedef unsigned __int128 WideUnsigned;

template <class T>
T saturate(Wide x) {
    const Wide low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(std::clamp(x, low, high));
}

template <class T, int B>
void checkArithmetic(Rng& rng) {
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return a + b; },
        [](T a, T b) { return static_cast<T>(Wide{a} + b); });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return a - b; },
        [](T a, T b) { return static_cast<T>(Wide{a} - b); });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return a * b; },
        [](T a, T b) {
            return static_cast<T>(static_cast<WideUnsigned>(a) * static_cast<WideUnsigned>(b));
        });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return minimum(a, b); }, [](T a, T b) { return std::min(a, b); });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return maximum(a, b); }, [](T a, T b) { return std::max(a, b); });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return addSat(a, b); },
        [](T a, T b) { return saturate<T>(Wide{a} + b); });
    if constexpr (sizeof(T) <= 2 || std::is_signed_v<T>) {
        checkBinary<T, B>(
            rng, [](auto a, auto b) { return subSat(a, b); },
            [](T a, T b) { return saturate<T>(Wide{a} - b); });
    }
    if constexpr (sizeof(T) > 1 || std::is_unsigned_v<T>) {
        checkBinary<T, B>(
            rng, [](auto a, auto b) { return meanUp(a, b); },
            [](T a, T b) { return static_cast<T>((Wide{a} + b + 1) >> 1); });
    }
    if constexpr (std::is_signed_v<T>) {
        checkUnary<T, B>(
            rng, [](auto a) { return absolute(a); },
            [](T a) { return static_cast<T>(a < 0 ? -Wide{a} : Wide{a}); });
    }
    if constexpr (std::is_signed_v<T> && sizeof(T) > 1) {
        checkUnary<T, B>(
            rng, [](auto a) { return signMask(a); }, [](T a) { return static_cast<T>(-(a < 0)); });
        checkBinary<T, B>(
            rng, [](auto a, auto b) { return selectNegative(a, b, a); },
            [](T a, T b) { return a < 0 ? b : a; });
        const auto positive = [](T a) { return static_cast<T>(a & std::numeric_limits<T>::max()); };
        checkBinary<T, B>(
            rng,
            [](auto a, auto b) {
                const auto keep = Vec<T, B>::broadcast(std::numeric_limits<T>::max());
                return isAbove(a & keep, b & keep);
            },
            [&](T a, T b) { return static_cast<T>(-(positive(a) > positive(b))); });
    }
}

template <class T, int B>
void checkShifts(Rng& rng) {
    constexpr int bits = 8 * static_cast<int>(sizeof(T));
    for (int count = 0; count < bits; ++count) {
        checkUnary<T, B>(
            rng, [&](auto a) { return shiftLeft(a, count); },
            [&](T a) { return static_cast<T>(static_cast<WideUnsigned>(a) << count); }, 50);
        if constexpr (sizeof(T) > 1 || std::is_unsigned_v<T>) {
            checkUnary<T, B>(
                rng, [&](auto a) { return shiftRight(a, count); },
                [&](T a) { return static_cast<T>(a >> count); }, 50);
        }
    }
    if constexpr (sizeof(T) > 1 || std::is_unsigned_v<T>) {
        for (int count = 1; count <= std::numeric_limits<T>::digits; ++count) {
            const auto scaled = [&](T a) {
                // In two steps, since 64 bits shifted by 64 do not fit a wide integer.
                const Wide half = saturate<T>(Wide{a} * (Wide{1} << count / 2));
                return saturate<T>(half * (Wide{1} << (count - count / 2)));
            };
            checkUnary<T, B>(
                rng, [&](auto a) { return shiftLeftSat(a, count); }, scaled, 50);
            if (count < bits) {
                // Small values, which do not all saturate.
                checkUnary<T, B>(
                    rng, [&](auto a) { return shiftLeftSat(shiftRight(a, count), count); },
                    [&](T a) { return scaled(static_cast<T>(a >> count)); }, 50);
            }
            if constexpr (std::is_signed_v<T>) {
                // A sum of one bit more, by its lower bits and its sign.
                checkBinary<T, B>(
                    rng,
                    [&](auto a, auto b) {
                        const auto sum = a + b;
                        return shiftLeftSat(sum, ((a ^ b) & sum) | (~(a ^ b) & a), count);
                    },
                    [&](T a, T b) { return saturate<T>((Wide{a} + b) * (Wide{1} << count)); }, 50);
            }
        }
    }
}

template <class T>
void checkInteger(Rng& rng) {
    forEachSize([&](auto size) {
        if constexpr (size == kVecBytes || sizeof(T) <= 4) { checkArithmetic<T, size>(rng); }
    });
    checkShifts<T, kVecBytes>(rng);
}

TEST_F(Simd, Integers8) {
    checkInteger<std::int8_t>(rng);
    checkInteger<std::uint8_t>(rng);
}
TEST_F(Simd, Integers16) {
    checkInteger<std::int16_t>(rng);
    checkInteger<std::uint16_t>(rng);
}
TEST_F(Simd, Integers32) {
    checkInteger<std::int32_t>(rng);
    checkInteger<std::uint32_t>(rng);
}
TEST_F(Simd, Integers64) {
    checkInteger<std::int64_t>(rng);
    checkInteger<std::uint64_t>(rng);
}

template <class T>
void checkHorizontal(Rng& rng) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        for (int round = 0; round < 200; ++round) {
            std::vector<T> a(Vec<T, B>::lanes);
            for (T& v : a) v = static_cast<T>(static_cast<int>(rng() % 200) - 100);
            const auto v = load<T, B>(a.data());
            EXPECT_EQ(*std::min_element(a.begin(), a.end()), laneMinimum(v));
            EXPECT_EQ(*std::max_element(a.begin(), a.end()), laneMaximum(v));
            // Exact for floats too, in any order.
            Wide sum = 0;
            for (const T x : a) sum += static_cast<Wide>(x);
            if constexpr (sizeof(T) >= 4) { EXPECT_EQ(static_cast<T>(sum), laneSum(v)); }
        }
    });
}

TEST_F(Simd, AcrossLanes) {
    checkHorizontal<std::int8_t>(rng);
    checkHorizontal<std::uint8_t>(rng);
    checkHorizontal<std::int16_t>(rng);
    checkHorizontal<std::uint16_t>(rng);
    checkHorizontal<std::int32_t>(rng);
    checkHorizontal<std::uint32_t>(rng);
    checkHorizontal<std::int64_t>(rng);
    checkHorizontal<float>(rng);
    checkHorizontal<double>(rng);
}

TEST_F(Simd, LaneSumFoldsHalves) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        auto a = extremeVector<float>(Vec<float, B>::lanes, rng);
        for (float& x : a) x = std::isfinite(x) ? x : 1.0f;
        const float got = laneSum(load<float, B>(a.data()));
        for (std::size_t n = a.size() / 2; n > 0; n /= 2)
            for (std::size_t i = 0; i < n; ++i) a[i] += a[i + n];
        EXPECT_EQ(a[0], got);
    });
}

template <class T>
void checkGather(Rng& rng) {
    using Index = BitsOf<T>;
    forEachSize([&](auto size) {
        constexpr int B = size;
        constexpr std::size_t length = 100;
        for (const Placement place :
             {Placement{0, false}, Placement{1, false}, Placement{0, true}}) {
            const auto values = extremeVector<T>(length, rng);
            const Buffer<T> table(values, place);
            std::vector<Index> index(Vec<T, B>::lanes);
            for (int round = 0; round < 50; ++round) {
                for (Index& i : index) i = static_cast<Index>(rng() % length);
                index[0] = length - 1;  // at a guard page, the last bytes there are
                EXPECT_TRUE(sameLanes(
                    lanesOf(gather(table.data(), load<Index, B>(index.data()))),
                    [&](std::size_t i) { return values[static_cast<std::size_t>(index[i])]; }));
                // Indices count from the base, downwards too.
                for (Index& i : index) i = static_cast<Index>(i - 50);
                EXPECT_TRUE(
                    sameLanes(lanesOf(gather(table.data() + 50, load<Index, B>(index.data()))),
                              [&](std::size_t i) {
                                  return values[static_cast<std::size_t>(index[i] + 50)];
                              }));
            }
        }
    });
}

TEST_F(Simd, Gather) {
    checkGather<float>(rng);
    checkGather<std::int32_t>(rng);
    checkGather<double>(rng);
    checkGather<std::int64_t>(rng);
}

}  // namespace
