// Products of floats, real and complex.
#include "arith/multiply_float_ref.h"

#include "harness/element.h"
#include "vlqs/arith.h"

namespace {

using namespace vlqtest;

template <class A, class B, class D>
std::vector<D> products(const std::vector<A>& a, const std::vector<B>& b) {
    std::vector<D> want(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) want[i] = productRef(a[i], b[i]);
    return want;
}

template <class A, class B, class D>
void checkOutOfPlace(VlqStatus (*call)(const A*, const B*, D*, Vlq32s)) {
    sweep(sizeof(A) < sizeof(D) ? sizeof(A) : sizeof(D), {5003, 100000}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<A>(n, c.rng);
        const auto b = extremeElements<B>(n, c.rng);
        const Buffer<A> src1(a, c.place[1]);
        const Buffer<B> src2(b, c.place[2]);
        Buffer<D> dst(n, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len));
        ASSERT_TRUE((sameNumbers(dst, products<A, B, D>(a, b))));
    });
}

template <class A, class D>
void checkInPlace(VlqStatus (*call)(const A*, D*, Vlq32s)) {
    sweep(sizeof(A) < sizeof(D) ? sizeof(A) : sizeof(D), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<A>(n, c.rng);
        const auto b = extremeElements<D>(n, c.rng);
        const Buffer<A> src(a, c.place[1]);
        Buffer<D> dst(b, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE((sameNumbers(dst, products<A, D, D>(a, b))));
    });
}

template <class T>
void checkConstant(VlqStatus (*call)(const T*, T, T*, Vlq32s),
                   VlqStatus (*inPlace)(T, T*, Vlq32s)) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<T>(n, c.rng);
        const T val = extremeElement<T>(c.rng);
        const auto want = products<T, T, T>(a, std::vector<T>(n, val));
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(n, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(val, dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
    });
}

template <class T>
void checkAccumulate(VlqStatus (*call)(const T*, const T*, T*, Vlq32s)) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<T>(n, c.rng), b = extremeElements<T>(n, c.rng),
                   acc = extremeElements<T>(n, c.rng);
        auto want = products<T, T, T>(a, b);
        for (std::size_t i = 0; i < n; ++i) want[i] = sumRef(acc[i], want[i]);
        const Buffer<T> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<T> dst(acc, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
    });
}

TEST(MulFloat, Vectors32f) {
    checkOutOfPlace(vlqsMul_32f);
    checkInPlace(vlqsMul_32f_I);
}
TEST(MulFloat, Vectors64f) {
    checkOutOfPlace(vlqsMul_64f);
    checkInPlace(vlqsMul_64f_I);
}
TEST(MulFloat, Vectors32fc) {
    checkOutOfPlace(vlqsMul_32fc);
    checkInPlace(vlqsMul_32fc_I);
}
TEST(MulFloat, Vectors64fc) {
    checkOutOfPlace(vlqsMul_64fc);
    checkInPlace(vlqsMul_64fc_I);
}
TEST(MulFloat, RealByComplex) {
    checkOutOfPlace(vlqsMul_32f32fc);
    checkInPlace(vlqsMul_32f32fc_I);
}
TEST(MulFloat, Integers16s32f) { checkOutOfPlace(vlqsMul_16s32f); }

TEST(MulFloat, Constant32f) { checkConstant(vlqsMulC_32f, vlqsMulC_32f_I); }
TEST(MulFloat, Constant64f) { checkConstant(vlqsMulC_64f, vlqsMulC_64f_I); }
TEST(MulFloat, Constant32fc) { checkConstant(vlqsMulC_32fc, vlqsMulC_32fc_I); }
TEST(MulFloat, Constant64fc) { checkConstant(vlqsMulC_64fc, vlqsMulC_64fc_I); }

TEST(AddProductFloat, Vectors) {
    checkAccumulate(vlqsAddProduct_32f);
    checkAccumulate(vlqsAddProduct_64f);
    checkAccumulate(vlqsAddProduct_32fc);
    checkAccumulate(vlqsAddProduct_64fc);
}

TEST(AddProductFloat, Constant) {
    sweep(sizeof(Vlq32f), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto a = extremeElements<Vlq32f>(n, c.rng), acc = extremeElements<Vlq32f>(n, c.rng);
        const auto val = extremeElement<Vlq32f>(c.rng);
        std::vector<Vlq32f> want(n);
        for (std::size_t i = 0; i < n; ++i) want[i] = acc[i] + a[i] * val;
        const Buffer<Vlq32f> src(a, c.place[1]);
        Buffer<Vlq32f> dst(acc, c.place[0]);
        ASSERT_EQ(vlqStsOk, vlqsAddProductC_32f(src.data(), val, dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
    });
}

// Every pair of 16-bit values has an exact product below 2^31; those above 2^24 round.
TEST(MulFloat, CornersOf16s32f) {
    const Vlq16s corners[] = {-32768, -32767, -4097, -4096, -1, 0, 1, 4095, 4097, 32766, 32767};
    for (const Vlq16s a : corners) {
        for (const Vlq16s b : corners) {
            Vlq32f dst = -1;
            ASSERT_EQ(vlqStsOk, vlqsMul_16s32f(&a, &b, &dst, 1));
            ASSERT_TRUE(sameNumber(productRef(a, b), dst)) << a << " * " << b;
        }
    }
}

TEST(MulFloat, SignedZerosAndInfinities) {
    const Vlq32f inf = std::numeric_limits<Vlq32f>::infinity();
    const Vlq32f a[4] = {0, -0.0f, inf, inf}, b[4] = {-3, 0, -2, 0};
    Vlq32f dst[4];
    ASSERT_EQ(vlqStsOk, vlqsMul_32f(a, b, dst, 4));
    EXPECT_TRUE(dst[0] == 0 && std::signbit(dst[0]));
    EXPECT_TRUE(dst[1] == 0 && std::signbit(dst[1]));
    EXPECT_EQ(-inf, dst[2]);
    EXPECT_TRUE(std::isnan(dst[3]));
    ASSERT_EQ(vlqStsOk, vlqsMulC_32f(a, 0.0f, dst, 4));  // a constant of 0 does not clear
    EXPECT_TRUE(std::signbit(dst[1]));
    EXPECT_TRUE(std::isnan(dst[2]));
}

}  // namespace
