// Calls whose vectors exceed the cache, which store around it: their results are those of short
// calls, at every kind of alignment of the destination. Some operations do so, others do not.
#include "harness/effort.h"
#include "vlqs/arith.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

// The library takes no cache for larger than 32 MiB, and streams from half as much again on.
constexpr std::size_t kBytes = std::size_t{48} << 20;

// Values repeat with a period that is no power of two.
template <class T>
std::vector<T> periodic(std::size_t count, Rng& rng) {
    const auto some = extremeElements<T>(9973, rng);
    std::vector<T> values(count);
    for (std::size_t i = 0; i < count; ++i) values[i] = some[i % some.size()];
    return values;
}

// call(a, b, dst, len) for one source type and one destination type.
template <class S, class D, class Call>
void checkLong(Call call, VlqStatus status = vlqStsOk) {
    if (effort() == Effort::quick) GTEST_SKIP() << "long vectors";
    const std::size_t count = kBytes / (2 * sizeof(S) + sizeof(D)) + 1001;
    Rng rng(seed());
    auto a = periodic<S>(count, rng);
    const auto b = periodic<S>(count, rng);
    if (status != vlqStsOk) a.back() = S{};
    constexpr std::size_t shortLength = 4096;
    std::vector<D> want(count);
    for (std::size_t i = 0; i < count; i += shortLength) {
        const auto len = static_cast<int>(std::min(shortLength, count - i));
        ASSERT_GE(call(a.data() + i, b.data() + i, want.data() + i, len), vlqStsOk);
    }
    for (const int offset : {0, static_cast<int>(sizeof(D)), 1}) {
        Buffer<D> dst(count, {offset, false});
        ASSERT_EQ(status, call(a.data(), b.data(), dst.data(), static_cast<int>(count)));
        ASSERT_TRUE(dst.marginsIntact());
        ASSERT_EQ(0, std::memcmp(dst.data(), want.data(), count * sizeof(D))) << offset;
    }
    if constexpr (std::is_same_v<S, D>) {
        Buffer<D> dst(b);
        ASSERT_EQ(status, call(a.data(), dst.data(), dst.data(), static_cast<int>(count)));
        ASSERT_EQ(0, std::memcmp(dst.data(), want.data(), count * sizeof(D))) << "in place";
    }
}

TEST(Streaming, OneType) { checkLong<Vlq32f, Vlq32f>(vlqsAdd_32f); }
TEST(Streaming, Widening) { checkLong<Vlq8u, Vlq16u>(vlqsAdd_8u16u); }
TEST(Streaming, Narrowing) {
    checkLong<Vlq32f, Vlq16s>([](const Vlq32f* src, const Vlq32f*, Vlq16s* dst, int len) {
        return vlqsConvert_32f16s_Sfs(src, dst, len, vlqRndNear, 2);
    });
}
TEST(Streaming, ComplexDoubles) {
    checkLong<Vlq64fc, Vlq64fc>([](const Vlq64fc* src, const Vlq64fc*, Vlq64fc* dst, int len) {
        return vlqsAddC_64fc(src, {1, -2}, dst, len);
    });
}
// A zero divisor at the very end is noticed.
TEST(Streaming, WatchedDivisors) {
    checkLong<Vlq16u, Vlq16u>([](const Vlq16u* a, const Vlq16u* b, Vlq16u* dst,
                                 int len) { return vlqsDiv_16u_Sfs(a, b, dst, len, -3); },
                              vlqStsWarnDivByZero);
    checkLong<Vlq32fc, Vlq32fc>(vlqsDiv_32fc, vlqStsWarnDivByZero);
}

}  // namespace
