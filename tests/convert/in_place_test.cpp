// What all conversions have in common: results written over the source where the manual allows it,
// and the calling thread's floating-point control register after a call.
#include <xmmintrin.h>

#include <climits>

#include "harness/element.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

template <class S, class D>
using Plain = VlqStatus (*)(const S*, D*, Vlq32s);
template <class S, class D>  // a scale factor or a rounding mode
using WithNumber = VlqStatus (*)(const S*, D*, Vlq32s, Vlq32s);
template <class S, class D, class Length = Vlq32s>
using ScaledByMode = VlqStatus (*)(const S*, D*, Length, VlqRoundMode, Vlq32s);

// ---- over the source ----------------------------------------------------------------------------
// dst begins where src does: the result is that of separate vectors, and no byte beyond the source
// is written.
template <class S, class D, class Call>
void checkOverSource(Call call) {
    static_assert(sizeof(D) <= sizeof(S));
    sweep(sizeof(S), {1003, 5003}, [&](Case& c) {
        const auto a = extremeElements<S>(static_cast<std::size_t>(c.len), c.rng);
        const Buffer<S> src(a, c.place[1]);
        Buffer<D> apart(a.size(), c.place[1]);
        ASSERT_EQ(vlqStsOk, call(src.data(), apart.data(), c.len));
        Buffer<S> shared(a, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(shared.data(), reinterpret_cast<D*>(shared.data()), c.len));
        ASSERT_EQ(0, std::memcmp(shared.data(), apart.values().data(), a.size() * sizeof(D)));
        ASSERT_TRUE(shared.marginsIntact());
    });
}
template <class S, class D>
void checkOverSource(Plain<S, D> call) {
    checkOverSource<S, D>([=](const S* s, D* d, int n) { return call(s, d, n); });
}
template <class S, class D>
void checkOverSource(WithNumber<S, D> call, std::initializer_list<int> last = {0, 3, -2, 40}) {
    for (const int s : last)
        checkOverSource<S, D>([=](const S* src, D* d, int n) { return call(src, d, n, s); });
}
template <class S, class D, class Length>
void checkOverSource(ScaledByMode<S, D, Length> call,
                     std::initializer_list<int> modes = {0, 1, 2}) {
    for (const int mode : modes) {
        for (const int s : {0, 3, -2, 40}) {
            checkOverSource<S, D>([=](const S* src, D* d, int n) {
                return call(src, d, static_cast<Length>(n), mode, s);
            });
        }
    }
}

TEST(ConvertInPlace, Integers) {
    checkOverSource(vlqsConvert_32s16s);
    checkOverSource(vlqsConvert_32s16s_Sfs);
    checkOverSource(vlqsConvert_16s8s_Sfs);
    checkOverSource(vlqsConvert_64s32s_Sfs);
}
TEST(ConvertInPlace, EquallyWideToFloat) {
    checkOverSource(vlqsConvert_32s32f);
    checkOverSource(vlqsConvert_32s32f_Sfs);
    checkOverSource<Vlq64s, Vlq64f>([](const Vlq64s* s, Vlq64f* d, int n) {
        return vlqsConvert_64s64f(s, d, static_cast<Vlq32u>(n));
    });
}
TEST(ConvertInPlace, Floats) {
    checkOverSource(vlqsConvert_64f32f);
    checkOverSource(vlqsConvert_32f8s_Sfs);
    checkOverSource(vlqsConvert_32f8u_Sfs);
    checkOverSource(vlqsConvert_32f16s_Sfs);
    checkOverSource(vlqsConvert_32f16u_Sfs);
    checkOverSource(vlqsConvert_32f32s_Sfs);
    checkOverSource(vlqsConvert_64f16s_Sfs);
    checkOverSource(vlqsConvert_64f32s_Sfs);
    checkOverSource(vlqsConvert_64f64s_Sfs);
}
TEST(ConvertInPlace, Halves) {
    checkOverSource(vlqsConvert_32f16f, {0, 1});
    checkOverSource(vlqsConvert_16s16f, {0, 1});
    checkOverSource(vlqsConvert_16f16s_Sfs, {0, 1});
}

