// The integer FIR kernels: 16-bit samples and taps, two products at a time, summed in 32 bits that
// wrap. Such sums do not depend on their order, so every kernel below gives the same bits.
//
// Complex samples are interleaved values, real and imaginary part, and one kernel serves real and
// complex filters: of a vector of samples it forms two vectors of 32-bit sums that belong into
// every other value of the result, each with a tap row of its own. These are the sums of the even
// and of the odd outputs of a real filter, whose second row is the first one value later; or the
// real and the imaginary parts of a complex one. Counts named words are of 16-bit values.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <utility>

#include "frame/simd/ops.h"
#include "frame/simd/pairs.h"
#include "vlqs/types.h"

namespace vlq::fir::integer {

// Sums to samples: sum * 2^exponent. To the right rounded to nearest, ties to the even integer, by
// 31 bits at most; to the left wrapped to 32 bits, so that from 32 bits on nothing is left. The
// vectors come out before saturation; their sums begin with start().
class Finish {
public:
    explicit Finish(Vlq64s exponent)
        : left_(static_cast<int>(std::clamp<Vlq64s>(exponent, 0, 31))),
          right_(static_cast<int>(std::clamp<Vlq64s>(-exponent, 0, 31))),
          keep_(exponent < 32 ? -1 : 0),
          remainder_(static_cast<Vlq32s>((Vlq32u{1} << right_) - 1)),
          middle_(right_ > 0 ? Vlq32s{1} << (right_ - 1) : std::numeric_limits<Vlq32s>::max()) {}

    template <int B>
    Vec<Vlq32s, B> start() const {
        return Vec<Vlq32s, B>::zero();
    }
    template <int B>
    Vec<Vlq32s, B> operator()(Vec<Vlq32s, B> sums) const {
        using V = Vec<Vlq32s, B>;
        const V moved = shiftLeft(sums & V::broadcast(keep_), left_);
        const V quotient = shiftRight(moved, right_);
        // From the middle up, the middle itself where the quotient is odd.
        const V up = (moved & V::broadcast(remainder_)) >
                     (V::broadcast(middle_) - (quotient & V::broadcast(1)));
        return quotient - up;
    }
    Vlq16s operator()(Vlq32s sum) const {
        const auto moved = static_cast<Vlq32s>(static_cast<Vlq32u>(sum & keep_) << left_);
        const Vlq32s quotient = moved >> right_;
        const Vlq32s nearest = quotient + ((moved & remainder_) > middle_ - (quotient & 1));
        return static_cast<Vlq16s>(std::clamp(nearest, -32768, 32767));
    }

private:
    friend class NearestFinish;
    int left_, right_;
    Vlq32s keep_, remainder_, middle_;
};

// The same to the right, where no sum comes near the ends of 32 bits: half a unit is then added
// from the start, which leaves ties to be taken back.
class NearestFinish {
public:
    explicit NearestFinish(const Finish& finish) : finish_(finish) {}
    // `magnitude` is that of all taps of a sum together.
    static bool serves(const Finish& finish, Vlq64s magnitude) {
        constexpr Vlq64s largest = 32768;
        return finish.right_ > 0 &&
               magnitude * largest + finish.middle_ <= std::numeric_limits<Vlq32s>::max();
    }

