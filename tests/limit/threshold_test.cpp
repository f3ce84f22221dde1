// Thresholds of every type: values, levels at the edges, statuses, and inverses of zeros.
#include "limit/threshold_ref.h"

#include "vlqs/limit.h"

namespace {

using namespace vlqtest;

// ---- what every form of one or two vectors is put through ---------------------------------------
// call(src, dst, len) and inPlace(srcDst, len) are bound to their parameters; want(x) accepts or
// rejects a result.
template <class T, class Call, class InPlace, class Accept>
void checkAll(Case& c, const std::vector<T>& x, Call call, InPlace inPlace, VlqStatus status,
              Accept accept) {
    const Buffer<T> src(x, c.place[1]);
    Buffer<T> dst(x.size(), c.place[0]);
    ASSERT_EQ(status, call(src.data(), dst.data(), c.len));
    ASSERT_TRUE(dst.marginsIntact());
    const auto got = dst.values();
    for (std::size_t i = 0; i < x.size(); ++i) {
        ASSERT_TRUE(accept(x[i], got[i])) << show(x[i]) << " gave " << show(got[i]);
    }
    dst.assign(x);
    ASSERT_EQ(status, inPlace(dst.data(), c.len));
    ASSERT_TRUE(sameNumbers(dst, got)) << "in place";
}

template <class Call, class InPlace, class T>
void checkPointersAndLength(Call call, InPlace inPlace, T* v) {
    EXPECT_EQ(vlqStsNullPtr, call(static_cast<const T*>(nullptr), v, 0));
    EXPECT_EQ(vlqStsNullPtr, call(static_cast<const T*>(v), static_cast<T*>(nullptr), 0));
    EXPECT_EQ(vlqStsBadSize, call(static_cast<const T*>(v), v, 0));
    EXPECT_EQ(vlqStsBadSize, call(static_cast<const T*>(v), v, -1));
    EXPECT_EQ(vlqStsNullPtr, inPlace(static_cast<T*>(nullptr), 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, 0));
}

// Values of the size of the level, or any values.
template <class T>
std::vector<T> values(std::size_t n, Rng& rng) {
    auto v = extremeElements<T>(n, rng);
    if constexpr (std::is_floating_point_v<T>) {
        if (rng() % 2) v = uniformVector<T>(n, -2, 2, rng);
    }
    return v;
}
template <class T>
T someLevel(Rng& rng) {
    if constexpr (std::is_floating_point_v<T>)
        if (rng() % 2) return static_cast<T>(static_cast<double>(rng() % 400) / 200 - 1);
    return extremeValue<T>(rng);
}

template <class T>
struct OneLevel {
    VlqStatus (*call)(const T*, T*, Vlq32s, T);
    VlqStatus (*inPlace)(T*, Vlq32s, T);
};
template <class T>
struct EitherLevel {
    VlqStatus (*call)(const T*, T*, Vlq32s, T, VlqCmpOp);
    VlqStatus (*inPlace)(T*, Vlq32s, T, VlqCmpOp);
};
template <class T>
struct OneValue {
    VlqStatus (*call)(const T*, T*, Vlq32s, T, T);
    VlqStatus (*inPlace)(T*, Vlq32s, T, T);
};
template <class T>
struct TwoValues {
    VlqStatus (*call)(const T*, T*, Vlq32s, T, T, T, T);
    VlqStatus (*inPlace)(T*, Vlq32s, T, T, T, T);
};

template <class T>
void checkClamp(OneLevel<T> low, OneLevel<T> high) {
    for (const bool below : {true, false}) {
        const OneLevel<T> f = below ? low : high;
        sweep(sizeof(T), {5003}, [&](Case& c) {
            const auto x = values<T>(static_cast<std::size_t>(c.len), c.rng);
            const T level = someLevel<T>(c.rng);
            checkAll<T>(
                c, x, [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, level); },
                [&](T* v, Vlq32s n) { return f.inPlace(v, n, level); }, vlqStsOk,
                [&](T v, T got) { return sameNumber(got, clampRef(below, v, level)); });
        });
        T v[2] = {1, 2};
        checkPointersAndLength([&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, T(-1)); },
                               [&](T* p, Vlq32s n) { return f.inPlace(p, n, T(-1)); }, v);
    }
}
template <class T>
void checkEither(EitherLevel<T> f, OneLevel<T> low, OneLevel<T> high) {
    sweep(sizeof(T), {}, [&](Case& c) {
        const auto x = values<T>(static_cast<std::size_t>(c.len), c.rng);
        const T level = someLevel<T>(c.rng);
        for (const VlqCmpOp op : {vlqCmpLess, vlqCmpGreater}) {
            std::vector<T> want(x.size());
            (op == vlqCmpLess ? low : high).call(x.data(), want.data(), c.len, level);
            std::size_t i = 0;
            checkAll<T>(
                c, x, [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, level, op); },
                [&](T* v, Vlq32s n) { return f.inPlace(v, n, level, op); }, vlqStsOk,
                [&](T, T got) { return sameNumber(got, want[i++]); });
        }
    });
    T v[2] = {1, 2};
    for (const VlqCmpOp op : {1, 2, 3, 5, -1}) {
        EXPECT_EQ(vlqStsNullPtr, f.call(nullptr, v, 0, 0, op));
        EXPECT_EQ(vlqStsBadSize, f.call(v, v, 0, 0, op));
        EXPECT_EQ(vlqStsBadArg, f.call(v, v, 2, 0, op));
        EXPECT_EQ(vlqStsBadArg, f.inPlace(v, 2, 100, op));
    }
    EXPECT_EQ(T(1), v[0]);
}
template <class T>
void checkMagnitude(OneLevel<T> low, OneLevel<T> high) {
    for (const bool below : {true, false}) {
        const OneLevel<T> f = below ? low : high;
        sweep(sizeof(T), {5003}, [&](Case& c) {
            const auto x = values<T>(static_cast<std::size_t>(c.len), c.rng);
            T level = someLevel<T>(c.rng);
            // One's complement of an integer, whose least value has no negative.
            if (level < 0) level = static_cast<T>(std::is_integral_v<T> ? -(level + 1) : -level);
            checkAll<T>(
                c, x, [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, level); },
                [&](T* v, Vlq32s n) { return f.inPlace(v, n, level); }, vlqStsOk,
                [&](T v, T got) { return sameNumber(got, clampMagnitudeRef(below, v, level)); });
        });
        T v[2] = {1, 2};
        checkPointersAndLength([&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, T(-1)); },
                               [&](T* p, Vlq32s n) { return f.inPlace(p, n, T(-1)); }, v);
        EXPECT_EQ(vlqStsThresholdNegative, f.call(v, v, 2, T(-1)));
        EXPECT_EQ(vlqStsThresholdNegative, f.inPlace(v, 2, T(-1)));
        EXPECT_EQ(T(1), v[0]);
    }
}
template <class T>
void checkValue(OneValue<T> low, OneValue<T> high) {
    for (const bool below : {true, false}) {
        const OneValue<T> f = below ? low : high;
        sweep(sizeof(T), {5003}, [&](Case& c) {
            const auto x = values<T>(static_cast<std::size_t>(c.len), c.rng);
            const T level = someLevel<T>(c.rng), value = extremeValue<T>(c.rng);
            checkAll<T>(
                c, x, [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, level, value); },
                [&](T* v, Vlq32s n) { return f.inPlace(v, n, level, value); }, vlqStsOk,
                [&](T v, T got) {
                    return sameNumber(got, (below ? v < level : v > level) ? value : v);
                });
        });
        T v[2] = {1, 2};
        checkPointersAndLength(
            [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, T(-1), T(0)); },
            [&](T* p, Vlq32s n) { return f.inPlace(p, n, T(-1), T(0)); }, v);
    }
}
template <class T>
void checkTwoValues(TwoValues<T> f) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto x = values<T>(static_cast<std::size_t>(c.len), c.rng);
        T low = someLevel<T>(c.rng), high = someLevel<T>(c.rng);
        if (low > high) std::swap(low, high);
        if (c.rng() % 4 == 0) high = low;
        const T a = extremeValue<T>(c.rng), b = extremeValue<T>(c.rng);
        checkAll<T>(
            c, x, [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, low, a, high, b); },
            [&](T* v, Vlq32s n) { return f.inPlace(v, n, low, a, high, b); }, vlqStsOk,
            [&](T v, T got) {
                return sameNumber(got, v < low ? a : v > high ? b : v);
            });
    });
    T v[2] = {1, 2};
    checkPointersAndLength(
        [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, T(5), T(0), T(4), T(0)); },
        [&](T* p, Vlq32s n) { return f.inPlace(p, n, T(5), T(0), T(4), T(0)); }, v);
    EXPECT_EQ(vlqStsThresholdRange, f.call(v, v, 2, T(5), T(0), T(4), T(0)));
    EXPECT_EQ(vlqStsThresholdRange, f.inPlace(v, 2, T(5), T(0), T(4), T(0)));
    // An element at both levels stays.
    EXPECT_EQ(vlqStsOk, f.inPlace(v, 2, T(2), T(9), T(2), T(8)));
    EXPECT_EQ(T(9), v[0]);
    EXPECT_EQ(T(2), v[1]);
}

