// Checks that every variant of the sums and differences goes through, against the plain definition.
// A variant is called through a function over reals: complex variants see twice as many of them.
#pragma once

#include <functional>

#include "arith/add_ref.h"
#include "harness/digest.h"
#include "harness/effort.h"
#include "harness/sweep.h"
#include "vlqs/arith.h"

namespace vlqtest {

// All classes of scale factors of a type with their limits, and the far ends. The classes end a few
// bits beyond the type's width.
template <class T>
std::vector<int> scaleFactors() {
    std::vector<int> all;
    const int last =
        byEffort(8 * static_cast<int>(sizeof(T)) + 3, 8 * static_cast<int>(sizeof(T)) + 3, 70);
    for (int s = -last; s <= last; ++s) all.push_back(s);
    for (const int s : {INT32_MIN, INT32_MIN + 1, -65536, -1000, -256, 256, 1000, 65536,
                        INT32_MAX - 1, INT32_MAX})
        all.push_back(s);
    return all;
}

// One of each class of a type, and those around its width.
template <class T>
std::vector<int> someScaleFactors() {
    const int bits = 8 * static_cast<int>(sizeof(T));
    return {0,        1,  2,        3,         bits / 2,  bits,     bits + 1,
            bits + 2, -1, 1 - bits, -bits / 2, -bits - 1, INT32_MIN};
}

// Values around the powers of two, where a sum begins to overflow or to round.
template <class T>
std::vector<T> corners() {
    std::vector<T> values;
    for (int shift = 0; shift <= std::numeric_limits<T>::digits; ++shift) {
        const int most = byEffort(1, 1, 2);
        for (int d = -most; d <= most; ++d) {
            const auto value = static_cast<T>((std::uint64_t{1} << (shift < 64 ? shift : 63)) +
                                              static_cast<std::uint64_t>(d));
            values.push_back(value);
            values.push_back(static_cast<T>(0 - static_cast<std::uint64_t>(value)));
        }
    }
    return values;
}

// Adds all pairs of corners of two types.
template <class A, class B>
void appendCornerPairs(std::vector<A>& a, std::vector<B>& b) {
    for (const A x : corners<A>()) {
        for (const B y : corners<B>()) {
            a.push_back(x);
            b.push_back(y);
        }
    }
}
template <class T>
void appendRandom(std::vector<T>& values, std::size_t count, Rng& rng) {
    for (std::size_t i = 0; i < count; ++i) values.push_back(extremeValue<T>(rng));
}

// ---- two vectors --------------------------------------------------------------------------------
template <class T>
using TwoVectors =
    std::function<VlqStatus(const T* src1, const T* src2, T* dst, int len, int scaleFactor)>;
template <class T>
using InPlace = std::function<VlqStatus(const T* src, T* srcDst, int len, int scaleFactor)>;
template <class T>
using Element = T (*)(T, T, Vlq32s);  // of the first and the second vector, and the scale factor

template <class T, class C>
TwoVectors<T> over(VlqStatus (*call)(const C*, const C*, C*, Vlq32s, Vlq32s)) {
    return [call](const T* a, const T* b, T* d, int len, int s) {
        return call(reinterpret_cast<const C*>(a), reinterpret_cast<const C*>(b),
                    reinterpret_cast<C*>(d), len, s);
    };
}
template <class T, class C>
TwoVectors<T> over(VlqStatus (*call)(const C*, const C*, C*, Vlq32s)) {
    return [call](const T* a, const T* b, T* d, int len, int) {
        return call(reinterpret_cast<const C*>(a), reinterpret_cast<const C*>(b),
                    reinterpret_cast<C*>(d), len);
    };
}
template <class T, class C>
InPlace<T> over(VlqStatus (*call)(const C*, C*, Vlq32s, Vlq32s)) {
    return [call](const T* a, T* d, int len, int s) {
        return call(reinterpret_cast<const C*>(a), reinterpret_cast<C*>(d), len, s);
    };
}
template <class T, class C>
InPlace<T> over(VlqStatus (*call)(const C*, C*, Vlq32s)) {
    return [call](const T* a, T* d, int len, int) {
        return call(reinterpret_cast<const C*>(a), reinterpret_cast<C*>(d), len);
    };
}

template <class T>
std::vector<T> wanted(const std::vector<T>& a, const std::vector<T>& b, Element<T> ref,
                      int scaleFactor) {
    std::vector<T> want(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], b[i], scaleFactor);
    return want;
}

