// FIR records over every arithmetic: what the tests of real single precision show in detail, for
// each kind.
#include <climits>
#include <cstring>
#include <memory>

#include "filter/fir/kinds.h"
#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

template <class K>
constexpr int kTransformLen = isComplex<typename K::Tap> ? 256 : 512;
template <class K>
constexpr int kThreadedAbove = isComplex<typename K::Tap> ? 800 : 1600;

// A record that releases itself.
template <class K>
class Filter {
public:
    using Sample = typename K::Sample;
    using Tap = typename K::Tap;
    explicit Filter(const std::vector<Tap>& taps, const Sample* past = nullptr, int scaleFactor = 0)
        : tapsLen(static_cast<int>(taps.size())), scale(scaleFactor) {
        EXPECT_EQ(vlqStsOk, K::initAlloc(&state, taps.data(), tapsLen, past));
    }
    ~Filter() { EXPECT_EQ(vlqStsOk, K::free(state)); }
    Filter(const Filter&) = delete;
    VlqStatus run(const Sample* src, Sample* dst, int len) {
        return K::block(src, dst, len, state, scale);
    }
    VlqStatus inPlace(Sample* srcDst, int len) { return K::inPlace(srcDst, len, state, scale); }
    VlqStatus one(Sample src, Sample* dst) { return K::one(src, dst, state, scale); }
    std::vector<Sample> line() {
        std::vector<Sample> samples(count(tapsLen));
        EXPECT_EQ(vlqStsOk, K::getLine(state, samples.data()));
        return samples;
    }
    typename K::State* state = nullptr;
    int tapsLen, scale;
};

