// The regime beyond the cache in single precision.
#include "fourier/kernel/large.h"

namespace vlq::fft {

template void largeTransform(int, const FloatSpec<Vlq32f>&, ForwardIn<Vlq32f>, Blocks<Vlq32f>,
                             ForwardOut<Vlq32f>, Vlq32f*, bool, bool);
template void largeTransform(int, const FloatSpec<Vlq32f>&, InverseIn<Vlq32f>, Blocks<Vlq32f>,
                             InverseOut<Vlq32f>, Vlq32f*, bool, bool);
template void largeTransform(int, const FloatSpec<Vlq32f>&, Parts<const Vlq32f>, Planes<Vlq32f>,
                             Parts<Vlq32f>, Vlq32f*, bool, bool);

}  // namespace vlq::fft
