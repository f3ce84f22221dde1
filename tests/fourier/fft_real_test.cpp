// Real FFT in floating point against its definition, in all layouts: values, normalization,
// placement, planning and checks.
#include "fourier/fft_real_ref.h"

#include <array>
#include <thread>

#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/effort.h"
#include "harness/random.h"
#include "vlqs/fft.h"

namespace {

using namespace vlqtest;

// The calls of one precision.
template <class T>
struct SpecOf;
template <>
struct SpecOf<Vlq32f> {
    using type = VlqsFFTSpec_R_32f;
};
template <>
struct SpecOf<Vlq64f> {
    using type = VlqsFFTSpec_R_64f;
};
template <class T>
using Spec = typename SpecOf<T>::type;

template <class T>
struct Calls {
    const char* name;
    Layout layout;
    VlqStatus (*forward)(const T*, T*, const Spec<T>*, Vlq8u*);
    VlqStatus (*inverse)(const T*, T*, const Spec<T>*, Vlq8u*);
    VlqStatus (*forwardInPlace)(T*, const Spec<T>*, Vlq8u*);
    VlqStatus (*inverseInPlace)(T*, const Spec<T>*, Vlq8u*);
};

template <class T>
struct Api;
template <>
struct Api<Vlq32f> {
    static constexpr Vlq32s tag = 6;
    static constexpr int largest = 29, twoLevel = 19;
    static constexpr long double unit = 0x1p-24L;
    static constexpr auto getSize = vlqsFFTGetSize_R_32f;
    static constexpr auto init = vlqsFFTInit_R_32f;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_32f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_32f;
    static constexpr auto release = vlqsFFTFree_R_32f;
    static constexpr Calls<Vlq32f> layouts[] = {
        {"CCS", Layout::ccs, vlqsFFTFwd_RToCCS_32f, vlqsFFTInv_CCSToR_32f, vlqsFFTFwd_RToCCS_32f_I,
         vlqsFFTInv_CCSToR_32f_I},
        {"Pack", Layout::pack, vlqsFFTFwd_RToPack_32f, vlqsFFTInv_PackToR_32f,
         vlqsFFTFwd_RToPack_32f_I, vlqsFFTInv_PackToR_32f_I},
        {"Perm", Layout::perm, vlqsFFTFwd_RToPerm_32f, vlqsFFTInv_PermToR_32f,
         vlqsFFTFwd_RToPerm_32f_I, vlqsFFTInv_PermToR_32f_I},
    };
};
template <>
struct Api<Vlq64f> {
    static constexpr Vlq32s tag = 9;
    static constexpr int largest = 28, twoLevel = 18;
    static constexpr long double unit = 0x1p-53L;
    static constexpr auto getSize = vlqsFFTGetSize_R_64f;
    static constexpr auto init = vlqsFFTInit_R_64f;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_64f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_64f;
    static constexpr auto release = vlqsFFTFree_R_64f;
    static constexpr Calls<Vlq64f> layouts[] = {
        {"CCS", Layout::ccs, vlqsFFTFwd_RToCCS_64f, vlqsFFTInv_CCSToR_64f, vlqsFFTFwd_RToCCS_64f_I,
         vlqsFFTInv_CCSToR_64f_I},
        {"Pack", Layout::pack, vlqsFFTFwd_RToPack_64f, vlqsFFTInv_PackToR_64f,
         vlqsFFTFwd_RToPack_64f_I, vlqsFFTInv_PackToR_64f_I},
        {"Perm", Layout::perm, vlqsFFTFwd_RToPerm_64f, vlqsFFTInv_PermToR_64f,
         vlqsFFTFwd_RToPerm_64f_I, vlqsFFTInv_PermToR_64f_I},
    };
};

constexpr Vlq32s kFlags[] = {vlqNormFwdByN, vlqNormInvByN, vlqNormBySqrtN, vlqNormNone};

long double factorOf(Vlq32s flag, Vlq32s byN, int order) {
    if (flag == byN) return std::ldexp(1.0L, -order);
    return flag == vlqNormBySqrtN ? 1 / std::sqrt(std::ldexp(1.0L, order)) : 1;
}

std::size_t pointsOf(int order) { return std::size_t{1} << order; }

template <class T>
class Plan {
public:
    Plan(int order, Vlq32s flag) {
        const VlqStatus status = Api<T>::initAlloc(&spec_, order, flag, vlqHintNone);
        if (status != vlqStsOk) ADD_FAILURE() << "order " << order << ": status " << status;
    }
    ~Plan() { Api<T>::release(spec_); }
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;
    operator Spec<T>*() const { return spec_; }

private:
    Spec<T>* spec_ = nullptr;
};

// Norm of the difference over the norm of what is expected.
template <class Got, class Want>
long double relativeError(const std::vector<Got>& got, const std::vector<Want>& want) {
    if (got.size() != want.size()) return INFINITY;
    long double difference = 0, norm = 0;
    for (std::size_t i = 0; i < got.size(); ++i) {
        const auto g = static_cast<long double>(got[i]), w = static_cast<long double>(want[i]);
        difference += (g - w) * (g - w);
        norm += w * w;
    }
    return norm > 0 ? std::sqrt(difference / norm) : std::sqrt(difference);
}
template <class T>
class FftReal : public ::testing::Test {};
using Precisions = ::testing::Types<Vlq32f, Vlq64f>;
TYPED_TEST_SUITE(FftReal, Precisions);

// The rounding errors of the levels add up like noise.
template <class T>
long double bound(int order) {
    return Api<T>::unit * (1.5L + 0.25L * order);
}

TEST(FftReference, IsTheSum) {
    Rng rng(seed());
    for (int order = 0; order <= 7; ++order) {
        const auto x = uniformVector<Vlq32f>(pointsOf(order), -1, 1, rng);
        const std::vector<Extended> values(x.begin(), x.end());
        for (const int sign : {-1, 1}) {
            const auto want = dftByDefinition(values, sign), got = dft(values, sign);
            for (std::size_t k = 0; k < got.size(); ++k)
                EXPECT_LT(std::abs(got[k] - want[k]), 1e-15L);
        }
    }
}

TYPED_TEST(FftReal, Values) {
    using T = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 19; ++order) {
        // The half-length transforms of orders 15 and 17 run as those of 16 and 18.
        if ((order == 15 || order == 17) && effort() != Effort::full) continue;
        const auto x = uniformVector<T>(pointsOf(order), -1, 1, rng);
        const auto spectrum = realDftRef(x);
        for (const Vlq32s flag : kFlags) {
            const Plan<T> plan(order, flag);
            for (const Calls<T>& calls : Api<T>::layouts) {
                // Of the long transforms one flag with each layout: the layouts differ only in the
                // last step.
                if (order > 11 && flag != (calls.layout == Layout::pack  ? vlqNormBySqrtN
                                           : calls.layout == Layout::ccs ? vlqNormInvByN
                                                                         : vlqNormFwdByN))
                    continue;
                const auto packed = layOut(calls.layout, spectrum, 1);
                const Buffer<T> signal(x);
                Buffer<T> dst(packed.size());
                ASSERT_EQ(vlqStsOk, calls.forward(signal.data(), dst.data(), plan, nullptr));
                ASSERT_TRUE(dst.marginsIntact());
                EXPECT_LT(relativeError(dst.values(), layOut(calls.layout, spectrum,
                                                             factorOf(flag, vlqNormFwdByN, order))),
                          bound<T>(order))
                    << calls.name << ", order " << order << ", flag " << flag;

                const Buffer<T> source(std::vector<T>(packed.begin(), packed.end()));
                Buffer<T> back(x.size());
                ASSERT_EQ(vlqStsOk, calls.inverse(source.data(), back.data(), plan, nullptr));
                ASSERT_TRUE(back.marginsIntact());
                std::vector<long double> want(x.begin(), x.end());
                for (long double& v : want)
                    v *= std::ldexp(factorOf(flag, vlqNormInvByN, order), order);
                EXPECT_LT(relativeError(back.values(), want), bound<T>(order))
                    << calls.name << " inverse, order " << order << ", flag " << flag;
            }
        }
    }
}

