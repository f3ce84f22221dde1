// The multi-rate FIR kernels: outputs of whole periods, by the polyphase rule. Output k of a period
// whose first sample is x[0] is
//
//     y = sum over i of row[i] * x[newest - i], i from 0,
//
// row and newest being those of its phase. The terms are added one after the other in this order,
// in one chain (a complex sum: four chains, one for each product of parts). So any cut of a stream
// into calls, parts and vectors gives the same bits, and no tap ever meets a sample that its window
// does not reach.
//
// A vector holds outputs of one phase, each from another place of the stream, and their samples come
// in the same way: a lane for each place. Where the windows of outputs share samples, these are first
// brought into vectors once for all outputs of a stretch; else each window is read on its own.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "filter/fir_direct_kernels.h"
#include "filter/fir_element.h"
#include "frame/simd/transpose.h"

namespace vlq::fir {

// An output of a period: its newest sample, counted from the first of the period, and its taps.
struct Phase {
    Vlq32s newest;
    Vlq32s taps;
    Vlq32s row;  // where they begin in the rows
    Vlq32s spare;
};

template <class E>
struct Polyphase {
    const Phase* phases;  // `up` of them
    const E* rows;        // a row for each phase: every up-th tap
    int up, down;
    int line;  // samples before the period that a window reaches back to
};

// A sum of products and its parts, in vectors or in scalars V.
template <class V, int Parts>
struct Sum {
    V sum[1]{};
    void add(const V (&tap)[1], const V (&x)[1]) { sum[0] = mulAdd(tap[0], x[0], sum[0]); }
    void finish(V (&y)[1]) const { y[0] = sum[0]; }
};
template <class V>
struct Sum<V, 2> {
    V straight[2]{}, crossed[2]{};
    void add(const V (&tap)[2], const V (&x)[2]) {
        straight[0] = mulAdd(tap[0], x[0], straight[0]);
        straight[1] = mulAdd(tap[1], x[1], straight[1]);
        crossed[0] = mulAdd(tap[0], x[1], crossed[0]);
        crossed[1] = mulAdd(tap[1], x[0], crossed[1]);
    }
    void finish(V (&y)[2]) const {
        y[0] = straight[0] - straight[1];
        y[1] = crossed[0] + crossed[1];
    }
};
template <class E, class V>
using SumOf = Sum<V, kParts<E>>;

template <class E, class V>
inline void spreadParts(const E* tap, V (&spread)[kParts<E>]) {
    for (int part = 0; part < kParts<E>; ++part) spread[part] = V::broadcast(parts(tap)[part]);
}

// ---- outputs one by one ----------------------------------------------------------------------------

template <class E>
[[gnu::noinline]] void singleOutputs(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    using T = Part<E>;
    constexpr int n = kParts<E>;
    for (; periods > 0; --periods, x += f.down, dst += f.up) {
        for (int k = 0; k < f.up; ++k) {
            const Phase& phase = f.phases[k];
            const T* tap = parts(f.rows + phase.row);
            const T* sample = parts(x + phase.newest);
            SumOf<E, T> sum;
            for (int i = 0; i < phase.taps; ++i, tap += n, sample -= n) {
                T g[n], s[n];
                for (int part = 0; part < n; ++part) {
                    g[part] = tap[part];
                    s[part] = read(sample + part);
                }
                sum.add(g, s);
            }
            T y[n];
            sum.finish(y);
            for (int part = 0; part < n; ++part) write(parts(dst + k) + part, y[part]);
        }
    }
}

// ---- windows in lanes ------------------------------------------------------------------------------

// Lane l takes the window that ends at newest + l * step; each is read on its own.
template <int Bytes, class E>
inline void windowSums(const E* taps, int count, const E* newest, std::ptrdiff_t step,
                       Vec<Part<E>, Bytes> (&y)[kParts<E>]) {
    using T = Part<E>;
    using V = Vec<T, Bytes>;
    constexpr int n = kParts<E>;
    constexpr int samples = V::lanes / n;  // that a vector holds of one window
    SumOf<E, V> sum;
    V m[V::lanes];
    auto addNewestFirst = [&](int held) {
        for (int s = held - 1; s >= 0; --s, ++taps) {
            V g[n], x[n];
            spreadParts(taps, g);
#pragma GCC unroll 2
            for (int part = 0; part < n; ++part) x[part] = m[s * n + part];
            sum.add(g, x);
        }
    };
    int left = count;
    for (; left >= samples; left -= samples) {
        const E* oldest = newest - (samples - 1);
#pragma GCC unroll 16
        for (int lane = 0; lane < V::lanes; ++lane) m[lane] = load<T, Bytes>(parts(oldest + lane * step));
        transpose(m);
        addNewestFirst(samples);
        newest -= samples;
    }
    if (left > 0) {
        const E* oldest = newest - (left - 1);
        for (int lane = 0; lane < V::lanes; ++lane) m[lane] = loadPartial<T, Bytes>(parts(oldest + lane * step), left * n);
        transpose(m);
        addNewestFirst(left);
    }
    sum.finish(y);
}

// As many periods as there are lanes.
template <int Bytes, class E>
inline void windowPeriods(const Polyphase<E>& f, const E* x, E* dst) {
    using T = Part<E>;
    using V = Vec<T, Bytes>;
    for (int k = 0; k < f.up; ++k) {
        const Phase& phase = f.phases[k];
        V y[kParts<E>];
        windowSums<Bytes>(f.rows + phase.row, phase.taps, x + phase.newest, f.down, y);
        if (kParts<E> == 1 && f.up == 1) {
            store(parts(dst), y[0]);
            continue;
        }
        for (int part = 0; part < kParts<E>; ++part) {
            T lanes[V::lanes];
            store(lanes, y[part]);
            for (int lane = 0; lane < V::lanes; ++lane) {
                write(parts(dst + k + static_cast<std::ptrdiff_t>(lane) * f.up) + part, lanes[lane]);
            }
        }
    }
}

template <class E>
[[gnu::noinline]] void windowOutputs(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    using T = Part<E>;
    auto run = [&]<int Bytes>(std::integral_constant<int, Bytes>) {
        constexpr int lanes = Vec<T, Bytes>::lanes;
        for (; periods >= lanes; periods -= lanes) {
            windowPeriods<Bytes>(f, x, dst);
            x += static_cast<std::ptrdiff_t>(lanes) * f.down;
            dst += static_cast<std::ptrdiff_t>(lanes) * f.up;
        }
    };
    run(std::integral_constant<int, kVecBytes>{});
    if constexpr (kVecBytes > 16) run(std::integral_constant<int, 16>{});
    singleOutputs(f, x, dst, periods);
}

// ---- stretches in lanes ----------------------------------------------------------------------------
// The periods are dealt out to the lanes in stretches of equal length; the last ones overlap where
// the number does not divide. All lanes move through their stretches together.

// Vectors of samples brought into lanes at a time, and vectors of outputs that wait to be brought out.
inline constexpr int kStaged = 384;
inline constexpr int kWaiting = 48;
// Sums in registers beside the taps and a load.
inline constexpr int kSums = 12;

template <class E>
class Stretches {
    using T = Part<E>;
    using V = Vec<T>;
    using Sums = SumOf<E, V>;
    static constexpr int n = kParts<E>;
    static constexpr int lanes = V::lanes;
    static constexpr int staged = kStaged / n;
    static constexpr int waiting = kWaiting / n;
    static constexpr int tile = kSums / (n * n);

public:
    static bool takes(const Polyphase<E>& f, int periods) { return periods >= lanes && f.down <= staged / 2; }

