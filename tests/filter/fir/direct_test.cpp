// FIR filters that keep their delay line with the caller.
#include <climits>
#include <cstring>

#include "filter/fir/kinds.h"
#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

// The functions of a kind in one form: those without a scale factor ignore it.
template <class Kind>
struct DirectForms {
    template <class K = Kind>
    static VlqStatus block(const typename K::Sample* src, typename K::Sample* dst, int len,
                           const typename K::Tap* taps, int n, typename K::Sample* line,
                           Vlq32s* index, int scale) {
        if constexpr (K::kScaled)
            return K::filter(src, dst, len, taps, n, line, index, scale);
        else
            return K::filter(src, dst, len, taps, n, line, index);
    }
    template <class K = Kind>
    static VlqStatus inPlace(typename K::Sample* srcDst, int len, const typename K::Tap* taps,
                             int n, typename K::Sample* line, Vlq32s* index, int scale) {
        if constexpr (K::kScaled)
            return K::filterInPlace(srcDst, len, taps, n, line, index, scale);
        else
            return K::filterInPlace(srcDst, len, taps, n, line, index);
    }
    template <class K = Kind>
    static VlqStatus one(typename K::Sample src, typename K::Sample* dst,
                         const typename K::Tap* taps, int n, typename K::Sample* line,
                         Vlq32s* index, int scale) {
        if constexpr (K::kScaled)
            return K::filterOne(src, dst, taps, n, line, index, scale);
        else
            return K::filterOne(src, dst, taps, n, line, index);
    }
    template <class K = Kind>
    static VlqStatus oneInPlace(typename K::Sample* srcDst, const typename K::Tap* taps, int n,
                                typename K::Sample* line, Vlq32s* index, int scale) {
        if constexpr (K::kScaled)
            return K::filterOneInPlace(srcDst, taps, n, line, index, scale);
        else
            return K::filterOneInPlace(srcDst, taps, n, line, index);
    }
};

