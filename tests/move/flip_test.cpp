// Reversal of vectors.
#include <algorithm>
#include <array>

#include "harness/sweep.h"
#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace {

using namespace vlqtest;

template <class T>
void checkFlip(VlqStatus (*call)(const T*, T*, Vlq32s), VlqStatus (*inPlace)(T*, Vlq32s)) {
    using Element = std::array<Vlq8u, sizeof(T)>;
    sweep(sizeof(T), {1000, 5003}, [&](Case& c) {
        std::vector<Element> values(static_cast<std::size_t>(c.len));
        for (auto& value : values) {
            for (auto& byte : value) byte = static_cast<Vlq8u>(c.rng());
        }
        auto want = values;
        std::reverse(want.begin(), want.end());
        const Buffer<Element> src(values, c.place[1]);
        Buffer<Element> dst(values.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(reinterpret_cast<const T*>(src.data()),
                                 reinterpret_cast<T*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, want));
        ASSERT_TRUE(same(src, values));
        dst.assign(values);
        ASSERT_EQ(vlqStsOk, inPlace(reinterpret_cast<T*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    T v[2] = {}, out[2] = {};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, out, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, out, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, out, -1));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, -1));
}

TEST(Flip, Bytes) { checkFlip<Vlq8u>(vlqsFlip_8u, vlqsFlip_8u_I); }
TEST(Flip, Words) { checkFlip<Vlq16u>(vlqsFlip_16u, vlqsFlip_16u_I); }
TEST(Flip, Reals) {
    checkFlip<Vlq32f>(vlqsFlip_32f, vlqsFlip_32f_I);
    checkFlip<Vlq64f>(vlqsFlip_64f, vlqsFlip_64f_I);
}
TEST(Flip, Complex) {
    checkFlip<Vlq32fc>(vlqsFlip_32fc, vlqsFlip_32fc_I);
    checkFlip<Vlq64fc>(vlqsFlip_64fc, vlqsFlip_64fc_I);
}

}  // namespace