// Every position by itself: one sample forward, one value of the spectrum back. Each level may add
// half a unit of a rounded factor and half of a rounded product.
TYPED_TEST(FftReal, EveryValueAlone) {
    using T = TypeParam;
    for (int order = 0; order <= 8; ++order) {
        const std::size_t n = pointsOf(order);
        const double unit = static_cast<double>(Api<T>::unit) * (1 + order);
        const Plan<T> plan(order, vlqNormNone);
        for (std::size_t at = 0; at < n; ++at) {
            std::vector<T> x(n), spectrum(n), back(n);
            x[at] = 1;
            ASSERT_EQ(vlqStsOk,
                      Api<T>::layouts[2].forward(x.data(), spectrum.data(), plan, nullptr));
            const auto want = layOut(Layout::perm, realDftRef(x), 1);
            ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].inverse(x.data(), back.data(), plan, nullptr));
            const std::size_t k = at == 0 ? 0 : at == 1 ? n / 2 : at / 2;
            for (std::size_t i = 0; i < n; ++i) {
                EXPECT_NEAR(static_cast<double>(want[i]), static_cast<double>(spectrum[i]), unit)
                    << "order " << order << ", sample " << at << ", value " << i;
                const Extended root = unitRoot(i * k % n, n, 1);
                const long double value = at < 2        ? root.real()
                                          : at % 2 == 0 ? 2 * root.real()
                                                        : -2 * root.imag();
                EXPECT_NEAR(static_cast<double>(value), static_cast<double>(back[i]), 2 * unit)
                    << "order " << order << ", value " << at << ", sample " << i;
            }
        }
    }
}

