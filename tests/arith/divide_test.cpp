// Quotients of integers.
#include "arith/divide_ref.h"

#include "arith/scaled_checks.h"

namespace {

using namespace vlqtest;

bool isZero(auto v) { return v == 0; }
bool isZero(Vlq16sc v) { return v.re == 0 && v.im == 0; }

template <class A>
VlqStatus expectedStatus(const std::vector<A>& divisors) {
    for (const A v : divisors) {
        if (isZero(v)) return vlqStsWarnDivByZero;
    }
    return vlqStsOk;
}

// Divisors of one case in three are free of zeros, to their last element.
template <class A>
std::vector<A> someDivisors(std::size_t count, std::size_t turn, Rng& rng) {
    auto values = extremeElements<A>(count, rng);
    for (std::size_t i = 0; i < count; ++i) {
        if constexpr (ComplexElement<A>) {
            if (isZero(values[i])) values[i].im = 3;
        } else {
            if (values[i] == 0) values[i] = 3;
        }
    }
    if (turn % 3 == 1) values[rng() % count] = A{};
    if (turn % 3 == 2) values = extremeElements<A>(count, rng);
    return values;
}

template <class A, class B, class D>
void checkPlacesOfQuotients(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace,
                            ElementRef<A, B, D> ref) {
    std::size_t turn = 0;
    const int factors[] = {0, 1, 5, 15, 16, 17, -1, -7, -20, -31, 33, -63};
    sweep(static_cast<int>(std::min(sizeof(A), sizeof(D))), {2047, 2048, 2049, 5003}, [&](Case& c) {
        const int scaleFactor = factors[(turn / 3) % std::size(factors)];
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = someDivisors<A>(n, turn++, c.rng);
        const auto b = extremeElements<B>(n, c.rng);
        const auto want = wanted<A, B, D>(a, b, ref, scaleFactor);
        const VlqStatus status = expectedStatus(a);
        const Buffer<A> src1(a, c.place[1]);
        const Buffer<B> src2(b, c.place[2]);
        Buffer<D> dst(n, c.place[0]);
        ASSERT_EQ(status, call(src1.data(), src2.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
        if constexpr (std::is_same_v<B, D>) {
            dst.assign(b);
            ASSERT_EQ(status, inPlace(src1.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "in place, scale factor " << scaleFactor;
            dst.assign(b);
            ASSERT_EQ(status, call(src1.data(), dst.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "over the numerators, scale factor " << scaleFactor;
        }
        if constexpr (std::is_same_v<A, D>) {
            dst.assign(a);
            ASSERT_EQ(status, call(dst.data(), src2.data(), dst.data(), c.len, scaleFactor));
            ASSERT_TRUE(same(dst, want)) << "over the divisors, scale factor " << scaleFactor;
        }
    });
}

template <class T>
T inFloat(T divisor, T numerator, Vlq32s scaleFactor) {
    return quotientRef<T, float>(numerator, divisor, vlqRndNear, scaleFactor);
}
Vlq32s inDouble(Vlq32s divisor, Vlq32s numerator, Vlq32s scaleFactor) {
    return quotientRef<Vlq32s, double>(numerator, divisor, vlqRndNear, scaleFactor);
}
Vlq16s inDouble16s(Vlq16s divisor, Vlq32s numerator, Vlq32s scaleFactor) {
    return quotientRef<Vlq16s, double>(numerator, divisor, vlqRndNear, scaleFactor);
}

// Corner and random pairs have zeros among the divisors.
template <class A, class B, class D>
void check(Scaled<A, B, D> call, ScaledInPlace<A, D> inPlace, ElementRef<A, B, D> ref) {
    checkPlacesOfQuotients<A, B, D>(call, inPlace, ref);
    checkValues<A, B, D>(call, inPlace, ref, vlqStsWarnDivByZero);
}

TEST(Div, Scaled8u) {
    checkPlacesOfQuotients<Vlq8u, Vlq8u, Vlq8u>(vlqsDiv_8u_Sfs, vlqsDiv_8u_ISfs, inFloat<Vlq8u>);
    checkAllBytes(vlqsDiv_8u_Sfs, vlqsDiv_8u_ISfs, inFloat<Vlq8u>, vlqStsWarnDivByZero);
    std::vector<Vlq8u> a, b;
    appendAllBytePairs(a, b);
    for (const int s : byteScaleFactors()) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            // Of bytes single precision finds every exact result.
            if (a[i] == 0) continue;
            ASSERT_EQ(exactQuotientRef<Vlq8u>(b[i], a[i], s), inFloat<Vlq8u>(a[i], b[i], s))
                << +b[i] << " / " << +a[i] << " at " << s;
        }
    }
}
TEST(Div, Scaled16s) {
    check<Vlq16s, Vlq16s, Vlq16s>(vlqsDiv_16s_Sfs, vlqsDiv_16s_ISfs, inFloat<Vlq16s>);
}
TEST(Div, Scaled16u) {
    check<Vlq16u, Vlq16u, Vlq16u>(vlqsDiv_16u_Sfs, vlqsDiv_16u_ISfs, inFloat<Vlq16u>);
}
TEST(Div, Scaled32s) { check<Vlq32s, Vlq32s, Vlq32s>(vlqsDiv_32s_Sfs, vlqsDiv_32s_ISfs, inDouble); }
TEST(Div, Scaled32s16s) { check<Vlq16s, Vlq32s, Vlq16s>(vlqsDiv_32s16s_Sfs, nullptr, inDouble16s); }
TEST(Div, Scaled16sc) {
    check<Vlq16sc, Vlq16sc, Vlq16sc>(vlqsDiv_16sc_Sfs, vlqsDiv_16sc_ISfs, complexQuotientRef);
}

// Without a negative scale the quotient in single precision rounds as the exact one; with one it
// stays within a step or within the precision.
TEST(Div, CloseToExact16s) {
    Rng rng(seed());
    for (int i = 0; i < byEffort(10'000, 100'000, 1'000'000); ++i) {
        const auto n = extremeValue<Vlq16s>(rng), d = extremeValue<Vlq16s>(rng);
        const int s = static_cast<int>(rng() % 48) - 31;
        if (d == 0) continue;
        const int exact = exactQuotientRef<Vlq16s>(n, d, s), got = inFloat<Vlq16s>(d, n, s);
        ASSERT_LE(std::abs(exact - got), s >= 0 ? 0 : 1) << n << " / " << d << " at " << s;
    }
}

// ---- rounded by mode ----------------------------------------------------------------------------
template <class T>
using Rounded = VlqStatus (*)(const T*, const T*, T*, Vlq32s, VlqRoundMode, Vlq32s);
template <class T>
using RoundedInPlace = VlqStatus (*)(const T*, T*, Vlq32s, VlqRoundMode, Vlq32s);

template <class T>
T byModeRef(T divisor, T numerator, int mode, int scaleFactor) {
    return scaleFactor >= 17 ? T{0} : quotientRef<T, float>(numerator, divisor, mode, scaleFactor);
}

template <class T>
void checkRounded(Rounded<T> call, RoundedInPlace<T> inPlace) {
    std::size_t turn = 0;
    const int factors[] = {0, 1, 5, 16, 17, 18, -1, -7, -30, -31, INT32_MAX, INT32_MIN};
    sweep(sizeof(T), {2047, 2049, 5003}, [&](Case& c) {
        const int scaleFactor = factors[(turn / 3) % std::size(factors)],
                  mode = static_cast<int>(c.rng() % 3);
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = someDivisors<T>(n, turn++, c.rng);
        const auto b = extremeElements<T>(n, c.rng);
        std::vector<T> want(n);
        for (std::size_t i = 0; i < n; ++i) want[i] = byModeRef(a[i], b[i], mode, scaleFactor);
        const Buffer<T> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<T> dst(n, c.place[0]);
        ASSERT_EQ(expectedStatus(a),
                  call(src1.data(), src2.data(), dst.data(), c.len, mode, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor << ", mode " << mode;
        dst.assign(a);
        ASSERT_EQ(expectedStatus(a),
                  call(dst.data(), src2.data(), dst.data(), c.len, mode, scaleFactor));
        ASSERT_TRUE(same(dst, want))
            << "over the divisors, scale factor " << scaleFactor << ", mode " << mode;
        dst.assign(b);
        ASSERT_EQ(expectedStatus(a),
                  call(src1.data(), dst.data(), dst.data(), c.len, mode, scaleFactor));
        ASSERT_TRUE(same(dst, want))
            << "over the numerators, scale factor " << scaleFactor << ", mode " << mode;
        dst.assign(b);
        ASSERT_EQ(expectedStatus(a), inPlace(src1.data(), dst.data(), c.len, mode, scaleFactor));
        ASSERT_TRUE(same(dst, want))
            << "in place, scale factor " << scaleFactor << ", mode " << mode;
    });
    Rng rng(seed());
    for (const int scaleFactor : scaleFactors()) {
        for (const int mode : {vlqRndZero, vlqRndNear, vlqRndFinancial}) {
            std::vector<T> a, b;
            appendCornerPairs(a, b);
            appendRandom(a, byEffort<std::size_t>(255, 2550, 25500), rng);
            appendRandom(b, byEffort<std::size_t>(255, 2550, 25500), rng);
            const int len = static_cast<int>(a.size());
            auto dst = a, dstInPlace = b;
            ASSERT_EQ(vlqStsWarnDivByZero,
                      call(a.data(), b.data(), dst.data(), len, mode, scaleFactor));
            ASSERT_EQ(vlqStsWarnDivByZero,
                      inPlace(a.data(), dstInPlace.data(), len, mode, scaleFactor));
            for (std::size_t i = 0; i < a.size(); ++i) {
                const T want = byModeRef(a[i], b[i], mode, scaleFactor);
                ASSERT_EQ(want, dst[i])
                    << +b[i] << " / " << +a[i] << " at " << scaleFactor << ", mode " << mode;
                ASSERT_EQ(want, dstInPlace[i]) << +b[i] << " / " << +a[i] << " at " << scaleFactor
                                               << ", mode " << mode << ", in place";
            }
        }
    }
}
TEST(DivRound, Values8u) {
    checkRounded<Vlq8u>(vlqsDiv_Round_8u_Sfs, vlqsDiv_Round_8u_ISfs);
    std::vector<Vlq8u> a, b;
    appendAllBytePairs(a, b);
    for (const int s : byteScaleFactors()) {
        for (const int mode : {0, 1, 2}) {
            std::vector<Vlq8u> dst(a.size());
            ASSERT_EQ(vlqStsWarnDivByZero,
                      vlqsDiv_Round_8u_Sfs(a.data(), b.data(), dst.data(),
                                           static_cast<int>(a.size()), mode, s));
            for (std::size_t i = 0; i < a.size(); ++i)
                ASSERT_EQ(byModeRef(a[i], b[i], mode, s), dst[i])
                    << +b[i] << " / " << +a[i] << " at " << s;
        }
    }
}
TEST(DivRound, Values16s) { checkRounded<Vlq16s>(vlqsDiv_Round_16s_Sfs, vlqsDiv_Round_16s_ISfs); }
TEST(DivRound, Values16u) { checkRounded<Vlq16u>(vlqsDiv_Round_16u_Sfs, vlqsDiv_Round_16u_ISfs); }

TEST(DivRound, ModesAndChecks) {
    const Vlq16s a[4] = {2, -2, 2, 2}, b[4] = {5, 5, 3, -1};
    Vlq16s dst[4];
    const Vlq16s want[3][4] = {{2, -2, 1, 0}, {2, -2, 2, 0}, {3, -3, 2, -1}};
    for (const int mode : {0, 1, 2}) {
        ASSERT_EQ(vlqStsOk, vlqsDiv_Round_16s_Sfs(a, b, dst, 4, mode, 0));
        for (int i = 0; i < 4; ++i) EXPECT_EQ(want[mode][i], dst[i]) << mode;
    }
    dst[0] = 77;
    EXPECT_EQ(vlqStsBadRoundMode, vlqsDiv_Round_16s_Sfs(a, b, dst, 4, 3, 0));
    EXPECT_EQ(vlqStsBadRoundMode, vlqsDiv_Round_16s_Sfs(a, b, dst, 4, -1, 40));
    EXPECT_EQ(vlqStsBadRoundMode, vlqsDiv_Round_8u_ISfs(reinterpret_cast<const Vlq8u*>(a),
                                                        reinterpret_cast<Vlq8u*>(dst), 4, 3, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsDiv_Round_16s_Sfs(a, b, dst, 0, 3, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsDiv_Round_16s_Sfs(nullptr, b, dst, 0, 3, 0));
    EXPECT_EQ(77, dst[0]);
}

// ---- a constant ---------------------------------------------------------------------------------
template <class T>
void checkDivisors(ScaledConstant<T> call, ScaledConstantInPlace<T> inPlace,
                   std::vector<T> constants) {
    std::size_t turn = 0;
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const int scaleFactor = turningScale(turn++, 8);
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<T>(n, c.rng);
        T val = extremeValue<T>(c.rng);
        if (val == 0) val = 7;
        const auto want =
            wanted<T, T, T>(a, std::vector<T>(n, val), timesReciprocalRef<T>, scaleFactor);
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(n, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "constant " << +val << ", scale factor " << scaleFactor;
    });
    checkConstants<T>(
        nullptr, inPlace,
        [](T a, T val, Vlq32s s) { return timesReciprocalRef(a, val == 0 ? T{1} : val, s); },
        constants, 0);
}
template <class T, VlqStatus (*inPlace)(T, T*, Vlq32s, Vlq32s)>
VlqStatus nonZero(T val, T* v, Vlq32s len, Vlq32s scaleFactor) {
    return inPlace(val == 0 ? T{1} : val, v, len, scaleFactor);
}

TEST(DivC, Scaled8u) {
    std::vector<Vlq8u> all;
    for (int x = 1; x < 256; ++x) all.push_back(static_cast<Vlq8u>(x));
    checkDivisors<Vlq8u>(vlqsDivC_8u_Sfs, nonZero<Vlq8u, vlqsDivC_8u_ISfs>, all);
}
TEST(DivC, Scaled16s) {
    checkDivisors<Vlq16s>(vlqsDivC_16s_Sfs, nonZero<Vlq16s, vlqsDivC_16s_ISfs>,
                          {1, -1, 3, 1000, -32768, 32767});
}
TEST(DivC, Scaled16u) {
    checkDivisors<Vlq16u>(vlqsDivC_16u_Sfs, nonZero<Vlq16u, vlqsDivC_16u_ISfs>,
                          {1, 3, 1000, 32768, 65535});
}

// Multiplying by a reciprocal may differ from the exact result by one, and only next to a tie.
TEST(DivC, Scaled16sc) {
    Rng rng(seed());
    auto source = cornerValues<Vlq16sc>();
    for (int i = 0; i < byEffort(75, 750, 7500); ++i)
        source.push_back(extremeElement<Vlq16sc>(rng));
    auto constants = cornerValues<Vlq16sc>();
    for (int i = 0; i < 40; ++i) constants.push_back(extremeElement<Vlq16sc>(rng));
    const auto check = [](Vlq16s got, Exact n, Exact d, int s) {
        const int exact = exactQuotientRef<Vlq16s>(n, d, s > 60 ? 60 : s);
        if (exact == got) return true;
        const long double value =
            std::ldexp(static_cast<long double>(n) / static_cast<long double>(d), -s);
        return std::abs(exact - got) == 1 &&
               std::abs(std::abs(value - std::floor(value)) - 0.5L) < 1e-9L;
    };
    for (const Vlq16sc val : constants) {
        if (isZero(val)) continue;
        for (const int s : {0, 1, -1, 5, 15, 16, 17, -10, -31, -40, 40, INT32_MIN, INT32_MAX}) {
            std::vector<Vlq16sc> dst(source.size());
            ASSERT_EQ(vlqStsOk, vlqsDivC_16sc_Sfs(source.data(), val, dst.data(),
                                                  static_cast<int>(dst.size()), s));
            const Exact a = val.re, b = val.im, norm = a * a + b * b;
            for (std::size_t i = 0; i < source.size(); ++i) {
                const Exact c = source[i].re, d = source[i].im;
                ASSERT_TRUE(check(dst[i].re, c * a + d * b, norm, s) &&
                            check(dst[i].im, d * a - c * b, norm, s))
                    << showInteger(source[i]) << " over " << showInteger(val) << " at " << s << ": "
                    << showInteger(dst[i]);
            }
            auto inPlace = source;
            ASSERT_EQ(vlqStsOk,
                      vlqsDivC_16sc_ISfs(val, inPlace.data(), static_cast<int>(dst.size()), s));
            ASSERT_EQ(0, std::memcmp(inPlace.data(), dst.data(), dst.size() * sizeof(Vlq16sc)));
        }
    }
}
TEST(DivC, Places16sc) {
    sweep(sizeof(Vlq16sc), {5003}, [&](Case& c) {
        const auto a = extremeElements<Vlq16sc>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<Vlq16sc> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = complexQuotientRef({0, -4}, a[i], 2);
        const Buffer<Vlq16sc> src(a, c.place[1]);
        Buffer<Vlq16sc> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, vlqsDivC_16sc_Sfs(src.data(), {0, -4}, dst.data(), c.len, 2));
        ASSERT_TRUE(same(dst, want));
    });
}

TEST(DivC, Exact64s) {
    const auto ref = [](Vlq64s a, Vlq64s val, Vlq32s s) {
        return exactQuotientRef<Vlq64s>(a, val, s);
    };
    auto constants = cornerValues<Vlq64s>();
    std::erase(constants, 0);
    Rng rng(seed());
    for (int i = 0; i < 90; ++i) constants.push_back(extremeValue<Vlq64s>(rng) | 1);
    auto source = cornerValues<Vlq64s>();
    for (int i = 0; i < 900; ++i) source.push_back(extremeValue<Vlq64s>(rng));
    for (const Vlq64s val : constants) {
        for (const int s :
             {0,   1,   2,   5,   31,  32,  61,   62,   65,   INT32_MAX, -1,   -2,
              -31, -32, -62, -63, -64, -65, -100, -125, -126, -127,      -200, INT32_MIN}) {
            auto dst = source;
            ASSERT_EQ(vlqStsOk,
                      vlqsDivC_64s_ISfs(val, dst.data(), static_cast<int>(dst.size()), s));
            for (std::size_t i = 0; i < dst.size(); ++i)
                ASSERT_EQ(ref(source[i], val, s), dst[i])
                    << source[i] << " / " << val << " at " << s;
        }
    }
    // The last scale with a result: 2^63 / 2^63 is 1; one more is a tie at 0.
    for (const int s : {63, 64}) {
        Vlq64s v[3] = {INT64_MIN, INT64_MAX, INT64_MIN / 2 - 1};
        ASSERT_EQ(vlqStsOk, vlqsDivC_64s_ISfs(-1, v, 3, s));
        EXPECT_EQ(s == 63 ? 1 : 0, v[0]);
        EXPECT_EQ(s == 63 ? -1 : 0, v[1]);
        EXPECT_EQ(s == 63 ? 1 : 0, v[2]);
    }
    sweep(sizeof(Vlq64s), {1003}, [&](Case& c) {
        const auto a = extremeElements<Vlq64s>(static_cast<std::size_t>(c.len), c.rng);
        Buffer<Vlq64s> dst(a, c.place[0]);
        std::vector<Vlq64s> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], -12345, 3);
        ASSERT_EQ(vlqStsOk, vlqsDivC_64s_ISfs(-12345, dst.data(), c.len, 3));
        ASSERT_TRUE(same(dst, want));
    });
}

TEST(DivC, ZeroDivisorComesLast) {
    Vlq16s v[2] = {5, -5};
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_16s_Sfs(v, 0, v, 2, 0));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_16s_ISfs(0, v, 2, 40));
    EXPECT_EQ(vlqStsBadSize, vlqsDivC_16s_ISfs(0, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsDivC_16s_Sfs(nullptr, 0, v, 0, 0));
    EXPECT_EQ(5, v[0]);
    Vlq8u b = 3;
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_8u_ISfs(0, &b, 1, 0));
    Vlq16u u = 3;
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_16u_ISfs(0, &u, 1, 0));
    Vlq64s w = 3;
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_64s_ISfs(0, &w, 1, 0));
    Vlq16sc z = {3, 4};
    EXPECT_EQ(vlqStsZeroDivisor, vlqsDivC_16sc_ISfs({0, 0}, &z, 1, 0));
    EXPECT_EQ(vlqStsOk, vlqsDivC_16sc_ISfs({0, 1}, &z, 1, 0));  // 3 + 4i over i
    EXPECT_EQ(4, z.re);
    EXPECT_EQ(-3, z.im);
}

// ---- a constant over a vector -------------------------------------------------------------------
TEST(DivCRev, Values16u) {
    std::size_t turn = 0;
    sweep(sizeof(Vlq16u), {5003}, [&](Case& c) {
        const auto a = someDivisors<Vlq16u>(static_cast<std::size_t>(c.len), turn++, c.rng);
        const Vlq16u val = turn % 4 == 0 ? Vlq16u{0} : extremeValue<Vlq16u>(c.rng);
        std::vector<Vlq16u> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = inFloat<Vlq16u>(a[i], val, 0);
        const Buffer<Vlq16u> src(a, c.place[1]);
        Buffer<Vlq16u> dst(a.size(), c.place[0]);
        ASSERT_EQ(expectedStatus(a), vlqsDivCRev_16u(src.data(), val, dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
        dst.assign(a);
        ASSERT_EQ(expectedStatus(a), vlqsDivCRev_16u_I(val, dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    // Every divisor under corners and random constants.
    auto constants = cornerValues<Vlq16u>();
    Rng rng(seed());
    appendRandom(constants, 120, rng);
    for (const Vlq16u val : constants) {
        std::vector<Vlq16u> v;
        for (int x = 1; x < 65536; ++x) v.push_back(static_cast<Vlq16u>(x));
        ASSERT_EQ(vlqStsOk, vlqsDivCRev_16u_I(val, v.data(), static_cast<int>(v.size())));
        for (int x = 1; x < 65536; ++x)
            ASSERT_EQ(exactQuotientRef<Vlq16u>(val, x, 0), v[static_cast<std::size_t>(x - 1)])
                << val << " / " << x;
    }
}

TEST(Div, OverZero) {
    const Vlq16s zeros[3] = {0, 0, 0}, numerators[3] = {5, -5, 0};
    Vlq16s dst[3];
    for (const int s : {0, 15, 16, 100, -31, -100}) {
        ASSERT_EQ(6, vlqsDiv_16s_Sfs(zeros, numerators, dst, 3, s));
        EXPECT_EQ(32767, dst[0]) << s;
        EXPECT_EQ(-32768, dst[1]) << s;
        EXPECT_EQ(0, dst[2]) << s;
    }
    const Vlq32s wideZeros[3] = {0, 0, 0}, wideNumerators[3] = {5, -5, 0};
    Vlq32s wide[3];
    for (const int s : {0, 33, 1000, -63, -1000}) {
        ASSERT_EQ(6, vlqsDiv_32s_Sfs(wideZeros, wideNumerators, wide, 3, s));
        EXPECT_EQ(INT32_MAX, wide[0]);
        EXPECT_EQ(INT32_MIN, wide[1]);
        EXPECT_EQ(0, wide[2]);
    }
    const Vlq8u byteZero = 0, one = 1;
    Vlq8u byte = 7;
    ASSERT_EQ(6, vlqsDiv_8u_Sfs(&byteZero, &one, &byte, 1, 20));
    EXPECT_EQ(255, byte);
    const Vlq16u none[3] = {4, 5, 6};
    Vlq16u revDst[3] = {1, 1, 1};
    EXPECT_EQ(vlqStsOk, vlqsDivCRev_16u(none, 0, revDst, 3));
    EXPECT_EQ(0, revDst[0] | revDst[1] | revDst[2]);
}

// ---- digests ------------------------------------------------------------------------------------
template <class T>
void checkRoundedDigest(Rounded<T> call, std::uint64_t expected) {
    auto a = fixedVector<T>(2000, 1);
    const auto b = fixedVector<T>(2000, 2);
    a[0] = 0;
    Digest got, want;
    std::vector<T> dst(a.size()), ref(a.size());
    for (int s = -70; s <= 70; ++s) {
        for (const int mode : {vlqRndZero, vlqRndNear, vlqRndFinancial}) {
            ASSERT_EQ(vlqStsWarnDivByZero, call(a.data(), b.data(), dst.data(), 2000, mode, s));
            for (std::size_t i = 0; i < a.size(); ++i) ref[i] = byModeRef(a[i], b[i], mode, s);
            got.add(dst);
            want.add(ref);
        }
    }
    expectDigest(expected, got, want);
}
TEST(Div, Digests) {
    checkDigest<Vlq8u, Vlq8u, Vlq8u>(vlqsDiv_8u_Sfs, inFloat<Vlq8u>, 0xa3b9a42d2ee3c5df,
                                     vlqStsWarnDivByZero);
    checkDigest<Vlq16s, Vlq16s, Vlq16s>(vlqsDiv_16s_Sfs, inFloat<Vlq16s>, 0x77ddccce13e423aa,
                                        vlqStsWarnDivByZero);
    checkDigest<Vlq16u, Vlq16u, Vlq16u>(vlqsDiv_16u_Sfs, inFloat<Vlq16u>, 0x9a2aaae5a5c93d29,
                                        vlqStsWarnDivByZero);
    checkDigest<Vlq32s, Vlq32s, Vlq32s>(vlqsDiv_32s_Sfs, inDouble, 0x26e70421d79bd1b7,
                                        vlqStsWarnDivByZero);
    checkDigest<Vlq16s, Vlq32s, Vlq16s>(vlqsDiv_32s16s_Sfs, inDouble16s, 0x1df4f38e745b0d7f,
                                        vlqStsWarnDivByZero);
    checkDigest<Vlq16sc, Vlq16sc, Vlq16sc>(vlqsDiv_16sc_Sfs, complexQuotientRef, 0x754c4ab51011586e,
                                           vlqStsWarnDivByZero);
}
TEST(DivRound, Digests) {
    checkRoundedDigest<Vlq8u>(vlqsDiv_Round_8u_Sfs, 0x75da43665c1425ed);
    checkRoundedDigest<Vlq16s>(vlqsDiv_Round_16s_Sfs, 0x796ed50698346ef3);
    checkRoundedDigest<Vlq16u>(vlqsDiv_Round_16u_Sfs, 0x52dcc73ccda3f224);
}
TEST(DivC, Digests) {
    checkConstantDigest<Vlq8u>(vlqsDivC_8u_ISfs, timesReciprocalRef<Vlq8u>, 0xe4b454922ec7b936);
    checkConstantDigest<Vlq16s>(vlqsDivC_16s_ISfs, timesReciprocalRef<Vlq16s>, 0xdc1eb770d2e1c51c);
    checkConstantDigest<Vlq16u>(vlqsDivC_16u_ISfs, timesReciprocalRef<Vlq16u>, 0x829dcda3e7ce21c9);
    checkConstantDigest<Vlq16sc>(vlqsDivC_16sc_ISfs, timesComplexReciprocalRef, 0xba16efbfa0f1f976);
    checkConstantDigest<Vlq64s>(
        vlqsDivC_64s_ISfs,
        [](Vlq64s a, Vlq64s val, Vlq32s s) { return exactQuotientRef<Vlq64s>(a, val, s); },
        0xaecb7905737bdc66);
}
TEST(DivCRev, Digest) {
    auto src = fixedVector<Vlq16u>(2000, 3);
    const auto constants = fixedVector<Vlq16u>(141, 4);
    src[0] = 0;
    Digest got, want;
    std::vector<Vlq16u> dst(src.size()), ref(src.size());
    for (const Vlq16u val : constants) {
        ASSERT_EQ(vlqStsWarnDivByZero, vlqsDivCRev_16u(src.data(), val, dst.data(), 2000));
        for (std::size_t i = 0; i < src.size(); ++i) ref[i] = inFloat<Vlq16u>(src[i], val, 0);
        got.add(dst);
        want.add(ref);
    }
    expectDigest(0xdc579ff8c347612e, got, want);
}

}  // namespace