TEST(Threshold, Levels) {
    const OneLevel<Vlq16s> low16{vlqsThreshold_LT_16s, vlqsThreshold_LT_16s_I},
        high16{vlqsThreshold_GT_16s, vlqsThreshold_GT_16s_I};
    const OneLevel<Vlq32f> low32{vlqsThreshold_LT_32f, vlqsThreshold_LT_32f_I},
        high32{vlqsThreshold_GT_32f, vlqsThreshold_GT_32f_I};
    const OneLevel<Vlq64f> low64{vlqsThreshold_LT_64f, vlqsThreshold_LT_64f_I},
        high64{vlqsThreshold_GT_64f, vlqsThreshold_GT_64f_I};
    checkClamp<Vlq16s>(low16, high16);
    checkClamp<Vlq32f>(low32, high32);
    checkClamp<Vlq64f>(low64, high64);
    checkClamp<Vlq32s>({vlqsThreshold_LT_32s, vlqsThreshold_LT_32s_I},
                       {vlqsThreshold_GT_32s, vlqsThreshold_GT_32s_I});
    checkEither<Vlq16s>({vlqsThreshold_16s, vlqsThreshold_16s_I}, low16, high16);
    checkEither<Vlq32f>({vlqsThreshold_32f, vlqsThreshold_32f_I}, low32, high32);
    checkEither<Vlq64f>({vlqsThreshold_64f, vlqsThreshold_64f_I}, low64, high64);
}
TEST(Threshold, Magnitudes) {
    checkMagnitude<Vlq16s>({vlqsThreshold_LTAbs_16s, vlqsThreshold_LTAbs_16s_I},
                           {vlqsThreshold_GTAbs_16s, vlqsThreshold_GTAbs_16s_I});
    checkMagnitude<Vlq32s>({vlqsThreshold_LTAbs_32s, vlqsThreshold_LTAbs_32s_I},
                           {vlqsThreshold_GTAbs_32s, vlqsThreshold_GTAbs_32s_I});
    checkMagnitude<Vlq32f>({vlqsThreshold_LTAbs_32f, vlqsThreshold_LTAbs_32f_I},
                           {vlqsThreshold_GTAbs_32f, vlqsThreshold_GTAbs_32f_I});
    checkMagnitude<Vlq64f>({vlqsThreshold_LTAbs_64f, vlqsThreshold_LTAbs_64f_I},
                           {vlqsThreshold_GTAbs_64f, vlqsThreshold_GTAbs_64f_I});
}
TEST(Threshold, Values) {
    checkValue<Vlq16s>({vlqsThreshold_LTVal_16s, vlqsThreshold_LTVal_16s_I},
                       {vlqsThreshold_GTVal_16s, vlqsThreshold_GTVal_16s_I});
    checkValue<Vlq32f>({vlqsThreshold_LTVal_32f, vlqsThreshold_LTVal_32f_I},
                       {vlqsThreshold_GTVal_32f, vlqsThreshold_GTVal_32f_I});
    checkValue<Vlq64f>({vlqsThreshold_LTVal_64f, vlqsThreshold_LTVal_64f_I},
                       {vlqsThreshold_GTVal_64f, vlqsThreshold_GTVal_64f_I});
    checkTwoValues<Vlq16s>({vlqsThreshold_LTValGTVal_16s, vlqsThreshold_LTValGTVal_16s_I});
    checkTwoValues<Vlq32s>({vlqsThreshold_LTValGTVal_32s, vlqsThreshold_LTValGTVal_32s_I});
    checkTwoValues<Vlq32f>({vlqsThreshold_LTValGTVal_32f, vlqsThreshold_LTValGTVal_32f_I});
    checkTwoValues<Vlq64f>({vlqsThreshold_LTValGTVal_64f, vlqsThreshold_LTValGTVal_64f_I});
}

