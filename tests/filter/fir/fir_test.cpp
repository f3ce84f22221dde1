// Floating FIR states over every arithmetic: what the tests of real single precision show in
// detail, for each kind.
#include <climits>
#include <cstring>

#include "filter/fir/fir_rows.h"

namespace {

using namespace vlqtest;

constexpr int kFirstChunk = 20, kFftSpec = 32, kFftLen = 44, kDlyIndex = 48, kOwned = 92;

class Filter : public RowState {
public:
    Filter(const FirRow& row, const Values& taps, const Values* past = nullptr, int scaleFactor = 0)
        : RowState(row, taps.len(), scaleFactor) {
        EXPECT_EQ(vlqStsOk,
                  row.initAlloc(&state, taps.data(), tapsLen, past ? past->data() : nullptr));
    }
    Values line() { return RowState::line(count(tapsLen)); }
};

class FirTypes : public RowTest {
protected:
    bool isTransformed(int tapsLen, int len) const {
        return tapsLen >= kind.transformTaps && len >= kind.transformLen();
    }
    Values lineOf(const WideFir& ref) const { return {kind.sample, ref.line<WideComplex>()}; }
    bool isNear(const WideFir& ref, WideComplex want, int tapsLen, bool transform, int scale,
                WideComplex got) const {
        return isAllowed(kind.sample, want,
                         errorBound(ref, kind.tap, kind.sample, count(tapsLen), transform), scale,
                         got);
    }

