#include "fourier/fft_complex_ref.h"

#include <algorithm>
#include <cstring>

#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"
#include "vlqs/fourier.h"

namespace {

using namespace vlqtest;

constexpr Vlq32s kFlags[] = {vlqNormFwdByN, vlqNormInvByN, vlqNormBySqrtN, vlqNormNone};
constexpr int kLargest = 28;

// First words of a record, for tests that look at the memory they gave.
struct Head {
    Vlq32s ident, order, doFwdScale, doInvScale;
    Vlq32f normFactor;
    Vlq32s hint, workBytes, owned;
};
template <class Spec>
Head headOf(const Spec* spec) {
    Head head;
    std::memcpy(&head, static_cast<const void*>(spec), sizeof head);
    return head;
}

// The two kinds under one set of names.
struct Interleaved {
    using Spec = VlqsFFTSpec_C_32fc;
    static constexpr Vlq32s word = 4;
    static constexpr auto getSize = vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlqsFFTInit_C_32fc;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32fc;
    static constexpr auto free = vlqsFFTFree_C_32fc;
    // x and y hold the real parts, then the imaginary parts.
    static VlqStatus transform(bool forward, const Vlq32f* x, Vlq32f* y, const Spec* spec, Vlq8u* buf, int) {
        const auto* src = reinterpret_cast<const Vlq32fc*>(x);
        auto* dst = reinterpret_cast<Vlq32fc*>(y);
        if (x == y) return forward ? vlqsFFTFwd_CToC_32fc_I(dst, spec, buf) : vlqsFFTInv_CToC_32fc_I(dst, spec, buf);
        return forward ? vlqsFFTFwd_CToC_32fc(src, dst, spec, buf) : vlqsFFTInv_CToC_32fc(src, dst, spec, buf);
    }
    static std::vector<Vlq32f> fromParts(const std::vector<Vlq32f>& parts) {
        std::vector<Vlq32f> v(parts.size());
        for (std::size_t i = 0; i < parts.size() / 2; ++i) {
            v[2 * i] = parts[i];
            v[2 * i + 1] = parts[parts.size() / 2 + i];
        }
        return v;
    }
    static std::complex<long double> at(const std::vector<Vlq32f>& v, std::size_t i) { return {v[2 * i], v[2 * i + 1]}; }
};
struct Split {
    using Spec = VlqsFFTSpec_C_32f;
    static constexpr Vlq32s word = 5;
    static constexpr auto getSize = vlqsFFTGetSize_C_32f;
    static constexpr auto init = vlqsFFTInit_C_32f;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32f;
    static constexpr auto free = vlqsFFTFree_C_32f;
    static VlqStatus transform(bool forward, const Vlq32f* x, Vlq32f* y, const Spec* spec, Vlq8u* buf, int order) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        if (x == y) return forward ? vlqsFFTFwd_CToC_32f_I(y, y + n, spec, buf) : vlqsFFTInv_CToC_32f_I(y, y + n, spec, buf);
        return forward ? vlqsFFTFwd_CToC_32f(x, x + n, y, y + n, spec, buf)
                       : vlqsFFTInv_CToC_32f(x, x + n, y, y + n, spec, buf);
    }
    static std::vector<Vlq32f> fromParts(const std::vector<Vlq32f>& parts) { return parts; }
    static std::complex<long double> at(const std::vector<Vlq32f>& v, std::size_t i) { return {v[i], v[v.size() / 2 + i]}; }
};

template <class Kind>
class FftComplex : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { EXPECT_EQ(0, Core::outstanding()); }
};
using Kinds = ::testing::Types<Interleaved, Split>;
TYPED_TEST_SUITE(FftComplex, Kinds);

template <class Kind>
class Record {
public:
    Record(int order, Vlq32s flag) { EXPECT_EQ(vlqStsOk, Kind::initAlloc(&spec, order, flag, vlqHintNone)); }
    ~Record() { EXPECT_EQ(vlqStsOk, Kind::free(spec)); }
    typename Kind::Spec* spec = nullptr;
};