    template <int B>
    Vec<Vlq32s, B> start() const {
        return Vec<Vlq32s, B>::broadcast(finish_.middle_);
    }
    template <int B>
    Vec<Vlq32s, B> operator()(Vec<Vlq32s, B> sums) const {
        using V = Vec<Vlq32s, B>;
        const V tie = (sums & V::broadcast(finish_.remainder_)) == V::zero();
        return shiftRight(sums, finish_.right_) & ~(tie & V::broadcast(1));
    }
    Vlq16s operator()(Vlq32s sum) const { return finish_(sum); }

private:
    // By reference: a wide load, to copy what was just stored in parts, would wait for the cache.
    const Finish& finish_;
};

inline Vlq32s wrappingAdd(Vlq32s a, Vlq32s b) {
    return static_cast<Vlq32s>(static_cast<Vlq32u>(a) + static_cast<Vlq32u>(b));
}
inline Vlq32s wrappingMultiply(Vlq32s a, Vlq32s b) {
    return static_cast<Vlq32s>(static_cast<Vlq32u>(a) * static_cast<Vlq32u>(b));
}

// ---- one window of samples ----------------------------------------------------------------------

// Rows of taps that a window meets.
template <int Rows>
struct Sums {
    Vlq32s of[Rows];
};

namespace detail {

// Masks that leave the last m of the vector's lanes begin m elements into this.
inline constexpr int kMaskLanes = 16;
struct LastLanes {
    Vlq16s mask[2 * kMaskLanes];
    constexpr LastLanes() : mask() {
        for (int i = kMaskLanes; i < 2 * kMaskLanes; ++i) mask[i] = -1;
    }
};
inline constexpr LastLanes kLastLanes;

// n >= lanes of the vector. What is left after whole vectors comes from a vector that ends with
// the window, less the lanes that have been before.
template <int B, int Rows>
inline Sums<Rows> wideDots(const Vlq16s* x, const Vlq16s* const (&rows)[Rows], std::ptrdiff_t n) {
    using V = Vec<Vlq32s, B>;
    constexpr int lanes = Vec<Vlq16s, B>::lanes;
    V even[Rows], odd[Rows];
    for (int r = 0; r < Rows; ++r) even[r] = odd[r] = V::zero();
    std::ptrdiff_t j = 0;
    for (; j + 2 * lanes <= n; j += 2 * lanes) {
        const auto first = load<Vlq16s, B>(x + j), second = load<Vlq16s, B>(x + j + lanes);
        for (int r = 0; r < Rows; ++r) {
            even[r] += pairSums(first, load<Vlq16s, B>(rows[r] + j));
            odd[r] += pairSums(second, load<Vlq16s, B>(rows[r] + j + lanes));
        }
    }
    if (j + lanes <= n) {
        const auto samples = load<Vlq16s, B>(x + j);
        for (int r = 0; r < Rows; ++r) even[r] += pairSums(samples, load<Vlq16s, B>(rows[r] + j));
        j += lanes;
    }
    if (j < n) {
        const auto mask = load<Vlq16s, B>(kLastLanes.mask + (kMaskLanes - lanes) + (n - j));
        const auto samples = load<Vlq16s, B>(x + n - lanes) & mask;
        for (int r = 0; r < Rows; ++r)
            odd[r] += pairSums(samples, load<Vlq16s, B>(rows[r] + n - lanes));
    }
    Sums<Rows> sums;
    for (int r = 0; r < Rows; ++r) sums.of[r] = laneSum(even[r] + odd[r]);
    return sums;
}

}  // namespace detail

// sums.of[r] = sum of x[j] * rows[r][j] over j < n, wrapped.
template <int Rows>
inline Sums<Rows> dots(const Vlq16s* x, const Vlq16s* const (&rows)[Rows], std::ptrdiff_t n) {
    constexpr int widest = kVecBytes < 32 ? 16 : 32;
    if (widest > 16 && n >= Vec<Vlq16s, widest>::lanes) return detail::wideDots<widest>(x, rows, n);
    if (n >= Vec<Vlq16s, 16>::lanes) return detail::wideDots<16>(x, rows, n);
    Sums<Rows> sums{};
    for (std::ptrdiff_t j = 0; j < n; ++j) {
        for (int r = 0; r < Rows; ++r) {
            sums.of[r] = wrappingAdd(sums.of[r], loadScalar(x + j) * loadScalar(rows[r] + j));
        }
    }
    return sums;
}

// ---- blocks -------------------------------------------------------------------------------------

// The impulse response reversed: one row of a real filter, with two zeros before and one behind it;
// two of a complex one. `magnitude` is the sum of the absolute taps of an output, at most.
template <int Parts>
struct TapRows {
    const Vlq16s* row[Parts];
    std::ptrdiff_t words;
    Vlq64s magnitude;
};

// A tile is this many vectors of results, at most. Its sums, two vectors for each, the taps of two
// rows, two as well, and a vector of samples must fit into 16 or 32 registers.
inline constexpr int kTileVectors = kVecBytes == 64 ? 12 : 5;

// Two rows, of an even number of values.
struct Pairs {
    const Vlq16s* first;
    const Vlq16s* second;
    std::ptrdiff_t words;
};

// Adds `columns` columns of pairs of taps to a tile. A column has Rows pairs of either row, a
// vector of samples apart: one load of samples meets all of them, each for another vector of
// results. Going from tap to tap instead would take a load, most often across a cache line, for
// every other multiply-add.
template <int Rows, int A, int B>
[[gnu::always_inline]] inline void addColumns(Vec<Vlq32s, B> (&first)[A],
                                              Vec<Vlq32s, B> (&second)[A], const Vlq16s* firstRow,
                                              const Vlq16s* secondRow, const Vlq16s* x,
                                              std::ptrdiff_t columns) {
    using V = Vec<Vlq16s, B>;
    constexpr int lanes = V::lanes;
#pragma GCC unroll 1
    for (; columns > 0; --columns, x += 2, firstRow += 2, secondRow += 2) {
        V firstTap[Rows], secondTap[Rows];
#pragma GCC unroll 4
        for (int i = 0; i < Rows; ++i) {
            firstTap[i] = broadcastPair<B>(firstRow + i * lanes);
            secondTap[i] = broadcastPair<B>(secondRow + i * lanes);
        }
#pragma GCC unroll 16
        for (int b = 0; b < A + Rows - 1; ++b) {
            // Opaque: compilers would rather load once more for each product than hold a vector.
            const V samples = opaque(load<Vlq16s, B>(x + b * lanes));
#pragma GCC unroll 4
            for (int i = 0; i < Rows; ++i) {
                const int a = b - i;
                if (a < 0 || a >= A) continue;
                // Opaque: regrouping the sums, as compilers do with integers, takes many registers.
                first[a] = opaque(first[a] + pairSums(firstTap[i], samples));
                second[a] = opaque(second[a] + pairSums(secondTap[i], samples));
            }
        }
    }
}

// A vectors of results.
template <int A, int B, class F>
inline void tile(const Vlq16s* firstRow, const Vlq16s* secondRow, std::ptrdiff_t words,
                 const Vlq16s* x, Vlq16s* dst, const F& finish) {
    constexpr int lanes = Vec<Vlq16s, B>::lanes;
    Vec<Vlq32s, B> first[A], second[A];
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a) first[a] = second[a] = finish.template start<B>();