    // Runs `src` through the filter in the given way and compares with the definition.
    void expectNear(Filter& filter, WideFir& ref, const Values& src, bool useInPlace,
                    bool transform) {
        Values dst = src;
        const int len = src.len();
        ASSERT_EQ(vlqStsOk, useInPlace ? filter.inPlace(dst.data(), len)
                                       : filter.run(src.data(), dst.data(), len));
        for (std::size_t i = 0; i < src.size(); ++i) {
            const WideComplex want = ref.next(src[i]);
            if (!isNear(ref, want, filter.tapsLen, transform, filter.scale, dst[i])) {
                FAIL() << filter.tapsLen << " taps, " << len << " samples, output " << i << ": "
                       << dst[i] << " for " << want << (useInPlace ? " in place" : "");
            }
        }
        ASSERT_TRUE(lineOf(ref) == filter.line())
            << "delay line of " << filter.tapsLen << " taps after " << len;
    }
};
INSTANTIATE_TEST_SUITE_P(Kinds, FirTypes, ::testing::ValuesIn(firRows()), nameOf);

// ---- states -------------------------------------------------------------------------------------

TEST_P(FirTypes, Sizes) {
    const bool isComplexKind = kind.tap.isComplex;
    const long element = static_cast<long>(kind.tap.bytes());
    auto a = [](long n) { return (n + 15) / 16 * 16; };
    for (const int threads : {1, 2, 4, 5, 64}) {
        Core::setThreads(threads);
        for (const int len :
             {1, 2, 3, 4, 5, 15, 16, 17, 31, 32, 33, 63, 64, 127, 128, 1000, 4096, 100001}) {
            const long n = len;
            Vlq32s spec = 0, init = 0, work = 0;
            long e = 0;
            if (len >= kind.transformTaps) {
                int order = 2;
                while ((1 << order) <= len) ++order;
                ++order;
                ASSERT_EQ(vlqStsOk, kind.transformSize(order, &spec, &init, &work));
                e = a(element << order);
            }
            long want =
                a(element * n) + a(4 * threads) + spec + init + e + threads * (work + e + 16);
            if (!kind.isDouble() && !isComplexKind)
                want += a(12 * n + 31) + 4 * a(4 * n) + 16496;
            else if (!kind.isDouble())
                want += a(24 * n + 47) + 6 * a(8 * n) + 32928;
            else if (isComplexKind)
                want += a(48 * n + 95) + 2 * a(16 * n) + 65696;
            else
                want += a(24 * n + 63) + 2 * a(8 * n) + 32912;
            Vlq32s bytes = 0;
            ASSERT_EQ(vlqStsOk, kind.stateSize(len, &bytes));
            EXPECT_EQ(want, bytes) << len << " taps, " << threads << " threads";
        }
    }
}

TEST_P(FirTypes, Fields) {
    for (const int len : {1, 4, 5, 15, 16, 31, 32, 63, 64, 127, 128}) {
        Filter filter(kind, taps(len));
        int fftLen = 4;
        while (fftLen <= len) fftLen *= 2;
        EXPECT_EQ(len >= kind.transformTaps ? 2 * fftLen : -1, field(filter.state, kFftLen)) << len;
        EXPECT_EQ(kind.tag, static_cast<Vlq32u>(field(filter.state, 0)));
        const int seam = (len + 3) / 4 * 4;
        EXPECT_EQ(kind.tap.isComplex ? seam : seam + 1, field(filter.state, kFirstChunk));
        EXPECT_EQ(1, field(filter.state, kOwned));
        EXPECT_EQ(0, field(filter.state, kDlyIndex));
    }
}

// The reported size is enough wherever the memory begins, and results do not depend on where.
TEST_P(FirTypes, StaysInsideItsMemory) {
    for (const int threads : {1, 3}) {
        Core::setThreads(threads);
        for (const int len : {1, 2, 3, 5, 8, 15, 16, 31, 33, 64, 130}) {
            const Values h = taps(len), past = samples(len), src = samples(1300);
            Vlq32s bytes;
            ASSERT_EQ(vlqStsOk, kind.stateSize(len, &bytes));
            Values first(kind.sample, 0);
            for (int offset = 0; offset <= 64; offset += offset < 34 ? 1 : 6) {
                Buffer<Vlq8u> memory(count(bytes), {offset % 64, offset == 64});
                void* state = nullptr;
                ASSERT_EQ(vlqStsOk, kind.init(&state, h.data(), len, past.data(), memory.data()));
                ASSERT_EQ(0u,
                          reinterpret_cast<std::uintptr_t>(state) % (kind.isDouble() ? 32 : 16));
                Values dst(kind.sample, src.size()), all(kind.sample, 0);
                for (const int block : {1, 40, 255, 600}) {
                    ASSERT_EQ(vlqStsOk, kind.block(src.data(), dst.data(), block, state, 3));
                    all.append(dst.slice(0, count(block)));
                    ASSERT_EQ(vlqStsOk, kind.one(src.data(), dst.data(), state, 3));
                    all.append(dst.slice(0, 1));
                }
                dst = src;
                ASSERT_EQ(vlqStsOk, kind.inPlace(dst.data(), 1300, state, 3));
                all.append(dst);
                if (offset % 32 == 0) {
                    Values longer(kind.sample, 0);
                    while (longer.size() < 9000) longer.append(src);
                    Values out = longer;
                    ASSERT_EQ(vlqStsOk, kind.block(longer.data(), out.data(), 9000, state, 3));
                    ASSERT_EQ(vlqStsOk, kind.inPlace(longer.data(), 9000, state, 3));
                }
                if (first.size() == 0) first = all;
                ASSERT_TRUE(first == all) << len << " taps, offset " << offset;
                const auto before = memory.values();
                ASSERT_EQ(vlqStsOk, kind.free(state));
                ASSERT_TRUE(before == memory.values());
                ASSERT_TRUE(memory.marginsIntact()) << len << " taps, offset " << offset;
            }
        }
    }
}

// The library's count of threads may grow after Init. The state was laid out for the count of then:
// it neither reaches beyond its size nor gives other results.
TEST_P(FirTypes, MoreThreadsThanBuiltFor) {
    for (const int len : {5, 40, 200, 1500}) {
        for (const int built : {1, 2}) {
            Core::setThreads(built);
            const Values h = taps(len), past = samples(len), src = samples(60000);
            Vlq32s bytes;
            ASSERT_EQ(vlqStsOk, kind.stateSize(len, &bytes));
            Values want(kind.sample, 0);
            for (const int threads : {built, 64}) {
                Core::setThreads(built);
                Buffer<Vlq8u> memory(count(bytes), {0, true});  // up to a protected page
                void* state = nullptr;
                ASSERT_EQ(vlqStsOk, kind.init(&state, h.data(), len, past.data(), memory.data()));
                Core::setThreads(threads);
                Values dst = src, inPlace = src;
                ASSERT_EQ(vlqStsOk, kind.block(src.data(), dst.data(), dst.len(), state, 3));
                ASSERT_EQ(vlqStsOk, kind.inPlace(inPlace.data(), inPlace.len(), state, 3));
                dst.append(inPlace);
                if (want.size() == 0) want = dst;
                ASSERT_TRUE(want == dst) << len << " taps, " << built << " threads at Init";
                ASSERT_TRUE(memory.marginsIntact());
                ASSERT_EQ(vlqStsOk, kind.free(state));
            }
        }
    }
}

TEST_P(FirTypes, TapsAndLineRoundTrip) {
    for (const int len : {1, 2, 5, 16, 40, 64, 200}) {
        const std::size_t n = count(len);
        Values h = extremeValues(kind.tap, n, true, rng);
        Values past = extremeValues(kind.sample, n, false, rng);
        Filter filter(kind, h, &past);
        Buffer<Vlq8u> gotTaps(h.bytes().size(), {3}), gotLine(past.bytes().size(), {1});
        for (int round = 0; round < 3; ++round) {
            ASSERT_EQ(vlqStsOk, kind.getTaps(filter.state, gotTaps.data()));
            ASSERT_TRUE(h.bytes() == gotTaps.values());
            ASSERT_EQ(vlqStsOk, kind.getLine(filter.state, gotLine.data()));
            ASSERT_TRUE(past.bytes() == gotLine.values()) << len << " taps, round " << round;
            Values y(kind.sample, 1);
            ASSERT_EQ(vlqStsOk, filter.one(past.data(), y.data()));
            ASSERT_EQ(len == 1 ? 0 : 1, field(filter.state, kDlyIndex));
            h = extremeValues(kind.tap, n, true, rng);
            past = extremeValues(kind.sample, n, false, rng);
            ASSERT_EQ(vlqStsOk, kind.setTaps(Buffer<Vlq8u>(h.bytes(), {1}).data(), filter.state));
            ASSERT_EQ(vlqStsOk,
                      kind.setLine(filter.state, Buffer<Vlq8u>(past.bytes(), {1}).data()));
            ASSERT_EQ(0, field(filter.state, kDlyIndex));
        }
        ASSERT_EQ(vlqStsOk, kind.setLine(filter.state, nullptr));
        EXPECT_TRUE(Values(kind.sample, n) == filter.line());
        EXPECT_TRUE(Values(kind.sample, n) == Filter(kind, h).line());
        EXPECT_TRUE(gotTaps.marginsIntact() && gotLine.marginsIntact());
    }
}

TEST_P(FirTypes, SetTapsReachesBothPaths) {
    for (const int len : {5, 16, 32, 100}) {
        const Values h = taps(len), other = taps(len);
        Filter filter(kind, h);
        WideFir ref(h.all());
        for (int round = 0; round < 6; ++round) {
            const int n = round % 3 == 0 ? 700 : 200;
            expectNear(filter, ref, samples(n), false, isTransformed(len, n));
            if (HasFailure()) return;
            const Values& next = round % 2 == 0 ? other : h;
            ASSERT_EQ(vlqStsOk, kind.setTaps(next.data(), filter.state));
            ref.setTaps(next.all());
        }
    }
}

TEST_P(FirTypes, RefusedMemory) {
    for (const int len : {10, 100}) {
        const Values h = taps(len);
        Core::reset();
        { Filter filter(kind, h); }
        const int allocations = Core::allocations();
        EXPECT_EQ(len < kind.transformTaps, allocations == 1);
        const int outstanding = Core::outstanding();
        for (int k = 1; k <= allocations; ++k) {
            Core::refuseAllocation(k);
            void* state = nullptr;
            const VlqStatus status = kind.initAlloc(&state, h.data(), len, nullptr);
            Core::refuseAllocation(0);
            if (k == 1) {
                EXPECT_EQ(vlqStsNoMemory, status);
                EXPECT_EQ(nullptr, state);
            } else {
                ASSERT_EQ(vlqStsOk, status);
                EXPECT_EQ(-1, field(state, kFftLen));
                const Values src = samples(700);
                Values dst = src;
                ASSERT_EQ(vlqStsOk, kind.block(src.data(), dst.data(), 700, state, 0));
                WideFir ref(h.all());
                for (std::size_t i = 0; i < src.size(); ++i) {
                    const WideComplex want = ref.next(src[i]);
                    ASSERT_TRUE(isNear(ref, want, len, false, 0, dst[i]));
                }
                EXPECT_EQ(vlqStsOk, kind.setTaps(h.data(), state));
                EXPECT_EQ(vlqStsOk, kind.free(state));
            }
            EXPECT_EQ(outstanding, Core::outstanding());
        }
    }
}

// A state of 2 GiB and more is refused before memory is asked for.
TEST_P(FirTypes, StateBeyondMemory) {
    const Values tap(kind.tap, 1);
    for (const int len : {1 << 27, 1 << 28, 1 << 30, INT_MAX}) {
        void* state = nullptr;
        EXPECT_EQ(vlqStsNoMemory, kind.initAlloc(&state, tap.data(), len, nullptr)) << len;
        EXPECT_EQ(nullptr, state);
    }
    EXPECT_EQ(0, Core::allocations());
}

// A transform that dies under the state: new taps and the filter return its error. The
// double-precision state then goes on in the time domain.
TEST_P(FirTypes, FailingTransform) {
    const Values h = taps(64), src = samples(700);
    Values dst = src;
    Vlq32s bytes;
    ASSERT_EQ(vlqStsOk, kind.stateSize(64, &bytes));
    Buffer<Vlq8u> memory(count(bytes));
    void* state = nullptr;
    ASSERT_EQ(vlqStsOk, kind.init(&state, h.data(), 64, nullptr, memory.data()));
    Vlq32s* spec;
    std::memcpy(&spec, static_cast<char*>(state) + kFftSpec, sizeof spec);
    ASSERT_NE(nullptr, spec);
    *spec = 0;
    EXPECT_EQ(vlqStsBadSpec, kind.block(src.data(), dst.data(), 700, state, 0));
    EXPECT_NE(vlqStsOk, kind.setTaps(h.data(), state));
    std::memcpy(&spec, static_cast<char*>(state) + kFftSpec, sizeof spec);
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(kind.isDouble(), kind.block(src.data(), dst.data(), 700, state, 0) == vlqStsOk);
    EXPECT_EQ(vlqStsOk, kind.free(state));
}

// ---- blocks -------------------------------------------------------------------------------------

TEST_P(FirTypes, EveryTapCountAndLength) {
    for (const int len :
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 15, 16, 17, 23, 31, 32, 33, 40, 63, 64, 65}) {
        const Values h = taps(len), past = samples(len);
        Filter filter(kind, h, &past, kind.isScaled ? 2 : 0);
        WideFir ref(h.all(), past.all());
        const int chunk = (len + 3) / 4 * 4;
        std::vector<int> lengths = {1,  2,  3,  4,  5,   7,   8,   9,   15,  16,  17, 31,
                                    33, 50, 64, 99, 161, 255, 256, 257, 511, 512, 513};
        for (int d = -3; d <= 3; ++d) {
            if (chunk + d > 0) lengths.push_back(chunk + d);
            if (len + d > 0) lengths.push_back(len + d);
        }
        for (const int n : lengths) {
            expectNear(filter, ref, samples(n), n % 3 == 0, isTransformed(len, n));
            if (HasFailure()) return;
        }
    }
}

