// Sums and differences of a vector and a constant. Where a constant makes the call a copy, a fill
// or a clear, that function's body is called instead of a kernel.
#include "arith/add_constant_kernels.h"
#include "frame/loop/bulk.h"
#include "frame/loop/element_views.h"

namespace {

using namespace vlq;
using namespace vlq::add;

// Elements in a constant: one for a real constant, two for a complex one over a vector of reals.
template <class T, class C>
inline constexpr int unit = sizeof(C) / sizeof(T);

template <class Op, class T, class C>
void runScaled(const T* src, C val, T* dst, std::ptrdiff_t len, Vlq32s scaleFactor) {
    const Vec<T> constant = bitCast<T>(repeated(val));
    withScale<Op, T>(scaleFactor, [&](auto op) {
        map<unit<T, C>>(
            dst, len * unit<T, C>, [op, constant](Vec<T> x) { return op(x, constant); }, src);
    });
}

// ---- integers -----------------------------------------------------------------------------------
template <class Op, class T>
VlqStatus scaled(const T* src, T val, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (classify<Op, T>(scaleFactor) == Scaling::Vanish) return clear(dst, len);
    if (Op::leavesAt0 && val == 0 && scaleFactor == 0)
        return src == dst ? vlqStsOk : copy(src, dst, len);
    if constexpr (std::is_same_v<T, Vlq32s>) {
        if (scaleFactor <= 0) {
            withConstant<Op>(val, scaleFactor, [&](auto op) { map(dst, len, op, src); });
            return vlqStsOk;
        }
    }
    runScaled<Op>(src, val, dst, len, scaleFactor);
    return vlqStsOk;
}

// Complex constants have no shortcuts.
template <class Op, class C>
VlqStatus scaledComplex(const C* src, C val, C* dst, Vlq32s len, Vlq32s scaleFactor) {
    using T = decltype(C::re);
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (classify<Op, T>(scaleFactor) == Scaling::Vanish) return clear(dst, len);
    runScaled<Op>(reals(src), val, reals(dst), len, scaleFactor);
    return vlqStsOk;
}

// Below -7 every sum with a constant other than 0 saturates to 255.
VlqStatus sum8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (scaleFactor < -7 && val != 0) return vlqsSet_8u(255, dst, len);
    return scaled<Sum>(src, val, dst, len, scaleFactor);
}
VlqStatus reverseDifference8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                              Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (val == 0) return vlqsZero_8u(dst, len);
    return scaled<ReverseDifference>(src, val, dst, len, scaleFactor);
}

// For 16u the shortcuts come before any check, and the clear or fill makes the checks. The order is
// visible to callers: such a call never looks at src.
VlqStatus sum16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (scaleFactor < -15 && val != 0) return vlqsSet_16s(-1, reinterpret_cast<Vlq16s*>(dst), len);
    return scaled<Sum>(src, val, dst, len, scaleFactor);
}
VlqStatus reverseDifference16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    if (val == 0 || scaleFactor >= 17) return clear(dst, len);
    return scaled<ReverseDifference>(src, val, dst, len, scaleFactor);
}

// ---- floats -------------------------------------------------------------------------------------
template <class Op, class T, class C>
void runExact(const T* src, C val, T* dst, std::ptrdiff_t len) {
    const Vec<T> constant = bitCast<T>(repeated(val));
    mapStreaming<unit<T, C>>(
        dst, len * unit<T, C>, [constant](Vec<T> x) { return Op::exact(x, constant); }, src);
}

// A constant of 0, of either sign, leaves the samples as they are, -0.0 included.
template <class Op, class T>
VlqStatus exact(const T* src, T val, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (Op::leavesAt0 && val == 0) return src == dst ? vlqStsOk : copy(src, dst, len);
    runExact<Op>(src, val, dst, len);
    return vlqStsOk;
}
template <class Op, class C>
VlqStatus exactComplex(const C* src, C val, C* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    runExact<Op>(reals(src), val, reals(dst), len);
    return vlqStsOk;
}

// ---- 64-bit integers ----------------------------------------------------------------------------
template <class T>
VlqStatus sum64(const T* src, T val, T* dst, Vlq32u len, Vlq32s scaleFactor, VlqRoundMode rndMode) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len == 0) return vlqStsBadSize;
    if (val == 0 && scaleFactor == 0) {
        return vlqsCopy_64s(reinterpret_cast<const Vlq64s*>(src), reinterpret_cast<Vlq64s*>(dst),
                            static_cast<Vlq32s>(len));
    }
    const Vec<T> constant = Vec<T>::broadcast(val);
    withScaleAndRounding<T>(scaleFactor, rndMode, [&](auto op) {
        map(
            dst, static_cast<std::ptrdiff_t>(len),
            [op, constant](Vec<T> x) { return op(x, constant); }, src);
    });
    return vlqStsOk;
}

}  // namespace

