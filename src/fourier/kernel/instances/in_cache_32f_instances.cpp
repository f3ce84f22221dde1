// The in-cache regime in single precision.
#include "fourier/kernel/in_cache.h"

namespace vlq::fft {

template void rowTransform(int, int, const Vlq32f*, Blocks<Vlq32f>, Blocks<Vlq32f>);
template void rowTransform(int, int, const Vlq32f*, Planes<Vlq32f>, Planes<Vlq32f>);

template void inCacheTransform(int, const FloatSpec<Vlq32f>&, ForwardIn<Vlq32f>, Blocks<Vlq32f>,
                               Blocks<Vlq32f>, ForwardOut<Vlq32f>, bool);
template void inCacheTransform(int, const FloatSpec<Vlq32f>&, InverseIn<Vlq32f>, Blocks<Vlq32f>,
                               Blocks<Vlq32f>, InverseOut<Vlq32f>, bool);
template void inCacheTransform(int, const FloatSpec<Vlq32f>&, Parts<const Vlq32f>, Planes<Vlq32f>,
                               Planes<Vlq32f>, Parts<Vlq32f>, bool);
// From interleaved values to blocks and back, for filters that work on the blocks.
template void inCacheTransform(int, const FloatSpec<Vlq32f>&, ForwardIn<Vlq32f>, Blocks<Vlq32f>,
                               Blocks<Vlq32f>, Blocks<Vlq32f>, bool);
template void inCacheTransform(int, const FloatSpec<Vlq32f>&, Blocks<Vlq32f, true>, Blocks<Vlq32f>,
                               Blocks<Vlq32f>, InverseOut<Vlq32f>, bool);

}  // namespace vlq::fft
