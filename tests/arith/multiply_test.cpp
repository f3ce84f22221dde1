// Products of 8 and 16-bit integers.
#include "arith/multiply_ref.h"

#include "arith/scaled_checks.h"

namespace {

using namespace vlqtest;

template <class A, class B, class D>
void check(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace, ElementRef<A, B, D> ref) {
    checkPlaces<A, B, D>(call, inPlace, ref);
    checkValues<A, B, D>(call, inPlace, ref);
}

TEST(Mul, Scaled8u) {
    checkPlaces<Vlq8u, Vlq8u, Vlq8u>(vlqsMul_8u_Sfs, vlqsMul_8u_ISfs, productRef);
    checkAllBytes(vlqsMul_8u_Sfs, vlqsMul_8u_ISfs, productRef);
}
TEST(Mul, Scaled16s) {
    check<Vlq16s, Vlq16s, Vlq16s>(vlqsMul_16s_Sfs, vlqsMul_16s_ISfs, productRef);
}
TEST(Mul, Scaled16u) {
    check<Vlq16u, Vlq16u, Vlq16u>(vlqsMul_16u_Sfs, vlqsMul_16u_ISfs, productRef);
}
TEST(Mul, Scaled16u16s) { check<Vlq16u, Vlq16s, Vlq16s>(vlqsMul_16u16s_Sfs, nullptr, productRef); }
TEST(Mul, Scaled16s32s) { check<Vlq16s, Vlq16s, Vlq32s>(vlqsMul_16s32s_Sfs, nullptr, productRef); }
TEST(Mul, Scaled16sc) {
    check<Vlq16sc, Vlq16sc, Vlq16sc>(vlqsMul_16sc_Sfs, vlqsMul_16sc_ISfs, complexProductRef);
}

// The variants without a scale factor, as if it were 0.
template <class A, class B, class D>
void checkUnscaled(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace) {
    const ElementRef<A, B, D> ref = [](A a, B b, Vlq32s) { return productRef<D>(a, b, 0); };
    checkPlaces<A, B, D>(call, inPlace, ref);
    checkValues<A, B, D>(call, inPlace, ref, vlqStsOk,
                         std::vector<int>(byEffort<std::size_t>(1, 1, 10), 0));
}
TEST(Mul, Unscaled16s) {
    checkUnscaled<Vlq16s, Vlq16s, Vlq16s>(
        [](const Vlq16s* a, const Vlq16s* b, Vlq16s* d, Vlq32s n, Vlq32s) {
            return vlqsMul_16s(a, b, d, n);
        },
        [](const Vlq16s* a, Vlq16s* d, Vlq32s n, Vlq32s) { return vlqsMul_16s_I(a, d, n); });
}
TEST(Mul, Unscaled8u16u) {
    checkUnscaled<Vlq8u, Vlq8u, Vlq16u>([](const Vlq8u* a, const Vlq8u* b, Vlq16u* d, Vlq32s n,
                                           Vlq32s) { return vlqsMul_8u16u(a, b, d, n); },
                                        nullptr);
    std::vector<Vlq8u> a, b;
    appendAllBytePairs(a, b);
    std::vector<Vlq16u> dst(a.size());
    ASSERT_EQ(vlqStsOk, vlqsMul_8u16u(a.data(), b.data(), dst.data(), static_cast<int>(a.size())));
    for (std::size_t i = 0; i < a.size(); ++i)
        ASSERT_EQ(a[i] * b[i], dst[i]) << +a[i] << " * " << +b[i];
}

TEST(MulC, Scaled8u) {
    checkConstantPlaces<Vlq8u>(vlqsMulC_8u_Sfs, vlqsMulC_8u_ISfs, productRef);
    std::vector<Vlq8u> all;
    for (int x = 0; x < 256; ++x) all.push_back(static_cast<Vlq8u>(x));
    checkConstants<Vlq8u>(vlqsMulC_8u_Sfs, vlqsMulC_8u_ISfs, productRef, all, 0);
}
TEST(MulC, Scaled16s) {
    checkConstantPlaces<Vlq16s>(vlqsMulC_16s_Sfs, vlqsMulC_16s_ISfs, productRef);
    checkConstants<Vlq16s>(vlqsMulC_16s_Sfs, vlqsMulC_16s_ISfs, productRef,
                           {0, 1, -1, 255, -32768, 32767}, 0);
}
TEST(MulC, Scaled16u) {
    checkConstantPlaces<Vlq16u>(vlqsMulC_16u_Sfs, vlqsMulC_16u_ISfs, productRef);
    checkConstants<Vlq16u>(vlqsMulC_16u_Sfs, vlqsMulC_16u_ISfs, productRef, {1, 255, 32768, 65535},
                           0);
}
TEST(MulC, Scaled16sc) {
    checkConstantPlaces<Vlq16sc>(vlqsMulC_16sc_Sfs, vlqsMulC_16sc_ISfs, complexProductRef);
    checkConstants<Vlq16sc>(vlqsMulC_16sc_Sfs, vlqsMulC_16sc_ISfs, complexProductRef,
                            cornerValues<Vlq16sc>(), 1000);
}
TEST(MulC, Unscaled16s) {
    for (const Vlq16s val : std::vector<Vlq16s>{0, 1, -1, 3, -32768, 32767}) {
        std::vector<Vlq16s> source, dst;
        for (int x = -32768; x < 32768; ++x) source.push_back(static_cast<Vlq16s>(x));
        dst = source;
        ASSERT_EQ(vlqStsOk, vlqsMulC_16s_I(val, dst.data(), static_cast<int>(dst.size())));
        for (std::size_t i = 0; i < dst.size(); ++i)
            ASSERT_EQ(productRef<Vlq16s>(source[i], val, 0), dst[i]) << source[i] << " * " << val;
    }
}

template <class D>
void checkSums(VlqStatus (*call)(const Vlq16s*, const Vlq16s*, D*, Vlq32s, Vlq32s)) {
    std::size_t turn = 0;
    sweep(sizeof(Vlq16s), {5003}, [&](Case& c) {
        const int scaleFactor = turningScale(turn++, 16);
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<Vlq16s>(n, c.rng), b = extremeElements<Vlq16s>(n, c.rng);
        const auto acc = extremeElements<D>(n, c.rng);
        std::vector<D> want(n);
        for (std::size_t i = 0; i < n; ++i)
            want[i] = sumOfProductRef(acc[i], a[i], b[i], scaleFactor);
        const Buffer<Vlq16s> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<D> dst(acc, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
    });
    if (::testing::Test::HasFatalFailure()) return;
    Rng rng(seed());
    const auto corners = cornerValues<Vlq16s>();
    const auto starts = cornerValues<D>();
    for (const int scaleFactor : scaleFactors()) {
        std::vector<Vlq16s> a, b;
        std::vector<D> acc;
        for (const Vlq16s x : corners) {
            for (const D start : starts) {
                a.push_back(x);
                b.push_back(rng() % 2 ? corners[rng() % corners.size()] : Vlq16s{-32768});
                acc.push_back(start);
            }
        }
        appendCornerPairs(a, b);
        while (acc.size() < a.size()) acc.push_back(starts[rng() % starts.size()]);
        for (int i = 0; i < byEffort(800, 8000, 80000); ++i) {
            a.push_back(extremeElement<Vlq16s>(rng));
            b.push_back(extremeElement<Vlq16s>(rng));
            acc.push_back(extremeElement<D>(rng));
        }
        auto dst = acc;
        ASSERT_EQ(vlqStsOk,
                  call(a.data(), b.data(), dst.data(), static_cast<int>(a.size()), scaleFactor));
        for (std::size_t i = 0; i < a.size(); ++i) {
            ASSERT_EQ(sumOfProductRef(acc[i], a[i], b[i], scaleFactor), dst[i])
                << acc[i] << " + " << a[i] << " * " << b[i] << " at " << scaleFactor;
        }
    }
}
// The vector that is added to is one of the factors, or all three are one.
TEST(AddProduct, OverItsFactors16s) {
    std::size_t turn = 0;
    sweep(sizeof(Vlq16s), {5003}, [&](Case& c) {
        const int scaleFactor = turningScale(turn++, 16);
        const auto a = extremeElements<Vlq16s>(static_cast<std::size_t>(c.len), c.rng),
                   b = extremeElements<Vlq16s>(a.size(), c.rng);
        std::vector<Vlq16s> overOne(a.size()), overAll(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) {
            overOne[i] = sumOfProductRef(a[i], a[i], b[i], scaleFactor);
            overAll[i] = sumOfProductRef(a[i], a[i], a[i], scaleFactor);
        }
        const Buffer<Vlq16s> other(b, c.place[1]);
        Buffer<Vlq16s> dst(a, c.place[0]);
        ASSERT_EQ(vlqStsOk,
                  vlqsAddProduct_16s_Sfs(dst.data(), other.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, overOne)) << "over the first, scale factor " << scaleFactor;
        dst.assign(a);
        ASSERT_EQ(vlqStsOk,
                  vlqsAddProduct_16s_Sfs(other.data(), dst.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, overOne)) << "over the second, scale factor " << scaleFactor;
        dst.assign(a);
        ASSERT_EQ(vlqStsOk,
                  vlqsAddProduct_16s_Sfs(dst.data(), dst.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, overAll)) << "over both, scale factor " << scaleFactor;
    });
}
TEST(AddProduct, Scaled16s) { checkSums<Vlq16s>(vlqsAddProduct_16s_Sfs); }
TEST(AddProduct, Scaled16s32s) { checkSums<Vlq32s>(vlqsAddProduct_16s32s_Sfs); }

TEST(Mul, LargestProducts16s) {
    const Vlq16s a = -32768;
    Vlq16s dst = 1;
    const int scales[] = {0, 15, 16, 30, 31}, want[] = {32767, 32767, 16384, 1, 0};
    for (int i = 0; i < 5; ++i) {
        ASSERT_EQ(vlqStsOk, vlqsMul_16s_Sfs(&a, &a, &dst, 1, scales[i]));
        EXPECT_EQ(want[i], dst) << scales[i];
    }
}

TEST(Mul, NoPartWraps16sc) {
    const Vlq16sc a = {-32768, -32768}, b = {-32768, 32767};
    Vlq16sc dst;
    ASSERT_EQ(vlqStsOk, vlqsMul_16sc_Sfs(&a, &a, &dst, 1, 0));
    EXPECT_EQ(0, dst.re);
    EXPECT_EQ(32767, dst.im);
    ASSERT_EQ(vlqStsOk, vlqsMul_16sc_Sfs(&a, &a, &dst, 1, 31));
    EXPECT_EQ(1, dst.im);
    ASSERT_EQ(vlqStsOk, vlqsMul_16sc_Sfs(&a, &b, &dst, 1, 17));
    EXPECT_EQ(16384, dst.re);  // 2^31 - 2^15
    EXPECT_EQ(0, dst.im);      // 2^15
}

// Checks come before the constants that make a product trivial.
TEST(MulC, ChecksOfTrivialConstants) {
    Vlq16s v[3] = {5, 6, 7};
    for (const Vlq16s val : std::vector<Vlq16s>{0, 1}) {
        EXPECT_EQ(vlqStsNullPtr, vlqsMulC_16s_Sfs(nullptr, val, v, 0, 0));
        EXPECT_EQ(vlqStsNullPtr, vlqsMulC_16s_Sfs(v, val, nullptr, 3, 0));
        EXPECT_EQ(vlqStsBadSize, vlqsMulC_16s_Sfs(v, val, v, 0, 0));
        EXPECT_EQ(vlqStsNullPtr, vlqsMulC_16s_I(val, nullptr, 3));
        EXPECT_EQ(vlqStsBadSize, vlqsMulC_16s_I(val, v, -1));
    }
    ASSERT_EQ(vlqStsOk, vlqsMulC_16s_ISfs(1, v, 3, 0));
    EXPECT_EQ(6, v[1]);
    ASSERT_EQ(vlqStsOk, vlqsMulC_16s_ISfs(0, v, 3, -100));
    EXPECT_EQ(0, v[0] | v[1] | v[2]);
}

// ---- digests ------------------------------------------------------------------------------------
template <class D>
void checkSumDigest(VlqStatus (*call)(const Vlq16s*, const Vlq16s*, D*, Vlq32s, Vlq32s),
                    std::uint64_t expected) {
    const auto a = fixedVector<Vlq16s>(2000, 1), b = fixedVector<Vlq16s>(2000, 2);
    const auto acc = fixedVector<D>(2000, 3);
    Digest got, want;
    for (int s = -70; s <= 70; ++s) {
        auto dst = acc, ref = acc;
        ASSERT_EQ(vlqStsOk, call(a.data(), b.data(), dst.data(), 2000, s));
        for (std::size_t i = 0; i < ref.size(); ++i)
            ref[i] = sumOfProductRef(acc[i], a[i], b[i], s);
        got.add(dst);
        want.add(ref);
    }
    expectDigest(expected, got, want);
}

TEST(Mul, Digests) {
    checkDigest<Vlq8u, Vlq8u, Vlq8u>(vlqsMul_8u_Sfs, productRef, 0x91731d8aa95cf556);
    checkDigest<Vlq16s, Vlq16s, Vlq16s>(vlqsMul_16s_Sfs, productRef, 0x82b1bd3fe2a2cf58);
    checkDigest<Vlq16u, Vlq16u, Vlq16u>(vlqsMul_16u_Sfs, productRef, 0x6ed7dd7dbf605ba4);
    checkDigest<Vlq16u, Vlq16s, Vlq16s>(vlqsMul_16u16s_Sfs, productRef, 0x980d694d1a6a11eb);
    checkDigest<Vlq16s, Vlq16s, Vlq32s>(vlqsMul_16s32s_Sfs, productRef, 0x844fade9f67557ce);
    checkDigest<Vlq16sc, Vlq16sc, Vlq16sc>(vlqsMul_16sc_Sfs, complexProductRef, 0x469aee2932f4b663);
}
TEST(MulC, Digests) {
    checkConstantDigest<Vlq8u>(vlqsMulC_8u_ISfs, productRef, 0x32647faa8243d852);
    checkConstantDigest<Vlq16s>(vlqsMulC_16s_ISfs, productRef, 0xd50e5b411e65c20d);
    checkConstantDigest<Vlq16u>(vlqsMulC_16u_ISfs, productRef, 0x2efeb19bcd986bd0);
    checkConstantDigest<Vlq16sc>(vlqsMulC_16sc_ISfs, complexProductRef, 0x17c7c5171510db7a);
}
TEST(AddProduct, Digests) {
    checkSumDigest<Vlq16s>(vlqsAddProduct_16s_Sfs, 0xbdd197894ee2fef8);
    checkSumDigest<Vlq32s>(vlqsAddProduct_16s32s_Sfs, 0x568e9ba12c12a9e2);
}

}  // namespace
