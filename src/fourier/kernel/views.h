// How a pass accesses its data: complex value number i and those after it as one vector. All views
// keep their lanes in splitLane order, so that a pass never shuffles. Data may have any address.
#pragma once

#include <cstddef>
#include <type_traits>

#include "frame/simd/split.h"

namespace vlq::fft {

// One complex value.
template <class T>
struct Value {
    T re;
    T im;
};

// The caller's interleaved values; `exchanged` swaps the real and imaginary part of each.
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
        return {loadScalar(p + 2 * i + exchanged), loadScalar(p + 2 * i + !exchanged)};
    }
    [[gnu::always_inline]] void putOne(std::ptrdiff_t i, Value<T> v) const {
        storeScalar(p + 2 * i + exchanged, v.re);
        storeScalar(p + 2 * i + !exchanged, v.im);
    }
};

// Between passes: a vector of real parts, then one of imaginary parts. `exchanged` as above, where
// the first pass of a transform reads what another one has left in blocks. Loaded vectors are
// opaque: the compiler would load them again for each use and run out of load ports.
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
        return {loadScalar(re + i), loadScalar(im + i)};
    }
    [[gnu::always_inline]] void putOne(std::ptrdiff_t i, Value<T> v) const {
        storeScalar(re + i, v.re);
        storeScalar(im + i, v.im);
    }
};

// Between passes of the split kinds: two arrays, in splitLane order.
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