struct Direct32f : DirectForms<Direct32f> {
    using Tap = Vlq32f;
    using Sample = Vlq32f;
    static constexpr bool kScaled = false;
    static constexpr auto filter = vlqsFIR_Direct_32f;
    static constexpr auto filterInPlace = vlqsFIR_Direct_32f_I;
    static constexpr auto filterOne = vlqsFIROne_Direct_32f;
    static constexpr auto filterOneInPlace = vlqsFIROne_Direct_32f_I;
    static constexpr int kDirectTaps = 64;  // fewer: no record
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 64, kTransformLen = 512;
};
struct Direct32fc : DirectForms<Direct32fc> {
    using Tap = Vlq32fc;
    using Sample = Vlq32fc;
    static constexpr bool kScaled = false;
    static constexpr auto filter = vlqsFIR_Direct_32fc;
    static constexpr auto filterInPlace = vlqsFIR_Direct_32fc_I;
    static constexpr auto filterOne = vlqsFIROne_Direct_32fc;
    static constexpr auto filterOneInPlace = vlqsFIROne_Direct_32fc_I;
    static constexpr int kDirectTaps = 32;  // fewer: no record
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 16, kTransformLen = 256;
};
struct Direct32f_16s : DirectForms<Direct32f_16s> {
    using Tap = Vlq32f;
    using Sample = Vlq16s;
    static constexpr bool kScaled = true;
    static constexpr auto filter = vlqsFIR32f_Direct_16s_Sfs;
    static constexpr auto filterInPlace = vlqsFIR32f_Direct_16s_ISfs;
    static constexpr auto filterOne = vlqsFIROne32f_Direct_16s_Sfs;
    static constexpr auto filterOneInPlace = vlqsFIROne32f_Direct_16s_ISfs;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 1 << 30, kTransformLen = 1 << 30;
};
struct Direct32fc_16sc : DirectForms<Direct32fc_16sc> {
    using Tap = Vlq32fc;
    using Sample = Vlq16sc;
    static constexpr bool kScaled = true;
    static constexpr auto filter = vlqsFIR32fc_Direct_16sc_Sfs;
    static constexpr auto filterInPlace = vlqsFIR32fc_Direct_16sc_ISfs;
    static constexpr auto filterOne = vlqsFIROne32fc_Direct_16sc_Sfs;
    static constexpr auto filterOneInPlace = vlqsFIROne32fc_Direct_16sc_ISfs;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 1 << 30, kTransformLen = 1 << 30;
};
struct Direct64fc : DirectForms<Direct64fc> {
    using Tap = Vlq64fc;
    using Sample = Vlq64fc;
    static constexpr bool kScaled = false;
    static constexpr auto filter = vlqsFIR_Direct_64fc;
    static constexpr auto filterInPlace = vlqsFIR_Direct_64fc_I;
    static constexpr auto filterOne = vlqsFIROne_Direct_64fc;
    static constexpr auto filterOneInPlace = vlqsFIROne_Direct_64fc_I;
    static constexpr int kDirectTaps = 16;  // fewer: no record
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 16, kTransformLen = 256;
};
struct Direct64fc_16sc : DirectForms<Direct64fc_16sc> {
    using Tap = Vlq64fc;
    using Sample = Vlq16sc;
    static constexpr bool kScaled = true;
    static constexpr auto filter = vlqsFIR64fc_Direct_16sc_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64fc_Direct_16sc_ISfs;
    static constexpr auto filterOne = vlqsFIROne64fc_Direct_16sc_Sfs;
    static constexpr auto filterOneInPlace = vlqsFIROne64fc_Direct_16sc_ISfs;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 1 << 30, kTransformLen = 1 << 30;
};
struct Direct64fc_32sc : DirectForms<Direct64fc_32sc> {
    using Tap = Vlq64fc;
    using Sample = Vlq32sc;
    static constexpr bool kScaled = true;
    static constexpr auto filter = vlqsFIR64fc_Direct_32sc_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64fc_Direct_32sc_ISfs;
    static constexpr auto filterOne = vlqsFIROne64fc_Direct_32sc_Sfs;
    static constexpr auto filterOneInPlace = vlqsFIROne64fc_Direct_32sc_ISfs;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 1 << 30, kTransformLen = 1 << 30;
};
struct Direct64fc_32fc : DirectForms<Direct64fc_32fc> {
    using Tap = Vlq64fc;
    using Sample = Vlq32fc;
    static constexpr bool kScaled = false;
    static constexpr auto filter = vlqsFIR64fc_Direct_32fc;
    static constexpr auto filterInPlace = vlqsFIR64fc_Direct_32fc_I;
    static constexpr auto filterOne = vlqsFIROne64fc_Direct_32fc;
    static constexpr auto filterOneInPlace = vlqsFIROne64fc_Direct_32fc_I;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 128;  // shorter: no record
    static constexpr int kTransformTaps = 16, kTransformLen = 256;
};
struct Direct64f : DirectForms<Direct64f> {
    using Tap = Vlq64f;
    using Sample = Vlq64f;
    static constexpr bool kScaled = false;
    static constexpr auto filter = vlqsFIR_Direct_64f;
    static constexpr auto filterInPlace = vlqsFIR_Direct_64f_I;
    static constexpr auto filterOne = vlqsFIROne_Direct_64f;
    static constexpr auto filterOneInPlace = vlqsFIROne_Direct_64f_I;
    static constexpr int kDirectTaps = 32;  // fewer: no record
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 32, kTransformLen = 512;
};
struct Direct64f_16s : DirectForms<Direct64f_16s> {
    using Tap = Vlq64f;
    using Sample = Vlq16s;
    static constexpr bool kScaled = true;
    static constexpr auto filter = vlqsFIR64f_Direct_16s_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64f_Direct_16s_ISfs;
    static constexpr auto filterOne = vlqsFIROne64f_Direct_16s_Sfs;
    static constexpr auto filterOneInPlace = vlqsFIROne64f_Direct_16s_ISfs;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 1 << 30, kTransformLen = 1 << 30;
};
struct Direct64f_32s : DirectForms<Direct64f_32s> {
    using Tap = Vlq64f;
    using Sample = Vlq32s;
    static constexpr bool kScaled = true;
    static constexpr auto filter = vlqsFIR64f_Direct_32s_Sfs;
    static constexpr auto filterInPlace = vlqsFIR64f_Direct_32s_ISfs;
    static constexpr auto filterOne = vlqsFIROne64f_Direct_32s_Sfs;
    static constexpr auto filterOneInPlace = vlqsFIROne64f_Direct_32s_ISfs;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 1 << 30;
    static constexpr int kTransformTaps = 1 << 30, kTransformLen = 1 << 30;
};
struct Direct64f_32f : DirectForms<Direct64f_32f> {
    using Tap = Vlq64f;
    using Sample = Vlq32f;
    static constexpr bool kScaled = false;
    static constexpr auto filter = vlqsFIR64f_Direct_32f;
    static constexpr auto filterInPlace = vlqsFIR64f_Direct_32f_I;
    static constexpr auto filterOne = vlqsFIROne64f_Direct_32f;
    static constexpr auto filterOneInPlace = vlqsFIROne64f_Direct_32f_I;
    static constexpr int kDirectTaps = 1 << 30;
    static constexpr int kDirectLen = 256;  // shorter: no record
    static constexpr int kTransformTaps = 32, kTransformLen = 512;
};

