// De-interleaved complex values: vectors of real and of imaginary parts. Which value of a run is in
// which lane (splitLane) depends on the build: the order that needs the fewest shuffles.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

template <class T, int B = kVecBytes>
struct Split {
    static constexpr int lanes = Vec<T, B>::lanes;
    Vec<T, B> re;
    Vec<T, B> im;
};

// Lane i holds value number splitLane<T, B>(i) of a run, counted from its first value by
// loadSplit, from its last one by loadSplitBackward.
template <class T, int B = kVecBytes>
constexpr int splitLane(int lane) {
    constexpr int each = 16 / static_cast<int>(sizeof(T));  // lanes to 16 bytes
    constexpr int pairs = each / 2;                         // whole values in 16 bytes
    constexpr int half = Vec<T, B>::lanes / 2;
    if constexpr (B == 16)
        return lane;
    else
        return lane / each * pairs + lane % each % pairs + (lane % each >= pairs ? half : 0);
}

// ---- 16 bytes -----------------------------------------------------------------------------------
namespace detail {

using F4 = Vec<float, 16>;
using D2 = Vec<double, 16>;
inline Split<float, 16> split(F4 a, F4 b) {
    return {F4(_mm_shuffle_ps(a.raw, b.raw, _MM_SHUFFLE(2, 0, 2, 0))),
            F4(_mm_shuffle_ps(a.raw, b.raw, _MM_SHUFFLE(3, 1, 3, 1)))};
}
inline Split<float, 16> splitBackward(F4 a, F4 b) {
    return {F4(_mm_shuffle_ps(b.raw, a.raw, _MM_SHUFFLE(0, 2, 0, 2))),
            F4(_mm_shuffle_ps(b.raw, a.raw, _MM_SHUFFLE(1, 3, 1, 3)))};
}
inline void join(Split<float, 16> v, F4& a, F4& b) {
    a = F4(_mm_unpacklo_ps(v.re.raw, v.im.raw));
    b = F4(_mm_unpackhi_ps(v.re.raw, v.im.raw));
}
inline void joinBackward(Split<float, 16> v, F4& a, F4& b) {
    join(v, b, a);
    a = F4(_mm_shuffle_ps(a.raw, a.raw, _MM_SHUFFLE(1, 0, 3, 2)));
    b = F4(_mm_shuffle_ps(b.raw, b.raw, _MM_SHUFFLE(1, 0, 3, 2)));
}
inline Split<double, 16> split(D2 a, D2 b) {
    return {D2(_mm_unpacklo_pd(a.raw, b.raw)), D2(_mm_unpackhi_pd(a.raw, b.raw))};
}
inline Split<double, 16> splitBackward(D2 a, D2 b) { return split(b, a); }
inline void join(Split<double, 16> v, D2& a, D2& b) {
    a = D2(_mm_unpacklo_pd(v.re.raw, v.im.raw));
    b = D2(_mm_unpackhi_pd(v.re.raw, v.im.raw));
}
inline void joinBackward(Split<double, 16> v, D2& a, D2& b) { join(v, b, a); }

// ---- 32 bytes -----------------------------------------------------------------------------------
#if VLQ_SIMD_BYTES >= 32
using F8 = Vec<float, 32>;
using D4 = Vec<double, 32>;
// Whole values (float) or 16-byte halves (double) from last to first.
inline F8 reverseValues(F8 v) {
    return F8(
        _mm256_castpd_ps(_mm256_permute4x64_pd(_mm256_castps_pd(v.raw), _MM_SHUFFLE(0, 1, 2, 3))));
}
inline D4 reverseValues(D4 v) { return D4(_mm256_permute4x64_pd(v.raw, _MM_SHUFFLE(1, 0, 3, 2))); }
inline Split<float, 32> split(F8 a, F8 b) {
    return {F8(_mm256_shuffle_ps(a.raw, b.raw, _MM_SHUFFLE(2, 0, 2, 0))),
            F8(_mm256_shuffle_ps(a.raw, b.raw, _MM_SHUFFLE(3, 1, 3, 1)))};
}
inline void join(Split<float, 32> v, F8& a, F8& b) {
    a = F8(_mm256_unpacklo_ps(v.re.raw, v.im.raw));
    b = F8(_mm256_unpackhi_ps(v.re.raw, v.im.raw));
}
inline Split<double, 32> split(D4 a, D4 b) {
    return {D4(_mm256_unpacklo_pd(a.raw, b.raw)), D4(_mm256_unpackhi_pd(a.raw, b.raw))};
}
inline void join(Split<double, 32> v, D4& a, D4& b) {
    a = D4(_mm256_unpacklo_pd(v.re.raw, v.im.raw));
    b = D4(_mm256_unpackhi_pd(v.re.raw, v.im.raw));
}
template <class T>
inline Split<T, 32> splitBackward(Vec<T, 32> a, Vec<T, 32> b) {
    return split(reverseValues(b), reverseValues(a));
}
template <class T>
inline void joinBackward(Split<T, 32> v, Vec<T, 32>& a, Vec<T, 32>& b) {
    join(v, b, a);
    a = reverseValues(a);
    b = reverseValues(b);
}
#endif

// ---- 64 bytes -----------------------------------------------------------------------------------
#if VLQ_SIMD_BYTES >= 64
using F16 = Vec<float, 64>;
using D8 = Vec<double, 64>;
inline Split<float, 64> split(F16 a, F16 b) {
    return {F16(_mm512_shuffle_ps(a.raw, b.raw, _MM_SHUFFLE(2, 0, 2, 0))),
            F16(_mm512_shuffle_ps(a.raw, b.raw, _MM_SHUFFLE(3, 1, 3, 1)))};
}
inline void join(Split<float, 64> v, F16& a, F16& b) {
    a = F16(_mm512_unpacklo_ps(v.re.raw, v.im.raw));
    b = F16(_mm512_unpackhi_ps(v.re.raw, v.im.raw));
}
inline Split<double, 64> split(D8 a, D8 b) {
    return {D8(_mm512_unpacklo_pd(a.raw, b.raw)), D8(_mm512_unpackhi_pd(a.raw, b.raw))};
}
inline void join(Split<double, 64> v, D8& a, D8& b) {
    a = D8(_mm512_unpacklo_pd(v.re.raw, v.im.raw));
    b = D8(_mm512_unpackhi_pd(v.re.raw, v.im.raw));
}
// One two-source permutation separates the parts and reverses their order; bit 4 (3) of an index
// selects the second source.
inline Split<float, 64> splitBackward(F16 a, F16 b) {
    const __m512i re = _mm512_setr_epi32(30, 28, 14, 12, 26, 24, 10, 8, 22, 20, 6, 4, 18, 16, 2, 0);
    const __m512i im = _mm512_setr_epi32(31, 29, 15, 13, 27, 25, 11, 9, 23, 21, 7, 5, 19, 17, 3, 1);
    return {F16(_mm512_permutex2var_ps(a.raw, re, b.raw)),
            F16(_mm512_permutex2var_ps(a.raw, im, b.raw))};
}
inline void joinBackward(Split<float, 64> v, F16& a, F16& b) {
    const __m512i last =
        _mm512_setr_epi32(15, 31, 14, 30, 11, 27, 10, 26, 7, 23, 6, 22, 3, 19, 2, 18);
    const __m512i first =
        _mm512_setr_epi32(13, 29, 12, 28, 9, 25, 8, 24, 5, 21, 4, 20, 1, 17, 0, 16);
    a = F16(_mm512_permutex2var_ps(v.re.raw, last, v.im.raw));
    b = F16(_mm512_permutex2var_ps(v.re.raw, first, v.im.raw));
}
inline Split<double, 64> splitBackward(D8 a, D8 b) {
    const __m512i re = _mm512_setr_epi64(14, 6, 12, 4, 10, 2, 8, 0);
    const __m512i im = _mm512_setr_epi64(15, 7, 13, 5, 11, 3, 9, 1);
    return {D8(_mm512_permutex2var_pd(a.raw, re, b.raw)),
            D8(_mm512_permutex2var_pd(a.raw, im, b.raw))};
}
inline void joinBackward(Split<double, 64> v, D8& a, D8& b) {
    const __m512i last = _mm512_setr_epi64(7, 15, 5, 13, 3, 11, 1, 9);
    const __m512i first = _mm512_setr_epi64(6, 14, 4, 12, 2, 10, 0, 8);
    a = D8(_mm512_permutex2var_pd(v.re.raw, last, v.im.raw));
    b = D8(_mm512_permutex2var_pd(v.re.raw, first, v.im.raw));
}
#endif

}  // namespace detail

