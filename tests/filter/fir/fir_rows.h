// The kinds of floating FIR states as rows of one table: the functions of each kind, behind
// pointers without types.
#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "filter/fir/multirate/multirate_kinds.h"
#include "filter/fir/values.h"
#include "harness/buffer.h"
#include "harness/core_double.h"

namespace vlqtest {

struct FirRow {
    const char* name;
    Type tap, sample;
    bool isScaled, hasSingleRate;
    Vlq32u tag, multiRateTag;
    int transformTaps;

    VlqStatus (*stateSize)(int tapsLen, Vlq32s* bytes);
    VlqStatus (*init)(void** state, const void* taps, int len, const void* line, Vlq8u* buffer);
    VlqStatus (*initAlloc)(void** state, const void* taps, int len, const void* line);
    VlqStatus (*rateSize)(int tapsLen, int up, int down, Vlq32s* bytes);
    VlqStatus (*rateInit)(void** state, const void* taps, int len, RateArguments r,
                          const void* line, Vlq8u* buffer);
    VlqStatus (*rateInitAlloc)(void** state, const void* taps, int len, RateArguments r,
                               const void* line);
    VlqStatus (*free)(void* state);
    VlqStatus (*setTaps)(const void* taps, void* state);
    VlqStatus (*getTaps)(const void* state, void* taps);
    VlqStatus (*setLine)(void* state, const void* line);
    VlqStatus (*getLine)(const void* state, void* line);
    VlqStatus (*transformSize)(int order, Vlq32s* spec, Vlq32s* init, Vlq32s* work);
    // Kinds without a scale factor ignore it.
    VlqStatus (*block)(const void* src, void* dst, int len, void* state, int scale);
    VlqStatus (*inPlace)(void* srcDst, int len, void* state, int scale);
    VlqStatus (*one)(const void* src, void* dst, void* state, int scale);