// The caller's side of a filter, beside the definition.
template <class K>
struct Ring {
    using Tap = typename K::Tap;
    using Sample = typename K::Sample;
    Ring(const std::vector<Tap>& h, int start, Rng& rng, int scaleFactor = 0, Placement place = {})
        : n(static_cast<int>(h.size())),
          index(start),
          scale(scaleFactor),
          taps(h, place),
          line(2 * h.size(), place),
          ref(h) {
        // The window holds the past, oldest first; the store holds it twice over.
        const auto past = randomSamples<Sample>(h.size(), rng);
        std::vector<Sample> store(2 * h.size());
        for (int j = 0; j < n; ++j) {
            const int at = (start + j) % n;
            store[count(at)] = store[count(at + n)] = past[count(n - 1 - j)];
        }
        line.assign(store);
        ref = WideFir(h, past);
    }
    void expectState(int wantIndex, const std::string& what) {
        ASSERT_EQ(wantIndex, index) << what;
        const auto store = line.values();
        const auto past = ref.template line<Sample>();
        for (int j = 0; j < n; ++j) {
            ASSERT_EQ(
                0, std::memcmp(&past[count(n - 1 - j)], &store[count(index + j)], sizeof(Sample)))
                << what << ", window at " << j;
            // What the window holds past the first half stands in front of it as well.
            if (j >= index) continue;
            ASSERT_EQ(0, std::memcmp(&store[count(j)], &store[count(j + n)], sizeof(Sample)))
                << what << ", halves at " << j;
        }
        ASSERT_TRUE(line.marginsIntact() && taps.marginsIntact()) << what;
    }
    // Nearest, away from zero at a half, for sums within `bound` of the exact one.
    bool allows(Sample got, WideComplex want, Wide bound) const {
        if constexpr (!K::kScaled) {
            return isAllowed(want, bound, 0, got);
        } else {
            auto part = [&](Wide exact, Wide value) {
                auto store = [&](Wide v) {
                    const Wide low = std::numeric_limits<Part<Sample>>::min(),
                               high = std::numeric_limits<Part<Sample>>::max();
                    return std::round(std::fmin(
                        std::fmax(std::ldexp(v, -std::clamp(scale, -4000, 4000)), low), high));
                };
                return store(exact - bound) <= value && value <= store(exact + bound);
            };
            return part(want.real(), wide(got).real()) && part(want.imag(), wide(got).imag());
        }
    }
    int n;
    Vlq32s index;
    int scale;
    Buffer<Tap> taps;
    Buffer<Sample> line;
    WideFir ref;
};