// ---- memory -------------------------------------------------------------------------------------
// A run of Split::lanes complex values that begins at p, any alignment.
template <class T, int B = kVecBytes>
inline Split<T, B> loadSplit(const T* p) {
    return detail::split(load<T, B>(p), load<T, B>(p + Vec<T, B>::lanes));
}
template <class T, int B>
inline void storeSplit(T* p, Split<T, B> v) {
    Vec<T, B> a, b;
    detail::join(v, a, b);
    store(p, a);
    store(p + Vec<T, B>::lanes, b);
}
// Lanes of two 16-byte vectors: the first of `next`, then those of v from its last to its second.
// Where next follows v in memory, these are the lanes from next[0] backwards.
inline Vec<float, 16> backwardAcross(Vec<float, 16> v, Vec<float, 16> next) {
    return Vec<float, 16>(
        _mm_move_ss(_mm_shuffle_ps(v.raw, v.raw, _MM_SHUFFLE(1, 2, 3, 0)), next.raw));
}
inline Vec<double, 16> backwardAcross(Vec<double, 16> v, Vec<double, 16> next) {
    return Vec<double, 16>(_mm_move_sd(v.raw, next.raw));
}
// v with the first lane of `other`.
inline Vec<float, 16> withFirst(Vec<float, 16> v, Vec<float, 16> other) {
    return Vec<float, 16>(_mm_move_ss(v.raw, other.raw));
}
inline Vec<double, 16> withFirst(Vec<double, 16> v, Vec<double, 16> other) {
    return Vec<double, 16>(_mm_move_sd(v.raw, other.raw));
}

