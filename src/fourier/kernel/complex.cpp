#include "fourier/kernel/complex.h"

#include <cmath>
#include <cstring>
#include <utility>

namespace vlq::fft {
namespace {

template <class T>
T get(const T* p) {
    T v;
    std::memcpy(&v, p, sizeof(T));
    return v;
}
template <class T>
void put(T* p, T v) { std::memcpy(p, &v, sizeof(T)); }

// In place, decimated in time, one value at a time, element i at re[i * step], im[i * step].
template <class T, Direction direction>
void transformInPlace(int order, const T* table, T* re, T* im, std::ptrdiff_t step, T scale) {
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    for (std::ptrdiff_t i = 1, j = 0; i < n; ++i) {
        std::ptrdiff_t bit = n >> 1;
        for (; j & bit; bit >>= 1) j ^= bit;
        j ^= bit;
        if (i >= j) continue;
        for (T* a : {re, im}) {
            const T x = get(a + i * step), y = get(a + j * step);
            put(a + i * step, y);
            put(a + j * step, x);
        }
    }
    for (std::ptrdiff_t span = 1; span < n; span *= 2) {
        for (std::ptrdiff_t k = 0; k < span; ++k) {
            T c, s;
            if (table) {
                c = table[2 * k * (n / 2 / span)];
                s = table[2 * k * (n / 2 / span) + 1];
            } else {
                const double angle = -3.14159265358979323846 * static_cast<double>(k) / static_cast<double>(span);
                c = static_cast<T>(std::cos(angle));
                s = static_cast<T>(std::sin(angle));
            }
            if (direction == Direction::inverse) s = -s;
            for (std::ptrdiff_t g = k; g < n; g += 2 * span) {
                T *ar = re + g * step, *ai = im + g * step, *br = ar + span * step, *bi = ai + span * step;
                const T xr = get(br) * c - get(bi) * s, xi = get(br) * s + get(bi) * c;
                const T yr = get(ar), yi = get(ai);
                put(ar, yr + xr);
                put(ai, yi + xi);
                put(br, yr - xr);
                put(bi, yi - xi);
            }
        }
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        put(re + i * step, get(re + i * step) * scale);
        put(im + i * step, get(im + i * step) * scale);
    }
}

}  // namespace

template <class T, Direction direction>
void complexTransform(int order, const FloatingRecord<T>& record, const T* src, T* dst, void*, bool scaled) {
    if (src != dst) std::memcpy(static_cast<void*>(dst), src, (2 * sizeof(T)) << order);
    transformInPlace<T, direction>(order, record.twiddleTable, dst, dst + 1, 2, scaled ? record.normFactor : T(1));
}

template <class T, Direction direction>
void splitTransform(int order, const FloatingRecord<T>& record, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm,
                    void*, bool scaled) {
    if (srcRe != dstRe) std::memcpy(static_cast<void*>(dstRe), srcRe, sizeof(T) << order);
    if (srcIm != dstIm) std::memcpy(static_cast<void*>(dstIm), srcIm, sizeof(T) << order);
    transformInPlace<T, direction>(order, record.twiddleTable, dstRe, dstIm, 1, scaled ? record.normFactor : T(1));
}

template void complexTransform<Vlq32f, Direction::forward>(int, const FloatingRecord<Vlq32f>&, const Vlq32f*, Vlq32f*,
                                                           void*, bool);
template void complexTransform<Vlq32f, Direction::inverse>(int, const FloatingRecord<Vlq32f>&, const Vlq32f*, Vlq32f*,
                                                           void*, bool);
template void complexTransform<Vlq64f, Direction::forward>(int, const FloatingRecord<Vlq64f>&, const Vlq64f*, Vlq64f*,
                                                           void*, bool);
template void complexTransform<Vlq64f, Direction::inverse>(int, const FloatingRecord<Vlq64f>&, const Vlq64f*, Vlq64f*,
                                                           void*, bool);
template void splitTransform<Vlq32f, Direction::forward>(int, const FloatingRecord<Vlq32f>&, const Vlq32f*,
                                                         const Vlq32f*, Vlq32f*, Vlq32f*, void*, bool);
template void splitTransform<Vlq32f, Direction::inverse>(int, const FloatingRecord<Vlq32f>&, const Vlq32f*,
                                                         const Vlq32f*, Vlq32f*, Vlq32f*, void*, bool);
template void splitTransform<Vlq64f, Direction::forward>(int, const FloatingRecord<Vlq64f>&, const Vlq64f*,
                                                         const Vlq64f*, Vlq64f*, Vlq64f*, void*, bool);
template void splitTransform<Vlq64f, Direction::inverse>(int, const FloatingRecord<Vlq64f>&, const Vlq64f*,
                                                         const Vlq64f*, Vlq64f*, Vlq64f*, void*, bool);

}  // namespace vlq::fft