// Relative error in the 2-norm.
template <class Kind>
double errorOf(const std::vector<Vlq32f>& got, const std::vector<Extended>& want) {
    long double difference = 0, norm = 0;
    for (std::size_t i = 0; i < want.size(); ++i) {
        difference += std::norm(Kind::at(got, i) - want[i]);
        norm += std::norm(want[i]);
    }
    return static_cast<double>(std::sqrt(difference / norm));
}

TYPED_TEST(FftComplex, AgreesWithTheDefinition) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 19; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const auto x = Kind::fromParts(uniformVector<Vlq32f>(2 * n, -1, 1, rng));
        std::vector<Extended> exact(n);
        for (std::size_t i = 0; i < n; ++i) exact[i] = Kind::at(x, i);
        const Record<Kind> record(order, vlqNormNone);
        const double bound = order == 0 ? 0 : 0.75 * std::sqrt(order) * 0x1p-24;
        for (const bool forward : {true, false}) {
            const auto want = dft(exact, forward ? -1 : 1);
            std::vector<Vlq32f> y(2 * n);
            ASSERT_EQ(vlqStsOk, Kind::transform(forward, x.data(), y.data(), record.spec, nullptr, order));
            EXPECT_LE(errorOf<Kind>(y, want), bound) << "order " << order << (forward ? " forward" : " inverse");
        }
    }
}

// Where the reference would take long: the transform of a few impulses is a sum of as many roots.
TYPED_TEST(FftComplex, ImpulsesAtLargeOrders) {
    using Kind = TypeParam;
    for (int order = 16; order <= 23; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const std::size_t at[] = {1, n / 2 + 3 * (n >> 9) + 77, n - 5};
        std::vector<Vlq32f> parts(2 * n), y(2 * n);
        for (const std::size_t i : at) parts[i] = 1;
        const auto x = Kind::fromParts(parts);
        const Record<Kind> record(order, vlqNormNone);
        ASSERT_EQ(vlqStsOk, Kind::transform(true, x.data(), y.data(), record.spec, nullptr, order));
        for (std::size_t k = 0; k < n; k += k % 1024 == 1023 ? n / 64 + 1 : 1) {
            Extended want;
            for (const std::size_t i : at) want += unitRoot(i * k % n, n, -1);
            ASSERT_LE(static_cast<double>(std::abs(Kind::at(y, k) - want)), 2e-6) << "order " << order << " value " << k;
        }
    }
}

TYPED_TEST(FftComplex, NormalisesAndReturns) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (const int order : {0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 14, 15, 16, 17, 19, 20}) {
        const std::size_t n = std::size_t{1} << order;
        const auto x = uniformVector<Vlq32f>(2 * n, -1, 1, rng);
        const Record<Kind> plain(order, vlqNormNone);
        for (const Vlq32s flag : kFlags) {
            const Record<Kind> record(order, flag);
            const Head head = headOf(record.spec);
            std::vector<Vlq32f> unscaled(2 * n), y(2 * n), z(2 * n);
            for (const bool forward : {true, false}) {
                ASSERT_EQ(vlqStsOk, Kind::transform(forward, x.data(), unscaled.data(), plain.spec, nullptr, order));
                ASSERT_EQ(vlqStsOk, Kind::transform(forward, x.data(), y.data(), record.spec, nullptr, order));
                const bool scaled = forward ? head.doFwdScale : head.doInvScale;
                double worst = 0;
                for (std::size_t i = 0; i < 2 * n; ++i) {
                    const double want = scaled ? double{unscaled[i]} * double{head.normFactor} : double{unscaled[i]};
                    worst = std::max(worst, std::abs(y[i] - want));
                }
                const double level = std::sqrt(static_cast<double>(n)) * (scaled ? double{head.normFactor} : 1);
                EXPECT_LE(worst, scaled ? 4e-6 * level : 0) << "order " << order << " flag " << flag;
            }
            // Forward and back: the input again, or N times it without normalisation.
            ASSERT_EQ(vlqStsOk, Kind::transform(true, x.data(), y.data(), record.spec, nullptr, order));
            ASSERT_EQ(vlqStsOk, Kind::transform(false, y.data(), z.data(), record.spec, nullptr, order));
            std::vector<Extended> want(n);
            const long double factor = flag == vlqNormNone ? static_cast<long double>(n) : 1;
            for (std::size_t i = 0; i < n; ++i) want[i] = factor * Kind::at(x, i);
            const double estimate = flag == vlqNormBySqrtN ? 0x1p-21 : 0;  // of the reciprocal root, twice
            EXPECT_LE(errorOf<Kind>(z, want), 2 * 0.75 * std::sqrt(std::max(order, 1)) * 0x1p-24 + estimate)
                << "order " << order << " flag " << flag;
        }
    }
}

