// Complex FFT in floating point against its definition: values, normalization, placement, planning
// and checks.
#include "fourier/fft_complex_ref.h"

#include <algorithm>
#include <cstring>

#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/effort.h"
#include "harness/random.h"
#include "vlqs/fft.h"

namespace {

using namespace vlqtest;

constexpr Vlq32s kFlags[] = {vlqNormFwdByN, vlqNormInvByN, vlqNormBySqrtN, vlqNormNone};

// The first fields of a spec, for tests that read the memory they provided.
template <class T>
struct Head {
    Vlq32u tag;
    Vlq32s order, doFwdScale, doInvScale;
    T normFactor;
    Vlq32s hint, workBytes, owned;
};
template <class Kind>
Head<typename Kind::Element> headOf(const void* spec) {
    Head<typename Kind::Element> head;
    std::memcpy(&head, spec, sizeof head);
    return head;
}

// What differs between the precisions: unit is half a unit in the last place of 1.
struct Single {
    using Element = Vlq32f;
    static constexpr int largest = 28;
    static constexpr double unit = 0x1p-24;
    static constexpr double eightPoint = 0x1.6a09e8p-1;
};
struct Double {
    using Element = Vlq64f;
    static constexpr int largest = 27;
    static constexpr double unit = 0x1p-53;
    static constexpr double eightPoint = 0.70710678118654752440;
};

// The data of both kinds. Vectors hold whole values, or the real parts and then the imaginary
// parts.
template <class T>
struct InterleavedData {
    static std::vector<T> fromParts(const std::vector<T>& parts) {
        std::vector<T> v(parts.size());
        for (std::size_t i = 0; i < parts.size() / 2; ++i) {
            v[2 * i] = parts[i];
            v[2 * i + 1] = parts[parts.size() / 2 + i];
        }
        return v;
    }
    static Extended at(const std::vector<T>& v, std::size_t i) { return {v[2 * i], v[2 * i + 1]}; }
};
template <class T>
struct SplitData {
    static std::vector<T> fromParts(const std::vector<T>& parts) { return parts; }
    static Extended at(const std::vector<T>& v, std::size_t i) {
        return {v[i], v[v.size() / 2 + i]};
    }
};

// The kinds under one set of names.
struct Interleaved32 : Single, InterleavedData<Vlq32f> {
    using Spec = VlqsFFTSpec_C_32fc;
    static constexpr Vlq32u tag = 4;
    static constexpr auto getSize = vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlqsFFTInit_C_32fc;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32fc;
    static constexpr auto free = vlqsFFTFree_C_32fc;
    static VlqStatus transform(bool forward, const Element* x, Element* y, const Spec* spec,
                               Vlq8u* buf, int) {
        const auto* src = reinterpret_cast<const Vlq32fc*>(x);
        auto* dst = reinterpret_cast<Vlq32fc*>(y);
        if (x == y)
            return forward ? vlqsFFTFwd_CToC_32fc_I(dst, spec, buf)
                           : vlqsFFTInv_CToC_32fc_I(dst, spec, buf);
        return forward ? vlqsFFTFwd_CToC_32fc(src, dst, spec, buf)
                       : vlqsFFTInv_CToC_32fc(src, dst, spec, buf);
    }
};
struct Split32 : Single, SplitData<Vlq32f> {
    using Spec = VlqsFFTSpec_C_32f;
    static constexpr Vlq32u tag = 5;
    static constexpr auto getSize = vlqsFFTGetSize_C_32f;
    static constexpr auto init = vlqsFFTInit_C_32f;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32f;
    static constexpr auto free = vlqsFFTFree_C_32f;
    static VlqStatus transform(bool forward, const Element* x, Element* y, const Spec* spec,
                               Vlq8u* buf, int order) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        if (x == y)
            return forward ? vlqsFFTFwd_CToC_32f_I(y, y + n, spec, buf)
                           : vlqsFFTInv_CToC_32f_I(y, y + n, spec, buf);
        return forward ? vlqsFFTFwd_CToC_32f(x, x + n, y, y + n, spec, buf)
                       : vlqsFFTInv_CToC_32f(x, x + n, y, y + n, spec, buf);
    }
};
struct Interleaved64 : Double, InterleavedData<Vlq64f> {
    using Spec = VlqsFFTSpec_C_64fc;
    static constexpr Vlq32u tag = 7;
    static constexpr auto getSize = vlqsFFTGetSize_C_64fc;
    static constexpr auto init = vlqsFFTInit_C_64fc;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_64fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_64fc;
    static constexpr auto free = vlqsFFTFree_C_64fc;
    static VlqStatus transform(bool forward, const Element* x, Element* y, const Spec* spec,
                               Vlq8u* buf, int) {
        const auto* src = reinterpret_cast<const Vlq64fc*>(x);
        auto* dst = reinterpret_cast<Vlq64fc*>(y);
        if (x == y)
            return forward ? vlqsFFTFwd_CToC_64fc_I(dst, spec, buf)
                           : vlqsFFTInv_CToC_64fc_I(dst, spec, buf);
        return forward ? vlqsFFTFwd_CToC_64fc(src, dst, spec, buf)
                       : vlqsFFTInv_CToC_64fc(src, dst, spec, buf);
    }
};
struct Split64 : Double, SplitData<Vlq64f> {
    using Spec = VlqsFFTSpec_C_64f;
    static constexpr Vlq32u tag = 8;
    static constexpr auto getSize = vlqsFFTGetSize_C_64f;
    static constexpr auto init = vlqsFFTInit_C_64f;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_64f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_64f;
    static constexpr auto free = vlqsFFTFree_C_64f;
    static VlqStatus transform(bool forward, const Element* x, Element* y, const Spec* spec,
                               Vlq8u* buf, int order) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        if (x == y)
            return forward ? vlqsFFTFwd_CToC_64f_I(y, y + n, spec, buf)
                           : vlqsFFTInv_CToC_64f_I(y, y + n, spec, buf);
        return forward ? vlqsFFTFwd_CToC_64f(x, x + n, y, y + n, spec, buf)
                       : vlqsFFTInv_CToC_64f(x, x + n, y, y + n, spec, buf);
    }
};

