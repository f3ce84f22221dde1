// Zero, set, copy and move, also where the two vectors overlap.
#include <array>

#include "harness/sweep.h"
#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace {

using namespace vlqtest;

// An element as its bytes: the functions under test move bits and nothing else.
template <std::size_t N>
using Element = std::array<std::uint8_t, N>;

template <std::size_t N>
std::vector<Element<N>> randomElements(int len, Rng& rng) {
    std::vector<Element<N>> values(static_cast<std::size_t>(len));
    for (auto& value : values) {
        for (auto& byte : value) byte = static_cast<std::uint8_t>(rng());
    }
    return values;
}

template <class T>
using Clear = VlqStatus (*)(T*, Vlq32s);
template <class T>
using Fill = VlqStatus (*)(T, T*, Vlq32s);
template <class T>
using CopyCall = VlqStatus (*)(const T*, T*, Vlq32s);

// Bytes at which the kernels change their way, and one beyond.
std::vector<int> longLengths(std::size_t elementBytes) {
    std::vector<int> lengths;
    for (const std::size_t bytes : {1024u, 2048u, 4096u, 16384u, 65536u}) {
        const int n = static_cast<int>(bytes / elementBytes);
        lengths.insert(lengths.end(), {n - 1, n, n + 1});
    }
    lengths.push_back(static_cast<int>(200000 / elementBytes));
    return lengths;
}