template <class T>
bool sameBits(const std::vector<T>& a, const std::vector<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

Vlq32u word(const void* state, int offset) {
    Vlq32u value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}
constexpr int kFirstChunk = 20, kFftSpec = 32, kFftLen = 44, kDlyIndex = 48, kOwnsMemory = 92;

template <class K>
class FirTypes : public ::testing::Test {
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
    std::vector<typename K::Sample> samples(int n) {
        return randomSamples<typename K::Sample>(count(n), rng);
    }

    // Runs `src` through the filter in the given way and compares with the definition.
    void expectNear(Filter<K>& filter, WideFir& ref, const std::vector<typename K::Sample>& src,
                    bool useInPlace, bool transform) {
        std::vector<typename K::Sample> dst = src;
        const int len = static_cast<int>(src.size());
        ASSERT_EQ(vlqStsOk, useInPlace ? filter.inPlace(dst.data(), len)
                                       : filter.run(src.data(), dst.data(), len));
        for (std::size_t i = 0; i < src.size(); ++i) {
            const WideComplex want = ref.next(src[i]);
            const Wide bound = errorBound<typename K::Tap, typename K::Sample>(
                ref, count(filter.tapsLen), transform);
            ASSERT_TRUE(isAllowed(want, bound, filter.scale, dst[i]))
                << filter.tapsLen << " taps, " << len << " samples, output " << i << ": "
                << wide(dst[i]) << " for " << want << (useInPlace ? " in place" : "");
        }
        ASSERT_TRUE(sameBits(ref.line<typename K::Sample>(), filter.line()))
            << "delay line of " << filter.tapsLen << " taps after " << len;
    }

private:
    int outstanding_ = Core::outstanding();
};

using Kinds =
    ::testing::Types<Fir32f, Fir32f_16s, Fir32fc, Fir32fc_16sc, Fir64fc, Fir64fc_32fc, Fir64fc_32sc,
                     Fir64fc_16sc, Fir64f, Fir64f_32f, Fir64f_32s, Fir64f_16s>;
TYPED_TEST_SUITE(FirTypes, Kinds);

// ---- records ------------------------------------------------------------------------------------

TYPED_TEST(FirTypes, Sizes) {
    using K = TypeParam;
    using Tap = typename K::Tap;
    constexpr bool isDouble = sizeof(Part<Tap>) == 8;
    const long element = sizeof(Tap);
    auto a = [](long n) { return (n + 15) / 16 * 16; };
    for (const int threads : {1, 2, 4, 5, 64}) {
        Core::setThreads(threads);
        for (const int len :
             {1, 2, 3, 4, 5, 15, 16, 17, 31, 32, 33, 63, 64, 127, 128, 1000, 4096, 100001}) {
            const long n = len;
            Vlq32s spec = 0, init = 0, work = 0;
            long e = 0;
            if (len >= K::kTransformTaps) {
                int order = 2;
                while ((1 << order) <= len) ++order;
                ++order;
                ASSERT_EQ(vlqStsOk,
                          K::transformSize(order, vlqNormInvByN, vlqHintNone, &spec, &init, &work));
                e = a(element << order);
            }
            long want =
                a(element * n) + a(4 * threads) + spec + init + e + threads * (work + e + 16);
            if (!isDouble && !isComplex<Tap>)
                want += a(12 * n + 31) + 4 * a(4 * n) + 16496;
            else if (!isDouble)
                want += a(24 * n + 47) + 6 * a(8 * n) + 32928;
            else if (isComplex<Tap>)
                want += a(48 * n + 95) + 2 * a(16 * n) + 65696;
            else
                want += a(24 * n + 63) + 2 * a(8 * n) + 32912;
            Vlq32s bytes = 0;
            ASSERT_EQ(vlqStsOk, K::stateSize(len, &bytes));
            EXPECT_EQ(want, bytes) << len << " taps, " << threads << " threads";
        }
    }
}

TYPED_TEST(FirTypes, Fields) {
    using K = TypeParam;
    for (const int len : {1, 4, 5, 15, 16, 31, 32, 63, 64, 127, 128}) {
        Filter<K> filter(this->taps(len));
        int fftLen = 4;
        while (fftLen <= len) fftLen *= 2;
        EXPECT_EQ(len >= K::kTransformTaps ? 2 * fftLen : -1,
                  static_cast<int>(word(filter.state, kFftLen)))
            << len;
        EXPECT_EQ(K::kWord, word(filter.state, 0));
        const int seam = (len + 3) / 4 * 4;
        EXPECT_EQ(count(isComplex<typename K::Tap> ? seam : seam + 1),
                  word(filter.state, kFirstChunk));
        EXPECT_EQ(1u, word(filter.state, kOwnsMemory));
        EXPECT_EQ(0u, word(filter.state, kDlyIndex));
    }
}

// The told size is enough wherever the memory begins, and results do not depend on where it lies.
TYPED_TEST(FirTypes, StaysInsideItsMemory) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    for (const int threads : {1, 3}) {
        Core::setThreads(threads);
        for (const int len : {1, 2, 3, 5, 8, 15, 16, 31, 33, 64, 130}) {
            const auto taps = this->taps(len);
            const auto past = this->samples(len), src = this->samples(1300);
            Vlq32s bytes;
            ASSERT_EQ(vlqStsOk, K::stateSize(len, &bytes));
            std::vector<Sample> first;
            for (int offset = 0; offset <= 64; offset += offset < 34 ? 1 : 6) {
                Buffer<Vlq8u> memory(count(bytes), {offset % 64, offset == 64});
                typename K::State* state = nullptr;
                ASSERT_EQ(vlqStsOk, K::init(&state, taps.data(), len, past.data(), memory.data()));
                ASSERT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) %
                                  (sizeof(Part<typename K::Tap>) == 8 ? 32 : 16));
                std::vector<Sample> dst(src.size()), all;
                for (const int block : {1, 40, 255, 600}) {
                    ASSERT_EQ(vlqStsOk, K::block(src.data(), dst.data(), block, state, 3));
                    all.insert(all.end(), dst.begin(), dst.begin() + block);
                    ASSERT_EQ(vlqStsOk, K::one(src[0], dst.data(), state, 3));
                    all.push_back(dst[0]);
                }
                dst = src;
                ASSERT_EQ(vlqStsOk, K::inPlace(dst.data(), 1300, state, 3));
                all.insert(all.end(), dst.begin(), dst.end());
                if (offset % 32 == 0) {
                    std::vector<Sample> longer(9000), out(9000);
                    for (std::size_t i = 0; i < longer.size(); ++i) longer[i] = src[i % src.size()];
                    ASSERT_EQ(vlqStsOk, K::block(longer.data(), out.data(), 9000, state, 3));
                    ASSERT_EQ(vlqStsOk, K::inPlace(longer.data(), 9000, state, 3));
                }
                if (first.empty()) first = all;
                ASSERT_TRUE(sameBits(first, all)) << len << " taps, offset " << offset;
                const auto before = memory.values();
                ASSERT_EQ(vlqStsOk, K::free(state));
                ASSERT_TRUE(sameBits(before, memory.values()));
                ASSERT_TRUE(memory.marginsIntact()) << len << " taps, offset " << offset;
            }
        }
    }
}

