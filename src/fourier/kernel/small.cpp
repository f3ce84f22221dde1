#include "fourier/kernel/small.h"

#include "fourier/kernel/regimes.h"

namespace vlq::fft {

template <class T, class In, class Out>
void smallTransform(int order, const FloatingRecord<T>& record, In src, Out dst, bool scaled) {
    if (scaled) straightLine<T, true>(order, src, dst, record.normFactor);
    else straightLine<T, false>(order, src, dst, T(1));
}

template void smallTransform(int, const FloatingRecord<Vlq32f>&, ForwardIn<Vlq32f>, ForwardOut<Vlq32f>, bool);
template void smallTransform(int, const FloatingRecord<Vlq32f>&, InverseIn<Vlq32f>, InverseOut<Vlq32f>, bool);
template void smallTransform(int, const FloatingRecord<Vlq32f>&, Parts<const Vlq32f>, Parts<Vlq32f>, bool);

}  // namespace vlq::fft