template <class Kind>
class FftComplex : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { EXPECT_EQ(0, Core::outstanding()); }
};
using Kinds = ::testing::Types<Interleaved32, Split32, Interleaved64, Split64>;
TYPED_TEST_SUITE(FftComplex, Kinds);

template <class Kind>
class Plan {
public:
    Plan(int order, Vlq32s flag) {
        EXPECT_EQ(vlqStsOk, Kind::initAlloc(&spec, order, flag, vlqHintNone));
    }
    ~Plan() { EXPECT_EQ(vlqStsOk, Kind::free(spec)); }
    typename Kind::Spec* spec = nullptr;
};

// Relative error in the 2-norm.
template <class Kind>
double errorOf(const std::vector<typename Kind::Element>& got, const std::vector<Extended>& want) {
    long double difference = 0, norm = 0;
    for (std::size_t i = 0; i < want.size(); ++i) {
        difference += std::norm(Kind::at(got, i) - want[i]);
        norm += std::norm(want[i]);
    }
    return static_cast<double>(std::sqrt(difference / norm));
}

TYPED_TEST(FftComplex, AgreesWithTheDefinition) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    Rng rng(seed());
    for (int order = 0; order <= 19; ++order) {
        if (order == 18 && sizeof(T) == 4 && effort() != Effort::full) continue;  // as 17
        if (order == 19 && sizeof(T) == 8 && effort() != Effort::full) continue;  // as 18
        const std::size_t n = std::size_t{1} << order;
        const auto x = Kind::fromParts(uniformVector<T>(2 * n, -1, 1, rng));
        std::vector<Extended> exact(n);
        for (std::size_t i = 0; i < n; ++i) exact[i] = Kind::at(x, i);
        const Plan<Kind> plan(order, vlqNormNone);
        const double bound = order == 0 ? 0 : 0.75 * std::sqrt(order) * Kind::unit;
        for (const bool forward : {true, false}) {
            const auto want = dft(exact, forward ? -1 : 1);
            std::vector<T> y(2 * n);
            ASSERT_EQ(vlqStsOk,
                      Kind::transform(forward, x.data(), y.data(), plan.spec, nullptr, order));
            EXPECT_LE(errorOf<Kind>(y, want), bound)
                << "order " << order << (forward ? " forward" : " inverse");
        }
    }
}

