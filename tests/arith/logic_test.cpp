// Bitwise operations.
#include "arith/logic_ref.h"

#include "harness/sweep.h"
#include "vlqs/arith.h"

namespace {

using namespace vlqtest;

template <class T>
using TwoVectors = VlqStatus (*)(const T*, const T*, T*, Vlq32s);
template <class T>
using TwoVectorsInPlace = VlqStatus (*)(const T*, T*, Vlq32s);
template <class T>
using WithConstant = VlqStatus (*)(const T*, T, T*, Vlq32s);
template <class T>
using WithConstantInPlace = VlqStatus (*)(T, T*, Vlq32s);
template <class T>
using OneVector = VlqStatus (*)(const T*, T*, Vlq32s);
template <class T>
using OneVectorInPlace = VlqStatus (*)(T*, Vlq32s);
template <class T>
using Ref = T (*)(T, T);

template <class T>
void checkTwoVectors(TwoVectors<T> call, TwoVectorsInPlace<T> inPlace, Ref<T> ref) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        const auto b = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<T> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], b[i]);

        const Buffer<T> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<T> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));

        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(src2.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
        dst.assign(b);
        ASSERT_EQ(vlqStsOk, call(src1.data(), dst.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    T v[4] = {1, 2, 3, 4};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, v, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, v, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, v, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, v, -1));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, v, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, v, -1));
}

template <class T>
void checkConstant(WithConstant<T> call, WithConstantInPlace<T> inPlace, Ref<T> ref) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        const T val = extremeValue<T>(c.rng);
        std::vector<T> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], val);

        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(val, dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    T v[4] = {1, 2, 3, 4};
    // The statuses of a constant of 0 come from the clear or the copy, and are the same ones.
    for (const T val : {T{0}, T{1}}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, val, v, 0));
        EXPECT_EQ(vlqStsNullPtr, call(v, val, nullptr, 0));
        EXPECT_EQ(vlqStsNullPtr, inPlace(val, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, call(v, val, v, 0));
        EXPECT_EQ(vlqStsBadSize, call(v, val, v, -1));
        EXPECT_EQ(vlqStsBadSize, inPlace(val, v, 0));
        EXPECT_EQ(vlqStsBadSize, inPlace(val, v, -1));
    }
    EXPECT_EQ(T{1}, v[0]);
    // A constant of 0, out of place and in place.
    T out[4] = {9, 9, 9, 9};
    EXPECT_EQ(vlqStsOk, call(v, 0, out, 3));
    EXPECT_EQ(vlqStsOk, inPlace(0, v, 3));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ref(static_cast<T>(i + 1), 0), out[i]);
        EXPECT_EQ(ref(static_cast<T>(i + 1), 0), v[i]);
    }
    EXPECT_EQ(T{9}, out[3]);
    EXPECT_EQ(T{4}, v[3]);
}

template <class T>
void checkNot(OneVector<T> call, OneVectorInPlace<T> inPlace) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<T> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = notRef(a[i]);
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    T v[4] = {1, 2, 3, 4};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, -1));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, -1));
}

TEST(And, Values) {
    checkTwoVectors<Vlq8u>(vlqsAnd_8u, vlqsAnd_8u_I, andRef<Vlq8u>);
    checkTwoVectors<Vlq16u>(vlqsAnd_16u, vlqsAnd_16u_I, andRef<Vlq16u>);
    checkTwoVectors<Vlq32u>(vlqsAnd_32u, vlqsAnd_32u_I, andRef<Vlq32u>);
}

TEST(Or, Values) {
    checkTwoVectors<Vlq8u>(vlqsOr_8u, vlqsOr_8u_I, orRef<Vlq8u>);
    checkTwoVectors<Vlq16u>(vlqsOr_16u, vlqsOr_16u_I, orRef<Vlq16u>);
    checkTwoVectors<Vlq32u>(vlqsOr_32u, vlqsOr_32u_I, orRef<Vlq32u>);
}

TEST(Xor, Values) {
    checkTwoVectors<Vlq8u>(vlqsXor_8u, vlqsXor_8u_I, xorRef<Vlq8u>);
    checkTwoVectors<Vlq16u>(vlqsXor_16u, vlqsXor_16u_I, xorRef<Vlq16u>);
    checkTwoVectors<Vlq32u>(vlqsXor_32u, vlqsXor_32u_I, xorRef<Vlq32u>);
}

TEST(AndC, Values) {
    checkConstant<Vlq8u>(vlqsAndC_8u, vlqsAndC_8u_I, andRef<Vlq8u>);
    checkConstant<Vlq16u>(vlqsAndC_16u, vlqsAndC_16u_I, andRef<Vlq16u>);
    checkConstant<Vlq32u>(vlqsAndC_32u, vlqsAndC_32u_I, andRef<Vlq32u>);
}

TEST(OrC, Values) {
    checkConstant<Vlq8u>(vlqsOrC_8u, vlqsOrC_8u_I, orRef<Vlq8u>);
    checkConstant<Vlq16u>(vlqsOrC_16u, vlqsOrC_16u_I, orRef<Vlq16u>);
    checkConstant<Vlq32u>(vlqsOrC_32u, vlqsOrC_32u_I, orRef<Vlq32u>);
}

TEST(XorC, Values) {
    checkConstant<Vlq8u>(vlqsXorC_8u, vlqsXorC_8u_I, xorRef<Vlq8u>);
    checkConstant<Vlq16u>(vlqsXorC_16u, vlqsXorC_16u_I, xorRef<Vlq16u>);
    checkConstant<Vlq32u>(vlqsXorC_32u, vlqsXorC_32u_I, xorRef<Vlq32u>);
}

TEST(Not, Values) {
    checkNot<Vlq8u>(vlqsNot_8u, vlqsNot_8u_I);
    checkNot<Vlq16u>(vlqsNot_16u, vlqsNot_16u_I);
    checkNot<Vlq32u>(vlqsNot_32u, vlqsNot_32u_I);
}

}  // namespace
