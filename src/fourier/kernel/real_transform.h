// The real power-of-two transform in each layout of the spectrum. N = 2^record.order.
//   Perm: X[0], X[N/2], then real and imaginary parts of X[1] to X[N/2-1]; the kernels' own form.
//   Pack: X[0], the same values, X[N/2].
//   CCS:  all values as complex numbers from X[0] to X[N/2], N + 2 elements.
#pragma once

#include <cstring>

#include "fourier/kernel/real_interleaved.h"
#include "fourier/kernel/real_recombine.h"
#include "fourier/kernel/real_registers.h"
#include "fourier/kernel/real_small.h"

namespace vlq::fft {

enum class Layout { perm, pack, ccs };

namespace detail {

// Between Perm and another layout of n values.
template <Layout layout, class T>
inline void permToLayout(T* data, std::ptrdiff_t n) {
    if constexpr (layout == Layout::pack) {
        if (n < 4) return;
        const T nyquist = scalarAt(data + 1);
        std::memmove(data + 1, data + 2, static_cast<std::size_t>(n - 2) * sizeof(T));
        putScalar(data + n - 1, nyquist);
    }
    if constexpr (layout == Layout::ccs) {
        if (n > 1) {
            putScalar(data + n, scalarAt(data + 1));
            putScalar(data + n + 1, T(0));
        }
        putScalar(data + 1, T(0));
    }
}

template <Layout layout, int n, class T>
inline void layoutToPerm(const T* src, T* perm) {
    if constexpr (layout == Layout::perm || n == 1) {
        std::memcpy(perm, src, n * sizeof(T));
    } else {
        perm[0] = scalarAt(src);
        perm[1] = scalarAt(src + (layout == Layout::ccs ? n : n - 1));
        std::memcpy(perm + 2, src + (layout == Layout::ccs ? 2 : 1), (n - 2) * sizeof(T));
    }
}

template <Layout layout, int order, class T>
inline void forwardSmall(const T* src, T* dst, bool scaled, T factor) {
    constexpr int n = 1 << order;
    T x[n], spectrum[n];
    std::memcpy(x, src, sizeof x);
    realForward<order, 1>(x, spectrum);
    if (scaled) {
        for (T& value : spectrum) value *= factor;
    }
    std::memcpy(dst, spectrum, sizeof spectrum);
    permToLayout<layout>(dst, n);
}

template <Layout layout, int order, class T>
inline void inverseSmall(const T* src, T* dst, bool scaled, T factor) {
    constexpr int n = 1 << order;
    T spectrum[n], x[n];
    layoutToPerm<layout, n>(src, spectrum);
    realInverse<order, 1>(spectrum, x);
    if (scaled) {
        for (T& value : x) value *= factor;
    }
    std::memcpy(dst, x, sizeof x);
}

// Order 5 or 6. Where few values fit a vector it is the fewer operations on split ones that count;
// those need a table, which double precision lacks at order 5.
template <class T, int order, Direction direction>
inline void inRegisters(const FloatingRecord<T>& record, const T* src, T* dst, bool scaled) {
    if constexpr (sizeof(T) == 8 && (order == 5 || kVecBytes > 16)) {
        if (scaled)
            realInterleaved<T, order, direction, true>(src, dst, record.normFactor);
        else
            realInterleaved<T, order, direction, false>(src, dst, record.normFactor);
    } else {
        if (scaled)
            realInRegisters<T, order, direction, true>(record, src, dst);
        else
            realInRegisters<T, order, direction, false>(record, src, dst);
    }
}

template <Layout layout, int order, class T>
inline void forwardRegisters(const FloatingRecord<T>& record, const T* src, T* dst) {
    inRegisters<T, order, Direction::forward>(record, src, dst, record.doFwdScale != 0);
    permToLayout<layout>(dst, 1 << order);
}

template <Layout layout, int order, class T>
inline void inverseRegisters(const FloatingRecord<T>& record, const T* src, T* dst) {
    T perm[1 << order];
    if constexpr (layout != Layout::perm) {
        layoutToPerm<layout, 1 << order>(src, perm);
        src = perm;
    }
    inRegisters<T, order, Direction::inverse>(record, src, dst, record.doInvScale != 0);
}

}  // namespace detail

// dst = spectrum of src, scaled if the record says so. src may be dst. `work` as in
// complexTransform.
template <Layout layout, class T>
inline void realForwardTransform(const FloatingRecord<T>& record, const T* src, T* dst,
                                 void* work) {
    const int order = record.order;
    const bool scaled = record.doFwdScale != 0;
    switch (order) {
        case 0: return detail::forwardSmall<layout, 0>(src, dst, scaled, record.normFactor);
        case 1: return detail::forwardSmall<layout, 1>(src, dst, scaled, record.normFactor);
        case 2: return detail::forwardSmall<layout, 2>(src, dst, scaled, record.normFactor);
        case 3: return detail::forwardSmall<layout, 3>(src, dst, scaled, record.normFactor);
        case 4: return detail::forwardSmall<layout, 4>(src, dst, scaled, record.normFactor);
        default: break;
    }
    if (order == 5) return detail::forwardRegisters<layout, 5>(record, src, dst);
    if (order == 6) return detail::forwardRegisters<layout, 6>(record, src, dst);
    complexTransform<T, Direction::forward>(order - 1, record, src, dst, work, scaled);
    const T re = scalarAt(dst), im = scalarAt(dst + 1);
    putScalar(dst, re + im);
    putScalar(dst + 1, re - im);
    recombine<Direction::forward>(order, record, dst + 2, dst + 2);
    detail::permToLayout<layout>(dst, std::ptrdiff_t{1} << order);
}

// dst = signal of the spectrum src. src may be dst.
template <Layout layout, class T>
inline void realInverseTransform(const FloatingRecord<T>& record, const T* src, T* dst,
                                 void* work) {
    const int order = record.order;
    const bool scaled = record.doInvScale != 0;
    switch (order) {
        case 0: return detail::inverseSmall<layout, 0>(src, dst, scaled, record.normFactor);
        case 1: return detail::inverseSmall<layout, 1>(src, dst, scaled, record.normFactor);
        case 2: return detail::inverseSmall<layout, 2>(src, dst, scaled, record.normFactor);
        case 3: return detail::inverseSmall<layout, 3>(src, dst, scaled, record.normFactor);
        case 4: return detail::inverseSmall<layout, 4>(src, dst, scaled, record.normFactor);
        default: break;
    }
    if (order == 5) return detail::inverseRegisters<layout, 5>(record, src, dst);
    if (order == 6) return detail::inverseRegisters<layout, 6>(record, src, dst);
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    const T mean = scalarAt(src);
    const T nyquist = scalarAt(src + (layout == Layout::perm   ? 1
                                      : layout == Layout::pack ? n - 1
                                                               : n));
    const T* values = src + (layout == Layout::pack ? 1 : 2);
    if (layout == Layout::pack && src == dst) {
        // In place the values first move up to where the pass leaves them.
        std::memmove(dst + 2, values, static_cast<std::size_t>(n - 2) * sizeof(T));
        values = dst + 2;
    }
    putScalar(dst, mean + nyquist);
    putScalar(dst + 1, mean - nyquist);
    recombine<Direction::inverse>(order, record, values, dst + 2);
    complexTransform<T, Direction::inverse>(order - 1, record, dst, dst, work, scaled);
}

}  // namespace vlq::fft