// Where the reference would be slow: the transform of a few impulses is a sum of as many roots.
TYPED_TEST(FftComplex, ImpulsesAtLargeOrders) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    for (int order = 16; order <= 23; ++order) {
        // The shortest and the longest order of each way to cut a transform.
        const bool between = sizeof(T) == 4 ? order == 17 || order == 20 || order == 21
                                            : order == 16 || order == 19 || order == 20;
        if (between && effort() != Effort::full) continue;
        const std::size_t n = std::size_t{1} << order;
        const std::size_t at[] = {1, n / 2 + 3 * (n >> 9) + 77, n - 5};
        std::vector<T> parts(2 * n), y(2 * n);
        for (const std::size_t i : at) parts[i] = 1;
        const auto x = Kind::fromParts(parts);
        const Plan<Kind> plan(order, vlqNormNone);
        ASSERT_EQ(vlqStsOk, Kind::transform(true, x.data(), y.data(), plan.spec, nullptr, order));
        for (std::size_t k = 0; k < n; k += k % 1024 == 1023 ? n / 64 + 1 : 1) {
            Extended want;
            for (const std::size_t i : at) want += unitRoot(i * k % n, n, -1);
            ASSERT_LE(static_cast<double>(std::abs(Kind::at(y, k) - want)), 32 * Kind::unit)
                << "order " << order << " value " << k;
        }
    }
}

TYPED_TEST(FftComplex, NormalizesAndReturns) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    Rng rng(seed());
    for (const int order : {0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 14, 15, 16, 17, 19, 20}) {
        if (order == 20 && effort() != Effort::full) continue;
        const std::size_t n = std::size_t{1} << order;
        const auto x = uniformVector<T>(2 * n, -1, 1, rng);
        const Plan<Kind> plain(order, vlqNormNone);
        for (const Vlq32s flag : kFlags) {
            // Flags select the factor; the paths of the long transforms do not depend on it.
            if (order > 16 && flag != vlqNormBySqrtN && effort() != Effort::full) continue;
            const Plan<Kind> plan(order, flag);
            const auto head = headOf<Kind>(plan.spec);
            std::vector<T> unscaled(2 * n), y(2 * n), z(2 * n);
            for (const bool forward : {true, false}) {
                ASSERT_EQ(vlqStsOk, Kind::transform(forward, x.data(), unscaled.data(), plain.spec,
                                                    nullptr, order));
                ASSERT_EQ(vlqStsOk,
                          Kind::transform(forward, x.data(), y.data(), plan.spec, nullptr, order));
                // Every output is multiplied by the factor, and nothing else changes.
                if (forward ? head.doFwdScale : head.doInvScale) {
                    for (T& value : unscaled) value *= head.normFactor;
                }
                EXPECT_EQ(unscaled, y) << "order " << order << " flag " << flag;
            }
            // Forward and back: the input again, or N times it without normalization.
            ASSERT_EQ(vlqStsOk,
                      Kind::transform(true, x.data(), y.data(), plan.spec, nullptr, order));
            ASSERT_EQ(vlqStsOk,
                      Kind::transform(false, y.data(), z.data(), plan.spec, nullptr, order));
            std::vector<Extended> want(n);
            const long double factor = flag == vlqNormNone ? static_cast<long double>(n) : 1;
            for (std::size_t i = 0; i < n; ++i) want[i] = factor * Kind::at(x, i);
            // Root and quotient are rounded, and the factor applies twice.
            const double rootError = flag == vlqNormBySqrtN ? 4 * Kind::unit : 0;
            EXPECT_LE(errorOf<Kind>(z, want),
                      2 * 0.75 * std::sqrt(std::max(order, 1)) * Kind::unit + rootError)
                << "order " << order << " flag " << flag;
        }
    }
}

TYPED_TEST(FftComplex, OrderZeroCopiesExactly) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    const std::vector<T> x = {T(0x1.23456789abcdfp-3), T(-0.0)};
    for (const Vlq32s flag : {vlqNormNone, vlqNormFwdByN}) {
        const Plan<Kind> plan(0, flag);
        std::vector<T> y(2);
        ASSERT_EQ(vlqStsOk, Kind::transform(true, x.data(), y.data(), plan.spec, nullptr, 0));
        EXPECT_EQ(0, std::memcmp(x.data(), y.data(), 2 * sizeof(T)));
    }
}

// An odd order begins with eight-point transforms: on its way to value 1, an impulse at n / 8 is
// multiplied by their factor only. (The straight-line kernel of order 5 ends with them.)
TYPED_TEST(FftComplex, EightPointFactor) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    for (const int order : {3, 7, 9, 11, 13, 15, 17, 19, 21, 23}) {
        // Orders 19 and 21 begin as order 17 does.
        if ((order == 19 || order == 21) && effort() != Effort::full) continue;
        const std::size_t n = std::size_t{1} << order;
        const Plan<Kind> plan(order, vlqNormNone);
        std::vector<T> parts(2 * n), y(2 * n);
        parts[n / 8] = 1;
        const auto x = Kind::fromParts(parts);
        for (const bool forward : {true, false}) {
            ASSERT_EQ(vlqStsOk,
                      Kind::transform(forward, x.data(), y.data(), plan.spec, nullptr, order));
            const Extended value = Kind::at(y, 1);
            EXPECT_EQ(Kind::eightPoint, static_cast<double>(value.real())) << "order " << order;
            EXPECT_EQ(forward ? -Kind::eightPoint : Kind::eightPoint,
                      static_cast<double>(value.imag()))
                << "order " << order;
        }
    }
}

