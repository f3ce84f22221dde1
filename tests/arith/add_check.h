// Checks that every form of the sums and differences goes through, against the plain definition.
// A form is called through a function over reals: complex forms see twice as many of them.
#pragma once

#include <functional>

#include "arith/add_ref.h"
#include "harness/sweep.h"
#include "vlqs/arith.h"

namespace vlqtest {

// All ranges of every type with their ends, and the far ends of the scale factor.
inline std::vector<int> scaleFactors() {
    std::vector<int> all;
    for (int s = -70; s <= 70; ++s) all.push_back(s);
    for (const int s : {INT32_MIN, INT32_MIN + 1, -65536, -1000, -256, 256, 1000, 65536, INT32_MAX - 1, INT32_MAX}) all.push_back(s);
    return all;
}

// One of each range of a type, and what lies around its width.
template <class T>
std::vector<int> someScaleFactors() {
    const int bits = 8 * static_cast<int>(sizeof(T));
    return {0, 1, 2, 3, bits / 2, bits, bits + 1, bits + 2, -1, 1 - bits, -bits / 2, -bits - 1, INT32_MIN};
}

// Values around the powers of two, where a sum changes its range.
template <class T>
std::vector<T> corners() {
    std::vector<T> values;
    for (int shift = 0; shift <= std::numeric_limits<T>::digits; ++shift) {
        for (int d = -2; d <= 2; ++d) {
            const auto value = static_cast<T>((std::uint64_t{1} << (shift < 64 ? shift : 63)) + static_cast<std::uint64_t>(d));
            values.push_back(value);
            values.push_back(static_cast<T>(0 - static_cast<std::uint64_t>(value)));
        }
    }
    return values;
}

// ---- two vectors -------------------------------------------------------------------------------
template <class T>
using TwoVectors = std::function<VlqStatus(const T* src1, const T* src2, T* dst, int len, int scaleFactor)>;
template <class T>
using InPlace = std::function<VlqStatus(const T* src, T* srcDst, int len, int scaleFactor)>;
template <class T>
using Element = T (*)(T, T, Vlq32s);  // of the first and the second vector, and the scale factor

template <class T, class C>
TwoVectors<T> over(VlqStatus (*call)(const C*, const C*, C*, Vlq32s, Vlq32s)) {
    return [call](const T* a, const T* b, T* d, int len, int s) {
        return call(reinterpret_cast<const C*>(a), reinterpret_cast<const C*>(b), reinterpret_cast<C*>(d), len, s);
    };
}
template <class T, class C>
TwoVectors<T> over(VlqStatus (*call)(const C*, const C*, C*, Vlq32s)) {
    return [call](const T* a, const T* b, T* d, int len, int) {
        return call(reinterpret_cast<const C*>(a), reinterpret_cast<const C*>(b), reinterpret_cast<C*>(d), len);
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
std::vector<T> wanted(const std::vector<T>& a, const std::vector<T>& b, Element<T> ref, int scaleFactor) {
    std::vector<T> want(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], b[i], scaleFactor);
    return want;
}

// Lengths, offsets and guard pages, with the scale factors in turn; in place and over the first
// source. Either form may be absent.
template <class T>
void checkPlaces(const TwoVectors<T>& call, const InPlace<T>& inPlace, Element<T> ref, const std::vector<int>& factors,
                 std::size_t unit = 1) {
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
        }
        if (inPlace) {
            dst.assign(b);
            ASSERT_EQ(vlqStsOk, inPlace(src1.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "in place, scale factor " << scaleFactor;
        }
    });
}

template <class T>
void checkPairs(const TwoVectors<T>& call, Element<T> ref, const std::vector<T>& a, const std::vector<T>& b, int scaleFactor) {
    std::vector<T> dst(a.size());
    ASSERT_EQ(vlqStsOk, call(a.data(), b.data(), dst.data(), static_cast<int>(a.size()), scaleFactor));
    for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(ref(a[i], b[i], scaleFactor), dst[i]) << +a[i] << " and " << +b[i] << " at scale factor " << scaleFactor;
    }
}

// All pairs of corners, and random ones, at every scale factor.
template <class T>
void checkValues(const TwoVectors<T>& call, Element<T> ref, std::size_t randomPairs) {
    const std::vector<T> some = corners<T>();
    std::vector<T> a, b;
    for (const T x : some) {
        for (const T y : some) {
            a.push_back(x);
            b.push_back(y);
        }
    }
    Rng rng(seed());
    for (const int scaleFactor : scaleFactors()) {
        checkPairs<T>(call, ref, a, b, scaleFactor);
        checkPairs<T>(call, ref, extremeVector<T>(randomPairs, rng), extremeVector<T>(randomPairs, rng), scaleFactor);
        if (::testing::Test::HasFailure()) return;
    }
}

// ---- vector and constant --------------------------------------------------------------------------
// The constant comes as its reals: one, or two of a complex one.
template <class T>
using WithConstant = std::function<VlqStatus(const T* src, const T* val, T* dst, int len, int scaleFactor)>;

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
void checkConstantPlaces(const WithConstant<T>& call, const WithConstant<T>& inPlace, Element<T> ref,
                         const std::vector<int>& factors, std::size_t unit = 1) {
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
            ASSERT_TRUE(same(dst, want)) << "constant " << +val[0] << ", scale factor " << scaleFactor;
        }
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(dst.data(), val.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "in place, constant " << +val[0] << ", scale factor " << scaleFactor;
    });
}

template <class T>
void checkConstants(const WithConstant<T>& call, Element<T> ref, const std::vector<T>& src, const std::vector<T>& constants,
                    const std::vector<int>& factors) {
    std::vector<T> dst(src.size());
    for (const int scaleFactor : factors) {
        for (const T val : constants) {
            ASSERT_EQ(vlqStsOk, call(src.data(), &val, dst.data(), static_cast<int>(src.size()), scaleFactor));
            for (std::size_t i = 0; i < src.size(); ++i) {
                ASSERT_EQ(ref(src[i], val, scaleFactor), dst[i])
                    << +src[i] << " and the constant " << +val << " at scale factor " << scaleFactor;
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

// ---- one number for many results -------------------------------------------------------------------
// The same in every build and under every compiler: inputs and hash depend on nothing else.
class Digest {
public:
    template <class T>
    void add(const std::vector<T>& values) {
        for (const T v : values) {
            hash_ ^= static_cast<std::uint64_t>(v);
            hash_ *= 0x100000001B3u;
            hash_ ^= hash_ >> 29;
        }
    }
    std::uint64_t value() const { return hash_; }

private:
    std::uint64_t hash_ = 0xCBF29CE484222325u;
};

template <class T>
std::vector<T> fixedVector(std::size_t count, std::uint64_t state) {
    std::vector<T> values(count);
    for (T& v : values) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const std::uint64_t bits = state >> 32 ^ state << 21;
        v = static_cast<T>(bits >> (state >> 59) % (8 * sizeof(T)));  // magnitudes of all sizes
    }
    return values;
}

}  // namespace vlqtest
