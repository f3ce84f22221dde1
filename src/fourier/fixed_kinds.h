// The kinds of the fixed-point FFT, and the floating transforms that they run on.
#pragma once

#include "fourier/kernel/layouts.h"
#include "fourier/plan/fixed_plan.h"
#include "vlqs/fft.h"

struct vlq::VlqsFFTSpec_C_16sc : vlq::fft::FixedSpec16<vlq::VlqsFFTSpec_C_32fc> {};
struct vlq::VlqsFFTSpec_C_16s : vlq::fft::FixedSpec16<vlq::VlqsFFTSpec_C_32f> {};
struct vlq::VlqsFFTSpec_R_16s : vlq::fft::FixedSpec16<vlq::VlqsFFTSpec_R_32f> {};
struct vlq::VlqsFFTSpec_C_32sc : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_C_64fc> {};
struct vlq::VlqsFFTSpec_C_32s : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_C_64f> {};
struct vlq::VlqsFFTSpec_R_32s : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_R_64f> {};
struct vlq::VlqsFFTSpec_R_16s32s : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_R_32f> {};

namespace vlq::fft {

template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_16sc> = 1;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_16s> = 2;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_R_16s> = 3;
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_32sc> = tag("CMAL");
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_C_32s> = tag("CMAM");
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_R_32s> = tag("CMAN");
template <>
inline constexpr Vlq32u kTag<VlqsFFTSpec_R_16s32s> = tag("CMAO");

// ---- floating kinds -----------------------------------------------------------------------------
// Planning and the transforms in place, of a real kind by Layout.
struct FloatC32fc {
    using Spec = VlqsFFTSpec_C_32fc;
    using Real = Vlq32f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_32fc;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_32fc;
    static constexpr auto forward = vlq::vlqsFFTFwd_CToC_32fc_I;
    static constexpr auto inverse = vlq::vlqsFFTInv_CToC_32fc_I;
};
struct FloatC32f {
    using Spec = VlqsFFTSpec_C_32f;
    using Real = Vlq32f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_32f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_32f;
    static constexpr auto forward = vlq::vlqsFFTFwd_CToC_32f_I;
    static constexpr auto inverse = vlq::vlqsFFTInv_CToC_32f_I;
};
struct FloatR32f {
    using Spec = VlqsFFTSpec_R_32f;
    using Real = Vlq32f;
    using Call = VlqStatus (*)(Vlq32f*, const Spec*, Vlq8u*);
    static constexpr auto getSize = vlq::vlqsFFTGetSize_R_32f;
    static constexpr auto init = vlq::vlqsFFTInit_R_32f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_R_32f;
    static constexpr Call forward[] = {vlq::vlqsFFTFwd_RToPerm_32f_I, vlq::vlqsFFTFwd_RToPack_32f_I,
                                       vlq::vlqsFFTFwd_RToCCS_32f_I};
    static constexpr Call inverse[] = {vlq::vlqsFFTInv_PermToR_32f_I, vlq::vlqsFFTInv_PackToR_32f_I,
                                       vlq::vlqsFFTInv_CCSToR_32f_I};
};
struct FloatC64fc {
    using Spec = VlqsFFTSpec_C_64fc;
    using Real = Vlq64f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_64fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_64fc;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_64fc;
    static constexpr auto forward = vlq::vlqsFFTFwd_CToC_64fc_I;
    static constexpr auto inverse = vlq::vlqsFFTInv_CToC_64fc_I;
};
struct FloatC64f {
    using Spec = VlqsFFTSpec_C_64f;
    using Real = Vlq64f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_64fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_64f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_64f;
    static constexpr auto forward = vlq::vlqsFFTFwd_CToC_64f_I;
    static constexpr auto inverse = vlq::vlqsFFTInv_CToC_64f_I;
};
struct FloatR64f {
    using Spec = VlqsFFTSpec_R_64f;
    using Real = Vlq64f;
    using Call = VlqStatus (*)(Vlq64f*, const Spec*, Vlq8u*);
    static constexpr auto getSize = vlq::vlqsFFTGetSize_R_64f;
    static constexpr auto init = vlq::vlqsFFTInit_R_64f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_R_64f;
    static constexpr Call forward[] = {vlq::vlqsFFTFwd_RToPerm_64f_I, vlq::vlqsFFTFwd_RToPack_64f_I,
                                       vlq::vlqsFFTFwd_RToCCS_64f_I};
    static constexpr Call inverse[] = {vlq::vlqsFFTInv_PermToR_64f_I, vlq::vlqsFFTInv_PackToR_64f_I,
                                       vlq::vlqsFFTInv_CCSToR_64f_I};
};
static_assert(int(Layout::perm) == 0 && int(Layout::pack) == 1 && int(Layout::ccs) == 2);

// ---- fixed-point kinds --------------------------------------------------------------------------
template <class SpecType, class FloatKind, int largest, bool real>
struct FixedKind {
    using Spec = SpecType;
    using Float = FloatKind;
    using Real = typename Float::Real;
    static constexpr int largestOrder = largest;
    static constexpr bool isReal = real;
    // The floating values in the work buffer; a real kind has room for CCS layout.
    static constexpr Vlq64s dataBytes(int order) {
        constexpr Vlq64s element = sizeof(Real);
        return real ? element * (pow2(order) + 2) : 2 * element * pow2(order);
    }
};
template <class SpecType, class FloatKind, int largest, bool real, int integerBytes>
struct Kind16 : FixedKind<SpecType, FloatKind, largest, real> {
    static constexpr bool is16 = true;
    static constexpr Vlq64s integerWork(int order) {
        return integerBytes * pow2(order) + (real ? 8 : 0);
    }
};
template <class SpecType, class FloatKind, int largest, bool real>
struct Kind32 : FixedKind<SpecType, FloatKind, largest, real> {
    static constexpr bool is16 = false;
};
using C_16sc = Kind16<VlqsFFTSpec_C_16sc, FloatC32fc, 28, false, 8>;
using C_16s = Kind16<VlqsFFTSpec_C_16s, FloatC32f, 28, false, 12>;
using R_16s = Kind16<VlqsFFTSpec_R_16s, FloatR32f, 29, true, 4>;
using C_32sc = Kind32<VlqsFFTSpec_C_32sc, FloatC64fc, 27, false>;
using C_32s = Kind32<VlqsFFTSpec_C_32s, FloatC64f, 27, false>;
using R_32s = Kind32<VlqsFFTSpec_R_32s, FloatR64f, 28, true>;
using R_16s32s = Kind32<VlqsFFTSpec_R_16s32s, FloatR32f, 29, true>;

}  // namespace vlq::fft
