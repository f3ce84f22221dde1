// Filtering by transforms: choice of the method by order.
#include "fourier/convolver.h"

#include <cstring>

#include "fourier/convolver_kernels.h"
#include "fourier/kernel/regimes.h"
#include "fourier/plan/complex_plan.h"
#include "fourier/plan/fft_passes.h"
#include "vlqs/arith.h"

namespace {

using namespace vlq;
using namespace vlq::fft;

VlqStatus forwardPerm(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlqsFFTFwd_RToPerm_32f(src, dst, spec, buf);
}
VlqStatus forwardPerm(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlqsFFTFwd_RToPerm_64f(src, dst, spec, buf);
}
VlqStatus inversePerm(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlqsFFTInv_PermToR_32f(src, dst, spec, buf);
}
VlqStatus inversePerm(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlqsFFTInv_PermToR_64f(src, dst, spec, buf);
}
void multiplyPerm(const Vlq32f* src, Vlq32f* srcDst, int len) {
    vlqsMulPerm_32f_I(src, srcDst, len);
}
void multiplyPerm(const Vlq64f* src, Vlq64f* srcDst, int len) {
    vlqsMulPerm_64f_I(src, srcDst, len);
}
void multiply(const Vlq32fc* src, Vlq32fc* srcDst, int len) { vlqsMul_32fc_I(src, srcDst, len); }
void multiply(const Vlq64fc* src, Vlq64fc* srcDst, int len) { vlqsMul_64fc_I(src, srcDst, len); }

// Whether the product of the spectra and the recombinations before and after it run as one pass: at
// orders with tables for the half-length transform and one recombination factor for each value.
template <class T>
bool isOnePass(int order) {
    return order >= RealLimits<T>::complexTables && order < RealLimits<T>::twoLevel;
}

// Whether the complex transform of an order can leave its values in blocks of full-width vectors.
template <class T>
bool isInBlocks(int order) {
    return order > ComplexLimits<T>::straightLine && order <= ComplexLimits<T>::inCache &&
           passPlan<T>(order).bytes == kVecBytes;
}

template <class T, class Spec>
VlqStatus makeReal(T* response, T* filter, const Spec* spec, Vlq8u* buf) {
    const VlqStatus status = forwardPerm(response, response, spec, buf);
    if (status != vlqStsOk) return status;
    if (isOnePass<T>(spec->order))
        filterFactors(spec->order, spec->normFactor, response, filter);
    else
        std::memcpy(filter, response, sizeof(T) << spec->order);
    return vlqStsOk;
}

template <class T, class Spec>
VlqStatus applyReal(const T* src, T* dst, const T* filter, const Spec* spec, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<Spec>) return vlqStsBadSpec;
    const int order = spec->order;
    if (!isOnePass<T>(order)) {
        const VlqStatus status = forwardPerm(src, dst, spec, buf);
        if (status != vlqStsOk) return status;
        multiplyPerm(filter, dst, 1 << order);
        return inversePerm(dst, dst, spec, buf);
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (work.refused()) return vlqStsNoMemory;
    T* const buffer = work.as<T>();
    const T* const angles = spec->realTwiddleInv;
    if (isInBlocks<T>(order - 1)) {
        const Blocks<T> between{buffer}, values{dst};
        inCacheTransform<T>(order - 1, *spec, ForwardIn<T>{src}, between, values, values, false);
        filterBlocks(order, angles, filter, dst);
        inCacheTransform<T>(order - 1, *spec, Blocks<T, true>{dst}, between, values,
                            InverseOut<T>{dst}, false);
    } else {
        complexTransform<T, Direction::forward>(order - 1, *spec, src, dst, buffer, false);
        filterInterleaved(order, angles, filter, dst);
        complexTransform<T, Direction::inverse>(order - 1, *spec, dst, dst, buffer, false);
    }
    return vlqStsOk;
}

template <class T, class C, class Spec>
VlqStatus applyComplex(const C* src, C* dst, const C* filter, const Spec* spec, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<Spec>) return vlqStsBadSpec;
    const WorkBuffer work(buf, spec->workBytes);
    if (work.refused()) return vlqStsNoMemory;
    T* const values = reinterpret_cast<T*>(dst);
    complexTransform<T, Direction::forward>(spec->order, *spec, reinterpret_cast<const T*>(src),
                                            values, work.data(), false);
    multiply(filter, dst, 1 << spec->order);
    complexTransform<T, Direction::inverse>(spec->order, *spec, values, values, work.data(), true);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::fft::makeFilter(Vlq32f* response, Vlq32f* filter, const VlqsFFTSpec_R_32f* spec,
                               Vlq8u* buf) {
    return makeReal(response, filter, spec, buf);
}
VlqStatus vlq::fft::makeFilter(Vlq64f* response, Vlq64f* filter, const VlqsFFTSpec_R_64f* spec,
                               Vlq8u* buf) {
    return makeReal(response, filter, spec, buf);
}
VlqStatus vlq::fft::makeFilter(Vlq32fc* response, Vlq32fc* filter, const VlqsFFTSpec_C_32fc* spec,
                               Vlq8u* buf) {
    return vlqsFFTFwd_CToC_32fc(response, filter, spec, buf);
}
VlqStatus vlq::fft::makeFilter(Vlq64fc* response, Vlq64fc* filter, const VlqsFFTSpec_C_64fc* spec,
                               Vlq8u* buf) {
    return vlqsFFTFwd_CToC_64fc(response, filter, spec, buf);
}

VlqStatus vlq::fft::applyFilter(const Vlq32f* src, Vlq32f* dst, const Vlq32f* filter,
                                const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return applyReal(src, dst, filter, spec, buf);
}
VlqStatus vlq::fft::applyFilter(const Vlq64f* src, Vlq64f* dst, const Vlq64f* filter,
                                const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return applyReal(src, dst, filter, spec, buf);
}
VlqStatus vlq::fft::applyFilter(const Vlq32fc* src, Vlq32fc* dst, const Vlq32fc* filter,
                                const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf) {
    return applyComplex<Vlq32f>(src, dst, filter, spec, buf);
}
VlqStatus vlq::fft::applyFilter(const Vlq64fc* src, Vlq64fc* dst, const Vlq64fc* filter,
                                const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf) {
    return applyComplex<Vlq64f>(src, dst, filter, spec, buf);
}
