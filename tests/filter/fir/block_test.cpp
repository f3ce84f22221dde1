// Blocks through FIR filters: both paths, any cut of a stream, in place, threads.
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <climits>

#include "filter/fir/fir_ref.h"
#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"
#include "vlqs/fir.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

class FirBlock : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { Core::reset(); }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
};

// A record that releases itself, over floats or 16-bit samples.
class Plain {
public:
    using Sample = float;
    explicit Plain(const std::vector<float>& taps, const float* past = nullptr) {
        EXPECT_EQ(vlqStsOk,
                  vlqsFIRInitAlloc_32f(&state, taps.data(), static_cast<int>(taps.size()), past));
    }
    ~Plain() { EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state)); }
    Plain(const Plain&) = delete;
    VlqStatus run(const float* src, float* dst, int len) {
        return vlqsFIR_32f(src, dst, len, state);
    }
    VlqStatus inPlace(float* srcDst, int len) { return vlqsFIR_32f_I(srcDst, len, state); }
    VlqStatus line(float* dst) { return vlqsFIRGetDlyLine_32f(state, dst); }
    VlqsFIRState_32f* state = nullptr;
};
class Mixed {
public:
    using Sample = Vlq16s;
    Mixed(const std::vector<float>& taps, int scaleFactor, const Vlq16s* past = nullptr)
        : scale(scaleFactor) {
        EXPECT_EQ(vlqStsOk, vlqsFIRInitAlloc32f_16s(&state, taps.data(),
                                                    static_cast<int>(taps.size()), past));
    }
    ~Mixed() { EXPECT_EQ(vlqStsOk, vlqsFIRFree32f_16s(state)); }
    Mixed(const Mixed&) = delete;
    VlqStatus run(const Vlq16s* src, Vlq16s* dst, int len) {
        return vlqsFIR32f_16s_Sfs(src, dst, len, state, scale);
    }
    VlqStatus inPlace(Vlq16s* srcDst, int len) {
        return vlqsFIR32f_16s_ISfs(srcDst, len, state, scale);
    }
    VlqStatus line(Vlq16s* dst) { return vlqsFIRGetDlyLine32f_16s(state, dst); }
    VlqsFIRState32f_16s* state = nullptr;
    int scale;
};

// A record that had no memory for a transform filters directly whatever the length.
class WithoutTransform {
public:
    WithoutTransform() { Core::refuseAllocation(2); }
    ~WithoutTransform() { Core::refuseAllocation(0); }
};

std::vector<float> integerTaps(int len, int peak, Rng& rng) {
    std::vector<float> taps(count(len));
    for (float& h : taps)
        h = static_cast<float>(static_cast<int>(rng() % count(2 * peak + 1)) - peak);
    return taps;
}

template <class Filter>
std::vector<typename Filter::Sample> lineOf(Filter& filter, int tapsLen) {
    std::vector<typename Filter::Sample> line(count(tapsLen));
    EXPECT_EQ(vlqStsOk, filter.line(line.data()));
    return line;
}

template <class T>
void expectSameBits(const std::vector<T>& want, const std::vector<T>& got,
                    const std::string& what) {
    ASSERT_EQ(want.size(), got.size());
    for (std::size_t i = 0; i < want.size(); ++i) {
        ASSERT_EQ(0, std::memcmp(&want[i], &got[i], sizeof(T)))
            << what << ": element " << i << ", " << got[i] << " for " << want[i];
    }
}

// Runs the filter and the definition over the same samples; every output within the bound.
void expectNear(Plain& filter, FirRef& ref, const std::vector<float>& src,
                const std::vector<float>& taps, bool transform) {
    std::vector<float> dst(src.size());
    ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), static_cast<int>(src.size())));
    const double extra = transform ? transformBound(4 * taps.size(), taps, 1) : 0;
    for (std::size_t i = 0; i < src.size(); ++i) {
        const double want = ref.next(src[i]);
        ASSERT_NEAR(want, dst[i], sumBound(taps.size()) * ref.magnitude() + extra)
            << taps.size() << " taps, " << src.size() << " samples, output " << i;
    }
    expectSameBits(ref.line<float>(), lineOf(filter, static_cast<int>(taps.size())), "delay line");
}