    Stretches(const Polyphase<E>& f, const E* x, E* dst, int periods)
        : f_(f), x_(x), dst_(dst), length_((periods + lanes - 1) / lanes) {
        for (int lane = 0; lane < lanes; ++lane) start_[lane] = std::min(lane * length_, periods - length_);
    }

    void run() {
        // Long rows go in pieces of taps, for each of which samples are brought in again.
        const int piece = std::min(f_.line, staged / 2);
        const bool once = piece == f_.line;
        const int atOnce = std::max(1, waiting / f_.up);
        const int reach = once ? (staged - piece) / f_.down : std::min((staged - piece) / f_.down, atOnce);
        for (int t = 0; t < length_; t += reach) {
            const int end = std::min(length_, t + reach);
            if (once) bringIn(t, end - t, 0, piece);
            for (int from = t; from < end; from += atOnce) {
                const int count = std::min(atOnce, end - from);
                for (int k = 0; k < f_.up; k += waiting) {
                    const int phases = std::min(waiting, f_.up - k);
                    for (int i = 0; i < f_.line; i += piece) {
                        const int last = std::min(f_.line, i + piece);
                        if (!once) bringIn(from, count, i, last);
                        add(from, count, k, phases, i, last);
                    }
                    bringOut(from, count, k, phases);
                }
            }
        }
    }

private:
    // The samples that taps i to last - 1 meet in `count` periods from t on.
    void bringIn(int t, int count, int i, int last) {
        origin_ = static_cast<std::ptrdiff_t>(t) * f_.down - last;
        const int held = (count * f_.down + last - i) * n;
        V m[lanes];
        for (int at = 0; at < held; at += lanes) {
            const int some = std::min(lanes, held - at);
            const T* from = parts(x_ + origin_) + at;
            if (some == lanes) {
#pragma GCC unroll 16
                for (int lane = 0; lane < lanes; ++lane) m[lane] = load<T>(from + start_[lane] * n * f_.down);
            } else {
                for (int lane = 0; lane < lanes; ++lane) m[lane] = loadPartial<T>(from + start_[lane] * n * f_.down, some);
            }
            transpose(m);
            // Rows past the last one are written too: there is room.
#pragma GCC unroll 16
            for (int row = 0; row < lanes; ++row) storeAligned(samples_ + (at + row) * lanes, m[row]);
        }
    }

