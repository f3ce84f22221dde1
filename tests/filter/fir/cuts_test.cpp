// One stream, cut into calls in ten thousand ways. What is exact: the state between calls, and
// every output that a block makes directly, whatever the cut. What lies within a bound: outputs by
// way of a transform, and of single samples, which are summed in other orders.
#include <array>
#include <cstring>

#include "filter/fir/kinds.h"
#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

template <class K>
constexpr int kTransformLen = isComplex<typename K::Tap> ? 256 : 512;
template <class K>
constexpr bool kIsMixed = !std::is_same_v<typename K::Tap, typename K::Sample>;

template <class T>
bool sameBits(const T* a, const T* b, std::size_t n) {
    return std::memcmp(a, b, n * sizeof(T)) == 0;
}

// A filter, a stretch of signal, and what comes out of it: by direct blocks, and what the
// definition allows with and without a transform.
template <class K>
class Stream {
public:
    using Tap = typename K::Tap;
    using Sample = typename K::Sample;
    Stream(int tapsLen, int samples, Rng& rng)
        : n(tapsLen),
          len(samples),
          past(randomSamples<Sample>(count(n), rng)),
          src(randomSamples<Sample>(count(len), rng)),
          want(src) {
        const auto taps =
            drawn<Tap>(count(n), [&] { return uniformVector<Part<Tap>>(1, -1, 1, rng)[0]; });
        EXPECT_EQ(vlqStsOk, K::initAlloc(&state, taps.data(), n, past.data()));
        const int longest = n < K::kTransformTaps ? len : kTransformLen<K> - 1;
        for (int done = 0; done < len; done += longest) {
            EXPECT_EQ(vlqStsOk, K::block(&src[count(done)], &want[count(done)],
                                         std::min(longest, len - done), state, kScale));
        }
        WideFir ref(taps, past);
        for (const Sample& x : src) {
            exact.push_back(ref.next(x));
            bound.push_back({errorBound<Tap, Sample>(ref, count(n), false),
                             errorBound<Tap, Sample>(ref, count(n), true)});
        }
        lastLine = ref.template line<Sample>();
    }
    ~Stream() { EXPECT_EQ(vlqStsOk, K::free(state)); }
    Stream(const Stream&) = delete;

    bool isNear(int at, Sample got, bool transform) const {
        return isAllowed(exact[count(at)], bound[count(at)][transform], kScale, got);
    }
    static constexpr int kScale = K::kScaled ? 2 : 0;
    int n, len;
    std::vector<Sample> past, src, want, lastLine;
    std::vector<WideComplex> exact;
    std::vector<std::array<Wide, 2>> bound;
    typename K::State* state = nullptr;
};

enum class Form { block, inPlace, one };

template <class K>
class FirStream : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }

    // One more piece of the stream by the given form; tells whether each output is as it must be.
    bool pieceIsRight(const Stream<K>& stream, std::vector<typename K::Sample>& dst, int at,
                      int piece, Form form) {
        auto* out = &dst[count(at)];
        const auto* in = &stream.src[count(at)];
        if (form == Form::one) {
            for (int i = 0; i < piece; ++i) {
                if (K::one(in[i], out + i, stream.state, stream.kScale) != vlqStsOk ||
                    !stream.isNear(at + i, out[i], false))
                    return false;
            }
            return true;
        }
        // In place in the type of the taps, what is left behind a block of 4096 decides.
        const bool isLong = form == Form::block || kIsMixed<K> ? piece >= kTransformLen<K>
                                                               : piece >= 4096 + kTransformLen<K>;
        const bool transform = isLong && stream.n >= K::kTransformTaps;
        const VlqStatus status = form == Form::block
                                     ? K::block(in, out, piece, stream.state, stream.kScale)
                                     : K::inPlace(out, piece, stream.state, stream.kScale);
        if (status != vlqStsOk) return false;
        if (!transform) return sameBits(out, &stream.want[count(at)], count(piece));
        for (int i = 0; i < piece; ++i) {
            if (!stream.isNear(at + i, out[i], true)) return false;
        }
        return true;
    }

    void cutAnyhow(const Stream<K>& stream) {
        ASSERT_EQ(vlqStsOk, K::setLine(stream.state, stream.past.data()));
        auto dst = stream.src;
        const int kind = below(5);
        const int longest = kind == 0 ? 4 : kind == 1 ? 40 : kind == 2 ? stream.n + 8 : stream.len;
        for (int at = 0; at < stream.len;) {
            const int piece = std::min(1 + below(longest), stream.len - at);
            const auto form = piece < 50 && below(8) == 0 ? Form::one
                              : below(3) == 0             ? Form::inPlace
                                                          : Form::block;
            ASSERT_TRUE(pieceIsRight(stream, dst, at, piece, form))
                << stream.n << " taps, samples " << at << " to " << at + piece << " of "
                << stream.len << ", form " << static_cast<int>(form);
            at += piece;
        }
        std::vector<typename K::Sample> line(count(stream.n));
        ASSERT_EQ(vlqStsOk, K::getLine(stream.state, line.data()));
        ASSERT_TRUE(sameBits(stream.lastLine.data(), line.data(), line.size()))
            << stream.n << " taps, " << stream.len << " samples";
    }
};

