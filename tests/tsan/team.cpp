// The fork-join frame alone, under the thread sanitizer. Built a second time with shares that
// overlap by one element, it shows that the sanitizer sees what two threads of a team do to one
// address.
#include "frame/team.h"

#include <cstdio>
#include <vector>

#if defined(OVERLAPPING_SHARES)
constexpr int overlap = 1;
#else
constexpr int overlap = 0;
#endif

int main() {
    constexpr int threads = 4;
    for (int round = 0; round < 50; ++round) {
        std::vector<VlqStatus> status(threads);
        std::vector<int> written(1000 + overlap);
        vlq::shareEvenly(threads, 1000, [&](Vlq32s first, Vlq32s count) {
            for (Vlq32s i = first; i < first + count + overlap; ++i)
                ++written[static_cast<std::size_t>(i)];
        });
        const VlqStatus lowest = vlq::shareBlocks(
            threads, 999, 10, status.data(), [&](Vlq64s index, Vlq32s) -> VlqStatus {
                for (Vlq64s i = index * 10; i < 1000 && i < index * 10 + 10; ++i)
                    ++written[static_cast<std::size_t>(i)];
                return index == 7 ? vlqStsBadSpec : vlqStsOk;
            });
        bool right = lowest == vlqStsBadSpec;
        for (const int times : written) right = right && times == 2;
        if (!right) {
            std::puts("wrong result");
            return 1;
        }
    }
    return 0;
}
