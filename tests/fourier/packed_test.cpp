// Products and expansion of packed spectra against plain loops, to the bit.
#include "fourier/packed_ref.h"

#include <cmath>

#include "harness/sweep.h"
#include "vlqs/fft.h"

namespace {

using namespace vlqtest;

// To the bit, but all NaNs are equal: which operand's payload a sum keeps is the processor's
// choice.
template <class T>
void quietPayloads(std::vector<T>& values) {
    for (T& v : values) {
        if (std::isnan(v)) v = std::numeric_limits<T>::quiet_NaN();
    }
}

template <class T, class Call, class InPlace, class Ref>
void checkProduct(Call call, InPlace inPlace, Ref ref) {
    sweep(sizeof(T), {1021, 5004}, [&](Case& c) {
        const auto len = static_cast<std::size_t>(c.len);
        const bool extreme = c.rng() % 2 == 0;
        const auto a = extreme ? extremeVector<T>(len, c.rng) : uniformVector<T>(len, -9, 9, c.rng);
        const auto b = extreme ? extremeVector<T>(len, c.rng) : uniformVector<T>(len, -9, 9, c.rng);
        auto want = ref(a, b);
        quietPayloads(want);

        const Buffer<T> srcA(a, c.place[1]), srcB(b, c.place[2]);
        Buffer<T> dst(len, c.place[0]);
        auto verify = [&] {
            ASSERT_TRUE(dst.marginsIntact());
            auto got = dst.values();
            quietPayloads(got);
            dst.assign(got);
            ASSERT_TRUE(same(dst, want));
        };
        ASSERT_EQ(vlqStsOk, call(srcA.data(), srcB.data(), dst.data(), c.len));
        verify();
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, call(dst.data(), srcB.data(), dst.data(), c.len));
        verify();
        dst.assign(b);
        ASSERT_EQ(vlqStsOk, inPlace(srcA.data(), dst.data(), c.len));
        verify();
        ASSERT_TRUE(same(srcA, a));
        ASSERT_TRUE(same(srcB, b));
    });
}

TEST(MulPack, Values) {
    checkProduct<Vlq32f>(vlqsMulPack_32f, vlqsMulPack_32f_I, mulPackRef<Vlq32f>);
}
TEST(MulPerm, Values) {
    checkProduct<Vlq32f>(vlqsMulPerm_32f, vlqsMulPerm_32f_I, mulPermRef<Vlq32f>);
}

TEST(MulPack, DoubleValues) {
    checkProduct<Vlq64f>(vlqsMulPack_64f, vlqsMulPack_64f_I, mulPackRef<Vlq64f>);
}
TEST(MulPerm, DoubleValues) {
    checkProduct<Vlq64f>(vlqsMulPerm_64f, vlqsMulPerm_64f_I, mulPermRef<Vlq64f>);
}

template <class T, class InPlace>
void checkProductConjugate(InPlace inPlace) {
    sweep(sizeof(T), {1021, 5004}, [&](Case& c) {
        const auto len = static_cast<std::size_t>(c.len);
        const auto a = uniformVector<T>(len, -9, 9, c.rng), b = uniformVector<T>(len, -9, 9, c.rng);
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(b, c.place[0]);
        ASSERT_EQ(vlqStsOk, inPlace(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, mulPackConjRef(a, b)));
        ASSERT_TRUE(same(src, a));
    });
}
TEST(MulPackConj, Values) {
    checkProductConjugate<Vlq32f>(vlqsMulPackConj_32f_I);
    checkProductConjugate<Vlq64f>(vlqsMulPackConj_64f_I);
}

template <class T, class Complex, class Ref>
void checkExpansion(VlqStatus (*call)(const T*, Complex*, Vlq32s),
                    VlqStatus (*inPlace)(Complex*, Vlq32s), Ref ref, bool ccs) {
    sweep(sizeof(Complex), {1021, 5004}, [&](Case& c) {
        const auto len = static_cast<std::size_t>(c.len);
        const std::size_t count = ccs ? 2 * (len / 2 + 1) : len;
        std::vector<T> half;
        if constexpr (std::is_integral_v<T>)
            half = extremeVector<T>(count, c.rng);
        else
            half = uniformVector<T>(count, -9, 9, c.rng);
        const std::vector<T> want = ref(half, len);
        const Buffer<T> src(half, c.place[1]);
        Buffer<T> dst(2 * len, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), reinterpret_cast<Complex*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, want));
        ASSERT_TRUE(same(src, half));
        dst.assign(half);
        ASSERT_EQ(vlqStsOk, inPlace(reinterpret_cast<Complex*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    T v[8] = {1, 2, 3, 4};
    auto* values = reinterpret_cast<Complex*>(v + 4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, values, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, values, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, values, -1));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(values, 0));
    EXPECT_EQ(0, v[4]);
}
TEST(ConjPack, Values) {
    checkExpansion(vlqsConjPack_16sc, vlqsConjPack_16sc_I, conjPackRef<Vlq16s>, false);
    checkExpansion(vlqsConjPack_32fc, vlqsConjPack_32fc_I, conjPackRef<Vlq32f>, false);
    checkExpansion(vlqsConjPack_64fc, vlqsConjPack_64fc_I, conjPackRef<Vlq64f>, false);
}
TEST(ConjPerm, Values) {
    checkExpansion(vlqsConjPerm_16sc, vlqsConjPerm_16sc_I, conjPermRef<Vlq16s>, false);
    checkExpansion(vlqsConjPerm_32fc, vlqsConjPerm_32fc_I, conjPermRef<Vlq32f>, false);
    checkExpansion(vlqsConjPerm_64fc, vlqsConjPerm_64fc_I, conjPermRef<Vlq64f>, false);
}
TEST(ConjCcs, Values) {
    checkExpansion(vlqsConjCcs_16sc, vlqsConjCcs_16sc_I, conjCcsRef<Vlq16s>, true);
    checkExpansion(vlqsConjCcs_32fc, vlqsConjCcs_32fc_I, conjCcsRef<Vlq32f>, true);
    checkExpansion(vlqsConjCcs_64fc, vlqsConjCcs_64fc_I, conjCcsRef<Vlq64f>, true);
}