// ---- values -------------------------------------------------------------------------------------

TEST_F(FirBlock, EveryTapCountAndLength) {
    for (int len = 1; len <= 70; len += len < 40 || len >= 62 ? 1 : 5) {
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        const auto past = uniformVector<float>(count(len), -1, 1, rng);
        const int chunk = (len + 3) / 4 * 4 + 1;
        Plain filter(taps, past.data());
        FirRef ref(taps, past);
        std::vector<int> lengths = {1,   2,   3,   4,   5,   7,   8,   9,  15,  16,
                                    17,  31,  32,  33,  50,  63,  64,  65, 100, 159,
                                    160, 161, 257, 510, 511, 512, 513, 700};
        for (int d = -6; d <= 6; ++d) {
            if (chunk + d > 0) lengths.push_back(chunk + d);
            if (len + d > 0) lengths.push_back(len + d);
        }
        for (const int samples : lengths) {
            expectNear(filter, ref, uniformVector<float>(count(samples), -1, 1, rng), taps,
                       len >= 64 && samples >= 512);
            if (HasFailure()) return;
        }
    }
}

TEST_F(FirBlock, LongFilters) {
    for (const int len : {96, 127, 128, 255, 256, 600, 1024}) {
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        Plain filter(taps);
        FirRef ref(taps);
        int fftLen = 4;
        while (fftLen <= len) fftLen *= 2;
        fftLen *= 2;
        const int step = fftLen - len + 1;
        for (const int samples : {1, 511, 512, step - 1, step, step + 1, 2 * step - 1, 2 * step,
                                  2 * step + 1, fftLen, 1600, 1601, 4096, 4097, 5000}) {
            expectNear(filter, ref, uniformVector<float>(count(samples), -1, 1, rng), taps,
                       samples >= 512);
            if (HasFailure()) return;
        }
    }
}

TEST_F(FirBlock, AnyAlignmentInsideTheVectors) {
    for (const int len : {1, 2, 3, 4, 5, 16, 33, 64}) {
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        for (const int samples : {1, 3, 17, 100, 300, 600}) {
            const auto src = uniformVector<float>(count(samples), -1, 1, rng);
            std::vector<float> want(src.size());
            ASSERT_EQ(vlqStsOk, Plain(taps).run(src.data(), want.data(), samples));
            for (int offset = 0; offset <= 64; offset += offset < 9 ? 1 : 5) {
                const Buffer<float> x(src, {offset % 64, offset == 64});
                Buffer<float> y(src.size(), {(offset * 7) % 64, offset == 64});
                ASSERT_EQ(vlqStsOk, Plain(taps).run(x.data(), y.data(), samples));
                ASSERT_TRUE(same(y, want))
                    << len << " taps, " << samples << " samples, offset " << offset;
                y.assign(src);
                std::vector<float> inPlace = src;
                ASSERT_EQ(vlqStsOk, Plain(taps).inPlace(inPlace.data(), samples));
                ASSERT_EQ(vlqStsOk, Plain(taps).inPlace(y.data(), samples));
                ASSERT_TRUE(same(y, inPlace))
                    << len << " taps, " << samples << " samples in place, offset " << offset;
            }
        }
        for (const int samples : {1, 5, 100, 600}) {
            const auto src = extremeVector<Vlq16s>(count(samples), rng);
            std::vector<Vlq16s> want(src.size());
            ASSERT_EQ(vlqStsOk, Mixed(taps, 0).run(src.data(), want.data(), samples));
            for (const int offset : {0, 1, 2, 7, 33, 64}) {
                const Buffer<Vlq16s> x(src, {offset % 64, offset == 64});
                Buffer<Vlq16s> y(src.size(), {(offset * 3) % 64, offset == 64});
                ASSERT_EQ(vlqStsOk, Mixed(taps, 0).run(x.data(), y.data(), samples));
                ASSERT_TRUE(same(y, want))
                    << len << " taps, " << samples << " samples, offset " << offset;
                y.assign(src);
                ASSERT_EQ(vlqStsOk, Mixed(taps, 0).inPlace(y.data(), samples));
                ASSERT_TRUE(same(y, want))
                    << len << " taps, " << samples << " samples in place, offset " << offset;
            }
        }
    }
}