    auto advance = [&](std::ptrdiff_t done) {
        firstRow += done;
        secondRow += done;
        x += done;
        words -= done;
    };
    while (words >= 2 * lanes) {
        addColumns<2>(first, second, firstRow, secondRow, x, lanes / 2);
        advance(2 * lanes);
    }
    if (words > lanes) {
        // Of the last group only the first columns have two rows.
        const std::ptrdiff_t longer = words - lanes;
        addColumns<2>(first, second, firstRow, secondRow, x, longer / 2);
        advance(longer);
        words = lanes - longer;
    }
    addColumns<1>(first, second, firstRow, secondRow, x, words / 2);
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a)
        store(dst + a * lanes, interleaveSat(finish(first[a]), finish(second[a])));
}

// A vectors of results of a short real filter of an even number of taps: one row, which the odd
// outputs meet one sample later. That is a pair less than two rows take.
template <int A, int B, class F>
inline void shortTile(const Vlq16s* row, std::ptrdiff_t tapsLen, const Vlq16s* x, Vlq16s* dst,
                      const F& finish) {
    constexpr int lanes = Vec<Vlq16s, B>::lanes;
    Vec<Vlq32s, B> even[A], odd[A];
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a) even[a] = odd[a] = finish.template start<B>();
#pragma GCC unroll 1
    for (; tapsLen > 0; tapsLen -= 2, row += 2, x += 2) {
        const auto tap = broadcastPair<B>(row);
#pragma GCC unroll 16
        for (int a = 0; a < A; ++a) {
            even[a] = opaque(even[a] + pairSums(load<Vlq16s, B>(x + a * lanes), tap));
            odd[a] = opaque(odd[a] + pairSums(load<Vlq16s, B>(x + a * lanes + 1), tap));
        }
    }
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a)
        store(dst + a * lanes, interleaveSat(finish(even[a]), finish(odd[a])));
}
template <int B, class F, int... Less>
inline void shortTileOf(int vectors, const Vlq16s* row, std::ptrdiff_t tapsLen, const Vlq16s* x,
                        Vlq16s* dst, const F& finish, std::integer_sequence<int, Less...>) {
    ((vectors == Less + 1 ? shortTile<Less + 1, B>(row, tapsLen, x, dst, finish) : void()), ...);
}

template <int B, class F, int... Less>
inline void tileOf(int vectors, const Pairs& taps, const Vlq16s* x, Vlq16s* dst, const F& finish,
                   std::integer_sequence<int, Less...>) {
    ((vectors == Less + 1 ? tile<Less + 1, B>(taps.first, taps.second, taps.words, x, dst, finish)
                          : void()),
     ...);
}

