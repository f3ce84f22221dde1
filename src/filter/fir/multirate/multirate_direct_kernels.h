// One output of a multi-rate FIR filter whose taps and delay line are the caller's: products in the
// type of the taps, sums in double precision. Eight sums take the terms by turns, oldest sample
// first.
#pragma once

#include "filter/common/element.h"
#include "frame/simd/vec.h"

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

inline constexpr int kTurns = 8;

inline double totalOf(const double (&s)[kTurns]) {
    return ((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7]));
}

template <class Tap>
class TurningSums {
public:
    // A term for each of the first `some` sums.
    template <class Sample>
    void add(const Tap* taps, const Sample* x, int some) {
        for (int i = 0; i < some; ++i)
            sums_[i] +=
                static_cast<double>(loadScalar(taps + i) * convertTo<Tap>(loadScalar(x + i)));
    }
    double total() const { return totalOf(sums_); }

private:
    double sums_[kTurns] = {};
};
template <Complex Tap>
class TurningSums<Tap> {
public:
    template <class Sample>
    void add(const Tap* taps, const Sample* x, int some) {
        for (int i = 0; i < some; ++i) {
            const Tap tap = loadScalar(taps + i), sample = convertTo<Tap>(loadScalar(x + i));
            real_[0][i] += static_cast<double>(tap.re * sample.re);
            real_[1][i] += static_cast<double>(tap.im * sample.im);
            cross_[0][i] += static_cast<double>(tap.re * sample.im);
            cross_[1][i] += static_cast<double>(tap.im * sample.re);
        }
    }
    Vlq64fc total() const {
        return {totalOf(real_[0]) - totalOf(real_[1]), totalOf(cross_[0]) + totalOf(cross_[1])};
    }

private:
    double real_[2][kTurns] = {}, cross_[2][kTurns] = {};
};

// sum of row[j] * oldest[j].
template <class Tap, class Sample>
inline DirectSum<Tap> directSum(const Tap* row, const Sample* oldest, int count) {
    TurningSums<Tap> sums;
    int j = 0;
    for (; j + kTurns <= count; j += kTurns) sums.add(row + j, oldest + j, kTurns);
    if (j < count) sums.add(row + j, oldest + j, count - j);
    return sums.total();
}

// The same with the taps from the impulse response, every stride-th, and the samples before x[0]
// from the line, which is newest first. The window ends at x[newest].
template <class Tap, class Sample>
inline DirectSum<Tap> directSum(const Tap* taps, int stride, const Sample* x, Vlq64s newest,
                                const Sample* line, int count) {
    TurningSums<Tap> sums;
    Tap row[kTurns];
    Sample window[kTurns];
    for (int j = 0; j < count; j += kTurns) {
        const int some = count - j < kTurns ? count - j : kTurns;
        for (int k = 0; k < some; ++k) {
            const int age = count - 1 - j - k;
            row[k] = loadScalar(taps + static_cast<Vlq64s>(age) * stride);
            window[k] = loadScalar(age <= newest ? x + (newest - age) : line + (age - newest - 1));
        }
        sums.add(row, window, some);
    }
    return sums.total();
}

}  // namespace vlq::fir
