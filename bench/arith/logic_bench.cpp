// Logic, shifts, reversal and byte swap against VOLK where it has the kernel, else a plain loop.
#include <volk/volk.h>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

template <class T, class Op>
[[gnu::noinline]] void plainTwo(T* __restrict dst, const T* __restrict a, const T* __restrict b,
                                int len, Op op) {
    for (int i = 0; i < len; ++i) dst[i] = static_cast<T>(op(a[i], b[i]));
}
template <class T, class Op>
[[gnu::noinline]] void plainOne(T* __restrict dst, const T* __restrict a, int len, Op op) {
    for (int i = 0; i < len; ++i) dst[i] = static_cast<T>(op(a[i]));
}
template <class T>
[[gnu::noinline]] void plainReverse(T* __restrict dst, const T* __restrict a, int len) {
    for (int i = 0; i < len; ++i) dst[i] = a[len - 1 - i];
}
[[gnu::noinline]] void plainSwapTriples(Vlq8u* __restrict dst, const Vlq8u* __restrict a, int len) {
    for (int i = 0; i < 3 * len; i += 3) {
        dst[i] = a[i + 2];
        dst[i + 1] = a[i + 1];
        dst[i + 2] = a[i];
    }
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int longest = 1 << 16;
    auto* const a = vlqsMalloc_8u(8 * longest);
    auto* const b = vlqsMalloc_8u(8 * longest);
    auto* const d = vlqsMalloc_8u(8 * longest);
    for (int i = 0; i < 8 * longest; ++i) {
        a[i] = static_cast<Vlq8u>(i * 7);
        b[i] = static_cast<Vlq8u>(i * 13);
    }
    const auto as16 = [](Vlq8u* p) { return reinterpret_cast<Vlq16s*>(p); };
    const auto as32 = [](Vlq8u* p) { return reinterpret_cast<Vlq32u*>(p); };
    const auto as64 = [](Vlq8u* p) { return reinterpret_cast<Vlq64u*>(p); };
    for (const int n : {64, 1024, longest}) {
        vlqbench::add({"and 8u", n, 1.0 * n, "plain loop", 1, [=] { vlqsAnd_8u(a, b, d, n); },
                       [=] { plainTwo(d, a, b, n, [](Vlq8u x, Vlq8u y) { return x & y; }); }});
        vlqbench::add(
            {"and 32u", n, 1.0 * n, "VOLK", 1, [=] { vlqsAnd_32u(as32(a), as32(b), as32(d), n); },
             [=] {
                 volk_32i_x2_and_32i(reinterpret_cast<int32_t*>(d), reinterpret_cast<int32_t*>(a),
                                     reinterpret_cast<int32_t*>(b), static_cast<unsigned>(n));
             }});
        vlqbench::add(
            {"or 32u", n, 1.0 * n, "VOLK", 1, [=] { vlqsOr_32u(as32(a), as32(b), as32(d), n); },
             [=] {
                 volk_32i_x2_or_32i(reinterpret_cast<int32_t*>(d), reinterpret_cast<int32_t*>(a),
                                    reinterpret_cast<int32_t*>(b), static_cast<unsigned>(n));
             }});
        vlqbench::add(
            {"not 16u", n, 1.0 * n, "plain loop", 1,
             [=] { vlqsNot_16u(reinterpret_cast<Vlq16u*>(a), reinterpret_cast<Vlq16u*>(d), n); },
             [=] { plainOne(as16(d), as16(a), n, [](Vlq16s x) { return ~x; }); }});
        vlqbench::add({"shift left 8u", n, 1.0 * n, "plain loop", 1,
                       [=] { vlqsLShiftC_8u(a, 3, d, n); },
                       [=] { plainOne(d, a, n, [](Vlq8u x) { return x << 3; }); }});
        vlqbench::add({"shift right 16s", n, 1.0 * n, "plain loop", 1,
                       [=] { vlqsRShiftC_16s(as16(a), 3, as16(d), n); },
                       [=] { plainOne(as16(d), as16(a), n, [](Vlq16s x) { return x >> 3; }); }});
        vlqbench::add({"flip 8u", n, 1.0 * n, "plain loop", 1, [=] { vlqsFlip_8u(a, d, n); },
                       [=] { plainReverse(d, a, n); }});
        vlqbench::add(
            {"flip 32f", n, 1.0 * n, "plain loop", 1,
             [=] { vlqsFlip_32f(reinterpret_cast<Vlq32f*>(a), reinterpret_cast<Vlq32f*>(d), n); },
             [=] { plainReverse(as32(d), as32(a), n); }});
        vlqbench::add(
            {"swap bytes 16u, in place", n, 1.0 * n, "VOLK", 1,
             [=] { vlqsSwapBytes_16u_I(reinterpret_cast<Vlq16u*>(d), n); },
             [=] { volk_16u_byteswap(reinterpret_cast<uint16_t*>(d), static_cast<unsigned>(n)); }});
        vlqbench::add({"swap bytes 32u, in place", n, 1.0 * n, "VOLK", 1,
                       [=] { vlqsSwapBytes_32u_I(as32(d), n); },
                       [=] { volk_32u_byteswap(as32(d), static_cast<unsigned>(n)); }});
        vlqbench::add(
            {"swap bytes 64u, in place", n, 1.0 * n, "VOLK", 1,
             [=] { vlqsSwapBytes_64u_I(as64(d), n); },
             [=] { volk_64u_byteswap(reinterpret_cast<uint64_t*>(d), static_cast<unsigned>(n)); }});
        vlqbench::add({"swap bytes 24u", n, 1.0 * n, "plain loop", 1,
                       [=] { vlqsSwapBytes_24u(a, d, n); }, [=] { plainSwapTriples(d, a, n); }});
    }
    const int status = vlqbench::run(argc, argv);
    vlqsFree(a);
    vlqsFree(b);
    vlqsFree(d);
    return status;
}
