// Checks of lane-wise operations: random and extreme lanes against the same operation on scalars.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "frame/simd/vec.h"
#include "harness/buffer.h"
#include "harness/random.h"

namespace vlqtest {

class Simd : public ::testing::Test {
protected:
    Rng rng{seed()};
};

template <class T>
bool sameBits(T a, T b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}
template <class T>
bool isNaN(T v) {
    return v != v;
}

// The lanes of a vector or of a block of vectors, in memory order.
template <class T, int B>
std::vector<T> lanesOf(vlq::Vec<T, B> v) {
    std::vector<T> lanes(vlq::Vec<T, B>::lanes);
    std::memcpy(lanes.data(), &v, B);
    return lanes;
}
template <class T, int N>
std::vector<T> lanesOf(const vlq::Block<T, N>& block) {
    std::vector<T> all;
    for (const auto& part : block.part)
        for (const T lane : lanesOf(part)) all.push_back(lane);
    return all;
}

// N vectors of consecutive elements.
template <int N, class T>
vlq::Block<T, N> blockOf(const std::vector<T>& values) {
    vlq::Block<T, N> block;
    for (int i = 0; i < N; ++i) block.part[i] = vlq::load(values.data() + i * vlq::Vec<T>::lanes);
    return block;
}

// Lane for lane, bit for bit; any NaN equals any other.
template <class T, class Want>
::testing::AssertionResult sameLanes(const std::vector<T>& got, const Want& want) {
    for (std::size_t i = 0; i < got.size(); ++i) {
        const T expected = want(i);
        if (!sameBits(got[i], expected) && !(isNaN(got[i]) && isNaN(expected))) {
            return ::testing::AssertionFailure()
                   << "lane " << i << ": " << +got[i] << ", expected " << +expected;
        }
    }
    return ::testing::AssertionSuccess();
}

// vecOp on vectors of B bytes against scalarOp on their lanes.
template <class T, int B = vlq::kVecBytes, class VecOp, class ScalarOp>
void checkUnary(Rng& rng, VecOp vecOp, ScalarOp scalarOp, int rounds = 500) {
    for (int round = 0; round < rounds; ++round) {
        const auto a = extremeVector<T>(vlq::Vec<T, B>::lanes, rng);
        ASSERT_TRUE(sameLanes(lanesOf(vecOp(vlq::load<T, B>(a.data()))),
                              [&](std::size_t i) { return scalarOp(a[i]); }))
            << "of " << ::testing::PrintToString(a);
    }
}
template <class T, int B = vlq::kVecBytes, class VecOp, class ScalarOp>
void checkBinary(Rng& rng, VecOp vecOp, ScalarOp scalarOp, int rounds = 500) {
    for (int round = 0; round < rounds; ++round) {
        const auto a = extremeVector<T>(vlq::Vec<T, B>::lanes, rng),
                   b = extremeVector<T>(vlq::Vec<T, B>::lanes, rng);
        ASSERT_TRUE(sameLanes(lanesOf(vecOp(vlq::load<T, B>(a.data()), vlq::load<T, B>(b.data()))),
                              [&](std::size_t i) { return scalarOp(a[i], b[i]); }))
            << "of " << ::testing::PrintToString(a) << " and " << ::testing::PrintToString(b);
    }
}

// The check for vectors of 16 bytes and of each wider size that the build has.
template <class Check>
void forEachSize(Check check) {
    check(std::integral_constant<int, 16>());
    if constexpr (vlq::kVecBytes >= 32) check(std::integral_constant<int, 32>());
    if constexpr (vlq::kVecBytes >= 64) check(std::integral_constant<int, 64>());
}

}  // namespace vlqtest
