// Checks of element-wise calls with a scale factor against a function of one element pair.
#pragma once

#include "harness/digest.h"
#include "harness/effort.h"
#include "harness/element.h"
#include "vlqs/arith.h"

namespace vlqtest {

// All classes of scale factors of every type with their limits, and the far ends.
inline std::vector<int> scaleFactors() {
    std::vector<int> all;
    for (int s = -40; s <= 70; ++s) all.push_back(s);
    for (const int s :
         {INT32_MIN, INT32_MIN + 1, -65536, -1000, -256, -130, -127, -126, -64,   -63,      -62,
          -61,       -50,           126,    127,   128,  129,  256,  1000, 65536, INT32_MAX}) {
        all.push_back(s);
    }
    return all;
}

template <class A, class B, class D>
using Scaled = VlqStatus (*)(const A*, const B*, D*, Vlq32s, Vlq32s);
template <class A, class D>
using ScaledInPlace = VlqStatus (*)(const A*, D*, Vlq32s, Vlq32s);
template <class T>
using ScaledConstant = VlqStatus (*)(const T*, T, T*, Vlq32s, Vlq32s);
template <class T>
using ScaledConstantInPlace = VlqStatus (*)(T, T*, Vlq32s, Vlq32s);
template <class A, class B, class D>
using ElementRef = D (*)(A, B, Vlq32s);

template <class A, class B, class D>
std::vector<D> wanted(const std::vector<A>& a, const std::vector<B>& b, ElementRef<A, B, D> ref,
                      int scaleFactor) {
    std::vector<D> want(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], b[i], scaleFactor);
    return want;
}

