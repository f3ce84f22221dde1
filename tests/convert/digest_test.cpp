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
        for (const T v : values)
            digest.add(std::vector<std::uint32_t>{std::bit_cast<std::uint32_t>(v)});
    else if constexpr (std::is_floating_point_v<T>)
        for (const T v : values)
            digest.add(std::vector<std::uint64_t>{std::bit_cast<std::uint64_t>(v)});
    else
        digest.add(values);
}

constexpr int kScaleFactors[] = {0,  1,  2,  3,  7,   8,   15,  16,  17,   31,   32,  33, 63,
                                 -1, -2, -7, -8, -15, -16, -31, -32, -126, -127, 126, 127};

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
    EXPECT_EQ(0x2af6e7614f665736u, plain(vlqsConvert_8s16s));
    EXPECT_EQ(0xe2ba6c6f099f32c0u, plain(vlqsConvert_16s32s));
    EXPECT_EQ(0x195b95a0bdf21689u, plain(vlqsConvert_32s16s));
    EXPECT_EQ(0x1b0a33ffb004138fu, scaled(vlqsConvert_32s16s_Sfs));
    EXPECT_EQ(0x811232eb32823eeau, byMode(vlqsConvert_16s8s_Sfs));
    EXPECT_EQ(0x0c70a8a7d13660d4u, byMode(vlqsConvert_64s32s_Sfs));
}

TEST(Convert, DigestsToFloats) {
    EXPECT_EQ(0x226bae319fa6fed0u, plain(vlqsConvert_8s32f));
    EXPECT_EQ(0x8074a789852edbcfu, plain(vlqsConvert_8u32f));
    EXPECT_EQ(0xbdbe267205c9c4abu, plain(vlqsConvert_16s32f));
    EXPECT_EQ(0x8b1c7ff9f995cac4u, plain(vlqsConvert_16u32f));
    EXPECT_EQ(0xd05739aafd3852ecu, plain(vlqsConvert_32s32f));
    EXPECT_EQ(0x519689b126c6dcbeu, plain(vlqsConvert_32s64f));
    EXPECT_EQ(0x45d0c1b2a63fc40fu, plain(vlqsConvert_64s64f));
    EXPECT_EQ(0xe94ee1395b21050du, plain(vlqsConvert_32f64f));
    EXPECT_EQ(0x951cf6132a3b237bu, plain(vlqsConvert_64f32f));
    EXPECT_EQ(0x28087066a1af3fe7u, scaled(vlqsConvert_16s32f_Sfs));
    EXPECT_EQ(0x6dcef3326befdbd3u, scaled(vlqsConvert_16s64f_Sfs));
    EXPECT_EQ(0x234c571ba7afc6c7u, scaled(vlqsConvert_32s32f_Sfs));
    EXPECT_EQ(0xa76f3c30eabd8d22u, scaled(vlqsConvert_32s64f_Sfs));
}

TEST(Convert, DigestsOfFloats) {
    EXPECT_EQ(0x32bcfe984ce22ff6u, byMode(vlqsConvert_32f8s_Sfs));
    EXPECT_EQ(0x86c64d1e5e615535u, byMode(vlqsConvert_32f8u_Sfs));
    EXPECT_EQ(0x100bc8f16b867d97u, byMode(vlqsConvert_32f16s_Sfs));
    EXPECT_EQ(0x980f8c03574de2d2u, byMode(vlqsConvert_32f16u_Sfs));
    EXPECT_EQ(0xe9976fc90e776d61u, byMode(vlqsConvert_32f32s_Sfs));
    EXPECT_EQ(0xf0497c45898fe53bu, byMode(vlqsConvert_64f16s_Sfs));
    EXPECT_EQ(0x8b7e04de0760b969u, byMode(vlqsConvert_64f32s_Sfs));
    EXPECT_EQ(0x72ca69883d193792u, byMode(vlqsConvert_64f64s_Sfs));
}

TEST(Convert, DigestsOfHalves) {
    EXPECT_EQ(0xd573e5a93977a9ffu, plain(vlqsConvert_16f32f));
    EXPECT_EQ(0xd0be4adb7794eefeu, byMode(vlqsConvert_16s16f));
    EXPECT_EQ(0x4f6dbd2c5d3af306u, byMode(vlqsConvert_32f16f));
    EXPECT_EQ(0xf08d47559e541104u, byMode(vlqsConvert_16f16s_Sfs, 1));
}

TEST(Convert, DigestsOfPacked24) {
    EXPECT_EQ(0xfead37d603c4b620u, plain(vlqsConvert_24s32f, true));
    EXPECT_EQ(0x73cb9e11c043efa1u, plain(vlqsConvert_24s32s, true));
    EXPECT_EQ(0x455913f53ae3f9b1u, plain(vlqsConvert_24u32f, true));
    EXPECT_EQ(0x791f118d76bc3759u, plain(vlqsConvert_24u32u, true));
    EXPECT_EQ(0x6e7a59f4a713d96bu, scaled(vlqsConvert_32f24s_Sfs, true));
    EXPECT_EQ(0xfc0cc5b194a2a38du, scaled(vlqsConvert_32f24u_Sfs, true));
    EXPECT_EQ(0xc870430d9b4c69bau, scaled(vlqsConvert_32s24s_Sfs, true));
    EXPECT_EQ(0x723ac9223a6aa502u, scaled(vlqsConvert_32u24u_Sfs, true));
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
    EXPECT_EQ(0x1369cee96dfa40aeu, split(vlqsSplitScaled_16s32f_D2L, 1));
    EXPECT_EQ(0x4fb092b6a39a8d96u, split(vlqsSplitScaled_24s32f_D2L, 3));
    EXPECT_EQ(0xfa93f5ae17d67b76u, join(vlqsJoinScaled_32f16s_D2L, 1));
    EXPECT_EQ(0xa3fb3ea30ab22f48u, join(vlqsJoinScaled_32f24s_D2L, 3));
}

}  // namespace
