// FIR filtering by its definition, one sample at a time, in double precision.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace vlqtest {

class FirRef {
public:
    // past: newest sample first; empty for silence.
    template <class Tap, class Sample = float>
    explicit FirRef(const std::vector<Tap>& taps, const std::vector<Sample>& past = {})
        : taps_(taps.begin(), taps.end()), line_(past.begin(), past.end()) {
        line_.resize(taps_.size());
    }
    template <class Tap>
    void setTaps(const std::vector<Tap>& taps) {
        taps_.assign(taps.begin(), taps.end());
    }

    double next(double sample) {
        for (std::size_t i = line_.size() - 1; i > 0; --i) line_[i] = line_[i - 1];
        line_[0] = sample;
        double sum = 0;
        magnitude_ = 0;
        for (std::size_t k = 0; k < taps_.size(); ++k) {
            sum += taps_[k] * line_[k];
            magnitude_ += std::fabs(taps_[k] * line_[k]);
        }
        return sum;
    }
    // Sum of the magnitudes of the last output's terms: what its rounding errors are relative to.
    double magnitude() const { return magnitude_; }
    // Newest first.
    template <class Sample>
    std::vector<Sample> line() const {
        std::vector<Sample> samples;
        for (const double x : line_) samples.push_back(static_cast<Sample>(x));
        return samples;
    }

private:
    std::vector<double> taps_;
    std::vector<double> line_;
    double magnitude_ = 0;
};

// Nearest integer, ties to even, saturated to 16 bits; 2^-scaleFactor may leave the double's range.
inline int round16(double value, int scaleFactor) {
    const int exponent = scaleFactor > 2000 ? -2000 : scaleFactor < -2000 ? 2000 : -scaleFactor;
    const double scaled = std::ldexp(value, exponent);
    if (!(scaled < 32767.0)) return 32767;
    if (scaled < -32768.0) return -32768;
    return static_cast<int>(std::nearbyint(scaled));
}

// Worst rounding error of a sum of n products in single precision, relative to the terms'
// magnitudes.
inline double sumBound(std::size_t n) { return static_cast<double>(n + 2) * 0x1p-24; }

// A generous bound on the error of a circular convolution of length n by transforms in single
// precision: 4 log2(n) units of rounding of the product of the norms.
inline double transformBound(std::size_t n, const std::vector<float>& taps, double samplePeak) {
    double energy = 0;
    for (const float h : taps) energy += static_cast<double>(h) * h;
    const double length = static_cast<double>(n);
    return 4 * std::log2(length) * 0x1p-24 * std::sqrt(energy) * samplePeak * std::sqrt(length);
}

}  // namespace vlqtest