TEST_P(FirTypes, LongBlocks) {
    for (const int len : {3, 31, 100, 128}) {
        const Values h = taps(len);
        Filter filter(kind, h, nullptr, kind.isScaled ? 1 : 0);
        WideFir ref(h.all());
        int fftLen = 4;
        while (fftLen <= len) fftLen *= 2;
        const int step = 2 * fftLen - len + 1;
        for (const int n : {step - 1, step, step + 1, 2 * step + 1, 2048, 2049}) {
            expectNear(filter, ref, samples(n), false, isTransformed(len, n));
            if (HasFailure()) return;
        }
        for (const int n : {4097, 4608, 8193 + 300}) {
            expectNear(filter, ref, samples(n), true, len >= kind.transformTaps);
            if (HasFailure()) return;
        }
    }
}

// Integers whose sums are exact: so are the stored results, over all scale factors.
TEST_P(FirTypes, ExactSums) {
    const std::vector<int> scales =
        kind.isScaled
            ? std::vector<int>{0, 1, 2, 3, 8, 20, 31, 40, 200, 2000, INT_MAX, -1, -8, -31, -100}
            : std::vector<int>{0};
    auto expectExact = [&](int scale, WideComplex want, WideComplex got, const char* call) {
        if (!isAllowed(kind.sample, want, 0, scale, got))
            FAIL() << "scale " << scale << ", " << call << ": " << got << " for " << want;
    };
    for (const int len : {1, 2, 3, 5, 9, 15, 40}) {
        for (const int scale : scales) {
            const Values h = randomIntegers(kind.tap, count(len), 8, rng);
            Filter filter(kind, h, nullptr, scale);
            WideFir ref(h.all());
            for (const int n : {1, 7, 200, 255}) {
                const Values src = randomIntegers(kind.sample, count(n), 500, rng);
                Values dst = src;
                ASSERT_EQ(vlqStsOk, n % 2 ? filter.run(src.data(), dst.data(), n)
                                          : filter.inPlace(dst.data(), n));
                for (std::size_t i = 0; i < src.size(); ++i)
                    expectExact(scale, ref.next(src[i]), dst[i], "block");
            }
            for (int i = 0; i < 2 * len; ++i) {
                const Values x = randomIntegers(kind.sample, 1, 500, rng);
                Buffer<Vlq8u> y(kind.sample.bytes(), {1});
                ASSERT_EQ(vlqStsOk, filter.one(x.data(), y.data()));
                expectExact(scale, ref.next(x[0]), Values(kind.sample, y.values())[0], "one");
                ASSERT_TRUE(y.marginsIntact());
            }
            ASSERT_FALSE(HasFailure()) << len << " taps";
        }
    }
}

