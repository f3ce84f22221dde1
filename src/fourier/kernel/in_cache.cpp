#include <utility>

#include "fourier/kernel/passes.h"
#include "fourier/kernel/regimes.h"
#include "fourier/plan/fft_passes.h"

namespace vlq::fft {
namespace {

template <class T, int B, bool scaled, class In, class Out>
void later(int radix, In in, Out out, std::ptrdiff_t n, std::ptrdiff_t span, const T* table,
           T scale) {
    switch (radix) {
        case 4: return laterPass<T, B, 4, scaled>(in, out, n, span, table, scale);
        case 8: return laterPass<T, B, 8, scaled>(in, out, n, span, table, scale);
        default:
            if constexpr (B > 16) laterPass<T, B, 16, scaled>(in, out, n, span, table, scale);
    }
}

// All passes of one order: from src to `work`, then between `work` and `middle`, which is the
// memory of dst in the form that passes use among themselves, and at last to dst.
template <class T, int B, class In, class Middle, class Out>
void runPasses(const PassPlan& plan, int order, const T* table, In src, Middle work, Middle middle,
               Out dst, T scale, bool scaled) {
    constexpr int lanes = Vec<T, B>::lanes;
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    const T eighth = order % 2 ? kEightPoint<T> : kRootHalf<T>;
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
        later<T, B, false>(radix, from, to, n, span, table, scale);
        table += 2 * (radix - 1) * span;
        span *= radix;
        std::swap(from, to);
    }
    const int radix = plan.radix[plan.count - 1];
    if (scaled)
        later<T, B, true>(radix, from, dst, n, span, table, scale);
    else
        later<T, B, false>(radix, from, dst, n, span, table, scale);
}

}  // namespace

template <class T, class In, class Middle, class Out>
void inCacheTransform(int order, const FloatingRecord<T>& record, In src, Middle work,
                      Middle middle, Out dst, bool scaled) {
    const PassPlan plan = passPlan<T>(order);
    const T* table = record.twiddleTable;
    if constexpr (kVecBytes == 64) {
        if (plan.bytes == 64)
            return runPasses<T, 64>(plan, order, table, src, work, middle, dst, record.normFactor,
                                    scaled);
    }
    runPasses<T, kVecBytes == 16 ? 16 : 32>(plan, order, table, src, work, middle, dst,
                                            record.normFactor, scaled);
}

template <class T, class Middle>
void rowTransform(int order, int spanBits, const T* table, Middle row, Middle work) {
    const PassPlan plan = rowPlan(order, spanBits);
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    std::ptrdiff_t span = plan.first;
    Middle from = row, to = work;
    for (int i = 0; i < plan.count; ++i) {
        const int radix = plan.radix[i];
        later<T, kVecBytes, false>(radix, from, i + 1 < plan.count ? to : row, n, span, table,
                                   T(1));
        table += 2 * (radix - 1) * span;
        span *= radix;
        std::swap(from, to);
    }
}

template void rowTransform(int, int, const Vlq32f*, Blocks<Vlq32f>, Blocks<Vlq32f>);
template void rowTransform(int, int, const Vlq32f*, Planes<Vlq32f>, Planes<Vlq32f>);
template void rowTransform(int, int, const Vlq64f*, Blocks<Vlq64f>, Blocks<Vlq64f>);
template void rowTransform(int, int, const Vlq64f*, Planes<Vlq64f>, Planes<Vlq64f>);

template void inCacheTransform(int, const FloatingRecord<Vlq32f>&, ForwardIn<Vlq32f>,
                               Blocks<Vlq32f>, Blocks<Vlq32f>, ForwardOut<Vlq32f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq32f>&, InverseIn<Vlq32f>,
                               Blocks<Vlq32f>, Blocks<Vlq32f>, InverseOut<Vlq32f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq32f>&, ForwardIn<Vlq32f>,
                               Blocks<Vlq32f>, Blocks<Vlq32f>, Blocks<Vlq32f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq32f>&, Blocks<Vlq32f, true>,
                               Blocks<Vlq32f>, Blocks<Vlq32f>, InverseOut<Vlq32f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq32f>&, Parts<const Vlq32f>,
                               Planes<Vlq32f>, Planes<Vlq32f>, Parts<Vlq32f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq64f>&, ForwardIn<Vlq64f>,
                               Blocks<Vlq64f>, Blocks<Vlq64f>, ForwardOut<Vlq64f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq64f>&, InverseIn<Vlq64f>,
                               Blocks<Vlq64f>, Blocks<Vlq64f>, InverseOut<Vlq64f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq64f>&, ForwardIn<Vlq64f>,
                               Blocks<Vlq64f>, Blocks<Vlq64f>, Blocks<Vlq64f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq64f>&, Blocks<Vlq64f, true>,
                               Blocks<Vlq64f>, Blocks<Vlq64f>, InverseOut<Vlq64f>, bool);
template void inCacheTransform(int, const FloatingRecord<Vlq64f>&, Parts<const Vlq64f>,
                               Planes<Vlq64f>, Planes<Vlq64f>, Parts<Vlq64f>, bool);

}  // namespace vlq::fft
