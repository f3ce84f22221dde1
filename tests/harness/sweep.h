// The sweep that every element-wise check runs through: each length up to two of the widest
// unrolled blocks, each byte offset of each vector, every fourth case flush against a guard page.
// A quick run (harness/effort.h) takes the shortest lengths and a choice of the others.
#pragma once

#include <functional>
#include <string>

#include "harness/buffer.h"
#include "harness/random.h"

namespace vlqtest {

struct Case {
    int len;
    Placement place[4];
    Rng rng;  // seeded per case: a failing case repeats by itself
    std::string describe() const;
};

// Runs `check` over all cases for elements of `elementBytes` bytes; `extraLengths` are the
// family's thresholds and one long vector. Stops at the first case that fails.
void sweep(int elementBytes, const std::vector<int>& extraLengths,
           const std::function<void(Case&)>& check);

}  // namespace vlqtest
