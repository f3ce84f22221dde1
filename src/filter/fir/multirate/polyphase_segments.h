// Polyphase FIR kernels for outputs whose windows share samples: these are transposed into vectors
// once for all outputs of a segment.
//
// The periods are dealt out to the lanes in segments of equal length; the last ones overlap where
// the number does not divide. All lanes move through their segments together, a few periods at a
// time: loading samples and storing outputs then overlaps with the products of the periods before.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "filter/fir/multirate/polyphase_kernels.h"

namespace vlq::fir {

// Vectors of samples in lanes that are held, vectors of sums that wait to be stored, and vectors of
// sums in registers, beside taps and samples: of one phase, and of three that share their samples.
inline constexpr int kStaged = 512;
inline constexpr int kWaiting = 144;
inline constexpr int kSums = 12;
inline constexpr int kSharedSums = kVecBytes == 64 ? 24 : 12;
// With separate multiplications and additions loads are not what a tile waits for.
inline constexpr bool kSharesLoads = kVecBytes > 16;

// Whether there is a period for each lane, and room for the samples between two outputs.
template <class E>
inline bool fitsSegments(const Polyphase<E>& f, int periods) {
    return periods >= Vec<Part<E>>::lanes && f.down <= kStaged / kParts<E> / 2;
}

template <class E>
class Segments {
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
    Segments(const Polyphase<E>& f, const E* x, E* dst, int periods)
        : f_(f), length_(lengthFor(f, periods)) {
        for (int lane = 0; lane < lanes; ++lane) {
            const std::ptrdiff_t start = std::min(lane * length_, periods - length_);
            from_[lane] = parts(x + start * f.down);
            to_[lane] = parts(dst + start * f.up);
        }
    }

    void run() {
        // Long rows go in pieces of taps, for each of which samples are loaded again.
        const int piece = std::min(f_.line, staged / 2);
        const bool once = piece == f_.line;
        const int room = (staged - piece) / f_.down;
        if (length_ < inTile || room < inTile) {
            periods_ = std::min({inTile, length_, room});
        } else {
            // Multiples of four tiles, or of two, fill whole vectors of outputs more often.
            const int tiles = std::min({waiting / f_.up, room, length_}) / inTile;
            periods_ = (tiles >= 4 ? 4 : tiles >= 2 ? 2 : 1) * inTile;
        }
        const int phases = std::min(f_.up, waiting / periods_);
        orderOutputs(phases);
        const int periods = periods_;
        if (once) beginAt(-f_.line);
        for (int t = 0; t < length_; t += periods) {
            const int count = std::min(periods, length_ - t);
            if (once) loadSamples(t, count, 0, piece);
            for (int k = 0; k < f_.up; k += phases) {
                const int some = std::min(phases, f_.up - k);
                for (int i = 0; i < f_.line; i += piece) {
                    const int last = std::min(f_.line, i + piece);
                    if (!once) {
                        beginAt(static_cast<std::ptrdiff_t>(t) * f_.down - last);
                        loadSamples(t, count, i, last);
                    }
                    add(t, count, k, some, i, last);
                }
                storeOutputs(t, count, k, some);
            }
        }
    }

private:
    // Segments whole pages apart would all compete for the same few lines of the cache: such ones
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

    // Loads the samples that taps i to last - 1 meet in `count` periods from t on; all before them
    // are loaded or of no more use.
    void loadSamples(int t, int count, int i, int last) {
        const std::ptrdiff_t first = static_cast<std::ptrdiff_t>(t) * f_.down - last;
        const std::ptrdiff_t wanted = static_cast<std::ptrdiff_t>(t + count) * f_.down - i;
        if (wanted - origin_ > staged) {
            const T* from = samples_ + (first - origin_) * n * lanes;
            const std::ptrdiff_t kept = (end_ - first) * n * lanes;
            for (std::ptrdiff_t at = 0; at < kept; at += lanes)
                storeAligned(samples_ + at, loadAligned<T>(from + at));
            origin_ = first;
        }
        // Whole vectors, as long as the segments have them; they may reach beyond what is wanted.
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
            loadLastSamples(to, at, static_cast<int>(all * n - at));
            at = all * n;
        }
        end_ = at / n;
    }
    [[gnu::noinline]] void loadLastSamples(T* to, std::ptrdiff_t at, int some) {
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
    // phase are stored side by side, those of the next one `outputs` further on. Phases of one
    // newest sample share loads.
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

    // The order in which sums are stored side by side: all phases and periods, or the phases of one
    // period.
    void orderOutputs(int phases) {
        int* order = order_;
        const int periods = phases == f_.up ? periods_ : 1;
        for (int period = 0; period < periods; ++period) {
            for (int k = 0; k < phases; ++k) *order++ = k * periods_ + period;
        }
        std::fill_n(order, group, 0);
    }
    void storeOutputs(int t, int count, int k, int phases) {
        std::ptrdiff_t at = (static_cast<std::ptrdiff_t>(t) * f_.up + k) * n;
        if (phases == f_.up) return storeRun(at, sums_, count * phases);
        for (int period = 0; period < count;
             ++period, at += static_cast<std::ptrdiff_t>(f_.up) * n) {
            storeRun(at, sums_ + period, phases);
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
    void storeRun(std::ptrdiff_t at, const Sums* sums, int left) {
        const int* order = order_;
        for (; left >= group; left -= group, order += group, at += lanes) {
            V m[lanes];
            gather(sums, order, m);
#pragma GCC unroll 16
            for (int lane = 0; lane < lanes; ++lane) store(to_[lane] + at, m[lane]);
        }
        if (left > 0) storeLast(at, sums, order, left);
    }
    [[gnu::noinline]] void storeLast(std::ptrdiff_t at, const Sums* sums, const int* order,
                                     int left) {
        V m[lanes];
        gather(sums, order, m);
        for (int lane = 0; lane < lanes; ++lane) storePartial(to_[lane] + at, m[lane], left * n);
    }

    const Polyphase<E>& f_;
    int length_;            // of a segment, in periods
    int periods_ = 0;       // at a time, at most
    const T* from_[lanes];  // where each lane's segment begins
    T* to_[lanes];
    std::ptrdiff_t origin_ = 0;  // what samples_ begins with, counted from the lanes' starts
    std::ptrdiff_t end_ = 0;     // and ends before
    alignas(kVecBytes) T samples_[(kStaged + 2 * lanes) * lanes];
    Sums sums_[waiting];  // phase by phase
    int order_[waiting + group];
};

template <class E>
[[gnu::noinline]] void segmentOutputs(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    Segments<E>(f, x, dst, periods).run();
}

extern template void segmentOutputs(const Polyphase<Vlq32f>&, const Vlq32f*, Vlq32f*, int);
extern template void segmentOutputs(const Polyphase<Vlq32fc>&, const Vlq32fc*, Vlq32fc*, int);
extern template void segmentOutputs(const Polyphase<Vlq64f>&, const Vlq64f*, Vlq64f*, int);
extern template void segmentOutputs(const Polyphase<Vlq64fc>&, const Vlq64fc*, Vlq64fc*, int);

}  // namespace vlq::fir
