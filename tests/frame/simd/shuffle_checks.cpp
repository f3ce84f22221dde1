// permute.h, complex.h, interleaved.h, split.h and transpose.h: which lane goes where.
#include "frame/simd/complex.h"
#include "frame/simd/interleaved.h"
#include "frame/simd/lanes.h"
#include "frame/simd/permute.h"
#include "frame/simd/split.h"

namespace {

using namespace vlq;
using namespace vlqtest;

// The lane numbers from `first` on: a result then shows where each lane came from.
template <class T, int B = kVecBytes>
Vec<T, B> numbered(int first = 0) {
    return laneIndices<T, B>() + Vec<T, B>::broadcast(static_cast<T>(first));
}
// Lane i of the vector is the number from(i).
template <class T, int B, class From>
::testing::AssertionResult comesFrom(Vec<T, B> v, From from) {
    return sameLanes(lanesOf(v),
                     [&](std::size_t i) { return static_cast<T>(from(static_cast<int>(i))); });
}

// ---- permute.h ----------------------------------------------------------------------------------
template <int Size, int B>
void checkReversed() {
    constexpr int count = B / Size;
    EXPECT_TRUE(comesFrom(reversed<Size>(numbered<std::uint8_t, B>()),
                          [](int i) { return (count - 1 - i / Size) * Size + i % Size; }))
        << Size << " of " << B;
}

template <class T, int B>
void checkByteSwapped() {
    constexpr int size = sizeof(T);
    EXPECT_TRUE(
        comesFrom(bitCast<std::uint8_t>(byteSwapped(bitCast<T>(numbered<std::uint8_t, B>()))),
                  [](int i) { return i / size * size + (size - 1 - i % size); }));
}

TEST_F(Simd, Permutations) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        checkReversed<1, B>();
        checkReversed<2, B>();
        checkReversed<4, B>();
        checkReversed<8, B>();
        checkReversed<16, B>();
        checkByteSwapped<std::uint16_t, B>();
        checkByteSwapped<std::uint32_t, B>();
        checkByteSwapped<std::uint64_t, B>();
        EXPECT_TRUE(
            comesFrom(firstBytes<16>(numbered<std::uint8_t, B>()), [](int i) { return i; }));
        EXPECT_EQ(0x0706050403020100u, firstWord(numbered<std::uint8_t, B>()));
    });
    EXPECT_TRUE(comesFrom(tripleBytesSwapped(numbered<std::uint8_t, 16>()),
                          [](int i) { return i == 15 ? 15 : i / 3 * 3 + 2 - i % 3; }));
    EXPECT_TRUE(comesFrom(alternating(-7, 9), [](int i) { return i % 2 ? 9 : -7; }));
}

// ---- interleaved complex values -----------------------------------------------------------------
template <class T>
void checkComplex() {
    const auto v = numbered<T>();
    EXPECT_TRUE(comesFrom(realParts(v), [](int i) { return i & ~1; }));
    EXPECT_TRUE(comesFrom(imaginaryParts(v), [](int i) { return i | 1; }));
    EXPECT_TRUE(comesFrom(swapParts(v), [](int i) { return i ^ 1; }));
    EXPECT_TRUE(comesFrom(subtractAdd(numbered<T>(100), v),
                          [](int i) { return i % 2 ? 100 + 2 * i : 100; }));
    EXPECT_TRUE(comesFrom(broadcastPair(T(3), T(5)), [](int i) { return i % 2 ? 5 : 3; }));
    alignas(16) T memory[16 / sizeof(T)];
    for (int i = 0; i < static_cast<int>(std::size(memory)); ++i) memory[i] = T(i + 1);
    EXPECT_TRUE(comesFrom(repeatAligned16(memory),
                          [](int i) { return i % static_cast<int>(16 / sizeof(T)) + 1; }));
    forEachSize([&](auto size) {
        constexpr int B = size;
        constexpr int lanes = Vec<T, B>::lanes;
        EXPECT_TRUE(comesFrom(exchangeParts(numbered<T, B>()), [](int i) { return i ^ 1; }));
        if constexpr (sizeof(T) == 8) {
            EXPECT_TRUE(
                comesFrom(valuesBackwardAcross(numbered<T, B>(), numbered<T, B>(lanes)), [](int i) {
                    // Values are pairs of lanes: that of next, then the last one of v downwards.
                    const int value = lanes / 2 - i / 2;
                    return 2 * value + i % 2;
                }));
        }
        Vec<T, B> rows[lanes / 2];
        for (int r = 0; r < lanes / 2; ++r) rows[r] = numbered<T, B>(100 * r);
        transposeValues(rows);
        for (int r = 0; r < lanes / 2; ++r)
            EXPECT_TRUE(comesFrom(rows[r], [r](int i) { return 100 * (i / 2) + 2 * r + i % 2; }));
    });
}

