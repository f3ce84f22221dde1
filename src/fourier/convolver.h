// Filtering by transforms: circular convolution of N elements with a fixed impulse response, for
// the library's own use.
#pragma once

#include "vlqs/fft.h"

namespace vlq::fft {

// filter = the response as applyFilter needs it. Both have N elements; the filter is on a 64-byte
// boundary, the response is overwritten. The spec normalizes the inverse transform by N.
VlqStatus makeFilter(Vlq32f* response, Vlq32f* filter, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus makeFilter(Vlq64f* response, Vlq64f* filter, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus makeFilter(Vlq32fc* response, Vlq32fc* filter, const VlqsFFTSpec_C_32fc* spec,
                     Vlq8u* buf);
VlqStatus makeFilter(Vlq64fc* response, Vlq64fc* filter, const VlqsFFTSpec_C_64fc* spec,
                     Vlq8u* buf);

// dst = src convolved with the response. dst may be src.
VlqStatus applyFilter(const Vlq32f* src, Vlq32f* dst, const Vlq32f* filter,
                      const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus applyFilter(const Vlq64f* src, Vlq64f* dst, const Vlq64f* filter,
                      const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus applyFilter(const Vlq32fc* src, Vlq32fc* dst, const Vlq32fc* filter,
                      const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus applyFilter(const Vlq64fc* src, Vlq64fc* dst, const Vlq64fc* filter,
                      const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf);

}  // namespace vlq::fft
