// Exponentials, logarithms and sums of logarithms.
#include "maths/explog_kernels.h"

#include "frame/loop/scan.h"
#include "frame/simd/control.h"
#include "vlqs/maths.h"

namespace {

using namespace vlq::explog;
using vlq::Block;
using vlq::StandardFloatMode;
using vlq::Vec;
using vlq::maths::Halves;
using vlq::maths::LogKind;

VlqStatus warning(Singular kind) {
    switch (kind) {
        case Singular::Zero: return vlqStsWarnLnZero;
        case Singular::Negative: return vlqStsWarnLnNegative;
        case Singular::None: break;
    }
    return vlqStsOk;
}

// Of integers; asked before a logarithm in place overwrites the vector.
template <class T>
VlqStatus warning(const T* src, Vlq32s len) {
    const auto first = vlq::findFirst(src, len, [](Vec<T> v) { return v < Vec<T>::broadcast(1); });
    return first == len ? vlqStsOk : warning(kindOf(vlq::loadScalar(src + first)));
}

// ---- e^x ----------------------------------------------------------------------------------------
template <class T>
VlqStatus exponential(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(dst, len, Exponential{}, src);
    return vlqStsOk;
}

template <class T>
VlqStatus scaledExponential(const T* src, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode mode;
    if constexpr (sizeof(T) == 2) {
        const vlq::maths::ExpRow<T, Halves::Up> row(scaleFactor);
        vlq::map(dst, len, ScaledExp16s(row), src);
    } else {
        const vlq::maths::ExpRow<T, Halves::ToEven> row(scaleFactor);
        vlq::mapScalars(dst, len, row, src);
    }
    return vlqStsOk;
}

// ---- logarithms ---------------------------------------------------------------------------------
template <class Op, class T, class D>
VlqStatus logarithm(const T* src, D* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    FirstSingular<T> first;
    vlq::mapBlocks(dst, len, Op(first), src);
    return warning(first.kind());
}

template <LogKind kind>
VlqStatus rounded(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    const StandardFloatMode mode;
    const VlqStatus status = warning(src, len);
    vlq::map(dst, len, RoundedLogarithm<kind>(scaleFactor), src);
    return status;
}
template <class T>
VlqStatus rounded16s(const T* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    const StandardFloatMode mode;
    const VlqStatus status = warning(src, len);
    vlq::mapBlocks(dst, len, NarrowRoundedLogarithm<LogKind::Natural>(scaleFactor), src);
    return status;
}
template <class T>
VlqStatus stepped(const T* src, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    const VlqStatus status = warning(src, len);
    vlq::map(dst, len, SteppedLogarithm<T>(scaleFactor), src);
    return status;
}

VlqStatus logarithm32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return scaleFactor < 0 ? rounded<LogKind::Natural>(src, dst, len, scaleFactor)
                           : stepped(src, dst, len, scaleFactor);
}
VlqStatus logarithm16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return scaleFactor < 1 ? stepped(src, dst, len, 0) : rounded16s(src, dst, len, scaleFactor);
}
VlqStatus tenTimesLog10(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return rounded<LogKind::TenTimesDecimal>(src, dst, len, scaleFactor);
}