// Integer taps and samples whose sums a float holds exactly: the stored results are exact as well.
TEST_F(FirBlock, SixteenBitSamplesExactly) {
    for (const int len : {1, 2, 3, 4, 5, 9, 16, 31, 32, 33, 48, 63}) {
        const auto taps = integerTaps(len, 8, rng);
        for (const int scale :
             {0, 1, 2, 3, 5, 8, 12, 20, 31, 32, 40, INT_MAX, -1, -3, -15, -31, -40, INT_MIN}) {
            Mixed filter(taps, scale);
            FirRef ref(taps);
            for (const int samples : {1, 2, 7, 64, 300, 511, 512, 2048, 2049}) {
                const auto src = extremeVector<Vlq16s>(count(samples), rng);
                std::vector<Vlq16s> dst(src.size());
                const bool inPlace = samples % 2 == 0;
                if (inPlace) dst = src;
                ASSERT_EQ(vlqStsOk, inPlace ? filter.inPlace(dst.data(), samples)
                                            : filter.run(src.data(), dst.data(), samples));
                for (std::size_t i = 0; i < src.size(); ++i) {
                    double exact = ref.next(src[i]);
                    // 2^-S leaves single precision: infinite, and zero times that no number.
                    if (scale < -127) exact = exact > 0 || exact == 0 ? 1e9 : -1e9;
                    ASSERT_EQ(round16(exact, scale < -127 ? 0 : scale), dst[i])
                        << len << " taps, scale " << scale << ", " << samples << " samples, output "
                        << i;
                }
            }
            expectSameBits(ref.line<Vlq16s>(), lineOf(filter, len), "delay line");
            if (HasFailure()) return;
        }
    }
}

// Through the transform a result may fall to the other side of a half.
TEST_F(FirBlock, SixteenBitSamplesTransformed) {
    for (const int len : {64, 65, 100, 256, 700}) {
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        for (const int scale : {0, 4, -2}) {
            Mixed filter(taps, scale);
            FirRef ref(taps);
            for (const int samples : {511, 512, 1000, 4096, 8192, 8193, 9000}) {
                const auto src = extremeVector<Vlq16s>(count(samples), rng);
                std::vector<Vlq16s> dst = src;
                const bool inPlace = samples % 2 == 0;
                ASSERT_EQ(vlqStsOk, inPlace ? filter.inPlace(dst.data(), samples)
                                            : filter.run(src.data(), dst.data(), samples));
                for (std::size_t i = 0; i < src.size(); ++i) {
                    const double exact = ref.next(src[i]);
                    const double error = sumBound(count(len)) * ref.magnitude() +
                                         transformBound(4 * count(len), taps, 32768);
                    ASSERT_LE(round16(exact - error, scale), dst[i])
                        << len << " " << scale << " " << samples << " " << i;
                    ASSERT_GE(round16(exact + error, scale), dst[i])
                        << len << " " << scale << " " << samples << " " << i;
                }
            }
            expectSameBits(ref.line<Vlq16s>(), lineOf(filter, len), "delay line");
        }
    }
}

// An infinite sample reaches the outputs whose windows hold it, and no other.
TEST_F(FirBlock, InfiniteSampleStaysInItsWindow) {
    for (const int len : {1, 3, 16, 40, 63, 70}) {
        const auto taps = uniformVector<float>(count(len), 0.5, 1, rng);
        for (const int at : {0, 5, 77, 200, 399}) {
            auto src = uniformVector<float>(400, -1, 1, rng);
            src[count(at)] = std::numeric_limits<float>::infinity();
            std::vector<float> dst(400);
            ASSERT_EQ(vlqStsOk, Plain(taps).run(src.data(), dst.data(), 400));
            for (int i = 0; i < 400; ++i) {
                EXPECT_EQ(i >= at && i < at + len, !std::isfinite(dst[count(i)]))
                    << len << " taps, sample " << at << ", output " << i;
            }
        }
    }
}

