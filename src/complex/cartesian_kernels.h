// Conjugates, parts and magnitudes of samples without arithmetic on them.
#pragma once

#include <type_traits>

#include "complex/parts.h"
#include "frame/loop/map.h"
#include "frame/loop/map_long.h"
#include "frame/simd/complex.h"
#include "frame/simd/ops.h"
#include "frame/simd/permute.h"
#include "frame/simd/saturate.h"

namespace vlq::cartesian {

// ---- conjugates ---------------------------------------------------------------------------------
// On interleaved parts. The imaginary part -32768 saturates to 32767.
class Conjugate16 {
public:
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const {
        // x is x - 0 in the even lanes and -x = ~x - (-1) in the odd ones.
        const auto odd = bitCast<std::int16_t>(imaginary_);
        return bitCast<std::int32_t>(subSat(bitCast<std::int16_t>(v ^ imaginary_), odd));
    }

private:
    Vec<std::int32_t> imaginary_ = Vec<std::int32_t>::broadcast(-65536);
};
template <class T>
class Conjugate {
public:
    Vec<PairOf<T>> operator()(Vec<PairOf<T>> v) const {
        return bitCast<PairOf<T>>(bitCast<T>(v) ^ sign_);
    }

private:
    Vec<T> sign_ = broadcastPair<T>(T(0), T(-0.0));
};
template <class T>
using ConjugateOf = std::conditional_t<sizeof(T) == 2, Conjugate16, Conjugate<T>>;

template <class T>
inline void conjugate(PairOf<T>* dst, std::ptrdiff_t len, const PairOf<T>* src) {
    map(dst, len, ConjugateOf<T>{}, src);
}

// dst[i] = conj(src[len - 1 - i]); dst is apart from src.
template <class T>
inline void conjugateReversed(PairOf<T>* dst, std::ptrdiff_t len, const PairOf<T>* src) {
    using Pair = PairOf<T>;
    constexpr int lanes = Vec<Pair>::lanes;
    const ConjugateOf<T> op;
    const auto reverse = [&op](Vec<Pair> v) {
        using Byte = unsigned char;
        return op(bitCast<Pair>(reversed<static_cast<int>(sizeof(Pair))>(bitCast<Byte>(v))));
    };
    if (len < lanes) {
        // From the end of a vector the elements come to its beginning.
        const int n = static_cast<int>(len);
        Pair ends[2 * lanes];
        store(ends + lanes - n, loadPartial(src, n));
        return storePartial(dst, reverse(load(ends)), n);
    }
    std::ptrdiff_t i = 0;
    for (; i + lanes <= len; i += lanes) store(dst + i, reverse(load(src + len - i - lanes)));
    // The last vector overlaps the one before.
    if (i < len) store(dst + len - lanes, reverse(load(src)));
}

// ---- parts --------------------------------------------------------------------------------------
enum class Part { Real, Imaginary };

template <class T>
inline TwoBlocks<T, 1> bothParts(const Block<PairOf<T>, 2>& v) {
    if constexpr (sizeof(T) == 2) {
        const auto a = v.part[0], b = v.part[1];
        return {{{narrowSat<T>(Block<std::int32_t, 2>{{realPart16(a), realPart16(b)}})}},
                {{narrowSat<T>(Block<std::int32_t, 2>{{imaginaryPart16(a), imaginaryPart16(b)}})}}};
    } else {
        const auto parts = deinterleave(bitCast<T>(v.part[0]), bitCast<T>(v.part[1]));
        return {{{parts.re}}, {{parts.im}}};
    }
}
template <class T, Part part>
struct OnePart {
    Block<T, 1> operator()(const Block<PairOf<T>, 2>& v) const {
        const auto both = bothParts<T>(v);
        return part == Part::Real ? both.first : both.second;
    }
};
template <class T>
struct BothParts {
    TwoBlocks<T, 1> operator()(const Block<PairOf<T>, 2>& v) const { return bothParts<T>(v); }
};

template <class T>
inline Block<PairOf<T>, 2> joined(Vec<T> re, Vec<T> im) {
    if constexpr (sizeof(T) == 2) {
        return interleave(re, im);
    } else {
        const auto v = interleave(Split<T>{re, im});
        return {{bitCast<PairOf<T>>(v.part[0]), bitCast<PairOf<T>>(v.part[1])}};
    }
}
template <class T>
struct Join {
    Block<PairOf<T>, 2> operator()(const Block<T, 1>& re, const Block<T, 1>& im) const {
        return joined(re.part[0], im.part[0]);
    }
};
// The other part is zero.
template <class T, Part part>
struct JoinOne {
    Block<PairOf<T>, 2> operator()(const Block<T, 1>& v) const {
        const auto zero = Vec<T>::zero();
        return part == Part::Real ? joined(v.part[0], zero) : joined(zero, v.part[0]);
    }
};

// ---- absolute values ----------------------------------------------------------------------------
// The least integer saturates.
template <class T>
struct Absolute {
    Vec<T> operator()(Vec<T> v) const {
        if constexpr (std::is_floating_point_v<T>) {
            return absolute(v);
        } else if constexpr (sizeof(T) == 2) {
            return maximum(v, subSat(Vec<T>::zero(), v));
        } else {
            // 2^31 has no representation and wraps to a negative number, which is one above it.
            const auto size = absolute(v);
            return size + signMask(size);
        }
    }
};

}  // namespace vlq::cartesian