TYPED_TEST(FftComplex, OrderZeroCopiesExactly) {
    using Kind = TypeParam;
    const std::vector<Vlq32f> x = {0x1.234568p-3f, -0.0f};
    for (const Vlq32s flag : {vlqNormNone, vlqNormFwdByN}) {
        const Record<Kind> record(0, flag);
        std::vector<Vlq32f> y(2);
        ASSERT_EQ(vlqStsOk, Kind::transform(true, x.data(), y.data(), record.spec, nullptr, 0));
        EXPECT_EQ(0, std::memcmp(x.data(), y.data(), 8));
    }
}

TYPED_TEST(FftComplex, EightPointFactor) {
    using Kind = TypeParam;
    const Record<Kind> record(3, vlqNormNone);
    std::vector<Vlq32f> parts(16), y(16);
    parts[1] = 1;
    ASSERT_EQ(vlqStsOk, Kind::transform(true, Kind::fromParts(parts).data(), y.data(), record.spec, nullptr, 3));
    const Vlq32f factor = static_cast<Vlq32f>(Kind::at(y, 1).real());
    Vlq32u word;
    std::memcpy(&word, &factor, 4);
    EXPECT_EQ(0x3F3504F4u, word);
}

// In place or not, at any address, with any buffer: the same bits, nothing else touched.
TYPED_TEST(FftComplex, PlacementDoesNotMatter) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 20; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const std::vector<Vlq32f> x = uniformVector<Vlq32f>(2 * n, -1, 1, rng);
        const Record<Kind> record(order, vlqNormBySqrtN);
        Vlq32s workBytes = -1;
        ASSERT_EQ(vlqStsOk, Kind::getBufSize(record.spec, &workBytes));
        for (const bool forward : {true, false}) {
            std::vector<Vlq32f> want(2 * n);
            ASSERT_EQ(vlqStsOk, Kind::transform(forward, x.data(), want.data(), record.spec, nullptr, order));
            const Placement places[][3] = {{{0}, {0}, {0}},        {{4}, {0}, {1}},  {{0}, {4}, {8}}, {{8}, {16}, {63}},
                                           {{1}, {3}, {5}},        {{63}, {33}, {7}},
                                           {{0, true}, {0, true}, {0, true}}};
            for (const auto& place : places) {
                if (order > 17 && place[0].offset == 63) continue;
                const Buffer<Vlq32f> src(x, place[0]);
                Buffer<Vlq32f> dst(2 * n, place[1]);
                Buffer<Vlq8u> work(static_cast<std::size_t>(workBytes), place[2]);
                Vlq8u* buf = workBytes ? work.data() : nullptr;
                ASSERT_EQ(vlqStsOk, Kind::transform(forward, src.data(), dst.data(), record.spec, buf, order));
                ASSERT_TRUE(same(dst, want)) << "order " << order;
                ASSERT_TRUE(same(src, x)) << "order " << order;
                ASSERT_TRUE(work.marginsIntact()) << "order " << order;
                dst.assign(x);
                ASSERT_EQ(vlqStsOk, Kind::transform(forward, dst.data(), dst.data(), record.spec, buf, order));
                ASSERT_TRUE(same(dst, want)) << "in place, order " << order;
                ASSERT_TRUE(work.marginsIntact()) << "order " << order;
            }
        }
    }
}