// ---- streams ------------------------------------------------------------------------------------

TEST_F(FirBlock, StreamsThroughBothPaths) {
    for (int run = 0; run < 200; ++run) {
        const int len = 64 + below(run % 5 == 0 ? 500 : 70);
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        Plain filter(taps);
        FirRef ref(taps);
        for (int calls = 0; calls < 6; ++calls) {
            const int samples = 1 + below(rng() % 2 ? 600 : 1300);
            const auto src = uniformVector<float>(count(samples), -1, 1, rng);
            if (rng() % 4 != 0) {
                expectNear(filter, ref, src, taps, samples >= 512);
            } else {
                for (std::size_t i = 0; i < src.size() && i < 100; ++i) {
                    float y;
                    ASSERT_EQ(vlqStsOk, vlqsFIROne_32f(src[i], &y, filter.state));
                    const double want = ref.next(src[i]);
                    ASSERT_NEAR(want, y, sumBound(taps.size()) * ref.magnitude());
                }
            }
            if (HasFailure()) return;
        }
    }
}

// ---- which path ---------------------------------------------------------------------------------

// Outputs of the same samples by a record with and one without a transform: where the bits are all
// the same, the direct path was taken.
std::vector<bool> blocksThatWereTransformed(int tapsLen, int len, int block, bool inPlace,
                                            Rng& rng) {
    const auto taps = uniformVector<float>(count(tapsLen), -1, 1, rng);
    const auto src = uniformVector<float>(count(len), -1, 1, rng);
    auto run = [&] {
        Plain filter(taps);
        std::vector<float> dst = src;
        EXPECT_EQ(vlqStsOk, inPlace ? filter.inPlace(dst.data(), len)
                                    : filter.run(src.data(), dst.data(), len));
        EXPECT_EQ(src.back(), lineOf(filter, tapsLen).front());
        return dst;
    };
    const auto got = run();
    std::vector<float> direct;
    {
        const WithoutTransform refused;
        direct = run();
    }
    std::vector<bool> transformed;
    for (int from = 0; from < len; from += block) {
        const auto bytes = count(std::min(block, len - from)) * sizeof(float);
        transformed.push_back(std::memcmp(got.data() + from, direct.data() + from, bytes) != 0);
    }
    return transformed;
}

TEST_F(FirBlock, PathOfABlock) {
    EXPECT_EQ(std::vector<bool>{false}, blocksThatWereTransformed(64, 511, 1 << 20, false, rng));
    EXPECT_EQ(std::vector<bool>{true}, blocksThatWereTransformed(64, 512, 1 << 20, false, rng));
    EXPECT_EQ(std::vector<bool>{false}, blocksThatWereTransformed(63, 100000, 1 << 20, false, rng));
    EXPECT_EQ(std::vector<bool>{true}, blocksThatWereTransformed(300, 512, 1 << 20, false, rng));
}

TEST_F(FirBlock, PathOfBlocksInPlace) {
    const bool direct = false, transformed = true;
    const std::pair<int, std::vector<bool>> cases[] = {{511, {direct}},
                                                       {4096, {direct}},
                                                       {4097, {direct, direct}},
                                                       {4607, {direct, direct}},
                                                       {4608, {transformed, direct}},
                                                       {8192, {transformed, direct}},
                                                       {8703, {transformed, direct, direct}},
                                                       {8704, {transformed, transformed, direct}}};
    for (const auto& [len, want] : cases) {
        EXPECT_EQ(want, blocksThatWereTransformed(64, len, 4096, true, rng)) << len;
        EXPECT_EQ(std::vector<bool>(want.size(), direct),
                  blocksThatWereTransformed(63, len, 4096, true, rng))
            << len;
    }
}

