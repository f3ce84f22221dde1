// Specs of the fixed-point transforms: a header, followed by the spec of the floating transform
// that does the work.
#pragma once

#include "fourier/plan/lifecycle.h"

namespace vlq::fft {

// 16-bit samples. Orders 0 to 3 may run in integers and then have no floating spec.
template <class Inner>
struct FixedSpec16 {
    static constexpr std::size_t kAlignment = kTableAlignment;
    Vlq32u tag;
    Vlq32s order;
    Vlq32s fwdShift;  // normalization of the integer path: shift to the right ...
    Vlq32s invShift;
    Vlq32s halfStep;  // ... and 1 when it also multiplies by 1/sqrt(2)
    Vlq32s hint;
    Vlq32s workBytes;
    Vlq32s useFloat;  // runs on floatSpec
    Vlq32s owned;
    RelPtr<Vlq32s> bitRevTable;  // null: the constants of the integer path are in its code
    RelPtr<Vlq16s> twiddleTable;
    RelPtr<Vlq16s> realTwiddle;
    RelPtr<Inner> floatSpec;
};

// 32-bit spectra: always in floating point, which also normalizes.
template <class Inner>
struct FixedSpec32 {
    static constexpr std::size_t kAlignment = kTableAlignment;
    Vlq32u tag;
    Vlq32s order;
    Vlq32s hint;
    Vlq32s workBytes;
    Vlq32s owned;
    RelPtr<Inner> floatSpec;
};

// The integer path of the 16-bit kinds.
inline constexpr int kIntegerOrders = 3;
constexpr bool runsInIntegers(int order, VlqHint hint) {
    return order == 0 || (order <= kIntegerOrders && (hint == vlqHintNone || hint == vlqHintFast));
}

inline constexpr Vlq64s kFixedHeader = 128;  // a header and its alignment

// A fixed-point Kind names its Spec, is16, Float with the calls of the floating kind, and
// dataBytes(), the size of the floating values in the work buffer; a 16-bit one also integerWork().
// Sizes that do not fit 32 bits, at the largest orders, wrap.
template <class Kind>
VlqStatus fixedGetSize(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                       Vlq32s* initBytes, Vlq32s* workBytes) {
    using Float = typename Kind::Float;
    Vlq32s spec = 0, init = 0, work = 0;
    const bool pointers = specBytes && initBytes && workBytes;
    const VlqStatus status =
        Float::getSize(order, flag, vlqHintNone, pointers ? &spec : nullptr, &init, &work);
    if (status != vlqStsOk) return status;
    PlanSizes sizes{spec + kFixedHeader, init, work + Kind::dataBytes(order) + 64};
    if constexpr (Kind::is16) {
        sizes.init += 64;
        if (order == 0) {
            sizes = {116, 0, 0};
        } else if (runsInIntegers(order, hint)) {
            // Sized for tables of twiddles and of a bit reversal, which it does not need.
            sizes = {64 * (Kind::isReal ? 3 : 2) + kFixedHeader, 128,
                     Kind::integerWork(order) + 64};
        }
    } else if (init > 0) {
        sizes.init += 64;
    }
    *specBytes = static_cast<Vlq32s>(sizes.spec);
    *initBytes = static_cast<Vlq32s>(sizes.init);
    *workBytes = static_cast<Vlq32s>(sizes.work);
    return vlqStsOk;
}

template <class Spec>
void setShifts(Spec& spec, int order, Vlq32s flag) {
    if (flag == vlqNormFwdByN) spec.fwdShift = order;
    if (flag == vlqNormInvByN) spec.invShift = order;
    if (flag == vlqNormBySqrtN) {
        spec.fwdShift = spec.invShift = order / 2;
        spec.halfStep = order & 1;
    }
}

template <class Kind>
VlqStatus fixedInit(typename Kind::Spec** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                    Vlq8u* specMem, Vlq8u* initBuf) {
    using Float = typename Kind::Float;
    using Spec = typename Kind::Spec;
    if (!outSpec) return vlqStsNullPtr;
    if (order < 0 || order > Kind::largestOrder) return vlqStsBadOrder;
    if (!specMem) return vlqStsNullPtr;
    auto build = [&](Spec& spec, Cursor& cursor) -> VlqStatus {
        spec.hint = hint;
        spec.order = order;
        if (!isNormalization(flag)) return vlqStsBadFlag;
        if constexpr (Kind::is16) {
            setShifts(spec, order, flag);
            spec.useFloat = !runsInIntegers(order, hint);
            if (!spec.useFloat) {
                if (order > 0) spec.workBytes = static_cast<Vlq32s>(Kind::integerWork(order));
                return vlqStsOk;
            }
        }
        typename Float::Spec* inner = nullptr;
        Vlq8u* const rest = cursor.take<Vlq8u>(0, kTableAlignment);
        VlqStatus status = Float::init(&inner, order, flag, vlqHintNone, rest, initBuf);
        Vlq32s bytes = 0;
        if (status == vlqStsOk) status = Float::getBufSize(inner, &bytes);
        if (status != vlqStsOk) return status;
        const Vlq64s innerWork = bytes > 0 ? bytes - 64 : 0;
        spec.workBytes = static_cast<Vlq32s>(innerWork + Kind::dataBytes(order));
        spec.floatSpec = inner;
        return vlqStsOk;
    };
    Vlq32s specBytes = 0, initBytes = 0, workBytes = 0;
    fixedGetSize<Kind>(order, vlqNormNone, hint, &specBytes, &initBytes, &workBytes);
    return initState(outSpec, kTag<Spec>, specMem, specBytes, build);
}

template <class Kind>
VlqStatus fixedInitAlloc(typename Kind::Spec** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint) {
    if (!outSpec) return vlqStsNullPtr;
    Vlq32s specBytes, initBytes, workBytes;
    const VlqStatus status =
        fixedGetSize<Kind>(order, flag, hint, &specBytes, &initBytes, &workBytes);
    if (status != vlqStsOk) return status;
    return initAllocState(outSpec, specBytes, initBytes, [&](Vlq8u* specMem, Vlq8u* initBuf) {
        return fixedInit<Kind>(outSpec, order, flag, hint, specMem, initBuf);
    });
}

}  // namespace vlq::fft
