// Fixed-point FFT against its definition: values, scaling, placement, planning and checks.
#include "fourier/fft_fixed_kinds.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"

namespace {

using namespace vlqtest;

constexpr Vlq32s kFlags[] = {vlqNormFwdByN, vlqNormInvByN, vlqNormBySqrtN, vlqNormNone};
constexpr VlqHint kHints[] = {vlqHintNone, vlqHintFast, vlqHintAccurate, 3,
                              -1};  // others count as accurate

template <class Kind>
class FftFixed : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { EXPECT_EQ(0, Core::outstanding()); }
};
using Kinds = ::testing::Types<C_16sc, C_16s, R_16s, C_32sc, C_32s, R_32s, R_16s32s>;
TYPED_TEST_SUITE(FftFixed, Kinds);
template <class Kind>
class FftFixed16 : public FftFixed<Kind> {};
using Kinds16 = ::testing::Types<C_16sc, C_16s, R_16s>;
TYPED_TEST_SUITE(FftFixed16, Kinds16);

template <class Kind>
class Plan {
public:
    Plan(int order, Vlq32s flag, VlqHint hint = vlqHintNone) {
        EXPECT_EQ(vlqStsOk, Kind::initAlloc(&spec, order, flag, hint));
    }
    ~Plan() { EXPECT_EQ(vlqStsOk, Kind::free(spec)); }
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;
    typename Kind::Spec* spec = nullptr;
};

long double normalization(bool forward, Vlq32s flag, int order) {
    if (flag == vlqNormBySqrtN) return std::sqrt(std::ldexp(1.0L, -order));
    return flag == (forward ? vlqNormFwdByN : vlqNormInvByN) ? std::ldexp(1.0L, -order) : 1;
}
bool inIntegers(bool is16, int order, VlqHint hint) {
    return is16 && order <= 3 && (order == 0 || hint == vlqHintNone || hint == vlqHintFast);
}

// One transform against its definition, both within the range of the element.
template <class Kind, bool forward>
void checkAgainstDefinition(int order, Vlq32s flag, VlqHint hint, Layout layout, Rng& rng) {
    using From = std::conditional_t<forward, typename Kind::Signal, typename Kind::Spectrum>;
    using To = std::conditional_t<forward, typename Kind::Spectrum, typename Kind::Signal>;
    const std::size_t n = std::size_t{1} << order;
    const std::size_t signal = Kind::signalLength(n), spectrum = Kind::spectrumLength(n, layout);
    const std::size_t from = forward ? signal : spectrum, to = forward ? spectrum : signal;
    const std::vector<From> x = extremeVector<From>(from, rng);
    const auto exact =
        Kind::exact(forward, std::vector<long double>(x.begin(), x.end()), n, layout);
    const Plan<Kind> plan(order, flag, hint);
    for (const Vlq32s scale : {0, order / 2, order + 1, order + 7, -3}) {
        std::vector<To> y(to);
        VlqStatus status;
        if constexpr (forward)
            status = Kind::forward(x.data(), y.data(), plan.spec, scale, nullptr, order, layout);
        else
            status = Kind::inverse(x.data(), y.data(), plan.spec, scale, nullptr, order, layout);
        ASSERT_EQ(vlqStsOk, status);
        const long double factor = normalization(forward, flag, order) * std::ldexp(1.0L, -scale);
        long double peak = 0;
        for (const long double v : exact) peak = std::max(peak, std::abs(v * factor));
        // A half, and the errors of the arithmetic: factors of 14 bits in integers, else rounding.
        const bool single = !Kind::inDouble;
        const long double relative =
            inIntegers(Kind::is16, order, hint) ? 0x1p-13L
            : single ? 0x1p-24L * (8 + 4 * std::sqrt(static_cast<long double>(order)))
                     : 0x1p-53L * (8 + 4 * std::sqrt(static_cast<long double>(order)));
        const long double bound = 0.5L + peak * relative;
        const long double low = std::numeric_limits<To>::min(),
                          high = std::numeric_limits<To>::max();
        // In integers a shift to the left may drop bits: only where it does not.
        if (inIntegers(Kind::is16, order, hint) && peak > 0x1p30L) continue;
        for (std::size_t i = 0; i < to; ++i) {
            const long double want = std::clamp(exact[i] * factor, low, high);
            ASSERT_LE(std::abs(y[i] - want), bound)
                << "order " << order << " flag " << flag << " hint " << hint << " scale " << scale
                << " element " << i << (forward ? " forward" : " inverse");
        }
    }
}

