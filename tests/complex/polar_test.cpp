// Magnitude, phase and back: accuracy of floats, special values, every regime of the scale factors,
// all lengths and alignments, in place, statuses.
#include "complex/polar_ref.h"

#include "harness/effort.h"
#include "vlqs/complex.h"

namespace {

using namespace vlqtest;

// Parts of similar and of different magnitudes, ordinary and extreme.
template <class C>
std::vector<C> points(std::size_t n, Rng& rng) {
    using T = decltype(C::re);
    std::vector<C> x(n);
    for (C& v : x) {
        if constexpr (std::is_floating_point_v<T>) {
            const auto any = [&] {
                constexpr int range = std::numeric_limits<T>::max_exponent;
                const auto fraction =
                    static_cast<T>(static_cast<double>(rng() >> 11) * 0x1p-52 - 1);
                const auto wide =
                    static_cast<int>(rng() % (2 * static_cast<unsigned>(range))) - range;
                return std::ldexp(fraction, rng() % 4 ? static_cast<int>(rng() % 8) : wide);
            };
            v = {any(), any()};
            if (rng() % 8 == 0) v = extremeElement<C>(rng);
            if (rng() % 16 == 0) v.im = v.re;
        } else {
            const auto shift = static_cast<int>(rng() % (8 * sizeof(T)));
            v = extremeElement<C>(rng);
            if (rng() % 2) v = {static_cast<T>(v.re >> shift), static_cast<T>(v.im >> shift)};
        }
    }
    return x;
}
template <class C>
struct Separate {
    using T = decltype(C::re);
    explicit Separate(const std::vector<C>& x) : re(x.size()), im(x.size()) {
        for (std::size_t i = 0; i < x.size(); ++i) {
            re[i] = x[i].re;
            im[i] = x[i].im;
        }
    }
    std::vector<T> re, im;
};
template <class T>
::testing::AssertionResult within(double ulps, const Buffer<T>& got,
                                  const std::vector<long double>& want) {
    if (!got.marginsIntact())
        return ::testing::AssertionFailure() << "a byte outside the vector was written";
    const auto values = got.values();
    for (std::size_t i = 0; i < want.size(); ++i) {
        const bool isSameZero =
            want[i] != 0 || std::signbit(want[i]) == std::signbit(values[i]) || values[i] != 0;
        if (!isSameZero || !(ulpsFrom(want[i], values[i]) <= ulps))
            return ::testing::AssertionFailure()
                   << "element " << i << ": " << show(values[i]) << ", expected "
                   << static_cast<double>(want[i]) << ", off by " << ulpsFrom(want[i], values[i]);
    }
    return ::testing::AssertionSuccess();
}

// ---- floats -------------------------------------------------------------------------------------
template <class C, class T>
struct FloatFunctions {
    VlqStatus (*split)(const T*, const T*, T*, Vlq32s);
    VlqStatus (*interleaved)(const C*, T*, Vlq32s);
};
template <class T>
using Both = VlqStatus (*)(const T*, const T*, T*, T*, Vlq32s);

template <class C, class T>
void checkFloats(FloatFunctions<C, T> magnitude, FloatFunctions<C, T> phase, Both<T> both,
                 VlqStatus (*bothOfPairs)(const C*, T*, T*, Vlq32s)) {
    sweep(sizeof(T), {byEffort(5003, 50003, 1000003)}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto x = points<C>(n, c.rng);
        const Separate<C> parts(x);
        std::vector<long double> magnitudes(n), phases(n);
        for (std::size_t i = 0; i < n; ++i) {
            magnitudes[i] = magnitudeRef(x[i].re, x[i].im);
            phases[i] = phaseRef(x[i].re, x[i].im);
        }
        const Buffer<C> src(x, c.place[0]);
        Buffer<T> re(parts.re, c.place[0]), im(parts.im, c.place[1]), dst(n, c.place[2]),
            second(n, c.place[3]);
        ASSERT_EQ(vlqStsOk, magnitude.interleaved(src.data(), dst.data(), c.len));
        ASSERT_TRUE(within(1, dst, magnitudes));
        const auto gotMagnitudes = dst.values();
        ASSERT_EQ(vlqStsOk, phase.interleaved(src.data(), second.data(), c.len));
        ASSERT_TRUE(within(2, second, phases));
        const auto gotPhases = second.values();
        // All others give the same bits.
        ASSERT_EQ(vlqStsOk, magnitude.split(re.data(), im.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, gotMagnitudes));
        ASSERT_EQ(vlqStsOk, phase.split(re.data(), im.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, gotPhases));
        ASSERT_EQ(vlqStsOk, bothOfPairs(src.data(), dst.data(), second.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, gotMagnitudes));
        ASSERT_TRUE(sameNumbers(second, gotPhases));
        ASSERT_EQ(vlqStsOk, both(re.data(), im.data(), im.data(), re.data(), c.len));
        ASSERT_TRUE(sameNumbers(im, gotMagnitudes));
        ASSERT_TRUE(sameNumbers(re, gotPhases));
    });
    T v[2] = {1, 2}, w[2] = {3, 4};
    C x[2] = {{1, 2}, {3, 4}};
    for (const auto& f : {magnitude, phase}) {
        EXPECT_EQ(vlqStsNullPtr, f.split(nullptr, v, v, 0));
        EXPECT_EQ(vlqStsNullPtr, f.split(v, nullptr, v, 0));
        EXPECT_EQ(vlqStsNullPtr, f.split(v, v, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, f.split(v, v, v, 0));
        EXPECT_EQ(vlqStsNullPtr, f.interleaved(nullptr, v, 0));
        EXPECT_EQ(vlqStsNullPtr, f.interleaved(x, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, f.interleaved(x, v, -1));
    }
    EXPECT_EQ(vlqStsNullPtr, both(nullptr, v, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, both(v, nullptr, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, both(v, v, nullptr, w, 0));
    EXPECT_EQ(vlqStsNullPtr, both(v, v, v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, both(v, v, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, bothOfPairs(nullptr, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, bothOfPairs(x, nullptr, w, 0));
    EXPECT_EQ(vlqStsNullPtr, bothOfPairs(x, v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, bothOfPairs(x, v, w, 0));
    EXPECT_EQ(T(1), v[0]);

    // Infinite parts beside any other, signed zeros, the smallest and largest numbers.
    using Limits = std::numeric_limits<T>;
    const T special[] = {T(0),
                         -T(0),
                         T(1),
                         T(-1),
                         Limits::min(),
                         -Limits::min(),
                         Limits::max(),
                         Limits::lowest(),
                         Limits::denorm_min(),
                         -Limits::denorm_min(),
                         Limits::infinity(),
                         -Limits::infinity(),
                         Limits::quiet_NaN()};
    for (const T re : special) {
        for (const T im : special) {
            const C point[1] = {{re, im}};
            Buffer<T> m(1), p(1);
            ASSERT_EQ(vlqStsOk, bothOfPairs(point, m.data(), p.data(), 1));
            EXPECT_TRUE(within(1, m, {magnitudeRef(re, im)})) << re << ' ' << im;
            EXPECT_TRUE(within(2, p, {phaseRef(re, im)})) << re << ' ' << im;
        }
    }
}
TEST(Polar, Floats) {
    checkFloats<Vlq32fc, Vlq32f>({vlqsMagnitude_32f, vlqsMagnitude_32fc},
                                 {vlqsPhase_32f, vlqsPhase_32fc}, vlqsCartToPolar_32f,
                                 vlqsCartToPolar_32fc);
}
TEST(Polar, Doubles) {
    checkFloats<Vlq64fc, Vlq64f>({vlqsMagnitude_64f, vlqsMagnitude_64fc},
                                 {vlqsPhase_64f, vlqsPhase_64fc}, vlqsCartToPolar_64f,
                                 vlqsCartToPolar_64fc);
}

template <class C, class T>
void checkBack(Both<T> toParts, VlqStatus (*toPairs)(const T*, const T*, C*, Vlq32s)) {
    sweep(sizeof(T), {byEffort(5003, 50003, 1000003)}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto x = points<C>(n, c.rng);
        const Separate<C> polar(x);
        std::vector<long double> re(n), im(n);
        const auto product = [](T magnitude, long double factor) {
            return static_cast<long double>(magnitude) * factor;
        };
        for (std::size_t i = 0; i < n; ++i) {
            re[i] = product(x[i].re, std::cos(static_cast<long double>(x[i].im)));
            im[i] = product(x[i].re, std::sin(static_cast<long double>(x[i].im)));
        }
        Buffer<T> magnitude(polar.re, c.place[0]), phase(polar.im, c.place[1]),
            dstRe(n, c.place[2]), dstIm(n, c.place[3]);
        ASSERT_EQ(vlqStsOk,
                  toParts(magnitude.data(), phase.data(), dstRe.data(), dstIm.data(), c.len));
        // Two of the sine or cosine, up to four of the product, and its own rounding.
        ASSERT_TRUE(within(4.5, dstRe, re));
        ASSERT_TRUE(within(4.5, dstIm, im));
        const auto gotRe = dstRe.values(), gotIm = dstIm.values();
        std::vector<C> want(n);
        for (std::size_t i = 0; i < n; ++i) want[i] = {gotRe[i], gotIm[i]};
        Buffer<C> dst(n, c.place[2]);
        ASSERT_EQ(vlqStsOk, toPairs(magnitude.data(), phase.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
        ASSERT_EQ(vlqStsOk,
                  toParts(magnitude.data(), phase.data(), phase.data(), magnitude.data(), c.len));
        ASSERT_TRUE(sameNumbers(phase, gotRe));
        ASSERT_TRUE(sameNumbers(magnitude, gotIm));
    });
    T v[2] = {1, 2}, w[2] = {3, 4};
    C x[2] = {{1, 2}, {3, 4}};
    EXPECT_EQ(vlqStsNullPtr, toParts(nullptr, v, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, toParts(v, nullptr, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, toParts(v, v, nullptr, w, 0));
    EXPECT_EQ(vlqStsNullPtr, toParts(v, v, v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, toParts(v, v, v, w, 0));
    EXPECT_EQ(vlqStsNullPtr, toPairs(nullptr, v, x, 0));
    EXPECT_EQ(vlqStsNullPtr, toPairs(v, nullptr, x, 0));
    EXPECT_EQ(vlqStsNullPtr, toPairs(v, v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, toPairs(v, v, x, 0));
    EXPECT_EQ(T(1), v[0]);
}
TEST(Polar, BackToFloats) { checkBack<Vlq32fc, Vlq32f>(vlqsPolarToCart_32f, vlqsPolarToCart_32fc); }
TEST(Polar, BackToDoubles) {
    checkBack<Vlq64fc, Vlq64f>(vlqsPolarToCart_64f, vlqsPolarToCart_64fc);
}

// ---- 16-bit parts -------------------------------------------------------------------------------
int someScale(Rng& rng, int low, int high) {
    if (rng() % 8 == 0) return extremeValue<Vlq32s>(rng);
    return low + static_cast<int>(rng() % static_cast<unsigned>(high - low + 1));
}

void checkSums16(const std::vector<Vlq16sc>& x, Case& c, int scaleFactor) {
    const auto n = x.size();
    const Separate<Vlq16sc> parts(x);
    std::vector<long double> magnitudes(n), phases(n);
    std::vector<Vlq16s> roots(n), ofParts(n);
    for (std::size_t i = 0; i < n; ++i) {
        magnitudes[i] = magnitudeRef(x[i].re, x[i].im);
        phases[i] = phaseRef(x[i].re, x[i].im);
        const std::int64_t re = x[i].re, im = x[i].im;
        roots[i] = static_cast<Vlq16s>(
            scaledRootRef(static_cast<std::uint64_t>(re * re + im * im), scaleFactor, 32767));
        ofParts[i] = phase16Ref(x[i].re, x[i].im, scaleFactor);
    }
    const Buffer<Vlq16sc> src(x, c.place[0]);
    const Buffer<Vlq16s> re(parts.re, c.place[0]), im(parts.im, c.place[1]);
    Buffer<Vlq32f> dstFloat(n, c.place[2]);
    Buffer<Vlq16s> dst(n, c.place[2]);
    const auto len = static_cast<Vlq32s>(n);
    ASSERT_EQ(vlqStsOk, vlqsMagnitude_16sc32f(src.data(), dstFloat.data(), len));
    ASSERT_TRUE(within(1, dstFloat, magnitudes));
    const auto floats = dstFloat.values();
    ASSERT_EQ(vlqStsOk, vlqsMagnitude_16s32f(re.data(), im.data(), dstFloat.data(), len));
    ASSERT_TRUE(same(dstFloat, floats));
    ASSERT_EQ(vlqStsOk, vlqsPhase_16sc32f(src.data(), dstFloat.data(), len));
    ASSERT_TRUE(within(2, dstFloat, phases));
    const auto floatPhases = dstFloat.values();
    ASSERT_EQ(vlqStsOk, vlqsPhase_16s32f(re.data(), im.data(), dstFloat.data(), len));
    ASSERT_TRUE(same(dstFloat, floatPhases));

    ASSERT_EQ(vlqStsOk, vlqsMagnitude_16sc_Sfs(src.data(), dst.data(), len, scaleFactor));
    ASSERT_TRUE(same(dst, roots)) << scaleFactor;
    dst.assign(std::vector<Vlq16s>(n));
    ASSERT_EQ(vlqStsOk, vlqsMagnitude_16s_Sfs(re.data(), im.data(), dst.data(), len, scaleFactor));
    ASSERT_TRUE(same(dst, roots)) << scaleFactor;
    ASSERT_EQ(vlqStsOk, vlqsPhase_16s_Sfs(re.data(), im.data(), dst.data(), len, scaleFactor));
    ASSERT_TRUE(same(dst, ofParts)) << scaleFactor;
    ASSERT_EQ(vlqStsOk, vlqsPhase_16sc_Sfs(src.data(), dst.data(), len, scaleFactor));
    ASSERT_TRUE(dst.marginsIntact());
    const auto got = dst.values();
    const int limited = std::clamp(scaleFactor, -200, 200);
    for (std::size_t i = 0; i < n; ++i) {
        const Rounded want{std::ldexp(phases[i], -limited), -32768, 32767};
        ASSERT_TRUE(want.accepts(got[i]))
            << x[i].re << ' ' << x[i].im << ' ' << scaleFactor << ' ' << got[i];
    }
}
TEST(Polar, Integers16) {
    sweep(2, {5003}, [&](Case& c) {
        const auto x = points<Vlq16sc>(static_cast<std::size_t>(c.len), c.rng);
        checkSums16(x, c, someScale(c.rng, -34, 20));
    });
    // Every regime.
    for (int scaleFactor = -40; scaleFactor <= 40; ++scaleFactor) {
        Case c{byEffort(100, 2000, 20000), {}, Rng(seed())};
        auto x = points<Vlq16sc>(static_cast<std::size_t>(c.len), c.rng);
        for (const Vlq16sc v : {Vlq16sc{0, 0}, Vlq16sc{-32768, -32768}, Vlq16sc{-32768, 0},
                                Vlq16sc{32767, 1}, Vlq16sc{32767, -1}, Vlq16sc{-32768, 1}})
            x.push_back(v);
        checkSums16(x, c, scaleFactor);
        if (HasFailure()) return;
    }
    // Near pi, scaled by 1/4: rounded to 0 where the parts are separate.
    const Vlq16s re[1] = {-100}, im[1] = {1};
    const Vlq16sc pair[1] = {{-100, 1}};
    Vlq16s dst[1] = {7};
    EXPECT_EQ(vlqStsOk, vlqsPhase_16s_Sfs(re, im, dst, 1, 2));
    EXPECT_EQ(0, dst[0]);
    EXPECT_EQ(vlqStsOk, vlqsPhase_16sc_Sfs(pair, dst, 1, 2));
    EXPECT_EQ(1, dst[0]);
}
TEST(Polar, IntegerStatuses) {
    Vlq16s v[2] = {1, 2}, w[2] = {3, 4};
    Vlq16sc x[2] = {{3, 4}, {0, 1}};
    Vlq32sc x32[2] = {{3, 4}, {0, 1}};
    Vlq32f f[2] = {5, 6};
    Vlq32s d[2] = {7, 8};
    for (const auto call : {vlqsMagnitude_16s_Sfs, vlqsPhase_16s_Sfs}) {
        for (const int scaleFactor : {0, 50, -50}) {
            EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, 0, scaleFactor));
            EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, 0, scaleFactor));
            EXPECT_EQ(vlqStsNullPtr, call(v, v, nullptr, 0, scaleFactor));
            EXPECT_EQ(vlqStsBadSize, call(v, v, v, 0, scaleFactor));
        }
    }
    for (const auto call : {vlqsMagnitude_16sc_Sfs, vlqsPhase_16sc_Sfs}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, 0, 0));
        EXPECT_EQ(vlqStsNullPtr, call(x, nullptr, 0, 0));
        EXPECT_EQ(vlqStsBadSize, call(x, v, 0, 0));
    }
    for (const auto call : {vlqsMagnitude_32sc_Sfs, vlqsPhase_32sc_Sfs}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, d, 0, 0));
        EXPECT_EQ(vlqStsNullPtr, call(x32, nullptr, 0, 0));
        EXPECT_EQ(vlqStsBadSize, call(x32, d, 0, 0));
    }
    for (const auto call : {vlqsMagnitude_16s32f, vlqsPhase_16s32f}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, f, 0));
        EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, f, 0));
        EXPECT_EQ(vlqStsNullPtr, call(v, v, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, call(v, v, f, 0));
    }
    for (const auto call : {vlqsMagnitude_16sc32f, vlqsPhase_16sc32f}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, f, 0));
        EXPECT_EQ(vlqStsNullPtr, call(x, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, call(x, f, 0));
    }
    EXPECT_EQ(1, v[0]);
    EXPECT_EQ(5, f[0]);
    EXPECT_EQ(7, d[0]);
    // Magnitudes first, with all their checks and results.
    EXPECT_EQ(vlqStsNullPtr, vlqsCartToPolar_16sc_Sfs(nullptr, v, w, 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsCartToPolar_16sc_Sfs(x, nullptr, w, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsCartToPolar_16sc_Sfs(x, v, nullptr, 0, 0, 0));
    EXPECT_EQ(1, v[0]);
    EXPECT_EQ(vlqStsNullPtr, vlqsCartToPolar_16sc_Sfs(x, v, nullptr, 2, 0, 0));
    EXPECT_EQ(5, v[0]);
    EXPECT_EQ(vlqStsOk, vlqsCartToPolar_16sc_Sfs(x, v, w, 2, -1, -13));
    EXPECT_EQ(10, v[0]);
    EXPECT_EQ(2, v[1]);
    EXPECT_EQ(7596, w[0]);   // atan(4/3) 2^13
    EXPECT_EQ(12868, w[1]);  // pi/2 2^13
}

// ---- 32-bit parts -------------------------------------------------------------------------------
void checkSums32(const std::vector<Vlq32sc>& x, Case& c, int scaleFactor) {
    const auto n = x.size();
    std::vector<Vlq32s> roots(n);
    for (std::size_t i = 0; i < n; ++i) {
        const std::int64_t re = x[i].re, im = x[i].im;
        const auto squared =
            static_cast<std::uint64_t>(re * re) + static_cast<std::uint64_t>(im * im);
        roots[i] = static_cast<Vlq32s>(scaledRootRef(squared, scaleFactor, 2147483647));
    }
    const Buffer<Vlq32sc> src(x, c.place[0]);
    Buffer<Vlq32s> dst(n, c.place[1]);
    const auto len = static_cast<Vlq32s>(n);
    ASSERT_EQ(vlqStsOk, vlqsMagnitude_32sc_Sfs(src.data(), dst.data(), len, scaleFactor));
    ASSERT_TRUE(same(dst, roots)) << scaleFactor;
    ASSERT_EQ(vlqStsOk, vlqsPhase_32sc_Sfs(src.data(), dst.data(), len, scaleFactor));
    ASSERT_TRUE(dst.marginsIntact());
    const auto got = dst.values();
    const int limited = std::clamp(scaleFactor, -200, 200);
    for (std::size_t i = 0; i < n; ++i) {
        const long double scaled = std::ldexp(phaseRef(x[i].re, x[i].im), -limited);
        const Rounded want{scaled, -2147483647 - 1, 2147483647};
        // Doubles before rounding.
        ASSERT_TRUE(want.accepts(got[i], std::fabs(scaled) * 0x1p-51L))
            << x[i].re << ' ' << x[i].im << ' ' << scaleFactor << ' ' << got[i];
    }
}
TEST(Polar, Integers32) {
    sweep(4, {5003}, [&](Case& c) {
        const auto x = points<Vlq32sc>(static_cast<std::size_t>(c.len), c.rng);
        checkSums32(x, c, someScale(c.rng, -64, 36));
    });
    for (int scaleFactor = -70; scaleFactor <= 45; ++scaleFactor) {
        Case c{byEffort(100, 1000, 20000), {}, Rng(seed())};
        auto x = points<Vlq32sc>(static_cast<std::size_t>(c.len), c.rng);
        constexpr Vlq32s least = std::numeric_limits<Vlq32s>::min();
        for (const Vlq32sc v : {Vlq32sc{0, 0}, Vlq32sc{least, least}, Vlq32sc{least, 0},
                                Vlq32sc{least, 1}, Vlq32sc{2147483647, -1}, Vlq32sc{0, 3}})
            x.push_back(v);
        // Next to ties: k + 1/2 is the root of k^2 + k + 1/4.
        for (int i = 0; i < byEffort(100, 1000, 10000); ++i) {
            const double k = static_cast<double>(c.rng() >> 33);
            const double re = static_cast<double>(c.rng() >> 33) * 0x1p-31 * k;
            const auto a = static_cast<Vlq32s>(re);
            const double im = std::sqrt((k + 0.5) * (k + 0.5) - static_cast<double>(a) * a);
            x.push_back({a, static_cast<Vlq32s>(std::min(im, 2147483647.0))});
        }
        checkSums32(x, c, scaleFactor);
        if (HasFailure()) return;
    }
}

// ---- fixed-point phases -------------------------------------------------------------------------
template <class C, class T>
using FixedPoint = VlqStatus (*)(const T*, const T*, Vlq32s, C*, Vlq32s);

// Where phases have units of 2^-fixedPoint and magnitudes of 2^magnitudeScale.
template <class C, class T>
void expectCartesian(const std::vector<T>& magnitude, const std::vector<T>& phase,
                     const Buffer<C>& got, int magnitudeScale, int fixedPoint) {
    ASSERT_TRUE(got.marginsIntact());
    const auto values = got.values();
    for (std::size_t i = 0; i < values.size(); ++i) {
        const long double angle = std::ldexp(static_cast<long double>(phase[i]), -fixedPoint);
        const long double size = std::ldexp(static_cast<long double>(magnitude[i]), magnitudeScale);
        const Rounded re{size * std::cos(angle), std::numeric_limits<T>::min(),
                         std::numeric_limits<T>::max()},
            im{size * std::sin(angle), re.low, re.high};
        // Doubles before rounding; next to a tie they decide.
        const long double margin =
            sizeof(T) == 2 && magnitudeScale == 0 ? 0.0L : std::fabs(size) * 0x1p-51L;
        ASSERT_TRUE(re.accepts(values[i].re, margin) && im.accepts(values[i].im, margin))
            << +magnitude[i] << ' ' << +phase[i] << ' ' << magnitudeScale << ' ' << fixedPoint
            << ": " << +values[i].re << ' ' << +values[i].im << ", expected "
            << static_cast<double>(re.value) << ' ' << static_cast<double>(im.value);
    }
}
template <class C, class T>
void checkFixedPoint(FixedPoint<C, T> call, int limit) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto magnitude = extremeVector<T>(n, c.rng), phase = extremeVector<T>(n, c.rng);
        const int fixedPoint = limit - 1 - static_cast<int>(c.rng() % 160) % (limit + 127);
        const Buffer<T> m(magnitude, c.place[0]), p(phase, c.place[1]);
        Buffer<C> dst(n, c.place[2]);
        ASSERT_EQ(vlqStsOk, call(m.data(), p.data(), fixedPoint, dst.data(), c.len));
        expectCartesian(magnitude, phase, dst, 0, fixedPoint);
    });
    const T m[2] = {100, -100}, p[2] = {0, 1};
    C x[2] = {{5, 6}, {7, 8}};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, p, limit, x, 0));
    EXPECT_EQ(vlqStsNullPtr, call(m, nullptr, limit, x, 0));
    EXPECT_EQ(vlqStsNullPtr, call(m, p, limit, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(m, p, 0, x, 0));
    EXPECT_EQ(vlqStsBadSize, call(m, p, limit, x, 2));
    EXPECT_EQ(vlqStsBadSize, call(m, p, std::numeric_limits<int>::max(), x, 2));
    EXPECT_EQ(5, x[0].re);
    EXPECT_EQ(vlqStsOk, call(m, p, limit - 1, x, 2));
    EXPECT_EQ(100, x[0].re);
    EXPECT_EQ(0, x[0].im);
    // The unit is infinite.
    for (const int fixedPoint : {-128, -1000, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(vlqStsOk, call(m, p, fixedPoint, x, 2));
        EXPECT_EQ(100, x[0].re);
        EXPECT_EQ(0, x[0].im);
        EXPECT_EQ(0, x[1].re);
        EXPECT_EQ(0, x[1].im);
    }
}
TEST(Polar, FixedPoint16) {
    checkFixedPoint<Vlq16sc, Vlq16s>(vlqsPolarToCart_16sc, 16);
    const Vlq16s v[1] = {1};
    Vlq16sc x[1] = {{3, 3}};
    EXPECT_EQ(-6, vlqsPolarToCart_16sc(v, v, 16, x, 1));
}
TEST(Polar, FixedPoint32) { checkFixedPoint<Vlq32sc, Vlq32s>(vlqsPolarToCart_32sc, 32); }

TEST(Polar, BackToIntegers16) {
    sweep(2, {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto magnitude = extremeVector<Vlq16s>(n, c.rng),
                   phase = extremeVector<Vlq16s>(n, c.rng);
        const int magnitudeScale = someScale(c.rng, -20, 20),
                  phaseScale = someScale(c.rng, -40, 30);
        const Buffer<Vlq16s> m(magnitude, c.place[0]), p(phase, c.place[1]);
        Buffer<Vlq16sc> dst(n, c.place[2]);
        ASSERT_EQ(vlqStsOk, vlqsPolarToCart_16sc_Sfs(m.data(), p.data(), dst.data(), c.len,
                                                     magnitudeScale, phaseScale));
        if (std::abs(static_cast<double>(phaseScale)) > 900) return;
        expectCartesian(magnitude, phase, dst, std::clamp(magnitudeScale, -200, 200), -phaseScale);
    });
    // There and back.
    const Vlq16sc x[4] = {{12000, -9000}, {-30000, 3}, {0, 20000}, {-1, -25000}};
    Vlq16s m[4], p[4];
    Vlq16sc back[4];
    ASSERT_EQ(vlqStsOk, vlqsCartToPolar_16sc_Sfs(x, m, p, 4, 0, -13));
    ASSERT_EQ(vlqStsOk, vlqsPolarToCart_16sc_Sfs(m, p, back, 4, 0, -13));
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(x[i].re, back[i].re, 3);
        EXPECT_NEAR(x[i].im, back[i].im, 3);
    }
    EXPECT_EQ(vlqStsNullPtr, vlqsPolarToCart_16sc_Sfs(nullptr, p, back, 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsPolarToCart_16sc_Sfs(m, nullptr, back, 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsPolarToCart_16sc_Sfs(m, p, nullptr, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsPolarToCart_16sc_Sfs(m, p, back, 0, 0, 0));
}

}  // namespace
