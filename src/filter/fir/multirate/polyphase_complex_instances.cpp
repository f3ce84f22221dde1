// The polyphase FIR kernels, once for each complex element.
#include "filter/fir/multirate/polyphase_segments.h"

template void vlq::fir::groupedOutputs(const Polyphase<Vlq32fc>&, const Vlq32fc*, Vlq32fc*, int);
template void vlq::fir::groupedOutputs(const Polyphase<Vlq64fc>&, const Vlq64fc*, Vlq64fc*, int);
template void vlq::fir::windowOutputs(const Polyphase<Vlq32fc>&, const Vlq32fc*, Vlq32fc*, int);
template void vlq::fir::windowOutputs(const Polyphase<Vlq64fc>&, const Vlq64fc*, Vlq64fc*, int);
template void vlq::fir::segmentOutputs(const Polyphase<Vlq32fc>&, const Vlq32fc*, Vlq32fc*, int);
template void vlq::fir::segmentOutputs(const Polyphase<Vlq64fc>&, const Vlq64fc*, Vlq64fc*, int);