// In place or not, at any address, with any buffer: the same bits, nothing else touched.
TYPED_TEST(FftComplex, PlacementDoesNotMatter) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    Rng rng(seed());
    for (int order = 0; order <= 20; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const std::vector<T> x = uniformVector<T>(2 * n, -1, 1, rng);
        const Plan<Kind> plan(order, vlqNormBySqrtN);
        Vlq32s workBytes = -1;
        ASSERT_EQ(vlqStsOk, Kind::getBufSize(plan.spec, &workBytes));
        for (const bool forward : {true, false}) {
            std::vector<T> want(2 * n);
            ASSERT_EQ(vlqStsOk,
                      Kind::transform(forward, x.data(), want.data(), plan.spec, nullptr, order));
            const Placement places[][3] = {{{0}, {0}, {0}},
                                           {{4}, {0}, {1}},
                                           {{0}, {4}, {8}},
                                           {{8}, {16}, {63}},
                                           {{1}, {3}, {5}},
                                           {{63}, {33}, {7}},
                                           {{0, true}, {0, true}, {0, true}}};
            for (const auto& place : places) {
                if (order > 17 && place[0].offset == 63) continue;
                const Buffer<T> src(x, place[0]);
                Buffer<T> dst(2 * n, place[1]);
                Buffer<Vlq8u> work(static_cast<std::size_t>(workBytes), place[2]);
                Vlq8u* buf = workBytes ? work.data() : nullptr;
                ASSERT_EQ(vlqStsOk,
                          Kind::transform(forward, src.data(), dst.data(), plan.spec, buf, order));
                ASSERT_TRUE(same(dst, want)) << "order " << order;
                ASSERT_TRUE(same(src, x)) << "order " << order;
                ASSERT_TRUE(work.marginsIntact()) << "order " << order;
                dst.assign(x);
                ASSERT_EQ(vlqStsOk,
                          Kind::transform(forward, dst.data(), dst.data(), plan.spec, buf, order));
                ASSERT_TRUE(same(dst, want)) << "in place, order " << order;
                ASSERT_TRUE(work.marginsIntact()) << "order " << order;
            }
        }
    }
}

TYPED_TEST(FftComplex, Sizes) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    for (int order = 0; order <= Kind::largest; ++order) {
        for (const Vlq32s flag : kFlags) {
            for (const VlqHint hint : {0, 1, 2}) {
                Vlq32s spec = -1, init = -1, work = -1;
                ASSERT_EQ(vlqStsOk, Kind::getSize(order, flag, hint, &spec, &init, &work));
                EXPECT_TRUE((Sizes{spec, init, work} == complexSizes(sizeof(T), order)))
                    << "order " << order;
            }
        }
    }
}

// A spec and its scratch at any address, and next to protected pages.
TYPED_TEST(FftComplex, SpecStaysInItsMemory) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    for (int order = 0; order <= byEffort(16, 19, 21); ++order) {
        const Sizes sizes = complexSizes(sizeof(T), order);
        const Placement places[] = {{0}, {1}, {63}, {16}, {0, true}};
        for (const Placement place : places) {
            if (order > 18 && place.offset > 1) continue;
            Buffer<Vlq8u> memory(static_cast<std::size_t>(sizes.spec), place);
            Buffer<Vlq8u> scratch(static_cast<std::size_t>(sizes.init), place);
            typename Kind::Spec* spec = nullptr;
            ASSERT_EQ(vlqStsOk, Kind::init(&spec, order, vlqNormBySqrtN, vlqHintAccurate,
                                           memory.data(), sizes.init ? scratch.data() : nullptr));
            ASSERT_TRUE(memory.marginsIntact()) << "order " << order;
            ASSERT_TRUE(scratch.marginsIntact()) << "order " << order;
            const auto address = reinterpret_cast<std::uintptr_t>(spec),
                       given = reinterpret_cast<std::uintptr_t>(memory.data());
            EXPECT_EQ(0u, address % 64);
            EXPECT_LT(address - given, 64u);
            const auto head = headOf<Kind>(spec);
            EXPECT_EQ(Kind::tag, head.tag);
            EXPECT_EQ(order, head.order);
            EXPECT_EQ(vlqHintAccurate, head.hint);
            EXPECT_EQ(sizes.work ? sizes.work - 64 : 0, head.workBytes);
            EXPECT_EQ(0, head.owned);
            Vlq32s bytes = -1;
            EXPECT_EQ(vlqStsOk, Kind::getBufSize(spec, &bytes));
            EXPECT_EQ(sizes.work, bytes);
            EXPECT_EQ(vlqStsOk, Kind::free(spec));
            EXPECT_EQ(0u, headOf<Kind>(spec).tag);
            EXPECT_EQ(vlqStsBadSpec, Kind::free(spec));
        }
    }
}

