// Quotients of floats, real and complex.
#include <bit>

#include "arith/divide_float_ref.h"

#include "harness/element.h"
#include "vlqs/arith.h"

namespace {

using namespace vlqtest;

template <class T>
bool isZero(T v) {
    if constexpr (ComplexElement<T>)
        return v.re == 0 && v.im == 0;
    else
        return v == 0;
}
template <class T>
VlqStatus expectedStatus(const std::vector<T>& divisors) {
    for (const T v : divisors) {
        if (isZero(v)) return vlqStsWarnDivByZero;
    }
    return vlqStsOk;
}

// Any values; or values in the middle of the range; or such with a single zero.
template <class T>
std::vector<T> someValues(std::size_t count, std::size_t turn, Rng& rng) {
    if (turn % 3 == 0) return extremeElements<T>(count, rng);
    std::uniform_real_distribution<double> draw(0.5, 100);
    std::vector<T> values(count);
    for (T& v : values) {
        if constexpr (ComplexElement<T>)
            v = {static_cast<decltype(v.re)>(draw(rng)), static_cast<decltype(v.re)>(-draw(rng))};
        else
            v = static_cast<T>(rng() % 2 ? draw(rng) : -draw(rng));
    }
    if (turn % 3 == 2) {
        if constexpr (ComplexElement<T>)
            values[rng() % count] = {0, -0.0f};
        else
            values[rng() % count] = T(-0.0);
    }
    return values;
}

template <class T, class Close>
void checkQuotients(VlqStatus (*call)(const T*, const T*, T*, Vlq32s),
                    VlqStatus (*inPlace)(const T*, T*, Vlq32s), Close close) {
    std::size_t turn = 0;
    sweep(sizeof(T), {511, 512, 513, 1024, 2049, 20011}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = someValues<T>(n, turn++, c.rng), b = someValues<T>(n, c.rng() % 3, c.rng);
        const Buffer<T> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<T> dst(n, c.place[0]);
        ASSERT_EQ(expectedStatus(a), call(src1.data(), src2.data(), dst.data(), c.len));
        const auto got = dst.values();
        ASSERT_TRUE(dst.marginsIntact());
        for (std::size_t i = 0; i < n; ++i)
            ASSERT_TRUE(close(got[i], a[i], b[i]))
                << show(b[i]) << " / " << show(a[i]) << " gave " << show(got[i]);
        dst.assign(b);
        ASSERT_EQ(expectedStatus(a), inPlace(src1.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, got)) << "in place";
        dst.assign(a);
        ASSERT_EQ(expectedStatus(a), call(dst.data(), src2.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, got)) << "over the divisors";
        // Neither length nor alignment shows.
        const std::size_t k = c.rng() % n;
        T one;
        call(&a[k], &b[k], &one, 1);
        ASSERT_TRUE(sameNumber(one, got[k])) << show(b[k]) << " / " << show(a[k]) << " alone";
    });
}

bool exact32f(Vlq32f got, Vlq32f a, Vlq32f b) { return sameNumber(got, b / a); }
bool exact64f(Vlq64f got, Vlq64f a, Vlq64f b) { return sameNumber(got, b / a); }

bool finite(auto v) { return std::isfinite(v.re) && std::isfinite(v.im); }

bool exact32fc(Vlq32fc got, Vlq32fc a, Vlq32fc b) {
    if (!finite(a) || !finite(b)) return true;  // no promise there
    const LongComplex want = complexQuotientRef(a, b);
    return stepsApart(got.re, want.re) <= 0.501 && stepsApart(got.im, want.im) <= 0.501;
}
// Normwise: parts may cancel.
bool close64fc(Vlq64fc got, Vlq64fc a, Vlq64fc b, long double units) {
    if (!finite(a) || !finite(b)) return true;
    if (isZero(a)) {
        const auto same = [](double x, double y) { return sameNumber(x, y); };
        return same(got.re, b.re / a.re) && same(got.im, b.im / a.re);
    }
    const LongComplex want = complexQuotientRef(a, b);
    const long double size = std::hypot(want.re, want.im);
    if (size > static_cast<long double>(std::numeric_limits<double>::max()) * 0.999L) return true;
    const long double bound = units * 0x1p-53L * size + 4 * 0x1p-1074L;
    return std::abs(static_cast<long double>(got.re) - want.re) <= bound &&
           std::abs(static_cast<long double>(got.im) - want.im) <= bound;
}

TEST(DivFloat, Vectors32f) { checkQuotients<Vlq32f>(vlqsDiv_32f, vlqsDiv_32f_I, exact32f); }
TEST(DivFloat, Vectors64f) { checkQuotients<Vlq64f>(vlqsDiv_64f, vlqsDiv_64f_I, exact64f); }
TEST(DivFloat, Vectors32fc) { checkQuotients<Vlq32fc>(vlqsDiv_32fc, vlqsDiv_32fc_I, exact32fc); }
TEST(DivFloat, Vectors64fc) {
    checkQuotients<Vlq64fc>(vlqsDiv_64fc, vlqsDiv_64fc_I, [](Vlq64fc got, Vlq64fc a, Vlq64fc b) {
        return close64fc(got, a, b, 6);
    });
}

