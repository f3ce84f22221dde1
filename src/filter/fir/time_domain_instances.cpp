// The time-domain FIR kernels, once for each type of element.
#include "filter/fir/time_domain_complex_kernels.h"
#include "filter/fir/time_domain_kernels.h"

template void vlq::fir::convolve(const Vlq32f*, const Vlq32f*, Vlq32f*, int, int);
template void vlq::fir::convolve(const Vlq64f*, const Vlq64f*, Vlq64f*, int, int);
template void vlq::fir::convolve(const Vlq32fc*, const Vlq32fc*, Vlq32fc*, int, int);
template void vlq::fir::convolve(const Vlq64fc*, const Vlq64fc*, Vlq64fc*, int, int);