TYPED_TEST(FftFixed, AgreesWithTheDefinition) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 17; order += order < 8 ? 1 : 3) {
        for (const Vlq32s flag : kFlags) {
            for (const VlqHint hint : {vlqHintNone, vlqHintAccurate}) {
                if (order > 4 && hint == vlqHintAccurate) continue;
                if (order > 8 && flag != vlqNormBySqrtN) continue;
                for (const Layout layout : Kind::layouts) {
                    checkAgainstDefinition<Kind, true>(order, flag, hint, layout, rng);
                    checkAgainstDefinition<Kind, false>(order, flag, hint, layout, rng);
                }
            }
        }
    }
}

// In place or not, at any address, with any buffer: the same elements, nothing else touched.
template <class Kind, bool forward>
void checkPlacement(int order, VlqHint hint, Layout layout, Rng& rng) {
    using From = std::conditional_t<forward, typename Kind::Signal, typename Kind::Spectrum>;
    using To = std::conditional_t<forward, typename Kind::Spectrum, typename Kind::Signal>;
    const std::size_t n = std::size_t{1} << order;
    const std::size_t signal = Kind::signalLength(n), spectrum = Kind::spectrumLength(n, layout);
    const std::size_t from = forward ? signal : spectrum, to = forward ? spectrum : signal;
    const std::vector<From> x = extremeVector<From>(from, rng);
    const Plan<Kind> plan(order, vlqNormBySqrtN, hint);
    Vlq32s bytes = -1;
    ASSERT_EQ(vlqStsOk, Kind::getBufSize(plan.spec, &bytes));
    auto call = [&](const From* src, To* dst, Vlq8u* buf) {
        if constexpr (forward)
            return Kind::forward(src, dst, plan.spec, order / 2, buf, order, layout);
        else
            return Kind::inverse(src, dst, plan.spec, order / 2, buf, order, layout);
    };
    std::vector<To> want(to);
    ASSERT_EQ(vlqStsOk, call(x.data(), want.data(), nullptr));
    const Placement places[][3] = {
        {{0}, {0}, {0}}, {{2}, {1}, {1}}, {{63}, {33}, {63}}, {{0, true}, {0, true}, {0, true}}};
    for (const auto& place : places) {
        const Buffer<From> src(x, place[0]);
        Buffer<To> dst(to, place[1]);
        Buffer<Vlq8u> work(static_cast<std::size_t>(bytes), place[2]);
        Vlq8u* const buf = bytes > 0 ? work.data() : nullptr;
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), buf));
        ASSERT_TRUE(same(dst, want)) << "order " << order;
        ASSERT_TRUE(same(src, x)) << "order " << order;
        ASSERT_TRUE(work.marginsIntact()) << "order " << order;
        if constexpr (std::is_same_v<From, To>) {
            std::vector<From> longer = x;
            longer.resize(std::max(from, to));
            Buffer<From> both(longer, place[1]);
            ASSERT_EQ(vlqStsOk, call(both.data(), both.data(), buf));
            std::vector<To> result = both.values();
            result.resize(to);
            ASSERT_EQ(want, result) << "in place, order " << order;
            ASSERT_TRUE(both.marginsIntact()) << "order " << order;
        }
    }
}

TYPED_TEST(FftFixed, PlacementDoesNotMatter) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (const int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 14, 15, 16, 17}) {
        for (const VlqHint hint : {vlqHintFast, vlqHintAccurate}) {
            if (order > 4 && hint == vlqHintAccurate) continue;
            for (const Layout layout : Kind::layouts) {
                checkPlacement<Kind, true>(order, hint, layout, rng);
                checkPlacement<Kind, false>(order, hint, layout, rng);
            }
        }
    }
}