// In place and out of place agree where the path is the same, and within rounding elsewhere.
TEST_F(FirBlock, InPlace) {
    for (const int len : {5, 63, 64, 150}) {
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        for (const int samples : {1, 100, 511, 512, 4096, 4097, 4608, 9000}) {
            const auto src = uniformVector<float>(count(samples), -1, 1, rng);
            Plain filter(taps);
            FirRef ref(taps);
            for (int round = 0; round < 2; ++round) {
                auto dst = src;
                ASSERT_EQ(vlqStsOk, filter.inPlace(dst.data(), samples));
                for (std::size_t i = 0; i < src.size(); ++i) {
                    const double want = ref.next(src[i]);
                    ASSERT_NEAR(want, dst[i],
                                sumBound(count(len)) * ref.magnitude() +
                                    transformBound(4 * count(len), taps, 1));
                }
                expectSameBits(ref.line<float>(), lineOf(filter, len), "delay line");
            }
        }
        // 16-bit samples: blocks of 8192, all by the path that the whole length decides.
        for (const int samples : {100, 511, 512, 4096, 8192, 8192 + 512, 20000}) {
            const auto src = extremeVector<Vlq16s>(count(samples), rng);
            Mixed outOf(taps, 3), in(taps, 3);
            std::vector<Vlq16s> want(src.size()), got = src;
            for (int done = 0; done < samples; done += 8192) {
                ASSERT_EQ(vlqStsOk, outOf.run(src.data() + done, want.data() + done,
                                              std::min(8192, samples - done)));
            }
            ASSERT_EQ(vlqStsOk, in.inPlace(got.data(), samples));
            expectSameBits(want, got, "in place");
            expectSameBits(lineOf(outOf, len), lineOf(in, len), "delay line");
        }
    }
}

// ---- threads ------------------------------------------------------------------------------------

template <class Make, class Sample>
void sameForAnyTeam(Make make, int tapsLen, const std::vector<Sample>& src) {
    const int len = static_cast<int>(src.size());
    std::vector<Sample> want, wantInPlace;
    for (const int threads : {1, 2, 5}) {
        Core::setThreads(threads);
        auto filter = make();
        std::vector<Sample> dst(src.size()), inPlace = src;
        for (int round = 0; round < 2;
             ++round) {  // the second starts from the first one's delay line
            ASSERT_EQ(vlqStsOk, filter->run(src.data(), dst.data(), len));
            ASSERT_EQ(src.back(), lineOf(*filter, tapsLen)[0]);
            ASSERT_EQ(vlqStsOk, filter->inPlace(inPlace.data(), len));
        }
        if (threads == 1) want = dst, wantInPlace = inPlace;
        expectSameBits(want, dst, std::to_string(threads) + " threads");
        expectSameBits(wantInPlace, inPlace, std::to_string(threads) + " threads in place");
    }
    Core::setThreads(1);
}

TEST_F(FirBlock, ResultsDoNotDependOnTheTeam) {
    for (const int len : {5, 64, 400}) {
        const auto taps = uniformVector<float>(count(len), -1, 1, rng);
        for (const int samples : {1600, 1601, 1605, 4097, 20000}) {
            const auto src = uniformVector<float>(count(samples), -1, 1, rng);
            sameForAnyTeam([&] { return std::make_unique<Plain>(taps); }, len, src);
            sameForAnyTeam([&] { return std::make_unique<Mixed>(taps, 2); }, len,
                           extremeVector<Vlq16s>(count(samples), rng));
            if (HasFailure()) return;
        }
    }
}

// ---- neither memory nor system calls ------------------------------------------------------------

void runEverything(Plain& filter, Mixed& mixed, std::vector<float>& x, std::vector<float>& y,
                   std::vector<Vlq16s>& a, std::vector<Vlq16s>& b) {
    for (const int len : {1, 60, 300, 600, 5000}) {
        filter.run(x.data(), y.data(), len);
        filter.inPlace(y.data(), len);
        vlqsFIROne_32f(x[0], y.data(), filter.state);
        mixed.run(a.data(), b.data(), len);
        mixed.inPlace(b.data(), len);
        vlqsFIROne32f_16s_Sfs(a[0], b.data(), mixed.state, 2);
    }
}