TEST_P(FirTypes, AnyPlaceInMemory) {
    for (const int len : {1, 2, 3, 4, 5, 20, 40}) {
        const Values h = taps(len);
        for (const int n : {1, 3, 17, 100, 600}) {
            const Values src = samples(n);
            Values want = src, wantInPlace = src;
            ASSERT_EQ(vlqStsOk, Filter(kind, h).run(src.data(), want.data(), n));
            ASSERT_EQ(vlqStsOk, Filter(kind, h).inPlace(wantInPlace.data(), n));
            for (const int offset : {0, 1, 2, 4, 8, 12, 16, 31, 32, 63, 64}) {
                const Buffer<Vlq8u> x(src.bytes(), {offset % 64, offset == 64});
                Buffer<Vlq8u> y(src.bytes().size(), {(offset * 7) % 64, offset == 64});
                ASSERT_EQ(vlqStsOk, Filter(kind, h).run(x.data(), y.data(), n));
                ASSERT_TRUE(same(y, want.bytes()))
                    << len << " taps, " << n << " samples, offset " << offset;
                y.assign(src.bytes());
                ASSERT_EQ(vlqStsOk, Filter(kind, h).inPlace(y.data(), n));
                ASSERT_TRUE(same(y, wantInPlace.bytes()))
                    << len << " taps, " << n << " samples in place, offset " << offset;
            }
        }
    }
}