TYPED_TEST(FftReal, RoundTrips) {
    using T = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 18; ++order) {
        const auto x = uniformVector<T>(pointsOf(order), -1, 1, rng);
        const Vlq32s flag = order % 3 == 0   ? vlqNormBySqrtN
                            : order % 3 == 1 ? vlqNormInvByN
                                             : vlqNormFwdByN;
        const Plan<T> plan(order, flag);
        for (const Calls<T>& calls : Api<T>::layouts) {
            Buffer<T> data(layoutSize(calls.layout, x.size()));
            data.assign(x);
            ASSERT_EQ(vlqStsOk, calls.forwardInPlace(data.data(), plan, nullptr));
            ASSERT_EQ(vlqStsOk, calls.inverseInPlace(data.data(), plan, nullptr));
            ASSERT_TRUE(data.marginsIntact());
            auto values = data.values();
            values.resize(x.size());
            EXPECT_LT(relativeError(values, x), 2 * bound<T>(order))
                << calls.name << ", order " << order;
        }
    }
}

TYPED_TEST(FftReal, SmallLayouts) {
    using T = TypeParam;
    const T x[2] = {3, 5};
    T y[4];
    const Plan<T> one(0, vlqNormFwdByN), two(1, vlqNormNone), four(2, vlqNormNone);
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[0].forward(x, y, one, nullptr));
    EXPECT_EQ(3, y[0]);
    EXPECT_EQ(0, y[1]);
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].forward(x + 1, y, one, nullptr));
    EXPECT_EQ(5, y[0]);
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[1].forward(x, y, one, nullptr));
    EXPECT_EQ(3, y[0]);

    ASSERT_EQ(vlqStsOk, Api<T>::layouts[0].forward(x, y, two, nullptr));
    const T ccs[4] = {8, 0, -2, 0};
    EXPECT_EQ(0, std::memcmp(ccs, y, sizeof ccs));
    for (const auto call : {Api<T>::layouts[1].forward, Api<T>::layouts[2].forward}) {
        ASSERT_EQ(vlqStsOk, call(x, y, two, nullptr));
        EXPECT_EQ(8, y[0]);
        EXPECT_EQ(-2, y[1]);
    }

    const T quad[4] = {1, 20, 300, 4000};
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].forward(quad, y, four, nullptr));
    const T want[4] = {4321, 301 - 4020, 1 - 300, 4000 - 20};
    EXPECT_EQ(0, std::memcmp(want, y, sizeof want));
}

// The zeros of a CCS spectrum are not looked at.
TYPED_TEST(FftReal, ZerosOfCcsAreIgnored) {
    using T = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 9; ++order) {
        const std::size_t n = pointsOf(order);
        const Plan<T> plan(order, vlqNormInvByN);
        auto spectrum = uniformVector<T>(n + 2, -1, 1, rng);
        std::vector<T> first(n), second(n);
        spectrum[1] = spectrum[n + 1] = 0;
        ASSERT_EQ(vlqStsOk,
                  Api<T>::layouts[0].inverse(spectrum.data(), first.data(), plan, nullptr));
        spectrum[1] = spectrum[n + 1] = NAN;
        ASSERT_EQ(vlqStsOk,
                  Api<T>::layouts[0].inverse(spectrum.data(), second.data(), plan, nullptr));
        EXPECT_EQ(first, second);
    }
}