// Lengths, offsets and guard pages, with the scale factors in turn; in place, over the first and
// over the second source, and of one vector alone. Either variant may be absent.
template <class T>
void checkPlaces(const TwoVectors<T>& call, const InPlace<T>& inPlace, Element<T> ref,
                 const std::vector<int>& factors, std::size_t unit = 1) {
    std::size_t turn = 0;
    sweep(static_cast<int>(sizeof(T) * unit), {5003}, [&](Case& c) {
        const int scaleFactor = factors[turn++ % factors.size()];
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len) * unit, c.rng);
        const auto b = extremeVector<T>(static_cast<std::size_t>(c.len) * unit, c.rng);
        const auto want = wanted<T>(a, b, ref, scaleFactor);

        const Buffer<T> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<T> dst(a.size(), c.place[0]);
        if (call) {
            ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
            dst.assign(a);
            ASSERT_EQ(vlqStsOk, call(dst.data(), src2.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "over the first, scale factor " << scaleFactor;
            dst.assign(b);
            ASSERT_EQ(vlqStsOk, call(src1.data(), dst.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "over the second, scale factor " << scaleFactor;
            dst.assign(a);
            const auto ofItself = wanted<T>(a, a, ref, scaleFactor);
            ASSERT_EQ(vlqStsOk, call(dst.data(), dst.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, ofItself))
                << "of itself over itself, scale factor " << scaleFactor;
        }
        if (inPlace) {
            dst.assign(b);
            ASSERT_EQ(vlqStsOk, inPlace(src1.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "in place, scale factor " << scaleFactor;
        }
    });
}

// An in-place variant as one of two vectors.
template <class T>
TwoVectors<T> asTwo(const InPlace<T>& call) {
    return [call](const T* a, const T* b, T* d, int len, int s) {
        std::memcpy(d, b, static_cast<std::size_t>(len) * sizeof(T));
        return call(a, d, len, s);
    };
}
// A complex variant as one of twice as many reals.
template <class T>
TwoVectors<T> asReals(const TwoVectors<T>& call) {
    return
        [call](const T* a, const T* b, T* d, int len, int s) { return call(a, b, d, len / 2, s); };
}
template <class T>
InPlace<T> asReals(const InPlace<T>& call) {
    return [call](const T* a, T* d, int len, int s) { return call(a, d, len / 2, s); };
}

template <class T>
void checkPairs(const std::vector<TwoVectors<T>>& variants, Element<T> ref, const std::vector<T>& a,
                const std::vector<T>& b, int scaleFactor) {
    const auto want = wanted<T>(a, b, ref, scaleFactor);
    for (std::size_t k = 0; k < variants.size(); ++k) {
        std::vector<T> dst(a.size());
        ASSERT_EQ(vlqStsOk, variants[k](a.data(), b.data(), dst.data(), static_cast<int>(a.size()),
                                        scaleFactor));
        for (std::size_t i = 0; i < a.size(); ++i) {
            ASSERT_EQ(want[i], dst[i]) << +a[i] << " and " << +b[i] << " at scale factor "
                                       << scaleFactor << ", variant " << k;
        }
    }
}

// All pairs of corners, and random ones, at every scale factor given. An even number of each.
template <class T>
void checkValues(const std::vector<TwoVectors<T>>& variants, Element<T> ref,
                 std::size_t randomPairs, const std::vector<int>& factors = scaleFactors<T>()) {
    std::vector<T> a, b;
    appendCornerPairs(a, b);
    Rng rng(seed());
    for (const int scaleFactor : factors) {
        checkPairs<T>(variants, ref, a, b, scaleFactor);
        checkPairs<T>(variants, ref, extremeVector<T>(randomPairs, rng),
                      extremeVector<T>(randomPairs, rng), scaleFactor);
        if (::testing::Test::HasFailure()) return;
    }
}

// ---- vector and constant ------------------------------------------------------------------------
// The constant comes as its reals: one, or two of a complex one.
template <class T>
using WithConstant =
    std::function<VlqStatus(const T* src, const T* val, T* dst, int len, int scaleFactor)>;

template <class T, class C>
WithConstant<T> constant(VlqStatus (*call)(const C*, C, C*, Vlq32s, Vlq32s)) {
    return [call](const T* src, const T* val, T* dst, int len, int s) {
        C c;
        std::memcpy(&c, val, sizeof(C));
        return call(reinterpret_cast<const C*>(src), c, reinterpret_cast<C*>(dst), len, s);
    };
}
template <class T, class C>
WithConstant<T> constant(VlqStatus (*call)(const C*, C, C*, Vlq32s)) {
    return [call](const T* src, const T* val, T* dst, int len, int) {
        C c;
        std::memcpy(&c, val, sizeof(C));
        return call(reinterpret_cast<const C*>(src), c, reinterpret_cast<C*>(dst), len);
    };
}
// In place: the source is dst.
template <class T, class C>
WithConstant<T> constant(VlqStatus (*call)(C, C*, Vlq32s, Vlq32s)) {
    return [call](const T*, const T* val, T* dst, int len, int s) {
        C c;
        std::memcpy(&c, val, sizeof(C));
        return call(c, reinterpret_cast<C*>(dst), len, s);
    };
}
template <class T, class C>
WithConstant<T> constant(VlqStatus (*call)(C, C*, Vlq32s)) {
    return [call](const T*, const T* val, T* dst, int len, int) {
        C c;
        std::memcpy(&c, val, sizeof(C));
        return call(c, reinterpret_cast<C*>(dst), len);
    };
}

template <class T>
void checkConstantPlaces(const WithConstant<T>& call, const WithConstant<T>& inPlace,
                         Element<T> ref, const std::vector<int>& factors, std::size_t unit = 1) {
    std::size_t turn = 0;
    sweep(static_cast<int>(sizeof(T) * unit), {5003, 9001}, [&](Case& c) {
        const int scaleFactor = factors[turn++ % factors.size()];
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len) * unit, c.rng);
        auto val = extremeVector<T>(unit, c.rng);
        if (turn % 8 == 0) val.assign(unit, T{0});
        std::vector<T> repeated(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) repeated[i] = val[i % unit];
        const auto want = wanted<T>(a, repeated, ref, scaleFactor);

        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(a.size(), c.place[0]);
        if (call) {
            ASSERT_EQ(vlqStsOk, call(src.data(), val.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want))
                << "constant " << +val[0] << ", scale factor " << scaleFactor;
        }
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(dst.data(), val.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want))
            << "in place, constant " << +val[0] << ", scale factor " << scaleFactor;
    });
}

template <class T>
void checkConstants(const WithConstant<T>& call, Element<T> ref, const std::vector<T>& src,
                    const std::vector<T>& constants, const std::vector<int>& factors) {
    std::vector<T> dst(src.size());
    for (const int scaleFactor : factors) {
        for (const T val : constants) {
            ASSERT_EQ(vlqStsOk, call(src.data(), &val, dst.data(), static_cast<int>(src.size()),
                                     scaleFactor));
            for (std::size_t i = 0; i < src.size(); ++i) {
                ASSERT_EQ(ref(src[i], val, scaleFactor), dst[i])
                    << +src[i] << " and the constant " << +val << " at scale factor "
                    << scaleFactor;
            }
        }
    }
}

// All values of a type of at most 16 bits.
template <class T>
std::vector<T> everyValue() {
    std::vector<T> values(std::size_t{1} << (8 * sizeof(T)));
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = static_cast<T>(i);
    return values;
}

}  // namespace vlqtest
