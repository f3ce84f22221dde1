#include "fourier/packed_ref.h"

#include <cmath>

#include "harness/sweep.h"
#include "vlqs/fourier.h"

namespace {

using namespace vlqtest;

// Bit for bit, but any not-a-number stands for any other: which operand's payload a sum keeps is
// the processor's choice.
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
void checkExpansion(VlqStatus (*call)(const T*, Complex*, Vlq32s), VlqStatus (*inPlace)(Complex*, Vlq32s), Ref ref, bool ccs) {
    sweep(sizeof(Complex), {1021, 5004}, [&](Case& c) {
        const auto len = static_cast<std::size_t>(c.len);
        const auto half = uniformVector<T>(ccs ? 2 * (len / 2 + 1) : len, -9, 9, c.rng);
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
    checkExpansion(vlqsConjPack_32fc, vlqsConjPack_32fc_I, conjPackRef<Vlq32f>, false);
    checkExpansion(vlqsConjPack_64fc, vlqsConjPack_64fc_I, conjPackRef<Vlq64f>, false);
}
TEST(ConjPerm, Values) {
    checkExpansion(vlqsConjPerm_32fc, vlqsConjPerm_32fc_I, conjPermRef<Vlq32f>, false);
    checkExpansion(vlqsConjPerm_64fc, vlqsConjPerm_64fc_I, conjPermRef<Vlq64f>, false);
}
TEST(ConjCcs, Values) {
    checkExpansion(vlqsConjCcs_32fc, vlqsConjCcs_32fc_I, conjCcsRef<Vlq32f>, true);
    checkExpansion(vlqsConjCcs_64fc, vlqsConjCcs_64fc_I, conjCcsRef<Vlq64f>, true);
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
