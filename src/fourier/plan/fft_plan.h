// The spec of a floating power-of-two transform, complex or real: what planning leaves for the
// transforms to read.
#pragma once

#include "frame/state/state.h"
#include "vlqs/fft.h"

namespace vlq::fft {

// Every table is on a cache line of its own, and so is the spec.
inline constexpr std::size_t kTableAlignment = 64;

// Fields in one order for every kind; a table that a kind or an order does not need is null. The
// transforms sort as they go, so the bit-reversal table has a place but no user.
template <class T>
struct FloatSpec {
    static constexpr std::size_t kAlignment = kTableAlignment;
    Vlq32u tag;         // names the kind; 0 once freed
    Vlq32s order;       // N = 2^order
    Vlq32s doFwdScale;  // 1 when the forward transform multiplies by normFactor
    Vlq32s doInvScale;  // 1 when the inverse transform does
    T normFactor;
    Vlq32s hint;       // kept, never read
    Vlq32s workBytes;  // work buffer of one transform, 0 for none
    Vlq32s owned;      // 1 when the library allocated the block
    RelPtr<Vlq32s> bitRevTable;
    RelPtr<T> twiddleTable;    // of the in-cache passes
    RelPtr<T> realTwiddleFwd;  // recombination factors, real kinds
    RelPtr<T> realTwiddleInv;
    RelPtr<T> outerTwiddle[3];  // one for each level of the large-order decomposition
};

// What a size query returns, in bytes. Each nonzero size includes the slack that aligning the
// caller's memory may take.
struct PlanSizes {
    Vlq64s spec;
    Vlq64s init;  // scratch of the init call
    Vlq64s work;
};

// 2^exponent, as a length.
constexpr Vlq64s pow2(int exponent) { return Vlq64s{1} << exponent; }

// The tag of each kind: a number.
template <class Spec>
inline constexpr Vlq32u kTag = 0;

}  // namespace vlq::fft

// The split kinds have the spec of the interleaved ones, under tags of their own.
struct vlq::VlqsFFTSpec_C_32fc : vlq::fft::FloatSpec<Vlq32f> {};
struct vlq::VlqsFFTSpec_C_32f : vlq::fft::FloatSpec<Vlq32f> {};
struct vlq::VlqsFFTSpec_C_64fc : vlq::fft::FloatSpec<Vlq64f> {};
struct vlq::VlqsFFTSpec_C_64f : vlq::fft::FloatSpec<Vlq64f> {};
struct vlq::VlqsFFTSpec_R_32f : vlq::fft::FloatSpec<Vlq32f> {};
struct vlq::VlqsFFTSpec_R_64f : vlq::fft::FloatSpec<Vlq64f> {};

namespace vlq::fft {

template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_32fc> = 4;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_32f> = 5;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_R_32f> = 6;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_64fc> = 7;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_64f> = 8;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_R_64f> = 9;

}  // namespace vlq::fft
