// The records of the floating power-of-two transforms by their names, and the words that name their
// kinds.
#pragma once

#include "fourier/plan/fft_plan.h"
#include "vlqs/fft.h"

// The split kinds have the interleaved record under a word of their own.
struct vlq::VlqsFFTSpec_C_32fc : vlq::fft::FloatingRecord<Vlq32f> {};
struct vlq::VlqsFFTSpec_C_32f : vlq::fft::FloatingRecord<Vlq32f> {};
struct vlq::VlqsFFTSpec_C_64fc : vlq::fft::FloatingRecord<Vlq64f> {};
struct vlq::VlqsFFTSpec_C_64f : vlq::fft::FloatingRecord<Vlq64f> {};
struct vlq::VlqsFFTSpec_R_32f : vlq::fft::FloatingRecord<Vlq32f> {};
struct vlq::VlqsFFTSpec_R_64f : vlq::fft::FloatingRecord<Vlq64f> {};

namespace vlq::fft {

template <class Spec>
inline constexpr Vlq32s kWord = 0;
template <>
inline constexpr Vlq32s kWord<VlqsFFTSpec_C_32fc> = 4;
template <>
inline constexpr Vlq32s kWord<VlqsFFTSpec_C_32f> = 5;
template <>
inline constexpr Vlq32s kWord<VlqsFFTSpec_R_32f> = 6;
template <>
inline constexpr Vlq32s kWord<VlqsFFTSpec_C_64fc> = 7;
template <>
inline constexpr Vlq32s kWord<VlqsFFTSpec_C_64f> = 8;
template <>
inline constexpr Vlq32s kWord<VlqsFFTSpec_R_64f> = 9;

}  // namespace vlq::fft
