// The regime beyond the cache in double precision.
#include "fourier/kernel/large.h"

namespace vlq::fft {

template void largeTransform(int, const FloatSpec<Vlq64f>&, ForwardIn<Vlq64f>, Blocks<Vlq64f>,
                             ForwardOut<Vlq64f>, Vlq64f*, bool, bool);
template void largeTransform(int, const FloatSpec<Vlq64f>&, InverseIn<Vlq64f>, Blocks<Vlq64f>,
                             InverseOut<Vlq64f>, Vlq64f*, bool, bool);
template void largeTransform(int, const FloatSpec<Vlq64f>&, Parts<const Vlq64f>, Planes<Vlq64f>,
                             Parts<Vlq64f>, Vlq64f*, bool, bool);

}  // namespace vlq::fft
