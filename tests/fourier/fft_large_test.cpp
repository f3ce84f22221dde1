// The longest transforms that fit the memory of a small machine: their columns are combined in more
// steps than those of the orders that fft_complex_test and fft_real_test cover.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "fourier/fft_complex_ref.h"
#include "harness/effort.h"
#include "harness/random.h"
#include "vlqs/fft.h"

namespace {

using namespace vlqtest;

// Three impulses, whose transform is a sum of three roots of unity.
template <class T>
struct Impulses {
    explicit Impulses(std::size_t length) : n(length), at{1, n / 2 + 3 * (n >> 9) + 77, n - 5} {}
    Extended spectrum(std::size_t k, int sign) const {
        Extended sum;
        for (const std::size_t i : at) sum += unitRoot(i * k % n, n, sign);
        return sum;
    }
    static constexpr double bound = 40 * (sizeof(T) == 4 ? 0x1p-24 : 0x1p-53);
    std::size_t n;
    std::size_t at[3];
};

// Every value of a few blocks, and some of all others.
template <class Check>
void forSomeValues(std::size_t n, Check check) {
    Rng rng(seed());
    for (std::size_t k = 0; k < 512; ++k) {
        check(k);
        check(n - 1 - k);
    }
    for (int i = 0; i < 20000; ++i) check(rng() % n);
}

template <class T, class Value, class Spec>
void checkComplex(int order, VlqStatus (*initAlloc)(Spec**, Vlq32s, Vlq32s, VlqHint),
                  VlqStatus (*free)(Spec*),
                  VlqStatus (*forward)(const Value*, Value*, const Spec*, Vlq8u*),
                  VlqStatus (*inverseInPlace)(Value*, const Spec*, Vlq8u*)) {
    const Impulses<T> impulses(std::size_t{1} << order);
    const std::size_t n = impulses.n;
    Spec* spec = nullptr;
    ASSERT_EQ(vlqStsOk, initAlloc(&spec, order, vlqNormNone, vlqHintNone));
    std::vector<T> x(2 * n), y(2 * n);
    for (const std::size_t i : impulses.at) x[2 * i] = 1;
    auto* const values = reinterpret_cast<Value*>(x.data());
    ASSERT_EQ(vlqStsOk, forward(values, reinterpret_cast<Value*>(y.data()), spec, nullptr));
    ASSERT_EQ(vlqStsOk, inverseInPlace(values, spec, nullptr));
    forSomeValues(n, [&](std::size_t k) {
        const auto error = [&](const std::vector<T>& got, int sign) {
            return static_cast<double>(
                std::abs(Extended(got[2 * k], got[2 * k + 1]) - impulses.spectrum(k, sign)));
        };
        ASSERT_LE(error(y, -1), impulses.bound) << "order " << order << " value " << k;
        ASSERT_LE(error(x, 1), impulses.bound) << "order " << order << " value " << k << " inverse";
    });
    EXPECT_EQ(vlqStsOk, free(spec));
}

template <class T, class Spec>
void checkReal(int order, VlqStatus (*initAlloc)(Spec**, Vlq32s, Vlq32s, VlqHint),
               VlqStatus (*free)(Spec*), VlqStatus (*forward)(const T*, T*, const Spec*, Vlq8u*),
               VlqStatus (*inverseInPlace)(T*, const Spec*, Vlq8u*)) {
    const Impulses<T> impulses(std::size_t{1} << order);
    const std::size_t n = impulses.n;
    Spec* spec = nullptr;
    ASSERT_EQ(vlqStsOk, initAlloc(&spec, order, vlqNormInvByN, vlqHintNone));
    std::vector<T> x(n), y(n + 2);
    for (const std::size_t i : impulses.at) x[i] = 1;
    ASSERT_EQ(vlqStsOk, forward(x.data(), y.data(), spec, nullptr));
    forSomeValues(n / 2, [&](std::size_t k) {
        const Extended got(y[2 * k], y[2 * k + 1]);
        ASSERT_LE(static_cast<double>(std::abs(got - impulses.spectrum(k, -1))), impulses.bound)
            << "order " << order << " value " << k;
    });
    ASSERT_EQ(vlqStsOk, inverseInPlace(y.data(), spec, nullptr));
    for (std::size_t i = 0; i < n; ++i)
        ASSERT_NEAR(x[i], y[i], impulses.bound) << "order " << order << " sample " << i;
    EXPECT_EQ(vlqStsOk, free(spec));
}

TEST(FftLarge, ComplexSingle) {
    for (const int order : {25, 26}) {
        // The real transform of 2^26 points runs that of order 25.
        if (order == 25 && effort() != Effort::full) continue;
        checkComplex<Vlq32f>(order, vlqsFFTInitAlloc_C_32fc, vlqsFFTFree_C_32fc,
                             vlqsFFTFwd_CToC_32fc, vlqsFFTInv_CToC_32fc_I);
    }
}
TEST(FftLarge, ComplexDouble) {
    checkComplex<Vlq64f>(25, vlqsFFTInitAlloc_C_64fc, vlqsFFTFree_C_64fc, vlqsFFTFwd_CToC_64fc,
                         vlqsFFTInv_CToC_64fc_I);
}
TEST(FftLarge, RealSingle) {
    checkReal<Vlq32f>(26, vlqsFFTInitAlloc_R_32f, vlqsFFTFree_R_32f, vlqsFFTFwd_RToCCS_32f,
                      vlqsFFTInv_CCSToR_32f_I);
}
TEST(FftLarge, RealDouble) {
    checkReal<Vlq64f>(26, vlqsFFTInitAlloc_R_64f, vlqsFFTFree_R_64f, vlqsFFTFwd_RToCCS_64f,
                      vlqsFFTInv_CCSToR_64f_I);
}

}  // namespace