TYPED_TEST(FftComplex, Flags) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    for (int order = 0; order <= 17; ++order) {
        const T n = static_cast<T>(std::int64_t{1} << order);
        for (const Vlq32s flag : kFlags) {
            const Plan<Kind> plan(order, flag);
            const auto head = headOf<Kind>(plan.spec);
            EXPECT_EQ(flag == vlqNormFwdByN || flag == vlqNormBySqrtN, head.doFwdScale);
            EXPECT_EQ(flag == vlqNormInvByN || flag == vlqNormBySqrtN, head.doInvScale);
            EXPECT_EQ(1, head.owned);
            if (flag == vlqNormNone)
                EXPECT_EQ(T(0), head.normFactor);
            else if (flag == vlqNormBySqrtN)
                EXPECT_EQ(1 / (order % 2 ? std::sqrt(n) : std::ldexp(T(1), order / 2)),
                          head.normFactor);
            else
                EXPECT_EQ(1 / n, head.normFactor);
        }
    }
}

TYPED_TEST(FftComplex, PlanningChecks) {
    using Kind = TypeParam;
    Vlq32s a = 7, b = 7, c = 7;
    for (const Vlq32s order : {-1, 31, 1000})
        EXPECT_EQ(vlqStsBadOrder, Kind::getSize(order, 3, 0, nullptr, nullptr, nullptr));
    for (const Vlq32s order : {0, Kind::largest, Kind::largest + 1, 30}) {
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, nullptr, &b, &c));
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, &a, nullptr, &c));
        EXPECT_EQ(vlqStsNullPtr, Kind::getSize(order, 3, 0, &a, &b, nullptr));
        for (const Vlq32s flag : {0, 3, 5, 6, 7, 9, -1, 16})
            EXPECT_EQ(vlqStsBadFlag, Kind::getSize(order, flag, 0, &a, &b, &c));
    }
    EXPECT_EQ(vlqStsBadOrder, Kind::getSize(Kind::largest + 1, 1, 0, &a, &b, &c));
    EXPECT_EQ(vlqStsBadOrder, Kind::getSize(30, 8, 0, &a, &b, &c));
    EXPECT_TRUE(a == 7 && b == 7 && c == 7);

    alignas(64) static Vlq8u memory[32768], scratch[8192];
    typename Kind::Spec* spec = nullptr;
    EXPECT_EQ(vlqStsNullPtr, Kind::init(nullptr, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Kind::init(&spec, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, Kind::init(&spec, Kind::largest + 1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, Kind::init(&spec, 11, 3, 0, nullptr, nullptr));
    std::memset(memory, 0xFF, sizeof memory);
    EXPECT_EQ(vlqStsBadFlag, Kind::init(&spec, 11, 3, 0, memory, nullptr));
    EXPECT_EQ(0u, headOf<Kind>(memory).tag);
    std::memset(memory, 0xFF, sizeof memory);
    EXPECT_EQ(vlqStsNullPtr, Kind::init(&spec, 11, 1, 0, memory, nullptr));
    EXPECT_EQ(0u, headOf<Kind>(memory).tag);
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(vlqStsOk, Kind::init(&spec, 10, 1, 0, memory, nullptr));
    EXPECT_EQ(vlqStsOk, Kind::init(&spec, 11, 1, 0, memory, scratch));

    EXPECT_EQ(vlqStsNullPtr, Kind::initAlloc(nullptr, -1, 3, 0));
    typename Kind::Spec* none = nullptr;
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&none, 31, 3, 0));
    EXPECT_EQ(vlqStsBadFlag, Kind::initAlloc(&none, Kind::largest + 1, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, Kind::initAlloc(&none, Kind::largest + 1, 1, 0));
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
    using T = typename Kind::Element;
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
        const std::vector<T> x(2 * n, 1.0f);
        Buffer<T> y(2 * n);
        Core::reset();
        if (order > 5) {
            Core::refuseAllocation(1);
            EXPECT_EQ(vlqStsNoMemory,
                      Kind::transform(true, x.data(), y.data(), spec, nullptr, order));
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

// The checks of a call: a foreign spec is one of another kind.
template <class Value, class Spec, class Other>
void checkInterleaved(VlqStatus (*call)(const Value*, Value*, const Spec*, Vlq8u*),
                      VlqStatus (*callInPlace)(Value*, const Spec*, Vlq8u*), const Spec* spec,
                      const Other* other) {
    Value v[64] = {};
    const auto* foreign = reinterpret_cast<const Spec*>(other);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadSpec, call(nullptr, nullptr, foreign, nullptr));
    EXPECT_EQ(vlqStsBadSpec, call(v, v, foreign, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, callInPlace(nullptr, spec, nullptr));
    EXPECT_EQ(vlqStsBadSpec, callInPlace(nullptr, foreign, nullptr));
    EXPECT_EQ(vlqStsNullPtr, callInPlace(v, nullptr, nullptr));
}
template <class T, class Spec, class Other>
void checkSplit(VlqStatus (*call)(const T*, const T*, T*, T*, const Spec*, Vlq8u*),
                VlqStatus (*callInPlace)(T*, T*, const Spec*, Vlq8u*), const Spec* spec,
                const Other* other) {
    T v[128] = {};
    const auto* foreign = reinterpret_cast<const Spec*>(other);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadSpec, call(nullptr, nullptr, nullptr, nullptr, foreign, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, v + 64, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, v + 64, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, v + 64, nullptr, v, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, call(v, v + 64, v, nullptr, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, callInPlace(nullptr, v, spec, nullptr));
    EXPECT_EQ(vlqStsNullPtr, callInPlace(v, nullptr, spec, nullptr));
    EXPECT_EQ(vlqStsBadSpec, callInPlace(v, v + 64, foreign, nullptr));
}

TEST(FftComplexChecks, Transforms) {
    const Plan<Interleaved32> c32fc(6, 8);
    const Plan<Split32> c32f(6, 8);
    const Plan<Interleaved64> c64fc(6, 8);
    const Plan<Split64> c64f(6, 8);
    checkInterleaved(vlqsFFTFwd_CToC_32fc, vlqsFFTFwd_CToC_32fc_I, c32fc.spec, c32f.spec);
    checkInterleaved(vlqsFFTInv_CToC_32fc, vlqsFFTInv_CToC_32fc_I, c32fc.spec, c64fc.spec);
    checkInterleaved(vlqsFFTFwd_CToC_64fc, vlqsFFTFwd_CToC_64fc_I, c64fc.spec, c64f.spec);
    checkInterleaved(vlqsFFTInv_CToC_64fc, vlqsFFTInv_CToC_64fc_I, c64fc.spec, c32fc.spec);
    checkSplit(vlqsFFTFwd_CToC_32f, vlqsFFTFwd_CToC_32f_I, c32f.spec, c32fc.spec);
    checkSplit(vlqsFFTInv_CToC_32f, vlqsFFTInv_CToC_32f_I, c32f.spec, c64f.spec);
    checkSplit(vlqsFFTFwd_CToC_64f, vlqsFFTFwd_CToC_64f_I, c64f.spec, c64fc.spec);
    checkSplit(vlqsFFTInv_CToC_64f, vlqsFFTInv_CToC_64f_I, c64f.spec, c32f.spec);
}

TYPED_TEST(FftComplex, FreedSpec) {
    using Kind = TypeParam;
    using T = typename Kind::Element;
    alignas(64) Vlq8u memory[256] = {};
    typename Kind::Spec* spec = nullptr;
    ASSERT_EQ(vlqStsOk, Kind::init(&spec, 5, 8, 0, memory, nullptr));
    T v[64] = {};
    EXPECT_EQ(vlqStsOk, Kind::transform(true, v, v, spec, nullptr, 5));
    ASSERT_EQ(vlqStsOk, Kind::free(spec));
    EXPECT_EQ(vlqStsBadSpec, Kind::transform(true, v, v, spec, nullptr, 5));
    EXPECT_EQ(vlqStsBadSpec, Kind::transform(false, v, v, spec, nullptr, 5));
}

}  // namespace
