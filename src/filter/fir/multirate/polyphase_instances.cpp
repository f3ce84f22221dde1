// The polyphase FIR kernels, once for each real element.
#include "filter/fir/multirate/polyphase_segments.h"

template void vlq::fir::groupedOutputs(const Polyphase<Vlq32f>&, const Vlq32f*, Vlq32f*, int);
template void vlq::fir::groupedOutputs(const Polyphase<Vlq64f>&, const Vlq64f*, Vlq64f*, int);
template void vlq::fir::windowOutputs(const Polyphase<Vlq32f>&, const Vlq32f*, Vlq32f*, int);
template void vlq::fir::windowOutputs(const Polyphase<Vlq64f>&, const Vlq64f*, Vlq64f*, int);
template void vlq::fir::segmentOutputs(const Polyphase<Vlq32f>&, const Vlq32f*, Vlq32f*, int);
template void vlq::fir::segmentOutputs(const Polyphase<Vlq64f>&, const Vlq64f*, Vlq64f*, int);