template <class K>
class FirExternal : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
    std::vector<typename K::Tap> taps(int n) {
        return drawn<typename K::Tap>(
            count(n), [&] { return uniformVector<Part<typename K::Tap>>(1, -1, 1, rng)[0]; });
    }

    // One call, compared with the definition in outputs, index and store.
    void call(Ring<K>& ring, int len, bool useInPlace, Placement place = {}) {
        using X = typename K::Sample;
        const auto src = randomSamples<X>(count(len), rng);
        const Buffer<X> x(src, place);
        Buffer<X> y(src, place);
        const int before = ring.index, n = ring.n;
        ASSERT_EQ(vlqStsOk, useInPlace ? K::inPlace(y.data(), len, ring.taps.data(), n,
                                                    ring.line.data(), &ring.index, ring.scale)
                                       : K::block(x.data(), y.data(), len, ring.taps.data(), n,
                                                  ring.line.data(), &ring.index, ring.scale));
        const bool record =
            n >= K::kDirectTaps || len >= K::kDirectLen || (useInPlace && K::kDirectTaps < 1 << 30);
        const bool transform = n >= K::kTransformTaps && len >= K::kTransformLen && record;
        const std::string what = std::to_string(n) + " taps, " + std::to_string(len) + " samples" +
                                 (useInPlace ? " in place" : "");
        const auto got = y.values();
        for (std::size_t i = 0; i < src.size(); ++i) {
            const auto want = ring.ref.next(src[i]);
            const Wide bound = errorBound<typename K::Tap, X>(ring.ref, count(n), transform);
            ASSERT_TRUE(ring.allows(got[i], want, bound))
                << what << ", output " << i << ": " << wide(got[i]) << " for " << want;
        }
        ASSERT_TRUE(y.marginsIntact());
        const bool wholeBlock = K::kDirectTaps < 1 << 30 && len >= n;
        ring.expectState(record ? before : wholeBlock ? n - 1 : (before + len) % n, what);
    }
    void single(Ring<K>& ring, bool useInPlace) {
        using X = typename K::Sample;
        const X x = randomSamples<X>(1, rng)[0];
        Buffer<X> y(std::vector<X>{x}, {1});
        const int before = ring.index;
        ASSERT_EQ(vlqStsOk, useInPlace ? K::oneInPlace(y.data(), ring.taps.data(), ring.n,
                                                       ring.line.data(), &ring.index, ring.scale)
                                       : K::one(x, y.data(), ring.taps.data(), ring.n,
                                                ring.line.data(), &ring.index, ring.scale));
        const auto want = ring.ref.next(x);
        ASSERT_TRUE(ring.allows(y.values()[0], want,
                                errorBound<typename K::Tap, X>(ring.ref, count(ring.n), false)))
            << ring.n << " taps: " << wide(y.values()[0]) << " for " << want;
        ASSERT_TRUE(y.marginsIntact());
        ring.expectState((before + 1) % ring.n, "one sample");
    }

private:
    int outstanding_ = Core::outstanding();
};

using Kinds = ::testing::Types<Direct32f, Direct32fc, Direct32f_16s, Direct32fc_16sc, Direct64fc,
                               Direct64fc_16sc, Direct64fc_32sc, Direct64fc_32fc, Direct64f,
                               Direct64f_16s, Direct64f_32s, Direct64f_32f>;
TYPED_TEST_SUITE(FirExternal, Kinds);

TYPED_TEST(FirExternal, SingleSamples) {
    using K = TypeParam;
    for (int n = 1; n <= 40; ++n) {
        Ring<K> ring(this->taps(n), this->below(n), this->rng, K::kScaled ? 2 : 0, {n % 8});
        for (int i = 0; i < 2 * n + 3; ++i) this->single(ring, i % 2 == 0);
        if (this->HasFailure()) return;
    }
}

TYPED_TEST(FirExternal, Blocks) {
    using K = TypeParam;
    for (const int n : {1, 2, 3, 4, 5, 8, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100}) {
        for (const int start : {0, n / 2, n - 1}) {
            for (const int len :
                 {1, 2, 3, n - 2, n - 1, n, n + 1, 2 * n, 127, 128, 255, 256, 300, 513}) {
                if (len < 1) continue;
                Ring<K> ring(this->taps(n), start, this->rng, K::kScaled ? 1 : 0);
                this->call(ring, len, false);
                this->call(ring, len, true);
                this->call(ring, std::max(1, n / 2), false);
                if (this->HasFailure()) return;
            }
        }
    }
}

// All forms in any order continue one stream.
TYPED_TEST(FirExternal, FormsMixed) {
    using K = TypeParam;
    for (int run = 0; run < 120; ++run) {
        const int n = 1 + this->below(run % 2 ? 20 : 90);
        Ring<K> ring(this->taps(n), this->below(n), this->rng, K::kScaled ? 3 : 0);
        for (int turn = 0; turn < 8; ++turn) {
            switch (this->below(4)) {
                case 0: this->call(ring, 1 + this->below(2 * n), false); break;
                case 1: this->call(ring, 1 + this->below(300), true); break;
                case 2: this->call(ring, 1 + this->below(600), false); break;
                default:
                    for (int i = this->below(2 * n); i >= 0; --i) this->single(ring, i % 2 == 0);
            }
            if (this->HasFailure()) return;
        }
    }
}

