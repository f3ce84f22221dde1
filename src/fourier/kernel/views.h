// How a pass sees its data: complex value number i and those behind it as one vector. The lanes
// of all views stand in splitLane order, so that a pass never shuffles.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "frame/simd/split.h"

namespace vlq::fft {

// One complex value; the parts may lie at any address.
template <class T>
struct Value {
    T re;
    T im;
};
template <class T>
[[gnu::always_inline]] inline T scalarAt(const T* p) {
    T v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
template <class T>
[[gnu::always_inline]] inline void putScalar(T* p, T v) {
    std::memcpy(p, &v, sizeof v);
}

// The caller's interleaved values; `exchanged` takes the parts of a value for one another.
template <class P, bool exchanged>
struct Interleaved {
    using T = std::remove_const_t<P>;
    static constexpr bool kExchanged = exchanged;
    P* p;
    template <int B>
    [[gnu::always_inline]] Split<T, B> get(std::ptrdiff_t i) const {
        const Split<T, B> v = loadSplit<T, B>(p + 2 * i);
        return exchanged ? Split<T, B>{v.im, v.re} : v;
    }
    template <int B>
    [[gnu::always_inline]] void put(std::ptrdiff_t i, Split<T, B> v) const {
        storeSplit(p + 2 * i, exchanged ? Split<T, B>{v.im, v.re} : v);
    }
    [[gnu::always_inline]] Value<T> one(std::ptrdiff_t i) const {
        return {scalarAt(p + 2 * i + exchanged), scalarAt(p + 2 * i + !exchanged)};
    }
    [[gnu::always_inline]] void putOne(std::ptrdiff_t i, Value<T> v) const {
        putScalar(p + 2 * i + exchanged, v.re);
        putScalar(p + 2 * i + !exchanged, v.im);
    }
};

// Between passes: a vector of real parts, then one of imaginary parts. `exchanged` as above, where
// a transform's first pass reads what another has left like this. Opaque: each is loaded once,
// where the compiler would load it again for each use and run out of loads a cycle.
template <class T, bool exchanged = false>
struct Blocks {
    T* p;
    template <int B>
    [[gnu::always_inline]] Split<T, B> get(std::ptrdiff_t i) const {
        const Split<T, B> v{opaque(load<T, B>(p + 2 * i)),
                            opaque(load<T, B>(p + 2 * i + Vec<T, B>::lanes))};
        return exchanged ? Split<T, B>{v.im, v.re} : v;
    }
    template <int B>
    [[gnu::always_inline]] void put(std::ptrdiff_t i, Split<T, B> v) const {
        store(p + 2 * i, exchanged ? v.im : v.re);
        store(p + 2 * i + Vec<T, B>::lanes, exchanged ? v.re : v.im);
    }
    Blocks from(std::ptrdiff_t i) const { return {p + 2 * i}; }
};

// The caller's two arrays.
template <class P>
struct Parts {
    using T = std::remove_const_t<P>;
    P* re;
    P* im;
    template <int B>
    [[gnu::always_inline]] Split<T, B> get(std::ptrdiff_t i) const {
        return {toSplitLanes(load<T, B>(re + i)), toSplitLanes(load<T, B>(im + i))};
    }
    template <int B>
    [[gnu::always_inline]] void put(std::ptrdiff_t i, Split<T, B> v) const {
        store(re + i, fromSplitLanes(v.re));
        store(im + i, fromSplitLanes(v.im));
    }
    [[gnu::always_inline]] Value<T> one(std::ptrdiff_t i) const {
        return {scalarAt(re + i), scalarAt(im + i)};
    }
    [[gnu::always_inline]] void putOne(std::ptrdiff_t i, Value<T> v) const {
        putScalar(re + i, v.re);
        putScalar(im + i, v.im);
    }
};

// Between passes of the split form: two arrays, lanes as the passes have them.
template <class T>
struct Planes {
    T* re;
    T* im;
    template <int B>
    [[gnu::always_inline]] Split<T, B> get(std::ptrdiff_t i) const {
        return {opaque(load<T, B>(re + i)), opaque(load<T, B>(im + i))};
    }
    template <int B>
    [[gnu::always_inline]] void put(std::ptrdiff_t i, Split<T, B> v) const {
        store(re + i, v.re);
        store(im + i, v.im);
    }
    Planes from(std::ptrdiff_t i) const { return {re + i, im + i}; }
};

}  // namespace vlq::fft