template <class Call, class InPlace>
void checkScaledProduct(Call call, InPlace inPlace, bool perm) {
    sweep(sizeof(Vlq16s), {1021, 5004}, [&](Case& c) {
        const auto len = static_cast<std::size_t>(c.len);
        const auto a = extremeVector<Vlq16s>(len, c.rng), b = extremeVector<Vlq16s>(len, c.rng);
        const Buffer<Vlq16s> srcA(a, c.place[1]), srcB(b, c.place[2]);
        Buffer<Vlq16s> dst(len, c.place[0]);
        const Vlq32s scales[] = {0, 1, 15, 16, 30, 31, 33, -1, -7, -16, -1000};
        const Vlq32s scale = scales[c.rng() % std::size(scales)];
        const auto want = scaledPackedRef(a, b, perm, scale);
        ASSERT_EQ(vlqStsOk, call(srcA.data(), srcB.data(), dst.data(), c.len, scale));
        ASSERT_TRUE(same(dst, want)) << "scale " << scale;
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, call(dst.data(), srcB.data(), dst.data(), c.len, scale));
        ASSERT_TRUE(same(dst, want)) << "scale " << scale;
        dst.assign(b);
        ASSERT_EQ(vlqStsOk, inPlace(srcA.data(), dst.data(), c.len, scale));
        ASSERT_TRUE(same(dst, want)) << "scale " << scale;
        ASSERT_TRUE(same(srcA, a));
        ASSERT_TRUE(same(srcB, b));
    });
    Vlq16s v[4] = {1, 2, 3, 4};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, v, nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(v, nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, v, -1, 0));
    EXPECT_EQ(1, v[0]);
}
TEST(MulPacked, Scaled) {
    checkScaledProduct(vlqsMulPack_16s_Sfs, vlqsMulPack_16s_ISfs, false);
    checkScaledProduct(vlqsMulPerm_16s_Sfs, vlqsMulPerm_16s_ISfs, true);
}

// The one sum that leaves 32 bits, and terms that a left shift takes beyond 16.
TEST(MulPacked, ScaledLimits) {
    const Vlq16s low[3] = {-32768, -32768, -32768};
    Vlq16s y[3];
    ASSERT_EQ(vlqStsOk, vlqsMulPack_16s_Sfs(low, low, y, 3, 16));
    EXPECT_EQ(16384, y[0]);
    EXPECT_EQ(0, y[1]);
    EXPECT_EQ(32767, y[2]);
    const Vlq16s one[3] = {1, 3, -5};
    ASSERT_EQ(vlqStsOk, vlqsMulPack_16s_Sfs(one, one, y, 3, 2));
    EXPECT_EQ(0, y[0]);
    EXPECT_EQ(-4, y[1]);
    EXPECT_EQ(-8, y[2]);
    ASSERT_EQ(vlqStsOk, vlqsMulPack_16s_Sfs(one, one, y, 3, -12));
    EXPECT_EQ(4096, y[0]);
    EXPECT_EQ(-32768, y[1]);
}

TEST(MulPacked, ShortLengths) {
    const Vlq32f a[3] = {2, 3, 5}, b[3] = {7, 11, 13};
    Vlq32f y[4] = {-1, -1, -1, -1};
    ASSERT_EQ(vlqStsOk, vlqsMulPack_32f(a, b, y, 2));
    EXPECT_EQ(14, y[0]);
    EXPECT_EQ(33, y[1]);
    EXPECT_EQ(-1, y[2]);
    ASSERT_EQ(vlqStsOk, vlqsMulPerm_32f(a, b, y, 1));
    EXPECT_EQ(14, y[0]);
    EXPECT_EQ(33, y[1]);
    ASSERT_EQ(vlqStsOk, vlqsMulPerm_32f(a, b, y, 3));
    EXPECT_EQ(14, y[0]);
    EXPECT_EQ(3 * 11 - 5 * 13, y[1]);
    EXPECT_EQ(3 * 13 + 5 * 11, y[2]);
    EXPECT_EQ(-1, y[3]);
}

TEST(MulPacked, Checks) {
    Vlq32f v[4] = {1, 2, 3, 4};
    for (const auto call : {vlqsMulPack_32f, vlqsMulPerm_32f}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, 0));
        EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, 0));
        EXPECT_EQ(vlqStsNullPtr, call(v, v, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, call(v, v, v, 0));
        EXPECT_EQ(vlqStsBadSize, call(v, v, v, -1));
    }
    for (const auto call : {vlqsMulPack_32f_I, vlqsMulPerm_32f_I}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, 0));
        EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, call(v, v, 0));
    }
    EXPECT_EQ(1, v[0]);
}

}  // namespace