TEST_F(Simd, InterleavedComplex) {
    checkComplex<float>();
    checkComplex<double>();
    const auto both = twice(numbered<float>());
    const auto bothIntegers = twice(numbered<std::int32_t>());
    for (int p = 0; p < 2; ++p) {
        const int first = p * Vec<float>::lanes / 2;
        EXPECT_TRUE(comesFrom(both.part[p], [=](int i) { return first + i / 2; }));
        EXPECT_TRUE(comesFrom(bothIntegers.part[p], [=](int i) { return first + i / 2; }));
    }
}

// ---- split.h ------------------------------------------------------------------------------------
template <class T, int B>
void checkSplit() {
    constexpr int lanes = Vec<T, B>::lanes;
    T memory[2 * lanes], back[2 * lanes];
    for (int i = 0; i < 2 * lanes; ++i) memory[i] = T(i);
    const auto backEqual = [&] { return std::equal(memory, memory + 2 * lanes, back); };

    const auto forward = loadSplit<T, B>(memory);
    EXPECT_TRUE(comesFrom(forward.re, [](int i) { return 2 * splitLane<T, B>(i); }));
    EXPECT_TRUE(comesFrom(forward.im, [](int i) { return 2 * splitLane<T, B>(i) + 1; }));
    storeSplit(back, forward);
    EXPECT_TRUE(backEqual());

    const auto backward = loadSplitBackward<T, B>(memory);
    EXPECT_TRUE(comesFrom(backward.re, [](int i) { return 2 * (lanes - 1 - splitLane<T, B>(i)); }));
    EXPECT_TRUE(
        comesFrom(backward.im, [](int i) { return 2 * (lanes - 1 - splitLane<T, B>(i)) + 1; }));
    storeSplitBackward(back, backward);
    EXPECT_TRUE(backEqual());

    const auto order = toSplitLanes(numbered<T, B>());
    EXPECT_TRUE(comesFrom(order, [](int i) { return splitLane<T, B>(i); }));
    EXPECT_TRUE(comesFrom(fromSplitLanes(order), [](int i) { return i; }));

    // Runs of values in that order.
    const auto run = toSplitLanes(numbered<T, B>()), next = toSplitLanes(numbered<T, B>(lanes));
    EXPECT_TRUE(
        comesFrom(withFirst(run, next), [](int i) { return i == 0 ? lanes : splitLane<T, B>(i); }));
    EXPECT_TRUE(comesFrom(fromSplitLanes(laterRun(run, next)), [](int i) { return i + 1; }));
    EXPECT_TRUE(
        comesFrom(fromSplitLanes(lastToFront(run)), [](int i) { return (i + lanes - 1) % lanes; }));
    EXPECT_TRUE(comesFrom(fromSplitLanes(reverseRun(run)), [](int i) { return lanes - 1 - i; }));
    if constexpr (B == 16) {
        EXPECT_TRUE(comesFrom(backwardAcross(run, next), [](int i) { return lanes - i; }));
    }
}

TEST_F(Simd, SplitComplex) {
    forEachSize([&](auto size) {
        checkSplit<float, size>();
        checkSplit<double, size>();
    });
}

// ---- transpose.h --------------------------------------------------------------------------------
template <class T, int B>
void checkTranspose() {
    constexpr int lanes = Vec<T, B>::lanes;
    Vec<T, B> rows[lanes];
    for (int r = 0; r < lanes; ++r) rows[r] = numbered<T, B>(lanes * r);
    transpose(rows);
    for (int r = 0; r < lanes; ++r)
        EXPECT_TRUE(comesFrom(rows[r], [r](int i) { return lanes * i + r; }));
}

TEST_F(Simd, Transpositions) {
    forEachSize([&](auto size) {
        constexpr int B = size;
        checkTranspose<float, B>();
        checkTranspose<double, B>();
        Vec<std::int32_t, B> rows[4];
        for (int r = 0; r < 4; ++r) rows[r] = numbered<std::int32_t, B>(100 * r);
        transposeBlocks(rows);
        for (int r = 0; r < 4; ++r)
            EXPECT_TRUE(comesFrom(rows[r], [r](int i) { return 100 * (i % 4) + i / 4 * 4 + r; }));
        auto a = numbered<std::int32_t, B>(), b = numbered<std::int32_t, B>(100);
        interleaveBlocks(a, b);
        EXPECT_TRUE(comesFrom(a, [](int i) { return i % 2 * 100 + i / 4 * 4 + i % 4 / 2; }));
        EXPECT_TRUE(comesFrom(b, [](int i) { return i % 2 * 100 + i / 4 * 4 + i % 4 / 2 + 2; }));
        // Blocks of four, seven apart.
        float memory[4 * 7];
        for (int i = 0; i < 28; ++i) memory[i] = static_cast<float>(i);
        const auto blocks = loadBlocks<B>(memory, 7);
        EXPECT_TRUE(comesFrom(blocks, [](int i) { return i / 4 * 7 + i % 4; }));
        float written[4 * 7] = {};
        storeBlocks(written, 7, blocks);
        for (int i = 0; i < 28; ++i)
            EXPECT_EQ(i % 7 < 4 && i < B / 16 * 7 ? memory[i] : 0.0f, written[i]) << i;
    });
}

}  // namespace