TEST_F(FirBlock, AllocatesNothing) {
    const auto taps = uniformVector<float>(100, -1, 1, rng);
    auto x = uniformVector<float>(5000, -1, 1, rng), y = x;
    auto a = extremeVector<Vlq16s>(5000, rng), b = a;
    Plain filter(taps);
    Mixed mixed(taps, 2);
    const int before = Core::allocations();
    runEverything(filter, mixed, x, y, a, b);
    Core::setThreads(2);
    {
        Plain threaded(taps);
        const int made = Core::allocations();
        ASSERT_EQ(vlqStsOk, threaded.run(x.data(), y.data(), 5000));
        ASSERT_EQ(vlqStsOk, threaded.inPlace(y.data(), 5000));
        EXPECT_EQ(made, Core::allocations());
        EXPECT_GT(made, before);
    }
}

TEST_F(FirBlock, MakesNoSystemCall) {
    const auto taps = uniformVector<float>(100, -1, 1, rng);
    auto x = uniformVector<float>(5000, -1, 1, rng), y = x;
    auto a = extremeVector<Vlq16s>(5000, rng), b = a;
    Plain filter(taps);
    Mixed mixed(taps, 2);
    runEverything(filter, mixed, x, y, a, b);  // the dynamic linker has done its part after this
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // From here on any system call but read, write and exit kills the process.
        if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_STRICT) != 0) _exit(77);
        runEverything(filter, mixed, x, y, a, b);
        syscall(SYS_exit, 0);
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77) GTEST_SKIP() << "no seccomp here";
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "wait status " << status;
}

// ---- checks -------------------------------------------------------------------------------------

TEST_F(FirBlock, Checks) {
    const std::vector<float> taps(4, 1.0f);
    Plain plain(taps);
    Mixed mixed(taps, 0);
    float x[8] = {};
    Vlq16s a[8] = {};
    auto* alienPlain = reinterpret_cast<VlqsFIRState_32f*>(mixed.state);
    auto* alienMixed = reinterpret_cast<VlqsFIRState32f_16s*>(plain.state);
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_32f(nullptr, x, 0, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_32f(x, nullptr, 0, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_32f(x, x + 4, 0, nullptr));
    EXPECT_EQ(vlqStsBadSize, vlqsFIR_32f(x, x + 4, 0, alienPlain));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR_32f(x, x + 4, 4, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_32f_I(nullptr, 0, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_32f_I(x, 0, nullptr));
    EXPECT_EQ(vlqStsBadSize, vlqsFIR_32f_I(x, -1, alienPlain));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR_32f_I(x, 4, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR32f_16s_Sfs(nullptr, a, 0, alienMixed, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR32f_16s_Sfs(a, nullptr, 0, alienMixed, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR32f_16s_Sfs(a, a + 4, 0, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsFIR32f_16s_Sfs(a, a + 4, 0, alienMixed, 0));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR32f_16s_Sfs(a, a + 4, 4, alienMixed, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR32f_16s_ISfs(nullptr, 0, alienMixed, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR32f_16s_ISfs(a, 0, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsFIR32f_16s_ISfs(a, 0, alienMixed, 0));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR32f_16s_ISfs(a, 4, alienMixed, 0));
    for (const float v : x) EXPECT_EQ(0, v);
    for (const Vlq16s v : a) EXPECT_EQ(0, v);
}

// Multi-rate records have a word of their own, which single samples refuse.
TEST_F(FirBlock, RecordsOfOtherRates) {
    const std::vector<float> taps(4, 1.0f);
    Plain plain(taps);
    float x[8] = {};
    Vlq32u word;
    std::memcpy(&word, plain.state, 4);
    const Vlq32u multiRate = 0x46493033;
    std::memcpy(plain.state, &multiRate, 4);
    EXPECT_EQ(vlqStsBadSpec, vlqsFIROne_32f(1, x, plain.state));
    EXPECT_EQ(vlqStsOk, vlqsFIRGetTaps_32f(plain.state, x));
    EXPECT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32f(plain.state, x));
    EXPECT_EQ(vlqStsOk, vlqsFIRSetDlyLine_32f(plain.state, x));
    std::memcpy(plain.state, &word, 4);
}

}  // namespace
