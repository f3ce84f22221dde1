// The polyphase FIR kernels: outputs of whole periods, by the polyphase rule. Output k of a period
// whose first sample is x[0] is
//
//     y = sum over i of row[i] * x[newest - i], i from 0,
//
// row and newest being those of its phase. The terms are added one after the other in this order,
// in one chain (a complex sum: four chains, one for each product of parts). So any cut of a stream
// into calls, parts and vectors gives the same bits, and no tap ever meets a sample that its window
// does not reach.
//
// A vector holds outputs of one phase, each from another place of the stream, and their samples are
// loaded in the same way: a lane for each place. The kernels here read each window on its own;
// where windows share samples, those of polyphase_segments.h load and transpose them once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "filter/common/element.h"
#include "filter/fir/multirate/polyphase_rows.h"
#include "frame/simd/ops.h"
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
    V real[2]{}, cross[2]{};
    void add(const V (&tap)[2], const V (&x)[2]) {
        real[0] = mulAdd(tap[0], x[0], real[0]);
        real[1] = mulAdd(tap[1], x[1], real[1]);
        cross[0] = mulAdd(tap[0], x[1], cross[0]);
        cross[1] = mulAdd(tap[1], x[0], cross[1]);
    }
    void finish(V (&y)[2]) const {
        y[0] = real[0] - real[1];
        y[1] = cross[0] + cross[1];
    }
    template <class Mask>
    void take(Mask mask, const Sum& other) {
        for (int i = 0; i < 2; ++i) {
            real[i] = select(mask, other.real[i], real[i]);
            cross[i] = select(mask, other.cross[i], cross[i]);
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
                    s[part] = loadScalar(sample + part);
                }
                sum.add(g, s);
            }
            T y[n];
            sum.finish(y);
            for (int part = 0; part < n; ++part) storeScalar(parts(dst + k) + part, y[part]);
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
        // The oldest samples, followed by newer ones, if any, that have been added already.
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
        for (int lane = 0; lane < some; ++lane)
            storeScalar(parts(dst + lane * step) + part, lanes[lane]);
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
                            longer[lane] ? loadScalar(parts(newest[lane] + (at - terms)) + part)
                                         : 0;
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

// ---- instances ----------------------------------------------------------------------------------

extern template void groupedOutputs(const Polyphase<Vlq32f>&, const Vlq32f*, Vlq32f*, int);
extern template void groupedOutputs(const Polyphase<Vlq32fc>&, const Vlq32fc*, Vlq32fc*, int);
extern template void groupedOutputs(const Polyphase<Vlq64f>&, const Vlq64f*, Vlq64f*, int);
extern template void groupedOutputs(const Polyphase<Vlq64fc>&, const Vlq64fc*, Vlq64fc*, int);
extern template void windowOutputs(const Polyphase<Vlq32f>&, const Vlq32f*, Vlq32f*, int);
extern template void windowOutputs(const Polyphase<Vlq32fc>&, const Vlq32fc*, Vlq32fc*, int);
extern template void windowOutputs(const Polyphase<Vlq64f>&, const Vlq64f*, Vlq64f*, int);
extern template void windowOutputs(const Polyphase<Vlq64fc>&, const Vlq64fc*, Vlq64fc*, int);

}  // namespace vlq::fir