TYPED_TEST(FirExternal, AnyPlaceInMemory) {
    using K = TypeParam;
    for (const int n : {1, 3, 16, 40, 70}) {
        for (const int offset : {0, 1, 2, 4, 7, 16, 33, 64}) {
            const Placement place{offset % 64, offset == 64};
            Ring<K> ring(this->taps(n), n / 3, this->rng, K::kScaled ? 4 : 0, place);
            for (const int len : {1, n, 100, 600}) {
                this->call(ring, len, false, place);
                this->call(ring, len, true, place);
                if (this->HasFailure()) return;
            }
        }
    }
}

TYPED_TEST(FirExternal, ResultsDoNotDependOnTheTeam) {
    using K = TypeParam;
    using X = typename K::Sample;
    for (const int n : {3, 15, 31, 100}) {
        const auto h = this->taps(n);
        const auto src = randomSamples<X>(5000, this->rng);
        std::vector<X> want;
        for (const int threads : {1, 2, 3}) {
            Core::setThreads(threads);
            auto dst = src, inPlace = src;
            std::vector<X> line(count(2 * n)), line2 = line;
            Vlq32s index = 0, index2 = 0;
            ASSERT_EQ(vlqStsOk,
                      K::block(src.data(), dst.data(), 5000, h.data(), n, line.data(), &index, 1));
            ASSERT_EQ(vlqStsOk,
                      K::inPlace(inPlace.data(), 5000, h.data(), n, line2.data(), &index2, 1));
            dst.insert(dst.end(), inPlace.begin(), inPlace.end());
            dst.insert(dst.end(), line.begin(), line.end());
            if (threads == 1) want = dst;
            ASSERT_EQ(0, std::memcmp(want.data(), dst.data(), dst.size() * sizeof(X)))
                << n << " taps, " << threads << " threads";
        }
        Core::setThreads(1);
    }
}

// Without memory for the record nothing changes.
TYPED_TEST(FirExternal, RefusedMemory) {
    using K = TypeParam;
    using X = typename K::Sample;
    for (const int n : {5, 80}) {
        const int len = 700;
        const auto h = this->taps(n);
        const auto src = randomSamples<X>(count(len), this->rng),
                   past = randomSamples<X>(count(2 * n), this->rng);
        for (const bool useInPlace : {false, true}) {
            auto dst = src, line = past;
            Vlq32s index = n / 2;
            Core::refuseAllocation(1);
            const VlqStatus status =
                useInPlace
                    ? K::inPlace(dst.data(), len, h.data(), n, line.data(), &index, 0)
                    : K::block(src.data(), dst.data(), len, h.data(), n, line.data(), &index, 0);
            Core::refuseAllocation(0);
            const bool record = n >= K::kDirectTaps || len >= K::kDirectLen ||
                                (useInPlace && K::kDirectTaps < 1 << 30);
            ASSERT_EQ(record ? vlqStsNoMemory : vlqStsOk, status);
            if (!record) continue;
            EXPECT_EQ(n / 2, index);
            EXPECT_EQ(0, std::memcmp(past.data(), line.data(), line.size() * sizeof(X)));
            EXPECT_EQ(0, std::memcmp(src.data(), dst.data(), dst.size() * sizeof(X)));
            // Without memory for its transform the record works directly.
            Core::refuseAllocation(2);
            EXPECT_EQ(vlqStsOk,
                      K::block(src.data(), dst.data(), len, h.data(), n, line.data(), &index, 0));
            Core::refuseAllocation(0);
        }
    }
}