// Bit for bit the same result wherever the vectors and the work buffer lie, in place or not.
TYPED_TEST(FftReal, PlacementDoesNotMatter) {
    using T = TypeParam;
    Rng rng(seed());
    const std::array<Placement, 5> places{
        {{0, false}, {4, false}, {16, false}, {37, false}, {0, true}}};
    for (int order = 0; order <= 19; ++order) {
        const std::size_t n = pointsOf(order);
        const auto x = uniformVector<T>(n, -1, 1, rng);
        const Plan<T> plan(order, vlqNormBySqrtN);
        Vlq32s workBytes = -1;
        ASSERT_EQ(vlqStsOk, Api<T>::getBufSize(plan, &workBytes));
        for (const Calls<T>& calls : Api<T>::layouts) {
            const std::size_t m = layoutSize(calls.layout, n);
            std::vector<T> forward, inverse;
            for (const Placement& place : places) {
                const Buffer<T> src(x, {place.offset * 5 % 64, place.atGuardPage});
                Buffer<T> dst(m, place), data(m, place), back(n, place);
                Buffer<Vlq8u> work(static_cast<std::size_t>(workBytes), place);
                Vlq8u* buf = workBytes > 0 ? work.data() : nullptr;
                Core::reset();
                ASSERT_EQ(vlqStsOk, calls.forward(src.data(), dst.data(), plan, buf));
                if (forward.empty()) forward = dst.values();
                ASSERT_TRUE(same(dst, forward)) << calls.name << ", order " << order;
                ASSERT_TRUE(same(src, x));
                data.assign(x);
                ASSERT_EQ(vlqStsOk, calls.forwardInPlace(data.data(), plan, buf));
                ASSERT_TRUE(same(data, forward)) << calls.name << " in place, order " << order;

                const Buffer<T> spectrum(forward, {place.offset * 3 % 64, place.atGuardPage});
                ASSERT_EQ(vlqStsOk, calls.inverse(spectrum.data(), back.data(), plan, buf));
                if (inverse.empty()) inverse = back.values();
                ASSERT_TRUE(same(back, inverse)) << calls.name << " inverse, order " << order;
                ASSERT_TRUE(same(spectrum, forward));
                ASSERT_EQ(vlqStsOk, calls.inverseInPlace(data.data(), plan, buf));
                ASSERT_EQ(0, std::memcmp(data.data(), inverse.data(), n * sizeof(T)))
                    << calls.name << " inverse in place, order " << order;
                ASSERT_TRUE(data.marginsIntact() && work.marginsIntact());
                EXPECT_EQ(0, Core::allocations());
            }
            // A call without a work buffer allocates one.
            Buffer<T> dst(m);
            Core::reset();
            const int before = Core::outstanding();
            ASSERT_EQ(vlqStsOk, calls.forward(x.data(), dst.data(), plan, nullptr));
            ASSERT_TRUE(same(dst, forward));
            EXPECT_EQ(workBytes > 0 ? 1 : 0, Core::allocations());
            EXPECT_EQ(before, Core::outstanding());
        }
    }
}

// From 2^19 points on the factors of the recombination are products of two tables: the even values
// of a signal made twice as long by zeros are those of the shorter one.
TYPED_TEST(FftReal, BothFormsOfFactorsAgree) {
    using T = TypeParam;
    Rng rng(seed());
    const std::size_t n = pointsOf(Api<T>::twoLevel - 1);
    auto x = uniformVector<T>(n, -1, 1, rng);
    std::vector<T> half(n + 2), whole(2 * n + 2), even, back(2 * n);
    const Plan<T> shorter(Api<T>::twoLevel - 1, vlqNormNone),
        longer(Api<T>::twoLevel, vlqNormInvByN);
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[0].forward(x.data(), half.data(), shorter, nullptr));
    x.resize(2 * n);
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[0].forward(x.data(), whole.data(), longer, nullptr));
    for (std::size_t k = 0; k <= n / 2; ++k)
        even.insert(even.end(), {whole[4 * k], whole[4 * k + 1]});
    EXPECT_LT(relativeError(even, half), 2 * bound<T>(19));
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[0].inverse(whole.data(), back.data(), longer, nullptr));
    EXPECT_LT(relativeError(back, x), 2 * bound<T>(19));
}

