// The straight-line regime in double precision.
#include "fourier/kernel/small.h"

namespace vlq::fft {

template void smallTransform(int, const FloatSpec<Vlq64f>&, ForwardIn<Vlq64f>, ForwardOut<Vlq64f>,
                             bool);
template void smallTransform(int, const FloatSpec<Vlq64f>&, InverseIn<Vlq64f>, InverseOut<Vlq64f>,
                             bool);
template void smallTransform(int, const FloatSpec<Vlq64f>&, Parts<const Vlq64f>, Parts<Vlq64f>,
                             bool);

}  // namespace vlq::fft
