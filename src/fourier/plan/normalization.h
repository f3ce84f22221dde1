// What a normalisation flag means to a record.
#pragma once

#include <cmath>

#include "fourier/plan/fft_plan.h"
#include "frame/simd/estimate.h"

namespace vlq::fft {

constexpr bool isNormalisation(Vlq32s flag) {
    return flag == vlqNormFwdByN || flag == vlqNormInvByN || flag == vlqNormBySqrtN ||
           flag == vlqNormNone;
}

// 1/sqrt(x): in single precision the processor's estimate, refined once.
inline Vlq32f inverseSqrt(Vlq32f x) {
    const Vlq32f y = rsqrtEstimate(x);
    return y * -0.5f * (x * y * y - 3.0f);
}
inline Vlq64f inverseSqrt(Vlq64f x) { return 1.0 / std::sqrt(x); }

// Sets the fields of a cleared record; flag is one of the four.
template <class T>
void setNormalisation(FloatingRecord<T>& record, int order, Vlq32s flag) {
    const T n = static_cast<T>(Vlq64s{1} << order);
    record.doFwdScale = flag == vlqNormFwdByN || flag == vlqNormBySqrtN;
    record.doInvScale = flag == vlqNormInvByN || flag == vlqNormBySqrtN;
    if (flag == vlqNormBySqrtN)
        record.normFactor = inverseSqrt(n);
    else if (flag != vlqNormNone)
        record.normFactor = T(1) / n;
}

}  // namespace vlq::fft
