// Which passes the in-cache transform of an order takes, and with vectors of how many bytes. The
// first pass transposes and has no twiddles; each later one has a table that it reads forwards.
#pragma once

#include "frame/simd/vec.h"

namespace vlq::fft {

struct PassPlan {
    int bytes;  // of a vector
    int first;  // radix of the first pass: a multiple of a vector's lanes
    int count;  // of the passes after it
    int radix[5];
};

inline constexpr int kFirstPlanned = 6;  // order

// Radices by order from 6, as measured. Radix 16 saves passes over the data where a vector's lanes
// and the number of registers allow; vectors of 16 bytes are better off without.
template <class T, int bytes>
inline constexpr signed char kRadices[10][6] = {
    {8, 8},       {8, 4, 4},       {8, 8, 4},       {8, 8, 8},       {8, 4, 8, 4},
    {8, 8, 8, 4}, {8, 4, 4, 8, 4}, {8, 8, 8, 4, 4}, {8, 4, 8, 8, 8}, {8, 8, 4, 8, 4, 4}};
template <>
inline constexpr signed char kRadices<Vlq32f, 32>[10][6] = {
    {8, 8},        {16, 8},      {16, 4, 4},      {16, 8, 4},       {16, 4, 4, 4},
    {16, 4, 8, 4}, {16, 16, 16}, {8, 4, 8, 8, 4}, {8, 4, 8, 16, 4}, {8, 4, 8, 16, 8}};
template <>
inline constexpr signed char kRadices<Vlq64f, 32>[10][6] = {
    {16, 4},      {8, 4, 4},   {16, 4, 4},   {16, 8, 4},
    {8, 4, 8, 4}, {16, 8, 16}, {8, 8, 8, 8}, {8, 4, 8, 8, 4}};
template <>
inline constexpr signed char kRadices<Vlq32f, 64>[10][6] = {{},
                                                            {},
                                                            {16, 16},
                                                            {16, 8, 4},
                                                            {16, 16, 4},
                                                            {16, 8, 4, 4},
                                                            {16, 16, 16},
                                                            {16, 8, 16, 4},
                                                            {16, 8, 16, 8},
                                                            {16, 8, 16, 4, 4}};
template <>
inline constexpr signed char kRadices<Vlq64f, 64>[10][6] = {
    {8, 8}, {16, 8}, {16, 16}, {8, 16, 4}, {16, 4, 16}, {16, 16, 8}, {8, 8, 16, 4}, {8, 8, 16, 8}};

template <class T, int bytes>
constexpr PassPlan planOf(int order) {
    const signed char* radices = kRadices<T, bytes>[order - kFirstPlanned];
    PassPlan plan{bytes, *radices, 0, {}};
    for (int product = plan.first; product < 1 << order; product *= plan.radix[plan.count++]) {
        plan.radix[plan.count] = radices[plan.count + 1];
    }
    return plan;
}

template <class T>
constexpr PassPlan passPlan(int order) {
    // The first pass fills a square of lanes from the whole length.
    constexpr int lanes = kVecBytes / static_cast<int>(sizeof(T));
    if constexpr (lanes == 16) {
        if (lanes * lanes > 1 << order) return planOf<T, kVecBytes / 2>(order);
    }
    return planOf<T, kVecBytes>(order);
}

// A row of a transform of 16 rows, from groups of 2^spanBits values on: the passes between row and
// work buffer, and the last one in place where it finds its input in the row.
inline constexpr int kFewestRowBits = 2;
inline constexpr signed char kRowRadices[2][9][4] = {
    {{4}, {8}, {4, 4}, {8, 4}, {8, 8}, {8, 4, 4}, {8, 8, 4}, {8, 8, 8}, {8, 8, 4, 4}},
    {{4}, {8}, {16}, {8, 4}, {8, 8}, {8, 16}, {16, 16}, {16, 8, 4}, {16, 16, 4}}};

constexpr PassPlan rowPlan(int order, int spanBits) {
    PassPlan plan{kVecBytes, 1 << spanBits, 0, {}};
    for (const signed char radix : kRowRadices[kVecBytes > 16][order - spanBits - kFewestRowBits]) {
        if (radix > 0) plan.radix[plan.count++] = radix;
    }
    return plan;
}

}  // namespace vlq::fft
