// Planning calls of the floating transforms, the same for every kind. A Kind names the type of the
// spec, its element and the largest order, and provides sizes() and build() of its tables.
#pragma once

#include <cmath>

#include "fourier/plan/fft_plan.h"
#include "fourier/plan/twiddles.h"

namespace vlq::fft {

constexpr bool isNormalization(Vlq32s flag) {
    return flag == vlqNormFwdByN || flag == vlqNormInvByN || flag == vlqNormBySqrtN ||
           flag == vlqNormNone;
}

// Sets the fields of a cleared spec; flag is one of the four. The factors are exact but for
// 1/sqrt(N) of an odd order.
template <class T>
void setNormalization(FloatSpec<T>& spec, int order, Vlq32s flag) {
    const T n = static_cast<T>(pow2(order));
    spec.doFwdScale = flag == vlqNormFwdByN || flag == vlqNormBySqrtN;
    spec.doInvScale = flag == vlqNormInvByN || flag == vlqNormBySqrtN;
    if (flag != vlqNormNone) spec.normFactor = T(1) / (flag == vlqNormBySqrtN ? std::sqrt(n) : n);
}

template <class Kind>
VlqStatus getSize(Vlq32s order, Vlq32s flag, Vlq32s* specBytes, Vlq32s* initBytes,
                  Vlq32s* workBytes) {
    if (static_cast<Vlq32u>(order) > 30) return vlqStsBadOrder;
    if (!specBytes || !initBytes || !workBytes) return vlqStsNullPtr;
    if (!isNormalization(flag)) return vlqStsBadFlag;
    if (order > Kind::largestOrder) return vlqStsBadOrder;
    const PlanSizes sizes = Kind::sizes(order);
    *specBytes = static_cast<Vlq32s>(sizes.spec);
    *initBytes = static_cast<Vlq32s>(sizes.init);
    *workBytes = static_cast<Vlq32s>(sizes.work);
    return vlqStsOk;
}

template <class Kind>
VlqStatus init(typename Kind::Spec** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
               Vlq8u* specMem, Vlq8u* initBuf) {
    using T = typename Kind::Element;
    using Spec = typename Kind::Spec;
    if (!outSpec) return vlqStsNullPtr;
    if (order < 0 || order > Kind::largestOrder) return vlqStsBadOrder;
    if (!specMem) return vlqStsNullPtr;
    auto build = [&](Spec& spec, Cursor& cursor) -> VlqStatus {
        spec.hint = hint;
        spec.order = order;
        if (!isNormalization(flag)) return vlqStsBadFlag;
        if (order > kConstantSineOrder && !initBuf) return vlqStsNullPtr;
        setNormalization(spec, order, flag);
        T* scratch = initBuf ? reinterpret_cast<T*>(alignUp(initBuf, kTableAlignment)) : nullptr;
        Kind::build(spec, order, sineTable<T>(order, scratch), cursor);
        return vlqStsOk;
    };
    return initState(outSpec, kTag<Spec>, specMem, Kind::sizes(order).spec, build);
}

template <class Kind>
VlqStatus initAlloc(typename Kind::Spec** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint) {
    if (!outSpec) return vlqStsNullPtr;
    Vlq32s specBytes, initBytes, workBytes;
    const VlqStatus status = getSize<Kind>(order, flag, &specBytes, &initBytes, &workBytes);
    if (status != vlqStsOk) return status;
    return initAllocState(outSpec, specBytes, initBytes, [&](Vlq8u* specMem, Vlq8u* initBuf) {
        return init<Kind>(outSpec, order, flag, hint, specMem, initBuf);
    });
}

template <class Spec>
VlqStatus getBufSize(const Spec* spec, Vlq32s* bufBytes) {
    if (!spec || !bufBytes) return vlqStsNullPtr;
    if (spec->tag != kTag<Spec>) return vlqStsBadSpec;
    *bufBytes = spec->workBytes > 0 ? spec->workBytes + 64 : 0;
    return vlqStsOk;
}

template <class Spec>
VlqStatus release(Spec* spec) {
    return freeAndClear<kTag<Spec>>(spec);
}

}  // namespace vlq::fft
