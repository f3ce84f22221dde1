// Shifts by a constant count.
#include "arith/shift_ref.h"

#include <limits>

#include "harness/sweep.h"
#include "vlqs/arith.h"

namespace {

using namespace vlqtest;

template <class T>
using Shift = VlqStatus (*)(const T*, Vlq32s, T*, Vlq32s);
template <class T>
using ShiftInPlace = VlqStatus (*)(Vlq32s, T*, Vlq32s);
template <class T>
using Ref = T (*)(T, int);

constexpr Vlq32s kHuge = std::numeric_limits<Vlq32s>::max();

template <class T>
void checkValues(Shift<T> call, ShiftInPlace<T> inPlace, Ref<T> ref) {
    constexpr int width = 8 * static_cast<int>(sizeof(T));
    const auto check = [&](Case& c, int val) {
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<T> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], val);
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), c.len));
        ASSERT_TRUE(same(dst, want)) << "shift " << val;
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, inPlace(val, dst.data(), c.len));
        ASSERT_TRUE(same(dst, want)) << "shift " << val;
    };
    sweep(sizeof(T), {5003}, [&](Case& c) { check(c, static_cast<int>(c.rng() % (width + 3))); });
    for (const int len : {1, 7, 100, 1001}) {
        for (int val = 0; val <= width + 9; ++val) {
            Case c{len, {}, Rng(seed())};
            check(c, val);
        }
        Case c{len, {}, Rng(seed())};
        check(c, kHuge);
    }
}

template <class T>
void checkStatuses(Shift<T> call, ShiftInPlace<T> inPlace, bool clears) {
    constexpr int width = 8 * static_cast<int>(sizeof(T));
    T v[4] = {1, 2, 3, 4}, out[4] = {5, 6, 7, 8};
    // A shift of 0 is the copy, a large one the clear: the same statuses, whatever comes first.
    for (const int val : {0, 1, width - 1, width, kHuge, -1}) {
        EXPECT_EQ(vlqStsNullPtr, call(nullptr, val, out, 0)) << val;
        EXPECT_EQ(vlqStsNullPtr, call(v, val, nullptr, 0)) << val;
        EXPECT_EQ(vlqStsNullPtr, inPlace(val, nullptr, 0)) << val;
        EXPECT_EQ(vlqStsBadSize, call(v, val, out, 0)) << val;
        EXPECT_EQ(vlqStsBadSize, call(v, val, out, -1)) << val;
        EXPECT_EQ(vlqStsBadSize, inPlace(val, out, 0)) << val;
        EXPECT_EQ(vlqStsBadSize, inPlace(val, out, -1)) << val;
    }
    for (const int val : {-1, -width, std::numeric_limits<Vlq32s>::min()}) {
        EXPECT_EQ(vlqStsBadShift, call(v, val, out, 4)) << val;
        EXPECT_EQ(vlqStsBadShift, inPlace(val, out, 4)) << val;
    }
    EXPECT_EQ(T{5}, out[0]);
    EXPECT_EQ(vlqStsOk, call(v, width, out, 3));
    EXPECT_EQ(T{0}, out[2]);
    EXPECT_EQ(T{8}, out[3]);
    if (!clears) {
        v[0] = static_cast<T>(-7);
        EXPECT_EQ(vlqStsOk, call(v, width + 8, out, 2));
        EXPECT_EQ(static_cast<T>(-1), out[0]);
        EXPECT_EQ(T{0}, out[1]);
    }
}

TEST(LShiftC, Values) {
    checkValues<Vlq8u>(vlqsLShiftC_8u, vlqsLShiftC_8u_I, leftShiftRef<Vlq8u>);
    checkValues<Vlq16s>(vlqsLShiftC_16s, vlqsLShiftC_16s_I, leftShiftRef<Vlq16s>);
    checkValues<Vlq16u>(vlqsLShiftC_16u, vlqsLShiftC_16u_I, leftShiftRef<Vlq16u>);
    checkValues<Vlq32s>(vlqsLShiftC_32s, vlqsLShiftC_32s_I, leftShiftRef<Vlq32s>);
}

TEST(RShiftC, Values) {
    checkValues<Vlq8u>(vlqsRShiftC_8u, vlqsRShiftC_8u_I, rightShiftRef<Vlq8u>);
    checkValues<Vlq16s>(vlqsRShiftC_16s, vlqsRShiftC_16s_I, rightShiftRef<Vlq16s>);
    checkValues<Vlq16u>(vlqsRShiftC_16u, vlqsRShiftC_16u_I, rightShiftRef<Vlq16u>);
    checkValues<Vlq32s>(vlqsRShiftC_32s, vlqsRShiftC_32s_I, rightShiftRef<Vlq32s>);
}

TEST(LShiftC, Statuses) {
    checkStatuses<Vlq8u>(vlqsLShiftC_8u, vlqsLShiftC_8u_I, true);
    checkStatuses<Vlq16s>(vlqsLShiftC_16s, vlqsLShiftC_16s_I, true);
    checkStatuses<Vlq16u>(vlqsLShiftC_16u, vlqsLShiftC_16u_I, true);
    checkStatuses<Vlq32s>(vlqsLShiftC_32s, vlqsLShiftC_32s_I, true);
}

TEST(RShiftC, Statuses) {
    checkStatuses<Vlq8u>(vlqsRShiftC_8u, vlqsRShiftC_8u_I, true);
    checkStatuses<Vlq16s>(vlqsRShiftC_16s, vlqsRShiftC_16s_I, false);
    checkStatuses<Vlq16u>(vlqsRShiftC_16u, vlqsRShiftC_16u_I, true);
    checkStatuses<Vlq32s>(vlqsRShiftC_32s, vlqsRShiftC_32s_I, false);
}

}  // namespace
