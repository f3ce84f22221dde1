// Filtering by transforms: a signal convolved with a fixed response, round the end of a transform's
// N elements. For the library's own use.
#pragma once

#include "vlqs/fft.h"

namespace vlq::fft {

// filter = the response in the form that applyFilter wants. Both have N elements; the filter lies
// on a 64-byte boundary, the response is written over. The inverse of spec divides by N.
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