TEST_P(FirTypes, BlocksAndSingleSamplesMixed) {
    for (int run = 0; run < 60; ++run) {
        const int len = 1 + below(70);
        const Values h = taps(len);
        Filter filter(kind, h, nullptr, kind.isScaled ? 3 : 0);
        WideFir ref(h.all());
        for (int turn = 0; turn < 6; ++turn) {
            if (turn % 2 == 0) {
                const Values x = samples(1 + below(2 * len));
                Values y(kind.sample, 1);
                for (std::size_t i = 0; i < x.size(); ++i) {
                    ASSERT_EQ(vlqStsOk, filter.one(x.data(i), y.data()));
                    const WideComplex want = ref.next(x[i]);
                    ASSERT_TRUE(isNear(ref, want, len, false, filter.scale, y[0]))
                        << len << " taps, run " << run;
                    ASSERT_TRUE(lineOf(ref) == filter.line());
                }
            } else {
                const int n = 1 + below(turn == 5 ? 700 : 60);
                expectNear(filter, ref, samples(n), turn == 3, isTransformed(len, n));
                if (HasFailure()) return;
            }
        }
    }
}

// ---- which path, threads ------------------------------------------------------------------------

TEST_P(FirTypes, PathOfABlock) {
    if (!kind.sample.isFloating() || kind.sample.bytes() < kind.tap.bytes())
        GTEST_SKIP() << "rounding hides the path";
    using Blocks = std::vector<bool>;
    // Which blocks differ in bits from those of a state that had no memory for its transform.
    auto path = [&](int tapsLen, int n, bool useInPlace) {
        const Values h = taps(tapsLen), src = samples(n);
        auto run = [&] {
            Filter filter(kind, h, nullptr, kind.isScaled ? -1 : 0);
            Values dst = src;
            EXPECT_EQ(vlqStsOk, useInPlace ? filter.inPlace(dst.data(), n)
                                           : filter.run(src.data(), dst.data(), n));
            return dst;
        };
        const Values got = run();
        Core::refuseAllocation(2);
        const Values timeDomain = run();
        Core::refuseAllocation(0);
        Blocks transformed;
        const int block = useInPlace ? 4096 : 1 << 20;
        for (int from = 0; from < n; from += block) {
            const std::size_t length = count(std::min(block, n - from));
            transformed.push_back(
                !(got.slice(count(from), length) == timeDomain.slice(count(from), length)));
        }
        return transformed;
    };
    const int n = kind.transformLen();
    EXPECT_EQ(Blocks{false}, path(kind.transformTaps, n - 1, false));
    EXPECT_EQ(Blocks{true}, path(kind.transformTaps, n, false));
    EXPECT_EQ(Blocks{false}, path(kind.transformTaps - 1, 10000, false));
    EXPECT_EQ(Blocks{false}, path(64, 4096, true));
    EXPECT_EQ((Blocks{false, false}), path(64, 4096 + n - 1, true));
    EXPECT_EQ((Blocks{true, false}), path(64, 4096 + n, true));
    EXPECT_EQ((Blocks{true, true, false}), path(64, 8192 + n, true));
}

