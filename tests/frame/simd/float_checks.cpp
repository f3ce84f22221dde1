// ops.h over floats, and control.h.
#include "frame/simd/control.h"
#include "frame/simd/lanes.h"
#include "frame/simd/ops.h"

namespace {

using namespace vlq;
using namespace vlqtest;

template <class T, int B>
void checkFloat(Rng& rng) {
    // Either operand NaN, or two zeros: the second operand, bit for bit.
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return minimum(a, b); }, [](T a, T b) { return a < b ? a : b; });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return maximum(a, b); }, [](T a, T b) { return a > b ? a : b; });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return a + b; }, [](T a, T b) { return a + b; });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return a * b; }, [](T a, T b) { return a * b; });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return a / b; }, [](T a, T b) { return a / b; });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return select(a < b, b, a); },
        [](T a, T b) { return a < b ? b : a; });
    checkBinary<T, B>(
        rng, [](auto a, auto b) { return copySign(a, b); },
        [](T a, T b) { return std::copysign(a, b); });
    checkUnary<T, B>(
        rng, [](auto a) { return -a; }, [](T a) { return -a; });
    checkUnary<T, B>(
        rng, [](auto a) { return absolute(a); }, [](T a) { return std::fabs(a); });
    checkUnary<T, B>(
        rng, [](auto a) { return signBit(a); }, [](T a) { return std::copysign(T(0), a); });
    checkUnary<T, B>(
        rng, [](auto a) { return squareRoot(a); }, [](T a) { return std::sqrt(a); });
}

template <class T, int B>
void checkRounding(Rng& rng) {
    const auto check = [&](auto value) {
        const auto rounded = [&](auto vecOp, auto scalarOp) {
            const auto v = load<T, B>(value.data());
            ASSERT_TRUE(sameLanes(lanesOf(vecOp(v)), [&](std::size_t i) {
                return scalarOp(value[i]);
            })) << ::testing::PrintToString(value);
        };
        rounded([](auto a) { return nearestInteger(a); }, [](T a) { return std::nearbyint(a); });
        rounded([](auto a) { return truncate(a); }, [](T a) { return std::trunc(a); });
        rounded([](auto a) { return floor(a); }, [](T a) { return std::floor(a); });
    };
    constexpr auto lanes = static_cast<std::size_t>(Vec<T, B>::lanes);
    for (int round = 0; round < 500; ++round) check(extremeVector<T>(lanes, rng));
    // Halves, neighbours of halves and integers up to where no fraction is left.
    for (int exponent = -2; exponent < std::numeric_limits<T>::digits + 2; ++exponent) {
        for (int round = 0; round < 20; ++round) {
            std::vector<T> near(lanes);
            for (T& v : near) {
                v = std::floor(std::ldexp(static_cast<T>(rng() % 1000) / 500, exponent)) +
                    static_cast<T>(rng() % 3) / 2;
                if (rng() % 2) v = std::nextafter(v, static_cast<T>(rng() % 2 ? 1e9 : -1e9));
                if (rng() % 2) v = -v;
            }
            check(near);
        }
    }
}

template <class T, int B>
void checkFused(Rng& rng) {
    constexpr auto lanes = static_cast<std::size_t>(Vec<T, B>::lanes);
    for (int round = 0; round < 1000; ++round) {
        const auto a = uniformVector<T>(lanes, -2, 2, rng), b = uniformVector<T>(lanes, -2, 2, rng),
                   c = uniformVector<T>(lanes, -2, 2, rng);
        const auto va = load<T, B>(a.data()), vb = load<T, B>(b.data()), vc = load<T, B>(c.data());
        const auto expect = [&](Vec<T, B> got, T signOfProduct, T signOfAddend) {
            ASSERT_TRUE(sameLanes(lanesOf(got), [&](std::size_t i) {
                const T addend = signOfAddend * c[i];
                if (kVecBytes > 16) return std::fma(signOfProduct * a[i], b[i], addend);
                const T product = a[i] * b[i];
                return signOfProduct * product + addend;
            }));
        };
        expect(mulAdd(va, vb, vc), 1, 1);
        expect(mulSub(va, vb, vc), 1, -1);
        expect(mulSubFrom(va, vb, vc), -1, 1);
        EXPECT_EQ(mulAdd(va, vb, vc)[0], mulAdd(a[0], b[0], c[0]));
    }
}

template <class T>
void checkAllSizes(Rng& rng) {
    forEachSize([&](auto size) {
        checkFloat<T, size>(rng);
        checkRounding<T, size>(rng);
        checkFused<T, size>(rng);
    });
}

TEST_F(Simd, Floats) { checkAllSizes<float>(rng); }
TEST_F(Simd, Doubles) { checkAllSizes<double>(rng); }

unsigned controlRegister() { return _mm_getcsr(); }

TEST_F(Simd, StandardFloatModeHoldsInItsScope) {
    constexpr unsigned standard = 0x1F80;
    const unsigned before = controlRegister();
    // Nearest, down, up, to zero; subnormal operands and results as zeros.
    for (const unsigned mode : {0u, 0x2000u, 0x4000u, 0x6000u, 0x0040u, 0x8040u, 0x6040u}) {
        _mm_setcsr(standard | mode);
        {
            const StandardFloatMode scope;
            EXPECT_EQ(standard, controlRegister() & 0xFFC0u & ~0x8000u) << mode;
            volatile float subnormal = 0x1p-149f, one = 1.0f, third = 3.0f;
            EXPECT_EQ(0x1p-148f, subnormal + subnormal) << mode;
            EXPECT_EQ(0x1.555556p-2f, one / third) << mode;
        }
        EXPECT_EQ(standard | mode, controlRegister() & 0xFFC0u) << mode;
        {
            const StandardFloatMode unwanted(false);
            EXPECT_EQ(standard | mode, controlRegister() & 0xFFC0u) << mode;
        }
    }
    _mm_setcsr(before);
}

}  // namespace
