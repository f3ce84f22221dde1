// The straight-line regime in single precision.
#include "fourier/kernel/small.h"

namespace vlq::fft {

template void smallTransform(int, const FloatSpec<Vlq32f>&, ForwardIn<Vlq32f>, ForwardOut<Vlq32f>,
                             bool);
template void smallTransform(int, const FloatSpec<Vlq32f>&, InverseIn<Vlq32f>, InverseOut<Vlq32f>,
                             bool);
template void smallTransform(int, const FloatSpec<Vlq32f>&, Parts<const Vlq32f>, Parts<Vlq32f>,
                             bool);

}  // namespace vlq::fft