// ---- complex elements ---------------------------------------------------------------------------
template <class C, class L>
struct ComplexForms {
    VlqStatus (*either)(const C*, C*, Vlq32s, L, VlqCmpOp);
    VlqStatus (*eitherInPlace)(C*, Vlq32s, L, VlqCmpOp);
    VlqStatus (*clamp[2])(const C*, C*, Vlq32s, L);  // above, below
    VlqStatus (*clampInPlace[2])(C*, Vlq32s, L);
    VlqStatus (*replace[2])(const C*, C*, Vlq32s, L, C);
    VlqStatus (*replaceInPlace[2])(C*, Vlq32s, L, C);
    VlqStatus (*invert)(const C*, C*, Vlq32s, L);
    VlqStatus (*invertInPlace)(C*, Vlq32s, L);
};

// Elements about the level, of any exponent, or with whole parts whose magnitude is a whole number.
template <class C, class L>
std::vector<C> complexValues(std::size_t n, L level, Rng& rng) {
    std::vector<C> x(n);
    const auto kind = rng() % 3;
    std::uniform_real_distribution<double> draw(-2, 2);
    for (C& v : x) {
        if constexpr (std::is_integral_v<L>) {
            const int k = static_cast<int>(rng() % 2000);
            v = kind == 0 ? extremeElement<C>(rng)
                          : C{static_cast<L>(3 * k), static_cast<L>(kind == 1 ? 4 * k : -4 * k)};
        } else if (kind == 0) {
            constexpr int span = std::numeric_limits<L>::max_exponent - 4;
            const int e =
                static_cast<int>(rng() % static_cast<unsigned>(2 * span + 40)) - span - 40;
            v = {static_cast<L>(std::ldexp(draw(rng), e)),
                 static_cast<L>(std::ldexp(draw(rng), e - static_cast<int>(rng() % 30)))};
            if (rng() % 16 == 0) v = {0, 0};
        } else {
            const L size = kind == 1 ? level : L(1);
            v = {static_cast<L>(draw(rng)) * size, static_cast<L>(draw(rng)) * size};
        }
    }
    return x;
}
template <class L>
L complexLevel(Rng& rng) {
    if constexpr (std::is_integral_v<L>) {
        return static_cast<L>(rng() % 3 == 0 ? 5 * (rng() % 2000) : rng() % 32768);
    } else {
        constexpr int span = std::numeric_limits<L>::max_exponent - 4;
        if (rng() % 2) return static_cast<L>(static_cast<double>(rng() % 1000 + 1) / 500);
        return static_cast<L>(
            std::ldexp(1.5, static_cast<int>(rng() % static_cast<unsigned>(2 * span)) - span));
    }
}