// The in-place calls of narrower samples take one path for the whole call, in blocks of 8192.
TEST_P(FirTypes, NarrowSamplesInPlace) {
    if (!kind.converts()) GTEST_SKIP() << "not of this kind";
    for (const int len : {5, 40, 150}) {
        const Values h = taps(len);
        for (const int n : {100, 255, 256, 512, 8192, 8192 + 512, 20000}) {
            const Values src = samples(n);
            Filter outOf(kind, h, nullptr, 3), in(kind, h, nullptr, 3);
            Values want = src, got = src;
            for (int done = 0; done < n; done += 8192)
                ASSERT_EQ(vlqStsOk, outOf.run(src.data(count(done)), want.data(count(done)),
                                              std::min(8192, n - done)));
            ASSERT_EQ(vlqStsOk, in.inPlace(got.data(), n));
            ASSERT_TRUE(want == got) << len << " taps, " << n << " samples";
            ASSERT_TRUE(outOf.line() == in.line());
        }
    }
}

// The longest block is long enough for a team of several threads.
TEST_P(FirTypes, ResultsDoNotDependOnTheTeam) {
    for (const int len : {1, 5, 31, 63, 100}) {
        const Values h = taps(len), past = samples(len);
        for (const int n :
             {kind.threadedAbove(), kind.threadedAbove() + 1, 5003, len == 63 ? 300001 : 100003}) {
            const Values src = samples(n);
            Values alone(kind.sample, 0);
            // A share of fewer samples than taps leaves the call in pieces.
            const std::vector<int> teams =
                len == 63 && n == 5003 ? std::vector<int>{1, 100} : std::vector<int>{1, 2, 3, 5};
            for (const int threads : teams) {
                Core::setThreads(threads);
                Filter filter(kind, h, &past, 2);
                Values dst = src, inPlace = src;
                for (int round = 0; round < 2; ++round) {
                    ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), n));
                    ASSERT_EQ(vlqStsOk, filter.inPlace(inPlace.data(), n));
                }
                dst.append(inPlace);
                dst.append(filter.line());
                if (threads == 1) alone = dst;
                ASSERT_TRUE(alone == dst)
                    << len << " taps, " << n << " samples, " << threads << " threads";
            }
            Core::setThreads(1);
        }
    }
}

// ---- checks -------------------------------------------------------------------------------------