TYPED_TEST(FftReal, LongRoundTrips) {
    using T = TypeParam;
    Rng rng(seed());
    for (const int order : {20, 21}) {
        const auto x = uniformVector<T>(pointsOf(order), -1, 1, rng);
        auto y = x;
        const Plan<T> plan(order, vlqNormInvByN);
        ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].forwardInPlace(y.data(), plan, nullptr));
        double sum = 0, alternating = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            sum += static_cast<double>(x[i]);
            alternating += static_cast<double>(i % 2 == 0 ? x[i] : -x[i]);
        }
        EXPECT_NEAR(sum, static_cast<double>(y[0]), 1e-2);
        EXPECT_NEAR(alternating, static_cast<double>(y[1]), 1e-2);
        ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].inverseInPlace(y.data(), plan, nullptr));
        EXPECT_LT(relativeError(y, x), 2 * bound<T>(order));
    }
}

TYPED_TEST(FftReal, Sizes) {
    using T = TypeParam;
    for (int order = 0; order <= Api<T>::largest; ++order) {
        for (const Vlq32s flag : kFlags) {
            Vlq32s spec = -1, init = -1, work = -1;
            ASSERT_EQ(vlqStsOk, Api<T>::getSize(order, flag, vlqHintFast, &spec, &init, &work));
            const Sizes want = realSizes(sizeof(T), order);
            EXPECT_EQ(want.spec, spec) << "order " << order;
            EXPECT_EQ(want.init, init) << "order " << order;
            EXPECT_EQ(want.work, work) << "order " << order;
            if (flag != vlqNormNone || order > 20) continue;
            const Plan<T> plan(order, flag);
            Vlq32s buf = -1;
            ASSERT_EQ(vlqStsOk, Api<T>::getBufSize(plan, &buf));
            EXPECT_EQ(work, buf) << "order " << order;
        }
    }
}

// The spec stays inside its size at any address, and does not use the scratch after init.
TYPED_TEST(FftReal, SpecInCallersMemory) {
    using T = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 19; ++order) {
        const auto x = uniformVector<T>(pointsOf(order), -1, 1, rng);
        std::vector<T> want(x.size()), got(x.size());
        {
            const Plan<T> plan(order, vlqNormBySqrtN);
            ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].forward(x.data(), want.data(), plan, nullptr));
        }
        Vlq32s specBytes, initBytes, workBytes;
        ASSERT_EQ(vlqStsOk, Api<T>::getSize(order, vlqNormBySqrtN, vlqHintNone, &specBytes,
                                            &initBytes, &workBytes));
        for (const Placement place :
             {Placement{0, false}, {1, false}, {63, false}, {36, false}, {0, true}}) {
            Buffer<Vlq8u> memory(static_cast<std::size_t>(specBytes), place);
            Buffer<Vlq8u> scratch(static_cast<std::size_t>(initBytes), place);
            Spec<T>* spec = nullptr;
            Core::reset();
            ASSERT_EQ(vlqStsOk, Api<T>::init(&spec, order, vlqNormBySqrtN, vlqHintAccurate,
                                             memory.data(), order > 10 ? scratch.data() : nullptr));
            EXPECT_EQ(0, Core::allocations());
            const auto address = reinterpret_cast<std::uintptr_t>(spec),
                       start = reinterpret_cast<std::uintptr_t>(memory.data());
            EXPECT_EQ((start + 63) / 64 * 64, address);
            EXPECT_TRUE(memory.marginsIntact() && scratch.marginsIntact());
            if (initBytes > 0) scratch.assign(std::vector<Vlq8u>(scratch.size(), 0xEE));

            ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].forward(x.data(), got.data(), spec, nullptr));
            EXPECT_EQ(want, got) << "order " << order;
            EXPECT_EQ(vlqStsOk, Api<T>::release(spec));
            EXPECT_EQ(0, Core::outstanding());
            EXPECT_EQ(vlqStsBadSpec, Api<T>::release(spec));
            EXPECT_EQ(vlqStsBadSpec,
                      Api<T>::layouts[2].forward(x.data(), got.data(), spec, nullptr));
        }
    }
}

