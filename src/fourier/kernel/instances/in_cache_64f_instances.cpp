// The in-cache regime in double precision.
#include "fourier/kernel/in_cache.h"

namespace vlq::fft {

template void rowTransform(int, int, const Vlq64f*, Blocks<Vlq64f>, Blocks<Vlq64f>);
template void rowTransform(int, int, const Vlq64f*, Planes<Vlq64f>, Planes<Vlq64f>);

template void inCacheTransform(int, const FloatSpec<Vlq64f>&, ForwardIn<Vlq64f>, Blocks<Vlq64f>,
                               Blocks<Vlq64f>, ForwardOut<Vlq64f>, bool);
template void inCacheTransform(int, const FloatSpec<Vlq64f>&, InverseIn<Vlq64f>, Blocks<Vlq64f>,
                               Blocks<Vlq64f>, InverseOut<Vlq64f>, bool);
template void inCacheTransform(int, const FloatSpec<Vlq64f>&, Parts<const Vlq64f>, Planes<Vlq64f>,
                               Planes<Vlq64f>, Parts<Vlq64f>, bool);
// From interleaved values to blocks and back, for filters that work on the blocks.
template void inCacheTransform(int, const FloatSpec<Vlq64f>&, ForwardIn<Vlq64f>, Blocks<Vlq64f>,
                               Blocks<Vlq64f>, Blocks<Vlq64f>, bool);
template void inCacheTransform(int, const FloatSpec<Vlq64f>&, Blocks<Vlq64f, true>, Blocks<Vlq64f>,
                               Blocks<Vlq64f>, InverseOut<Vlq64f>, bool);

}  // namespace vlq::fft