// Any bits at all, ten million pairs.
TEST(DivFloat, AllExponents32f) {
    Rng rng(seed());
    std::vector<Vlq32f> a(100000), b(100000), dst(100000);
    for (int round = 0; round < 100; ++round) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            a[i] = std::bit_cast<Vlq32f>(static_cast<std::uint32_t>(rng()));
            b[i] = std::bit_cast<Vlq32f>(static_cast<std::uint32_t>(rng()));
            // One in two near 1.
            if (i / 64 % 2 == 0) {
                a[i] = std::bit_cast<Vlq32f>((std::bit_cast<std::uint32_t>(a[i]) & 0x807FFFFF) |
                                             0x3F800000);
                b[i] = std::bit_cast<Vlq32f>((std::bit_cast<std::uint32_t>(b[i]) & 0x80FFFFFF) |
                                             0x3F000000);
            }
        }
        vlqsDiv_32f(a.data(), b.data(), dst.data(), static_cast<int>(a.size()));
        for (std::size_t i = 0; i < a.size(); ++i)
            ASSERT_TRUE(exact32f(dst[i], a[i], b[i]))
                << show(b[i]) << " / " << show(a[i]) << " gave " << show(dst[i]);
    }
}

// Every exponent on both sides: nothing overflows or vanishes on the way.
TEST(DivFloat, AllExponents64fc) {
    Rng rng(seed());
    std::uniform_real_distribution<double> draw(-1, 1);
    std::vector<Vlq64fc> a(2000), b(2000), dst(2000);
    for (int round = 0; round < 100; ++round) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            const auto any = [&] {
                const int e = static_cast<int>(rng() % 2090) - 1068;
                return Vlq64fc{std::ldexp(draw(rng), e),
                               std::ldexp(draw(rng), e - static_cast<int>(rng() % 60))};
            };
            a[i] = any();
            b[i] = any();
        }
        vlqsDiv_64fc(a.data(), b.data(), dst.data(), static_cast<int>(a.size()));
        for (std::size_t i = 0; i < a.size(); ++i)
            ASSERT_TRUE(close64fc(dst[i], a[i], b[i], 6))
                << show(b[i]) << " / " << show(a[i]) << " gave " << show(dst[i]);
        const Vlq64fc val = a[0];
        if (isZero(val)) continue;
        ASSERT_EQ(vlqStsOk, vlqsDivC_64fc(b.data(), val, dst.data(), static_cast<int>(b.size())));
        for (std::size_t i = 0; i < a.size(); ++i)
            ASSERT_TRUE(close64fc(dst[i], val, b[i], 8))
                << show(b[i]) << " / " << show(val) << " gave " << show(dst[i]);
    }
}

