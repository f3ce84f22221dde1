#include "fourier/kernel/complex.h"

#include "fourier/kernel/large.h"
#include "fourier/kernel/passes.h"
#include "fourier/kernel/small.h"
#include "fourier/plan/complex_plan.h"
#include "fourier/plan/passes.h"

namespace vlq::fft {
namespace {

template <class T, int B, bool scaled, class In, class Out>
void later(int radix, In in, Out out, std::ptrdiff_t n, std::ptrdiff_t span, const T* table, T scale) {
    switch (radix) {
        case 4: return laterPass<T, B, 4, scaled>(in, out, n, span, table, scale);
        case 8: return laterPass<T, B, 8, scaled>(in, out, n, span, table, scale);
        default: return laterPass<T, B, 16, scaled>(in, out, n, span, table, scale);
    }
}

// All passes of one order: from src to `work`, then between `work` and `middle`, which is the
// memory of dst in the form that passes use among themselves, and at last to dst.
template <class T, int B, class In, class Middle, class Out>
void runPasses(const PassPlan& plan, int order, const T* table, In src, Middle work, Middle middle, Out dst, T scale,
               bool scaled) {
    constexpr int lanes = Vec<T, B>::lanes;
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    const T eighth = order % 2 ? kEightPoint<T> : kRootHalf<T>;
    if constexpr (lanes <= 8) {
        if (plan.first == 8) firstPass<T, B, 8>(src, work, n, eighth);
    }
    if (plan.first == 16) firstPass<T, B, 16>(src, work, n, eighth);
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
    if (scaled) later<T, B, true>(radix, from, dst, n, span, table, scale);
    else later<T, B, false>(radix, from, dst, n, span, table, scale);
}

template <class T, class In, class Middle, class Out>
void inCache(int order, const FloatingRecord<T>& record, In src, Middle work, Middle middle, Out dst, bool scaled) {
    const PassPlan plan = passPlan<T>(order);
    const T* table = record.twiddleTable;
    auto run = [&]<int B>(std::integral_constant<int, B>) {
        runPasses<T, B>(plan, order, table, src, work, middle, dst, record.normFactor, scaled);
    };
    if constexpr (kVecBytes == 64) {
        if (plan.bytes == 64) return run(std::integral_constant<int, 64>{});
    }
    if constexpr (kVecBytes >= 32) {
        if (plan.bytes == 32) return run(std::integral_constant<int, 32>{});
    }
    if constexpr (kVecBytes == 16) run(std::integral_constant<int, 16>{});
}

}  // namespace

template <class T, Direction direction>
void complexTransform(int order, const FloatingRecord<T>& record, const T* src, T* dst, void* work, bool scaled) {
    constexpr bool exchanged = direction == Direction::inverse;
    const Interleaved<const T, exchanged> in{src};
    const Interleaved<T, exchanged> out{dst};
    T* const buffer = static_cast<T*>(work);
    if (order <= ComplexLimits<T>::straightLine) {
        if (scaled) smallTransform<T, true>(order, in, out, record.normFactor);
        else smallTransform<T, false>(order, in, out, T(1));
    } else if (order <= ComplexLimits<T>::inCache) {
        inCache<T>(order, record, in, Blocks<T>{buffer}, Blocks<T>{dst}, out, scaled);
    } else {
        largeTransform<T>(order, record, in, Blocks<T>{dst}, out, buffer, src == dst, scaled);
    }
}

template <class T, Direction direction>
void splitTransform(int order, const FloatingRecord<T>& record, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm,
                    void* work, bool scaled) {
    if constexpr (direction == Direction::inverse) {
        std::swap(srcRe, srcIm);
        std::swap(dstRe, dstIm);
    }
    const Parts<const T> in{srcRe, srcIm};
    const Parts<T> out{dstRe, dstIm};
    T* const buffer = static_cast<T*>(work);
    if (order <= ComplexLimits<T>::straightLine) {
        if (scaled) smallTransform<T, true>(order, in, out, record.normFactor);
        else smallTransform<T, false>(order, in, out, T(1));
    } else if (order <= ComplexLimits<T>::inCache) {
        const Planes<T> planes{buffer, buffer + (std::ptrdiff_t{1} << order)};
        inCache<T>(order, record, in, planes, Planes<T>{dstRe, dstIm}, out, scaled);
    } else {
        largeTransform<T>(order, record, in, Planes<T>{dstRe, dstIm}, out, buffer, srcRe == dstRe, scaled);
    }
}

#define VLQ_TRANSFORMS(T, direction)                                                                               \
    template void complexTransform<T, direction>(int, const FloatingRecord<T>&, const T*, T*, void*, bool);        \
    template void splitTransform<T, direction>(int, const FloatingRecord<T>&, const T*, const T*, T*, T*, void*, bool);
VLQ_TRANSFORMS(Vlq32f, Direction::forward)
VLQ_TRANSFORMS(Vlq32f, Direction::inverse)
VLQ_TRANSFORMS(Vlq64f, Direction::forward)
VLQ_TRANSFORMS(Vlq64f, Direction::inverse)
#undef VLQ_TRANSFORMS

}  // namespace vlq::fft