    bool isDouble() const { return tap.base == Type::float64; }
    bool converts() const { return !(tap == sample); }
    int transformLen() const { return tap.isComplex ? 256 : 512; }
    int threadedAbove() const { return tap.isComplex ? 800 : 1600; }
};
inline std::ostream& operator<<(std::ostream& out, const FirRow& row) { return out << row.name; }

// What Init stores, or null where it stored nothing.
template <class State, class Call>
VlqStatus storing(void** outState, Call call) {
    if (!outState) return call(static_cast<State**>(nullptr));
    auto* state = static_cast<State*>(*outState);
    const VlqStatus status = call(&state);
    *outState = state;
    return status;
}

template <class K, class M>
FirRow rowOf(const char* name) {
    using Tap = typename K::Tap;
    using Sample = typename K::Sample;
    using State = typename K::State;
    static constexpr auto tapsIn = [](const void* p) { return static_cast<const Tap*>(p); };
    static constexpr auto samplesIn = [](const void* p) { return static_cast<const Sample*>(p); };
    static constexpr auto samplesOut = [](void* p) { return static_cast<Sample*>(p); };
    static constexpr auto stateOf = [](void* p) { return static_cast<State*>(p); };
    FirRow row{};
    row.name = name;
    row.tap = typeOf<Tap>();
    row.sample = typeOf<Sample>();
    row.isScaled = K::kScaled;
    row.hasSingleRate = M::kHasSingleRate;
    row.tag = K::kWord;
    row.multiRateTag = K::kMultiRateWord;
    row.transformTaps = K::kTransformTaps;
    row.stateSize = [](int len, Vlq32s* bytes) { return K::stateSize(len, bytes); };
    row.init = [](void** out, const void* taps, int len, const void* line, Vlq8u* buffer) {
        return storing<State>(out, [&](State** state) {
            return K::init(state, tapsIn(taps), len, samplesIn(line), buffer);
        });
    };
    row.initAlloc = [](void** out, const void* taps, int len, const void* line) {
        return storing<State>(out, [&](State** state) {
            return K::initAlloc(state, tapsIn(taps), len, samplesIn(line));
        });
    };
    row.rateSize = [](int len, int up, int down, Vlq32s* bytes) {
        return M::size(len, up, down, bytes);
    };
    row.rateInit = [](void** out, const void* taps, int len, RateArguments r, const void* line,
                      Vlq8u* buffer) {
        return storing<State>(out, [&](State** state) {
            return M::init(state, tapsIn(taps), len, r.up, r.upPhase, r.down, r.downPhase,
                           samplesIn(line), buffer);
        });
    };
    row.rateInitAlloc = [](void** out, const void* taps, int len, RateArguments r,
                           const void* line) {
        return storing<State>(out, [&](State** state) {
            return M::initAlloc(state, tapsIn(taps), len, r.up, r.upPhase, r.down, r.downPhase,
                                samplesIn(line));
        });
    };
    row.free = [](void* state) { return K::free(stateOf(state)); };
    row.setTaps = [](const void* taps, void* state) {
        return K::setTaps(tapsIn(taps), stateOf(state));
    };
    row.getTaps = [](const void* state, void* taps) {
        return K::getTaps(static_cast<const State*>(state), static_cast<Tap*>(taps));
    };
    row.setLine = [](void* state, const void* line) {
        return K::setLine(stateOf(state), samplesIn(line));
    };
    row.getLine = [](const void* state, void* line) {
        return K::getLine(static_cast<const State*>(state), samplesOut(line));
    };
    row.transformSize = [](int order, Vlq32s* spec, Vlq32s* init, Vlq32s* work) {
        return K::transformSize(order, vlqNormInvByN, vlqHintNone, spec, init, work);
    };
    row.block = [](const void* src, void* dst, int len, void* state, int scale) {
        return M::block(samplesIn(src), samplesOut(dst), len, stateOf(state), scale);
    };
    row.inPlace = [](void* srcDst, int len, void* state, int scale) {
        return M::inPlace(samplesOut(srcDst), len, stateOf(state), scale);
    };
    row.one = [](const void* src, void* dst, void* state, int scale) {
        Sample sample;
        std::memcpy(&sample, src, sizeof sample);
        return M::one(sample, samplesOut(dst), stateOf(state), scale);
    };
    return row;
}

inline const std::vector<FirRow>& firRows() {
    static const std::vector<FirRow> rows = {
        rowOf<Fir32f, Mr32f>("32f"),
        rowOf<Fir32f_16s, Mr32f_16s>("32f_16s"),
        rowOf<Fir32fc, Mr32fc>("32fc"),
        rowOf<Fir32fc_16sc, Mr32fc_16sc>("32fc_16sc"),
        rowOf<Fir64f, Mr64f>("64f"),
        rowOf<Fir64f_32f, Mr64f_32f>("64f_32f"),
        rowOf<Fir64f_32s, Mr64f_32s>("64f_32s"),
        rowOf<Fir64f_16s, Mr64f_16s>("64f_16s"),
        rowOf<Fir64fc, Mr64fc>("64fc"),
        rowOf<Fir64fc_32fc, Mr64fc_32fc>("64fc_32fc"),
        rowOf<Fir64fc_32sc, Mr64fc_32sc>("64fc_32sc"),
        rowOf<Fir64fc_16sc, Mr64fc_16sc>("64fc_16sc"),
    };
    return rows;
}

// ---- what the tests of all kinds share ----------------------------------------------------------

inline int field(const void* state, int offset) {
    int value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}

// A state that releases itself.
class RowState {
public:
    RowState(const FirRow& row, int tapsLength, int scaleFactor)
        : kind(row), tapsLen(tapsLength), scale(scaleFactor) {}
    ~RowState() { EXPECT_EQ(vlqStsOk, kind.free(state)); }
    RowState(const RowState&) = delete;
    RowState& operator=(const RowState&) = delete;

    VlqStatus run(const void* src, void* dst, int len) {
        return kind.block(src, dst, len, state, scale);
    }
    VlqStatus inPlace(void* srcDst, int len) { return kind.inPlace(srcDst, len, state, scale); }
    VlqStatus one(const void* src, void* dst) { return kind.one(src, dst, state, scale); }
    Values line(std::size_t length) {
        Values samples(kind.sample, length);
        EXPECT_EQ(vlqStsOk, kind.getLine(state, samples.data()));
        return samples;
    }

    const FirRow& kind;
    void* state = nullptr;
    int tapsLen, scale;
};

class RowTest : public ::testing::TestWithParam<FirRow> {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
    Values taps(int n) { return uniformValues(kind.tap, count(n), rng); }
    Values samples(long n) { return randomSamples(kind.sample, count(n), rng); }

    const FirRow& kind = GetParam();
    Rng rng{seed()};

private:
    int outstanding_ = Core::outstanding();
};
inline std::string nameOf(const ::testing::TestParamInfo<FirRow>& info) { return info.param.name; }

}  // namespace vlqtest