TYPED_TEST(FirTypes, TapsAndLineRoundTrip) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    using Tap = typename K::Tap;
    auto extremeTaps = [&](int n) {
        return drawn<Tap>(count(n), [&] { return extremeValue<Part<Tap>>(this->rng); });
    };
    auto extremePast = [&](int n) {
        return drawn<Sample>(count(n), [&] {
            auto v = extremeValue<Part<Sample>>(this->rng);
            return v == v ? v : Part<Sample>(1);
        });
    };
    for (const int len : {1, 2, 5, 16, 40, 64, 200}) {
        auto taps = extremeTaps(len);
        auto past = extremePast(len);
        Filter<K> filter(taps, past.data());
        Buffer<Tap> gotTaps(count(len), {3});
        Buffer<Sample> gotLine(count(len), {1});
        for (int round = 0; round < 3; ++round) {
            ASSERT_EQ(vlqStsOk, K::getTaps(filter.state, gotTaps.data()));
            ASSERT_TRUE(sameBits(taps, gotTaps.values()));
            ASSERT_EQ(vlqStsOk, K::getLine(filter.state, gotLine.data()));
            ASSERT_TRUE(sameBits(past, gotLine.values())) << len << " taps, round " << round;
            Sample y;
            ASSERT_EQ(vlqStsOk, filter.one(past[0], &y));
            ASSERT_EQ(len == 1 ? 0u : 1u, word(filter.state, kDlyIndex));
            taps = extremeTaps(len), past = extremePast(len);
            ASSERT_EQ(vlqStsOk, K::setTaps(Buffer<Tap>(taps, {1}).data(), filter.state));
            ASSERT_EQ(vlqStsOk, K::setLine(filter.state, Buffer<Sample>(past, {1}).data()));
            ASSERT_EQ(0u, word(filter.state, kDlyIndex));
        }
        ASSERT_EQ(vlqStsOk, K::setLine(filter.state, nullptr));
        EXPECT_TRUE(sameBits(std::vector<Sample>(count(len)), filter.line()));
        EXPECT_TRUE(sameBits(std::vector<Sample>(count(len)), Filter<K>(taps).line()));
        EXPECT_TRUE(gotTaps.marginsIntact() && gotLine.marginsIntact());
    }
}

TYPED_TEST(FirTypes, SetTapsReachesBothPaths) {
    using K = TypeParam;
    for (const int len : {5, 16, 32, 100}) {
        const auto taps = this->taps(len), other = this->taps(len);
        Filter<K> filter(taps);
        WideFir ref(taps);
        for (int round = 0; round < 6; ++round) {
            const int n = round % 3 == 0 ? 700 : 200;
            this->expectNear(filter, ref, this->samples(n), false,
                             len >= K::kTransformTaps && n >= kTransformLen<K>);
            if (this->HasFailure()) return;
            const auto& next = round % 2 == 0 ? other : taps;
            ASSERT_EQ(vlqStsOk, K::setTaps(next.data(), filter.state));
            ref.setTaps(next);
        }
    }
}

