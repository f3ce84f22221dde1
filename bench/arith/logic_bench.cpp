// Bitwise logic against a plain compiled loop.
#include <vector>

#include "harness/bench.h"
#include "vlqs/arith.h"

int main(int argc, char** argv) {
    for (const int len : {64, 1024, 65536}) {
        static std::vector<Vlq8u> a(1 << 16, 1), b(1 << 16, 3), d(1 << 16);
        vlqbench::add({"and 8u", len, static_cast<double>(len), "plain loop", 0,
                       [len] { vlqsAnd_8u(a.data(), b.data(), d.data(), len); },
                       [len] {
                           for (std::size_t i = 0; i < static_cast<std::size_t>(len); ++i) d[i] = static_cast<Vlq8u>(a[i] & b[i]);
                       }});
    }
    return vlqbench::run(argc, argv);
}
