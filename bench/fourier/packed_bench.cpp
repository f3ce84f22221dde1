// Products and expansions of packed spectra against plain compiled loops.
#include <algorithm>
#include <cmath>
#include <string>
#include <type_traits>

#include "harness/bench.h"
#include "vlqs/fft.h"
#include "vlqs/frame.h"

namespace {

// Sums of products as wide as the type needs, and the plain way to store them.
template <class T>
using Sum = std::conditional_t<std::is_same_v<T, Vlq16s>, long long, T>;
template <class T>
T stored(Sum<T> value, int scale) {
    if constexpr (std::is_same_v<T, Vlq16s>) {
        const long long half = 1LL << (scale - 1),
                        rounded = (value + half - 1 + (value >> scale & 1)) >> scale;
        return static_cast<Vlq16s>(std::min(std::max(rounded, -32768LL), 32767LL));
    } else {
        return value;
    }
}
constexpr int kScale = 15;

// Perm holds the two real bins first; Pack holds the one at half the rate last.
template <class T>
[[gnu::noinline]] void plainPerm(const T* __restrict a, const T* __restrict b, T* __restrict dst,
                                 int len) {
    dst[0] = stored<T>(Sum<T>(a[0]) * b[0], kScale);
    dst[1] = stored<T>(Sum<T>(a[1]) * b[1], kScale);
    for (int i = 2; i < len; i += 2) {
        dst[i] = stored<T>(Sum<T>(a[i]) * b[i] - Sum<T>(a[i + 1]) * b[i + 1], kScale);
        dst[i + 1] = stored<T>(Sum<T>(a[i]) * b[i + 1] + Sum<T>(a[i + 1]) * b[i], kScale);
    }
}
template <class T>
[[gnu::noinline]] void plainPack(const T* __restrict a, const T* __restrict b, T* __restrict dst,
                                 int len) {
    dst[0] = stored<T>(Sum<T>(a[0]) * b[0], kScale);
    for (int i = 1; i + 1 < len; i += 2) {
        dst[i] = stored<T>(Sum<T>(a[i]) * b[i] - Sum<T>(a[i + 1]) * b[i + 1], kScale);
        dst[i + 1] = stored<T>(Sum<T>(a[i]) * b[i + 1] + Sum<T>(a[i + 1]) * b[i], kScale);
    }
    dst[len - 1] = stored<T>(Sum<T>(a[len - 1]) * b[len - 1], kScale);
}
// a * conj(b) into b
template <class T>
[[gnu::noinline]] void plainPackConj(const T* __restrict a, T* __restrict b, int len) {
    b[0] *= a[0];
    for (int i = 1; i + 1 < len; i += 2) {
        const T re = b[i], im = b[i + 1];
        b[i] = a[i] * re + a[i + 1] * im;
        b[i + 1] = a[i + 1] * re - a[i] * im;
    }
    b[len - 1] *= a[len - 1];
}
// All len bins from the half that is stored: bin 1 is at src[first], the real bin at half the rate
// at src[halfRate].
template <class T>
[[gnu::noinline]] void plainExpand(const T* __restrict src, T* __restrict dst, int len, int first,
                                   int halfRate) {
    dst[0] = src[0];
    dst[1] = 0;
    for (int i = 1; i < len / 2; ++i) {
        const T re = src[first + 2 * (i - 1)], im = src[first + 2 * (i - 1) + 1];
        dst[2 * i] = dst[2 * (len - i)] = re;
        dst[2 * i + 1] = im;
        dst[2 * (len - i) + 1] = static_cast<T>(-im);
    }
    dst[len] = src[halfRate];
    dst[len + 1] = 0;
}

template <class T>
T* vectorOf(int n) {
    auto* vector = reinterpret_cast<T*>(vlqsMalloc_8u(n * static_cast<int>(sizeof(T))));
    std::fill(vector, vector + n, T(1));
    return vector;
}

template <class T, class Product>
void addProduct(const std::string& name, int len, Product product,
                void (*plain)(const T*, const T*, T*, int)) {
    const T *a = vectorOf<T>(len), *b = vectorOf<T>(len);
    T *ours = vectorOf<T>(len), *theirs = vectorOf<T>(len);
    vlqbench::add({name, len, static_cast<double>(len), "plain loop", 0,
                   [=] { product(a, b, ours, len); }, [=] { plain(a, b, theirs, len); }});
}
template <class T, class Complex>
void addExpansion(const std::string& name, int len, int first, int halfRate,
                  VlqStatus (*expand)(const T*, Complex*, Vlq32s)) {
    const T* src = vectorOf<T>(len + 2);
    T *ours = vectorOf<T>(2 * len), *theirs = vectorOf<T>(2 * len);
    vlqbench::add({name, len, static_cast<double>(len), "plain loop", 0,
                   [=] { expand(src, reinterpret_cast<Complex*>(ours), len); },
                   [=] { plainExpand(src, theirs, len, first, halfRate); }});
}

void addLength(int len) {
    addProduct<Vlq32f>("product of Perm spectra 32f", len, vlqsMulPerm_32f, plainPerm<Vlq32f>);
    addProduct<Vlq32f>("product of Pack spectra 32f", len, vlqsMulPack_32f, plainPack<Vlq32f>);
    addProduct<Vlq64f>("product of Perm spectra 64f", len, vlqsMulPerm_64f, plainPerm<Vlq64f>);
    addProduct<Vlq64f>("product of Pack spectra 64f", len, vlqsMulPack_64f, plainPack<Vlq64f>);
    const auto perm16 = [](const Vlq16s* a, const Vlq16s* b, Vlq16s* d, int n) {
        vlqsMulPerm_16s_Sfs(a, b, d, n, kScale);
    };
    const auto pack16 = [](const Vlq16s* a, const Vlq16s* b, Vlq16s* d, int n) {
        vlqsMulPack_16s_Sfs(a, b, d, n, kScale);
    };
    addProduct<Vlq16s>("product of Perm spectra 16s, 15 bits", len, perm16, plainPerm<Vlq16s>);
    addProduct<Vlq16s>("product of Pack spectra 16s, 15 bits", len, pack16, plainPack<Vlq16s>);

    // Ones stay ones under repeated products in place, so that no value decays.
    Vlq32f *a = vectorOf<Vlq32f>(len), *ours = vectorOf<Vlq32f>(len),
           *theirs = vectorOf<Vlq32f>(len);
    for (int i = 2; i < len; i += 2) a[i] = 0;
    const auto per = static_cast<double>(len);
    vlqbench::add({"product of Perm spectra 32f, in place", len, per, "plain loop, out of place", 0,
                   [=] { vlqsMulPerm_32f_I(a, ours, len); },
                   [=] { plainPerm(a, ours, theirs, len); }});
    vlqbench::add({"product of Pack spectra with a conjugate 32f", len, per, "plain loop", 0,
                   [=] { vlqsMulPackConj_32f_I(a, ours, len); },
                   [=] { plainPackConj(a, theirs, len); }});
    Vlq64f *wideA = vectorOf<Vlq64f>(len), *wideOurs = vectorOf<Vlq64f>(len),
           *wideTheirs = vectorOf<Vlq64f>(len);
    for (int i = 2; i < len; i += 2) wideA[i] = 0;
    vlqbench::add({"product of Pack spectra with a conjugate 64f", len, per, "plain loop", 0,
                   [=] { vlqsMulPackConj_64f_I(wideA, wideOurs, len); },
                   [=] { plainPackConj(wideA, wideTheirs, len); }});

    addExpansion("expansion of a CCS spectrum 16sc", len, 2, len, vlqsConjCcs_16sc);
    addExpansion("expansion of a CCS spectrum 32fc", len, 2, len, vlqsConjCcs_32fc);
    addExpansion("expansion of a CCS spectrum 64fc", len, 2, len, vlqsConjCcs_64fc);
    addExpansion("expansion of a Pack spectrum 16sc", len, 1, len - 1, vlqsConjPack_16sc);
    addExpansion("expansion of a Pack spectrum 32fc", len, 1, len - 1, vlqsConjPack_32fc);
    addExpansion("expansion of a Pack spectrum 64fc", len, 1, len - 1, vlqsConjPack_64fc);
    addExpansion("expansion of a Perm spectrum 16sc", len, 2, 1, vlqsConjPerm_16sc);
    addExpansion("expansion of a Perm spectrum 32fc", len, 2, 1, vlqsConjPerm_32fc);
    addExpansion("expansion of a Perm spectrum 64fc", len, 2, 1, vlqsConjPerm_64fc);
}

}  // namespace

int main(int argc, char** argv) {
    for (const int len : {64, 1024, 65536}) addLength(len);
    return vlqbench::run(argc, argv);
}
