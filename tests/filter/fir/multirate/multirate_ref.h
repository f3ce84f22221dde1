// Multi-rate filtering step by step at the high rate, as its rule is stated.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "filter/fir/multirate/multirate_kinds.h"
#include "filter/fir/values.h"

namespace vlqtest {

class MultiRateRef {
public:
    // past: newest sample first; empty for silence.
    template <class Tap, class Sample = Tap>
    MultiRateRef(const std::vector<Tap>& taps, RateArguments rates,
                 const std::vector<Sample>& past = {})
        : rates_(rates),
          u_((rates.up - rates.upPhase) % rates.up),
          v_((rates.down - rates.downPhase) % rates.down) {
        setTaps(taps);
        std::size_t length = 0;
        while (length * static_cast<std::size_t>(rates.up) < taps.size()) ++length;
        line_.resize(length);
        for (std::size_t i = 0; i < past.size() && i < length; ++i) line_[i] = wide(past[i]);
    }
    template <class Tap>
    void setTaps(const std::vector<Tap>& taps) {
        taps_.clear();
        for (const Tap& h : taps) taps_.push_back(wide(h));
    }

    struct Output {
        WideComplex sum;
        Wide magnitude;  // of the terms, all told: what rounding errors are relative to
        std::size_t terms;
    };
    // Whole periods: their samples in, their outputs out.
    template <class Sample>
    std::vector<Output> run(const std::vector<Sample>& samples) {
        std::vector<Output> outputs;
        const std::size_t steps = samples.size() * static_cast<std::size_t>(rates_.up);
        auto next = samples.begin();
        for (std::size_t step = 0; step < steps; ++step) {
            if (u_ == 0) {
                line_.insert(line_.begin(), wide(*next++));
                line_.pop_back();
            }
            if (v_ == 0) outputs.push_back(output());
            u_ = (u_ + 1) % rates_.up;
            v_ = (v_ + 1) % rates_.down;
        }
        return outputs;
    }
    template <class Sample>
    std::vector<Sample> line() const {
        std::vector<Sample> samples;
        for (const WideComplex& x : line_) samples.push_back(exactly<Sample>(x));
        return samples;
    }
    std::size_t length() const { return line_.size(); }

private:
    Output output() const {
        Output y{0, 0, 0};
        for (std::size_t i = 0, k = static_cast<std::size_t>(u_); k < taps_.size();
             ++i, k += static_cast<std::size_t>(rates_.up)) {
            const WideComplex &h = taps_[k], &x = line_[i];
            y.sum += WideComplex(h.real() * x.real() - h.imag() * x.imag(),
                                 h.real() * x.imag() + h.imag() * x.real());
            y.magnitude += (std::fabs(h.real()) + std::fabs(h.imag())) *
                           (std::fabs(x.real()) + std::fabs(x.imag()));
            ++y.terms;
        }
        return y;
    }

    RateArguments rates_;
    int u_, v_;
    std::vector<WideComplex> taps_, line_;
};

// Worst rounding error of a sum, relative to its terms.
template <class Tap>
Wide errorBound(const MultiRateRef::Output& y) {
    return static_cast<Wide>(2 * y.terms + 3) * kUnit<Tap> * y.magnitude;
}

inline Wide errorBound(const MultiRateRef::Output& y, Type taps) {
    return static_cast<Wide>(2 * y.terms + 3) * unitOf(taps) * y.magnitude;
}

template <class T>
bool sameBits(const std::vector<T>& a, const std::vector<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

}  // namespace vlqtest
