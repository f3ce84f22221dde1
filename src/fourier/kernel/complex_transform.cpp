// The complex transform: choice of the regime.
#include "fourier/kernel/complex_transform.h"

#include <utility>

#include "fourier/kernel/regimes.h"
#include "fourier/plan/complex_plan.h"

namespace vlq::fft {

template <class T, Direction direction>
void complexTransform(int order, const FloatSpec<T>& spec, const T* src, T* dst, void* work,
                      bool scaled) {
    constexpr bool exchanged = direction == Direction::inverse;
    Interleaved<const T, exchanged> in{src};
    const Interleaved<T, exchanged> out{dst};
    const Blocks<T> buffer{static_cast<T*>(work)}, middle{dst};
    if (order <= kLastSmall<decltype(in)>)
        smallTransform<T>(order, spec, in, out, scaled);
    else if (order <= ComplexLimits<T>::inCache)
        inCacheTransform<T>(order, spec, in, buffer, middle, out, scaled);
    else
        largeTransform<T>(order, spec, in, middle, out, buffer.p, src == dst, scaled);
}

template <class T, Direction direction>
void splitTransform(int order, const FloatSpec<T>& spec, const T* srcRe, const T* srcIm, T* dstRe,
                    T* dstIm, void* work, bool scaled) {
    if constexpr (direction == Direction::inverse) {
        std::swap(srcRe, srcIm);
        std::swap(dstRe, dstIm);
    }
    Parts<const T> in{srcRe, srcIm};
    const Parts<T> out{dstRe, dstIm};
    T* const buffer = static_cast<T*>(work);
    if (order <= kLastSmall<decltype(in)>) return smallTransform<T>(order, spec, in, out, scaled);
    const Planes<T> planes{buffer, buffer + (std::ptrdiff_t{1} << order)}, middle{dstRe, dstIm};
    if (order <= ComplexLimits<T>::inCache)
        inCacheTransform<T>(order, spec, in, planes, middle, out, scaled);
    else
        largeTransform<T>(order, spec, in, middle, out, buffer, srcRe == dstRe || srcIm == dstIm,
                          scaled);
}

template void complexTransform<Vlq32f, Direction::forward>(int, const FloatSpec<Vlq32f>&,
                                                           const Vlq32f*, Vlq32f*, void*, bool);
template void complexTransform<Vlq32f, Direction::inverse>(int, const FloatSpec<Vlq32f>&,
                                                           const Vlq32f*, Vlq32f*, void*, bool);
template void splitTransform<Vlq32f, Direction::forward>(int, const FloatSpec<Vlq32f>&,
                                                         const Vlq32f*, const Vlq32f*, Vlq32f*,
                                                         Vlq32f*, void*, bool);
template void splitTransform<Vlq32f, Direction::inverse>(int, const FloatSpec<Vlq32f>&,
                                                         const Vlq32f*, const Vlq32f*, Vlq32f*,
                                                         Vlq32f*, void*, bool);
template void complexTransform<Vlq64f, Direction::forward>(int, const FloatSpec<Vlq64f>&,
                                                           const Vlq64f*, Vlq64f*, void*, bool);
template void complexTransform<Vlq64f, Direction::inverse>(int, const FloatSpec<Vlq64f>&,
                                                           const Vlq64f*, Vlq64f*, void*, bool);
template void splitTransform<Vlq64f, Direction::forward>(int, const FloatSpec<Vlq64f>&,
                                                         const Vlq64f*, const Vlq64f*, Vlq64f*,
                                                         Vlq64f*, void*, bool);
template void splitTransform<Vlq64f, Direction::inverse>(int, const FloatSpec<Vlq64f>&,
                                                         const Vlq64f*, const Vlq64f*, Vlq64f*,
                                                         Vlq64f*, void*, bool);

}  // namespace vlq::fft