// Within `units` in the last place of the larger part; for integers, the nearest integer.
template <class C>
bool closeParts(C got, LongParts want, int units) {
    using L = decltype(C::re);
    if constexpr (std::is_integral_v<L>) {
        return std::abs(static_cast<long double>(got.re) - want.re) <= 0.5L + 1e-9L &&
               std::abs(static_cast<long double>(got.im) - want.im) <= 0.5L + 1e-9L;
    } else {
        constexpr long double unit = static_cast<long double>(std::numeric_limits<L>::epsilon());
        const long double size = std::max(std::abs(want.re), std::abs(want.im));
        if (size > static_cast<long double>(std::numeric_limits<L>::max()) / 2) return true;
        const long double bound =
            units * unit / 2 * size +
            2 * static_cast<long double>(std::numeric_limits<L>::denorm_min());
        return std::abs(static_cast<long double>(got.re) - want.re) <= bound &&
               std::abs(static_cast<long double>(got.im) - want.im) <= bound;
    }
}
// Whether |x| is too near the level for the rounding of squares to decide.
template <class C>
bool isTie(C x, long double level) {
    if constexpr (std::is_integral_v<decltype(C::re)>) return false;
    const long double size = magnitudeRef(x);
    return std::abs(size - level) <= 4e-16L * level;
}