// Sizes by their formulas, in 64 bits.
template <class Kind>
Sizes sizesOf(int order, VlqHint hint) {
    const std::int64_t n = std::int64_t{1} << order;
    const std::size_t element = Kind::inDouble ? 8 : 4;
    const std::int64_t data = static_cast<std::int64_t>(element) * (Kind::isReal ? n + 2 : 2 * n);
    if (Kind::is16 && order == 0) return {116, 0, 0};
    if (inIntegers(Kind::is16, order, hint)) {
        const bool split = std::is_same_v<Kind, C_16s>;
        return {Kind::isReal ? 320 : 256, 128,
                (Kind::isReal ? 4 * n + 8
                 : split      ? 12 * n
                              : 8 * n) +
                    64};
    }
    Sizes sizes = Kind::isReal ? realSizes(element, order) : complexSizes(element, order);
    sizes.spec += 128;
    if (Kind::is16 || sizes.init > 0) sizes.init += 64;
    sizes.work += data + 64;
    return sizes;
}

TYPED_TEST(FftFixed, Sizes) {
    using Kind = TypeParam;
    for (int order = 0; order <= Kind::largest; ++order) {
        for (const Vlq32s flag : kFlags) {
            for (const VlqHint hint : kHints) {
                Vlq32s spec = -1, init = -1, work = -1;
                ASSERT_EQ(vlqStsOk, Kind::getSize(order, flag, hint, &spec, &init, &work));
                const Sizes want = sizesOf<Kind>(order, hint);
                EXPECT_EQ(want.spec, spec) << "order " << order;
                EXPECT_EQ(want.init, init) << "order " << order;
                EXPECT_EQ(static_cast<Vlq32s>(want.work), work) << "order " << order;
            }
        }
    }
}

template <class Kind>
Vlq32u tagOf(const void* spec) {
    Vlq32u tag;
    std::memcpy(&tag, spec, sizeof tag);
    return tag;
}

TYPED_TEST(FftFixed, SpecStaysInItsMemory) {
    using Kind = TypeParam;
    for (int order = 0; order <= 18; ++order) {
        for (const VlqHint hint : kHints) {
            const Sizes sizes = sizesOf<Kind>(order, hint);
            for (const Placement place :
                 {Placement{0}, Placement{1}, Placement{63}, Placement{0, true}}) {
                Buffer<Vlq8u> memory(static_cast<std::size_t>(sizes.spec), place);
                Buffer<Vlq8u> scratch(static_cast<std::size_t>(sizes.init), place);
                typename Kind::Spec* spec = nullptr;
                ASSERT_EQ(vlqStsOk, Kind::init(&spec, order, vlqNormBySqrtN, hint, memory.data(),
                                               order > 10 ? scratch.data() : nullptr));
                ASSERT_TRUE(memory.marginsIntact()) << "order " << order;
                ASSERT_TRUE(scratch.marginsIntact()) << "order " << order;
                EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(spec) % 64);
                EXPECT_EQ(Kind::tag, tagOf<Kind>(spec));
                Vlq32s bytes = -1;
                EXPECT_EQ(vlqStsOk, Kind::getBufSize(spec, &bytes));
                // The size query counts the slack of the inner work area once more.
                const bool inner = !inIntegers(Kind::is16, order, hint) &&
                                   (Kind::isReal ? realSizes(Kind::inDouble ? 8 : 4, order)
                                                 : complexSizes(Kind::inDouble ? 8 : 4, order))
                                           .work > 0;
                EXPECT_EQ(sizes.work - (inner && !(Kind::is16 && order == 0) ? 64 : 0), bytes)
                    << "order " << order;
                EXPECT_EQ(vlqStsOk, Kind::free(spec));
                EXPECT_EQ(0u, tagOf<Kind>(spec));
                EXPECT_EQ(vlqStsBadSpec, Kind::free(spec));
                EXPECT_EQ(vlqStsBadSpec, Kind::getBufSize(spec, &bytes));
            }
        }
    }
}

