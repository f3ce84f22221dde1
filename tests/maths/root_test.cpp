// Square roots and cube roots.
#include "maths/root_ref.h"

#include <complex>

namespace {

using namespace vlqtest;

class Root : public ::testing::Test {
protected:
    Rng rng{seed()};
};

template <class S>
VlqStatus rootStatus(const std::vector<S>& values) {
    for (const S v : values)
        if (v < 0) return vlqStsWarnSqrtNegArg;
    return vlqStsOk;
}

template <class T>
void checkNarrow(const Variants<T>& f) {
    Reference<T, T> ref{floatRootRef<T>};
    if (std::is_signed_v<T>) ref.status = rootStatus<T>;
    const auto scales = scaleFactors(-20, 12);
    checkSweep<T, T>(f, ref, scales, anyMagnitude<T>);
    checkValues<T, T>(f, ref, scales, everyValue<T>());
}

TEST_F(Root, Integers8And16) {
    checkNarrow<Vlq8u>({"Sqrt_8u", vlqsSqrt_8u_Sfs, vlqsSqrt_8u_ISfs});
    checkNarrow<Vlq16u>({"Sqrt_16u", vlqsSqrt_16u_Sfs, vlqsSqrt_16u_ISfs});
    checkNarrow<Vlq16s>({"Sqrt_16s", vlqsSqrt_16s_Sfs, vlqsSqrt_16s_ISfs});
}

// Squares, the numbers around them, and those around the squares of half integers.
template <class S>
std::vector<S> nearSquares(Rng& rng) {
    std::vector<S> values;
    const double top = std::sqrt(static_cast<double>(std::numeric_limits<S>::max()));
    for (int i = 0; i < 3000; ++i) {
        const auto root = static_cast<std::int64_t>(
            std::exp2(std::log2(top) * static_cast<double>(rng() % 1000000) / 1e6));
        const std::int64_t square = root * root + (rng() % 2 ? root : 0);
        for (int offset = -1; offset <= 1; ++offset)
            if (square + offset <= std::numeric_limits<S>::max())
                values.push_back(static_cast<S>(square + offset));
    }
    return values;
}

template <class S, class D>
void checkWide(const Variants<S, D>& f, Rng& rng) {
    const Reference<S, D> ref{[](S x, int scaleFactor) { return rootRef<D>(x, scaleFactor); },
                              rootStatus<S>};
    const auto scales = scaleFactors(-66, 36);
    checkSweep<S, D>(f, ref, scales, anyMagnitude<S>);
    checkValues<S, D>(f, ref, scales, nearSquares<S>(rng));
    std::vector<S> ends = {
        0, 1, 2, 3, 4, std::numeric_limits<S>::max(), std::numeric_limits<S>::min()};
    checkValues<S, D>(f, ref, scales, ends);
}

TEST_F(Root, Integers32And64) {
    checkWide<Vlq32s, Vlq16s>({"Sqrt_32s16s", vlqsSqrt_32s16s_Sfs, nullptr}, rng);
    checkWide<Vlq64s, Vlq64s>({"Sqrt_64s", vlqsSqrt_64s_Sfs, vlqsSqrt_64s_ISfs}, rng);
    checkWide<Vlq64s, Vlq16s>({"Sqrt_64s16s", vlqsSqrt_64s16s_Sfs, nullptr}, rng);
}

TEST_F(Root, ComplexIntegers) {
    const Variants<Vlq16sc> f = {"Sqrt_16sc", vlqsSqrt_16sc_Sfs, vlqsSqrt_16sc_ISfs};
    const Reference<Vlq16sc, Vlq16sc> ref{complexRootRef};
    const auto scales = scaleFactors(-20, 12);
    checkSweep<Vlq16sc, Vlq16sc>(f, ref, scales, [](Rng& r) {
        return Vlq16sc{anyMagnitude<Vlq16s>(r), anyMagnitude<Vlq16s>(r)};
    });
    // The squares of complex integers have exact roots.
    std::vector<Vlq16sc> squares;
    for (int a = 0; a < 100; ++a)
        for (int b = -100; b < 100; ++b)
            squares.push_back({static_cast<Vlq16s>(a * a - b * b), static_cast<Vlq16s>(2 * a * b)});
    checkValues<Vlq16sc, Vlq16sc>(f, ref, scales, squares);
}

TEST_F(Root, WarningAfterSubstitutes) {
    const Vlq16s src[] = {1, -1};
    Vlq16s dst[2] = {7, 7};
    EXPECT_EQ(vlqStsWarnSqrtNegArg, vlqsSqrt_16s_Sfs(src, dst, 2, -20));
    EXPECT_EQ(32767, dst[0]);
    EXPECT_EQ(0, dst[1]);
}

template <class T>
void checkReals(const Variants<T>& f) {
    const Reference<T, T> ref{[](T x, int) { return std::sqrt(x); }, rootStatus<T>};
    checkSweep<T, T>(f, ref, {0}, extremeValue<T>);
    checkSweep<T, T>(f, ref, {0}, [](Rng& r) { return std::fabs(extremeValue<T>(r)); });
    checkValues<T, T>(f, ref, {0}, {T(-0.0)});
    checkValues<T, T>(f, ref, {0}, {-std::numeric_limits<T>::infinity()});
}

// The principal root in extended precision, whose range the parts of doubles do not leave.
std::complex<long double> complexRoot(long double a, long double b) {
    if (std::isinf(b)) return {std::fabs(b), b};
    if (std::isnan(a) || std::isnan(b)) return {NAN, NAN};
    if (std::isinf(a)) {
        return a > 0 ? std::complex<long double>{a, std::copysign(0.0L, b)}
                     : std::complex<long double>{0, std::copysign(-a, b)};
    }
    const long double larger = std::sqrt((std::hypot(a, b) + std::fabs(a)) / 2);
    const long double smaller = larger == 0 ? 0 : std::fabs(b) / (2 * larger);
    return std::signbit(a) ? std::complex<long double>{smaller, std::copysign(larger, b)}
                           : std::complex<long double>{larger, std::copysign(smaller, b)};
}

template <class C>
void checkComplex(const Variants<C>& f, double bound, Rng& rng) {
    using T = decltype(C::re);
    std::vector<C> z(20011);
    for (C& v : z) {
        v = {argumentsOf<T>(rng, 2)[1], argumentsOf<T>(rng, 2)[1]};
        if (rng() % 4 == 0) v = extremeElement<C>(rng);
        if (rng() % 4 == 0) v.im = std::ldexp(v.re, static_cast<int>(rng() % 40) - 20);
    }
    const Buffer<C> src(z);
    Buffer<C> dst(z.size());
    ASSERT_EQ(vlqStsOk, f.apply(src.data(), dst.data(), static_cast<Vlq32s>(z.size()), 0));
    const auto got = dst.values();
    for (std::size_t i = 0; i < z.size(); ++i) {
        const auto want = complexRoot(z[i].re, z[i].im);
        ASSERT_TRUE(closeTo(want.real(), bound, got[i].re)) << "re of " << show(z[i]);
        ASSERT_TRUE(closeTo(want.imag(), bound, got[i].im)) << "im of " << show(z[i]);
    }
    std::size_t next = 0;
    checkSweep<C, C>(f, {[&](C v, int) {
                         // What the long vector above gave.
                         const auto at = static_cast<std::size_t>(
                             std::find_if(z.begin(), z.end(),
                                          [&](C w) { return std::memcmp(&v, &w, sizeof v) == 0; }) -
                             z.begin());
                         return got[at];
                     }},
                     {0}, [&](Rng&) { return z[next++ % 500]; });
}

TEST_F(Root, Floats) {
    checkReals(unscaled<Vlq32f, vlqsSqrt_32f, vlqsSqrt_32f_I>("Sqrt_32f"));
    checkReals(unscaled<Vlq64f, vlqsSqrt_64f, vlqsSqrt_64f_I>("Sqrt_64f"));
    checkComplex(unscaled<Vlq32fc, vlqsSqrt_32fc, vlqsSqrt_32fc_I>("Sqrt_32fc"), 1, rng);
    checkComplex(unscaled<Vlq64fc, vlqsSqrt_64fc, vlqsSqrt_64fc_I>("Sqrt_64fc"), 3, rng);
}

// ---- cube roots ---------------------------------------------------------------------------------
TEST_F(Root, CubeRoots) {
    const auto f = unscaled<Vlq32f, Vlq32f, vlqsCubrt_32f>("Cubrt_32f");
    checkFloatFunction<Vlq32f, Vlq32f>({f, [](long double x) { return std::cbrt(x); }, 1}, rng);
    Vlq32f v[2] = {};
    EXPECT_EQ(vlqStsNullPtr, vlqsCubrt_32f(nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsCubrt_32f(v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsCubrt_32f(v, v, 0));

    const Variants<Vlq32s, Vlq16s> g = {"Cubrt_32s16s", vlqsCubrt_32s16s_Sfs, nullptr};
    const Reference<Vlq32s, Vlq16s> ref{cubeRootRef};
    const auto scales = scaleFactors(-140, 140);
    checkSweep<Vlq32s, Vlq16s>(g, ref, scales, anyMagnitude<Vlq32s>);
    std::vector<Vlq32s> cubes;
    for (int i = -1290; i <= 1290; ++i)
        for (int offset = -1; offset <= 1; ++offset) cubes.push_back(i * i * i + offset);
    checkValues<Vlq32s, Vlq16s>(g, ref, scales, cubes);
}

}  // namespace