TYPED_TEST(FftComplex, Sizes) {
    using Kind = TypeParam;
    for (int order = 0; order <= kLargest; ++order) {
        for (const Vlq32s flag : kFlags) {
            for (const VlqHint hint : {0, 1, 2}) {
                Vlq32s spec = -1, init = -1, work = -1;
                ASSERT_EQ(vlqStsOk, Kind::getSize(order, flag, hint, &spec, &init, &work));
                EXPECT_TRUE((Sizes{spec, init, work} == complexSizes32(order))) << "order " << order;
            }
        }
    }
}

// A record and its scratch at every kind of address, between protected pages.
TYPED_TEST(FftComplex, RecordStaysInItsMemory) {
    using Kind = TypeParam;
    for (int order = 0; order <= 21; ++order) {
        const Sizes sizes = complexSizes32(order);
        const Placement places[] = {{0}, {1}, {63}, {16}, {0, true}};
        for (const Placement place : places) {
            if (order > 18 && place.offset > 1) continue;
            Buffer<Vlq8u> memory(static_cast<std::size_t>(sizes.spec), place);
            Buffer<Vlq8u> scratch(static_cast<std::size_t>(sizes.init), place);
            typename Kind::Spec* spec = nullptr;
            ASSERT_EQ(vlqStsOk, Kind::init(&spec, order, vlqNormBySqrtN, vlqHintAccurate, memory.data(),
                                           sizes.init ? scratch.data() : nullptr));
            ASSERT_TRUE(memory.marginsIntact()) << "order " << order;
            ASSERT_TRUE(scratch.marginsIntact()) << "order " << order;
            const auto address = reinterpret_cast<std::uintptr_t>(spec), given = reinterpret_cast<std::uintptr_t>(memory.data());
            EXPECT_EQ(0u, address % 64);
            EXPECT_LT(address - given, 64u);
            const Head head = headOf(spec);
            EXPECT_EQ(Kind::word, head.ident);
            EXPECT_EQ(order, head.order);
            EXPECT_EQ(vlqHintAccurate, head.hint);
            EXPECT_EQ(sizes.work ? sizes.work - 64 : 0, head.workBytes);
            EXPECT_EQ(0, head.owned);
            Vlq32s bytes = -1;
            EXPECT_EQ(vlqStsOk, Kind::getBufSize(spec, &bytes));
            EXPECT_EQ(sizes.work, bytes);
            EXPECT_EQ(vlqStsOk, Kind::free(spec));
            EXPECT_EQ(0, headOf(spec).ident);
            EXPECT_EQ(vlqStsBadSpec, Kind::free(spec));
        }
    }
}

TYPED_TEST(FftComplex, Flags) {
    using Kind = TypeParam;
    for (const int order : {0, 5, 6, 11, 16}) {
        const float n = static_cast<float>(std::int64_t{1} << order);
        for (const Vlq32s flag : kFlags) {
            const Record<Kind> record(order, flag);
            const Head head = headOf(record.spec);
            EXPECT_EQ(flag == vlqNormFwdByN || flag == vlqNormBySqrtN, head.doFwdScale);
            EXPECT_EQ(flag == vlqNormInvByN || flag == vlqNormBySqrtN, head.doInvScale);
            EXPECT_EQ(1, head.owned);
            if (flag == vlqNormNone) EXPECT_EQ(0.0f, head.normFactor);
            else if (flag == vlqNormBySqrtN) EXPECT_NEAR(1, head.normFactor * std::sqrt(n), 0x1p-21);
            else EXPECT_EQ(1 / n, head.normFactor);
        }
    }
}