TYPED_TEST(FftFixed, PlanningChecks) {
    using Kind = TypeParam;
    Vlq32s a = 7, b = 7, c = 7;
    for (const Vlq32s order : {-1, 31, 1000})
        EXPECT_EQ(vlqStsBadOrder, Kind::getSize(order, 3, 0, nullptr, nullptr, nullptr));
    for (const Vlq32s order : {0, 1, Kind::largest, 30}) {
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, nullptr, &b, &c));
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, &a, nullptr, &c));
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, &a, &b, nullptr));
        for (const Vlq32s flag : {0, 3, 5, 9, -1})
            EXPECT_EQ(vlqStsBadFlag, Kind::getSize(order, flag, 0, &a, &b, &c));
    }
    EXPECT_EQ(vlqStsBadOrder, Kind::getSize(Kind::largest + 1, 1, 0, &a, &b, &c));
    EXPECT_TRUE(a == 7 && b == 7 && c == 7);

    alignas(64) static Vlq8u memory[65536], scratch[32768];
    typename Kind::Spec* spec = nullptr;
    EXPECT_EQ(vlqStsNullPtr, Kind::init(nullptr, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Kind::init(&spec, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Kind::init(&spec, Kind::largest + 1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::init(&spec, 11, 3, 0, nullptr, nullptr));
    for (const int order : {2, 11}) {
        std::memset(memory, 0xFF, sizeof memory);
        EXPECT_EQ(vlqStsBadFlag, Kind::init(&spec, order, 3, 0, memory, scratch));
        EXPECT_EQ(0u, tagOf<Kind>(memory));
    }
    std::memset(memory, 0xFF, sizeof memory);
    EXPECT_EQ(vlqStsNullPtr, Kind::init(&spec, 11, 1, 0, memory, nullptr));
    EXPECT_EQ(0u, tagOf<Kind>(memory));
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(vlqStsOk, Kind::init(&spec, 10, 1, 0, memory, nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::getBufSize(nullptr, &a));
    EXPECT_EQ(vlqStsNullPtr, Kind::getBufSize(spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::free(nullptr));
    EXPECT_EQ(vlqStsOk, Kind::free(spec));

    spec = nullptr;
    EXPECT_EQ(vlqStsNullPtr, Kind::initAlloc(nullptr, -1, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&spec, 31, 3, 0));
    EXPECT_EQ(vlqStsBadFlag, Kind::initAlloc(&spec, 2, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&spec, Kind::largest + 1, 1, 0));
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(0, Core::allocations());
}

TYPED_TEST(FftFixed, AllocationFailures) {
    using Kind = TypeParam;
    for (const int order : {0, 1, 3, 4, 5, 11}) {
        const std::int64_t scratch = sizesOf<Kind>(order, 0).init;
        const int blocks = scratch > 0 ? 2 : 1;
        typename Kind::Spec* spec = nullptr;
        for (int k = 1; k <= blocks; ++k) {
            Core::refuseAllocation(k);
            EXPECT_EQ(vlqStsNoMemory, Kind::initAlloc(&spec, order, 8, 0));
            EXPECT_EQ(nullptr, spec);
            EXPECT_EQ(0, Core::outstanding());
        }
        Core::reset();
        ASSERT_EQ(vlqStsOk, Kind::initAlloc(&spec, order, 8, 0));
        EXPECT_EQ(1, Core::outstanding());
        const std::size_t n = std::size_t{1} << order;
        const Layout layout = Kind::layouts[0];
        const std::vector<typename Kind::Signal> x(Kind::signalLength(n), 1);
        Buffer<typename Kind::Spectrum> y(Kind::spectrumLength(n, layout));
        const bool needsWork = !(Kind::is16 && order == 0);
        if (needsWork) {
            Core::refuseAllocation(1);
            EXPECT_EQ(vlqStsNoMemory,
                      Kind::forward(x.data(), y.data(), spec, 0, nullptr, order, layout));
            EXPECT_TRUE(y.untouched());
        }
        Core::reset();
        EXPECT_EQ(vlqStsOk, Kind::forward(x.data(), y.data(), spec, 0, nullptr, order, layout));
        EXPECT_EQ(needsWork ? 1 : 0, Core::allocations());
        EXPECT_EQ(1, Core::outstanding());
        EXPECT_EQ(vlqStsOk, Kind::free(spec));
    }
}

TYPED_TEST(FftFixed, TransformChecks) {
    using Kind = TypeParam;
    const Plan<Kind> plan(3, 8);
    std::vector<typename Kind::Signal> x(64);
    std::vector<typename Kind::Spectrum> y(64);
    alignas(64) Vlq8u none[256] = {};
    auto* foreign = reinterpret_cast<typename Kind::Spec*>(none);
    for (const Layout layout : Kind::layouts) {
        EXPECT_EQ(vlqStsNullPtr, Kind::forward(nullptr, nullptr, nullptr, 0, nullptr, 3, layout));
        EXPECT_EQ(vlqStsNullPtr, Kind::inverse(nullptr, nullptr, nullptr, 0, nullptr, 3, layout));
        EXPECT_EQ(vlqStsBadSpec, Kind::forward(nullptr, y.data(), foreign, 0, nullptr, 3, layout));
        EXPECT_EQ(vlqStsBadSpec, Kind::inverse(nullptr, x.data(), foreign, 0, nullptr, 3, layout));
        if constexpr (!std::is_same_v<Kind, C_16s> && !std::is_same_v<Kind, C_32s>) {
            EXPECT_EQ(vlqStsNullPtr,
                      Kind::forward(nullptr, y.data(), plan.spec, 0, nullptr, 3, layout));
            EXPECT_EQ(vlqStsNullPtr,
                      Kind::forward(x.data(), nullptr, plan.spec, 0, nullptr, 3, layout));
            EXPECT_EQ(vlqStsNullPtr,
                      Kind::inverse(nullptr, x.data(), plan.spec, 0, nullptr, 3, layout));
            EXPECT_EQ(vlqStsNullPtr,
                      Kind::inverse(y.data(), nullptr, plan.spec, 0, nullptr, 3, layout));
        }
    }
}

template <class T, class Spec>
void checkSplitPointers(VlqStatus (*call)(const T*, const T*, T*, T*, const Spec*, Vlq32s, Vlq8u*),
                        VlqStatus (*inPlace)(T*, T*, const Spec*, Vlq32s, Vlq8u*),
                        const Spec* spec) {
    T v[32] = {};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, v + 8, spec, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, v + 8, spec, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, v + 8, nullptr, v, spec, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, v + 8, v, nullptr, spec, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, v, spec, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, inPlace(v, nullptr, spec, 0, nullptr));
}
TEST(FftFixedChecks, Split) {
    const Plan<C_16s> short16(3, 8);
    const Plan<C_32s> short32(3, 8);
    checkSplitPointers(vlqsFFTFwd_CToC_16s_Sfs, vlqsFFTFwd_CToC_16s_ISfs, short16.spec);
    checkSplitPointers(vlqsFFTInv_CToC_16s_Sfs, vlqsFFTInv_CToC_16s_ISfs, short16.spec);
    checkSplitPointers(vlqsFFTFwd_CToC_32s_Sfs, vlqsFFTFwd_CToC_32s_ISfs, short32.spec);
    checkSplitPointers(vlqsFFTInv_CToC_32s_Sfs, vlqsFFTInv_CToC_32s_ISfs, short32.spec);
}

// One point: the scale alone, halves up, shifts to the left within 32 bits.
TYPED_TEST(FftFixed16, OnePoint) {
    using Kind = TypeParam;
    const Layout layout = Kind::layouts[0];
    for (const VlqHint hint : kHints) {
        const Plan<Kind> plan(0, vlqNormBySqrtN, hint);
        for (const int sample : {-32768, -32767, -3, -2, -1, 0, 1, 2, 3, 5, 7, 32767}) {
            for (const Vlq32s scale :
                 {-40, -32, -31, -20, -15, -1, 0, 1, 2, 15, 16, 17, 31, 32, 100}) {
                std::int64_t want = sample;
                if (scale > 0)
                    want = (want + (std::int64_t{1} << (std::min(scale, 31) - 1))) >>
                           std::min(scale, 31);
                if (scale < 0)
                    want = scale <= -32 ? 0
                                        : static_cast<std::int32_t>(
                                              static_cast<std::uint32_t>(sample) << -scale);
                want = std::clamp<std::int64_t>(want, -32768, 32767);
                const Vlq16s x[2] = {static_cast<Vlq16s>(sample), static_cast<Vlq16s>(sample)};
                Vlq16s y[2] = {9, 9};
                ASSERT_EQ(vlqStsOk, Kind::forward(x, y, plan.spec, scale, nullptr, 0, layout));
                EXPECT_EQ(want, y[0]) << sample << " scale " << scale;
                EXPECT_EQ(Kind::isReal ? 0 : want, y[1]);
                ASSERT_EQ(vlqStsOk, Kind::inverse(x, y, plan.spec, scale, nullptr, 0, layout));
                EXPECT_EQ(want, y[0]) << sample << " scale " << scale;
            }
        }
    }
}

// Up to four points sums are exact: halves go up in integers, to even in floating point.
TYPED_TEST(FftFixed16, Halves) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (const int order : {1, 2}) {
        const std::size_t n = std::size_t{1} << order;
        const Layout layout = Kind::layouts[Kind::isReal ? 2 : 0];
        const std::size_t len = Kind::isReal ? n : 2 * n;
        for (const VlqHint hint : kHints) {
            const Plan<Kind> plan(order, vlqNormNone, hint);
            for (int trial = 0; trial < 200; ++trial) {
                const auto x = extremeVector<Vlq16s>(len, rng);
                const std::vector<long double> exactInput(x.begin(), x.end());
                for (const bool forward : {true, false}) {
                    const auto exact = Kind::exact(forward, exactInput, n, layout);
                    for (const Vlq32s scale : {0, 1, 2, 3, 5}) {
                        std::vector<Vlq16s> y(len);
                        const VlqStatus status = forward
                                                     ? Kind::forward(x.data(), y.data(), plan.spec,
                                                                     scale, nullptr, order, layout)
                                                     : Kind::inverse(x.data(), y.data(), plan.spec,
                                                                     scale, nullptr, order, layout);
                        ASSERT_EQ(vlqStsOk, status);
                        for (std::size_t i = 0; i < len; ++i) {
                            const long double v = std::ldexp(std::nearbyint(exact[i]), -scale);
                            const long double rounded = inIntegers(true, order, hint)
                                                            ? std::floor(v + 0.5L)
                                                            : std::nearbyint(v);
                            ASSERT_EQ(std::clamp(rounded, -32768.0L, 32767.0L), y[i])
                                << v << " hint " << hint << " scale " << scale;
                        }
                    }
                }
            }
        }
    }
}

TYPED_TEST(FftFixed16, Fields) {
    using Kind = TypeParam;
    struct Head {
        Vlq32s ident, order, fwdShift, invShift, halfStep, hint, workBytes, useFloat, owned;
    };
    auto headOf = [](const Plan<Kind>& plan) {
        Head head;
        std::memcpy(&head, static_cast<const void*>(plan.spec), sizeof head);
        return head;
    };
    for (int order = 0; order <= 6; ++order) {
        for (const VlqHint hint : kHints) {
            for (const Vlq32s flag : kFlags) {
                const Head head = headOf(Plan<Kind>(order, flag, hint));
                EXPECT_EQ(Kind::tag, head.ident);
                EXPECT_EQ(order, head.order);
                EXPECT_EQ(hint, head.hint);
                EXPECT_EQ(1, head.owned);
                EXPECT_EQ(flag == vlqNormFwdByN    ? order
                          : flag == vlqNormBySqrtN ? order / 2
                                                   : 0,
                          head.fwdShift);
                EXPECT_EQ(flag == vlqNormInvByN    ? order
                          : flag == vlqNormBySqrtN ? order / 2
                                                   : 0,
                          head.invShift);
                EXPECT_EQ(flag == vlqNormBySqrtN ? order % 2 : 0, head.halfStep);
                EXPECT_EQ(!inIntegers(true, order, hint), head.useFloat != 0);
            }
        }
    }
}

TYPED_TEST(FftFixed16, ExtremeScales) {
    using Kind = TypeParam;
    for (const int order : {1, 3, 6}) {
        const std::size_t n = std::size_t{1} << order;
        const Layout layout = Kind::layouts[0];
        const Plan<Kind> plan(order, vlqNormNone);
        std::vector<Vlq16s> x(Kind::signalLength(n)), y(Kind::spectrumLength(n, layout));
        x[0] = 100;
        for (const Vlq32s scale : {20, 31, 1000, 2147483647}) {
            ASSERT_EQ(vlqStsOk,
                      Kind::forward(x.data(), y.data(), plan.spec, scale, nullptr, order, layout));
            for (const Vlq16s v : y) EXPECT_EQ(0, v);
        }
        ASSERT_EQ(vlqStsOk,
                  Kind::forward(x.data(), y.data(), plan.spec, -12, nullptr, order, layout));
        EXPECT_EQ(32767, y[0]);
        ASSERT_EQ(vlqStsOk, Kind::forward(x.data(), y.data(), plan.spec, -2147483647 - 1, nullptr,
                                          order, layout));
        EXPECT_EQ(order > 3 ? 32767 : 0, y[0]);
    }
}

// The shift to the right stops at 31, which is not enough for sums beyond 2^30.
TEST(FftFixedScale, ShiftsOfMoreThan31Are31) {
    const Plan<C_16sc> plan(3, vlqNormNone);
    const Vlq16sc x[8] = {{32767, 0},  {32767, 32767},   {0, 32767},  {-32768, 32767},
                          {-32768, 0}, {-32768, -32768}, {0, -32768}, {32767, -32768}};
    for (const Vlq32s scale : {18, 19, 1000, 2147483647}) {
        Vlq16sc y[8];
        ASSERT_EQ(vlqStsOk, vlqsFFTFwd_CToC_16sc_Sfs(x, y, plan.spec, scale, nullptr));
        EXPECT_EQ(1, y[1].re) << scale;
        EXPECT_EQ(0, y[0].re) << scale;
    }
}

// Beyond the range of the floating type the scale is infinite, and infinity times 0 is stored as
// the conversions store what is not a number.
TEST(FftFixedScale, ZerosOf16BitsUnderAnInfiniteScale) {
    const Plan<R_16s> plan(5, vlqNormNone);
    Vlq16s x[32] = {100}, y[34];
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_16s_Sfs(x, y, plan.spec, -127, nullptr));
    EXPECT_EQ(32767, y[0]);
    EXPECT_EQ(0, y[1]);
    EXPECT_EQ(0, y[33]);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_16s_Sfs(x, y, plan.spec, -128, nullptr));
    EXPECT_EQ(32767, y[0]);
    EXPECT_EQ(32767, y[1]);
    EXPECT_EQ(32767, y[33]);
}
TEST(FftFixedScale, ZerosOf32BitsUnderAnInfiniteScale) {
    const Plan<R_32s> plan(5, vlqNormNone);
    Vlq32s x[32] = {100}, y[34];
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_32s_Sfs(x, y, plan.spec, -1023, nullptr));
    EXPECT_EQ(0, y[1]);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_32s_Sfs(x, y, plan.spec, -1024, nullptr));
    EXPECT_EQ(2147483647, y[1]);

    // This kind writes its two zeros after the conversion.
    const Plan<R_16s32s> mixed(5, vlqNormNone);
    const Vlq16s shorts[32] = {100};
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_16s32s_Sfs(shorts, y, mixed.spec, -128, nullptr));
    EXPECT_EQ(2147483647, y[3]);
    EXPECT_EQ(0, y[1]);
    EXPECT_EQ(0, y[33]);
}

}  // namespace