TYPED_TEST(FirTypes, RefusedMemory) {
    using K = TypeParam;
    for (const int len : {10, 100}) {
        const auto taps = this->taps(len);
        Core::reset();
        { Filter<K> filter(taps); }
        const int allocations = Core::allocations();
        EXPECT_EQ(len < K::kTransformTaps, allocations == 1);
        const int outstanding = Core::outstanding();
        for (int k = 1; k <= allocations; ++k) {
            Core::refuseAllocation(k);
            typename K::State* state = nullptr;
            const VlqStatus status = K::initAlloc(&state, taps.data(), len, nullptr);
            Core::refuseAllocation(0);
            if (k == 1) {
                EXPECT_EQ(vlqStsNoMemory, status);
                EXPECT_EQ(nullptr, state);
            } else {
                ASSERT_EQ(vlqStsOk, status);
                EXPECT_EQ(-1, static_cast<int>(word(state, kFftLen)));
                const auto src = this->samples(700);
                auto dst = src;
                ASSERT_EQ(vlqStsOk, K::block(src.data(), dst.data(), 700, state, 0));
                WideFir ref(taps);
                for (std::size_t i = 0; i < src.size(); ++i) {
                    const auto want = ref.next(src[i]);
                    ASSERT_TRUE(isAllowed(
                        want,
                        errorBound<typename K::Tap, typename K::Sample>(ref, taps.size(), false), 0,
                        dst[i]));
                }
                EXPECT_EQ(vlqStsOk, K::setTaps(taps.data(), state));
                EXPECT_EQ(vlqStsOk, K::free(state));
            }
            EXPECT_EQ(outstanding, Core::outstanding());
        }
    }
}

// A record of 2 GiB and more is refused before memory is asked for.
TYPED_TEST(FirTypes, RecordBeyondMemory) {
    using K = TypeParam;
    const typename K::Tap tap{};
    for (const int len : {1 << 27, 1 << 28, 1 << 30, INT_MAX}) {
        typename K::State* state = nullptr;
        EXPECT_EQ(vlqStsNoMemory, K::initAlloc(&state, &tap, len, nullptr)) << len;
        EXPECT_EQ(nullptr, state);
    }
    EXPECT_EQ(0, Core::allocations());
}

// A transform that dies under the record: its error comes out of new taps and of the filter. The
// double-precision record then goes on by the direct path.
TYPED_TEST(FirTypes, FailingTransform) {
    using K = TypeParam;
    const auto taps = this->taps(64);
    const auto src = this->samples(700);
    auto dst = src;
    Vlq32s bytes;
    ASSERT_EQ(vlqStsOk, K::stateSize(64, &bytes));
    Buffer<Vlq8u> memory(count(bytes));
    typename K::State* state = nullptr;
    ASSERT_EQ(vlqStsOk, K::init(&state, taps.data(), 64, nullptr, memory.data()));
    Vlq32s* spec;
    std::memcpy(&spec, reinterpret_cast<char*>(state) + kFftSpec, sizeof spec);
    ASSERT_NE(nullptr, spec);
    *spec = 0;
    EXPECT_EQ(vlqStsBadSpec, K::block(src.data(), dst.data(), 700, state, 0));
    EXPECT_NE(vlqStsOk, K::setTaps(taps.data(), state));
    std::memcpy(&spec, reinterpret_cast<char*>(state) + kFftSpec, sizeof spec);
    EXPECT_EQ(nullptr, spec);
    if (sizeof(Part<typename K::Tap>) == 8) {
        EXPECT_EQ(vlqStsOk, K::block(src.data(), dst.data(), 700, state, 0));
    } else {
        EXPECT_NE(vlqStsOk, K::block(src.data(), dst.data(), 700, state, 0));
    }
    EXPECT_EQ(vlqStsOk, K::free(state));
}

// ---- blocks -------------------------------------------------------------------------------------

