// math/*.h: error against extended precision, special values, and that lanes are independent.
#include "frame/simd/lanes.h"
#include "frame/simd/math/atan.h"
#include "frame/simd/math/cbrt.h"
#include "frame/simd/math/exp.h"
#include "frame/simd/math/log.h"
#include "frame/simd/math/sincos.h"

namespace {

using namespace vlq;
using namespace vlqtest;

using Extended = long double;

template <class T>
constexpr T kInfinity = std::numeric_limits<T>::infinity();
template <class T>
constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();

// The distance in units of the last place of the exact result.
template <class T>
double errorInUlp(T got, Extended want) {
    using Limits = std::numeric_limits<T>;
    int exponent;
    std::frexp(want, &exponent);
    exponent = std::max(exponent, Limits::min_exponent);
    return static_cast<double>(std::fabs(got - want) *
                               std::ldexp(Extended{1}, Limits::digits - exponent));
}

// Of one or two arguments; NaN and infinities must agree, zeros in their signs too.
template <class T>
void expectClose(T got, Extended exact, double bound, T x, T y = 0) {
    const T want = static_cast<T>(exact);
    if (std::isfinite(want) && std::isfinite(got) && want != 0) {
        ASSERT_LE(errorInUlp(got, exact), bound) << "of " << x << " and " << y;
    } else {
        ASSERT_TRUE(sameBits(got, want) || (isNaN(got) && isNaN(want)) ||
                    (std::isfinite(got) && errorInUlp(got, exact) <= bound &&
                     std::signbit(got) == std::signbit(want)))
            << got << ", expected " << want << " of " << x << " and " << y;
    }
}

// Any bits, values around one, and special ones.
template <class T>
T argument(Rng& rng, T limit) {
    for (;;) {
        T x;
        const std::uint64_t kind = rng() % 4;
        if (kind == 0) {
            x = extremeValue<T>(rng);
        } else if (kind == 1) {
            const auto bits = static_cast<std::make_unsigned_t<BitsOf<T>>>(rng());
            std::memcpy(&x, &bits, sizeof x);
        } else {
            x = static_cast<T>(std::ldexp(static_cast<double>(rng() >> 11), -53) * 16 - 8);
            if (kind == 3) x = std::ldexp(x, static_cast<int>(rng() % 20) - 10);
        }
        if (!(std::fabs(x) > limit)) return x;
    }
}

template <class T, int B, class Function, class Reference>
void checkFunction(Rng& rng, double bound, Function function, Reference reference,
                   T limit = kInfinity<T>) {
    constexpr auto lanes = static_cast<std::size_t>(Vec<T, B>::lanes);
    std::vector<T> x(lanes);
    for (int round = 0; round < 60000 / static_cast<int>(lanes); ++round) {
        for (T& v : x) v = argument<T>(rng, limit);
        const auto got = lanesOf(function(load<T, B>(x.data())));
        for (std::size_t i = 0; i < lanes; ++i)
            ASSERT_NO_FATAL_FAILURE(expectClose(got[i], reference(Extended{x[i]}), bound, x[i]));
        // A lane's result does not depend on what else is in the vector.
        const std::size_t lane = rng() % lanes;
        std::vector<T> alone(lanes);
        alone[lane] = x[lane];
        const T again = lanesOf(function(load<T, B>(alone.data())))[lane];
        ASSERT_TRUE(sameBits(again, got[lane]) || isNaN(again)) << x[lane];
    }
}

template <class T, int B>
void checkAll(Rng& rng) {
    checkFunction<T, B>(
        rng, 1, [](auto v) { return math::exp(v); }, [](Extended x) { return std::exp(x); });
    checkFunction<T, B>(
        rng, 1, [](auto v) { return math::ln(v); }, [](Extended x) { return std::log(x); });
    checkFunction<T, B>(
        rng, 1, [](auto v) { return math::log10(v); }, [](Extended x) { return std::log10(x); });
    checkFunction<T, B>(
        rng, 1, [](auto v) { return math::cbrt(v); }, [](Extended x) { return std::cbrt(x); });
    checkFunction<T, B>(
        rng, 1, [](auto v) { return math::atan(v); }, [](Extended x) { return std::atan(x); });
    const T limit = math::SinCosConstants<T>::limit;
    checkFunction<T, B>(
        rng, 2, [](auto v) { return math::sinCos(v).sine; }, [](Extended x) { return std::sin(x); },
        limit);
    checkFunction<T, B>(
        rng, 2, [](auto v) { return math::sinCos(v).cosine; },
        [](Extended x) { return std::cos(x); }, limit);
}

template <class T, int B>
void checkAtan2(Rng& rng) {
    constexpr auto lanes = static_cast<std::size_t>(Vec<T, B>::lanes);
    std::vector<T> x(lanes), y(lanes);
    for (int round = 0; round < 60000 / static_cast<int>(lanes); ++round) {
        for (std::size_t i = 0; i < lanes; ++i) {
            x[i] = argument<T>(rng, kInfinity<T>);
            y[i] = rng() % 8 ? argument<T>(rng, kInfinity<T>) : rng() % 2 ? x[i] : -x[i];
        }
        const auto got = lanesOf(math::atan2(load<T, B>(y.data()), load<T, B>(x.data())));
        for (std::size_t i = 0; i < lanes; ++i) {
            ASSERT_NO_FATAL_FAILURE(
                expectClose(got[i], std::atan2(Extended{y[i]}, Extended{x[i]}), 2, y[i], x[i]));
        }
    }
}

TEST_F(Simd, ElementaryFunctionsInSinglePrecision) {
    checkAll<float, kVecBytes>(rng);
    checkAtan2<float, kVecBytes>(rng);
}
TEST_F(Simd, ElementaryFunctionsInDoublePrecision) {
    checkAll<double, kVecBytes>(rng);
    checkAtan2<double, kVecBytes>(rng);
}

// A function of a vector at one argument.
template <class T, class Function>
T at(T x, Function function) {
    return function(Vec<T>::broadcast(x))[0];
}

template <class T>
void checkSpecialValues() {
    using Limits = std::numeric_limits<T>;
    const auto exp = [](auto v) { return math::exp(v); };
    const auto ln = [](auto v) { return math::ln(v); };
    const auto cbrt = [](auto v) { return math::cbrt(v); };
    EXPECT_EQ(T(1), at(T(0), exp));
    EXPECT_EQ(T(1), at(-T(0), exp));
    EXPECT_EQ(kInfinity<T>, at(kInfinity<T>, exp));
    EXPECT_TRUE(sameBits(T(0), at(-kInfinity<T>, exp)));
    EXPECT_EQ(kInfinity<T>, at(Limits::max(), exp));
    EXPECT_TRUE(sameBits(T(0), at(Limits::lowest(), exp)));
    EXPECT_TRUE(sameBits(T(0), at(T(1), ln)));
    EXPECT_EQ(-kInfinity<T>, at(T(0), ln));
    EXPECT_EQ(-kInfinity<T>, at(-T(0), ln));
    EXPECT_EQ(kInfinity<T>, at(kInfinity<T>, ln));
    EXPECT_TRUE(isNaN(at(T(-1), ln)));
    EXPECT_TRUE(isNaN(at(-kInfinity<T>, ln)));
    EXPECT_TRUE(isNaN(at(-Limits::denorm_min(), ln)));
    for (const T x : {T(0), -T(0), kInfinity<T>, -kInfinity<T>, T(1), T(-1)})
        EXPECT_TRUE(sameBits(x, at(x, cbrt)));
    for (int i = 1; i < 50; ++i)  // exact cubes
        EXPECT_EQ(T(i), at(T(i * i * i), cbrt));
    const auto sinCos = math::sinCos(Vec<T>::broadcast(-T(0)));
    EXPECT_TRUE(sameBits(-T(0), sinCos.sine[0]));
    EXPECT_EQ(T(1), sinCos.cosine[0]);
    const auto outside = math::sinCos(Vec<T>::broadcast(kInfinity<T>));
    EXPECT_TRUE(isNaN(outside.sine[0]) && isNaN(outside.cosine[0]));
    for (const T y : {T(0), -T(0), T(1), T(-1), kInfinity<T>, -kInfinity<T>, kNaN<T>,
                      Limits::denorm_min(), Limits::max(), Limits::lowest()}) {
        for (const T x : {T(0), -T(0), T(2), T(-2), kInfinity<T>, -kInfinity<T>, kNaN<T>,
                          Limits::denorm_min(), Limits::max(), Limits::lowest()}) {
            const T got = math::atan2(Vec<T>::broadcast(y), Vec<T>::broadcast(x))[0];
            expectClose(got, std::atan2(Extended{y}, Extended{x}), 2, y, x);
        }
    }
}

TEST_F(Simd, SpecialValuesOfElementaryFunctions) {
    checkSpecialValues<float>();
    checkSpecialValues<double>();
}

}  // namespace
