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
// A vector holds outputs of one phase, each from another place of the stream, and their samples
// come in the same way: a lane for each place. Where the windows of outputs share samples, these
// are first brought into vectors once for all outputs of a stretch; else each window is read on its
// own.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "filter/common/element.h"
#include "filter/fir/multirate/polyphase_rows.h"
#include "filter/fir/time_domain_kernels.h"
#include "frame/simd/transpose.h"

namespace vlq::fir {

template <class E>
struct Polyphase {
    const Phase* phases;  // `up` of them
    const E* rows;        // a row for each phase: every up-th tap
    const E* groups;      // the same for vectors of outputs of one period, or null
    int up, down;
    int line;  // samples before the period that a window reaches back to
};

// A sum of products and its parts, in vectors or in scalars V.
template <class V, int Parts>
struct Sum {
    V sum[1]{};
    void add(const V (&tap)[1], const V (&x)[1]) { sum[0] = mulAdd(tap[0], x[0], sum[0]); }
    void finish(V (&y)[1]) const { y[0] = sum[0]; }
    // The lanes of `other` where the mask is set.
    template <class Mask>
    void take(Mask mask, const Sum& other) {
        sum[0] = select(mask, other.sum[0], sum[0]);
    }
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
    template <class Mask>
    void take(Mask mask, const Sum& other) {
        for (int i = 0; i < 2; ++i) {
            straight[i] = select(mask, other.straight[i], straight[i]);
            crossed[i] = select(mask, other.crossed[i], crossed[i]);
        }
    }
};
template <class E, class V>
using SumOf = Sum<V, kParts<E>>;

template <class E, class V>
inline void spreadParts(const E* tap, V (&spread)[kParts<E>]) {
    for (int part = 0; part < kParts<E>; ++part) spread[part] = V::broadcast(parts(tap)[part]);
}

// ---- outputs one by one -------------------------------------------------------------------------

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

// ---- windows in lanes ---------------------------------------------------------------------------

// `count` terms of the windows in the lanes, each read on its own. newest(lane) is the newest
// sample of a window, tap(i, g) puts term i's tap of each lane into g.
template <int Bytes, class E, class Newest, class Tap>
inline SumOf<E, Vec<Part<E>, Bytes>> windowSums(int count, Newest newest, Tap tap) {
    using T = Part<E>;
    using V = Vec<T, Bytes>;
    constexpr int n = kParts<E>;
    constexpr int samples = V::lanes / n;  // that a vector holds of one window
    SumOf<E, V> sum;
    auto add = [&](int i, const V* from) {
        V g[n], x[n];
        tap(i, g);
#pragma GCC unroll 2
        for (int part = 0; part < n; ++part) x[part] = from[part];
        sum.add(g, x);
    };
    int i = 0;
    for (; i + samples <= count; i += samples) {
        V m[V::lanes];
#pragma GCC unroll 16
        for (int lane = 0; lane < V::lanes; ++lane)
            m[lane] = load<T, Bytes>(parts(newest(lane) - (i + samples - 1)));
        transpose(m);
#pragma GCC unroll 16
        for (int s = 0; s < samples; ++s) add(i + s, m + (samples - 1 - s) * n);
    }
    if (i < count) {
        // The oldest samples, with newer ones behind them that have been added where there are any.
        V m[V::lanes];
        if (i > 0) {
#pragma GCC unroll 16
            for (int lane = 0; lane < V::lanes; ++lane)
                m[lane] = load<T, Bytes>(parts(newest(lane) - (count - 1)));
        } else {
            for (int lane = 0; lane < V::lanes; ++lane)
                m[lane] = loadPartial<T, Bytes>(parts(newest(lane) - (count - 1)), count * n);
        }
        transpose(m);
        for (; i < count; ++i) add(i, m + (count - 1 - i) * n);
    }
    return sum;
}

// Stores the parts of the first `some` lanes, `step` outputs apart.
template <class E, int Bytes>
inline void storeLanes(const Vec<Part<E>, Bytes> (&y)[kParts<E>], E* dst, std::ptrdiff_t step,
                       int some) {
    using T = Part<E>;
    if (kParts<E> == 1 && step == 1) return storePartial(parts(dst), y[0], some);
    for (int part = 0; part < kParts<E>; ++part) {
        T lanes[Vec<T, Bytes>::lanes];
        store(lanes, y[part]);
        for (int lane = 0; lane < some; ++lane) write(parts(dst + lane * step) + part, lanes[lane]);
    }
}

// As many periods as there are lanes.
template <int Bytes, class E>
inline void windowPeriods(const Polyphase<E>& f, const E* x, E* dst) {
    using V = Vec<Part<E>, Bytes>;
    for (int k = 0; k < f.up; ++k) {
        const Phase& phase = f.phases[k];
        const E* taps = f.rows + phase.row;
        const E* newest = x + phase.newest;
        V y[kParts<E>];
        windowSums<Bytes, E>(
            phase.taps,
            [&](int lane) { return newest + static_cast<std::ptrdiff_t>(lane) * f.down; },
            [&](int i, V(&g)[kParts<E>]) { spreadParts(taps + i, g); })
            .finish(y);
        storeLanes(y, dst + k, f.up, V::lanes);
    }
}

// Outputs of one period in lanes.
template <class E>
[[gnu::noinline]] void groupedOutputs(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    using T = Part<E>;
    using V = Vec<T>;
    constexpr int n = kParts<E>;
    constexpr int lanes = V::lanes;
    const E* taps = f.groups;
    for (int first = 0; first < f.up;
         first += lanes, taps += static_cast<std::ptrdiff_t>(lanes) * f.line) {
        const int some = std::min(lanes, f.up - first);
        // One term that not all lanes have, the last one, is added to those that have it.
        const E* newest[lanes];
        BitsOf<T> longer[lanes];
        int terms = f.line;
        for (int lane = 0; lane < some; ++lane)
            terms = std::min(terms, f.phases[first + lane].taps);
        for (int lane = 0; lane < lanes; ++lane) {
            const Phase& phase = f.phases[first + std::min(lane, some - 1)];
            newest[lane] = x + phase.newest;
            longer[lane] = phase.taps > terms ? -1 : 0;
        }
        const auto mask = load<BitsOf<T>>(longer);
        const bool isEven = !any(mask);
        auto tap = [&](int i, V(&g)[n]) {
#pragma GCC unroll 2
            for (int part = 0; part < n; ++part)
                g[part] =
                    load<T>(parts(taps + static_cast<std::ptrdiff_t>(i) * lanes) + part * lanes);
        };
        E* to = dst + first;
        for (int period = 0; period < periods; ++period, to += f.up) {
            const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(period) * f.down;
            auto sum = windowSums<kVecBytes, E>(
                terms, [&](int lane) { return newest[lane] + at; }, tap);
            if (!isEven) {
                T last[n][lanes];
                for (int part = 0; part < n; ++part) {
                    for (int lane = 0; lane < lanes; ++lane)
                        last[part][lane] =
                            longer[lane] ? read(parts(newest[lane] + (at - terms)) + part) : 0;
                }
                V g[n], s[n];
                tap(terms, g);
                for (int part = 0; part < n; ++part) s[part] = load<T>(last[part]);
                auto more = sum;
                more.add(g, s);
                sum.take(mask, more);
            }
            V y[n];
            sum.finish(y);
            storeLanes(y, to, 1, some);
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

// ---- stretches in lanes -------------------------------------------------------------------------
// The periods are dealt out to the lanes in stretches of equal length; the last ones overlap where
// the number does not divide. All lanes move through their stretches together, a few periods at a
// time: bringing samples in and outputs out then hides behind the products of the periods before.

// Vectors of samples in lanes that are held, vectors of sums that wait to be brought out, and
// vectors of sums in registers, beside taps and samples: of one phase, and of three that share
// their samples.
inline constexpr int kStaged = 512;
inline constexpr int kWaiting = 144;
inline constexpr int kSums = 12;
inline constexpr int kSharedSums = kVecBytes == 64 ? 24 : 12;
// With separate multiplications and additions loads are not what a tile waits for.
inline constexpr bool kSharesLoads = kVecBytes > 16;

template <class E>
class Stretches {
    using T = Part<E>;
    using V = Vec<T>;
    using Sums = SumOf<E, V>;
    static constexpr int n = kParts<E>;
    static constexpr int lanes = V::lanes;
    static constexpr int group =
        lanes / n;  // samples or outputs that a vector holds in the order of memory
    static constexpr int staged = kStaged / n;
    static constexpr int waiting = kWaiting / (n * n);
    static constexpr int inTile = kSums / (n * n);

public:
    static bool takes(const Polyphase<E>& f, int periods) {
        return periods >= lanes && f.down <= staged / 2;
    }

    Stretches(const Polyphase<E>& f, const E* x, E* dst, int periods)
        : f_(f), length_(lengthFor(f, periods)) {
        for (int lane = 0; lane < lanes; ++lane) {
            const std::ptrdiff_t start = std::min(lane * length_, periods - length_);
            from_[lane] = parts(x + start * f.down);
            to_[lane] = parts(dst + start * f.up);
        }
    }

    void run() {
        // Long rows go in pieces of taps, for each of which samples are brought in again.
        const int piece = std::min(f_.line, staged / 2);
        const bool once = piece == f_.line;
        const int room = (staged - piece) / f_.down;
        if (length_ < inTile || room < inTile) {
            periods_ = std::min({inTile, length_, room});
        } else {
            // Multiples of four tiles, or of two, come out in whole vectors more often than others.
            const int tiles = std::min({waiting / f_.up, room, length_}) / inTile;
            periods_ = (tiles >= 4 ? 4 : tiles >= 2 ? 2 : 1) * inTile;
        }
        const int phases = std::min(f_.up, waiting / periods_);
        orderOutputs(phases);
        const int periods = periods_;
        if (once) beginAt(-f_.line);
        for (int t = 0; t < length_; t += periods) {
            const int count = std::min(periods, length_ - t);
            if (once) bringIn(t, count, 0, piece);
            for (int k = 0; k < f_.up; k += phases) {
                const int some = std::min(phases, f_.up - k);
                for (int i = 0; i < f_.line; i += piece) {
                    const int last = std::min(f_.line, i + piece);
                    if (!once) {
                        beginAt(static_cast<std::ptrdiff_t>(t) * f_.down - last);
                        bringIn(t, count, i, last);
                    }
                    add(t, count, k, some, i, last);
                }
                bringOut(t, count, k, some);
            }
        }
    }

private:
    // Stretches that lie whole pages apart would all use the same few lines of the cache: such ones
    // are made a little longer.
    static int lengthFor(const Polyphase<E>& f, int periods) {
        constexpr std::ptrdiff_t page = 4096, line = 64;
        auto crowds = [](std::ptrdiff_t elements) {
            const std::ptrdiff_t bytes = elements * static_cast<std::ptrdiff_t>(sizeof(E));
            return bytes >= page && (bytes + line) % page < 2 * line;
        };
        int length = (periods + lanes - 1) / lanes;
        const int most = std::min(periods, length + length / 32);
        while (length < most && (crowds(static_cast<std::ptrdiff_t>(length) * f.up) ||
                                 crowds(static_cast<std::ptrdiff_t>(length) * f.down)))
            ++length;
        return length;
    }

    void beginAt(std::ptrdiff_t sample) { origin_ = end_ = sample; }

    // Makes sure of the samples that taps i to last - 1 meet in `count` periods from t on, all
    // before them being there or of no more use.
    void bringIn(int t, int count, int i, int last) {
        const std::ptrdiff_t first = static_cast<std::ptrdiff_t>(t) * f_.down - last;
        const std::ptrdiff_t wanted = static_cast<std::ptrdiff_t>(t + count) * f_.down - i;
        if (wanted - origin_ > staged) {
            const T* from = samples_ + (first - origin_) * n * lanes;
            const std::ptrdiff_t kept = (end_ - first) * n * lanes;
            for (std::ptrdiff_t at = 0; at < kept; at += lanes)
                storeAligned(samples_ + at, loadAligned<T>(from + at));
            origin_ = first;
        }
        // Whole vectors, as long as the stretches have them; they may reach beyond what is wanted.
        const std::ptrdiff_t all = static_cast<std::ptrdiff_t>(length_) * f_.down;
        std::ptrdiff_t at = end_ * n;
        T* to = samples_ + (end_ - origin_) * n * lanes;
        for (; at < wanted * n && at + lanes <= all * n; at += lanes, to += lanes * lanes) {
            V m[lanes];
#pragma GCC unroll 16
            for (int lane = 0; lane < lanes; ++lane) m[lane] = load<T>(from_[lane] + at);
            transpose(m);
#pragma GCC unroll 16
            for (int row = 0; row < lanes; ++row) storeAligned(to + row * lanes, m[row]);
        }
        if (at < wanted * n) {
            bringInLast(to, at, static_cast<int>(all * n - at));
            at = all * n;
        }
        end_ = at / n;
    }
    [[gnu::noinline]] void bringInLast(T* to, std::ptrdiff_t at, int some) {
        V m[lanes];
        for (int lane = 0; lane < lanes; ++lane) m[lane] = loadPartial<T>(from_[lane] + at, some);
        transpose(m);
        for (int row = 0; row < some; ++row) storeAligned(to + row * lanes, m[row]);
    }

    struct Row {
        const E* taps;
        const T* x;
        int count;
    };

    // K phases with A outputs of each in successive periods, `tiles` times over. The sums of a
    // phase lie side by side, those of the next one `outputs` further on. Phases of one newest
    // sample share loads.
    template <int K, int A, bool Shared>
    [[gnu::noinline]] static void addTiles(int tiles, const Row* rows, int count,
                                           std::ptrdiff_t step, Sums* sums, int outputs,
                                           bool fresh) {
        std::ptrdiff_t at = 0;
        for (; tiles > 0; --tiles, at += A * step, sums += A) {
            Sums sum[K][A];
            if (!fresh) {
#pragma GCC unroll 12
                for (int k = 0; k < K; ++k) {
#pragma GCC unroll 12
                    for (int a = 0; a < A; ++a) sum[k][a] = sums[k * outputs + a];
                }
            }
            const E* taps[K];
            const T* x[K];
#pragma GCC unroll 12
            for (int k = 0; k < K; ++k) taps[k] = rows[k].taps, x[k] = rows[k].x + at;
#pragma GCC unroll 1
            for (int i = 0; i < count; ++i) {
                V g[K][n], s[n];
#pragma GCC unroll 12
                for (int k = 0; k < K; ++k) spreadParts(taps[k] + i, g[k]);
#pragma GCC unroll 12
                for (int a = 0; a < A; ++a) {
#pragma GCC unroll 12
                    for (int k = 0; k < K; ++k) {
                        if (!Shared || k == 0) {
#pragma GCC unroll 2
                            for (int part = 0; part < n; ++part)
                                s[part] = loadAligned<T>(x[k] + (part - i * n) * lanes + a * step);
                        }
                        sum[k][a].add(g[k], s);
                    }
                }
            }
#pragma GCC unroll 12
            for (int k = 0; k < K; ++k) {
#pragma GCC unroll 12
                for (int a = 0; a < A; ++a) sums[k * outputs + a] = sum[k][a];
            }
        }
    }
    template <int... Less>
    static void addSome(int some, const Row* row, std::ptrdiff_t step, Sums* sums, bool fresh,
                        std::integer_sequence<int, Less...>) {
        ((some == Less + 1 ? addTiles<1, Less + 1, false>(1, row, row->count, step, sums, 0, fresh)
                           : void()),
         ...);
    }
    static void addPhase(const Row& row, int count, std::ptrdiff_t step, Sums* sums, bool fresh) {
        const int tiles = count / inTile;
        if (tiles > 0) addTiles<1, inTile, false>(tiles, &row, row.count, step, sums, 0, fresh);
        if (count == tiles * inTile) return;
        const Row rest = {row.taps, row.x + tiles * inTile * step, row.count};
        addSome(count - tiles * inTile, &rest, step, sums + tiles * inTile, fresh,
                std::make_integer_sequence<int, inTile - 1>());
    }

    // K phases with as many terms as all of them have, then what some have more.
    template <int K, int A, bool Shared>
    void addPhases(const Row (&rows)[K], int count, std::ptrdiff_t step, Sums* sums, bool fresh) {
        int terms = rows[0].count;
        for (const Row& row : rows) terms = std::min(terms, row.count);
        const int tiles = count / A;
        addTiles<K, A, Shared>(tiles, rows, terms, step, sums, periods_, fresh);
        for (int k = 0; k < K; ++k, sums += periods_) {
            const Row& row = rows[k];
            if (tiles * A < count)
                addPhase({row.taps, row.x + tiles * A * step, terms}, count - tiles * A, step,
                         sums + tiles * A, fresh);
            if (row.count > terms) {
                addPhase({row.taps + terms, row.x - static_cast<std::ptrdiff_t>(terms) * n * lanes,
                          row.count - terms},
                         count, step, sums, false);
            }
        }
    }

    void add(int t, int count, int k, int phases, int i, int last) {
        const std::ptrdiff_t step = static_cast<std::ptrdiff_t>(f_.down) * n * lanes;
        auto rowOf = [&](int output) {
            const Phase& phase = f_.phases[k + output];
            return Row{
                f_.rows + phase.row + i,
                samples_ + (static_cast<std::ptrdiff_t>(t) * f_.down + phase.newest - i - origin_) *
                               n * lanes,
                std::max(0, std::min(phase.taps, last) - i)};
        };
        const bool fresh = i == 0;
        int output = 0;
        if constexpr (n == 1) {
            constexpr int together = 3;
            while (output + together <= phases) {
                const Row rows[together] = {rowOf(output), rowOf(output + 1), rowOf(output + 2)};
                Sums* sums = sums_ + output * periods_;
                const bool shared =
                    kSharesLoads && rows[0].x == rows[1].x && rows[0].x == rows[2].x;
                if (shared && count >= kSharedSums / together) {
                    addPhases<together, kSharedSums / together, true>(rows, count, step, sums,
                                                                      fresh);
                } else if (count < inTile / 2) {
                    addPhases<together, 2, false>(rows, count, step, sums, fresh);
                } else {
                    addPhase(rows[0], count, step, sums, fresh);
                    ++output;
                    continue;
                }
                output += together;
            }
        }
        for (; output < phases; ++output)
            addPhase(rowOf(output), count, step, sums_ + output * periods_, fresh);
    }

    // Where the sums lie that come out side by side: those of all phases and periods, or of the
    // phases of one period.
    void orderOutputs(int phases) {
        int* order = order_;
        const int periods = phases == f_.up ? periods_ : 1;
        for (int period = 0; period < periods; ++period) {
            for (int k = 0; k < phases; ++k) *order++ = k * periods_ + period;
        }
        std::fill_n(order, group, 0);
    }
    void bringOut(int t, int count, int k, int phases) {
        std::ptrdiff_t at = (static_cast<std::ptrdiff_t>(t) * f_.up + k) * n;
        if (phases == f_.up) return bringOutRun(at, sums_, count * phases);
        for (int period = 0; period < count;
             ++period, at += static_cast<std::ptrdiff_t>(f_.up) * n) {
            bringOutRun(at, sums_ + period, phases);
        }
    }
    static void gather(const Sums* sums, const int* order, V (&m)[lanes]) {
#pragma GCC unroll 16
        for (int o = 0; o < group; ++o) {
            V y[n];
            sums[order[o]].finish(y);
#pragma GCC unroll 2
            for (int part = 0; part < n; ++part) m[o * n + part] = y[part];
        }
        transpose(m);
    }
    void bringOutRun(std::ptrdiff_t at, const Sums* sums, int left) {
        const int* order = order_;
        for (; left >= group; left -= group, order += group, at += lanes) {
            V m[lanes];
            gather(sums, order, m);
#pragma GCC unroll 16
            for (int lane = 0; lane < lanes; ++lane) store(to_[lane] + at, m[lane]);
        }
        if (left > 0) bringOutLast(at, sums, order, left);
    }
    [[gnu::noinline]] void bringOutLast(std::ptrdiff_t at, const Sums* sums, const int* order,
                                        int left) {
        V m[lanes];
        gather(sums, order, m);
        for (int lane = 0; lane < lanes; ++lane) storePartial(to_[lane] + at, m[lane], left * n);
    }

    const Polyphase<E>& f_;
    int length_;            // of a stretch, in periods
    int periods_ = 0;       // at a time, at most
    const T* from_[lanes];  // where each lane's stretch begins
    T* to_[lanes];
    std::ptrdiff_t origin_ = 0;  // what samples_ begins with, counted from the lanes' starts
    std::ptrdiff_t end_ = 0;     // and ends before
    alignas(kVecBytes) T samples_[(kStaged + 2 * lanes) * lanes];
    Sums sums_[waiting];  // phase by phase
    int order_[waiting + group];
};

template <class E>
[[gnu::noinline]] void stretchOutputs(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    Stretches<E>(f, x, dst, periods).run();
}

// ---- all ----------------------------------------------------------------------------------------

// The outputs of `periods` periods from the one that begins with sample x[0] on. Reads x[-line ..
// periods * down - 1]. dst does not overlap x.
template <class E>
inline void multiRate(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    // Windows that do not overlap share nothing.
    const bool sharing = static_cast<Vlq64s>(f.line) * f.up > f.down;
    if (sharing && Stretches<E>::takes(f, periods))
        stretchOutputs(f, x, dst, periods);
    else if (f.groups)
        groupedOutputs(f, x, dst, periods);
    else
        windowOutputs(f, x, dst, periods);
}

}  // namespace vlq::fir