TEST_P(FirTypes, Checks) {
    Values h = taps(4);
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, kind.stateSize(0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, kind.stateSize(0, &bytes));
    EXPECT_EQ(-5, bytes);
    ASSERT_EQ(vlqStsOk, kind.stateSize(4, &bytes));
    Buffer<Vlq8u> memory(count(bytes));
    void* state = nullptr;
    EXPECT_EQ(vlqStsNullPtr, kind.init(nullptr, h.data(), 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, kind.init(&state, nullptr, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, kind.init(&state, h.data(), 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, kind.init(&state, h.data(), 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, kind.initAlloc(nullptr, h.data(), 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, kind.initAlloc(&state, nullptr, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, kind.initAlloc(&state, h.data(), 0, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(0, Core::allocations());

    ASSERT_EQ(vlqStsOk, kind.init(&state, h.data(), 4, nullptr, memory.data()));
    Values x(kind.sample, 8);
    h = Values(kind.tap, 4);
    auto expectAll = [&](VlqStatus of, bool rates) {
        if (!rates) {
            EXPECT_EQ(of, kind.block(x.data(), x.data(4), 4, state, 0));
            EXPECT_EQ(of, kind.inPlace(x.data(), 4, state, 0));
        }
        EXPECT_EQ(rates ? vlqStsBadSpec : of, kind.one(x.data(), x.data(), state, 0));
        EXPECT_EQ(of, kind.getTaps(state, h.data()));
        EXPECT_EQ(of, kind.setLine(state, x.data()));
        EXPECT_EQ(of, kind.getLine(state, x.data()));
        EXPECT_EQ(of, kind.free(state));
    };
    expectAll(vlqStsOk, false);
    std::memcpy(state, &kind.multiRateTag, 4);
    expectAll(vlqStsOk, true);
    const Vlq32u ofFloats = firRows()[0].tag;
    for (const Vlq32u alien :
         {0x46493031u, 0x46493032u, 0x46493133u, 0x46493039u, 0x46493333u, 0u}) {
        // Streaming states of floats are of one make with the plain ones.
        if (alien == kind.tag || (kind.tag == ofFloats && alien == 0x46493333)) continue;
        std::memcpy(state, &alien, 4);
        expectAll(vlqStsBadSpec, false);
        EXPECT_EQ(vlqStsBadSpec, kind.setTaps(h.data(), state));
        // Null pointers and lengths come before the tag.
        EXPECT_EQ(vlqStsNullPtr, kind.block(nullptr, x.data(), 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.block(x.data(), nullptr, 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.block(x.data(), x.data(), 0, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, kind.block(x.data(), x.data(4), 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.inPlace(nullptr, 0, state, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.inPlace(x.data(), 0, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, kind.inPlace(x.data(), -1, state, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.one(x.data(), nullptr, state, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.one(x.data(), x.data(), nullptr, 0));
        EXPECT_EQ(vlqStsNullPtr, kind.setTaps(nullptr, state));
        EXPECT_EQ(vlqStsNullPtr, kind.setTaps(h.data(), nullptr));
        EXPECT_EQ(vlqStsNullPtr, kind.getTaps(nullptr, h.data()));
        EXPECT_EQ(vlqStsNullPtr, kind.getTaps(state, nullptr));
        EXPECT_EQ(vlqStsNullPtr, kind.setLine(nullptr, x.data()));
        EXPECT_EQ(vlqStsNullPtr, kind.getLine(nullptr, x.data()));
        EXPECT_EQ(vlqStsNullPtr, kind.getLine(state, nullptr));
        EXPECT_EQ(vlqStsNullPtr, kind.free(nullptr));
    }
    EXPECT_TRUE(Values(kind.sample, 8) == x);
}

TEST_P(FirTypes, FilteringAllocatesNothing) {
    Filter filter(kind, taps(100));
    const Values src = samples(5000);
    Values dst = src;
    const int before = Core::allocations();
    for (const int n : {1, 100, 600, 5000}) {
        ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), n));
        ASSERT_EQ(vlqStsOk, filter.inPlace(dst.data(), n));
        ASSERT_EQ(vlqStsOk, filter.one(src.data(), dst.data()));
    }
    EXPECT_EQ(before, Core::allocations());
}

}  // namespace