TYPED_TEST(FirTypes, EveryTapCountAndLength) {
    using K = TypeParam;
    for (const int len :
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 15, 16, 17, 23, 31, 32, 33, 40, 63, 64, 65}) {
        const auto taps = this->taps(len);
        const auto past = this->samples(len);
        Filter<K> filter(taps, past.data(), K::kScaled ? 2 : 0);
        WideFir ref(taps, past);
        const int chunk = (len + 3) / 4 * 4;
        std::vector<int> lengths = {1,  2,  3,  4,  5,   7,   8,   9,   15,  16,  17, 31,
                                    33, 50, 64, 99, 161, 255, 256, 257, 511, 512, 513};
        for (int d = -3; d <= 3; ++d) {
            if (chunk + d > 0) lengths.push_back(chunk + d);
            if (len + d > 0) lengths.push_back(len + d);
        }
        for (const int n : lengths) {
            const bool transform = len >= K::kTransformTaps && n >= kTransformLen<K>;
            this->expectNear(filter, ref, this->samples(n), n % 3 == 0, transform);
            if (this->HasFailure()) return;
        }
    }
}

TYPED_TEST(FirTypes, LongBlocks) {
    using K = TypeParam;
    for (const int len : {3, 31, 100, 128}) {
        const auto taps = this->taps(len);
        Filter<K> filter(taps, nullptr, K::kScaled ? 1 : 0);
        WideFir ref(taps);
        int fftLen = 4;
        while (fftLen <= len) fftLen *= 2;
        const int step = 2 * fftLen - len + 1;
        for (const int n : {step - 1, step, step + 1, 2 * step + 1, 2048, 2049}) {
            this->expectNear(filter, ref, this->samples(n), false,
                             len >= K::kTransformTaps && n >= kTransformLen<K>);
            if (this->HasFailure()) return;
        }
        for (const int n : {4097, 4608, 8193 + 300}) {
            this->expectNear(filter, ref, this->samples(n), true, len >= K::kTransformTaps);
            if (this->HasFailure()) return;
        }
    }
}

// Integers whose sums are exact: so are the stored results, over all scale factors.
TYPED_TEST(FirTypes, ExactSums) {
    using K = TypeParam;
    using Tap = typename K::Tap;
    using Sample = typename K::Sample;
    const std::vector<int> scales =
        K::kScaled
            ? std::vector<int>{0, 1, 2, 3, 8, 20, 31, 40, 200, 2000, INT_MAX, -1, -8, -31, -100}
            : std::vector<int>{0};
    for (const int len : {1, 2, 3, 5, 9, 15, 40}) {
        for (const int scale : scales) {
            const auto taps = randomIntegers<Tap>(count(len), 8, this->rng);
            Filter<K> filter(taps, nullptr, scale);
            WideFir ref(taps);
            for (const int n : {1, 7, 200, 255}) {
                const auto src = randomIntegers<Sample>(count(n), 500, this->rng);
                auto dst = src;
                ASSERT_EQ(vlqStsOk, n % 2 ? filter.run(src.data(), dst.data(), n)
                                          : filter.inPlace(dst.data(), n));
                for (std::size_t i = 0; i < src.size(); ++i) {
                    const auto want = ref.next(src[i]);
                    ASSERT_TRUE(isAllowed(want, 0, scale, dst[i]))
                        << len << " taps, scale " << scale << ", output " << i << ": "
                        << wide(dst[i]) << " for " << want;
                }
            }
            for (int i = 0; i < 2 * len; ++i) {
                const auto x = randomIntegers<Sample>(1, 500, this->rng)[0];
                Buffer<Sample> y(1, {1});
                ASSERT_EQ(vlqStsOk, filter.one(x, y.data()));
                const auto want = ref.next(x);
                ASSERT_TRUE(isAllowed(want, 0, scale, y.values()[0]))
                    << len << " taps, scale " << scale << ", one: " << wide(y.values()[0])
                    << " for " << want;
                ASSERT_TRUE(y.marginsIntact());
            }
        }
    }
}