template <class C, class L>
void checkComplex(const ComplexForms<C, L>& f) {
    sweep(sizeof(C), {1003}, [&](Case& c) {
        const L level = complexLevel<L>(c.rng);
        const auto x = complexValues<C, L>(static_cast<std::size_t>(c.len), level, c.rng);
        const auto value = extremeElement<C>(c.rng);
        for (const bool below : {false, true}) {
            const auto isBeyond = [&](C v) {
                const long double size = magnitudeRef(v);
                return below ? size < level : size > level;
            };
            const auto clamped = [&](C v, C got) {
                if (isTie(v, level)) return closeParts(got, directedRef(v, level), 4);
                if (!isBeyond(v)) return sameNumber(got, v);
                return closeParts(got, directedRef(v, level), 4);
            };
            const auto replaced = [&](C v, C got) {
                if (isTie(v, level)) return sameNumber(got, v) || sameNumber(got, value);
                return sameNumber(got, isBeyond(v) ? value : v);
            };
            if (level == 0) continue;
            checkAll<C>(
                c, x, [&](const C* s, C* d, Vlq32s n) { return f.clamp[below](s, d, n, level); },
                [&](C* v, Vlq32s n) { return f.clampInPlace[below](v, n, level); }, vlqStsOk,
                clamped);
            const VlqCmpOp op = below ? vlqCmpLess : vlqCmpGreater;
            checkAll<C>(
                c, x, [&](const C* s, C* d, Vlq32s n) { return f.either(s, d, n, level, op); },
                [&](C* v, Vlq32s n) { return f.eitherInPlace(v, n, level, op); }, vlqStsOk,
                clamped);
            checkAll<C>(
                c, x,
                [&](const C* s, C* d, Vlq32s n) { return f.replace[below](s, d, n, level, value); },
                [&](C* v, Vlq32s n) { return f.replaceInPlace[below](v, n, level, value); },
                vlqStsOk, replaced);
        }
        if (f.invert && level > 0) {
            checkAll<C>(
                c, x, [&](const C* s, C* d, Vlq32s n) { return f.invert(s, d, n, level); },
                [&](C* v, Vlq32s n) { return f.invertInPlace(v, n, level); }, vlqStsOk,
                [&](C v, C got) { return closeParts(got, inverseRef(v, level), 6); });
        }
    });
    C v[2] = {{3, 4}, {0, 0}}, out[2] = {{1, 1}, {1, 1}};
    for (const bool below : {false, true}) {
        checkPointersAndLength(
            [&](const C* s, C* d, Vlq32s n) { return f.clamp[below](s, d, n, L(-1)); },
            [&](C* p, Vlq32s n) { return f.clampInPlace[below](p, n, L(-1)); }, v);
        checkPointersAndLength(
            [&](const C* s, C* d, Vlq32s n) { return f.replace[below](s, d, n, L(-1), C{}); },
            [&](C* p, Vlq32s n) { return f.replaceInPlace[below](p, n, L(-1), C{}); }, v);
        EXPECT_EQ(vlqStsThresholdNegative, f.clamp[below](v, out, 2, L(-1)));
        EXPECT_EQ(vlqStsThresholdNegative, f.clampInPlace[below](out, 2, L(-1)));
        EXPECT_EQ(vlqStsThresholdNegative, f.replace[below](v, out, 2, L(-1), C{}));
        EXPECT_EQ(vlqStsThresholdNegative, f.replaceInPlace[below](out, 2, L(-1), C{}));
    }
    checkPointersAndLength([&](const C* s, C* d, Vlq32s n) { return f.either(s, d, n, L(-1), 7); },
                           [&](C* p, Vlq32s n) { return f.eitherInPlace(p, n, L(-1), 7); }, v);
    EXPECT_EQ(vlqStsBadArg, f.either(v, out, 2, L(-1), 1));
    EXPECT_EQ(vlqStsBadArg, f.eitherInPlace(out, 2, L(-1), 1));
    EXPECT_EQ(vlqStsThresholdNegative, f.either(v, out, 2, L(-1), vlqCmpLess));
    EXPECT_EQ(vlqStsThresholdNegative, f.either(v, out, 2, L(-1), vlqCmpGreater));
    EXPECT_TRUE(sameNumber(out[0], C{1, 1}));
    // A level of 0: below it is nothing, above it all but zero.
    EXPECT_EQ(vlqStsOk, f.clamp[1](v, out, 2, 0));
    EXPECT_TRUE(sameNumber(out[0], v[0]) && sameNumber(out[1], v[1]));
    EXPECT_EQ(vlqStsOk, f.replace[0](v, out, 2, 0, C{7, 8}));
    EXPECT_TRUE(sameNumber(out[0], C{7, 8}) && sameNumber(out[1], v[1]));
    EXPECT_EQ(vlqStsOk, f.replace[1](v, out, 2, 0, C{7, 8}));
    EXPECT_TRUE(sameNumber(out[0], v[0]) && sameNumber(out[1], v[1]));
    EXPECT_EQ(vlqStsOk, f.clamp[0](v, out, 2, 0));
    EXPECT_TRUE(sameNumber(out[0], C{0, 0}) && sameNumber(out[1], C{0, 0}));
    // Zero has no direction; an element at the level stays.
    EXPECT_EQ(vlqStsOk, f.clamp[1](v, out, 2, 5));
    EXPECT_TRUE(sameNumber(out[0], v[0]) && sameNumber(out[1], C{5, 0}));
}