    // A outputs of one phase in successive periods; sums and samples of the next one are `outputs` and
    // `step` further on.
    template <int A>
    static void addTile(const E* taps, int count, const T* x, std::ptrdiff_t step, Sums* sums, int outputs) {
        Sums sum[A];
#pragma GCC unroll 12
        for (int a = 0; a < A; ++a) sum[a] = sums[a * outputs];
#pragma GCC unroll 1
        for (; count > 0; --count, ++taps, x -= n * lanes) {
            V g[n];
            spreadParts(taps, g);
#pragma GCC unroll 12
            for (int a = 0; a < A; ++a) {
                V s[n];
#pragma GCC unroll 2
                for (int part = 0; part < n; ++part) s[part] = loadAligned<T>(x + a * step + part * lanes);
                sum[a].add(g, s);
            }
        }
#pragma GCC unroll 12
        for (int a = 0; a < A; ++a) sums[a * outputs] = sum[a];
    }
    template <int... Less>
    static void addSome(int some, const E* taps, int count, const T* x, std::ptrdiff_t step, Sums* sums, int outputs,
                        std::integer_sequence<int, Less...>) {
        ((some == Less + 1 ? addTile<Less + 1>(taps, count, x, step, sums, outputs) : void()), ...);
    }

    void add(int t, int count, int k, int phases, int i, int last) {
        if (i == 0) std::fill_n(sums_, count * phases, Sums{});
        const std::ptrdiff_t step = static_cast<std::ptrdiff_t>(f_.down) * n * lanes;
        for (int output = 0; output < phases; ++output) {
            const Phase& phase = f_.phases[k + output];
            const int taps = std::min(phase.taps, last) - i;
            if (taps <= 0) continue;
            const E* row = f_.rows + phase.row + i;
            const T* x = samples_ + (static_cast<std::ptrdiff_t>(t) * f_.down + phase.newest - i - origin_) * n * lanes;
            Sums* sums = sums_ + output;
            int left = count;
            for (; left >= tile; left -= tile, x += tile * step, sums += tile * phases) addTile<tile>(row, taps, x, step, sums, phases);
            addSome(left, row, taps, x, step, sums, phases, std::make_integer_sequence<int, tile - 1>());
        }
    }

    void bringOut(int t, int count, int k, int phases) {
        constexpr int outputs = lanes / n;  // that a vector holds in the order of memory
        T* to = parts(dst_ + static_cast<std::ptrdiff_t>(t) * f_.up + k);
        V m[lanes];
        for (int left = count * phases, at = 0; left > 0; left -= outputs, at += outputs) {
#pragma GCC unroll 16
            for (int o = 0; o < outputs; ++o) {
                V y[n];
                sums_[at + o].finish(y);
#pragma GCC unroll 2
                for (int part = 0; part < n; ++part) m[o * n + part] = y[part];
            }
            transpose(m);
            if (left >= outputs) {
#pragma GCC unroll 16
                for (int lane = 0; lane < lanes; ++lane) store(to + start_[lane] * n * f_.up + at * n, m[lane]);
            } else {
                for (int lane = 0; lane < lanes; ++lane) storePartial(to + start_[lane] * n * f_.up + at * n, m[lane], left * n);
            }
        }
    }

    const Polyphase<E>& f_;
    const E* x_;
    E* dst_;
    int length_;                   // of a stretch, in periods
    std::ptrdiff_t start_[lanes];  // of each lane's stretch
    std::ptrdiff_t origin_ = 0;    // the sample of the lanes' first periods that samples_ begins with
    alignas(kVecBytes) T samples_[(kStaged + lanes) * lanes];
    Sums sums_[waiting + lanes];
};

template <class E>
[[gnu::noinline]] void stretchOutputs(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    Stretches<E>(f, x, dst, periods).run();
}

// ---- all -------------------------------------------------------------------------------------------

// The outputs of `periods` periods from the one that begins with sample x[0] on. Reads x[-line ..
// periods * down - 1]. dst does not overlap x.
template <class E>
inline void multiRate(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    // Windows that do not overlap share nothing.
    const bool sharing = static_cast<Vlq64s>(f.line) * f.up > f.down;
    if (sharing && Stretches<E>::takes(f, periods)) stretchOutputs(f, x, dst, periods);
    else windowOutputs(f, x, dst, periods);
}

}  // namespace vlq::fir