TYPED_TEST(FirTypes, AnyPlaceInMemory) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    for (const int len : {1, 2, 3, 4, 5, 20, 40}) {
        const auto taps = this->taps(len);
        for (const int n : {1, 3, 17, 100, 600}) {
            const auto src = this->samples(n);
            auto want = src, wantInPlace = src;
            ASSERT_EQ(vlqStsOk, Filter<K>(taps).run(src.data(), want.data(), n));
            ASSERT_EQ(vlqStsOk, Filter<K>(taps).inPlace(wantInPlace.data(), n));
            for (const int offset : {0, 1, 2, 4, 8, 12, 16, 31, 32, 63, 64}) {
                const Buffer<Sample> x(src, {offset % 64, offset == 64});
                Buffer<Sample> y(src.size(), {(offset * 7) % 64, offset == 64});
                ASSERT_EQ(vlqStsOk, Filter<K>(taps).run(x.data(), y.data(), n));
                ASSERT_TRUE(same(y, want))
                    << len << " taps, " << n << " samples, offset " << offset;
                y.assign(src);
                ASSERT_EQ(vlqStsOk, Filter<K>(taps).inPlace(y.data(), n));
                ASSERT_TRUE(same(y, wantInPlace))
                    << len << " taps, " << n << " samples in place, offset " << offset;
            }
        }
    }
}

TYPED_TEST(FirTypes, BlocksAndSingleSamplesMixed) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    for (int run = 0; run < 60; ++run) {
        const int len = 1 + this->below(70);
        const auto taps = this->taps(len);
        Filter<K> filter(taps, nullptr, K::kScaled ? 3 : 0);
        WideFir ref(taps);
        for (int turn = 0; turn < 6; ++turn) {
            if (turn % 2 == 0) {
                for (const Sample x : this->samples(1 + this->below(2 * len))) {
                    Sample y;
                    ASSERT_EQ(vlqStsOk, filter.one(x, &y));
                    const auto want = ref.next(x);
                    ASSERT_TRUE(
                        isAllowed(want, errorBound<typename K::Tap, Sample>(ref, count(len), false),
                                  filter.scale, y))
                        << len << " taps, run " << run;
                    ASSERT_TRUE(sameBits(ref.line<Sample>(), filter.line()));
                }
            } else {
                const int n = 1 + this->below(turn == 5 ? 700 : 60);
                this->expectNear(filter, ref, this->samples(n), turn == 3,
                                 len >= K::kTransformTaps && n >= kTransformLen<K>);
                if (this->HasFailure()) return;
            }
        }
    }
}

// ---- which path, threads ------------------------------------------------------------------------

// Which blocks differ in bits from those of a record that had no memory for its transform.
template <class K>
std::vector<bool> transformedBlocks(const std::vector<typename K::Tap>& taps,
                                    const std::vector<typename K::Sample>& src, int block,
                                    bool useInPlace) {
    using Sample = typename K::Sample;
    const int n = static_cast<int>(src.size());
    auto run = [&] {
        Filter<K> filter(taps, nullptr, K::kScaled ? -1 : 0);
        auto dst = src;
        EXPECT_EQ(vlqStsOk, useInPlace ? filter.inPlace(dst.data(), n)
                                       : filter.run(src.data(), dst.data(), n));
        return dst;
    };
    const auto got = run();
    Core::refuseAllocation(2);
    const auto direct = run();
    Core::refuseAllocation(0);
    std::vector<bool> transformed;
    for (int from = 0; from < n; from += block) {
        transformed.push_back(std::memcmp(&got[count(from)], &direct[count(from)],
                                          count(std::min(block, n - from)) * sizeof(Sample)) != 0);
    }
    return transformed;
}