// Unlike the forms with a record: saturated first, then rounded half away from zero.
TYPED_TEST(FirExternal, RoundingOfScaledForms) {
    using K = TypeParam;
    if constexpr (!K::kScaled) {
        GTEST_SKIP() << "stores sums as they are";
    } else {
        using Integer = Part<typename K::Sample>;
        constexpr Integer high = std::numeric_limits<Integer>::max(),
                          low = std::numeric_limits<Integer>::min();
        struct Case {
            int tap;
            int sample;
            int scale;
            Integer want;
        };
        const Case cases[] = {
            {1, 1, 1, 1},          {1, -1, 1, -1},        {1, 3, 1, 2},       {1, -3, 1, -2},
            {1, 5, 2, 1},          {1, 6, 2, 2},          {1, -6, 2, -2},     {1, 1, 2, 0},
            {3, 30000, -20, high}, {-3, 30000, -20, low}, {1, 1, INT_MAX, 0}, {1, 1, INT_MIN, high},
            {-1, 1, INT_MIN, low}, {0, 1, INT_MIN, 0},    {1, 1, 130, 0},     {1, 1, -130, high},
            {1, 100, -2, 400},     {1, -1, 2000, 0},      {-1, 1, -2000, low}};
        for (const auto& c : cases) {
            const auto tap = exactly<typename K::Tap>(WideComplex(c.tap)), *taps = &tap;
            const auto x = exactly<typename K::Sample>(WideComplex(c.sample));
            typename K::Sample line[2] = {}, y{}, z = x;
            Vlq32s index = 0;
            ASSERT_EQ(vlqStsOk, K::one(x, &y, taps, 1, line, &index, c.scale));
            EXPECT_EQ(static_cast<Wide>(c.want), wide(y).real())
                << c.tap << " * " << c.sample << ", scale " << c.scale;
            ASSERT_EQ(vlqStsOk, K::inPlace(&z, 1, taps, 1, line, &index, c.scale));
            EXPECT_EQ(static_cast<Wide>(c.want), wide(z).real())
                << c.tap << " * " << c.sample << ", scale " << c.scale;
        }
        auto notANumber =
            exactly<typename K::Tap>(WideComplex(std::numeric_limits<Wide>::quiet_NaN(), 0));
        typename K::Sample line[2] = {}, y{};
        Vlq32s index = 0;
        ASSERT_EQ(vlqStsOk, K::one(exactly<typename K::Sample>(WideComplex(1)), &y, &notANumber, 1,
                                   line, &index, 0));
        EXPECT_EQ(static_cast<Wide>(high), wide(y).real());
    }
}

TYPED_TEST(FirExternal, Checks) {
    using K = TypeParam;
    using X = typename K::Sample;
    const auto h = this->taps(2);
    std::vector<X> x(4), y(4), line(4);
    Vlq32s index = 0;
    const auto* null = static_cast<X*>(nullptr);
    EXPECT_EQ(vlqStsNullPtr, K::block(null, y.data(), 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), nullptr, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, K::block(x.data(), y.data(), 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), y.data(), 4, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount, K::block(x.data(), y.data(), 4, h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), y.data(), 4, h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), y.data(), 4, h.data(), 2, line.data(), nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::inPlace(nullptr, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, K::inPlace(x.data(), -1, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::inPlace(x.data(), 4, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount, K::inPlace(x.data(), 4, h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::inPlace(x.data(), 4, h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(vlqStsNullPtr, K::inPlace(x.data(), 4, h.data(), 2, line.data(), nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::one(x[0], nullptr, h.data(), 0, line.data(), &index, 0));
    EXPECT_EQ(vlqStsNullPtr, K::one(x[0], y.data(), nullptr, 0, line.data(), &index, 0));
    EXPECT_EQ(vlqStsBadTapCount, K::one(x[0], y.data(), h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::one(x[0], y.data(), h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(vlqStsNullPtr, K::one(x[0], y.data(), h.data(), 2, line.data(), nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::oneInPlace(nullptr, h.data(), 0, line.data(), &index, 0));
    EXPECT_EQ(vlqStsBadTapCount, K::oneInPlace(x.data(), h.data(), -1, line.data(), &index, 0));
    EXPECT_EQ(vlqStsNullPtr, K::oneInPlace(x.data(), h.data(), 2, line.data(), nullptr, 0));
    for (const auto& v : {x, y, line}) {
        for (const X& s : v) EXPECT_EQ(WideComplex(0), wide(s));
    }
    EXPECT_EQ(0, index);
}

}  // namespace