// ---- sums of logarithms -------------------------------------------------------------------------
// Blocks are added up in order. The first singular element ends the sum and decides the result.
template <class T, class D>
VlqStatus sumLogarithms(const T* src, Vlq32s len, D* pSum) {
    if (!src || !pSum) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    constexpr Vlq32s block = 512;
    using Limits = std::numeric_limits<D>;
    Vlq64f sum = 0;
    for (Vlq32s done = 0; done < len;) {
        const Vlq32s n = std::min(block, len - done);
        const T* const p = src + done;
        // The first element that is not positive, or neither finite nor normal.
        const auto odd = vlq::findFirst(p, n, [](Vec<T> v) {
            if constexpr (std::is_integral_v<T>)
                return v < Vec<T>::broadcast(1);
            else
                return ~((v >= Vec<T>::broadcast(std::numeric_limits<T>::min())) &
                         (v <= Vec<T>::broadcast(std::numeric_limits<T>::max())));
        });
        if (odd > 0) sum += sumOfLogarithms(p, odd);
        done += static_cast<Vlq32s>(odd);
        if (odd == n) continue;
        const T element = vlq::loadScalar(p + odd);
        if (const VlqStatus status = warning(kindOf(element)); status != vlqStsOk) {
            // Plus infinity for a logarithm of zero is the interface's choice.
            vlq::storeScalar(
                pSum, status == vlqStsWarnLnZero ? Limits::infinity() : -Limits::quiet_NaN());
            return status;
        }
        if (element != element) {
            vlq::storeScalar(pSum, -Limits::quiet_NaN());
            return vlqStsOk;
        }
        // Infinite or subnormal.
        sum += vlq::math::ln(Vec<Vlq64f>::broadcast(static_cast<Vlq64f>(element)))[0];
        ++done;
    }
    vlq::storeScalar(pSum, static_cast<D>(sum));
    return vlqStsOk;
}

}  // namespace

// ---- e^x ----------------------------------------------------------------------------------------
VlqStatus vlq::vlqsExp_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledExponential(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsExp_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledExponential(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsExp_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledExponential(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsExp_32s_ISfs(Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledExponential(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsExp_64s_Sfs(const Vlq64s* src, Vlq64s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledExponential(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsExp_64s_ISfs(Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledExponential(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsExp_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return exponential(src, dst, len);
}
VlqStatus vlq::vlqsExp_32f_I(Vlq32f* srcDst, Vlq32s len) {
    return exponential(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsExp_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return exponential(src, dst, len);
}
VlqStatus vlq::vlqsExp_64f_I(Vlq64f* srcDst, Vlq32s len) {
    return exponential(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsExp_32f64f(const Vlq32f* src, Vlq64f* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    mapBlocks(dst, len, WideExponential{}, src);
    return vlqStsOk;
}

// ---- logarithms ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsLn_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return logarithm16s(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsLn_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return logarithm16s(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsLn_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return logarithm32s(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsLn_32s_ISfs(Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return logarithm32s(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsLn_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return rounded16s(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsLn_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return logarithm<Logarithm<Vlq32f>>(src, dst, len);
}
VlqStatus vlq::vlqsLn_32f_I(Vlq32f* srcDst, Vlq32s len) {
    return logarithm<Logarithm<Vlq32f>>(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsLn_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return logarithm<Logarithm<Vlq64f>>(src, dst, len);
}
VlqStatus vlq::vlqsLn_64f_I(Vlq64f* srcDst, Vlq32s len) {
    return logarithm<Logarithm<Vlq64f>>(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsLn_64f32f(const Vlq64f* src, Vlq32f* dst, Vlq32s len) {
    return logarithm<NarrowLogarithm>(src, dst, len);
}
VlqStatus vlq::vlqs10Log10_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return tenTimesLog10(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqs10Log10_32s_ISfs(Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return tenTimesLog10(srcDst, srcDst, len, scaleFactor);
}

// ---- sums of logarithms -------------------------------------------------------------------------
VlqStatus vlq::vlqsSumLn_16s32f(const Vlq16s* src, Vlq32s len, Vlq32f* pSum) {
    return sumLogarithms(src, len, pSum);
}
VlqStatus vlq::vlqsSumLn_32f(const Vlq32f* src, Vlq32s len, Vlq32f* pSum) {
    return sumLogarithms(src, len, pSum);
}
VlqStatus vlq::vlqsSumLn_32f64f(const Vlq32f* src, Vlq32s len, Vlq64f* pSum) {
    return sumLogarithms(src, len, pSum);
}
VlqStatus vlq::vlqsSumLn_64f(const Vlq64f* src, Vlq32s len, Vlq64f* pSum) {
    return sumLogarithms(src, len, pSum);
}