TYPED_TEST(FftReal, ChecksOfGetSize) {
    using T = TypeParam;
    Vlq32s a = 7, b = 7, c = 7;
    EXPECT_EQ(vlqStsBadOrder, Api<T>::getSize(-1, 3, 0, nullptr, &b, &c));
    EXPECT_EQ(vlqStsBadOrder, Api<T>::getSize(31, 3, 0, &a, &b, &c));
    EXPECT_EQ(vlqStsNullPtr, Api<T>::getSize(Api<T>::largest + 1, 3, 0, nullptr, &b, &c));
    EXPECT_EQ(vlqStsNullPtr, Api<T>::getSize(8, 3, 0, &a, nullptr, &c));
    EXPECT_EQ(vlqStsNullPtr, Api<T>::getSize(8, 3, 0, &a, &b, nullptr));
    for (const Vlq32s flag : {0, 3, 5, 6, 7, 9, 12, -1}) {
        EXPECT_EQ(vlqStsBadFlag, Api<T>::getSize(Api<T>::largest + 1, flag, 0, &a, &b, &c));
    }
    EXPECT_EQ(vlqStsBadOrder, Api<T>::getSize(Api<T>::largest + 1, vlqNormNone, 0, &a, &b, &c));
    EXPECT_EQ(7, a);
    EXPECT_EQ(7, b);
    EXPECT_EQ(7, c);
    EXPECT_EQ(vlqStsOk, Api<T>::getSize(Api<T>::largest, vlqNormNone, 77, &a, &b, &c));
}

