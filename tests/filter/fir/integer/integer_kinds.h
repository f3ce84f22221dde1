// The kinds of integer FIR records, for tests that hold for each.
#pragma once

#include "filter/fir/integer/integer_ref.h"
#include "harness/buffer.h"
#include "harness/random.h"
#include "vlqs/fir.h"

namespace vlqtest {

struct Real16 {
    using Sample = Vlq16s;
    using Tap = Vlq16s;
    using State = VlqsFIRState_16s;
    static constexpr Vlq32u word = 0x46493239;
    static constexpr auto size = vlqsFIRGetStateSize_16s;
    static constexpr auto init = vlqsFIRInit_16s;
    static constexpr auto initAlloc = vlqsFIRInitAlloc_16s;
    static constexpr auto release = vlqsFIRFree_16s;
    static constexpr auto setTaps = vlqsFIRSetTaps_16s;
    static constexpr auto getTaps = vlqsFIRGetTaps_16s;
    static constexpr auto setLine = vlqsFIRSetDlyLine_16s;
    static constexpr auto getLine = vlqsFIRGetDlyLine_16s;
    static constexpr auto filter = vlqsFIR_16s_Sfs;
    static constexpr auto inPlace = vlqsFIR_16s_ISfs;
    static constexpr auto one = vlqsFIROne_16s_Sfs;
};
struct Real32 {
    using Sample = Vlq16s;
    using Tap = Vlq32s;
    using State = VlqsFIRState32s_16s;
    static constexpr Vlq32u word = 0x46493039;
    static constexpr auto size = vlqsFIRGetStateSize32s_16s;
    static constexpr auto init = vlqsFIRInit32s_16s;
    static constexpr auto initAlloc = vlqsFIRInitAlloc32s_16s;
    static constexpr auto release = vlqsFIRFree32s_16s;
    static constexpr auto setTaps = vlqsFIRSetTaps32s_16s;
    static constexpr auto getTaps = vlqsFIRGetTaps32s_16s;
    static constexpr auto setLine = vlqsFIRSetDlyLine32s_16s;
    static constexpr auto getLine = vlqsFIRGetDlyLine32s_16s;
    static constexpr auto filter = vlqsFIR32s_16s_Sfs;
    static constexpr auto inPlace = vlqsFIR32s_16s_ISfs;
    static constexpr auto one = vlqsFIROne32s_16s_Sfs;
};
struct Complex32 {
    using Sample = Vlq16sc;
    using Tap = Vlq32sc;
    using State = VlqsFIRState32sc_16sc;
    static constexpr Vlq32u word = 0x46493130;
    static constexpr auto size = vlqsFIRGetStateSize32sc_16sc;
    static constexpr auto init = vlqsFIRInit32sc_16sc;
    static constexpr auto initAlloc = vlqsFIRInitAlloc32sc_16sc;
    static constexpr auto release = vlqsFIRFree32sc_16sc;
    static constexpr auto setTaps = vlqsFIRSetTaps32sc_16sc;
    static constexpr auto getTaps = vlqsFIRGetTaps32sc_16sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine32sc_16sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine32sc_16sc;
    static constexpr auto filter = vlqsFIR32sc_16sc_Sfs;
    static constexpr auto inPlace = vlqsFIR32sc_16sc_ISfs;
    static constexpr auto one = vlqsFIROne32sc_16sc_Sfs;
};
using EveryKind = ::testing::Types<Real16, Real32, Complex32>;

// Values of any element: bits from all over the range, or small ones, or edges alone.
enum class Data { Extreme, Small, Edges };

template <class T>
std::vector<T> values(std::size_t count, Rng& rng, Data data = Data::Extreme) {
    if constexpr (std::is_integral_v<T>) {
        std::vector<T> result = extremeVector<T>(count, rng);
        using Limits = std::numeric_limits<T>;
        for (T& v : result) {
            if (data == Data::Small) v = static_cast<T>(static_cast<int>(rng() % 401) - 200);
            if (data == Data::Edges) v = rng() % 2 ? Limits::min() : Limits::max();
        }
        return result;
    } else {
        const auto parts = values<decltype(T::re)>(2 * count, rng, data);
        std::vector<T> result;
        for (std::size_t i = 0; i < count; ++i) result.push_back({parts[2 * i], parts[2 * i + 1]});
        return result;
    }
}

// Taps that fit 16 bits as they are.
template <class Tap>
std::vector<Tap> wideTaps(std::size_t count, Rng& rng) {
    std::vector<std::int64_t> parts(std::is_integral_v<Tap> ? count : 2 * count);
    for (auto& part : parts) part = static_cast<std::int64_t>(rng() % 65533) - 32766;
    return tapsOf(parts, static_cast<const Tap*>(nullptr));
}

// A record that releases itself.
template <class K>
class Record {
public:
    using Sample = typename K::Sample;
    using Tap = typename K::Tap;
    Record(const std::vector<Tap>& taps, int tapsFactor, const std::vector<Sample>& past = {})
        : tapsLen(taps.size()) {
        EXPECT_EQ(vlqStsOk, K::initAlloc(&state, taps.data(), static_cast<int>(taps.size()),
                                         tapsFactor, past.empty() ? nullptr : past.data()));
    }
    ~Record() { EXPECT_EQ(vlqStsOk, K::release(state)); }
    Record(const Record&) = delete;
    std::vector<Sample> line() const {
        std::vector<Sample> samples(tapsLen);
        EXPECT_EQ(vlqStsOk, K::getLine(state, samples.data()));
        return samples;
    }
    typename K::State* state = nullptr;
    std::size_t tapsLen;
};

template <class K>
FirIntRef<typename K::Sample, typename K::Tap> referenceOf(
    const std::vector<typename K::Tap>& taps, int tapsFactor,
    const std::vector<typename K::Sample>& past = {}) {
    const auto kept = held(taps);
    return {kept.taps, std::int64_t{tapsFactor} + kept.exponent, past};
}

}  // namespace vlqtest
