// Two vectors of interleaved complex values as a vector of either part, and back; all in memory
// order.
#pragma once

#include "frame/simd/multiply.h"
#include "frame/simd/split.h"

namespace vlq {

#if VLQ_SIMD_BYTES == 64
namespace detail {
inline Vec<float> pickLanes(Vec<float> a, Vec<float> b, __m512i index) {
    return Vec<float>(_mm512_permutex2var_ps(a.raw, index, b.raw));
}
inline Vec<double> pickLanes(Vec<double> a, Vec<double> b, __m512i index) {
    return Vec<double>(_mm512_permutex2var_pd(a.raw, index, b.raw));
}
// Lane i of the result is lane index(i) of the two vectors together.
template <class T, class Index>
inline Vec<T> pick(Vec<T> a, Vec<T> b, Index index) {
    alignas(64) BitsOf<T> lanes[Vec<T>::lanes];
    for (int i = 0; i < Vec<T>::lanes; ++i) lanes[i] = static_cast<BitsOf<T>>(index(i));
    return pickLanes(a, b, asInt(loadAligned(lanes)));
}
}  // namespace detail
#endif

template <class T>
inline Split<T> deinterleave(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_integral_v<T>) {
        static_assert(sizeof(T) == 4);
        const auto v = deinterleave(bitCast<float>(a), bitCast<float>(b));
        return {bitCast<T>(v.re), bitCast<T>(v.im)};
    } else {
#if VLQ_SIMD_BYTES == 64
        return {detail::pick(a, b, [](int i) { return 2 * i; }),
                detail::pick(a, b, [](int i) { return 2 * i + 1; })};
#else
        const auto v = detail::split(a, b);
        return {fromSplitLanes(v.re), fromSplitLanes(v.im)};
#endif
    }
}
template <class T>
inline Block<T, 2> interleave(Split<T> v) {
    if constexpr (std::is_integral_v<T>) {
        static_assert(sizeof(T) == 4);
        const auto pairs = interleave(Split<float>{bitCast<float>(v.re), bitCast<float>(v.im)});
        return {{bitCast<T>(pairs.part[0]), bitCast<T>(pairs.part[1])}};
    } else {
        Block<T, 2> pairs;
#if VLQ_SIMD_BYTES == 64
        constexpr int lanes = Vec<T>::lanes;
        pairs.part[0] = detail::pick(v.re, v.im, [](int i) { return i / 2 + i % 2 * lanes; });
        pairs.part[1] =
            detail::pick(v.re, v.im, [](int i) { return (i + lanes) / 2 + i % 2 * lanes; });
#else
        detail::join(v, pairs.part[0], pairs.part[1]);
        pairs = inMemoryOrder(pairs);
#endif
        return pairs;
    }
}

// Parts of 16 bits: an interleaved value is a lane of 32.
inline Block<std::int32_t, 2> interleave(Vec<std::int16_t> re, Vec<std::int16_t> im) {
    return inMemoryOrder(detail::unpackWords<std::int32_t>(asInt(re), asInt(im)));
}
inline Vec<std::int32_t> realPart16(Vec<std::int32_t> v) {
    return shiftRight(shiftLeft(v, 16), 16);
}
inline Vec<std::int32_t> imaginaryPart16(Vec<std::int32_t> v) { return shiftRight(v, 16); }

}  // namespace vlq