TYPED_TEST(FftComplex, PlanningChecks) {
    using Kind = TypeParam;
    Vlq32s a = 7, b = 7, c = 7;
    for (const Vlq32s order : {-1, 31, 1000}) EXPECT_EQ(vlqStsBadOrder, Kind::getSize(order, 3, 0, nullptr, nullptr, nullptr));
    for (const Vlq32s order : {0, 28, 29, 30}) {
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, nullptr, &b, &c));
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, &a, nullptr, &c));
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, &a, &b, nullptr));
        for (const Vlq32s flag : {0, 3, 5, 6, 7, 9, -1, 16}) EXPECT_EQ(vlqStsBadFlag, Kind::getSize(order, flag, 0, &a, &b, &c));
    }
    EXPECT_EQ(vlqStsBadOrder, Kind::getSize(29, 1, 0, &a, &b, &c));
    EXPECT_EQ(vlqStsBadOrder, Kind::getSize(30, 8, 0, &a, &b, &c));
    EXPECT_TRUE(a == 7 && b == 7 && c == 7);

    alignas(64) static Vlq8u memory[32768], scratch[8192];
    typename Kind::Spec* spec = nullptr;
    EXPECT_EQ(vlqStsNullPtr, Kind::init(nullptr, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Kind::init(&spec, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Kind::init(&spec, 29, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::init(&spec, 11, 3, 0, nullptr, nullptr));
    std::memset(memory, 0xFF, sizeof memory);
    EXPECT_EQ(vlqStsBadFlag, Kind::init(&spec, 11, 3, 0, memory, nullptr));
    EXPECT_EQ(0, headOf(memory).ident);
    std::memset(memory, 0xFF, sizeof memory);
    EXPECT_EQ(vlqStsNullPtr, Kind::init(&spec, 11, 1, 0, memory, nullptr));
    EXPECT_EQ(0, headOf(memory).ident);
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(vlqStsOk, Kind::init(&spec, 10, 1, 0, memory, nullptr));
    EXPECT_EQ(vlqStsOk, Kind::init(&spec, 11, 1, 0, memory, scratch));

    EXPECT_EQ(vlqStsNullPtr, Kind::initAlloc(nullptr, -1, 3, 0));
    typename Kind::Spec* none = nullptr;
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&none, 31, 3, 0));
    EXPECT_EQ(vlqStsBadFlag, Kind::initAlloc(&none, 29, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&none, 29, 1, 0));
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&none, -1, 1, 0));
    EXPECT_EQ(nullptr, none);
    EXPECT_EQ(0, Core::allocations());

    EXPECT_EQ(vlqStsNullPtr, Kind::free(nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::getBufSize(nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::getBufSize(spec, nullptr));
    EXPECT_EQ(vlqStsOk, Kind::free(spec));
    EXPECT_EQ(vlqStsNullPtr, Kind::getBufSize(spec, nullptr));
    EXPECT_EQ(vlqStsBadSpec, Kind::getBufSize(spec, &a));
    EXPECT_EQ(vlqStsBadSpec, Kind::free(spec));
}

TYPED_TEST(FftComplex, AllocationFailures) {
    using Kind = TypeParam;
    for (const int order : {0, 5, 6, 10, 11, 16}) {
        const int blocks = order > 10 ? 2 : 1;
        typename Kind::Spec* spec = nullptr;
        for (int k = 1; k <= blocks; ++k) {
            Core::refuseAllocation(k);
            EXPECT_EQ(vlqStsNoMemory, Kind::initAlloc(&spec, order, 8, 0));
            EXPECT_EQ(nullptr, spec);
            EXPECT_EQ(0, Core::outstanding());
        }
        Core::reset();
        ASSERT_EQ(vlqStsOk, Kind::initAlloc(&spec, order, 8, 0));
        EXPECT_EQ(blocks, Core::allocations());
        EXPECT_EQ(1, Core::outstanding());

        const std::size_t n = std::size_t{1} << order;
        const std::vector<Vlq32f> x(2 * n, 1.0f);
        Buffer<Vlq32f> y(2 * n);
        Core::reset();
        if (order > 5) {
            Core::refuseAllocation(1);
            EXPECT_EQ(vlqStsNoMemory, Kind::transform(true, x.data(), y.data(), spec, nullptr, order));
            EXPECT_TRUE(y.untouched());
        }
        Core::reset();
        EXPECT_EQ(vlqStsOk, Kind::transform(true, x.data(), y.data(), spec, nullptr, order));
        EXPECT_EQ(order > 5 ? 1 : 0, Core::allocations());
        EXPECT_EQ(1, Core::outstanding());
        EXPECT_EQ(vlqStsOk, Kind::free(spec));
        EXPECT_EQ(0, Core::outstanding());
    }
}

TEST(FftComplexChecks, Interleaved) {
    const Record<Interleaved> record(6, 8);
    const Record<Split> other(6, 8);
    Vlq32fc v[64] = {};
    for (const bool forward : {true, false}) {
        auto call = forward ? vlqsFFTFwd_CToC_32fc : vlqsFFTInv_CToC_32fc;
        auto callInPlace = forward ? vlqsFFTFwd_CToC_32fc_I : vlqsFFTInv_CToC_32fc_I;
        const auto* foreign = reinterpret_cast<const VlqsFFTSpec_C_32fc*>(other.spec);
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, nullptr, nullptr, nullptr));
        EXPECT_EQ(vlqStsBadSpec, call(nullptr, nullptr, foreign, nullptr));
        EXPECT_EQ(vlqStsBadSpec, call(v, v, foreign, nullptr));
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, callInPlace(nullptr, record.spec, nullptr));
        EXPECT_EQ(vlqStsBadSpec, callInPlace(nullptr, foreign, nullptr));
        EXPECT_EQ(vlqStsNullPtr, callInPlace(v, nullptr, nullptr));
    }
}