TYPED_TEST(FirTypes, PathOfABlock) {
    using K = TypeParam;
    if constexpr (!std::is_floating_point_v<Part<typename K::Sample>> ||
                  sizeof(typename K::Sample) < sizeof(typename K::Tap)) {
        GTEST_SKIP() << "rounding hides the path";
    } else {
        const int n = kTransformLen<K>;
        auto path = [&](int taps, int len, bool useInPlace) {
            return transformedBlocks<K>(this->taps(taps), this->samples(len),
                                        useInPlace ? 4096 : 1 << 20, useInPlace);
        };
        using Blocks = std::vector<bool>;
        EXPECT_EQ(Blocks{false}, path(K::kTransformTaps, n - 1, false));
        EXPECT_EQ(Blocks{true}, path(K::kTransformTaps, n, false));
        EXPECT_EQ(Blocks{false}, path(K::kTransformTaps - 1, 10000, false));
        EXPECT_EQ(Blocks{false}, path(64, 4096, true));
        EXPECT_EQ((Blocks{false, false}), path(64, 4096 + n - 1, true));
        EXPECT_EQ((Blocks{true, false}), path(64, 4096 + n, true));
        EXPECT_EQ((Blocks{true, true, false}), path(64, 8192 + n, true));
    }
}

// The in-place forms of narrower samples take one path for the whole call, in blocks of 8192.
TYPED_TEST(FirTypes, NarrowSamplesInPlace) {
    using K = TypeParam;
    if constexpr (std::is_same_v<typename K::Sample, typename K::Tap>) {
        GTEST_SKIP() << "not of this kind";
    } else {
        for (const int len : {5, 40, 150}) {
            const auto taps = this->taps(len);
            for (const int n : {100, 255, 256, 512, 8192, 8192 + 512, 20000}) {
                const auto src = this->samples(n);
                Filter<K> outOf(taps, nullptr, 3), in(taps, nullptr, 3);
                auto want = src, got = src;
                for (int done = 0; done < n; done += 8192)
                    ASSERT_EQ(vlqStsOk, outOf.run(&src[count(done)], &want[count(done)],
                                                  std::min(8192, n - done)));
                ASSERT_EQ(vlqStsOk, in.inPlace(got.data(), n));
                ASSERT_TRUE(sameBits(want, got)) << len << " taps, " << n << " samples";
                ASSERT_TRUE(sameBits(outOf.line(), in.line()));
            }
        }
    }
}

TYPED_TEST(FirTypes, ResultsDoNotDependOnTheTeam) {
    using K = TypeParam;
    for (const int len : {1, 5, 31, 63, 100}) {
        const auto taps = this->taps(len);
        const auto past = this->samples(len);
        for (const int n : {kThreadedAbove<K>, kThreadedAbove<K> + 1, 5003}) {
            const auto src = this->samples(n);
            std::vector<typename K::Sample> alone;
            // A share of fewer samples than taps leaves the call in pieces.
            const std::vector<int> teams =
                len == 63 && n == 5003 ? std::vector<int>{1, 100} : std::vector<int>{1, 2, 3, 5};
            for (const int threads : teams) {
                Core::setThreads(threads);
                Filter<K> filter(taps, past.data(), 2);
                auto dst = src, inPlace = src;
                for (int round = 0; round < 2; ++round) {
                    ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), n));
                    ASSERT_EQ(vlqStsOk, filter.inPlace(inPlace.data(), n));
                }
                const auto line = filter.line();
                dst.insert(dst.end(), inPlace.begin(), inPlace.end());
                dst.insert(dst.end(), line.begin(), line.end());
                if (threads == 1) alone = dst;
                ASSERT_TRUE(sameBits(alone, dst))
                    << len << " taps, " << n << " samples, " << threads << " threads";
            }
            Core::setThreads(1);
        }
    }
}

// ---- checks -------------------------------------------------------------------------------------

