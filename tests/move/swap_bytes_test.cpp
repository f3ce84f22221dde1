// Reversed byte order.
#include <algorithm>
#include <array>

#include "harness/sweep.h"
#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace {

using namespace vlqtest;

template <std::size_t Size, class T>
void checkSwap(VlqStatus (*call)(const T*, T*, Vlq32s), VlqStatus (*inPlace)(T*, Vlq32s)) {
    using Element = std::array<Vlq8u, Size>;
    sweep(Size, {1000, 5003}, [&](Case& c) {
        std::vector<Element> values(static_cast<std::size_t>(c.len));
        for (auto& value : values) {
            for (auto& byte : value) byte = static_cast<Vlq8u>(c.rng());
        }
        auto want = values;
        for (auto& value : want) std::reverse(value.begin(), value.end());
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
    T v[4] = {}, out[4] = {};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, out, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, out, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, out, -1));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, -1));
}

TEST(SwapBytes, Words) { checkSwap<2, Vlq16u>(vlqsSwapBytes_16u, vlqsSwapBytes_16u_I); }
TEST(SwapBytes, Triples) { checkSwap<3, Vlq8u>(vlqsSwapBytes_24u, vlqsSwapBytes_24u_I); }
TEST(SwapBytes, DoubleWords) { checkSwap<4, Vlq32u>(vlqsSwapBytes_32u, vlqsSwapBytes_32u_I); }
TEST(SwapBytes, QuadWords) { checkSwap<8, Vlq64u>(vlqsSwapBytes_64u, vlqsSwapBytes_64u_I); }

}  // namespace