TYPED_TEST(FftReal, ChecksOfInit) {
    using T = TypeParam;
    Spec<T>* spec = nullptr;
    Buffer<Vlq8u> memory(1 << 17), scratch(1 << 17);
    EXPECT_EQ(vlqStsNullPtr, Api<T>::init(nullptr, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Api<T>::init(&spec, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder,
              Api<T>::init(&spec, Api<T>::largest + 1, 3, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsNullPtr, Api<T>::init(&spec, 11, 3, 0, nullptr, nullptr));
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(vlqStsBadFlag, Api<T>::init(&spec, 11, 3, 0, memory.data(), nullptr));
    // A failed init leaves the tag 0.
    EXPECT_EQ(vlqStsBadSpec, Api<T>::release(reinterpret_cast<Spec<T>*>(memory.data())));
    EXPECT_EQ(vlqStsBadFlag, Api<T>::init(&spec, 5, 0, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsNullPtr, Api<T>::init(&spec, 11, vlqNormNone, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsBadSpec, Api<T>::release(reinterpret_cast<Spec<T>*>(memory.data())));
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(vlqStsOk, Api<T>::init(&spec, 10, vlqNormNone, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsOk, Api<T>::init(&spec, 11, vlqNormNone, 0, memory.data(), scratch.data()));
    EXPECT_EQ(vlqStsOk, Api<T>::release(spec));
}

TYPED_TEST(FftReal, ChecksOfInitAlloc) {
    using T = TypeParam;
    Spec<T>* spec = nullptr;
    EXPECT_EQ(vlqStsNullPtr, Api<T>::initAlloc(nullptr, 31, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Api<T>::initAlloc(&spec, 31, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Api<T>::initAlloc(&spec, -1, 3, 0));
    EXPECT_EQ(vlqStsBadFlag, Api<T>::initAlloc(&spec, Api<T>::largest + 1, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Api<T>::initAlloc(&spec, Api<T>::largest + 1, 8, 0));
    EXPECT_EQ(nullptr, spec);
}

TYPED_TEST(FftReal, RefusedMemory) {
    using T = TypeParam;
    for (const int order : {0, 4, 5, 10, 11, 15}) {
        const int needed = order > 10 ? 2 : 1;
        Spec<T>* spec = nullptr;
        for (int k = 1; k <= needed; ++k) {
            Core::reset();
            Core::refuseAllocation(k);
            EXPECT_EQ(vlqStsNoMemory, Api<T>::initAlloc(&spec, order, vlqNormNone, 0));
            EXPECT_EQ(0, Core::outstanding());
        }
        Core::reset();
        EXPECT_EQ(vlqStsOk, Api<T>::initAlloc(&spec, order, vlqNormNone, 0));
        EXPECT_EQ(needed, Core::allocations());
        EXPECT_EQ(1, Core::outstanding());
        EXPECT_EQ(vlqStsOk, Api<T>::release(spec));
        EXPECT_EQ(0, Core::outstanding());
    }
    for (const int order : {5, 6, 7, 12}) {
        const Plan<T> plan(order, vlqNormNone);
        const Buffer<T> src(std::vector<T>(pointsOf(order) + 2, T(1)));
        for (const Calls<T>& calls : Api<T>::layouts) {
            for (const auto call : {calls.forward, calls.inverse}) {
                Buffer<T> dst(pointsOf(order) + 2);
                Core::reset();
                Core::refuseAllocation(1);
                EXPECT_EQ(order > 6 ? vlqStsNoMemory : vlqStsOk,
                          call(src.data(), dst.data(), plan, nullptr));
                EXPECT_EQ(order > 6, dst.untouched());
                Core::reset();
            }
        }
    }
}

TYPED_TEST(FftReal, ChecksOfTransforms) {
    using T = TypeParam;
    Buffer<T> v(64), w(66);
    Buffer<Vlq8u> dead(1024);
    dead.assign(std::vector<Vlq8u>(1024));
    auto* foreign = reinterpret_cast<Spec<T>*>(dead.data());
    const Plan<T> plan(6, vlqNormNone);
    for (const Vlq32s tag :
         {0, 1, 3, 4, 5, 6, 7, 9, 15, 0x434D414F}) {  // dead, and of the other kinds
        if (tag == Api<T>::tag) continue;
        std::memcpy(dead.data(), &tag, sizeof tag);
        for (const Calls<T>& calls : Api<T>::layouts) {
            for (const auto call : {calls.forward, calls.inverse}) {
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, nullptr, nullptr, nullptr));
                EXPECT_EQ(vlqStsBadSpec, call(nullptr, w.data(), foreign, nullptr));
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, w.data(), plan, nullptr));
                EXPECT_EQ(vlqStsNullPtr, call(v.data(), nullptr, plan, nullptr));
            }
            for (const auto call : {calls.forwardInPlace, calls.inverseInPlace}) {
                EXPECT_EQ(vlqStsNullPtr, call(w.data(), nullptr, nullptr));
                EXPECT_EQ(vlqStsBadSpec, call(nullptr, foreign, nullptr));
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, plan, nullptr));
            }
        }
        Vlq32s bytes = 5;
        EXPECT_EQ(vlqStsBadSpec, Api<T>::getBufSize(foreign, &bytes));
        EXPECT_EQ(vlqStsNullPtr, Api<T>::getBufSize(nullptr, &bytes));
        EXPECT_EQ(vlqStsNullPtr, Api<T>::getBufSize(plan, nullptr));
        EXPECT_EQ(vlqStsBadSpec, Api<T>::release(foreign));
        EXPECT_EQ(vlqStsNullPtr, Api<T>::release(nullptr));
        EXPECT_EQ(5, bytes);
    }
    EXPECT_TRUE(v.untouched() && w.untouched());
}

// One plan serves several threads, each with its own work buffer.
TYPED_TEST(FftReal, OneSpecForSeveralThreads) {
    using T = TypeParam;
    Rng rng(seed());
    const Plan<T> plan(10, vlqNormNone);
    const auto x = uniformVector<T>(1024, -1, 1, rng);
    std::vector<T> want(1024);
    ASSERT_EQ(vlqStsOk, Api<T>::layouts[2].forward(x.data(), want.data(), plan, nullptr));
    Vlq32s bytes = 0;
    ASSERT_EQ(vlqStsOk, Api<T>::getBufSize(plan, &bytes));
    std::array<std::vector<T>, 2> got;
    std::vector<std::thread> threads;
    for (auto& result : got) {
        threads.emplace_back([&result, &x, &plan, bytes] {
            std::vector<Vlq8u> work(static_cast<std::size_t>(bytes));
            for (int repeat = 0; repeat < 200; ++repeat) {
                result = x;
                Api<T>::layouts[2].forwardInPlace(result.data(), plan, work.data());
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (const auto& result : got) EXPECT_EQ(want, result);
}

}  // namespace