TYPED_TEST(FirTypes, Checks) {
    using K = TypeParam;
    using Tap = typename K::Tap;
    using Sample = typename K::Sample;
    using State = typename K::State;
    const auto taps = this->taps(4);
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, K::stateSize(0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, K::stateSize(0, &bytes));
    EXPECT_EQ(-5, bytes);
    ASSERT_EQ(vlqStsOk, K::stateSize(4, &bytes));
    Buffer<Vlq8u> memory(count(bytes));
    State* state = nullptr;
    EXPECT_EQ(vlqStsNullPtr, K::init(nullptr, taps.data(), 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, K::init(&state, nullptr, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, K::init(&state, taps.data(), 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, K::init(&state, taps.data(), 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, K::initAlloc(nullptr, taps.data(), 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, K::initAlloc(&state, nullptr, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, K::initAlloc(&state, taps.data(), 0, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(0, Core::allocations());

    ASSERT_EQ(vlqStsOk, K::init(&state, taps.data(), 4, nullptr, memory.data()));
    std::vector<Sample> x(8);
    std::vector<Tap> h(4);
    auto expectAll = [&](VlqStatus of, bool rates) {
        if (!rates) {
            EXPECT_EQ(of, K::block(x.data(), x.data() + 4, 4, state, 0));
            EXPECT_EQ(of, K::inPlace(x.data(), 4, state, 0));
        }
        EXPECT_EQ(rates ? vlqStsBadSpec : of, K::one(x[0], x.data(), state, 0));
        EXPECT_EQ(of, K::getTaps(state, h.data()));
        EXPECT_EQ(of, K::setLine(state, x.data()));
        EXPECT_EQ(of, K::getLine(state, x.data()));
        EXPECT_EQ(of, K::free(state));
    };
    expectAll(vlqStsOk, false);
    std::memcpy(static_cast<void*>(state), &K::kMultiRateWord, 4);
    expectAll(vlqStsOk, true);
    for (const Vlq32u alien :
         {0x46493031u, 0x46493032u, 0x46493133u, 0x46493039u, 0x46493333u, 0u}) {
        // Streaming records of floats are of one make with the plain ones.
        if (alien == K::kWord || (std::is_same_v<K, Fir32f> && alien == 0x46493333)) continue;
        std::memcpy(static_cast<void*>(state), &alien, 4);
        expectAll(vlqStsBadSpec, false);
        EXPECT_EQ(vlqStsBadSpec, K::setTaps(h.data(), state));
        // Null pointers and lengths come before the word.
        EXPECT_EQ(vlqStsNullPtr, K::block(nullptr, x.data(), 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), nullptr, 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), x.data(), 0, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, K::block(x.data(), x.data() + 4, 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, K::inPlace(nullptr, 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, K::inPlace(x.data(), 0, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, K::inPlace(x.data(), -1, state, 0));
        EXPECT_EQ(vlqStsNullPtr, K::one(x[0], nullptr, state, 0));
        EXPECT_EQ(vlqStsNullPtr, K::one(x[0], x.data(), nullptr, 0));
        EXPECT_EQ(vlqStsNullPtr, K::setTaps(nullptr, state));
        EXPECT_EQ(vlqStsNullPtr, K::setTaps(h.data(), nullptr));
        EXPECT_EQ(vlqStsNullPtr, K::getTaps(nullptr, h.data()));
        EXPECT_EQ(vlqStsNullPtr, K::getTaps(state, nullptr));
        EXPECT_EQ(vlqStsNullPtr, K::setLine(nullptr, x.data()));
        EXPECT_EQ(vlqStsNullPtr, K::getLine(nullptr, x.data()));
        EXPECT_EQ(vlqStsNullPtr, K::getLine(state, nullptr));
        EXPECT_EQ(vlqStsNullPtr, K::free(nullptr));
    }
    for (const Sample& v : x) EXPECT_EQ(WideComplex(0), wide(v));
}

TYPED_TEST(FirTypes, FilteringAllocatesNothing) {
    using K = TypeParam;
    Filter<K> filter(this->taps(100));
    auto src = this->samples(5000), dst = src;
    const int before = Core::allocations();
    for (const int n : {1, 100, 600, 5000}) {
        ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), n));
        ASSERT_EQ(vlqStsOk, filter.inPlace(dst.data(), n));
        ASSERT_EQ(vlqStsOk, filter.one(src[0], dst.data()));
    }
    EXPECT_EQ(before, Core::allocations());
}

}  // namespace
