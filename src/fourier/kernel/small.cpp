#include "fourier/kernel/small.h"

#include <algorithm>

#include "fourier/kernel/regimes.h"

namespace vlq::fft {

template <class T, class In, class Out>
void smallTransform(int order, const FloatingRecord<T>& record, In src, Out dst, bool scaled) {
    using Kernel = void (*)(In, Out, T);
    static constexpr Kernel plain[] = {straightLine<T, 0, false, In, Out>,
                                       straightLine<T, 1, false, In, Out>,
                                       straightLine<T, 2, false, In, Out>,
                                       straightLine<T, 3, false, In, Out>,
                                       straightLine<T, 4, false, In, Out>,
                                       straightLine<T, 5, false, In, Out>,
                                       straightLine<T, std::min(6, kLastSmall<In>), false, In, Out>,
                                       straightLine<T, kLastSmall<In>, false, In, Out>};
    static constexpr Kernel twins[] = {straightLine<T, 0, true, In, Out>,
                                       straightLine<T, 1, true, In, Out>,
                                       straightLine<T, 2, true, In, Out>,
                                       straightLine<T, 3, true, In, Out>,
                                       straightLine<T, 4, true, In, Out>,
                                       straightLine<T, 5, true, In, Out>,
                                       straightLine<T, std::min(6, kLastSmall<In>), true, In, Out>,
                                       straightLine<T, kLastSmall<In>, true, In, Out>};
    (scaled ? twins : plain)[order](src, dst, record.normFactor);
}

template void smallTransform(int, const FloatingRecord<Vlq32f>&, ForwardIn<Vlq32f>,
                             ForwardOut<Vlq32f>, bool);
template void smallTransform(int, const FloatingRecord<Vlq32f>&, InverseIn<Vlq32f>,
                             InverseOut<Vlq32f>, bool);
template void smallTransform(int, const FloatingRecord<Vlq32f>&, Parts<const Vlq32f>, Parts<Vlq32f>,
                             bool);
template void smallTransform(int, const FloatingRecord<Vlq64f>&, ForwardIn<Vlq64f>,
                             ForwardOut<Vlq64f>, bool);
template void smallTransform(int, const FloatingRecord<Vlq64f>&, InverseIn<Vlq64f>,
                             InverseOut<Vlq64f>, bool);
template void smallTransform(int, const FloatingRecord<Vlq64f>&, Parts<const Vlq64f>, Parts<Vlq64f>,
                             bool);

}  // namespace vlq::fft