TEST(Threshold, Complex16s) {
    checkComplex<Vlq16sc, Vlq16s>({vlqsThreshold_16sc,
                                   vlqsThreshold_16sc_I,
                                   {vlqsThreshold_GT_16sc, vlqsThreshold_LT_16sc},
                                   {vlqsThreshold_GT_16sc_I, vlqsThreshold_LT_16sc_I},
                                   {vlqsThreshold_GTVal_16sc, vlqsThreshold_LTVal_16sc},
                                   {vlqsThreshold_GTVal_16sc_I, vlqsThreshold_LTVal_16sc_I},
                                   nullptr,
                                   nullptr});
    // The largest magnitude: its square needs 32 bits.
    const Vlq16sc largest{-32768, -32768};
    Vlq16sc out;
    EXPECT_EQ(vlqStsOk, vlqsThreshold_LT_16sc(&largest, &out, 1, 32767));
    EXPECT_EQ(-32768, out.re);
    EXPECT_EQ(vlqStsOk, vlqsThreshold_GT_16sc(&largest, &out, 1, 32767));
    EXPECT_EQ(-23170, out.re);
}
TEST(Threshold, Complex32f) {
    checkComplex<Vlq32fc, Vlq32f>({vlqsThreshold_32fc,
                                   vlqsThreshold_32fc_I,
                                   {vlqsThreshold_GT_32fc, vlqsThreshold_LT_32fc},
                                   {vlqsThreshold_GT_32fc_I, vlqsThreshold_LT_32fc_I},
                                   {vlqsThreshold_GTVal_32fc, vlqsThreshold_LTVal_32fc},
                                   {vlqsThreshold_GTVal_32fc_I, vlqsThreshold_LTVal_32fc_I},
                                   vlqsThreshold_LTInv_32fc,
                                   vlqsThreshold_LTInv_32fc_I});
}
TEST(Threshold, Complex64f) {
    checkComplex<Vlq64fc, Vlq64f>({vlqsThreshold_64fc,
                                   vlqsThreshold_64fc_I,
                                   {vlqsThreshold_GT_64fc, vlqsThreshold_LT_64fc},
                                   {vlqsThreshold_GT_64fc_I, vlqsThreshold_LT_64fc_I},
                                   {vlqsThreshold_GTVal_64fc, vlqsThreshold_LTVal_64fc},
                                   {vlqsThreshold_GTVal_64fc_I, vlqsThreshold_LTVal_64fc_I},
                                   vlqsThreshold_LTInv_64fc,
                                   vlqsThreshold_LTInv_64fc_I});
}
// A NaN is below every level of `_LT`, so that it does not pass for a valid element; the value
// forms leave it.
TEST(Threshold, ComplexNaN) {
    const Vlq32fc x[2] = {{NAN, 1}, {3, 4}};
    Vlq32fc out[2];
    EXPECT_EQ(vlqStsOk, vlqsThreshold_LT_32fc(x, out, 2, 1));
    EXPECT_TRUE(std::isnan(out[0].re) && std::isnan(out[0].im));
    EXPECT_EQ(3, out[1].re);
    EXPECT_EQ(vlqStsOk, vlqsThreshold_GT_32fc(x, out, 2, 1));
    EXPECT_TRUE(std::isnan(out[0].re) && out[0].im == 1);
    EXPECT_EQ(vlqStsOk, vlqsThreshold_LTVal_32fc(x, out, 2, 1, {8, 9}));
    EXPECT_TRUE(std::isnan(out[0].re) && out[0].im == 1);
}