// Of two adjacent runs, both as loadSplit loads them, the run that begins one value later.
inline Vec<float, 16> laterRun(Vec<float, 16> v, Vec<float, 16> next) {
    const __m128 mixed = withFirst(v, next).raw;
    return Vec<float, 16>(_mm_shuffle_ps(mixed, mixed, _MM_SHUFFLE(0, 3, 2, 1)));
}
inline Vec<double, 16> laterRun(Vec<double, 16> v, Vec<double, 16> next) {
    return Vec<double, 16>(_mm_shuffle_pd(v.raw, next.raw, 1));
}
// A run's values, its last one first and the others behind it: with the first value of another
// such vector (withFirst) the run that begins one value earlier.
inline Vec<float, 16> lastToFront(Vec<float, 16> v) {
    return Vec<float, 16>(_mm_shuffle_ps(v.raw, v.raw, _MM_SHUFFLE(2, 1, 0, 3)));
}
inline Vec<double, 16> lastToFront(Vec<double, 16> v) {
    return Vec<double, 16>(_mm_shuffle_pd(v.raw, v.raw, 1));
}
// The run from its last value to its first.
inline Vec<float, 16> reverseRun(Vec<float, 16> v) {
    return Vec<float, 16>(_mm_shuffle_ps(v.raw, v.raw, _MM_SHUFFLE(0, 1, 2, 3)));
}
inline Vec<double, 16> reverseRun(Vec<double, 16> v) { return lastToFront(v); }
#if VLQ_SIMD_BYTES >= 32
inline Vec<float, 32> withFirst(Vec<float, 32> v, Vec<float, 32> other) {
    return Vec<float, 32>(_mm256_blend_ps(v.raw, other.raw, 1));
}
inline Vec<double, 32> withFirst(Vec<double, 32> v, Vec<double, 32> other) {
    return Vec<double, 32>(_mm256_blend_pd(v.raw, other.raw, 1));
}
inline Vec<float, 32> laterRun(Vec<float, 32> v, Vec<float, 32> next) {
    return Vec<float, 32>(_mm256_permutevar8x32_ps(withFirst(v, next).raw,
                                                   _mm256_setr_epi32(1, 4, 3, 6, 5, 2, 7, 0)));
}
inline Vec<double, 32> laterRun(Vec<double, 32> v, Vec<double, 32> next) {
    return Vec<double, 32>(_mm256_permute4x64_pd(withFirst(v, next).raw, _MM_SHUFFLE(0, 1, 3, 2)));
}
inline Vec<float, 32> lastToFront(Vec<float, 32> v) {
    return Vec<float, 32>(
        _mm256_permutevar8x32_ps(v.raw, _mm256_setr_epi32(7, 0, 5, 2, 1, 4, 3, 6)));
}
inline Vec<double, 32> lastToFront(Vec<double, 32> v) {
    return Vec<double, 32>(_mm256_permute4x64_pd(v.raw, _MM_SHUFFLE(1, 0, 2, 3)));
}
inline Vec<float, 32> reverseRun(Vec<float, 32> v) {
    return Vec<float, 32>(
        _mm256_permutevar8x32_ps(v.raw, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0)));
}
inline Vec<double, 32> reverseRun(Vec<double, 32> v) {
    return Vec<double, 32>(_mm256_permute4x64_pd(v.raw, _MM_SHUFFLE(0, 1, 2, 3)));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<float, 64> withFirst(Vec<float, 64> v, Vec<float, 64> other) {
    return Vec<float, 64>(_mm512_mask_mov_ps(v.raw, 1, other.raw));
}
inline Vec<double, 64> withFirst(Vec<double, 64> v, Vec<double, 64> other) {
    return Vec<double, 64>(_mm512_mask_mov_pd(v.raw, 1, other.raw));
}
inline Vec<float, 64> laterRun(Vec<float, 64> v, Vec<float, 64> next) {
    const __m512i from = _mm512_setr_epi32(1, 4, 3, 6, 5, 8, 7, 10, 9, 12, 11, 14, 13, 2, 15, 16);
    return Vec<float, 64>(_mm512_permutex2var_ps(v.raw, from, next.raw));
}
inline Vec<double, 64> laterRun(Vec<double, 64> v, Vec<double, 64> next) {
    const __m512i from = _mm512_setr_epi64(2, 3, 4, 5, 6, 7, 1, 8);
    return Vec<double, 64>(_mm512_permutex2var_pd(v.raw, from, next.raw));
}
inline Vec<float, 64> lastToFront(Vec<float, 64> v) {
    const __m512i from = _mm512_setr_epi32(15, 0, 13, 2, 1, 4, 3, 6, 5, 8, 7, 10, 9, 12, 11, 14);
    return Vec<float, 64>(_mm512_permutexvar_ps(from, v.raw));
}
inline Vec<double, 64> lastToFront(Vec<double, 64> v) {
    return Vec<double, 64>(_mm512_permutexvar_pd(_mm512_setr_epi64(7, 6, 0, 1, 2, 3, 4, 5), v.raw));
}
inline Vec<float, 64> reverseRun(Vec<float, 64> v) {
    const __m512i from = _mm512_setr_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
    return Vec<float, 64>(_mm512_permutexvar_ps(from, v.raw));
}
inline Vec<double, 64> reverseRun(Vec<double, 64> v) {
    return Vec<double, 64>(_mm512_permutexvar_pd(_mm512_setr_epi64(7, 6, 5, 4, 3, 2, 1, 0), v.raw));
}
#endif

// The run from its last value to its first: lane by lane the mirror image of a forward run.
template <class T, int B = kVecBytes>
inline Split<T, B> loadSplitBackward(const T* p) {
    return detail::splitBackward(load<T, B>(p), load<T, B>(p + Vec<T, B>::lanes));
}
template <class T, int B>
inline void storeSplitBackward(T* p, Split<T, B> v) {
    Vec<T, B> a, b;
    detail::joinBackward(v, a, b);
    store(p, a);
    store(p + Vec<T, B>::lanes, b);
}

// ---- lanes --------------------------------------------------------------------------------------
// From memory order to splitLane order and back, for parts in separate arrays.
template <class T>
inline Vec<T, 16> toSplitLanes(Vec<T, 16> v) {
    return v;
}
template <class T>
inline Vec<T, 16> fromSplitLanes(Vec<T, 16> v) {
    return v;
}
#if VLQ_SIMD_BYTES >= 32
template <class T>
inline Vec<T, 32> toSplitLanes(Vec<T, 32> v) {
    return fromRegister<T>(_mm256_permute4x64_epi64(asInt(v), _MM_SHUFFLE(3, 1, 2, 0)));
}
template <class T>
inline Vec<T, 32> fromSplitLanes(Vec<T, 32> v) {
    return toSplitLanes(v);
}
#endif
#if VLQ_SIMD_BYTES >= 64
template <class T>
inline Vec<T, 64> toSplitLanes(Vec<T, 64> v) {
    return fromRegister<T>(
        _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 4, 1, 5, 2, 6, 3, 7), asInt(v)));
}
template <class T>
inline Vec<T, 64> fromSplitLanes(Vec<T, 64> v) {
    return fromRegister<T>(
        _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), asInt(v)));
}
#endif

}  // namespace vlq
