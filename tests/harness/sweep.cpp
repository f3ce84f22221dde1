// The cases of the sweep, and how a failing one is reported.
#include "harness/sweep.h"

#include <sstream>

#include "harness/effort.h"

namespace vlqtest {
namespace {

constexpr int kWidestUnrolledBlock = 4 * 64;  // bytes

bool run(int len, int index, const int (&offset)[4], const std::function<void(Case&)>& check) {
    Case c{len, {}, Rng(seed() + static_cast<std::uint64_t>(index) * 0x9E3779B97F4A7C15u)};
    for (int i = 0; i < 4; ++i) c.place[i] = {offset[i], index % 4 == 3};
    check(c);
    if (::testing::Test::HasFailure()) {
        ADD_FAILURE() << "in the case " << c.describe();
        return false;
    }
    return true;
}

}  // namespace

std::string Case::describe() const {
    std::ostringstream text;
    text << "len " << len << ", seed " << seed();
    if (place[0].atGuardPage)
        text << ", at guard pages";
    else
        for (const Placement& p : place) text << ", offset " << p.offset;
    return text.str();
}

void sweep(int elementBytes, const std::vector<int>& extraLengths,
           const std::function<void(Case&)>& check) {
    int index = 0;
    Rng rng(seed());
    auto anyOffset = [&] { return static_cast<int>(rng() % 64); };

    const int longest = 2 * kWidestUnrolledBlock / elementBytes;
    // Odd steps meet every residue of a block's length.
    const int lengthStep = byEffort(elementBytes < 8 ? 37 / elementBytes | 1 : 5, 1, 1);
    const int offsetStep = byEffort(13, 1, 1);
    for (int len = 1; len <= longest; len += len < 4 ? 1 : lengthStep) {
        const int aligned[4] = {0, 0, 0, 0};
        const int mixed[4] = {anyOffset(), anyOffset(), anyOffset(), anyOffset()};
        if (!run(len, index++, aligned, check) || !run(len, index++, mixed, check)) return;
    }
    for (int vector = 0; vector < 3; ++vector) {
        for (int offset = 0; offset < 64; offset += offsetStep) {
            int place[4] = {0, 0, 0, 0};
            place[vector] = offset;
            if (!run(longest - 3, index * 4, place, check)) return;
            ++index;
        }
    }
    for (const int len : extraLengths) {
        const int mixed[4] = {anyOffset(), anyOffset(), anyOffset(), anyOffset()};
        const int aligned[4] = {0, 0, 0, 0};
        if (!run(len, index * 4, mixed, check) || !run(len, index * 4 + 3, aligned, check)) return;
        ++index;
    }
}

}  // namespace vlqtest
