// The kinds of FIR records beyond single precision, each with its functions under common names.
#pragma once

#include <cmath>
#include <complex>
#include <type_traits>
#include <vector>

#include "harness/random.h"
#include "vlqs/filter.h"
#include "vlqs/fourier.h"

namespace vlqtest {

struct Fir32fc {
    using Tap = Vlq32fc;
    using Sample = Vlq32fc;
    using State = VlqsFIRState_32fc;
    static constexpr bool kScaled = false;
    static constexpr Vlq32u kWord = 0x46493032, kMultiRateWord = 0x46493034;
    static constexpr int kTransformTaps = 16;
    static constexpr auto stateSize = vlqsFIRGetStateSize_32fc;
    static constexpr auto init = vlqsFIRInit_32fc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc_32fc;
    static constexpr auto free = vlqsFIRFree_32fc;
    static constexpr auto setTaps = vlqsFIRSetTaps_32fc;
    static constexpr auto getTaps = vlqsFIRGetTaps_32fc;
    static constexpr auto setLine = vlqsFIRSetDlyLine_32fc;
    static constexpr auto getLine = vlqsFIRGetDlyLine_32fc;
    static constexpr auto transformSize = vlqsFFTGetSize_C_32fc;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int) {
        return vlqsFIR_32fc(src, dst, len, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int) {
        return vlqsFIR_32fc_I(srcDst, len, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_32fc(src, dst, state);
    }
};
struct Fir32fc_16sc {
    using Tap = Vlq32fc;
    using Sample = Vlq16sc;
    using State = VlqsFIRState32fc_16sc;
    static constexpr bool kScaled = true;
    static constexpr Vlq32u kWord = 0x46493036, kMultiRateWord = 0x46493038;
    static constexpr int kTransformTaps = 16;
    static constexpr auto stateSize = vlqsFIRGetStateSize32fc_16sc;
    static constexpr auto init = vlqsFIRInit32fc_16sc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc32fc_16sc;
    static constexpr auto free = vlqsFIRFree32fc_16sc;
    static constexpr auto setTaps = vlqsFIRSetTaps32fc_16sc;
    static constexpr auto getTaps = vlqsFIRGetTaps32fc_16sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine32fc_16sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine32fc_16sc;
    static constexpr auto transformSize = vlqsFFTGetSize_C_32fc;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int scale) {
        return vlqsFIR32fc_16sc_Sfs(src, dst, len, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int scale) {
        return vlqsFIR32fc_16sc_ISfs(srcDst, len, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne32fc_16sc_Sfs(src, dst, state, scale);
    }
};
struct Fir64fc {
    using Tap = Vlq64fc;
    using Sample = Vlq64fc;
    using State = VlqsFIRState_64fc;
    static constexpr bool kScaled = false;
    static constexpr Vlq32u kWord = 0x46493134, kMultiRateWord = 0x46493136;
    static constexpr int kTransformTaps = 16;
    static constexpr auto stateSize = vlqsFIRGetStateSize_64fc;
    static constexpr auto init = vlqsFIRInit_64fc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc_64fc;
    static constexpr auto free = vlqsFIRFree_64fc;
    static constexpr auto setTaps = vlqsFIRSetTaps_64fc;
    static constexpr auto getTaps = vlqsFIRGetTaps_64fc;
    static constexpr auto setLine = vlqsFIRSetDlyLine_64fc;
    static constexpr auto getLine = vlqsFIRGetDlyLine_64fc;
    static constexpr auto transformSize = vlqsFFTGetSize_C_64fc;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int) {
        return vlqsFIR_64fc(src, dst, len, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int) {
        return vlqsFIR_64fc_I(srcDst, len, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_64fc(src, dst, state);
    }
};
struct Fir64fc_32fc {
    using Tap = Vlq64fc;
    using Sample = Vlq32fc;
    using State = VlqsFIRState64fc_32fc;
    static constexpr bool kScaled = false;
    static constexpr Vlq32u kWord = 0x46493138, kMultiRateWord = 0x46493230;
    static constexpr int kTransformTaps = 16;
    static constexpr auto stateSize = vlqsFIRGetStateSize64fc_32fc;
    static constexpr auto init = vlqsFIRInit64fc_32fc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc64fc_32fc;
    static constexpr auto free = vlqsFIRFree64fc_32fc;
    static constexpr auto setTaps = vlqsFIRSetTaps64fc_32fc;
    static constexpr auto getTaps = vlqsFIRGetTaps64fc_32fc;
    static constexpr auto setLine = vlqsFIRSetDlyLine64fc_32fc;
    static constexpr auto getLine = vlqsFIRGetDlyLine64fc_32fc;
    static constexpr auto transformSize = vlqsFFTGetSize_C_64fc;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int) {
        return vlqsFIR64fc_32fc(src, dst, len, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int) {
        return vlqsFIR64fc_32fc_I(srcDst, len, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne64fc_32fc(src, dst, state);
    }
};
struct Fir64fc_32sc {
    using Tap = Vlq64fc;
    using Sample = Vlq32sc;
    using State = VlqsFIRState64fc_32sc;
    static constexpr bool kScaled = true;
    static constexpr Vlq32u kWord = 0x46493232, kMultiRateWord = 0x46493234;
    static constexpr int kTransformTaps = 16;
    static constexpr auto stateSize = vlqsFIRGetStateSize64fc_32sc;
    static constexpr auto init = vlqsFIRInit64fc_32sc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc64fc_32sc;
    static constexpr auto free = vlqsFIRFree64fc_32sc;
    static constexpr auto setTaps = vlqsFIRSetTaps64fc_32sc;
    static constexpr auto getTaps = vlqsFIRGetTaps64fc_32sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine64fc_32sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine64fc_32sc;
    static constexpr auto transformSize = vlqsFFTGetSize_C_64fc;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int scale) {
        return vlqsFIR64fc_32sc_Sfs(src, dst, len, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int scale) {
        return vlqsFIR64fc_32sc_ISfs(srcDst, len, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64fc_32sc_Sfs(src, dst, state, scale);
    }
};
struct Fir64fc_16sc {
    using Tap = Vlq64fc;
    using Sample = Vlq16sc;
    using State = VlqsFIRState64fc_16sc;
    static constexpr bool kScaled = true;
    static constexpr Vlq32u kWord = 0x46493236, kMultiRateWord = 0x46493238;
    static constexpr int kTransformTaps = 16;
    static constexpr auto stateSize = vlqsFIRGetStateSize64fc_16sc;
    static constexpr auto init = vlqsFIRInit64fc_16sc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc64fc_16sc;
    static constexpr auto free = vlqsFIRFree64fc_16sc;
    static constexpr auto setTaps = vlqsFIRSetTaps64fc_16sc;
    static constexpr auto getTaps = vlqsFIRGetTaps64fc_16sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine64fc_16sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine64fc_16sc;
    static constexpr auto transformSize = vlqsFFTGetSize_C_64fc;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int scale) {
        return vlqsFIR64fc_16sc_Sfs(src, dst, len, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int scale) {
        return vlqsFIR64fc_16sc_ISfs(srcDst, len, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64fc_16sc_Sfs(src, dst, state, scale);
    }
};
struct Fir64f {
    using Tap = Vlq64f;
    using Sample = Vlq64f;
    using State = VlqsFIRState_64f;
    static constexpr bool kScaled = false;
    static constexpr Vlq32u kWord = 0x46493133, kMultiRateWord = 0x46493135;
    static constexpr int kTransformTaps = 32;
    static constexpr auto stateSize = vlqsFIRGetStateSize_64f;
    static constexpr auto init = vlqsFIRInit_64f;
    static constexpr auto initAlloc = vlqsFIRInitAlloc_64f;
    static constexpr auto free = vlqsFIRFree_64f;
    static constexpr auto setTaps = vlqsFIRSetTaps_64f;
    static constexpr auto getTaps = vlqsFIRGetTaps_64f;
    static constexpr auto setLine = vlqsFIRSetDlyLine_64f;
    static constexpr auto getLine = vlqsFIRGetDlyLine_64f;
    static constexpr auto transformSize = vlqsFFTGetSize_R_64f;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int) {
        return vlqsFIR_64f(src, dst, len, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int) {
        return vlqsFIR_64f_I(srcDst, len, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_64f(src, dst, state);
    }
};
struct Fir64f_32f {
    using Tap = Vlq64f;
    using Sample = Vlq32f;
    using State = VlqsFIRState64f_32f;
    static constexpr bool kScaled = false;
    static constexpr Vlq32u kWord = 0x46493137, kMultiRateWord = 0x46493139;
    static constexpr int kTransformTaps = 32;
    static constexpr auto stateSize = vlqsFIRGetStateSize64f_32f;
    static constexpr auto init = vlqsFIRInit64f_32f;
    static constexpr auto initAlloc = vlqsFIRInitAlloc64f_32f;
    static constexpr auto free = vlqsFIRFree64f_32f;
    static constexpr auto setTaps = vlqsFIRSetTaps64f_32f;
    static constexpr auto getTaps = vlqsFIRGetTaps64f_32f;
    static constexpr auto setLine = vlqsFIRSetDlyLine64f_32f;
    static constexpr auto getLine = vlqsFIRGetDlyLine64f_32f;
    static constexpr auto transformSize = vlqsFFTGetSize_R_64f;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int) {
        return vlqsFIR64f_32f(src, dst, len, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int) {
        return vlqsFIR64f_32f_I(srcDst, len, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne64f_32f(src, dst, state);
    }
};
struct Fir64f_32s {
    using Tap = Vlq64f;
    using Sample = Vlq32s;
    using State = VlqsFIRState64f_32s;
    static constexpr bool kScaled = true;
    static constexpr Vlq32u kWord = 0x46493231, kMultiRateWord = 0x46493233;
    static constexpr int kTransformTaps = 32;
    static constexpr auto stateSize = vlqsFIRGetStateSize64f_32s;
    static constexpr auto init = vlqsFIRInit64f_32s;
    static constexpr auto initAlloc = vlqsFIRInitAlloc64f_32s;
    static constexpr auto free = vlqsFIRFree64f_32s;
    static constexpr auto setTaps = vlqsFIRSetTaps64f_32s;
    static constexpr auto getTaps = vlqsFIRGetTaps64f_32s;
    static constexpr auto setLine = vlqsFIRSetDlyLine64f_32s;
    static constexpr auto getLine = vlqsFIRGetDlyLine64f_32s;
    static constexpr auto transformSize = vlqsFFTGetSize_R_64f;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int scale) {
        return vlqsFIR64f_32s_Sfs(src, dst, len, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int scale) {
        return vlqsFIR64f_32s_ISfs(srcDst, len, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64f_32s_Sfs(src, dst, state, scale);
    }
};
struct Fir64f_16s {
    using Tap = Vlq64f;
    using Sample = Vlq16s;
    using State = VlqsFIRState64f_16s;
    static constexpr bool kScaled = true;
    static constexpr Vlq32u kWord = 0x46493235, kMultiRateWord = 0x46493237;
    static constexpr int kTransformTaps = 32;
    static constexpr auto stateSize = vlqsFIRGetStateSize64f_16s;
    static constexpr auto init = vlqsFIRInit64f_16s;
    static constexpr auto initAlloc = vlqsFIRInitAlloc64f_16s;
    static constexpr auto free = vlqsFIRFree64f_16s;
    static constexpr auto setTaps = vlqsFIRSetTaps64f_16s;
    static constexpr auto getTaps = vlqsFIRGetTaps64f_16s;
    static constexpr auto setLine = vlqsFIRSetDlyLine64f_16s;
    static constexpr auto getLine = vlqsFIRGetDlyLine64f_16s;
    static constexpr auto transformSize = vlqsFFTGetSize_R_64f;
    static VlqStatus block(const Sample* src, Sample* dst, int len, State* state, int scale) {
        return vlqsFIR64f_16s_Sfs(src, dst, len, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int len, State* state, int scale) {
        return vlqsFIR64f_16s_ISfs(srcDst, len, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64f_16s_Sfs(src, dst, state, scale);
    }
};

// ---- values of every type -------------------------------------------------------------------------

using Wide = long double;
using WideComplex = std::complex<Wide>;

template <class T>
inline constexpr bool isComplex = requires(T v) { v.re; };
template <class T, bool = isComplex<T>>
struct PartOf {
    using type = T;
};
template <class T>
struct PartOf<T, true> {
    using type = decltype(T::re);
};
template <class T>
using Part = typename PartOf<T>::type;

template <class T>
WideComplex wide(T v) {
    if constexpr (isComplex<T>) return {static_cast<Wide>(v.re), static_cast<Wide>(v.im)};
    else return {static_cast<Wide>(v), 0};
}
template <class T>
T exactly(WideComplex v) {
    if constexpr (isComplex<T>) return {static_cast<Part<T>>(v.real()), static_cast<Part<T>>(v.imag())};
    else return static_cast<T>(v.real());
}
template <class T, class Draw>
std::vector<T> drawn(std::size_t n, Draw draw) {
    std::vector<T> values(n);
    for (T& v : values) {
        if constexpr (isComplex<T>) v = {draw(), draw()};
        else v = draw();
    }
    return values;
}
// Samples over the type's range, floats in [-1, 1).
template <class T>
std::vector<T> randomSamples(std::size_t n, Rng& rng) {
    return drawn<T>(n, [&] {
        if constexpr (std::is_floating_point_v<Part<T>>) return uniformVector<Part<T>>(1, -1, 1, rng)[0];
        else return extremeValue<Part<T>>(rng);
    });
}
// Small integers: sums that every type of taps holds exactly.
template <class T>
std::vector<T> randomIntegers(std::size_t n, int peak, Rng& rng) {
    return drawn<T>(n, [&] { return static_cast<Part<T>>(static_cast<int>(rng() % static_cast<unsigned>(2 * peak + 1)) - peak); });
}
template <class T>
Wide peakOf() {
    if constexpr (std::is_floating_point_v<Part<T>>) return isComplex<T> ? 1.5L : 1;
    else return static_cast<Wide>(std::numeric_limits<Part<T>>::max()) * (isComplex<T> ? 1.5L : 1);
}

// The definition, one sample at a time.
class WideFir {
public:
    template <class Tap, class Sample = Tap>
    explicit WideFir(const std::vector<Tap>& taps, const std::vector<Sample>& past = {}) : line_(taps.size()) {
        setTaps(taps);
        for (std::size_t i = 0; i < past.size(); ++i) line_[i] = wide(past[i]);
    }
    template <class Tap>
    void setTaps(const std::vector<Tap>& taps) {
        taps_.clear();
        for (const Tap& h : taps) taps_.push_back(wide(h));
    }
    template <class Sample>
    WideComplex next(Sample sample) {
        newest_ = (newest_ + line_.size() - 1) % line_.size();
        line_[newest_] = wide(sample);
        WideComplex sum = 0;
        magnitude_ = 0;
        for (std::size_t k = 0; k < taps_.size(); ++k) {
            const WideComplex& x = line_[(newest_ + k) % line_.size()];
            const WideComplex& h = taps_[k];
            sum += WideComplex(h.real() * x.real() - h.imag() * x.imag(), h.real() * x.imag() + h.imag() * x.real());
            magnitude_ += (std::fabs(h.real()) + std::fabs(h.imag())) * (std::fabs(x.real()) + std::fabs(x.imag()));
        }
        return sum;
    }
    // Sum of the magnitudes of the last output's terms: what its rounding errors are relative to.
    Wide magnitude() const { return magnitude_; }
    Wide tapNorm() const {
        Wide energy = 0;
        for (const auto& h : taps_) energy += std::norm(h);
        return std::sqrt(energy);
    }
    template <class Sample>
    std::vector<Sample> line() const {
        std::vector<Sample> samples;
        for (std::size_t i = 0; i < line_.size(); ++i) samples.push_back(exactly<Sample>(line_[(newest_ + i) % line_.size()]));
        return samples;
    }

private:
    std::vector<WideComplex> taps_, line_;
    std::size_t newest_ = 0;
    Wide magnitude_ = 0;
};

// Half a unit in the last place of one, in the type that taps and sums have.
template <class Tap>
inline constexpr Wide kUnit = sizeof(Part<Tap>) == 4 ? 0x1p-24L : 0x1p-53L;

// Worst rounding error of the last sum, relative to its terms; with a transform of length n also
// 4 log2(n) units of the product of the norms.
template <class Tap, class Sample>
Wide errorBound(const WideFir& ref, std::size_t taps, bool transform) {
    Wide bound = static_cast<Wide>(2 * taps + 3) * kUnit<Tap> * ref.magnitude();
    if (transform) {
        const auto n = static_cast<Wide>(4 * taps);
        bound += 4 * std::log2(n) * kUnit<Tap> * ref.tapNorm() * peakOf<Sample>() * std::sqrt(n);
    }
    return bound;
}

// What may be stored for a part of a sum that lies in [exact - error, exact + error].
template <class T>
std::pair<Wide, Wide> allowed(Wide exact, Wide error, int scale) {
    auto store = [&](Wide v) -> Wide {
        if constexpr (std::is_floating_point_v<T>) {
            return static_cast<Wide>(static_cast<T>(v));
        } else {
            const Wide low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
            const Wide scaled = std::ldexp(v, scale > 4000 ? -4000 : scale < -4000 ? 4000 : -scale);
            return std::nearbyint(std::fmin(std::fmax(scaled, low), high));
        }
    };
    return {store(exact - error), store(exact + error)};
}
template <class Sample>
bool isAllowed(WideComplex exact, Wide error, int scale, Sample got) {
    const auto [reLow, reHigh] = allowed<Part<Sample>>(exact.real(), error, scale);
    const auto value = wide(got);
    if (!(value.real() >= reLow && value.real() <= reHigh)) return false;
    if constexpr (isComplex<Sample>) {
        const auto [imLow, imHigh] = allowed<Part<Sample>>(exact.imag(), error, scale);
        return value.imag() >= imLow && value.imag() <= imHigh;
    }
    return true;
}

}  // namespace vlqtest
