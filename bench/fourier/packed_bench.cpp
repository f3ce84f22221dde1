// Products of packed spectra against a plain compiled loop.
#include "harness/bench.h"
#include "vlqs/fourier.h"
#include "vlqs/frame.h"

namespace {

[[gnu::noinline]] void plainPerm(const float* __restrict a, const float* __restrict b, float* __restrict dst, int len) {
    dst[0] = a[0] * b[0];
    dst[1] = a[1] * b[1];
    for (int i = 2; i < len; i += 2) {
        dst[i] = a[i] * b[i] - a[i + 1] * b[i + 1];
        dst[i + 1] = a[i] * b[i + 1] + a[i + 1] * b[i];
    }
}

}  // namespace

int main(int argc, char** argv) {
    for (const int len : {64, 256, 1024, 65536}) {
        Vlq32f *a = vlqsMalloc_32f(len), *b = vlqsMalloc_32f(len), *d = vlqsMalloc_32f(len);
        for (int i = 0; i < len; ++i) a[i] = b[i] = d[i] = 0;
        const auto per = static_cast<double>(len);
        vlqbench::add({"product of Perm spectra 32f", len, per, "plain loop", 0,
                       [=] { vlqsMulPerm_32f(a, b, d, len); }, [=] { plainPerm(a, b, d, len); }});
        vlqbench::add({"product of Perm spectra 32f, in place", len, per, "plain loop", 0,
                       [=] { vlqsMulPerm_32f_I(a, b, len); }, [=] { plainPerm(a, b, d, len); }});
        vlqbench::add({"product of Pack spectra 32f", len, per, "plain loop", 0,
                       [=] { vlqsMulPack_32f(a, b, d, len); }, [=] { plainPerm(a, b, d, len); }});
    }
    return vlqbench::run(argc, argv);
}
