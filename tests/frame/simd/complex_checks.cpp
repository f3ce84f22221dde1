// deinterleave.h, bits128.h, exact.h and math/large_angle.h.
#include "frame/simd/bits128.h"
#include "frame/simd/deinterleave.h"
#include "frame/simd/exact.h"
#include "frame/simd/lanes.h"
#include "frame/simd/math/large_angle.h"

namespace {

using namespace vlq;
using namespace vlqtest;

template <class T>
void checkDeinterleaved() {
    constexpr int lanes = Vec<T>::lanes;
    std::vector<T> numbers(2 * lanes);
    for (int i = 0; i < 2 * lanes; ++i) numbers[static_cast<std::size_t>(i)] = static_cast<T>(i);
    const auto pairs = blockOf<2>(numbers);
    const auto parts = deinterleave(pairs.part[0], pairs.part[1]);
    EXPECT_TRUE(sameLanes(lanesOf(parts.re), [](std::size_t i) { return static_cast<T>(2 * i); }));
    EXPECT_TRUE(
        sameLanes(lanesOf(parts.im), [](std::size_t i) { return static_cast<T>(2 * i + 1); }));
    EXPECT_TRUE(
        sameLanes(lanesOf(interleave(parts)), [](std::size_t i) { return static_cast<T>(i); }));
}
TEST_F(Simd, Deinterleaving) {
    checkDeinterleaved<float>();
    checkDeinterleaved<double>();
    checkDeinterleaved<std::int32_t>();
    const auto re = extremeVector<std::int16_t>(Vec<std::int16_t>::lanes, rng),
               im = extremeVector<std::int16_t>(Vec<std::int16_t>::lanes, rng);
    const auto pairs = interleave(load(re.data()), load(im.data()));
    const auto both = lanesOf(pairs);
    for (std::size_t i = 0; i < re.size(); ++i) EXPECT_EQ(re[i] & 0xFFFF, both[i] & 0xFFFF);
    EXPECT_TRUE(sameLanes(lanesOf(realPart16(pairs.part[0])),
                          [&](std::size_t i) { return std::int32_t{re[i]}; }));
    EXPECT_TRUE(sameLanes(lanesOf(imaginaryPart16(pairs.part[0])),
                          [&](std::size_t i) { return std::int32_t{im[i]}; }));
}

TEST_F(Simd, ElementsOf16Bytes) {
    constexpr int lanes = Vec<Bits128>::lanes;
    const auto values = extremeVector<std::uint64_t>(2 * lanes, rng);
    std::vector<Bits128> src(lanes), dst(lanes);
    std::memcpy(src.data(), values.data(), sizeof(Bits128) * lanes);
    for (int count = 0; count <= lanes; ++count) {
        std::memset(dst.data(), 0x5A, sizeof(Bits128) * lanes);
        storePartial(dst.data(), loadPartial(src.data(), count), count);
        const auto bytes = sizeof(Bits128) * static_cast<std::size_t>(count);
        EXPECT_EQ(0, std::memcmp(src.data(), dst.data(), bytes)) << count;
        if (count == lanes) break;
        EXPECT_EQ(0x5A5A5A5A5A5A5A5Au, dst[static_cast<std::size_t>(count)].half[0]);
    }
}

TEST_F(Simd, RoundingErrors) {
    for (int round = 0; round < 1000; ++round) {
        const auto a = uniformVector<double>(Vec<double>::lanes, -8, 8, rng),
                   b = uniformVector<double>(Vec<double>::lanes, -1, 1, rng);
        const auto x = load(a.data()), y = load(b.data());
        const auto square = x * x, sum = x + y;
        const auto ofSquare = squareError(x, square), ofSum = sumError(x, y, sum);
        for (int i = 0; i < Vec<double>::lanes; ++i) {
            EXPECT_NEAR(std::fma(x[i], x[i], -square[i]), ofSquare[i], 0x1p-100);
            const long double exact = static_cast<long double>(x[i]) + y[i];
            EXPECT_EQ(exact, static_cast<long double>(sum[i]) + ofSum[i]);
        }
    }
}

TEST_F(Simd, LargeAngles) {
    for (int round = 0; round < 2000; ++round) {
        const double fraction = static_cast<double>(rng() >> 11) * 0x1p-53 + 0.5;
        double x = std::ldexp(fraction, 21 + static_cast<int>(rng() % 1003));
        if (rng() % 2) x = -x;
        // The C library reduces numbers of any size exactly.
        const long double sine = std::sin(static_cast<long double>(x)),
                          cosine = std::cos(static_cast<long double>(x));
        const auto got = math::sinCosOfAny(Vec<double>::broadcast(x));
        EXPECT_NEAR(1, got.sine[0] / static_cast<double>(sine), 0x1p-51) << x;
        EXPECT_NEAR(1, got.cosine[0] / static_cast<double>(cosine), 0x1p-51) << x;
        const auto f = static_cast<float>(std::ldexp(fraction, static_cast<int>(rng() % 128)));
        const auto ofFloat = math::sinCosOfAny(Vec<float>::broadcast(f));
        EXPECT_NEAR(1, ofFloat.sine[0] / std::sin(static_cast<double>(f)), 0x1p-22) << f;
        EXPECT_NEAR(1, ofFloat.cosine[0] / std::cos(static_cast<double>(f)), 0x1p-22) << f;
    }
    // The double next to a multiple of pi/2 that it is closest to.
    const double closest = 0x1.6ac5b262ca1ffp+849;
    const auto reduced = math::reduceLargeAngle(closest);
    EXPECT_LT(std::abs(reduced.rest), 0x1p-59);
    for (const double x : {std::numeric_limits<double>::infinity(), std::nan("")}) {
        EXPECT_TRUE(isNaN(math::sinCosOfAny(Vec<double>::broadcast(x)).sine[0]));
        EXPECT_TRUE(
            isNaN(math::sinCosOfAny(Vec<float>::broadcast(static_cast<float>(x))).cosine[0]));
    }
}

}  // namespace
