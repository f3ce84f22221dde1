#include "fourier/kernel/large.h"

#include "fourier/kernel/regimes.h"

namespace vlq::fft {

template <class T, class In, class Middle, class Out>
void largeTransform(int order, const FloatingRecord<T>& record, In src, Middle middle, Out dst, T* work, bool inPlace,
                    bool scaled) {
    runPhases<T>(order, record, src, middle, dst, work, inPlace, scaled);
}

template void largeTransform(int, const FloatingRecord<Vlq32f>&, ForwardIn<Vlq32f>, Blocks<Vlq32f>, ForwardOut<Vlq32f>,
                             Vlq32f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq32f>&, InverseIn<Vlq32f>, Blocks<Vlq32f>, InverseOut<Vlq32f>,
                             Vlq32f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq32f>&, Parts<const Vlq32f>, Planes<Vlq32f>, Parts<Vlq32f>,
                             Vlq32f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq64f>&, ForwardIn<Vlq64f>, Blocks<Vlq64f>, ForwardOut<Vlq64f>,
                             Vlq64f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq64f>&, InverseIn<Vlq64f>, Blocks<Vlq64f>, InverseOut<Vlq64f>,
                             Vlq64f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq64f>&, Parts<const Vlq64f>, Planes<Vlq64f>, Parts<Vlq64f>,
                             Vlq64f*, bool, bool);

}  // namespace vlq::fft
