// The kinds of multi-rate integer FIR states, and what their tests share.
#pragma once

#include <climits>

#include "filter/fir/integer/integer_kinds.h"
#include "filter/fir/integer/multirate/integer_multirate_ref.h"
#include "harness/core_double.h"

namespace vlqtest {

inline std::size_t count(int n) { return static_cast<std::size_t>(n); }

struct Multirate16 : Real16 {
    static constexpr Vlq32u multirateWord = 0x46493330;
    static constexpr auto multirateSize = vlqsFIRMRGetStateSize_16s;
    static constexpr auto multirateInit = vlqsFIRMRInit_16s;
    static constexpr auto multirateInitAlloc = vlqsFIRMRInitAlloc_16s;
    static constexpr auto direct = vlqsFIRMR_Direct_16s_Sfs;
    static constexpr auto directInPlace = vlqsFIRMR_Direct_16s_ISfs;
};
struct Multirate32 : Real32 {
    static constexpr Vlq32u multirateWord = 0x46493131;
    static constexpr auto multirateSize = vlqsFIRMRGetStateSize32s_16s;
    static constexpr auto multirateInit = vlqsFIRMRInit32s_16s;
    static constexpr auto multirateInitAlloc = vlqsFIRMRInitAlloc32s_16s;
    static constexpr auto direct = vlqsFIRMR32s_Direct_16s_Sfs;
    static constexpr auto directInPlace = vlqsFIRMR32s_Direct_16s_ISfs;
};
struct MultirateComplex : Complex32 {
    static constexpr Vlq32u multirateWord = 0x46493132;
    static constexpr auto multirateSize = vlqsFIRMRGetStateSize32sc_16sc;
    static constexpr auto multirateInit = vlqsFIRMRInit32sc_16sc;
    static constexpr auto multirateInitAlloc = vlqsFIRMRInitAlloc32sc_16sc;
    static constexpr auto direct = vlqsFIRMR32sc_Direct_16sc_Sfs;
    static constexpr auto directInPlace = vlqsFIRMR32sc_Direct_16sc_ISfs;
};

template <class K>
std::size_t sizeOf(int taps, const RateChange& r) {
    Vlq32s bytes = -1;
    EXPECT_EQ(vlqStsOk, K::multirateSize(taps, r.up, r.down, &bytes));
    return count(bytes);
}
inline int delayLen(int taps, const RateChange& r) { return (taps + r.up - 1) / r.up; }

// A state in memory of exactly the reported size, at any address or against a guard page.
template <class K>
class Multirate {
public:
    using Sample = typename K::Sample;
    using Tap = typename K::Tap;
    Multirate(const std::vector<Tap>& taps, int tapsFactor, const RateChange& r,
              const std::vector<Sample>& past = {}, Placement place = {})
        : memory(sizeOf<K>(static_cast<int>(taps.size()), r), place),
          len_(delayLen(static_cast<int>(taps.size()), r)) {
        EXPECT_EQ(vlqStsOk, K::multirateInit(&state, taps.data(), static_cast<int>(taps.size()),
                                             tapsFactor, r.up, r.upPhase, r.down, r.downPhase,
                                             past.empty() ? nullptr : past.data(), memory.data()));
    }
    ~Multirate() {
        EXPECT_EQ(vlqStsOk, K::release(state));
        EXPECT_TRUE(memory.marginsIntact());
    }
    Multirate(const Multirate&) = delete;
    std::vector<Sample> line() const {
        Buffer<Sample> samples(count(len_), {1});
        EXPECT_EQ(vlqStsOk, K::getLine(state, samples.data()));
        EXPECT_TRUE(samples.marginsIntact());
        return samples.values();
    }
    Buffer<Vlq8u> memory;
    typename K::State* state = nullptr;

private:
    int len_;
};

template <class K>
FirIntMultirateRef<typename K::Sample, typename K::Tap> referenceOf(
    const std::vector<typename K::Tap>& taps, int tapsFactor, const RateChange& r,
    const std::vector<typename K::Sample>& past = {}) {
    const auto kept = held(taps);
    return {kept.taps, std::int64_t{tapsFactor} + kept.exponent, r, past};
}

template <class K>
class FirIntMultirate : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
    RateChange rates(int most) {
        RateChange r{1 + below(most), 0, 1 + below(most), 0};
        r.upPhase = below(r.up);
        r.downPhase = below(r.down);
        return r;
    }

    // A stream in calls of the given numbers of periods, out of place and in place.
    void checkStream(int taps, const RateChange& r, const std::vector<int>& calls,
                     bool atGuardPages) {
        using Sample = typename K::Sample;
        using Tap = typename K::Tap;
        const auto data = taps % 3 == 0 ? Data::Small : Data::Extreme;
        const auto h =
            taps % 2 == 0 ? values<Tap>(count(taps), rng, data) : wideTaps<Tap>(count(taps), rng);
        const auto past = values<Sample>(count(delayLen(taps, r)), rng);
        const int factor = data == Data::Small ? -10 : -below(20), scale = below(5) - 2;
        Multirate<K> record(h, factor, r, past, {below(64), atGuardPages}),
            second(h, factor, r, past, {below(64)});
        auto ref = referenceOf<K>(h, factor, r, past);
        for (const int periods : calls) {
            const auto src = values<Sample>(count(periods * r.down), rng, data);
            const auto want = ref.block(src, scale);
            const Buffer<Sample> in(src, {below(64), atGuardPages});
            Buffer<Sample> out(count(periods * r.up), {below(64), atGuardPages});
            ASSERT_EQ(vlqStsOk, K::filter(in.data(), out.data(), periods, record.state, scale));
            ASSERT_TRUE(same(out, want)) << describe(taps, r, periods);
            ASSERT_TRUE(same(in, src));
            ASSERT_EQ(ref.line, record.line()) << describe(taps, r, periods);
            // What follows the results of a decimator stays.
            auto longer = src;
            longer.resize(count(periods * std::max(r.up, r.down)));
            Buffer<Sample> inOut(longer, {below(64), atGuardPages});
            ASSERT_EQ(vlqStsOk, K::inPlace(inOut.data(), periods, second.state, scale));
            std::copy(want.begin(), want.end(), longer.begin());
            ASSERT_TRUE(same(inOut, longer)) << describe(taps, r, periods) << " in place";
            ASSERT_EQ(ref.line, second.line());
        }
    }
    static std::string describe(int taps, const RateChange& r, int periods) {
        return std::to_string(taps) + " taps, up " + std::to_string(r.up) + " phase " +
               std::to_string(r.upPhase) + ", down " + std::to_string(r.down) + " phase " +
               std::to_string(r.downPhase) + ", " + std::to_string(periods) + " periods";
    }

private:
    int outstanding_ = Core::outstanding();
};
using EveryMultirate = ::testing::Types<Multirate16, Multirate32, MultirateComplex>;

class FirIntMultirateTaps : public FirIntMultirate<Multirate32> {};

inline Vlq32s field(const void* state, int offset) {
    Vlq32s value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}

}  // namespace vlqtest
