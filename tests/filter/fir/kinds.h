// The kinds of floating FIR states, each with its functions under common names.
#pragma once

#include <cmath>
#include <complex>
#include <type_traits>
#include <vector>

#include "harness/random.h"
#include "vlqs/fft.h"
#include "vlqs/fir.h"

namespace vlqtest {

// The filter functions of a kind in one form: those without a scale factor ignore it.
template <class Kind>
struct FirForms {
    template <class K = Kind>
    static VlqStatus block(const typename K::Sample* src, typename K::Sample* dst, int len,
                           typename K::State* state, int scale) {
        if constexpr (K::kScaled)
            return K::filter(src, dst, len, state, scale);
        else
            return K::filter(src, dst, len, state);
    }
    template <class K = Kind>
    static VlqStatus inPlace(typename K::Sample* srcDst, int len, typename K::State* state,
                             int scale) {
        if constexpr (K::kScaled)
            return K::filterInPlace(srcDst, len, state, scale);
        else
            return K::filterInPlace(srcDst, len, state);
    }
    template <class K = Kind>
    static VlqStatus one(typename K::Sample src, typename K::Sample* dst, typename K::State* state,
                         int scale) {
        if constexpr (K::kScaled)
            return K::filterOne(src, dst, state, scale);
        else
            return K::filterOne(src, dst, state);
    }
};

struct Fir32f : FirForms<Fir32f> {
    using Tap = Vlq32f;
    using Sample = Vlq32f;
    using State = VlqsFIRState_32f;
    static constexpr bool kScaled = false;
    static constexpr Vlq32u kWord = 0x46493031, kMultiRateWord = 0x46493033;
    static constexpr int kTransformTaps = 64;
    static constexpr auto stateSize = vlqsFIRGetStateSize_32f;
    static constexpr auto init = vlqsFIRInit_32f;
    static constexpr auto initAlloc = vlqsFIRInitAlloc_32f;
    static constexpr auto free = vlqsFIRFree_32f;
    static constexpr auto setTaps = vlqsFIRSetTaps_32f;
    static constexpr auto getTaps = vlqsFIRGetTaps_32f;
    static constexpr auto setLine = vlqsFIRSetDlyLine_32f;
    static constexpr auto getLine = vlqsFIRGetDlyLine_32f;
    static constexpr auto transformSize = vlqsFFTGetSize_R_32f;
    static constexpr auto filter = vlqsFIR_32f;
    static constexpr auto filterInPlace = vlqsFIR_32f_I;
    static constexpr auto filterOne = vlqsFIROne_32f;
};
struct Fir32f_16s : FirForms<Fir32f_16s> {
    using Tap = Vlq32f;
    using Sample = Vlq16s;
    using State = VlqsFIRState32f_16s;
    static constexpr bool kScaled = true;
    static constexpr Vlq32u kWord = 0x46493035, kMultiRateWord = 0x46493037;
    static constexpr int kTransformTaps = 64;
    static constexpr auto stateSize = vlqsFIRGetStateSize32f_16s;
    static constexpr auto init = vlqsFIRInit32f_16s;
    static constexpr auto initAlloc = vlqsFIRInitAlloc32f_16s;
    static constexpr auto free = vlqsFIRFree32f_16s;
    static constexpr auto setTaps = vlqsFIRSetTaps32f_16s;
    static constexpr auto getTaps = vlqsFIRGetTaps32f_16s;
    static constexpr auto setLine = vlqsFIRSetDlyLine32f_16s;
    static constexpr auto getLine = vlqsFIRGetDlyLine32f_16s;
    static constexpr auto transformSize = vlqsFFTGetSize_R_32f;
    static constexpr auto filter = vlqsFIR32f_16s_Sfs;
    static constexpr auto filterInPlace = vlqsFIR32f_16s_ISfs;
    static constexpr auto filterOne = vlqsFIROne32f_16s_Sfs;
};
struct Fir32fc : FirForms<Fir32fc> {
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
    static constexpr auto filter = vlqsFIR_32fc;
    static constexpr auto filterInPlace = vlqsFIR_32fc_I;
    static constexpr auto filterOne = vlqsFIROne_32fc;
};
struct Fir32fc_16sc : FirForms<Fir32fc_16sc> {
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
    static constexpr auto filter = vlqsFIR32fc_16sc_Sfs;
    static constexpr auto filterInPlace = vlqsFIR32fc_16sc_ISfs;
    static constexpr auto filterOne = vlqsFIROne32fc_16sc_Sfs;
};
struct Fir64fc : FirForms<Fir64fc> {
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
    static constexpr auto filter = vlqsFIR_64fc;
    static constexpr auto filterInPlace = vlqsFIR_64fc_I;
    static constexpr auto filterOne = vlqsFIROne_64fc;
};
struct Fir64fc_32fc : FirForms<Fir64fc_32fc> {
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
    static constexpr auto filter = vlqsFIR64fc_32fc;
    static constexpr auto filterInPlace = vlqsFIR64fc_32fc_I;
    static constexpr auto filterOne = vlqsFIROne64fc_32fc;
};
struct Fir64fc_32sc : FirForms<Fir64fc_32sc> {
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
    static constexpr auto filter = vlqsFIR64fc_32sc_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64fc_32sc_ISfs;
    static constexpr auto filterOne = vlqsFIROne64fc_32sc_Sfs;
};
struct Fir64fc_16sc : FirForms<Fir64fc_16sc> {
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
    static constexpr auto filter = vlqsFIR64fc_16sc_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64fc_16sc_ISfs;
    static constexpr auto filterOne = vlqsFIROne64fc_16sc_Sfs;
};
struct Fir64f : FirForms<Fir64f> {
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
    static constexpr auto filter = vlqsFIR_64f;
    static constexpr auto filterInPlace = vlqsFIR_64f_I;
    static constexpr auto filterOne = vlqsFIROne_64f;
};
struct Fir64f_32f : FirForms<Fir64f_32f> {
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
    static constexpr auto filter = vlqsFIR64f_32f;
    static constexpr auto filterInPlace = vlqsFIR64f_32f_I;
    static constexpr auto filterOne = vlqsFIROne64f_32f;
};
struct Fir64f_32s : FirForms<Fir64f_32s> {
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
    static constexpr auto filter = vlqsFIR64f_32s_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64f_32s_ISfs;
    static constexpr auto filterOne = vlqsFIROne64f_32s_Sfs;
};
struct Fir64f_16s : FirForms<Fir64f_16s> {
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
    static constexpr auto filter = vlqsFIR64f_16s_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64f_16s_ISfs;
    static constexpr auto filterOne = vlqsFIROne64f_16s_Sfs;
};

// ---- values of every type -----------------------------------------------------------------------

using Wide = long double;
using WideComplex = std::complex<Wide>;

template <class T>
inline constexpr bool isComplex = requires(T v) {
    v.re;
};
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
    if constexpr (isComplex<T>)
        return {static_cast<Wide>(v.re), static_cast<Wide>(v.im)};
    else
        return {static_cast<Wide>(v), 0};
}
template <class T>
T exactly(WideComplex v) {
    if constexpr (isComplex<T>)
        return {static_cast<Part<T>>(v.real()), static_cast<Part<T>>(v.imag())};
    else
        return static_cast<T>(v.real());
}
// Values that are wide already.
inline WideComplex wide(WideComplex v) { return v; }
template <>
inline WideComplex exactly<WideComplex>(WideComplex v) {
    return v;
}
template <class T, class Draw>
std::vector<T> drawn(std::size_t n, Draw draw) {
    std::vector<T> values(n);
    for (T& v : values) {
        if constexpr (isComplex<T>)
            v = {draw(), draw()};
        else
            v = draw();
    }
    return values;
}
// Samples over the type's range, floats in [-1, 1).
template <class T>
std::vector<T> randomSamples(std::size_t n, Rng& rng) {
    return drawn<T>(n, [&] {
        if constexpr (std::is_floating_point_v<Part<T>>)
            return uniformVector<Part<T>>(1, -1, 1, rng)[0];
        else
            return extremeValue<Part<T>>(rng);
    });
}
// Small integers: sums that every type of taps holds exactly.
template <class T>
std::vector<T> randomIntegers(std::size_t n, int peak, Rng& rng) {
    return drawn<T>(n, [&] {
        return static_cast<Part<T>>(static_cast<int>(rng() % static_cast<unsigned>(2 * peak + 1)) -
                                    peak);
    });
}
template <class T>
Wide peakOf() {
    if constexpr (std::is_floating_point_v<Part<T>>)
        return isComplex<T> ? 1.5L : 1;
    else
        return static_cast<Wide>(std::numeric_limits<Part<T>>::max()) * (isComplex<T> ? 1.5L : 1);
}

// The definition, one sample at a time.
class WideFir {
public:
    template <class Tap, class Sample = Tap>
    explicit WideFir(const std::vector<Tap>& taps, const std::vector<Sample>& past = {})
        : line_(taps.size()) {
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
            sum += WideComplex(h.real() * x.real() - h.imag() * x.imag(),
                               h.real() * x.imag() + h.imag() * x.real());
            magnitude_ += (std::fabs(h.real()) + std::fabs(h.imag())) *
                          (std::fabs(x.real()) + std::fabs(x.imag()));
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
        for (std::size_t i = 0; i < line_.size(); ++i)
            samples.push_back(exactly<Sample>(line_[(newest_ + i) % line_.size()]));
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