// ---- constants ----------------------------------------------------------------------------------
template <class T, class Close>
void checkConstant(VlqStatus (*call)(const T*, T, T*, Vlq32s), VlqStatus (*inPlace)(T, T*, Vlq32s),
                   const std::vector<T>& constants, Close close) {
    std::size_t turn = 0;
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto b = someValues<T>(n, turn++, c.rng);
        const T val = constants[turn % constants.size()];
        const Buffer<T> src(b, c.place[1]);
        Buffer<T> dst(n, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), c.len));
        const auto got = dst.values();
        ASSERT_TRUE(dst.marginsIntact());
        for (std::size_t i = 0; i < n; ++i)
            ASSERT_TRUE(close(got[i], val, b[i]))
                << show(b[i]) << " / " << show(val) << " gave " << show(got[i]);
        dst.assign(b);
        ASSERT_EQ(vlqStsOk, inPlace(val, dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, got)) << "in place";
    });
}
template <class T>
bool nearReciprocal(T got, T a, T b) {
    // Two roundings: one and a half steps; below the normal range the last adds its own.
    return stepsApart(got, static_cast<long double>(b) / static_cast<long double>(a)) <= 2;
}
TEST(DivCFloat, Reals) {
    checkConstant<Vlq32f>(
        vlqsDivC_32f, vlqsDivC_32f_I,
        {1, -3, 7.5f, 1e30f, -1e-30f, 0x1p-126f, 0x1p-149f, 3.4e38f, 0x1.8p-140f, INFINITY},
        nearReciprocal<Vlq32f>);
    checkConstant<Vlq64f>(
        vlqsDivC_64f, vlqsDivC_64f_I,
        {1, -3, 7.5, 1e300, -1e-300, 0x1p-1022, 0x1p-1074, 1.79e308, 0x1.8p-1040, INFINITY},
        nearReciprocal<Vlq64f>);
}
TEST(DivCFloat, Complex) {
    const auto near32 = [](Vlq32fc got, Vlq32fc a, Vlq32fc b) {
        if (!finite(b)) return true;
        const LongComplex want = complexQuotientRef(a, b);
        const long double size = std::hypot(want.re, want.im),
                          bound = 0.51L * 0x1p-23L * size + 0x1p-149L;
        const auto part = [&](float x, long double y) {
            return std::isinf(static_cast<float>(y))
                       ? true
                       : std::abs(static_cast<long double>(x) - y) <= bound;
        };
        return part(got.re, want.re) && part(got.im, want.im);
    };
    checkConstant<Vlq32fc>(
        vlqsDivC_32fc, vlqsDivC_32fc_I,
        {{1, 0}, {0, -2}, {3, 4}, {1e-38f, 1e-38f}, {0x1p-149f, 0}, {3e38f, -3e38f}, {0, 1e-30f}},
        near32);
    checkConstant<Vlq64fc>(
        vlqsDivC_64fc, vlqsDivC_64fc_I,
        {{1, 0},
         {0, -2},
         {3, 4},
         {1e-308, 1e-308},
         {0x1p-1074, 0},
         {1e308, -1e308},
         {0, 1e-300},
         {1e200, 1e-200}},
        [](Vlq64fc got, Vlq64fc a, Vlq64fc b) { return close64fc(got, a, b, 8); });
}
TEST(DivCFloat, ZeroDivisor) {
    Vlq32f a = 5;
    Vlq64f b = 5;
    Vlq32fc c = {5, 5};
    Vlq64fc d = {5, 5};
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_32f(&a, 0.0f, &a, 1));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_32f_I(-0.0f, &a, 1));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_64f_I(-0.0, &b, 1));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_32fc_I({0, -0.0f}, &c, 1));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_64fc_I({-0.0, 0}, &d, 1));
    EXPECT_EQ(vlqStsBadSize, vlqsDivC_32f_I(0, &a, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsDivC_32f(nullptr, 0, &a, 0));
    EXPECT_TRUE(a == 5 && b == 5 && c.re == 5 && d.im == 5);
    ASSERT_EQ(vlqStsOk, vlqsDivC_32f_I(NAN, &a, 1));
    EXPECT_TRUE(std::isnan(a));
}
TEST(DivCRevFloat, Vectors) {
    std::size_t turn = 0;
    sweep(sizeof(Vlq32f), {5003}, [&](Case& c) {
        const auto a = someValues<Vlq32f>(static_cast<std::size_t>(c.len), turn++, c.rng);
        const auto val = extremeValue<Vlq32f>(c.rng);
        const Buffer<Vlq32f> src(a, c.place[1]);
        Buffer<Vlq32f> dst(a.size(), c.place[0]);
        ASSERT_EQ(expectedStatus(a), vlqsDivCRev_32f(src.data(), val, dst.data(), c.len));
        const auto got = dst.values();
        ASSERT_TRUE(dst.marginsIntact());
        for (std::size_t i = 0; i < a.size(); ++i)
            ASSERT_TRUE(exact32f(got[i], a[i], val))
                << show(val) << " / " << show(a[i]) << " gave " << show(got[i]);
        dst.assign(a);
        ASSERT_EQ(expectedStatus(a), vlqsDivCRev_32f_I(val, dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, got));
    });
}

TEST(DivFloat, OverZero) {
    const Vlq32f zeros[3] = {0, 0, -0.0f}, n[3] = {5, 0, 5};
    Vlq32f dst[3];
    ASSERT_EQ(6, vlqsDiv_32f(zeros, n, dst, 3));
    EXPECT_EQ(INFINITY, dst[0]);
    EXPECT_TRUE(std::isnan(dst[1]));
    EXPECT_EQ(-INFINITY, dst[2]);
    // A result that overflows, or a divisor that is no number, is no warning.
    const Vlq32f tiny[2] = {1e-40f, NAN}, big[2] = {1e30f, 1};
    ASSERT_EQ(vlqStsOk, vlqsDiv_32f(tiny, big, dst, 2));
    EXPECT_EQ(INFINITY, dst[0]);
    EXPECT_TRUE(std::isnan(dst[1]));
    // A complex divisor is 0 when both of its parts are.
    const Vlq32fc half[1] = {{0, 2}}, none[1] = {{0, 0}}, one[1] = {{4, 0}};
    Vlq32fc complexDst[1];
    ASSERT_EQ(vlqStsOk, vlqsDiv_32fc(half, one, complexDst, 1));
    EXPECT_TRUE(complexDst[0].re == 0 && complexDst[0].im == -2);
    ASSERT_EQ(6, vlqsDiv_32fc(none, one, complexDst, 1));
    EXPECT_EQ(INFINITY, complexDst[0].re);
    EXPECT_TRUE(std::isnan(complexDst[0].im));
}

}  // namespace