using Kinds =
    ::testing::Types<Fir32f, Fir32fc, Fir64f, Fir64fc, Fir32f_16s, Fir32fc_16sc, Fir64f_32f,
                     Fir64f_32s, Fir64f_16s, Fir64fc_32fc, Fir64fc_32sc, Fir64fc_16sc>;
TYPED_TEST_SUITE(FirStream, Kinds);

TYPED_TEST(FirStream, AnyCutIsOneStream) {
    using K = TypeParam;
    // Forms on other samples share the code of their arithmetic's own.
    const int streams = kIsMixed<K> ? 50 : 250, cuts = 40;
    for (int run = 0; run < streams; ++run) {
        const int around = K::kTransformTaps;
        const int n = run % 8 == 0  ? 1 + this->below(4)
                      : run % 8 < 4 ? 1 + this->below(around + 8)
                      : run % 8 < 7 ? around + this->below(20)
                                    : 1 + this->below(300);
        const int len = 1 + this->below(run % 3 == 0 ? 3 * kTransformLen<K> : kTransformLen<K>);
        const Stream<K> stream(n, len, this->rng);
        for (int cut = 0; cut < cuts; ++cut) {
            this->cutAnyhow(stream);
            if (this->HasFailure()) return;
        }
    }
}

// Blocks in place that go by way of the transform and back.
TYPED_TEST(FirStream, LongCutsInPlace) {
    using K = TypeParam;
    const Stream<K> stream(K::kTransformTaps + 3, 10000, this->rng);
    for (int cut = 0; cut < 10; ++cut) {
        ASSERT_EQ(vlqStsOk, K::setLine(stream.state, stream.past.data()));
        auto dst = stream.src;
        for (int at = 0; at < stream.len;) {
            const int piece = std::min(1 + this->below(9000), stream.len - at);
            ASSERT_TRUE(this->pieceIsRight(stream, dst, at, piece,
                                           this->below(2) ? Form::inPlace : Form::block))
                << "samples " << at << " to " << at + piece;
            at += piece;
        }
        std::vector<typename K::Sample> line(count(stream.n));
        ASSERT_EQ(vlqStsOk, K::getLine(stream.state, line.data()));
        ASSERT_TRUE(sameBits(stream.lastLine.data(), line.data(), line.size()));
    }
}

template <class K>
class FirLong : public FirStream<K> {};
using OwnTypes = ::testing::Types<Fir32f, Fir32fc, Fir64f, Fir64fc>;
TYPED_TEST_SUITE(FirLong, OwnTypes);

// Transforms beyond the caches, and beyond the tables of single factors. A few taps that are not
// zero keep the definition short.
TYPED_TEST(FirLong, ManyTaps) {
    using K = TypeParam;
    using Tap = typename K::Tap;
    for (const int n : {20000, 70000, 140000}) {
        std::vector<Tap> taps(count(n));
        const std::vector<int> places = {0, 1, n / 3, n - 2, n - 1};
        for (const int k : places)
            taps[count(k)] =
                drawn<Tap>(1, [&] { return uniformVector<Part<Tap>>(1, -1, 1, this->rng)[0]; })[0];
        const auto past = randomSamples<Tap>(count(n), this->rng),
                   src = randomSamples<Tap>(count(n + 3000), this->rng);
        auto dst = src;
        typename K::State* state = nullptr;
        ASSERT_EQ(vlqStsOk, K::initAlloc(&state, taps.data(), n, past.data()));
        ASSERT_EQ(vlqStsOk, K::block(src.data(), dst.data(), n + 3000, state, 0));
        ASSERT_EQ(vlqStsOk, K::free(state));
        const Wide size = 4.0L * n, norm = std::sqrt(10.0L);  // of five complex taps at most
        const Wide bound =
            4 * std::log2(size) * kUnit<Tap> * std::sqrt(size) * peakOf<Tap>() * norm;
        for (int i = 0; i < n + 3000; ++i) {
            WideComplex want = 0;
            for (const int k : places)
                want += wide(taps[count(k)]) *
                        (i >= k ? wide(src[count(i - k)]) : wide(past[count(k - i - 1)]));
            ASSERT_TRUE(isAllowed(want, bound, 0, dst[count(i)]))
                << n << " taps, output " << i << ": " << wide(dst[count(i)]) << " for " << want;
        }
    }
}

}  // namespace
