// Digests of all exact conversions: equal in every build of the library and under every compiler.
// What the results should be is checked elsewhere, against references.
#include "harness/digest.h"

#include <bit>

#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

constexpr int kCount = 2000;

// Floats of every magnitude and both signs, ties and infinities among them.
template <class T>
std::vector<T> fixedFloats(std::size_t count, std::uint64_t state) {
    std::vector<T> values(count);
    for (T& v : values) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const auto halves = static_cast<double>(static_cast<std::int64_t>(state) >> (state % 60));
        v = static_cast<T>(halves / 2);
        if (state % 97 == 0) v = std::numeric_limits<T>::infinity();
    }
    return values;
}
template <class T>
std::vector<T> source(std::size_t count) {
    if constexpr (std::is_floating_point_v<T>)
        return fixedFloats<T>(count, 1);
    else
        return fixedVector<T>(count, 1);
}

// A float counts by its bits.
template <class T>
void addBits(Digest& digest, const std::vector<T>& values) {
    if constexpr (sizeof(T) == 4 && std::is_floating_point_v<T>)
        for (const T v : values) digest.add(std::vector<std::uint32_t>{std::bit_cast<std::uint32_t>(v)});
    else if constexpr (std::is_floating_point_v<T>)
        for (const T v : values) digest.add(std::vector<std::uint64_t>{std::bit_cast<std::uint64_t>(v)});
    else
        digest.add(values);
}

constexpr int kScaleFactors[] = {0,  1,   2,   3,   7,   8,   15,  16,  17,   31,   32,  33, 63,
                                 -1, -2,  -7,  -8,  -15, -16, -31, -32, -126, -127, 126, 127};

// The calls of one function and the digest of all their results. A packed sample is three bytes.
template <class S, class D>
class Calls {
public:
    explicit Calls(bool packedSource = false, bool packedResults = false)
        : src_(source<S>(packedSource ? 3 * kCount : kCount)),
          dst_(packedResults ? 3 * kCount : kCount) {}
    template <class Call>
    void add(Call call) {
        ASSERT_EQ(vlqStsOk, call(src_.data(), dst_.data()));
        addBits(digest_, dst_);
    }
    std::uint64_t value() const { return digest_.value(); }

private:
    std::vector<S> src_;
    std::vector<D> dst_;
    Digest digest_;
};

template <class S, class D, class Length>
std::uint64_t plain(VlqStatus (*call)(const S*, D*, Length), bool packed = false) {
    Calls<S, D> calls(packed);
    calls.add([&](const S* s, D* d) { return call(s, d, Length{kCount}); });
    return calls.value();
}
template <class S, class D>
std::uint64_t scaled(VlqStatus (*call)(const S*, D*, Vlq32s, Vlq32s), bool packed = false) {
    Calls<S, D> calls(false, packed);
    for (const int scale : kScaleFactors)
        calls.add([&](const S* s, D* d) { return call(s, d, kCount, scale); });
    return calls.value();
}
template <class S, class D, class Length>
std::uint64_t byMode(VlqStatus (*call)(const S*, D*, Length, VlqRoundMode, Vlq32s),
                     int lastMode = 2) {
    Calls<S, D> calls;
    for (const int scale : kScaleFactors) {
        for (int mode = 0; mode <= lastMode; ++mode)
            calls.add([&](const S* s, D* d) { return call(s, d, Length{kCount}, mode, scale); });
    }
    return calls.value();
}
template <class S, class D>
std::uint64_t byMode(VlqStatus (*call)(const S*, D*, Vlq32s, VlqRoundMode)) {
    Calls<S, D> calls;
    for (const int mode : {0, 1})
        calls.add([&](const S* s, D* d) { return call(s, d, kCount, mode); });
    return calls.value();
}

TEST(Convert, DigestsOfIntegers) {
    EXPECT_EQ(0u, plain(vlqsConvert_8s16s));
    EXPECT_EQ(0u, plain(vlqsConvert_16s32s));
    EXPECT_EQ(0u, plain(vlqsConvert_32s16s));
    EXPECT_EQ(0u, scaled(vlqsConvert_32s16s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_16s8s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_64s32s_Sfs));
}