template <class T>
bool equalElements(T a, T b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

template <class T>
std::string showInteger(T v) {
    if constexpr (ComplexElement<T>)
        return std::to_string(v.re).append(" and ").append(std::to_string(v.im)).append(" i");
    else
        return std::to_string(v);
}

// One scale factor after another, from every class of a type of `bits` bits.
inline int turningScale(std::size_t turn, int bits) {
    const int factors[] = {
        0, 1, 2, 3, bits / 2, bits, 2 * bits - 2, 2 * bits, 2 * bits + 1, -1, -bits / 2, -bits - 1};
    return factors[turn % std::size(factors)];
}

// Lengths, offsets and guard pages, with a scale factor of each class in turn. A null call is left
// out.
template <class A, class B, class D>
void checkPlaces(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace, ElementRef<A, B, D> ref) {
    std::size_t turn = 0;
    const std::size_t smallest = std::min({sizeof(A), sizeof(B), sizeof(D)});
    sweep(static_cast<int>(smallest), {5003}, [&](Case& c) {
        const int scaleFactor = turningScale(turn++, 8 * static_cast<int>(smallest));
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<A>(n, c.rng);
        const auto b = extremeElements<B>(n, c.rng);
        const auto want = wanted<A, B, D>(a, b, ref, scaleFactor);
        const Buffer<A> src1(a, c.place[1]);
        const Buffer<B> src2(b, c.place[2]);
        Buffer<D> dst(n, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
        if constexpr (std::is_same_v<A, D>) {
            dst.assign(a);
            ASSERT_EQ(vlqStsOk, call(dst.data(), src2.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "over the first, scale factor " << scaleFactor;
        }
        if constexpr (std::is_same_v<B, D>) {
            dst.assign(b);
            ASSERT_EQ(vlqStsOk, call(src1.data(), dst.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "over the second, scale factor " << scaleFactor;
            if (inPlace) {
                dst.assign(b);
                ASSERT_EQ(vlqStsOk, inPlace(src1.data(), dst.data(), c.len, scaleFactor));
                ASSERT_TRUE(same(dst, want)) << "in place, scale factor " << scaleFactor;
            }
        }
        if constexpr (std::is_same_v<A, D> && std::is_same_v<B, D>) {
            dst.assign(a);
            ASSERT_EQ(vlqStsOk, call(dst.data(), dst.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, wanted<A, B, D>(a, a, ref, scaleFactor)))
                << "of itself over itself, scale factor " << scaleFactor;
        }
    });
}

template <class T>
void checkConstantPlaces(ScaledConstant<T> call, ScaledConstantInPlace<T> inPlace,
                         ElementRef<T, T, T> ref) {
    std::size_t turn = 0;
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const int scaleFactor = turningScale(turn++, 8 * static_cast<int>(sizeof(T)));
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<T>(n, c.rng);
        const T val = extremeElement<T>(c.rng);
        const auto want = wanted<T, T, T>(a, std::vector<T>(n, val), ref, scaleFactor);
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(n, c.place[0]);
        if (call) {
            ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
        }
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(val, dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "in place, scale factor " << scaleFactor;
    });
}

// Values around the powers of two of both signs.
template <class T>
std::vector<T> cornerValues() {
    std::vector<T> values;
    for (int shift = 0; shift <= std::numeric_limits<T>::digits; ++shift) {
        for (const int d : {-1, 0, 1}) {
            const auto value = static_cast<T>((std::uint64_t{1} << (shift < 64 ? shift : 63)) +
                                              static_cast<std::uint64_t>(d));
            values.push_back(value);
            values.push_back(static_cast<T>(0 - static_cast<std::uint64_t>(value)));
        }
    }
    return values;
}
template <ComplexElement C>
std::vector<C> cornerValues() {
    using T = decltype(C::re);
    constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    std::vector<C> values;
    for (const T re : {low, static_cast<T>(low + 1), high, T{0}, T{1}, T{-1},
                       static_cast<T>(low / 2), static_cast<T>(high / 2 + 1)}) {
        for (const T im : {low, static_cast<T>(low + 1), high, T{0}, T{1}, T{-1},
                           static_cast<T>(low / 2), static_cast<T>(high / 2)})
            values.push_back({re, im});
    }
    return values;
}

// Given pairs at one scale factor, out of place and in place.
template <class A, class B, class D>
void checkPairs(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace, ElementRef<A, B, D> ref,
                const std::vector<A>& a, const std::vector<B>& b, int scaleFactor,
                VlqStatus status = vlqStsOk) {
    const auto want = wanted<A, B, D>(a, b, ref, scaleFactor);
    const auto compare = [&](const std::vector<D>& dst) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            ASSERT_TRUE(equalElements(want[i], dst[i]))
                << showInteger(a[i]) << " with " << showInteger(b[i]) << " at scale factor "
                << scaleFactor << ": " << showInteger(dst[i]) << ", expected "
                << showInteger(want[i]);
        }
    };
    const int len = static_cast<int>(a.size());
    std::vector<D> dst(a.size());
    ASSERT_EQ(status, call(a.data(), b.data(), dst.data(), len, scaleFactor));
    compare(dst);
    if constexpr (std::is_same_v<B, D>) {
        if (!inPlace) return;
        dst = b;
        ASSERT_EQ(status, inPlace(a.data(), dst.data(), len, scaleFactor));
        compare(dst);
    }
}

// All pairs of corners of two types.
template <class A, class B>
void appendCornerPairs(std::vector<A>& a, std::vector<B>& b) {
    for (const A x : cornerValues<A>()) {
        for (const B y : cornerValues<B>()) {
            a.push_back(x);
            b.push_back(y);
        }
    }
}
template <class T>
void appendRandom(std::vector<T>& values, std::size_t count, Rng& rng) {
    for (std::size_t i = 0; i < count; ++i) values.push_back(extremeElement<T>(rng));
}

// Corner pairs, and random pairs over all scale factors.
inline const std::size_t kRandomPairs = byEffort<std::size_t>(100'000, 1'000'000, 10'000'000);
template <class A, class B, class D>
void checkValues(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace, ElementRef<A, B, D> ref,
                 VlqStatus status = vlqStsOk, const std::vector<int>& factors = scaleFactors()) {
    Rng rng(seed());
    for (const int scaleFactor : factors) {
        std::vector<A> a;
        std::vector<B> b;
        appendCornerPairs(a, b);
        appendRandom(a, kRandomPairs / factors.size() + 1, rng);
        appendRandom(b, kRandomPairs / factors.size() + 1, rng);
        checkPairs(call, inPlace, ref, a, b, scaleFactor, status);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

// All pairs of 8-bit values, with the scale factors to go through.
inline void appendAllBytePairs(std::vector<Vlq8u>& a, std::vector<Vlq8u>& b) {
    for (int x = 0; x < 256; ++x) {
        for (int y = 0; y < 256; ++y) {
            a.push_back(static_cast<Vlq8u>(x));
            b.push_back(static_cast<Vlq8u>(y));
        }
    }
}
inline std::vector<int> byteScaleFactors() {
    std::vector<int> factors{INT32_MIN, INT32_MAX};
    for (int s = -40; s <= 40; ++s) factors.push_back(s);
    return factors;
}
inline void checkAllBytes(Scaled<Vlq8u, Vlq8u, Vlq8u> call, ScaledInPlace<Vlq8u, Vlq8u> inPlace,
                          ElementRef<Vlq8u, Vlq8u, Vlq8u> ref, VlqStatus status = vlqStsOk) {
    std::vector<Vlq8u> a, b;
    appendAllBytePairs(a, b);
    for (const int s : byteScaleFactors()) {
        checkPairs(call, inPlace, ref, a, b, s, status);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

// ---- digests ------------------------------------------------------------------------------------
// Results of fixed vectors over scale factors of every range.
template <class A, class B, class D>
void checkDigest(Scaled<A, B, D> call, ElementRef<A, B, D> ref, std::uint64_t expected,
                 VlqStatus status = vlqStsOk) {
    auto a = fixedVector<A>(2000, 1);
    const auto b = fixedVector<B>(2000, 2);
    if (status == vlqStsWarnDivByZero) a[0] = A{};
    Digest got, want;
    std::vector<D> dst(a.size());
    for (int s = -70; s <= 70; ++s) {
        ASSERT_EQ(status, call(a.data(), b.data(), dst.data(), 2000, s));
        got.add(dst);
        want.add(wanted<A, B, D>(a, b, ref, s));
    }
    expectDigest(expected, got, want);
}
template <class T>
void checkConstantDigest(ScaledConstantInPlace<T> inPlace, ElementRef<T, T, T> ref,
                         std::uint64_t expected) {
    const auto src = fixedVector<T>(2000, 3);
    auto constants = fixedVector<T>(141, 4);
    Digest got, want;
    for (int s = -70; s <= 70; ++s) {
        T val = constants[static_cast<std::size_t>(s + 70)];
        if constexpr (!ComplexElement<T>) {
            if (val == 0) val = 1;  // a divisor
        } else {
            if (val.re == 0 && val.im == 0) val.re = 1;
        }
        auto dst = src;
        ASSERT_EQ(vlqStsOk, inPlace(val, dst.data(), 2000, s));
        got.add(dst);
        want.add(wanted<T, T, T>(src, std::vector<T>(src.size(), val), ref, s));
    }
    expectDigest(expected, got, want);
}

// Constants, and a few random ones, against all values of up to 16 bits or corners and random
// values of wider types. The call out of place may be absent.
template <class T>
void checkConstants(ScaledConstant<T> call, ScaledConstantInPlace<T> inPlace,
                    ElementRef<T, T, T> ref, std::vector<T> constants, std::size_t randoms) {
    Rng rng(seed());
    for (int i = 0; i < (sizeof(T) <= 2 ? 2 : 12); ++i) constants.push_back(extremeElement<T>(rng));
    std::vector<T> source;
    if constexpr (sizeof(T) <= 2) {
        for (int x = 0; x < 1 << (8 * sizeof(T)); ++x) source.push_back(static_cast<T>(x));
    } else {
        source = cornerValues<T>();
        for (std::size_t i = 0; i < randoms; ++i) source.push_back(extremeElement<T>(rng));
    }
    for (const T val : constants) {
        for (const int scaleFactor : scaleFactors()) {
            auto dst = source;
            ASSERT_EQ(vlqStsOk,
                      inPlace(val, dst.data(), static_cast<int>(dst.size()), scaleFactor));
            if (call) {
                std::vector<T> apart(source.size());
                ASSERT_EQ(vlqStsOk, call(source.data(), val, apart.data(),
                                         static_cast<int>(dst.size()), scaleFactor));
                ASSERT_EQ(0, std::memcmp(apart.data(), dst.data(), dst.size() * sizeof(T)))
                    << "constant " << showInteger(val) << " at " << scaleFactor;
            }
            for (std::size_t i = 0; i < source.size(); ++i) {
                const T want = ref(source[i], val, scaleFactor);
                ASSERT_TRUE(equalElements(want, dst[i]))
                    << showInteger(source[i]) << " with constant " << showInteger(val)
                    << " at scale factor " << scaleFactor << ": " << showInteger(dst[i])
                    << ", expected " << showInteger(want);
            }
        }
    }
}

}  // namespace vlqtest
