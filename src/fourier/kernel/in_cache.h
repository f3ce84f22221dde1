// The complex transform within a cache: the passes of plan/fft_passes.h one after the other.
#pragma once

#include <utility>

#include "fourier/kernel/passes.h"
#include "fourier/kernel/regimes.h"
#include "fourier/plan/fft_passes.h"

namespace vlq::fft {

template <class T, int B, bool scaled, class In, class Out>
void laterPassOf(int radix, In in, Out out, std::ptrdiff_t n, std::ptrdiff_t span, const T* table,
                 T scale) {
    if constexpr (hasLaterRadix<T, B>(4)) {
        if (radix == 4) return laterPass<T, B, 4, scaled>(in, out, n, span, table, scale);
    }
    if constexpr (hasLaterRadix<T, B>(8)) {
        if (radix == 8) return laterPass<T, B, 8, scaled>(in, out, n, span, table, scale);
    }
    if constexpr (hasLaterRadix<T, B>(16)) {
        if (radix == 16) return laterPass<T, B, 16, scaled>(in, out, n, span, table, scale);
    }
}

// All passes of one order: from src to `work`, then between `work` and `middle`, at last to dst.
template <class T, int B, class In, class Middle, class Out>
void runPasses(const PassPlan& plan, int order, const T* table, In src, Middle work, Middle middle,
               Out dst, T scale, bool scaled) {
    constexpr int lanes = Vec<T, B>::lanes;
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    const T eighth = eightPointFactor<T>(order);
    if constexpr (lanes <= 8) {
        if (plan.first == 8) firstPass<T, B, 8>(src, work, n, eighth);
    }
    if constexpr (B > 16) {
        if (plan.first == 16) firstPass<T, B, 16>(src, work, n, eighth);
    }
    std::ptrdiff_t span = plan.first;
    Middle from = work, to = middle;
    for (int i = 0; i + 1 < plan.count; ++i) {
        const int radix = plan.radix[i];
        laterPassOf<T, B, false>(radix, from, to, n, span, table, scale);
        table += 2 * (radix - 1) * span;
        span *= radix;
        std::swap(from, to);
    }
    const int radix = plan.radix[plan.count - 1];
    if (scaled)
        laterPassOf<T, B, true>(radix, from, dst, n, span, table, scale);
    else
        laterPassOf<T, B, false>(radix, from, dst, n, span, table, scale);
}

template <class T, class In, class Middle, class Out>
void inCacheTransform(int order, const FloatSpec<T>& spec, In src, Middle work, Middle middle,
                      Out dst, bool scaled) {
    const PassPlan plan = passPlan<T>(order);
    const T* table = spec.twiddleTable;
    if constexpr (kFirstFullWidth < T >> kFirstPlanned) {
        if (order < kFirstFullWidth<T>)
            return runPasses<T, kVecBytes / 2>(plan, order, table, src, work, middle, dst,
                                               spec.normFactor, scaled);
    }
    runPasses<T, kVecBytes>(plan, order, table, src, work, middle, dst, spec.normFactor, scaled);
}

template <class T, class Middle>
void rowTransform(int order, int spanBits, const T* table, Middle row, Middle work) {
    const PassPlan plan = rowPlan(order, spanBits);
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    std::ptrdiff_t span = plan.first;
    Middle from = row, to = work;
    for (int i = 0; i < plan.count; ++i) {
        const int radix = plan.radix[i];
        laterPassOf<T, kVecBytes, false>(radix, from, i + 1 < plan.count ? to : row, n, span, table,
                                         T(1));
        table += 2 * (radix - 1) * span;
        span *= radix;
        std::swap(from, to);
    }
}

}  // namespace vlq::fft