// ---- src + val ----------------------------------------------------------------------------------
VlqStatus vlq::vlqsAddC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return sum8u(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return sum8u(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return sum16u(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    if (val == 0 && scaleFactor == 0) return vlqStsOk;
    return sum16u(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len) {
    return scaled<Sum>(srcDst, val, srcDst, len, 0);
}
VlqStatus vlq::vlqsAddC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled<Sum>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaledComplex<Sum>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex<Sum>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled<Sum>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaledComplex<Sum>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex<Sum>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAddC_64s_Sfs(const Vlq64s* src, Vlq64s val, Vlq64s* dst, Vlq32u len,
                                Vlq32s scaleFactor, VlqRoundMode rndMode) {
    return sum64(src, val, dst, len, scaleFactor, rndMode);
}
VlqStatus vlq::vlqsAddC_64u_Sfs(const Vlq64u* src, Vlq64u val, Vlq64u* dst, Vlq32u len,
                                Vlq32s scaleFactor, VlqRoundMode rndMode) {
    return sum64(src, val, dst, len, scaleFactor, rndMode);
}
VlqStatus vlq::vlqsAddC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    return exact<Sum>(src, val, dst, len);
}
VlqStatus vlq::vlqsAddC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    return exact<Sum>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsAddC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len) {
    return exactComplex<Sum>(src, val, dst, len);
}
VlqStatus vlq::vlqsAddC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len) {
    return exactComplex<Sum>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsAddC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val == 0) {
        // Copied as bytes, whose count wraps from 2^28 elements on.
        const auto bytes = static_cast<Vlq32s>(8 * static_cast<Vlq32u>(len));
        return vlqsCopy_8u(reinterpret_cast<const Vlq8u*>(src), reinterpret_cast<Vlq8u*>(dst),
                           bytes);
    }
    runExact<Sum>(src, val, dst, len);
    return vlqStsOk;
}
VlqStatus vlq::vlqsAddC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len) {
    return exact<Sum>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsAddC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len) {
    return exactComplex<Sum>(src, val, dst, len);
}
VlqStatus vlq::vlqsAddC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len) {
    return exactComplex<Sum>(srcDst, val, srcDst, len);
}

// ---- src - val ----------------------------------------------------------------------------------
VlqStatus vlq::vlqsSubC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Difference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled<Difference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    if (val == 0 && scaleFactor == 0) return vlqStsOk;
    return scaled<Difference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len) {
    return scaled<Difference>(srcDst, val, srcDst, len, 0);
}
VlqStatus vlq::vlqsSubC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled<Difference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaledComplex<Difference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex<Difference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled<Difference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaledComplex<Difference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex<Difference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    return exact<Difference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    return exact<Difference>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsSubC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len) {
    return exactComplex<Difference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len) {
    return exactComplex<Difference>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsSubC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len) {
    return exact<Difference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len) {
    return exact<Difference>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsSubC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len) {
    return exactComplex<Difference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len) {
    return exactComplex<Difference>(srcDst, val, srcDst, len);
}

// ---- val - src ----------------------------------------------------------------------------------
VlqStatus vlq::vlqsSubCRev_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                                  Vlq32s scaleFactor) {
    return reverseDifference8u(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return reverseDifference8u(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return reverseDifference16u(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return reverseDifference16u(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return scaled<ReverseDifference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<ReverseDifference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return scaledComplex<ReverseDifference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex<ReverseDifference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return scaled<ReverseDifference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<ReverseDifference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return scaledComplex<ReverseDifference>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex<ReverseDifference>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSubCRev_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    return exact<ReverseDifference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubCRev_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    return exact<ReverseDifference>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsSubCRev_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len) {
    return exactComplex<ReverseDifference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubCRev_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len) {
    return exactComplex<ReverseDifference>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsSubCRev_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len) {
    return exact<ReverseDifference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubCRev_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len) {
    return exact<ReverseDifference>(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsSubCRev_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len) {
    return exactComplex<ReverseDifference>(src, val, dst, len);
}
VlqStatus vlq::vlqsSubCRev_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len) {
    return exactComplex<ReverseDifference>(srcDst, val, srcDst, len);
}
