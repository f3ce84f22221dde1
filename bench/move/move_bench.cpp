// Clear, fill, copy and move against the C library, from 64 bytes to 64 MiB.
#include <cstring>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

constexpr std::size_t kLongest = std::size_t{64} << 20;

}  // namespace

int main(int argc, char** argv) {
    Vlq8u* const a = vlqsMalloc_8u(static_cast<int>(kLongest) + 64);
    Vlq8u* const b = vlqsMalloc_8u(static_cast<int>(kLongest) + 64);
    std::memset(a, 1, kLongest);
    std::memset(b, 2, kLongest);
    for (std::size_t bytes = 64; bytes <= kLongest; bytes *= bytes < 65536 ? 2 : 4) {
        const int n = static_cast<int>(bytes);
        const auto copy = [=] { std::memcpy(b, a, bytes); };
        const auto set = [=] { std::memset(b, 7, bytes); };
        vlqbench::add({"copy 8u", n, 1, "memcpy", 1 / 0.9, [=] { vlqsCopy_8u(a, b, n); }, copy});
        vlqbench::add({"move 8u", n, 1, "memmove", 1 / 0.9, [=] { vlqsMove_8u(a, b, n); },
                       [=] { std::memmove(b, a, bytes); }});
        vlqbench::add({"zero 8u", n, 1, "memset", 1 / 0.9, [=] { vlqsZero_8u(b, n); }, set});
        vlqbench::add({"set 8u", n, 1, "memset", 1 / 0.9, [=] { vlqsSet_8u(7, b, n); }, set});
        vlqbench::add({"set 32f", n / 4, 1, "memset", 1 / 0.9,
                       [=] { vlqsSet_32f(1.5f, reinterpret_cast<Vlq32f*>(b), n / 4); }, set});
        vlqbench::add({"set 64fc", n / 16, 1, "memset", 1 / 0.9,
                       [=] {
                           vlqsSet_64fc({1.5, 2.5}, reinterpret_cast<Vlq64fc*>(b), n / 16);
                       },
                       set});
    }
    // Neither end on a vector's boundary; and an overlap that has to run downwards.
    for (const std::size_t bytes : {std::size_t{256}, std::size_t{4096}, std::size_t{1} << 20}) {
        const int n = static_cast<int>(bytes);
        vlqbench::add({"copy 8u, odd addresses", n, 1, "memcpy", 1 / 0.9,
                       [=] { vlqsCopy_8u(a + 3, b + 5, n); },
                       [=] { std::memcpy(b + 5, a + 3, bytes); }});
        vlqbench::add({"move 8u, up by 24", n, 1, "memmove", 1 / 0.9,
                       [=] { vlqsMove_8u(a, a + 24, n); },
                       [=] { std::memmove(a + 24, a, bytes); }});
        vlqbench::add({"move 8u, down by 24", n, 1, "memmove", 1 / 0.9,
                       [=] { vlqsMove_8u(a + 24, a, n); },
                       [=] { std::memmove(a, a + 24, bytes); }});
    }
    const int status = vlqbench::run(argc, argv);
    vlqsFree(a);
    vlqsFree(b);
    return status;
}
