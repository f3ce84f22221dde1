// Filters without a state: the sum over one window, with samples and taps as the caller has them,
// and how it is stored.
#pragma once

#include <cmath>
#include <limits>

#include "filter/common/element.h"
#include "frame/simd/ops.h"

namespace vlq::fir {

// sum of x[j] * taps[n - 1 - j] in two chains by turns, in the type of the taps.
template <class Tap, class Sample>
inline Tap ringSum(const Sample* x, const Tap* taps, int n) {
    if constexpr (Complex<Tap>) {
        using T = Part<Tap>;
        T real[2] = {0, 0}, cross[2] = {0, 0};
        for (int j = 0; j < n; ++j) {
            const Tap sample = convertTo<Tap>(loadScalar(x + j)),
                      tap = loadScalar(taps + (n - 1 - j));
            real[0] = mulAdd(sample.re, tap.re, real[0]);
            real[1] = mulAdd(sample.im, tap.im, real[1]);
            cross[0] = mulAdd(sample.re, tap.im, cross[0]);
            cross[1] = mulAdd(sample.im, tap.re, cross[1]);
        }
        return {real[0] - real[1], cross[0] + cross[1]};
    } else {
        Tap sum[2] = {0, 0};
        int j = 0;
        for (; j + 2 <= n; j += 2) {
            sum[0] =
                mulAdd(convertTo<Tap>(loadScalar(x + j)), loadScalar(taps + (n - 1 - j)), sum[0]);
            sum[1] = mulAdd(convertTo<Tap>(loadScalar(x + j + 1)), loadScalar(taps + (n - 2 - j)),
                            sum[1]);
        }
        if (j < n) sum[0] = mulAdd(convertTo<Tap>(loadScalar(x + j)), loadScalar(taps), sum[0]);
        return sum[0] + sum[1];
    }
}

// How a sum is stored: as it is, or scaled by 2^-scaleFactor, saturated, and then rounded half away
// from zero.
struct StoreAsIs {
    template <class Tap, class Sample>
    void operator()(Tap sum, Sample* dst) const {
        storeScalar(dst, convertTo<Sample>(sum));
    }
};
template <class Tap>
class StoreScaled {
public:
    explicit StoreScaled(Vlq32s scaleFactor)
        : isPlain_(scaleFactor > -kSpan && scaleFactor < kSpan), scaleFactor_(scaleFactor) {
        if (isPlain_) factor_ = std::ldexp(Real(1), -scaleFactor);
    }
    template <class Sample>
    void operator()(Tap sum, Sample* dst) const {
        if constexpr (Complex<Tap>) {
            storeScalar(parts(dst), round<Part<Sample>>(sum.re));
            storeScalar(parts(dst) + 1, round<Part<Sample>>(sum.im));
        } else {
            storeScalar(dst, round<Sample>(sum));
        }
    }

private:
    using Real = Part<Tap>;
    static constexpr Vlq32s kSpan =
        std::numeric_limits<Real>::max_exponent - 1;  // the factor is a normal number

    template <class Integer>
    Integer round(Real sum) const {
        constexpr Real low = std::numeric_limits<Integer>::min();
        constexpr Real high = std::numeric_limits<Integer>::max();
        constexpr int beyond = 2 * std::numeric_limits<Real>::max_exponent + 64;
        const Real scaled = isPlain_ ? sum * factor_
                                     : std::ldexp(sum, scaleFactor_ > beyond    ? -beyond
                                                       : scaleFactor_ < -beyond ? beyond
                                                                                : -scaleFactor_);
        if (!(scaled < high)) return std::numeric_limits<Integer>::max();  // also of NaN
        if (scaled <= low) return std::numeric_limits<Integer>::min();
        return static_cast<Integer>(scaled + (scaled < 0 ? Real(-0.5) : Real(0.5)));
    }

    bool isPlain_;
    Vlq32s scaleFactor_;
    Real factor_ = 0;
};

}  // namespace vlq::fir
