#include "arith/logic_ref.h"

#include "harness/sweep.h"
#include "vlqs/arith.h"

namespace {

using namespace vlqtest;

template <class T, class Call, class InPlace, class Ref>
void checkTwoVectors(Call call, InPlace inPlace, Ref ref) {
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
    });
}

TEST(And, Values) {
    checkTwoVectors<Vlq8u>(vlqsAnd_8u, vlqsAnd_8u_I, andRef<Vlq8u>);
}

TEST(And, Checks) {
    Vlq8u v[4] = {1, 2, 3, 4};
    EXPECT_EQ(vlqStsNullPtr, vlqsAnd_8u(nullptr, v, v, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsAnd_8u(v, nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsAnd_8u(v, v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsAnd_8u(v, v, v, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsAnd_8u_I(v, v, -1));
}

}  // namespace
