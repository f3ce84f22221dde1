// One output of a multi-rate FIR filter whose taps and delay line are the caller's.
#pragma once

#include "filter/fir_direct_kernels.h"
#include "filter/fir_element.h"

namespace vlq::fir {

namespace detail {
template <class Tap>
struct DirectSumOf {
    using type = Vlq64f;
};
template <Complex Tap>
struct DirectSumOf<Tap> {
    using type = Vlq64fc;
};
}  // namespace detail
template <class Tap>
using DirectSum = typename detail::DirectSumOf<Tap>::type;

// Eight sums by turns.
class TurningSums {
public:
    void add(int i, double product) { sums_[i % 8] += product; }
    double total() const {
        return ((sums_[0] + sums_[4]) + (sums_[2] + sums_[6])) + ((sums_[1] + sums_[5]) + (sums_[3] + sums_[7]));
    }

private:
    double sums_[8] = {};
};

// Calls visit(i, sample i of the window, newest first): those from x[newest] down to x[0], then
// those of the line, which is newest first.
template <class Sample, class Visit>
inline void eachSample(const Sample* x, Vlq64s newest, const Sample* line, int count, Visit&& visit) {
    const int inside = newest + 1 < count ? static_cast<int>(newest + 1) : count;
    for (int i = 0; i < inside; ++i) visit(i, read(x + (newest - i)));
    for (int i = inside; i < count; ++i) visit(i, read(line + (i - newest - 1)));
}

// sum of taps[i * stride] * x[newest - i], i from 0 to count - 1.
template <class Tap, class Sample>
inline DirectSum<Tap> directSum(const Tap* taps, int count, int stride, const Sample* x, Vlq64s newest, const Sample* line) {
    auto tapAt = [&](int i) { return read(taps + static_cast<Vlq64s>(i) * stride); };
    if constexpr (Complex<Tap>) {
        TurningSums straight[2], crossed[2];
        eachSample(x, newest, line, count, [&](int i, Sample from) {
            const Tap tap = tapAt(i), sample = convertTo<Tap>(from);
            straight[0].add(i, tap.re * sample.re);
            straight[1].add(i, tap.im * sample.im);
            crossed[0].add(i, tap.re * sample.im);
            crossed[1].add(i, tap.im * sample.re);
        });
        return {straight[0].total() - straight[1].total(), crossed[0].total() + crossed[1].total()};
    } else {
        TurningSums sums;
        eachSample(x, newest, line, count, [&](int i, Sample from) { sums.add(i, tapAt(i) * convertTo<Tap>(from)); });
        return sums.total();
    }
}

}  // namespace vlq::fir