TEST(FftComplexChecks, Split) {
    const Record<Split> record(6, 8);
    const Record<Interleaved> other(6, 8);
    Vlq32f v[128] = {};
    for (const bool forward : {true, false}) {
        auto call = forward ? vlqsFFTFwd_CToC_32f : vlqsFFTInv_CToC_32f;
        auto callInPlace = forward ? vlqsFFTFwd_CToC_32f_I : vlqsFFTInv_CToC_32f_I;
        const auto* foreign = reinterpret_cast<const VlqsFFTSpec_C_32f*>(other.spec);
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
        EXPECT_EQ(vlqStsBadSpec, call(nullptr, nullptr, nullptr, nullptr, foreign, nullptr));
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, v + 64, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, v + 64, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, call(v, v + 64, nullptr, v, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, call(v, v + 64, v, nullptr, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, callInPlace(nullptr, v, record.spec, nullptr));
        EXPECT_EQ(vlqStsNullPtr, callInPlace(v, nullptr, record.spec, nullptr));
        EXPECT_EQ(vlqStsBadSpec, callInPlace(v, v + 64, foreign, nullptr));
    }
}

TEST(FftComplexChecks, DeadRecord) {
    alignas(64) Vlq8u memory[256] = {};
    VlqsFFTSpec_C_32fc* spec = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFFTInit_C_32fc(&spec, 5, 8, 0, memory, nullptr));
    Vlq32fc v[32] = {};
    EXPECT_EQ(vlqStsOk, vlqsFFTFwd_CToC_32fc_I(v, spec, nullptr));
    ASSERT_EQ(vlqStsOk, vlqsFFTFree_C_32fc(spec));
    EXPECT_EQ(vlqStsBadSpec, vlqsFFTFwd_CToC_32fc_I(v, spec, nullptr));
}

}  // namespace