// ---- control register ---------------------------------------------------------------------------
// All exceptions masked, every rounding and flushing, with no flag set or all of them.
constexpr unsigned kFlags = 0x3F;
std::vector<unsigned> controlWords() {
    std::vector<unsigned> words;
    for (unsigned rounding = 0; rounding < 4; ++rounding) {
        for (const unsigned flushing : {0u, 0x8000u, 0x0040u, 0x8040u}) {
            for (const unsigned flags : {0u, kFlags})
                words.push_back(0x1F80 | rounding << 13 | flushing | flags);
        }
    }
    return words;
}

// After a call the control bits are the caller's, and no exception flag has been cleared.
template <class S, class D, class Call>
void checkWord(Call call) {
    Rng rng(seed());
    const auto a = extremeElements<S>(1003, rng);
    std::vector<D> dst(3 * a.size());
    for (const unsigned word : controlWords()) {
        const unsigned saved = _mm_getcsr();
        _mm_setcsr(word);
        const VlqStatus status = call(a.data(), dst.data(), 1003);
        const unsigned after = _mm_getcsr();
        _mm_setcsr(saved);
        ASSERT_EQ(vlqStsOk, status);
        ASSERT_EQ(word & ~kFlags, after & ~kFlags) << std::hex << word;
        ASSERT_EQ(word & kFlags, after & word & kFlags) << std::hex << word;
    }
}
template <class S, class D>
void checkWord(Plain<S, D> call) {
    checkWord<S, D>([=](const S* s, D* d, int n) { return call(s, d, n); });
}
template <class S, class D>
void checkWord(WithNumber<S, D> call,
               std::initializer_list<int> last = {0, 3, -2, 127, 140, INT_MIN}) {
    for (const int s : last)
        checkWord<S, D>([=](const S* src, D* d, int n) { return call(src, d, n, s); });
}
template <class S, class D, class Length>
void checkWord(ScaledByMode<S, D, Length> call,
               std::initializer_list<int> modes = {0, 1, 2, 3, -1}) {
    for (const int mode : modes) {
        for (const int s : {0, 3, -2, 127, 140, 1023, INT_MIN}) {
            checkWord<S, D>([=](const S* src, D* d, int n) {
                return call(src, d, static_cast<Length>(n), mode, s);
            });
        }
    }
}

TEST(ConvertControlWord, FloatsToIntegers) {
    checkWord(vlqsConvert_32f8s_Sfs);
    checkWord(vlqsConvert_32f8u_Sfs);
    checkWord(vlqsConvert_32f16s_Sfs);
    checkWord(vlqsConvert_32f16u_Sfs);
    checkWord(vlqsConvert_32f32s_Sfs);
    checkWord(vlqsConvert_64f16s_Sfs);
    checkWord(vlqsConvert_64f32s_Sfs);
    checkWord(vlqsConvert_64f64s_Sfs);
    checkWord(vlqsConvert_32f24s_Sfs);
    checkWord(vlqsConvert_32f24u_Sfs);
}
TEST(ConvertControlWord, Others) {
    checkWord(vlqsConvert_16s32f);
    checkWord(vlqsConvert_32s32f);
    checkWord(vlqsConvert_32f64f);
    checkWord(vlqsConvert_64f32f);
    checkWord(vlqsConvert_16s32f_Sfs);
    checkWord(vlqsConvert_32s64f_Sfs);
    checkWord(vlqsConvert_16s8s_Sfs);
    checkWord(vlqsConvert_64s32s_Sfs);
    checkWord(vlqsConvert_16f32f);
    checkWord(vlqsConvert_32f16f, {0, 1});
    checkWord(vlqsConvert_16s16f, {0, 1});
    checkWord(vlqsConvert_16f16s_Sfs, {0, 1});
}

}  // namespace
