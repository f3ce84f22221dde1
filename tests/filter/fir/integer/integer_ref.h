// FIR filtering in integer arithmetic by its definition: sums modulo 2^32, one sample at a time.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "vlqs/types.h"

// In the namespace of the types, where the standard library looks.
inline bool operator==(Vlq16sc a, Vlq16sc b) { return a.re == b.re && a.im == b.im; }
inline bool operator==(Vlq32sc a, Vlq32sc b) { return a.re == b.re && a.im == b.im; }

namespace vlqtest {

// Floor of value / 2^n.
inline std::int64_t floorShift(std::int64_t value, int n) {
    const std::int64_t unit = std::int64_t{1} << n;
    const std::int64_t quotient = value / unit;
    return quotient * unit > value ? quotient - 1 : quotient;
}

// A sum as the filter stores it: times 2^exponent, rounded half to even, saturated.
inline Vlq16s finished(std::int32_t sum, std::int64_t exponent) {
    std::int64_t value = sum;
    if (exponent < 0) {
        const int n = exponent < -31 ? 31 : static_cast<int>(-exponent);
        const std::int64_t unit = std::int64_t{1} << n;
        const std::int64_t floor = floorShift(value, n), rest = value - floor * unit;
        const bool up = 2 * rest > unit || (2 * rest == unit && floor % 2 != 0);
        value = up ? floor + 1 : floor;
    } else if (exponent > 0) {
        const std::uint64_t shifted =
            exponent > 31 ? 0 : static_cast<std::uint64_t>(value) << exponent;
        value = static_cast<std::int32_t>(static_cast<std::uint32_t>(shifted));
    }
    return static_cast<Vlq16s>(value > 32767 ? 32767 : value < -32768 ? -32768 : value);
}

// Real samples and taps, or complex ones.
template <class Sample, class Tap>
class FirIntRef {
public:
    FirIntRef(const std::vector<Tap>& h, std::int64_t tapsFactor,
              const std::vector<Sample>& past = {})
        : taps(h), factor(tapsFactor), line(past) {
        line.resize(taps.size());
    }
    Sample next(Sample sample, std::int64_t scaleFactor) {
        line.insert(line.begin(), sample);
        line.pop_back();
        return sumAll(line, taps, factor - scaleFactor);
    }
    std::vector<Sample> block(const std::vector<Sample>& src, std::int64_t scaleFactor) {
        std::vector<Sample> dst;
        for (const Sample x : src) dst.push_back(next(x, scaleFactor));
        return dst;
    }

    std::vector<Tap> taps;
    std::int64_t factor;
    std::vector<Sample> line;  // newest first

    // One result; x may be longer than h.
    template <class T>
    static Vlq16s sumAll(const std::vector<Vlq16s>& x, const std::vector<T>& h,
                         std::int64_t exponent) {
        std::uint32_t sum = 0;
        for (std::size_t k = 0; k < h.size(); ++k) sum += product(x[k], h[k]);
        return finished(static_cast<std::int32_t>(sum), exponent);
    }
    static Vlq16sc sumAll(const std::vector<Vlq16sc>& x, const std::vector<Vlq32sc>& h,
                          std::int64_t exponent) {
        std::uint32_t re = 0, im = 0;
        for (std::size_t k = 0; k < h.size(); ++k) {
            re += product(x[k].re, h[k].re) - product(x[k].im, h[k].im);
            im += product(x[k].re, h[k].im) + product(x[k].im, h[k].re);
        }
        return {finished(static_cast<std::int32_t>(re), exponent),
                finished(static_cast<std::int32_t>(im), exponent)};
    }

private:
    static std::uint32_t product(std::int64_t a, std::int64_t b) {
        return static_cast<std::uint32_t>(a * b);
    }
};

// ---- taps as a record holds them ----------------------------------------------------------------

// All parts of the taps, as one list.
inline std::vector<std::int64_t> partsOf(const std::vector<Vlq16s>& taps) {
    return {taps.begin(), taps.end()};
}
inline std::vector<std::int64_t> partsOf(const std::vector<Vlq32s>& taps) {
    return {taps.begin(), taps.end()};
}
inline std::vector<std::int64_t> partsOf(const std::vector<Vlq32sc>& taps) {
    std::vector<std::int64_t> parts;
    for (const Vlq32sc h : taps) parts.insert(parts.end(), {h.re, h.im});
    return parts;
}
template <class Part>
std::vector<Part> tapsOf(const std::vector<std::int64_t>& parts, const Part*) {
    return {parts.begin(), parts.end()};
}
inline std::vector<Vlq32sc> tapsOf(const std::vector<std::int64_t>& parts, const Vlq32sc*) {
    std::vector<Vlq32sc> taps;
    for (std::size_t i = 0; i < parts.size(); i += 2)
        taps.push_back({static_cast<Vlq32s>(parts[i]), static_cast<Vlq32s>(parts[i + 1])});
    return taps;
}

template <class Tap>
struct HeldTaps {
    std::vector<Tap> taps;
    int exponent;
};

template <class Tap>
HeldTaps<Tap> held(const std::vector<Tap>& taps) {
    auto parts = partsOf(taps);
    int shift = 0;
    if constexpr (sizeof(Tap) == 2) {
        for (const std::int64_t part : parts) shift = part == -32768 ? 1 : shift;
    } else {
        std::int64_t peak = 0;
        for (const std::int64_t part : parts)
            peak = std::max<std::int64_t>(peak, part < 0 ? -part : part);
        while (peak >> shift > 32766) ++shift;
    }
    for (std::int64_t& part : parts) part = floorShift(part, shift);
    return {tapsOf(parts, static_cast<const Tap*>(nullptr)), shift};
}

// Float taps: the search for the power of two stops `limit` steps out.
inline HeldTaps<Vlq32s> held(const std::vector<float>& parts, int limit) {
    double peak = 0;
    for (const float h : parts) peak = std::max(peak, std::fabs(static_cast<double>(h)));
    int n = 0;
    if (peak > 32767.0) {
        while (std::ldexp(peak, -n) > 32767.0 && n < limit) ++n;
    } else {
        while (2 * std::ldexp(peak, -n) < 32767.0 && n > -limit) --n;
    }
    HeldTaps<Vlq32s> result{{}, n};
    for (const float h : parts)
        result.taps.push_back(
            static_cast<Vlq32s>(std::round(std::ldexp(static_cast<double>(h), -n))));
    return result;
}

}  // namespace vlqtest
