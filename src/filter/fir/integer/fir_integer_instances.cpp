// The integer FIR kernels, compiled once.
#include "filter/fir/integer/fir_integer_kernels.h"

namespace vlq::fir::integer {

template void filterWords(const TapRows<1>&, const Vlq16s*, Vlq16s*, std::ptrdiff_t, const Finish&);
template void filterWords(const TapRows<2>&, const Vlq16s*, Vlq16s*, std::ptrdiff_t, const Finish&);

}  // namespace vlq::fir::integer