template <class T>
void checkClear(Clear<T> clear) {
    constexpr std::size_t size = sizeof(T);
    sweep(size, longLengths(size), [&](Case& c) {
        Buffer<Element<size>> dst(randomElements<size>(c.len, c.rng), c.place[0]);
        ASSERT_EQ(vlqStsOk, clear(reinterpret_cast<T*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, std::vector<Element<size>>(static_cast<std::size_t>(c.len))));
    });
    T one[2] = {};
    EXPECT_EQ(vlqStsNullPtr, clear(nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, clear(one, 0));
    EXPECT_EQ(vlqStsBadSize, clear(one, -1));
}

template <class T>
void checkFill(Fill<T> fill) {
    constexpr std::size_t size = sizeof(T);
    sweep(size, longLengths(size), [&](Case& c) {
        const auto value = randomElements<size>(1, c.rng)[0];
        T typed;
        std::memcpy(&typed, &value, size);
        Buffer<Element<size>> dst(static_cast<std::size_t>(c.len), c.place[0]);
        ASSERT_EQ(vlqStsOk, fill(typed, reinterpret_cast<T*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, std::vector<Element<size>>(static_cast<std::size_t>(c.len), value)));
    });
    T one[2] = {};
    EXPECT_EQ(vlqStsNullPtr, fill(one[0], nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, fill(one[0], one, 0));
    EXPECT_EQ(vlqStsBadSize, fill(one[0], one, -1));
}

template <class T>
void checkCopy(CopyCall<T> copy) {
    constexpr std::size_t size = sizeof(T);
    sweep(size, longLengths(size), [&](Case& c) {
        const auto values = randomElements<size>(c.len, c.rng);
        const Buffer<Element<size>> src(values, c.place[1]);
        Buffer<Element<size>> dst(values.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, copy(reinterpret_cast<const T*>(src.data()),
                                 reinterpret_cast<T*>(dst.data()), c.len));
        ASSERT_TRUE(same(dst, values));
        ASSERT_TRUE(same(src, values));
    });
    T one[2] = {}, two[2] = {};
    EXPECT_EQ(vlqStsNullPtr, copy(nullptr, one, 0));
    EXPECT_EQ(vlqStsNullPtr, copy(one, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, copy(one, two, 0));
    EXPECT_EQ(vlqStsBadSize, copy(one, two, -1));
}

TEST(Zero, Values) {
    checkClear<Vlq8u>(vlqsZero_8u);
    checkClear<Vlq16s>(vlqsZero_16s);
    checkClear<Vlq16sc>(vlqsZero_16sc);
    checkClear<Vlq32s>(vlqsZero_32s);
    checkClear<Vlq32f>(vlqsZero_32f);
    checkClear<Vlq32sc>(vlqsZero_32sc);
    checkClear<Vlq32fc>(vlqsZero_32fc);
    checkClear<Vlq64s>(vlqsZero_64s);
    checkClear<Vlq64f>(vlqsZero_64f);
    checkClear<Vlq64sc>(vlqsZero_64sc);
    checkClear<Vlq64fc>(vlqsZero_64fc);
}

TEST(Set, Values) {
    checkFill<Vlq8u>(vlqsSet_8u);
    checkFill<Vlq16s>(vlqsSet_16s);
    checkFill<Vlq16sc>(vlqsSet_16sc);
    checkFill<Vlq32s>(vlqsSet_32s);
    checkFill<Vlq32f>(vlqsSet_32f);
    checkFill<Vlq32sc>(vlqsSet_32sc);
    checkFill<Vlq32fc>(vlqsSet_32fc);
    checkFill<Vlq64s>(vlqsSet_64s);
    checkFill<Vlq64f>(vlqsSet_64f);
    checkFill<Vlq64sc>(vlqsSet_64sc);
    checkFill<Vlq64fc>(vlqsSet_64fc);
}

// A signalling NaN keeps its bits.
TEST(Set, SignallingNaN) {
    const std::uint32_t bits = 0x7FA12345u;
    Vlq32f value;
    std::memcpy(&value, &bits, 4);
    for (const int len : {1, 3, 100}) {
        std::vector<Vlq32f> dst(static_cast<std::size_t>(len));
        ASSERT_EQ(vlqStsOk, vlqsSet_32f(value, dst.data(), len));
        for (const Vlq32f& element : dst) ASSERT_EQ(0, std::memcmp(&element, &bits, 4));
    }
    const std::uint64_t longBits = 0x7FF4000000000001u;
    Vlq64f longValue;
    std::memcpy(&longValue, &longBits, 8);
    for (const int len : {1, 3, 100}) {
        std::vector<Vlq64f> dst(static_cast<std::size_t>(len));
        ASSERT_EQ(vlqStsOk, vlqsSet_64f(longValue, dst.data(), len));
        for (const Vlq64f& element : dst) ASSERT_EQ(0, std::memcmp(&element, &longBits, 8));
    }
}

TEST(Copy, Values) {
    checkCopy<Vlq8u>(vlqsCopy_8u);
    checkCopy<Vlq16s>(vlqsCopy_16s);
    checkCopy<Vlq16sc>(vlqsCopy_16sc);
    checkCopy<Vlq32s>(vlqsCopy_32s);
    checkCopy<Vlq32f>(vlqsCopy_32f);
    checkCopy<Vlq32sc>(vlqsCopy_32sc);
    checkCopy<Vlq32fc>(vlqsCopy_32fc);
    checkCopy<Vlq64s>(vlqsCopy_64s);
    checkCopy<Vlq64f>(vlqsCopy_64f);
    checkCopy<Vlq64sc>(vlqsCopy_64sc);
    checkCopy<Vlq64fc>(vlqsCopy_64fc);
}

TEST(Move, Values) {
    checkCopy<Vlq8u>(vlqsMove_8u);
    checkCopy<Vlq16s>(vlqsMove_16s);
    checkCopy<Vlq16sc>(vlqsMove_16sc);
    checkCopy<Vlq32s>(vlqsMove_32s);
    checkCopy<Vlq32f>(vlqsMove_32f);
    checkCopy<Vlq32sc>(vlqsMove_32sc);
    checkCopy<Vlq32fc>(vlqsMove_32fc);
    checkCopy<Vlq64s>(vlqsMove_64s);
    checkCopy<Vlq64f>(vlqsMove_64f);
    checkCopy<Vlq64sc>(vlqsMove_64sc);
    checkCopy<Vlq64fc>(vlqsMove_64fc);
}

// Every distance, so that each kernel meets each overlap.
TEST(Move, Overlap) {
    Rng rng(seed());
    constexpr int kFarthest = 200;
    for (const int len :
         {1,   2,   3,   7,   8,   15,  16,  17,  31,  32,  33,  63,   64,   65,  100,
          127, 128, 129, 255, 256, 257, 400, 511, 512, 513, 700, 1500, 4099, 9000}) {
        for (int distance = -kFarthest; distance <= kFarthest; ++distance) {
            const auto values =
                extremeVector<Vlq8u>(static_cast<std::size_t>(len + 2 * kFarthest), rng);
            Buffer<Vlq8u> field(values, {static_cast<int>(rng() % 64), rng() % 4 == 0});
            auto want = values;
            std::copy(values.begin() + kFarthest, values.begin() + kFarthest + len,
                      want.begin() + kFarthest + distance);
            Vlq8u* src = field.data() + kFarthest;
            ASSERT_EQ(vlqStsOk, vlqsMove_8u(src, src + distance, len));
            ASSERT_TRUE(same(field, want)) << "len " << len << ", distance " << distance;
        }
    }
}

TEST(Move, OneElementUpKeepsTheSequence) {
    std::vector<Vlq32s> v(101);
    for (int i = 0; i < 101; ++i) v[static_cast<std::size_t>(i)] = i;
    ASSERT_EQ(vlqStsOk, vlqsMove_32s(v.data(), v.data() + 1, 100));
    EXPECT_EQ(0, v[0]);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(i, v[static_cast<std::size_t>(i) + 1]);
}

// Long enough for non-temporal stores on every processor.
class Huge : public ::testing::Test {
protected:
    static constexpr int kBytes = 160 << 20;
    static std::vector<std::uint64_t> numbers(std::size_t bytes) {
        std::vector<std::uint64_t> v(bytes / 8 + 32);
        for (std::size_t i = 0; i < v.size(); ++i) v[i] = i * 0x9E3779B97F4A7C15u;
        return v;
    }
};

TEST_F(Huge, CopyAndMove) {
    const auto src = numbers(kBytes);
    const auto* from = reinterpret_cast<const Vlq8u*>(src.data());
    std::vector<Vlq8u> dst(kBytes + 128);
    for (const auto& [fromOffset, toOffset] : {std::pair{0, 0}, {3, 0}, {0, 5}, {9, 61}}) {
        for (const int len : {kBytes, 5 << 20, (20 << 20) + 77}) {
            for (const auto call : {vlqsCopy_8u, vlqsMove_8u}) {
                std::memset(dst.data(), 0xC3, static_cast<std::size_t>(len) + 128);
                ASSERT_EQ(vlqStsOk, call(from + fromOffset, dst.data() + toOffset, len));
                ASSERT_EQ(0, std::memcmp(from + fromOffset, dst.data() + toOffset,
                                         static_cast<std::size_t>(len)));
                for (int i = 0; i < toOffset; ++i)
                    ASSERT_EQ(0xC3, dst[static_cast<std::size_t>(i)]);
                for (int i = 0; i < 64; ++i)
                    ASSERT_EQ(0xC3, dst[static_cast<std::size_t>(toOffset + len + i)]);
            }
        }
    }
}

TEST_F(Huge, OverlappingMove) {
    const auto original = numbers(kBytes);
    auto field = original;
    auto* bytes = reinterpret_cast<Vlq8u*>(field.data());
    const auto* want = reinterpret_cast<const Vlq8u*>(original.data());
    ASSERT_EQ(vlqStsOk, vlqsMove_8u(bytes, bytes + 13, kBytes));
    ASSERT_EQ(0, std::memcmp(bytes + 13, want, kBytes));
    ASSERT_EQ(vlqStsOk, vlqsMove_8u(bytes + 13, bytes, kBytes));
    ASSERT_EQ(0, std::memcmp(bytes, want, kBytes));
}

TEST_F(Huge, Fill) {
    std::vector<Vlq8u> dst(kBytes + 128, 0xC3);
    for (const int offset : {0, 16, 5}) {
        const Vlq64fc value{1.5, -2.5};
        const int len = kBytes / 16;
        ASSERT_EQ(vlqStsOk,
                  vlqsSet_64fc(value, reinterpret_cast<Vlq64fc*>(dst.data() + offset), len));
        for (int i = 0; i < len; ++i) {
            ASSERT_EQ(0, std::memcmp(&value,
                                     dst.data() + offset + 16 * static_cast<std::ptrdiff_t>(i), 16))
                << i;
        }
        for (int i = 0; i < offset; ++i) ASSERT_EQ(0xC3, dst[static_cast<std::size_t>(i)]);
        for (int i = 0; i < 64; ++i)
            ASSERT_EQ(0xC3, dst[static_cast<std::size_t>(kBytes + offset + i)]);
        ASSERT_EQ(vlqStsOk, vlqsZero_8u(dst.data() + offset, kBytes - 3));
        for (int i = 0; i < kBytes - 3; i += 7)
            ASSERT_EQ(0, dst[static_cast<std::size_t>(i + offset)]);
        ASSERT_EQ(0xC0, dst[static_cast<std::size_t>(kBytes + offset - 1)])
            << "the last byte of the fill";
        std::fill(dst.begin(), dst.end(), 0xC3);
    }
}

}  // namespace
