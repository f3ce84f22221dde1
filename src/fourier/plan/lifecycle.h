// Planning calls of the floating transforms, the same for every kind. A Kind names the type of the
// spec, its element, its tag and the largest order, and provides sizes() and build() of its tables.
#pragma once

#include <cmath>
#include <new>

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
    const T n = static_cast<T>(powerOfTwo(order));
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
    Cursor cursor(specMem, Kind::sizes(order).spec);
    Spec* spec = ::new (cursor.take<Spec>(1, kTableAlignment)) Spec{};
    spec->hint = hint;
    spec->order = order;
    if (!isNormalization(flag)) return vlqStsBadFlag;
    if (order > kConstantSineOrder && !initBuf) return vlqStsNullPtr;
    setNormalization(*spec, order, flag);
    T* scratch = initBuf ? reinterpret_cast<T*>(alignUp(initBuf, kTableAlignment)) : nullptr;
    Kind::build(*spec, order, sineTable<T>(order, scratch), cursor);
    spec->ident = Kind::ident;
    *outSpec = spec;
    return vlqStsOk;
}

// A spec in a block of its own, by the size query and the init call of its kind.
template <class Spec, class GetSize, class Init>
VlqStatus allocateAndInit(Spec** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                          GetSize getSizeOfKind, Init initOfKind) {
    if (!outSpec) return vlqStsNullPtr;
    Vlq32s specBytes, initBytes, workBytes;
    VlqStatus status = getSizeOfKind(order, flag, hint, &specBytes, &initBytes, &workBytes);
    if (status != vlqStsOk) return status;
    Vlq8u* block = vlqsMalloc_8u(specBytes);
    if (!block) return vlqStsNoMemory;
    Vlq8u* scratch = nullptr;
    if (initBytes > 0 && !(scratch = vlqsMalloc_8u(initBytes))) {
        vlqsFree(block);
        return vlqStsNoMemory;
    }
    status = initOfKind(outSpec, order, flag, hint, block, scratch);
    if (scratch) vlqsFree(scratch);
    if (status == vlqStsOk)
        (*outSpec)->owned = 1;
    else
        vlqsFree(block);
    return status;
}

template <class Kind>
VlqStatus initAlloc(typename Kind::Spec** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint) {
    auto sizes = [](Vlq32s n, Vlq32s f, VlqHint, Vlq32s* spec, Vlq32s* scratch, Vlq32s* work) {
        return getSize<Kind>(n, f, spec, scratch, work);
    };
    return allocateAndInit(outSpec, order, flag, hint, sizes, init<Kind>);
}

template <class Kind>
VlqStatus getBufSize(const typename Kind::Spec* spec, Vlq32s* bufBytes) {
    if (!spec || !bufBytes) return vlqStsNullPtr;
    if (spec->ident != Kind::ident) return vlqStsBadSpec;
    *bufBytes = spec->workBytes > 0 ? spec->workBytes + 64 : 0;
    return vlqStsOk;
}

template <class Kind>
VlqStatus release(typename Kind::Spec* spec) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != Kind::ident) return vlqStsBadSpec;
    spec->ident = 0;
    if (spec->owned == 1) vlqsFree(spec);
    return vlqStsOk;
}

}  // namespace vlq::fft