TEST(Convert, DigestsToFloats) {
    EXPECT_EQ(0u, plain(vlqsConvert_8s32f));
    EXPECT_EQ(0u, plain(vlqsConvert_8u32f));
    EXPECT_EQ(0u, plain(vlqsConvert_16s32f));
    EXPECT_EQ(0u, plain(vlqsConvert_16u32f));
    EXPECT_EQ(0u, plain(vlqsConvert_32s32f));
    EXPECT_EQ(0u, plain(vlqsConvert_32s64f));
    EXPECT_EQ(0u, plain(vlqsConvert_64s64f));
    EXPECT_EQ(0u, plain(vlqsConvert_32f64f));
    EXPECT_EQ(0u, plain(vlqsConvert_64f32f));
    EXPECT_EQ(0u, scaled(vlqsConvert_16s32f_Sfs));
    EXPECT_EQ(0u, scaled(vlqsConvert_16s64f_Sfs));
    EXPECT_EQ(0u, scaled(vlqsConvert_32s32f_Sfs));
    EXPECT_EQ(0u, scaled(vlqsConvert_32s64f_Sfs));
}

TEST(Convert, DigestsOfFloats) {
    EXPECT_EQ(0u, byMode(vlqsConvert_32f8s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_32f8u_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_32f16s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_32f16u_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_32f32s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_64f16s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_64f32s_Sfs));
    EXPECT_EQ(0u, byMode(vlqsConvert_64f64s_Sfs));
}

TEST(Convert, DigestsOfHalves) {
    EXPECT_EQ(0u, plain(vlqsConvert_16f32f));
    EXPECT_EQ(0u, byMode(vlqsConvert_16s16f));
    EXPECT_EQ(0u, byMode(vlqsConvert_32f16f));
    EXPECT_EQ(0u, byMode(vlqsConvert_16f16s_Sfs, 1));
}

TEST(Convert, DigestsOfPacked24) {
    EXPECT_EQ(0u, plain(vlqsConvert_24s32f, true));
    EXPECT_EQ(0u, plain(vlqsConvert_24s32s, true));
    EXPECT_EQ(0u, plain(vlqsConvert_24u32f, true));
    EXPECT_EQ(0u, plain(vlqsConvert_24u32u, true));
    EXPECT_EQ(0u, scaled(vlqsConvert_32f24s_Sfs, true));
    EXPECT_EQ(0u, scaled(vlqsConvert_32f24u_Sfs, true));
    EXPECT_EQ(0u, scaled(vlqsConvert_32s24s_Sfs, true));
    EXPECT_EQ(0u, scaled(vlqsConvert_32u24u_Sfs, true));
}

// Interleaved samples of one, two and five channels.
template <class S>
std::uint64_t split(VlqStatus (*call)(const S*, Vlq32f* const*, Vlq32s, Vlq32s), int perSample) {
    Digest digest;
    const auto src = fixedVector<S>(static_cast<std::size_t>(kCount * perSample), 1);
    for (const int channels : {1, 2, 5}) {
        std::vector<std::vector<Vlq32f>> rows(5, std::vector<Vlq32f>(kCount));
        Vlq32f* pointers[5] = {};
        for (std::size_t c = 0; c < 5; ++c) pointers[c] = rows[c].data();
        EXPECT_EQ(vlqStsOk, call(src.data(), pointers, channels, kCount / channels));
        for (const auto& row : rows) addBits(digest, row);
    }
    return digest.value();
}
template <class D>
std::uint64_t join(VlqStatus (*call)(Vlq32f* const*, Vlq32s, Vlq32s, D*), int perSample) {
    Digest digest;
    std::vector<std::vector<Vlq32f>> rows;
    Vlq32f* pointers[5] = {};
    for (std::size_t c = 0; c < 5; ++c) {
        rows.push_back(fixedFloats<Vlq32f>(kCount, c + 1));
        for (Vlq32f& v : rows.back()) v = std::fmod(v, 3.0f) / 2;  // some of them beyond -1 and 1
        pointers[c] = rows.back().data();
    }
    for (const int channels : {1, 2, 5}) {
        std::vector<D> dst(static_cast<std::size_t>(kCount * perSample));
        EXPECT_EQ(vlqStsOk, call(pointers, channels, kCount / channels, dst.data()));
        digest.add(dst);
    }
    return digest.value();
}

TEST(Convert, DigestsOfInterleaved) {
    EXPECT_EQ(0u, split(vlqsSplitScaled_16s32f_D2L, 1));
    EXPECT_EQ(0u, split(vlqsSplitScaled_24s32f_D2L, 3));
    EXPECT_EQ(0u, join(vlqsJoinScaled_32f16s_D2L, 1));
    EXPECT_EQ(0u, join(vlqsJoinScaled_32f24s_D2L, 3));
}

}  // namespace