// ---- inverses -----------------------------------------------------------------------------------
template <class T>
void checkInverse(OneLevel<T> f) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        auto x = values<T>(static_cast<std::size_t>(c.len), c.rng);
        T level = std::abs(someLevel<T>(c.rng));
        if (std::isnan(level) || c.rng() % 4 == 0) level = 0;
        if (c.rng() % 2)
            for (T& v : x)
                if (v == 0) v = 1;
        bool hasZero = false;
        for (const T v : x) hasZero |= v == 0;
        checkAll<T>(
            c, x, [&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, level); },
            [&](T* v, Vlq32s n) { return f.inPlace(v, n, level); },
            hasZero && level == 0 ? vlqStsWarnInvZero : vlqStsOk,
            [&](T v, T got) { return sameNumber(got, 1 / clampMagnitudeRef(true, v, level)); });
    });
    T v[3] = {0, -T(0), 4};
    checkPointersAndLength([&](const T* s, T* d, Vlq32s n) { return f.call(s, d, n, T(-1)); },
                           [&](T* p, Vlq32s n) { return f.inPlace(p, n, T(-1)); }, v);
    EXPECT_EQ(vlqStsThresholdNegative, f.call(v, v, 3, T(-1)));
    EXPECT_EQ(vlqStsThresholdNegative, f.inPlace(v, 3, T(-1)));
    T out[3];
    EXPECT_EQ(vlqStsOk, f.call(v, out, 3, T(1)));
    EXPECT_EQ(T(1), out[0]);
    EXPECT_EQ(T(-1), out[1]);
    EXPECT_EQ(vlqStsWarnInvZero, f.call(v, out, 3, T(0)));
    EXPECT_EQ(std::numeric_limits<T>::infinity(), out[0]);
    EXPECT_EQ(-std::numeric_limits<T>::infinity(), out[1]);
    EXPECT_EQ(T(0.25), out[2]);
    EXPECT_EQ(vlqStsOk, f.call(v + 2, out, 1, T(0)));
}
template <class C, class L>
void checkComplexInverse(VlqStatus (*call)(const C*, C*, Vlq32s, L),
                         VlqStatus (*inPlace)(C*, Vlq32s, L)) {
    sweep(sizeof(C), {1003}, [&](Case& c) {
        auto x = complexValues<C, L>(static_cast<std::size_t>(c.len), L(1), c.rng);
        bool hasZero = false;
        for (const C v : x) hasZero |= v.re == 0 && v.im == 0;
        checkAll<C>(
            c, x, [&](const C* s, C* d, Vlq32s n) { return call(s, d, n, 0); },
            [&](C* v, Vlq32s n) { return inPlace(v, n, 0); },
            hasZero ? vlqStsWarnInvZero : vlqStsOk,
            [&](C v, C got) {
                if (v.re == 0 && v.im == 0)
                    return std::isinf(got.re) && std::signbit(got.re) == std::signbit(v.re) &&
                           got.im == 0;
                return closeParts(got, inverseRef(v, 0), 6);
            });
    });
    C v[2] = {{0, 2}, {2, 0}}, out[2];
    checkPointersAndLength([&](const C* s, C* d, Vlq32s n) { return call(s, d, n, L(-1)); },
                           [&](C* p, Vlq32s n) { return inPlace(p, n, L(-1)); }, v);
    EXPECT_EQ(vlqStsThresholdNegative, call(v, out, 2, L(-1)));
    EXPECT_EQ(vlqStsThresholdNegative, inPlace(v, 2, L(-1)));
    // A zero part is no zero element.
    EXPECT_EQ(vlqStsOk, call(v, out, 2, 0));
    EXPECT_TRUE(out[0].im == L(-0.5) && out[1].re == L(0.5));
    const C infinite[2] = {{std::numeric_limits<L>::infinity(), 1},
                           {1, -std::numeric_limits<L>::infinity()}};
    EXPECT_EQ(vlqStsOk, call(infinite, out, 2, 0));
    for (const C inverse : out) EXPECT_TRUE(inverse.re == 0 && inverse.im == 0);
}
TEST(Threshold, Inverses) {
    checkInverse<Vlq32f>({vlqsThreshold_LTInv_32f, vlqsThreshold_LTInv_32f_I});
    checkInverse<Vlq64f>({vlqsThreshold_LTInv_64f, vlqsThreshold_LTInv_64f_I});
    checkComplexInverse<Vlq32fc, Vlq32f>(vlqsThreshold_LTInv_32fc, vlqsThreshold_LTInv_32fc_I);
    checkComplexInverse<Vlq64fc, Vlq64f>(vlqsThreshold_LTInv_64fc, vlqsThreshold_LTInv_64fc_I);
}

}  // namespace