// Calls make(vectors, first lane) for tiles of at most `most` vectors that cover n lanes, at least
// one vector, evenly. What remains ends flush with the last lane: it may be made a second time.
template <class Make>
[[gnu::always_inline]] inline void eachTile(std::ptrdiff_t n, std::ptrdiff_t lanes,
                                            std::ptrdiff_t most, Make&& make) {
    const std::ptrdiff_t vectors = (n + lanes - 1) / lanes;
    // One tile mostly: no division that waits.
    std::ptrdiff_t each = vectors;
    if (vectors > most) {
        const std::ptrdiff_t tiles = (vectors + most - 1) / most;
        each = (vectors + tiles - 1) / tiles;
    }
    for (std::ptrdiff_t done = 0; done < n;) {
        std::ptrdiff_t next = each;
        if (done + next * lanes > n) {
            next = std::min((n - done + lanes - 1) / lanes, n / lanes);
            done = std::min(done, n - next * lanes);
        }
        make(static_cast<int>(next), done);
        done += next * lanes;
    }
}

// n values of results, at least one vector.
template <int A, int B, class F>
inline void tiles(const Pairs& taps, const Vlq16s* x, Vlq16s* dst, std::ptrdiff_t n,
                  const F& finish) {
    eachTile(n, Vec<Vlq16s, B>::lanes, A, [&](int vectors, std::ptrdiff_t done) {
        tileOf<B>(vectors, taps, x + done, dst + done, finish,
                  std::make_integer_sequence<int, A>());
    });
}

// n values of results, of the windows that begin at x, x + Parts ...: nothing after the last window
// is read; of a real filter the sample before x may be. dst does not overlap the samples.
template <int Parts, class F>
inline void filterWordsBy(const TapRows<Parts>& taps, const Vlq16s* x, Vlq16s* dst,
                          std::ptrdiff_t n, const F& finish) {
    Pairs pairs;
    if constexpr (Parts == 2) {
        pairs = {taps.row[0], taps.row[1], taps.words};
    } else {
        constexpr int kShortTaps = kVecBytes == 16 ? 8 : kVecBytes == 32 ? 16 : 0;
        if (taps.words <= kShortTaps && taps.words % 2 == 0 && n >= Vec<Vlq16s>::lanes) {
            eachTile(n, Vec<Vlq16s>::lanes, kTileVectors, [&](int vectors, std::ptrdiff_t done) {
                shortTileOf<kVecBytes>(vectors, taps.row[0], taps.words, x + done, dst + done,
                                       finish, std::make_integer_sequence<int, kTileVectors>());
            });
            return;
        }
        // Odd outputs meet the same samples with the taps one value later. The zeros around the row
        // make all pairs whole, and the last pair ends with the window of the odd output.
        const std::ptrdiff_t before = taps.words % 2 == 0 ? 1 : 0;
        x -= before;
        pairs = {taps.row[0] - before, taps.row[0] - before - 1, taps.words + 1 + before};
    }
    if (kVecBytes > 16 && n < Vec<Vlq16s>::lanes)
        tiles<3, 16>(pairs, x, dst, n, finish);
    else
        tiles<kTileVectors, kVecBytes>(pairs, x, dst, n, finish);
}
template <int Parts>
void filterWords(const TapRows<Parts>& taps, const Vlq16s* x, Vlq16s* dst, std::ptrdiff_t n,
                 const Finish& finish) {
    constexpr std::ptrdiff_t smallest = Vec<Vlq16s, 16>::lanes;
    if (n < smallest) {
        for (std::ptrdiff_t i = 0; i < n; i += Parts) {
            const auto sums = dots(x + i, taps.row, taps.words);
            for (int p = 0; p < Parts; ++p) {
                const Vlq16s result = finish(sums.of[p]);
                std::memcpy(dst + i + p, &result, sizeof result);
            }
        }
    } else if (NearestFinish::serves(finish, taps.magnitude)) {
        filterWordsBy(taps, x, dst, n, NearestFinish(finish));
    } else {
        filterWordsBy(taps, x, dst, n, finish);
    }
}

extern template void filterWords(const TapRows<1>&, const Vlq16s*, Vlq16s*, std::ptrdiff_t,
                                 const Finish&);
extern template void filterWords(const TapRows<2>&, const Vlq16s*, Vlq16s*, std::ptrdiff_t,
                                 const Finish&);

}  // namespace vlq::fir::integer
