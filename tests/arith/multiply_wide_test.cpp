// Products of 32 and 64-bit integers, and by float constants.
#include <cmath>

#include "arith/multiply_ref.h"
#include "arith/scaled_checks.h"

namespace {

using namespace vlqtest;

template <class A, class B, class D>
void check(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace, ElementRef<A, B, D> ref) {
    checkPlaces<A, B, D>(call, inPlace, ref);
    checkValues<A, B, D>(call, inPlace, ref);
}

Vlq32sc realByComplexRef(Vlq32s a, Vlq32sc b, Vlq32s scaleFactor) {
    return {productRef<Vlq32s>(a, b.re, scaleFactor), productRef<Vlq32s>(a, b.im, scaleFactor)};
}

TEST(Mul, Scaled32s) {
    check<Vlq32s, Vlq32s, Vlq32s>(vlqsMul_32s_Sfs, vlqsMul_32s_ISfs, productRef);
}
TEST(Mul, Scaled32sLow) { check<Vlq32s, Vlq32s, Vlq32s>(vlqsMul_Low_32s_Sfs, nullptr, productRef); }
TEST(Mul, Scaled32s32sc) {
    check<Vlq32s, Vlq32sc, Vlq32sc>(vlqsMul_32s32sc_Sfs, vlqsMul_32s32sc_ISfs, realByComplexRef);
}
TEST(Mul, Scaled32sc) {
    check<Vlq32sc, Vlq32sc, Vlq32sc>(vlqsMul_32sc_Sfs, vlqsMul_32sc_ISfs, complexProductRef);
}

TEST(MulC, Scaled32s) {
    checkConstantPlaces<Vlq32s>(vlqsMulC_32s_Sfs, vlqsMulC_32s_ISfs, productRef);
    checkConstants<Vlq32s>(vlqsMulC_32s_Sfs, vlqsMulC_32s_ISfs, productRef, cornerValues<Vlq32s>(),
                           500);
}
TEST(MulC, Scaled32sc) {
    checkConstantPlaces<Vlq32sc>(vlqsMulC_32sc_Sfs, vlqsMulC_32sc_ISfs, complexProductRef);
    checkConstants<Vlq32sc>(vlqsMulC_32sc_Sfs, vlqsMulC_32sc_ISfs, complexProductRef,
                            cornerValues<Vlq32sc>(), 1000);
}
TEST(MulC, Scaled64s) {
    checkConstantPlaces<Vlq64s>(nullptr, vlqsMulC_64s_ISfs, productRef);
    checkConstants<Vlq64s>(nullptr, vlqsMulC_64s_ISfs, productRef, cornerValues<Vlq64s>(), 200);
}

TEST(Mul, LargestParts32sc) {
    constexpr Vlq32s low = INT32_MIN;
    const Vlq32sc a = {low, low};
    Vlq32sc dst;
    const int scales[] = {0, 31, 32, 33, 62, 63, 64};
    const Vlq32s want[] = {INT32_MAX, INT32_MAX, INT32_MAX, 1 << 30, 2, 1, 0};  // of 2^63
    for (int i = 0; i < 7; ++i) {
        ASSERT_EQ(vlqStsOk, vlqsMul_32sc_Sfs(&a, &a, &dst, 1, scales[i]));
        EXPECT_EQ(0, dst.re);
        EXPECT_EQ(want[i], dst.im) << scales[i];
    }
}

TEST(AddProduct, Scaled32s) {
    std::size_t turn = 0;
    sweep(sizeof(Vlq32s), {5003}, [&](Case& c) {
        const int scaleFactor = turningScale(turn++, 32);
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<Vlq32s>(n, c.rng), b = extremeElements<Vlq32s>(n, c.rng),
                   acc = extremeElements<Vlq32s>(n, c.rng);
        std::vector<Vlq32s> want(n);
        for (std::size_t i = 0; i < n; ++i)
            want[i] = sumOfProductRef(acc[i], a[i], b[i], scaleFactor);
        const Buffer<Vlq32s> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<Vlq32s> dst(acc, c.place[0]);
        ASSERT_EQ(vlqStsOk,
                  vlqsAddProduct_32s_Sfs(src1.data(), src2.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
    });
    Rng rng(seed());
    const auto corners = cornerValues<Vlq32s>();
    for (const int scaleFactor : scaleFactors()) {
        std::vector<Vlq32s> a, b, acc;
        appendCornerPairs(a, b);
        while (acc.size() < a.size()) acc.push_back(corners[rng() % corners.size()]);
        for (int i = 0; i < byEffort(800, 8000, 80000); ++i) {
            a.push_back(extremeElement<Vlq32s>(rng));
            b.push_back(extremeElement<Vlq32s>(rng));
            acc.push_back(extremeElement<Vlq32s>(rng));
        }
        auto dst = acc;
        ASSERT_EQ(vlqStsOk, vlqsAddProduct_32s_Sfs(a.data(), b.data(), dst.data(),
                                                   static_cast<int>(a.size()), scaleFactor));
        for (std::size_t i = 0; i < a.size(); ++i) {
            ASSERT_EQ(sumOfProductRef(acc[i], a[i], b[i], scaleFactor), dst[i])
                << acc[i] << " + " << a[i] << " * " << b[i] << " at " << scaleFactor;
        }
    }
}

// ---- float constants ----------------------------------------------------------------------------
// The double's fraction as an integer times the element, exactly, with its power in the scale.
Vlq64s floatProductRef(Vlq64s a, double val, std::int32_t scaleFactor) {
    if (std::isnan(val) || (std::isinf(val) && a == 0)) return INT64_MIN;
    if (std::isinf(val)) return (val < 0) == (a < 0) ? INT64_MAX : INT64_MIN;
    int exponent = 0;
    const auto fraction = static_cast<std::int64_t>(std::ldexp(std::frexp(val, &exponent), 53));
    const std::int64_t scale = std::int64_t{scaleFactor} - (exponent - 53);
    return scaleRef<Vlq64s>(Exact{a} * fraction, scale);
}

TEST(MulC, Scaled64f64s) {
    Rng rng(seed());
    std::vector<double> constants{0,
                                  -0.0,
                                  1,
                                  -1,
                                  0.5,
                                  1.5,
                                  2.5,
                                  0x1p-1074,
                                  -0x1p-1022,
                                  0x1p1023,
                                  0x1.fffffffffffffp1023,
                                  INFINITY,
                                  -INFINITY,
                                  NAN,
                                  0x1p63,
                                  -0x1p63,
                                  1e10,
                                  3.14159,
                                  -2.71828e-5};
    for (int i = 0; i < 20; ++i) constants.push_back(extremeValue<double>(rng));
    auto source = cornerValues<Vlq64s>();
    for (int i = 0; i < byEffort(20, 200, 2000); ++i) source.push_back(extremeValue<Vlq64s>(rng));
    for (const double val : constants) {
        for (const int scaleFactor : scaleFactors()) {
            auto dst = source;
            ASSERT_EQ(vlqStsOk, vlqsMulC_64f64s_ISfs(val, dst.data(), static_cast<int>(dst.size()),
                                                     scaleFactor));
            for (std::size_t i = 0; i < source.size(); ++i) {
                ASSERT_EQ(floatProductRef(source[i], val, scaleFactor), dst[i])
                    << source[i] << " * " << val << " at " << scaleFactor;
            }
        }
    }
}

// Products of floats fit a double, and its scale is exact; long double rounds to the same integer.
Vlq16s store16(long double value) {
    if (std::isnan(value)) return 32767;
    const long double rounded = std::nearbyint(value);
    return static_cast<Vlq16s>(rounded > 32767 ? 32767 : rounded < -32768 ? -32768 : rounded);
}
long double scaledBy(long double value, std::int32_t scaleFactor) {
    return std::ldexp(value, scaleFactor > 2000    ? -2000
                             : scaleFactor < -2000 ? 2000
                                                   : -scaleFactor);
}

TEST(MulC, Scaled32f16s) {
    std::size_t turn = 0;
    const auto factors = scaleFactors();
    const auto check = [&](const std::vector<Vlq32f>& a, Vlq32f val, int scaleFactor,
                           const Vlq32f* src, Buffer<Vlq16s>& dst) {
        std::vector<Vlq16s> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i)
            want[i] = store16(scaledBy(
                static_cast<long double>(a[i]) * static_cast<long double>(val), scaleFactor));
        ASSERT_EQ(vlqStsOk, vlqsMulC_32f16s_Sfs(src, val, dst.data(), static_cast<int>(a.size()),
                                                scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "constant " << val << ", scale factor " << scaleFactor;
        for (std::size_t i = 0; i < a.size(); ++i)
            want[i] = store16(static_cast<long double>(a[i] * val));
        ASSERT_EQ(vlqStsOk, vlqsMulC_Low_32f16s(src, val, dst.data(), static_cast<int>(a.size())));
        ASSERT_TRUE(same(dst, want)) << "single precision, constant " << val;
    };
    sweep(sizeof(Vlq16s), {5003}, [&](Case& c) {
        const auto a = extremeElements<Vlq32f>(static_cast<std::size_t>(c.len), c.rng);
        const Buffer<Vlq32f> src(a, c.place[1]);
        Buffer<Vlq16s> dst(a.size(), c.place[0]);
        const Vlq32f val = turn % 5 == 0 ? 1.0f : extremeElement<Vlq32f>(c.rng);
        check(a, val, factors[turn++ % factors.size()], src.data(), dst);
    });
    Rng rng(seed());
    for (int round = 0; round < byEffort(2, 20, 200); ++round) {
        const auto a = uniformVector<Vlq32f>(50000, -40000, 40000, rng);
        Buffer<Vlq16s> dst(a.size());
        check(a, uniformVector<Vlq32f>(1, -2, 2, rng)[0], round % 6 - 2, a.data(), dst);
    }
}

// ---- digests ------------------------------------------------------------------------------------
TEST(Mul, WideDigests) {
    checkDigest<Vlq32s, Vlq32s, Vlq32s>(vlqsMul_32s_Sfs, productRef, 0x512e37c33cbf5e2f);
    checkDigest<Vlq32s, Vlq32s, Vlq32s>(vlqsMul_Low_32s_Sfs, productRef, 0x512e37c33cbf5e2f);
    checkDigest<Vlq32s, Vlq32sc, Vlq32sc>(vlqsMul_32s32sc_Sfs, realByComplexRef,
                                          0xbf7451ccc3168477);
    checkDigest<Vlq32sc, Vlq32sc, Vlq32sc>(vlqsMul_32sc_Sfs, complexProductRef, 0x198fa146882d4a2e);
}
TEST(MulC, WideDigests) {
    checkConstantDigest<Vlq32s>(vlqsMulC_32s_ISfs, productRef, 0xba35a1fcb63a3a8a);
    checkConstantDigest<Vlq32sc>(vlqsMulC_32sc_ISfs, complexProductRef, 0x26d3fa68e4a18230);
    checkConstantDigest<Vlq64s>(vlqsMulC_64s_ISfs, productRef, 0x228ffce1c81fe39f);
}
TEST(AddProduct, WideDigest) {
    const auto a = fixedVector<Vlq32s>(2000, 1), b = fixedVector<Vlq32s>(2000, 2),
               acc = fixedVector<Vlq32s>(2000, 3);
    Digest got, want;
    for (int s = -70; s <= 70; ++s) {
        auto dst = acc, ref = acc;
        ASSERT_EQ(vlqStsOk, vlqsAddProduct_32s_Sfs(a.data(), b.data(), dst.data(), 2000, s));
        for (std::size_t i = 0; i < ref.size(); ++i)
            ref[i] = sumOfProductRef(acc[i], a[i], b[i], s);
        got.add(dst);
        want.add(ref);
    }
    expectDigest(0x84e5c72518aaa7c9, got, want);
}
TEST(MulC, FloatConstantDigests) {
    const auto src = fixedVector<Vlq64s>(2000, 3), constants = fixedVector<Vlq64s>(141, 4);
    const auto samples = fixedVector<Vlq32s>(2000, 5);
    Digest got, want, got16, want16, gotLow, wantLow;
    for (int s = -70; s <= 70; ++s) {
        const double val =
            static_cast<double>(constants[static_cast<std::size_t>(s + 70)]) * 0x1p-20;
        auto dst = src, ref = src;
        ASSERT_EQ(vlqStsOk, vlqsMulC_64f64s_ISfs(val, dst.data(), 2000, s));
        std::vector<Vlq32f> floats(2000);
        std::vector<Vlq16s> dst16(2000), low16(2000), ref16(2000), refLow(2000);
        const auto constant = static_cast<Vlq32f>(val);
        for (std::size_t i = 0; i < src.size(); ++i) {
            ref[i] = floatProductRef(src[i], val, s);
            floats[i] = static_cast<Vlq32f>(samples[i]) * 0x1p-10f;
            ref16[i] = store16(scaledBy(
                static_cast<long double>(floats[i]) * static_cast<long double>(constant), s));
            refLow[i] = store16(static_cast<long double>(floats[i] * constant));
        }
        ASSERT_EQ(vlqStsOk, vlqsMulC_32f16s_Sfs(floats.data(), constant, dst16.data(), 2000, s));
        ASSERT_EQ(vlqStsOk, vlqsMulC_Low_32f16s(floats.data(), constant, low16.data(), 2000));
        got.add(dst);
        want.add(ref);
        got16.add(dst16);
        want16.add(ref16);
        gotLow.add(low16);
        wantLow.add(refLow);
    }
    expectDigest(0xcfb7650f6c3340bf, got, want);
    expectDigest(0x7eada3579c6c914a, got16, want16);
    expectDigest(0xf1ce2e6197c665a, gotLow, wantLow);
}

}  // namespace
