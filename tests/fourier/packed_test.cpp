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
