// The sum over one window of a ring of samples, with the taps as the caller has them: newest first.
#pragma once

#include "filter/common/element.h"
#include "filter/fir/single_complex_kernels.h"

namespace vlq::fir {

// Elements of the table of the direct kernels for one tap.
template <class E>
inline constexpr int kTableEntry = kReplicas<Part<E>>;

// sum of x[j] * taps[n - 1 - j] in two chains by turns, in the type of the taps.
template <class Tap, class Sample>
inline Tap ringSum(const Sample* x, const Tap* taps, int n) {
    if constexpr (Complex<Tap>) {
        using T = Part<Tap>;
        T straight[2] = {0, 0}, crossed[2] = {0, 0};
        for (int j = 0; j < n; ++j) {
            const Tap sample = convertTo<Tap>(read(x + j)), tap = read(taps + (n - 1 - j));
            straight[0] = mulAdd(sample.re, tap.re, straight[0]);
            straight[1] = mulAdd(sample.im, tap.im, straight[1]);
            crossed[0] = mulAdd(sample.re, tap.im, crossed[0]);
            crossed[1] = mulAdd(sample.im, tap.re, crossed[1]);
        }
        return {straight[0] - straight[1], crossed[0] + crossed[1]};
    } else {
        Tap sum[2] = {0, 0};
        int j = 0;
        for (; j + 2 <= n; j += 2) {
            sum[0] = mulAdd(convertTo<Tap>(read(x + j)), read(taps + (n - 1 - j)), sum[0]);
            sum[1] = mulAdd(convertTo<Tap>(read(x + j + 1)), read(taps + (n - 2 - j)), sum[1]);
        }
        if (j < n) sum[0] = mulAdd(convertTo<Tap>(read(x + j)), read(taps), sum[0]);
        return sum[0] + sum[1];
    }
}

}  // namespace vlq::fir
